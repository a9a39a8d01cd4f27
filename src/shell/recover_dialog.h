#pragma once

#include "store/game.h"

namespace veld {

/// The Recover dialog: lists the recovery copies by name, class and time; the chosen one becomes the character in
/// memory. Returns true if one did.
bool RunRecover(Game& game);

}  // namespace veld
