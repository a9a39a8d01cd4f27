#pragma once

#include <string>

#include "store/game.h"

namespace veld {

/// The EditSpellBooks page: the books in use with all their fields and the spells on their pages. Books can be added,
/// deleted and saved as text.
void RunEditSpellBooks(Game& game);

// What the page does to a book; books stay packed from the first. Each routine returns why it did nothing, empty when
// it did what it should.

/// A new book behind those in use: of the first standard format and its least pages.
std::string AddSpellBook(Game& game);
/// Takes a book out; those behind it move up.
void DeleteSpellBook(Game& game, std::size_t book);
/// Writes a spell at the end of a book, or gives one that stands there its pages. The first pages of the spells behind
/// it, the book's last page and its spell levels follow.
std::string WriteSpell(Game& game, std::size_t book, std::size_t spell, int pages);
/// Takes the name at a place of the book's list out; those behind it move up, and the same follows.
void EraseSpell(Game& game, std::size_t book, std::size_t place);

}  // namespace veld
