#include "backgrounds/military_background.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "backgrounds/youth_quirks.h"
#include "rules/military_tables.h"
#include "rules/proficiency_table.h"
#include "rules/skill_table.h"
#include "support/grant_names.h"
#include "text/search.h"
#include "youth.h"

namespace veld {
namespace {

using testing::DicePlayer;

constexpr int kBP = 50;
constexpr std::size_t kLightHorseLance = 30;

/// A fighter of the common people with room for proficiencies, whom no table treats in a way of his own.
void MakeFighter(Game& game) {
  testing::MakeYouth(game, 3);
  game.sheet.IsFighterClass = 1;
  game.sheet.WeaponSizeClass = 2;
  game.sheet.ProficiencySlots = 12;
}

/// Throws the dice of the tables from the script; what a skill is learned by comes up 1.
class Recruit : public DicePlayer {
 public:
  void RunForm(Form& form) override {
    if (form.Name() == "GetDice") {
      form.Open();
      if (!form.Text(10).ends_with(".") || Contains(form.Text(10), "enetrat")) {
        form.Type(3000, "1");
        form.Press(1);
        return;
      }
    }
    DicePlayer::RunForm(form);
  }
};

class MilitaryTest : public testing::ChainTest<Recruit> {
 protected:
  MilitaryTest() { MakeFighter(*game); }

  void Play(std::deque<int> dice) {
    PlayChain(RunWMABackground, std::move(dice), [](Form& form) {
      if (form.Name() == "GetName") form.Type(3000, "Flail");
      form.Press(1);
    });
  }

