#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "terminal/screen.h"

namespace veld {

/// What a player has typed in a field and where the next letter goes.
struct TypedText {
  std::string Text;
  std::size_t Cursor = 0;  ///< a byte of Text
  bool IsChosen = false;   ///< all of it is marked: the next letter replaces it
};

enum class FieldKey : std::uint8_t {
  NotMine,  ///< a key that a field has no use for
  Moved,    ///< only the cursor has moved
  Typed,    ///< the text has changed
  Refused,  ///< the text is as long as it may be
};

/// Applies a key to a field of one line that holds at most `limit` bytes (0: any number).
FieldKey ApplyFieldKey(TypedText& typed, const Key& key, int limit);

/// A line of a text of several lines: where it begins and ends in the text.
struct TextLine {
  std::size_t Begin = 0;
  std::size_t End = 0;
};

/// Breaks a text at line ends, and at blanks where a line gets wider than `width` cells.
std::vector<TextLine> BreakIntoLines(std::string_view text, int width);
/// The line that the cursor stands in.
std::size_t LineOf(const std::vector<TextLine>& lines, std::size_t cursor);
/// As ApplyFieldKey, for a field of several lines: Enter begins a line, and the arrows go up and down.
FieldKey ApplyMultiLineKey(TypedText& typed, const Key& key, int limit, int width);

}  // namespace veld
