#pragma once

#include <string>

#include "store/game.h"

namespace veld {

/// The version of the JSON that is written: it rises when a name changes its meaning or goes, not when one is added.
inline constexpr int kJsonVersion = 1;

/// The character as a JSON document, its names and units as docs/json.md tells them; in UTF-8, well-formed whatever the
/// record holds. Brings the character up to date first; a second call gives the same bytes.
std::string JsonSheet(Game& game);

}  // namespace veld
