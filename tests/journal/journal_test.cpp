#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <iostream>

#include "journal/journal_platform.h"
#include "rules/race_table.h"
#include "sheets/text_sheet.h"
#include "shell/main_menu.h"
#include "steps/classes/class_choice.h"
#include "store/character_file.h"
#include "store/recovery.h"
#include "support/game_test.h"
#include "support/random_player.h"
#include "support/scripted_platform.h"

namespace veld {
namespace {

using testing::FileText;
using testing::RandomPlayer;
using testing::TestFolder;

constexpr int kRaces = 3021;
constexpr int kContinue = 3043;

/// All that a form shows.
std::string PictureOf(const Form& form) {
  std::string picture(form.Name());
  for (const Control& control : form.Controls()) {
    picture += '\n' + control.Text + '|' + std::to_string(control.Selection) + (control.Checked ? "x" : "") +
               (control.Enabled ? "" : "-") + (control.Visible ? "" : "/");
    for (const std::string& item : control.Items) picture += ';' + item;
  }
  return picture;
}

/// A random player of runs who now and then takes acts back and does them again, and looks whether all is as it was.
class Wanderer : public RandomPlayer {
 public:
  explicit Wanderer(std::uint32_t seed) : RandomPlayer(seed, 80), journal(*this) {
    savePath = "hero.vlf";
    game = testing::QuietGame(journal);
    testing::LoadShippedCatalogues(*game);
    game->RuleSwitches[kRollYourOwnDice] = seed % 2 == 0 ? 1 : 0;
  }

  /// Plays a run from New Character to wherever it ends.
  void PlayRun() {
    journal.BeginRun(*game, BeginCharacter);
    for (int tries = 0; tries < 200 && window->Items(kRaces).empty(); ++tries) window->Press(3047);  // roll again
    const auto races = static_cast<std::uint32_t>(window->Items(kRaces).size());
    if (races == 0) return;
    window->Choose(kRaces, static_cast<int>(Pick(races)));
    window->Press(kContinue);
    GoOnAside();
  }

  std::string Picture(const Form& form) const {
    return PictureOf(form) + std::to_string(game->dice.RandomState) + std::to_string(game->run.BuildingPoints) +
           EncodeCharacter(*game);
  }

  void Act(Form& form) override {
    if (onAct) onAct(form);
    if (form.IsClosed()) return;
    const bool strays = wanders && mode_ == Mode::Straight && form.CanTakeBack() && Pick(rarity) == 0;
    if (!strays) return RandomPlayer::Act(form);
    before_ = Picture(form);
    mode_ = Mode::Back;
    left_ = 1 + Pick(6);
    ++detours;
    Step(form);
  }

  void RunForm(Form& form) override {
    if (!Step(form)) return;
    if (onForm) onForm(form);
    if (form.IsClosed()) return;
    form.Open();
    PlayWell(form);
    if (!form.IsClosed()) RandomPlayer::RunForm(form);
  }

  void ShowWindow(std::shared_ptr<Form> form) override {
    RandomPlayer::ShowWindow(std::move(form));
    if (onForm) onForm(*window);
  }

  JournalPlatform journal;
  std::unique_ptr<Game> game;
  std::function<void(Form&)> onAct;   ///< before each act
  std::function<void(Form&)> onForm;  ///< a form that is to be played
  bool wanders = false;
  int detours = 0;
  std::uint32_t rarity = 300;

 private:
  enum class Mode { Straight, Back, Again };

  /// Chance alone would seldom get past these.
  void PlayWell(Form& form) {
    const bool isAllotment = form.Name().ends_with("Abilities");
    if (form.Name() == "StepNine" && !form.Items(kClassList).empty()) {
      form.Choose(kClassList, static_cast<int>(Pick(static_cast<std::uint32_t>(form.Items(kClassList).size()))));
    }
    if (isAllotment) testing::SpreadPoints(form);
    if (isAllotment || form.Name() == "StepNine" || form.Name() == "StepEight") form.Press(1);
  }

  /// One step of a detour. True when there is none, or its end is reached.
  bool Step(Form& form) {
    if (mode_ == Mode::Back && (left_ == 0 || !form.CanTakeBack())) mode_ = Mode::Again;
    if (mode_ == Mode::Back) {
      --left_;
      form.TakeBack();
      return false;
    }
    if (mode_ == Mode::Again && form.CanDoAgain()) {
      form.DoAgain();
      return false;
    }
    if (mode_ == Mode::Again) {
      mode_ = Mode::Straight;
      EXPECT_TRUE(Picture(form) == before_) << form.Name();
    }
    return true;
  }

