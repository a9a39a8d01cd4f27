#pragma once

#include "store/game.h"

namespace veld {

/// The HXABackground page: a mage's school years, from the place of the school to the final results of the education.
void RunHXABackground(Game& game);

}  // namespace veld
