#pragma once

#include <string>

#include "store/game.h"

namespace veld {

/// The character's sheet line by line, as wide as a page of plain print. Brings the character up to date first; a
/// second call gives the same bytes.
std::string TextSheet(Game& game);

}  // namespace veld