  /// The part of a detour that goes on in the window of Step 3.
  void GoOnAside() {
    while (mode_ != Mode::Straight) {
      if (!window->IsClosed()) {
        Step(*window);
      } else if (mode_ == Mode::Back && left_ > 0 && journal.CanTakeBack()) {
        --left_;
        journal.TakeBack();
      } else if (journal.CanDoAgain()) {
        journal.DoAgain();
      } else {
        mode_ = Mode::Straight;
      }
    }
  }

  Mode mode_ = Mode::Straight;
  std::uint32_t left_ = 0;
  std::string before_;
};

TEST(JournalTest, WhatIsTakenBackAndDoneAgainLeavesAllAsItWas) {
  const TestFolder folder;
  int detours = 0;
  int finished = 0;
  constexpr std::uint32_t kRuns = 20;
  for (std::uint32_t seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE(seed);
    Wanderer player(seed);
    player.wanders = true;
    player.PlayRun();
    detours += player.detours;
    finished += player.game->run.CurrentStep == 20 ? 1 : 0;
    if (HasFailure()) return;
  }
  EXPECT_GT(detours, 100);
  EXPECT_GT(finished, 5);
}

TEST(JournalTest, ARunUndoneToItsStartAndRedoneToItsEndIsTheSame) {
  const TestFolder folder;
  int finished = 0;
  for (std::uint32_t seed = 3; seed < 40 && finished < 2; ++seed) {
    SCOPED_TRACE(seed);
    Wanderer player(seed);
    player.PlayRun();
    // Each act is a run played again: a short one does.
    if (player.game->run.CurrentStep != 20 || player.journal.Journal().Entries.size() > 700) continue;
    ++finished;
    const std::string character = EncodeCharacter(*player.game);
    const std::uint32_t dice = player.game->dice.RandomState;
    const std::string journal = JournalText(player.journal.Journal());
    // Unwinding and playing again at every act: the player takes back and does again whatever opens before him.
    bool isGoingBack = true;
    const auto goOn = [&](Form& form) {
      if (isGoingBack && !form.CanTakeBack()) isGoingBack = false;
      if (isGoingBack) {
        form.TakeBack();
      } else {
        form.DoAgain();
      }
    };
    player.onForm = goOn;
    player.journal.TakeBack();
    while (isGoingBack || player.journal.CanDoAgain()) goOn(*player.window);
    EXPECT_TRUE(EncodeCharacter(*player.game) == character);
    EXPECT_EQ(player.game->dice.RandomState, dice);
    EXPECT_EQ(player.game->run.CurrentStep, 20);
    EXPECT_TRUE(JournalText(player.journal.Journal()) == journal);
    RunJournal read;
    ASSERT_TRUE(ReadJournal(journal, read));
    EXPECT_TRUE(JournalText(read) == journal);
  }
  EXPECT_EQ(finished, 2);
}

TEST(JournalTest, WhatIsTakenBackHasTheFocusAgain) {
  constexpr int kHandedness = 6079;
  const TestFolder folder;
  Wanderer player(3);
  int shown = 0;
  player.onForm = [&](Form& form) {
    if (form.Name() != "StepSix") return;
    form.Open();
    if (shown++ > 0) {  // first the button is taken back, then the Abort
      EXPECT_EQ(form.Controls()[form.FirstFocus()].Template.Id, kHandedness);
      return form.PressCloseBox();
    }
    form.Press(kHandedness - 1);
    form.Press(kHandedness);
    form.TakeBack();
  };
  player.PlayRun();
  player.journal.TakeBack();
  EXPECT_EQ(shown, 3);
}

/// Plays a run in a process of its own that is killed before its `last` act; the marks are the states before each act.
void PlayUntilKilled(std::uint32_t seed, int last, int marks) {
  Wanderer player(seed);
  int acts = 0;
  player.onAct = [&](Form& form) {
    const std::uint64_t mark = std::hash<std::string>()(player.Picture(form));
    if (write(marks, &mark, sizeof mark) != sizeof mark || ++acts > last) raise(SIGKILL);
  };
  player.PlayRun();
  raise(SIGKILL);
}

TEST(JournalTest, AKilledRunGoesOnWhereItStood) {
  const TestFolder folder;
  int compared = 0;
  constexpr int kKills = 30;
  for (int kill = 0; kill < kKills; ++kill) {
    SCOPED_TRACE(kill);
    std::filesystem::remove_all(kRecoveryFolder);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) PlayUntilKilled(static_cast<std::uint32_t>(kill + 1), kill * 37 % 900, ends[1]);
    close(ends[1]);
    std::uint64_t mark = 0;
    std::uint64_t before = 0;
    for (std::uint64_t next = 0; read(ends[0], &next, sizeof next) == sizeof next; mark = next) before = mark;
    close(ends[0]);
    waitpid(child, nullptr, 0);
    const auto copies = RecoveryCopies();
    if (copies.empty() || copies.front().Kind != CopyKind::Run) continue;  // it ended well before
    Wanderer player(99);
    std::uint64_t found = 0;
    player.onForm = [&](Form& form) {
      form.Open();
      if (found == 0) found = std::hash<std::string>()(player.Picture(form));
      form.Close();
    };
    RunJournal run;
    ASSERT_TRUE(ReadJournal(FileText(copies.front().Path), run));
    player.journal.Resume(*player.game, std::move(run), BeginCharacter);
    ++compared;
    // Typing and choosing without a press after it may be lost.
    EXPECT_TRUE(found == mark || found == before || !player.game->run.CurrentStep) << copies.front().Name;
  }
  EXPECT_GT(compared, kKills / 2);
}

/// Whole runs as they were played once, kept beside what became of them. VELD_WRITE_GOLDEN=1 writes the sheets anew.
TEST(JournalTest, KeptRunsPlayToTheCharactersThatTheyMade) {
  const TestFolder folder;
  const std::string runs = std::string(VELD_SOURCE_DIR) + "/tests/journal/runs/";
  int played = 0;
  for (const auto& entry : std::filesystem::directory_iterator(runs)) {
    if (entry.path().extension() != ".run") continue;
    SCOPED_TRACE(entry.path().filename());
    Wanderer player(1);
    RunJournal run;
    ASSERT_TRUE(ReadJournal(FileText(entry.path()), run));
    const std::string journal = JournalText(run);
    int shown = 0;
    player.journal.onChanged = [&](Game&) { ++shown; };
    player.journal.Resume(*player.game, std::move(run), BeginCharacter);
    EXPECT_TRUE(JournalText(player.journal.Journal()) == journal) << "all of it fits";
    EXPECT_EQ(player.forms, std::vector<std::string>{}) << "and nothing is left to play";
    EXPECT_EQ(shown, 1) << "the page is shown when the run is handed over, not on the way";
    const std::string sheet = entry.path().parent_path() / (entry.path().stem().string() + ".txt");
    if (std::getenv("VELD_WRITE_GOLDEN")) testing::WriteText(sheet, TextSheet(*player.game));
    EXPECT_EQ(TextSheet(*player.game), FileText(sheet));
    ++played;
  }
  EXPECT_GE(played, 3);
}

TEST(JournalTest, AJournalThatDoesNotFitIsPlayedAsFarAsItDoesAndGoesOn) {
  const TestFolder folder;
  Wanderer whole(5);
  whole.PlayRun();
  const std::string text = JournalText(whole.journal.Journal());
  for (std::uint32_t seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE(seed);
    Wanderer player(seed);
    std::string spoilt = text;
    if (seed % 4 == 0) {
      spoilt.resize(player.Pick(static_cast<std::uint32_t>(spoilt.size())));
    } else {
      spoilt[player.Pick(static_cast<std::uint32_t>(spoilt.size()))] = static_cast<char>(player.Pick(256));
    }
    RunJournal run;
    if (!ReadJournal(spoilt, run)) continue;
    player.journal.Resume(*player.game, std::move(run), BeginCharacter);
    EXPECT_FALSE(player.journal.IsReplaying());
    EXPECT_EQ(player.stuckForm, "");
    const std::string kept = JournalText(player.journal.Journal());
    RunJournal again;
    ASSERT_TRUE(ReadJournal(kept, again)) << "what was played from there is kept";
  }
}

}  // namespace
}  // namespace veld
