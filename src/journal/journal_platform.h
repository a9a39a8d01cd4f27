#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "journal/run_journal.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "store/game.h"

namespace veld {

/// A platform in front of a platform. While a run is played it keeps all that the player does; Undo goes back by
/// leaving every open form and playing the run again, unseen, to one act less, and then hands over to the front end
/// with the form as it stands. Outside of a run everything just passes through.
///
/// The run is left by one exception of this file, which starts where the front end returns from the form in which Undo
/// was asked for and ends where the run began: no step, rule or front end knows of it, they are only unwound.
class JournalPlatform : public Platform, private FormActs {
 public:
  explicit JournalPlatform(Platform& front) : front_(front) {}

  /// Begins a run: `begin` throws the first dice and shows the window of Step 3. It is called again whenever the run is
  /// played again. What was kept of the run before is forgotten.
  void BeginRun(Game& game, std::function<void(Game&)> begin);
  /// Plays a run of a journal to its last act, or as far as it fits, which is then told, and goes on from there.
  void Resume(Game& game, RunJournal journal, std::function<void(Game&)> begin);
  /// Forgets the run: another character is in memory.
  void ForgetRun();
  /// Runs a tool beside the run, and keeps what it changes for the run: the dice and the rule switches.
  void RunBeside(Game& game, const std::function<void()>& act);

  bool HasRun() const { return game_ != nullptr; }
  const RunJournal& Journal() const { return journal_; }

  /// Shows the character on the main window's page: after each press of a run, and when one that was played again is
  /// handed over.
  std::function<void(Game&)> onChanged;

  // Undo and Redo, also of the main window when the run has ended.
  bool CanTakeBack() const override;
  void TakeBack() override;
  bool CanDoAgain() const override;
  void DoAgain() override;

  // The port.
  bool IsReplaying() const override { return isReplaying_; }
  bool IsLost() const override { return front_.IsLost(); }
  void RunForm(Form& form) override;
  void ShowWindow(std::shared_ptr<Form> form) override;
  void RunMainWindow(const MainWindow& window) override { front_.RunMainWindow(window); }
  void CloseMainWindow() override { front_.CloseMainWindow(); }
  void SetMainTitle(std::string_view title) override;
  void ShowPage(const std::vector<PageLine>& page) override { front_.ShowPage(page); }
  void BeginProgress(std::string_view caption, std::string_view text) override;
  bool ShowProgress(int percent) override;
  void EndProgress() override;
  bool CopyText(std::string_view text) override { return isReplaying_ || front_.CopyText(text); }
  bool OpenFile(const std::string& path) override { return isReplaying_ || front_.OpenFile(path); }
  bool PrintFile(const std::string& path) override { return isReplaying_ || front_.PrintFile(path); }
  std::int64_t Now() const override;

 protected:
  Answer DoAskYesNo(const std::string& caption, const std::string& text) override;
  void DoShowMessage(const std::string& caption, const std::string& text) override;
  std::optional<std::string> DoAskOpenPath(const std::string& caption, std::span<const FileFilter> filters) override;
  std::optional<ChosenPath> DoAskSavePath(const std::string& caption, std::span<const FileFilter> filters,
                                          const std::string& suggestedName) override;

 private:
  void OnAct(const Form& form, const FormAct& act) override;
  void OnCarriedOut() override;
  void Record(JournalEntry entry);
  void WriteLine(std::string_view line);
  void WritePending();
  void WriteNote();
  void KeepWhole();

  void InRun(const std::function<void()>& act);
  void PlayAgain();
  void PlayRun();
  void StartOver();
  bool TakeEntry(JournalEntry::Kind kind, JournalEntry& entry);
  bool OpenByJournal(Form& form);
  void PlayForm(Form& form);
  bool PlayEntry(Form& form);
  void RunLive(Form& form);
  void BeginWhereTakenBack(Form& form);
  void GoLive();
  void BreakOff();
  std::optional<std::string> AskPath(const std::function<std::optional<std::string>()>& ask);

  Platform& front_;
  Game* game_ = nullptr;
  std::function<void(Game&)> begin_;
  RunJournal journal_;
  std::shared_ptr<Form> window_;  ///< of Step 3
  std::vector<Form*> live_;       ///< forms that the front end runs in this run, the topmost last
  std::string path_;              ///< of the journal's file; empty: there is none
  std::string title_;             ///< of the main window, while nothing is shown
  std::string note_;              ///< the last one written
  std::int64_t flushedAt_ = 0;    ///< when the disk was last waited for, in seconds
  std::size_t next_ = 0;          ///< the entry to be played next
  int takenBackAt_ = 0;           ///< the control of the act just taken back
  int depth_ = 0;                 ///< procedures of the run that are at work
  bool isReplaying_ = false;
  bool isBegun_ = false;  ///< the clock of the journal still holds: the run throws its first dice
  bool isUnwinding_ = false;
  bool isMisfit_ = false;
  bool isLineDue_ = false;  ///< the last entry is a long text whose line is not written yet
  bool hasToldOfFile_ = false;
};

}  // namespace veld
