#pragma once

#include <array>
#include <cstdint>

#include "store/game.h"

namespace veld {

/// What a player uses on the page of Step 8: a field for the BP of each ability.
namespace StepEightControl {
inline constexpr int FirstEntry = 3000;
}  // namespace StepEightControl

/// The abilities and whole BP as Step 8 found them; all its sums start here again.
struct RaiseBase {
  std::array<AbilityScore, kAbilityCount> Scores;
  int BP = 0;
};

inline constexpr int kPercentilePerBP = 25;

/// BP to spend on each ability in all, 0 to 999,999.
using RaiseEntries = std::array<std::int64_t, kAbilityCount>;

RaiseBase TakeRaiseBase(const Game& game);
/// The abilities and BP of the base. A fraction of a BP is lost.
void RestoreRaiseBase(Game& game, const RaiseBase& base);

/// The BP of the base less the entries: the rest may be negative. Returns false if it is; the abilities stay.
bool SpendRaiseBP(Game& game, const RaiseBase& base, const RaiseEntries& entries);
/// The abilities of the base, each with kPercentilePerBP points more for each BP of its entry.
void RaiseAbilities(Game& game, const RaiseBase& base, const RaiseEntries& entries);

/// Step 8, "Raise Ability Scores with BPs". OK leaves CurrentStep at 9, with the ability tables applied; Abort leaves
/// 0, with the abilities as they were.
void RunStepEight(Game& game);

}  // namespace veld
