#include <gtest/gtest.h>

#include <algorithm>

#include "rules/class_table.h"
#include "steps/finish/alignment.h"
#include "steps/finish/naming.h"
#include "steps/skills/tattoo.h"
#include "support/game_test.h"
#include "support/random_player.h"

namespace veld {
namespace {

using testing::RandomPlayer;

class TattooTest : public testing::GameTest<> {
 protected:
  TattooTest() {
    game->sheet.RaceName = "Pixie Fairy";
    game->run.BuildingPoints = 40;
    for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(game->sheet, ability) = {12, 30};
  }

  bool Add(std::string_view name, int place) {
    game->TextScratch = name;
    return AddTattoo(*game, place);
  }
  bool Remove(std::string_view line) {
    game->TextScratch = line;
    return RemoveTattoo(*game);
  }
};

TEST_F(TattooTest, EachIsTakenOnceWhereItBelongs) {
  EXPECT_FALSE(Add("Ardkrin", kForehead));
  EXPECT_TRUE(Add("Ardkrin", kLeftUpperArm));
  EXPECT_FALSE(Add("Ardkrin", kRightUpperArm)) << "held";
  EXPECT_FALSE(Add("Hurdkrin", kLeftUpperArm)) << "the place is taken";
  EXPECT_EQ(game->run.BuildingPoints, 35);
  EXPECT_EQ(game->sheet.Constitution, (AbilityScore{11, 80}));

  EXPECT_TRUE(Add("Tarkrin", kForehead));
  EXPECT_FALSE(Add("Emphkrin", kForehead)) << "free of charge, but the forehead is taken";
  EXPECT_EQ(OwnedTattoos(*game), (std::vector<std::string>{"Tarkrin,  Forehead", "Ardkrin,  Left Upper Arm"}));
  EXPECT_TRUE(Remove("Tarkrin,  Forehead"));
  EXPECT_TRUE(Add("Emphkrin", kForehead));

  game->run.BuildingPoints = 4.5F;
  EXPECT_FALSE(Add("Shewkrin", kLeftLowerArm)) << "too dear";
}

TEST_F(TattooTest, TheStrongArmsAreTakenTogether) {
  EXPECT_TRUE(Add("Shewkrin", kRightLowerArm));
  EXPECT_FALSE(Add("Grekrin", kLeftLowerArm));
  EXPECT_TRUE(Remove("Shewkrin,  Right Lower Arm"));
  EXPECT_TRUE(Add("Grekrin", kLeftLowerArm));
  EXPECT_EQ(game->sheet.TattooChoices, (std::array{0, 0, 0, 0, 1, 1, 1}));
  EXPECT_EQ(game->sheet.Strength.Whole, 14);
  EXPECT_EQ(OwnedTattoos(*game), (std::vector<std::string>{"Grekrin,  Both Lower Arms"}));
  EXPECT_FALSE(Add("Shewkrin", kRightLowerArm));
  EXPECT_TRUE(Remove("Grekrin,  Both Lower Arms"));
  EXPECT_EQ(game->sheet.TattooChoices, (std::array<int, 7>{}));
  EXPECT_EQ(game->sheet.Strength, (AbilityScore{12, 30}));
}

TEST_F(TattooTest, TheDialogIsForPixieFairies) {
  Play("Tattoo", RunTattoo, [&](Form& form) {
    EXPECT_EQ(form.Items(3021).size(), 10U);
    form.Press(4001);  // nothing selected
    form.Choose(3021, 0);
    form.Press(4003);
    form.Press(4001);
    EXPECT_EQ(form.Items(3022), (std::vector<std::string>{"Yiskrin,  Forehead"}));
    EXPECT_EQ(form.Text(25) + ", " + form.Text(55), "38 BP, CHA 13/30");
    form.Press(4010);  // nothing selected
    form.Choose(3022, 0);
    form.Press(4010);
    EXPECT_TRUE(form.Items(3022).empty());
    form.Press(1);
  });
  EXPECT_EQ(game->sheet.Comeliness, (AbilityScore{12, 30})) << "its table of Charisma must not reach Comeliness";
  game->sheet.RaceName = "Human";
  RunTattoo(*game);
  EXPECT_EQ(platform.forms.size(), 1U);
}

TEST(TattooRandomTest, WhatWasPaidIsWhatComesBack) {
  RandomPlayer player(5, 400);
  const auto game = MakeGame(player);
  game->sheet.RaceName = "Pixie Fairy";
  std::size_t most = 0;
  for (int run = 0; run < 600; ++run) {
    const float points = static_cast<float>(run % 60) + 0.5F;
    game->run.BuildingPoints = points;
    const AbilityScore constitution = {9, std::array{0, 50, 100, run % 101}[static_cast<std::size_t>(run % 4)]};
    game->sheet.Constitution = constitution;
    RunTattoo(*game);
    ASSERT_GE(game->run.BuildingPoints, 0) << run;
    const auto owned = OwnedTattoos(*game);
    most = std::max(most, owned.size());
    for (const std::string& line : owned) {
      game->TextScratch = line;
      ASSERT_TRUE(RemoveTattoo(*game)) << line;
    }
    ASSERT_EQ(game->run.BuildingPoints, points) << run;
    ASSERT_EQ(game->sheet.TattooChoices, (std::array<int, 7>{})) << run;
    ASSERT_EQ(game->sheet.Constitution, constitution) << run;
    ASSERT_EQ(WholeScores(game->sheet), (std::array{3, 3, 9, 3, 3, 3, 3})) << run;
  }
  EXPECT_GE(most, 3U);
  EXPECT_LE(most, 5U) << "there are five places";
}

class AlignmentTest : public testing::GameTest<> {
 protected:
  bool IsOpen(std::string_view className, std::string_view alignment) {
    game->sheet.ClassName = className;
    return std::ranges::count(OpenAlignmentNames(*game), alignment) == 1;
  }

