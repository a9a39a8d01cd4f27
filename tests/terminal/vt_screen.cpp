#include "vt_screen.h"

#include <algorithm>
#include <cstdlib>

#include "terminal/cells.h"

namespace veld::testing {

namespace {

/// The bytes of the escape sequence or the character that `bytes` begins with; 0 if it is not there whole.
std::size_t UnitLength(std::string_view bytes) {
  const auto first = static_cast<unsigned char>(bytes[0]);
  if (first >= 0xC0) {
    const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    return bytes.size() < length ? 0 : length;
  }
  if (first != 27) return 1;
  if (bytes.size() < 2) return 0;
  if (bytes[1] == '[') {
    const auto end = std::ranges::find_if(bytes.substr(2), [](char c) { return c >= 0x40 && c <= 0x7E; });
    return end == bytes.end() ? 0 : static_cast<std::size_t>(end - bytes.begin()) + 1;
  }
  if (bytes[1] != '(' && bytes[1] != ')') return 2;
  return bytes.size() < 3 ? 0 : 3;
}

char32_t LineLetter(char32_t letter) {
  constexpr std::u32string_view kSent = U"qxlkmj";
  const std::size_t place = kSent.find(letter);
  return place == kSent.npos ? letter : U"─│┌┐└┘"[place];
}

}  // namespace

VtScreen::VtScreen(int rows, int columns)
    : rows_(rows),
      columns_(columns),
      cells_(static_cast<std::size_t>(rows), std::u32string(static_cast<std::size_t>(columns), U' ')),
      bottom_(rows - 1) {}

char32_t VtScreen::At(int row, int column) const {
  return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

std::string VtScreen::Line(int row) const {
  std::string line;
  for (int column = 0; column < columns_; ++column) AppendCharacter(line, At(row, column));
  line.erase(line.find_last_not_of(' ') + 1);
  return line;
}

std::string VtScreen::Text() const {
  std::string text;
  for (int row = 0; row < rows_; ++row) text += Line(row) + "\n";
  return text;
}

void VtScreen::Feed(std::string_view bytes) {
  rest_ += bytes;
  std::size_t at = 0;
  while (at < rest_.size()) {
    const std::string_view left = std::string_view(rest_).substr(at);
    const std::size_t length = UnitLength(left);
    if (length == 0) break;
    const auto first = static_cast<unsigned char>(left[0]);
    std::size_t next = 0;
    if (first == 27) {
      Escape(left.substr(1, length - 1));
    } else if (first < 0x20) {
      Control(left[0]);
    } else {
      Put(NextCharacter(left, next));
    }
    at += length;
  }
  rest_.erase(0, at);
}

void VtScreen::Put(char32_t character) {
  if (isWrapPending_) {
    column_ = 0;
    LineFeed();
  }
  last_ = character;
  cells_[static_cast<std::size_t>(row_)][static_cast<std::size_t>(column_)] =
      drawsLines_ ? LineLetter(character) : character;
  isWrapPending_ = column_ == columns_ - 1;
  if (!isWrapPending_) ++column_;
}

void VtScreen::Control(char byte) {
  isWrapPending_ = false;
  if (byte == '\r') column_ = 0;
  if (byte == '\n') LineFeed();
  if (byte == '\b') column_ = std::max(column_ - 1, 0);
  if (byte == '\t') column_ = std::min((column_ / 8 + 1) * 8, columns_ - 1);
  if (byte == 0x0E || byte == 0x0F) drawsLines_ = byte == 0x0E;
}

void VtScreen::LineFeed() {
  isWrapPending_ = false;
  if (row_ == bottom_) {
    ScrollUp(top_, 1);
  } else {
    row_ = std::min(row_ + 1, rows_ - 1);
  }
}

void VtScreen::ScrollUp(int top, int lines) {
  for (; lines > 0; --lines) {
    cells_.erase(cells_.begin() + top);
    cells_.insert(cells_.begin() + bottom_, std::u32string(static_cast<std::size_t>(columns_), U' '));
  }
}

void VtScreen::ScrollDown(int top, int lines) {
  for (; lines > 0; --lines) {
    cells_.erase(cells_.begin() + bottom_);
    cells_.insert(cells_.begin() + top, std::u32string(static_cast<std::size_t>(columns_), U' '));
  }
}

void VtScreen::EraseLine(int row, int from, int to) {
  std::u32string& line = cells_[static_cast<std::size_t>(row)];
  for (int column = from; column < std::min(to, columns_); ++column) line[static_cast<std::size_t>(column)] = U' ';
}

void VtScreen::Escape(std::string_view sequence) {
  if (sequence[0] == '[') {
    return Sequence(sequence.back(), std::string(sequence.substr(1, sequence.size() - 2)));
  }
  if (sequence[0] == '(') drawsLines_ = sequence[1] == '0';
  if (sequence[0] == 'M') {
    if (row_ == top_) {
      ScrollDown(top_, 1);
    } else {
      row_ = std::max(row_ - 1, 0);
    }
  }
}

void VtScreen::Sequence(char final, const std::string& parameters) {
  if (parameters.starts_with('?') || parameters.starts_with('>')) return;
  const int first = std::atoi(parameters.c_str());
  const std::size_t semicolon = parameters.find(';');
  const int second = semicolon == std::string::npos ? 0 : std::atoi(parameters.c_str() + semicolon + 1);
  const int count = std::max(first, 1);
  std::u32string& line = cells_[static_cast<std::size_t>(row_)];
  const auto cell = static_cast<std::size_t>(column_);
  if (final != 'b' && final != 'm') isWrapPending_ = false;
  if (final == 'H' || final == 'f' || final == 'd') row_ = std::min(count, rows_) - 1;
  if (final == 'H' || final == 'f') column_ = std::clamp(second, 1, columns_) - 1;
  if (final == 'A') row_ = std::max(row_ - count, 0);
  if (final == 'B') row_ = std::min(row_ + count, rows_ - 1);
  if (final == 'C') column_ = std::min(column_ + count, columns_ - 1);
  if (final == 'D') column_ = std::max(column_ - count, 0);
  if (final == 'G') column_ = std::min(count, columns_) - 1;
  if (final == 'Z') column_ = (std::max(column_ - 1, 0) / 8) * 8;
  if (final == 'K') EraseLine(row_, first == 0 ? column_ : 0, first == 1 ? column_ + 1 : columns_);
  if (final == 'J' && first == 0) EraseLine(row_, column_, columns_);
  for (int row = first == 0 ? row_ + 1 : 0; final == 'J' && row < rows_; ++row) EraseLine(row, 0, columns_);
  if (final == 'X') EraseLine(row_, column_, column_ + count);
  if (final == 'P') line.erase(cell, static_cast<std::size_t>(count));
  if (final == '@') line.insert(cell, static_cast<std::size_t>(count), U' ');
  line.resize(static_cast<std::size_t>(columns_), U' ');
  if (final == 'L') ScrollDown(row_, std::min(count, rows_));
  if (final == 'M') ScrollUp(row_, std::min(count, rows_));
  if (final == 'S') ScrollUp(top_, std::min(count, rows_));
  if (final == 'T') ScrollDown(top_, std::min(count, rows_));
  for (int i = 0; final == 'b' && i < count; ++i) Put(last_);
  if (final != 'r') return;
  top_ = std::min(count, rows_) - 1;
  bottom_ = (second == 0 ? rows_ : std::min(second, rows_)) - 1;
  row_ = column_ = 0;
}

}  // namespace veld::testing
