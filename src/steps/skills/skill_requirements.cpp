#include "steps/skills/skill_requirements.h"

#include "platform/platform.h"
#include "rules/skill_prices.h"
#include "steps/skills/skill_buyer.h"

namespace veld {

bool MeetsSkillRequirements(Game& game) {
  const std::string_view demand = UnmetSkillDemand(MakeSkillBuyer(game));
  if (demand.empty()) return true;
  game.platform.ShowMessage(demand);
  return false;
}

}  // namespace veld
