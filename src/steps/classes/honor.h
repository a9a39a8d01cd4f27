#pragma once

#include "store/game.h"

namespace veld {

/// The starting Honor (1 and up) from abilities, birth and youth, the BP that it costs or pays, and the Honor Die of
/// level 1.
void ComputeHonor(Game& game);

/// Sets Honor Die, its bonus and the Honor category from the present Honor, for a level. Levels above 19 read the line
/// of level 20. Clears the level of class row 0, which no class has.
void ComputeHonorDie(Game& game, int level);

}  // namespace veld
