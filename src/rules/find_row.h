#pragma once

#include <cstddef>
#include <string_view>

#include "text/search.h"

namespace veld {

/// The first row of a catalogue that has just this name, blanks at the end of either aside; -1 if none has.
template <typename Table>
int FindRowNamed(const Table& table, std::string_view name) {
  const std::string_view sought = TrimRight(name);
  if (sought.empty()) return -1;
  for (std::size_t row = 0; row < table.size(); ++row) {
    if (TrimRight(table[row].Name) == sought) return static_cast<int>(row);
  }
  return -1;
}

/// The first row of a catalogue whose whole name, blanks included, stands somewhere in `text`; -1 if none does. Blanks
/// at the end of a catalogue's name keep a short name from being found in a longer one.
template <typename Table>
int FindRowWithin(const Table& table, std::string_view text) {
  for (std::size_t row = 0; row < table.size(); ++row) {
    if (Contains(text, table[row].Name)) return static_cast<int>(row);
  }
  return -1;
}

/// How rules find a row by name: the row of just this name, or else the first whose name stands in `text`; -1 if none.
template <typename Table>
int FindRow(const Table& table, std::string_view text) {
  const int named = FindRowNamed(table, text);
  return named >= 0 ? named : FindRowWithin(table, text);
}

}  // namespace veld
