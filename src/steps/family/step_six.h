#pragma once

#include "store/game.h"

namespace veld {

/// Step 6, "Character Priors and Particulars": age, hand, height, weight, birth, social class and family by fifteen
/// tables, which open one after the other. OK leaves CurrentStep at 7, Abort at 1.
void RunStepSix(Game& game);

}  // namespace veld
