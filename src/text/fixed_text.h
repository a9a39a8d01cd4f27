#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "text/utf8.h"

namespace veld {

/// A text field of N bytes, terminator included: what character files and side files hold.
/// Assignment cuts at N-1 bytes on a whole UTF-8 character and clears the rest of the field; View() stops at the first
/// zero byte or at N, so that bytes from a file without a terminator are never read past. Comparison is by bytes.
template <std::size_t N>
struct FixedText {
  static_assert(N > 0);
  static constexpr std::size_t kWidth = N;

  char bytes[N] = {};

  constexpr FixedText() = default;
  FixedText(std::string_view text) { Assign(text); }  // implicit: a text field is assigned like a text
  FixedText(const char* text) { Assign(text); }

  FixedText& operator=(std::string_view text) {
    Assign(text);
    return *this;
  }
  FixedText& operator=(const char* text) { return *this = std::string_view(text); }

  std::string_view View() const { return {bytes, Length()}; }
  operator std::string_view() const { return View(); }
  bool Empty() const { return bytes[0] == '\0'; }
  void Clear() { std::memset(bytes, 0, N); }

  std::size_t Length() const {
    const void* end = std::memchr(bytes, 0, N);
    return end ? static_cast<std::size_t>(static_cast<const char*>(end) - bytes) : N;
  }

  friend bool operator==(const FixedText& a, std::string_view b) { return a.View() == b; }
  friend bool operator==(const FixedText& a, const char* b) { return a.View() == b; }
  friend bool operator==(const FixedText& a, const FixedText& b) { return a.View() == b.View(); }

 private:
  void Assign(std::string_view text) {
    const std::string_view kept = CutToBytes(text.substr(0, text.find('\0')), N - 1);
    char cut[N] = {};  // the text may be a part of this very field
    std::copy(kept.begin(), kept.end(), cut);  // not memcpy: an empty text may have no bytes to point at
    std::memcpy(bytes, cut, N);
  }
};

}  // namespace veld
