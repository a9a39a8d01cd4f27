#pragma once

#include <vector>

#include "platform/main_window.h"
#include "store/game.h"

namespace veld {

// The page of the main window: the character in memory at a glance.

/// How one begins, for who has no character yet.
std::vector<PageLine> NobodyPage();

/// The character in memory; NobodyPage if there is none. What was not decided yet is left out. All that follows from
/// abilities and classes is worked out for the page alone, so that it is right in the midst of a generation and of a
/// file just read too, and the record stays as it is.
std::vector<PageLine> CharacterPage(const Game& game);

}  // namespace veld
