#pragma once

#include <cstddef>
#include <string_view>

#include "rules/equipment_catalogue.h"
#include "rules/rule_switches.h"
#include "store/character_sheet.h"

namespace veld {

// A character file (.vlf): the saved fields of a CharacterSheet, one behind the other without tags. Whole numbers and
// floating numbers take 4 bytes, little-endian; a text takes its whole width.
//
//   bytes   what
//      10   the version, "4.5" and zeros
//   27123   the head: who it is, family, abilities, money, burden, classes, thief abilities, heirlooms, quirks
//    4000   quantities of the 1000 rows of the goods list
//       4   custom items: how many, then each
//     78 *    name 50, gold, silver, copper, value in copper, weight, category, quantity
//       4   reserved, 0
//           level tables: for each class that has a level L, levels 0 to L
//     32 *    hit points and the seven ability gains of the level
//    8000   spells known
//       4   mage background: 1 if there is one, then
//     293     school, master, classroom, rank, their seven rolls, the package
//     780     and for the package "Hermit" its field and its taboo
//   32000   notes
//       4   spell books: how many, then each
//  27913 *    see SpellBook; all its fields in its order
//       4   fighter background: 1 if there is one, then
//    6800     the package, training, assignments, wars, tours of duty
//       4   cleric background: 1 if there is one, then
//    2074     the package, the call, training, residency, education
//   22600   counts of talents, their named items, skills, their named items
//    100 *  names of the talents' items with a count above 0: for each item, for each talent
//    100 *  names of the skills' items likewise
//     400   skill groups
//      20   the five barbarian abilities
//    2000   proficiency picks
//
// Nothing marks the end, and what follows is ignored. Older versions have the same order with what CharacterFormat
// tells; versions before 4.2 have their quirks scattered over the file (see old_character_files.cpp).

/// What sets one version of the character file apart.
struct CharacterFormat {
  std::string_view Version;
  std::size_t Classes;       ///< classes with experience, proficiency slots and levels
  std::size_t LevelClasses;  ///< classes that the level tables cover
  std::size_t Quirks;        ///< rows of the block of quirks; 0: no block, they are scattered
  std::size_t Skills;        ///< rows of skills
  bool HasClericBackground;
};

/// The versions that can be read, the one that is written last.
// clang-format off
inline constexpr CharacterFormat kCharacterFormats[] = {
    // Version  Classes  LevelClasses  Quirks  Skills  Cleric
    {"3.8.1",   100,     100,          0,      300,    false},
    {"4.1",     200,     100,          0,      300,    false},
    {"4.1.1",   200,     200,          0,      300,    false},
    {"4.2",     200,     200,          600,    300,    false},
    {"4.2.1",   200,     200,          700,    500,    false},
    {"4.5",     200,     200,          700,    500,    true},
};
// clang-format on
inline constexpr const CharacterFormat& kCurrentFormat = kCharacterFormats[5];
static_assert(kCurrentFormat.Version == FileVersion && kCurrentFormat.Classes == kClassRows &&
              kCurrentFormat.Quirks == kQuirkCountRows && kCurrentFormat.Skills == kSkillRows);

inline constexpr std::size_t kVersionBytes = sizeof(FileVersion);
inline constexpr std::size_t kCustomItemBytes = 78;
inline constexpr std::size_t kLevelBytes = 32;
inline constexpr std::size_t kSpellBookBytes = 27'913;
/// A character with no custom item, level, spell book, background or named item.
inline constexpr std::size_t kBareCharacterBytes = 96'177;
/// A character with all that the tables can hold. A longer file has nothing more to tell.
inline constexpr std::size_t kLargestCharacterBytes =
    kBareCharacterBytes + kEquipmentRows * kCustomItemBytes + kClassRows * kLevels * kLevelBytes + 293 + 780 +
    kSpellBooks * kSpellBookBytes + 6800 + 2074 + 2 * kDetailRows * kDetailRows * 100;

// options.vlb: numbers, each at its place as rules/rule_switches.h tells; one is reserved.
inline constexpr std::size_t kOptionsFileBytes = kOptionPlaces * sizeof(int);
// equip.vlb and cequip.vlb: see EquipmentRecord; kEquipmentFileBytes.
inline constexpr int kLastGoodsCategory = 21;
/// A category of goods as a file tells it; one that there is not counts as none.
constexpr int KnownCategory(int category) { return category >= 0 && category <= kLastGoodsCategory ? category : 0; }

// spells.vld: text, see SpellRecord. A spell list of this size has many times the rows that there is room for.
inline constexpr std::size_t kLargestSpellFileBytes = 4'000'000;

}  // namespace veld
