#include <gtest/gtest.h>

#include <filesystem>

#include "shell/main_menu.h"
#include "shell/recover_dialog.h"
#include "store/recovery.h"
#include "support/scripted_platform.h"
#include "text/search.h"

namespace veld {
namespace {

namespace fs = std::filesystem;
using testing::ScriptedPlatform;
using testing::TestFolder;

TEST(RecoveryTest, EachCharacterHasOneCopyAndTheLastFiveStay) {
  TestFolder folder;
  ScriptedPlatform platform;
  const auto game = MakeGame(platform);
  KeepRecoveryCopy(*game);
  EXPECT_TRUE(RecoveryCopies().empty()) << "nobody has begun this character";

  for (int number = 1; number <= 7; ++number) {
    game->sheet.CharacterName = Format("Hero %i", number);
    KeepRecoveryCopy(*game);
    game->sheet.ClassName = "Fighter";
    KeepRecoveryCopy(*game);
    LeaveRecoveryCopy(*game);
  }
  const auto copies = RecoveryCopies();
  ASSERT_EQ(copies.size(), 5U);
  EXPECT_EQ(copies.front().Name, "Hero 7");
  EXPECT_EQ(copies.back().Name, "Hero 3");
  EXPECT_EQ(copies.front().ClassName, "Fighter");
  EXPECT_TRUE(copies.front().Time.starts_with("20"));
  EXPECT_TRUE(platform.messages.empty()) << "the copies are silent";
}

TEST(RecoveryTest, LoadingThatIsCancelledOrFailsPushesNoOtherCopyOut) {
  TestFolder folder;
  ScriptedPlatform platform;
  const auto game = MakeGame(platform);
  game->sheet.CharacterName = "First";
  LeaveRecoveryCopy(*game);
  game->sheet.CharacterName = "Second";
  testing::WriteText("odd.vlf", "nothing of ours");
  for (int tries = 0; tries < kRecoveryCopies; ++tries) {
    platform.ExpectOpenPath(tries % 2 == 0 ? "" : "odd.vlf");
    RunMainCommand(*game, kLoad);
  }
  EXPECT_EQ(RecoveryCopies().size(), 2U);

  platform.ExpectOpenPath("autosave2.vlf");
  RunMainCommand(*game, kLoad);
  EXPECT_EQ(game->sheet.CharacterName, "First");
  KeepRecoveryCopy(*game);
  const auto copies = RecoveryCopies();
  ASSERT_EQ(copies.size(), 3U);
  EXPECT_EQ(copies[1].Name, "Second") << "a character that was loaded has a copy of its own";
}

TEST(RecoveryTest, TheDialogBringsACopyBackAndKeepsWhatWasThere) {
  TestFolder folder;
  ScriptedPlatform platform;
  const auto game = MakeGame(platform);
  RunMainCommand(*game, kRecover);
  EXPECT_TRUE(platform.Showed("There is no character to recover."));

  game->sheet.CharacterName = "First";
  game->sheet.GoldPieces = 77;
  LeaveRecoveryCopy(*game);
  ResetCharacter(*game);
  game->sheet.CharacterName = "Second";
  platform.ExpectForm("Recover", [](Form& form) {
    EXPECT_TRUE(form.Items(3021).front().starts_with("First, Please Pick, 20"));
    form.PressDefault();
  });
  RunMainCommand(*game, kRecover);
  EXPECT_EQ(game->sheet.CharacterName, "First");
  EXPECT_EQ(game->sheet.GoldPieces, 77);
  EXPECT_TRUE(Contains(platform.mainTitle, "First"));
  EXPECT_EQ(RecoveryCopies().front().Name, "Second");

  platform.ExpectForm("Recover", [](Form& form) { form.PressCloseBox(); });
  EXPECT_FALSE(RunRecover(*game));
}

}  // namespace
}  // namespace veld
