#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "rules/class_table.h"
#include "rules/notation.h"

// The class table as the game book prints it: what class_table.cpp expands into records.

namespace veld {

/// The class groups as letters: C cleric, F fighter, M mage, T thief.
struct ClassGroups {
  bool cleric = false;
  bool fighter = false;
  bool mage = false;
  bool thief = false;

  consteval ClassGroups(const char* notation) {
    NotationReader reader(notation);
    cleric = reader.Skip("C");
    fighter = reader.Skip("F");
    mage = reader.Skip("M");
    thief = reader.Skip("T");
    if (!reader.AtEnd()) throw "the letters are C F M T, in this order";
  }
};

/// The open alignments: "all", or short names in the order of the alignments ("L-G N C-E").
struct OpenAlignments {
  std::array<int, kAlignmentCount> flags{};

  consteval OpenAlignments(const char* notation) {
    constexpr std::array<std::string_view, kAlignmentCount> kShortNames = {"L-G", "L-N", "L-E", "N-G", "N",
                                                                           "N-E", "C-G", "C-N", "C-E"};
    NotationReader reader(notation);
    if (reader.Skip("all")) flags.fill(1);
    for (std::size_t i = 0; i < kShortNames.size() && !reader.AtEnd(); ++i) {
      if (reader.SkipWord(kShortNames[i])) flags[i] = 1;
    }
    if (!reader.AtEnd()) throw "an unknown alignment, or one out of order";
  }
};

/// Hit points by level: "d8/9/+2" is a d8 on the levels 1 to 9, then 2 points a level. "-" leaves all to
/// kHitDiceByLevel.
struct HitDiceNotation {
  int sides = 0;
  int lastRolled = 0;
  int flat = 0;

  consteval HitDiceNotation(const char* notation) {
    NotationReader reader(notation);
    if (reader.Skip("-")) return;
    reader.Expect("d");
    sides = reader.Number();
    reader.Expect("/");
    lastRolled = reader.Number();
    reader.Expect("/+");
    flat = reader.Number();
    if (!reader.AtEnd()) throw "hit dice end with the points a level";
  }
};

/// Proficiency slots: "4/3" is 4 at level 1 and one more on each level that is a multiple of 3.
struct SlotNotation {
  int first = 0;
  int step = 0;

  consteval SlotNotation(const char* notation) {
    NotationReader reader(notation);
    first = reader.Number();
    reader.Expect("/");
    step = reader.Number();
    if (!reader.AtEnd() || step < 1) throw "slots end with their step";
  }
};

/// The abilities a class needs: "STR 9, DEX 15.26, WIS max 17". An empty list needs none.
struct Requirements {
  std::array<AbilityNumberRange, kAbilityCount> ranges{};

  consteval Requirements(const char* notation) {
    constexpr std::array<std::string_view, kAbilityCount> kShortNames = {"STR ", "DEX ", "CON ", "INT ",
                                                                         "WIS ", "CHA ", "COM "};
    ranges.fill({-99, 99});
    NotationReader reader(notation);
    while (!reader.AtEnd()) {
      std::size_t ability = 0;
      while (ability < kShortNames.size() && !reader.Skip(kShortNames[ability])) ++ability;
      if (ability == kShortNames.size()) throw "an unknown ability";
      if (reader.Skip("max ")) {
        ranges[ability].Maximum = reader.Decimal();
      } else {
        ranges[ability].Minimum = reader.Decimal();
      }
      if (!reader.AtEnd()) reader.Expect(", ");
    }
  }
};

/// The experience for the levels 2, 3, ... and then what each further level up to 98 takes more: "1501 3001 then
/// 225000".
struct Ladder {
  std::array<int, kHighestLadderLevel + 1> experience{};

  consteval Ladder(const char* notation) {
    NotationReader reader(notation);
    std::size_t level = 2;
    while (!reader.Skip("then ")) {
      experience[level++] = reader.Number();
      reader.Expect(" ");
    }
    const int step = reader.Number();
    if (!reader.AtEnd()) throw "a ladder ends with its step";
    for (; level < experience.size(); ++level) experience[level] = experience[level - 1] + step;
  }
};

struct ClassEntry {
  int row;
  std::string_view name;
  int ruleSwitch;
  ClassGroups groups;
  int bp;
  int socialClass;
  OpenAlignments alignments;
  int background;
  HitDiceNotation hitDice;
  int kicker;
  SlotNotation slots;
  int ladder;
  NumberList<kAbilityCount> gainDice;
  int saveTable;
  Requirements requirements;
};

struct MultiClassRow {
  int row;
  std::string_view name;
  ClassGroups groups;
  int bp;
  int socialClass;
  int background;
  Requirements requirements;
};

/// Levels of a class whose hit dice leave the plain pattern.
struct HitDiceLevels {
  int classRow;
  int firstLevel;
  int lastLevel;
  int hitDice;
  int count;
  int sides;
  int flat;
};

/// Thief ability points: so many on the first level that brings any, so many on each level after it up to 98.
struct ThiefPoints {
  int classRow;
  int firstLevel;
  int first;
  int further;
};

/// A weapon list and the classes that share it, both as row lists; `quickDraw` opens row 0 of the second table.
struct WeaponList {
  std::string_view classes;
  std::string_view weapons;
  bool quickDraw;
};

inline constexpr std::size_t kLadders = 33;
inline constexpr std::size_t kWeaponLists = 41;

extern const std::array<ClassEntry, kLastSingleClass> kClasses;
extern const std::array<MultiClassRow, kClassRows - kFirstMultiClass> kMultiClasses;
extern const std::array<Ladder, kLadders> kExperienceLadders;
extern const std::array<HitDiceLevels, 11> kHitDiceByLevel;
extern const std::array<ThiefPoints, 6> kThiefPoints;
extern const std::array<WeaponList, kWeaponLists> kClassWeapons;

}  // namespace veld
