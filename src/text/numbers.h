#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace veld {

/// The largest number that a number field of a dialog yields.
inline constexpr std::int64_t kLargestEntry = 999'999;

/// The number that `text` begins with, after blanks: digits with an optional sign; 0 if there is none. Saturates at the
/// ends of 64 bits.
std::int64_t ReadNumberPrefix(std::string_view text);

/// The decimal number that `text` begins with ("12.50" gives 12.5), after blanks; 0 if there is none. Always reads a
/// decimal point, whatever the desktop's language is.
double ReadDecimalPrefix(std::string_view text);

/// What a player typed into a number field: its number held to 0..`largest`.
std::int64_t ReadEntry(std::string_view text, std::int64_t largest = kLargestEntry);

/// `value` cut toward zero and held to the range of an int; 0 if it is not a number.
int TruncateToInt(double value);

/// `value` held to the range of an int.
int SaturateToInt(std::int64_t value);

/// a + b held to the range of an int.
inline int AddSaturated(int a, int b) { return SaturateToInt(std::int64_t{a} + b); }

}  // namespace veld
