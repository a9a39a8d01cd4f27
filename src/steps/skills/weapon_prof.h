#pragma once

#include "steps/skills/proficiency_purchase.h"

namespace veld {

/// What a player uses in the WeaponProf dialog.
namespace WeaponProfControl {
inline constexpr int AllMode = 3004;
inline constexpr int Offered = 3021;
inline constexpr int Held = 3022;
inline constexpr int Take = 4001;
inline constexpr int Specialize = 4003;
}  // namespace WeaponProfControl

/// The WeaponProf dialog of Step 12: proficiencies, Specialization and Mastery are bought and given up.
void RunWeaponProf(Game& game);

}  // namespace veld
