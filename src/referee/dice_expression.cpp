#include "referee/dice_expression.h"

#include <algorithm>
#include <string>

#include "text/numbers.h"

namespace veld {

namespace {

/// Takes the digits off the front of `rest`; nothing if there are none or their number is above `most`.
std::optional<int> TakeNumber(std::string_view& rest, std::int64_t most) {
  const std::size_t length = std::min(rest.find_first_not_of("0123456789"), rest.size());
  const std::int64_t number = ReadNumberPrefix(rest.substr(0, length));
  rest.remove_prefix(length);
  if (length == 0 || number > most) return std::nullopt;
  return static_cast<int>(number);
}

bool TakeLetter(std::string_view& rest, char letter) {
  if (!rest.starts_with(letter)) return false;
  rest.remove_prefix(1);
  return true;
}

std::string Compact(std::string_view text) {
  std::string compact;
  for (const char c : text) {
    if (c != ' ' && c != '\t') compact += c == 'D' ? 'd' : c == 'P' ? 'p' : c;
  }
  return compact;
}

}  // namespace

std::optional<DiceRow> ReadDiceExpression(std::string_view text) {
  const std::string compact = Compact(text);
  std::string_view rest = compact;
  const auto times = rest.starts_with('d') ? std::optional(1) : TakeNumber(rest, kMostRowDice);
  if (!times || *times < 1 || !TakeLetter(rest, 'd')) return std::nullopt;
  const auto sides = TakeNumber(rest, kLargestEntry);
  if (!sides || *sides < 1) return std::nullopt;
  DiceRow row{.Times = *times, .Sides = *sides};
  row.Penetrates = TakeLetter(rest, 'p');
  if (rest.empty()) return row;
  const bool isLess = rest.front() == '-';
  if (!isLess && rest.front() != '+') return std::nullopt;
  rest.remove_prefix(1);
  const auto modifier = TakeNumber(rest, kLargestEntry);
  if (!modifier || !rest.empty()) return std::nullopt;
  row.ModPerRoll = isLess ? -*modifier : *modifier;
  return row;
}

}  // namespace veld
