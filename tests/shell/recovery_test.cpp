#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "shell/main_menu.h"
#include "store/recovery.h"
#include "support/game_test.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {
namespace {

namespace fs = std::filesystem;
using testing::FileText;
using testing::ScriptedPlatform;
using testing::TestFolder;
using testing::WriteText;

class RecoveryTest : public testing::GameTest<> {
 protected:
  /// Another character takes the memory, a while after the one before.
  void Begin(const std::string& name, bool isFinished) {
    ++platform.now;
    ResetCharacter(*game);
    game->sheet.CharacterName = name;
    game->isFinished = isFinished;
  }

  static std::string Names() {
    std::string names;
    for (const RecoveryCopy& copy : RecoveryCopies()) names += copy.Name + " ";
    return names;
  }

  TestFolder folder;
};

TEST_F(RecoveryTest, EachCharacterHasOneCopyAndTheLastFiveOfEachKindStay) {
  KeepRecoveryCopy(*game);
  EXPECT_EQ(Names(), "") << "nobody has begun this character";
  for (int number = 1; number <= 7; ++number) {
    Begin(Format("H%i", number), false);
    KeepRecoveryCopy(*game);
    game->sheet.ClassName = "Fighter";
    game->isFinished = true;
    KeepRecoveryCopy(*game);
  }
  EXPECT_EQ(Names(), "H7 H6 H5 H4 H3 ");
  const RecoveryCopy last = RecoveryCopies().front();
  EXPECT_EQ(last.ClassName, "Fighter");
  EXPECT_EQ(last.Path, Format("recovery/19700101-000008-%i-1-finished.vlf", getpid()));
  EXPECT_TRUE(last.Time.starts_with("20") && last.Kind == CopyKind::Finished);
  for (int number = 1; number <= 6; ++number) {
    Begin(Format("f%i", number), false);
    KeepRecoveryCopy(*game);
  }
  EXPECT_EQ(Names(), "f6 f5 f4 f3 f2 H7 H6 H5 H4 H3 ") << "fragments push no finished character out";
  EXPECT_TRUE(platform.messages.empty()) << "the copies are silent";
}

TEST_F(RecoveryTest, ACopyThatCanNotBeWrittenPushesNoneOut) {
  for (const char* name : {"1", "2", "3", "4", "5"}) {
    Begin(name, true);
    KeepRecoveryCopy(*game);
  }
  for (const char* name : {"6", "7", "8"}) {
    Begin(name, true);
    KeepRecoveryCopy(*game, {.DiskRoom = 50'000, .Flush = false});
    KeepRecoveryCopy(*game, {.DiskRoom = 0, .Flush = false});
  }
  EXPECT_EQ(Names(), "5 4 3 2 1 ");
  game->sheet.ClassLevels[3] = 100;  // no file can hold it
  KeepRecoveryCopy(*game);
  EXPECT_EQ(Names(), "5 4 3 2 1 ");
  game->sheet.ClassLevels[3] = 99;
  KeepRecoveryCopy(*game);
  EXPECT_EQ(Names(), "8 5 4 3 2 ");
}

TEST_F(RecoveryTest, ThePlayersOwnFilesAndThoseOfARunningProgramStay) {
  Begin("Own", true);
  fs::create_directory(kRecoveryFolder);
  const std::string running = Format("recovery/19690101-000000-%i-1-finished.vlf", getppid());
  const std::string own[] = {"autosave.vlf",
                             "autosave2.vlf",
                             "recovery/autosave3.vlf",
                             "recovery/my-finished.vlf",
                             "recovery/1-2-3-4-finished.vlf",
                             "recovery/20261121-140533-7-1-Finished.vlf",
                             running};
  for (const std::string& path : own) {
    WriteText(path, EncodeCharacter(*game));
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(2));
  }
  for (int number = 1; number <= 12; ++number) {
    Begin(Format("%i", number), true);
    KeepRecoveryCopy(*game);
  }
  for (const std::string& path : own) EXPECT_TRUE(fs::exists(path)) << path;
  EXPECT_EQ(Names(), "12 11 10 9 8 Own Own Own ") << "those of earlier versions are listed";
}

TEST_F(RecoveryTest, LoadingAndRecoveringThatComeToNothingChangeNothing) {
  Begin("First", true);
  KeepRecoveryCopy(*game);
  game->RuleSwitches[kRollYourOwnDice] = 0;
  RunMainCommand(*game, kNewCharacter);
  game->sheet.CharacterName = "Second";
  const std::shared_ptr<Form> stepThree = game->stepThree;
  WriteText("odd.vlf", "nothing of ours");
  for (int tries = 0; tries < kRecoveryCopies; ++tries) {
    platform.ExpectOpenPath(tries % 2 == 0 ? "" : "odd.vlf");
    RunMainCommand(*game, kLoad);
    platform.ExpectForm("Recover", [](Form& form) { form.PressCloseBox(); });
    RunMainCommand(*game, kRecover);
  }
  EXPECT_FALSE(stepThree->IsClosed());
  EXPECT_EQ(game->run.CurrentStep, 3) << "the generation goes on";
  EXPECT_EQ(Names(), "Second First ");

  platform.ExpectForm("Recover", [](Form& form) {
    form.Select(3021, 1);
    form.PressDefault();
  });
  RunMainCommand(*game, kRecover);
  EXPECT_TRUE(stepThree->IsClosed());
  EXPECT_EQ(game->sheet.CharacterName, "First");
}

TEST_F(RecoveryTest, TheDialogBringsACopyBackAndKeepsWhatWasThere) {
  RunMainCommand(*game, kRecover);
  EXPECT_TRUE(platform.Showed("There is no character to recover."));
  Begin("First", false);
  game->sheet.GoldPieces = 77;
  KeepRecoveryCopy(*game);
  for (const char* name : {"A", "B", "C", "D", "Second"}) {
    Begin(name, true);
    KeepRecoveryCopy(*game);
  }
  game->sheet.GoldPieces = 5;
  // Looking through all of them, each in turn, pushes none out.
  for (int looks = 0; looks < 6; ++looks) {
    platform.ExpectForm("Recover", [](Form& form) {
      form.Select(3021, static_cast<int>(form.Items(3021).size()) - 1);
      EXPECT_EQ(Contains(form.SelectedText(3021), "unfinished"), Contains(form.SelectedText(3021), "First"));
      form.PressDefault();
    });
    RunMainCommand(*game, kRecover);
    if (looks > 0) continue;
    EXPECT_EQ(game->sheet.CharacterName, "First");
    EXPECT_EQ(game->sheet.GoldPieces, 77);
    EXPECT_TRUE(Contains(platform.mainTitle, "First"));
    EXPECT_FALSE(game->isFinished);
    testing::ScriptedPlatform other;
    const auto reader = MakeGame(other);
    EXPECT_TRUE(Recover(*reader, RecoveryCopies()[0]));
    EXPECT_EQ(reader->sheet.CharacterName, "Second");
    EXPECT_EQ(reader->sheet.GoldPieces, 5) << "what was there was kept as it was at the end";
  }
  EXPECT_EQ(RecoveryCopies().size(), 6U);
  for (const char* name : {"First", "A", "B", "C", "D", "Second"}) EXPECT_TRUE(Contains(Names(), name)) << name;

  Begin("Last", false);
  KeepRecoveryCopy(*game);
  game->sheet.GoldPieces = 99;
  Recover(*game, RecoveryCopies().front());  // itself, as it was
  EXPECT_NE(game->sheet.GoldPieces, 99);
  KeepRecoveryCopy(*game);
  EXPECT_TRUE(Names().starts_with("Last Last ")) << "as it was, and as it had become";
}

}  // namespace
}  // namespace veld
