#pragma once

#include <algorithm>
#include <string_view>

namespace veld {

/// True if `text` holds `part`, with case. An empty part is in no text: an empty catalogue name never matches.
inline bool Contains(std::string_view text, std::string_view part) {
  return !part.empty() && text.find(part) != std::string_view::npos;
}

/// Compares two texts without regard to the case of the letters A to Z.
inline bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](char x, char y) { return lower(x) == lower(y); });
}

/// `text` without the blanks at its end.
inline std::string_view TrimRight(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

}  // namespace veld
