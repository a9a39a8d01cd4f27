#pragma once

#include "steps/skills/talent_purchase.h"

namespace veld {

/// What a player uses in the Talents dialog.
namespace TalentsControl {
inline constexpr int Offered = 3024;
inline constexpr int Note = 3027;
inline constexpr int Add = 4001;
}  // namespace TalentsControl

/// The Talents dialog of Step 12: talents are bought and given up.
void RunTalents(Game& game);

}  // namespace veld
