#include "terminal/field_keys.h"

#include <algorithm>

#include "terminal/cells.h"

namespace veld {

namespace {

FieldKey Insert(TypedText& typed, char32_t character, int limit) {
  std::string letter;
  AppendCharacter(letter, character);
  const std::size_t kept = typed.IsChosen ? 0 : typed.Text.size();
  if (limit > 0 && kept + letter.size() > static_cast<std::size_t>(limit)) return FieldKey::Refused;
  if (typed.IsChosen) typed = {};
  typed.Text.insert(typed.Cursor, letter);
  typed.Cursor += letter.size();
  return FieldKey::Typed;
}

FieldKey Clear(TypedText& typed) {
  typed = {};
  return FieldKey::Typed;
}

FieldKey Erase(TypedText& typed, std::size_t begin, std::size_t end) {
  if (begin == end) return FieldKey::Moved;
  typed.Text.erase(begin, end - begin);
  typed.Cursor = begin;
  return FieldKey::Typed;
}

FieldKey MoveTo(TypedText& typed, std::size_t cursor) {
  typed.Cursor = cursor;
  typed.IsChosen = false;
  return FieldKey::Moved;
}

/// The byte of a line's cell, or the line's end.
std::size_t ByteAtCell(std::string_view text, const TextLine& line, int cell) {
  std::size_t at = line.Begin;
  int passed = 0;
  while (at < line.End && passed < cell) passed += CellsOf(NextCharacter(text, at));
  return std::min(at, line.End);
}

}  // namespace

FieldKey ApplyFieldKey(TypedText& typed, const Key& key, int limit) {
  typed.Cursor = std::min(typed.Cursor, typed.Text.size());
  switch (key.Kind) {
    case KeyKind::Character:
      return key.IsAlt ? FieldKey::NotMine : Insert(typed, key.Character, limit);
    case KeyKind::ClearLine:
      return Clear(typed);
    case KeyKind::Backspace:
      if (typed.IsChosen) return Clear(typed);
      return Erase(typed, CharacterBefore(typed.Text, typed.Cursor), typed.Cursor);
    case KeyKind::Delete:
      if (typed.IsChosen) return Clear(typed);
      return Erase(typed, typed.Cursor, CharacterAfter(typed.Text, typed.Cursor));
    case KeyKind::Left:
      return MoveTo(typed, typed.IsChosen ? 0 : CharacterBefore(typed.Text, typed.Cursor));
    case KeyKind::Right:
      return MoveTo(typed, typed.IsChosen ? typed.Text.size() : CharacterAfter(typed.Text, typed.Cursor));
    case KeyKind::Home:
      return MoveTo(typed, 0);
    case KeyKind::End:
      return MoveTo(typed, typed.Text.size());
    default:
      return FieldKey::NotMine;
  }
}

std::vector<TextLine> BreakIntoLines(std::string_view text, int width) {
  std::vector<TextLine> lines{{}};
  std::size_t blankEnd = 0;  // after the last blank of the line; 0: none
  int cells = 0;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t from = at;
    const char32_t character = NextCharacter(text, at);
    if (character == U'\n') {
      lines.back().End = from;
      lines.push_back({at, at});
      blankEnd = 0;
      cells = 0;
      continue;
    }
    cells += CellsOf(character);
    if (cells > width && from > lines.back().Begin) {
      const std::size_t next = blankEnd > lines.back().Begin ? blankEnd : from;
      lines.back().End = next;
      lines.push_back({next, next});
      cells = CellsOf(text.substr(next, at - next));
    }
    if (character == U' ') blankEnd = at;
  }
  lines.back().End = text.size();
  return lines;
}

std::size_t LineOf(const std::vector<TextLine>& lines, std::size_t cursor) {
  std::size_t line = lines.size() - 1;
  while (line > 0 && lines[line].Begin > cursor) --line;
  return line;
}

FieldKey ApplyMultiLineKey(TypedText& typed, const Key& key, int limit, int width) {
  if (key.Kind == KeyKind::Enter) return Insert(typed, U'\n', limit);
  typed.Cursor = std::min(typed.Cursor, typed.Text.size());
  const std::vector<TextLine> lines = BreakIntoLines(typed.Text, width);
  const std::size_t line = LineOf(lines, typed.Cursor);
  const int cell = CellsOf(std::string_view(typed.Text).substr(lines[line].Begin, typed.Cursor - lines[line].Begin));
  switch (key.Kind) {
    case KeyKind::Up:
      return MoveTo(typed, line == 0 ? 0 : ByteAtCell(typed.Text, lines[line - 1], cell));
    case KeyKind::Down:
      return MoveTo(typed,
                    line + 1 == lines.size() ? typed.Text.size() : ByteAtCell(typed.Text, lines[line + 1], cell));
    case KeyKind::Home:
      return MoveTo(typed, lines[line].Begin);
    case KeyKind::End:
      return MoveTo(typed, lines[line].End);
    default:
      return ApplyFieldKey(typed, key, limit);
  }
}

}  // namespace veld
