#include "steps/skills/talents.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "rules/race_table.h"
#include "support/game_test.h"
#include "support/random_player.h"
#include "text/search.h"

namespace veld {
namespace {

using testing::ChooseText;
using testing::RandomPlayer;

constexpr int kClose = 1;
constexpr int kBuildingPoints = 25;
constexpr int kPrice = 90;
constexpr int kOffered = 3024;
constexpr int kHeld = 3025;
constexpr int kSearch = 3026;
constexpr int kNote = 3027;
constexpr int kAdd = 4001;
constexpr int kRemove = 4002;

constexpr std::size_t kEndurance = 20;
constexpr std::size_t kDenseSkin = 23;
constexpr std::size_t kLucky = 104;
constexpr std::size_t kAttackBonus = 0;
constexpr std::size_t kTakeAfter = 2;

std::vector<std::string> TextsOf(const std::vector<TalentLine>& lines) {
  std::vector<std::string> texts;
  for (const TalentLine& line : lines) texts.push_back(line.Text);
  return texts;
}

class TalentsTest : public testing::GameTest<> {
 protected:
  TalentsTest() {
    game->sheet.RaceName = "Human";
    game->sheet.Gender = "Male";
    game->run.BuildingPoints = 40;
  }

  /// The next GetName is answered so; "" cancels it.
  void WillName(std::string answer) {
    platform.ExpectForm("GetName", [answer](Form& form) {
      form.Type(3000, answer);
      form.Press(answer.empty() ? 2 : 1);
    });
  }

