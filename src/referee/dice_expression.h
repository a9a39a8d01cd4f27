#pragma once

#include <optional>
#include <string_view>

#include "referee/dice_row.h"

namespace veld {

/// Reads dice as they are written in a book: "3d6+2", "2d8p-1", "d20". A "p" is for dice that penetrate. Blanks and the
/// case of letters do not count. Nothing if the text is anything else, or beyond 32,000 dice or 999,999 sides.
std::optional<DiceRow> ReadDiceExpression(std::string_view text);

}  // namespace veld
