#include "steps/skills/free_skills.h"

#include "platform/platform.h"
#include "steps/skills/buy_skill.h"
#include "steps/skills/skill_lists.h"
#include "steps/skills/skill_target.h"
#include "text/numbers.h"

namespace veld {

namespace {

bool IsScholarly(const SkillTarget& target) {
  return target.Kind != SkillKind::None && RecordOf(target).Category <= SkillCategory::Language;
}

bool TakePick(Game& game, std::string_view name, int GenerationRun::*picks) {
  if (!BuySkill(game, {.Name = std::string(name), .IsFreePick = true})) return false;
  --(game.run.*picks);
  return true;
}

}  // namespace

bool TakeAsFree(Game& game, std::string_view name) {
  const bool hasPick = game.run.FreeSkillPicks > 0;
  if (hasPick && IsScholarly(FindTarget(game.sheet, name))) return TakePick(game, name, &GenerationRun::FreeSkillPicks);
  if (game.run.VeteranFreeSkills > 0) return TakePick(game, name, &GenerationRun::VeteranFreeSkills);
  game.platform.ShowMessage(hasPick ? "Free SG skills are limited to Arcane, Academia and Languages"
                                    : "You do not have any more free skills to allocate");
  return false;
}

void ApplyBonusPoints(Game& game, std::string_view ownedLine) {
  GenerationRun& run = game.run;
  if (AddSaturated(run.BonusSkillPoints, run.PackageBonusPoints) <= 0) {
    game.platform.ShowMessage("You do not have any more bonus skill points to allocate");
    return;
  }
  const SkillTarget target = FindOwnedSkill(game.sheet, ownedLine);
  if (target.Kind == SkillKind::None) return;
  for (int* const points : {&run.BonusSkillPoints, &run.PackageBonusPoints}) {
    if (*points <= 0) continue;
    int& mastery = MasteryOf(game.sheet, target);
    mastery = AddSaturated(mastery, 1);
    --*points;
  }
}

}  // namespace veld
