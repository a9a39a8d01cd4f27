#pragma once

#include "store/game.h"

namespace veld {

/// The editor of the character in memory: a page for each part of him. Cancel and the close box leave him untouched, OK
/// brings all that follows from classes and abilities up to date. Without a character it says so. Returns true if it
/// was left by OK.
bool RunMainEdit(Game& game);

/// The same pages, one after another in the order of a paper sheet, for a character that exists on paper. Begins with
/// an empty record; left by Cancel, the character that was in memory is back. Returns true if it was left by OK.
bool RunEnter(Game& game);

}  // namespace veld
