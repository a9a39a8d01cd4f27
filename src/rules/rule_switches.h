#pragma once

#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace veld {

/// The books and optional rules a generation may use, 1 on and 0 off. The core rules are always on. The numbers are
/// identities: rows of the catalogues name their books by them.
enum RuleSwitch : std::size_t {
  kCoreRules = 0,
  kHexwrightsAlmanac = 1,
  kWarmongersAlmanac = 2,
  kSwindlersAlmanac = 3,
  kDevoteesAlmanac = 4,
  kBeastGrid = 5,
  kRollYourOwnDice = 6,
  kBronzeMetropolis = 7,
  kSocialClassRestrictions = 8,
  kPostedFixes = 9,
  kTavernGazette12 = 10,
  kSmallFortModule = 11,
  kTitanTrilogyModule = 12,
  kFirstCarriedSwitch = 13,  ///< 13..19 mean nothing; options.vlb carries them from program to program
  kLastCarriedSwitch = 19,
  kRuleSwitches,
};

using RuleSwitchArray = std::array<int, kRuleSwitches>;

/// One switch: where it is kept, what it is without a file, and its box in the Options dialog.
struct RuleSwitchRow {
  std::size_t Switch;
  std::size_t FilePlace;  ///< which of the numbers of options.vlb it is, from 0
  int Default;            ///< on a first run, and when a file is too short to tell
  int BoxId = 0;          ///< 0: no box
  std::string_view Label = {};
  std::string_view Book = {};  ///< as a sentence begins with it; empty if it brings in no class
};

/// The number of options.vlb that belongs to no switch: it is written as 0 and not read.
inline constexpr std::size_t kReservedOptionPlace = 20;
/// Every options.vlb has at least this many numbers, for the programs that know no more.
inline constexpr std::size_t kFirstOptionPlaces = 21;

// All switches, those with a box in the order of the dialog. A new one is a name before kRuleSwitches and a row here,
// its place in the file behind the highest that there is (the first free one is 21), so that a file that doesn't have
// it yet leaves it at its default.
// clang-format off
inline constexpr RuleSwitchRow kRuleSwitchRows[] = {
    // Switch                 Place  Default  Box   Label, Book
    {kCoreRules,                  0, 1},
    {kHexwrightsAlmanac,          1, 1,       3003, "HXA - Hexwright's Almanac to Erdra Domination", "The Hexwright's Almanac"},
    {kWarmongersAlmanac,          2, 1,       3006, "WMA - Warmonger's Almanac to Slaughtering Foes", "The Warmonger's Almanac"},
    {kSwindlersAlmanac,           3, 1,       3007, "SWA - Swindler's Almanac", "The Swindler's Almanac"},
    {kDevoteesAlmanac,            4, 1,       3012, "DVA - Devotee's Almanac to ", "The Devotee's Almanac"},
    {kBeastGrid,                  5, 1,       3015, "BG - Beast Grid"},
    {kPostedFixes,                9, 1,       3019, "Posted Fixes"},
    {kTavernGazette12,           10, 1,       3023, "TG12 - Tavern Gazette #12"},
    {kSmallFortModule,           11, 1,       3028, "SFM - Small Fort Module"},
    {kTitanTrilogyModule,        12, 1,       3031, "TTM - Titan Trilogy Module"},
    {kRollYourOwnDice,            6, 1,       3036, "Roll Your Own Dice"},
    {kBronzeMetropolis,           7, 1,       3039, "Bronze Metropolis", "Bronze Metropolis"},
    {kSocialClassRestrictions,    8, 1,       3045, "Enforce Social Class Restrictions"},
    {kFirstCarriedSwitch,        13, 1},
    {kFirstCarriedSwitch + 1,    14, 1},
    {kFirstCarriedSwitch + 2,    15, 1},
    {kFirstCarriedSwitch + 3,    16, 1},
    {kFirstCarriedSwitch + 4,    17, 1},
    {kFirstCarriedSwitch + 5,    18, 1},
    {kLastCarriedSwitch,         19, 1},
};
// clang-format on

/// How many numbers options.vlb has: up to that of the last switch.
inline constexpr std::size_t kOptionPlaces = [] {
  std::size_t places = kFirstOptionPlaces;
  for (const RuleSwitchRow& row : kRuleSwitchRows) places = row.FilePlace < places ? places : row.FilePlace + 1;
  return places;
}();

inline constexpr RuleSwitchArray kDefaultRuleSwitches = [] {
  RuleSwitchArray switches{};
  for (const RuleSwitchRow& row : kRuleSwitchRows) switches[row.Switch] = row.Default;
  return switches;
}();

/// Each switch has one row, and no two share a place in the file or the id of a box.
inline constexpr bool kRuleSwitchRowsHold = [] {
  for (std::size_t i = 0; i < std::size(kRuleSwitchRows); ++i) {
    const RuleSwitchRow& row = kRuleSwitchRows[i];
    if (row.FilePlace == kReservedOptionPlace) return false;
    for (std::size_t k = 0; k < i; ++k) {
      const RuleSwitchRow& other = kRuleSwitchRows[k];
      if (row.Switch == other.Switch || row.FilePlace == other.FilePlace) return false;
      if (row.BoxId != 0 && row.BoxId == other.BoxId) return false;
    }
  }
  return std::size(kRuleSwitchRows) == kRuleSwitches;
}();
static_assert(kRuleSwitchRowsHold);

/// The book of a switch as a sentence begins with it.
constexpr std::string_view BookOfSwitch(int ruleSwitch) {
  for (const RuleSwitchRow& row : kRuleSwitchRows) {
    if (static_cast<int>(row.Switch) == ruleSwitch && !row.Book.empty()) return row.Book;
  }
  return "Its book";
}

}  // namespace veld
