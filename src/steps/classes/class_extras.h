#pragma once

#include "steps/classes/class_chain.h"

namespace veld {

/// What hangs on the abilities once all levels have their gains: the cantrips of a class just entered, and what
/// barbarians, berserkers and monks have on every run.
void SetClassExtras(Game& game, const NamedClass& held);

}  // namespace veld
