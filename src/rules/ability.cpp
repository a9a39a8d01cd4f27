#include "rules/ability.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "text/format.h"
#include "text/numbers.h"

namespace veld {

std::string_view AbilityName(int ability) {
  static constexpr std::array<std::string_view, kAbilityCount> kNames = {
      "Strength", "Dexterity", "Constitution", "Intelligence", "Wisdom", "Charisma", "Comeliness"};
  return ability >= 0 && ability < kAbilityCount ? kNames[static_cast<std::size_t>(ability)] : std::string_view{};
}

void NormalizeAbility(AbilityScore& score) {
  const std::int64_t percentile = score.Percentile;
  std::int64_t carried = 0;
  if (percentile > 100) carried = (percentile - 1) / 100;     // down into 1 to 100
  if (percentile < 0) carried = -((-percentile + 99) / 100);  // up into 0 to 99
  score.Percentile = static_cast<int>(percentile - 100 * carried);
  score.Whole = SaturateToInt(score.Whole + carried);
}

void NormalizeGained(AbilityScore& score, std::int64_t gained, bool stoodAtZero) {
  NormalizeAbility(score);
  const bool isAtZero = gained < 0 || (gained == 0 && stoodAtZero);
  if (score.Percentile == 100 && isAtZero) score = {AddSaturated(score.Whole, 1), 0};
  if (score.Percentile == 0 && !isAtZero) score = {AddSaturated(score.Whole, -1), 100};
}

bool StandsAtZero(AbilityScore score) {
  NormalizeAbility(score);
  return score.Percentile == 0;
}

float AbilityAsNumber(AbilityScore score) {
  return static_cast<float>(ReadDecimalPrefix(Format("%i.%i", score.Whole, score.Percentile)));
}

}  // namespace veld
