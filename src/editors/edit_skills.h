#pragma once

#include "store/game.h"

namespace veld {

/// The EditSkills page: skills, named skills, talents and proficiencies.
void RunEditSkills(Game& game);

}  // namespace veld
