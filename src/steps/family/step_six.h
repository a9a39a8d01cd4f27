#pragma once

#include "store/game.h"

namespace veld {

/// What a player uses on the page of Step 6: the buttons of the tables, in the order of Prior.
namespace StepSixControl {
inline constexpr int FirstTable = 6078;
}  // namespace StepSixControl

/// Step 6, "Character Priors and Particulars": age, hand, height, weight, birth, social class and family by fifteen
/// tables, which open one after the other. OK leaves CurrentStep at 7, Abort at 1.
void RunStepSix(Game& game);

}  // namespace veld
