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

float AbilityAsNumber(AbilityScore score) {
  return static_cast<float>(ReadDecimalPrefix(Format("%i.%i", score.Whole, score.Percentile)));
}

}  // namespace veld
