#pragma once

#include <string_view>

#include "store/game.h"

namespace veld {

/// "Take as Free": one step of the skill of this name for a free pick. FreeSkillPicks pay for arcane, academic and
/// language skills, VeteranFreeSkills for any. A refused purchase takes no pick. Returns true if a step was bought.
bool TakeAsFree(Game& game, std::string_view name);

/// "Apply Bonus Skill Points": adds 1 to the mastery of the skill in a line of the owned skills, for a point of
/// BonusSkillPoints, and 1 for a point of PackageBonusPoints besides.
void ApplyBonusPoints(Game& game, std::string_view ownedLine);

}  // namespace veld
