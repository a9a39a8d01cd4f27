#include "editors/edit_skills.h"

#include "editors/proficiency_source.h"
#include "editors/skill_sources.h"
#include "editors/talent_source.h"

namespace veld {

void RunEditSkills(Game& game) {
  const HeldSource* const sources[] = {&PlainSkillSource(), &NamedSkillSource(), &TalentSource(), &ProficiencySource()};
  RunHeldPage(game, "EditSkills", "Skills, Talents and Proficiencies", sources);
}

}  // namespace veld
