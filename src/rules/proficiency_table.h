#pragma once

#include <array>
#include <string_view>

namespace veld {

inline constexpr int kProficiencyTableRows = 200;
inline constexpr int kProficiencyTable2Rows = 10;
inline constexpr int kUnspecializable = 2000;  ///< the slot cost of what can never be specialized

namespace ProficiencyKind {
inline constexpr int Melee = 0;
inline constexpr int Missile = 1;
inline constexpr int Style = 2;       ///< a fighting style or an ability
inline constexpr int Repeatable = 3;  ///< may be taken again and again
}  // namespace ProficiencyKind

/// A weapon or fighting style that a character can be proficient in, with its line for the sheets. Row numbers are
/// stored in character files.
struct ProficiencyRecord {
  std::string_view Name;       ///< trailing blanks are part of it, see FindProficiencyRow
  int SpecializationCost = 1;  ///< slots and BP for a step of Specialization
  int Book = 0;                ///< the row is offered only while this rule switch is 1
  int Kind = ProficiencyKind::Melee;
  /// What the sheets print before the type: the speed of a melee weapon (the lower the quicker), the shots a round of a
  /// missile weapon.
  int HitModifier = 0;
  /// Damage against tiny, small, medium, large, huge and gargantuan targets, such as "1d6-2"; "-" where the weapon can
  /// do nothing, all empty for the fighting styles.
  std::array<std::string_view, 6> Damage;
  std::string_view DamageType;  ///< C crushing, H hacking, P piercing, S strangling, or two of them ("C/S")
  std::string_view WeaponSize;  ///< S, M, L or H
};

/// Weapons and fighting styles: 136 rows in use, the others have no name.
const std::array<ProficiencyRecord, kProficiencyTableRows>& ProficiencyTable();

/// Abilities that are taken for a weapon the character is proficient in: row 0, "Quick Draw", is in use.
const std::array<ProficiencyRecord, kProficiencyTable2Rows>& ProficiencyTable2();

/// The weapon or style of this name, or else the first whose name stands in `text`; -1 if none. Case matters.
int FindProficiencyRow(std::string_view text);

/// The same among the abilities taken for a weapon.
int FindProficiencyAbilityRow(std::string_view text);

}  // namespace veld
