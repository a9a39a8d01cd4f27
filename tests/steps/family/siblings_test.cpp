#include "steps/family/siblings.h"

#include <gtest/gtest.h>

#include "support/game_test.h"

namespace veld {
namespace {

class SiblingsTest : public testing::GameTest<testing::DicePlayer> {
 protected:
  SiblingsTest() { sheet.Charisma.Whole = 10; }
};

TEST_F(SiblingsTest, EachSiblingTakesItsDiceInOrder) {
  sheet.SiblingCount = 2;
  player.dice = {79, 10, 14, 94, 80, 11, 75, 99};  // death, sex, relationship, twin
  GenerateSiblings(*game);
  EXPECT_TRUE(player.dice.empty());
  EXPECT_EQ(sheet.SiblingLines[0], " This sibling is male, a bitter rival, and not a twin.");
  EXPECT_EQ(sheet.SiblingLines[1], " This sibling is female, dead, a devoted friend, and an identical twin.");
  EXPECT_EQ(sheet.SiblingLines[2], " ");
}

TEST_F(SiblingsTest, IllegitimateOnesFillTheirLinesAndLeaveTheRest) {
  sheet.SiblingCount = -4;
  for (int i = 0; i < 4; ++i) player.dice.insert(player.dice.end(), {1, 1, 50, 95, i < 2 ? 15 + i : 100, 75 + i});
  sheet.SiblingLines[4] = "kept";
  player.dialog = [&](Form& form) {
    EXPECT_EQ(form.Text(11), "Sibling was abandoned at birth. This sibling is male, a normal sibling, and a twin.");
    EXPECT_EQ(form.Text(15), "kept");
    form.PressCloseBox();
  };
  game->run.CurrentStep = 7;
  RunSiblings(*game);
  EXPECT_TRUE(player.dice.empty());
  EXPECT_TRUE(sheet.SiblingLines[1].View().starts_with("Birth was the result of a rape, father unknown. This"));
  EXPECT_TRUE(sheet.SiblingLines[2].View().starts_with("Birth was the result of an adultrous affair, father known. "));
  EXPECT_EQ(game->run.CurrentStep, 0);
}

TEST_F(SiblingsTest, TheDialogRollsAnewOnItsCommandAndNineSiblingsFillIt) {
  game->RuleSwitches[kRollYourOwnDice] = 0;
  sheet.SiblingCount = 9;
  sheet.Charisma.Whole = 25;
  player.dialog = [&](Form& form) {
    for (int round = 0; round < 50; ++round) {
      for (int line = 0; line < 9; ++line) {
        EXPECT_EQ(form.Text(11 + line), sheet.SiblingLines[static_cast<std::size_t>(line)].View());
        EXPECT_EQ(form.Text(11 + line).find("bitter rival"), std::string::npos);
      }
      const auto before = sheet.SiblingLines;
      form.onCommand(3040);
      EXPECT_FALSE(std::ranges::equal(sheet.SiblingLines, before));
    }
    form.PressDefault();
  };
  RunSiblings(*game);
  EXPECT_EQ(game->run.CurrentStep, 7);
}

TEST_F(SiblingsTest, ADamagedCountStaysWithinTheRecord) {
  game->RuleSwitches[kRollYourOwnDice] = 0;
  for (const int count : {2'000'000'000, -2'000'000'000 - 147'483'648}) {
    sheet.SiblingCount = count;
    sheet.Charisma.Whole = 2'147'483'647;
    GenerateSiblings(*game);
    EXPECT_GT(sheet.SiblingLines[99].Length(), 10U);
  }
}

}  // namespace
}  // namespace veld
