#pragma once

#include <array>
#include <initializer_list>
#include <string_view>

#include "rules/class_table.h"
#include "rules/notation.h"
#include "rules/race_table.h"
#include "rules/rule_switches.h"
#include "rules/talent_table.h"

// A race as the game book prints it: what race_table.cpp expands into the two records of its genders. No part of an
// entry has a default, so that an entry without it does not build.

namespace veld {

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

/// A row list of ExpandRowRuns: "2 4 7-8" or, with values, "1:10 3:15 54-57:14". Rows are below `Rows`.
template <std::size_t Rows, bool HasValues>
struct RowListNotation {
  std::string_view list;

  consteval RowListNotation(const char* notation) : list(notation) {
    NotationReader reader(list);
    for (int next = 0; !reader.AtEnd();) {
      if (next > 0) reader.Expect(" ");
      const int first = reader.Number();
      const int last = reader.Skip("-") ? reader.Number() : first;
      if (first < next || last < first || last >= static_cast<int>(Rows)) throw "rows rise and stay inside their table";
      if (HasValues) {
        reader.Expect(":");
        reader.Number();
      }
      next = last + 1;
    }
  }
};

using ClassLimitList = RowListNotation<kClassRows, true>;  ///< the highest level by class row
using TalentList = RowListNotation<kTalentTableRows, false>;
using NamedTalentList = RowListNotation<kTalentTable2Rows, false>;

/// What stands for a female list of class limits that is the male's.
inline constexpr char kAsTheMale[] = "";

/// A list of at most 10 texts.
struct TextList {
  std::array<std::string_view, 10> texts{};

  consteval TextList(std::initializer_list<std::string_view> list) {
    std::size_t count = 0;
    for (const std::string_view text : list) texts[count++] = text;
  }
};

/// The notes of the character sheet, as RaceRecord::Notes orders them.
struct RaceNotes {
  TextList Bonuses;
  TextList Talents;
  TextList Downside;
};

/// The numbers of one gender.
struct RaceNumbers {
  std::string_view Gender;
  int SizeClass;
  int Movement;
  AbilityLimitNotation Limits;
  NumberList<kAbilityCount> Modifiers;
  int BP;
  int Legitimacy;
  int Birth;
  DiceNotation Age;
  DiceNotation Height;
  DiceNotation Weight;
};

struct RaceEntry {
  std::string_view Name;
  int RuleSwitch;
  std::array<RaceNumbers, 2> Numbers;  ///< male, female
  TextList Languages;
  ClassLimitList MaleClassLimits;
  ClassLimitList FemaleClassLimits;
  TalentList TalentsBought;
  TalentList TalentsGranted;
  NamedTalentList NamedTalentsBought;
  NumberList<9> ThiefAdjustments;
  NumberList<9> PrintedThiefAdjustments;  ///< of the book's table of races, which differs; read by nothing
  TextList TakesAfter;                    ///< of a half-blood: the races it may take after
  RaceTraitSet Traits;
  RaceNotes Notes;
};

inline constexpr int kRaceKinds = kRacesFilled / 2;  ///< a race has two rows in RaceTable: 2k and 2k + 1
extern const std::array<RaceEntry, kRaceKinds> kRaces;

}  // namespace veld
