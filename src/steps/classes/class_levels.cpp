#include "steps/classes/class_levels.h"

#include <algorithm>

#include "dice/dice.h"
#include "referee/training.h"
#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "rules/race_table.h"
#include "steps/classes/allotments.h"
#include "steps/classes/experience_ladder.h"
#include "store/sheet_accessors.h"
#include "text/numbers.h"

namespace veld {

namespace {

constexpr int kHighestGain = 97;
constexpr int kHighestDruidGain = 23;

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

void AddHitDice(Game& game, int classRow, int level, int sign) {
  int& total = game.sheet.HitDiceCount;
  int dice = ClassAt(classRow).HitDiceAtLevel[Index(level)];
  if (level == 1 && HasTrait(game.sheet.RaceName, RaceTrait::DoubledFirstHitDice)) dice *= 2;
  total = AddSaturated(total, sign * dice);
}

/// Each ability grows by its class's die and the Honor Die, rolled in the order of the players' sheet.
void RollAbilityGains(Game& game, int classRow, int level) {
  constexpr Ability kRollOrder[] = {kStrength,     kIntelligence, kWisdom,    kDexterity,
                                    kConstitution, kCharisma,     kComeliness};
  const auto gain = [&](int ability) -> int& {
    return LevelGainAt(game.sheet, ability)[Index(classRow)][Index(level)];
  };
  for (const Ability ability : kRollOrder) {
    gain(ability) = RollHonorDice(game, ClassAt(classRow).AbilityGainDie[ability], 1);
  }
  for (const Ability ability : kRollOrder) {
    gain(ability) = AddSaturated(gain(ability), RollHonorDice(game, game.sheet.HonorDie, 1));
  }
  for (const Ability ability : kRollOrder) gain(ability) = AddSaturated(gain(ability), game.run.HonorDieBonus);
}

void GainLevel(Game& game, int classRow, const LevelWay& way) {
  CharacterSheet& sheet = game.sheet;
  const ClassRecord& record = ClassAt(classRow);
  int& held = sheet.ClassLevels[Index(classRow)];
  if (held > 0 && way.HasTraining) RunTraining(game);
  const int level = ++held;
  AddHitDice(game, classRow, level, 1);
  int& slots = sheet.ClassProficiencySlots[Index(classRow)];
  slots = AddSaturated(slots, record.ProficiencySlotsAtLevel[Index(level)]);
  if (!way.IsRolled) return;
  if (record.ThiefPointsAtLevel[Index(level)] != 0) {
    game.run.ThiefPointsToSpend = record.ThiefPointsAtLevel[Index(level)];
    RunAllotment(game, classRow);
  }
  RollLevelHitPoints(game, classRow, level);
  if (level > 1) RollAbilityGains(game, classRow, level);
}

/// The points of the level held in a class go, as far as they lie in a slot of that class.
void TakeBackThiefPoints(Game& game, int classRow, int level) {
  const Allotment allotment = AllotmentOf(classRow);
  if (ClassAt(classRow).ThiefPointsAtLevel[Index(level)] == 0) return;
  if (AllotmentSlot(game.sheet, allotment, classRow) != Index(level)) return;
  for (const int ability : AllottedAbilities(allotment)) ThiefAbilityAt(game.sheet, Index(ability))[Index(level)] = 0;
}

void LoseLevel(Game& game, int classRow) {
  CharacterSheet& sheet = game.sheet;
  int& held = sheet.ClassLevels[Index(classRow)];
  const int level = held;
  TakeBackThiefPoints(game, classRow, level);
  AddHitDice(game, classRow, level, -1);
  int& slots = sheet.ClassProficiencySlots[Index(classRow)];
  slots = AddSaturated(slots, -ClassAt(classRow).ProficiencySlotsAtLevel[Index(level)]);
  sheet.LevelHitPoints[Index(level)][Index(classRow)] = 0;
  if (level == 1) sheet.LevelHitPoints[0][Index(classRow)] = 0;
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    LevelGainAt(sheet, ability)[Index(classRow)][Index(level)] = 0;
  }
  --held;
}

}  // namespace

int HighestLevelOf(int classRow) {
  return classRow == ClassRow::Druid ? kHighestDruidGain : kHighestGain;
}

void RollLevelHitPoints(Game& game, int classRow, int level) {
  CharacterSheet& sheet = game.sheet;
  const ClassRecord& record = ClassAt(classRow);
  const auto roll = [&] {
    return RollHitPointDice(game, record.HitDieSides[Index(level)], record.HitDieCount[Index(level)]);
  };
  int& base = BaseHitPoints(sheet, classRow);
  if (level == 1) base = record.Kicker;
  int points = roll();
  const auto has = [&](RaceTrait trait) { return HasTrait(sheet.RaceName, trait); };
  if (level == 1 && has(RaceTrait::DoubledFirstHitDice)) points = AddSaturated(points, roll());
  if (has(RaceTrait::HalvedHitPoints)) points /= 2;
  if (has(RaceTrait::HalvedHitPointsAndKicker)) {
    points = AddSaturated(points, 1) / 2;
    if (level == 1) base /= 2;
  }
  sheet.LevelHitPoints[Index(level)][Index(classRow)] = AddSaturated(points, record.FlatHitPoints[Index(level)]);
}

void AdvanceClassLevels(Game& game, int classRow, const LevelWay& way) {
  if (classRow < 1 || classRow > kLastSingleClass) return;
  const int earned = EarnedLevel(classRow, game.sheet.ClassExperience[Index(classRow)]);
  const int open = way.IsHeldToRace ? game.run.ClassAllowed[Index(classRow)] : kHighestLevel;
  const int allowed = std::min({earned, HighestLevelOf(classRow), open});
  const int& held = game.sheet.ClassLevels[Index(classRow)];
  while (held < allowed) GainLevel(game, classRow, way);
  while (held > earned) LoseLevel(game, classRow);
}

void LoseClassLevels(Game& game, int classRow) {
  while (game.sheet.ClassLevels[Index(classRow)] > 0) LoseLevel(game, classRow);
}

void HoldLevels(CharacterSheet& sheet) {
  for (int& level : sheet.ClassLevels) level = std::clamp(level, 0, kHighestLevel);
  sheet.ClassLevels[0] = 0;
}

}  // namespace veld
