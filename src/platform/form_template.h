#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace veld {

enum class ControlKind : std::uint8_t {
  Title,      ///< the heading of the page
  Heading,    ///< a bold caption over the rows below it
  Label,      ///< a text of the form; it names the control that follows it in its row
  Result,     ///< what the character has, in ink; changes while the form is open
  Text,       ///< several lines to read (help, a message)
  Edit,       ///< one line to type in
  Number,     ///< one line to type a number in
  MultiLine,  ///< several lines to type in
  Button,
  List,
  Combo,
  Check,
  Radio,      ///< radio buttons of one Group exclude each other
  Progress,   ///< Number 0..100
};

enum class ButtonRole : std::uint8_t {
  Plain,
  Default,  ///< pressed by Enter
  Cancel,   ///< pressed by Escape and by the close box
  Both,     ///< the only button of a notice: Enter, Escape and the close box
};

constexpr bool IsDefault(ButtonRole role) {
  return role == ButtonRole::Default || role == ButtonRole::Both;
}
constexpr bool IsCancel(ButtonRole role) {
  return role == ButtonRole::Cancel || role == ButtonRole::Both;
}

/// A control of a form as data. Its place is a cell of the form's grid; controls with the same row and column stand
/// side by side in that cell, in the order of the template (a row of buttons is one cell, and runs on over the empty
/// cells to its right). A row number left out is a blank line.
struct ControlTemplate {
  ControlKind Kind = ControlKind::Label;
  int Id = 0;             ///< 0: nobody reads or changes it
  int Row = 0;
  int Column = 0;
  std::string_view Text = {};  ///< Label, Button, Check, Radio: '&' stands before the letter that reaches it
  int Width = 0;          ///< wanted width in characters; 0: what its text needs
  int Lines = 1;          ///< wanted height in lines; Text: 0 for as many as its text needs
  int RowSpan = 1;
  int ColumnSpan = 1;
  ButtonRole Role = ButtonRole::Plain;
  int Limit = 0;          ///< Edit, MultiLine: most bytes that can be typed; 0: no limit
  int Group = 0;          ///< Radio
  int EnterPresses = 0;   ///< Edit, Number, List, Combo: the button that Enter presses here; 0: the default one
  int Searches = 0;       ///< Edit: the list or combo that it searches, which Up and Down lead to
  bool IsReadOnly = false;  ///< Edit: a long result in a box, to be read to its end; nothing can be typed in it
  bool Enabled = true;
  bool Visible = true;
};

/// A dialog as data.
struct FormTemplate {
  std::string_view Name;   ///< as the dialog is known in the game's steps: "StepThree"
  std::string_view Title;  ///< of its window
  std::span<const ControlTemplate> Controls;
  /// What F1 shows: what this step is in the game, what to do and what it costs. Empty for messages alone, which
  /// explain themselves; a template that leaves it out does not build.
  std::string_view Help;
};

// Short ways to write the rows of a template. Place first, then what it is.

constexpr ControlTemplate TitleAt(int row, int column, std::string_view text, int columnSpan = 1) {
  return {.Kind = ControlKind::Title, .Row = row, .Column = column, .Text = text, .ColumnSpan = columnSpan};
}
constexpr ControlTemplate HeadingAt(int row, int column, std::string_view text, int columnSpan = 1) {
  return {.Kind = ControlKind::Heading, .Row = row, .Column = column, .Text = text, .ColumnSpan = columnSpan};
}
constexpr ControlTemplate LabelAt(int row, int column, std::string_view text, int columnSpan = 1) {
  return {.Kind = ControlKind::Label, .Row = row, .Column = column, .Text = text, .ColumnSpan = columnSpan};
}
constexpr ControlTemplate ResultAt(int row, int column, int id, int width, std::string_view text = {}) {
  return {.Kind = ControlKind::Result, .Id = id, .Row = row, .Column = column, .Text = text, .Width = width};
}
constexpr ControlTemplate ButtonAt(int row, int column, int id, std::string_view text,
                                   ButtonRole role = ButtonRole::Plain) {
  return {.Kind = ControlKind::Button, .Id = id, .Row = row, .Column = column, .Text = text, .Role = role};
}
constexpr ControlTemplate CheckAt(int row, int column, int id, std::string_view text, int columnSpan = 1) {
  return {.Kind = ControlKind::Check, .Id = id, .Row = row, .Column = column, .Text = text, .ColumnSpan = columnSpan};
}
constexpr ControlTemplate EditAt(int row, int column, int id, int width, int limit = 0) {
  return {.Kind = ControlKind::Edit, .Id = id, .Row = row, .Column = column, .Width = width, .Limit = limit};
}
constexpr ControlTemplate SearchAt(int row, int column, int id, int list, int width, int limit = 0) {
  return {.Kind = ControlKind::Edit,
          .Id = id,
          .Row = row,
          .Column = column,
          .Width = width,
          .Limit = limit,
          .Searches = list};
}
constexpr ControlTemplate NumberAt(int row, int column, int id, int width = 8) {
  return {.Kind = ControlKind::Number, .Id = id, .Row = row, .Column = column, .Width = width};
}
constexpr ControlTemplate ComboAt(int row, int column, int id, int width) {
  return {.Kind = ControlKind::Combo, .Id = id, .Row = row, .Column = column, .Width = width};
}
constexpr ControlTemplate ListAt(int row, int column, int id, int width, int lines, int rowSpan = 1) {
  return {.Kind = ControlKind::List,
          .Id = id,
          .Row = row,
          .Column = column,
          .Width = width,
          .Lines = lines,
          .RowSpan = rowSpan};
}
constexpr ControlTemplate TextAt(int row, int column, int id, std::string_view text, int width, int lines,
                                 int rowSpan = 1, int columnSpan = 1) {
  return {.Kind = ControlKind::Text,
          .Id = id,
          .Row = row,
          .Column = column,
          .Text = text,
          .Width = width,
          .Lines = lines,
          .RowSpan = rowSpan,
          .ColumnSpan = columnSpan};
}

}  // namespace veld
