#pragma once

#include "store/game.h"

namespace veld {

// What the rows held do to the catalogue of this run: which rows are barred, and what a row pays.

/// Puts the catalogue's BP back and wipes out what the rows held exclude: their counts and BP go, and they can't be
/// taken again in this run.
void ReconcileQuirks(Game& game);

/// Some rows bring less once they are held: a missing finger, and all personalities beside the first. `taken` is the
/// row just taken. ReconcileQuirks undoes it.
void CheapenRepeats(Game& game, int taken);

}  // namespace veld
