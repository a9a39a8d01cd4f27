#pragma once

#include <span>
#include <string_view>

namespace veld {

/// Writes a rule book's row list into `rows`, in one of two notations, entries separated by blanks:
/// "1:10 3:15 54-57:14" gives each row or run of rows its own value; "2 4 7-8" gives each the value `plain`.
/// Rows that the list does not name keep what they have. Returns false, with nothing promised about `rows`, if the list
/// is not well formed or names a row outside; the tables' tests hold every list to true.
bool ExpandRowRuns(std::string_view list, std::span<int> rows, int plain = 1);

}  // namespace veld
