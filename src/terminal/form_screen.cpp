#include "terminal/form_screen.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/control_kinds.h"
#include "platform/control_names.h"
#include "platform/message_form.h"
#include "platform/mnemonics.h"
#include "terminal/cells.h"
#include "terminal/menu_popup.h"
#include "terminal/terminal_page.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kFrame = 1;
constexpr int kSearchPause = 1000;  // milliseconds after which the letters typed in a list begin anew
constexpr int kSidewaysStep = 8;    // cells that an arrow moves a list's rows
constexpr std::string_view kCornerText = "< &Menu >";

// What the line of keys does without when it is too long, the first of them first.
constexpr std::string_view kKnownKeys[] = {"Alt+letter", "PgUp/PgDn scroll", "Space open",
                                           "Tab",        "Up/Down choose",   "F1 Help"};

/// The `line`th of the lines that a control shows.
std::string_view LineAt(const PlacedControl& placed, const Control& control, int line) {
  if (placed.Wrapped.empty()) return line == 0 ? std::string_view(control.Text) : std::string_view{};
  const auto place = static_cast<std::size_t>(line);
  return place < placed.Wrapped.size() ? std::string_view(placed.Wrapped[place]) : std::string_view{};
}

std::int64_t Milliseconds() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

std::string Joined(const std::vector<std::string>& keys) {
  std::string line;
  for (const std::string& key : keys) line += (line.empty() ? "" : "  ") + key;
  return line;
}

int Count(const std::vector<std::string>& lines) {
  return static_cast<int>(lines.size());
}

}  // namespace

FormScreen::FormScreen(Form& form, Screen& screen, Place place, std::string_view lettersOfMainMenu)
    : form_(form), screen_(screen), place_(place), takenLetters_(lettersOfMainMenu), metrics_(TerminalMetrics(form)) {
  if (!form.contextMenu.empty()) takenLetters_ += 'm';
  form_.SetObserver(this);
}

FormScreen::~FormScreen() {
  screen_.Remove(*this);
  form_.SetObserver(nullptr);
}

// --- The page ------------------------------------------------------------------------------------------------------

/// Lays the page out for the room that there is, if either has changed.
void FormScreen::LayOut() {
  const int top = place_ == Place::Window ? 1 : 0;
  const PageSize room = RoomForPage(screen_.Rows(), screen_.Columns(), top);
  if (room != room_) grown_ = {};
  if (isLaidOut_ && room == room_) return;
  room_ = room;
  isLaidOut_ = true;
  const PageSize natural = NaturalPageSize(form_, metrics_, room);
  const int titleWidth = CellsOf(form_.Title()) + 4;
  grown_.Width = std::min(std::max({grown_.Width, natural.Width, titleWidth}), room.Width);
  grown_.Height = std::min(std::max(grown_.Height, natural.Height), room.Height);
  page_ = LayOutPage(form_, metrics_, grown_);
  marked_ = MarkMnemonics(form_, takenLetters_);
  const int width = grown_.Width + 2 * kFrame;
  const int height = grown_.Height + 2 * kFrame;
  frame_ = {(screen_.Columns() - width) / 2, top + (room.Height - grown_.Height) / 2, width, height};
  view_ = {frame_.X + kFrame, frame_.Y + kFrame, grown_.Width, grown_.Height};
}

const PlacedControl* FormScreen::PlacedAt(std::size_t control) const {
  const auto found = std::ranges::find(page_.Controls, control, &PlacedControl::Control);
  return found == page_.Controls.end() ? nullptr : &*found;
}

/// Moves a page that is bigger than its view so that what the keys go to can be seen.
void FormScreen::ScrollToFocus() {
  const int lastX = std::max(page_.Page.Width - view_.Width, 0);
  const int lastY = std::max(page_.Page.Height - view_.Height, 0);
  const PlacedControl* placed = focus_ == Corner() ? nullptr : PlacedAt(focus_);
  if (!isScrolledByHand_ && (placed || focus_ == Corner())) {
    const PageRect area = placed ? placed->Area : page_.Corner;
    scrollY_ = std::min(std::max(scrollY_, area.Bottom() - view_.Height), area.Y);
    scrollX_ = std::min(std::max(scrollX_, area.Right() - view_.Width), std::max(area.X - 1, 0));
  }
  scrollX_ = std::clamp(scrollX_, 0, lastX);
  scrollY_ = std::clamp(scrollY_, 0, lastY);
}

