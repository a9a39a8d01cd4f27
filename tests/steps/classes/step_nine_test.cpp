#include "steps/classes/step_nine.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "rules/class_table.h"
#include "steps/classes/class_choice.h"
#include "steps/classes/take_after.h"
#include "steps/race/race_choice.h"
#include "support/game_test.h"
#include "text/search.h"

namespace veld {
namespace {

using testing::ChooseText;

constexpr int kOk = 1;
constexpr int kAbort = 2;
constexpr int kReason = 27;
constexpr int kTakeAfterRaces = 3115;
constexpr int kMissing = 3116;

constexpr int kFighter = 3;
constexpr int kCavalier = 6;
constexpr int kBattleMage = 13;
constexpr int kGladiator = 61;

class StepNineTest : public testing::GameTest<> {
 protected:
  StepNineTest() {
    for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(game->sheet, ability) = {18, 50};
    game->sheet.SocialClassIndex = 12;
    BecomeRace("Human");
    game->run.CurrentStep = 9;
    game->run.BuildingPoints = 20.75F;
  }

  void BecomeRace(std::string_view race) {
    game->sheet.RaceName = race;
    BindRaceRow(*game);
  }

  bool Offers(int classRow) const { return IsClassOffered(*game, classRow); }
  bool Explains(int classRow, std::string_view part) const {
    return Contains(WhyClassIsMissing(*game, classRow), part);
  }
};

TEST_F(StepNineTest, AChangeOfMindAddsUpNoGifts) {
  Play("StepNine", RunStepNine, [&](Form& form) {
    EXPECT_EQ(game->run.CurrentStep, 0);
    form.Press(kOk);
    EXPECT_TRUE(platform.Showed("You must pick a class"));
    ChooseText(form, kClassList, "Fighter");
    EXPECT_EQ(game->run.BuildingPoints, 30) << "a fraction of a BP is lost, the gift of 10 comes on top";
    game->sheet.Wisdom.Whole = 3;
    ChooseText(form, kClassList, "Ranger");
    ChooseText(form, kClassList, "Knight Errant");
    EXPECT_EQ(form.Text(25), "25");
    EXPECT_EQ(game->sheet.Wisdom.Whole, 18);
    form.Press(kOk);
  });
  EXPECT_EQ(game->run.CurrentStep, 10);
  EXPECT_EQ(game->sheet.LevelText, "1");
}

TEST_F(StepNineTest, BirthBooksAndRaceDecideWhatIsOffered) {
  game->sheet.SocialClassIndex = 8;
  EXPECT_TRUE(Offers(kFighter));
  EXPECT_FALSE(Offers(kCavalier));
  EXPECT_EQ(WhyClassIsMissing(*game, kCavalier), "Needs social class 9, yours is 8.");
  game->RuleSwitches[kSocialClassRestrictions] = 0;
  EXPECT_TRUE(Offers(kCavalier));
  EXPECT_EQ(game->sheet.SocialClassIndex, 8);

  EXPECT_TRUE(Offers(kGladiator));
  game->RuleSwitches[kWarmongersAlmanac] = 0;
  EXPECT_FALSE(Offers(kGladiator));
  EXPECT_TRUE(Explains(kGladiator, "The Warmonger's Almanac is switched off."));

  BecomeRace("Elf, Grey");
  EXPECT_TRUE(Explains(4, "Closed to the race Elf, Grey."));

  game->sheet.Dexterity = {14, 99};
  game->sheet.Strength = {15, 100};
  EXPECT_TRUE(Explains(kCavalier, "Needs Dexterity 15, yours is 14/99."));
  EXPECT_FALSE(Explains(kCavalier, "Strength"));
  game->sheet.Wisdom = {18, 1};
  EXPECT_TRUE(Explains(4, "Wisdom may be 17 at most, yours is 18/1."));
}

TEST_F(StepNineTest, AFlawOfAnAlmanacLeavesItsGroupForGood) {
  game->run.UsesThiefBackground = 1;
  Play("StepNine", RunStepNine, [&](Form& form) {
    for (const std::string& name : form.Items(kClassList)) {
      EXPECT_EQ(ClassTable()[static_cast<std::size_t>(FindClassRow(name))].IsThief, 1) << name;
    }
    ChooseText(form, kMissing, "Fighter");
    EXPECT_EQ(form.Text(kReason), "A quirk or flaw of the Swindler's Almanac leaves only thief classes.");
    form.Press(kAbort);
  });
  game->run.UsesThiefBackground = 0;
  EXPECT_FALSE(Offers(kFighter));
  EXPECT_TRUE(Explains(kFighter, "Barred by a quirk or flaw."));
}

TEST_F(StepNineTest, AGnomeTitansIntelligenceCountsOneMoreForABattleMage) {
  BecomeRace("Gnome Titan");
  game->sheet.Intelligence = {8, 50};
  EXPECT_TRUE(Offers(kBattleMage));
  EXPECT_TRUE(Explains(12, "Needs Intelligence 9, yours is 8/50."));
  game->sheet.Intelligence = {7, 99};
  EXPECT_FALSE(Offers(kBattleMage));
}

TEST_F(StepNineTest, OnlyThePreviewOfStepEightCountsCharismasChangeOfComeliness) {
  game->sheet.Comeliness = {8, 50};
  EXPECT_FALSE(Offers(kCavalier));
  game->run.CurrentStep = 8;
  EXPECT_TRUE(Offers(kCavalier)) << "a Charisma of 18 adds 3";
  EXPECT_EQ(game->sheet.Comeliness.Whole, 8);
  Play("StepNine", RunStepNine, [&](Form& form) {
    EXPECT_EQ(std::ranges::count(form.Items(kClassList), "Cavalier"), 0);
    form.PressCloseBox();
  });
  EXPECT_EQ(game->run.CurrentStep, 0);
}

TEST_F(StepNineTest, EveryClassIsOfferedOrExplained) {
  for (const std::string_view race : {"Human", "Dwarf", "Darkmen", "Pixie Fairy", "Half-ogre"}) {
    for (const int score : {3, 12, 15, 18, 25}) {
      for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(game->sheet, ability) = {score, 50};
      BecomeRace(race);
      game->sheet.SocialClassIndex = score / 3;
      const std::vector<int> missing = MissingClasses(*game);
      for (int row = 0; row < kClassRows; ++row) {
        const bool isNamed = !ClassTable()[static_cast<std::size_t>(row)].Name.empty();
        const bool isMissing = std::ranges::count(missing, row) == 1;
        EXPECT_EQ(isMissing, isNamed && !Offers(row)) << race << row;
        EXPECT_EQ(isMissing, !WhyClassIsMissing(*game, row).empty()) << race << row;
      }
    }
  }
  EXPECT_TRUE(WhyClassIsMissing(*game, -1).empty());
  EXPECT_FALSE(IsClassOffered(*game, kClassRows));
}

TEST_F(StepNineTest, TakingAfterARaceTakesOverItsClasses) {
  game->run.BuildingPoints = 30.5F;
  BecomeRace("Half-elf");
  game->sheet.QuirkCounts[76] = 1;
  ASSERT_FALSE(Explains(5, "Wisdom"));
  ASSERT_EQ(game->run.ClassAllowed[15], 0);
  Play("TakeAfter", RunTakeAfter, [&](Form& form) {
    EXPECT_EQ(form.Title(), "Do you wish to take the Take After Talent for 30 BP?");
    EXPECT_EQ(form.Items(kTakeAfterRaces).size(), 6U);
    EXPECT_EQ(form.SelectedText(kTakeAfterRaces), "Human");
    form.Press(1);
  });
  EXPECT_EQ(game->sheet.TalentDetailNames[2][0], "Human");
  EXPECT_EQ(game->sheet.TalentDetailCounts[2][0], 1);
  EXPECT_EQ(game->run.BuildingPoints, 0.5F);
  EXPECT_EQ(game->run.ClassAllowed[15], 101);
  EXPECT_EQ(game->run.ClassAllowed[kGladiator], 0) << "the bars of quirks are set again";

  const GenerationRun before = game->run;
  BecomeRace("Gnomeling");
  Play("TakeAfter", RunTakeAfter, [](Form& form) { form.PressCloseBox(); });
  EXPECT_EQ(game->run.BuildingPoints, before.BuildingPoints);
  BecomeRace("Human");
  RunTakeAfter(*game);  // nobody to take after: no dialog
  EXPECT_EQ(platform.forms.size(), 2U);
}

TEST_F(StepNineTest, AHalfOrcWhoTakesAfterTheOrcsKeepsHisOwnClasses) {
  BecomeRace("Half-orc");
  const ClassNumbers own = game->run.ClassAllowed;
  game->run.BuildingPoints = 29.5F;
  TakeAfter(*game, "Orc");
  EXPECT_TRUE(game->sheet.TalentDetailNames[2][0].Empty()) << "too dear";
  game->run.BuildingPoints = 30;
  TakeAfter(*game, "Orc");
  EXPECT_EQ(game->run.ClassAllowed, own);
  EXPECT_EQ(game->sheet.TalentDetailNames[2][0], "Orc");
}

}  // namespace
}  // namespace veld
