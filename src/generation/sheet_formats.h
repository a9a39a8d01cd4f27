#pragma once

#include <array>
#include <string>
#include <string_view>

#include "store/game.h"

namespace veld {

/// A format that a character is written in.
struct SheetFormat {
  std::string_view Name;  ///< the extension of its files, "txt"
  std::string (*Write)(Game& game);
};

/// The formats of all front ends: the character file first, then the sheets.
extern const std::array<SheetFormat, 6> kSheetFormats;

}  // namespace veld
