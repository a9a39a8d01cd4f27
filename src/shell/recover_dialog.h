#pragma once

#include <optional>

#include "store/game.h"
#include "store/recovery.h"

namespace veld {

/// The Recover dialog: lists the runs that did not come to their end by how far they are, then the recovery copies by
/// name, class and time. Returns what the player chose.
std::optional<RecoveryCopy> AskRecoveryCopy(Game& game);

/// Makes a copy the character, or the party, in memory, and tells if it can't. Returns true if it was a character.
bool TakeRecoveryCopy(Game& game, const RecoveryCopy& copy);

}  // namespace veld
