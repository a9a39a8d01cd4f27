#pragma once

#include "print/pieces.h"
#include "sheets/sheet_content.h"
#include "store/game.h"

namespace veld {

/// What the character's first facts say under a label, "Race"; empty while nothing is known, as a record is made.
std::string KnownFact(const SheetContent& content, std::string_view label);

/// The first page, to play from: who it is, abilities and what they give, saving throws, hit points to tick, weapons,
/// movement, Honor, the abilities of the class, experience. What finds no room on it goes on to the next.
void PlaceTablePage(PageFlow& flow, const Game& game, const SheetContent& content);

}  // namespace veld