  float& BP() { return game->run.BuildingPoints; }
  int& Count(std::size_t row) { return game->sheet.TalentCounts[row]; }
  int& ItemCount(std::size_t family, std::size_t item) { return game->sheet.TalentDetailCounts[family][item]; }
  std::string_view Item(std::size_t family, std::size_t item) { return game->sheet.TalentDetailNames[family][item]; }
};

TEST_F(TalentsTest, OnlyBonusTalentsAreTakenAgain) {
  EXPECT_TRUE(ChangeTalent(*game, "Endurance", 1, 5));
  EXPECT_FALSE(ChangeTalent(*game, "Endurance", 1, 5));
  EXPECT_TRUE(ChangeTalent(*game, "Dart Bonus", 1, 5));
  EXPECT_TRUE(ChangeTalent(*game, "Dart Bonus", 1, 5));
  EXPECT_EQ(TextsOf(TalentsHeld(*game)), (std::vector<std::string>{"Dart Bonus x2", "Endurance"}));

  EXPECT_TRUE(ChangeTalent(*game, "Endurance", -1, 5));
  EXPECT_FALSE(ChangeTalent(*game, "Endurance", -1, 5)) << "it is no longer held";
  EXPECT_EQ(BP(), 30);
}

TEST_F(TalentsTest, NamesAreFoundAsCallersWriteThem) {
  EXPECT_TRUE(ChangeTalent(*game, "Stealthy Movement", 1)) << "the talent Stealth stands in it";
  EXPECT_EQ(Count(65), 1);
  EXPECT_TRUE(ChangeTalent(*game, "Resistance", 1)) << "blanks at the end of the catalogue's name aside";
  for (const char* lost : {"No such talent", "", "sword bonus", "Attack Bonus: Sword Bonus", "Elemental"}) {
    EXPECT_FALSE(ChangeTalent(*game, lost, 1)) << lost;
  }
  EXPECT_EQ(TalentsHeld(*game).size(), 2U);
}

TEST_F(TalentsTest, ALuckyDieIsChosenOnce) {
  WillName("");
  EXPECT_FALSE(ChangeTalent(*game, "Lucky", 1, 5));
  WillName("0");
  EXPECT_TRUE(ChangeTalent(*game, "Lucky", 1, 5));
  WillName("none");
  EXPECT_TRUE(ChangeTalent(*game, "Lucky", 1, 5));
  EXPECT_EQ(Count(kLucky), 0) << "still unbought";
  EXPECT_EQ(BP(), 30) << "though it was paid";
  WillName("6");
  EXPECT_TRUE(ChangeTalent(*game, "Lucky", 1, 5));
  EXPECT_EQ(TextsOf(TalentsHeld(*game)), std::vector<std::string>{"Lucky d6"});
  EXPECT_FALSE(ChangeTalent(*game, "Lucky", 1, 5));
  EXPECT_TRUE(ChangeTalent(*game, "Lucky", -1, 5));
  EXPECT_EQ(Count(kLucky), 0);
  EXPECT_EQ(BP(), 30);
}

TEST_F(TalentsTest, ItemsAreNamedAndCounted) {
  WillName("   ");
  EXPECT_FALSE(ChangeTalent(*game, "Attack Bonus", 1, 5));
  WillName("Sword Bonus");
  EXPECT_TRUE(ChangeTalent(*game, "Attack Bonus", 1, 5));
  EXPECT_EQ(Item(kAttackBonus, 0), "Attack Bonus: Sword Bonus");
  EXPECT_TRUE(ChangeTalent(*game, "Attack Bonus: Sword Bonus", 1, 5)) << "the item, not the talent that stands in it";
  EXPECT_EQ(ItemCount(kAttackBonus, 0), 2);
  EXPECT_EQ(BP(), 30);
  EXPECT_EQ(TextsOf(TalentsHeld(*game)), std::vector<std::string>{"Attack Bonus: Sword Bonus x2"});

  EXPECT_FALSE(ChangeTalent(*game, "Attack Bonus", -1, 5)) << "an item must be named";
  EXPECT_TRUE(ChangeTalent(*game, "Attack Bonus: Sword Bonus", -1, 5));
  EXPECT_TRUE(ChangeTalent(*game, "Attack Bonus: Sword Bonus", -1, 5));
  EXPECT_EQ(Item(kAttackBonus, 0), "") << "nothing is left that a file would not keep";
  EXPECT_EQ(BP(), 40);
}

TEST_F(TalentsTest, ItemsGoBehindAllOthersAndAFullFamilyIsRefusedUnasked) {
  ASSERT_TRUE(GrantTalentItem(*game, kAttackBonus, "a"));
  ASSERT_TRUE(GrantTalentItem(*game, kAttackBonus, "b"));
  ASSERT_TRUE(ChangeTalent(*game, "Attack Bonus: a", -1));
  ASSERT_TRUE(GrantTalentItem(*game, kAttackBonus, "c"));
  EXPECT_EQ(Item(kAttackBonus, 2), "Attack Bonus: c");
  for (int item = 3; item < 51; ++item) ASSERT_TRUE(GrantTalentItem(*game, kAttackBonus, "x")) << item;
  EXPECT_EQ(Item(kAttackBonus, 0), "Attack Bonus: x") << "the gap serves when the end is reached";
  EXPECT_FALSE(GrantTalentItem(*game, kAttackBonus, "y"));
  EXPECT_FALSE(ChangeTalent(*game, "Attack Bonus", 1, 5));
  EXPECT_EQ(BP(), 40);
  EXPECT_FALSE(GrantTalentItem(*game, -1, "y"));
}

TEST_F(TalentsTest, TheRaceGivesWhatCanNotBeRemoved) {
  game->sheet.RaceName = "Half-ogre";
  Play("Talents", RunTalents, [&](Form& form) {
    EXPECT_EQ(std::ranges::count(form.Items(kOffered), "Dense Skin"), 0);
    ChooseText(form, kHeld, "Dense Skin");
    EXPECT_EQ(form.Text(kNote), "Your race has this talent for nothing.");
    form.Press(kRemove);
    form.Press(kClose);
  });
  EXPECT_EQ(Count(kDenseSkin), -1);
  EXPECT_EQ(platform.messages, std::vector<std::string>{"VELD: You cannot remove a Talent granted due to your race."});

  ResetCharacter(*game);
  game->sheet.RaceName = "Nobody";
  GrantRaceTalents(*game);
  EXPECT_TRUE(TalentsHeld(*game).empty());
  EXPECT_TRUE(TalentsOffered(*game).empty());
}

TEST_F(TalentsTest, ThePageTellsPriceAndRefusalBeforeTheyAreMet) {
  BP() = 12.5F;
  game->sheet.TalentDetailCounts[kTakeAfter][0] = 1;
  game->sheet.TalentDetailNames[kTakeAfter][0] = "Elf, High";
  game->run.BowBonusDiscount = 3;
  platform.ExpectForm("Talents", [&](Form& form) {
    EXPECT_EQ(form.Text(kBuildingPoints), "12");
    for (const std::string& line : form.Items(kOffered)) EXPECT_FALSE(Contains(line, "Take After")) << line;
    EXPECT_EQ(form.Items(kHeld), std::vector<std::string>{"Take After: Elf, High"});
    form.Press(kAdd);
    form.Press(kRemove);
    EXPECT_EQ(BP(), 12.5F) << "nothing is selected";

    form.Type(kSearch, "bow b");
    EXPECT_EQ(form.Items(kOffered), std::vector<std::string>{"Bow Bonus"});
    ChooseText(form, kOffered, "Bow Bonus");
    EXPECT_EQ(form.Text(kPrice), "3 BP");
    form.Press(kAdd);
    form.Press(kAdd);
    EXPECT_EQ(form.SelectedText(kOffered), "Bow Bonus") << "the selection stays";
    EXPECT_EQ(form.Text(kBuildingPoints), "6");

    form.Type(kSearch, "");
    ChooseText(form, kOffered, "Mnemonically Gifted");
    EXPECT_EQ(form.Text(kNote), "It costs 15 BP and you have 6.5.");
    ChooseText(form, kHeld, "Bow Bonus x2");
    EXPECT_EQ(form.Text(kNote), "Taking it away gives 3 BP back.");
    form.Press(kRemove);
    ChooseText(form, kHeld, "Take After: Elf, High");
    EXPECT_EQ(form.Text(kNote), "Whom you take after is settled before your class.");
    form.Press(kRemove);
    EXPECT_EQ(ItemCount(kTakeAfter, 0), 1);
    EXPECT_FALSE(ChangeTalent(*game, "Take After", 1));
    form.Press(kClose);
  });
  RunTalents(*game);
  EXPECT_EQ(BP(), 9.5F);
}

TEST(TalentsRandomTest, WhatIsHeldWasPaid) {
  std::size_t most = 0;
  for (std::uint32_t run = 0; run < 80; ++run) {
    RandomPlayer player(run, 250);
    player.seldomUsed = kSearch;
    const auto game = MakeGame(player);
    const RaceRecord& race = RaceTable()[run % kRacesFilled];
    game->sheet.RaceName = race.Name;
    game->sheet.Gender = race.Gender;
    if (run % 5 == 1) game->sheet.ClassName = "Zealot of Shona (Shonite)";
    if (run % 5 == 2) game->sheet.ClassName = "Zealot of Hokalas (Keyholder)";
    if (run % 7 == 3) game->sheet.PackageName = "Savage";
    const float start = static_cast<float>(4 * run) + 0.5F;
    game->run.BuildingPoints = start;
    RunTalents(*game);
    ASSERT_EQ(player.stuckForm, "") << run;
    ASSERT_GE(game->run.BuildingPoints, 0) << run;

    float spent = 0;
    for (const TalentLine& line : TalentsHeld(*game)) {
      const int count = TalentCount(*game, line.Place);
      ASSERT_TRUE(count > 0 || (count == -1 && race.TalentFlags[static_cast<std::size_t>(line.Place.Row)] == -1));
      const int times = IsLuckyTalent(line.Place) ? 1 : std::max(count, 0);
      spent += static_cast<float>(times * TalentPriceNow(*game, line.Place));
    }
    most = std::max(most, TalentsHeld(*game).size());
    // A die of no sides is paid for nothing, as often as it is taken.
    const float lost = start - game->run.BuildingPoints - spent;
    const int luckyPrice = TalentPriceNow(*game, {.Row = static_cast<int>(kLucky)});
    ASSERT_GE(lost, 0) << run;
    ASSERT_EQ(static_cast<int>(lost) % luckyPrice, 0) << run;
    for (std::size_t family = 0; family < kDetailRows; ++family) {
      for (std::size_t item = 0; item < kDetailRows; ++item) {
        const int count = game->sheet.TalentDetailCounts[family][item];
        const std::string_view name = game->sheet.TalentDetailNames[family][item];
        ASSERT_TRUE(count > 0 ? name.starts_with(TalentAt({.Family = static_cast<int>(family)}).Name) : name.empty());
      }
    }
  }
  EXPECT_GT(most, 6U);
}

}  // namespace
}  // namespace veld
