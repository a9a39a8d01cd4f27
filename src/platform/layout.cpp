#include "platform/layout.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "text/utf8.h"

namespace veld {

namespace {

constexpr int kNoCap = std::numeric_limits<int>::max();
constexpr int kLeastLines = 3;        // what a list or a text keeps when the page is short of room
constexpr int kLeastCharacters = 12;  // and when it is narrow
constexpr int kWidestItems = 40;      // a list without a wanted width grows with its items up to this many characters

// --- Kinds -------------------------------------------------------------------------------------------------------

bool IsBox(ControlKind kind) {
  return kind == ControlKind::Edit || kind == ControlKind::Number || kind == ControlKind::Button ||
         kind == ControlKind::Combo || kind == ControlKind::Progress;
}

bool IsMark(ControlKind kind) {
  return kind == ControlKind::Check || kind == ControlKind::Radio;
}

/// Takes the room that is left over, and gives room up when there is too little.
bool Stretches(ControlKind kind) {
  return kind == ControlKind::List || kind == ControlKind::MultiLine || kind == ControlKind::Text;
}

/// Can do with less width than it wants: it scrolls, or its end is left out.
bool Shrinks(ControlKind kind) {
  return Stretches(kind) || kind == ControlKind::Result || kind == ControlKind::Edit || kind == ControlKind::Combo ||
         kind == ControlKind::Progress;
}

bool IsWriting(ControlKind kind) {
  return kind == ControlKind::Title || kind == ControlKind::Heading || kind == ControlKind::Label ||
         kind == ControlKind::Result;
}

bool CanBeUsed(ControlKind kind) {
  return !IsWriting(kind) && kind != ControlKind::Progress && kind != ControlKind::Text;
}

TextFace FaceOf(ControlKind kind) {
  if (kind == ControlKind::Title) return TextFace::Title;
  return kind == ControlKind::Heading ? TextFace::Bold : TextFace::Plain;
}

std::string ShownText(const Control& control) {
  return HasMnemonic(control.Template.Kind) ? WithoutMnemonic(control.Text) : control.Text;
}

// --- The page while it is worked out -----------------------------------------------------------------------------

/// The controls that stand side by side in one place of the grid.
struct Cell {
  int Row = 0;
  int Column = 0;
  int RowSpan = 1;
  int ColumnSpan = 1;
  std::vector<std::size_t> Controls = {};
  bool IsFree = false;  ///< its width may lie over the empty places to its right without widening its own column

