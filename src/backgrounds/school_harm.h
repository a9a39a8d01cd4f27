#pragma once

#include <string_view>

#include "backgrounds/chain_page.h"

namespace veld {

/// What a master whose nurture is one of the poor rows does to the apprentice: cantrips picked up or spells forgotten,
/// quirks, flaws, and the skills of one who is beaten and put to work. Nothing for a better master.
void SufferMaster(ChainPage& page, std::string_view nurture);

}  // namespace veld
