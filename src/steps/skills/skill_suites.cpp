#include "steps/skills/skill_suites.h"

#include <utility>

#include "rules/skill_table.h"
#include "steps/skills/pick_dialogs.h"
#include "steps/skills/skill_target.h"
#include "text/numbers.h"

namespace veld {

namespace {

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

bool IsFamilyLink(int link) {
  return link < 0 && link > kNoSkillLink;
}

/// The slot of a suite's member, remembered by the suite's code and the member's place.
int& RememberedSlot(CharacterSheet& sheet, int row, std::size_t member) {
  return sheet.SkillGroupTable.at(Index(SuiteCode(row))).at(member);
}

/// The pick is a purchase of its own: its dice must not be taken for the suite's.
void PickMember(Game& game, int family) {
  const std::string context = std::exchange(game.dice.RollContextText, {});
  PickDetail(game, family);
  game.dice.RollContextText = context;
}

}  // namespace

void StartSuite(Game& game, int row, int mastery) {
  const auto& members = SkillTable().at(Index(row)).SuiteMembers;
  for (std::size_t member = 0; member < members.size(); ++member) {
    const int link = members[member];
    if (IsFamilyLink(link)) {
      PickMember(game, -link);
      RememberedSlot(game.sheet, row, member) = game.run.LastSkillDetail;
      int* const held = LastDetailMastery(game, -link);
      if (held && *held == 0) *held = mastery;
    } else if (link >= 0) {
      int& held = game.sheet.SkillScores.at(Index(link));
      if (held == 0) held = mastery;
    }
  }
}

void SpreadSuiteGain(CharacterSheet& sheet, int row, int gain) {
  const auto& members = SkillTable().at(Index(row)).SuiteMembers;
  for (std::size_t member = 0; member < members.size(); ++member) {
    const int link = members[member];
    if (IsFamilyLink(link)) {
      int* const held = MemberMastery(sheet, -link, RememberedSlot(sheet, row, member));
      if (held && *held > 0) *held = AddSaturated(*held, gain);
    } else if (link >= 0) {
      int& held = sheet.SkillScores.at(Index(link));
      held = AddSaturated(held, gain);
    }
  }
}

}  // namespace veld
