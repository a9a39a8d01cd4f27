#include "print/pieces.h"

#include <algorithm>
#include <cmath>

#include "text/format.h"

namespace veld {

namespace {

constexpr double kMm = 72 / 25.4;
constexpr double kPadding = 2;      ///< of a cell, to each side
constexpr double kFirstBase = 9.2;  ///< of a row's texts

}  // namespace

Piece Space(double height) {
  return {height, [](double, double) {}};
}

Piece Stack(std::vector<Piece> pieces) {
  double height = 0;
  for (const Piece& piece : pieces) height += piece.Height;
  return {height, [pieces = std::move(pieces)](double x, double y) {
            for (const Piece& piece : pieces) {
              piece.Draw(x, y);
              y += piece.Height;
            }
          }};
}

Piece Beside(std::vector<std::pair<double, Piece>> pieces) {
  double height = 0;
  for (const auto& [offset, piece] : pieces) height = std::max(height, piece.Height);
  return {height, [pieces = std::move(pieces)](double x, double y) {
            for (const auto& [offset, piece] : pieces) piece.Draw(x + offset, y);
          }};
}

std::string SentenceCase(std::string_view title) {
  std::string cased(title);
  for (std::size_t i = cased.find(' '); i < cased.size() - 1; i = cased.find(' ', i + 1)) {
    if (cased[i + 1] >= 'A' && cased[i + 1] <= 'Z') cased[i + 1] = static_cast<char>(cased[i + 1] - 'A' + 'a');
  }
  return cased;
}

Piece Heading(PdfCanvas& canvas, std::string_view title, double width) {
  constexpr double kHeight = 15;
  const LaidText text = canvas.Lay(title, {8.8, true, Ink::Blue}, width);
  const double height = std::max(kHeight, text.Height() + 4);
  return {height + 1,
          [&canvas, text, width, height](double x, double y) {
            canvas.Draw(text, x, y + height - 2.5 - text.Height());
            canvas.Line(x, y + height - 1, x + width, y + height - 1, Ink::Blue, 0.9);
          },
          true};
}

Piece SubHeading(PdfCanvas& canvas, std::string_view title, double width) {
  const LaidText text = canvas.Lay(title, {kTextSize, true, Ink::Text}, width);
  const double height = std::max(kRowHeight, text.Height() + 3);  // a row's, so that columns keep step
  return {height,
          [&canvas, text, width, height](double x, double y) {
            canvas.Draw(text, x, y + height - 1 - text.Height());
            canvas.Line(x, y + height - 0.5, x + width, y + height - 0.5, Ink::Edge);
          },
          true, std::string(title)};
}

Piece Remark(PdfCanvas& canvas, std::string_view text, double width) {
  const LaidText laid = canvas.Lay(text, {kSmallSize}, width);
  return {laid.Height() + 2, [&canvas, laid](double x, double y) { canvas.Draw(laid, x, y + 1); }};
}

Piece Field(PdfCanvas& canvas, std::string_view label, std::string_view value, double width, bool isBold) {
  constexpr double kLabelHeight = 9;
  constexpr double kValueHeight = 11.5;
  const LaidText over = canvas.LayFitting(label, {kSmallSize}, 4.5, width);
  const LaidText text = canvas.LayFitting(value, {8.5, isBold, Ink::Blue}, 6.5, width);
  const double height = kLabelHeight + std::max(kValueHeight, text.Height() + 1);
  return {height + 1, [&canvas, over, text, width, height](double x, double y) {
            canvas.Draw(over, x, y + 2);
            canvas.Draw(text, x, y + height - 0.5 - text.Height());
            canvas.Line(x, y + height, x + width, y + height, Ink::Edge);
          }};
}

Piece NumberBox(PdfCanvas& canvas, std::string_view label, std::string_view value, double width) {
  constexpr double kBoxHeight = 24;
  const LaidText text = canvas.LayFitting(value, {kNumberSize, true, Ink::Blue, Align::Center}, 4, width - 2);
  const LaidText under = canvas.LayFitting(label, {kSmallSize, false, Ink::Text, Align::Center}, 4.5, width);
  const double box = std::max(kBoxHeight, text.Height() + 2);
  return {box + 1.5 + under.Height(), [&canvas, text, under, width, box](double x, double y) {
            canvas.Box(x, y, width, box);
            canvas.Draw(text, x + 1, y + (box - text.Height()) / 2);
            canvas.Draw(under, x, y + box + 1);
          }};
}

Piece TickBoxes(PdfCanvas& canvas, int count, double width, double size) {
  constexpr int kFive = 5;
  const double pitch = size + 1.3;
  const double group = kFive * pitch + 3;
  const int groups = std::max(1, static_cast<int>((width + 3) / group));
  const int perLine = groups * kFive;
  const int lines = (count + perLine - 1) / perLine;
  std::vector<double> offsets;
  for (int place = 0; place < std::min(perLine, count); ++place) {
    offsets.push_back(place / kFive * group + place % kFive * pitch);
  }
  return {lines * (pitch + 1), [&canvas, count, size, pitch, offsets, perLine](double x, double y) {
            for (int done = 0; done < count; done += perLine, y += pitch + 1) {
              const auto squares = static_cast<std::size_t>(std::min(perLine, count - done));
              canvas.Squares(x, y, size, std::span(offsets).first(squares));
            }
          }};
}

Piece RuledLine(PdfCanvas& canvas, double width, double height) {
  return {height, [&canvas, width, height](double x, double y) {
            canvas.Line(x, y + height - 0.5, x + width, y + height - 0.5, Ink::Edge, 0.4);
          }};
}

TableShape::TableShape(PdfCanvas& canvas, std::vector<TableColumn> columns, double width, double size)
    : canvas_(canvas), columns_(std::move(columns)), width_(width), size_(size) {
  double shares = 0;
  for (const TableColumn& column : columns_) shares += column.Share;
  double x = 0;
  for (const TableColumn& column : columns_) {
    places_.push_back({x, column.Share / shares * width});
    x += places_.back().Width;
  }
}

Piece TableShape::Cells(const std::vector<LaidText>& cells, bool isHead) const {
  double height = isHead ? 8 : kRowHeight;
  for (const LaidText& cell : cells) {
    height = std::max(height, cell.Height() + (isHead ? 2 : kFirstBase - cell.Baseline() + 1));
  }
  const bool isMarked = marked_ >= 0;
  const Place mark = isMarked ? places_[static_cast<std::size_t>(marked_)] : Place{};
  return {
      height,
      [&canvas = canvas_, cells, places = places_, width = width_, isHead, isMarked, mark, height](double x, double y) {
        if (isMarked) canvas.Fill(x + mark.X, y, mark.Width, height, Ink::Wash);
        canvas.Line(x, y + height, x + width, y + height, Ink::Edge, isHead ? 0.6 : 0.4);
        for (const double side : {mark.X, mark.X + mark.Width}) {  // the wash alone is lost in a copy
          if (isMarked) canvas.Line(x + side, y, x + side, y + height, Ink::Blue, 0.9);
        }
        for (std::size_t i = 0; i < cells.size(); ++i) {
          // Heads stand on their line; of a row's texts the first lines share a base.
          const double top = isHead ? y + height - 1 - cells[i].Height() : y + kFirstBase - cells[i].Baseline();
          canvas.Draw(cells[i], x + places[i].X + (i == 0 ? 0 : kPadding), top);
        }
      },
      isHead};
}

Piece TableShape::Head() const {
  std::vector<LaidText> cells;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const double width = places_[i].Width - (i == 0 ? kPadding : 2 * kPadding);
    cells.push_back(
        canvas_.LayFitting(columns_[i].Title, {kSmallSize, false, Ink::Text, columns_[i].Side}, 5.4, width));
  }
  return Cells(cells, true);
}

