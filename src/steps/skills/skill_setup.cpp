#include "steps/skills/skill_setup.h"

#include "dice/dice.h"
#include "rules/class_grants.h"
#include "steps/skills/grants.h"
#include "steps/skills/skill_suites.h"
#include "steps/skills/skill_target.h"
#include "steps/skills/talent_purchase.h"
#include "text/numbers.h"

namespace veld {

namespace {

constexpr int kSetupBP = 100;

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

}  // namespace

void GiveClassGrants(Game& game, std::string_view className) {
  const int kept = TruncateToInt(game.run.BuildingPoints);
  game.run.BuildingPoints = kSetupBP;
  for (const GrantText& grants : ClassGrants(className, game.sheet.UsesFighterBackground == 1)) {
    GiveGrants(game, grants);
  }
  game.run.BuildingPoints = static_cast<float>(kept);
}

void RunSkillSetup(Game& game) {
  GrantRaceTalents(game);
  PayHonorOfYouth(game);
  GiveClassGrants(game, game.sheet.ClassName);
}

}  // namespace veld
