#include "steps/money/starting_money.h"

#include <algorithm>

#include "dice/building_points.h"
#include "dice/dice.h"
#include "rules/money_tables.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

/// Throws of one inherited good that its modifier can send past the ends of the table. The next one goes without it.
constexpr int kMostInheritanceThrows = 1'000;

constexpr std::string_view kNobleman = "Nobleman";

/// Puts an amount into the purse, which is never worth less than nothing.
void SetGold(Game& game, std::int64_t gold) {
  game.sheet.GoldPieces = SaturateToInt(std::max<std::int64_t>(gold, 0));
}

int RollNotation(Game& game, const DiceNotation& dice, int times = 1) {
  return dice.base + times * RollDice(game, dice.sides, dice.count);
}

/// 2 to 24 for each BP, 1 to 100, and the modifiers of birth, class and youth; for two packages these count twice.
int RollMoneyTotal(Game& game) {
  const std::int64_t bought = RollDice(game, 12, 2 * game.run.MoneyBPSpent);
  const std::int64_t total = bought + RollDice(game, 100, 1) + game.run.InheritanceModifier;
  const bool isTwice = game.sheet.PackageName == kNobleman || game.sheet.PackageName == "Rustic Magic-User";
  return SaturateToInt(isTwice ? total + game.run.InheritanceModifier : total);
}

void RollHereditaryDebt(Game& game) {
  const DebtBand& band = DebtBandOf(RollDice(game, 100, 1));
  game.sheet.HereditaryDebt = kDebtFactor * RollNotation(game, band.Amount, band.Times);
  game.sheet.StartingMoneyText = Format("You have rolled a heriditary debt of %i", game.sheet.HereditaryDebt);
}

void ClearInheritance(CharacterSheet& sheet) {
  sheet.InheritanceTier = 0;
  sheet.InheritedWeapon.Clear();
  sheet.InheritedArmor.Clear();
  sheet.InheritedShieldHelmet.Clear();
  sheet.InheritedMount.Clear();
  sheet.InheritedDeed.Clear();
  sheet.StartingMoneyText.Clear();
}

}  // namespace

int RollClassAge(Game& game) {
  int years = 0;
  for (const AgeDice& dice : ClassAgeDice(game.sheet.ClassName)) years += RollDice(game, dice.Sides, dice.Count);
  return years;
}

bool PayForRoll(Game& game, bool isFirst) {
  return isFirst || Pay(game);
}

bool SpendMoneyBP(Game& game, std::int64_t bp) {
  if (bp < 0 || bp > kLargestEntry) return false;
  if (bp > 0 && !Pay(game, static_cast<float>(bp))) return false;
  game.run.MoneyBPSpent = static_cast<int>(bp);
  return true;
}

void GenerateStartingMoney(Game& game) {
  CharacterSheet& sheet = game.sheet;
  RollStartingMoney(game, RollMoneyTotal(game));
  if (sheet.IsOrphan > 0 && sheet.GoldPieces > 0) sheet.GoldPieces /= 2;
  const std::int64_t gold = sheet.GoldPieces;
  SetGold(game, gold + gold * game.run.MoneyBonusPercent / 100);
  DescribeInheritance(game);
  if (sheet.PackageName == kNobleman) SetGold(game, std::int64_t{sheet.GoldPieces} + 150);
  if (sheet.PackageName == "Noble Warrior") SetGold(game, std::int64_t{sheet.GoldPieces} + 225);
}

void RollStartingMoney(Game& game, int total) {
  ClearInheritance(game.sheet);
  game.sheet.GoldPieces = 0;
  if (total <= kHighestDebtTotal) return RollHereditaryDebt(game);
  if (total <= kHighestBrokeTotal) {
    game.sheet.StartingMoneyText = "You are flat broke";
    return;
  }
  const MoneyBand* band = FindMoneyBand(total);
  if (!band) return;
  game.sheet.GoldPieces = RollNotation(game, band->Gold);
  game.sheet.InheritanceTier = band->Tier;
}

void DescribeInheritance(Game& game) {
  CharacterSheet& sheet = game.sheet;
  if (sheet.InheritanceTier < 2) return;
  std::string text = "You have inherited your father's weapon";
  sheet.InheritedWeapon = RollInheritedGood(game, InheritanceKind::Weapon);
  if (sheet.InheritanceTier >= 3) {
    text += ", armor";
    sheet.InheritedArmor = RollInheritedGood(game, InheritanceKind::Armor);
    sheet.InheritedShieldHelmet = RollInheritedGood(game, InheritanceKind::Shield);
  }
  if (sheet.InheritanceTier >= 4) {
    text += ", horse";
    sheet.InheritedMount = RollInheritedGood(game, InheritanceKind::Mount);
  }
  if (sheet.InheritanceTier >= 5) {
    text += ", and the deed to some land";
    sheet.InheritedDeed = RollInheritedDeed(game);
  }
  sheet.StartingMoneyText = text;
}

std::string RollInheritedGood(Game& game, InheritanceKind kind) {
  const int modifier = InheritanceTierModifier(game.sheet.SocialClassIndex, kind);
  int enchantment = 0;
  for (int throws = 0; throws < kMostInheritanceThrows; ++throws) {
    const int total = RollDice(game, InheritanceDie(kind), 1) + modifier;
    const InheritanceResult result = ReadInheritance(kind, total, game.sheet.RaceName);
    if (!result.Name.empty()) return InheritedText(result.Name, enchantment);
    enchantment += result.Enchantment;
  }
  const int plain = RollDice(game, InheritanceDie(kind), 1);
  return InheritedText(ReadInheritance(kind, plain, game.sheet.RaceName).Name, enchantment);
}

std::string RollInheritedDeed(Game& game) {
  return std::string(InheritedDeed(RollDice(game, 100, 1)));
}

}  // namespace veld
