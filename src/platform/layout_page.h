#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "platform/control_kinds.h"
#include "platform/control_names.h"
#include "platform/layout.h"

// The page while it is worked out, for the parts of the lay-out alone: first the grid of places, then the widths
// across, then the rows down.

namespace veld::layout {

inline TextFace FaceOf(ControlKind kind) {
  if (kind == ControlKind::Title) return TextFace::Title;
  return kind == ControlKind::Heading ? TextFace::Bold : TextFace::Plain;
}

/// The controls that stand side by side in one place of the grid.
struct Cell {
  int Row = 0;
  int Column = 0;
  int RowSpan = 1;
  int ColumnSpan = 1;
  std::vector<std::size_t> Controls = {};
  std::vector<int> Lines = {};  ///< of each control the line in which it stands, where they do not fit side by side
  bool IsFree = false;  ///< its width may lie over the empty places to its right without widening its own column

  int LastRow() const { return Row + RowSpan - 1; }
  int LastColumn() const { return Column + ColumnSpan - 1; }
  int LineOf(std::size_t place) const { return place < Lines.size() ? Lines[place] : 0; }
};

struct Column {
  bool IsUsed = false;
  bool CanStretch = false;
  bool CanShrink = false;
  bool IsOfText = false;  ///< all in it that can shrink are texts
  int Width = 0;
  int Least = 0;        ///< what it keeps when the page is narrow
  int ButtonWidth = 0;  ///< of the buttons that stand alone in their places, so that they are all of one width
  int X = 0;
};

struct Row {
  bool Starts = false;     ///< a visible control has this row
  bool IsKnown = false;    ///< some control has this row, hidden or not
  bool IsCovered = false;  ///< a control of a row above reaches into it
  int Before = 0;          ///< blank lines above it
  int TextLine = 0;        ///< its line on which texts of one line stand, and with which taller controls begin
  int Lines = 0;
  int Top = 0;
};

struct Page {
  const Form& form;
  const PageMetrics& metrics;
  std::vector<Cell> cells = {};
  std::vector<Column> columns = {};
  std::vector<Row> rows = {};
  std::vector<PlacedControl> placed = {};  ///< one for each control of the form, visible or not
  int firstLine = 0;                       ///< lines kept free for the menu's button above the first row
  bool isRoomy = true;
  bool hasBlanks = true;    ///< blank lines above headings and for row numbers left out
  bool scrolls = false;     ///< it has more lines than there is room for, however short its lists are
  bool breaksRows = false;  ///< rows of several controls go on in the next line

  const Control& At(std::size_t control) const { return form.Controls()[control]; }
  ControlKind KindOf(std::size_t control) const { return At(control).Template.Kind; }
  const PageDensity& Density() const { return isRoomy ? metrics.Roomy : metrics.Dense; }
  bool HasKind(const Cell& cell, bool (*isKind)(ControlKind)) const {
    return std::ranges::any_of(cell.Controls, [&](std::size_t c) { return isKind(KindOf(c)); });
  }
  Row& RowAt(int row) { return rows[static_cast<std::size_t>(row)]; }
  Column& ColumnAt(int column) { return columns[static_cast<std::size_t>(column)]; }
  const Column& ColumnAt(int column) const { return columns[static_cast<std::size_t>(column)]; }
};

/// Finds the places of the visible controls, and how far each reaches over the grid.
void MakeGrid(Page& page);

/// Gives the columns the widths that their controls want: first those of one column, then those that span several.
void MeasureColumns(Page& page);
/// True if the page is no wider than `width` and no row is cut.
bool FitsAcross(const Page& page, int width);
/// Gives the controls their places and widths across, and breaks rows that are too long if the page does so.
void PlaceColumns(Page& page);
/// Shares out `extra` width among the columns of lists and texts; if it is negative, takes it from all that can do with
/// less, and what one column can not give from the others.
void StretchColumns(Page& page, int extra);
int ContentWidth(const Page& page);
int NaturalWidth(const Page& page, const Cell& cell);

/// Breaks the texts of several lines to the widths that their controls have got.
void WrapTexts(Page& page);
/// Roomy if that fits; else densely; else without blank lines; else with as many lines for lists and texts as fit.
int FitRows(Page& page, int height);
/// Shares out lines that are left over among the rows in which lists and texts of a wanted height end.
void StretchRows(Page& page, int lines);
int HeightOfLines(const Page& page, int lines);
void PlaceDown(Page& page, const Cell& cell);

/// The first row in which a control stands, if there is one.
std::optional<int> FirstRow(const Page& page);
/// True if the menu's button can share the line of the first row: nothing but writing stands there.
bool SharesCorner(const Page& page);

}  // namespace veld::layout
