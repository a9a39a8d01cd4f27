#pragma once

#include <algorithm>
#include <string_view>

namespace veld {

/// True if `text` holds `part`, with case. An empty part is in no text: an empty catalogue name never matches.
inline bool Contains(std::string_view text, std::string_view part) {
  return !part.empty() && text.find(part) != std::string_view::npos;
}

/// A letter of A to Z made small; any other as it is.
constexpr char SmallLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// True if two letters are the same but for the case of A to Z.
constexpr bool IsSameLetter(char a, char b) {
  return SmallLetter(a) == SmallLetter(b);
}

/// Compares two texts without regard to the case of the letters A to Z.
inline bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), IsSameLetter);
}

/// True if `a` comes before `b` in a list that is sorted without regard to the case of the letters A to Z.
inline bool IsBeforeIgnoringCase(std::string_view a, std::string_view b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [](char x, char y) { return SmallLetter(x) < SmallLetter(y); });
}

/// True if `text` ends in `end`, without regard to the case of the letters A to Z.
inline bool EndsIgnoringCase(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && EqualsIgnoringCase(text.substr(text.size() - end.size()), end);
}

/// As Contains, without regard to the case of the letters A to Z.
inline bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
  if (part.empty()) return false;
  // Lists are searched with every letter typed: most places fall out by their first letter.
  const char first = SmallLetter(part.front());
  for (std::size_t at = 0; at + part.size() <= text.size(); ++at) {
    if (SmallLetter(text[at]) == first && EqualsIgnoringCase(text.substr(at, part.size()), part)) return true;
  }
  return false;
}

/// `text` without the blanks at its end.
inline std::string_view TrimRight(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

}  // namespace veld
