#include "terminal/terminal_platform.h"

#include <algorithm>
#include <utility>

#include "platform/control_names.h"
#include "platform/main_window.h"
#include "platform/progress_form.h"
#include "platform/wrap_text.h"
#include "terminal/cells.h"
#include "terminal/menu_popup.h"
#include "terminal/path_form.h"
#include "text/utf8.h"

namespace veld {

namespace {

constexpr int kMostCloseBoxes = 3;     // presses after which a form that stays open is closed
constexpr int kMostLeftForms = 10000;  // forms left after the end before their run is broken off
constexpr int kPageMargin = 2;         // cells left and right of the main window's page
constexpr int kLabelGap = 2;           // from the longest label to the values

/// The key as menus name it; empty if it is none of theirs.
std::string ShortcutOf(const Key& key) {
  switch (key.Kind) {
    case KeyKind::Help:
      return "F1";
    case KeyKind::TakeBack:
      return "Ctrl+Z";
    case KeyKind::DoAgain:
      return "Ctrl+Shift+Z";
    case KeyKind::Shortcut:
      return {'C', 't', 'r', 'l', '+', static_cast<char>(key.Character - U'a' + U'A')};
    default:
      return {};
  }
}

/// Ends a run that goes on opening forms after the terminal was lost.
struct RunBrokenOff {};

}  // namespace

/// What is behind the dialogs: the menu bar, the title, and the page of the main window.
class TerminalPlatform::Desk : public Layer {
 public:
  explicit Desk(Screen& screen) : screen_(screen) {}

  void Draw(bool isActive) override;
  int MenuX(std::size_t menu) const;
  void ShowPage(const std::vector<PageLine>& page);
  bool HasPage() const { return !page_.empty(); }
  void Scroll(KeyKind key);  ///< by a key that scrolls

  std::string Title;
  std::vector<MenuItem> Menu;
  int OpenMenu = -1;

 private:
  /// A line of the page as it stands on the screen.
  struct Row {
    std::string Label;
    std::string Text;
    int X;
    Ink Look;
  };

  int Room() const { return std::max(screen_.Rows() - 2, 1); }  // the menu bar is above it, the line of keys below
  int LastFirst() const { return std::max(static_cast<int>(rows_.size()) - Room(), 0); }
  void BreakLines();
  void DrawPage();

  Screen& screen_;
  std::vector<PageLine> page_;
  std::vector<Row> rows_;
  int columns_ = 0;  ///< which the page was broken for
  int first_ = 0;    ///< row shown at the top
};

struct TerminalPlatform::Progress : ProgressForm {
  Progress(Screen& screen, std::string_view caption, std::string_view text)
      : ProgressForm(caption, text), page(form, screen, FormScreen::Place::Dialog), onTop(screen, page) {}

