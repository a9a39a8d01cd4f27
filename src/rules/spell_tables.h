#pragma once

#include <array>
#include <span>
#include <string_view>

namespace veld {

// The tables by which spells are dealt to a new mage. They hold spells by the names and spellings of the books;
// FindSpell of the spell catalogue finds the row of each.

/// A list of names in a book's order, kept as one text with "; " between them.
struct NameList {
  std::string_view Names;

  /// The n-th name, counted from 1; empty if there is none.
  std::string_view Name(int n) const;
  int Count() const;
  /// True if one of the names stands somewhere in `text`, with case.
  bool AnyIn(std::string_view text) const;
};

/// The three d100 tables of first-level spells: A everyday magic, B protection and deceit, C attack.
enum class FirstLevelTable { A, B, C };

/// Each spell has three numbers of the d100. A 100 is two more spells the first time in one deal and one more after.
inline constexpr int kExtraSpellRoll = 100;

/// All spells of a table, in the order of its bands.
NameList FirstLevelSpells(FirstLevelTable table);

/// The spell of a d100; empty for 100 and for what the table leaves out (97 to 99 of table C).
std::string_view FirstLevelSpell(FirstLevelTable table, int roll);

/// The table that a d300 takes: C up to 100, B up to 200, then A.
FirstLevelTable FirstLevelTableOf(int roll);

/// A specialist's list for one spell level. The die can't reach names past its sides; they never come.
struct SchoolSection {
  std::string_view Specialist;
  int Level;
  int Die;
  NameList Spells;  ///< in the die's order, followed by those of `After`
  NameList After;

  /// The spell of a roll of 1 to Die; empty for any other number.
  std::string_view Spell(int roll) const;
};

/// All sections, those of one specialist together, in the order of the levels.
std::span<const SchoolSection> SchoolSections();

/// The section of "Abjurer", "Transmuter" ... for a spell level; null where the books give none.
const SchoolSection* FindSchoolSection(std::string_view specialist, int level);

/// A kind of specialist: the word of the class name, the word by which the Type of a spell shows his school, and the
/// schools that a Double Specialist gives up.
struct SpecialistSchool {
  std::string_view Specialist;
  std::string_view School;
  NameList DoubleBars;
};

// clang-format off
inline constexpr std::array<SpecialistSchool, 8> SpecialistSchools{{
    {"Abjurer",     "Abjuration",  {"Alteration; Illusion"}},
    {"Transmuter",  "Alteration",  {"Abjuration; Necromancy"}},
    {"Conjurer",    "Conjuration", {"Divination; vocation"}},  // "vocation" stands in Invocation and in Evocation
    {"Diviner",     "Divination",  {"Conjuration; Summoning"}},
    {"Enchanter",   "Enchantment", {"vocation; Necromancy"}},
    {"Illusionist", "Illusion",    {"Necromancy; vocation; Abjuration"}},
    {"Invoker",     "Invocation",  {"Enchantment; Charm; Conjuration; Summoning"}},
    {"Necromancer", "Necromancy",  {"Enchantment; Charm; Ilusion"}},  // so spelled in the book: it bars no illusion
}};
// clang-format on

/// The first kind of specialist whose word stands in the class name; null if none does.
const SpecialistSchool* FindSpecialist(std::string_view className);

/// What a Sole Practitioner is given, in order, when no mentor limits him, and the schools that he gives up. The spells
/// are his own even where one also belongs to a school that he gave up (the Icer's crystal dagger).
struct SolePractitioner {
  std::string_view Practice;  ///< what follows "Sole Practitioner: " in the class name
  NameList Barred;
  NameList Spells;
};

std::span<const SolePractitioner> SolePractitioners();

/// The practitioner whose class stands in the class name; null if none does.
const SolePractitioner* FindSolePractitioner(std::string_view className);

}  // namespace veld
