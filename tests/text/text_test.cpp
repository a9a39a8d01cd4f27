#include <gtest/gtest.h>

#include <limits>

#include "text/fixed_text.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/row_runs.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {
namespace {

TEST(FixedTextTest, CutsOnWholeCharactersAndClearsTheRest) {
  FixedText<6> text = "abcdefgh";
  EXPECT_EQ(text.View(), "abcde");
  text = "abcd\xC3\xA9";  // the e with an accent would end in the terminator's place
  EXPECT_EQ(text.View(), "abcd");
  EXPECT_EQ(text.bytes[4], '\0');
  EXPECT_EQ(text.bytes[5], '\0');
  text = "\xE2\x82\xAC\xE2\x82\xAC";  // two three-byte characters in five bytes
  EXPECT_EQ(text.View(), "\xE2\x82\xAC");
}

TEST(FixedTextTest, SurvivesAPartOfItselfAndAMissingTerminator) {
  FixedText<8> text = "12345";
  text = text.View().substr(2);
  EXPECT_EQ(text.View(), "345");
  std::memset(text.bytes, 'x', sizeof text.bytes);
  EXPECT_EQ(text.View(), "xxxxxxxx");
}

TEST(Utf8Test, OldFilesReadAsLatin1AndControlCharactersEndAText) {
  EXPECT_EQ(DisplayText("caf\xE9"), "caf\xC3\xA9");
  EXPECT_EQ(DisplayText("caf\xC3\xA9"), "caf\xC3\xA9");
  EXPECT_EQ(DisplayText("name\x01tail"), "name");
  EXPECT_EQ(DisplayText("two\nlines"), "two\nlines");
  for (const char* bad : {"\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xE2\x82", "\x80"}) {
    EXPECT_FALSE(IsUtf8(bad)) << bad;
  }
}

TEST(FormatTest, PrintsLikeTheGamesPatterns) {
  EXPECT_EQ(Format("VELD has rolled %id%i: %i ", 3, 6, 11), "VELD has rolled 3d6: 11 ");
  EXPECT_EQ(Format("%g|%g|%g|%g", 3.5F, 100.0, 1e10, -0.25), "3.5|100|1e+10|-0.25");
  EXPECT_EQ(Format("[%5i][%-5i][%05i][%+i]", 42, 42, -42, 7), "[   42][42   ][-0042][+7]");
  EXPECT_EQ(Format("[%-6s][%6s][%.2s]", "ab", std::string("cd"), std::string_view("efgh")), "[ab    ][    cd][ef]");
  EXPECT_EQ(Format("[%-3s][%4s]", "\xC3\xA9", "\xC3\xBC\xE9"), "[\xC3\xA9  ][  \xC3\xBC\xE9]") << "UTF-8, Latin-1";
  EXPECT_EQ(Format("[%-4s][%.2s]", "e\xCC\x81\xE5\x90\x8D", "x\xC3\xA9"), "[e\xCC\x81\xE5\x90\x8D ][x]");
  EXPECT_EQ(Format("%.2f %%", 2.345678), "2.35 %");
  EXPECT_EQ(Format("%i", std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(FormatTest, ForgivesWhatCWouldNot) {
  EXPECT_EQ(Format("%i %s", 2.9), "2 ");
  EXPECT_EQ(Format("%i", 1e300), Format("%i", 9.2e18));
  EXPECT_EQ(Format("100%"), "100");
  EXPECT_EQ(Format("%99999s", "x").size(), 1000U);
}

TEST(NumbersTest, EntriesAreHeldToTheirRange) {
  EXPECT_EQ(ReadEntry("  12abc"), 12);
  EXPECT_EQ(ReadEntry("-5"), 0);
  EXPECT_EQ(ReadEntry("99999999999999999999999"), 999'999);
  EXPECT_EQ(ReadEntry(""), 0);
  EXPECT_EQ(ReadNumberPrefix("-99999999999999999999999"), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(ReadDecimalPrefix(" 12.50x"), 12.5);
  EXPECT_EQ(TruncateToInt(-3.9), -3);
  EXPECT_EQ(TruncateToInt(1e30), std::numeric_limits<int>::max());
  EXPECT_EQ(TruncateToInt(std::numeric_limits<double>::quiet_NaN()), 0);
  EXPECT_EQ(AddSaturated(std::numeric_limits<int>::max(), 1), std::numeric_limits<int>::max());
}

TEST(RowRunsTest, ExpandsBothNotationsAndRefusesTheRest) {
  std::array<int, 10> rows{};
  ASSERT_TRUE(ExpandRowRuns("1:10 3-4:7 9", rows, -1));
  EXPECT_EQ(rows, (std::array<int, 10>{0, 10, 0, 7, 7, 0, 0, 0, 0, -1}));
  for (const char* bad : {"10:1", "4-3", "1:", "a", "1,2", "-1"}) EXPECT_FALSE(ExpandRowRuns(bad, rows)) << bad;
}

TEST(SearchTest, AnEmptyNameIsInNoText) {
  EXPECT_FALSE(Contains("text", ""));
  EXPECT_TRUE(Contains("Great honor", "Great"));
  EXPECT_FALSE(Contains("Great honor", "great"));
  EXPECT_TRUE(EqualsIgnoringCase("Human Dialect", "human dialect"));
  EXPECT_EQ(TrimRight("Blind    "), "Blind");
}

}  // namespace
}  // namespace veld
