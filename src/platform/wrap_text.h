#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace veld {

/// Breaks a text into lines no wider than `width`: at line ends, else at blanks, else (a word wider than a line)
/// between two characters. Blanks at a break are dropped. A text always has at least one line.
std::vector<std::string> WrapText(std::string_view text, int width,
                                  const std::function<int(std::string_view)>& textWidth);

}  // namespace veld
