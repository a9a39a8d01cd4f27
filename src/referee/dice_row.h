#pragma once

#include <string>
#include <string_view>

#include "store/game.h"

namespace veld {

/// Dice that a row throws at most, and values that it keeps of them and of their penetration dice.
inline constexpr int kMostRowDice = 32'000;

/// One row of the referee's dice.
struct DiceRow {
  int Times = 0;
  int Sides = 0;
  int ModPerDie = 0;
  int ModPerRoll = 0;
  bool Penetrates = false;
  int HonorModifier = 0;  ///< -1, 0 or 1: added to each die
};

struct RowRoll {
  int Total = 0;
  std::string Values;  ///< "5 6 (P)3 2 ": dice, penetration dice, the modifier of the roll
};

/// Throws a row and logs it. "/EP/" in the label lets dice penetrate at their highest but one too, "/CL/" downward
/// at 1. A total under 1 counts as 1, but not with "/CL/". A row of no dice, or of dice of no sides, yields 0 and no
/// values, and leaves no line. Dice of which every face would penetrate do not.
///
/// Where the player throws the dice, "Roll For Me" leaves the rest of the row to the program.
RowRoll RollDiceRow(Game& game, const DiceRow& dice, int row, std::string_view label);

}  // namespace veld
