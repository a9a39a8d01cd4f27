#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <map>
#include <set>

#include "dice/dice.h"
#include "generation/sequencer.h"
#include "rules/quirk_table.h"
#include "rules/race_table.h"
#include "rules/skill_table.h"
#include "steps/classes/class_choice.h"
#include "steps/race/step_three.h"
#include "store/character_file.h"
#include "support/game_test.h"
#include "support/random_player.h"
#include "text/search.h"

namespace veld {
namespace {

using testing::RandomPlayer;
using testing::FileText;
using testing::TestFolder;

constexpr int kRaces = 3021;
constexpr int kContinue = 3043;
constexpr int kOk = 1;
constexpr int kAtEnd = 20;  // CurrentStep

bool IsChain(std::string_view form) {
  return form.ends_with("ABackground");
}

/// Raises no ability, takes whichever class there is and mostly wants the youths that it is offered. The rest is
/// chance.
class Youth : public RandomPlayer {
 public:
  explicit Youth(std::uint32_t seed) : RandomPlayer(seed, 80) { savePath = "hero.vlf"; }

  void RunForm(Form& form) override {
    const std::string_view name = form.Name();
    const bool isClassChoice = name == "StepNine";
    const bool isAllotment = name.ends_with("Abilities");
    if (!isClassChoice && !isAllotment && name != "StepEight" && !IsChain(name)) return RandomPlayer::RunForm(form);
    forms.emplace_back(name);
    form.Open();
    if (isClassChoice) form.Choose(kClassList, PickClass(form.Items(kClassList)));
    if (isAllotment) testing::SpreadPoints(form);
    form.Press(kOk);
    if (!form.IsClosed()) form.PressCloseBox();
    EXPECT_TRUE(form.IsClosed()) << name;
  }

 protected:
  Answer DoAskYesNo(const std::string& caption, const std::string& text) override {
    if (text.ends_with("Tables?") && Pick(8) != 0) return Answer::Yes;
    return RandomPlayer::DoAskYesNo(caption, text);
  }

