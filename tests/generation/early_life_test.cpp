#include <gtest/gtest.h>

#include <cmath>

#include "dice/dice.h"
#include "rules/class_table.h"
#include "rules/quirk_table.h"
#include "rules/race_table.h"
#include "steps/abilities/step_eight.h"
#include "steps/classes/step_nine.h"
#include "steps/classes/take_after.h"
#include "steps/family/siblings.h"
#include "steps/family/step_six.h"
#include "steps/quirks/cherry_pick.h"
#include "steps/quirks/quirk_effects.h"
#include "steps/race/race_choice.h"
#include "support/random_player.h"

namespace veld {
namespace {

constexpr int kOk = 1;
constexpr int kDiceEntry = 3000;
constexpr int kMostPicks = 3;

/// A random player who also throws dice of his own: types what may be a result, or leaves the roll to the program.
class DiceThrower : public testing::RandomPlayer {
 public:
  explicit DiceThrower(std::uint32_t seed) : RandomPlayer(seed, 40) {}

  int prompts = 0;

  void RunForm(Form& form) override {
    if (form.Name() != "GetDice") return RandomPlayer::RunForm(form);
    ++prompts;
    form.Open();
    if (Pick(3) == 0) return form.PressCloseBox();
    form.Type(kDiceEntry, Format("%i", Pick(Pick(2) == 0 ? 110 : 7)));
    form.Press(kOk);
  }
};

void BeginLife(Game& game, std::uint32_t seed) {
  ResetCharacter(game);
  game.dice.RandomState = seed;
  game.RuleSwitches[kRollYourOwnDice] = 0;
  game.RuleSwitches[kSocialClassRestrictions] = seed % 5 == 0 ? 0 : 1;
  RollAbilityScores(game);
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    if (seed % 2 == 0) AbilityAt(game.sheet, ability).Whole = 17;  // so that many classes are open
  }
  ApplyRace(game, TakeBase(game), RaceListText(static_cast<int>(seed % kRacesFilled)));
  game.run.CurrentStep = 3;
  game.run.BuildingPoints = static_cast<float>(seed % 61) - 10.5F;
  game.RuleSwitches[kRollYourOwnDice] = seed % 3 == 0 ? 1 : 0;
}

void ExpectPossible(const Game& game) {
  const GenerationRun& run = game.run;
  EXPECT_TRUE(std::isfinite(run.BuildingPoints));
  EXPECT_EQ(run.QuirkRollsLeft, 0);
  EXPECT_TRUE(game.sheet.MinorFlawPicksLeft >= 0 && game.sheet.MinorFlawPicksLeft <= 2);
  EXPECT_TRUE(game.sheet.MajorFlawPicksLeft >= 0 && game.sheet.MajorFlawPicksLeft <= 1);
  for (std::size_t row = 0; row < kQuirkRows; ++row) {
    const int held = game.sheet.QuirkCounts[row];
    EXPECT_TRUE(held >= 0 && held <= QuirkTable()[row].MaxCount + kMostPicks) << "quirk " << row << ": " << held;
  }
}

/// Plays a stage from the step at which it is due, however the one before it ended: the rules hold in any state.
void Play(Game& game, int due, int next, void (*stage)(Game&)) {
  game.run.CurrentStep = due;
  stage(game);
  const int step = game.run.CurrentStep;
  EXPECT_TRUE(step == next || step == 0 || step == 1) << "step " << step << " after " << due;
  ExpectPossible(game);
}

TEST(EarlyLifeTest, AnyPlayFromThePriorsToTheClassEndsInAPossibleCharacter) {
  constexpr std::uint32_t kRuns = 2'000;
  int prompts = 0;
  int classes = 0;
  for (std::uint32_t seed = 1; seed <= kRuns && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    DiceThrower player(seed);
    const auto game = MakeGame(player);
    game->dice.LogMode = DiceLogMode::Off;
    BeginLife(*game, seed);
    Play(*game, 3, 7, RunStepSix);
    Play(*game, 7, 7, RunSiblings);
    Play(*game, 7, 8, RunCherryPick);
    const float before = game->run.BuildingPoints;
    PayQuirks(*game);
    EXPECT_GE(game->run.BuildingPoints, before);
    ApplyQuirkEffects(*game);
    Play(*game, 8, 9, RunStepEight);
    game->run.CurrentStep = 9;
    if (game->run.BuildingPoints >= kTakeAfterCost) RunTakeAfter(*game);
    Play(*game, 9, 10, RunStepNine);
    EXPECT_EQ(player.stuckForm, "");
    prompts += player.prompts;
    if (game->run.CurrentStep != 10) continue;
    ++classes;
    EXPECT_FALSE(game->sheet.LevelText.Empty()) << game->sheet.ClassName.View();
    EXPECT_GT(game->sheet.HonorCategory.Length(), 0U);
  }
  EXPECT_GT(prompts, 5'000);
  EXPECT_GT(classes, 500);
}

}  // namespace
}  // namespace veld
