#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <map>
#include <set>

#include "dice/dice.h"
#include "generation/sequencer.h"
#include "rules/quirk_table.h"
#include "rules/race_table.h"
#include "rules/skill_table.h"
#include "steps/race/step_three.h"
#include "store/character_file.h"
#include "store/side_files.h"
#include "support/random_player.h"
#include "support/scripted_platform.h"

namespace veld {
namespace {

using testing::FileText;
using testing::RandomPlayer;
using testing::TestFolder;

constexpr int kRaces = 3021;
constexpr int kContinue = 3043;
constexpr int kMostPicks = 3;

/// A game whose goods and spells are those that ship.
std::unique_ptr<Game> ShippedGame(Platform& platform) {
  static const std::string kGoods = FileText(std::string(VELD_DATA_DIR) + "/equip.vlb");
  static const std::string kSpells = FileText(std::string(VELD_DATA_DIR) + "/spells.vld");
  auto game = MakeGame(platform);
  game->RuleSwitches[kRollYourOwnDice] = 0;
  game->dice.LogMode = DiceLogMode::Off;
  DecodeEquipment(kGoods, game->EquipmentTable);
  DecodeSpells(kSpells, game->SpellTable);
  return game;
}

/// Plays one generation at random from the race on. Every race comes up in turn: the abilities are made to fit it.
void PlayGeneration(Game& game, RandomPlayer& player, std::uint32_t seed) {
  const int race = static_cast<int>(seed % kRacesFilled);
  ResetCharacter(game);
  game.dice.RandomState = seed;
  RollAbilityScores(game);
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const AbilityRange& limits = RaceTable()[static_cast<std::size_t>(race)].AbilityLimits[static_cast<std::size_t>(ability)];
    int& whole = AbilityAt(game.sheet, ability).Whole;
    whole = std::clamp(seed % 3 == 0 ? 18 : whole, limits.Minimum, limits.Maximum);
  }
  OpenStepThree(game, RunGeneration);
  const auto& races = player.window->Items(kRaces);
  const auto found = std::ranges::find(races, RaceListText(race));
  ASSERT_NE(found, races.end()) << RaceListText(race);
  player.window->Choose(kRaces, static_cast<int>(found - races.begin()));
  game.RuleSwitches[kRollYourOwnDice] = seed % 3 == 1 ? 1 : 0;
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

TEST(WholeRunTest, AnyPlayEndsWithACharacterThatLoadsBackEqual) {
  TestFolder folder;
  std::set<std::string> forms;
  std::set<std::string> classes;
  std::map<int, int> ends;
  constexpr std::uint32_t kRuns = 150;
  for (std::uint32_t seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE(seed);
    RandomPlayer player(seed, 80);
    player.savePath = "hero.vlf";
    const auto game = ShippedGame(player);
    PlayGeneration(*game, player, seed);
    EXPECT_EQ(player.stuckForm, "");
    ExpectPossible(*game);
    forms.insert(player.forms.begin(), player.forms.end());
    classes.insert(std::string(game->sheet.ClassName));
    ++ends[game->run.CurrentStep];

    ASSERT_TRUE(SaveCharacterFile(*game, "hero.vlf", {.Flush = false}));
    const std::string saved = FileText("hero.vlf");
    const auto reader = ShippedGame(player);
    ASSERT_TRUE(LoadCharacterFile(*reader, "hero.vlf"));
    EXPECT_EQ(EncodeCharacter(*reader), saved);
    if (HasFailure()) return;
  }
  for (const auto& [step, runs] : ends) std::cout << runs << " runs ended at step " << step << '\n';
}

}  // namespace
}  // namespace veld
