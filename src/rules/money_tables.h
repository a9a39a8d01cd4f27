#pragma once

#include <array>
#include <span>
#include <string_view>

#include "rules/notation.h"

namespace veld {

// The tables of Step 10: the years of training, the starting money and the debts of a father.

/// Dice of one kind.
struct AgeDice {
  int Sides;
  int Count;
};

/// What a class's training adds to the age, in years. A row is for the classes it names, with '|' between the names,
/// and for those whose name holds one of its words.
struct ClassAgeRow {
  std::array<AgeDice, 2> Dice;
  std::string_view Names = {};
  std::string_view Holding = {};
  bool MultiClassOnly = false;
};

/// The rows in the order in which they are tried.
std::span<const ClassAgeRow> ClassAgeTable();

/// The dice of a class, compared without regard to case; no dice (0d0) for a class that the table doesn't list.
std::array<AgeDice, 2> ClassAgeDice(std::string_view className);

/// A band of the starting money: a roll in gold, and how much is inherited (0, 2 to 5).
struct MoneyBand {
  int Low;
  int High;
  DiceNotation Gold;
  int Tier = 0;
};

/// A total up to this leaves a hereditary debt.
inline constexpr int kHighestDebtTotal = 5;
/// A total up to this leaves nothing.
inline constexpr int kHighestBrokeTotal = 10;

std::span<const MoneyBand> MoneyBands();

/// The band of a total; null where there is none: below 11, and at 106, which the bands leave out.
const MoneyBand* FindMoneyBand(int total);

/// A band of the hereditary debt: 10 times what it rolls, in gold.
struct DebtBand {
  int Low;
  int High;
  DiceNotation Amount;
  int Times = 1;  ///< of the dice, before their start is added
};

std::span<const DebtBand> DebtBands();

/// The band of a d100; a roll outside 1..100 takes the first or the last.
const DebtBand& DebtBandOf(int roll);

/// What a debt is times the roll of its band.
inline constexpr int kDebtFactor = 10;

}  // namespace veld
