#include "steps/money/step_ten.h"

#include <gtest/gtest.h>

#include <limits>

#include "rules/class_table.h"
#include "rules/money_tables.h"
#include "steps/money/money_bp.h"
#include "steps/money/starting_money.h"
#include "support/game_test.h"
#include "support/random_player.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {
namespace {

using testing::RandomPlayer;

constexpr int kOk = 1;
constexpr int kAbort = 2;
constexpr int kRollMoney = 4002;
constexpr int kRollAge = 6078;

class StepTenTest : public testing::GameTest<> {
 protected:
  StepTenTest() {
    game->dice.RandomState = 4711;
    game->run.CurrentStep = 10;
    game->run.BuildingPoints = 10;
    game->sheet.RaceName = "Human";
    game->sheet.ClassName = "Magic-User";
    game->sheet.Age = 16;
    game->sheet.SocialClassIndex = 8;
  }

  /// Presses the money button and answers with `bp`.
  void PressMoney(Form& form, std::string bp = "0") {
    platform.ExpectTyped("MoneyBP", std::move(bp));
    form.Press(kRollMoney);
  }
};

TEST(MoneyTablesTest, BandsHaveNoHoleButTheOneOfTheBook) {
  int next = kHighestBrokeTotal + 1;
  int tier = 0;
  for (const MoneyBand& band : MoneyBands()) {
    if (next == 106) ++next;
    EXPECT_EQ(band.Low, next);
    EXPECT_GE(band.Tier, tier);
    next = band.High == std::numeric_limits<int>::max() ? 0 : band.High + 1;
    tier = band.Tier;
  }
  EXPECT_EQ(next, 0);
  EXPECT_EQ(FindMoneyBand(106), nullptr);
  EXPECT_EQ(FindMoneyBand(std::numeric_limits<int>::max())->Tier, 5);

  next = 1;
  for (const DebtBand& band : DebtBands()) {
    EXPECT_EQ(band.Low, next);
    next = band.High + 1;
  }
  EXPECT_EQ(next, 101);
}

TEST(MoneyTablesTest, EveryClassNameOfTheAgeRowsIsAClassOrAMirrorOfOne) {
  const auto most = [](std::string_view name) {
    const auto dice = ClassAgeDice(name);
    return dice[0].Sides * dice[0].Count + dice[1].Sides * dice[1].Count;
  };
  EXPECT_EQ(most("cleric"), 6) << "the case does not matter";
  EXPECT_EQ(most("Cleric/Berserker"), most("Berserker/Cleric"));
  EXPECT_EQ(most("Assassin") + most(""), 0);
  for (std::size_t row = kFirstMultiClass; row < kClassRows; ++row) {
    EXPECT_GT(most(ClassTable()[row].Name), 0) << ClassTable()[row].Name;
  }
}

TEST_F(StepTenTest, FirstRollsAreFreeAndTheAgeIsWrittenOnOk) {
  Play("StepTen", RunStepTen, [&](Form& form) {
    form.Press(kOk);
    form.Press(kRollAge);
    form.Press(kOk);
    EXPECT_EQ(platform.messages, (std::vector<std::string>(2, "VELD: You must finish this section")));
    PressMoney(form);
    EXPECT_EQ(form.Text(90), "10");
    EXPECT_EQ(form.Text(92), Format("%i", game->sheet.GoldPieces));
    form.Press(kRollAge);
    EXPECT_EQ(form.Text(90), "9");
    EXPECT_EQ(game->sheet.Age, 16);
    const int shown = static_cast<int>(form.Number(91));
    form.Press(kOk);
    EXPECT_EQ(game->sheet.Age, shown);
  });
  EXPECT_EQ(game->run.CurrentStep, 11);
}

TEST_F(StepTenTest, WithoutPointsNothingIsRolledAgain) {
  game->run.BuildingPoints = 1.5F;
  Play("StepTen", RunStepTen, [&](Form& form) {
    PressMoney(form);
    PressMoney(form);
    EXPECT_EQ(game->run.BuildingPoints, 0.5F);
    form.Press(kOk);
    EXPECT_FALSE(form.IsClosed()) << "the age is to be rolled";
    const std::uint32_t dice = game->dice.RandomState;
    form.Press(kRollMoney);
    form.Press(kRollAge);
    const std::uint32_t afterFirstAge = game->dice.RandomState;
    EXPECT_NE(afterFirstAge, dice) << "the first age is free";
    form.Press(kRollAge);
    EXPECT_EQ(game->dice.RandomState, afterFirstAge);
    form.Press(kAbort);
  });
}

TEST_F(StepTenTest, MoneyPointsAreTakenOnlyIfThereAreAsMany) {
  platform.ExpectForm("MoneyBP", [&](Form& form) {
    for (const char* refused : {"11", "-1", "99999999999999999999", "4294967296"}) {
      form.Type(3000, refused);
      form.Press(kOk);
      EXPECT_FALSE(form.IsClosed()) << refused;
    }
    form.Type(3000, "10");
    form.Press(kOk);
  });
  EXPECT_TRUE(RunMoneyBP(*game));
  EXPECT_EQ(game->run.MoneyBPSpent, 10);
  EXPECT_EQ(game->run.BuildingPoints, 0);
  EXPECT_TRUE(platform.messages.empty());

  game->run.BuildingPoints = -6;
  EXPECT_TRUE(SpendMoneyBP(*game, 0)) << "0 is always taken";
  EXPECT_FALSE(SpendMoneyBP(*game, 1));
}

TEST_F(StepTenTest, AbortingTheMoneyPointsEndsTheStep) {
  game->sheet.GoldPieces = 77;
  Play("StepTen", RunStepTen, [&](Form& form) {
    platform.ExpectForm("MoneyBP", [](Form& money) { money.PressCloseBox(); });
    form.Press(kRollMoney);
    EXPECT_TRUE(form.IsClosed());
  });
  EXPECT_EQ(game->run.CurrentStep, 1);
  EXPECT_EQ(game->sheet.GoldPieces, 77);
}

TEST_F(StepTenTest, TheEndsOfTheMoneyBands) {
  RollStartingMoney(*game, 116);
  DescribeInheritance(*game);
  EXPECT_GE(sheet.GoldPieces, 192);
  RollStartingMoney(*game, 106);
  DescribeInheritance(*game);
  EXPECT_EQ(sheet.GoldPieces + sheet.InheritanceTier, 0);
  EXPECT_TRUE(sheet.StartingMoneyText.Empty());
  for (const std::string_view left :
       {sheet.InheritedWeapon.View(), sheet.InheritedArmor.View(), sheet.InheritedShieldHelmet.View(),
        sheet.InheritedMount.View(), sheet.InheritedDeed.View()}) {
    EXPECT_EQ(left, "");
  }
  RollStartingMoney(*game, 10);
  EXPECT_EQ(sheet.StartingMoneyText, "You are flat broke");
  RollStartingMoney(*game, 11);
  EXPECT_TRUE(sheet.GoldPieces >= 21 && sheet.GoldPieces <= 24);
  RollStartingMoney(*game, 5);
  EXPECT_EQ(sheet.GoldPieces + sheet.HereditaryDebt % 10, 0);
  EXPECT_GE(sheet.HereditaryDebt, 210);
  EXPECT_EQ(sheet.StartingMoneyText, Format("You have rolled a heriditary debt of %i", sheet.HereditaryDebt));
}

TEST_F(StepTenTest, BirthYouthAndPackageChangeTheMoney) {
  const auto roll = [&](std::string_view package, int modifier, int percent, int orphan) {
    sheet.PackageName = package;
    game->run.InheritanceModifier = modifier;
    game->run.MoneyBonusPercent = percent;
    sheet.IsOrphan = orphan;
    game->dice.RandomState = 99;
    GenerateStartingMoney(*game);
    return sheet.GoldPieces;
  };
  constexpr int kMost = std::numeric_limits<int>::max();
  const int plain = roll("None", 500, 0, 0);
  EXPECT_EQ(roll("None", 500, 0, 1), plain / 2);
  EXPECT_EQ(roll("None", 500, 20, 0), plain + plain * 20 / 100);
  EXPECT_EQ(roll("None", 500, -250, 0), 0) << "nobody starts with less than nothing";
  EXPECT_EQ(roll("Noble Warrior", 500, 0, 0), plain + 225);
  EXPECT_EQ(roll("Nobleman", kMost, kMost, 0), kMost);
  EXPECT_EQ(roll("None", -kMost, 0, 1), 0);
  EXPECT_GT(sheet.HereditaryDebt, 0);
}

TEST_F(StepTenTest, TheLowClassesInheritCursedGoods) {
  const auto curses = [&](int socialClass) {
    game->sheet.SocialClassIndex = socialClass;
    int count = 0;
    for (int i = 0; i < 400; ++i) count += Contains(RollInheritedGood(*game, InheritanceKind::Weapon), "-1") ? 1 : 0;
    return count;
  };
  EXPECT_GT(curses(1), 10);
  EXPECT_EQ(curses(8), 0) << "without a modifier nothing is cursed or magic";
  game->sheet.SocialClassIndex = 12;
  int magic = 0;
  for (int i = 0; i < 400; ++i) magic += Contains(RollInheritedGood(*game, InheritanceKind::Shield), "+1") ? 1 : 0;
  EXPECT_GT(magic, 30);
}

TEST(InheritanceTest, AnEndlessRunOfBadDiceEnds) {
  testing::DicePlayer player;
  player.thrower = [](int, int count) { return count; };
  const auto game = testing::QuietGame(player);
  game->sheet.SocialClassIndex = 1;
  EXPECT_TRUE(RollInheritedGood(*game, InheritanceKind::Weapon).starts_with("Hand Axe-"));
}

TEST(StepTenRandomTest, AnyPlayEndsWithASoundPurse) {
  RandomPlayer player(17);
  const auto game = testing::QuietGame(player);
  int finished = 0;
  for (int run = 0; run < 3000; ++run) {
    game->run = {};
    game->run.BuildingPoints = static_cast<float>(run % 41) - 8.5F;
    game->run.InheritanceModifier = run % 7 * 25 - 60;
    game->run.MoneyBonusPercent = run % 5 * 70 - 140;
    game->sheet.SocialClassIndex = run % 14;
    game->sheet.ClassName = ClassTable()[static_cast<std::size_t>(run % kClassRows)].Name;
    game->sheet.RaceName = run % 9 == 0 ? "Pixie Fairy" : "Elf, Grel";
    CharacterSheet& sheet = game->sheet;
    sheet.InheritedWeapon = sheet.InheritedArmor = sheet.InheritedMount = sheet.InheritedDeed = "";
    sheet.InheritanceTier = 0;
    game->sheet.Age = 20;
    RunStepTen(*game);
    const int step = game->run.CurrentStep;
    ASSERT_TRUE(step == 0 || step == 1 || step == 11) << run;
    ASSERT_GE(game->sheet.GoldPieces, 0) << run;
    ASSERT_EQ(sheet.InheritedWeapon.Empty(), sheet.InheritanceTier < 1) << run;
    ASSERT_EQ(sheet.InheritedMount.Empty(), sheet.InheritanceTier < 4) << run;
    ASSERT_EQ(sheet.InheritedDeed.Empty(), sheet.InheritanceTier < 5) << run;
    ASSERT_TRUE(game->sheet.Age >= 20 && game->sheet.Age <= 44) << run;
    finished += step == 11 ? 1 : 0;
  }
  EXPECT_GT(finished, 1000);
  EXPECT_TRUE(player.stuckForm.empty()) << player.stuckForm;
}

}  // namespace
}  // namespace veld
