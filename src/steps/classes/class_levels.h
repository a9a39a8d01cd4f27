#pragma once

#include "store/game.h"

namespace veld {

// Levels gained and taken back, each with all that it gives: hit dice and points, proficiency slots, points for thief
// abilities, ability gains.

/// How levels come.
struct LevelWay {
  bool HasTraining = true;   ///< each level after the first is trained for
  bool IsRolled = true;      ///< hit points, ability gains and points to place; else they are written in afterwards
  bool IsHeldToRace = true;  ///< no higher than race and flaws allow
};

/// The highest level that a class can gain.
int HighestLevelOf(int classRow);

/// Raises a class level by level to what its experience earns and its race allows, or takes back the levels that the
/// experience no longer earns. Opens the dialogs of the levels gained.
void AdvanceClassLevels(Game& game, int classRow, const LevelWay& way = {});

/// Takes back every level of a class, with all that they gave.
void LoseClassLevels(Game& game, int classRow);

/// Rolls the hit points of a level (1 to kHighestLevel) of a class once more.
void RollLevelHitPoints(Game& game, int classRow, int level);

/// Levels as the tables can hold them, and none in row 0.
void HoldLevels(CharacterSheet& sheet);

}  // namespace veld
