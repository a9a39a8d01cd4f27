#include "steps/finish/equip.h"

#include <gtest/gtest.h>

#include <limits>

#include "dice/random.h"
#include "steps/finish/equipment_purchase.h"
#include "support/game_test.h"
#include "support/random_player.h"
#include "text/format.h"

namespace veld {
namespace {

using testing::RandomPlayer;

constexpr int kOk = 1;
constexpr int kCategories = 3021;
constexpr int kGoods = 3022;
constexpr int kOwned = 3023;
constexpr int kSearch = 3024;
constexpr int kAdd = 4001;
constexpr int kRemove = 4002;

constexpr int kTools = 12;
constexpr int kLivestock = 6;
constexpr int kWeapons = 20;

EquipmentRecord Good(std::string_view name, int category, int gold, int silver, int copper, float weight) {
  EquipmentRecord good;
  good.Name = name;
  good.Category = category;
  good.GoldCost = gold;
  good.SilverCost = silver;
  good.CopperCost = copper;
  good.CopperValue = gold * 100 + silver * 10 + copper;
  good.Weight = weight;
  return good;
}

void StockMarket(Game& game) {
  game.EquipmentTable[0] = Good("Rope, silk", kTools, 0, 8, 0, 4);
  game.EquipmentTable[1] = Good("Rope", kTools, 0, 2, 0, 8);
  game.EquipmentTable[3] = Good("Mule", kLivestock, 9, 0, 0, 600);
  game.EquipmentTable[4] = Good("Long sword", kWeapons, 15, 0, 0, 5);
  game.EquipmentTable[999] = Good("Nail", kTools, 0, 0, 1, 0.25F);
  game.CustomEquipmentTable[2] = Good("Grandfather's sword", kWeapons, 40, 0, 0, 6);
}

class EquipTest : public testing::GameTest<> {
 protected:
  EquipTest() { StockMarket(*game); }

