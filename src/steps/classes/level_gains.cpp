#include "steps/classes/level_gains.h"

#include "text/numbers.h"

namespace veld {

namespace {

/// Only the classes of the first 99 rows are taken out, though those of all rows are added: so it stands in the rules,
/// and only the last rows of the table feel it.
constexpr std::size_t kRowsTakenOut = 99;

/// The average gain of the classes in an ability, in percentile points.
std::int64_t AverageGain(const ClassTotals& totals, int ability) {
  return totals.Classes > 0 ? totals.Gains[static_cast<std::size_t>(ability)] / totals.Classes : 0;
}

}  // namespace

void SumLevelGains(CharacterSheet& sheet) {
  for (std::size_t row = 0; row < sheet.ClassLevels.size(); ++row) {
    if (sheet.ClassLevels[row] <= 0) continue;
    for (int ability = 0; ability < kAbilityCount; ++ability) {
      LevelNumbers& gains = LevelGainAt(sheet, ability)[row];
      std::int64_t sum = 0;
      for (std::size_t level = 0; level < kLevelSum; ++level) sum += gains[level];
      gains[kLevelSum] = SaturateToInt(sum);
    }
  }
}

void TakeOutLevelGains(Game& game, GainsTakenOut which) {
  const ClassTotals totals = which == GainsTakenOut::FirstClasses ? SumClasses(game, kRowsTakenOut) : SumClasses(game);
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    AbilityScore& score = AbilityAt(game.sheet, ability);
    const std::int64_t gain = AverageGain(totals, ability);
    if (gain == 0) game.run.AtZeroBeforeGains[static_cast<std::size_t>(ability)] = StandsAtZero(score) ? 1 : 0;
    score.Percentile = SaturateToInt(score.Percentile - gain);
  }
}

void AddLevelGains(Game& game, const ClassTotals& totals) {
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    AbilityScore& score = AbilityAt(game.sheet, ability);
    const std::int64_t gain = AverageGain(totals, ability);
    score.Percentile = SaturateToInt(score.Percentile + gain);
    NormalizeGained(score, gain, game.run.AtZeroBeforeGains[static_cast<std::size_t>(ability)] == 1);
  }
}

}  // namespace veld
