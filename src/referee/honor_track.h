#pragma once

#include "store/game.h"

namespace veld {

/// The referee's Honor tracking, HONORTRACK: the party in memory, who is in it, and what each of them earns or loses.
/// No character is touched. Every change is in the party's recovery copy when the next command is given.
void RunHonorTracking(Game& game);

}  // namespace veld
