#pragma once

#include "store/game.h"

namespace veld {

/// Rolls a pirate's trade on "Table IL: Pirate Skills". The skill goes through the purchase at its ordinary price, and
/// it and what belongs to it gain 70. Each roll can be refused for 1 BP; to who can't pay it the table yields nothing.
void RollPirateSkills(Game& game);

}  // namespace veld
