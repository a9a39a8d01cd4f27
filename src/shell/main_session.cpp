#include "shell/main_session.h"

#include <memory>
#include <utility>

#include "editors/main_edit.h"
#include "generation/main_title.h"
#include "shell/main_menu.h"
#include "shell/recover_dialog.h"
#include "store/character_file.h"
#include "store/recovery.h"
#include "store/run_note.h"
#include "store/safe_file.h"
#include "text/file_name.h"

namespace veld {

namespace {

constexpr std::size_t kMostChanges = 20;
constexpr FileFilter kRunFilters[] = {{"Quellmarch Runs (*.RUN)", ".run"}};

}  // namespace

void MainSession::Command(int id) {
  const int character = game_.characters;
  switch (id) {
    case kNewCharacter:
      Forget();
      return journal_.BeginRun(game_, BeginCharacter);
    case kUndo:
      return Undo();
    case kRedo:
      return Redo();
    case kEdit:
      return Edit();
    case kRecover:
      return Recover();
    case kSaveRun:
      return SaveRun();
    default:
      break;
  }
  journal_.RunBeside(game_, [&] { RunMainCommand(game_, id); });
  if (game_.characters != character) Forget();
}

MainSession::Before MainSession::Present() const {
  return {EncodeCharacter(game_), game_.isFinished, game_.recoveryCopy};
}

void MainSession::BringBack(const Before& before) {
  const auto draft = std::make_unique<CharacterDraft>();
  if (DecodeCharacter(before.Bytes, *draft) != LoadResult::Loaded) return;
  const std::uint32_t dice = game_.dice.RandomState;  // no new luck
  TakeCharacter(game_, *draft);
  game_.dice.RandomState = dice;
  game_.isFinished = before.IsFinished;
  game_.recoveryCopy = before.RecoveryCopy;
  KeepRecoveryCopy(game_);
  UpdateMainTitle(game_, game_.sheet.CharacterName);
}

void MainSession::Edit() {
  Before before = Present();
  if (!RunMainEdit(game_)) return;
  UpdateMainTitle(game_, game_.sheet.CharacterName);
  before.RecoveryCopy = game_.recoveryCopy;
  takenBack_.clear();
  changes_.push_back(std::move(before));
  if (changes_.size() > kMostChanges) changes_.erase(changes_.begin());
}

void MainSession::Undo() {
  if (!changes_.empty()) {
    takenBack_.push_back(Present());
    BringBack(changes_.back());
    changes_.pop_back();
    return game_.platform.ShowMessage("The last change of Edit is taken back.");
  }
  if (!journal_.CanTakeBack()) return game_.platform.ShowMessage("There is nothing to take back.");
  takenBack_.clear();
  journal_.TakeBack();
}

void MainSession::Redo() {
  if (!takenBack_.empty()) {
    changes_.push_back(Present());
    BringBack(takenBack_.back());
    takenBack_.pop_back();
    return game_.platform.ShowMessage("The change of Edit is made again.");
  }
  if (!journal_.CanDoAgain()) return game_.platform.ShowMessage("There is nothing to do again.");
  journal_.DoAgain();
}

void MainSession::Recover() {
  const auto copy = AskRecoveryCopy(game_);
  if (!copy) return;
  if (copy->Kind == CopyKind::Run) {
    PlayFile(copy->Path);
    return DropRun(*copy);  // it goes on in a journal of its own
  }
  const int character = game_.characters;
  TakeChosenCopy(game_, *copy);
  if (game_.characters != character) Forget();
}

void MainSession::PlayFile(const std::string& path) {
  std::string text;
  RunJournal run;
  if (ReadWholeFile(path, text, kLargestJournal) != FileRead::Done || !ReadJournal(text, run)) {
    return game_.platform.ShowMessage("This run can not be played.");
  }
  KeepRecoveryCopy(game_);
  Forget();
  journal_.Resume(game_, std::move(run), BeginCharacter);
}

void MainSession::SaveRun() {
  if (!journal_.HasRun()) return game_.platform.ShowMessage("There is no run to save: New Character begins one.");
  std::string name = FileNamePart(game_.sheet.CharacterName);
  if (!name.empty()) name += kRunFilters[0].Extension;
  const auto path = game_.platform.AskSavePath("Save this run", kRunFilters, name);
  if (!path) return;
  const bool isSaved = SaveWholeFile(*path, JournalText(journal_.Journal()));
  game_.platform.ShowMessage(isSaved ? "The run is saved." : "Problem Saving Run");
}

void MainSession::Forget() {
  journal_.ForgetRun();
  changes_.clear();
  takenBack_.clear();
}

}  // namespace veld
