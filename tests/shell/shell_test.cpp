#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>

#include "generation/save_by_extension.h"
#include "generation/sequencer.h"
#include "rules/quirk_table.h"
#include "shell/data_folder.h"
#include "shell/main_menu.h"
#include "shell/options_dialog.h"
#include "shell/start_up.h"
#include "shell/veld.h"
#include "store/character_file.h"
#include "store/side_files.h"
#include "support/game_test.h"
#include "support/random_player.h"
#include "text/format.h"

namespace veld {
namespace {

namespace fs = std::filesystem;
using testing::FileText;
using testing::ScriptedPlatform;
using testing::TestFolder;
using testing::WriteText;

class ShellTest : public testing::GameTest<> {
 protected:
  TestFolder folder;
};

TEST_F(ShellTest, AFirstStartTellsWhatIsMissingAndCreatesWhatIsTheUsers) {
  StartUp(*game);
  EXPECT_EQ(platform.messages.size(), 4U) << "each file that is missing is told";
  EXPECT_TRUE(fs::exists("options.vlb") && fs::exists("cequip.vlb"));
  EXPECT_TRUE(game->IsOn(kRollYourOwnDice)) << "on a first run every switch is on";

  platform.messages.clear();
  fs::copy_file(std::string(VELD_DATA_DIR) + "/equip.vlb", "equip.vlb");
  fs::copy_file(std::string(VELD_DATA_DIR) + "/spells.vld", "spells.vld");
  StartUp(*game);
  EXPECT_TRUE(platform.messages.empty()) << platform.messages.front();
  EXPECT_FALSE(game->EquipmentTable[0].Name.Empty());
  EXPECT_FALSE(game->SpellTable[766].Name == "Empty");
  EXPECT_EQ(game->SpellTable[767].Name, "Empty");
}

TEST_F(ShellTest, OptionsShowTheFileAndApplyWritesIt) {
  game->RuleSwitches.fill(1);
  SaveOptions(*game);
  game->RuleSwitches[kRollYourOwnDice] = 0;  // "Turn This Off" holds for this run only
  Play("Options", RunOptions, [](Form& form) {
    EXPECT_TRUE(form.IsChecked(3036));
    form.Mark(3036, false);
    form.PressDefault();
  });
  game->RuleSwitches.fill(7);
  LoadOptions(*game);
  EXPECT_FALSE(game->IsOn(kRollYourOwnDice));
  EXPECT_TRUE(game->IsOn(kBeastGrid));
  EXPECT_TRUE(game->IsOn(kCoreRules));
  EXPECT_TRUE(game->IsOn(13)) << "switches without a box survive";

  Play("Options", RunOptions, [](Form& form) {
    form.Mark(3015, false);
    form.PressCloseBox();
  });
  EXPECT_TRUE(game->IsOn(kBeastGrid)) << "closed without Apply";
}

TEST_F(ShellTest, TheExtensionAnywhereInThePathChoosesTheWriter) {
  SaveByExtension(*game, "hero.vlf");
  EXPECT_TRUE(platform.Showed("File saved in vlf format"));
  SaveByExtension(*game, "old.vlf.txt");
  EXPECT_EQ(FileText("old.vlf.txt").substr(0, 3), "4.5") << "the character file comes first";
  constexpr std::pair<const char*, std::string_view> kSheets[] = {
      {"hero.txt", "     "},    {"hero.TXT", "     "},           {"hero.csv", "Name \t "},
      {"hero.CSV", "Name \t "}, {"hero.htm", "<!DOCTYPE html>"}, {"hero.html", "<!DOCTYPE html>"},
      {"hero.xml", "<?xml"},    {"hero.XML", "<?xml"},           {"hero.pdf", "%PDF-"},
      {"hero.PDF", "%PDF-"}};
  for (const auto& [path, start] : kSheets) {
    SaveByExtension(*game, path);
    EXPECT_TRUE(FileText(path).starts_with(start)) << path;
  }
  for (const char* path : {"hero.doc", "hero", "hero.HTML"}) {
    platform.messages.clear();
    SaveByExtension(*game, path);
    EXPECT_TRUE(platform.Showed("VELD: Problem Saving Character: invalid file extension")) << path;
    EXPECT_FALSE(fs::exists(path));
  }
}

TEST_F(ShellTest, MenuCommandsNameTheCharacterInMemory) {
  game->sheet.CharacterName = "Ada/Bo";
  platform.ExpectSavePath("ada.vlf");
  RunMainCommand(*game, kSave);
  EXPECT_EQ(platform.mainTitle, "Tolmar's Plain Quellmarch Toolkit - Ada/Bo - is in memory");

  RunMainCommand(*game, kNewCharacter);
  EXPECT_EQ(platform.mainTitle, "Tolmar's Plain Quellmarch Toolkit - Nobody - is in memory");
  ASSERT_TRUE(game->stepThree);
  const std::shared_ptr<Form> first = game->stepThree;
  const std::vector<PageLine> rolled = platform.page;
  EXPECT_EQ(rolled.front().Value, "A character without a name");
  first->Choose(3021, 0);
  ASSERT_EQ(platform.page.size(), rolled.size() + 1);
  EXPECT_EQ(platform.page[1], (PageLine{PageLine::Kind::Fact, "Race", first->SelectedText(3021)}));
  RunMainCommand(*game, kNewCharacter);
  EXPECT_TRUE(first->IsClosed());

  const std::shared_ptr<Form> second = game->stepThree;
  platform.ExpectOpenPath("ada.vlf");
  RunMainCommand(*game, kLoad);
  EXPECT_TRUE(second->IsClosed());
  EXPECT_EQ(game->sheet.CharacterName, "Ada/Bo");
  EXPECT_EQ(platform.mainTitle, "Tolmar's Plain Quellmarch Toolkit - Ada/Bo - is in memory");
  EXPECT_EQ(platform.page.front().Value, "Ada/Bo");

  WriteText("odd.vlf", "nothing of ours");
  platform.ExpectOpenPath("odd.vlf");
  RunMainCommand(*game, kLoad);
  EXPECT_TRUE(platform.Showed("This file can not be loaded."));
  EXPECT_EQ(game->sheet.CharacterName, "Ada/Bo");

  platform.ExpectForm("About", [](Form& form) {
    form.PressDefault();
  });
  RunMainCommand(*game, kAbout);
  for (const auto& [form, command] : {std::pair("Print", kPrint), std::pair("PartySheet", kPartySheet)}) {
    platform.ExpectForm(form, [](Form& page) { page.PressCloseBox(); });
    RunMainCommand(*game, command);
  }
  RunMainCommand(*game, kExit);
  EXPECT_TRUE(platform.mainWindowClosed);
}

TEST_F(ShellTest, TheRefereesPagesLeaveTheCharacterInTheMakingAlone) {
  testing::RandomPlayer random(7);
  const auto referee = testing::QuietGame(random);
  RunMainCommand(*referee, kNewCharacter);
  const std::string before = EncodeCharacter(*referee);
  const auto bytesOfRun = [&] { return std::string(reinterpret_cast<const char*>(&referee->run), sizeof referee->run); };
  const std::string run = bytesOfRun();
  for (int visit = 0; visit < 60; ++visit) {
    RunMainCommand(*referee,
                   std::array{kHonorTracking, kCriticalHits, kDiceRoller}[static_cast<std::size_t>(visit % 3)]);
    ASSERT_EQ(random.stuckForm, "");
    ASSERT_TRUE(referee->stepThree && !referee->stepThree->IsClosed());
  }
  EXPECT_EQ(EncodeCharacter(*referee), before);
  EXPECT_TRUE(bytesOfRun() == run);
  EXPECT_GT(referee->party.Count, 0);
  EXPECT_EQ(referee->criticalHits.LastResults.size(), 10U);
}

TEST_F(ShellTest, LeftOverPointsBecomeGoldFractionsIncluded) {
  game->sheet.GoldPieces = 100;
  game->run.BuildingPoints = 3.5F;
  CashInBuildingPoints(*game);
  EXPECT_TRUE(platform.Showed("You started with 100 GP. Your 3.5 BPs have been cashed in. You now have 187 gold."));
  game->run.BuildingPoints = -0.5F;
  CashInBuildingPoints(*game);
  EXPECT_EQ(game->sheet.GoldPieces, 187) << "a debt takes no gold";
  game->run.BuildingPoints = 1e30F;
  CashInBuildingPoints(*game);
  EXPECT_GT(game->sheet.GoldPieces, 0) << "gold stays in its field";
}

TEST_F(ShellTest, RefereeQuirksAreReplacedByResultsOfTheirTables) {
  std::size_t referee = 0;
  for (std::size_t row = 1; row < kQuirkRows && referee == 0; ++row) {
    if (QuirkTable()[row].Kind == kRefereeQuirk && !QuirkTableRows(QuirkTable()[row].NextTable).empty()) referee = row;
  }
  ASSERT_NE(referee, 0U);
  const auto results = QuirkTableRows(QuirkTable()[referee].NextTable);
  game->sheet.RaceName = "Pixie Fairy";
  game->sheet.QuirkCounts[referee] = 2;
  RollRefereeQuirks(*game);
  EXPECT_EQ(game->sheet.QuirkCounts[referee], 0);
  int gained = 0;
  for (const int row : results) gained += game->sheet.QuirkCounts[static_cast<std::size_t>(row)];
  EXPECT_EQ(gained, 2);

  for (const int row : results) game->sheet.QuirkCounts[static_cast<std::size_t>(row)] = -1;
  game->sheet.QuirkCounts[referee] = 2;
  RollRefereeQuirks(*game);
  EXPECT_EQ(game->sheet.QuirkCounts[referee], 2) << "kept when its table can give nothing";
}

TEST(DataFolderTest, TheUsersFolderGetsWhatShipsAndKeepsWhatItHas) {
  TestFolder folder;
  fs::create_directories("shipped");
  WriteText("shipped/equip.vlb", "goods");
  WriteText("shipped/spells.vld", "spells");
  const fs::path start = fs::current_path();
  ASSERT_EQ(EnterDataFolder(start / "home" / "veld", start / "shipped"), "");
  EXPECT_EQ(fs::current_path(), start / "home" / "veld");
  EXPECT_EQ(FileText("equip.vlb"), "goods");
  WriteText("equip.vlb", "my goods");
  WriteText("options.vlb", "");
  ASSERT_EQ(EnterDataFolder(start / "elsewhere", start / "shipped"), "");
  EXPECT_EQ(fs::current_path(), start / "home" / "veld") << "a folder with its own options is stayed in";
  fs::current_path(start);
  fs::create_directory("options.vlb");  // none that could be read
  ASSERT_EQ(EnterDataFolder(start / "home" / "veld", start / "shipped"), "");
  EXPECT_EQ(fs::current_path(), start / "home" / "veld");
  EXPECT_EQ(FileText("equip.vlb"), "my goods");
}

/// Ends a child process with success, met by a user who is not root.
template <typename Check>
[[noreturn]] void EndAsUser(Check check) {
  if (geteuid() == 0 && seteuid(65534) != 0) _exit(2);
  _exit(check() ? 0 : 1);
}

TEST(DataFolderTest, FoldersThatCanNotBeWrittenAreToldAndTheNextIsUsed) {
  TestFolder folder;
  const fs::path start = fs::current_path();
  fs::permissions(start, fs::perms(0755));
  for (const char* name : {"own", "home", "open", "shipped"}) fs::create_directory(name);
  WriteText("shipped/equip.vlb", "goods");
  WriteText("own/options.vlb", "");
  fs::permissions("open", fs::perms(0777));
  for (const char* name : {"own", "home"}) fs::permissions(name, fs::perms(0555));
  const auto enters = [&](const fs::path& from, const fs::path& data, const fs::path& used, const std::string& told) {
    fs::current_path(from);
    const std::string tells = EnterDataFolder(data, start / "shipped");
    return fs::current_path() == used && tells == told && (used == from || FileText("equip.vlb") == "goods");
  };
  const std::string own = Format("The folder %s can not be written. ", (start / "own").string());
  const std::string home = Format("The folder %s can not be written. ", (start / "home").string());
  const std::string works = Format("VELD works in %s.", (start / "open").string());
  const auto expect = [&](const auto& check) { EXPECT_EXIT(EndAsUser(check), ::testing::ExitedWithCode(0), ""); };
  expect([&] { return enters(start / "own", start / "open", start / "open", own + works); });
  expect([&] { return enters(start / "open", start / "home", start / "open", home + works); });
  expect([&] {
    return enters(start / "own", start / "home", start / "own",
                  own + home + "What you do is lost unless you save it elsewhere.");
  });
  fs::permissions("own", fs::perms(0755));  // or nobody but root could remove it
}

TEST(ProgramTest, AFileThatMayNotGrowIsToldAndWhatAKilledProgramLeftIsRemoved) {
  TestFolder folder;
  setenv("XDG_DATA_HOME", folder.Path().c_str(), 1);
  fs::create_directories("veld/recovery");
  const auto killed = fork();
  if (killed == 0) _exit(0);
  ASSERT_EQ(waitpid(killed, nullptr, 0), killed);
  const std::string left = Format(".veld-%i-3.tmp", killed);
  const std::string others[] = {Format("veld/.veld-%i-0.tmp", getpid()), Format("veld/.veld-%i.tmp", killed),
                                Format("veld/.veld-%i-0.tmp.vlf", killed), "veld/.veld-.tmp"};
  WriteText("veld/" + left, "half");
  WriteText("veld/recovery/" + left, "half");
  for (const std::string& other : others) WriteText(other, "not left by a killed program");
  const auto run = [] {
    signal(SIGXFSZ, SIG_DFL);
    const rlimit small{10, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &small);
    ScriptedPlatform platform;
    RunVeld(platform);
    _exit(platform.Showed("Problem Saving options.vlb file") ? 0 : 1);
  };
  EXPECT_EXIT(run(), ::testing::ExitedWithCode(0), "");
  EXPECT_FALSE(fs::exists("veld/" + left) || fs::exists("veld/recovery/" + left));
  for (const std::string& other : others) EXPECT_TRUE(fs::exists(other)) << other;
}

}  // namespace
}  // namespace veld
