#pragma once

#include "steps/classes/class_levels.h"
#include "store/game.h"

namespace veld {

/// The page of classes, levels and experience: experience awarded, written in or taken back, classes added and given
/// up, hit points written in. `way`: how the levels come that are written in; those won by an award are trained for.
void RunEditClasses(Game& game, const LevelWay& way);

/// The page of what each level brought: hit points, ability gains, points placed; hit points are rolled again.
void RunEditLevels(Game& game);

}  // namespace veld
