#include "editors/edit_skills.h"

#include "editors/proficiency_source.h"
#include "editors/skill_sources.h"
#include "editors/talent_source.h"

namespace veld {

namespace {

constexpr std::string_view kHelp =
    "Everything he can do, free of charge. Show chooses between skills, skills with a name of their own, talents and "
    "proficiencies. The list on the left is the catalogue; Add takes what is chosen there with the value beside it, "
    "Set changes one he has, Remove takes it away. The note tells what is against the rules. Cancel puts everything "
    "back.";

}  // namespace

void RunEditSkills(Game& game) {
  const HeldSource* const sources[] = {&PlainSkillSource(), &NamedSkillSource(), &TalentSource(), &ProficiencySource()};
  RunHeldPage(game, "EditSkills", "Skills, Talents and Proficiencies", kHelp, sources);
}

}  // namespace veld
