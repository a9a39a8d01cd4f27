#include "text/row_runs.h"

#include <charconv>

namespace veld {

namespace {

bool ReadInt(std::string_view& text, int& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{}) return false;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return true;
}

bool Skip(std::string_view& text, char c) {
  if (!text.starts_with(c)) return false;
  text.remove_prefix(1);
  return true;
}

}  // namespace

bool ExpandRowRuns(std::string_view list, std::span<int> rows, int plain) {
  while (true) {
    while (Skip(list, ' ')) {
    }
    if (list.empty()) return true;
    int first = 0;
    int value = plain;
    if (!ReadInt(list, first)) return false;
    int last = first;
    if (Skip(list, '-') && !ReadInt(list, last)) return false;
    if (Skip(list, ':') && !ReadInt(list, value)) return false;
    if (first < 0 || last < first || last >= static_cast<int>(rows.size())) return false;
    if (!list.empty() && list.front() != ' ') return false;
    for (int row = first; row <= last; ++row) rows[static_cast<std::size_t>(row)] = value;
  }
}

}  // namespace veld