  int LastRow() const { return Row + RowSpan - 1; }
  int LastColumn() const { return Column + ColumnSpan - 1; }
};

struct Column {
  bool IsUsed = false;
  bool CanStretch = false;
  bool CanShrink = false;
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
  bool hasBlanks = true;  ///< blank lines above headings and for row numbers left out

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

// --- The grid ----------------------------------------------------------------------------------------------------

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

// --- Across ------------------------------------------------------------------------------------------------------

int TextWidth(const Page& page, std::string_view text, TextFace face) {
  int widest = 0;
  for (std::size_t from = 0; from <= text.size();) {
    const std::size_t end = std::min(text.find('\n', from), text.size());
    widest = std::max(widest, page.metrics.TextWidth(text.substr(from, end - from), face));
    from = end + 1;
  }
  return widest;
}

int ItemsWidth(const Page& page, const Control& control) {
  int widest = 8 * page.metrics.Character;
  for (const std::string& item : control.Items)
    widest = std::max(widest, page.metrics.TextWidth(item, TextFace::Plain));
  return std::min(widest, kWidestItems * page.metrics.Character);
}

/// The width that a control wants.
int NaturalWidth(const Page& page, std::size_t place) {
  const PageMetrics& m = page.metrics;
  const Control& control = page.At(place);
  const ControlKind kind = control.Template.Kind;
  const int wanted = control.Template.Width * m.Character;
  const auto wantedOr = [&](int characters) { return wanted > 0 ? wanted : characters * m.Character; };
  const auto textWidth = [&] { return TextWidth(page, ShownText(control), FaceOf(kind)); };
  switch (kind) {
    case ControlKind::Title:
    case ControlKind::Heading:
    case ControlKind::Label:
      return std::max(wanted, textWidth());
    case ControlKind::Result:
      return wanted > 0 ? wanted : textWidth();
    case ControlKind::Text:
      if (wanted == 0) return textWidth();
      return control.Template.Lines > 0 ? wanted : std::min(wanted, textWidth());
    case ControlKind::Edit:
    case ControlKind::Number:
      return wantedOr(10) + m.EditPadding;
    case ControlKind::MultiLine:
      return wantedOr(kWidestItems) + m.ListPadding;
    case ControlKind::Button:
      return std::max({wanted, textWidth() + 2 * m.ButtonPadding, m.ButtonLeast});
    case ControlKind::List:
      return (wanted > 0 ? wanted : ItemsWidth(page, control)) + m.ListPadding;
    case ControlKind::Combo:
      return (wanted > 0 ? wanted : ItemsWidth(page, control)) + m.ComboPadding;
    case ControlKind::Check:
    case ControlKind::Radio:
      return std::max(wanted, m.MarkWidth + textWidth());
    case ControlKind::Progress:
      return wantedOr(kWidestItems);
  }
  return 0;
}

int NaturalWidth(const Page& page, const Cell& cell) {
  int width = static_cast<int>(cell.Controls.size() - 1) * page.metrics.ControlGap;
  for (const std::size_t control : cell.Controls) width += NaturalWidth(page, control);
  return width;
}

/// What a place keeps on a narrow page: of several controls, all of those that can not shrink and a little of the others.
int LeastWidth(const Page& page, const Cell& cell) {
  if (cell.Controls.size() == 1) return 0;
  int width = static_cast<int>(cell.Controls.size() - 1) * page.metrics.ControlGap;
  for (const std::size_t control : cell.Controls) {
    const int natural = NaturalWidth(page, control);
    width += Shrinks(page.KindOf(control)) ? std::min(natural, kLeastCharacters * page.metrics.Character) : natural;
  }
  return width;
}

/// From the left edge of the first column of the span to the right edge of its last.
int SpanWidth(const Page& page, const Cell& cell) {
  int width = 0;
  int used = 0;
  for (int column = cell.Column; column <= cell.LastColumn(); ++column) {
    if (!page.ColumnAt(column).IsUsed) continue;
    width += page.ColumnAt(column).Width + (used++ > 0 ? page.metrics.ColumnGap : 0);
  }
  return width;
}

int LastUsedColumn(const Page& page, const Cell& cell) {
  int column = cell.LastColumn();
  while (column > cell.Column && !page.ColumnAt(column).IsUsed) --column;
  return column;
}

/// Gives the columns the widths that their controls want: first those of one column, then those that span several.
void MeasureColumns(Page& page) {
  std::vector<const Cell*> spanning;
  for (const Cell& cell : page.cells) {
    Column& column = page.ColumnAt(cell.Column);
    const int width = NaturalWidth(page, cell);
    const bool shrinks = page.HasKind(cell, Shrinks);
    if (page.HasKind(cell, Stretches)) page.ColumnAt(LastUsedColumn(page, cell)).CanStretch = true;
    if (shrinks) page.ColumnAt(LastUsedColumn(page, cell)).CanShrink = true;
    if (cell.Controls.size() == 1 && page.KindOf(cell.Controls.front()) == ControlKind::Button) {
      column.ButtonWidth = std::max(column.ButtonWidth, width);
    }
    if (cell.ColumnSpan > 1) spanning.push_back(&cell);
    if (cell.ColumnSpan > 1 && cell.IsFree) continue;
    column.Width = std::max(column.Width, width);
    column.Least = std::max(column.Least, shrinks ? LeastWidth(page, cell) : width);
  }
  std::ranges::stable_sort(spanning, {}, [](const Cell* cell) { return cell->ColumnSpan; });
  for (const Cell* cell : spanning) {
    const int missing = NaturalWidth(page, *cell) - SpanWidth(page, *cell);
    if (missing > 0) page.ColumnAt(LastUsedColumn(page, *cell)).Width += missing;
  }
  for (Column& column : page.columns) column.Least = std::max(column.Least, kLeastCharacters * page.metrics.Character);
}

int ContentWidth(const Page& page) {
  return SpanWidth(page, Cell{.ColumnSpan = static_cast<int>(page.columns.size())});
}

/// Shares out `extra` width among the columns of lists and texts; if it is negative, takes it from all that can do with
/// less, and what one column can not give from the others.
void StretchColumns(Page& page, int extra) {
  bool Column::*const takesPart = extra > 0 ? &Column::CanStretch : &Column::CanShrink;
  for (int before = 0; extra != 0 && extra != before;) {
    before = extra;
    auto columns = std::ranges::count_if(page.columns, takesPart);
    for (Column& column : page.columns) {
      if (!(column.*takesPart)) continue;
      const int share = extra / static_cast<int>(columns--);
      const int width = std::max(column.Width + share, std::min(column.Width, column.Least));
      extra -= width - column.Width;
      column.Width = width;
    }
  }
}

/// Where the controls of a place stand side by side, and how wide they are.
void PlaceAcross(Page& page, const Cell& cell) {
  const int width = SpanWidth(page, cell);
  int left = width - NaturalWidth(page, cell);
  int x = page.ColumnAt(cell.Column).X;
  for (const std::size_t control : cell.Controls) {
    PageRect& area = page.placed[control].Area;
    const ControlKind kind = page.KindOf(control);
    const bool isLast = control == cell.Controls.back();
    area.X = x;
    area.Width = NaturalWidth(page, control);
    if ((left < 0 && Shrinks(kind)) || Stretches(kind) ||
        (isLast && (IsWriting(kind) || IsMark(kind) || kind == ControlKind::Progress))) {
      area.Width = std::max(area.Width + left, 0);
      left = 0;
    }
    if (cell.Controls.size() == 1 && kind == ControlKind::Button) {
      area.Width = std::max(area.Width, std::min(page.ColumnAt(cell.Column).ButtonWidth, width));
    }
    x += area.Width + page.metrics.ControlGap;
  }
}

void PlaceColumns(Page& page) {
  int x = page.metrics.MarginLeft;
  for (Column& column : page.columns) {
    column.X = x;
    if (column.IsUsed) x += column.Width + page.metrics.ColumnGap;
  }
  for (const Cell& cell : page.cells) PlaceAcross(page, cell);
}

// --- The corner of the menu's button -----------------------------------------------------------------------------

std::optional<int> FirstRow(const Page& page) {
  const auto first = std::ranges::find_if(page.rows, &Row::Starts);
  if (first == page.rows.end()) return std::nullopt;
  return static_cast<int>(first - page.rows.begin());
}

/// True if the menu's button can share the line of the first row: nothing but writing stands there.
bool SharesCorner(const Page& page) {
  const auto row = FirstRow(page);
  return row && std::ranges::all_of(page.cells, [&](const Cell& cell) {
           return cell.Row != *row ||
                  std::ranges::all_of(cell.Controls, [&](std::size_t c) { return IsWriting(page.KindOf(c)); });
         });
}

/// The width of the page's content with the corner in it.
int WidthWithCorner(const Page& page) {
  int width = ContentWidth(page);
  if (page.metrics.CornerWidth == 0) return width;
  width = std::max(width, page.metrics.CornerWidth);
  if (!SharesCorner(page)) return width;
  for (const Cell& cell : page.cells) {
    if (cell.Row != *FirstRow(page)) continue;
    const int right = page.ColumnAt(cell.Column).X - page.metrics.MarginLeft + NaturalWidth(page, cell);
    width = std::max(width, right + page.metrics.ColumnGap + page.metrics.CornerWidth);
  }
  return width;
}

// --- Down --------------------------------------------------------------------------------------------------------

/// Breaks the texts of several lines to the widths that their controls have got.
void WrapTexts(Page& page) {
  for (const Cell& cell : page.cells) {
    for (const std::size_t place : cell.Controls) {
      const Control& control = page.At(place);
      const ControlKind kind = control.Template.Kind;
      const bool isCaption = IsWriting(kind) && kind != ControlKind::Result;
      const bool isOfSeveral = IsWriting(kind) && (control.Template.Lines > 1 ||
                                                   (isCaption && control.Text.find('\n') != std::string::npos));
      if (kind != ControlKind::Text && !isOfSeveral) continue;
      PlacedControl& placed = page.placed[place];
      const auto width = [&](std::string_view line) { return page.metrics.TextWidth(line, FaceOf(kind)); };
      placed.Wrapped = WrapText(ShownText(control), placed.Area.Width, width);
    }
  }
}

/// The lines that a control wants, or 0 for one that has a single line by its nature.
int WantedLines(const Page& page, std::size_t place) {
  const ControlTemplate& control = page.At(place).Template;
  const int wrapped = static_cast<int>(page.placed[place].Wrapped.size());
  switch (control.Kind) {
    case ControlKind::List:
    case ControlKind::MultiLine:
      return std::max(control.Lines, 1);
    case ControlKind::Text:
      return control.Lines > 0 ? control.Lines : wrapped;
    case ControlKind::Result:
      return wrapped > 0 ? control.Lines : 0;
    case ControlKind::Title:
    case ControlKind::Heading:
    case ControlKind::Label:
      return wrapped > 0 ? std::max(control.Lines, wrapped) : 0;
    default:
      return 0;
  }
}

int WantedLines(const Page& page, const Cell& cell, int cap) {
  int lines = 0;
  for (const std::size_t control : cell.Controls) {
    const int wanted = WantedLines(page, control);
    lines = std::max(lines, Stretches(page.KindOf(control)) ? std::min(wanted, cap) : wanted);
  }
  return lines;
}

/// The lines that a control has which begins with the texts of row `first` and ends with row `last`.
int LinesBetween(Page& page, int first, int last) {
  int lines = -page.RowAt(first).TextLine;
  for (int row = first; row <= last; ++row) lines += page.RowAt(row).Lines + (row > first ? page.RowAt(row).Before : 0);
  return lines;
}

/// How far a box of this density reaches below the line it stands on.
int BoxOverhang(const Page& page) {
  const PageDensity& density = page.Density();
  return page.metrics.Baseline - density.BoxRise + density.BoxHeight - page.metrics.Pitch;
}

bool RowHas(const Page& page, int row, bool (*isKind)(ControlKind)) {
  return std::ranges::any_of(page.cells, [&](const Cell& c) { return c.Row == row && page.HasKind(c, isKind); });
}

/// A row of headings only.
bool IsHeadingRow(const Page& page, int row) {
  return !RowHas(page, row, [](ControlKind kind) { return kind != ControlKind::Heading; });
}

/// The lines that the menu's button takes in the corner.
int CornerLines(const Page& page) {
  return BoxOverhang(page) + page.metrics.FrameAbove > 0 ? 2 : 1;
}

void PlanRow(Page& page, int place, int cap) {
  Row& row = page.RowAt(place);
  const PageDensity& density = page.Density();
  const bool hasBox = RowHas(page, place, IsBox);
  row.TextLine = hasBox ? density.BoxLines - 1 : 0;
  row.Lines = hasBox ? density.BoxLines : 1;
  if (RowHas(page, place, [](ControlKind kind) { return kind == ControlKind::Title; })) {
    row.Lines = std::max(row.Lines, density.TitleLines);
  }
  for (const Cell& cell : page.cells) {
    if (cell.Row == place && cell.RowSpan == 1)
      row.Lines = std::max(row.Lines, row.TextLine + WantedLines(page, cell, cap));
  }
  const bool isFirst = place == FirstRow(page);
  if (isFirst && page.metrics.CornerWidth > 0 && page.firstLine == 0)
    row.Lines = std::max(row.Lines, CornerLines(page));
}

/// A row of several buttons and nothing else, as the one that ends a form.
bool IsButtonRow(const Page& page, int row) {
  const auto isButton = [&](std::size_t c) { return page.KindOf(c) == ControlKind::Button; };
  return std::ranges::all_of(page.cells, [&](const Cell& cell) {
    return cell.Row != row || (cell.Controls.size() > 1 && std::ranges::all_of(cell.Controls, isButton));
  });
}

/// The blank line between a row and the one above it: under boxes that hang over their line, above headings, and above
/// a row of buttons that stands densely.
int LinesBefore(Page& page, int place, int above) {
  const int frame = RowHas(page, place, Stretches) ? page.metrics.FrameAbove : 0;
  const bool isUnderBoxes = RowHas(page, above, IsBox) && !RowHas(page, place, IsBox) && BoxOverhang(page) + frame > 0;
  if (isUnderBoxes) return 1;
  if (!page.hasBlanks || RowHas(page, above, [](ControlKind kind) { return kind == ControlKind::Title; })) return 0;
  const bool endsDenseRows = !page.isRoomy && IsButtonRow(page, place) && !IsButtonRow(page, above);
  return IsHeadingRow(page, place) || endsDenseRows ? 1 : 0;
}

/// Gives each row its lines. Lists and texts want no more than `cap`. Returns the lines of the whole page.
int PlanRows(Page& page, int cap) {
  std::optional<int> above;
  bool isAfterBlank = false;
  for (int place = 0; place < static_cast<int>(page.rows.size()); ++place) {
    Row& row = page.RowAt(place);
    row.Before = row.TextLine = row.Lines = 0;
    if (row.Starts) {
      PlanRow(page, place, cap);
      if (above && !isAfterBlank) row.Before = LinesBefore(page, place, *above);
      above = place;
      isAfterBlank = false;
    } else if (!row.IsKnown && above) {  // a row number left out is a blank line
      row.Lines = row.IsCovered || (page.hasBlanks && !isAfterBlank) ? 1 : 0;
      isAfterBlank = true;
    }
  }
  std::vector<const Cell*> spanning;
  for (const Cell& cell : page.cells) {
    if (cell.RowSpan > 1) spanning.push_back(&cell);
  }
  std::ranges::stable_sort(spanning, {}, [](const Cell* cell) { return cell->LastRow(); });
  for (const Cell* cell : spanning) {
    const int missing = WantedLines(page, *cell, cap) - LinesBetween(page, cell->Row, cell->LastRow());
    if (missing > 0) page.RowAt(cell->LastRow()).Lines += missing;
  }
  int lines = page.firstLine;
  for (Row& row : page.rows) {
    row.Top = lines + row.Before;
    lines = row.Top + row.Lines;
  }
  return lines;
}

int HeightOfLines(const Page& page, int lines) {
  return page.metrics.MarginTop + lines * page.metrics.Pitch + page.metrics.MarginBottom;
}

/// Roomy if that fits; else densely; else without blank lines; else with as many lines for lists and texts as fit.
int FitRows(Page& page, int height) {
  const auto plan = [&](bool isRoomy, bool hasBlanks, int cap) {
    page.isRoomy = isRoomy;
    page.hasBlanks = hasBlanks;
    page.firstLine = page.metrics.CornerWidth > 0 && !SharesCorner(page) ? CornerLines(page) : 0;
    return PlanRows(page, cap);
  };
  const auto fits = [&](int lines) { return HeightOfLines(page, lines) <= height; };
  int lines = plan(true, true, kNoCap);
  if (!fits(lines)) lines = plan(false, true, kNoCap);
  if (!fits(lines)) lines = plan(false, false, kNoCap);
  if (fits(lines)) return lines;
  int enough = kLeastLines;
  int tooMany = kLeastLines + 1;
  for (const Cell& cell : page.cells) tooMany = std::max(tooMany, WantedLines(page, cell, kNoCap));
  while (tooMany - enough > 1) {
    const int middle = enough + (tooMany - enough) / 2;
    (fits(plan(false, false, middle)) ? enough : tooMany) = middle;
  }
  return plan(false, false, enough);
}

/// Shares out lines that are left over among the rows in which lists and texts of a wanted height end.
void StretchRows(Page& page, int lines) {
  std::vector<bool> stretches(page.rows.size());
  for (const Cell& cell : page.cells) {
    const bool isTall = std::ranges::any_of(cell.Controls, [&](std::size_t c) {
      return Stretches(page.KindOf(c)) && (page.KindOf(c) != ControlKind::Text || page.At(c).Template.Lines > 0);
    });
    if (isTall) stretches[static_cast<std::size_t>(cell.LastRow())] = true;
  }
  int rows = static_cast<int>(std::ranges::count(stretches, true));
  int shift = 0;
  for (std::size_t i = 0; i < page.rows.size(); ++i) {
    page.rows[i].Top += shift;
    if (!stretches[i]) continue;
    const int share = lines / rows--;
    page.rows[i].Lines += share;
    lines -= share;
    shift += share;
  }
}

/// A text that has more lines than it shows gets a scroll bar, and is broken again beside it.
void ScrollText(Page& page, std::size_t place) {
  PlacedControl& placed = page.placed[place];
  placed.Scrolls = static_cast<int>(placed.Wrapped.size()) > placed.Lines;
  if (!placed.Scrolls) return;
  const auto width = [&](std::string_view line) { return page.metrics.TextWidth(line, TextFace::Plain); };
  placed.Wrapped = WrapText(page.At(place).Text, std::max(placed.Area.Width - page.metrics.ListPadding, 1), width);
}

void PlaceDown(Page& page, const Cell& cell) {
  const PageMetrics& m = page.metrics;
  const PageDensity& density = page.Density();
  const Row& row = page.RowAt(cell.Row);
  const int top = m.MarginTop + (row.Top + row.TextLine) * m.Pitch;
  for (const std::size_t place : cell.Controls) {
    const ControlKind kind = page.KindOf(place);
    PlacedControl& placed = page.placed[place];
    const int wanted = std::max(WantedLines(page, place), 1);
    const int given = std::max(LinesBetween(page, cell.Row, cell.LastRow()), 1);
    const bool fills = Stretches(kind) && (kind != ControlKind::Text || page.At(place).Template.Lines > 0);
    placed.Lines = fills ? given : std::min(wanted, given);
    placed.Baseline = top + m.Baseline;
    if (kind == ControlKind::Text) ScrollText(page, place);
    PageRect& area = placed.Area;
    if (IsBox(kind)) {
      area.Y = placed.Baseline - density.BoxRise;
      area.Height = density.BoxHeight;
    } else if (IsMark(kind)) {
      area.Y = placed.Baseline - m.MarkRise;
      area.Height = m.MarkHeight;
    } else if (Stretches(kind) && (kind != ControlKind::Text || placed.Scrolls)) {
      area.Y = top - m.FrameAbove;
      area.Height = placed.Lines * m.Pitch + m.FrameAbove;
    } else {
      const int lines = kind == ControlKind::Title ? std::max(placed.Lines, density.TitleLines) : placed.Lines;
      area.Y = top;
      area.Height = lines * m.Pitch - m.FrameAbove;
    }
  }
}

// --- All of it ---------------------------------------------------------------------------------------------------

Page MakePage(const Form& form, const PageMetrics& metrics) {
  Page page{form, metrics};
  page.placed.resize(form.Controls().size());
  for (std::size_t i = 0; i < page.placed.size(); ++i) page.placed[i].Control = i;
  GatherCells(page);
  SpreadCells(page);
  MarkRowsAndColumns(page);
  MeasureColumns(page);
  PlaceColumns(page);
  return page;
}

/// Fits the page into `available`; returns its size. `stretches`: what is left over is given to lists and texts.
PageSize FitPage(Page& page, PageSize available, bool stretches) {
  const int margins = page.metrics.MarginLeft + page.metrics.MarginRight;
  const int wanted = WidthWithCorner(page);
  const int width = stretches ? std::max(available.Width - margins, 0) : std::min(wanted, available.Width - margins);
  StretchColumns(page, width - ContentWidth(page));
  PlaceColumns(page);
  WrapTexts(page);
  const int lines = FitRows(page, available.Height);
  return {margins + std::max(width, WidthWithCorner(page)), HeightOfLines(page, lines)};
}

PageRect CornerOf(const Page& page, PageSize size) {
  const PageMetrics& m = page.metrics;
  if (m.CornerWidth == 0) return {};
  const int baseline = m.MarginTop + m.Baseline;
  return {size.Width - m.MarginRight - m.CornerWidth, baseline - page.Density().BoxRise, m.CornerWidth,
          page.Density().BoxHeight};
}

}  // namespace

PageSize NaturalPageSize(const Form& form, const PageMetrics& metrics, PageSize limit) {
  Page page = MakePage(form, metrics);
  return FitPage(page, limit, false);
}

PageLayout LayOutPage(const Form& form, const PageMetrics& metrics, PageSize available) {
  Page page = MakePage(form, metrics);
  PageSize size = FitPage(page, available, true);
  StretchRows(page, std::max(available.Height - size.Height, 0) / metrics.Pitch);
  for (const Cell& cell : page.cells) PlaceDown(page, cell);
  size.Width = std::max(size.Width, available.Width);
  size.Height = std::max(size.Height, available.Height);
  PageLayout layout{.Page = size, .IsRoomy = page.isRoomy, .Controls = {}, .Corner = CornerOf(page, size)};
  const int corner = metrics.CornerWidth > 0 ? layout.Corner.X - metrics.ControlGap : size.Width;
  for (std::size_t i = 0; i < page.placed.size(); ++i) {
    if (!page.At(i).Visible) continue;
    PageRect& area = page.placed[i].Area;
    if (area.Y < layout.Corner.Bottom()) area.Width = std::min(area.Width, std::max(corner - area.X, 0));
    layout.Controls.push_back(std::move(page.placed[i]));
  }
  return layout;
}

// --- Names -------------------------------------------------------------------------------------------------------

bool HasMnemonic(ControlKind kind) {
  return kind == ControlKind::Label || kind == ControlKind::Button || IsMark(kind);
}

std::string WithoutMnemonic(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '&' && ++i == text.size()) break;
    plain += text[i];
  }
  return plain;
}

