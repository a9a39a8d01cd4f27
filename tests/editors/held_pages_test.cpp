#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>

#include "editors/edit_quirks.h"
#include "editors/edit_skills.h"
#include "editors/edit_spell_books.h"
#include "editors/edit_spells.h"
#include "store/character_file.h"
#include "store/side_files.h"
#include "support/random_player.h"
#include "support/scripted_platform.h"

namespace veld {
namespace {

using testing::ChooseText;
using testing::FileText;

constexpr int kOk = 1, kNote = 15, kNumber = 3000, kPagesOfSpell = 3011, kCatalogue = 3021, kHeld = 3022, kBooks = 3023,
              kShow = 3115, kChoice = 3116, kAdd = 4001, kRemove = 4002, kSet = 4003, kNewBook = 4004, kDelete = 4005;
constexpr int kName = 3000, kSize = 3003, kPageCount = 3007;

using OpenPage = void (*)(Game&);

std::unique_ptr<Game> GameWithSpells(Platform& platform) {
  static const std::string kSpells = FileText(std::string(VELD_DATA_DIR) + "/spells.vld");
  auto game = MakeGame(platform);
  game->dice.LogMode = DiceLogMode::Off;
  DecodeSpells(kSpells, game->SpellTable);
  return game;
}

/// Puts the character through a file.
void Reload(Game& game) {
  const std::string bytes = EncodeCharacter(game);
  const auto draft = std::make_unique<CharacterDraft>();
  ASSERT_EQ(DecodeCharacter(bytes, *draft), LoadResult::Loaded);
  TakeCharacter(game, *draft);
  const std::string again = EncodeCharacter(game);
  EXPECT_EQ(std::ranges::mismatch(again, bytes).in1 - again.begin(), static_cast<std::ptrdiff_t>(bytes.size()));
}

class HeldPagesTest : public ::testing::Test {
 protected:
  /// Opens a page, of skills one of its four sources, and leaves it by the close box unless `act` closed it.
  void Play(OpenPage run, int show, std::function<void(Form&)> act) {
    const bool isOfSpells = run == RunEditSpells || run == RunEditSpellBooks;
    const std::string name = run == RunEditSkills ? "Skills" : run == RunEditQuirks ? "Quirks" : "Spell";
    platform.ExpectForm("Edit" + name +
                            (!isOfSpells            ? ""
                             : run == RunEditSpells ? "s"
                                                    : "Books"),
                        [=](Form& form) {
                          if (show > 0) form.Choose(kShow, show);
                          act(form);
                          if (!form.IsClosed()) form.PressCloseBox();
                        });
    run(*game);
  }
  bool IsAsBefore(const CharacterSheet& before) { return std::memcmp(&before, &game->sheet, sizeof before) == 0; }
  void AnswerName(std::string name) {
    platform.ExpectForm("GetName", [name](Form& form) {
      form.Type(kNumber, name);
      form.Press(kOk);
    });
  }

