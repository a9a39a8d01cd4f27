#include "journal/journal_platform.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <utility>

#include "dice/dice.h"
#include "platform/control_names.h"
#include "store/recovery.h"
#include "store/run_note.h"
#include "text/format.h"
#include "text/utf8.h"

namespace veld {

namespace {

using Kind = JournalEntry::Kind;

constexpr int kFinishedStep = 20;  // CurrentStep of a character who is finished

/// Leaves the run, so that it can be played again. Nobody but JournalPlatform throws or catches it.
struct RunUnwound {};

/// Holds a counter up.
class Hold {
 public:
  explicit Hold(int& count) : count_(count) { ++count_; }
  ~Hold() { --count_; }
  Hold(const Hold&) = delete;
  Hold& operator=(const Hold&) = delete;

 private:
  int& count_;
};

/// Appends a line to a file in one piece, and waits for the disk if `isFlushed`. False if it is not there in full.
bool AppendToFile(const std::string& path, std::string_view line, bool isFlushed) {
  const int file = open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
  if (file < 0) return false;
  const std::string whole = std::string(line) + '\n';
  const bool isWritten = write(file, whole.data(), whole.size()) == static_cast<ssize_t>(whole.size());
  if (isFlushed) fdatasync(file);
  return close(file) == 0 && isWritten;
}

/// The row of this text, `before` rows of the same text further on; -1 if there is none.
int RowOf(const std::vector<std::string>& items, std::string_view text, int before) {
  for (std::size_t row = 0; row < items.size(); ++row) {
    if (items[row] == text && before-- <= 0) return static_cast<int>(row);
  }
  return -1;
}

/// The dice and the rule switches as a journal keeps them.
std::string StateText(const Game& game) {
  std::string text = Format("%u", game.dice.RandomState);
  for (const int on : game.RuleSwitches) text += Format(" %i", on);
  return text;
}

/// Puts them back; what a journal of another version does not have stays as it is.
void PutState(Game& game, std::string_view text) {
  const auto take = [&](auto& number) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return error == std::errc();
  };
  if (!take(game.dice.RandomState)) return;
  for (int& on : game.RuleSwitches) {
    if (!take(on)) return;
  }
}

std::string ButtonText(const Form& form, int id) {
  for (const Control& control : form.Controls()) {
    if (control.Template.Id == id) return WithoutMnemonic(control.Text);
  }
  return {};
}

}  // namespace

// ---- The run -------------------------------------------------------------------------------------------------------

void JournalPlatform::BeginRun(Game& game, std::function<void(Game&)> begin) {
  ForgetRun();
  game_ = &game;
  begin_ = std::move(begin);
  journal_ = {.Clock = front_.Now(), .Switches = game.RuleSwitches};
  KeepWhole();
  InRun([this] { StartOver(); });
}

void JournalPlatform::Resume(Game& game, RunJournal journal, std::function<void(Game&)> begin) {
  ForgetRun();
  game_ = &game;
  begin_ = std::move(begin);
  journal_ = std::move(journal);
  KeepWhole();
  InRun([this] { PlayRun(); });
}

void JournalPlatform::ForgetRun() {
  WritePending();
  if (window_) window_->SetActs(nullptr);
  window_.reset();
  game_ = nullptr;
  journal_ = {};
  path_.clear();
  note_.clear();
  hasToldOfFile_ = false;
}

void JournalPlatform::RunBeside(Game& game, const std::function<void()>& act) {
  const std::string before = StateText(game);
  act();
  const bool isRunOpen = game_ && depth_ == 0 && window_ && !window_->IsClosed();
  if (!isRunOpen || StateText(game) == before) return;
  journal_.TakenBack.clear();  // it met other dice
  Record({.What = Kind::State, .Text = StateText(game)});
}

/// Runs a procedure of the run. When Undo leaves the run from within, it is played again from here.
void JournalPlatform::InRun(const std::function<void()>& act) {
  if (depth_ > 0) return act();
  const Hold hold(depth_);
  try {
    act();
  } catch (const RunUnwound&) {
    PlayAgain();
  }
  WriteNote();
  if (game_ && game_->run.CurrentStep == kFinishedStep) WriteLine(kRunEnd);
}

void JournalPlatform::PlayAgain() {
  while (true) {
    try {
      return PlayRun();
    } catch (const RunUnwound&) {
      // An Undo in the run that was played again.
    }
  }
}