  int Score(std::string_view skill) const {
    return game->sheet.SkillScores[static_cast<std::size_t>(FindSkillRow(skill))];
  }
};

TEST_F(MilitaryTest, AYouthFromTheCampToTheGymIsShownAndKept) {
  // Camp 11, quality 11, results 14+1, one accident (heat stroke, 5+1), light cavalry, 12+1, peace with two tours.
  Play({11, 11, 14, 3, 5, 66, 12, 2, 2, 93, 20, 15, 56});
  EXPECT_EQ(lines[200], "regular army boot camp");
  EXPECT_EQ(lines[202], "You gained 1 melee weapon proficiency and your choice of armor or weapon maintenance skill.");
  EXPECT_EQ(lines[203], "");
  EXPECT_EQ(lines[1204], "Training Accidents");
  EXPECT_EQ(lines[1203], "");
  EXPECT_TRUE(lines[204].starts_with("You suffered from heat stroke")) << lines[204];
  EXPECT_EQ(sheet.TrainingAccidents[0], lines[204]);
  EXPECT_EQ(sheet.SpecialtyAssignment, "Cavalry, light");
  EXPECT_EQ(sheet.AdvancedTrainingQuality, "Average");
  EXPECT_EQ(sheet.HostilitiesState, "peace");
  EXPECT_EQ(sheet.NonCombatTourEvents[1], "Gym Rat");
  EXPECT_EQ(sheet.Strength.Percentile, 70);
  EXPECT_EQ(game->run.HonorBackgroundModifier, -2);
  EXPECT_EQ(sheet.ProficiencySlotsUsed, 2);
  EXPECT_TRUE(Brought("  Strength 15/70 (was 15/50)"));
  EXPECT_TRUE(Brought("  Honor -2"));
  EXPECT_TRUE(std::ranges::any_of(brought, [](const auto& line) { return line.starts_with("  Proficiency: Lance"); }));
  EXPECT_EQ(game->run.CurrentStep, 10);
  EXPECT_EQ(player.messages.size(), 0u);
}

TEST_F(MilitaryTest, ADeathIsToldOnceAndEndsTheRun) {
  Play({11, 8, 3, 4, 12, 50});
  EXPECT_EQ(game->run.CharacterDead, 1);
  EXPECT_EQ(game->run.CurrentStep, 1);
  ASSERT_EQ(player.messages.size(), 1u);
  EXPECT_EQ(player.messages[0], "VELD: Your character did not live to adventure.");
  EXPECT_TRUE(lines[203].ends_with("  Too bad for you, you were killed.")) << lines[203];
  EXPECT_TRUE(game->sheet.SpecialtyAssignment.Empty());

  // In a war the later rounds and the occupation still come.
  ResetCharacter(*game);
  MakeFighter(*game);
  player.messages.clear();
  Play({18, 18, 4, 1, 94, 18, 9, 2, 17, 1, 1, 11, 8, 35, 61});
  EXPECT_TRUE(game->sheet.Wars[1].View().ends_with("Your mom was deeply saddened but proud."));
  EXPECT_TRUE(game->sheet.Wars[0].View().starts_with("Your regiment beseiged a town of "))
      << game->sheet.Wars[0].View();
  EXPECT_FALSE(game->sheet.OccupationAttitude.Empty());
  EXPECT_EQ(game->run.RiotVolunteer, 1);
  EXPECT_TRUE(game->sheet.HostilitiesState.Empty());
  EXPECT_EQ(player.messages.size(), 1u);
}

TEST_F(MilitaryTest, AccidentsThatCanNotHappenAreRolledAgainForNothing) {
  game->run.BuildingPoints = 5;
  player.AnswerOthers(Answer::Yes);
  game->sheet.QuirkCounts[YouthQuirk::BlindInOneEye] = 1;
  game->sheet.QuirkCounts[YouthQuirk::VisionImpaired] = 1;
  game->sheet.QuirkCounts[YouthQuirk::MulePhobia] = 1;
  game->sheet.QuirkCounts[YouthQuirk::FacialBurns] = 1;
  // Mules (8+1) and oil (11+1) are no results; the crossbow (9+1) puts out the last eye; then one falls off a ladder.
  Play({11, 11, 8, 4, 8, 11, 9, 20, 3, 2, 94, 8, 1, 3});
  EXPECT_EQ(sheet.QuirkCounts[YouthQuirk::Blind], 1);
  for (const int row :
       {YouthQuirk::BlindInOneEye, YouthQuirk::LossOfEye, YouthQuirk::VisionImpaired, YouthQuirk::NoDepthPerception}) {
    EXPECT_EQ(sheet.QuirkCounts[static_cast<std::size_t>(row)], 0) << row;
  }
  EXPECT_TRUE(lines[203].ends_with("so you are now blind"));
  EXPECT_TRUE(lines[204].ends_with("suffer -1 penalty to your honor")) << lines[204];
  EXPECT_EQ(game->run.BuildingPoints, 5);
  EXPECT_EQ(game->run.VeteranFreeSkills, 3);
  EXPECT_TRUE(std::ranges::count(player.questions,
                                 "Reroll costs 1 BP: Table 2I: State of Hostilities - Keep your "
                                 "result of extended peace?"));
}

TEST_F(MilitaryTest, ARefusalCostsABPWhileThereIsOne) {
  game->run.BuildingPoints = 2;
  player.ExpectQuestion("Table 2C: Type of Training Camp - Keep your result of regular army boot camp?", Answer::No);
  player.ExpectQuestion("Table 2C: Type of Training Camp - Keep your result of elite military academy?", Answer::Yes);
  player.ExpectQuestion("Table 2D: Quality of Basic Training - Keep your result of Average?", Answer::No);
  Play({11, 18, 11, 11, 8, 1, 94, 8, 1, 3});
  EXPECT_EQ(game->sheet.TrainingCampType, "elite military academy");
  EXPECT_EQ(lines[kBP], "0");
}

TEST_F(MilitaryTest, AnUneventfulColdWarKeepsNoTextOfItsFourthTour) {
  // Four tours, one slot above their line each; an alcoholic's row is rolled again for who is one.
  Play({11, 11, 8, 1, 94, 8, 4, 7, 4, 56, 61, 21, 1, 30, 71});
  const auto& events = game->sheet.NonCombatTourEvents;
  EXPECT_EQ(game->sheet.HostilitiesState, "cold war, Uneventful");
  EXPECT_TRUE(events[0].Empty());
  EXPECT_EQ(events[1], "Quatermaster");
  EXPECT_EQ(events[2], "Alcoholic and you still are.");
  EXPECT_EQ(events[3], "Chaplain Duty");
  EXPECT_TRUE(events[4].Empty());
  EXPECT_EQ(game->run.HonorBackgroundModifier, -2) << "the fourth tour has its effect";
  EXPECT_EQ(lines[213], "Quatermaster");
  EXPECT_EQ(lines[215], "Chaplain Duty");
}

TEST_F(MilitaryTest, AGamblerFallsUntilHeHasNothingLeft) {
  constexpr int kFinger = YouthQuirk::MissingFinger;
  const auto held = [&](int row) { return QuirksHeld(*game, row); };
  // Loses money, becomes addicted; a finger, a scar, no second scar, an ear; then a check is made.
  Play({11, 11, 8, 1, 94, 8, 19, 41, 1, 99, 99, 99, 4, 99, 2, 99, 2, 99, 3, 1});
  EXPECT_EQ(game->run.MoneyBonusPercent, -40);
  EXPECT_EQ(held(YouthQuirk::GamblingAddiction), 1);
  EXPECT_EQ(held(kFinger), 1);
  EXPECT_EQ(held(YouthQuirk::FacialScar), 1);
  EXPECT_EQ(held(YouthQuirk::LossOfEar), 1);
  EXPECT_TRUE(Brought("  Starting money -40%"));

  // Who is no gambler at all is out after one turn, and nobody plays for ever.
  for (const int score : {-5000, 15}) {
    ResetCharacter(*game);
    MakeFighter(*game);
    game->sheet.SkillScores[static_cast<std::size_t>(FindSkillRow("Gaming"))] = score;
    player.thrower = [&](int sides, int) {
      const std::string& context = game->dice.RollContextText;
      if (context == MilitaryTable::Specialty) return 94;
      if (context == MilitaryTable::Hostilities) return 19;
      if (context == MilitaryTable::Tour) return 41;
      if (sides == 100) return 99;
      if (Contains(context, "selling body parts")) return 4;
      return sides == 4 ? 1 : 11;
    };
    Play({});
    EXPECT_EQ(held(kFinger), score < 0 ? 1 : 100);
  }
}

TEST_F(MilitaryTest, TheLaddersGiveWhatTheySay) {
  Play({11, 11, 8, 1, 66, 9, 1, 1});
  EXPECT_EQ(game->sheet.ProficiencyLevels[kLightHorseLance], -20);
  EXPECT_TRUE(Brought("  Proficiency withheld: Lance: Light horse"));

  ResetCharacter(*game);
  MakeFighter(*game);
  Play({11, 11, 18, 34, 1, 40, 18, 1, 1});
  EXPECT_EQ(game->sheet.AdvancedTrainingQuality, "Creme de la creme");
  EXPECT_EQ(game->sheet.TalentDetailNames[0][0], "Attack Bonus: Flail");
  EXPECT_GT(Score("Maintain Self-Discipline"), 0);
  EXPECT_GT(Score("Muster Resolve"), 0);
  EXPECT_EQ(game->run.NonProficiencyPenalty, -2);
  EXPECT_TRUE(Brought("  Talent: Attack Bonus: Flail"));
}

TEST(MilitaryTables, EveryNameIsFound) {
  for (const SpecialtyTraining& training : SpecialtyTrainings()) testing::ExpectNamesFound(training.Grants);
  for (const RolledTraining& training : RolledTrainings()) {
    for (const auto& row : training.Rows) testing::ExpectNamesFound(row.Grants);
  }
  for (const TourRow& row : TourRows()) testing::ExpectNamesFound(row.Grants);
  for (const TrainingResult& row : TrainingResults()) testing::ExpectNamesFound(row.Grants);
}

}  // namespace
}  // namespace veld