  FormScreen page;
  OnTop onTop;
};

int TerminalPlatform::Desk::MenuX(std::size_t menu) const {
  int x = 1;
  for (std::size_t i = 0; i < menu; ++i) x += CellsOf(WithoutMnemonic(Menu[i].Text)) + 2;
  return x;
}

void TerminalPlatform::Desk::Draw(bool isActive) {
  const int columns = screen_.Columns();
  screen_.Put(0, 0, {}, columns, Ink::Bar);
  for (std::size_t i = 0; i < Menu.size(); ++i) {
    const Ink ink = static_cast<int>(i) == OpenMenu ? Ink::BarFocus : Ink::Bar;
    const int width = CellsOf(WithoutMnemonic(Menu[i].Text));
    screen_.Put(0, MenuX(i) - 1, {}, width + 2, ink);
    screen_.PutMarked(0, MenuX(i), Menu[i].Text, width, ink);
  }
  const int menuEnd = MenuX(Menu.size()) + 1;
  const int room = std::max(columns - menuEnd - 1, 0);
  // Of a title that is too long the last words are shown: the character's name.
  std::string_view shown = Title;
  while (CellsOf(shown) > room && shown.find(' ') != std::string_view::npos) shown.remove_prefix(shown.find(' ') + 1);
  const int width = std::min(CellsOf(shown), room);
  screen_.Put(0, columns - 1 - width, shown, width, Ink::Bar);
  screen_.SetCursor(0, OpenMenu >= 0 ? MenuX(static_cast<std::size_t>(OpenMenu)) : 1);
  DrawPage();
  if (!isActive) return;
  const std::string_view scroll = LastFirst() > 0 ? "Up/Down PgUp/PgDn scroll  " : "";
  screen_.ShowKeys(std::string(scroll) + "F1 Help  F10 menu  Alt+underlined letter that menu");
}

void TerminalPlatform::Desk::ShowPage(const std::vector<PageLine>& page) {
  if (page.empty() || page_.empty() || page.front() != page_.front()) first_ = 0;
  page_ = page;
  columns_ = 0;
}

void TerminalPlatform::Desk::Scroll(KeyKind key) {
  const int step = key == KeyKind::Up         ? -1
                   : key == KeyKind::Down     ? 1
                   : key == KeyKind::PageUp   ? 1 - Room()
                   : key == KeyKind::PageDown ? Room() - 1
                   : key == KeyKind::Home     ? -LastFirst()
                   : key == KeyKind::End      ? LastFirst()
                                              : 0;
  first_ = std::clamp(first_ + step, 0, LastFirst());
}

void TerminalPlatform::Desk::BreakLines() {
  using Kind = PageLine::Kind;
  columns_ = screen_.Columns();
  rows_.clear();
  int labels = 0;
  for (const PageLine& line : page_) labels = std::max(labels, CellsOf(line.Label) + kLabelGap);
  for (const PageLine& line : page_) {
    if (line.What == Kind::Heading || (line.What == Kind::Text && rows_.size() == 1)) rows_.push_back({});
    const int x = kPageMargin + (line.What == Kind::Fact ? labels : 0);
    const bool isBold = line.What == Kind::Title || line.What == Kind::Heading;
    std::string label = line.Label;
    const auto width = [](std::string_view text) { return CellsOf(text); };
    for (std::string& text : WrapText(line.Value, std::max(columns_ - x - kPageMargin, 1), width)) {
      rows_.push_back({std::exchange(label, {}), std::move(text), x, isBold ? Ink::DeskBold : Ink::Desk});
    }
  }
}

void TerminalPlatform::Desk::DrawPage() {
  if (columns_ != screen_.Columns()) BreakLines();
  first_ = std::min(first_, LastFirst());
  for (int y = 0; y < Room() && first_ + y < static_cast<int>(rows_.size()); ++y) {
    const Row& row = rows_[static_cast<std::size_t>(first_ + y)];
    screen_.Put(y + 1, kPageMargin, row.Label, CellsOf(row.Label), Ink::Desk);
    screen_.Put(y + 1, row.X, row.Text, CellsOf(row.Text), row.Look);
  }
  if (LastFirst() > 0) screen_.ScrollBar(1, columns_ - 1, Room(), first_, static_cast<int>(rows_.size()), Ink::Desk);
}

TerminalPlatform::TerminalPlatform(Screen& screen) : screen_(screen), desk_(std::make_unique<Desk>(screen)) {
  screen_.Push(*desk_);
}

TerminalPlatform::~TerminalPlatform() {
  screen_.Remove(*desk_);
}

bool TerminalPlatform::CopyText(std::string_view text) {
  return screen_.SendToClipboard(text);
}

// --- Forms ---------------------------------------------------------------------------------------------------------

void TerminalPlatform::RunForm(Form& form) {
  RunPage(form, {});
}

void TerminalPlatform::RunPage(Form& form, const std::function<bool()>& onTab) {
  FormScreen page(form, screen_, FormScreen::Place::Dialog);
  page.onTab = onTab;
  form.Open();
  if (form.IsClosed()) return;
  if (!screen_.IsLost()) {
    page.FocusFirst();
    const OnTop onTop(screen_, page);
    while (!form.IsClosed() && !screen_.IsLost()) page.HandleKey(screen_.ReadKey());
  }
  if (!form.IsClosed()) LeaveForm(form);
}

/// Leaves a form that no player can leave any more.
void TerminalPlatform::LeaveForm(Form& form) {
  if (++leftForms_ > kMostLeftForms) throw RunBrokenOff();
  for (int tries = 0; tries < kMostCloseBoxes && !form.IsClosed(); ++tries) form.PressCloseBox();
  form.Close();
}

void TerminalPlatform::ShowWindow(std::shared_ptr<Form> form) {
  std::string letters;
  for (const MenuItem& menu : desk_->Menu) letters += static_cast<char>(MarkedLetterOf(menu.Text));
  auto page = std::make_unique<FormScreen>(*form, screen_, FormScreen::Place::Window, letters);
  FormScreen& shown = beside_.Add(form, std::move(page));
  form->Open();
  shown.FocusFirst();
  screen_.Push(shown);
}

// --- The main window -----------------------------------------------------------------------------------------------

void TerminalPlatform::SetMainTitle(std::string_view title) {
  desk_->Title = DisplayText(title);
}

void TerminalPlatform::ShowPage(const std::vector<PageLine>& page) {
  desk_->ShowPage(page);
}

void TerminalPlatform::RunMainWindow(const MainWindow& window) {
  if (desk_->Title.empty()) desk_->Title = window.Title;
  if (!desk_->HasPage()) desk_->ShowPage(window.Page);
  desk_->Menu = window.Menu;
  try {
    screen_.Paint();
    if (window.onStart) window.onStart();
    while (!isClosed_ && !screen_.IsLost()) {
      beside_.Sweep();  // no handler of theirs can still run
      HandleMainKey(window, screen_.ReadKey());
    }
  } catch (const RunBrokenOff&) {
    // The character is as far as it got.
  }
  beside_.Clear();
}

void TerminalPlatform::HandleMainKey(const MainWindow& window, const Key& key) {
  FormScreen* page = beside_.Top([](const FormScreen& shown) { return !shown.IsOver(); });
  if (key.Kind == KeyKind::MainMenu) return RunMenuBar(window, 0);
  const bool isLetter = key.Kind == KeyKind::Character && (key.IsAlt || !page);
  if (isLetter && !(page && page->HasLetter(key.Character))) {
    for (std::size_t i = 0; i < window.Menu.size(); ++i) {
      if (MarkedLetterOf(window.Menu[i].Text) == LowerLetter(key.Character)) return RunMenuBar(window, i);
    }
  }
  if (page) {
    page->HandleKey(key);
  } else if (key.Kind == KeyKind::Enter) {
    RunMenuBar(window, 0);
  } else if (const std::string shortcut = ShortcutOf(key); !shortcut.empty()) {
    RunShortcut(window, shortcut);
  } else {
    desk_->Scroll(key.Kind);
  }
}

/// Carries out the command that the menu has for a key.
void TerminalPlatform::RunShortcut(const MainWindow& window, std::string_view shortcut) {
  for (const MenuItem& menu : window.Menu) {
    for (const MenuItem& item : menu.Items) {
      if (item.Shortcut == shortcut && item.Enabled && window.onCommand) return window.onCommand(item.Id);
    }
  }
}

void TerminalPlatform::RunMenuBar(const MainWindow& window, std::size_t menu) {
  if (window.Menu.empty()) return;
  const std::size_t count = window.Menu.size();
  MenuChoice choice;
  do {
    if (choice.End == MenuEnd::Left) menu = (menu + count - 1) % count;
    if (choice.End == MenuEnd::Right) menu = (menu + 1) % count;
    desk_->OpenMenu = static_cast<int>(menu);
    choice = RunMenu(screen_, window.Menu[menu].Items, 1, desk_->MenuX(menu) - 1);
  } while (choice.End == MenuEnd::Left || choice.End == MenuEnd::Right);
  desk_->OpenMenu = -1;
  if (choice.End == MenuEnd::Chosen && window.onCommand) window.onCommand(choice.Id);
}

// --- Messages, files, progress -------------------------------------------------------------------------------------

Answer TerminalPlatform::DoAskYesNo(const std::string& caption, const std::string& text) {
  if (screen_.IsLost()) return Answer::Closed;
  return Platform::DoAskYesNo(caption, text);
}

std::optional<std::string> TerminalPlatform::DoAskOpenPath(const std::string& caption,
                                                           std::span<const FileFilter> filters) {
  if (screen_.IsLost()) return std::nullopt;
  const auto run = [this](Form& form, const std::function<bool()>& onTab) { RunPage(form, onTab); };
  const auto chosen = RunPathForm(*this, run, caption, filters, {}, false);
  if (!chosen) return std::nullopt;
  return chosen->Path;
}

std::optional<ChosenPath> TerminalPlatform::DoAskSavePath(const std::string& caption,
                                                          std::span<const FileFilter> filters,
                                                          const std::string& suggestedName) {
  if (screen_.IsLost()) return std::nullopt;
  const auto run = [this](Form& form, const std::function<bool()>& onTab) { RunPage(form, onTab); };
  return RunPathForm(*this, run, caption, filters, suggestedName, true);
}

void TerminalPlatform::BeginProgress(std::string_view caption, std::string_view text) {
  EndProgress();
  progress_ = std::make_unique<Progress>(screen_, caption, text);
  Progress& progress = *progress_;
  progress.form.Open();
  progress.page.FocusFirst();
  screen_.Paint();
}

bool TerminalPlatform::ShowProgress(int percent) {
  if (screen_.IsLost()) return false;
  if (!progress_) return true;
  Progress& progress = *progress_;
  if (progress.IsLookDue()) {
    progress.ShowPercent(percent);
    if (!progress.IsCancelled())
      progress.page.HandleKey(screen_.ReadKey(0));
    else
      screen_.Paint();
    progress.Looked();
  }
  return !progress.IsCancelled();
}

void TerminalPlatform::EndProgress() {
  progress_.reset();
}

}  // namespace veld
