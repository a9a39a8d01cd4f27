#pragma once

#include <string_view>

#include "rules/grant_notation.h"
#include "store/game.h"

namespace veld {

/// What becomes of the prerequisites of a skill that is granted.
enum class Prerequisites {
  Stand,   ///< a skill whose prerequisites are missing is refused
  Raised,  ///< those below 50 are raised to 50 first
};

/// Gives what a table says, in order. Dice are thrown under the RollContextText that stands; a purchase costs nothing
/// and leaves the BP a whole number.
void GiveGrants(Game& game, const GrantText& grants, Prerequisites prerequisites = Prerequisites::Stand);

/// Gives one grant.
void GiveGrant(Game& game, const Grant& grant, Prerequisites prerequisites = Prerequisites::Stand);

/// Raises the direct prerequisites of a skill that are below 50 to 50; of a member those of its family. Nothing for a
/// name that finds no skill.
void RaisePrerequisites(Game& game, std::string_view skill);

}  // namespace veld
