#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/form.h"

namespace veld {

/// How a text stands on the page.
enum class TextFace : std::uint8_t { Plain, Bold, Title };

struct PageSize {
  int Width = 0;
  int Height = 0;
  bool operator==(const PageSize&) const = default;
};

struct PageRect {
  int X = 0;
  int Y = 0;
  int Width = 0;
  int Height = 0;
  bool operator==(const PageRect&) const = default;
  int Right() const { return X + Width; }
  int Bottom() const { return Y + Height; }
};

/// How close the rows stand. Boxes are the controls of one line with an edge: buttons, edits, combos, progress bars.
struct PageDensity {
  int BoxLines = 1;    ///< lines of a row that holds a box; its texts stand on the last of them
  int TitleLines = 1;  ///< lines of a title; it stands on the first of them
  int BoxRise = 0;     ///< from the upper edge of a box to the baseline of its text
  int BoxHeight = 1;
  bool operator==(const PageDensity&) const = default;
};

/// What the lay-out must know of the front end, in its own units: pixels on a desktop, cells of characters in a
/// terminal (a pitch of 1, a baseline of 0, and paddings of a cell or two).
struct PageMetrics {
  std::function<int(std::string_view line, TextFace face)> TextWidth;  ///< marks before letters are already taken out
  int Pitch = 1;                                                       ///< distance of the rules: the height of a line
  int Baseline = 0;                                                    ///< of a line's text, from the top of the line
  int Character = 1;                                                   ///< what one character of a wanted width takes
  int MarginLeft = 0;
  int MarginTop = 0;
  int MarginRight = 0;
  int MarginBottom = 0;
  int ColumnGap = 1;      ///< between the columns of the grid
  int ControlGap = 1;     ///< between the controls of a cell
  int ButtonPadding = 0;  ///< on each side of the text
  int ButtonLeast = 0;    ///< the least width of a button
  int EditPadding = 0;    ///< on both sides together
  int ComboPadding = 0;   ///< on both sides together, with its arrow
  int ListPadding = 0;    ///< on both sides together, with its scroll bar
  int MarkWidth = 0;      ///< of a check or radio button's mark, with the gap before its text
  int MarkRise = 0;       ///< from the upper edge of a check or radio button to the baseline of its text
  int MarkHeight = 1;
  int FrameAbove = 0;         ///< how far the frame of a list reaches into the line above; that much a text leaves free
  int CornerWidth = 0;        ///< of the buttons in the page's upper right corner, as of the form's menu; 0: none
  bool IsCornerFlat = false;  ///< they are all mere words, which keep within their line
  bool WrapsResults = false;  ///< a result that is wider than its place goes on in the next line; else its end is cut
  PageDensity Roomy;
  PageDensity Dense;
};

/// A control on the page. Its first line of text stands on `Baseline`.
struct PlacedControl {
  std::size_t Control = 0;  ///< its place in Form::Controls()
  PageRect Area;
  int Baseline = 0;
  int Lines = 1;  ///< lines of text that it shows
  std::vector<std::string>
      Wrapped;           ///< Title, Heading, Label, Result, Text of several lines: its text broken into lines
  bool Scrolls = false;  ///< Text: has more lines than it shows
};

struct PageLayout {
  PageSize Page;  ///< the page as it is laid out: at least what it needs, else what is available
  bool IsRoomy = true;
  std::vector<PlacedControl> Controls;  ///< the visible ones, in the order of the form
  PageRect Corner;                      ///< of its buttons, if the metrics ask for them
};

/// The size at which every control of the form has the room it wants, held to `limit` as far as lists and texts can
/// give room up.
PageSize NaturalPageSize(const Form& form, const PageMetrics& metrics, PageSize limit);

/// Places every visible control of the form so that the baseline of each line of text sits on a rule of the page. Rows
/// stand roomy when that fits `available`, else densely. What is available beyond the natural size goes to lists and
/// texts, and what is missing is taken from them. Where that is not enough, a row of several controls goes on in the
/// next line: a button is never cut, and what a label names stays beside it. A page that is still too big keeps its
/// size, and must be scrolled.
PageLayout LayOutPage(const Form& form, const PageMetrics& metrics, PageSize available);

/// The page's y of rule `line` (0 is the first): text of that line stands above it.
inline int RuleY(const PageMetrics& metrics, int line) {
  return metrics.MarginTop + (line + 1) * metrics.Pitch - 1;
}

}  // namespace veld