void FormScreen::Draw(bool isActive) {
  if (form_.IsClosed()) return;
  KeepFocus();
  LayOut();
  ScrollToFocus();
  screen_.Frame(frame_, form_.Title(), Ink::Paper);
  if (page_.Page.Height > view_.Height) {
    screen_.ScrollBar(view_.Y, frame_.Right() - 1, view_.Height, scrollY_, page_.Page.Height, Ink::Paper);
  }
  // A page that is too wide follows what the keys go to; its edge says that there is more.
  if (scrollX_ > 0) screen_.Put(frame_.Bottom() - 1, frame_.X + 2, " < more ", 8, Ink::Paper);
  if (scrollX_ + view_.Width < page_.Page.Width) {
    screen_.Put(frame_.Bottom() - 1, frame_.Right() - 10, " more > ", 8, Ink::Paper);
  }
  screen_.SetClip(view_);
  for (const PlacedControl& placed : page_.Controls) DrawControl(placed);
  if (!form_.contextMenu.empty()) DrawCorner();
  screen_.ClearClip();
  if (isActive) {
    ShowFocusLine();
    screen_.ShowKeys(KeysLine());
  }
}

void FormScreen::DrawControl(const PlacedControl& placed) {
  const Control& control = At(placed.Control);
  const bool isFocus = placed.Control == focus_;
  switch (control.Template.Kind) {
    case ControlKind::Title:
    case ControlKind::Heading:
      return DrawLines(placed, Ink::Bold, false);
    case ControlKind::Label:
      return DrawLines(placed, Ink::Paper, false);
    case ControlKind::Result:
      return DrawLines(placed, Ink::Written, false);
    case ControlKind::Text:
      return DrawLines(placed, Ink::Paper, isFocus);
    case ControlKind::Edit:
    case ControlKind::Number:
      return DrawEdit(placed, isFocus);
    case ControlKind::MultiLine:
      return DrawMultiLine(placed, isFocus);
    case ControlKind::Button:
      return DrawButton(placed, isFocus);
    case ControlKind::List:
      return DrawList(placed, isFocus);
    case ControlKind::Combo:
      return DrawCombo(placed, isFocus);
    case ControlKind::Check:
    case ControlKind::Radio:
      return DrawMark(placed, isFocus);
    case ControlKind::Progress:
      return DrawProgress(placed);
  }
}

void FormScreen::DrawLines(const PlacedControl& placed, Ink ink, bool isFocus) {
  const Control& control = At(placed.Control);
  const PageRect& area = placed.Area;
  const int x = ScreenX(area.X);
  const int total = std::max(Count(placed.Wrapped), 1);
  int& first = views_[placed.Control].First;
  first = placed.Scrolls ? std::clamp(first, 0, std::max(total - placed.Lines, 0)) : 0;
  const int width = placed.Scrolls ? area.Width - metrics_.ListPadding : area.Width;
  for (int line = 0; line < placed.Lines; ++line) {
    const int y = ScreenY(area.Y + line);
    if (control.Template.Kind == ControlKind::Label && placed.Wrapped.empty()) {
      screen_.PutMarked(y, x, marked_[placed.Control], width, control.Enabled ? ink : Ink::Faint);
    } else {
      screen_.Put(y, x, LineAt(placed, control, first + line), width, ink, 0, true);
    }
  }
  if (placed.Scrolls) {
    screen_.ScrollBar(ScreenY(area.Y), ScreenX(area.Right() - 1), placed.Lines, first, total,
                      isFocus ? Ink::Focus : Ink::Paper);
  }
  if (isFocus) screen_.SetCursor(ScreenY(area.Y), x);
}

void FormScreen::DrawEdit(const PlacedControl& placed, bool isFocus) {
  const Control& control = At(placed.Control);
  View& view = views_[placed.Control];
  view.Cursor = std::min(view.Cursor, control.Text.size());
  const int x = ScreenX(placed.Area.X);
  const int y = ScreenY(placed.Area.Y);
  const int width = std::max(placed.Area.Width - metrics_.EditPadding, 1);
  const int cursor = CellsOf(std::string_view(control.Text).substr(0, view.Cursor));
  view.Left = std::clamp(view.Left, std::max(cursor - width + 1, 0), cursor);
  const Ink edge = control.Enabled ? Ink::Paper : Ink::Faint;
  const bool isMarked = isFocus && view.IsChosen && !control.Text.empty();
  screen_.Put(y, x, "[", 1, isFocus ? Ink::Focus : edge);
  screen_.Put(y, x + 1, control.Text, width, control.Enabled ? Ink::Written : Ink::Faint, view.Left);
  const int used = std::clamp(CellsOf(control.Text) - view.Left, 0, width);
  if (isMarked) screen_.Put(y, x + 1, control.Text, used, Ink::Focus, view.Left);
  if (used < width)
    screen_.Put(y, x + 1 + used, std::string(static_cast<std::size_t>(width - used), '_'), width - used, edge);
  screen_.Put(y, x + 1 + width, "]", 1, isFocus ? Ink::Focus : edge);
  if (isFocus) screen_.SetCursor(y, x + 1 + cursor - view.Left);
}

