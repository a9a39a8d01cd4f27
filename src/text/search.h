#pragma once

#include <algorithm>
#include <string_view>

namespace veld {

/// True if `text` holds `part`, with case. An empty part is in no text: an empty catalogue name never matches.
inline bool Contains(std::string_view text, std::string_view part) {
  return !part.empty() && text.find(part) != std::string_view::npos;
}

/// True if two letters are the same but for the case of A to Z.
inline bool IsSameLetter(char a, char b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  return lower(a) == lower(b);
}

/// Compares two texts without regard to the case of the letters A to Z.
inline bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), IsSameLetter);
}

/// True if `a` comes before `b` in a list that is sorted without regard to the case of the letters A to Z.
inline bool IsBeforeIgnoringCase(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [&](char x, char y) { return lower(x) < lower(y); });
}

/// True if `text` ends in `end`, without regard to the case of the letters A to Z.
inline bool EndsIgnoringCase(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && EqualsIgnoringCase(text.substr(text.size() - end.size()), end);
}

/// As Contains, without regard to the case of the letters A to Z.
inline bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
  return !part.empty() && std::search(text.begin(), text.end(), part.begin(), part.end(), IsSameLetter) != text.end();
}

/// `text` without the blanks at its end.
inline std::string_view TrimRight(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

}  // namespace veld
