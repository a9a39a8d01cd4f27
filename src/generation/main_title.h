#pragma once

#include "store/game.h"

namespace veld {

inline constexpr std::string_view kProgramTitle = "Tolmar's Plain Quellmarch Toolkit";

/// Shows the character in memory, as he is by now, on the main window's page. Nothing in a run that is played again: it
/// is shown when it is handed over.
void ShowCharacter(Game& game);

/// Names the character in memory in the main window's title, and shows him on its page.
void UpdateMainTitle(Game& game, std::string_view name);

}  // namespace veld