  testing::TestFolder folder;
  testing::ScriptedPlatform platform;
  std::unique_ptr<Game> game = GameWithSpells(platform);
};

/// A thing by its line in the catalogue, added and then set to another value.
struct Thing {
  OpenPage Page;
  int Show;
  const char* Catalogue;
  const char* Item;  ///< what is typed when a name is asked for
  const char* First;
  const char* FirstLine;
  const char* Then;
  const char* ThenLine;
};
constexpr Thing kThings[] = {
    {RunEditSkills, 0, "Tracking", "", "1", "Tracking 1", "999", "Tracking 999"},
    {RunEditSkills, 0, "Dragon Speak", "", "7", "Dragon Speak 7", " 8 ", "Dragon Speak 8"},
    {RunEditSkills, 1, "Language, Modern", "Elvish ", "40", "Language, Modern: Elvish 40", "50",
     "Language, Modern: Elvish 50"},
    {RunEditSkills, 2, "Lucky", "", "6", "Lucky d6", "20", "Lucky d20"},
    {RunEditSkills, 2, "Attack Bonus", "Dart", "2", "Attack Bonus: Dart x2", "3", "Attack Bonus: Dart x3"},
    {RunEditSkills, 3, "Dagger", "", "Mastery, step 3", "Dagger - Mastery, step 3", "Limited", "Dagger - Limited"},
    {RunEditSkills, 3, "Quick Draw", "", "Dagger", "Quick Draw: Dagger", "Club", "Quick Draw: Club"},
    {RunEditQuirks, 0, "Migraines (6C)", "", "1", "Migraines", "4", "Migraines x4"},
    {RunEditSpells, 0, "Magic Missile (level 1, Invocation/Evocation)", "", "3", "Magic Missile - 3 p.", "5",
     "Magic Missile - 5 p."},
};

TEST_F(HeldPagesTest, WhatIsAddedSetAndRemovedIsInTheFile) {
  const auto enter = [](Form& form, const char* value) {
    if (form.Type(kNumber, value)) return;
    ChooseText(form, kChoice, value);
  };
  for (const Thing& thing : kThings) {
    SCOPED_TRACE(thing.Catalogue);
    const std::string before = EncodeCharacter(*game);
    Play(thing.Page, thing.Show, [&](Form& form) {
      ChooseText(form, kCatalogue, thing.Catalogue);
      enter(form, thing.First);
      if (*thing.Item != '\0') AnswerName(thing.Item);
      form.Press(kAdd);
      EXPECT_EQ(form.SelectedText(kCatalogue), thing.Catalogue);
      EXPECT_EQ(form.SelectedText(kHeld), thing.FirstLine);
      Reload(*game);
      ChooseText(form, kHeld, thing.FirstLine);
      EXPECT_EQ(form.SelectedText(kCatalogue), thing.Catalogue);
      enter(form, thing.Then);
      form.Press(kOk);  // sets what was typed
    });
    Reload(*game);
    Play(thing.Page, thing.Show, [&](Form& form) {
      ChooseText(form, kHeld, thing.ThenLine);
      form.Press(kRemove);
      EXPECT_EQ(form.Items(kHeld).size(), 0U);
      form.Press(kOk);
    });
    Reload(*game);
    EXPECT_TRUE(EncodeCharacter(*game) == before);
  }
}

TEST_F(HeldPagesTest, NumbersOutOfRangeAndNamesTooLongAreRefusedAndCancelTakesAllBack) {
  for (const OpenPage run : {RunEditSkills, RunEditQuirks, RunEditSpells}) {
    const CharacterSheet before = game->sheet;
    Play(run, 0, [&](Form& form) {
      for (const char* number : {"0", "1000", "-1", "12x", "", "  ", "99999999999999999999999"}) {
        form.Type(kNumber, number);
        form.Press(kAdd);
        EXPECT_TRUE(form.Text(kNote).ends_with(": a whole number from 1 to 999.")) << form.Text(kNote);
        EXPECT_EQ(form.Text(kNumber), number);
      }
      EXPECT_TRUE(IsAsBefore(before));
      form.Type(kNumber, "999");
      form.Press(kAdd);
      form.Type(kNumber, "1000");
      form.Press(kOk);
      EXPECT_FALSE(form.IsClosed());
      EXPECT_FALSE(IsAsBefore(before));
    });
    EXPECT_TRUE(IsAsBefore(before));
  }
  Play(RunEditSkills, 1, [&](Form& form) {
    ChooseText(form, kCatalogue, "Language, Modern");
    AnswerName(std::string(82, 'x'));
    form.Press(kAdd);
    EXPECT_EQ(form.Text(kNote), "Name: at most 81 bytes, and this has 82.");
    AnswerName(std::string(81, 'x'));
    form.Press(kAdd);
    EXPECT_EQ(game->sheet.SkillDetailNames[7][0].Length(), 99U);
    EXPECT_EQ(game->sheet.LanguagesKnown, 1);
  });
  EXPECT_EQ(game->sheet.LanguagesKnown, 0);
}

TEST_F(HeldPagesTest, ALanguageAndItsWritingKeepToOneSlot) {
  const auto& names = game->sheet.SkillDetailNames;
  Play(RunEditSkills, 1, [&](Form& form) {
    const auto add = [&](const char* line, const char* item) {
      ChooseText(form, kCatalogue, line);
      if (*item != '\0') AnswerName(item);
      form.Press(kAdd);
    };
    add("Reading/Writing", "Runes");
    add("Language, Modern", "Elvish");
    add("Language, Modern", "Orcish");
    add("Reading/Writing: Elvish", "");
    EXPECT_EQ(game->sheet.LanguagesKnown, 2);
    form.Choose(kHeld, 0);
    form.Press(kRemove);
    EXPECT_TRUE(names[7][1].Empty());
    EXPECT_EQ(names[17][1], "Reading/Writing: Elvish");
    Reload(*game);
    add("Language, Modern", "Elvish");
    EXPECT_EQ(names[7][1], "Language, Modern: Elvish");
    add("Reading/Writing", "Orcish");
    EXPECT_EQ(names[17][2], "Reading/Writing: Orcish");
    EXPECT_GT(game->sheet.SkillDetailCounts[17][2], 0);
  });
}

TEST_F(HeldPagesTest, SlotsUsedFollowAndRulesAreTold) {
  auto& sheet = game->sheet;
  sheet.QuirkCounts[14] = 1;
  sheet.QuirkCounts[5] = -1;
  sheet.TalentCounts[0] = -1;
  sheet.ClassLevels[61] = 1;  // a gladiator's bow takes 2 slots
  Play(RunEditSkills, 3, [&](Form& form) {
    for (const auto& [level, used] :
         {std::pair("Limited", 2), {"Proficient", 2}, {"Mastery, step 2", 6}, {"Withheld", 0}}) {
      ChooseText(form, kCatalogue, "Bow: Long");
      ChooseText(form, kChoice, level);
      form.Press(kSet);
      EXPECT_EQ(sheet.ProficiencySlotsUsed, used) << level;
    }
    ChooseText(form, kChoice, "Mastery, step 2");
    form.Press(kSet);
    EXPECT_NE(form.Text(kNote).find("More slots are used than the character has."), std::string::npos);
    EXPECT_NE(form.Text(kNote).find("Mastery needs the 5th level as a Fighter."), std::string::npos);
    form.Choose(kShow, 2);
    form.Choose(kHeld, 0);
    EXPECT_TRUE(form.SelectedText(kHeld).ends_with("(of the race)"));
    form.Press(kRemove);
    EXPECT_EQ(sheet.TalentCounts[0], 0);
  });
  Play(RunEditQuirks, 0, [&](Form& form) {
    ChooseText(form, kHeld, "Blind, Color - barred");
    form.Press(kRemove);
    EXPECT_EQ(sheet.QuirkCounts[5], 0);
    ChooseText(form, kCatalogue, "Blind (6E)");
    form.Press(kAdd);
    EXPECT_NE(form.Text(kNote).find("Against the rules: Not together with Loss of Eye."), std::string::npos);
  });
}

TEST_F(HeldPagesTest, SpellBooksTakeTextsNumbersAndSpells) {
  for (std::size_t row = 0; row < 102; ++row) game->sheet.SpellsKnown[row] = 2;
  const SpellBook& book = game->sheet.SpellBooks[0];
  Play(RunEditSpellBooks, 0, [&](Form& form) {
    form.Press(kNewBook);
    form.Type(kSize, std::string(80, 's'));
    form.Press(kOk);
    EXPECT_EQ(form.Text(kNote), "Size: at most 79 bytes, and this has 80.");
    form.Type(kSize, std::string(79, 's'));
    form.Type(kPageCount, "10000");
    form.Press(kOk);
    EXPECT_EQ(form.Text(kNote), "Pages: a whole number from 0 to 9999.");
    form.Type(kPageCount, "2");
    form.Type(kName, " ");
    form.Press(kNewBook);
    EXPECT_EQ(form.Items(kBooks).size(), 1U);
    form.Type(kName, "Blue Book");
    for (int row = 0; row < 101; ++row) {
      form.Choose(kCatalogue, row);
      form.Press(kAdd);
    }
    EXPECT_EQ(form.Text(kNote), "A book lists at most 100 spells.");
    form.Choose(kHeld, 1);
    form.Type(kPagesOfSpell, "5");
    form.Press(kSet);
    form.Choose(kHeld, 0);
    form.Press(kRemove);
    for (int more = 0; more < 50; ++more) form.Press(kNewBook);
    EXPECT_EQ(form.Text(kNote), "A character has at most 50 spell books.");
    form.Choose(kBooks, 1);
    form.Press(kDelete);
    form.Press(kOk);
  });
  Reload(*game);
  EXPECT_EQ(book.Name, "Blue Book");
  EXPECT_EQ(book.SizeText.Length(), 79U);
  EXPECT_EQ(book.Pages[0], game->SpellTable[1].Name);
  EXPECT_TRUE(book.Pages[99].Empty());
  EXPECT_EQ(book.SpellRows[0], 0);
  EXPECT_EQ(book.PageFlags[1], 6);
  EXPECT_EQ(book.LastPage, 5 + 98 * 2);
  EXPECT_EQ(game->sheet.SpellBooks[1].Name, "Spellbook 3");
  EXPECT_TRUE(game->sheet.SpellBooks[49].Name.Empty());
  const CharacterSheet before = game->sheet;
  Play(RunEditSpellBooks, 0, [&](Form& form) { form.Press(kDelete); });
  EXPECT_TRUE(IsAsBefore(before));
}

TEST(HeldPages, AnyPlayLeavesACharacterThatAFileHolds) {
  testing::TestFolder folder;
  constexpr int kExtremes[] = {std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), -1, 0, 1, 3};
  int kept = 0;
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    testing::RandomPlayer player(seed, 30);
    player.seldomUsed = 3024;
    const auto game = GameWithSpells(player);
    if (seed % 4 == 0) {
      const auto spoil = [&](auto& numbers) {
        for (int& number : numbers) number = kExtremes[player.Pick(std::size(kExtremes))];
      };
      CharacterSheet& sheet = game->sheet;
      spoil(sheet.SkillScores), spoil(sheet.TalentCounts), spoil(sheet.ProficiencyLevels), spoil(sheet.QuirkCounts);
      spoil(sheet.SpellsKnown), spoil(sheet.SkillDetailCounts[7]), spoil(sheet.TalentDetailCounts[0]);
      sheet.LanguagesKnown = sheet.ProficiencySlotsUsed = kExtremes[seed % 3];
      SpellBook& book = sheet.SpellBooks[0];
      book.Name = "Torn";
      book.Pages[3] = game->SpellTable[0].Name.View();
      spoil(book.SpellRows), spoil(book.PageFlags);
      for (int* number : {&book.FormatIndex, &book.SizeIndex, &book.PageCount, &book.FirstPage, &book.LastPage}) {
        *number = kExtremes[player.Pick(std::size(kExtremes))];
      }
    }
    for (const OpenPage run : {RunEditSkills, RunEditQuirks, RunEditSpells, RunEditSpellBooks}) {
      const CharacterSheet before = game->sheet;
      run(*game);
      if (std::memcmp(&before, &game->sheet, sizeof before) != 0) ++kept;
      EXPECT_EQ(player.stuckForm, "") << seed;
      game->sheet.TalentCounts[114] = 0;  // a file turns it into two others
      Reload(*game);
    }
  }
  EXPECT_GT(kept, 200);  // most plays end in OK
}

}  // namespace
}  // namespace veld
