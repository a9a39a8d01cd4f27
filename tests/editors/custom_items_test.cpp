#include "editors/custom_items.h"

#include <gtest/gtest.h>

#include <tuple>

#include "editors/custom_item_editor.h"
#include "steps/finish/equipment_purchase.h"
#include "store/character_file.h"
#include "store/side_files.h"
#include "support/random_player.h"
#include "support/scripted_platform.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {
namespace {

constexpr int kStatus = 90, kName = 3000, kCategories = 3021, kGoods = 3022, kSearch = 3024, kAdd = 4001,
              kDelete = 4002;
using Names = std::vector<std::string>;

GoodEntry Entry(std::string name, std::string price = "2", int coin = 0, std::string weight = "1.5") {
  return {.Name = std::move(name), .Price = std::move(price), .Coin = coin, .Weight = std::move(weight), .Category = 5};
}

/// The names that the program finds in the file when it starts.
Names SavedNames() {
  EquipmentArray saved;
  DecodeEquipment(testing::FileText("cequip.vlb"), saved);
  Names names;
  for (const EquipmentRecord& good : saved) {
    if (!good.Name.Empty()) names.emplace_back(good.Name.View());
  }
  return names;
}

class CustomItemsTest : public ::testing::Test {
 protected:
  /// Brom comes from a file with two lamps that this user's list does not know.
  void LoadBrom() {
    CharacterGoods goods;
    goods.CustomItems = {custom[0]};
    goods.CustomItems[0].Name = "Moon lamp";
    goods.CustomItems[0].Category = 5;
    goods.CustomItems[0].Quantity = 2;
    game->sheet.CharacterName = "Brom";
    testing::WriteText("brom.vlf", EncodeCharacter(game->sheet, goods));
    ASSERT_TRUE(LoadCharacterFile(*game, "brom.vlf"));
  }

  std::string Everything() const {
    return EncodeEquipment(custom) + testing::FileText("cequip.vlb") + game->CameWithCharacter.to_string();
  }

