#pragma once

#include "store/game.h"

namespace veld {

// Saving throws and proficiency slots: each class has its own, the character the best.

/// Sets the saving throws of a class row for the level held; a class without a saving throw table keeps them. Nothing
/// for row 199, whose place holds the best of all classes.
void ComputeSaves(Game& game, int classRow);

/// Forgets the best of the classes, until JoinSavesAndSlots finds it anew.
void ClearSavesAndSlots(CharacterSheet& sheet);

/// The best saving throws and the most proficiency slots of all class rows become the character's. A row without a
/// level saves as nobody does, so that a class given up leaves nothing behind.
void JoinSavesAndSlots(Game& game);

}  // namespace veld
