#include <gtest/gtest.h>

#include <climits>

#include "referee/dice_expression.h"
#include "referee/dice_package.h"
#include "referee/dice_row.h"
#include "referee/gm_dice_roller.h"
#include "referee/monster_attack.h"
#include "support/game_test.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {
namespace {

using testing::FileLines;
using testing::FileText;

class DiceRollerTest : public testing::GameTest<> {
 protected:
  DiceRollerTest() { game->dice.LogMode = DiceLogMode::EachLine; }

  /// Opens the roller and plays it; whatever the play leaves open is closed.
  void Open(const std::function<void(Form&)>& play) {
    platform.ExpectForm("GMDiceRoller", [&](Form& form) {
      play(form);
      platform.AnswerOthers(Answer::Yes);
      form.Press(1);
    });
    RunGmDiceRoller(*game);
  }
  static void FillRow(Form& form, int row, const char* times, const char* sides) {
    form.Mark(160 + row, true);
    form.Type(110 + row, times);
    form.Type(100 + row, sides);
  }
  /// The values of a row of one die that is rolled with many seeds; each must be right for its label.
  std::vector<int> Values(const DiceRow& dice, std::string_view label, std::uint32_t seed) {
    game->dice.RandomState = seed;
    roll = RollDiceRow(*game, dice, 3, label);
    std::vector<int> values;
    for (std::string_view rest = roll.Values; !rest.empty(); rest.remove_prefix(rest.find(' ') + 1)) {
      const bool isPenetration = rest.starts_with("(P)");
      if (isPenetration) rest.remove_prefix(3);
      values.push_back(static_cast<int>(ReadNumberPrefix(rest)));
      EXPECT_EQ(isPenetration, values.size() > 1) << roll.Values;
    }
    return values;
  }

