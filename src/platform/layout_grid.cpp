#include "platform/layout_page.h"

namespace veld::layout {

namespace {

Cell& CellAt(Page& page, int row, int column) {
  const auto found =
      std::ranges::find_if(page.cells, [&](const Cell& c) { return c.Row == row && c.Column == column; });
  if (found != page.cells.end()) return *found;
  return page.cells.emplace_back(Cell{.Row = row, .Column = column});
}

void GatherCells(Page& page) {
  int rows = 0;
  int columns = 0;
  for (const Control& control : page.form.Controls()) {
    rows = std::max(rows, control.Template.Row + 1);
    columns = std::max(columns, control.Template.Column + 1);
  }
  page.rows.resize(static_cast<std::size_t>(rows));
  page.columns.resize(static_cast<std::size_t>(columns));
  for (std::size_t i = 0; i < page.form.Controls().size(); ++i) {
    const ControlTemplate& control = page.At(i).Template;
    const int row = std::max(control.Row, 0);
    const int column = std::max(control.Column, 0);
    page.RowAt(row).IsKnown = true;
    if (!page.At(i).Visible) continue;
    Cell& cell = CellAt(page, row, column);
    cell.Controls.push_back(i);
    cell.RowSpan = std::clamp(control.RowSpan, cell.RowSpan, rows - row);
    cell.ColumnSpan = std::clamp(control.ColumnSpan, cell.ColumnSpan, columns - column);
  }
}

/// Lets writing and rows of buttons run on over the empty places to their right.
void SpreadCells(Page& page) {
  const auto isTaken = [&](const Cell& self, int column) {
    return std::ranges::any_of(page.cells, [&](const Cell& other) {
      return &other != &self && other.Row <= self.LastRow() && other.LastRow() >= self.Row && other.Column <= column &&
             other.LastColumn() >= column;
    });
  };
  for (Cell& cell : page.cells) {
    const ControlKind kind = page.KindOf(cell.Controls.front());
    const bool isRowOfSeveral = cell.Controls.size() > 1;
    if (cell.ColumnSpan > 1) {
      cell.IsFree = true;
      continue;
    }
    if (!(isRowOfSeveral || IsWriting(kind) || IsMark(kind) || kind == ControlKind::Text)) continue;
    cell.IsFree =
        isRowOfSeveral || kind == ControlKind::Title || kind == ControlKind::Heading || kind == ControlKind::Text;
    while (cell.LastColumn() + 1 < static_cast<int>(page.columns.size()) && !isTaken(cell, cell.LastColumn() + 1)) {
      ++cell.ColumnSpan;
    }
  }
}

void MarkRowsAndColumns(Page& page) {
  for (const Cell& cell : page.cells) {
    page.RowAt(cell.Row).Starts = true;
    page.ColumnAt(cell.Column).IsUsed = true;
    for (int row = cell.Row + 1; row <= cell.LastRow(); ++row) page.RowAt(row).IsCovered = true;
  }
}

}  // namespace

void MakeGrid(Page& page) {
  GatherCells(page);
  SpreadCells(page);
  MarkRowsAndColumns(page);
}

}  // namespace veld::layout
