#include "text/utf8.h"

#include <algorithm>

namespace veld {

namespace {

unsigned char Byte(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]);
}

bool IsContinuation(unsigned char byte) {
  return (byte & 0xC0) == 0x80;
}

/// Bytes of the well-formed UTF-8 character at `at`, or 0 if there is none.
std::size_t CharacterLength(std::string_view text, std::size_t at) {
  const unsigned char lead = Byte(text, at);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || at + length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(Byte(text, at + i))) return 0;
  }
  const unsigned char second = Byte(text, at + 1);
  const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
  const bool surrogate = lead == 0xED && second > 0x9F;
  const bool beyondUnicode = lead == 0xF4 && second > 0x8F;
  return overlong || surrogate || beyondUnicode ? 0 : length;
}

}  // namespace

std::string_view CutToBytes(std::string_view text, std::size_t limit) {
  if (text.size() <= limit) return text;
  std::size_t end = limit;
  // Step back over a character that the limit cuts; more than three bytes back it was no UTF-8 and is cut where it is.
  for (std::size_t back = 0; back < 4 && end > 0 && IsContinuation(Byte(text, end)); ++back) --end;
  if (CharacterLength(text, end) == 0) end = limit;
  return text.substr(0, end);
}

bool IsUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = CharacterLength(text, at);
    if (length == 0) return false;
    at += length;
  }
  return true;
}

char32_t TakeCharacter(std::string_view text, std::size_t& at) {
  const std::size_t length = CharacterLength(text, at);
  const unsigned char lead = Byte(text, at++);
  if (length < 2) return lead;
  char32_t character = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) character = (character << 6) | (Byte(text, at++) & 0x3FU);
  return character;
}

std::string DisplayText(std::string_view text) {
  // Nearly every text is plain, and lists hold hundreds of them.
  bool isPlain = true;
  for (const char c : text) isPlain = isPlain && c >= 0x20 && c < 0x7F;
  if (isPlain) return std::string(text);
  const auto isHidden = [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && c != '\t' && c != '\n' && c != '\r') || byte == 0x7F;
  };
  text = text.substr(0, static_cast<std::size_t>(std::find_if(text.begin(), text.end(), isHidden) - text.begin()));
  if (IsUtf8(text)) return std::string(text);
  std::string shown;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      shown += c;
    } else {
      shown += static_cast<char>(0xC0 | (byte >> 6));
      shown += static_cast<char>(0x80 | (byte & 0x3F));
    }
  }
  return shown;
}

}  // namespace veld
