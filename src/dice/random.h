#pragma once

#include "store/game.h"

namespace veld {

/// The next number of the random source, 0..32767: the upper half of a 32-bit linear congruential generator.
int NextRandom(DiceState& dice);

/// One die, 1..sides; 0 for a die of no sides. The small bias of sides that don't divide 32768 is kept.
int RollDie(DiceState& dice, int sides);

}  // namespace veld
