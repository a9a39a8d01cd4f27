#include "backgrounds/mage_school.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "backgrounds/youth_quirks.h"
#include "rules/quirk_table.h"
#include "rules/school_tables.h"
#include "rules/skill_table.h"
#include "rules/spell_catalogue.h"
#include "support/grant_names.h"
#include "youth.h"

namespace veld {
namespace {

using testing::LoadShippedCatalogues;

constexpr int kMagicUser = 12;
constexpr std::size_t kChintzyMentor = 322;

/// A mage of a social class that takes 4 off the first roll.
void MakeMage(Game& game) {
  testing::MakeYouth(game, kMagicUser);
  game.sheet.IsMageClass = 1;
  game.sheet.ProficiencySlots = 3;
  game.sheet.WeightLbs = 150;
  game.sheet.Age = 20;
  game.sheet.LanguageSlots = 2;
  game.run.StartingSpells = 3;
}

class MageSchoolTest : public testing::ChainTest<testing::DicePlayer> {
 protected:
  MageSchoolTest() { MakeMage(*game); }

  void Play(std::deque<int> dice) {
    PlayChain(RunHXABackground, std::move(dice), [this](Form& form) { PlayOther(form); });
  }

  void PlayOther(Form& form) {
    if (form.Name() == "GetName") {
      prompts.push_back(form.Text(10));
      form.Type(3000, "Zinj");
      form.Press(1);
    } else if (form.Name() == "BandGeek") {
      form.Press(4002);
    } else if (form.Name() == "QuirksandFlawsMage") {
      mishapStep = game->run.CurrentStep;
      mishaps = form.Items(3116);
      form.Press(2);
      EXPECT_FALSE(form.IsClosed()) << "a mishap can't be aborted";
      const auto& tables = form.Items(3115);
      while (!form.Items(3116).empty()) {
        form.Choose(3115, static_cast<int>(tables.size()) - 1);
        form.Press(4001);
      }
      form.Press(1);
    }
  }

  int Held(int quirk) const { return QuirksHeld(*game, quirk); }

