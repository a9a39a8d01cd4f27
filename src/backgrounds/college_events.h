#pragma once

#include "backgrounds/chain_page.h"

namespace veld {

/// Rolls one of the notable events of college life, and plays it out. Each comes up once at most.
void RollCollegeEvent(ChainPage& page);

}  // namespace veld
