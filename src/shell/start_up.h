#pragma once

#include "store/game.h"

namespace veld {

/// What the program does once its main window stands: all rule switches on, an empty character, then the side files in
/// their order: options, goods, the user's own goods, spells. What can't be read is told and left empty.
void StartUp(Game& game);

}  // namespace veld
