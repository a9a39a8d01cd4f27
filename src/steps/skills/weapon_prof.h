#pragma once

#include "steps/skills/proficiency_purchase.h"

namespace veld {

/// The WeaponProf dialog of Step 12: proficiencies, Specialization and Mastery are bought and given up.
void RunWeaponProf(Game& game);

}  // namespace veld
