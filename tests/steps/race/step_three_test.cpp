#include "steps/race/step_three.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "rules/race_table.h"
#include "steps/race/race_choice.h"
#include "steps/race/step_three_menu.h"
#include "support/game_test.h"

namespace veld {
namespace {

using testing::ChooseText;

constexpr int kRaces = 3021;
constexpr int kLanguages = 3028;
constexpr int kContinue = 3043;
constexpr int kAbort = 3046;
constexpr int kRollAgain = 3047;
constexpr int kBuildingPoints = 3014;

class StepThreeTest : public testing::GameTest<> {
 protected:
  StepThreeTest() {
    for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(game->sheet, ability) = {13, 50};
  }

  Form& Open() {
    OpenStepThree(*game, [this](Game&) { ++continued; });
    return *platform.window;
  }

  int continued = 0;
};

TEST_F(StepThreeTest, TakingAnotherRaceUndoesTheLast) {
  Form& form = Open();
  EXPECT_EQ(game->run.CurrentStep, 3);
  ChooseText(form, kRaces, "Dwarf, Male");
  EXPECT_EQ(form.Text(3002), "14/50");
  EXPECT_EQ(form.Text(kBuildingPoints), "10");
  EXPECT_EQ(form.Items(kLanguages).size(), 7U);
  EXPECT_EQ(game->run.ClassAllowed[3], 15 + 2) << "a single class may rise 2 higher";

  ChooseText(form, kRaces, "Human, Male");
  EXPECT_EQ(WholeScores(game->sheet), (std::array<int, 7>{13, 13, 13, 13, 13, 13, 13}));
  EXPECT_EQ(game->run.BuildingPoints, 10);
  EXPECT_EQ(game->sheet.RaceName, "Human");
}

TEST_F(StepThreeTest, TheListHoldsTheRacesThatScoresAndBooksAllow) {
  Form& form = Open();
  const auto lists = [&](std::string_view race) { return std::ranges::count(form.Items(kRaces), race) == 1; };
  EXPECT_TRUE(lists("Darkmen, Female"));
  EXPECT_FALSE(lists("Half-ogre, Male"));
  game->RuleSwitches[kTitanTrilogyModule] = 0;
  form.ChooseMenuItem(kFirstBurn + kComeliness);
  EXPECT_FALSE(lists("Darkmen, Female"));
  game->sheet.Constitution.Whole = 20;
  EXPECT_TRUE(FittingRaces(*game).empty());
}

TEST_F(StepThreeTest, AdjustTradesTwoForOneDownToItsFloor) {
  Open();
  const std::shared_ptr<Form> first = platform.window;
  game->sheet.Strength.Whole = 3;
  game->sheet.Dexterity.Whole = 4;
  OpenStepThree(*game, [](Game&) {});
  Form& window = *platform.window;
  EXPECT_TRUE(first->IsClosed()) << "the window that was open is closed first";

  window.ChooseMenuItem(kFirstAdjust);  // Strength to Dexterity
  EXPECT_EQ(window.Text(3000), "1/50");
  EXPECT_EQ(window.Text(3001), "5/50");
  EXPECT_EQ(game->sheet.RaceName, "Unknown");
  window.ChooseMenuItem(kFirstAdjust);
  EXPECT_EQ(game->sheet.Strength.Whole, 1) << "too low";

  const int dexterityToStrength = kFirstAdjust + 5;
  window.ChooseMenuItem(dexterityToStrength);
  EXPECT_EQ(game->sheet.Dexterity.Whole, 3);
  window.ChooseMenuItem(dexterityToStrength);
  EXPECT_EQ(game->sheet.Dexterity.Whole, 3) << "below 5 nothing is traded";
}

TEST_F(StepThreeTest, ARefusedAdjustDropsTheRaceModifiersFromTheScores) {
  game->sheet.Dexterity.Whole = 4;
  Form& form = Open();
  ChooseText(form, kRaces, "Human, Male");
  game->sheet.Wisdom.Whole = 18;
  form.ChooseMenuItem(kFirstAdjust + 5);
  EXPECT_EQ(game->sheet.Wisdom.Whole, 13);
  EXPECT_EQ(game->sheet.RaceName, "Human");
}

TEST_F(StepThreeTest, BurnPaysTwoBuildingPoints) {
  game->sheet.Charisma.Whole = 4;
  game->sheet.Strength.Whole = 2;
  Form& form = Open();
  form.ChooseMenuItem(kFirstBurn + kCharisma);
  form.ChooseMenuItem(kFirstBurn + kCharisma);
  EXPECT_EQ(game->sheet.Charisma.Whole, 3);
  EXPECT_EQ(game->run.BuildingPoints, 2);
  form.ChooseMenuItem(kFirstBurn + kStrength);
  form.ChooseMenuItem(kFirstBurn + kStrength);
  EXPECT_EQ(game->sheet.Strength.Whole, 1);
  EXPECT_EQ(form.Text(kBuildingPoints), "4");
  form.Press(kRollAgain);
  EXPECT_EQ(game->run.BuildingPoints, 0);
}

TEST_F(StepThreeTest, EnteredScoresMustBeDice) {
  Form& form = Open();
  platform.ExpectForm("EnterAbility", [&](Form& entry) {
    EXPECT_EQ(entry.Text(3003), "13");
    entry.Type(3000, "19");
    entry.PressDefault();
    entry.Type(3000, "17");
    entry.Type(3013, "101");
    entry.PressDefault();
    EXPECT_FALSE(entry.IsClosed());
    entry.Type(3013, "100");
    entry.PressDefault();
  });
  form.ChooseMenuItem(kEnterStats);
  EXPECT_TRUE(platform.Showed("All ability scores must be between 3 and 18. You are rolling 3d6, right?"));
  EXPECT_TRUE(platform.Showed("All percentile scores must be between 1 and 100. You are rolling 1d100, right?"));
  EXPECT_EQ(game->sheet.Strength, (AbilityScore{17, 50}));
  EXPECT_EQ(game->sheet.Comeliness, (AbilityScore{13, 100}));
}

TEST_F(StepThreeTest, AnAbortedEntryFoldsTheRaceIntoTheBase) {
  Form& form = Open();
  ChooseText(form, kRaces, "Dwarf, Male");
  platform.ExpectForm("EnterAbility", [](Form& entry) { entry.PressCloseBox(); });
  form.ChooseMenuItem(kEnterStats);
  EXPECT_EQ(game->run.BuildingPoints, 0);
  ChooseText(form, kRaces, "Dwarf, Male");
  EXPECT_EQ(game->sheet.Constitution.Whole, 15);
}

TEST_F(StepThreeTest, ContinueNeedsARaceAndTakesTheNativeLanguage) {
  Form& form = Open();
  form.Press(kContinue);
  EXPECT_TRUE(platform.Showed("You must select a race before you may continue"));
  EXPECT_EQ(continued, 0);

  ChooseText(form, kRaces, "Human, Male");
  ChooseText(form, kLanguages, "Human Dialect");
  platform.ExpectForm("GetName", [](Form& name) {
    EXPECT_EQ(name.Text(10), "Choose the name of the human dialect");
    name.Type(3000, "Fhokki");
    name.PressDefault();
  });
  const std::shared_ptr<Form> window = platform.window;
  form.PressDefault();
  EXPECT_TRUE(window->IsClosed());
  EXPECT_FALSE(game->stepThree);
  EXPECT_EQ(continued, 1);
  EXPECT_EQ(game->sheet.LanguagesKnown, 1);
  EXPECT_EQ(game->sheet.SkillDetailNames[7][0], "Language, Modern: Human Dialect: Fhokki");
  EXPECT_EQ(game->sheet.SkillDetailNames[17][0], "Reading/Writing: Human Dialect: Fhokki");
}

TEST_F(StepThreeTest, TrailMarkersAreASkill) {
  Form& form = Open();
  ChooseText(form, kRaces, "Elf, Grel, Male");
  ChooseText(form, kLanguages, "Glersee");
  form.Press(kContinue);
  EXPECT_EQ(game->sheet.SkillScores[41], 100);
  EXPECT_TRUE(game->sheet.SkillDetailNames[7][0].Empty());
}

TEST(StepThreeMenuTest, EveryAdjustCommandHasItsOwnPair) {
  EXPECT_EQ(StepThreeMenu()[0].Items[5].Items[4].Id, 4034);
  EXPECT_EQ(AdjustCommandOf(4034).Source, kCharisma);
  EXPECT_EQ(AdjustCommandOf(4034).Target, kWisdom);
}

}  // namespace
}  // namespace veld