void FormScreen::DrawMultiLine(const PlacedControl& placed, bool isFocus) {
  const Control& control = At(placed.Control);
  View& view = views_[placed.Control];
  view.Cursor = std::min(view.Cursor, control.Text.size());
  const PageRect& area = placed.Area;
  const int width = std::max(area.Width - metrics_.ListPadding, 1);
  const std::vector<TextLine> lines = BreakIntoLines(control.Text, width);
  const int cursorLine = static_cast<int>(LineOf(lines, view.Cursor));
  view.First = std::clamp(view.First, cursorLine - std::max(placed.Lines, 1) + 1, cursorLine);
  const int total = static_cast<int>(lines.size());
  const int x = ScreenX(area.X);
  for (int line = 0; line < placed.Lines; ++line) {
    const int place = view.First + line;
    std::string_view text;
    if (place < total) {
      const TextLine& shown = lines[static_cast<std::size_t>(place)];
      text = std::string_view(control.Text).substr(shown.Begin, shown.End - shown.Begin);
    }
    screen_.Put(ScreenY(area.Y + line), x + 1, text, width, control.Enabled ? Ink::Written : Ink::Faint);
  }
  screen_.VerticalLine(ScreenY(area.Y), x, placed.Lines, isFocus ? Ink::Focus : Ink::Paper);
  screen_.ScrollBar(ScreenY(area.Y), ScreenX(area.Right() - 1), placed.Lines, view.First, total, Ink::Paper);
  if (!isFocus) return;
  const std::size_t begin = lines[static_cast<std::size_t>(cursorLine)].Begin;
  const int cell = CellsOf(std::string_view(control.Text).substr(begin, view.Cursor - begin));
  screen_.SetCursor(ScreenY(area.Y + cursorLine - view.First), x + 1 + std::min(cell, width - 1));
}

void FormScreen::DrawList(const PlacedControl& placed, bool isFocus) {
  const Control& control = At(placed.Control);
  View& view = views_[placed.Control];
  const int total = Count(control.Items);
  view.Row = std::clamp(control.Selection >= 0 ? control.Selection : view.Row, 0, std::max(total - 1, 0));
  const int lines = std::max(placed.Lines, 1);
  const bool isHeld = isFocus || control.Selection >= 0;
  if (isHeld) view.First = std::clamp(view.First, view.Row - lines + 1, view.Row);
  view.First = std::clamp(view.First, 0, std::max(total - lines, 0));
  const PageRect& area = placed.Area;
  const int x = ScreenX(area.X);
  const int width = area.Width - metrics_.ListPadding;
  screen_.VerticalLine(ScreenY(area.Y), x, lines, isFocus ? Ink::Focus : Ink::Paper);
  screen_.ScrollBar(ScreenY(area.Y), ScreenX(area.Right() - 1), lines, view.First, total, Ink::Paper);
  for (int line = 0; line < lines; ++line) {
    const int row = view.First + line;
    const int y = ScreenY(area.Y + line);
    const std::string_view text = row < total ? std::string_view(control.Items[static_cast<std::size_t>(row)]) : "";
    const bool isChosen = row < total && row == control.Selection;
    Ink ink = control.Enabled ? Ink::Paper : Ink::Faint;
    if (isChosen) ink = isFocus ? Ink::Focus : Ink::Chosen;
    screen_.Put(y, x + 1, text, width, ink, view.Left, true);
    if (isChosen) screen_.Put(y, x, ">", 1, isFocus ? Ink::Focus : Ink::Bold);
    if (isFocus && row == view.Row) screen_.SetCursor(y, x + (isChosen ? 0 : 1));
    if (isFocus && row == view.Row && !isChosen) screen_.Put(y, x, "-", 1, Ink::Focus);
  }
  if (isFocus && total == 0) screen_.SetCursor(ScreenY(area.Y), x + 1);
}