namespace {

bool IsCaption(ControlKind kind) {
  return kind == ControlKind::Label || kind == ControlKind::Heading;
}

bool IsField(ControlKind kind) {
  return kind == ControlKind::Edit || kind == ControlKind::Number || kind == ControlKind::Combo;
}

/// True if control `a` stands left of control `b` in the same row.
bool IsLeftOf(const Form& form, std::size_t a, std::size_t b) {
  const ControlTemplate& left = form.Controls()[a].Template;
  const ControlTemplate& right = form.Controls()[b].Template;
  return left.Row == right.Row && (left.Column < right.Column || (left.Column == right.Column && a < b));
}

/// The visible control next to `control` in its row, to the left or the right; the number of controls if there is none.
std::size_t Neighbour(const Form& form, std::size_t control, bool toTheLeft) {
  const std::size_t count = form.Controls().size();
  std::size_t nearest = count;
  for (std::size_t i = 0; i < count; ++i) {
    if (!form.Controls()[i].Visible) continue;
    const bool isOnSide = toTheLeft ? IsLeftOf(form, i, control) : IsLeftOf(form, control, i);
    if (!isOnSide) continue;
    const bool isNearer = nearest == count || (toTheLeft ? IsLeftOf(form, nearest, i) : IsLeftOf(form, i, nearest));
    if (isNearer) nearest = i;
  }
  return nearest;
}

/// The first visible control in the same column of the row above (-1) or below (1); the number of controls if none.
std::size_t Vertical(const Form& form, std::size_t control, int rows) {
  const ControlTemplate& self = form.Controls()[control].Template;
  const auto& controls = form.Controls();
  const auto found = std::ranges::find_if(controls, [&](const Control& other) {
    return other.Visible && other.Template.Row == self.Row + rows && other.Template.Column == self.Column;
  });
  return static_cast<std::size_t>(found - controls.begin());
}

}  // namespace

