#pragma once

#include "store/game.h"

namespace veld {

/// The "Dice Tester 3d6" command: rolls 3d6 1,111,100 times, with a progress window that the player can cancel, then
/// tells how often each total came up in 1,000,000, 100,000, 10,000, 1,000 and 100 rolls.
void RunDiceTester(Game& game);

}  // namespace veld