  void Buy(std::string_view name, int count = 1) {
    game->TextScratch = name;
    TradeItem(*game, count);
  }
  std::array<int, 6> Coins() const {
    return {sheet.PlatinumPieces, sheet.HardSilverPieces, sheet.GoldPieces,
            sheet.ElectrumPieces, sheet.SilverPieces,     sheet.CopperPieces};
  }
};

TEST_F(EquipTest, APurchaseGoesThroughWithJustTheFunds) {
  game->sheet.GoldPieces = 14;
  game->sheet.SilverPieces = 9;
  game->sheet.CopperPieces = 10;
  Buy("Long sword");
  EXPECT_EQ(PurseWorth(game->sheet), 0);
  EXPECT_EQ(game->EquipmentTable[4].Quantity, 1);
  EXPECT_EQ(game->sheet.CarriedWeightLbs, 5);
  EXPECT_TRUE(game->TextScratch.empty());

  game->sheet = {};
  game->sheet.GoldPieces = 14;
  game->sheet.SilverPieces = 9;
  game->sheet.CopperPieces = 9;
  Buy("Long sword");
  EXPECT_EQ(platform.messages, (std::vector<std::string>{"VELD: You lack sufficient funds to make this transaction."}));
  EXPECT_EQ(Coins(), (std::array{0, 0, 14, 0, 9, 9}));
  EXPECT_EQ(game->EquipmentTable[4].Quantity, 1);
}

TEST_F(EquipTest, SmallCoinsAreNotGatheredUp) {
  game->sheet.CopperPieces = 2000;
  Buy("Long sword");
  EXPECT_EQ(PurseWorth(game->sheet), 500);
  EXPECT_EQ(game->sheet.CopperPieces, 2000);
  EXPECT_LT(game->sheet.PlatinumPieces, 0) << "the one coin that may be owed";
}

TEST_F(EquipTest, ASalePaysTheFullPriceInTheGoodsOwnCoin) {
  Buy("Rope, silk", -1);
  EXPECT_EQ(Coins(), (std::array{0, 0, 0, 0, 8, 0}));
  EXPECT_EQ(game->EquipmentTable[0].Quantity, -1) << "a stale list is not refused";
  game->sheet.GoldPieces = std::numeric_limits<int>::max();
  Buy("Grandfather's sword", -1);
  EXPECT_EQ(game->sheet.GoldPieces, std::numeric_limits<int>::max());
  Buy("", -1);
  Buy("Moon", -1);
  EXPECT_EQ(game->EquipmentTable[1].Quantity, 0);
}

TEST_F(EquipTest, TheFirstNameInTheTextIsTaken) {
  EXPECT_EQ(FindGood(*game, "Rope x 3"), &game->EquipmentTable[1]);
  EXPECT_EQ(FindGood(*game, "Rope, silk x 12"), &game->EquipmentTable[0]);
  game->CustomEquipmentTable[0] = Good("Rope", kTools, 1, 0, 0, 1);
  EXPECT_EQ(FindGood(*game, "Rope"), &game->CustomEquipmentTable[0]) << "row by row through both lists";
  EXPECT_EQ(FindGood(*game, "Rope, silk"), &game->EquipmentTable[0]);
  EXPECT_EQ(FindGood(*game, ""), nullptr);
}

/// Change as a merchant counts it out, coin by coin.
void CountOutChange(CharacterSheet& sheet) {
  for (; sheet.CopperPieces < 0; --sheet.SilverPieces) sheet.CopperPieces += 10;
  for (; sheet.SilverPieces < 0; --sheet.ElectrumPieces) sheet.SilverPieces += 5;
  for (; sheet.ElectrumPieces < 0; --sheet.GoldPieces) sheet.ElectrumPieces += 2;
  for (; sheet.GoldPieces < 0; --sheet.HardSilverPieces) sheet.GoldPieces += 2;
  for (; sheet.HardSilverPieces < 0; --sheet.PlatinumPieces, ++sheet.GoldPieces) sheet.HardSilverPieces += 2;
}

TEST_F(EquipTest, ChangeIsWhatAMerchantCountsOut) {
  DiceState dice;
  dice.RandomState = 8;
  const auto fill = [&](const std::array<int, 6>& coins) {
    sheet.PlatinumPieces = coins[0];
    sheet.HardSilverPieces = coins[1];
    sheet.GoldPieces = coins[2];
    sheet.ElectrumPieces = coins[3];
    sheet.SilverPieces = coins[4];
    sheet.CopperPieces = coins[5];
  };
  for (int i = 0; i < 5000; ++i) {
    std::array<int, 6> coins{};
    for (int& pieces : coins) pieces = RollDie(dice, 61) - 41;
    fill(coins);
    const std::int64_t worth = PurseWorth(sheet);
    CountOutChange(sheet);
    const auto expected = Coins();
    fill(coins);
    MakeChange(sheet);
    ASSERT_EQ(Coins(), expected);
    ASSERT_EQ(PurseWorth(sheet), worth);
  }
}

TEST_F(EquipTest, WhatWalksIsNotCarried) {
  game->sheet.GoldPieces = 200;
  Buy("Mule");
  Buy("Rope");
  Buy("Rope");
  Buy("Grandfather's sword");
  ComputeCarriedWeight(*game);
  EXPECT_EQ(game->sheet.CarriedWeightLbs, 2 * 8 + 6);
  std::vector<std::string> lines;
  for (const EquipmentRecord* good : OwnedGoods(*game)) lines.push_back(OwnedLine(*good));
  EXPECT_EQ(lines, (std::vector<std::string>{"Rope x 2", "Mule", "Grandfather's sword"}));
}

TEST_F(EquipTest, TheDialogShowsPricesAndPurse) {
  game->sheet.GoldPieces = 2;
  Play("Equip", RunEquip, [&](Form& form) {
    EXPECT_EQ(form.Items(kCategories).size(), 21U);
    EXPECT_TRUE(form.Items(kGoods).empty());
    form.Press(kAdd);  // nothing selected
    form.Choose(kCategories, kTools - 1);
    EXPECT_EQ(form.Items(kGoods), (std::vector<std::string>{"Rope, silk", "Rope", "Nail"}));
    form.Choose(kGoods, 1);
    form.Press(kAdd);
    form.Press(kAdd);
    EXPECT_EQ(form.Items(kOwned), (std::vector<std::string>{"Rope x 2"}));
    for (const auto& [id, text] : {std::pair{90, "2 sp"}, {91, "8 lb"}, {28, "16"}, {25, "1"}, {26, "1"}, {31, "1"}}) {
      EXPECT_EQ(form.Text(id), text) << id;
    }
    form.Choose(kOwned, 0);
    for (int i = 0; i < 3; ++i) form.Press(kRemove);  // the selection stays with the good
    EXPECT_TRUE(form.Items(kOwned).empty());
    form.Type(kSearch, "SWORD");
    EXPECT_EQ(form.Items(kGoods), (std::vector<std::string>{"Long sword (Weapons)", "Grandfather's sword (Weapons)"}));
    EXPECT_EQ(form.Text(90), "15 gp") << "the first is at hand, of all categories";
    EXPECT_EQ(form.SelectedText(kCategories), "Found in all categories");
    form.Choose(kCategories, 21);
    EXPECT_EQ(form.Text(kSearch), "SWORD");
    form.Type(kSearch, "");
    EXPECT_EQ(form.Items(kGoods), (std::vector<std::string>{"Rope, silk", "Rope", "Nail"})) << "back in the category";
    EXPECT_EQ(form.Selection(kCategories), kTools - 1);
    EXPECT_EQ(form.Selection(kGoods), -1);
    form.Type(kSearch, "sword of doom");
    EXPECT_TRUE(form.Items(kGoods).empty());
    EXPECT_EQ(form.Text(90), "");
    form.Press(kAdd);
    form.Choose(kCategories, kLivestock - 1);
    EXPECT_EQ(form.Text(kSearch), "");
    EXPECT_EQ(form.Items(kGoods), (std::vector<std::string>{"Mule"}));
    form.Press(kOk);
  });
  EXPECT_EQ(PurseWorth(game->sheet), 200);
  EXPECT_EQ(game->EquipmentTable[1].Quantity, 0);
}

TEST_F(EquipTest, TheEditorGivesGoodsFreeOfCharge) {
  Play("EditEquip", RunEditEquip, [&](Form& form) {
    form.Type(kSearch, "Mule");
    form.Press(kAdd);
    EXPECT_TRUE(platform.Showed("You lack sufficient funds"));
    form.Mark(3004, true);
    form.Press(kAdd);
    form.Press(kAdd);
    form.Choose(kOwned, 0);
    form.Press(kRemove);
    EXPECT_EQ(form.Items(kOwned), (std::vector<std::string>{"Mule"}));
    form.Press(kOk);
  });
  EXPECT_EQ(PurseWorth(game->sheet), 0);
}

/// A good of a damaged file, whose prices do not agree with themselves.
EquipmentRecord DamagedGood(std::string_view name, int gold, int silver, int copperValue, float weight) {
  EquipmentRecord good = Good(name, kTools, 0, 0, 0, weight);
  good.GoldCost = gold;
  good.SilverCost = silver;
  good.CopperValue = copperValue;
  return good;
}

class EquipRandomTest : public ::testing::Test {
 protected:
  EquipRandomTest() {
    constexpr int kMost = std::numeric_limits<int>::max();
    StockMarket(*game);
    game->EquipmentTable[5] = DamagedGood("Robe", -kMost, -1, 3, -1e30F);
    game->EquipmentTable[6] = DamagedGood("Rod", 7, 0, -700, 1e38F);
    game->CustomEquipmentTable[0] = DamagedGood("Royal barge", kMost, kMost, 18, 9);
  }

