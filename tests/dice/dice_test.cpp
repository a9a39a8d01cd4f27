#include "dice/dice.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "dice/dice_tester.h"
#include "dice/keep_roll.h"
#include "dice/random.h"
#include "rules/quirk_table.h"
#include "support/game_test.h"
#include "text/search.h"

namespace veld {
namespace {

using testing::FileLines;
using testing::TestFolder;

constexpr int kOk = 1;
constexpr int kTurnThisOff = 3043;

class DiceTest : public testing::GameTest<> {
 protected:
  DiceTest() { game->dice.LogMode = DiceLogMode::EachLine; }

  void TypeDice() { game->RuleSwitches[kRollYourOwnDice] = 1; }

  /// Seeds the dice so that dice of these sides come up next.
  void SeedFor(int sides, std::initializer_list<int> wanted) {
    for (std::uint32_t seed = 0;; ++seed) {
      ASSERT_LT(seed, 50'000'000U) << "no seed yields these dice";
      DiceState dice;
      dice.RandomState = seed;
      const bool fits = std::ranges::all_of(wanted, [&](int die) { return RollDie(dice, sides) == die; });
      if (!fits) continue;
      game->dice.RandomState = seed;
      return;
    }
  }

  void ExpectTyped(const char* number) { platform.ExpectTyped("GetDice", number); }

  std::string LastLogLine() const {
    const auto lines = FileLines("dice.log");
    return lines.empty() ? std::string() : lines.back();
  }