  testing::TestFolder folder;
  RowRoll roll;
};

TEST_F(DiceRollerTest, DicePenetrateAsTheLabelSays) {
  game->dice.LogMode = DiceLogMode::Off;
  const DiceRow d6{.Times = 1, .Sides = 6, .Penetrates = true};
  bool wentDown = false;
  for (std::uint32_t seed = 1; seed < 600; ++seed) {
    for (const char* label : {"", "Bow /EP/", "Axe /CL/", "/EP/ and /CL/"}) {
      const bool isExtended = Contains(label, "/EP/");
      const bool isDownward = Contains(label, "/CL/");
      const std::vector<int> values = Values(d6, label, seed);
      const bool goesDown = isDownward && values[0] == 1;
      int sum = values[0];
      bool goesOn = goesDown || values[0] == 6 || (isExtended && values[0] == 5);
      for (std::size_t i = 1; i < values.size(); ++i) {
        EXPECT_TRUE(goesOn) << roll.Values;
        const int shown = goesDown ? -values[i] : values[i];
        EXPECT_TRUE(shown >= 0 && shown <= 5) << roll.Values;
        goesOn = shown == 5 || (isExtended && shown == 4);
        sum += values[i];
      }
      EXPECT_FALSE(goesOn) << label << ": " << roll.Values;
      EXPECT_EQ(roll.Total, isDownward ? sum : std::max(sum, 1));
      wentDown = wentDown || sum < 0;
    }
  }
  EXPECT_TRUE(wentDown);
}

TEST_F(DiceRollerTest, EveryRowEndsAndKeepsItsLimits) {
  game->dice.LogMode = DiceLogMode::Off;
  for (const auto& [sides, label] : {std::pair{1, ""}, {2, "/EP/"}, {2, "/CL/"}, {3, "/EP//CL/"}}) {
    EXPECT_EQ(Values({.Times = 1, .Sides = sides, .Penetrates = true}, label, 7).size(), 1U) << sides << label;
  }
  const auto count = [&] { return std::ranges::count(roll.Values, ' '); };
  roll = RollDiceRow(*game, {.Times = 32'500, .Sides = 1, .ModPerRoll = 5}, 0, "");
  EXPECT_EQ(roll.Total, 32'005);
  roll = RollDiceRow(*game, {.Times = 32'000, .Sides = 2, .Penetrates = true}, 0, "");
  EXPECT_EQ(count(), 32'000);
  roll = RollDiceRow(*game, {.Times = 32'000, .Sides = INT_MAX, .ModPerDie = INT_MAX, .ModPerRoll = INT_MAX}, 0, "");
  EXPECT_EQ(roll.Total, INT_MAX);
  // Honor goes to each die, and no penetration die falls below 0 by it.
  for (std::uint32_t seed = 1; seed < 200; ++seed) {
    const auto values =
        Values({.Times = 1, .Sides = 4, .ModPerDie = 2, .Penetrates = true, .HonorModifier = -1}, "", seed);
    EXPECT_TRUE(values[0] >= 2 && values[0] <= 5 && (values.size() > 1) == (values[0] == 5)) << roll.Values;
    EXPECT_GE(*std::ranges::min_element(values), 0);
  }
}

TEST_F(DiceRollerTest, ARowIsLoggedInOneBlockAndAnEmptyOneIsNot) {
  const RowRoll none = RollDiceRow(*game, {.Times = 0, .Sides = 6, .ModPerRoll = 3}, 0, "");
  EXPECT_EQ(none.Total, 0);
  EXPECT_TRUE(FileLines("dice.log").empty());
  roll = RollDiceRow(*game, {.Times = 2, .Sides = 6, .ModPerRoll = -20, .Penetrates = true}, 4, "/EP/ /CL/");
  EXPECT_EQ(RollDiceRow(*game, {.Times = 1, .Sides = 4, .ModPerRoll = -9}, 0, "").Total, 1);
  const auto lines = FileLines("dice.log");
  EXPECT_EQ(
      lines[0],
      "Now rolling 2d6 with a Die Modifier of 0 and a roll modifier of -20. The Honor modifier for these rolls is "
      "0 and the rolls are coming from row 4. Penetration is active for this roll.Extended Penetration (max and "
      "max-1) is active.Downward Penetration is active.");
  EXPECT_TRUE(lines[1].starts_with("VELD has rolled 1d6: "));
  EXPECT_TRUE(roll.Values.ends_with(" -20 "));
  EXPECT_LT(roll.Total, 1);
  const auto values = std::ranges::find(lines, roll.Values);
  ASSERT_LT(values, lines.end() - 2);
  EXPECT_EQ(values[1], Format("Row Total = %i", roll.Total));
  EXPECT_EQ(values[2], "");
  EXPECT_EQ(game->dice.LogMode, DiceLogMode::EachLine);
}

TEST_F(DiceRollerTest, ManyTypedDiceAreLeftAtOnce) {
  game->RuleSwitches[kRollYourOwnDice] = 1;
  const auto answer = [&](const char* typed, int button) {
    platform.ExpectForm("GetDice", [=](Form& form) {
      form.Type(3000, typed);
      form.Press(button);
    });
  };
  answer("6", 1);
  answer("", 2);
  roll = RollDiceRow(*game, {.Times = 32'000, .Sides = 6}, 0, "");
  EXPECT_TRUE(roll.Values.starts_with("6 "));
  EXPECT_TRUE(game->IsOn(kRollYourOwnDice));
  answer("", 3043);
  RollDiceRow(*game, {.Times = 5, .Sides = 6}, 0, "");
  EXPECT_FALSE(game->IsOn(kRollYourOwnDice));
  EXPECT_EQ(platform.StepsLeft(), 0U);
}

TEST_F(DiceRollerTest, MonstersHitByTheTable) {
  struct Case {
    const char* HitDice;
    int Result;
    int ArmorClass;
  };
  constexpr Case kCases[] = {
      {"3+1", 7, 7},  {"3+1", 20, -11}, {"1-1", 10, 8},     {"7 HP", 10, 8},   {"1", 25, -13},
      {"1+2", 1, 15}, {"1+3", 1, 14},   {"4+3", 1, 11},     {"11+3", 1, 14},   {"16", 17, -16},
      {"17", 17, 17}, {"20", 1, -2},    {"19+9", 1, 6},     {"20+4", 20, -28}, {"11", 21, -20},
      {"12", 21, 21}, {"", 5, 999},     {"dragon", 5, 999}, {"21", 5, 999},
  };
  for (const auto& [hitDice, result, armorClass] : kCases) {
    EXPECT_EQ(MonsterHitsArmorClass(hitDice, result), armorClass) << hitDice << " with " << result;
  }
}

TEST_F(DiceRollerTest, ExpressionsAreReadWholeOrNotAtAll) {
  const auto read = [](std::string_view text) {
    const auto row = ReadDiceExpression(text);
    return row ? Format("%i %i %i %i", row->Times, row->Sides, row->ModPerRoll, row->Penetrates) : std::string("-");
  };
  EXPECT_EQ(read("3d6+2"), "3 6 2 0");
  EXPECT_EQ(read(" 2 D8P - 1"), "2 8 -1 1");
  EXPECT_EQ(read("d20"), "1 20 0 0");
  EXPECT_EQ(read("32000d999999p"), "32000 999999 0 1");
  for (const char* bad : {"", "d", "3", "0d6", "3d0", "3d6+", "3d6+2x", "32001d6", "2d1000000", "3dp", "-3d6", "3d6++1",
                          "99999999999999999999d6"}) {
    EXPECT_EQ(read(bad), "-") << bad;
  }
}

TEST_F(DiceRollerTest, RollsWhatIsIncludedAndTellsIt) {
  Open([&](Form& form) {
    FillRow(form, 0, "3", "1");
    FillRow(form, 6, "2", "1");
    form.Type(126, "-4");
    form.Mark(3024, true);
    FillRow(form, 9, "40000", "1");
    form.Mark(169, false);
    FillRow(form, 2, "x", "6");
    form.Press(3043);
    EXPECT_EQ(form.Text(140), "1 1 1 ");
    EXPECT_EQ(form.Text(146), "-2 -2 ");
    EXPECT_EQ(form.Text(150) + form.Text(152) + form.Text(156) + form.Text(159), "301");
    EXPECT_EQ(form.Text(3001), "4");
    form.Type(3062, "5d1+1");
    form.Press(3063);
    EXPECT_EQ(form.Text(111) + form.Text(101) + form.Text(131) + form.Text(151), "5116");
    EXPECT_EQ(form.Items(3021), (std::vector<std::string>{" ( 3, 0, 1 ) = 4", "5d1+1 ( 6 ) = 6"}));
    form.Type(3062, "5d");
    form.Press(3063);
    platform.ExpectTyped("GetName", "4");
    form.Press(3050);
    ASSERT_EQ(form.Items(3021).size(), 3U);
    EXPECT_TRUE(form.Items(3021)[2].starts_with("Monster with 4 Hit Dice is rolling to hit getting a result of "));
    EXPECT_TRUE(platform.Showed(form.Items(3021)[2]));
    form.Press(3065);
    EXPECT_TRUE(platform.clipboard.starts_with(" ( 3, 0, 1 ) = 4\n5d1+1 ( 6 ) = 6\nMonster"));
    form.Type(119, "");
    form.Type(109, "");
    for (int i = 0; i < 12; ++i) {  // the free rows, then those that expressions filled, oldest first
      form.Type(3062, Format("%id1", i + 1));
      form.Press(3063);
    }
    EXPECT_EQ(form.Text(110) + "," + form.Text(116) + "," + form.Text(119), "3,2,6") << "rows of the referee stay";
  });
  EXPECT_TRUE(Contains(FileText("dice.log"), "With a Total of: 4\n"));
}

TEST_F(DiceRollerTest, PackagesAreStoredSavedAndLoaded) {
  Open([&](Form& form) {
    FillRow(form, 1, "4", "6");
    form.Mark(171, true);
    form.Mark(3006, true);
    platform.ExpectTyped("GetName", "");
    form.Press(3046);
    EXPECT_TRUE(platform.Showed("without a name"));
    for (const char* name : {"beta", "Alpha /CL/", "beta"}) {
      platform.ExpectTyped("GetName", name);
      form.Press(3046);
    }
    EXPECT_EQ(form.Items(3115), (std::vector<std::string>{"Alpha /CL/", "beta"}));
    EXPECT_EQ(form.SelectedText(3115), "beta");
    testing::ChooseText(form, 3115, "Alpha /CL/");
    form.Press(3047);
    platform.ExpectSavePath("rolls.dice");
    form.Press(3061);
  });
  std::string bytes = FileText("rolls.dice");
  ASSERT_EQ(bytes.size(), 268'000U);
  EXPECT_EQ(bytes.substr(280, 5), std::string_view("beta\0", 5));
  EXPECT_EQ(bytes.substr(536 + 240, 2), "\xBC\x0B") << "a removed roll has the first button's id, 3004";
  Open([&](Form& form) {
    EXPECT_TRUE(form.Items(3115).empty());
    platform.ExpectOpenPath("rolls.dice");
    form.Press(3060);
    testing::ChooseText(form, 3115, "beta");
    EXPECT_EQ(form.Text(111) + form.Text(101) + form.Text(110), "46");
    EXPECT_TRUE(form.IsChecked(161) && form.IsChecked(171) && form.IsChecked(3006) && !form.IsChecked(3007));
    testing::WriteText("short.dice", bytes.substr(1));
    for (const char* bad : {"short.dice", "missing.dice"}) {
      platform.ExpectOpenPath(bad);
      form.Press(3060);
    }
    EXPECT_EQ(form.Items(3115).size(), 1U) << "what was there stays";
    platform.ExpectSavePath("no-folder/x.dice");
    form.Press(3061);
  });
  EXPECT_EQ(std::ranges::count(platform.messages, "VELD: Problem Loading Dice Package"), 2);
  EXPECT_TRUE(platform.Showed("Problem Saving Dice Package"));

  const auto package = std::make_unique<DicePackage>();
  ResetDicePackage(*package);
  DiceRollRecord roll500 = FreeDiceRoll();
  for (std::size_t i = 0; i < kDiceRolls; ++i) {
    roll500.Name = Format("%i", i);
    EXPECT_EQ(StoreDiceRoll(*package, roll500), i);
  }
  roll500.Name = "one more";
  EXPECT_EQ(StoreDiceRoll(*package, roll500), std::nullopt);
}

TEST_F(DiceRollerTest, TheDiceOfACharacterInTheMakingStayAsTheyAre) {
  game->dice.DiceLabel = "for the height";
  game->dice.RollContextText = "Roll for INT";
  game->dice.DiceEntryValue = 5;
  Open([&](Form& form) {
    FillRow(form, 0, "9", "6");
    form.Press(3043);
  });
  EXPECT_EQ(game->dice.DiceLabel, "for the height");
  EXPECT_EQ(game->dice.RollContextText, "Roll for INT");
  EXPECT_EQ(game->dice.DiceEntryValue, 5);
  EXPECT_EQ(game->dice.LogFile, -1);
  EXPECT_TRUE(Contains(FileText("dice.log"), "VELD has rolled 1d6: ")) << "no label of the generation's";
}

}  // namespace
}  // namespace veld
