#pragma once

#include "store/game.h"

namespace veld {

/// GM, Party sheet: gathers characters from files, the party in memory and the character in memory, and prints a sheet
/// of them all for the referee.
void RunPartySheet(Game& game);

}  // namespace veld
