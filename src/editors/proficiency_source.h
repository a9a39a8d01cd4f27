#pragma once

#include "editors/held_page.h"

namespace veld {

/// The proficiencies, each with its mark by name, and the abilities that are taken for a weapon, each with its weapon.
/// The slots used follow, by what a purchase would take or give back; BP and the steps of Specialization to take stay.
const HeldSource& ProficiencySource();

}  // namespace veld
