#pragma once

#include "store/game.h"

namespace veld {

/// A fighter's military youth: the dialog in which the tables from the training camp to the tour of duty are rolled.
void RunWMABackground(Game& game);

}  // namespace veld