  RandomPlayer player{31, 400};
  std::unique_ptr<Game> game = MakeGame(player);
};

TEST_F(EquipRandomTest, NoPurseIsEverWorthLessThanNothing) {
  constexpr const char* kNames[] = {"Rope", "Rope, silk", "Mule", "Nail", "Robe", "Rod", "Royal barge", "Long sword"};
  int refused = 0;
  for (int trade = 0; trade < 20'000; ++trade) {
    if (trade % 50 == 0) game->sheet.CopperPieces += static_cast<int>(player.Pick(3000));
    game->TextScratch = kNames[player.Pick(std::size(kNames))];
    const EquipmentRecord* good = FindGood(*game, game->TextScratch);
    TradeItem(*game, good->Quantity > 0 && player.Pick(2) == 0 ? -1 : 1);
    refused += game->TextScratch.empty() ? 0 : 1;
    ASSERT_GE(PurseWorth(game->sheet), 0) << trade;
  }
  EXPECT_GT(refused, 1000);
  EXPECT_LT(refused, 15'000);
}

TEST_F(EquipRandomTest, NoPlayOfThePageSellsWhatIsNotOwned) {
  for (std::size_t row = 10; row < 200; ++row) {
    game->EquipmentTable[row] = Good(Format("Trinket %i.", row), static_cast<int>(row % 21) + 1, 1, 0, 0, 1);
  }
  int bought = 0;
  for (int run = 1; run <= 200; ++run) {
    // A fresh purse: change may leave one kind of coin below 0 that others make up for.
    for (int* coins : {&game->sheet.PlatinumPieces, &game->sheet.HardSilverPieces, &game->sheet.ElectrumPieces,
                       &game->sheet.SilverPieces, &game->sheet.CopperPieces}) {
      *coins = 0;
    }
    game->sheet.GoldPieces = run % 40;
    if (run % 2 == 0) RunEquip(*game);
    if (run % 2 == 1) RunEditEquip(*game);
    ASSERT_GE(PurseWorth(game->sheet), 0) << run;
    for (const auto* table : {&game->EquipmentTable, &game->CustomEquipmentTable}) {
      for (const EquipmentRecord& good : *table) {
        ASSERT_GE(good.Quantity, 0) << good.Name.View();
        bought += good.Quantity;
      }
    }
  }
  EXPECT_GT(bought, 200);
  EXPECT_TRUE(player.stuckForm.empty()) << player.stuckForm;
}

}  // namespace
}  // namespace veld
