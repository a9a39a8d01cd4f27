#pragma once

#include "store/game.h"

namespace veld {

/// The EditQuirks page: how often each quirk or flaw is held; a row that is barred can be freed. Neither BP nor
/// abilities change with it.
void RunEditQuirks(Game& game);

}  // namespace veld
