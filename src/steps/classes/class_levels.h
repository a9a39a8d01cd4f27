#pragma once

#include "store/game.h"

namespace veld {

// Levels gained and taken back, each with all that it gives: hit dice and points, proficiency slots, points for thief
// abilities, ability gains.

/// Raises a class level by level to what its experience earns and its race allows, or takes back the levels that the
/// experience no longer earns. Opens the dialogs of the levels gained.
void AdvanceClassLevels(Game& game, int classRow);

/// Levels as the tables can hold them, and none in row 0.
void HoldLevels(CharacterSheet& sheet);

}  // namespace veld
