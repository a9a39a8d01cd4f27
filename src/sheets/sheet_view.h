#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "sheets/sheet_content.h"

namespace veld {

// The gathered sheet as the pages read it.

/// A row of one of its tables.
struct SheetRow {
  std::string Head;
  std::vector<std::string> Cells;
  std::vector<std::pair<std::string, std::string>> Effects;  ///< label and value
};

/// The block of a title; null if the character has none.
const SheetBlock* FindBlock(const SheetContent& content, std::string_view title);

/// The rows of a table; none for a null block.
std::vector<SheetRow> RowsOf(const SheetBlock* block);

/// What a block says under a label; empty if nothing.
std::string ValueOf(const SheetBlock* block, std::string_view label);

/// The facts of a block as label and value, in their order, hidden ones left out.
std::vector<std::pair<std::string, std::string>> FactsOf(const SheetBlock* block);

}  // namespace veld
