#pragma once

#include "store/game.h"

namespace veld {

/// The referee's dice roller: ten rows of dice, packages of named rolls, monsters' attacks, and a history. Opens at any
/// time: of the game it changes nothing but the random source (and the rule switch of typed dice, when "Turn This Off"
/// is pressed).
void RunGmDiceRoller(Game& game);

}  // namespace veld
