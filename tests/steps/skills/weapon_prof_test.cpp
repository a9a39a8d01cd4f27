#include "steps/skills/weapon_prof.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "rules/class_table.h"
#include "rules/proficiency_table.h"
#include "support/game_test.h"
#include "support/random_player.h"
#include "text/search.h"

namespace veld {
namespace {

using testing::ChooseText;
using testing::RandomPlayer;
using Lines = std::vector<std::string>;

constexpr int kClose = 1;
constexpr int kSlotsLeft = 55;
constexpr int kBuildingPoints = 56;
constexpr int kDamage = 111;
constexpr int kSpecialState = 500;
constexpr int kAllMode = 3004;
constexpr int kOffered = 3021;
constexpr int kHeld = 3022;
constexpr int kSpecial = 3023;
constexpr int kSearch = 3024;
constexpr int kNote = 3025;
constexpr int kTake = 4001;
constexpr int kRemove = 4002;
constexpr int kSpecialize = 4003;
constexpr int kRemoveSpecial = 4004;
constexpr int kIncrease = 4010;

// Rows of the class table.
constexpr std::size_t kFighter = 3;
constexpr std::size_t kKnightErrant = 8;
constexpr std::size_t kMagicUser = 12;
constexpr std::size_t kGladiator = 61;

// Rows of the weapons.
constexpr int kBattleAxe = 0;
constexpr int kLongBow = 7;
constexpr int kDagger = 14;
constexpr int kWrestling = 98;

Lines TextsOf(const std::vector<ProficiencyLine>& lines) {
  Lines texts;
  for (const ProficiencyLine& line : lines) texts.push_back(line.Text);
  return texts;
}

class WeaponProfTest : public testing::GameTest<> {
 protected:
  WeaponProfTest() {
    Slots() = 4;
    BP() = 20;
  }

  bool Add(std::string_view name) { return ChangeProficiency(*game, name, 1); }
  bool Remove(std::string_view name) { return ChangeProficiency(*game, name, -1); }
  void ExpectPurse(float bp, int used) {
    EXPECT_EQ(BP(), bp);
    EXPECT_EQ(Used(), used);
  }

