#pragma once

#include <gtest/gtest.h>

#include "rules/grant_notation.h"
#include "rules/proficiency_table.h"
#include "rules/quirk_table.h"
#include "rules/skill_table.h"
#include "rules/talent_table.h"

namespace veld::testing {

inline bool FindsSkill(std::string_view name) {
  return FindSkill(name).Kind != SkillKind::None;
}

/// Whether each name of a grant finds the row that it is for. Skills whose number is changed are plain ones.
inline bool NamesFound(const Grant& grant) {
  switch (grant.Kind) {
    case GrantKind::Buy:
      return FindsSkill(grant.Name);
    case GrantKind::Score:
    case GrantKind::AddDie:
    case GrantKind::FromIntellect:
      return FindSkillRow(grant.Name) >= 0;
    case GrantKind::Pick:
      return !SkillTable2()[static_cast<std::size_t>(grant.Row)].Name.empty();
    case GrantKind::NewMember:
      return FindSkill(grant.Name).Kind == SkillKind::Instance;
    case GrantKind::Talent:
    case GrantKind::TakeTalent:
      return FindTalentRow(grant.Name) >= 0;
    case GrantKind::NewTalent:
      return FindTalentFamilyRow(grant.Name) >= 0;
    case GrantKind::Proficiency:
      return FindProficiencyRow(grant.Name) >= 0;
    case GrantKind::Quirk:
      return !ShownQuirkName(grant.Row).empty();
    case GrantKind::Choose:
    case GrantKind::ChooseItem:
      for (std::string_view rest = grant.Name; !rest.empty();) {
        if (!FindsSkill(GrantReader::NextName(rest))) return false;
      }
      return true;
    default:
      return true;
  }
}

/// Every name finds its row, but those that are marked as finding none.
inline void ExpectNamesFound(const GrantText& grants) {
  ForEachGrant(grants, [&](const Grant& grant) {
    EXPECT_NE(NamesFound(grant), grant.FindsNoRow) << grant.Name << " in " << grants.View();
  });
}

}  // namespace veld::testing
