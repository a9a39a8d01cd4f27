#pragma once

#include <cstddef>
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

}  // namespace veld
