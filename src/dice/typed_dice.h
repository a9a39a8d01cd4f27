#pragma once

#include <cstdint>

#include "store/game.h"

namespace veld {

/// The entry that stands for "Roll For Me".
inline constexpr std::int64_t kRollForMe = -999;

/// True while the player throws real dice and types the results ("Roll Your Own Dice").
bool DiceAreTyped(const Game& game);

/// Shows the GetDice dialog with DiceLabel as its prompt, again and again until the player enters lowest..highest or
/// leaves the roll to the program. Returns the number entered, or kRollForMe.
std::int64_t AskTypedDice(Game& game, std::int64_t lowest, std::int64_t highest);

}  // namespace veld
