#include "referee/monster_attack.h"

#include <optional>

#include "dice/dice.h"
#include "platform/platform.h"
#include "referee/dice_row.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kNoArmorClass = 999;
constexpr int kMostHitDice = 20;

/// The row of the attack table, 0 to 21. Rows are looked through from the first on; one of n dice takes any text that
/// holds "(n-1)+" too, so that "11+3" stands in the row of 2 dice. So the book's table is read, and kept.
std::optional<int> AttackRow(std::string_view hitDice) {
  if (hitDice == "1-1" || Contains(hitDice, "hp") || Contains(hitDice, "HP")) return 0;
  if (hitDice == "1") return 1;
  if (hitDice == "1+1" || hitDice == "1+2") return 2;
  for (int n = 2; n < kMostHitDice; ++n) {
    const std::string dice = Format("%i", n);
    if (hitDice == dice || hitDice == dice + "+1" || hitDice == dice + "+2" ||
        Contains(hitDice, Format("%i+", n - 1))) {
      return n + 1;
    }
  }
  const bool isOfTwenty = hitDice == "20" || Contains(hitDice, "20+") || Contains(hitDice, "19+");
  return isOfTwenty ? std::optional(kMostHitDice + 1) : std::nullopt;
}

}  // namespace

int MonsterHitsArmorClass(std::string_view hitDice, int result) {
  const std::optional<int> row = AttackRow(hitDice);
  if (!row) return kNoArmorClass;
  const int k = *row;
  const std::int64_t rolled = result;
  if (result == 20) return -(7 + k);
  // From rows 18 and 13 on the sign turns: a slip of the table that is kept.
  if (result < 20) return SaturateToInt(k <= 17 ? (18 - k) - rolled : rolled - (k - 18));
  return SaturateToInt(k <= 12 ? (13 - k) - rolled : rolled - (k - 13));
}

std::string MonsterAttackRoll(Game& game, std::string_view hitDice) {
  const std::string attack = Format("Monster with %s Hit Dice is rolling to hit", hitDice);
  LogDiceLine(game, attack);
  const int result = RollDiceRow(game, {.Times = 1, .Sides = 20}, 0, {}).Total;
  std::string told = Format("%s getting a result of %i. This attack hits AC %i", attack, result,
                            MonsterHitsArmorClass(hitDice, result));
  game.platform.ShowMessage(told);
  return told;
}

}  // namespace veld
