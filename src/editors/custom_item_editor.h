#pragma once

#include "store/game.h"

namespace veld {

/// Opens EditEquipment, the page of the user's own goods. Every change stands in cequip.vlb when its button returns.
void RunCustomItemEditor(Game& game);

}  // namespace veld
