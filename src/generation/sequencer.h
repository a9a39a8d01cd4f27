#pragma once

#include "store/game.h"

namespace veld {

/// The rest of a generation after Step 3: one straight run of stages, each guarded by CurrentStep. A stage that ends
/// well moves CurrentStep on; an abort leaves a value that no later guard accepts, and the run falls through to its
/// end. Nothing is undone: what the character has it keeps.
void RunGeneration(Game& game);

/// BP left after the skills become gold, 25 gold a BP, fractions included, a debt none; the player is told. Sets
/// CurrentStep to 14.
void CashInBuildingPoints(Game& game);

/// Rolls the quirks whose last word the referee has: each is replaced by a result of its table. One whose table can
/// give nothing stays as it is.
void RollRefereeQuirks(Game& game);

}  // namespace veld
