#pragma once

#include <string_view>

#include "store/game.h"

namespace veld {

/// Grants what a class begins with, for nothing.
void GiveClassGrants(Game& game, std::string_view className);

/// Runs once, before skills are bought: pays the Honor die for the skills that the youth's tables brought, then grants
/// what the class brings. BP come out of it as a whole number.
void RunSkillSetup(Game& game);

}  // namespace veld
