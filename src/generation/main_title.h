#pragma once

#include "store/game.h"

namespace veld {

inline constexpr std::string_view kProgramTitle = "Tolmar's Plain Quellmarch Toolkit";

/// Names the character in memory in the main window's title.
void UpdateMainTitle(Game& game, std::string_view name);

}  // namespace veld
