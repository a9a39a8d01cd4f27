#include "editors/class_progress.h"

#include <gtest/gtest.h>

#include "editors/character_backup.h"
#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "store/character_file.h"
#include "store/sheet_accessors.h"
#include "support/random_player.h"
#include "support/scripted_platform.h"

namespace veld {
namespace {

using testing::RandomPlayer;

/// A human of one class at the first level, abilities 15/50 throughout.
std::unique_ptr<Game> FirstLevel(Platform& platform, int classRow) {
  auto game = MakeGame(platform);
  CharacterSheet& sheet = game->sheet;
  sheet.RaceName = "Human";
  for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(sheet, ability) = {15, 50};
  game->RuleSwitches[kRollYourOwnDice] = 0;
  EXPECT_EQ(AddClass(*game, classRow), "") << classRow;
  return game;
}

/// What levels give and take.
struct LevelPicture {
  int HitPoints, HitDice, Slots, Level;
  std::array<AbilityScore, kAbilityCount> Scores;
  std::array<int, kThiefAbilities> Thief;
  std::array<int, kSaves> Saves;
  std::string Texts;
  bool operator==(const LevelPicture&) const = default;
};

LevelPicture PictureOf(const CharacterSheet& sheet, int classRow) {
  const auto row = static_cast<std::size_t>(classRow);
  LevelPicture picture{sheet.HitPoints,
                       sheet.HitDiceCount,
                       sheet.ClassProficiencySlots[row],
                       sheet.ClassLevels[row],
                       {},
                       {},
                       {},
                       std::string(sheet.ClassName) + std::string(sheet.LevelText)};
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    picture.Scores[static_cast<std::size_t>(ability)] = AbilityAt(sheet, ability);
  }
  for (std::size_t ability = 0; ability < kThiefAbilities; ++ability) {
    picture.Thief[ability] = LevelSum(ThiefAbilityAt(sheet, ability));
  }
  for (std::size_t save = 0; save < kSaves; ++save) picture.Saves[save] = BestSave(SaveAt(sheet, save));
  return picture;
}

TEST(ClassProgress, EveryClassRisesToTwentyFallsToOneAndRisesAgain) {
  const testing::TestFolder folder;
  RandomPlayer player(5, 3);
  for (int row = 1; row <= kLastSingleClass; ++row) {
    const auto game = FirstLevel(player, row);
    if (row == ClassRow::Illusionist) continue;  // is written as a standard specialist
    const CharacterSheet& sheet = game->sheet;
    const LevelPicture first = PictureOf(sheet, row);
    ASSERT_EQ(first.Level, 1) << row;
    SetLevel(*game, row, 20);
    const LevelPicture raised = PictureOf(sheet, row);
    ASSERT_EQ(raised.Level, 20) << row;
    EXPECT_GT(raised.HitPoints, first.HitPoints) << row;
    BringClassesUpToDate(*game);
    EXPECT_EQ(PictureOf(sheet, row), raised) << "not repeatable: " << row;
    SetLevel(*game, row, 1);
    EXPECT_EQ(PictureOf(sheet, row), first) << row;
    SetLevel(*game, row, 20);
    const LevelPicture again = PictureOf(sheet, row);
    EXPECT_EQ(again.Level, 20);
    EXPECT_EQ(again.Slots, raised.Slots) << row;
    EXPECT_EQ(again.HitDice, raised.HitDice) << row;
    EXPECT_EQ(again.Saves, raised.Saves) << row;
    AwardExperience(*game, row, -kMostExperience);
    EXPECT_EQ(PictureOf(sheet, row), first) << row;
  }
}

TEST(ClassProgress, AClassAddedAndGivenUpLeavesTheCharacterAsItWas) {
  const testing::TestFolder folder;
  RandomPlayer player(6, 3);
  for (const int other : {ClassRow::Thief, ClassRow::BattleMage, ClassRow::Barbarian, ClassRow::Pangrite, 12}) {
    const auto game = FirstLevel(player, ClassRow::Fighter);
    SetLevel(*game, ClassRow::Fighter, 7);
    const LevelPicture before = PictureOf(game->sheet, ClassRow::Fighter);
    ASSERT_EQ(AddClass(*game, other), "");
    EXPECT_NE(AddClass(*game, other), "");
    SetLevel(*game, other, 9);
    AwardExperienceToAll(*game, 1001);
    EXPECT_EQ(GiveUpClass(*game, other), "");
    EXPECT_EQ(game->sheet.ClassExperience[static_cast<std::size_t>(other)], 0);
    EXPECT_EQ(PictureOf(game->sheet, ClassRow::Fighter), before) << other;
    EXPECT_NE(GiveUpClass(*game, ClassRow::Fighter), "") << "the last one";
    EXPECT_EQ(game->sheet.IsThiefClass + game->sheet.IsMageClass + game->sheet.IsClericClass, 0) << other;
  }
}

TEST(ClassProgress, ALevelWonInPlayIsTrainedForKeepsToTheRaceAndTellsWhatItBrought) {
  const testing::TestFolder folder;
  RandomPlayer player(7);
  const auto game = FirstLevel(player, ClassRow::Fighter);
  const CharacterBackup before(*game);
  AwardExperience(*game, ClassRow::Fighter, ClassAt(ClassRow::Fighter).ExperienceForLevel[3]);
  EXPECT_EQ(std::ranges::count(player.forms, "Training"), 2);
  const auto lines = WhatLevelsBrought(before.Sheet(), *game);
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(lines.front(), "Fighter level 1 to 3");
  game->sheet.RaceName = "Pixie Fairy";  // no fighter above what its race allows
  const int limit = [&] {
    BringClassesUpToDate(*game);
    return game->run.ClassAllowed[ClassRow::Fighter];
  }();
  AwardExperience(*game, ClassRow::Fighter, kMostExperience);
  EXPECT_EQ(game->sheet.ClassLevels[ClassRow::Fighter], std::max(limit, 3));
  WriteHitPoints(*game, 41);
  EXPECT_EQ(game->sheet.HitPoints, 41);
  ASSERT_EQ(AddClass(*game, ClassRow::Thief), "");
  WriteHitPoints(*game, 63);
  EXPECT_EQ(game->sheet.HitPoints, 63);
  before.Restore(*game);
  EXPECT_EQ(game->sheet.ClassLevels[ClassRow::Fighter], 1);
}

}  // namespace
}  // namespace veld
