#pragma once

#include "print/pieces.h"
#include "sheets/sheet_content.h"
#include "store/game.h"

namespace veld {

// The pages of lists. Each begins where the one before it ended and has room for what is to come.

/// Skills with their mastery, talents, proficiencies, quirks and flaws, tattoos.
void PlaceAccomplishments(PageFlow& flow, const Game& game, const SheetContent& content);

/// Coins, inheritance and debts, and the goods by category, each with its weight.
void PlaceGoods(PageFlow& flow, const Game& game, const SheetContent& content);

/// Family, youth, notes, and lines to go on with.
void PlaceStory(PageFlow& flow, const SheetContent& content);

/// A page to fill in: what was earned and when.
void PlaceLog(PageFlow& flow);

}  // namespace veld
