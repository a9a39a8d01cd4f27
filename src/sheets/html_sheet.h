#pragma once

#include <string>

#include "store/game.h"

namespace veld {

/// The character's sheet as one HTML page that needs nothing beside it, of the same contents as the text sheet. Brings
/// the character up to date first; a second call gives the same bytes.
std::string HtmlSheet(Game& game);

}  // namespace veld
