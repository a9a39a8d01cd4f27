#pragma once

#include <vector>

#include "store/game.h"

namespace veld {

/// Pays the BP that the quirks and flaws earned, in one sum. Rows 600 and above earn nothing.
void PayQuirks(Game& game);

/// What the quirks and flaws held do to the character, once in a generation: classes barred, abilities lowered, gains
/// for lost limbs. Scores may leave their range here; they are normalized when the abilities have been raised.
void ApplyQuirkEffects(Game& game);

/// Bars the classes that the quirks held close to the character. Whoever sets the class limits anew calls it again.
void BarClassesForQuirks(Game& game);

/// The rows of the classes that a quirk or flaw closes.
std::vector<int> ClassesBarredBy(int quirk);
/// True of a quirk or flaw that changes abilities when a generation takes it.
bool ChangesAbilities(int quirk);

/// What a character makes up for by the arms lost in youth: 25 percentile points of Intelligence for one, a whole point
/// for both; and by the legs: Strength likewise. Called once when ArmAmputations or LegAmputations has been raised.
void ApplyArmGain(Game& game);
void ApplyLegGain(Game& game);

}  // namespace veld
