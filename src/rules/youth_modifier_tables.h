#pragma once

#include <span>

namespace veld {

// What a schooling adds to the starting Honor and to the starting money roll: the last two tables of a mage's school
// years and of a seminary. Both are rolled with 3d12 and what the schooling has gathered.

/// A row of such a table.
struct YouthModifier {
  int Highest;  ///< the highest total that yields the row
  int Value;
};

/// The rows in their order; the last one takes all higher totals.
std::span<const YouthModifier> HonorModifierTable();
std::span<const YouthModifier> MoneyRollModifierTable();

/// What a total yields on one of the two tables.
int YouthModifierOf(std::span<const YouthModifier> table, int total);

}  // namespace veld