  float& BP() { return game->run.BuildingPoints; }
  int& Slots() { return game->sheet.ProficiencySlots; }
  int& Used() { return game->sheet.ProficiencySlotsUsed; }
  int& Level(int row) { return game->sheet.ProficiencyLevels[static_cast<std::size_t>(row)]; }
  int& ClassLevel(std::size_t row) { return game->sheet.ClassLevels[row]; }
  int& Steps() { return game->sheet.FreeWeaponProficiencySlots; }
};

TEST_F(WeaponProfTest, AProficiencyCostsASlotAndABP) {
  EXPECT_TRUE(Add("Dagger"));
  EXPECT_FALSE(Add("Dagger"));
  ExpectPurse(19, 1);
  EXPECT_TRUE(Add("Club")) << "blanks at the end of the catalogue's name aside";
  EXPECT_TRUE(Remove("Dagger"));
  ExpectPurse(19, 1);
  for (const char* lost : {"", "Military Pick", "dagger", "Quick Draw: Nothing"}) EXPECT_FALSE(Add(lost)) << lost;

  BP() = 0.5F;
  EXPECT_FALSE(Add("Knife")) << "too few BP";
  game->sheet.IsFighterClass = 1;
  EXPECT_FALSE(Add("Knife")) << "not his first";
  game->sheet.IsFighterClass = 0;
  BP() = 1;
  for (const int slots : {1, 0, -3}) {
    Slots() = slots;
    EXPECT_FALSE(Add("Knife")) << "the slots used reach or pass " << slots;
  }
  ExpectPurse(1, 1);
}

TEST_F(WeaponProfTest, AFightersFirstIsFreeOfBP) {
  game->sheet.IsFighterClass = 1;
  BP() = 0;
  EXPECT_TRUE(Add("Battle axe"));
  ExpectPurse(0, 1);
  EXPECT_TRUE(Remove("Battle axe"));
  ExpectPurse(0, 0);  // what was not paid does not come back
  ClassLevel(kGladiator) = 1;
  EXPECT_TRUE(Add("Dart"));
  EXPECT_TRUE(Remove("Dart"));
  ExpectPurse(0, 0);  // nor does it for two slots
}

TEST_F(WeaponProfTest, MarksOfBackgroundsAreHalfAStepAndNone) {
  Level(kDagger) = ProficiencyMark::Limited;
  Used() = 1;
  EXPECT_EQ(TextsOf(ProficienciesHeld(*game)), Lines{"Dagger - Limited"});
  EXPECT_TRUE(Add("Dagger"));
  EXPECT_EQ(Level(kDagger), 1);
  ExpectPurse(19, 1);

  Level(kDagger) = ProficiencyMark::Limited;
  EXPECT_TRUE(Remove("Dagger"));
  EXPECT_EQ(Level(kDagger), 0);
  ExpectPurse(19, 0);  // the slot, but no BP
  Level(kBattleAxe) = ProficiencyMark::Untaught;
  EXPECT_FALSE(Remove("Battle axe"));
  EXPECT_TRUE(Add("Battle axe"));
  EXPECT_EQ(Level(kBattleAxe), 1);
}

TEST_F(WeaponProfTest, SomeStylesAreTakenAgain) {
  Slots() = 10;
  for (int step = 1; step <= 4; ++step) EXPECT_TRUE(Add("Advanced Single Weapon Fighting")) << step;
  EXPECT_FALSE(Add("Advanced Single Weapon Fighting"));
  EXPECT_TRUE(Add("Wrestling Specialization"));
  EXPECT_TRUE(Add("Wrestling Specialization"));
  EXPECT_TRUE(Add("Shield Specialization"));
  EXPECT_FALSE(Add("Shield Specialization"));
  ExpectPurse(13, 7);
  EXPECT_EQ(TextsOf(ProficienciesHeld(*game)),
            (Lines{"Advanced Single Weapon Fighting x4", "Shield Specialization", "Wrestling Specialization - x2"}));
  EXPECT_EQ(TextsOf(Specializations(*game)), Lines{"Wrestling Specialization"});
  EXPECT_FALSE(Specialize(*game, kWrestling, -1)) << "it never was a Specialization";
  ClassLevel(kFighter) = 5;
  EXPECT_FALSE(Master(*game, kWrestling, 1));
  EXPECT_TRUE(Remove("Wrestling Specialization"));
  EXPECT_TRUE(Remove("Advanced Single Weapon Fighting"));
  ExpectPurse(15, 5);
}

TEST_F(WeaponProfTest, AGladiatorsMissileWeaponTakesTwoSlots) {
  ClassLevel(kGladiator) = 1;
  EXPECT_TRUE(Add("Dagger"));
  EXPECT_TRUE(Add("Dart"));
  ExpectPurse(18, 3);
  EXPECT_TRUE(Add("Sling")) << "one slot is left to begin it with";
  ExpectPurse(17, 5);
  EXPECT_FALSE(MayLeaveProficiencies(*game));
  EXPECT_TRUE(Remove("Dart"));
  ExpectPurse(18, 3);
  EXPECT_TRUE(MayLeaveProficiencies(*game));
}

TEST_F(WeaponProfTest, QuickDrawIsForAWeaponAndIsChargedTwice) {
  Slots() = 9;
  EXPECT_FALSE(Add("Quick Draw")) << "no weapon is held, nothing is asked";
  ASSERT_TRUE(Add("Dagger") && Add("Shield Specialization"));
  Level(kBattleAxe) = ProficiencyMark::Specialized;
  platform.ExpectForm("FreeWeapon", [](Form& form) { form.Close(); });
  EXPECT_FALSE(Add("Quick Draw"));
  ExpectPurse(18, 2);
  platform.ExpectForm("FreeWeapon", [](Form& form) {
    EXPECT_EQ(form.Items(3021), (Lines{"Battle axe", "Dagger"}));
    ChooseText(form, 3021, "Dagger");
    form.Press(1);
  });
  EXPECT_TRUE(Add("Quick Draw"));
  ExpectPurse(17, 3);
  EXPECT_EQ(game->sheet.ProficiencyPicks[0][0], kDagger);
  EXPECT_TRUE(std::ranges::count(TextsOf(ProficienciesHeld(*game)), "Quick Draw: Dagger") == 1);

  EXPECT_FALSE(Remove("Quick Draw: Battle axe"));
  EXPECT_EQ(Level(kDagger), 1) << "the weapon in the name is not meant";
  EXPECT_TRUE(Remove("Quick Draw: Dagger"));
  ExpectPurse(16, 4);
  EXPECT_EQ(game->sheet.ProficiencyPicks[0][0], -1);

  game->sheet.ProficiencyPicks[0].fill(kDagger);
  EXPECT_FALSE(Add("Quick Draw")) << "there is no room, nothing is asked";
  Slots() = 4;
  EXPECT_FALSE(Remove("Quick Draw: Dagger")) << "no slot to pay with";
  ExpectPurse(16, 4);
}

TEST_F(WeaponProfTest, SpecializationTakesItsPriceAndAStep) {
  ASSERT_TRUE(Add("Bow: Long"));
  EXPECT_FALSE(Specialize(*game, kLongBow, 1)) << "no step to take";
  Steps() = 1;
  EXPECT_FALSE(Specialize(*game, kDagger, 1)) << "not proficient";
  EXPECT_FALSE(Specialize(*game, -1, 1));
  BP() = 1;
  EXPECT_FALSE(Specialize(*game, kLongBow, 1)) << "a bow takes 2 BP";
  BP() = 2;
  Used() = 4;
  EXPECT_FALSE(Specialize(*game, kLongBow, 1)) << "no slot is left";
  Used() = 1;
  EXPECT_TRUE(Specialize(*game, kLongBow, 1));
  ExpectPurse(0, 3);
  EXPECT_EQ(Steps(), 0);
  EXPECT_EQ(TextsOf(Specializations(*game)), Lines{"Bow: Long"});
  EXPECT_TRUE(ProficienciesHeld(*game).empty());
  EXPECT_FALSE(Remove("Bow: Long")) << "the Specialization goes first";
  EXPECT_TRUE(Specialize(*game, kLongBow, -1));
  EXPECT_FALSE(Specialize(*game, kLongBow, -1));
  ExpectPurse(2, 1);
  EXPECT_EQ(Steps(), 1);
}

TEST_F(WeaponProfTest, AKnightErrantSpecializesForNothing) {
  ClassLevel(kKnightErrant) = 1;
  Level(kLongBow) = 1;
  Steps() = 1;
  BP() = 0;
  Used() = Slots();
  EXPECT_TRUE(Specialize(*game, kLongBow, 1));
  EXPECT_FALSE(Specialize(*game, kLongBow, 1));
  EXPECT_TRUE(Specialize(*game, kLongBow, -1));
  ExpectPurse(0, 4);
  EXPECT_EQ(Steps(), 1);
}

TEST_F(WeaponProfTest, MasteryIsForFightersOfTheFifthLevel) {
  Level(kDagger) = 1;
  Used() = 1;
  ClassLevel(kFighter) = 5;
  EXPECT_FALSE(Master(*game, kDagger, 1)) << "not specialized";
  Level(kDagger) = 2;
  Used() = 2;
  ClassLevel(kFighter) = 4;
  EXPECT_FALSE(Master(*game, kDagger, 1));
  ClassLevel(kFighter) = 5;
  EXPECT_TRUE(Master(*game, kDagger, 1));
  BP() = 0.5F;
  EXPECT_FALSE(Master(*game, kDagger, 1)) << "the BP do not reach";
  BP() = 19;
  EXPECT_TRUE(Master(*game, kDagger, 1));
  EXPECT_FALSE(Master(*game, kDagger, 1)) << "the slots are used";
  EXPECT_EQ(Level(kDagger), 4);
  ExpectPurse(18, 4);

  for (const int left : {3, 2}) {
    EXPECT_TRUE(Specialize(*game, kDagger, -1)) << "a step of mastery goes first";
    EXPECT_EQ(Level(kDagger), left);
    EXPECT_EQ(Steps(), 0);
  }
  ExpectPurse(20, 2);
  EXPECT_FALSE(Master(*game, kDagger, -1));
  EXPECT_TRUE(Specialize(*game, kDagger, -1));
  ExpectPurse(21, 1);
  EXPECT_EQ(Steps(), 1);
}

TEST_F(WeaponProfTest, ThePageIsNotLeftWhileSlotsAreOverdrawnUnlessNothingIsLeftToGive) {
  ASSERT_TRUE(Add("Dagger") && Add("Knife"));
  Slots() = 1;
  Play("WeaponProf", RunWeaponProf, [&](Form& form) {
    EXPECT_EQ(form.Text(kSlotsLeft), "-1");
    form.Press(kClose);
    form.PressCloseBox();
    EXPECT_FALSE(form.IsClosed());
    EXPECT_EQ(form.Text(kNote), "You use more slots than you have: give something up first.");
    ChooseText(form, kHeld, "Knife");
    form.Press(kRemove);
    form.Press(kClose);
    EXPECT_TRUE(form.IsClosed());
  });

  ASSERT_TRUE(Remove("Dagger"));
  Used() = 5;
  Play("WeaponProf", RunWeaponProf, [](Form& form) { form.Press(kClose); });
}

TEST_F(WeaponProfTest, ThePageTakesSpecializesAndMasters) {
  game->sheet.IsFighterClass = 1;
  ClassLevel(kFighter) = 5;
  Steps() = 1;
  BP() = 2.5F;
  platform.ExpectForm("WeaponProf", [&](Form& form) {
    EXPECT_EQ(form.Text(kBuildingPoints), "2");
    form.Press(kTake);
    EXPECT_EQ(Used(), 0) << "nothing is selected";
    form.Type(kSearch, "battle");
    ASSERT_EQ(form.Items(kOffered), Lines{"Battle axe"});
    EXPECT_EQ(form.Text(kDamage), "2d4 / 2d4 / 2d4 / 2d4 / 2d4 / 2d4");
    EXPECT_EQ(form.Text(kNote), "It costs no BP and 1 slot.");
    form.Press(kTake);
    ChooseText(form, kHeld, "Battle axe");
    EXPECT_EQ(form.Text(kNote), "You may specialize in it for 1 BP and as many slots.");
    form.Press(kSpecialize);
    EXPECT_EQ(form.Text(kSpecialState), "Specialization");
    ChooseText(form, kSpecial, "Battle axe");
    EXPECT_EQ(form.Text(kSpecialState), "Specialized");
    EXPECT_EQ(form.Text(kNote), "A step of Mastery costs 1 slot and 1 BP.");
    form.Press(kIncrease);
    EXPECT_EQ(form.Text(kBuildingPoints), "0");
    form.Press(kRemoveSpecial);
    EXPECT_EQ(Level(kBattleAxe), 2);

    BP() = 0.5F;
    form.Type(kSearch, "DAGGER");
    ChooseText(form, kOffered, "Dagger");
    EXPECT_EQ(form.Text(kNote), "It costs 1 BP, and you do not have it.");
    form.Press(kTake);
    EXPECT_EQ(Level(kDagger), 0) << "the page gives no credit, not even to fighters";
    form.Press(kClose);
  });
  RunWeaponProf(*game);
}

TEST_F(WeaponProfTest, TheListsFollowTheClassesAndBooks) {
  const auto inClass = [&] { return TextsOf(ProficienciesOffered(*game, ProficiencyMode::Class)); };
  EXPECT_TRUE(inClass().empty()) << "no class, no weapon";
  const std::size_t all = ProficienciesOffered(*game, ProficiencyMode::All).size();
  EXPECT_EQ(all, 137U);
  game->RuleSwitches[kWarmongersAlmanac] = 0;
  EXPECT_LT(ProficienciesOffered(*game, ProficiencyMode::All).size(), all);
  game->RuleSwitches[kWarmongersAlmanac] = 1;
  ClassLevel(kMagicUser) = 1;
  Lines expected;
  for (std::size_t weapon = 0; weapon < ProficiencyTable().size(); ++weapon) {
    const std::string_view name = ProficiencyTable()[weapon].Name;
    if (!name.empty() && ClassTable()[kMagicUser].WeaponAllowed[weapon] != 0) expected.emplace_back(TrimRight(name));
  }
  EXPECT_EQ(inClass(), expected);
  ClassLevel(kFighter) = 1;
  EXPECT_EQ(inClass().back(), "Quick Draw");
  Play("WeaponProf", RunWeaponProf, [&](Form& form) {
    EXPECT_EQ(form.Items(kOffered), inClass());
    form.Mark(kAllMode, true);
    EXPECT_EQ(form.Items(kOffered).size(), all);
    form.Press(kClose);
  });
}

TEST(WeaponProfRandomTest, WhatIsHeldWasPaid) {
  constexpr int kSlots = 12;
  int most = 0;
  int overdrawn = 0;
  for (std::uint32_t run = 0; run < 160; ++run) {
    RandomPlayer player(run, 250);
    player.seldomUsed = kSearch;
    const auto game = MakeGame(player);
    const std::size_t classRow = std::array{kFighter, kKnightErrant, kGladiator, kMagicUser}[run % 4];
    const bool isFighter = classRow != kMagicUser;
    const bool isKnight = classRow == kKnightErrant;
    game->sheet.ClassLevels[classRow] = 5;
    game->sheet.IsFighterClass = isFighter ? 1 : 0;
    game->sheet.FreeWeaponProficiencySlots = 3;
    game->sheet.ProficiencySlots = kSlots;
    const float start = 30.5F;
    game->run.BuildingPoints = start;
    RunWeaponProf(*game);

    const int used = game->sheet.ProficiencySlotsUsed;
    if (!player.stuckForm.empty()) {
      ++overdrawn;
      ASSERT_GT(used, kSlots) << run;
    }
    int slots = 0;
    int bp = 0;
    for (int row = 0; row < kProficiencyTableRows; ++row) {
      const ProficiencyRecord& weapon = ProficiencyTable()[static_cast<std::size_t>(row)];
      const int level = game->sheet.ProficiencyLevels[static_cast<std::size_t>(row)];
      const bool isStyle = weapon.SpecializationCost >= kUnspecializable;
      ASSERT_GE(level, 0);
      if (level == 0) continue;
      slots += isStyle ? level : ProficiencySlotCost(*game, row);
      bp += isStyle ? level : 1;
      if (isStyle || level < ProficiencyMark::Specialized || isKnight) continue;
      slots += weapon.SpecializationCost + level - ProficiencyMark::Specialized;
      bp += weapon.SpecializationCost * (level - ProficiencyMark::Proficient);
    }
    const auto isPick = [](int weapon) { return weapon >= 0; };
    const int picks = static_cast<int>(std::ranges::count_if(game->sheet.ProficiencyPicks[0], isPick));
    const int thrownAway = used - slots - picks;  // two slots and BP for each Quick Draw that was given up
    ASSERT_GE(thrownAway, 0) << run;
    ASSERT_EQ(thrownAway % 2, 0) << run;
    const int free = isFighter && used > 0 ? 1 : 0;
    ASSERT_EQ(start - game->run.BuildingPoints, static_cast<float>(bp + picks + thrownAway - free)) << run;
    most = std::max(most, used);
  }
  EXPECT_GE(most, kSlots);
  EXPECT_LT(overdrawn, 100) << "most pages are left by their Close";
}

}  // namespace
}  // namespace veld
