#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veld {

/// The longest start of `text` of at most `limit` bytes that does not end inside a UTF-8 character.
std::string_view CutToBytes(std::string_view text, std::size_t limit);

/// True if every byte of `text` belongs to a well-formed UTF-8 character.
bool IsUtf8(std::string_view text);

/// The character that begins at byte `at`, which moves behind it. A byte that begins none is read as Latin-1.
char32_t TakeCharacter(std::string_view text, std::size_t& at);

/// `text` as it is shown and printed: UTF-8 as it is, anything else read as Latin-1 (texts of old files). What follows
/// the first control character other than a tab or a line end is not shown.
std::string DisplayText(std::string_view text);

}  // namespace veld
