#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace veld {

/// Reads the compact notation of the rule books ("40+5d6", "8-18 3-17") while the program is compiled: a row of a table
/// that is not well formed does not build.
class NotationReader {
 public:
  constexpr explicit NotationReader(std::string_view notation) : rest(notation) {}

  /// The whole number, with an optional minus sign, that stands next.
  constexpr int Number() {
    const bool negative = Skip("-");
    int number = Digit();
    while (!rest.empty() && IsDigit(rest.front())) number = number * 10 + Digit();
    return negative ? -number : number;
  }

  /// The number with or without hundredths that stands next ("9", "16.2", "13.76").
  constexpr float Decimal() {
    double digits = Number();
    double scale = 1;
    if (Skip(".")) {
      do {
        digits = digits * 10 + Digit();
        scale *= 10;
      } while (!rest.empty() && IsDigit(rest.front()));
    }
    return static_cast<float>(digits / scale);
  }

  constexpr bool Skip(std::string_view text) {
    if (!rest.starts_with(text)) return false;
    rest.remove_prefix(text.size());
    return true;
  }

  /// Skips a word that ends at a blank, with the blank, or at the end.
  constexpr bool SkipWord(std::string_view word) {
    if (!rest.starts_with(word) || (rest.size() > word.size() && rest[word.size()] != ' ')) return false;
    rest.remove_prefix(word.size());
    Skip(" ");
    return true;
  }

  constexpr void Expect(std::string_view text) {
    if (!Skip(text)) throw "something else is expected here";
  }

  constexpr bool AtEnd() const { return rest.empty(); }

  static constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

 private:
  constexpr int Digit() {
    if (rest.empty() || !IsDigit(rest.front())) throw "a digit is expected here";
    const int digit = rest.front() - '0';
    rest.remove_prefix(1);
    return digit;
  }

  std::string_view rest;
};

/// A list of N numbers: "0 0 1 0 0 -1 -1".
template <std::size_t N>
struct NumberList {
  std::array<int, N> values{};

  consteval NumberList(const char* notation) {
    NotationReader reader(notation);
    for (std::size_t i = 0; i < N; ++i) {
      if (i > 0) reader.Expect(" ");
      values[i] = reader.Number();
    }
    if (!reader.AtEnd()) throw "more numbers than the list holds";
  }
};

/// A roll on a fixed start: "40+5d6".
struct DiceNotation {
  int base = 0;
  int count = 0;
  int sides = 0;

  consteval DiceNotation(const char* notation) {
    NotationReader reader(notation);
    base = reader.Number();
    reader.Expect("+");
    count = reader.Number();
    reader.Expect("d");
    sides = reader.Number();
    if (!reader.AtEnd()) throw "a roll ends with the sides of its dice";
  }
};

}  // namespace veld
