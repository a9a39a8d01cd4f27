#include "editors/main_edit.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#include "editors/class_progress.h"
#include "editors/person_pages.h"
#include "editors/purse.h"
#include "rules/named_rows.h"
#include "rules/proficiency_table.h"
#include "steps/finish/equipment_purchase.h"
#include "store/character_file.h"
#include "store/side_files.h"
#include "support/random_player.h"
#include "support/scripted_platform.h"

namespace veld {
namespace {

using testing::ChooseText;
using testing::FileText;

constexpr int kOk = 1, kTold = 3, kNext = 5, kFirstField = 100, kFirstPage = 100, kFound = 900, kSpent = 901;

std::unique_ptr<Game> ShippedGame(Platform& platform) {
  static const std::string kGoods = FileText(std::string(VELD_DATA_DIR) + "/equip.vlb");
  static const std::string kSpells = FileText(std::string(VELD_DATA_DIR) + "/spells.vld");
  auto game = MakeGame(platform);
  game->dice.LogMode = DiceLogMode::Off;
  game->RuleSwitches[kRollYourOwnDice] = 0;
  DecodeEquipment(kGoods, game->EquipmentTable);
  DecodeSpells(kSpells, game->SpellTable);
  return game;
}

void LoadGolden(Game& game, std::string_view name) {
  const auto draft = std::make_unique<CharacterDraft>();
  const std::string path = std::string(VELD_SOURCE_DIR) + "/tests/sheets/golden/" + std::string(name) + ".vlf";
  ASSERT_EQ(DecodeCharacter(FileText(path), *draft), LoadResult::Loaded) << name;
  TakeCharacter(game, *draft);
}

/// What a file holds of the character.
void ExpectReloads(Game& game) {
  const std::string bytes = EncodeCharacter(game);
  const auto draft = std::make_unique<CharacterDraft>();
  ASSERT_EQ(DecodeCharacter(bytes, *draft), LoadResult::Loaded);
  TakeCharacter(game, *draft);
  EXPECT_TRUE(EncodeCharacter(game) == bytes);
}

class MainEditTest : public ::testing::Test {
 protected:
  testing::TestFolder folder;
  testing::ScriptedPlatform platform;
  std::unique_ptr<Game> game = ShippedGame(platform);
};

TEST_F(MainEditTest, AFieldRefusesWhatItCantHoldTellsItsRangeAndIsUndoneByCancel) {
  LoadGolden(*game, "mage");
  game->sheet.WeightLbs = -5;  // what a file brought is not refused while nobody touches it
  const auto before = std::make_unique<CharacterSheet>(game->sheet);
  constexpr int kName = kFirstField, kRace = kFirstField + 1, kAge = kFirstField + 12;
  const auto refuse = [&](Form& form, int id, std::string_view text, std::string_view told) {
    form.Type(id, text);
    form.Press(kOk);
    EXPECT_EQ(form.Text(kTold), told);
    EXPECT_FALSE(form.IsClosed());
  };
  const auto act = [&](Form& form) {
    refuse(form, kAge, "100000", "Age, years: a whole number from 0 to 99999.");
    refuse(form, kAge, "old", "Age, years: a whole number from 0 to 99999.");
    form.Type(kAge, "77");
    refuse(form, kName, std::string(80, 'x'), "Name: at most 79 bytes, and this has 80.");
    form.Type(kName, std::string(79, 'x'));
    ChooseText(form, kRace, "Dwarf");
    EXPECT_NE(form.Text(kTold), "") << "a dwarf is no mage";
  };
  platform.ExpectForm("EditPerson", [&](Form& form) {
    act(form);
    form.PressCloseBox();
  });
  RunEditPerson(*game);
  EXPECT_EQ(std::memcmp(before.get(), &game->sheet, sizeof *before), 0);
  platform.ExpectForm("EditPerson", [&](Form& form) {
    act(form);
    form.Press(kOk);
  });
  RunEditPerson(*game);
  EXPECT_EQ(game->sheet.Age, 77);
  EXPECT_EQ(game->sheet.WeightLbs, -5);
  EXPECT_EQ(game->sheet.CharacterName, std::string(79, 'x'));
}

TEST_F(MainEditTest, SpendingTakesJustTheAmountAndNeverACoinThatIsNotThere) {
  CharacterSheet& sheet = game->sheet;
  testing::RandomPlayer dice(3);
  int spent = 0;
  for (int round = 0; round < 2000; ++round) {
    for (const CoinKind& coin : kCoinKinds) sheet.*coin.Count = static_cast<int>(dice.Pick(5));
    const CoinKind& coin = kCoinKinds[dice.Pick(6)];
    const int count = static_cast<int>(dice.Pick(8));
    const std::int64_t worth = PurseWorth(sheet);
    const std::int64_t due = std::int64_t{count} * coin.Copper;
    SpendMoney(sheet, coin, count);
    ASSERT_EQ(PurseWorth(sheet), due > worth ? worth : worth - due);
    for (const CoinKind& held : kCoinKinds) ASSERT_GE(sheet.*held.Count, 0);
    if (due > 0 && due <= worth) ++spent;
  }
  EXPECT_GT(spent, 500);
  platform.ExpectForm("EditMoney", [&](Form& form) {
    form.Type(kFirstField, "12");
    form.Press(kFound);
    form.Press(kSpent);
    form.Press(kFound);
    form.Press(kOk);
  });
  sheet.GoldPieces = 1;
  RunEditMoney(*game);
  EXPECT_EQ(sheet.GoldPieces, 13);
}

TEST_F(MainEditTest, AFighterOnPaperIsTypedInWithFewPresses) {
  LoadGolden(*game, "thief");
  int presses = 0;
  const auto type = [&](Form& form, int id, std::string_view text) { presses += form.Type(id, text); };
  const auto press = [&](Form& form, int id) { presses += form.Press(id); };
  const auto choose = [&](Form& form, int id, std::string_view text) {
    ChooseText(form, id, text);
    ++presses;
  };
  const auto leave = [&](Form& form) { press(form, kOk); };
  platform.ExpectForm("Enter", [&](Form& hub) {
    platform.ExpectForm("EditPerson", [&](Form& form) {
      type(form, kFirstField, "Oda");
      choose(form, kFirstField + 2, "Female");
      press(form, kOk);
    });
    platform.ExpectForm("EditAbilities", [&](Form& form) {
      for (int id = kFirstField; id < kFirstField + 14; ++id) type(form, id, id < kFirstField + 7 ? "15" : "40");
      press(form, kOk);
    });
    platform.ExpectForm("EditClasses", [&](Form& form) {
      choose(form, 20, "Fighter");
      press(form, 21);
      type(form, 14, "3");
      press(form, 16);
      type(form, 18, "31");
      press(form, 19);
      press(form, kOk);
    });
    platform.ExpectForm("EditStanding", leave);
    platform.ExpectForm("EditSkills", [&](Form& form) {
      choose(form, 3115, "Proficiencies");
      for (const char* weapon : {"Dagger", "Sword: Long"}) {
        choose(form, 3021, weapon);
        press(form, 4001);
      }
      press(form, kOk);
    });
    platform.ExpectForm("EditQuirks", leave);
    platform.ExpectForm("EditMoney", [&](Form& form) {
      type(form, kFirstField, "34");
      press(form, kFound);
      press(form, kOk);
    });
    platform.ExpectForm("EditEquip", [&](Form& form) {
      for (const char* good : {"Dagger", "Backpack"}) {
        type(form, 3024, good);
        press(form, 4001);
      }
      press(form, kOk);
    });
    platform.ExpectForm("PriorEdit", leave);
    hub.Press(kOk);
    EXPECT_FALSE(hub.IsClosed()) << "without a class nobody is kept";
    for (int page = 0; page < 10 && !hub.IsClosed(); ++page) press(hub, kNext);
    EXPECT_TRUE(hub.IsClosed());
  });
  EXPECT_TRUE(RunEnter(*game));
  const CharacterSheet& sheet = game->sheet;
  RecordProperty("presses", presses);
  EXPECT_LE(presses, 60);
  EXPECT_EQ(sheet.CharacterName, "Oda");
  EXPECT_EQ(sheet.LevelText, "3");
  EXPECT_EQ(sheet.HitPoints, 31);
  EXPECT_EQ(sheet.Strength, (AbilityScore{15, 40})) << "levels on paper raise nothing";
  EXPECT_EQ(sheet.GoldPieces, 34);
  EXPECT_EQ(sheet.ProficiencyLevels[static_cast<std::size_t>(FindProficiencyRow("Dagger"))], 1);
  EXPECT_GT(sheet.CarriedWeightLbs, 0);
  ExpectReloads(*game);
}

TEST_F(MainEditTest, WithoutACharacterEditSaysSoAndACancelledEntryBringsTheOldOneBack) {
  EXPECT_FALSE(RunMainEdit(*game));
  EXPECT_TRUE(platform.Showed("You must have a character in memory to enter the edit section."));
  LoadGolden(*game, "thief");
  const std::string before = EncodeCharacter(*game);
  platform.ExpectForm("Enter", [](Form& hub) { hub.PressCloseBox(); });
  EXPECT_FALSE(RunEnter(*game));
  EXPECT_TRUE(EncodeCharacter(*game) == before);
  platform.ExpectForm("MainEdit", [&](Form& hub) {
    platform.ExpectForm("EditClasses", [](Form& form) {
      form.Type(10, "1000");
      form.Press(12);
      EXPECT_NE(form.Text(kTold), "");
      form.Press(kOk);
    });
    platform.ExpectForm("Training", [](Form& form) { form.PressCloseBox(); });
    platform.AnswerOthers(Answer::Yes);
    platform.ExpectForm("ThiefAbilities", [](Form& form) { form.PressCloseBox(); });
    game->sheet.ClassExperience[ClassRow::Thief] = 500;
    hub.Press(kFirstPage + 2);
    hub.PressCloseBox();
  });
  EXPECT_FALSE(RunMainEdit(*game));
  EXPECT_TRUE(EncodeCharacter(*game) == before);
}

/// Plays any page any way; a hundred of these here, thousands by hand.
TEST(MainEdit, AnyPlayLeavesACharacterThatAFileHolds) {
  const testing::TestFolder folder;
  const char* const asked = std::getenv("VELD_EDITOR_RUNS");
  const int runs = asked ? std::atoi(asked) : 60;
  int kept = 0;
  for (int run = 0; run < runs; ++run) {
    SCOPED_TRACE(run);
    testing::RandomPlayer player(static_cast<std::uint32_t>(run) * 7919 + 1, 14);
    const auto game = ShippedGame(player);
    constexpr const char* kNames[] = {"fighter", "mage", "zealot", "barbarian", "pixie_fairy", "odd_texts", "monk"};
    LoadGolden(*game, kNames[run % 7]);
    const std::string before = EncodeCharacter(*game);
    const bool isKept = run % 3 == 0 ? RunEnter(*game) : RunMainEdit(*game);
    ASSERT_EQ(player.stuckForm, "");
    if (!isKept) {
      ASSERT_TRUE(EncodeCharacter(*game) == before);
    } else {
      ++kept;
      ASSERT_TRUE(game->sheet.ClassLevels[0] == 0 && !ClassesHeld(game->sheet).empty());
    }
    ExpectReloads(*game);
  }
  if (runs >= 60) {
    EXPECT_GT(kept, runs / 10);
  }
}

}  // namespace
}  // namespace veld
