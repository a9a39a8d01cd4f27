#pragma once

#include <string>

#include "store/game.h"

namespace veld {

/// The character as one XML document for other tools, in UTF-8; well-formed whatever the record holds. Brings the
/// character up to date first; a second call gives the same bytes.
std::string XmlSheet(Game& game);

}  // namespace veld
