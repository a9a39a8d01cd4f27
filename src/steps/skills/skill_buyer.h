#pragma once

#include "rules/purchase_rules.h"
#include "store/game.h"

namespace veld {

/// The character as the price rules of skills and talents read it. The record looks at the game's own arrays and names
/// and copies its numbers: make it anew for each price. A race that is not found has no talents.
SkillBuyer MakeSkillBuyer(const Game& game);

}  // namespace veld
