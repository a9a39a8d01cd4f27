#include "steps/abilities/step_eight.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "steps/abilities/ability_effects_apply.h"
#include "steps/classes/class_choice.h"
#include "steps/race/race_choice.h"
#include "support/game_test.h"
#include "support/random_player.h"
#include "text/search.h"

namespace veld {
namespace {

constexpr int kOk = 1;
constexpr int kTryChanges = 3043;
constexpr int kFirstEntry = 3000;
constexpr int kMissing = 3116;
constexpr int kReason = 27;

class StepEightTest : public testing::GameTest<> {
 protected:
  StepEightTest() {
    for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(sheet, ability) = {10, 50};
    sheet.RaceName = "Human";
    sheet.SocialClassIndex = 12;
    sheet.SocialClassName = "Upper Upper Class";
    BindRaceRow(*game);
    game->run.CurrentStep = 8;
  }

  float& BP = game->run.BuildingPoints;
};

TEST_F(StepEightTest, ABPBuysAQuarterOfAPoint) {
  sheet.Strength = {17, 1};
  sheet.Wisdom = {10, 75};
  BP = 6.9F;
  Play("StepEight", RunStepEight, [&](Form& form) {
    form.Type(kFirstEntry + kStrength, "4");
    form.Type(kFirstEntry + kDexterity, "-3");
    form.Type(kFirstEntry + kConstitution, "none");
    form.Type(kFirstEntry + kWisdom, "1");
    form.Press(kTryChanges);
    form.Press(kTryChanges);
    EXPECT_EQ(form.Text(11), "18") << "the entries are totals";
    EXPECT_EQ(form.Text(22), "100") << "exactly 100 does not carry";
    EXPECT_EQ(form.Text(25), "1");
    form.Type(kFirstEntry + kWisdom, "2");
    form.Press(kOk);
  });
  EXPECT_EQ(sheet.Strength, (AbilityScore{18, 1}));
  EXPECT_EQ(sheet.Wisdom, (AbilityScore{11, 25}));
  EXPECT_EQ(sheet.Dexterity, (AbilityScore{10, 50}));
  EXPECT_EQ(BP, 0) << "the fraction is lost";
  EXPECT_EQ(game->run.CurrentStep, 9);
  EXPECT_EQ(sheet.OpenDoors, "12(3)") << "the tables are applied";
}

TEST_F(StepEightTest, MoreThanThereIsCanBeTriedButNotSpent) {
  BP = 3;
  Play("StepEight", RunStepEight, [&](Form& form) {
    form.Type(kFirstEntry + kCharisma, "999999999999");
    form.Press(kTryChanges);
    EXPECT_EQ(form.Text(25), "-999996");
    form.Type(kFirstEntry + kCharisma, "4");
    form.Press(kOk);
    EXPECT_TRUE(platform.Showed("You can not spend more BPs then you have!"));
    EXPECT_EQ(form.Text(25), "-1");
    EXPECT_GT(sheet.Charisma.Whole, 200'000) << "the abilities stay as they were tried";
    form.Type(kFirstEntry + kCharisma, "3");
    form.PressDefault();
    EXPECT_TRUE(form.IsClosed()) << "refused sums do not add up";
  });
  EXPECT_EQ(sheet.Charisma, (AbilityScore{11, 25}));
  EXPECT_EQ(BP, 0);
}

TEST_F(StepEightTest, AbortGivesEverythingBack) {
  BP = 3.5F;
  Play("StepEight", RunStepEight, [&](Form& form) {
    for (int ability = 0; ability < kAbilityCount; ++ability) form.Type(kFirstEntry + ability, "7");
    form.Press(kTryChanges);
    form.PressCloseBox();
  });
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    EXPECT_EQ(AbilityAt(sheet, ability), (AbilityScore{10, 50}));
  }
  EXPECT_EQ(BP, 3);
  EXPECT_EQ(game->run.CurrentStep, 0);
}

TEST_F(StepEightTest, ClassesAppearAsTheScoresRise) {
  sheet.Strength = {3, 1};
  BP = 60;
  Play("StepEight", RunStepEight, [&](Form& form) {
    const auto offers = [&](int id) { return std::ranges::count(form.Items(id), "Fighter") == 1; };
    EXPECT_FALSE(offers(kClassList));
    ASSERT_TRUE(offers(kMissing));
    testing::ChooseText(form, kMissing, "Fighter");
    EXPECT_TRUE(Contains(form.Text(kReason), "Needs Strength")) << form.Text(kReason);
    form.Type(kFirstEntry + kDexterity, "1");
    form.Press(kTryChanges);
    EXPECT_EQ(form.SelectedText(kMissing), "Fighter");
    form.Type(kFirstEntry + kStrength, "40");
    form.Press(kTryChanges);
    EXPECT_TRUE(offers(kClassList));
    EXPECT_EQ(form.Text(kReason), "");
    form.Press(kOk);
  });
}

TEST_F(StepEightTest, CharismaChangesComelinessOnceInAGeneration) {
  sheet.Charisma = {18, 1};
  Play("StepEight", RunStepEight, [](Form& form) { form.Press(kOk); });
  EXPECT_EQ(sheet.Comeliness, (AbilityScore{13, 50}));
  RefreshAbilityEffects(*game);
  RefreshAbilityEffects(*game);
  EXPECT_EQ(sheet.Comeliness.Whole, 13);
  ApplyCharismaTable(*game);
  EXPECT_EQ(sheet.Comeliness.Whole, 16);
}

TEST_F(StepEightTest, TheEncumbranceStepsSumUpToTheLimits) {
  sheet.Strength = {22, 50};
  ApplyStrengthTable(*game);
  int sum = 0;
  std::vector<int> limits;
  for (const int step : {sheet.WeightAllowanceLight, sheet.WeightAllowanceModerate, sheet.WeightAllowanceHeavy,
                         sheet.WeightAllowanceSevere, sheet.MaxPressExtra}) {
    limits.push_back(sum += step);
  }
  EXPECT_EQ(limits, (std::vector<int>{800, 100, 1200, 1600, 2400}));
  EXPECT_EQ(sheet.MaxPress, 970);
}

TEST_F(StepEightTest, AScoreBelowTheTablesClearsWhatTheyGave) {
  RefreshAbilityEffects(*game);
  ASSERT_GT(sheet.SystemShock, 0);
  for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(sheet, ability) = {-3, 150};
  RefreshAbilityEffects(*game);
  EXPECT_TRUE(sheet.OpenDoors.Empty() && sheet.RegenHeal.Empty() && sheet.HonorMod.Empty() &&
              sheet.BonusSpells.Empty());
  EXPECT_EQ(sheet.MaxSpellsText, " ");
  EXPECT_EQ(sheet.SystemShock + sheet.MaxPress + sheet.LearnAbility + sheet.SpellFailure + sheet.MaxHenchmen, 0);
  EXPECT_EQ(sheet.MaxPressExtra, 0);
}

TEST(StepEightRandomTest, NoPlaySpendsWhatIsNotThere) {
  for (std::uint32_t seed = 0; seed < 1000; ++seed) {
    testing::RandomPlayer player(seed, 20);
    const auto game = testing::QuietGame(player);
    game->run.CurrentStep = 8;
    const float before = static_cast<float>(player.Pick(40));
    game->run.BuildingPoints = before;
    for (int ability = 0; ability < kAbilityCount; ++ability) {
      AbilityAt(game->sheet, ability) = {static_cast<int>(player.Pick(30)) - 3,
                                         static_cast<int>(player.Pick(300)) - 100};
    }
    RunStepEight(*game);
    const float left = game->run.BuildingPoints;
    ASSERT_TRUE(left >= 0 && left <= before) << seed;
    ASSERT_TRUE(game->run.CurrentStep == 9 || (game->run.CurrentStep == 0 && left == before)) << seed;
    for (int ability = 0; ability < kAbilityCount && game->run.CurrentStep == 9; ++ability) {
      const int percentile = AbilityAt(game->sheet, ability).Percentile;
      ASSERT_TRUE(percentile >= 0 && percentile <= 100) << seed;
    }
  }
}

}  // namespace
}  // namespace veld
