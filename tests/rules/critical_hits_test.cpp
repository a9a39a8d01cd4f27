#include "rules/critical_hit_table.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace veld {
namespace {

std::string Hit(int damageType, int severity, int roll) {
  return std::string(CriticalHitResult(damageType, severity, roll).View());
}

constexpr auto kNegated = "Severity level below 1; Critical Hit negated";
constexpr auto kError = "Error, incomplete data in program";

TEST(CriticalHits, RollAndSeverityOutsideTheTable) {
  EXPECT_EQ(Hit(0, 1, 0), "Foot, top: 1");
  EXPECT_EQ(Hit(0, 1, -1), kError);
  EXPECT_TRUE(Hit(3, 24, 10000).starts_with("Head, top: "));
  EXPECT_EQ(Hit(3, 24, 10001), kError);
  EXPECT_EQ(Hit(0, 5, 0), kError) << "this group begins at 1";
  EXPECT_TRUE(Hit(0, 5, 1).starts_with("Foot, top: "));
  EXPECT_TRUE(Hit(1, 5, 0).starts_with("Foot, top: "));
  EXPECT_EQ(Hit(1, 99, 150), Hit(1, 24, 150));
  EXPECT_NE(Hit(1, 24, 150), Hit(1, 23, 150));
  for (int roll : {-5, 0, 77777}) EXPECT_EQ(Hit(0, 0, roll), kNegated);
  EXPECT_EQ(Hit(-1, 1, 1), kError);
  EXPECT_EQ(Hit(4, 1, 1), kError);
}

/// Each row is found by both ends of its band, and no place's ladder is a copy of another, of this type or any.
TEST(CriticalHits, RowsFollowEachOtherAndFillEachGroup) {
  std::map<std::pair<int, std::string>, std::string> ladders;
  int next = 0;
  for (int row = 0; row < kCriticalHitRows; ++row) {
    const CriticalHitRecord record = CriticalHitRow(row);
    ASSERT_EQ(record.DamageType * 24 + record.Severity - 1, row / 50);
    if (row % 50 == 0) next = row == 4 * 50 ? 1 : 0;
    ASSERT_EQ(record.Low, next) << row;
    next = record.High + 1;
    const std::string text(record.Result.View());
    ASSERT_EQ(Hit(record.DamageType, record.Severity, record.Low), text);
    ASSERT_EQ(Hit(record.DamageType, record.Severity, record.High), text);
    const auto colon = text.find(": ");
    ladders[{record.DamageType, text.substr(0, colon)}] += text.substr(colon) + " | ";
  }
  std::set<std::string> different;
  for (const auto& [place, ladder] : ladders) different.insert(ladder);
  EXPECT_EQ(different.size(), 200U);
  EXPECT_LT(CriticalHitRow(-1).High, CriticalHitRow(kCriticalHitRows).Low);
}

/// The line of the list that begins with an effect's letters, or "numeral".
std::string Expected(const std::string& effect) {
  const std::string letters = effect.substr(0, effect.find_first_of("0123456789"));
  if (letters.empty()) return "numeral X";
  return letters == "m" || letters == effect ? effect : letters + "X";
}

TEST(CriticalHits, EachEffectHasItsLineOfTheNotation) {
  std::set<std::size_t> used;
  for (int row = 0; row < kCriticalHitRows; ++row) {
    const CriticalHitRecord record = CriticalHitRow(row);
    std::string rest(record.Result.View());
    const auto lines = NotationLinesOf(rest);
    used.insert(lines.begin(), lines.end());
    rest = rest.substr(rest.find(": ") + 2) + ", ";
    for (std::size_t line : lines) {
      const std::string explained = Expected(rest.substr(0, rest.find(", "))) + " ";
      EXPECT_TRUE(kCriticalHitNotation[line].starts_with(explained)) << record.Result.View() << " by " << line;
      rest.erase(0, rest.find(", ") + 2);
    }
    EXPECT_TRUE(rest.empty() || (lines.empty() && record.Severity >= 22)) << record.Result.View();
  }
  EXPECT_EQ(used.size(), 33U) << "all lines but the heading";
  EXPECT_TRUE(NotationLinesOf(kError).empty());
  EXPECT_TRUE(NotationLinesOf(kNegated).empty());
}

}  // namespace
}  // namespace veld
