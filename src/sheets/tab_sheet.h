#pragma once

#include <string>

#include "store/game.h"

namespace veld {

/// The character's sheet for a spreadsheet: fields parted by tabs. Brings the character up to date first; a second call
/// gives the same bytes.
std::string TabSheet(Game& game);

}  // namespace veld
