#pragma once

#include "store/game.h"

namespace veld {

/// The die of a critical hit's severity: a d8 that goes up from 8 and down from 1, each further die counting one less,
/// for as long as a 1 or an 8 falls, at most a hundred dice long.
int RollOpenEndedD8(Game& game);

/// The referee's lookup of critical hits, CRITICALHITS. Its numbers and last ten results stay while the program runs.
void RunCriticalHits(Game& game);

}  // namespace veld
