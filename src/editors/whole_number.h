#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

/// The number that a field holds: digits with an optional sign and blanks around them, from `lowest` to `highest`.
/// Nothing for any other text.
inline std::optional<int> WholeNumber(std::string_view text, int lowest, int highest) {
  text = TrimRight(text);
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  const std::string_view digits = text.substr(text.starts_with('-') || text.starts_with('+') ? 1 : 0);
  if (digits.empty() || digits.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
  const std::int64_t number = ReadNumberPrefix(text);
  if (number < lowest || number > highest) return std::nullopt;
  return static_cast<int>(number);
}

/// What is said to a number that was refused.
inline std::string WholeNumberWanted(std::string_view field, int lowest, int highest) {
  return Format("%s: a whole number from %i to %i.", field, lowest, highest);
}

/// What is said to a text of more bytes than a field holds; empty for one that fits.
inline std::string TextTooLong(std::string_view field, std::string_view text, std::size_t most) {
  return text.size() <= most ? std::string()
                             : Format("%s: at most %i bytes, and this has %i.", field, most, text.size());
}

}  // namespace veld
