#pragma once

#include <optional>

namespace veld {

enum class PaperSize { A4, Letter };

/// How a sheet was last printed while the program runs.
struct PrintChoice {
  std::optional<PaperSize> Paper;  ///< nothing: that of the user's country
  bool SpellCards = false;
};

}  // namespace veld
