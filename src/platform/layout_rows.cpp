#include <limits>

#include "platform/layout_page.h"
#include "platform/wrap_text.h"

namespace veld::layout {

void WrapTexts(Page& page) {
  for (const Cell& cell : page.cells) {
    for (const std::size_t place : cell.Controls) {
      const Control& control = page.At(place);
      const ControlKind kind = control.Template.Kind;
      const bool isCaption = IsWriting(kind) && kind != ControlKind::Result;
      const auto width = [&](std::string_view line) { return page.metrics.TextWidth(line, FaceOf(kind)); };
      PlacedControl& placed = page.placed[place];
      const bool isOfSeveral =
          IsWriting(kind) && (control.Template.Lines > 1 ||
                              (isCaption && (page.breaksRows || control.Text.find('\n') != std::string::npos)) ||
                              (page.metrics.WrapsResults && width(ShownText(control)) > placed.Area.Width));
      if (kind != ControlKind::Text && !isOfSeveral) continue;
      placed.Wrapped = WrapText(ShownText(control), placed.Area.Width, width);
    }
  }
}

namespace {

constexpr int kNoCap = std::numeric_limits<int>::max();
constexpr int kLeastLines = 3;  // what a list keeps when the page is short of room; a text keeps one less

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
      if (wrapped == 0) return 0;
      return page.metrics.WrapsResults ? std::max(control.Lines, wrapped) : control.Lines;
    case ControlKind::Title:
    case ControlKind::Heading:
    case ControlKind::Label:
      return wrapped > 0 ? std::max(control.Lines, wrapped) : 0;
    default:
      return 0;
  }
}

/// Whether a control may be given less than it wants. On a page that scrolls in any case a text that is as high as its
/// lines stays whole: it needs no second scroll bar.
bool CanBeCapped(const Page& page, std::size_t place) {
  const ControlTemplate& control = page.At(place).Template;
  return Stretches(control.Kind) && !(page.scrolls && control.Kind == ControlKind::Text && control.Lines == 0);
}

/// A row of several buttons and nothing else, as the one that ends a form.
bool IsButtonRow(const Page& page, int row) {
  const auto isButton = [&](std::size_t c) { return page.KindOf(c) == ControlKind::Button; };
  return std::ranges::all_of(page.cells, [&](const Cell& cell) {
    return cell.Row != row || (cell.Controls.size() > 1 && std::ranges::all_of(cell.Controls, isButton));
  });
}

/// How boxes stand in a row. The buttons that end a page keep their height on a dense one too, where a blank line above
/// them makes room for that.
const PageDensity& DensityOf(const Page& page, int row) {
  const bool isLast = row > 0 && row + 1 == static_cast<int>(page.rows.size());
  const bool hasBlankAbove = isLast && page.hasBlanks && page.rows[static_cast<std::size_t>(row) - 1].IsKnown;
  return hasBlankAbove && IsButtonRow(page, row) ? page.metrics.Roomy : page.Density();
}

/// How far below its first line the control at a place of the cell stands, where the row is broken.
int LinesAbove(const Page& page, const Cell& cell, std::size_t place) {
  return cell.LineOf(place) * (page.HasKind(cell, IsBox) ? DensityOf(page, cell.Row).BoxLines : 1);
}

int WantedLines(const Page& page, const Cell& cell, int cap) {
  int lines = 0;
  for (std::size_t i = 0; i < cell.Controls.size(); ++i) {
    const int wanted = WantedLines(page, cell.Controls[i]);
    const int most = page.KindOf(cell.Controls[i]) == ControlKind::Text && cap != kNoCap ? cap - 1 : cap;
    const int held = CanBeCapped(page, cell.Controls[i]) ? std::min(wanted, most) : wanted;
    const int above = LinesAbove(page, cell, i);
    lines = std::max(lines, above > 0 ? above + std::max(held, 1) : held);
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

/// The lines that the buttons take in the corner.
int CornerLines(const Page& page) {
  return !page.metrics.IsCornerFlat && BoxOverhang(page) + page.metrics.FrameAbove > 0 ? 2 : 1;
}

void PlanRow(Page& page, int place, int cap) {
  Row& row = page.RowAt(place);
  const PageDensity& density = DensityOf(page, place);
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

/// The blank line between a row and the one above it: under boxes that hang over their line, above headings, and above
/// a row of buttons that stands densely.
int LinesBefore(Page& page, int place, int above) {
  const int frame = RowHas(page, place, Stretches) ? page.metrics.FrameAbove : 0;
  const bool isUnderBoxes = RowHas(page, above, IsBox) && !RowHas(page, place, IsBox) && BoxOverhang(page) + frame > 0;
  if (isUnderBoxes) return 1;
  if (!page.hasBlanks || RowHas(page, above, [](ControlKind kind) { return kind == ControlKind::Title; })) return 0;
  const bool isDense = &DensityOf(page, place) == &page.metrics.Dense;
  const bool endsDenseRows = isDense && IsButtonRow(page, place) && !IsButtonRow(page, above);
  const bool isUnderHeading = RowHas(page, above, [](ControlKind kind) { return kind == ControlKind::Heading; });
  return (IsHeadingRow(page, place) && !isUnderHeading) || endsDenseRows ? 1 : 0;
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
      row.Lines = page.hasBlanks && (row.IsCovered || !isAfterBlank) ? 1 : 0;
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

}  // namespace

int HeightOfLines(const Page& page, int lines) {
  return page.metrics.MarginTop + lines * page.metrics.Pitch + page.metrics.MarginBottom;
}

int FitRows(Page& page, int height) {
  const auto plan = [&](bool isRoomy, bool hasBlanks, int cap) {
    page.isRoomy = isRoomy;
    page.hasBlanks = hasBlanks;
    page.firstLine = page.metrics.CornerWidth > 0 && !SharesCorner(page) ? CornerLines(page) : 0;
    return PlanRows(page, cap);
  };
  page.scrolls = false;
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
  page.scrolls = !fits(plan(false, false, enough));
  return plan(false, false, enough);
}

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

namespace {

/// A text that has more lines than it shows gets a scroll bar, and is broken again beside it.
void ScrollText(Page& page, std::size_t place) {
  PlacedControl& placed = page.placed[place];
  placed.Scrolls = static_cast<int>(placed.Wrapped.size()) > placed.Lines;
  if (!placed.Scrolls) return;
  const auto width = [&](std::string_view line) { return page.metrics.TextWidth(line, TextFace::Plain); };
  placed.Wrapped = WrapText(page.At(place).Text, std::max(placed.Area.Width - page.metrics.ListPadding, 1), width);
}

}  // namespace

void PlaceDown(Page& page, const Cell& cell) {
  const PageMetrics& m = page.metrics;
  const PageDensity& density = DensityOf(page, cell.Row);
  const Row& row = page.RowAt(cell.Row);
  for (std::size_t i = 0; i < cell.Controls.size(); ++i) {
    const std::size_t place = cell.Controls[i];
    const int above = LinesAbove(page, cell, i);
    const int top = m.MarginTop + (row.Top + row.TextLine + above) * m.Pitch;
    const ControlKind kind = page.KindOf(place);
    PlacedControl& placed = page.placed[place];
    const int wanted = std::max(WantedLines(page, place), 1);
    const int given = std::max(LinesBetween(page, cell.Row, cell.LastRow()) - above, 1);
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

}  // namespace veld::layout
