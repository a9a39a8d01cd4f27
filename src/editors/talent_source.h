#pragma once

#include "editors/held_page.h"

namespace veld {

/// The talents, those of the race too, and those that are taken for something named. Whom a half-blood takes after is
/// shown and not changed: it belongs to the person.
const HeldSource& TalentSource();

}  // namespace veld
