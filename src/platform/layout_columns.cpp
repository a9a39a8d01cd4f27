#include "platform/layout_page.h"

namespace veld::layout {

namespace {

constexpr int kLeastCharacters = 12;  // what a list or a text keeps when the page is narrow
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

int NaturalWidth(const Page& page, const Cell& cell) {
  int width = static_cast<int>(cell.Controls.size() - 1) * page.metrics.ControlGap;
  for (const std::size_t control : cell.Controls) width += NaturalWidth(page, control);
  return width;
}

namespace {

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

}  // namespace

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

namespace {

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

}  // namespace

void PlaceColumns(Page& page) {
  int x = page.metrics.MarginLeft;
  for (Column& column : page.columns) {
    column.X = x;
    if (column.IsUsed) x += column.Width + page.metrics.ColumnGap;
  }
  for (const Cell& cell : page.cells) PlaceAcross(page, cell);
}

}  // namespace veld::layout