  TestFolder folder;
};

TEST_F(DiceTest, TheSourceIsTheKnownGenerator) {
  game->dice.RandomState = 0;
  EXPECT_EQ(NextRandom(game->dice), 0);
  EXPECT_EQ(NextRandom(game->dice), 21468);
  EXPECT_EQ(NextRandom(game->dice), 9988);
}

TEST_F(DiceTest, NoDiceAndNoSidesDrawNothingAndAskNothing) {
  TypeDice();
  const std::uint32_t before = game->dice.RandomState;
  EXPECT_EQ(RollDice(*game, 6, 0), 0);
  EXPECT_EQ(RollDice(*game, 0, 3), 0);
  EXPECT_EQ(RollHonorDice(*game, 0, 1), 0);
  EXPECT_EQ(RollPenetratingDice(*game, 6, -1), 0);
  EXPECT_EQ(RollPenetratingDicePlus(*game, 6, 0, 5), 0);
  EXPECT_EQ(RollHitPointDice(*game, 0, 1), 0);
  EXPECT_EQ(game->dice.RandomState, before);
  EXPECT_TRUE(FileLines("dice.log").empty());
}

TEST_F(DiceTest, EachRollLeavesOneLineUnderItsLabel) {
  SeedFor(6, {3, 4});
  EXPECT_EQ(RollDice(*game, 6, 2), 7);
  EXPECT_EQ(LastLogLine(), "VELD has rolled 2d6: 7 ");

  SeedFor(6, {5});
  game->dice.DiceLabel = "Generate Age: Dwarf, Male, 1d6";
  RollDice(*game, 6, 1);
  EXPECT_EQ(LastLogLine(), "Generate Age: Dwarf, Male, 1d6 VELD has rolled: 5 ");
  EXPECT_EQ(game->dice.DiceLabel, "");

  // A label of exactly three characters is neither logged nor cleared.
  const std::size_t lines = FileLines("dice.log").size();
  game->dice.DiceLabel = "abc";
  RollDice(*game, 6, 1);
  EXPECT_EQ(FileLines("dice.log").size(), lines);
  EXPECT_EQ(game->dice.DiceLabel, "abc");

  LogDiceTotal(*game, 12);
  EXPECT_EQ(LastLogLine(), "With a Total of: 12");
}

TEST_F(DiceTest, PenetrationAddsADieAndEveryLaterDieCountsOneLess) {
  SeedFor(6, {6, 2, 5});
  EXPECT_EQ(RollPenetratingDice(*game, 6, 2), 11);
  SeedFor(6, {6, 2});
  EXPECT_EQ(RollPenetratingDicePlus(*game, 6, 1, 3), (6 + 3) + (2 + 3 - 1));
  EXPECT_EQ(LastLogLine(), "VELD has rolled (Penetration & Honor) 1d6+3: 13 ");
  EXPECT_EQ(RollPenetratingDice(*game, 1, 3), 1) << "a die of one side never penetrates";
}

TEST_F(DiceTest, HonorMovesEachDie) {
  game->sheet.HonorCategory = "Great Honor";
  SeedFor(6, {6, 6, 6});
  EXPECT_EQ(RollHonorDice(*game, 6, 3), 21);
  game->sheet.HonorCategory = "Dishonorable";
  SeedFor(6, {6, 2});
  EXPECT_EQ(RollPenetratingDice(*game, 6, 1), (6 - 1) + (2 - 1 - 1));
}

TEST_F(DiceTest, TheScholarReadsWhatTheDiceAreFor) {
  game->sheet.PackageName = "Scholar";
  game->dice.RollContextText = "INT/WIS";
  SeedFor(6, {3});
  EXPECT_EQ(RollPenetratingDice(*game, 6, 1), 4) << "once, not twice";
  EXPECT_EQ(game->dice.RollContextText, "");
  game->dice.RollContextText = "Tool, Social Interaction";
  SeedFor(6, {3});
  EXPECT_EQ(RollPenetratingDice(*game, 6, 1), 2);
  game->dice.RollContextText = "INT Tool";
  SeedFor(6, {3});
  EXPECT_EQ(RollPenetratingDicePlus(*game, 6, 1, 0), 3);
  EXPECT_EQ(game->dice.RollContextText, "INT Tool") << "left alone by the other primitive";
}

TEST_F(DiceTest, HitPointsHaveAFloorByConstitution) {
  game->sheet.Constitution.Whole = 21;
  SeedFor(8, {1});
  EXPECT_EQ(RollHitPointDice(*game, 8, 1), 3);
  EXPECT_TRUE(Contains(LastLogLine(), "factor in. VELD has rolled: 3 "));
  game->sheet.Constitution.Whole = 23;
  game->sheet.HonorCategory = "Dishonorable";
  SeedFor(8, {2, 7});
  EXPECT_EQ(RollHitPointDice(*game, 8, 2), (4 - 1) + (7 - 1));
}

TEST_F(DiceTest, TypedDiceAreAskedForUntilTheyArePossible) {
  TypeDice();
  platform.ExpectForm("GetDice", [](Form& form) {
    EXPECT_EQ(form.Text(12), "3 to 18");
    for (const char* impossible : {"2", "19", ""}) {
      form.Type(3000, impossible);
      form.PressDefault();
      EXPECT_FALSE(form.IsClosed());
      EXPECT_EQ(form.Text(13), "Type what your dice show: 3 to 18. Or leave the roll to VELD.");
    }
    form.Type(3000, "18");
    form.PressDefault();
  });
  game->dice.DiceLabel = "a label that a plain roll never keeps";
  EXPECT_EQ(RollDice(*game, 6, 3), 18);
  EXPECT_EQ(LastLogLine(), "VELD needs a roll of: 3d6. User input: ");

  ExpectTyped("40");  // no upper bound where Honor may raise the dice
  EXPECT_EQ(RollHonorDice(*game, 6, 3), 40);
  ExpectTyped("5");
  game->dice.RollContextText = "INT 2";
  EXPECT_EQ(RollPenetratingDice(*game, 6, 1), 5);
  EXPECT_EQ(game->dice.RollContextText, "") << "as after a roll of the program's";

  game->sheet.Constitution.Whole = 25;
  game->sheet.HonorCategory = "Great";
  ExpectTyped("2");
  EXPECT_EQ(RollHitPointDice(*game, 8, 2), 2 + 2) << "Honor but no floor";

  game->dice.DiceLabel = "labelled";
  EXPECT_GE(RollHonorDice(*game, 6, 1), 2) << "a labelled roll is not asked for";
  const std::size_t asked = platform.forms.size();
  game->sheet.HonorCategory.Clear();
  EXPECT_EQ(RollDice(*game, 1, 3) + RollHonorDice(*game, 1, 3) + RollPenetratingDice(*game, 1, 1) +
                RollPenetratingDicePlus(*game, 1, 1, 0) + RollHitPointDice(*game, 1, 1),
            3 + 3 + 1 + 1 + 4);
  EXPECT_EQ(platform.forms.size(), asked) << "a die of one side needs no throw";
}

TEST_F(DiceTest, RollForMeAndTurnThisOffLeaveTheRollToTheProgram) {
  TypeDice();
  platform.ExpectForm("GetDice", [](Form& form) {
    EXPECT_EQ(form.Text(10), "VELD needs a roll of: 1d6.");
    form.PressCloseBox();
  });
  SeedFor(6, {4});
  EXPECT_EQ(RollDice(*game, 6, 1), 4);
  EXPECT_EQ(LastLogLine(), "VELD needs a roll of: 1d6. VELD has rolled: 4 ");
  EXPECT_TRUE(game->IsOn(kRollYourOwnDice));

  platform.ExpectForm("GetDice", [](Form& form) { form.Press(kTurnThisOff); });
  RollDice(*game, 6, 1);
  EXPECT_FALSE(game->IsOn(kRollYourOwnDice));
  RollDice(*game, 6, 1);
}

TEST_F(DiceTest, AKeptRollCostsABuildingPointForEachRefusal) {
  constexpr ControlTemplate kControls[] = {ResultAt(0, 0, kBuildingPointsControl, 8), ButtonAt(1, 0, kOk, "OK")};
  Form window(FormTemplate{"Window", "Window", kControls, ""});
  game->dice.RollContextText = "You are to roll percentile dice.";
  game->run.BuildingPoints = 0.5F;
  AskKeepRoll(*game, window, 100, 1);
  EXPECT_TRUE(platform.questions.empty()) << "half a BP pays for nothing";

  game->run.BuildingPoints = 1.5F;
  platform.ExpectQuestion("Reroll costs 1 BP: You are to roll percentile dice. - Keep your result of - ", Answer::No);
  AskKeepRoll(*game, window, 100, 1);
  EXPECT_EQ(window.Text(kBuildingPointsControl), "0.5");

  game->run.BuildingPoints = 3;
  platform.ExpectQuestion("Keep", Answer::Closed);
  AskKeepRoll(*game, window, 100, 1);
  EXPECT_EQ(game->run.BuildingPoints, 3);
}

TEST_F(DiceTest, ATableThatCanGiveNothingIsToldOnceAndOwesNothing) {
  EXPECT_EQ(AskKeepTableResult(*game, "No such table").Outcome, TableResult::Outcome::NoRow);
  EXPECT_TRUE(platform.Showed("The table 'No such table' has no result left."));

  const std::string_view table = QuirkTable()[114].TableName;
  for (const int row : QuirkTableRows(table)) game->sheet.QuirkCounts[static_cast<std::size_t>(row)] = -1;
  const std::size_t told = platform.messages.size();
  EXPECT_EQ(RollTableUntilRow(*game, table).Outcome, TableResult::Outcome::NoRow);
  EXPECT_EQ(platform.messages.size(), told + 1);

  const int free = QuirkTableRows(table).back();
  game->sheet.QuirkCounts[static_cast<std::size_t>(free)] = 0;
  EXPECT_EQ(RollTableUntilRow(*game, table).Row, free);
  EXPECT_EQ(RollTableUntilRow(*game, table, [](int) { return false; }).Outcome, TableResult::Outcome::NoRow);
}

TEST_F(DiceTest, TheTesterRollsAllSeriesOrNone) {
  TypeDice();
  RunDiceTester(*game);
  EXPECT_TRUE(platform.Showed("Dice Tester is inactive while you are set to roll your own dice."));
  platform.messages.clear();

  game->RuleSwitches[kRollYourOwnDice] = 0;
  platform.CancelProgressAt(2);
  RunDiceTester(*game);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_GE(FileLines("dice.log").size(), 20'000U);

  platform.CancelProgressAt(101);
  game->dice.LogMode = DiceLogMode::Off;
  RunDiceTester(*game);
  ASSERT_EQ(platform.messages.size(), 5U);
  EXPECT_TRUE(Contains(platform.messages.front(), "rolled 3d6 1,000,000 times and resulted in; 1:0, 2:0, 3:"));
  EXPECT_TRUE(Contains(platform.messages.back(), "rolled 3d6 100 times"));
}

}  // namespace
}  // namespace veld
