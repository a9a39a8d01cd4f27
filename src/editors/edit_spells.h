#pragma once

#include "store/game.h"

namespace veld {

/// The EditSpells page: the spells that the character knows, and the pages that each takes in a book. What stands in
/// the books stays (see edit_spell_books.h).
void RunEditSpells(Game& game);

}  // namespace veld
