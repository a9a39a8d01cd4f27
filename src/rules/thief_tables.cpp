#include "rules/thief_tables.h"

#include <algorithm>
#include <cstddef>

#include "rules/race_table.h"
#include "text/search.h"

namespace veld {

namespace {

using Percents = std::array<int, kThiefAbilityCount>;

constexpr int kNone = -100;  ///< the class has no base of its own

struct ClassBase {
  std::string_view className;
  Percents base;
};

struct DexterityChange {
  int dexterity;
  std::array<int, 6> change;  ///< of the first six abilities
};

constexpr int kHighestDexterity = 25;

// clang-format off

constexpr std::array<std::string_view, kThiefAbilityCount> kNames = {
    "Pick Pockets", "Open Locks", "Find Traps", "Remove Traps", "Move Silently", "Hide in Shadows", "Detect Noise",
    "Climb Walls", "Read Languages"};

//                       Pick   Open   Find Remove Silent   Hide  Noise  Climb   Read
constexpr std::array<ClassBase, 4> kClassBases = {{
    {"Thief",         {{   15,    10,     5,     5,    10,     5,    15,    60,     0}}},
    {"Assassin",      {{   15,    10,     5,     5,    10,     5,    15,    60,     0}}},
    {"Bard",          {{   10, kNone, kNone, kNone, kNone, kNone,    20,    50,     5}}},
    {"Bounty Hunter", {{kNone, kNone,     5,     5,    10,     5, kNone, kNone, kNone}}},
}};

// Dexterity 13 to 15 changes nothing, and neither does one below 7; 25 stands for all above 24.
//      Pick Open Find Remove Silent Hide
constexpr std::array<DexterityChange, 16> kDexterityChanges = {{
    { 7, {-25, -20, -20, -20, -30, -20}},
    { 8, {-20, -15, -15, -15, -25, -15}},
    { 9, {-15, -10, -10, -10, -20, -10}},
    {10, {-10,  -5, -10, -10, -15,  -5}},
    {11, { -5,   0,  -5,  -5, -10,   0}},
    {12, {  0,   0,   0,   0,  -5,   0}},
    {16, {  0,   5,   0,   0,   0,   0}},
    {17, {  5,  10,   0,   0,   5,   5}},
    {18, { 10,  15,   5,   5,  10,  10}},
    {19, { 15,  20,  10,  10,  15,  15}},
    {20, { 20,  25,  15,  15,  20,  20}},
    {21, { 25,  30,  20,  20,  25,  25}},
    {22, { 30,  35,  25,  25,  25,  30}},
    {23, { 35,  40,  30,  30,  30,  35}},
    {24, { 40,  45,  35,  35,  35,  40}},
    {25, { 45,  50,  40,  40,  40,  45}},
}};

// clang-format on

}  // namespace

std::string_view ThiefAbilityName(int ability) {
  return ability >= 0 && ability < kThiefAbilityCount ? kNames[static_cast<std::size_t>(ability)] : std::string_view{};
}

std::array<int, kThiefAbilityCount> ThiefBaseScores(std::string_view className, std::string_view race, int dexterity) {
  Percents scores{};
  for (const ClassBase& row : kClassBases) {
    if (!Contains(className, row.className)) continue;
    for (std::size_t i = 0; i < scores.size(); ++i) {
      if (row.base[i] != kNone) scores[i] = row.base[i];
    }
  }
  for (const DexterityChange& row : kDexterityChanges) {
    if (row.dexterity != std::min(dexterity, kHighestDexterity)) continue;
    for (std::size_t i = 0; i < row.change.size(); ++i) scores[i] += row.change[i];
  }
  if (const RaceRecord* record = FindRace(race)) {
    for (std::size_t i = 0; i < scores.size(); ++i) scores[i] += record->ThiefAdjustments[i];
  }
  return scores;
}

}  // namespace veld
