#pragma once

#include "print/pieces.h"
#include "store/game.h"

namespace veld {

/// The spells that a mage knows, level by level with the boxes of what he may memorize, and his books page by page.
void PlaceSpells(PageFlow& flow, const Game& game);

/// The same spells as cards to be cut out, nine on a page.
void DrawSpellCards(PageFlow& flow, const Game& game);

}  // namespace veld
