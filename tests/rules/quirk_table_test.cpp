#include "rules/quirk_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace veld {
namespace {

const QuirkRecord& Row(int row) {
  return QuirkTable()[static_cast<std::size_t>(row)];
}

std::set<std::string> TableNames() {
  std::set<std::string> names;
  for (int row = 1; row <= kLastQuirk; ++row) names.emplace(Row(row).TableName);
  return names;
}

// The rolls 1..highest that no row of the table answers, as "13 14 15".
std::string UnansweredRolls(std::string_view table) {
  std::string rolls;
  const QuirkDie die = QuirkTableDie(table);
  for (int roll = die.Count; roll <= die.Sides * die.Count; ++roll) {
    const auto answers = [&](int row) { return Row(row).Low <= roll && roll <= Row(row).High; };
    if (!std::ranges::any_of(QuirkTableRows(table), answers)) rolls += std::to_string(roll) + " ";
  }
  return rolls;
}

// The rows that no roll can reach because the rows before them answer all of their range.
std::vector<int> UnreachableRows() {
  std::vector<int> rows;
  for (int row = 1; row <= kLastQuirk; ++row) {
    const std::string_view table = Row(row).TableName;
    const QuirkDie die = QuirkTableDie(table);
    if (die.Sides == 0) continue;
    bool reached = false;
    for (int roll = die.Count; roll <= die.Sides * die.Count; ++roll) reached |= QuirkRowOfRoll(table, roll) == row;
    if (!reached) rows.push_back(row);
  }
  return rows;
}

TEST(QuirkTable, EveryRowIsTold) {
  for (int row = 1; row <= kLastQuirk; ++row) {
    const QuirkRecord& record = Row(row);
    EXPECT_FALSE(record.Name.empty()) << row;
    EXPECT_FALSE(record.TableName.empty()) << row;
    EXPECT_FALSE(record.Source.empty()) << row;
    EXPECT_GE(record.MaxCount, 1) << row;
    EXPECT_TRUE(record.Kind >= kMinorQuirk && record.Kind <= kRefereeQuirk) << row;
    EXPECT_TRUE(record.Rolls == 0 || record.Kind == kSubTable) << row;
    EXPECT_TRUE(record.NextTable.empty() || record.Kind == kSubTable || record.Kind == kRefereeQuirk) << row;
  }
}

TEST(QuirkTable, BlankRowsMatchNothing) {
  for (int row : {0, kLastQuirk + 1, kQuirkRows - 1}) {
    EXPECT_TRUE(Row(row).Name.empty());
    EXPECT_EQ(Row(row).MaxCount, 0);
  }
  EXPECT_EQ(FindQuirkRow(""), 0);
  EXPECT_TRUE(QuirkTableRows("").empty());
  EXPECT_EQ(QuirkTableDie("").Sides, 0);
  EXPECT_EQ(QuirkRowOfRoll("", 1), 0);
}

TEST(QuirkTable, RollsWithoutARowAreOnlyTheKnownGaps) {
  const std::map<std::string, std::string> gaps = {
      {"HXA Magical Allergy Table", "71 72 73 74 75 76 77 78 79 80 "},
      {"WMA Weapon Prejudice Major", "13 14 15 16 17 18 19 20 "},
  };
  for (const std::string& table : TableNames()) {
    const auto gap = gaps.find(table);
    EXPECT_EQ(UnansweredRolls(table), gap == gaps.end() ? "" : gap->second) << table;
  }
}

TEST(QuirkTable, RowsThatNoRollReachesAreOnlyTheKnownSlips) {
  // Three stand behind rows of the same range, 248 has an empty range, and 18d5 ends before 596.
  EXPECT_EQ(UnreachableRows(), (std::vector<int>{25, 173, 244, 248, 596}));
}

TEST(QuirkTable, DiceFollowFromTheRows) {
  const auto die = [](std::string_view table) {
    const QuirkDie found = QuirkTableDie(table);
    return std::to_string(found.Count) + "d" + std::to_string(found.Sides);
  };
  EXPECT_EQ(die(kTable6B), "1d100");
  EXPECT_EQ(die("SWA Suspicious Mannerism Table"), "2d8");
  EXPECT_EQ(die("HXA MAgical Allergy Table"), "71d1");
  EXPECT_EQ(die(kTable6P), "18d5");
  EXPECT_EQ(die("SWA 6Q"), "0d0") << "its rows are only granted";
}

TEST(QuirkTable, NextTablesResolve) {
  const std::set<std::string> tables = TableNames();
  std::vector<int> leadNowhere;
  for (int row = 1; row <= kLastQuirk; ++row) {
    const QuirkRecord& record = Row(row);
    if (record.Kind != kSubTable && record.Kind != kRefereeQuirk) continue;
    if (!tables.contains(std::string(record.NextTable))) leadNowhere.push_back(row);
  }
  EXPECT_EQ(leadNowhere, (std::vector<int>{274, 504, 596}));
  for (const QuirkStartTable& start : kQuirkStartTables)
    EXPECT_EQ(QuirkTableDie(start.Table).Sides, 100) << start.Table;
  for (const QuirkTableLetter& letter : kQuirkTableLetters) {
    EXPECT_TRUE(tables.contains(std::string(letter.Table))) << letter.Letter;
    EXPECT_NE(letter.Table.find(letter.Letter), std::string_view::npos);
  }
}

TEST(QuirkTable, RowsOfATableShareItsBookAndTheIndexHoldsThemAll) {
  std::size_t rows = 0;
  for (const std::string& table : TableNames()) {
    const std::span<const int> found = QuirkTableRows(table);
    rows += found.size();
    EXPECT_TRUE(std::ranges::is_sorted(found));
    for (int row : found) {
      EXPECT_EQ(Row(row).TableName, table);
      if (row != 466) {  // "Bad Reputation" goes with another book than its group
        EXPECT_EQ(Row(row).Book, Row(found.front()).Book) << row;
      }
    }
  }
  EXPECT_EQ(rows, static_cast<std::size_t>(kLastQuirk));
}

TEST(QuirkTable, ExclusionsAnswerEachOther) {
  for (int row = 1; row <= kLastQuirk; ++row) {
    for (int excluded : Row(row).Excludes) {
      if (excluded == 0) continue;
      ASSERT_TRUE(excluded >= 1 && excluded <= kLastQuirk && excluded != row) << row;
      EXPECT_EQ(Row(excluded).ExcludedBy, row);
    }
  }
}

TEST(QuirkTable, NamesFitTheirFieldAndAreFound) {
  for (int row = 1; row <= kLastQuirk; ++row) {
    const std::string_view name = Row(row).Name;
    const int found = FindQuirkRow(name);
    EXPECT_TRUE(found == row || (found < row && Row(found).Name == name)) << row << " finds " << found;
    if (row == 149) continue;  // the long one, which is cut
    EXPECT_LT(name.size(), 100u) << row;
    EXPECT_TRUE(std::ranges::all_of(name, [](char c) { return c >= ' ' && c <= '~'; })) << row;
  }
  EXPECT_EQ(Row(149).Name.size(), 101u);
  EXPECT_EQ(Row(149).Name.back(), static_cast<char>(Row(149).BPCost));
  EXPECT_EQ(FindQuirkRow("Roll twice, ignoring this result."), 173) << "the first of several";
  EXPECT_EQ(QuirkRowOfRoll("HXA Magical Allergy Table", 75), 100) << "a roll in a gap";
}

}  // namespace
}  // namespace veld
