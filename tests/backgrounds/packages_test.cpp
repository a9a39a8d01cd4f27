#include "backgrounds/packages.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "rules/proficiency_table.h"
#include "rules/skill_table.h"
#include "rules/talent_table.h"
#include "support/grant_names.h"
#include "text/row_runs.h"
#include "youth.h"

namespace veld {
namespace {

using testing::ScriptedPlatform;

constexpr int kAccept = 1;
constexpr int kPrice = 30;
constexpr int kWhyNot = 33;
constexpr int kPackages = 3115;
constexpr int kChoices = 3021;

/// A character of one class, and a player who follows a script.
struct Taker {
  explicit Taker(int classRow, std::string_view race = "Human", std::string_view gender = "Male") {
    testing::MakeYouth(*game, classRow);
    game->dice.RandomState = 4711;
    game->sheet.RaceName = race;
    game->sheet.Gender = gender;
    game->sheet.SocialClassIndex = 8;
    game->sheet.ProficiencySlots = 8;
    for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(game->sheet, ability).Whole = 16;
    game->run.BuildingPoints = 40;
  }

  bool IsOffered(std::string_view package) const {
    const PackageList list = FindPackage(package)->List;
    const auto names = PackagesOffered(*game, list);
    return std::ranges::find(names, package) != names.end();
  }
  void Apply(std::string_view package) {
    game->sheet.PackageName = package;
    ApplyPackage(*game);
  }
  void ExpectPick(std::string page, std::string choice) {
    platform.ExpectForm(std::move(page), [choice = std::move(choice)](Form& form) {
      testing::ChooseText(form, kChoices, choice);
      form.Press(kAccept);
    });
  }
  int Skill(std::string_view name) const {
    return game->sheet.SkillScores[static_cast<std::size_t>(FindSkillRow(name))];
  }