/// The first dice and the window of Step 3, by the journal's clock.
void JournalPlatform::StartOver() {
  isUnwinding_ = false;
  if (window_ && !window_->IsClosed()) window_->Close();
  isBegun_ = true;
  begin_(*game_);
  isBegun_ = false;
}

/// Plays the journal from the start to its end, unseen, and hands over.
void JournalPlatform::PlayRun() {
  isReplaying_ = true;
  isMisfit_ = false;
  next_ = 0;
  live_.clear();
  // What the character in memory is kept as stays his.
  const std::string copy = game_->recoveryCopy;
  game_->RuleSwitches = journal_.Switches;
  StartOver();
  game_->recoveryCopy = copy;
  if (window_) PlayForm(*window_);
  if (isReplaying_) GoLive();
  if (window_ && !window_->IsClosed()) {
    window_->SetActs(this);
    BeginWhereTakenBack(*window_);
    front_.ShowWindow(window_);
  }
}

/// What was taken back has the focus again; but not the button that left the page, for Enter would leave it once more.
void JournalPlatform::BeginWhereTakenBack(Form& form) {
  const int id = std::exchange(takenBackAt_, 0);
  const auto control = std::ranges::find(form.Controls(), id, [](const Control& c) { return c.Template.Id; });
  if (control != form.Controls().end() && !IsCancel(control->Template.Role)) form.BeginAt(id);
}

void JournalPlatform::GoLive() {
  journal_.Entries.resize(std::min(next_, journal_.Entries.size()));
  isReplaying_ = false;
  if (!title_.empty()) front_.SetMainTitle(std::exchange(title_, {}));
  if (onChanged) onChanged(*game_);
  if (!std::exchange(isMisfit_, false)) return;
  journal_.TakenBack.clear();
  KeepWhole();
  front_.ShowMessage(
      Format("This run could be played up to Step %i. What came after it was played with another "
             "version of the program or with other files: go on from here.",
             game_->run.CurrentStep));
}

/// The journal does not fit any more.
void JournalPlatform::BreakOff() {
  isMisfit_ = true;
  GoLive();
}

// ---- Playing -------------------------------------------------------------------------------------------------------

bool JournalPlatform::TakeEntry(Kind kind, JournalEntry& entry) {
  if (next_ == journal_.Entries.size() || journal_.Entries[next_].What != kind) return false;
  entry = journal_.Entries[next_++];
  return true;
}

/// A form opens as the journal says. Otherwise it opens before the player.
bool JournalPlatform::OpenByJournal(Form& form) {
  JournalEntry entry;
  if (next_ == journal_.Entries.size()) {
    GoLive();
    return false;
  }
  if (!TakeEntry(Kind::Form, entry) || entry.Text != form.Name()) {
    if (!entry.Text.empty()) --next_;
    BreakOff();
    return false;
  }
  return true;
}

/// Plays what the journal has for a form, until that closes or the player has the run before him.
void JournalPlatform::PlayForm(Form& form) {
  form.Open();
  while (isReplaying_ && !form.IsClosed()) {
    if (next_ == journal_.Entries.size()) return GoLive();
    if (!PlayEntry(form)) return BreakOff();
  }
}

/// Plays the next entry. False if the form does not take it: the entry then is the next still.
bool JournalPlatform::PlayEntry(Form& form) {
  const std::size_t place = next_;
  const JournalEntry entry = journal_.Entries[next_++];
  const auto play = [&] {
    switch (entry.What) {
      case Kind::Press:
        return form.Press(entry.Id);
      case Kind::Choose:
        return form.Choose(entry.Id, RowOf(form.Items(entry.Id), entry.Text, entry.Place));
      case Kind::Type:
        return form.Type(entry.Id, entry.Text);
      case Kind::Mark:
        return form.Mark(entry.Id, entry.Place == 1);
      case Kind::MenuItem:
        return form.ChooseMenuItem(entry.Id);
      case Kind::CloseBox:
        form.Close();
        return true;
      case Kind::State:
        if (&form != window_.get()) return false;
        PutState(*game_, entry.Text);
        return true;
      case Kind::Form:
      case Kind::Path:
      case Kind::NoPath:
        break;
    }
    return false;
  };
  if (play()) return true;
  if (isReplaying_) next_ = place;
  return !isReplaying_;
}

void JournalPlatform::RunForm(Form& form) {
  if (depth_ == 0) return front_.RunForm(form);
  if (!isReplaying_) {
    Record({.What = Kind::Form, .Text = std::string(form.Name())});
  } else if (OpenByJournal(form)) {
    PlayForm(form);
    if (form.IsClosed()) return;
  } else {
    Record({.What = Kind::Form, .Text = std::string(form.Name())});
  }
  RunLive(form);
}

