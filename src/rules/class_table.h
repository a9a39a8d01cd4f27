#pragma once

#include <array>
#include <span>
#include <string_view>

#include "rules/ability.h"
#include "rules/class_row_count.h"

namespace veld {

inline constexpr int kLastSingleClass = 123;  ///< rows 1 to 123 are classes, row 0 and rows 124 to 176 blank
inline constexpr int kFirstMultiClass = 177;  ///< rows 177 to 199 are combinations of classes, with "/" in their names
inline constexpr int kHighestLadderLevel = 98;
inline constexpr int kAlignmentCount = 9;

/// The lowest and the highest ability as a number (see AbilityAsNumber), both inclusive; -99 and 99 mean no limit.
struct AbilityNumberRange {
  float Minimum = 0;
  float Maximum = 0;
};

/// A class or a combination of classes. Lists by level are indexed by the level.
struct ClassRecord {
  std::string_view Name;
  int RuleSwitch = 0;                        ///< the class is offered while this rule switch is 1
  std::array<int, 99> ExperienceForLevel{};  ///< experience that each level needs; entry 0 unused
  std::array<int, 100> HitDiceAtLevel{};     ///< added to the character's count of hit dice
  std::array<int, 100> HitDieSides{};        ///< 0 = no die is rolled
  std::array<int, 100> HitDieCount{};
  int Kicker = 0;                             ///< hit points at level 0
  std::array<int, 99> FlatHitPoints{};        ///< hit points added without a roll
  std::array<int, 100> ThiefPointsAtLevel{};  ///< discretionary points for thief abilities
  std::array<int, 100> ProficiencySlotsAtLevel{};
  int ClassBPGift = 0;     ///< BP that choosing the class brings
  int MinSocialClass = 0;  ///< lowest row of the social class table that may take the class
  /// 1 where an alignment is open: lawful good, lawful neutral, lawful evil, neutral good, neutral, neutral evil,
  /// chaotic good, chaotic neutral, chaotic evil.
  std::array<int, kAlignmentCount> AlignmentFlags{};
  int BackgroundModifier = 0;  ///< added to the modifier of the inheritance roll
  int IsCleric = 0;
  int IsFighter = 0;
  int IsMage = 0;
  int IsThief = 0;
  std::array<int, 7> Reserved{};                    ///< 1 in the single classes; read by nothing
  std::array<int, kAbilityCount> AbilityGainDie{};  ///< sides of the die an ability grows by on each level above 1
  std::array<AbilityNumberRange, kAbilityCount> AbilityRange;
  std::array<int, 200> WeaponAllowed{};  ///< not 0 where the class may learn the proficiency row
  std::array<int, 50> Weapon2Allowed{};  ///< the same for the second proficiency table
  int SaveTable = 0;                     ///< saving throw table 1 to 5; 0 none
  int SaveLevelShift = 0;                ///< added to the level before the saving throws are read; 0 in every row
};

/// All classes. Row numbers stand in other tables and in files; rows are never reordered.
const std::array<ClassRecord, kClassRows>& ClassTable();

/// The record of a row 0 to 199.
inline const ClassRecord& ClassAt(int classRow) {
  return ClassTable()[static_cast<std::size_t>(classRow)];
}

/// The row of a class name, with case; -1 if there is none.
int FindClassRow(std::string_view name);

/// The first ability, in their order, that keeps a character from a class, or -1 if none does. The abilities are given
/// as numbers (see AbilityAsNumber). Nobody meets a row that is blank or outside the table.
int FirstUnmetAbility(int classRow, std::span<const float, kAbilityCount> abilities);

}  // namespace veld
