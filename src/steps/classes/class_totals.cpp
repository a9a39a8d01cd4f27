#include "steps/classes/class_totals.h"

#include <algorithm>
#include <string>

#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

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
    if (game.sheet.ClassLevels[row] <= 0) continue;
    std::int64_t sum = 0;
    for (std::size_t level = 0; level < kLevelSum; ++level) sum += game.sheet.LevelHitPoints[level][row];
    game.run.ClassHitPoints[row] = SaturateToInt(sum);
  }
}

void SetHitPoints(Game& game, const ClassTotals& totals) {
  CharacterSheet& sheet = game.sheet;
  // A battle mage has no use of a high Constitution.
  if (sheet.ClassName == "Battle Mage") sheet.ConstitutionHPAdj = std::min(sheet.ConstitutionHPAdj, 0);
  const int perDie = AddSaturated(std::max(sheet.TalentCounts[TalentRow::HitPointBonus], 0), sheet.ConstitutionHPAdj);
  const std::int64_t points = totals.HitPoints + std::int64_t{sheet.HitDiceCount} * perDie;
  sheet.HitPoints = totals.Classes > 0 ? SaturateToInt(points / totals.Classes) : 0;
}

void SetClassTexts(CharacterSheet& sheet) {
  std::string names;
  std::string levels;
  for (std::size_t row = 0; row < kBestSave; ++row) {
    if (sheet.ClassLevels[row] <= 0) continue;
    const bool isFirst = levels.empty();
    names += Format("%s%s", isFirst ? "" : "/", ClassTable()[row].Name);
    levels += Format("%s%i", isFirst ? "" : "/", sheet.ClassLevels[row]);
  }
  if (!levels.empty()) sheet.ClassName = names;
  sheet.LevelText = levels;
}

void JoinMages(CharacterSheet& sheet) {
  for (std::size_t row = 0; row < kBestSave; ++row) {
    const bool isMage = ClassTable()[row].IsMage == 1 && row != ClassRow::BattleMage;
    if (isMage && sheet.ClassLevels[row] > 0) sheet.IsMageClass = 1;
  }
}

}  // namespace veld
