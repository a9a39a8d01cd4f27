#pragma once

#include <array>
#include <string_view>

#include "rules/named_rows.h"

namespace veld {

inline constexpr int kSkillTableRows = 500;  ///< room of the table of plain skills
inline constexpr int kSkillTable2Rows = 50;  ///< room of the table of skill families
inline constexpr int kNoSkillLink = -100;    ///< a link slot that names no skill

/// The kinds of skill, in the order of the skill list; 0 is a row not in use, and the view of all kinds at once.
namespace SkillCategory {
inline constexpr int None = 0;
inline constexpr int Arcane = 1;
inline constexpr int Academia = 2;
inline constexpr int Language = 3;
inline constexpr int Instrument = 4;
inline constexpr int Mundane = 5;
inline constexpr int Combat = 6;
inline constexpr int Artisan = 7;
inline constexpr int Sophisticated = 8;
inline constexpr int Social = 9;
inline constexpr int Tool = 10;
inline constexpr int Suite = 11;
inline constexpr int Barbarian = 12;
}  // namespace SkillCategory

/// A skill, or a family of skills whose members the player names (a language, an instrument). Row numbers are stored in
/// character files, so rows never move.
/// A link of `Prerequisites` or `SuiteMembers` is a row of the plain skills (0 and above), the negation of a family's
/// row (below 0) or kNoSkillLink.
struct SkillRecord {
  std::string_view Name;  ///< trailing blanks are part of it, see FindSkillRow
  int BP = 0;             ///< price of one purchase in BP, before the price rules
  int Book = 0;           ///< the row is offered only while this rule switch is 1
  std::string_view Page;
  int Flag = 0;                       ///< read by no rule
  int CourseCost = 0;                 ///< price of the training course in gold
  std::string_view MasteryAbilities;  ///< what sets the starting mastery, such as "(INT+WIS)/2"
  int CourseDieSides = 0;             ///< 0: the skill has no die, a purchase sets its mastery to 100
  int CourseDieCount = 0;
  int Difficulty = 0;  ///< percentile points, may be negative
  std::array<int, 5> Prerequisites = {kNoSkillLink, kNoSkillLink, kNoSkillLink, kNoSkillLink, kNoSkillLink};
  std::array<int, 10> SuiteMembers = {kNoSkillLink, kNoSkillLink, kNoSkillLink, kNoSkillLink, kNoSkillLink,
                                      kNoSkillLink, kNoSkillLink, kNoSkillLink, kNoSkillLink, kNoSkillLink};
  int Spare = kNoSkillLink;
  int Category = SkillCategory::None;
};

/// The plain skills: 318 rows in use, the others have no name and category 0.
const std::array<SkillRecord, kSkillTableRows>& SkillTable();

/// The skill families: 22 rows in use.
const std::array<SkillRecord, kSkillTable2Rows>& SkillTable2();

/// The plain skill of this name, or else the first whose name stands in `text`; -1 if none. Case matters.
int FindSkillRow(std::string_view text);

/// The skill family of this name, or else the first whose name stands in `text`; -1 if none.
int FindSkillFamilyRow(std::string_view text);

enum class SkillKind { None, Plain, Family, Instance };

/// What a text names: a row of the plain skills, a family by itself (a purchase makes a new member), or a member of a
/// family, written "family: name".
struct SkillMatch {
  SkillKind Kind = SkillKind::None;
  int Row = -1;
};

/// What `text` names. A member of a family is recognised before the plain skills, so that "Artistic Ability: Singing"
/// is not taken for "Singing".
SkillMatch FindSkill(std::string_view text);

/// The record that a link names, nullptr for an empty slot or a row outside.
const SkillRecord* LinkedSkill(int link);

/// A category's text in the skill list: "Skills: Arcane" for 1; "All-in-One" for 0 and for anything outside 1-12.
std::string_view SkillCategoryText(int category);

/// The family column in which the members of a suite are remembered: 1-5 for the suites that teach families, else 0.
int SuiteCode(int row);

}  // namespace veld
