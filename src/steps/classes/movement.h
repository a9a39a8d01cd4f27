#pragma once

#include "store/game.h"

namespace veld {

/// Sets movement from race, gender, lost legs and peg legs. A race and gender that the search leaves out keeps what the
/// choice of the race gave, and the slower rates follow from that.
void ComputeMovement(Game& game);

}  // namespace veld
