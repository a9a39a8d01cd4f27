#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "rules/spell_record.h"

namespace veld {

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
