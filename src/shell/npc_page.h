#pragma once

#include "store/game.h"

namespace veld {

/// The referee's NPCs: makes up to 200 characters that play themselves towards wishes, lists them, saves and prints
/// them or takes one into memory. Those made last stay listed while the program runs. The character in memory is not
/// touched but by Take.
void RunNpcs(Game& game);

}  // namespace veld
