#include "platform/layout_page.h"

namespace veld {

namespace layout {

// --- The corner of the menu's button -----------------------------------------------------------------------------

std::optional<int> FirstRow(const Page& page) {
  const auto first = std::ranges::find_if(page.rows, &Row::Starts);
  if (first == page.rows.end()) return std::nullopt;
  return static_cast<int>(first - page.rows.begin());
}

bool SharesCorner(const Page& page) {
  const auto row = FirstRow(page);
  return row && std::ranges::all_of(page.cells, [&](const Cell& cell) {
           return cell.Row != *row ||
                  std::ranges::all_of(cell.Controls, [&](std::size_t c) { return IsWriting(page.KindOf(c)); });
         });
}

}  // namespace layout

namespace {

using namespace layout;

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

Page MakePage(const Form& form, const PageMetrics& metrics) {
  Page page{form, metrics};
  page.placed.resize(form.Controls().size());
  for (std::size_t i = 0; i < page.placed.size(); ++i) page.placed[i].Control = i;
  MakeGrid(page);
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
  if (!FitsAcross(page, width)) {
    page.breaksRows = true;
    MeasureColumns(page);
    StretchColumns(page, width - ContentWidth(page));
  }
  PlaceColumns(page);
  WrapTexts(page);
  const int lines = FitRows(page, available.Height);
  return {margins + std::max(width, WidthWithCorner(page)), HeightOfLines(page, lines)};
}

PageRect CornerOf(const Page& page, PageSize size) {
  const PageMetrics& m = page.metrics;
  if (m.CornerWidth == 0) return {};
  const int baseline = m.MarginTop + m.Baseline;
  const int rise = m.IsCornerFlat ? m.MarkRise : page.Density().BoxRise;
  const int height = m.IsCornerFlat ? m.MarkHeight : page.Density().BoxHeight;
  return {size.Width - m.MarginRight - m.CornerWidth, baseline - rise, m.CornerWidth, height};
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

}  // namespace veld