Piece TableShape::Row(const std::vector<std::string>& cells) const {
  std::vector<LaidText> laid;
  for (std::size_t i = 0; i < std::min(cells.size(), columns_.size()); ++i) {
    const TableColumn& column = columns_[i];
    const double width = places_[i].Width - (i == 0 ? kPadding : 2 * kPadding);
    const TextStyle style{size_, column.IsBold, column.Color, column.Side};
    laid.push_back(canvas_.LayFitting(cells[i], style, std::min(size_, 6.5), width));
  }
  return Cells(laid, false);
}

// ---- Pages ----

namespace {

// A hole punch takes the left; the others leave what printers can't reach.
constexpr double kLeftMargin = 20 * kMm;
constexpr double kRightMargin = 11 * kMm;
constexpr double kTopMargin = 9 * kMm;
constexpr double kBottomMargin = 10 * kMm;
constexpr double kHeadHeight = 14;

}  // namespace

PageFlow::PageFlow(PdfCanvas& canvas, std::string runningHead) : canvas_(canvas), head_(std::move(runningHead)) {
  DrawHead(Head());
}

void PageFlow::Finish() {
  for (const PlacedDrawing& placed : drawings_) {
    if (placed.Draw) {
      placed.Draw(placed.X, placed.Y);
    } else {
      canvas_.NextPage();
    }
  }
}

double PageFlow::Left() const {
  return kLeftMargin;
}

double PageFlow::Width() const {
  return canvas_.Width() - kLeftMargin - kRightMargin;
}

