#pragma once

#include <functional>

#include "store/game.h"

namespace veld {

/// What a player uses in the window of Step 3, beside its menu.
namespace StepThreeControl {
inline constexpr int Races = 3021;
inline constexpr int Continue = 3043;
}  // namespace StepThreeControl

/// Step 3: opens the StepThree window on the abilities just rolled and returns. The player trades and burns points,
/// picks a race and a native language; Continue closes the window and calls `onContinue`, which runs the rest of the
/// generation. A window that is still open is closed first, as by its Abort. `onChanged` is called when it has opened
/// and after all else that the player does to the character in it.
void OpenStepThree(Game& game, std::function<void(Game&)> onContinue, std::function<void(Game&)> onChanged = {});

/// Closes the StepThree window, if it is open, as its Abort does: CurrentStep becomes 0, the character stays as it is.
void CloseStepThree(Game& game);

}  // namespace veld
