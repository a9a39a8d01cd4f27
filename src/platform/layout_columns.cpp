#include "platform/layout_page.h"

namespace veld::layout {

namespace {

constexpr int kLeastCharacters = 12;  // what a list or a text keeps when the page is narrow
constexpr int kLeastText = 16;        // what a column of nothing but texts keeps before the others give way
constexpr int kWidestItems = 40;      // a list without a wanted width grows with its items up to this many characters

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

}  // namespace

namespace {

/// What a control keeps of its width on a narrow page.
int LeastWidth(const Page& page, std::size_t place) {
  const int natural = NaturalWidth(page, place);
  return Shrinks(page.KindOf(place)) ? std::min(natural, kLeastCharacters * page.metrics.Character) : natural;
}

using WidthOf = int (*)(const Page& page, std::size_t place);

/// The width of the controls from place `from` of the cell up to `end`, side by side.
int WidthTogether(const Page& page, const Cell& cell, std::size_t from, std::size_t end, WidthOf widthOf) {
  int width = static_cast<int>(end - from - 1) * page.metrics.ControlGap;
  for (std::size_t i = from; i < end; ++i) width += widthOf(page, cell.Controls[i]);
  return width;
}

/// True if the control at place `at` of the cell may begin a new line. What a label names stays beside it, and a label
/// at the end, which names nothing ("years"), beside what it follows.
bool CanBreakBefore(const Page& page, const Cell& cell, std::size_t at) {
  const ControlKind kind = page.KindOf(cell.Controls[at]);
  const ControlKind before = page.KindOf(cell.Controls[at - 1]);
  if (kind == ControlKind::Label) return at + 1 < cell.Controls.size();
  return before != ControlKind::Label && (kind == ControlKind::Button || IsMark(kind) || kind == before);
}

/// Where the part ends that begins at place `from` of the cell and is not broken.
std::size_t PartEnd(const Page& page, const Cell& cell, std::size_t from) {
  std::size_t end = from + 1;
  while (end < cell.Controls.size() && !CanBreakBefore(page, cell, end)) ++end;
  return end;
}

/// The width of a cell whose controls stand side by side, or of its widest part.
int CellWidth(const Page& page, const Cell& cell, bool isBroken, WidthOf widthOf) {
  if (!isBroken) return WidthTogether(page, cell, 0, cell.Controls.size(), widthOf);
  int widest = 0;
  for (std::size_t from = 0, end = 0; from < cell.Controls.size(); from = end) {
    end = PartEnd(page, cell, from);
    widest = std::max(widest, WidthTogether(page, cell, from, end, widthOf));
  }
  return widest;
}

}  // namespace

int NaturalWidth(const Page& page, const Cell& cell) {
  return CellWidth(page, cell, page.breaksRows, NaturalWidth);
}

namespace {

/// What a place keeps on a narrow page: of several controls, all of those that can not shrink and a little of the
/// others.
int LeastWidth(const Page& page, const Cell& cell) {
  return cell.Controls.size() == 1 ? 0 : CellWidth(page, cell, page.breaksRows, LeastWidth);
}

/// True for a caption or a mark that stands alone: on a page that breaks its rows it makes no column wider.
bool GivesWay(const Page& page, const Cell& cell) {
  const ControlKind kind = page.KindOf(cell.Controls.front());
  return page.breaksRows && cell.ColumnSpan > 1 && cell.Controls.size() == 1 && (IsWriting(kind) || IsMark(kind));
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

}  // namespace

void MeasureColumns(Page& page) {
  for (Column& column : page.columns) column = {.IsUsed = column.IsUsed};
  std::vector<const Cell*> spanning;
  for (const Cell& cell : page.cells) {
    Column& column = page.ColumnAt(cell.Column);
    const int width = NaturalWidth(page, cell);
    const bool shrinks = page.HasKind(cell, Shrinks);
    if (page.HasKind(cell, Stretches)) page.ColumnAt(LastUsedColumn(page, cell)).CanStretch = true;
    if (shrinks) {
      Column& last = page.ColumnAt(LastUsedColumn(page, cell));
      const bool isText = page.KindOf(cell.Controls.front()) == ControlKind::Text;
      last.IsOfText = isText && (last.IsOfText || !last.CanShrink);
      last.CanShrink = true;
    }
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
    if (missing > 0 && !GivesWay(page, *cell)) page.ColumnAt(LastUsedColumn(page, *cell)).Width += missing;
  }
  for (Column& column : page.columns) column.Least = std::max(column.Least, kLeastCharacters * page.metrics.Character);
}

int ContentWidth(const Page& page) {
  return SpanWidth(page, Cell{.ColumnSpan = static_cast<int>(page.columns.size())});
}

bool FitsAcross(const Page& page, int width) {
  return ContentWidth(page) <= width && std::ranges::all_of(page.cells, [&](const Cell& cell) {
           const ControlKind kind = page.KindOf(cell.Controls.front());
           const bool isOne = cell.Controls.size() == 1;
           if (isOne && (Shrinks(kind) || kind == ControlKind::Text)) return true;
           return (isOne ? NaturalWidth(page, cell) : LeastWidth(page, cell)) <= SpanWidth(page, cell);
         });
}

namespace {

/// Takes `missing` width from the columns in equal parts, of each no more than leaves it its least. Returns what is
/// still missing.
int TakeWidth(Page& page, int missing, const std::function<int(const Column&)>& least) {
  const auto canGive = [&](const Column& column) { return column.Width > least(column); };
  while (missing > 0) {
    auto columns = std::ranges::count_if(page.columns, canGive);
    if (columns == 0) return missing;
    for (Column& column : page.columns) {
      if (!canGive(column)) continue;
      const int share = std::min(missing / static_cast<int>(columns--), column.Width - least(column));
      column.Width -= share;
      missing -= share;
    }
  }
  return 0;
}

}  // namespace

void StretchColumns(Page& page, int extra) {
  if (extra < 0) {
    // A text to read scrolls, and gives way before what is chosen from is cut.
    const int text = kLeastText * page.metrics.Character;
    const int missing =
        TakeWidth(page, -extra, [&](const Column& c) { return c.IsOfText ? std::max(c.Least, text) : c.Width; });
    TakeWidth(page, missing, [](const Column& c) { return c.CanShrink ? c.Least : c.Width; });
    return;
  }
  auto columns = std::ranges::count_if(page.columns, &Column::CanStretch);
  for (Column& column : page.columns) {
    if (!column.CanStretch) continue;
    const int share = extra / static_cast<int>(columns--);
    column.Width += share;
    extra -= share;
  }
}

namespace {

/// Shares the cell's controls out among as few lines as hold them.
void BreakIntoLines(const Page& page, Cell& cell, int width) {
  cell.Lines.assign(cell.Controls.size(), 0);
  if (!page.breaksRows) return;
  std::size_t lineBegin = 0;
  for (std::size_t from = 0, end = 0; from < cell.Controls.size(); from = end) {
    end = PartEnd(page, cell, from);
    const bool isTooLong = WidthTogether(page, cell, lineBegin, end, LeastWidth) > width;
    const int line = from == 0 ? 0 : cell.Lines[from - 1] + (isTooLong ? 1 : 0);
    if (from > 0 && isTooLong) lineBegin = from;
    for (std::size_t i = from; i < end; ++i) cell.Lines[i] = line;
  }
}

/// Where the controls of a place stand side by side, and how wide they are.
void PlaceAcross(Page& page, Cell& cell) {
  const int width = SpanWidth(page, cell);
  BreakIntoLines(page, cell, width);
  const bool isOne = cell.Controls.size() == 1;
  const std::size_t count = cell.Controls.size();
  int left = 0;
  int x = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t control = cell.Controls[i];
    if (i == 0 || cell.Lines[i] != cell.Lines[i - 1]) {
      const auto end = std::ranges::upper_bound(cell.Lines, cell.Lines[i]) - cell.Lines.begin();
      left = width - WidthTogether(page, cell, i, static_cast<std::size_t>(end), NaturalWidth);
      x = page.ColumnAt(cell.Column).X;
    }
    PageRect& area = page.placed[control].Area;
    const ControlKind kind = page.KindOf(control);
    const bool isLast = i + 1 == count || cell.Lines[i + 1] != cell.Lines[i];
    const int natural = NaturalWidth(page, control);
    area.X = x;
    area.Width = natural;
    if (left < 0 && Shrinks(kind)) {
      area.Width = std::max({natural + left, isOne ? 0 : LeastWidth(page, control), 0});
    } else if (Stretches(kind) || (isLast && (IsWriting(kind) || IsMark(kind) || kind == ControlKind::Progress))) {
      area.Width = std::max(natural + left, 0);
    }
    left -= area.Width - natural;
    if (isOne && kind == ControlKind::Button) {
      area.Width = std::max(area.Width, std::min(page.ColumnAt(cell.Column).ButtonWidth, width));
    }
    x += area.Width + page.metrics.ControlGap;
  }
}

}  // namespace

void PlaceColumns(Page& page) {
  int x = page.metrics.MarginLeft;
  for (Column& column : page.columns) {
    column.X = x;
    if (column.IsUsed) x += column.Width + page.metrics.ColumnGap;
  }
  for (Cell& cell : page.cells) PlaceAcross(page, cell);
}

}  // namespace veld::layout
