#include "shell/main_session.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "sheets/character_page.h"
#include "shell/main_menu.h"
#include "store/character_file.h"
#include "support/game_test.h"
#include "support/scripted_platform.h"

namespace veld {
namespace {

using testing::FileText;

constexpr int kOk = 1, kRaces = 3021, kContinue = 3043, kFirstField = 100, kMoneyPage = 107, kFound = 900;

class MainSessionTest : public ::testing::Test {
 protected:
  testing::TestFolder folder;
  testing::ScriptedPlatform platform;
  JournalPlatform journal{platform};
  std::unique_ptr<Game> game = testing::QuietGame(journal);
  MainSession session{*game, journal};

  void FindGold(std::string amount) {
    platform.ExpectForm("MainEdit", [this, amount](Form& hub) {
      platform.ExpectForm("EditMoney", [amount](Form& form) {
        form.Type(kFirstField, amount);
        form.Press(kFound);
        form.Press(kOk);
      });
      hub.Press(kMoneyPage);
      hub.Press(kOk);
    });
    session.Command(kEdit);
  }
};

TEST_F(MainSessionTest, TheLastTwentyChangesOfEditAreTakenBackAndMadeAgain) {
  const auto draft = std::make_unique<CharacterDraft>();
  const std::string path = std::string(VELD_SOURCE_DIR) + "/tests/sheets/golden/fighter.vlf";
  ASSERT_EQ(DecodeCharacter(FileText(path), *draft), LoadResult::Loaded);
  TakeCharacter(*game, *draft);
  const int gold = game->sheet.GoldPieces;
  for (int change = 0; change < 25; ++change) FindGold("1");
  EXPECT_EQ(game->sheet.GoldPieces, gold + 25);
  for (int undo = 0; undo < 25; ++undo) session.Command(kUndo);
  EXPECT_EQ(game->sheet.GoldPieces, gold + 5);
  EXPECT_TRUE(platform.Showed("There is nothing to take back."));
  for (int redo = 0; redo < 3; ++redo) session.Command(kRedo);
  EXPECT_EQ(game->sheet.GoldPieces, gold + 8);
  EXPECT_TRUE(game->isFinished);
  FindGold("100");
  session.Command(kRedo);
  EXPECT_EQ(game->sheet.GoldPieces, gold + 108) << "another change leaves nothing to make again";
}

TEST_F(MainSessionTest, ARunIsAbortedTakenBackSavedAndTakenUpAgain) {
  session.Command(kNewCharacter);
  platform.window->Open();
  for (int tries = 0; tries < 99 && platform.window->Items(kRaces).empty(); ++tries) platform.window->Press(3047);
  platform.window->Choose(kRaces, 0);
  const auto abort = [](Form& form) { form.PressCloseBox(); };
  platform.ExpectForm("StepSix", abort);
  platform.window->Press(kContinue);
  const std::string race(game->sheet.RaceName.View());
  EXPECT_TRUE(platform.window->IsClosed());
  EXPECT_EQ(game->run.CurrentStep, 1) << "aborted";
  platform.ExpectSavePath("mine.run");
  session.Command(kSaveRun);
  EXPECT_TRUE(FileText("mine.run").starts_with("VELD run 1\nclock 1\n"));

  // The abort is taken back: Step 6 stands open again.
  int opened = 0;
  platform.ExpectForm("StepSix", [&](Form& form) {
    ++opened;
    EXPECT_TRUE(form.CanDoAgain());
    form.PressCloseBox();
  });
  session.Command(kUndo);
  // The run is taken up from the list of what can be recovered: after its last act nothing is open.
  platform.ExpectForm("Recover", [](Form& form) {
    ASSERT_FALSE(form.Items(kRaces).empty());
    EXPECT_TRUE(form.Items(kRaces).front().starts_with("Go on: ")) << form.Items(kRaces).front();
    form.Press(kOk);
  });
  session.Command(kRecover);
  EXPECT_EQ(game->sheet.RaceName, race);
  platform.ExpectForm("StepSix", [&](Form& form) {
    ++opened;
    form.TakeBack();  // Continue: the window of Step 3 is back
  });
  session.Command(kUndo);
  EXPECT_EQ(opened, 2);
  EXPECT_FALSE(platform.window->IsClosed());
  EXPECT_NE(game->sheet.RaceName, race) << "the choice goes with the press that followed it";
  EXPECT_NE(platform.page.at(1).Label, "Race") << "the page goes back with him";
  platform.ExpectForm("StepSix", abort);
  session.Command(kRedo);
  EXPECT_EQ(game->sheet.RaceName, race);
  EXPECT_EQ(platform.page.at(1).Label, "Race");
}

TEST_F(MainSessionTest, ThePageIsKeptUpWithEachPressOfALongStep) {
  session.Command(kNewCharacter);
  platform.window->Open();
  for (int tries = 0; tries < 99 && platform.window->Items(kRaces).empty(); ++tries) platform.window->Press(3047);
  platform.window->Choose(kRaces, 0);
  platform.ExpectForm("StepSix", [&](Form& form) {
    const auto before = platform.page;
    form.Press(6078);
    form.Press(6078);  // the second press costs a BP
    EXPECT_TRUE(platform.page != before);
    EXPECT_TRUE(platform.page == CharacterPage(*game));
    form.PressCloseBox();
  });
  platform.window->Press(kContinue);
}

TEST_F(MainSessionTest, DiceThrownBesideARunAreThrownForItTooWhenItIsPlayedAgain) {
  session.Command(kNewCharacter);
  platform.window->Open();
  platform.ExpectForm("Options", [](Form& form) { form.PressCloseBox(); });
  session.Command(kOptions);
  EXPECT_EQ(journal.Journal().Entries.size(), 1U) << "what changes nothing is no part of the run";
  platform.ExpectForm("GMDiceRoller", [&](Form& form) {
    game->dice.RandomState += 12345;  // as any throw there does
    form.PressCloseBox();
  });
  session.Command(kDiceRoller);
  platform.window->Press(3047);
  const std::string rolled = EncodeCharacter(*game);
  platform.window->Press(3047);
  session.Command(kUndo);
  EXPECT_TRUE(EncodeCharacter(*game) == rolled);
}

TEST_F(MainSessionTest, AFolderThatTakesNoJournalIsToldOnceAndTheRunGoesOn) {
  testing::WriteText("recovery", "a file in the folder's place");
  session.Command(kNewCharacter);
  platform.window->Open();
  platform.window->Press(3047);
  platform.window->Press(3047);
  const auto told = std::ranges::count_if(platform.messages, [](const std::string& message) {
    return message.find("can't be kept on the disk") != std::string::npos;
  });
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(journal.CanTakeBack());
  session.Command(kUndo);
  EXPECT_TRUE(journal.CanDoAgain());
}

}  // namespace
}  // namespace veld
