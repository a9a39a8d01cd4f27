#include "terminal/menu_popup.h"

#include <algorithm>

#include "platform/control_names.h"
#include "terminal/cells.h"

namespace veld {

namespace {

constexpr int kFrame = 2;    // the edges on both sides
constexpr int kPadding = 4;  // a blank on each side of an item's text, and the mark of a submenu

/// The key that does without the menu what an item does. A terminal tells no Ctrl+Shift from Ctrl.
std::string_view ShownShortcut(const MenuItem& item) {
  return item.Shortcut == "Ctrl+Shift+Z" ? std::string_view("F3") : std::string_view(item.Shortcut);
}

/// The width of a menu with its frame.
int MenuWidth(const std::vector<MenuItem>& items, int columns) {
  int texts = 8;
  int keys = 0;
  for (const MenuItem& item : items) {
    texts = std::max(texts, CellsOf(WithoutMnemonic(item.Text)));
    if (!item.Shortcut.empty()) keys = std::max(keys, CellsOf(ShownShortcut(item)) + 1);
  }
  return std::min(texts + keys + kPadding + kFrame, columns);
}

/// An open menu: its frame, its rows, the one that is marked.
class MenuPopup : public Layer {
 public:
  MenuPopup(Screen& screen, const std::vector<MenuItem>& items, int y, int x, int first)
      : screen_(screen), items_(items), wantedY_(y), wantedX_(x), row_(std::clamp(first, 0, LastRow())) {}

  void Draw(bool isActive) override;
  MenuChoice Run();

 private:
  int LastRow() const { return std::max(static_cast<int>(items_.size()) - 1, 0); }
  const MenuItem& Item() const { return items_[static_cast<std::size_t>(row_)]; }
  int Height() const {
    return std::clamp(static_cast<int>(items_.size()) + kFrame, 3, std::max(screen_.Rows() - 2, 3));
  }
  void Move(int rows);
  bool TakeLetter(char32_t letter);
  std::optional<MenuChoice> Enter();

