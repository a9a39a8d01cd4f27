#pragma once

#include "steps/skills/talent_purchase.h"

namespace veld {

/// The Talents dialog of Step 12: talents are bought and given up.
void RunTalents(Game& game);

}  // namespace veld
