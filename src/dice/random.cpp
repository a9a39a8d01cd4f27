#include "dice/random.h"

namespace veld {

int NextRandom(DiceState& dice) {
  dice.RandomState = dice.RandomState * 0x41C64E6DU + 0x3039U;
  return static_cast<int>((dice.RandomState >> 16) & 0x7FFFU);
}

int RollDie(DiceState& dice, int sides) { return sides < 1 ? 0 : NextRandom(dice) % sides + 1; }

}  // namespace veld