 private:
  /// In every second run one of several callings, if there are any.
  int PickClass(const std::vector<std::string>& classes) {
    std::vector<int> joined;
    for (const std::string& name : classes) {
      if (Contains(name, "/")) joined.push_back(static_cast<int>(&name - classes.data()));
    }
    if (!joined.empty() && Pick(2) == 0) return joined[Pick(static_cast<std::uint32_t>(joined.size()))];
    return static_cast<int>(Pick(static_cast<std::uint32_t>(classes.size())));
  }
};
constexpr int kMostPicks = 3;

std::unique_ptr<Game> ShippedGame(Youth& player) {
  auto game = testing::QuietGame(player);
  testing::LoadShippedCatalogues(*game);
  return game;
}

/// Plays one generation at random from the race on. Every race comes up in turn: the abilities are made to fit it.
void PlayGeneration(Game& game, Youth& player, std::uint32_t seed) {
  const int race = static_cast<int>(seed % kRacesFilled);
  ResetCharacter(game);
  game.dice.RandomState = seed;
  game.RuleSwitches[kRollYourOwnDice] = seed % 2 == 0 ? 1 : 0;
  RollAbilityScores(game);
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const AbilityRange& limits =
        RaceTable()[static_cast<std::size_t>(race)].AbilityLimits[static_cast<std::size_t>(ability)];
    int& whole = AbilityAt(game.sheet, ability).Whole;
    whole = std::clamp(seed % 3 != 0 ? 18 : whole, limits.Minimum, limits.Maximum);
  }
  OpenStepThree(game, RunGeneration);
  const auto& races = player.window->Items(kRaces);
  const auto found = std::ranges::find(races, RaceListText(race));
  ASSERT_NE(found, races.end()) << RaceListText(race);
  player.window->Choose(kRaces, static_cast<int>(found - races.begin()));
  game.RuleSwitches[kSocialClassRestrictions] = seed % 5 == 0 ? 0 : 1;
  game.run.BuildingPoints += static_cast<float>(seed % 61) - 10.5F;
  player.window->Press(kContinue);
}

void ExpectPossible(const Game& game) {
  const CharacterSheet& sheet = game.sheet;
  EXPECT_GE(sheet.GoldPieces, 0);
  for (std::size_t row = 0; row < kSkillRows; ++row) {
    const bool isHeld = sheet.SkillScores[row] != 0;
    EXPECT_TRUE(!isHeld || (row < SkillTable().size() && !SkillTable()[row].Name.empty())) << "skill " << row;
  }
  for (std::size_t row = 0; row < kQuirkRows; ++row) {
    const int held = sheet.QuirkCounts[row];
    EXPECT_TRUE(held >= -1 && held <= QuirkTable()[row].MaxCount + kMostPicks) << "quirk " << row << ": " << held;
  }
  EXPECT_TRUE(sheet.MinorFlawPicksLeft >= 0 && sheet.MinorFlawPicksLeft <= 2);
  EXPECT_TRUE(sheet.MajorFlawPicksLeft >= 0 && sheet.MajorFlawPicksLeft <= 1);
  EXPECT_EQ(game.run.QuirkRollsLeft, 0);
  EXPECT_TRUE(std::isfinite(game.run.BuildingPoints));
  EXPECT_TRUE(game.run.CurrentStep <= 10 || !sheet.LevelText.Empty()) << sheet.ClassName.View();
  for (const int mark : sheet.SpellsKnown) EXPECT_GE(mark, 0);
  for (const int level : sheet.ClassLevels) EXPECT_TRUE(level >= 0 && level <= kHighestLevel);
}

void ExpectLoadsBackEqual(Game& game, Youth& player) {
  ASSERT_TRUE(SaveCharacterFile(game, "hero.vlf", {.Flush = false}));
  const std::string saved = FileText("hero.vlf");
  const auto reader = ShippedGame(player);
  ASSERT_TRUE(LoadCharacterFile(*reader, "hero.vlf"));
  EXPECT_EQ(EncodeCharacter(*reader), saved);
}

/// Who died is told so once, and the page of the youth was the last that opened.
void ExpectDead(const Game& game, const Youth& player) {
  EXPECT_EQ(std::ranges::count(player.messages, "VELD: Your character did not live to adventure."), 1);
  EXPECT_EQ(player.messages.back(), "VELD: Your character did not live to adventure.");
  const auto last = std::ranges::find_if_not(player.forms.rbegin(), player.forms.rend(), [](const std::string& form) {
    return form == "GetDice" || form.starts_with("Free") || form.starts_with("Quirksand");
  });
  ASSERT_NE(last, player.forms.rend());
  EXPECT_TRUE(IsChain(*last)) << *last;
  EXPECT_EQ(game.run.CurrentStep, 1);
  EXPECT_FALSE(game.isFinished);
}

/// VELD_WHOLE_RUNS=2000 plays more of them.
std::uint32_t RunsToPlay() {
  const char* const asked = std::getenv("VELD_WHOLE_RUNS");
  return asked ? static_cast<std::uint32_t>(std::atoi(asked)) : 300;
}

TEST(WholeRunTest, AnyPlayEndsInACharacterThatLoadsBackEqualOrInADeath) {
  TestFolder folder;
  std::map<std::string, std::uint32_t> pages;  // how many runs came to it
  std::uint32_t finished = 0;
  std::uint32_t deaths = 0;
  const std::uint32_t runs = RunsToPlay();
  for (std::uint32_t seed = 1; seed <= runs; ++seed) {
    SCOPED_TRACE(seed);
    Youth player(seed);
    const auto game = ShippedGame(player);
    PlayGeneration(*game, player, seed);
    EXPECT_EQ(player.stuckForm, "");
    ExpectPossible(*game);
    if (game->run.CharacterDead == 1) {
      ExpectDead(*game, player);
      ++deaths;
    }
    ExpectLoadsBackEqual(*game, player);
    if (HasFailure()) return;
    for (const std::string& page : std::set(player.forms.begin(), player.forms.end())) ++pages[page];
    if (game->run.CurrentStep == kAtEnd) ++finished;
  }
  for (const char* page : {"WMABackground", "HXABackground", "DVABackground", "PackageSelect"}) {
    EXPECT_GT(pages[page], runs / 15) << page;
  }
  EXPECT_GT(finished, runs / 2);
  std::cout << finished << " finished, " << deaths << " died\n";
}

}  // namespace
}  // namespace veld
