#pragma once

#include <string>
#include <string_view>

namespace veld {

/// The character that begins at byte `at`, which moves behind it. A byte that begins none is read as Latin-1.
char32_t NextCharacter(std::string_view text, std::size_t& at);
/// Where the character before byte `at` begins; 0 at the beginning.
std::size_t CharacterBefore(std::string_view text, std::size_t at);
/// Where the character after the one at byte `at` begins; the text's end at the end.
std::size_t CharacterAfter(std::string_view text, std::size_t at);
void AppendCharacter(std::string& text, char32_t character);

/// Cells of the screen that a character takes: 0 for an accent that joins the letter before it, 2 for wide letters.
int CellsOf(char32_t character);
int CellsOf(std::string_view text);

/// `text` for a place of `width` cells from cell `left` on. Tabs and line ends are shown as blanks. What is cut off at
/// the end is marked with '>' if `marksCut`.
std::u32string CellsFrom(std::string_view text, int left, int width, bool marksCut = false);

}  // namespace veld
