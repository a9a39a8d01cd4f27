#pragma once

#include "rules/purchase_rules.h"
#include "store/game.h"

namespace veld {

/// The character as the price rules of skills and talents read it. The record looks at the game's own arrays: it follows
/// their changes, but not a change of race, class or package, nor of the whole scores and the run's discounts, which are
/// copied; make it anew for each price. A race that is not found has no talents.
SkillBuyer MakeSkillBuyer(const Game& game);

}  // namespace veld
