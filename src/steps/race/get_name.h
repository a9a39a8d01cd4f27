#pragma once

#include <string>
#include <string_view>

#include "store/game.h"

namespace veld {

/// The GetName dialog: asks for a text. Empty if the player cancels or enters nothing.
std::string AskName(Game& game, std::string_view prompt);

}  // namespace veld
