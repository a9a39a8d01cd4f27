#pragma once

#include "rules/spell_tables.h"
#include "store/game.h"

namespace veld {

/// Marks of a spell row in SpellsKnown; above 0 it is known, and the number is the pages that it takes in a book.
inline constexpr int kUnknownSpell = 0;
inline constexpr int kBarredSpell = -1;  ///< for the length of the dealing

/// Gives a mage the starting spells of the class, as mentors and given-up schools allow. What is barred stays marked
/// until FinishSpellList. A specialist gets school spells for each level that has slots in SpellsPerLevel. Nothing for
/// a character with StartingSpells -1 (a youth without spells).
void GrantStartingSpells(Game& game);

/// "Read Magic" and "Write" that every mage holds, and the end of all bars. The free spells of a school youth are
/// chosen between the two (see spell_selection.h).
void GrantReadingAndWriting(Game& game);
void LiftSpellBars(Game& game);

/// Learns a spell (marked with its level and 1d6 - 1, at least 1), or forgets it.
void LearnSpell(Game& game, std::size_t row);
void ForgetSpell(Game& game, std::size_t row);

/// Deals one spell of a first-level table, and more on rolls of 100. False if its names are all known or barred, or
/// after 1,000 rolls.
bool DealFirstLevelSpell(Game& game, FirstLevelTable table);

/// How many cantrips the character knows.
int KnownCantrips(const Game& game);

}  // namespace veld
