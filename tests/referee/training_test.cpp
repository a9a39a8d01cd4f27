#include "referee/training.h"

#include <gtest/gtest.h>

#include "support/game_test.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {
namespace {

using testing::FileLines;

class TrainingTest : public testing::GameTest<> {
 protected:
  /// Trains with a seed, and returns the five lines shown.
  std::vector<std::string> Train(std::uint32_t seed) {
    game->dice.RandomState = seed;
    std::vector<std::string> lines;
    platform.ExpectForm("Training", [&](Form& form) {
      for (int line = 200; line < 205; ++line) lines.push_back(form.Text(line));
      form.Press(2);
    });
    RunTraining(*game);
    return lines;
  }

  testing::TestFolder folder;
};

TEST_F(TrainingTest, ShowsFiveLinesAndLogsThemAfterABlankOne) {
  const auto first = Train(1);
  Train(2);
  const auto logged = FileLines("Training.log");
  ASSERT_EQ(logged.size(), 12U);
  EXPECT_EQ(logged[0], "");
  EXPECT_EQ(logged[6], "");
  constexpr std::string_view kBegins[] = {"Location/Proximity of School (", "Quality of Teacher (",
                                          "Class Size/Conditions (", "Basic Block of Instruction (",
                                          "Training Event Table ("};
  for (std::size_t line = 0; line < 5; ++line) {
    EXPECT_EQ(logged[line + 1], first[line]);
    EXPECT_TRUE(first[line].starts_with(kBegins[line])) << first[line];
  }
}

TEST_F(TrainingTest, GivesWhatItsLinesSay) {
  bool hasWonDuel = false;
  bool hasReplacedSkills = false;
  bool hasEarned = false;
  for (std::uint32_t seed = 1; seed < 400; ++seed) {
    game->sheet.Honor = 10;
    game->run.TrainingFreeMastery = game->run.TrainingFreeSkills = -1;
    const auto lines = Train(seed * 7919);
    const auto told = [&](std::size_t line, const std::string& text) { return Contains(lines[line], text); };
    const int mastery = game->run.TrainingFreeMastery;
    const int skills = game->run.TrainingFreeSkills;
    EXPECT_EQ(mastery != -1, told(3, Format("You have gained %i free Mastery Skill Points. ", mastery))) << lines[3];
    if (told(4, "Learn a new skill")) {
      EXPECT_EQ(skills, 1);
      hasReplacedSkills = hasReplacedSkills || told(3, "free Skills. ");
    } else {
      EXPECT_EQ(skills != -1, told(3, Format("You have gained %i free Skills. ", skills))) << lines[3];
    }
    const int honor = game->sheet.Honor - 10;
    EXPECT_EQ(honor > 0, told(4, Format("Won Duel of Honor -  You have gained %i Honor. ", honor))) << lines[4];
    EXPECT_LE(honor, 6);
    hasWonDuel = hasWonDuel || honor > 0;
    hasEarned = hasEarned || told(4, "experience points. ");
  }
  EXPECT_TRUE(hasWonDuel && hasReplacedSkills && hasEarned);
}

}  // namespace
}  // namespace veld
