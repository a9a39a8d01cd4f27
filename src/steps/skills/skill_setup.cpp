#include "steps/skills/skill_setup.h"

#include <algorithm>

#include "dice/dice.h"
#include "rules/class_grants.h"
#include "steps/skills/buy_skill.h"
#include "steps/skills/pick_dialogs.h"
#include "steps/skills/pirate_skills.h"
#include "steps/skills/skill_buyer.h"
#include "steps/skills/skill_suites.h"
#include "steps/skills/skill_target.h"
#include "steps/skills/talent_purchase.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kSetupBP = 100;

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

// --- The Honor die of earlier purchases --------------------------------------------------------------------------

int RollHonorFor(Game& game, int purchases) {
  const int die = game.sheet.HonorDie;
  return die == 1 ? purchases : RollPenetratingDicePlus(game, die, purchases, game.run.HonorDieBonus);
}

void PayHonor(Game& game, const SkillTarget& target) {
  const int purchases = PurchasesOf(game.sheet, target);
  if (purchases <= 0) return;
  const int gain = RollHonorFor(game, purchases);
  int& mastery = MasteryOf(game.sheet, target);
  mastery = AddSaturated(mastery, gain);
  const bool isSuite = target.Kind == SkillKind::Plain && RecordOf(target).Category == SkillCategory::Suite;
  if (isSuite) SpreadSuiteGain(game.sheet, target.Row, gain);
}

void PayHonorOfYouth(Game& game) {
  for (int row = 0; row < kSkillTableRows; ++row) PayHonor(game, {SkillKind::Plain, row});
  for (int family = 0; family < kSkillTable2Rows; ++family) {
    for (int slot = 0; slot < static_cast<int>(kDetailRows); ++slot) {
      PayHonor(game, {SkillKind::Instance, family, slot});
    }
  }
}

// --- Class grants ------------------------------------------------------------------------------------------------

void ChangeScore(Game& game, const ClassGrant& grant) {
  if (grant.Row < 0 || grant.Row >= kSkillTableRows) return;
  int& mastery = game.sheet.SkillScores[Index(grant.Row)];
  switch (grant.Kind) {
    case GrantKind::Set:
      mastery = grant.Value;
      break;
    case GrantKind::Add:
      mastery = AddSaturated(mastery, grant.Value);
      break;
    case GrantKind::Raise:
      mastery = std::max(mastery, grant.Value);
      break;
    case GrantKind::AddDie:
      mastery = AddSaturated(mastery, RollPenetratingDice(game, grant.Value, 1));
      break;
    case GrantKind::FromIntellect:
      if (mastery == 0) mastery = game.sheet.Intelligence.Whole;
      break;
    default:
      break;
  }
}

void GrantPick(Game& game, const ClassGrant& grant) {
  PickDetail(game, grant.Row);
  if (int* const mastery = LastDetailMastery(game, grant.Row)) *mastery = std::max(*mastery, grant.Value);
}

void GrantTalent(Game& game, const ClassGrant& grant) {
  if (grant.Row < 0 || grant.Row >= static_cast<int>(kTalentRows)) return;
  int& count = game.sheet.TalentCounts[Index(grant.Row)];
  const bool isOfRace = ValueAt(MakeSkillBuyer(game).TalentFlags, grant.Row) == kTalentOfRace;
  if (!isOfRace && count != kTalentOfRace) count = 1;
}

/// What stands after "family: ".
std::string_view ItemOf(std::string_view member) {
  constexpr std::string_view kColon = ": ";
  const std::size_t colon = member.find(kColon);
  return colon == std::string_view::npos ? std::string_view{} : member.substr(colon + kColon.size());
}

/// A barbarian tracks in a way of his own, that is no skill.
void PutTrackingAside(CharacterSheet& sheet) {
  const int row = FindSkillRow("Tracking");
  if (row < 0) return;
  sheet.BarbarianTracking = sheet.SkillScores[Index(row)];
  sheet.SkillScores[Index(row)] = 0;
}

void GrantFirstWriting(Game& game) {
  const std::string writing(game.sheet.SkillDetailNames[SkillFamily::ReadingWriting].front().View());
  GrantSkillAtNoCost(game, writing);
}

void MasterFirstLanguage(CharacterSheet& sheet, int mastery) {
  if (!sheet.SkillDetailNames[SkillFamily::Language].front().Empty()) {
    sheet.SkillDetailCounts[SkillFamily::Language].front() = mastery;
  }
}

void Grant(Game& game, const ClassGrant& grant) {
  switch (grant.Kind) {
    case GrantKind::Buy:
      return GrantSkillAtNoCost(game, grant.Name);
    case GrantKind::Set:
    case GrantKind::Add:
    case GrantKind::Raise:
    case GrantKind::AddDie:
    case GrantKind::FromIntellect:
      return ChangeScore(game, grant);
    case GrantKind::Pick:
      return GrantPick(game, grant);
    case GrantKind::NewMember:
      return GrantMember(game, grant.Row, ItemOf(grant.Name));
    case GrantKind::Talent:
      return GrantTalent(game, grant);
    case GrantKind::NewTalent:
      GrantTalentItem(game, grant.Row, ItemOf(grant.Name));
      return;
    case GrantKind::TrackingAside:
      return PutTrackingAside(game.sheet);
    case GrantKind::SurvivalPick:
      PickSurvivalSkill(game);
      return;
    case GrantKind::LanguagePick:
      return PickReadingWriting(game);
    case GrantKind::BardLanguage:
      return GrantFirstWriting(game);
    case GrantKind::BardInstrument:
      return PickBardInstrument(game);
    case GrantKind::PirateSkills:
      return RollPirateSkills(game);
    case GrantKind::StyleDiscount:
      game.run.MartialStyleDiscount = 1;
      return;
    case GrantKind::FirstLanguage:
      return MasterFirstLanguage(game.sheet, grant.Value);
  }
}

}  // namespace

void RunSkillSetup(Game& game) {
  GrantRaceTalents(game);
  const int kept = TruncateToInt(game.run.BuildingPoints);
  game.run.BuildingPoints = kSetupBP;
  PayHonorOfYouth(game);
  for (const ClassGrant& grant : ClassGrants(game.sheet.ClassName, game.sheet.UsesFighterBackground == 1)) {
    Grant(game, grant);
  }
  game.run.BuildingPoints = static_cast<float>(kept);
}

}  // namespace veld