std::size_t NamedControl(const Form& form, std::size_t label) {
  const auto& controls = form.Controls();
  const std::size_t none = controls.size();
  const std::size_t right = Neighbour(form, label, false);
  if (right < none && CanBeUsed(controls[right].Template.Kind)) return right;
  if (right < none && controls[right].Template.Kind == ControlKind::Result) {
    // What the character has may stand between a label and the field to type in.
    std::size_t field = right;
    while (field < none && controls[field].Template.Kind == ControlKind::Result) field = Neighbour(form, field, false);
    return field < none && IsField(controls[field].Template.Kind) ? field : none;
  }
  const std::size_t below = Vertical(form, label, 1);
  return below < none && CanBeUsed(controls[below].Template.Kind) ? below : none;
}

std::string ControlName(const Form& form, std::size_t control) {
  const auto& controls = form.Controls();
  const std::size_t none = controls.size();
  const ControlKind self = controls[control].Template.Kind;
  for (std::size_t left = Neighbour(form, control, true); left < none; left = Neighbour(form, left, true)) {
    const ControlKind kind = controls[left].Template.Kind;
    if (IsCaption(kind) || (self == ControlKind::Result && kind == ControlKind::Button))
      return ShownText(controls[left]);
    // A row of fields, or of results, is named by the one label before them.
    const bool isOfRow = kind == ControlKind::Result || (IsField(self) && IsField(kind));
    if (!(IsField(self) || self == ControlKind::Result) || !isOfRow) break;
  }
  const std::size_t above = Vertical(form, control, -1);
  if (above == none || !IsCaption(controls[above].Template.Kind)) return {};
  const std::size_t next = Neighbour(form, above, false);
  const bool namesAnother =
      next < none && (CanBeUsed(controls[next].Template.Kind) || controls[next].Template.Kind == ControlKind::Result);
  return namesAnother ? std::string() : ShownText(controls[above]);
}

