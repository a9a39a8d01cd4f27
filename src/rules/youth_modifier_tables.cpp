#include "rules/youth_modifier_tables.h"

#include <algorithm>
#include <limits>

namespace veld {

namespace {

constexpr int kRest = std::numeric_limits<int>::max();  // the last row takes all that is left

// clang-format off
constexpr YouthModifier kHonorModifiers[] = {
    {    0, -30},
    {    2, -20},
    {    4, -15},
    {    5, -10},
    {    6,  -8},
    {    7,  -6},
    {    8,  -5},
    {    9,  -4},
    {   10,  -3},
    {   11,  -2},
    {   12,  -1},
    {   24,   0},
    {   29,   1},
    {   30,   2},
    {   31,   3},
    {   32,   4},
    {   33,   5},
    {   34,   6},
    {   35,   7},
    {   36,   8},
    {   39,  10},
    {kRest,  15},
};

// The gap before the last row brings nothing.
constexpr YouthModifier kMoneyRollModifiers[] = {
    {    0, -60},
    {    2, -50},
    {    4, -40},
    {    5, -30},
    {    6, -25},
    {    7, -20},
    {    8, -15},
    {    9, -10},
    {   10,  -5},
    {   11,  -2},
    {   12,  -1},
    {   24,   0},
    {   25,   1},
    {   26,   2},
    {   27,   5},
    {   28,  10},
    {   29,  15},
    {   30,  20},
    {   31,  25},
    {   32,  30},
    {   33,  35},
    {   34,  40},
    {   35,  50},
    {   36,  60},
    {   37,  70},
    {   39,   0},
    {kRest,  80},
};
// clang-format on

}  // namespace

std::span<const YouthModifier> HonorModifierTable() {
  return kHonorModifiers;
}

std::span<const YouthModifier> MoneyRollModifierTable() {
  return kMoneyRollModifiers;
}

int YouthModifierOf(std::span<const YouthModifier> table, int total) {
  return std::ranges::find_if(table, [&](const YouthModifier& row) { return total <= row.Highest; })->Value;
}

}  // namespace veld
