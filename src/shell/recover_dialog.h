#pragma once

#include "store/game.h"

namespace veld {

/// The Recover dialog: lists the recovery copies by name, class and time; the chosen one becomes the character, or the
/// party, in memory. Returns true if it was a character.
bool RunRecover(Game& game);

}  // namespace veld