void FormScreen::DrawCombo(const PlacedControl& placed, bool isFocus) {
  const Control& control = At(placed.Control);
  const bool hasRow = control.Selection >= 0;
  const std::string_view text =
      hasRow ? std::string_view(control.Items[static_cast<std::size_t>(control.Selection)]) : "";
  const int x = ScreenX(placed.Area.X);
  const int y = ScreenY(placed.Area.Y);
  const int width = placed.Area.Width - metrics_.ComboPadding;
  const Ink ink = isFocus ? Ink::Focus : control.Enabled ? Ink::Written : Ink::Faint;
  const Ink edge = control.Enabled ? Ink::Paper : Ink::Faint;
  screen_.Put(y, x, "[", 1, isFocus ? Ink::Focus : edge);
  screen_.Put(y, x + 1, text, width, ink, 0, true);
  screen_.Put(y, x + 1 + width, " v]", 3, isFocus ? Ink::Focus : edge);
  if (isFocus) screen_.SetCursor(y, x + 1);
}

void FormScreen::DrawButton(const PlacedControl& placed, bool isFocus) {
  const Control& control = At(placed.Control);
  const int x = ScreenX(placed.Area.X);
  const int y = ScreenY(placed.Area.Y);
  const int width = placed.Area.Width;
  const Ink ink = isFocus                            ? Ink::Focus
                  : !control.Enabled                 ? Ink::Faint
                  : IsDefault(control.Template.Role) ? Ink::Bold
                                                     : Ink::Paper;
  const int textWidth = std::min(CellsOf(WithoutMnemonic(control.Text)), std::max(width - 4, 0));
  screen_.Put(y, x, "<", width, ink);
  screen_.Put(y, x + width - 1, ">", 1, ink);
  const int textX = x + (width - textWidth) / 2;
  // What can not be pressed stands in brackets of another shape, for terminals without colours.
  if (!control.Enabled) {
    screen_.Put(y, x, "(", 1, ink);
    screen_.Put(y, x + width - 1, ")", 1, ink);
  }
  screen_.PutMarked(y, textX, control.Enabled ? marked_[placed.Control] : control.Text, textWidth, ink);
  if (isFocus) screen_.SetCursor(y, textX);
}

void FormScreen::DrawMark(const PlacedControl& placed, bool isFocus) {
  const Control& control = At(placed.Control);
  const int x = ScreenX(placed.Area.X);
  const int y = ScreenY(placed.Area.Y);
  const bool isCheck = control.Template.Kind == ControlKind::Check;
  const std::string_view box = isCheck ? (control.Checked ? "[x]" : "[ ]") : (control.Checked ? "(*)" : "( )");
  const Ink ink = !control.Enabled ? Ink::Faint : isFocus ? Ink::Focus : Ink::Paper;
  screen_.Put(y, x, box, 3, ink);
  const int width = std::min(placed.Area.Width - metrics_.MarkWidth, CellsOf(WithoutMnemonic(control.Text)));
  screen_.PutMarked(y, x + metrics_.MarkWidth, marked_[placed.Control], width,
                    control.Enabled ? Ink::Paper : Ink::Faint);
  if (isFocus) screen_.SetCursor(y, x + 1);
}

void FormScreen::DrawProgress(const PlacedControl& placed) {
  const int percent = static_cast<int>(std::min<std::int64_t>(ReadEntry(At(placed.Control).Text, 100), 100));
  const int width = placed.Area.Width - 7;  // its edges and " 100%"
  if (width < 1) return;
  const int done = width * percent / 100;
  const std::string bar = "[" + std::string(static_cast<std::size_t>(done), '#') +
                          std::string(static_cast<std::size_t>(width - done), '.') + Format("]%4i%%", percent);
  screen_.Put(ScreenY(placed.Area.Y), ScreenX(placed.Area.X), bar, placed.Area.Width, Ink::Written);
}

void FormScreen::DrawCorner() {
  const bool isFocus = focus_ == Corner();
  const int y = ScreenY(page_.Corner.Y);
  const int x = ScreenX(page_.Corner.X);
  screen_.PutMarked(y, x, kCornerText, metrics_.CornerWidth, isFocus ? Ink::Focus : Ink::Paper);
  if (isFocus) screen_.SetCursor(y, x + 2);
}