  /// Opens Step 14, chooses a line and presses OK.
  void Pick(std::string_view alignment) {
    Play("StepFourteen", RunStepFourteen, [=](Form& form) {
      testing::ChooseText(form, 4046, alignment);
      form.PressDefault();
    });
  }
};

TEST_F(AlignmentTest, AllClassesMustAllowIt) {
  const auto& table = ClassTable();
  for (const ClassRecord& row : table) {
    if (row.Name.empty()) continue;
    game->sheet.ClassName = row.Name;
    EXPECT_FALSE(OpenAlignmentNames(*game).empty()) << row.Name;
  }
  EXPECT_TRUE(IsOpen("Paladin", "Lawful-good  "));
  EXPECT_FALSE(IsOpen("Paladin", "Neutral-good  "));
  EXPECT_TRUE(IsOpen("Paladin/Druid", "Neutral  ")) << "any druid may be neutral";
  EXPECT_FALSE(IsOpen("Paladin/Assassin", "Lawful-good  "));
  EXPECT_EQ((game->sheet.ClassName = "Nobody", OpenAlignmentNames(*game).size()), 9U);
}

TEST_F(AlignmentTest, OneMustBePicked) {
  game->run.CurrentStep = 14;
  game->sheet.ClassName = "Fighter";
  Play("StepFourteen", RunStepFourteen, [&](Form& form) {
    form.PressDefault();
    EXPECT_FALSE(form.IsClosed());
    EXPECT_TRUE(platform.Showed("VELD: You must pick an Alignment"));
    form.Press(2);
  });
  EXPECT_EQ(game->run.CurrentStep, 14);
  Pick("Chaotic-neutral  ");
  EXPECT_EQ(game->run.CurrentStep, 15);
  EXPECT_EQ(game->sheet.Alignment, "Chaotic-neutral  ");
}

TEST_F(AlignmentTest, RiotersMayGainAQuirk) {
  game->sheet.ClassName = "Fighter";
  game->run.RiotVolunteer = 1;
  game->run.VigilBuster = 1;
  Pick("Neutral-good  ");
  EXPECT_EQ(game->sheet.QuirkCounts[91], 0);
  EXPECT_EQ(game->sheet.QuirkCounts[64], 1);
  EXPECT_TRUE(platform.Showed("You just gained the Nagging Conscience quirk"));
  Pick("Lawful-evil  ");
  Pick("Lawful-evil  ");
  EXPECT_EQ(game->sheet.QuirkCounts[91], 1) << "set, not added to";
  EXPECT_EQ(game->sheet.OccupationEvents,
            " You ended up with a nagging conscience. You ended up becoming a jerk. You ended up becoming a jerk.");
}

TEST_F(AlignmentTest, ACharacterNeedsANameOfItsOwn) {
  game->run.CurrentStep = 15;
  Play("StepEightteen", RunStepEightteen, [](Form& form) {
    EXPECT_EQ(form.Text(3000), "name");
    form.PressDefault();
    form.Type(3000, "NAME");
    form.PressDefault();
    EXPECT_FALSE(form.IsClosed());
    form.Type(3000, "Brunhild");
    form.Press(2);
  });
  EXPECT_EQ(game->sheet.CharacterName, "name");
  EXPECT_EQ(game->run.CurrentStep, 15);

  Play("StepEightteen", RunStepEightteen, [](Form& form) {
    form.Type(3000, std::string(78, 'x') + "\xc3\xa4");
    form.Type(3001, "Someone");
    form.PressDefault();
  });
  EXPECT_EQ(game->sheet.CharacterName, std::string(78, 'x')) << "cut on a whole character";
  EXPECT_EQ(game->sheet.PlayerName, "Someone");
  EXPECT_EQ(game->run.CurrentStep, 19);
}

}  // namespace
}  // namespace veld
