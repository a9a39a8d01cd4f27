#pragma once

#include "store/game.h"

namespace veld {

/// Rolls a line of SiblingLines for each of SiblingCount siblings; a negative count means illegitimate ones. The lines
/// beyond keep what they hold.
void GenerateSiblings(Game& game);

/// The dialog that rolls and shows the character's siblings. OK leaves CurrentStep at 7, Abort at 0.
void RunSiblings(Game& game);

}  // namespace veld
