#pragma once

#include <string_view>

#include "store/game.h"

namespace veld {

/// Turns the classes named in ClassName and the experience held into levels and into all that hangs on levels: hit
/// points, hit dice, proficiency slots, saving throws, ability gains, thief abilities, movement, Honor Die, and the
/// texts of classes and levels. Asks and opens dialogs only for levels gained. Repeating it changes nothing, save that
/// the ability gains of class rows from 99 up are added once more. A character without a known class stays as it is.
/// Shows the levels in control 51 of the window, if there is one.
void RecomputeFromClasses(Game& game, Form* window = nullptr);

/// True if the text names a class, alone or among others.
bool NamesKnownClass(std::string_view className);

/// The level (0 to 98) that an experience reaches in a class of one ladder: every level up to it needs no more. An
/// experience below 0 counts as 0: a class is given up by hand, never lost.
int EarnedLevel(int classRow, float experience);

/// Raises a class level by level to what its experience earns and its race allows, or takes back the levels that the
/// experience no longer earns, each with all that it gave.
void AdvanceClassLevels(Game& game, int classRow);

/// Sets the saving throws of a class row for the level held; a class without a saving throw table keeps them. Nothing
/// for row 199, whose place holds the best of all classes.
void ComputeSaves(Game& game, int classRow);

/// Sets movement from race, gender, lost legs and peg legs. A race and gender that the search leaves out keeps what the
/// choice of the race gave, and the slower rates follow from that.
void ComputeMovement(Game& game);

/// Sets the spell slots of the run for a mage's level.
void SetSpellsForLevel(Game& game, int level);

}  // namespace veld