  std::vector<std::string> prompts;
  std::vector<std::string> mishaps;
  int mishapStep = 0;
};

TEST_F(MageSchoolTest, EveryNameIsFoundAndEveryRollHasItsRow) {
  for (const SchoolResult& result : SchoolResults()) testing::ExpectNamesFound(result.Grants);
  for (const auto skills : {MaltreatedSkills(), LaborSkills()}) {
    for (const GrantText& skill : skills) testing::ExpectNamesFound(skill);
  }
  for (const CollegeEvent& event : CollegeEvents()) testing::ExpectNamesFound(event.Grants);
  for (const auto* table : {&kBohemianTable, &kFraternalTable, &kPartTimeJobTable, &kLandGrantTable}) {
    for (const CollegeSubRow& row : table->Rows) {
      testing::ExpectNamesFound(row.Grants);
      EXPECT_EQ(FindSkillFamilyRow(row.Family) >= 0, !row.Family.empty()) << row.Family;
    }
    for (int roll = 1; roll <= table->Die; ++roll) EXPECT_NE(FindCollegeSubRow(*table, roll), nullptr);
  }
  for (const auto harms : {SchoolQuirks(), SchoolFlaws()}) {
    for (const SchoolHarm& harm : harms) {
      EXPECT_EQ(QuirkTableDie(harm.Table).Sides > 0, harm.Kind == SchoolHarmKind::SubTable) << harm.Name;
      // The book writes the names in its own way; their first letters agree, but for Reclusive.
      if (harm.Quirk == 0 || harm.Quirk == 98) continue;
      EXPECT_EQ(ShownQuirkName(harm.Quirk).substr(0, 3), harm.Name.substr(0, 3));
    }
  }
  std::set<int> events;
  for (int roll = 1; roll <= 100; ++roll) events.insert(CollegeEventOf(roll));
  EXPECT_EQ(events.size(), 16u) << "fifteen events and no event at 25 to 28: the crush never comes";
  EXPECT_EQ(CollegeEventOf(25), -1);
}

TEST_F(MageSchoolTest, FinalResultsAreTestedInTheirOrder) {
  EXPECT_EQ(FindSchoolResult(-600)->Text, "Cannot memorize cantrips");
  for (const int hole : {1635, 1638, 1724, 1727}) EXPECT_EQ(FindSchoolResult(hole), nullptr) << hole;
  std::set<const SchoolResult*> reached;
  for (int total = -700; total <= 1800; ++total) reached.insert(FindSchoolResult(total));
  const auto isCovered = [](const SchoolResult& result) { return result.Text == "Lose 1d2 Wisdom"; };
  EXPECT_FALSE(reached.contains(&*std::ranges::find_if(SchoolResults(), isCovered)));
}

TEST_F(MageSchoolTest, ASchoolingIsShownKeptAndAddedUp) {
  game->run.BuildingPoints = 1.5F;
  player.ExpectQuestion("Table 5D: Location of School - Keep your result of (11) Community?", Answer::Yes);
  player.ExpectQuestion("Reroll costs 1 BP: Table 5E: Type of School - Keep your result of Elite Academy?", Answer::No);
  player.AnswerOthers(Answer::Yes);
  // Location 15-4; type 20, refused, then 11; nurture 14-1, education 17 with 1d3-1 points, class size 16-1 with 1d6
  // points, equipment 8-1, rank 16; two events: mugged, mugged again, overweight.
  Play({8, 7, 8, 12, 5, 6, 8,  6,  8,  9,  3,   8,  8,
        4, 4, 4, 8,  8, 2, 68, 70, 33, 10, 570, 29, 36});  // the result is 570 + 110, then Honor 29 + 1 and money 36
  EXPECT_EQ(sheet.SchoolLocation, "Community");
  EXPECT_EQ(sheet.SchoolLocationRoll, 11);
  EXPECT_EQ(lines[201], "Local College");
  EXPECT_EQ(sheet.MasterNurture, "Absent-minded");
  EXPECT_EQ(sheet.MasterNurtureRoll, 13);
  EXPECT_EQ(sheet.GraduatingClassSize, "Small");
  EXPECT_EQ(sheet.ClassroomEquipment, "Sub-par");
  EXPECT_EQ(lines[206], "Top quartile");
  EXPECT_EQ(game->run.BonusSkillPoints, 4) << "the last table that sets them stands";
  EXPECT_EQ(game->run.FreeSkillPicks, 1);
  EXPECT_EQ(game->run.MoneyBonusPercent, -10);
  EXPECT_EQ(sheet.WeightLbs, 160);
  EXPECT_EQ(game->run.HonorBackgroundModifier, -2 + 2);
  EXPECT_EQ(game->run.InheritanceModifier, 60);
  EXPECT_EQ(game->run.SpellListIndex, 30);
  EXPECT_EQ(game->run.BuildingPoints, 0) << "an event leaves whole BP";
  EXPECT_TRUE(Brought("Final result: Lose 2 Honor"));
  EXPECT_TRUE(Brought("  Honor -2"));
}

TEST_F(MageSchoolTest, AnAbusiveMasterHarmsInBodyAndMind) {
  LoadShippedCatalogues(*game);
  game->sheet.CharismaReactionAdj = "-9";
  game->sheet.QuirkCounts[YouthQuirk::LossOfEye] = 1;
  game->sheet.QuirkCounts[YouthQuirk::VisionImpaired] = 1;
  game->sheet.QuirkCounts[kChintzyMentor] = 1;
  const auto& spells = game->SpellTable;
  const auto isIllusion = [](const SpellRecord& spell) { return spell.Category == SpellCategories[6]; };
  const auto illusion = std::ranges::find_if(spells, isIllusion) - spells.begin();
  // clang-format off
  // Nurture 12-1-9; three cantrips, one known and one of illusion thrown again; roll twice, absent minded, which can't
  // come twice, alcoholic, an obsession after "Roll again"; roll twice, the eye, which can't go twice, both legs; one
  // skill that finds no row; no labor. Rank 16-8, one event, the result 640-110 with its two quirks.
  Play({8, 7, 5, 6, 1, 11, 3, 5, 5, 6, static_cast<int>(illusion), 7,  // to the cantrips
        1, 1, 1, 2, 1, 2, 1, 3, 1, 7, 1, 20, 2,                         // quirks
        1, 1, 5, 1, 5, 1, 1, 2, 1, 1, 4, 2,                             // flaws and skills
        8, 5, 8, 2, 8, 3, 8, 8, 1, 68, 640, 60, 71, 20, 20});
  // clang-format on
  EXPECT_EQ(sheet.MasterNurture, "Abusive");
  EXPECT_EQ(std::ranges::count(sheet.SpellsKnown, 1), 3);
  EXPECT_EQ(sheet.SpellsKnown[7], 1);
  for (const int quirk : {51, 54, QuirkRowOfRoll("ADC Obsession", 2), YouthQuirk::Blind, 37, 64, 65}) {
    EXPECT_EQ(Held(quirk), 1) << ShownQuirkName(quirk);
  }
  EXPECT_EQ(Held(YouthQuirk::LossOfEye) + Held(YouthQuirk::VisionImpaired) + Held(184), 0);
  EXPECT_EQ(sheet.Strength.Whole, 16);
  EXPECT_EQ(game->run.LegAmputations, 2);
  EXPECT_EQ(game->run.HonorLimitFlag, 5);
  EXPECT_EQ(game->run.StartingSpells, -1);
  EXPECT_EQ(game->run.SpellListIndex, 7) << "the Chintzy Mentor's quarter";
  EXPECT_EQ(mishaps, std::vector<std::string>(2, std::string(kTable6F)));
  EXPECT_EQ(mishapStep, 20);
  EXPECT_EQ(game->run.CurrentStep, 10);
  EXPECT_TRUE(Brought("  Quirk or flaw: Blind"));
}

TEST_F(MageSchoolTest, CollegeLifeBringsFriendsAndForgetfulness) {
  LoadShippedCatalogues(*game);
  game->sheet.CharismaReactionAdj = "-6";
  game->sheet.HonorDie = 1;
  const auto readMagic = static_cast<std::size_t>(FindSpell(game->SpellTable, "Read Magic"));
  for (const std::size_t row : {std::size_t{50}, readMagic, std::size_t{500}}) game->sheet.SpellsKnown[row] = 1;
  game->sheet.QuirkCounts[97] = 1;
  // clang-format off
  // Nurture 13-1-6, no skills; the class is the pupil alone. A drum, a roommate from abroad, and a fraternity in which
  // the second round is lost on what is held already.
  game->run.ClassSizeModifier = 9;
  Play({8, 7, 5, 6, 1, 12, 1, 2, 8, 5, 8, 4, 12, 5, 8, 3, 8, 8,  // to the rank
        3, 9, 10, 85, 4, 6, 58, 2, 1, 5, 570, 20, 20});
  // clang-format on
  EXPECT_EQ(sheet.MasterNurture, "Indifferent");
  EXPECT_EQ(sheet.SpellsKnown[50], 1);
  EXPECT_EQ(sheet.SpellsKnown[readMagic], 1);
  EXPECT_EQ(sheet.SpellsKnown[500], 0);
  EXPECT_EQ(sheet.GraduatingClassSize, "One-on-One");
  EXPECT_EQ(sheet.ClassExperience[kMagicUser], 500.0F);
  EXPECT_EQ(prompts,
            (std::vector<std::string>{"Enter the name of your free Percussion Instrument",
                                      "Enter the name of the Foreign Culture from which your roommate hails"}));
  const auto mastery = [&](std::string_view family) {
    return sheet.SkillDetailCounts[static_cast<std::size_t>(FindSkillFamilyRow(family))].front();
  };
  EXPECT_EQ(mastery("Percussion Instrument"), 55);
  EXPECT_EQ(mastery("Customs and Etiquette"), 15 + 4 + 1);
  EXPECT_EQ(sheet.SkillDetailCounts[SkillFamily::Language].front(), 15 + 6 + 1);
  EXPECT_EQ(sheet.LanguagesKnown, 1);
  EXPECT_EQ(Held(97), 0);
  EXPECT_EQ(Held(YouthQuirk::Alcoholic), 1);
  EXPECT_TRUE(Brought("Band Geek"));
}

TEST_F(MageSchoolTest, AnInformalApprenticeHasNoRank) {
  game->sheet.ClassName = "Sole Practitioner: Seer";
  game->sheet.FamilyHeritage = "Great Dishonor";
  game->sheet.SocialClassIndex = 5;
  game->run.BuildingPoints = 0;
  // Location 2-8-6 finds no row; type 2+5-6; nurture 20+4-6-5; education 20-8; class size 2+12; equipment 20-12.
  Play({1, 1, 1, 1, 8, 12, 8, 12, 1, 1, 8, 12, 1, 68, 1000, 36, 3});
  EXPECT_TRUE(sheet.SchoolLocation.Empty());
  EXPECT_EQ(sheet.SchoolLocationRoll, -12);
  EXPECT_EQ(sheet.SchoolType, "Informal Apprenticeship");
  EXPECT_EQ(sheet.MasterNurture, "Absent-minded");
  EXPECT_EQ(sheet.MasterEducation, "Below Average");
  EXPECT_TRUE(sheet.GraduatingRank.Empty());
  EXPECT_EQ(game->run.SchoolHonorModifier, -10);
  EXPECT_EQ(game->run.InheritanceModifier, -40);
  EXPECT_TRUE(Brought("Final result: Lose 6 Building Points")) << "1000 - 210 = 790";
}

}  // namespace
}  // namespace veld
