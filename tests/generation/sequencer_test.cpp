#include "generation/sequencer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "support/game_test.h"

namespace veld {
namespace {

using testing::ScriptedPlatform;
using testing::TestFolder;
using Names = std::vector<std::string>;

/// A player who leaves each dialog of a stage with the step that its OK, or where the test says so its Abort, gives.
class StagePlayer : public ScriptedPlatform {
 public:
  std::map<std::string, int> leavesAt = {{"StepSix", 7},       {"Siblings", 7},       {"StepEight", 9},
                                         {"StepNine", 10},     {"StepTen", 11},       {"Skills", 13},
                                         {"StepFourteen", 15}, {"StepEightteen", 19}, {"Equip", 19}};
  std::map<std::string, float> leavesWithBP;
  std::map<std::string, float> openedWithBP;
  Game* game = nullptr;

  void RunForm(Form& form) override {
    const std::string name(form.Name());
    forms.push_back(name);
    openedWithBP[name] = game->run.BuildingPoints;
    if (name == "CherryPick") {  // what it does when it is left belongs to the stage
      form.Open();
      form.PressDefault();
    }
    if (const auto step = leavesAt.find(name); step != leavesAt.end()) game->run.CurrentStep = step->second;
    if (const auto bp = leavesWithBP.find(name); bp != leavesWithBP.end()) game->run.BuildingPoints = bp->second;
    form.Close();
  }
};

class SequencerTest : public testing::GameTest<StagePlayer> {
 protected:
  SequencerTest() {
    player.game = game.get();
    player.AnswerOthers(Answer::No);
    game->sheet.RaceName = "Human";
    game->sheet.Wisdom.Whole = 12;
  }

  const Names& Run() {
    RunGeneration(*game);
    return player.forms;
  }

  TestFolder folder;
};

TEST_F(SequencerTest, TheStagesFollowEachOtherToTheSaveQuestion) {
  game->sheet.SiblingCount = 2;
  player.leavesWithBP["Skills"] = 3.5F;
  EXPECT_EQ(Run(), (Names{"StepSix", "Siblings", "CherryPick", "StepEight", "StepNine", "StepTen", "Skills",
                          "StepFourteen", "StepEightteen", "Equip"}));
  EXPECT_EQ(game->run.CurrentStep, 20);
  ASSERT_FALSE(player.questions.empty());
  EXPECT_EQ(player.questions.back(), "Save: Save your character - name?");
  EXPECT_EQ(player.mainTitle, "Tolmar's Plain Quellmarch Toolkit - name - is in memory");
  EXPECT_TRUE(player.Showed("This gives you an Honor Die of "));
  EXPECT_TRUE(player.Showed("Your 3.5 BPs have been cashed in. You now have 87 gold."));
}

TEST_F(SequencerTest, AnAbortFallsThroughToTheEnd) {
  const std::pair<const char*, int> kAborts[] = {
      {"StepSix", 1}, {"StepEight", 0},     {"StepNine", 0},      {"StepTen", 0},
      {"Skills", 12}, {"StepFourteen", 14}, {"StepEightteen", 15}};
  const auto stages = player.leavesAt;
  for (const auto& [stage, step] : kAborts) {
    SCOPED_TRACE(stage);
    player.forms.clear();
    player.leavesAt = stages;
    player.leavesAt[stage] = step;
    player.leavesWithBP = {{stage, -2.0F}};
    EXPECT_EQ(Run().back(), stage);
    EXPECT_EQ(game->run.CurrentStep, step);
    // A debt is wiped out before the skills on every path, and only there.
    EXPECT_EQ(game->run.BuildingPoints, step >= 12 ? -2.0F : 0.0F);
  }
}

TEST_F(SequencerTest, AnAbortAmongTheSiblingsStopsNothing) {
  game->sheet.SiblingCount = -1;
  player.leavesAt["Siblings"] = 0;
  Run();
  EXPECT_EQ(game->run.CurrentStep, 20);
}

TEST_F(SequencerTest, NoDebtReachesTheSkills) {
  player.leavesWithBP["StepTen"] = -4;
  Run();
  EXPECT_EQ(player.openedWithBP["Skills"], 0);
}

TEST_F(SequencerTest, WithoutWisdomTheAlignmentIsNoChoice) {
  game->sheet.Wisdom.Whole = 5;
  const Names& forms = Run();
  EXPECT_EQ(std::ranges::count(forms, "StepFourteen"), 0);
  EXPECT_EQ(std::ranges::count(forms, "StepEightteen"), 1);
  EXPECT_EQ(game->sheet.Alignment, "Neutral  ");
}

TEST_F(SequencerTest, AHalfBloodWithThirtyPointsMayTakeAfterAParentsRace) {
  const auto offers = [&](const char* race, float bp) {
    game->sheet.RaceName = race;
    player.leavesWithBP["StepEight"] = bp;
    player.forms.clear();
    return std::ranges::count(Run(), "TakeAfter") == 1;
  };
  EXPECT_FALSE(offers("Half-orc", 29.5F));
  EXPECT_TRUE(offers("Half-orc", 30));
  EXPECT_FALSE(offers("Human", 90));
}

}  // namespace
}  // namespace veld