  Screen& screen_;
  const std::vector<MenuItem>& items_;
  int wantedY_;
  int wantedX_;
  int row_;
  int first_ = 0;
  PageRect area_;
};

void MenuPopup::Draw(bool isActive) {
  const int width = MenuWidth(items_, screen_.Columns());
  area_ = {std::max(std::min(wantedX_, screen_.Columns() - width), 0),
           std::max(std::min(wantedY_, screen_.Rows() - 2 - Height()), 0), width, Height()};
  const int shown = area_.Height - kFrame;
  first_ = std::clamp(first_, row_ - shown + 1, row_);
  screen_.Frame(area_, {}, Ink::Paper);
  for (int line = 0; line < shown && first_ + line <= LastRow(); ++line) {
    const MenuItem& item = items_[static_cast<std::size_t>(first_ + line)];
    const bool isMarked = first_ + line == row_;
    const int y = area_.Y + 1 + line;
    if (item.Text.empty()) continue;
    const Ink ink = isMarked ? Ink::Focus : item.Enabled ? Ink::Paper : Ink::Faint;
    screen_.Put(y, area_.X + 1, {}, width - kFrame, ink);
    screen_.PutMarked(y, area_.X + 2, item.Text, width - kPadding - kFrame + 1, ink);
    const int keys = CellsOf(ShownShortcut(item));
    screen_.Put(y, area_.Right() - 2 - keys, ShownShortcut(item), keys, ink);
    if (!item.Items.empty()) screen_.Put(y, area_.Right() - 3, ">", 1, ink);
    if (!item.Enabled) screen_.Put(y, area_.Right() - 3, "-", 1, ink);
  }
  if (static_cast<int>(items_.size()) > shown) {
    screen_.ScrollBar(area_.Y + 1, area_.Right() - 1, shown, first_, static_cast<int>(items_.size()), Ink::Paper);
  }
  if (!isActive) return;
  screen_.SetCursor(area_.Y + 1 + row_ - first_, area_.X + 2);
  const MenuItem& item = Item();
  const std::string_view kind = !item.Enabled ? "not to be chosen now" : item.Items.empty() ? "" : "menu";
  screen_.ShowText(WithoutMnemonic(item.Text) + (kind.empty() ? "" : ", ") + std::string(kind),
                   area_.Y + 2 + row_ - first_);
  screen_.ShowKeys("Up/Down choose  Enter take  Left/Right other menus  Esc leave");
}

void MenuPopup::Move(int rows) {
  const int count = static_cast<int>(items_.size());
  const int step = rows < 0 ? -1 : 1;
  for (int left = std::abs(rows); left > 0; --left) {
    int next = row_ + step;
    while (next >= 0 && next < count && items_[static_cast<std::size_t>(next)].Text.empty()) next += step;
    if (next < 0 || next >= count) {
      if (std::abs(rows) > 1) return;
      next = step > 0 ? 0 : count - 1;  // one step goes round
    }
    row_ = next;
  }
}

/// Marks the next item of that letter. Returns true if it is the only one.
bool MenuPopup::TakeLetter(char32_t letter) {
  const auto fits = [&](const MenuItem& item) {
    const char32_t marked = MarkedLetterOf(item.Text);
    std::size_t at = 0;
    const char32_t first = marked != 0 || item.Text.empty() ? marked : LowerLetter(NextCharacter(item.Text, at));
    return first == LowerLetter(letter);
  };
  const auto count = std::ranges::count_if(items_, fits);
  if (count == 0) screen_.Beep();
  for (std::size_t step = 1; step <= items_.size(); ++step) {
    const std::size_t row = (static_cast<std::size_t>(row_) + step) % items_.size();
    if (!fits(items_[row])) continue;
    row_ = static_cast<int>(row);
    break;
  }
  return count == 1;
}

std::optional<MenuChoice> MenuPopup::Enter() {
  const MenuItem& item = Item();
  if (!item.Enabled || item.Text.empty()) {
    screen_.Beep();
    return std::nullopt;
  }
  if (item.Items.empty()) return MenuChoice{MenuEnd::Chosen, item.Id};
  const int width = MenuWidth(item.Items, screen_.Columns());
  const bool fitsRight = area_.Right() - 1 + width <= screen_.Columns();
  const int x = fitsRight ? area_.Right() - 1 : area_.X + 1 - width;
  const MenuChoice choice = RunMenu(screen_, item.Items, area_.Y + row_ - first_, x);
  if (choice.End == MenuEnd::Chosen) return choice;
  return std::nullopt;
}

MenuChoice MenuPopup::Run() {
  const OnTop onTop(screen_, *this);
  constexpr int kPage = 10;
  for (;;) {
    const Key key = screen_.ReadKey();
    if (screen_.IsLost()) return {};
    std::optional<MenuChoice> choice;
    switch (key.Kind) {
      case KeyKind::Up:
        Move(-1);
        break;
      case KeyKind::Down:
        Move(1);
        break;
      case KeyKind::PageUp:
        Move(-kPage);
        break;
      case KeyKind::PageDown:
        Move(kPage);
        break;
      case KeyKind::Home:
        row_ = 0;
        break;
      case KeyKind::End:
        row_ = LastRow();
        break;
      case KeyKind::Left:
        return {MenuEnd::Left};
      case KeyKind::Right:
        if (Item().Items.empty()) return {MenuEnd::Right};
        choice = Enter();
        break;
      case KeyKind::Escape:
      case KeyKind::MainMenu:
      case KeyKind::PageMenu:
      case KeyKind::Help:
      case KeyKind::TakeBack:
      case KeyKind::DoAgain:
        return {};
      case KeyKind::Enter:
        choice = Enter();
        break;
      case KeyKind::Character:
        if (key.Character == U' ' || TakeLetter(key.Character)) choice = Enter();
        break;
      default:
        break;
    }
    if (choice) return *choice;
    if (screen_.IsLost()) return {};
  }
}

}  // namespace

MenuChoice RunMenu(Screen& screen, const std::vector<MenuItem>& items, int y, int x, int first) {
  if (items.empty()) return {};
  MenuPopup popup(screen, items, y, x, first);
  return popup.Run();
}

char32_t LowerLetter(char32_t letter) {
  return letter >= U'A' && letter <= U'Z' ? letter - U'A' + U'a' : letter;
}

char32_t MarkedLetterOf(std::string_view text) {
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != '&') continue;
    ++i;
    if (text[i] != '&') return LowerLetter(static_cast<unsigned char>(text[i]));
  }
  return 0;
}

}  // namespace veld
