#pragma once

namespace veld {

/// The level (0 to 98) that an experience reaches in a class of one ladder: every level up to it needs no more. An
/// experience below 0 counts as 0: a class is given up by hand, never lost.
int EarnedLevel(int classRow, float experience);

}  // namespace veld
