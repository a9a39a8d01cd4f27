#pragma once

#include <string_view>

#include "store/game.h"

namespace veld {

/// One row of a table for nothing: it is held, but earns no BP. A row that owes further rolls is left for
/// QuirksandFlaws. Returns false if nothing on the table is left.
bool TakeFreeQuirk(Game& game, std::string_view table);

/// A parent's gift: the player chooses one of two tables, mental or personality, and gets one row of it.
void RunMinorQuirk(Game& game);
void RunMajorQuirk(Game& game);

}  // namespace veld
