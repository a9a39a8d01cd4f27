#pragma once

#include "steps/classes/class_totals.h"

namespace veld {

// What levels add to the abilities: the average gain of the classes, taken out and added anew on each recalculation.

/// Sums the ability gains of each class held over its levels.
void SumLevelGains(CharacterSheet& sheet);

/// Takes out of the abilities what the last run added, and remembers which score stood at 0 without it. Until
/// AddLevelGains the whole scores are those with the gains: new levels are rolled by them.
/// The rules take out the first classes only (see the source); who keeps the abilities as they are takes out all.
enum class GainsTakenOut { FirstClasses, AllClasses };
void TakeOutLevelGains(Game& game, GainsTakenOut which = GainsTakenOut::FirstClasses);

/// Adds the average gain of the classes to the abilities.
void AddLevelGains(Game& game, const ClassTotals& totals);

}  // namespace veld