// --- Breaking texts ----------------------------------------------------------------------------------------------

namespace {

/// The longest start of `word` that fits, at least one character.
std::string_view FittingStart(std::string_view word, int width, const std::function<int(std::string_view)>& textWidth) {
  std::string_view fits;
  for (std::size_t end = 1; end <= word.size(); ++end) {
    const std::string_view start = CutToBytes(word, end);
    if (start.size() <= fits.size()) continue;
    if (!fits.empty() && textWidth(start) > width) break;
    fits = start;
  }
  return fits.empty() ? word : fits;
}

void WrapParagraph(std::string_view paragraph, int width, const std::function<int(std::string_view)>& textWidth,
                   std::vector<std::string>& lines) {
  while (textWidth(paragraph) > width) {
    std::size_t lineEnd = 0;  // of what fits so far
    const std::size_t first = std::min(paragraph.find_first_not_of(' '), paragraph.size());
    for (std::size_t end = paragraph.find(' ', first);; end = paragraph.find(' ', end + 1)) {
      const std::size_t wordEnd = std::min(end, paragraph.size());
      if (textWidth(paragraph.substr(0, wordEnd)) > width) break;
      lineEnd = wordEnd;
      if (wordEnd == paragraph.size()) break;
    }
    if (lineEnd == 0) lineEnd = FittingStart(paragraph, width, textWidth).size();
    lines.emplace_back(paragraph.substr(0, lineEnd));
    const std::size_t next = paragraph.find_first_not_of(' ', lineEnd);
    if (next == std::string_view::npos) return;
    paragraph.remove_prefix(next);
  }
  lines.emplace_back(paragraph);
}

}  // namespace

std::vector<std::string> WrapText(std::string_view text, int width,
                                  const std::function<int(std::string_view)>& textWidth) {
  std::vector<std::string> lines;
  for (std::size_t from = 0; from <= text.size();) {
    const std::size_t end = std::min(text.find('\n', from), text.size());
    std::string_view paragraph = text.substr(from, end - from);
    if (paragraph.ends_with('\r')) paragraph.remove_suffix(1);
    WrapParagraph(paragraph, width, textWidth, lines);
    from = end + 1;
  }
  return lines;
}

}  // namespace veld
