#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "shell/main_menu.h"
#include "store/character_file.h"
#include "support/game_test.h"

namespace veld {
namespace {

constexpr int kRace = 3021, kClass = 3022, kList = 3025, kLevel = 3000, kCount = 3001, kSeed = 3003, kOutcome = 10;
constexpr int kMake = 1, kClose = 2, kTake = 3, kSaveAll = 4, kPrintAll = 5;
constexpr int kPrintView = 1;

class NpcPageTest : public testing::GameTest<> {
 protected:
  NpcPageTest() { testing::LoadShippedCatalogues(*game); }

  void Open(std::function<void(Form&)> act) {
    platform.ExpectForm("NPCs", std::move(act));
    RunMainCommand(*game, kNpcs);
  }

  testing::TestFolder folder;
};

TEST_F(NpcPageTest, MakesListsSavesPrintsAndTakesThem) {
  game->sheet.CharacterName = "Somebody";
  const std::string before = EncodeCharacter(*game);
  Open([&](Form& form) {
    EXPECT_FALSE(form.Press(kTake)) << "there is nobody yet";
    testing::ChooseText(form, kRace, "Dwarf");
    for (const std::string& name : form.Items(kClass)) EXPECT_NE(name, "Paladin") << "closed to dwarves";
    testing::ChooseText(form, kClass, "Fighter");
    form.Type(kLevel, "3");
    form.Type(kCount, "4");
    form.Type(kSeed, "77");
    form.Press(kMake);
    ASSERT_EQ(form.Items(kList).size(), 4U) << form.Text(kOutcome);
    for (const std::string& line : form.Items(kList)) EXPECT_NE(line.find("Dwarf, Fighter 3, "), std::string::npos);
    EXPECT_EQ(EncodeCharacter(*game), before) << "the character in memory is left alone";
    const std::vector<std::string> made = form.Items(kList);
    form.Press(kMake);
    EXPECT_EQ(form.Items(kList), made) << "of the same seed";

    platform.ExpectSavePath(folder.Path() + "/each by his own name.vlf");
    form.Press(kSaveAll);
    platform.ExpectForm("Print", [](Form& print) { print.Press(kPrintView); });
    form.Press(kPrintAll);
    EXPECT_EQ(platform.opened.size(), 1U);
    form.Choose(kList, 2);
    form.Press(kTake);
    EXPECT_TRUE(made[2].starts_with(game->sheet.CharacterName.View())) << made[2];
    form.Press(kClose);
  });
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
    if (entry.path().extension() != ".vlf") continue;
    ++files;
    EXPECT_TRUE(LoadCharacterFile(*game, entry.path().string()));
    EXPECT_EQ(game->sheet.RaceName, "Dwarf");
  }
  EXPECT_EQ(files, 4);
  Open([](Form& form) {
    EXPECT_EQ(form.Items(kList).size(), 4U) << "those made last are there still";
    form.PressCloseBox();
  });
}

TEST_F(NpcPageTest, TellsWhatItCannotMakeAndCanBeBrokenOff) {
  Open([&](Form& form) {
    form.Type(kCount, "201");
    form.Press(kMake);
    EXPECT_NE(form.Text(kOutcome).find("1 to 200"), std::string::npos);
    form.Type(kCount, "200");
    platform.CancelProgressAt(2);
    form.Press(kMake);
    EXPECT_EQ(form.Items(kList).size(), 4U) << "those who were made by then stay";
    EXPECT_NE(form.Text(kOutcome).find("Broken off"), std::string::npos) << form.Text(kOutcome);
    form.Press(kClose);
  });
}

}  // namespace
}  // namespace veld
