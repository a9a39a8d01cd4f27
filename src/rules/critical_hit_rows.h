#pragma once

#include <array>
#include <string_view>

namespace veld {

/// What weapons of one type do to one place, by severity 1 to 24: "1:1 | 2-3:3 | 4-6:6, m2 | ... | 24:skull caved-in".
/// Severities rise without a gap; before the colon of an entry stand one severity or a run "a-b", after it the effects,
/// divided by ", ", or a sentence of prose.
struct CriticalHitLadder {
  std::string_view Location;
  std::string_view Ladder;
};

// The ladders of each damage type, in the order of kCriticalHitPlaces.
extern const std::array<CriticalHitLadder, 50> kPuncturingHits;
extern const std::array<CriticalHitLadder, 50> kHackingHits;
extern const std::array<CriticalHitLadder, 50> kCrushingHits;
extern const std::array<CriticalHitLadder, 50> kMonsterBiteHits;

/// Where in its ladder the effects of a severity stand.
struct CriticalHitSlice {
  unsigned short Start = 0;
  unsigned short Length = 0;
};

/// The effects of each place at each severity, found when the ladders were read.
using CriticalHitIndex = std::array<std::array<CriticalHitSlice, 24>, 50>;

extern const CriticalHitIndex kPuncturingIndex;
extern const CriticalHitIndex kHackingIndex;
extern const CriticalHitIndex kCrushingIndex;
extern const CriticalHitIndex kMonsterBiteIndex;

}  // namespace veld
