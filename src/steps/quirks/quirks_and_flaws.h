#pragma once

#include <span>
#include <string_view>

#include "store/game.h"

namespace veld {

class Form;

// Step 7 by dice: the dialog in which the rolls owed are made.

/// What a player uses where the rolls owed are made: the box of tables, those that are owed, and Roll.
namespace QuirksControl {
inline constexpr int Table = 3115;
inline constexpr int Owed = 3116;
inline constexpr int Roll = 4001;
}  // namespace QuirksControl

/// The most rolls on the 6A tables that a player asks for.
inline constexpr int kMostQuirkRolls = 9;

/// The QuirksandFlaws dialog, in which all rolls owed are worked off: opened by whatever gave the character a row that
/// owes further rolls. Any roll on a 6A table left over from before is forgotten, and so is what earlier quirks earned.
void RunQuirksandFlaws(Game& game);

/// The same dialog with 0..9 rolls to make on the 6A tables. QuirkRollsLeft tells afterwards what an Abort left.
void RollForQuirks(Game& game, int rolls);

/// The same dialog for a mage's mishaps at school, with a roll owed on each of these tables.
void RunQuirksandFlawsMage(Game& game, std::span<const std::string_view> owedTables);

/// The list of a form that shows HeldQuirkNames.
inline constexpr int kHeldQuirksList = 3021;
void ListHeldQuirks(const Game& game, Form& form);

}  // namespace veld
