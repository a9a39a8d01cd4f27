#pragma once

#include "store/game.h"

namespace veld {

// A suite of skills brings its members with it. Members that are families are picked by the player; the slot picked is
// remembered in SkillGroupTable, -1 for a pick that was dropped.

/// The first purchase of a suite: each plain member not held gets the suite's mastery, for each family a member is
/// picked, which gets that mastery if the pick left it without any.
void StartSuite(Game& game, int row, int mastery);

/// Adds what a suite gained to every plain member and to the members picked.
void SpreadSuiteGain(CharacterSheet& sheet, int row, int gain);

}  // namespace veld
