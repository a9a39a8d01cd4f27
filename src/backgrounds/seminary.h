#pragma once

#include "store/game.h"

namespace veld {

/// A priest's youth: the page on which the call, the seminary and the residency are rolled by the tables of the
/// Devotee's Almanac, once. Every result can be refused for 1 BP while BP are left.
void RunDVABackground(Game& game);

}  // namespace veld