/// Tells what the keys go to in the line above that of the keys, and in the lines above it if it is long; at the top of
/// the screen if it would lie over the control itself.
void FormScreen::ShowFocusLine() {
  const std::string text = FocusLine(form_, focus_, focus_ < Corner() ? views_[focus_].Row : 0);
  const PlacedControl* placed = focus_ < Corner() ? PlacedAt(focus_) : nullptr;
  const int bottom = placed ? ScreenY(placed->Area.Bottom()) : 0;
  screen_.ShowText(text, bottom);
}

/// The keys that do something now, as many of them as the line holds.
std::string FormScreen::KeysLine() const {
  const bool isControl = focus_ < form_.Controls().size();
  const ControlKind kind = isControl ? At(focus_).Template.Kind : ControlKind::Button;
  std::vector<std::string> keys;
  const auto add = [&](std::string_view key) { keys.emplace_back(key); };
  if (IsChosenFrom(kind)) add("Up/Down choose");
  if (kind == ControlKind::Combo) add("Space open");
  if (IsMark(kind)) add("Space mark");
  if (kind == ControlKind::Text) add("Up/Down scroll");
  if (page_.Page.Height > view_.Height && kind != ControlKind::List) add("PgUp/PgDn scroll");
  add("Tab");
  add("Alt+letter");
  if (!form_.Help().empty()) add("F1 Help");
  if (form_.CanTakeBack()) add("F2 Undo");
  if (form_.CanDoAgain()) add("F3 Redo");
  const int ofField = isControl ? At(focus_).Template.EnterPresses : 0;
  std::string enterInField;
  std::string enter;
  std::string escape = "close";
  for (const Control& control : form_.Controls()) {
    if (!control.Enabled || !control.Visible || control.Template.Kind != ControlKind::Button) continue;
    if (enter.empty() && IsDefault(control.Template.Role)) enter = WithoutMnemonic(control.Text);
    if (ofField != 0 && control.Template.Id == ofField) enterInField = WithoutMnemonic(control.Text);
    const ButtonRole role = control.Template.Role;
    if (IsCancel(role)) escape = WithoutMnemonic(control.Text);
  }
  if (!enterInField.empty()) enter = enterInField;
  if (kind == ControlKind::MultiLine) enter = "new line";
  if (kind == ControlKind::Button) enter = isControl ? WithoutMnemonic(At(focus_).Text) : "Menu";
  if (!enter.empty()) add("Enter " + enter);
  add("Esc " + escape);
  if (!form_.contextMenu.empty()) add("F9 Menu");
  if (place_ == Place::Window) add("F10 File");
  for (const std::string_view known : kKnownKeys) {
    if (CellsOf(Joined(keys)) < screen_.Columns()) break;
    std::erase(keys, known);
  }
  return Joined(keys);
}

// --- The focus -----------------------------------------------------------------------------------------------------

bool FormScreen::CanFocus(std::size_t control) const {
  if (control == Corner()) return !form_.contextMenu.empty();
  const Control& state = At(control);
  if (!state.Visible) return false;
  const ControlKind kind = state.Template.Kind;
  if (kind == ControlKind::Text) {
    const PlacedControl* placed = PlacedAt(control);
    return placed && placed->Scrolls;
  }
  return state.Enabled && CanBeUsed(kind);
}

/// What can not be used any more loses the focus to the next that can.
void FormScreen::KeepFocus() {
  if (wantedFocus_) TakeFocus(*std::exchange(wantedFocus_, std::nullopt));
  if (!CanFocus(focus_)) MoveFocus(1);
}

void FormScreen::MoveFocus(int step) {
  const std::size_t count = Corner() + 1;
  std::size_t next = focus_;
  for (std::size_t tries = 0; tries < count; ++tries) {
    next = (next + (step > 0 ? 1 : count - 1)) % count;
    if (CanFocus(next)) return TakeFocus(next);
  }
}

/// Up and Down keep to their column where fields stand in a table.
void FormScreen::MoveFocusDown(int rows) {
  const std::size_t next = focus_ < Corner() ? ControlInNextRow(form_, focus_, rows) : Corner();
  if (next < Corner() && CanFocus(next)) return TakeFocus(next);
  MoveFocus(rows);
}