/// The front end runs a form. If Undo was asked for in it or in one above it, the run is left.
void JournalPlatform::RunLive(Form& form) {
  class Watch {
   public:
    Watch(JournalPlatform& journal, Form& watched) : journal_(journal), form_(watched) {
      journal_.live_.push_back(&form_);
      form_.SetActs(&journal_);
    }
    ~Watch() {
      form_.SetActs(nullptr);
      if (!journal_.live_.empty()) journal_.live_.pop_back();
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

   private:
    JournalPlatform& journal_;
    Form& form_;
  };
  {
    const Watch watch(*this, form);
    WriteNote();
    BeginWhereTakenBack(form);
    front_.RunForm(form);
  }
  if (isUnwinding_) throw RunUnwound();
}

void JournalPlatform::ShowWindow(std::shared_ptr<Form> form) {
  if (depth_ == 0) return front_.ShowWindow(std::move(form));
  window_ = std::move(form);
  // Its handlers run the rest of the run.
  window_->onCommand = [this, command = window_->onCommand](int id) {
    InRun([&] {
      if (command) command(id);
    });
  };
  const bool isPlayed = isReplaying_;
  if (isPlayed && OpenByJournal(*window_)) return;
  Record({.What = Kind::Form, .Text = std::string(window_->Name())});
  if (isPlayed) return;  // PlayRun shows it
  window_->SetActs(this);
  front_.ShowWindow(window_);
}

// ---- Undo ----------------------------------------------------------------------------------------------------------

bool JournalPlatform::CanTakeBack() const {
  return game_ && !isReplaying_ && !isUnwinding_ && journal_.HasAct();
}

bool JournalPlatform::CanDoAgain() const {
  return game_ && !isReplaying_ && !isUnwinding_ && !journal_.TakenBack.empty();
}

void JournalPlatform::TakeBack() {
  if (!CanTakeBack()) return;
  WritePending();
  journal_.TakeBack();
  takenBackAt_ = std::ranges::find_if(journal_.TakenBack.back(), CountsAsAct)->Id;
  WriteLine(kTakenBackLine);
  LogDiceLine(*game_, "Taken back.");
  isUnwinding_ = true;
  if (!live_.empty()) return live_.back()->Close();  // RunLive leaves the run
  InRun([this] { PlayAgain(); });
}

void JournalPlatform::DoAgain() {
  if (!CanDoAgain()) return;
  WritePending();
  journal_.DoAgain();
  takenBackAt_ = 0;
  WriteLine(kDoneAgainLine);
  isUnwinding_ = true;
  if (!live_.empty()) return live_.back()->Close();
  InRun([this] { PlayAgain(); });
}

// ---- Keeping -------------------------------------------------------------------------------------------------------

void JournalPlatform::OnAct(const Form& form, const FormAct& act) {
  if (isReplaying_ || isUnwinding_ || front_.IsLost()) return;
  switch (act.What) {
    case FormAct::Kind::Press:
      return Record({.What = Kind::Press, .Id = act.Id, .Text = ButtonText(form, act.Id)});
    case FormAct::Kind::Choose:
      return Record({.What = Kind::Choose, .Id = act.Id, .Place = act.Place, .Text = std::string(act.Text)});
    case FormAct::Kind::Type:
      return Record({.What = Kind::Type, .Id = act.Id, .Text = std::string(act.Text)});
    case FormAct::Kind::Mark:
      return Record({.What = Kind::Mark, .Id = act.Id, .Place = act.Place});
    case FormAct::Kind::MenuItem:
      return Record({.What = Kind::MenuItem, .Id = act.Id});
    case FormAct::Kind::CloseBox:
      return Record({.What = Kind::CloseBox});
  }
}

void JournalPlatform::OnCarriedOut() {
  if (game_ && !isReplaying_ && !isUnwinding_ && !front_.IsLost() && onChanged) onChanged(*game_);
}

/// A text that is being typed is one entry. The line of a long one is written when something else is done, so that the
/// file does not hold it once for each letter.
void JournalPlatform::Record(JournalEntry entry) {
  constexpr std::size_t kShort = 100;
  if (CountsAsAct(entry)) journal_.TakenBack.clear();
  if (!journal_.GoesOnTyping(entry)) WritePending();
  isLineDue_ = entry.What == Kind::Type && entry.Text.size() > kShort;
  journal_.Add(std::move(entry));
  if (!isLineDue_) WriteLine(JournalLine(journal_.Entries.back()));
}

void JournalPlatform::WritePending() {
  if (std::exchange(isLineDue_, false)) WriteLine(JournalLine(journal_.Entries.back()));
}

/// Begins a file with all that the journal holds.
void JournalPlatform::KeepWhole() {
  path_ = NewRunPath(*game_);
  note_.clear();
  std::string text = JournalText(journal_);
  text.pop_back();  // the last line's end, which WriteLine writes
  WriteLine(text);
}

/// A file that can't be written costs the resume and nothing else. Against a power cut the disk is waited for once a
/// second: at the pace of a hand that is each act, and quick ones don't wait.
void JournalPlatform::WriteLine(std::string_view line) {
  if (path_.empty()) return;
  const std::int64_t now = front_.Now();
  const bool isFlushed = std::exchange(flushedAt_, now) != now;
  if (AppendToFile(path_, line, isFlushed)) return;
  path_.clear();
  if (std::exchange(hasToldOfFile_, true)) return;
  front_.ShowMessage("This run can't be kept on the disk: should the program end, it can't be taken up again.");
}

/// Tells the file how far the run is, for the list of runs to take up.
void JournalPlatform::WriteNote() {
  if (!game_ || isReplaying_) return;
  const CharacterSheet& sheet = game_->sheet;
  const std::string name = sheet.CharacterName == "name" ? "A character" : DisplayText(sheet.CharacterName);
  const bool hasClass = sheet.ClassName != "Please Pick";
  const std::string& page = live_.empty() ? window_ ? window_->Title() : std::string() : live_.front()->Title();
  std::string note = Format("%s%s, %s%s%s, %s", kRunNote, name, DisplayText(sheet.RaceName), hasClass ? ", " : "",
                            hasClass ? DisplayText(sheet.ClassName) : "", page);
  std::ranges::replace(note, '\n', ' ');
  if (note == note_) return;
  WritePending();
  note_ = note;
  WriteLine(note_);
}

// ---- The rest of the port ------------------------------------------------------------------------------------------

void JournalPlatform::SetMainTitle(std::string_view title) {
  if (isReplaying_) {
    title_ = title;
  } else {
    front_.SetMainTitle(title);
  }
}

void JournalPlatform::BeginProgress(std::string_view caption, std::string_view text) {
  if (!isReplaying_) front_.BeginProgress(caption, text);
}

bool JournalPlatform::ShowProgress(int percent) {
  return isReplaying_ || front_.ShowProgress(percent);
}

void JournalPlatform::EndProgress() {
  if (!isReplaying_) front_.EndProgress();
}

std::int64_t JournalPlatform::Now() const {
  return isBegun_ ? journal_.Clock : front_.Now();
}

/// A question of a run is a form like any other, which can be taken back.
Answer JournalPlatform::DoAskYesNo(const std::string& caption, const std::string& text) {
  return depth_ == 0 ? front_.AskYesNo(caption, text) : Platform::DoAskYesNo(caption, text);
}

/// What was told is not told again: the player has seen it.
void JournalPlatform::DoShowMessage(const std::string& caption, const std::string& text) {
  if (!isReplaying_) front_.ShowMessage(text, caption);
}

std::optional<std::string> JournalPlatform::AskPath(const std::function<std::optional<std::string>()>& ask) {
  if (depth_ == 0) return ask();
  if (isReplaying_) {
    JournalEntry entry;
    if (TakeEntry(Kind::Path, entry)) return entry.Text;
    if (TakeEntry(Kind::NoPath, entry)) return std::nullopt;
    if (next_ == journal_.Entries.size()) {
      GoLive();
    } else {
      BreakOff();
    }
  }
  auto path = ask();
  if (!front_.IsLost()) Record({.What = path ? Kind::Path : Kind::NoPath, .Text = path.value_or("")});
  return path;
}

std::optional<std::string> JournalPlatform::DoAskOpenPath(const std::string& caption,
                                                          std::span<const FileFilter> filters) {
  return AskPath([&] { return front_.AskOpenPath(caption, filters); });
}

std::optional<ChosenPath> JournalPlatform::DoAskSavePath(const std::string& caption,
                                                         std::span<const FileFilter> filters,
                                                         const std::string& suggestedName) {
  const auto path = AskPath([&] { return front_.AskSavePath(caption, filters, suggestedName); });
  if (!path) return std::nullopt;
  return ChosenPath{*path, 0};
}

}  // namespace veld
