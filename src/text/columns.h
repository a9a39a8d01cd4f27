#pragma once

#include <string_view>

namespace veld {

/// Columns of a page or cells of a screen that a character takes in a face of one width: 0 for a mark that joins the
/// letter before it, 2 for wide letters, else 1. The same in every locale.
int ColumnsOf(char32_t character);

/// The columns of a line of UTF-8; a byte that begins no character is read as Latin-1.
int ColumnsOf(std::string_view text);

}  // namespace veld
