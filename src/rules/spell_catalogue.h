#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <type_traits>

#include "text/fixed_text.h"

namespace veld {

/// Rows of the spell table, how many of them the shipped spells.vld fills, and how many of those, the first ones, are
/// cantrips. Rows beyond the file are "Empty". What a character knows of a row is kept with the character.
inline constexpr std::size_t kSpellRows = 2000;
inline constexpr std::size_t kSpellRecords = 767;
inline constexpr std::size_t kCantripRows = 109;

/// One spell or cantrip: the twelve fields of spells.vld in the order of the file, which has blanks as "_" in all texts
/// but Specialization, Component and SourceTag.
struct SpellRecord {
  FixedText<50> Name;
  FixedText<50> Type;  // the school or schools: "Alteration", "Conjuration/Summoning"
  FixedText<50> Specialization;
  FixedText<50> Range;
  FixedText<50> Component;  // "V,S,M": a spell with an S is lost to the student of a Gimp Mentor
  FixedText<50> Duration;
  FixedText<50> CastingTime;
  FixedText<50> AreaOfEffect;
  FixedText<50> SavingThrow;
  int Level = 0;           // 0 for a cantrip, else 1 to 9
  FixedText<50> Category;  // the list that it is shown in, one of SpellCategories
  FixedText<10> SourceTag;
};
static_assert(std::is_trivially_copyable_v<SpellRecord>);

/// The spell lists as they are shown: the eight groups of cantrips, then the levels.
inline constexpr std::size_t kCantripGroups = 8;
inline constexpr std::size_t kSpellLevels = 9;
// clang-format off
inline constexpr std::array<std::string_view, kCantripGroups + kSpellLevels> SpellCategories{
    "Cantrips, Useful",           "Cantrips, Reversed",   "Cantrips, Legerdemain",
    "Cantrips, Person-Affecting", "Cantrips, Personal",   "Cantrips, Haunting",
    "Cantrips, Minor Illusions",  "Cantrips, Social Engagement",
    "Magic-user Level 1",         "Magic-user Level 2",   "Magic-user Level 3",
    "Magic-user Level 4",         "Magic-user Level 5",   "Magic-user Level 6",
    "Magic-user Level 7",         "Magic-user Level 8",   "Magic-user Level 9",
};
// clang-format on

/// The row of a spell by any spelling that the books use for it, blanks at the end aside; -1 if the table has none.
int FindSpell(std::span<const SpellRecord> spells, std::string_view name);

/// True for a spell of the level (1 to 9) whose school text holds the word.
bool IsSpellOf(const SpellRecord& spell, int level, std::string_view school);

/// A mage's spell slots for spells of level 1 to 9. The table ends with level 10, which higher levels keep; none below
/// level 1.
std::array<int, kSpellLevels> SpellSlotsAtLevel(int level);

/// The cantrips that a Chintzy Mentor teaches at most.
inline constexpr int kChintzyCantrips = 9;

/// How many cantrips a mage may choose: twice the whole Intelligence; of a Chintzy Mentor a quarter of that, at most 9.
int CantripAllowance(int intelligence, bool chintzyMentor);

/// The first-level spells that a mage is dealt at most: 3, from a Chintzy Mentor 2. Below the cap `spells` stays.
int CapStartingSpells(int spells, bool chintzyMentor);

/// A free spell earned in mage school: how the dialog words it, and the highest level of the lists that it shows.
struct FreeSpell {
  std::string_view Text;
  int HighestLevel;
};

/// One of level 1 (the first two levels for a Double Specialist or a Sole Practitioner), one up to level 3, one of any.
enum class FreeSpellKind { LevelOne, UpToLevelThree, AnyLevel };
FreeSpell FreeSpellOf(FreeSpellKind kind, std::string_view className);

}  // namespace veld
