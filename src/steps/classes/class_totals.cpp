#include "steps/classes/class_totals.h"

#include <algorithm>

#include "rules/ability_effects.h"
#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

int RolledHitPoints(const CharacterSheet& sheet, std::size_t row) {
  std::int64_t sum = 0;
  for (std::size_t level = 0; level < kLevelSum; ++level) sum += sheet.LevelHitPoints[level][row];
  return SaturateToInt(sum);
}

/// A battle mage has no use of a high Constitution.
int UsableConstitution(const CharacterSheet& sheet, int constitutionAdj) {
  return sheet.ClassName == "Battle Mage" ? std::min(constitutionAdj, 0) : constitutionAdj;
}

int SharedHitPoints(const CharacterSheet& sheet, std::int64_t classes, std::int64_t rolled, int constitutionAdj) {
  const int perDie = AddSaturated(std::max(sheet.TalentCounts[TalentRow::HitPointBonus], 0), constitutionAdj);
  const std::int64_t points = rolled + std::int64_t{sheet.HitDiceCount} * perDie;
  return classes > 0 ? SaturateToInt(points / classes) : 0;
}

}  // namespace

ClassTotals SumClasses(const Game& game, std::size_t rows) {
  const CharacterSheet& sheet = game.sheet;
  ClassTotals totals;
  for (std::size_t row = 0; row < rows; ++row) {
    if (sheet.ClassLevels[row] <= 0) continue;
    ++totals.Classes;
    totals.Levels += sheet.ClassLevels[row];
    totals.HitPoints += game.run.ClassHitPoints[row];
    for (int ability = 0; ability < kAbilityCount; ++ability) {
      totals.Gains[static_cast<std::size_t>(ability)] += LevelGainAt(sheet, ability)[row][kLevelSum];
    }
  }
  return totals;
}

void SumHitPoints(Game& game) {
  for (std::size_t row = 0; row < game.sheet.ClassLevels.size(); ++row) {
    if (game.sheet.ClassLevels[row] > 0) game.run.ClassHitPoints[row] = RolledHitPoints(game.sheet, row);
  }
}

void SetHitPoints(Game& game, const ClassTotals& totals) {
  CharacterSheet& sheet = game.sheet;
  sheet.ConstitutionHPAdj = UsableConstitution(sheet, sheet.ConstitutionHPAdj);
  sheet.HitPoints = SharedHitPoints(sheet, totals.Classes, totals.HitPoints, sheet.ConstitutionHPAdj);
}

int HitPointsOf(const CharacterSheet& sheet) {
  std::int64_t classes = 0;
  std::int64_t rolled = 0;
  for (std::size_t row = 0; row < kBestSave; ++row) {
    if (sheet.ClassLevels[row] <= 0) continue;
    ++classes;
    rolled += RolledHitPoints(sheet, row);
  }
  const int constitutionAdj = ConstitutionEffectOf(sheet.Constitution).ConstitutionHPAdj;
  return SharedHitPoints(sheet, classes, rolled, UsableConstitution(sheet, constitutionAdj));
}

ClassTexts ClassTextsOf(const CharacterSheet& sheet) {
  ClassTexts texts;
  for (std::size_t row = 0; row < kBestSave; ++row) {
    if (sheet.ClassLevels[row] <= 0) continue;
    const char* const sign = texts.Levels.empty() ? "" : "/";
    texts.Names += Format("%s%s", sign, ClassTable()[row].Name);
    texts.Levels += Format("%s%i", sign, sheet.ClassLevels[row]);
  }
  if (texts.Levels.empty()) texts.Names = sheet.ClassName.View();
  return texts;
}

void SetClassTexts(CharacterSheet& sheet) {
  const ClassTexts texts = ClassTextsOf(sheet);
  sheet.ClassName = texts.Names;
  sheet.LevelText = texts.Levels;
}

void JoinMages(CharacterSheet& sheet) {
  for (std::size_t row = 0; row < kBestSave; ++row) {
    const bool isMage = ClassTable()[row].IsMage == 1 && row != ClassRow::BattleMage;
    if (isMage && sheet.ClassLevels[row] > 0) sheet.IsMageClass = 1;
  }
}

}  // namespace veld
