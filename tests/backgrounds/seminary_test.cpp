#include "backgrounds/seminary.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "rules/seminary_tables.h"
#include "rules/skill_table.h"
#include "rules/talent_table.h"
#include "support/grant_names.h"
#include "youth.h"

namespace veld {
namespace {

using testing::DicePlayer;

constexpr int kBegin = 1;
constexpr int kClose = 2;
constexpr int kFirstLine = 200;

/// A cleric whose player throws the dice that the test tells.
struct Priest {
  Priest() {
    CharacterSheet& sheet = game->sheet;
    testing::MakeYouth(*game, 1);
    sheet.SocialClassIndex = 8;
    sheet.ProficiencySlots = 4;
    sheet.Charisma = {10, 50};
    sheet.HonorDie = 1;
    player.AnswerOthers(Answer::Yes);
    player.dialog = [this](Form& form) {
      if (form.Name() == "DVABackground") {
        form.Press(kBegin);
        for (int line = 0; line < 8; ++line) lines.push_back(form.Text(kFirstLine + line));
        form.Press(kClose);
      } else {
        form.Press(kBegin);  // a pick: the first is taken
      }
    };
  }
  void Play(std::deque<int> dice) {
    player.dice = std::move(dice);
    RunDVABackground(*game);
    EXPECT_TRUE(player.dice.empty()) << player.dice.size() << " dice left";
  }

