#include "text/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace veld {

namespace {

std::string_view WithoutLeadingBlanks(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t\r\n");
  return start == std::string_view::npos ? std::string_view{} : text.substr(start);
}

}  // namespace

std::int64_t ReadNumberPrefix(std::string_view text) {
  text = WithoutLeadingBlanks(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc::result_out_of_range) {
    return text.starts_with('-') ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
  }
  return error == std::errc{} ? number : 0;
}

double ReadDecimalPrefix(std::string_view text) {
  text = WithoutLeadingBlanks(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  return error == std::errc{} && std::isfinite(number) ? number : 0;
}

std::int64_t ReadEntry(std::string_view text, std::int64_t largest) {
  return std::clamp<std::int64_t>(ReadNumberPrefix(text), 0, largest);
}

int TruncateToInt(double value) {
  constexpr double kLowest = std::numeric_limits<int>::min();
  constexpr double kHighest = std::numeric_limits<int>::max();
  if (std::isnan(value)) return 0;
  return static_cast<int>(std::clamp(value, kLowest, kHighest));
}

int SaturateToInt(std::int64_t value) {
  constexpr std::int64_t kLowest = std::numeric_limits<int>::min();
  constexpr std::int64_t kHighest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(value, kLowest, kHighest));
}

}  // namespace veld
