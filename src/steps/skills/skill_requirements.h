#pragma once

#include "store/game.h"

namespace veld {

/// True if the character has the skills that class and package demand at the end of Step 12; tells the first demand
/// that is open.
bool MeetsSkillRequirements(Game& game);

}  // namespace veld