double PageFlow::Bottom() const {
  return canvas_.Height() - kBottomMargin;
}

double PageFlow::Room() const {
  return Bottom() - y_;
}

HeadPlace PageFlow::Head() const {
  return {kTopMargin, kLeftMargin, Width() - 70, kLeftMargin + Width()};
}

void PageFlow::DrawHead(const HeadPlace& place, bool isOneLine) {
  static constexpr TextStyle kStyle{kSmallSize + 0.7};
  const LaidText head = canvas_.LayFitting(head_, kStyle, 5.5, place.Width);
  const Drawing draw([this, head, isOneLine, right = place.Right, page = page_](double x, double y) {
    const LaidText number = canvas_.Lay(Format("Page %i of %i", page, page_), kStyle);
    canvas_.Draw(number, right - number.Width(), y);
    if (isOneLine && head.Lines() > 0) {
      canvas_.DrawLine(head, 0, x, y);
    } else {
      canvas_.Draw(head, x, y);
    }
  });
  drawings_.push_back({draw, place.Left, place.Top});
  y_ = place.Top + std::max(kHeadHeight, head.Height() + 4);
  isFresh_ = true;
}

void PageFlow::NextPage() {
  drawings_.push_back({});
  ++page_;
  DrawHead(Head());
}

void PageFlow::NextPage(const HeadPlace& place) {
  drawings_.push_back({});
  ++page_;
  DrawHead(place, true);
}

void PageFlow::Place(const Piece& piece, double gap) {
  if (!isFresh_ && piece.Height > Room()) NextPage();
  DrawAt(piece, kLeftMargin, y_);
  y_ += piece.Height + gap;
  isFresh_ = false;
}

void PageFlow::PlaceInColumns(std::span<const Piece> pieces, int columns, const Piece& head, const Piece& title) {
  const double width = ColumnWidth(columns);
  std::size_t next = 0;
  if (pieces.empty() && title.Draw) Place(title);
  // What stands over a column that goes on with what a subheading leads.
  const auto again = [&](std::size_t from) -> Piece {
    if (from < pieces.size() && pieces[from].KeepsNext) return {};
    while (from > 0 && !pieces[from - 1].KeepsNext) --from;
    if (from == 0 || pieces[from - 1].Title.empty()) return {};
    return SubHeading(canvas_, Format("%s, continued", pieces[from - 1].Title), width);
  };
  // How far a column of at most this height goes from a piece on, and how high it gets. At least one piece goes.
  const auto fill = [&](std::size_t from, double limit, double& height) {
    height = head.Height + again(from).Height;
    std::size_t end = from;
    while (end < pieces.size() && (end == from || height + pieces[end].Height <= limit)) height += pieces[end++].Height;
    std::size_t kept = end;
    while (end < pieces.size() && kept > from && pieces[kept - 1].KeepsNext) --kept;
    if (kept == from || kept == end) return end;
    for (; end > kept; --end) height -= pieces[end - 1].Height;
    return end;
  };
  const auto fits = [&](double limit) {
    std::size_t at = next;
    double height = 0;
    for (int column = 0; column < columns && at < pieces.size(); ++column) {
      at = fill(at, limit, height);
      if (height > limit) return false;
    }
    return at == pieces.size();
  };
  while (next < pieces.size()) {
    double first = head.Height + again(next).Height + pieces[next].Height;
    for (std::size_t i = next; i + 1 < pieces.size() && pieces[i].KeepsNext; ++i) first += pieces[i + 1].Height;
    const bool isTitleNext = next == 0 && title.Draw;
    if (!isFresh_ && first + (isTitleNext ? title.Height : 0) > Room()) NextPage();
    if (isTitleNext) Place(title);
    double limit = Room();
    if (columns > 1 && fits(limit)) {
      double low = 0;
      for (int i = 0; i < 12; ++i) {  // the least height that takes all that is left, to a fraction of a point
        const double middle = (low + limit) / 2;
        (fits(middle) ? limit : low) = middle;
      }
    }
    double highest = 0;
    for (int column = 0; column < columns && next < pieces.size(); ++column) {
      double height = 0;
      const std::size_t end = fill(next, limit, height);
      const double x = kLeftMargin + column * (width + kGutter);
      double y = y_;
      if (head.Draw) DrawAt(head, x, y);
      y += head.Height;
      if (const Piece told = again(next); told.Draw) {
        DrawAt(told, x, y);
        y += told.Height;
      }
      for (; next < end; ++next) {
        DrawAt(pieces[next], x, y);
        y += pieces[next].Height;
      }
      highest = std::max(highest, height);
    }
    y_ += highest;
    isFresh_ = false;
    if (next < pieces.size()) NextPage();
  }
}

}  // namespace veld
