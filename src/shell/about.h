#pragma once

#include "store/game.h"

namespace veld {

/// The About dialog: what the program is and its version.
void RunAbout(Game& game);

}  // namespace veld