void FormScreen::TakeFocus(std::size_t control) {
  focus_ = control;
  search_.clear();
  if (control >= Corner() || !IsLine(At(control).Template.Kind)) return;
  View& view = views_[control];
  view.IsChosen = !At(control).Template.IsReadOnly;  // a player just types
  view.Cursor = view.IsChosen ? At(control).Text.size() : 0;
}

void FormScreen::OnFocusWanted(std::size_t control) {
  wantedFocus_ = control;
}

void FormScreen::FocusFirst() {
  LayOut();
  if (wantedFocus_) return KeepFocus();
  if (const std::size_t first = form_.FirstFocus(); first < Corner()) TakeFocus(first);
}

// --- Keys ----------------------------------------------------------------------------------------------------------

void FormScreen::HandleKey(const Key& key) {
  if (form_.IsClosed() || key.Kind == KeyKind::None) return;
  KeepFocus();
  LayOut();
  isScrolledByHand_ = false;
  if (key.Kind == KeyKind::Character && key.IsAlt) {
    if (!PressLetter(key.Character)) screen_.Beep();
    return;
  }
  if (HandleControlKey(key)) return;
  switch (key.Kind) {
    case KeyKind::Tab:
      if (!onTab || !onTab()) return MoveFocus(1);
      if (focus_ < Corner()) views_[focus_] = {.Cursor = At(focus_).Text.size()};  // behind what was completed
      return;
    case KeyKind::Up:
      return MoveFocusDown(-1);
    case KeyKind::Down:
      return MoveFocusDown(1);
    case KeyKind::BackTab:
    case KeyKind::Left:
      return MoveFocus(-1);
    case KeyKind::Right:
      return MoveFocus(1);
    case KeyKind::PageUp:
      return ScrollPage(1 - view_.Height);
    case KeyKind::PageDown:
      return ScrollPage(view_.Height - 1);
    case KeyKind::Enter:
      return PressEnter();
    case KeyKind::Escape:
      return form_.PressCloseBox();
    case KeyKind::MainMenu:
    case KeyKind::PageMenu:
      return OpenPageMenu();
    case KeyKind::Help:
      return ShowHelp();
    case KeyKind::TakeBack:
      return form_.CanTakeBack() ? form_.TakeBack() : screen_.Beep();
    case KeyKind::DoAgain:
      return form_.CanDoAgain() ? form_.DoAgain() : screen_.Beep();
    case KeyKind::Character:
      if (!PressLetter(key.Character)) screen_.Beep();
      return;
    case KeyKind::Shortcut:  // of the main window, which is not in front
      return screen_.Beep();
    default:
      return;
  }
}

bool FormScreen::HandleControlKey(const Key& key) {
  if (focus_ == Corner()) {
    if (key.Kind != KeyKind::Character || key.Character != U' ') return false;
    OpenPageMenu();
    return true;
  }
  const Control& control = At(focus_);
  switch (control.Template.Kind) {
    case ControlKind::Edit:
    case ControlKind::Number:
    case ControlKind::MultiLine:
      return HandleFieldKey(key);
    case ControlKind::List:
      return HandleListKey(key);
    case ControlKind::Text:
      return HandleTextKey(key);
    case ControlKind::Combo:
      return HandleComboKey(key);
    default:
      break;
  }
  if (key.Kind != KeyKind::Character || key.Character != U' ') return false;
  if (IsMark(control.Template.Kind)) {
    ToggleMark(focus_);
  } else {
    form_.Press(control.Template.Id);
  }
  return true;
}

/// A field for numbers takes digits and a sign only.
bool FormScreen::IsForeignKey(const Key& key) const {
  if (At(focus_).Template.Kind != ControlKind::Number || key.Kind != KeyKind::Character || key.IsAlt) return false;
  return key.Character > U'9' || (key.Character < U'0' && key.Character != U'-' && key.Character != U'+');
}

bool FormScreen::HandleFieldKey(const Key& key) {
  if (IsForeignKey(key)) {
    screen_.Beep();
    return true;
  }
  const std::size_t field = focus_;
  const ControlTemplate& control = At(field).Template;
  View& view = views_[field];
  TypedText typed{At(field).Text, view.Cursor, view.IsChosen};
  const PlacedControl* placed = PlacedAt(field);
  const int width = placed ? std::max(placed->Area.Width - metrics_.ListPadding, 1) : 1;
  const FieldKey done = control.Kind == ControlKind::MultiLine ? ApplyMultiLineKey(typed, key, control.Limit, width)
                                                               : ApplyFieldKey(typed, key, control.Limit);
  if (done == FieldKey::NotMine) return false;
  if (done == FieldKey::Refused || (control.IsReadOnly && done == FieldKey::Typed)) screen_.Beep();
  if (control.IsReadOnly && done == FieldKey::Typed) return true;
  view.Cursor = typed.Cursor;
  view.IsChosen = typed.IsChosen;
  if (done == FieldKey::Typed) form_.Type(control.Id, typed.Text);
  return true;
}

