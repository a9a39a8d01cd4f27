#pragma once

#include "store/game.h"

namespace veld {

/// Runs once, before skills are bought: pays the Honor die for the skills that the youth's tables brought, then grants
/// what the class brings. BP come out of it as a whole number.
void RunSkillSetup(Game& game);

}  // namespace veld
