#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace veld {

/// The seven abilities in the order that records, files and dialogs keep them.
enum Ability { kStrength, kDexterity, kConstitution, kIntelligence, kWisdom, kCharisma, kComeliness, kAbilityCount };

/// An ability score: the whole score (rolled 3 to 18, raised up to 25) and its percentile points (1 to 100), shown as
/// "13/46".
struct AbilityScore {
  int Whole = 3;
  int Percentile = 1;

  friend bool operator==(const AbilityScore&, const AbilityScore&) = default;
};

/// How dialogs and the skill list write the abilities.
inline constexpr std::array<std::string_view, kAbilityCount> kAbilityShortNames = {"STR", "DEX", "CON", "INT",
                                                                                   "WIS", "CHA", "COM"};

/// The name of an ability ("Strength"), or an empty text for a number that is none.
std::string_view AbilityName(int ability);

/// Carries percentile points above 100 or below 0 into the whole score. A percentile of exactly 100 or exactly 0 stays:
/// the two ends differ on purpose, and nothing clamps the result. Any values do; a whole score saturates.
void NormalizeAbility(AbilityScore& score);

/// The same for a score that holds `gained` points (a loss is below 0) which may be taken back. 13/100 and 14/0 are one
/// sum: a score that reached it by a gain stands at 13/100, by a loss at 14/0, and one that holds neither any more
/// where it stood before (`stoodAtZero`). So whatever is given and taken back leaves the score as it was.
void NormalizeGained(AbilityScore& score, std::int64_t gained, bool stoodAtZero);

/// True if the score stands at exactly 0 percent once it is normalized.
bool StandsAtZero(AbilityScore score);

/// An ability as the number that class requirements are held against: "13/46" reads 13.46. The percentile is put behind
/// a point as it is printed, so 12/5 equals 12/50, and 12/100 reads 12.1 and is below 12/76.
float AbilityAsNumber(AbilityScore score);

}  // namespace veld
