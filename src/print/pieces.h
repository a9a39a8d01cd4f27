#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "print/pdf_canvas.h"

namespace veld {

// What the pages are put together of: pieces that know their height before they are drawn, so that whatever is placed
// is placed whole. Measures are points.

/// How something is drawn, given its upper left corner. Copies share it.
class Drawing {
 public:
  Drawing() = default;
  template <std::invocable<double, double> Act>
  Drawing(Act act) : act_(std::make_shared<const std::function<void(double, double)>>(std::move(act))) {}
  void operator()(double x, double y) const { (*act_)(x, y); }
  explicit operator bool() const { return act_ != nullptr; }

 private:
  std::shared_ptr<const std::function<void(double, double)>> act_;
};

struct Piece {
  double Height = 0;
  Drawing Draw = {};
  bool KeepsNext = false;  ///< is not to be the last in a column or on a page
  std::string Title = {};  ///< of a subheading: said again over a column that goes on with what stands under it
};

inline constexpr double kGutter = 10;       ///< between what stands side by side
inline constexpr double kRowHeight = 12.5;  ///< the least of a row: enough for a pencil

// Three sizes of type.
inline constexpr double kSmallSize = 6.2;
inline constexpr double kTextSize = 7.5;
inline constexpr double kNumberSize = 12;

/// Nothing, of a height.
Piece Space(double height);

/// Pieces one above the other, or side by side with their left edges at the offsets.
Piece Stack(std::vector<Piece> pieces);
Piece Beside(std::vector<std::pair<double, Piece>> pieces);

/// "Thief abilities" of "Thief Abilities", as the pages' own titles are written.
std::string SentenceCase(std::string_view title);

/// A section's title, blue and bold over a line.
Piece Heading(PdfCanvas& canvas, std::string_view title, double width);
/// A smaller title inside a section.
Piece SubHeading(PdfCanvas& canvas, std::string_view title, double width);
/// A line of small print.
Piece Remark(PdfCanvas& canvas, std::string_view text, double width);

/// A value over a line, with its label small above it. An empty value leaves the line to the pencil.
Piece Field(PdfCanvas& canvas, std::string_view label, std::string_view value, double width, bool isBold = false);
/// A box with a big value, or with room for one, and its label beneath.
Piece NumberBox(PdfCanvas& canvas, std::string_view label, std::string_view value, double width);
/// Boxes to tick, in fives.
Piece TickBoxes(PdfCanvas& canvas, int count, double width, double size = 6.5);
/// Empty lines to write on.
Piece RuledLine(PdfCanvas& canvas, double width, double height = kRowHeight + 3);

/// A column of a table: its share of the width in any unit.
struct TableColumn {
  std::string_view Title;
  double Share = 1;
  Align Side = Align::Center;
  bool IsBold = false;
  Ink Color = Ink::Blue;
};

/// A table's columns on a width.
class TableShape {
 public:
  /// Of a size below the usual all texts wrap; else those that are a little too wide shrink.
  TableShape(PdfCanvas& canvas, std::vector<TableColumn> columns, double width, double size = kTextSize);
  /// Marks a column, counted from 0, with a wash; -1 for none.
  void Mark(int column) { marked_ = column; }
  Piece Head() const;
  /// A row; cells that are missing stay empty for the pencil. Texts wrap in their cells.
  Piece Row(const std::vector<std::string>& cells) const;
  double Width() const { return width_; }
  /// Where a column begins, and its width.
  std::pair<double, double> Column(std::size_t column) const { return {places_[column].X, places_[column].Width}; }

 private:
  struct Place {
    double X;
    double Width;
  };
  Piece Cells(const std::vector<LaidText>& cells, bool isHead) const;

  PdfCanvas& canvas_;
  std::vector<TableColumn> columns_;
  std::vector<Place> places_;
  double width_;
  double size_;
  int marked_ = -1;
};

/// Where a page's running head stands: its upper left corner and width, and where the page number ends.
struct HeadPlace {
  double Top;
  double Left;
  double Width;
  double Right;
};

/// Where the next piece goes. Begins pages, each with a running head and its number. All is laid out first and drawn at
/// the end, when it is known how many pages there are.
class PageFlow {
 public:
  PageFlow(PdfCanvas& canvas, std::string runningHead);
  PageFlow(const PageFlow&) = delete;
  PageFlow& operator=(const PageFlow&) = delete;

  /// Draws all pages.
  void Finish();

  PdfCanvas& Canvas() { return canvas_; }
  double Left() const;
  double Width() const;
  /// What is left of the page.
  double Room() const;

  void NextPage();
  /// The same with a running head of another place, of one line, for what takes the whole sheet.
  void NextPage(const HeadPlace& place);
  /// Draws a piece somewhere on the page.
  void DrawAt(const Piece& piece, double x, double y) { drawings_.push_back({piece.Draw, x, y}); }
  /// Places a piece, on the next page if it does not fit on this one.
  void Place(const Piece& piece, double gap = 0);
  /// Places pieces in columns of one width, page after page, as evenly as they go; `head` stands over each column,
  /// `title` once over all. The columns of a page that is not the last are full. A piece that keeps the next goes with
  /// it, and the title with the first. A column that begins in the midst of what a subheading leads tells so.
  void PlaceInColumns(std::span<const Piece> pieces, int columns, const Piece& head = {}, const Piece& title = {});
  double ColumnWidth(int columns) const { return (Width() - (columns - 1) * kGutter) / columns; }

 private:
  struct PlacedDrawing {
    Drawing Draw;  ///< none: the next page
    double X;
    double Y;
  };

  HeadPlace Head() const;
  void DrawHead(const HeadPlace& place, bool isOneLine = false);
  double Bottom() const;

  PdfCanvas& canvas_;
  std::string head_;
  std::vector<PlacedDrawing> drawings_;
  int page_ = 1;  ///< in the end how many there are
  double y_ = 0;
  bool isFresh_ = true;  ///< nothing stands on the page yet
};

}  // namespace veld