void FormScreen::ChooseRow(std::size_t control, int row) {
  const int last = Count(At(control).Items) - 1;
  if (last < 0) return;
  const int held = std::clamp(row, 0, last);
  views_[control].Row = held;
  if (held != At(control).Selection) form_.Choose(At(control).Template.Id, held);
}

/// Letters typed quickly one after another look for a row that begins with them.
void FormScreen::SearchRow(std::size_t control, char32_t letter) {
  const std::int64_t now = Milliseconds();
  if (now - searchedAt_ > kSearchPause) search_.clear();
  searchedAt_ = now;
  AppendCharacter(search_, letter);
  const std::vector<std::string>& items = At(control).Items;
  const std::size_t count = items.size();
  const auto begins = [&](std::string_view item, std::string_view with) {
    const std::size_t start = std::min(item.find_first_not_of(' '), item.size());
    return EqualsIgnoringCase(item.substr(start, with.size()), with);
  };
  // A first letter goes on from the row that it finds; more of them keep a row that still fits.
  const std::size_t from = static_cast<std::size_t>(std::max(At(control).Selection, -1) + 1);
  const std::size_t start = search_.size() > 1 && from > 0 ? from - 1 : from;
  for (std::size_t step = 0; step < count; ++step) {
    const std::size_t row = (start + step) % count;
    if (begins(items[row], search_)) return ChooseRow(control, static_cast<int>(row));
  }
  search_.clear();
  screen_.Beep();
}

bool FormScreen::HandleListKey(const Key& key) {
  const Control& control = At(focus_);
  View& view = views_[focus_];
  const PlacedControl* placed = PlacedAt(focus_);
  const int page = placed ? std::max(placed->Lines - 1, 1) : 1;
  const bool hasRow = control.Selection >= 0;
  const auto move = [&](int rows) { ChooseRow(focus_, hasRow ? control.Selection + rows : view.Row); };
  switch (key.Kind) {
    case KeyKind::Up:
      move(-1);
      return true;
    case KeyKind::Down:
      move(1);
      return true;
    case KeyKind::PageUp:
      move(-page);
      return true;
    case KeyKind::PageDown:
      move(page);
      return true;
    case KeyKind::Home:
      ChooseRow(focus_, 0);
      return true;
    case KeyKind::End:
      ChooseRow(focus_, Count(control.Items) - 1);
      return true;
    case KeyKind::Left:
      view.Left = std::max(view.Left - kSidewaysStep, 0);
      return true;
    case KeyKind::Right: {
      int widest = 0;
      for (const std::string& item : control.Items) widest = std::max(widest, CellsOf(item));
      const int width = placed ? placed->Area.Width - metrics_.ListPadding : widest;
      view.Left = std::min(view.Left + kSidewaysStep, std::max(widest - width, 0));
      return true;
    }
    case KeyKind::Character:
      if (key.Character == U' ' && search_.empty()) {
        ChooseRow(focus_, view.Row);
      } else {
        SearchRow(focus_, key.Character);
      }
      return true;
    default:
      return false;
  }
}

bool FormScreen::HandleTextKey(const Key& key) {
  const PlacedControl* placed = PlacedAt(focus_);
  if (!placed) return false;
  int& first = views_[focus_].First;
  const int last = std::max(Count(placed->Wrapped) - placed->Lines, 0);
  const int page = std::max(placed->Lines - 1, 1);
  switch (key.Kind) {
    case KeyKind::Up:
      first = std::max(first - 1, 0);
      return true;
    case KeyKind::Down:
      first = std::min(first + 1, last);
      return true;
    case KeyKind::PageUp:
      first = std::max(first - page, 0);
      return true;
    case KeyKind::PageDown:
      first = std::min(first + page, last);
      return true;
    case KeyKind::Home:
      first = 0;
      return true;
    case KeyKind::End:
      first = last;
      return true;
    default:
      return false;
  }
}

