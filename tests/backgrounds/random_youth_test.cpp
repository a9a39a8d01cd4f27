#include <gtest/gtest.h>

#include <set>

#include "backgrounds/mage_school.h"
#include "backgrounds/military_background.h"
#include "backgrounds/packages.h"
#include "backgrounds/seminary.h"
#include "rules/named_rows.h"
#include "support/random_player.h"
#include "text/search.h"
#include "youth.h"

namespace veld {
namespace {

using testing::RandomPlayer;

void TakeAnyPackage(Game& game, RandomPlayer& player) {
  game.sheet.Gender = player.Pick(3) == 0 ? "Female" : "Male";
  if (player.Pick(3) != 0)
    return RunPackageSelect(game, player.Pick(2) == 0 ? PackageList::Fighter : PackageList::Mage);
  game.sheet.PackageName = Packages()[player.Pick(static_cast<std::uint32_t>(Packages().size()))].Name;
  ApplyPackage(game);
}

/// Every class has every youth and package; no play hangs, and what comes out can be gone on with.
TEST(RandomYouthTest, EveryYouthEndsAndIsTold) {
  constexpr std::string_view kRaces[] = {"Human",       "Elf, Drow", "Dwarf",   "Halfling, Stout", "Half-ogre",
                                         "Gnome Titan", "Half-orc",  "Martian", "Pixie Fairy"};
  std::set<std::string> forms;
  int dead = 0;
  for (std::uint32_t seed = 0; seed < 1000; ++seed) {
    SCOPED_TRACE(seed);
    RandomPlayer player(seed, 40);
    const auto game = testing::QuietGame(player);
    CharacterSheet& sheet = game->sheet;
    const auto draw = [&](std::uint32_t sides) { return static_cast<int>(player.Pick(sides)); };
    testing::MakeYouth(*game, 1 + draw(kLastSingleClass));
    testing::LoadShippedCatalogues(*game);
    game->RuleSwitches[kRollYourOwnDice] = draw(2);
    game->dice.RandomState = seed;
    game->run.BuildingPoints = static_cast<float>(draw(61)) / 2;
    game->run.EducationResultModifier = draw(7) * 200 - 600;
    sheet.RaceName = kRaces[player.Pick(std::size(kRaces))];
    sheet.SocialClassIndex = draw(14);
    sheet.ProficiencySlots = draw(5);
    sheet.CharismaReactionAdj = draw(3) == 0 ? "-9" : "+3";
    sheet.QuirkCounts[QuirkRow::ChintzyMentor] = draw(2);
    switch (seed % 4) {
      case 0:
        RunHXABackground(*game);
        EXPECT_EQ(sheet.GraduatingRank.Empty(), sheet.SchoolType == "Informal Apprenticeship");
        EXPECT_FALSE(sheet.ClassroomEquipment.Empty());
        EXPECT_LE(sheet.QuirkCounts[QuirkRow::LossOfEye], 2);
        break;
      case 1:
        RunWMABackground(*game);
        EXPECT_FALSE(sheet.TrainingCampType.Empty());
        EXPECT_EQ(game->run.CharacterDead == 1, sheet.HostilitiesState.Empty());
        break;
      case 2:
        RunDVABackground(*game);
        EXPECT_FALSE(sheet.TheCall.Empty());
        break;
      default:
        TakeAnyPackage(*game, player);
    }
    forms.insert(player.forms.begin(), player.forms.end());
    dead += game->run.CharacterDead;
    EXPECT_EQ(player.stuckForm, "");
    EXPECT_EQ(game->run.CurrentStep, game->run.CharacterDead == 1 ? 1 : 10);
    EXPECT_GE(game->run.BuildingPoints, 0);
    for (const int mastery : sheet.SkillScores) EXPECT_GE(mastery, 0);
    for (const std::string& message : player.messages) EXPECT_FALSE(Contains(message, "no result left")) << message;
  }
  EXPECT_TRUE(dead > 2 && dead < 60) << dead;
  for (const char* form : {"BandGeek", "GetName", "QuirksandFlawsMage", "FreeMystic"})
    EXPECT_TRUE(forms.contains(form)) << form;
}

}  // namespace
}  // namespace veld
