#include "steps/classes/honor.h"

#include <gtest/gtest.h>

#include "rules/honor_tables.h"
#include "support/game_test.h"

namespace veld {
namespace {

class HonorTest : public testing::GameTest<> {
 protected:
  HonorTest() {
    for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(game->sheet, ability) = {11, 50};
    game->sheet.SocialClassIndex = 8;
    game->run.BuildingPoints = 5;
  }

  void ExpectHonor(int honor, float bp) {
    const float before = game->run.BuildingPoints;
    ComputeHonor(*game);
    EXPECT_EQ(game->sheet.Honor, honor);
    EXPECT_EQ(game->run.BuildingPoints - before, bp) << honor;
  }
};

TEST_F(HonorTest, BirthHeritageCharismaAndYouthMakeTheStartingHonor) {
  ExpectHonor(11, 0);
  game->sheet.Charisma.Whole = 17;  // the average stays below 12
  ExpectHonor(17, 4);
  EXPECT_EQ(game->sheet.HonorCategory, "Great Honor d4");
  EXPECT_EQ(game->sheet.HonorDie, 4);
  game->sheet.FamilyHeritage = "Great Honor";
  game->sheet.SocialClassIndex = 12;
  ExpectHonor(32, 12);
  EXPECT_EQ(game->sheet.HonorCategory, "Too Much Honor d1");
  game->run.HonorBackgroundModifier = -9;
  ExpectHonor(23, 10);
  game->sheet.ClassName = "Battle Mage";
  ExpectHonor(25, 12);
  game->sheet.ClassName = "Fighter/Battle Mage";
  ExpectHonor(23, 10);
}

TEST_F(HonorTest, TheLowestHonorIsOneAndMayLeaveDebts) {
  game->sheet.Charisma.Whole = 4;
  game->sheet.SocialClassIndex = 4;
  game->sheet.FamilyHeritage = "Dishonor";
  ExpectHonor(1, -9);
  EXPECT_EQ(game->run.BuildingPoints, -4);
  EXPECT_EQ(game->sheet.HonorCategory, "Dishonorable d1");
}

TEST_F(HonorTest, AnAbusedPupilHasFiveAtMost) {
  game->run.HonorLimitFlag = 5;
  ExpectHonor(5, -5);
  game->run.HonorLimitFlag = 4;
  ExpectHonor(11, 0);
  for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(game->sheet, ability).Whole = 2'147'483'647;
  ExpectHonor(2'147'483'647, 12);
}

TEST_F(HonorTest, TheDieFollowsHonorAndLevel) {
  game->sheet.ClassLevels[0] = 7;
  game->sheet.Honor = 22;
  ComputeHonorDie(*game, 2);
  EXPECT_EQ(game->sheet.HonorCategory, "Average Honor d4+1");
  EXPECT_EQ(game->run.HonorDieBonus, 1);
  EXPECT_EQ(game->sheet.ClassLevels[0], 0);
  game->sheet.Honor = 53;
  ComputeHonorDie(*game, 4);
  EXPECT_EQ(game->sheet.HonorDie, 0) << "the empty band of level 4";
  EXPECT_EQ(game->sheet.HonorCategory, "Too Much Honor d0");
}

TEST(HonorTables, EveryLevelRisesToItsPeakAndFallsToNone) {
  const auto rank = [](HonorDice dice) { return dice.Sides * 3 + dice.Bonus; };
  for (int level = 1; level <= 20; ++level) {
    bool hasFallen = false;
    for (int honor = 1; honor <= 420; ++honor) {
      const int last = rank(HonorDiceOf(honor - 1, level));
      const int now = rank(HonorDiceOf(honor, level));
      if (HonorDiceOf(honor, level).Sides == 0 || HonorDiceOf(honor - 1, level).Sides == 0) continue;
      if (now < last) hasFallen = true;
      EXPECT_FALSE(hasFallen && now > last) << "level " << level << " rises again at " << honor;
    }
    EXPECT_EQ(HonorDiceOf(10, level), HonorDice{});
    EXPECT_EQ(HonorDiceOf(-2'147'483'647, level), HonorDice{});
    EXPECT_EQ(HonorDiceOf(2'147'483'647, level), HonorDice{});
  }
  EXPECT_EQ(HonorDiceOf(300, 98), HonorDiceOf(300, 20));
  EXPECT_EQ(HonorDiceOf(16, -3), HonorDiceOf(16, 1));
}

}  // namespace
}  // namespace veld
