#include "text/format.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "text/columns.h"
#include "text/utf8.h"

namespace veld {

namespace {

struct Directive {
  bool leftAligned = false;
  bool zeroFilled = false;
  bool signShown = false;
  bool blankForPlus = false;
  std::size_t width = 0;
  int precision = -1;
  char conversion = 0;
};

constexpr std::size_t kWidestField = 1000;

std::size_t ReadWidth(std::string_view pattern, std::size_t& at) {
  std::size_t width = 0;
  for (; at < pattern.size() && pattern[at] >= '0' && pattern[at] <= '9'; ++at) {
    width = std::min(kWidestField, width * 10 + static_cast<std::size_t>(pattern[at] - '0'));
  }
  return width;
}

/// Reads what follows a '%' and leaves `at` behind its conversion letter.
Directive ReadDirective(std::string_view pattern, std::size_t& at) {
  Directive directive;
  for (; at < pattern.size(); ++at) {
    const char flag = pattern[at];
    if (flag == '-') {
      directive.leftAligned = true;
    } else if (flag == '0') {
      directive.zeroFilled = true;
    } else if (flag == '+') {
      directive.signShown = true;
    } else if (flag == ' ') {
      directive.blankForPlus = true;
    } else {
      break;
    }
  }
  directive.width = ReadWidth(pattern, at);
  if (at < pattern.size() && pattern[at] == '.') {
    ++at;
    directive.precision = static_cast<int>(ReadWidth(pattern, at));
  }
  if (at < pattern.size()) directive.conversion = pattern[at++];
  return directive;
}

std::int64_t AsInteger(const FormatValue& value) {
  if (value.kind != FormatValue::Kind::Decimal) return value.integer;
  constexpr double kBound = 9.2e18;
  return std::isnan(value.decimal) ? 0 : static_cast<std::int64_t>(std::min(kBound, std::max(-kBound, value.decimal)));
}

double AsDecimal(const FormatValue& value) {
  return value.kind == FormatValue::Kind::Decimal ? value.decimal : static_cast<double>(value.integer);
}

/// A number's digits, without its sign.
std::string Digits(const Directive& directive, const FormatValue& value, bool& negative) {
  std::array<char, 512> buffer;
  std::to_chars_result result{};
  if (directive.conversion == 'g' || directive.conversion == 'f') {
    const double number = AsDecimal(value);
    negative = std::signbit(number);
    const auto form = directive.conversion == 'g' ? std::chars_format::general : std::chars_format::fixed;
    result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(number), form,
                           std::min(directive.precision < 0 ? 6 : directive.precision, 100));
  } else {
    const std::int64_t number = AsInteger(value);
    negative = number < 0 && directive.conversion != 'x';
    const auto magnitude = negative ? 0 - static_cast<std::uint64_t>(number) : static_cast<std::uint64_t>(number);
    result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, directive.conversion == 'x' ? 16 : 10);
  }
  return {buffer.data(), result.ptr};
}

std::string Converted(const Directive& directive, const FormatValue& value) {
  if (directive.conversion == 's') {
    if (value.kind == FormatValue::Kind::Integer) return Format("%i", value.integer);
    if (value.kind == FormatValue::Kind::Decimal) return Format("%g", value.decimal);
    return std::string(directive.precision < 0 ? value.text
                                               : CutToBytes(value.text, static_cast<std::size_t>(directive.precision)));
  }
  if (directive.conversion == 'c') return std::string(1, static_cast<char>(AsInteger(value)));
  bool negative = false;
  std::string digits = Digits(directive, value, negative);
  const std::string sign = negative ? "-" : directive.signShown ? "+" : directive.blankForPlus ? " " : "";
  if (directive.zeroFilled && !directive.leftAligned && sign.size() + digits.size() < directive.width) {
    digits.insert(0, directive.width - sign.size() - digits.size(), '0');
  }
  return sign + digits;
}

}  // namespace

std::string FormatValues(std::string_view pattern, std::initializer_list<FormatValue> values) {
  std::string out;
  out.reserve(pattern.size() + 32);
  auto next = values.begin();
  for (std::size_t at = 0; at < pattern.size();) {
    const std::size_t percent = std::min(pattern.find('%', at), pattern.size());
    out += pattern.substr(at, percent - at);
    at = percent + 1;
    if (percent == pattern.size()) break;
    const Directive directive = ReadDirective(pattern, at);
    if (directive.conversion == '%') {
      out += '%';
    } else if (next != values.end()) {
      const std::string field = Converted(directive, *next++);
      const std::size_t columns = directive.width == 0 ? 0 : static_cast<std::size_t>(ColumnsOf(field));
      const std::size_t fill = columns < directive.width ? directive.width - columns : 0;
      if (!directive.leftAligned) out.append(fill, ' ');
      out += field;
      if (directive.leftAligned) out.append(fill, ' ');
    }
  }
  return out;
}

}  // namespace veld
