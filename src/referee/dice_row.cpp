#include "referee/dice_row.h"

#include <algorithm>
#include <vector>

#include "dice/dice.h"
#include "dice/typed_dice.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

/// A die of the row after another, until the player leaves the rest of them to the program.
class RowDice {
 public:
  RowDice(Game& game, int sides) : game_(game), sides_(sides) {}
  ~RowDice() {
    if (isLeftToProgram_) game_.RuleSwitches[kRollYourOwnDice] = 1;
  }
  RowDice(const RowDice&) = delete;
  RowDice& operator=(const RowDice&) = delete;

  int Throw() {
    game_.dice.DiceEntryValue = 0;
    const int die = RollDice(game_, sides_, 1);
    if (DiceAreTyped(game_) && game_.dice.DiceEntryValue == kRollForMe) {
      game_.RuleSwitches[kRollYourOwnDice] = 0;
      isLeftToProgram_ = true;
    }
    return die;
  }

 private:
  Game& game_;
  int sides_;
  bool isLeftToProgram_ = false;
};

struct RowValue {
  int Value = 0;
  bool IsPenetration = false;
};

/// How the dice of a row penetrate.
struct Penetration {
  bool IsActive = false;
  bool IsExtended = false;  ///< at the highest but one too
  bool IsDownward = false;  ///< at 1, and then downward

  bool StartsAt(int die, int sides) const {
    return IsActive && (die == sides || (IsExtended && die == sides - 1) || (IsDownward && die == 1));
  }
  bool GoesOnAt(int die, int sides) const { return die == sides || (IsExtended && die == sides - 1); }
};

Penetration PenetrationOf(const DiceRow& dice, std::string_view label) {
  Penetration p{dice.Penetrates, Contains(label, "/EP/"), Contains(label, "/CL/")};
  const int penetratingFaces = 1 + (p.IsExtended ? 1 : 0) + (p.IsDownward ? 1 : 0);
  if (dice.Sides <= penetratingFaces) p.IsActive = false;  // it would never end
  return p;
}

std::vector<RowValue> ThrowRow(Game& game, const DiceRow& dice, const Penetration& penetration) {
  const int times = std::min(dice.Times, kMostRowDice);
  std::vector<RowValue> values;
  values.reserve(static_cast<std::size_t>(times));
  const auto isFull = [&] { return values.size() >= kMostRowDice; };
  RowDice source(game, dice.Sides);
  for (int i = 0; i < times && !isFull(); ++i) {
    int die = source.Throw();
    values.push_back({SaturateToInt(std::int64_t{die} + dice.ModPerDie + dice.HonorModifier)});
    if (!penetration.StartsAt(die, dice.Sides)) continue;
    const bool isDownward = penetration.IsDownward && die == 1;
    do {
      if (isFull()) break;
      die = source.Throw();
      const int value = (isDownward ? 1 - die : die - 1) + dice.HonorModifier;
      values.push_back({isDownward ? value : std::max(value, 0), true});
    } while (penetration.GoesOnAt(die, dice.Sides));
  }
  return values;
}

std::string HeadLine(const DiceRow& dice, int row, const Penetration& penetration) {
  std::string line = Format(
      "Now rolling %id%i with a Die Modifier of %i and a roll modifier of %i. The Honor modifier for these rolls is %i "
      "and the rolls are coming from row %i. ",
      dice.Times, dice.Sides, dice.ModPerDie, dice.ModPerRoll, dice.HonorModifier, row);
  if (!dice.Penetrates) return line;
  line += "Penetration is active for this roll.";
  if (penetration.IsExtended) line += "Extended Penetration (max and max-1) is active.";
  if (penetration.IsDownward) line += "Downward Penetration is active.";
  return line;
}

}  // namespace

RowRoll RollDiceRow(Game& game, const DiceRow& dice, int row, std::string_view label) {
  if (dice.Times < 1 || dice.Sides < 1) return {};
  const HeldDiceLog log(game);
  const Penetration penetration = PenetrationOf(dice, label);
  LogDiceLine(game, HeadLine(dice, row, penetration));
  std::vector<RowValue> values = ThrowRow(game, dice, penetration);
  if (dice.ModPerRoll != 0) values.push_back({dice.ModPerRoll});
  RowRoll roll;
  std::int64_t total = 0;
  for (const RowValue& value : values) {
    total += value.Value;
    roll.Values += value.IsPenetration ? "(P)" : "";
    (roll.Values += std::to_string(value.Value)) += ' ';
  }
  roll.Total = SaturateToInt(total < 1 && !penetration.IsDownward ? 1 : total);
  LogDiceLine(game, roll.Values);
  LogDiceLine(game, Format("Row Total = %i", roll.Total));
  LogDiceLine(game, "");
  return roll;
}

}  // namespace veld