  ScriptedPlatform platform;
  std::unique_ptr<Game> game = testing::QuietGame(platform);
};

TEST(PackagesTest, AreOfferedToWhoeverMeetsTheirFloors) {
  Taker mage(12);
  AbilityScore& intelligence = mage.game->sheet.Intelligence;
  intelligence = {13, 34};
  EXPECT_FALSE(mage.IsOffered("Hermit"));
  intelligence = {13, 35};
  EXPECT_TRUE(mage.IsOffered("Hermit"));
  mage.game->sheet.Constitution = {12, 100};
  EXPECT_FALSE(mage.IsOffered("Remote Primitive")) << "the whole score alone counts";
  mage.game->sheet.Constitution = {13, 0};
  EXPECT_TRUE(mage.IsOffered("Remote Primitive"));
  EXPECT_FALSE(mage.IsOffered("Witch")) << "13/00 is not above 13/00";
  EXPECT_FALSE(mage.IsOffered("Nobleman"));
  mage.game->sheet.SocialClassIndex = 9;
  EXPECT_TRUE(mage.IsOffered("Nobleman"));
  mage.game->sheet.RaceName = "Half-elf";
  EXPECT_TRUE(mage.IsOffered("Nobleman"));
  EXPECT_FALSE(mage.IsOffered("Hermit"));
  mage.game->sheet.RaceName = "Gnomeling";
  EXPECT_FALSE(mage.IsOffered("Nobleman"));
  EXPECT_FALSE(mage.IsOffered("Virago Sorceress"));
  mage.game->run.BuildingPoints = 15.5F;
  EXPECT_FALSE(mage.IsOffered("Hermit")) << "what could never be paid is not listed";
  Taker berserker(5);
  berserker.game->run.BuildingPoints = 0;
  EXPECT_TRUE(berserker.IsOffered("Savage"));
  EXPECT_FALSE(berserker.IsOffered("Archer"));
}

TEST(PackagesTest, ArePaidBeforeTheyGive) {
  Taker fighter(3);
  fighter.game->run.BuildingPoints = 8.5F;
  fighter.platform.ExpectForm("PackageSelect", [&](Form& form) {
    form.Open();
    testing::ChooseText(form, kPackages, "Trailblazer");
    EXPECT_EQ(form.Text(kPrice), "20");
    form.Press(kAccept);
    EXPECT_FALSE(form.IsClosed());
    EXPECT_FALSE(form.Text(kWhyNot).empty());
    testing::ChooseText(form, kPackages, "Noble Warrior");
    EXPECT_TRUE(form.Text(kWhyNot).empty());
    form.Press(kAccept);
  });
  fighter.platform.ExpectForm("FreeWeapon", [](Form& form) { form.PressCloseBox(); });
  fighter.platform.ExpectForm("FreeWeapon", [](Form& form) { form.PressCloseBox(); });
  RunPackageSelect(*fighter.game, PackageList::Fighter);
  EXPECT_EQ(fighter.game->sheet.PackageName, "Noble Warrior");
  EXPECT_EQ(fighter.game->run.BuildingPoints, 0) << "what a gift leaves is a whole number";
  EXPECT_GT(fighter.Skill("Heraldry"), 0);
  RunPackageSelect(*fighter.game, PackageList::Fighter);  // one is enough: no page is opened

  Taker mage(14);  // a Blood Mage pays the dearer price
  mage.game->run.BuildingPoints = 14;
  mage.platform.ExpectForm("PackageSelect", [](Form& form) {
    form.Open();
    EXPECT_EQ(form.SelectedText(kPackages), "Mystic");
    form.Press(kAccept);
    EXPECT_TRUE(form.IsClosed());
  });
  RunPackageSelect(*mage.game, PackageList::Mage);
  EXPECT_EQ(mage.game->sheet.PackageName, kNoPackage);
  EXPECT_EQ(mage.game->run.BuildingPoints, 14);
}

TEST(PackagesTest, OfFightersGive) {
  Taker archer(3);
  archer.ExpectPick("FreeRemote", "Bow: Short");
  archer.Apply("Archer");
  const auto bow = static_cast<std::size_t>(FindProficiencyRow("Bow: Short"));
  EXPECT_EQ(archer.game->sheet.ProficiencyLevels[bow], 2);
  EXPECT_EQ(archer.game->sheet.ProficiencySlotsUsed, 1 + ProficiencyTable()[bow].SpecializationCost);
  EXPECT_EQ(archer.game->sheet.SkillPurchases[static_cast<std::size_t>(FindSkillRow("Bowyer/Fletcher"))], 2);
  EXPECT_EQ(archer.game->sheet.TalentCounts[static_cast<std::size_t>(FindTalentRow("Bow Bonus"))], 1);

  Taker rider(4);
  rider.platform.ExpectForm("FreeWeapon", [](Form& form) { form.PressCloseBox(); });  // no animal is trained
  rider.ExpectPick("FreeWeapon", "Riding, Airborne");
  rider.platform.ExpectTyped("GetName", "Griffon");
  rider.ExpectPick("FreeWeapon", "Track Game");
  rider.Apply("Beast Rider");
  EXPECT_EQ(rider.Skill("Animal Handling"), 50);
  EXPECT_EQ(rider.Skill("Animal Lore"), 50);
  EXPECT_EQ(rider.Skill("Identify Animal by Tracks"), 50);
  EXPECT_EQ(rider.game->sheet.SkillDetailCounts[SkillFamily::LandRiding].front(), 50);
  EXPECT_GT(rider.game->sheet.SkillDetailCounts[18].front(), 16);
  EXPECT_GT(rider.Skill("Track Game"), 16);
  EXPECT_TRUE(rider.platform.messages.empty()) << rider.platform.messages.front();
}

TEST(PackagesTest, OfMagesGive) {
  Taker witch(12, "Human", "Female");
  witch.game->sheet.QuirkCounts[308] = 1;
  witch.game->SpellTable[7].Name = "Find Familiar";
  witch.Apply("Witch");
  EXPECT_EQ(witch.Skill("Botany"), 50);
  EXPECT_EQ(witch.Skill("Arcane Lore"), 50);
  EXPECT_GT(witch.Skill("Spellcraft"), 16);
  EXPECT_GE(witch.game->sheet.SpellsKnown[7], 2);
  EXPECT_EQ(witch.game->sheet.SpellsKnown[7] % 2, 0);

  Taker hermit(12);
  hermit.game->run.BuildingPoints = 2.5F;
  hermit.ExpectPick("FreeWeapon", "Blowgun");
  hermit.platform.ExpectQuestion("Table 5A: Hermit Taboos, ", Answer::No);
  hermit.platform.ExpectQuestion("Table 5A: Hermit Taboos, ", Answer::Yes);
  hermit.Apply("Hermit");
  EXPECT_EQ(hermit.game->sheet.ProficiencyLevels[static_cast<std::size_t>(FindProficiencyRow("Blowgun"))], 1);
  EXPECT_EQ(hermit.game->sheet.ProficiencySlotsUsed, 0);
  EXPECT_EQ(hermit.game->run.BuildingPoints, 1) << "only the refused taboo costs";
  EXPECT_EQ(hermit.game->run.PackageBP, 18);
  EXPECT_EQ(hermit.game->run.InheritanceModifier, -45);

  Taker mystic(12);
  mystic.platform.ExpectForm("FreeMystic", [](Form& form) {
    form.Open();
    form.Choose(kChoices, 8);  // Spirit Lore
    form.Press(kAccept);
    form.Choose(kChoices, 7);  // "History: Local", that gives nothing
    form.Press(kAccept);
    EXPECT_FALSE(form.IsClosed());
    form.Press(kAccept);
  });
  mystic.Apply("Mystic");
  EXPECT_EQ(mystic.Skill("Spellcraft"), 50);
  EXPECT_GT(mystic.Skill("Spirit Lore"), 16);
}

TEST(PackagesTest, NameWhatTheyGiveAndWhomTheyAreFor) {
  for (const PackageRecord& package : Packages()) {
    SCOPED_TRACE(package.Name);
    std::array<int, kClassRows> rows{};
    for (const std::string_view list : {package.Classes, package.NotClasses, package.OtherClasses}) {
      EXPECT_TRUE(ExpandRowRuns(list, rows)) << list;
    }
    Taker taker(12, "Human", package.Gender.empty() ? "Male" : package.Gender);
    EXPECT_FALSE(PackageGifts(*taker.game, package.Name).empty());
    for (const std::string_view race : {"Human", "Gnome", "Elf, High"}) {
      const auto lines = PackageGrants(package.Name, race);
      EXPECT_FALSE(lines.empty());
      for (const PackageGrant& line : lines) testing::ExpectNamesFound(line.Grants);
    }
  }
}

}  // namespace
}  // namespace veld
