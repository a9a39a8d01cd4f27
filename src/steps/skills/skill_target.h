#pragma once

#include <string>
#include <string_view>

#include "rules/skill_table.h"
#include "store/game.h"

namespace veld {

/// What the name of a skill means to a character: a plain skill, a family by itself (a purchase makes a new member), or
/// a member that has a slot in the sheet.
struct SkillTarget {
  SkillKind Kind = SkillKind::None;
  int Row = -1;   ///< of the plain skills or of the families
  int Slot = -1;  ///< of a member
};

/// What `name` means; None for a text that names no skill, or a member that the character's sheet does not name.
SkillTarget FindTarget(const CharacterSheet& sheet, std::string_view name);

/// The record of a target that is not None.
const SkillRecord& RecordOf(const SkillTarget& target);

/// The target's mastery in percentile points, 0 for a family by itself.
int Mastery(const CharacterSheet& sheet, const SkillTarget& target);

/// Where the mastery and the count of purchases of a plain skill or of a member stand.
int& MasteryOf(CharacterSheet& sheet, const SkillTarget& target);
int& PurchasesOf(CharacterSheet& sheet, const SkillTarget& target);

/// Where the mastery of the member in a family's slot stands; null if there is no such family or slot.
int* MemberMastery(CharacterSheet& sheet, int family, int slot);

/// The price of one purchase in BP.
float PriceOf(const Game& game, const SkillTarget& target);

/// The slot of a family's member of just this name, -1 if there is none.
int FindMemberNamed(const CharacterSheet& sheet, int family, std::string_view name);

/// The slot of a family's member of this name, or else the first whose name stands in `name`; -1 if there is none.
int FindMember(const CharacterSheet& sheet, int family, std::string_view name);

/// The first slot of a family that a new member can take, -1 if there is none. A modern language takes the same slot
/// among the languages and among their writings.
int FreeMemberSlot(const CharacterSheet& sheet, int family);

/// Writes "family: item" into a slot, and the writing of a modern language beside it. An empty item clears the slot's
/// names.
void NameMember(CharacterSheet& sheet, int family, int slot, std::string_view item);

}  // namespace veld
