#pragma once

#include "store/game.h"

namespace veld {

// Each ability table overwrites the fields that it fills with the row of the present score; a score below 1 clears
// them.

/// Also sets the encumbrance steps of the character, in pounds: see SetEncumbranceSteps in the source.
void ApplyStrengthTable(Game& game);
void ApplyDexterityTable(Game& game);
void ApplyConstitutionTable(Game& game);
void ApplyIntelligenceTable(Game& game);
void ApplyWisdomTable(Game& game);
/// Also adds what Charisma changes of the whole Comeliness (-8 to 8), each time it runs.
void ApplyCharismaTable(Game& game);

/// All six tables, Charisma's change of Comeliness included: once in a generation, at the end of Step 8.
void ApplyAbilityTables(Game& game);

/// All six tables with Comeliness left as it is: for whoever shows a character whose Step 8 is past (sheets, editors).
void RefreshAbilityEffects(Game& game);

}  // namespace veld
