#pragma once

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace veld {

/// One value to be formatted: an integer, a floating number or a text.
class FormatValue {
 public:
  enum class Kind { Integer, Decimal, Text };

  template <std::integral T>
  FormatValue(T value) : kind(Kind::Integer), integer(static_cast<std::int64_t>(value)) {}
  template <std::floating_point T>
  FormatValue(T value) : kind(Kind::Decimal), decimal(static_cast<double>(value)) {}
  template <typename T>
  requires std::convertible_to<const T&, std::string_view> FormatValue(const T& value)
      : kind(Kind::Text), text(value) {}

  Kind kind;
  std::int64_t integer = 0;
  double decimal = 0;
  std::string_view text;
};

std::string FormatValues(std::string_view pattern, std::initializer_list<FormatValue> values);

/// The game's texts are written with the patterns of C's printf: %i %d %u %s %c %g %f %x and %%, with flags, width and
/// precision. A text's width is counted in columns as it is printed, its precision in bytes of whole characters. Values
/// are converted to what the pattern asks for (a decimal under %i is truncated), a missing value prints nothing, and
/// numbers are always printed in the "C" locale.
template <typename... Values>
std::string Format(std::string_view pattern, const Values&... values) {
  return FormatValues(pattern, {FormatValue(values)...});
}

}  // namespace veld
