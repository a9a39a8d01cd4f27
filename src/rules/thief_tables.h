#pragma once

#include <array>
#include <string_view>

namespace veld {

/// The nine thief abilities in the order of the character's record.
enum ThiefAbilityKind {
  kPickPockets,
  kOpenLocks,
  kFindTraps,
  kRemoveTraps,
  kMoveSilently,
  kHideInShadows,
  kDetectNoise,
  kClimbWalls,
  kReadLanguages,
  kThiefAbilityCount
};

/// "Pick Pockets" ..., or an empty text for a number that is none.
std::string_view ThiefAbilityName(int ability);

/// The thief abilities, in percent, before any point is placed: what the class (every class whose name stands in
/// `className`), the whole Dexterity and the race (case aside) bring. May be negative.
std::array<int, kThiefAbilityCount> ThiefBaseScores(std::string_view className, std::string_view race, int dexterity);

}  // namespace veld
