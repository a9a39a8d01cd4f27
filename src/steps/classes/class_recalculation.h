#pragma once

#include "steps/classes/class_levels.h"
#include "steps/classes/level_gains.h"
#include "store/game.h"

namespace veld {

class Form;

/// Turns the classes named in ClassName and the experience held into levels and into all that hangs on levels: hit
/// points, hit dice, proficiency slots, saving throws, ability gains, thief abilities, movement, Honor Die, and the
/// texts of classes and levels. Asks and opens dialogs only for levels gained. Repeating it changes nothing, save that
/// the ability gains of class rows from 99 up are added once more, where `gains` doesn't say to take those out too. A
/// character without a known class stays as it is. Returns true if a level changed: whoever shows LevelText shows it
/// anew.
bool RecomputeFromClasses(Game& game, const LevelWay& way = {}, GainsTakenOut gains = GainsTakenOut::FirstClasses);

}  // namespace veld