bool FormScreen::HandleComboKey(const Key& key) {
  const Control& control = At(focus_);
  switch (key.Kind) {
    case KeyKind::Up:
      ChooseRow(focus_, control.Selection - 1);
      return true;
    case KeyKind::Down:
      ChooseRow(focus_, control.Selection + 1);
      return true;
    case KeyKind::Home:
      ChooseRow(focus_, 0);
      return true;
    case KeyKind::End:
      ChooseRow(focus_, Count(control.Items) - 1);
      return true;
    case KeyKind::Character:
      if (key.Character == U' ') {
        DropDown(focus_);
      } else {
        SearchRow(focus_, key.Character);
      }
      return true;
    default:
      return false;
  }
}

void FormScreen::DropDown(std::size_t control) {
  const PlacedControl* placed = PlacedAt(control);
  if (!placed || At(control).Items.empty()) return screen_.Beep();
  std::vector<MenuItem> items;
  for (const std::string& text : At(control).Items) {
    MenuItem item{.Id = static_cast<int>(items.size()) + 1, .Text = {}};
    for (const char c : text) item.Text += c == '&' ? "&&" : std::string(1, c);
    if (item.Text.empty()) item.Text = " ";
    items.push_back(std::move(item));
  }
  const MenuChoice choice =
      RunMenu(screen_, items, ScreenY(placed->Area.Y) + 1, ScreenX(placed->Area.X), At(control).Selection);
  if (choice.End == MenuEnd::Chosen) form_.Choose(At(control).Template.Id, choice.Id - 1);
}

void FormScreen::ToggleMark(std::size_t control) {
  form_.Mark(At(control).Template.Id, !At(control).Checked);
}

void FormScreen::PressEnter() {
  if (focus_ == Corner()) return OpenPageMenu();
  if (At(focus_).Template.Kind == ControlKind::Button && At(focus_).Enabled) {
    form_.Press(At(focus_).Template.Id);
  } else if (!form_.PressEnterAt(focus_)) {
    screen_.Beep();
  }
}

void FormScreen::OpenPageMenu() {
  if (form_.contextMenu.empty()) return screen_.Beep();
  const std::vector<MenuItem> items = form_.contextMenu;
  const MenuChoice choice = RunMenu(screen_, items, ScreenY(page_.Corner.Y) + 1, ScreenX(page_.Corner.X));
  if (choice.End == MenuEnd::Chosen) form_.ChooseMenuItem(choice.Id);
}

/// The help is a page of this one alone: the game's platform, and with it a run's journal, do not see it.
void FormScreen::ShowHelp() {
  if (form_.Help().empty()) return screen_.Beep();
  HelpForm help(form_);
  FormScreen page(help.form, screen_, Place::Dialog);
  page.FocusFirst();
  const OnTop onTop(screen_, page);
  while (!page.IsOver() && !screen_.IsLost()) page.HandleKey(screen_.ReadKey());
}

bool FormScreen::HasLetter(char32_t letter) const {
  const char32_t wanted = LowerLetter(letter);
  if (wanted == U'm' && !form_.contextMenu.empty()) return true;
  for (std::size_t i = 0; i < marked_.size(); ++i) {
    if (At(i).Visible && HasMnemonic(At(i).Template.Kind) && MarkedLetterOf(marked_[i]) == wanted) return true;
  }
  return false;
}

/// Does what a letter marked on the page stands for. Returns false if none is.
bool FormScreen::PressLetter(char32_t letter) {
  const char32_t wanted = LowerLetter(letter);
  for (std::size_t i = 0; i < Corner() && i < marked_.size(); ++i) {
    const ControlKind kind = At(i).Template.Kind;
    if (!At(i).Visible || !HasMnemonic(kind) || MarkedLetterOf(marked_[i]) != wanted) continue;
    const std::size_t target = kind == ControlKind::Label ? NamedControl(form_, i) : i;
    if (target >= Corner() || !CanFocus(target)) continue;
    TakeFocus(target);
    if (kind == ControlKind::Button) form_.Press(At(i).Template.Id);
    if (IsMark(kind)) ToggleMark(i);
    return true;
  }
  if (wanted != U'm' || form_.contextMenu.empty()) return false;
  OpenPageMenu();
  return true;
}

void FormScreen::ScrollPage(int lines) {
  isScrolledByHand_ = true;
  scrollY_ = std::clamp(scrollY_ + lines, 0, std::max(page_.Page.Height - view_.Height, 0));
}

}  // namespace veld
