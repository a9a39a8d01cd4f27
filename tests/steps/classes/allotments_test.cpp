#include "steps/classes/allotments.h"

#include <gtest/gtest.h>

#include "support/game_test.h"
#include "text/format.h"

namespace veld {
namespace {


constexpr int kOk = 1;
constexpr int kPointsText = 150;
constexpr int kRefusal = 152;
constexpr int kFirstTotal = 10;
constexpr int kFirstEntry = 3000;

constexpr int kThief = 16;
constexpr int kAssassin = 17;
constexpr int kBard = 18;
constexpr int kBountyHunter = 60;

class AllotmentTest : public testing::GameTest<> {
 protected:
  AllotmentTest() {
    game->sheet.RaceName = "Human";
    game->sheet.Dexterity.Whole = 14;
    game->run.CurrentStep = 10;
  }

  void Hold(std::string_view className, int row, int level, int points) {
    game->sheet.ClassName = className;
    game->sheet.ClassLevels[static_cast<std::size_t>(row)] = level;
    game->run.ThiefPointsToSpend = points;
  }

  static void Enter(Form& form, const std::vector<int>& points) {
    for (std::size_t i = 0; i < points.size(); ++i) {
      form.Type(kFirstEntry + static_cast<int>(i), Format("%i", points[i]));
    }
    form.Press(kOk);
  }
};

TEST_F(AllotmentTest, AThiefPlacesExactlyHisPointsWithinTheLimit) {
  Hold("Thief", kThief, 1, 65);
  game->sheet.ThiefPickPockets[3] = 7;
  platform.ExpectForm("ThiefAbilities", [&](Form& form) {
    EXPECT_EQ(form.Text(kPointsText), "You have 65 points to spend");
    EXPECT_EQ(form.Text(kFirstTotal), "22") << "base and all levels so far";
    EXPECT_EQ(form.Text(kFirstTotal + 7), "60");
    for (const auto& [typed, total, left, refusal] :
         {std::tuple{"8", "30", "57", ""},
          {"31", "53", "34", "Pick Pockets: 31 points are too many, it takes 30 at most."},
          {"-4", "22", "65", "Pick Pockets: points can not be taken away, so this counts as none."},
          {"18446744073709551616", "1000021", "-999934", "it takes 30 at most."}}) {
      form.Type(kFirstEntry, typed);
      EXPECT_EQ(form.Text(kFirstEntry), typed);
      EXPECT_EQ(form.Text(kFirstTotal), total);
      EXPECT_EQ(form.Text(kPointsText), Format("You have %s points left to spend", left));
      EXPECT_TRUE(form.Text(kRefusal).ends_with(refusal) && (*refusal || form.Text(kRefusal).empty()));
    }
    Enter(form, {30, 30});
    EXPECT_EQ(form.Text(kPointsText), "You have 5 points left to spend");
    Enter(form, {31, 30, 4});
    EXPECT_EQ(form.Text(kPointsText), "You have 0 points left to spend");
    Enter(form, {999999, 999999, 999999, 999999, 999999, 999999, 999999, 999999, 999999});
    EXPECT_EQ(form.Text(kPointsText), "You have -8999926 points left to spend");
    EXPECT_FALSE(form.IsClosed());
    Enter(form, {30, 30, 5, 0, 0, 0, 0, 0, 0});
    EXPECT_TRUE(form.IsClosed());
  });
  RunAllotment(*game, kThief);
  EXPECT_EQ(game->sheet.ThiefPickPockets[1], 30);
  EXPECT_EQ(game->sheet.ThiefFindTraps[1], 5);
  EXPECT_EQ(game->run.CurrentStep, 10);
}

TEST_F(AllotmentTest, OfThirtyFivePointsFifteenGoToOneAbility) {
  Hold("Thief", kThief, 2, 35);
  const std::int64_t sixteen[] = {16, 15, 4, 0, 0, 0, 0, 0, 0};
  const std::int64_t fifteen[] = {15, 15, 5, 0, 0, 0, 0, 0, 0};
  EXPECT_FALSE(PlaceThiefPoints(*game, Allotment::Thief, kThief, sixteen));
  EXPECT_TRUE(PlaceThiefPoints(*game, Allotment::Thief, kThief, fifteen));
}

TEST_F(AllotmentTest, OtherThievesUseTheThiefsLevelWhereThereIsOne) {
  Hold("Assassin", kAssassin, 3, 15);
  const std::int64_t entries[] = {15, 0, 0, 0, 0, 0, 0, 0, 0};
  EXPECT_TRUE(PlaceThiefPoints(*game, Allotment::Thief, kAssassin, entries));
  EXPECT_EQ(game->sheet.ThiefPickPockets[3], 15);
  game->sheet.ClassLevels[kThief] = 5;
  EXPECT_TRUE(PlaceThiefPoints(*game, Allotment::Thief, kAssassin, entries));
  EXPECT_EQ(game->sheet.ThiefPickPockets[5], 15);
  game->sheet.ClassLevels[kThief] = 2'147'483'647;
  EXPECT_EQ(AllotmentSlot(game->sheet, Allotment::Thief, kThief), 98U);
}

TEST_F(AllotmentTest, ABardMayPlaceAllInOneAbilityAndABountyHunterHalf) {
  Hold("Bard", kBard, 1, 20);
  platform.ExpectForm("BardAbilities", [&](Form& form) {
    EXPECT_EQ(form.Text(kFirstTotal), "50");
    EXPECT_EQ(form.Text(kFirstTotal + 1), "20");
    Enter(form, {0, 0, 20, 0});
  });
  RunAllotment(*game, kBard);
  EXPECT_EQ(game->sheet.ThiefPickPockets[1], 20);

  Hold("Bounty Hunter", kBountyHunter, 2, 15);
  platform.ExpectForm("BountyHunterAbilities", [&](Form& form) {
    EXPECT_EQ(form.Text(kFirstTotal + 2), "10");
    Enter(form, {8, 7, 0, 0});
    EXPECT_EQ(form.Text(kPointsText), "You have 0 points left to spend");
    Enter(form, {7, 7, 2});
    EXPECT_EQ(form.Text(kRefusal), "1 point is too many.");
    Enter(form, {1, 0, 7, 7});
  });
  RunAllotment(*game, kBountyHunter);
  EXPECT_EQ(game->sheet.ThiefMoveSilently[2], 7);
  EXPECT_EQ(game->sheet.ThiefHideInShadows[2], 7);
}

TEST_F(AllotmentTest, TheCloseBoxPlacesNothing) {
  Hold("Bard", kBard, 1, 20);
  platform.ExpectForm("BardAbilities", [](Form& form) { form.PressCloseBox(); });
  RunAllotment(*game, kBard);
  EXPECT_EQ(game->run.CurrentStep, 10);
  Hold("Thief", kThief, 1, 65);
  platform.ExpectForm("ThiefAbilities", [](Form& form) { form.PressCloseBox(); });
  RunAllotment(*game, kThief);
  EXPECT_EQ(game->run.CurrentStep, 1);
  EXPECT_EQ(game->sheet.ThiefPickPockets[1], 0);
  RunAllotment(*game, 3);  // a fighter has none
  EXPECT_EQ(platform.forms.size(), 2U);
}

TEST_F(AllotmentTest, ClassDexterityAndRaceMakeTheBase) {
  game->sheet.ThiefClimbWalls[kLevelSum] = 99;
  game->sheet.ClassName = "Fighter/Thief";
  game->sheet.RaceName = "pixie fairy";
  game->sheet.Dexterity.Whole = 26;
  SetThiefBaseScores(*game);
  EXPECT_EQ(game->sheet.ThiefHideInShadows[0], 5 + 45 + 30);
  EXPECT_EQ(game->sheet.ThiefClimbWalls[0], 10);
  EXPECT_EQ(game->sheet.ThiefClimbWalls[kLevelSum], 0);
  game->sheet.ThiefClimbWalls[98] = 5;
  SumThiefAbilities(*game);
  EXPECT_EQ(game->sheet.ThiefClimbWalls[kLevelSum], 15);
  game->sheet.Dexterity.Whole = 13;
  game->sheet.RaceName = "Human";
  SetThiefBaseScores(*game);
  EXPECT_EQ(game->sheet.ThiefPickPockets[0], 15) << "Dexterity 13 to 15 changes nothing";
}

}  // namespace
}  // namespace veld