  testing::TestFolder folder;
  testing::ScriptedPlatform platform;
  std::unique_ptr<Game> game = MakeGame(platform);
  EquipmentArray& custom = game->CustomEquipmentTable;
};

TEST_F(CustomItemsTest, WhatDoesNotFitIsRefusedWithItsReason) {
  game->EquipmentTable[7].Name = "Rope, silk";
  ASSERT_EQ(AddCustomGood(*game, Entry("Sun stone")).Refusal, "");
  const std::string before = Everything();
  const std::tuple<GoodEntry, GoodField, const char*> kRefused[] = {
      {Entry(std::string(50, 'e')), GoodField::Name, "this has 50"},
      {Entry(std::string("Lamp\0oil", 8)), GoodField::Name, "can't be shown"},
      {Entry("Rope, silk"), GoodField::Name, "\"Rope, silk\" already"},
      {Entry("Rope"), GoodField::Name, "stands in \"Rope, silk\""},
      {Entry("A Sun stone"), GoodField::Name, "\"Sun stone\" stands in it"},
      {Entry("12"), GoodField::Name, "how many"},  // a trade of "Rope, silk x 12" would take it
      {Entry("Lamp", "1000000"), GoodField::Price, "0 to 999999"},
      {Entry("Lamp", " "), GoodField::Price, "whole"},
      {Entry("Lamp", "2", 0, "99999.1"), GoodField::Weight, "0 to 99999"},
      {Entry("Lamp", "2", 0, "nan"), GoodField::Weight, "such as 2.5"},
      {{.Name = "Lamp", .Price = "2", .Weight = "1", .Category = 22}, GoodField::Category, "one of the 21"},
  };
  for (const auto& [entry, field, reason] : kRefused) {
    const GoodResult result = AddCustomGood(*game, entry);
    EXPECT_TRUE(Contains(result.Refusal, reason)) << reason << " is not in: " << result.Refusal;
    EXPECT_EQ(result.Field, field) << result.Refusal;
  }
  EXPECT_EQ(Everything(), before);
  EXPECT_EQ(AddCustomGood(*game, Entry("  rope " + std::string(44, 'e'), " 999999", 0, "0.1 ")).Refusal, "");
  EXPECT_EQ(custom[1].Name.Length(), 49U);
  EXPECT_EQ(custom[1].CopperValue, 99'999'900);
  EXPECT_EQ(EntryOf(custom[1]).Weight, "0.1");
  for (std::size_t row = 2; row < kEquipmentRows; ++row) custom[row].Name = "Row";
  EXPECT_TRUE(Contains(AddCustomGood(*game, Entry("Lamp")).Refusal, "room for 1000 goods"));
  EXPECT_EQ(ChangeCustomGood(*game, 0, Entry("A Sun stone")).Refusal, "") << "its own name is in no way";
}

TEST_F(CustomItemsTest, EveryChangeIsSavedOrNotMade) {
  LoadBrom();
  custom[1].LegacyId = 12;
  const auto isUndone = [&](const auto& change) {
    const std::string before = Everything();
    EXPECT_TRUE(Contains(change(SaveWay{.DiskRoom = 500}).Refusal, "could not be saved"));
    EXPECT_EQ(Everything(), before);
    EXPECT_EQ(change(SaveWay{}).Refusal, "");
  };
  isUndone([&](SaveWay way) { return AddCustomGood(*game, Entry("Sun stone"), way); });
  EXPECT_TRUE(platform.Showed("Problem Loading cequip.vlb file"));
  EXPECT_EQ(SavedNames(), Names{"Sun stone"}) << "Brom's lamp is not the user's";
  custom[1].Quantity = 3;
  isUndone([&](SaveWay way) { return ChangeCustomGood(*game, 1, Entry("Sun disc", "4", 1, "7"), way); });
  EXPECT_EQ(custom[1].Quantity, 3);
  EXPECT_EQ(game->sheet.CarriedWeightLbs, 21) << "the lamps weigh nothing";
  EXPECT_EQ(DeleteCustomGood(*game, 1).Refusal, "Brom owns 3 of these: remove them first.");
  isUndone([&](SaveWay way) { return KeepCustomGood(*game, 0, way); });
  EXPECT_EQ(SavedNames(), (Names{"Moon lamp", "Sun disc"}));
  custom[1].Quantity = 0;
  isUndone([&](SaveWay way) { return DeleteCustomGood(*game, 1, way); });
  EXPECT_EQ(SavedNames(), Names{"Moon lamp"});
  EXPECT_EQ(custom[1].LegacyId, 12) << "the row's own number";
}

TEST_F(CustomItemsTest, GoodsOfACharacterLeaveWithHimUnlessKept) {
  LoadBrom();
  EXPECT_EQ(CustomGoodLine(*game, 0), "Moon lamp (came with Brom)");
  ASSERT_EQ(ChangeCustomGood(*game, 0, Entry("Moon lantern")).Refusal, "");
  EXPECT_TRUE(SavedNames().empty()) << "changed, it is his still";
  ASSERT_TRUE(SaveCharacterFile(*game, "brom.vlf"));
  ResetCharacter(*game);
  EXPECT_TRUE(CustomGoodRows(*game, "").empty());
  ASSERT_TRUE(LoadCharacterFile(*game, "brom.vlf"));
  game->EquipmentTable[0].Name = "Moon";
  EXPECT_TRUE(Contains(KeepCustomGood(*game, 0).Refusal, "\"Moon\" stands in it"));
  game->EquipmentTable[0].Name = "";
  ASSERT_EQ(KeepCustomGood(*game, 0).Refusal, "");
  ASSERT_TRUE(LoadCharacterFile(*game, "brom.vlf"));
  EXPECT_EQ(custom[0].Quantity, 2);
  EXPECT_EQ(CustomGoodLine(*game, 0), "Moon lantern");
}

TEST_F(CustomItemsTest, ThePageKeepsWhatIsTypedAndFindsWhatIsMade) {
  platform.ExpectForm("EditEquipment", [&](Form& form) {
    form.Choose(kCategories, 4);
    for (const std::string& name : Names{"Sun stone", "Moon lamp", std::string(61, 'y')}) {
      form.Type(kName, name);
      form.PressDefault();
      EXPECT_EQ(form.Text(kName), name) << "refused where it stands, not cut";
      form.Type(kSearch, "SUN");
    }
    form.Type(kSearch, "no such good");
    form.Press(kDelete);
    EXPECT_EQ(form.Text(kStatus), "Choose a good of the list first.") << "the chosen one is out of sight";
    EXPECT_EQ(form.Text(kName), "Sun stone") << "that the search before it found";
    form.Type(kSearch, "sun");
    form.Press(kDelete);
    form.Type(kSearch, "moon");
    EXPECT_EQ(form.Text(kName), "Moon lamp");
    form.Type(kName, "Sun stone");
    form.Press(kAdd);
    EXPECT_EQ(form.Items(kGoods), (Names{"Sun stone", "Moon lamp"})) << "brought back, and not hidden by the search";
    form.PressCloseBox();
  });
  RunCustomItemEditor(*game);
}

TEST_F(CustomItemsTest, NoPlayMakesAGoodThatTheTradeMistakesOrTheFileLacks) {
  testing::RandomPlayer player(5, 120);
  game = MakeGame(player);
  auto& goods = game->CustomEquipmentTable;
  std::size_t most = 0;
  for (int run = 0; run < 12; ++run) {
    for (std::size_t row = 0; row < 3; ++row) {  // of a character with doubtful goods
      if (!goods[row].Name.Empty()) continue;
      goods[row].Name = row == 0 ? "1" : Format("Ab%i", run);
      goods[row].Quantity = static_cast<int>(row);
      game->CameWithCharacter.set(row);
    }
    RunCustomItemEditor(*game);
    ResetCharacter(*game);
    Names names;
    for (const std::size_t row : CustomGoodRows(*game, "")) {
      EXPECT_EQ(FindGood(*game, Format("%s x 12", goods[row].Name)), &goods[row]);
      names.emplace_back(goods[row].Name.View());
    }
    EXPECT_EQ(SavedNames(), names);
    most = std::max(most, names.size());
  }
  EXPECT_GE(most, 3U);
  EXPECT_TRUE(player.stuckForm.empty());
}

}  // namespace
}  // namespace veld