  DicePlayer player;
  std::unique_ptr<Game> game = testing::QuietGame(player);
  std::vector<std::string> lines;
};

TEST(SeminaryTest, EachTableHandsOnToTheNext) {
  Priest priest;
  CharacterSheet& sheet = priest.game->sheet;
  sheet.FamilyHeritage = "great honor";
  sheet.SocialClassIndex = 12;
  sheet.ClassName = "Zealot of Odin (Odinite)";
  sheet.MagicalDefenseAdj = "+2";
  sheet.CharismaReactionAdj = "-3";
  priest.Play({100, 41,       // 2B: +15, 2C: with birth 35, heritage 20 and will 10 the holy site
               1, 1,          // 2D: 2, with training 2, zeal 2 and will 10 average
               5, 9,          // 2E: 14, with training 2, zeal 2, heritage 4 and manners -3 helpful
               13, 3, 4,      // 2H: singing, and its course die; 1d4-1 points
               1, 8, 5,       // 2F: 9, with training 6 golden; 1d6 points
               8, 3, 20, 77,  // 2I: a walkabout of 3 years, 2J: a skimming operation
               71, 36, 3});   // 2G: with training 10, personality 5 and accoutrements 1 the 87th row; 2K, 2L
  EXPECT_EQ(sheet.EcclesiasticalTraining, "Holy site of religion on Erdra");
  EXPECT_EQ(sheet.SuperiorCompetency, "Average");
  EXPECT_EQ(sheet.SuperiorPersonality, "Helpful & Kindly");
  EXPECT_EQ(priest.lines.at(7), "bonus 5 BPs");
  EXPECT_EQ(sheet.Age, 3);
  const GenerationRun& run = priest.game->run;
  EXPECT_EQ(run.PackageBonusPoints, 3 + 5);
  EXPECT_EQ(run.ResidencyGold, 77);
  EXPECT_EQ(run.BuildingPoints, 5);
  EXPECT_EQ(run.HonorBackgroundModifier, 8);
  EXPECT_EQ(run.InheritanceModifier, -40);
}

TEST(SeminaryTest, ATotalOutsideATableKeepsTheResultAndTheForcedAreConscripted) {
  Priest lowly;
  CharacterSheet& sheet = lowly.game->sheet;
  sheet.SocialClassIndex = 3;
  sheet.FamilyHeritage = "Great Dishonor";
  sheet.EcclesiasticalTraining = "as it was";
  sheet.EducationResults = "as it was";
  sheet.MagicalDefenseAdj = "+2";
  lowly.game->run.SeminaryEducationModifier = 7;
  lowly.Play({16, 1,             // 1, with the call -15, birth -70, heritage -30 and will 10
              8, 12, 24, 1, 12,  // 2D: wise, and 2H: social etiquette with its course die, 2d6 points
              8, 8,              // 2E: 16, with heritage -6 stern
              8, 12, 24, 1, 12,  // 2F: relics
              14, 24, 100, 20, 20});
  EXPECT_EQ(sheet.EcclesiasticalTraining, "as it was");
  EXPECT_EQ(sheet.EducationResults, "as it was");
  EXPECT_EQ(lowly.game->run.SeminaryEducationModifier, 20 - 5 + 5 + 10);

  Priest forced;
  forced.Play({26, 99, 1, 1, 120, 1, 1, 100, 4, 7, 10, 12, 50, 20, 20});
  EXPECT_EQ(forced.game->sheet.EcclesiasticalTraining, "Conscripted");
  EXPECT_EQ(forced.game->sheet.Charisma, (AbilityScore{10, 50 - 120 - 100})) << "not carried into the whole score";
}

TEST(SeminaryTest, ABadEducationCostsTheBPThatThereAre) {
  Priest dull;
  dull.game->run.BuildingPoints = 2;
  dull.Play({55, 50, 5, 5, 5, 5, 5, 5, 12, 13, 25, 12, 20, 20});  // 2G: 25 - 15, "lose 3d4 BP"
  EXPECT_EQ(dull.game->run.BuildingPoints, 0);
  for (const EducationRow& row : EducationRows()) testing::ExpectNamesFound(row.Change);
}

TEST(SeminaryTest, ResidenciesGiveWhatTheySay) {
  Priest hurt;
  hurt.Play({55, 50, 5, 5, 5, 5, 5, 5, 12, 7, 1, 40, 20, 20});  // a row of the maimed is rolled, and lost
  EXPECT_EQ(hurt.game->sheet.ClassExperience[1], 100);
  EXPECT_EQ(hurt.game->sheet.ProficiencySlotsUsed, 1);
  EXPECT_EQ(std::ranges::count(hurt.game->sheet.QuirkCounts, 0), std::ssize(hurt.game->sheet.QuirkCounts));
  Priest clever;
  clever.Play({55, 50, 5, 5, 5, 5, 5, 5, 12, 17, 40, 20, 20});
  EXPECT_EQ(clever.game->sheet.QuirkCounts[590], 1);
  EXPECT_EQ(clever.game->sheet.TalentCounts[static_cast<std::size_t>(FindTalentRow("Quick Casting"))], 1);
}

TEST(SeminaryTest, SkillsComeWithTheMembersOfTheirSuiteOrTheLanguageOfTheReader) {
  Priest healer;
  healer.Play({55, 50, 8, 12, 15, 3, 4, 5, 5, 5, 5, 12, 13, 50, 20, 20});
  EXPECT_GE(healer.game->sheet.SkillScores[static_cast<std::size_t>(FindSkillRow("First Aid: Sew Wounds"))], 50);
  EXPECT_GT(healer.game->sheet.SkillScores[static_cast<std::size_t>(FindSkillRow("First Aid Skill Suite"))], 0);
  Priest speechless;
  speechless.game->run.BuildingPoints = 2.5F;
  speechless.Play({55, 50, 8, 12, 17, 4, 5, 5, 5, 5, 12, 13, 50, 20, 20});
  EXPECT_EQ(speechless.game->run.BuildingPoints, 2) << "a fraction is lost though nothing is granted";
  Priest reader;
  reader.game->sheet.SkillDetailNames[SkillFamily::Language][3] = "Language, Modern: Trollspeak";
  reader.game->sheet.SkillDetailCounts[SkillFamily::Language][3] = 20;
  reader.game->sheet.SkillDetailNames[SkillFamily::ReadingWriting][3] = "Reading/Writing: Trollspeak";
  reader.Play({55, 50, 8, 12, 17, 4, 4, 5, 5, 5, 5, 12, 13, 50, 20, 20});
  EXPECT_GT(reader.game->sheet.SkillDetailCounts[SkillFamily::ReadingWriting][3], 0);
}

}  // namespace
}  // namespace veld
