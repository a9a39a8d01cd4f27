#include "store/side_files.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <limits>
#include <memory>

#include "character_image.h"
#include "rules/skills_tsv.h"
#include "support/scripted_platform.h"
#include "text/format.h"

namespace veld::testing {
namespace {

using Messages = std::vector<std::string>;

class SideFiles : public ::testing::Test {
 protected:
  TestFolder folder;
  ScriptedPlatform platform;
  std::unique_ptr<Game> game = MakeGame(platform);
};

TEST_F(SideFiles, AFirstStartMakesOptionsAndCustomEquipmentAndTellsWhatIsMissing) {
  EXPECT_FALSE(LoadEquipment(*game));
  EXPECT_FALSE(LoadSpells(*game));
  EXPECT_EQ(platform.messages, (Messages{"VELD: Problem Loading equip.vlb file", "VELD: Problem Loading Spell file"}));
  platform.messages.clear();
  LoadOptions(*game);
  LoadCustomEquipment(*game);
  EXPECT_EQ(platform.messages,
            (Messages{"VELD: Problem Loading options.vlb file. Will create new one now. If this is your first time "
                      "running VELD this is normal.",
                      "VELD: Problem Loading cequip.vlb file. Will create new one now. If this is your first time "
                      "running VELD this is normal."}));
  std::string options;
  for (int i = 0; i < 20; ++i) options += I(1);
  EXPECT_EQ(FileText("options.vlb"), options + I(0));
  EXPECT_EQ(FileText("cequip.vlb"), std::string(84'000, '\0'));
  platform.messages.clear();
  EXPECT_TRUE(LoadOptions(*game) && LoadCustomEquipment(*game));
  EXPECT_EQ(platform.messages, Messages{});
}

TEST_F(SideFiles, FilesThatCannotBeReadAreToldAndLeftAlone) {
  for (const char* path : {"options.vlb", "cequip.vlb", "equip.vlb", "spells.vld"}) {
    std::filesystem::create_directory(path);
  }
  game->RuleSwitches[kBeastGrid] = 0;
  EXPECT_FALSE(LoadOptions(*game));
  EXPECT_FALSE(LoadCustomEquipment(*game));
  EXPECT_FALSE(LoadEquipment(*game));
  EXPECT_FALSE(LoadSpells(*game));
  EXPECT_EQ(platform.messages.size(), 4u);
  EXPECT_EQ(platform.messages.at(1), "VELD: Problem Loading cequip.vlb file");
  EXPECT_EQ(game->RuleSwitches[kBeastGrid], 0);
  EXPECT_TRUE(std::filesystem::is_directory("options.vlb") && std::filesystem::is_directory("cequip.vlb"));
}

TEST_F(SideFiles, SwitchesAreZeroOrOneAndTheCoreRulesAreOn) {
  WriteText("options.vlb", I(0) + I(1) + I(-1) + I(2) + I(std::numeric_limits<int>::min()) + I(1) + "\1");
  EXPECT_TRUE(LoadOptions(*game));
  RuleSwitchArray expected = kDefaultRuleSwitches;  // what the file is too short for
  expected[2] = expected[4] = 0;
  EXPECT_EQ(game->RuleSwitches, expected);
}

TEST_F(SideFiles, EquipmentIsReadAtItsOffsetsWithNothingOwned) {
  const std::string rope = T("Rope, hemp", 50) + "\0\0" + I(1) + I(2) + I(3) + I(123) + F(20.5f) + I(12) + I(6) + I(44);
  std::string row = rope;
  row.insert(50, 2, '\0');
  ASSERT_EQ(row.size(), 84u);
  const std::string odd = std::string(52, 'X') + I(0) + I(0) + I(0) + I(0) +
                          F(std::numeric_limits<float>::infinity()) + I(22) + I(-4) + I(0);
  WriteText("equip.vlb", row + odd + row.substr(0, 60));
  game->EquipmentTable[900].Name = "left from before";
  EXPECT_TRUE(LoadEquipment(*game));
  const EquipmentRecord& first = game->EquipmentTable[0];
  EXPECT_EQ(first.Name, "Rope, hemp");
  EXPECT_EQ((std::array{first.GoldCost, first.SilverCost, first.CopperCost, first.CopperValue, first.Category,
                        first.Quantity, first.LegacyId}),
            (std::array{1, 2, 3, 123, 12, 0, 44}));
  EXPECT_EQ(first.Weight, 20.5f);
  EXPECT_EQ(game->EquipmentTable[1].Name.View(), std::string(50, 'X'));
  EXPECT_EQ(game->EquipmentTable[1].Weight, 0);
  EXPECT_EQ(game->EquipmentTable[1].Category, 0);
  EXPECT_EQ(game->EquipmentTable[2].SilverCost, 2);
  EXPECT_TRUE(game->EquipmentTable[900].Name.Empty());
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(SideFiles, AShortCustomEquipmentFileIsKeptBeforeItIsOverwritten) {
  const std::string old = T("Silver horn", 50);
  WriteText("cequip.vlb", old);
  EXPECT_TRUE(LoadCustomEquipment(*game));
  EXPECT_EQ(game->CustomEquipmentTable[0].Name, "Silver horn");
  EXPECT_FALSE(SaveCustomEquipment(*game, {.DiskRoom = 60}));
  EXPECT_EQ(FileText("cequip.vlb"), old);
  EXPECT_TRUE(SaveCustomEquipment(*game) && SaveCustomEquipment(*game));
  EXPECT_EQ(FileText("cequip.vlb.bak"), old);
  EXPECT_FALSE(std::filesystem::exists("cequip.vlb.bak2"));
  EXPECT_EQ(FileText("cequip.vlb"), T("Silver horn", 84'000));
}

TEST_F(SideFiles, SpellsAreTokensWithBlanksWhereTheFileHasUnderscores) {
  game->sheet.SpellsKnown[7] = 1;
  WriteText("spells.vld",
            "\xEF\xBB\xBF"  // a byte order mark
            "Grey_Wall_ Conjuration/Summoning Con_jurer\n10_ft. V,S,M 1_turn 3 One_wall Neg. 4\tMagic-user_Level_4 "
            "TG12\r\n"
            "Next T S R C D C A S 12 Cat Very_long_source\n" + std::string(60, 'n') + " Type");
  EXPECT_TRUE(LoadSpells(*game));
  const SpellRecord& first = game->SpellTable[0];
  EXPECT_EQ(Format("%s|%s|%s|%s|%s|%s|%s|%s|%s|%i|%s|%s", first.Name, first.Type, first.Specialization, first.Range,
                   first.Component, first.Duration, first.CastingTime, first.AreaOfEffect, first.SavingThrow,
                   first.Level, first.Category, first.SourceTag),
            "Grey Wall |Conjuration/Summoning|Con_jurer|10 ft.|V,S,M|1 turn|3|One wall|Neg.|4|Magic-user Level 4|TG12");
  EXPECT_EQ(game->SpellTable[1].Level, 0);
  EXPECT_EQ(game->SpellTable[1].SourceTag, "Very_long");
  EXPECT_EQ(game->SpellTable[2].Name.View(), std::string(49, 'n'));
  EXPECT_EQ(game->SpellTable[2].Specialization, "Empty");
  EXPECT_EQ(game->SpellTable[1999].SourceTag, "Empty");
  EXPECT_EQ(game->sheet.SpellsKnown[7], 0);
}

TEST_F(SideFiles, TheSkillSheetIsWrittenWholeOrNotAtAll) {
  EXPECT_FALSE(ExportSkills({.DiskRoom = 60}));
  EXPECT_FALSE(std::filesystem::exists("skills.tsv"));
  EXPECT_TRUE(ExportSkills());
  EXPECT_EQ(FileText("skills.tsv"), SkillsTsv());
  EXPECT_TRUE(platform.messages.empty()) << "whatever becomes of it";
}

TEST_F(SideFiles, ReadingOfSpellsStopsAtTheRowsThatThereAre) {
  std::string text;
  for (int i = 0; i < 800; ++i) text += "N" + std::to_string(i) + " a b c d e f g h 1 i j\n";
  WriteText("spells.vld", text);
  EXPECT_TRUE(LoadSpells(*game));
  EXPECT_EQ(game->SpellTable[766].Name, "N766");
  EXPECT_EQ(game->SpellTable[767].Name, "Empty");
}

}  // namespace
}  // namespace veld::testing
