#include "store/character_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <limits>
#include <memory>

#include "character_image.h"
#include "support/game_test.h"

namespace veld::testing {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();

std::unique_ptr<CharacterDraft> Decoded(std::string_view bytes) {
  auto draft = std::make_unique<CharacterDraft>();
  EXPECT_EQ(DecodeCharacter(bytes, *draft), LoadResult::Loaded);
  return draft;
}

std::string SavedAgain(std::string_view bytes) {
  const auto draft = Decoded(bytes);
  return EncodeCharacter(draft->sheet, draft->goods);
}

/// Where two files differ first; -1 if nowhere.
std::ptrdiff_t FirstDifference(const std::string& a, const std::string& b) {
  if (a == b) return -1;
  return std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
}

void Patch(std::string& bytes, std::size_t at, const std::string& piece) { bytes.replace(at, piece.size(), piece); }

std::size_t BookCountAt(const std::string& bytes) { return bytes.find("Book 1") - 4; }

TEST(CharacterFile, GoldenFileOfTheCurrentVersionReadsEveryFieldAndSavesTheSameBytes) {
  const std::string golden = CharacterImage().As("4.5");
  const auto draft = Decoded(golden);
  const CharacterSheet& sheet = draft->sheet;
  for (const HeadText& text : HeadTexts()) {
    if (text.Offset != 814 && text.Offset != 924) {
      EXPECT_EQ(text.In(sheet), HeadTextAt(text.Offset, text.Width)) << "offset " << text.Offset;
    }
  }
  for (const HeadNumbers& field : HeadNumberFields()) {
    for (int i = 0; i < field.Count; ++i) {
      EXPECT_EQ(field.In(sheet)[i], HeadNumber(field.Offset + 4 * i)) << "offset " << field.Offset << " row " << i;
    }
  }
  EXPECT_EQ(sheet.CharacterName, "Borin");
  EXPECT_EQ(sheet.Gender.View(), "NoEndHere!");
  EXPECT_EQ(sheet.SiblingLines[99].View(), HeadTextAt(1774 + 160 * 99, 160));
  EXPECT_EQ(sheet.ClassExperience[199], 199.5f);
  EXPECT_EQ(sheet.CarriedWeightLbs, 42.5f);
  EXPECT_EQ(sheet.QuirkCounts[699], 4);

  EXPECT_EQ(draft->goods.Quantities[999], 7);
  ASSERT_EQ(draft->goods.CustomItems.size(), 1u);
  EXPECT_EQ(draft->goods.CustomItems[0].Name, "Silver horn");
  EXPECT_EQ(sheet.LevelHitPoints[2][150], 150'020);
  EXPECT_EQ(sheet.LevelComelinessGain[40][1], 40'017);
  EXPECT_EQ(sheet.SpellsKnown[1999], 3);
  EXPECT_EQ(sheet.GraduatingRank, "Rank");
  EXPECT_EQ(sheet.HermitTaboo, "Taboo");
  EXPECT_EQ(sheet.Notes.View(), "Notes with a Latin-1 caf\xe9");
  EXPECT_EQ(sheet.SpellBooks[1].EncumbranceText, "x2");
  EXPECT_EQ(sheet.SpellBooks[1].PageFlags[199], 201);
  EXPECT_EQ(sheet.SpellBooks[1].SpellRows[3999], 4201);
  EXPECT_TRUE(sheet.SpellBooks[2].Name.Empty());
  EXPECT_EQ(sheet.Wars[2], "War 3");
  EXPECT_EQ(sheet.EducationResults, "Education");
  EXPECT_EQ(sheet.SkillScores[499], 62);
  EXPECT_EQ(sheet.TalentDetailNames[1][0], "row 1 item 0");
  EXPECT_EQ(sheet.SkillDetailNames[49][49], "skill row 49 item 49");
  EXPECT_EQ(sheet.BarbarianTracking, 15);
  EXPECT_EQ(sheet.ProficiencyPicks[9][3], -1);

  EXPECT_EQ(FirstDifference(SavedAgain(golden), golden), -1);
  EXPECT_EQ(FirstDifference(SavedAgain(golden + "what follows the end"), golden), -1);
}

/// What is left of the image in a file of an older version.
CharacterImage HeldBy(const std::string& version) {
  CharacterImage image;
  image.HasCleric = version == "4.5";
  if (version < "4.5") image.Quirks[36] = image.Quirks[38] = image.Quirks[122] = image.Quirks[307] = 1;
  if (version < "4.2.1") image.Quirks.erase(699), image.Skills.erase(300), image.Skills.erase(499);
  if (version < "4.2") image.Quirks.erase(470), image.Quirks[469] = 5, image.Quirks[80] = 0;
  if (version < "4.1.1") image.Levels.erase(150);
  return image;
}

TEST(CharacterFile, EveryOlderVersionSavesAsTheSameCharacterOfTheCurrentVersion) {
  for (const std::string version : {"3.8.1", "4.1", "4.1.1", "4.2", "4.2.1"}) {
    SCOPED_TRACE(version);
    CharacterImage image = HeldBy(version);
    const std::string old = image.As(version);
    if (version == "3.8.1") image.Talents.erase(21);
    std::string expected = image.As("4.5");
    if (version == "3.8.1") {
      Patch(expected, 10 + 400, std::string(400, '\0'));
      Patch(expected, 18050 + 400, std::string(400, '\0'));
    }
    EXPECT_EQ(FirstDifference(SavedAgain(old), expected), -1);
  }
}

TEST(CharacterFile, CodesOfVersionsBefore42StandForOneOfTwoQuirks) {
  CharacterImage image = HeldBy("4.1.1");
  image.Quirks = {{35, 1}, {37, 1}, {123, 1}, {312, 2}};
  const auto draft = Decoded(image.As("4.1.1"));
  const std::map<std::size_t, int> expected = {{35, 1}, {37, 1}, {123, 1}, {312, 2}, {314, 1}};
  for (std::size_t row = 0; row < draft->sheet.QuirkCounts.size(); ++row) {
    EXPECT_EQ(draft->sheet.QuirkCounts[row], expected.contains(row) ? expected.at(row) : 0) << row;
  }
}

TEST(CharacterFile, ADividedTalentBecomesItsTwoHalves) {
  for (const std::string version : {"3.8.1", "4.5"}) {
    CharacterImage image = HeldBy(version);
    image.Talents = {{114, 3}, {113, 1}};
    const auto draft = Decoded(image.As(version));
    const auto& talents = draft->sheet.TalentCounts;
    EXPECT_EQ(talents[114], 0);
    EXPECT_EQ(talents[2], 1);
    EXPECT_EQ(talents[113], version == "4.5" ? 1 : 0);
  }
}

TEST(HostileCharacterFile, CountsThatNoTableCanHoldAreRefusedAndLeaveTheCharacter) {
  TestFolder folder;
  ScriptedPlatform platform;
  const auto game = MakeGame(platform);
  game->sheet.CharacterName = "Ylva";
  const std::string golden = CharacterImage().As("4.5");
  struct Case {
    std::size_t At;
    int Value;
    bool IsRefused;
  };
  const std::size_t books = BookCountAt(golden);
  const std::size_t level = kClassLevelsAt + 4 * 60;  // of a class that the image does not have
  for (const Case& test : std::vector<Case>{
           {kCustomCountAt, -1, true}, {kCustomCountAt, 0, false}, {kCustomCountAt, 1000, false},
           {kCustomCountAt, 1001, true}, {kCustomCountAt, kMost, true}, {books, -1, true}, {books, 0, false},
           {books, 50, false}, {books, 51, true}, {books, kMost, true}, {level, -1, true}, {level, 99, false},
           {level, 100, true}, {level, kMost, true}}) {
    SCOPED_TRACE(::testing::Message() << test.Value << " at " << test.At);
    std::string bytes = golden;
    Patch(bytes, test.At, I(test.Value));
    // What a valid count drags in behind it is not the file's any more; a cut file leaves no strange counts there.
    if (!test.IsRefused) bytes.resize(test.At < kCustomCountAt ? kCustomCountAt : test.At + 4);
    WriteText("a.vlf", bytes);
    platform.messages.clear();
    game->sheet.CharacterName = "Ylva";
    EXPECT_EQ(LoadCharacterFile(*game, "a.vlf"), !test.IsRefused);
    EXPECT_EQ(platform.Showed("VELD: This file can not be loaded."), test.IsRefused);
    EXPECT_EQ(game->sheet.CharacterName == "Ylva", test.IsRefused);
  }
}

TEST(HostileCharacterFile, NumbersOutOfRangeCountAsNone) {
  std::string bytes = CharacterImage().As("4.5");
  Patch(bytes, 10, F(std::numeric_limits<float>::infinity()) + F(-std::numeric_limits<float>::quiet_NaN()));
  Patch(bytes, 17946, F(std::numeric_limits<float>::quiet_NaN()));
  Patch(bytes, 18010, I(-1) + I(7) + I(kMost));
  Patch(bytes, kCustomCountAt + 4 + 66, F(std::numeric_limits<float>::infinity()) + I(22));
  Patch(bytes, bytes.size() - 2000, I(200) + I(-2) + I(kMost) + I(199));
  const auto draft = Decoded(bytes);
  EXPECT_EQ(draft->sheet.ClassExperience[0], 0);
  EXPECT_EQ(draft->sheet.ClassExperience[1], 0);
  EXPECT_EQ(draft->sheet.CarriedWeightLbs, 0);
  EXPECT_EQ(draft->sheet.TattooArdkrin + draft->sheet.TattooShewkrin + draft->sheet.TattooYiskrin, 0);
  EXPECT_EQ(draft->goods.CustomItems[0].Weight, 0);
  EXPECT_EQ(draft->goods.CustomItems[0].Category, 0);
  EXPECT_EQ(std::vector(&draft->sheet.ProficiencyPicks[0][0], &draft->sheet.ProficiencyPicks[0][4]),
            (std::vector{-1, -1, -1, 199}));
}

TEST(HostileCharacterFile, ABookWithoutANameIsNotInUse) {
  std::string bytes = CharacterImage().As("4.5");
  Patch(bytes, BookCountAt(bytes) + 4, std::string(255, '\0'));
  const auto draft = Decoded(bytes);
  EXPECT_EQ(draft->sheet.SpellBooks[0].Name, "Book 2");
  EXPECT_TRUE(draft->sheet.SpellBooks[1].Name.Empty());
  EXPECT_EQ(draft->sheet.SpellBooks[1].PageCount, 0);
}

TEST(HostileCharacterFile, AFileCutAtAnyByteReadsAsIfZerosFollowed) {
  CharacterImage image;
  image.Books = 1;
  const std::string golden = image.As("4.5");
  const auto draft = std::make_unique<CharacterDraft>();
  // The cut file ends where its memory ends, so that the sanitizer sees a step behind it.
  const auto memory = std::make_unique<char[]>(golden.size());
  for (std::size_t size = kVersionBytes; size < golden.size(); ++size) {
    char* const cut = memory.get() + golden.size() - size;
    std::memcpy(cut, golden.data(), size);
    ASSERT_EQ(DecodeCharacter({cut, size}, *draft), LoadResult::Loaded) << size;
    ASSERT_EQ(draft->sheet.ProficiencyPicks[9][49], size + 4 > golden.size() ? -1 : 0) << size;
    if (size % 1999 != 0) continue;
    std::string filled = golden.substr(0, size);
    filled.resize(golden.size() + 1'000'000, '\0');
    const auto whole = Decoded(filled);
    ASSERT_EQ(EncodeCharacter(draft->sheet, draft->goods), EncodeCharacter(whole->sheet, whole->goods)) << size;
  }
  for (std::size_t size = 0; size < kVersionBytes; ++size) {
    EXPECT_EQ(DecodeCharacter(golden.substr(0, size), *draft), LoadResult::UnknownVersion);
  }
}

class LoadedFile : public GameTest<> {
 protected:
  TestFolder folder;
};

TEST_F(LoadedFile, ReplacesTheCharacterAndTheRunButNotThePlayer) {
  WriteText("a.vlf", CharacterImage().As("4.5"));
  game->sheet.PlayerName = "Astrid";
  game->sheet.SavePoison[5] = 3;
  game->run.BuildingPoints = 40;
  game->RuleSwitches[kCoreRules] = 0;
  game->EquipmentTable[1].Quantity = 9;
  platform.now = 77;
  EXPECT_TRUE(LoadCharacterFile(*game, "a.vlf"));
  EXPECT_EQ(platform.messages, std::vector<std::string>{"VELD: Loading version 4.5 character"});
  EXPECT_EQ(game->sheet.CharacterName, "Borin");
  EXPECT_EQ(game->sheet.PlayerName, "Astrid");
  EXPECT_EQ(game->sheet.SavePoison[5], kNoSave);
  EXPECT_EQ(game->run.BuildingPoints, 0);
  EXPECT_EQ(game->RuleSwitches[kCoreRules], 1);
  EXPECT_EQ(game->EquipmentTable[0].Quantity, 3);
  EXPECT_EQ(game->EquipmentTable[1].Quantity, 0);
  EXPECT_EQ(game->dice.RandomState, 77u);
  EXPECT_EQ(FirstDifference(EncodeCharacter(*game), FileText("a.vlf")), -1);
}

TEST_F(LoadedFile, IsAnnouncedByItsVersionOrRefusedWithItsMessage) {
  game->sheet.CharacterName = "Ylva";
  WriteText("old.vlf", CharacterImage().As("4.50"));
  WriteText("short.vlf", "4.5");
  std::filesystem::create_directory("folder.vlf");
  const auto messagesOf = [&](const std::string& path) {
    platform.messages.clear();
    EXPECT_FALSE(LoadCharacterFile(*game, path));
    return platform.messages;
  };
  using Messages = std::vector<std::string>;
  EXPECT_EQ(messagesOf("none.vlf"), Messages{"VELD: Problem Loading vlf file"});
  EXPECT_EQ(messagesOf("folder.vlf"), Messages{"VELD: Problem Loading vlf file"});
  EXPECT_EQ(messagesOf("old.vlf"), Messages{"VELD: This file can not be loaded."});
  EXPECT_EQ(messagesOf("short.vlf"), Messages{"VELD: This file can not be loaded."});
  EXPECT_EQ(game->sheet.CharacterName, "Ylva");
  platform.messages.clear();
  WriteText("a.vlf", HeldBy("4.1").As("4.1"));
  EXPECT_TRUE(LoadCharacterFile(*game, "a.vlf"));
  EXPECT_EQ(platform.messages, Messages{"VELD: Loading version 4.1 character"});
}

TEST_F(LoadedFile, GivesCustomItemsToTheSameRowsOrToAFreeOne) {
  WriteText("a.vlf", CharacterImage().As("4.5"));
  auto& custom = game->CustomEquipmentTable;
  custom[0].Name = "Silver horn";  // another price: another thing
  custom[0].CopperValue = 400;
  custom[0].Category = 8;
  custom[1].LegacyId = 12;
  LoadCharacterFile(*game, "a.vlf");
  EXPECT_EQ(custom[0].Quantity, 0);
  EXPECT_EQ(custom[1].Name, "Silver horn");
  EXPECT_EQ(custom[1].GoldCost, 5);
  EXPECT_EQ(custom[1].Quantity, 2);
  EXPECT_EQ(custom[1].LegacyId, 12);
  game->CameWithCharacter.reset();  // the user keeps it
  custom[5] = custom[1];
  LoadCharacterFile(*game, "a.vlf");
  EXPECT_EQ(custom[1].Quantity, 2);
  EXPECT_EQ(custom[5].Quantity, 2);
  EXPECT_TRUE(custom[2].Name.Empty());
}

TEST_F(LoadedFile, NamesACustomItemThatFindsNoRoomAndGoesOn) {
  WriteText("a.vlf", CharacterImage().As("4.5"));
  for (EquipmentRecord& row : game->CustomEquipmentTable) row.Name = "Rope";
  // The last row takes new things but is not searched for known ones.
  game->CustomEquipmentTable[999].Name = "Silver horn";
  game->CustomEquipmentTable[999].CopperValue = 500;
  game->CustomEquipmentTable[999].Category = 8;
  EXPECT_TRUE(LoadCharacterFile(*game, "a.vlf"));
  EXPECT_TRUE(platform.Showed("VELD: No room for the custom item Silver horn."));
  EXPECT_EQ(game->sheet.CharacterName, "Borin");
}

}  // namespace
}  // namespace veld::testing
