#pragma once

#include "store/game.h"

namespace veld {

/// The Options dialog: shows the rule switches as options.vlb holds them; Apply takes over the boxes and writes the
/// file at once.
void RunOptions(Game& game);

}  // namespace veld
