#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace veld::testing {

/// Reads what a program sends to a terminal, and has the picture that a person would see: letters only, no colours.
class VtScreen {
 public:
  VtScreen(int rows, int columns);

  void Feed(std::string_view bytes);
  std::string Line(int row) const;  ///< without blanks at its end
  std::string Text() const;
  char32_t At(int row, int column) const;
  int Rows() const { return rows_; }
  int Columns() const { return columns_; }
  int CursorRow() const { return row_; }
  int CursorColumn() const { return column_; }

 private:
  void Put(char32_t character);
  void Control(char byte);
  void Escape(std::string_view sequence);
  void Sequence(char final, const std::string& parameters);
  void EraseLine(int row, int from, int to);
  void ScrollUp(int top, int lines);  // lines leave at the top of the region
  void ScrollDown(int top, int lines);
  void LineFeed();

  int rows_;
  int columns_;
  std::vector<std::u32string> cells_;
  int row_ = 0;
  int column_ = 0;
  int top_ = 0;  // of the region that scrolls
  int bottom_ = 0;
  bool isWrapPending_ = false;
  bool drawsLines_ = false;  // the character set of lines is in use
  char32_t last_ = U' ';
  std::string rest_;  // of a sequence or a character that has not come whole
};

}  // namespace veld::testing
