#pragma once

#include <span>
#include <string_view>

#include "rules/quirk_table.h"

namespace veld {

inline constexpr int kAny = kAnyQuirkCount;

/// A row as the tables of the books print it; what a whole table shares stands with its QuirkRowGroup.
struct QuirkEntry {
  int Row;
  int Low;
  int High;
  int BPCost;
  QuirkKind Kind;
  int MaxCount;
  std::string_view Name;
  std::string_view NextTable = {};
  int Rolls = 0;
  int RepeatBP = 0;
};

struct QuirkRowGroup {
  std::string_view TableName;
  std::string_view Source;
  int Book;
  std::span<const QuirkEntry> Rows;
};

/// The tables of the core book, and those of the supplements.
std::span<const QuirkRowGroup> CodexQuirkRows();
std::span<const QuirkRowGroup> AlmanacQuirkRows();

}  // namespace veld
