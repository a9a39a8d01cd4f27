#pragma once

#include <span>
#include <string_view>

#include "store/game.h"

namespace veld {

/// What a player uses in the TakeAfter dialog.
namespace TakeAfterControl {
inline constexpr int Yes = 1;
inline constexpr int Races = 3115;
}  // namespace TakeAfterControl

/// What the Take After talent costs, in BP.
inline constexpr float kTakeAfterCost = 30;

/// The races that a half-blood may take after; none for any other race.
std::span<const std::string_view> TakeAfterRaces(std::string_view race);

/// The character takes after a race, for 30 BP: its class limits hold from then on, save for the classes that quirks
/// bar.
void TakeAfter(Game& game, std::string_view race);

/// Offers the Take After talent. Closes at once for a race that has nobody to take after.
void RunTakeAfter(Game& game);

}  // namespace veld
