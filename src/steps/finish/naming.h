#pragma once

#include <string_view>

#include "store/game.h"

namespace veld {

/// Names the character and its player. Returns false, with nothing changed, for the name that a character has before it
/// is named.
bool NameCharacter(Game& game, std::string_view characterName, std::string_view playerName);

/// Step 18, "Name your character". OK leaves CurrentStep at 19, Abort as it is.
void RunStepEightteen(Game& game);

}  // namespace veld
