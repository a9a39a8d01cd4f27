#pragma once

#include "store/game.h"

namespace veld {

/// A mage's first spell book: rolls Tables 7G, 7G1 and 7G2 (or 7H for what is no book), each with the offer to re-roll
/// for 1 BP, and writes the known spells that are in no book into it. What its pages, or its list of 100 names, can't
/// hold goes into further books of the same make ("Second Spellbook"). With no such spell no book is made.
void MakeFirstSpellBook(Game& game);

/// Every text empty and every number 0. The books behind stay where they are.
void ClearSpellBook(Game& game, std::size_t book);

/// Asks for each book whether to save it, and writes those it is told to.
void SaveSpellBooks(Game& game);

/// The text of a book file: what the book is, then a line for each spell with its pages, or the pieces that it takes of
/// a non-standard book.
std::string SpellBookText(const Game& game, std::size_t book);

/// "<character> spellbook <n>.txt", with "_" for what a file name can't hold.
std::string SpellBookFileName(const Game& game, std::size_t book);

}  // namespace veld
