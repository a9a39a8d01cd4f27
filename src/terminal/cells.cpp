#include "terminal/cells.h"

#include <cwchar>

namespace veld {

namespace {

bool IsContinuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

int LengthOf(unsigned char first) {
  if (first < 0xC0) return 1;
  return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

}  // namespace

char32_t NextCharacter(std::string_view text, std::size_t& at) {
  const auto first = static_cast<unsigned char>(text[at++]);
  const int length = LengthOf(first);
  if (length == 1) return first;
  char32_t character = first & (0xFFU >> (length + 1));
  std::size_t next = at;
  for (int i = 1; i < length; ++i, ++next) {
    if (next >= text.size() || !IsContinuation(text[next])) return first;
    character = (character << 6) | (static_cast<unsigned char>(text[next]) & 0x3FU);
  }
  at = next;
  return character;
}

std::size_t CharacterBefore(std::string_view text, std::size_t at) {
  if (at == 0) return 0;
  do {
    --at;
  } while (at > 0 && IsContinuation(text[at]));
  return at;
}

std::size_t CharacterAfter(std::string_view text, std::size_t at) {
  if (at < text.size()) NextCharacter(text, at);
  return at;
}

void AppendCharacter(std::string& text, char32_t character) {
  const auto put = [&](char32_t byte) { text += static_cast<char>(byte); };
  const auto rest = [&](int shift) { put(0x80 | ((character >> shift) & 0x3F)); };
  if (character < 0x80) return put(character);
  if (character < 0x800) {
    put(0xC0 | (character >> 6));
  } else if (character < 0x10000) {
    put(0xE0 | (character >> 12));
    rest(6);
  } else {
    put(0xF0 | (character >> 18));
    rest(12);
    rest(6);
  }
  rest(0);
}

int CellsOf(char32_t character) {
  if (character < 0x20) return 1;
  if (character < 0x7F) return 1;
  const int width = wcwidth(static_cast<wchar_t>(character));
  return width < 0 ? 1 : width;
}

int CellsOf(std::string_view text) {
  int cells = 0;
  for (std::size_t at = 0; at < text.size();) cells += CellsOf(NextCharacter(text, at));
  return cells;
}

std::u32string CellsFrom(std::string_view text, int left, int width, bool marksCut) {
  std::u32string shown;
  int cell = 0;  // of the text
  int used = 0;  // of the place
  for (std::size_t at = 0; at < text.size();) {
    char32_t character = NextCharacter(text, at);
    const int cells = CellsOf(character);
    if (character < 0x20 || (character >= 0x7F && wcwidth(static_cast<wchar_t>(character)) < 0)) character = U' ';
    const int from = cell;
    cell += cells;
    if (from < left) continue;
    if (used + cells > width) {
      if (!marksCut || shown.empty()) break;
      while (!shown.empty() && CellsOf(shown.back()) == 0) shown.pop_back();
      used -= shown.empty() ? 0 : CellsOf(shown.back());
      if (!shown.empty()) shown.pop_back();
      shown += U'>';
      ++used;
      break;
    }
    shown += character;
    used += cells;
  }
  if (used < width) shown.append(static_cast<std::size_t>(width - used), U' ');
  return shown;
}

}  // namespace veld
