#include "rules/saving_throws.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "rules/notation.h"
#include "text/numbers.h"

namespace veld {

namespace {

constexpr int kTables = 5;
constexpr int kLevels = 20;
constexpr int kColumns = 6;

// clang-format off

// The columns of a table, one a line, for the levels 1 to 20.
constexpr std::array<std::array<NumberList<kLevels>, kColumns>, kTables> kSavingThrows = {{
  {{  // 1: mages
    "14 14 14 14 13 13 13 13 12 12 12 12 11 11 11 11 10 10 10 10",  // paralyzation, poison, death magic
    "11 11 11 10 10 10 9 9 8 8 8 7 7 7 6 6 5 5 5 4",                // rod, staff, wand
    "13 13 13 12 12 12 11 11 11 10 10 10 9 9 9 8 8 8 7 7",          // petrification, polymorph, quell frenzy and lust
    "15 15 15 14 14 14 13 13 13 12 12 12 11 11 11 10 10 10 9 9",    // breath weapon
    "17 17 16 16 15 15 14 14 13 13 12 12 11 11 10 10 9 9 8 8",      // apology
    "12 12 11 11 11 10 10 10 9 9 9 8 8 8 7 7 7 6 6 6",              // spells
  }},
  {{  // 2: fighters
    "15 14 13 13 12 11 10 10 9 8 7 7 6 5 4 4 3 3 2 2",              // paralyzation, poison, death magic
    "17 16 15 15 14 13 12 12 11 10 9 9 8 7 6 6 5 5 4 4",            // rod, staff, wand
    "16 15 15 14 13 12 11 11 10 9 8 8 7 6 5 5 4 4 3 3",             // petrification, polymorph, quell frenzy and lust
    "19 18 17 16 15 14 13 12 11 10 9 8 7 6 4 4 3 2 2 2",            // breath weapon
    "18 18 17 17 16 16 15 15 14 14 13 13 12 12 11 11 10 10 9 9",    // apology
    "18 17 16 16 15 14 13 13 12 11 10 10 9 8 7 7 6 6 5 5",          // spells
  }},
  {{  // 3: thieves
    "14 13 13 13 12 12 12 12 11 11 11 11 10 10 10 10 9 9 9 9",      // paralyzation, poison, death magic
    "15 14 14 13 12 12 12 11 11 10 10 9 9 8 8 7 7 6 6 6",           // rod, staff, wand
    "13 12 12 11 11 11 11 11 10 10 10 10 9 9 9 9 8 8 8 8",          // petrification, polymorph, quell frenzy and lust
    "17 16 16 16 15 15 15 15 14 14 14 14 13 13 13 13 12 12 12 12",  // breath weapon
    "16 16 15 15 14 14 13 13 12 12 11 11 10 10 9 9 8 8 7 7",        // apology
    "16 15 15 14 14 13 13 12 12 11 11 10 10 9 9 8 8 7 7 7",         // spells
  }},
  {{  // 4: clerics
    "10 10 9 9 9 8 8 7 7 6 6 6 5 5 5 4 4 3 3 2",                    // paralyzation, poison, death magic
    "14 14 14 13 13 12 12 11 11 10 10 10 9 9 9 8 8 8 6 6",          // rod, staff, wand
    "13 13 13 12 12 11 11 10 10 9 9 9 8 8 8 7 7 6 6 5",             // petrification, polymorph, quell frenzy and lust
    "16 16 16 15 15 14 14 13 13 12 12 12 11 11 11 10 10 9 9 8",     // breath weapon
    "15 14 14 13 13 12 12 11 11 10 10 9 9 8 8 7 7 6 6 5",           // apology
    "15 15 15 14 14 13 13 12 12 11 11 11 10 10 10 9 9 8 8 7",       // spells
  }},
  {{  // 5: two orders of zealots
    "10 10 9 9 9 8 8 7 7 6 6 6 5 5 5 4 4 3 3 2",                    // paralyzation, poison, death magic
    "11 11 11 10 10 10 9 9 8 8 8 7 7 7 6 6 5 5 5 4",                // rod, staff, wand
    "13 13 13 12 12 11 11 10 10 9 9 9 8 8 8 7 7 6 6 5",             // petrification, polymorph, quell frenzy and lust
    "16 16 16 15 15 14 14 13 13 12 12 12 11 11 11 10 10 9 9 8",     // breath weapon
    "15 14 14 13 13 12 12 11 11 10 10 9 9 8 8 7 7 6 6 5",           // apology
    "12 12 11 11 11 10 10 10 9 9 9 8 8 8 7 7 7 6 6 6",              // spells
  }},
}};

// The column of each saving throw.
constexpr std::array<std::size_t, kSaveCount> kColumnOf = {
  0, 0, 0,  // paralyzation, poison, death magic
  2, 2,     // petrification, polymorph
  1, 1, 1,  // rod, staff, wand
  2, 2,     // quell frenzy, quell lust
  3,        // breath weapon
  4,        // apology
  5,        // spells
};

// What a barbarian takes off: nothing from quell frenzy, quell lust and apology; from spells a quarter of the level.
constexpr std::array<int, kSaveCount> kBarbarianBonus = {
  3, 4, 3,  // paralyzation, poison, death magic
  3, 3,     // petrification, polymorph
  2, 2, 2,  // rod, staff, wand
  0, 0,     // quell frenzy, quell lust
  2,        // breath weapon
  0, 0,     // apology, spells
};

// clang-format on

constexpr int kPaladinBonus = 2;

}  // namespace

int SavingThrow(int saveTable, int level, int save) {
  if (saveTable < 1 || saveTable > kTables || save < 0 || save >= kSaveCount) return 0;
  const auto& table = kSavingThrows[static_cast<std::size_t>(saveTable - 1)];
  const std::size_t column = kColumnOf[static_cast<std::size_t>(save)];
  return table[column].values[static_cast<std::size_t>(std::clamp(level, 1, kLevels) - 1)];
}

bool ReadClassSaves(int classRow, int level, std::span<int, kSaveCount> saves) {
  if (classRow < 0 || classRow >= kClassRows) return false;
  const ClassRecord& record = ClassTable()[static_cast<std::size_t>(classRow)];
  if (record.SaveTable < 1 || record.SaveTable > kTables) return false;
  for (int save = 0; save < kSaveCount; ++save) {
    const auto at = static_cast<std::size_t>(save);
    saves[at] = SavingThrow(record.SaveTable, AddSaturated(level, record.SaveLevelShift), save);
    if (classRow == ClassRow::Barbarian) saves[at] -= kBarbarianBonus[at];
    if (classRow == ClassRow::Paladin && save != kSaveApology) saves[at] -= kPaladinBonus;
  }
  if (classRow == ClassRow::Barbarian) saves[kSaveSpells] -= level / 4;
  return true;
}

}  // namespace veld
