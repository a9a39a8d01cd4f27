#pragma once

#include <array>
#include <span>
#include <string_view>

#include "rules/notation.h"
#include "rules/race_table.h"

// The race table as the game book prints it: what race_table.cpp expands into records.

namespace veld {

inline constexpr int kRaceKinds = kRacesFilled / 2;  ///< a kind is a race in both genders: rows 2k and 2k + 1

/// The seven ranges of the whole scores: "8-18 3-17 12-19 3-18 3-18 3-16 3-15".
struct AbilityLimitNotation {
  std::array<AbilityRange, kAbilityCount> ranges{};

  consteval AbilityLimitNotation(const char* notation) {
    NotationReader reader(notation);
    for (AbilityRange& range : ranges) {
      if (&range != ranges.data()) reader.Expect(" ");
      range.Minimum = reader.Number();
      reader.Expect("-");
      range.Maximum = reader.Number();
    }
    if (!reader.AtEnd()) throw "more ranges than abilities";
  }
};

/// The numbers of one row.
struct RaceRow {
  std::string_view name;
  std::string_view gender;
  int sizeClass;
  int movement;
  AbilityLimitNotation limits;
  NumberList<kAbilityCount> modifiers;
  int bp;
  int legitimacy;
  int birth;
  DiceNotation age;
  DiceNotation height;
  DiceNotation weight;
};

/// The highest level by class row, as row lists ("1:10 3:15 54-57:14"). An empty female list is that of the male.
struct RaceClassLimits {
  std::string_view male;
  std::string_view female;
};

/// Row lists of the talents that may be bought, of those that come for nothing, and of the second table's.
struct RaceTalents {
  std::string_view bought;
  std::string_view granted;
  std::string_view bought2;
};

struct RaceNote {
  int slot;
  std::string_view text;
};

extern const std::array<RaceRow, kRacesFilled> kRaceNumbers;
extern const std::array<NumberList<9>, kRaceKinds> kRaceThiefAdjustments;
extern const std::array<std::array<std::string_view, 10>, kRaceKinds> kRaceLanguages;
extern const std::array<RaceClassLimits, kRaceKinds> kRaceClassLimits;
extern const std::array<RaceTalents, kRaceKinds> kRaceTalents;
extern const std::array<std::span<const RaceNote>, kRaceKinds> kRaceNotes;

}  // namespace veld
