#include "terminal/screen.h"

#define NCURSES_NOMACROS
#define NCURSES_WIDECHAR 1
#include <curses.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

#include "platform/control_names.h"
#include "platform/wrap_text.h"
#include "terminal/cells.h"
#include "text/utf8.h"

namespace veld {

namespace {

constexpr int kEscapeDelay = 25;  // milliseconds in which the rest of a key's sequence follows its Escape
constexpr int kMostFailedReads = 8;
constexpr wchar_t kEscape = 27;

// What the signal handler tells, by a pipe, so that no signal is missed between a look at the flags and the wait.
int signalPipe[2] = {-1, -1};
volatile sig_atomic_t endWanted = 0;
volatile sig_atomic_t sizeChanged = 0;

void HearSignal(int number) {
  if (number == SIGWINCH) {
    sizeChanged = 1;
  } else {
    endWanted = 1;
  }
  const char byte = 0;
  [[maybe_unused]] const ssize_t written = write(signalPipe[1], &byte, 1);
}

void HearSignals() {
  if (signalPipe[0] < 0 && pipe(signalPipe) == 0) {
    for (const int end : signalPipe) {
      fcntl(end, F_SETFL, O_NONBLOCK);
      fcntl(end, F_SETFD, FD_CLOEXEC);
    }
  }
  struct sigaction action {};
  action.sa_handler = HearSignal;
  action.sa_flags = SA_RESTART;
  for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGWINCH}) sigaction(number, &action, nullptr);
}

// --- Colours: black on a light page, results in blue; a terminal without colours has them plain --------------------

struct InkLook {
  Ink Which;
  short Text;
  short Ground;
  attr_t Colour;  ///< attributes beside the colours
  attr_t Plain;   ///< and without colours
};

constexpr InkLook kInks[] = {
    // Which       Text         Ground       Colour     Plain
    {Ink::Desk, -1, -1, A_NORMAL, A_NORMAL},
    {Ink::DeskBold, -1, -1, A_BOLD, A_BOLD},
    {Ink::Paper, COLOR_BLACK, COLOR_WHITE, A_NORMAL, A_NORMAL},
    {Ink::Bold, COLOR_BLACK, COLOR_WHITE, A_BOLD, A_BOLD},
    {Ink::Written, COLOR_BLUE, COLOR_WHITE, A_NORMAL, A_NORMAL},
    {Ink::Faint, COLOR_BLACK, COLOR_WHITE, A_DIM, A_DIM},
    {Ink::Chosen, COLOR_BLACK, COLOR_CYAN, A_NORMAL, A_BOLD},
    {Ink::Focus, COLOR_WHITE, COLOR_BLUE, A_BOLD, A_REVERSE},
    {Ink::Bar, COLOR_WHITE, COLOR_BLUE, A_NORMAL, A_REVERSE},
    {Ink::BarFocus, COLOR_BLACK, COLOR_WHITE, A_NORMAL, A_BOLD},
};

bool hasColours = false;

void SetUpInks() {
  hasColours = has_colors() && !std::getenv("NO_COLOR") && start_color() == OK && COLOR_PAIRS > 16;
  if (!hasColours) return;
  use_default_colors();
  short pair = 1;
  for (const InkLook& ink : kInks) init_pair(pair++, ink.Text, ink.Ground);
}

void Dip(Ink ink, bool isUnderlined = false) {
  const auto place = static_cast<std::size_t>(ink);
  const InkLook& look = kInks[place];
  const attr_t line = isUnderlined ? A_UNDERLINE : A_NORMAL;
  attr_set((hasColours ? look.Colour : look.Plain) | line, hasColours ? static_cast<short>(place + 1) : short{0},
           nullptr);
}

/// Bytes as terminals take them in their commands: three in four letters.
std::string Base64(std::string_view bytes) {
  constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string letters;
  letters.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    const std::size_t held = std::min<std::size_t>(bytes.size() - at, 3);
    unsigned three = 0;
    for (std::size_t i = 0; i < 3; ++i)
      three = three << 8 | (i < held ? static_cast<unsigned char>(bytes[at + i]) : 0U);
    for (std::size_t i = 0; i < 4; ++i) letters += i <= held ? kLetters[three >> (18 - 6 * i) & 63] : '=';
  }
  return letters;
}

/// Gives the program the keys with which a terminal stops what is written (Ctrl+S), goes on (Ctrl+Q) and suspends the
/// program (Ctrl+Z), and those that it would quote or drop; Ctrl+C stays what it is.
void TakeControlKeys() {
  termios modes{};
  if (tcgetattr(STDIN_FILENO, &modes) != 0) return;
  modes.c_iflag &= ~static_cast<tcflag_t>(IXON | IXOFF);
  modes.c_lflag &= ~static_cast<tcflag_t>(IEXTEN);
  modes.c_cc[VSUSP] = _POSIX_VDISABLE;
  if (tcsetattr(STDIN_FILENO, TCSANOW, &modes) == 0) def_prog_mode();
}

// --- Keys ----------------------------------------------------------------------------------------------------------

KeyKind FunctionKey(wint_t code) {
  switch (code) {
    case KEY_ENTER:
      return KeyKind::Enter;
    case KEY_BTAB:
      return KeyKind::BackTab;
    case KEY_UP:
      return KeyKind::Up;
    case KEY_DOWN:
      return KeyKind::Down;
    case KEY_LEFT:
      return KeyKind::Left;
    case KEY_RIGHT:
      return KeyKind::Right;
    case KEY_HOME:
    case KEY_FIND:
      return KeyKind::Home;
    case KEY_END:
    case KEY_SELECT:
      return KeyKind::End;
    case KEY_PPAGE:
      return KeyKind::PageUp;
    case KEY_NPAGE:
      return KeyKind::PageDown;
    case KEY_BACKSPACE:
      return KeyKind::Backspace;
    case KEY_DC:
      return KeyKind::Delete;
    case KEY_F(10):
      return KeyKind::MainMenu;
    case KEY_F(9):
    case KEY_F(22):
      return KeyKind::PageMenu;
    case KEY_F(1):
      return KeyKind::Help;
    case KEY_F(2):
      return KeyKind::TakeBack;
    case KEY_F(3):
      return KeyKind::DoAgain;
    default:
      return KeyKind::None;
  }
}

Key PlainKey(wint_t code) {
  constexpr wint_t kControlL = 0x0C;
  constexpr wint_t kControlU = 0x15;
  constexpr wint_t kControlZ = 0x1A;
  switch (code) {
    case '\r':
    case '\n':
      return {KeyKind::Enter};
    case '\t':
      return {KeyKind::Tab};
    case 0x08:
    case 0x7F:
      return {KeyKind::Backspace};
    case kControlU:
      return {KeyKind::ClearLine};
    case kEscape:
      return {KeyKind::Escape};
    case kControlL:
      return {KeyKind::None, kControlL};
    case kControlZ:
      return {KeyKind::TakeBack};
    default:
      break;
  }
  if (code >= 1 && code < kControlZ) return {KeyKind::Shortcut, static_cast<char32_t>(code - 1 + U'a')};
  if (code < 0x20 || (code > 0x7F && code < 0xA0)) return {KeyKind::None, static_cast<char32_t>(code)};
  return {KeyKind::Character, static_cast<char32_t>(code)};
}

}  // namespace

Screen::Screen() {
  HearSignals();  // before ncurses, which leaves alone what is already heard
  if (!newterm(nullptr, stdout, stdin)) return;
  isOpen_ = true;
  set_escdelay(kEscapeDelay);
  cbreak();
  noecho();
  nonl();
  keypad(stdscr, TRUE);
  intrflush(stdscr, FALSE);
  TakeControlKeys();
  SetUpInks();
  ClearClip();
}

Screen::~Screen() {
  if (isOpen_) endwin();
}

bool Screen::IsLost() const {
  return isLost_ || endWanted != 0;
}

int Screen::Rows() const {
  return getmaxy(stdscr);
}

int Screen::Columns() const {
  return getmaxx(stdscr);
}

// --- Waiting -------------------------------------------------------------------------------------------------------

void Screen::FollowSize() {
  sizeChanged = 0;
  winsize size{};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_row == 0 || size.ws_col == 0) return;
  resizeterm(size.ws_row, size.ws_col);
  clearok(curscr, TRUE);  // what the terminal did with its old lines is unknown
}

/// Waits for a key or a signal. Returns true if there is something to read.
bool Screen::WaitForInput(int milliseconds) {
  pollfd ends[] = {{STDIN_FILENO, POLLIN, 0}, {signalPipe[0], POLLIN, 0}};
  const int ready = poll(ends, 2, milliseconds);
  if (ready <= 0) return false;
  std::array<char, 64> bytes;
  while (read(signalPipe[0], bytes.data(), bytes.size()) > 0) {
  }
  if ((ends[0].revents & (POLLHUP | POLLERR | POLLNVAL)) != 0) isLost_ = true;
  return !IsLost() && (ends[0].revents & POLLIN) != 0;
}

Key Screen::TakeKey() {
  wint_t code = 0;
  timeout(kEscapeDelay);  // the bytes of one character may come apart
  const int kind = get_wch(&code);
  if (kind == ERR) {
    // There was something to read, and it was nothing: a broken character, or, again and again, the end of the input.
    if (++failedReads_ >= kMostFailedReads) isLost_ = true;
    return {};
  }
  failedReads_ = 0;
  if (kind == KEY_CODE_YES) return {FunctionKey(code)};
  if (code != kEscape) return PlainKey(code);
  // Alt sends Escape before the letter, at once.
  wint_t next = 0;
  timeout(0);
  const int nextKind = get_wch(&next);
  if (nextKind != OK) return {KeyKind::Escape};
  Key key = PlainKey(next);
  if (key.Kind == KeyKind::Character && key.Character == U'?') return {KeyKind::Help};
  key.IsAlt = key.Kind == KeyKind::Character;
  return key;
}

Key Screen::ReadKey(int milliseconds) {
  constexpr char32_t kControlL = 0x0C;
  for (;;) {
    if (IsLost()) return {};
    if (sizeChanged) FollowSize();
    Paint();
    if (WaitForInput(milliseconds)) {
      const Key key = TakeKey();
      if (key.Kind != KeyKind::None) return key;
      if (key.Character == kControlL) clearok(curscr, TRUE);
    } else if (milliseconds >= 0) {
      return {};
    }
  }
}

void Screen::Paint() {
  if (IsLost()) return;
  ClearClip();
  Dip(Ink::Desk);
  erase();
  const std::vector<Layer*> layers = layers_;
  for (Layer* layer : layers) {
    ClearClip();
    layer->Draw(layer == layers.back());
  }
  move(std::clamp(cursorY_, 0, std::max(Rows() - 1, 0)), std::clamp(cursorX_, 0, std::max(Columns() - 1, 0)));
  refresh();
}

// --- Drawing -------------------------------------------------------------------------------------------------------

void Screen::Put(int y, int x, std::string_view text, int width, Ink ink, int left, bool marksCut) {
  if (y < clip_.Y || y >= clip_.Bottom() || width <= 0) return;
  std::u32string cells = CellsFrom(text, left, width, marksCut);
  std::wstring shown;
  int first = -1;
  int cell = x;
  for (const char32_t character : cells) {
    const int wide = CellsOf(character);
    if (cell >= clip_.X && cell + wide <= clip_.Right()) {
      if (first < 0) first = cell;
      shown += static_cast<wchar_t>(character);
    }
    cell += wide;
  }
  if (first < 0) return;
  Dip(ink);
  mvaddnwstr(y, first, shown.c_str(), static_cast<int>(shown.size()));
}

void Screen::PutMarked(int y, int x, std::string_view text, int width, Ink ink) {
  Put(y, x, WithoutMnemonic(text), width, ink);
  std::size_t marked = std::string_view::npos;
  for (std::size_t i = 0; i + 1 < text.size() && marked == std::string_view::npos; ++i) {
    if (text[i] != '&') continue;
    if (text[i + 1] == '&')
      ++i;
    else
      marked = i;
  }
  if (marked == std::string_view::npos) return;
  const int cell = x + CellsOf(WithoutMnemonic(text.substr(0, marked)));
  if (y < clip_.Y || y >= clip_.Bottom() || cell < clip_.X || cell >= std::min(clip_.Right(), x + width)) return;
  Dip(ink, true);
  mvaddch(y, cell, static_cast<unsigned char>(text[marked + 1]));
}

void Screen::Fill(const PageRect& area, Ink ink) {
  for (int y = area.Y; y < area.Bottom(); ++y) Put(y, area.X, {}, area.Width, ink);
}

void Screen::Frame(const PageRect& area, std::string_view title, Ink ink) {
  Fill(area, ink);
  if (area.Width < 2 || area.Height < 2) return;
  Dip(ink);
  mvhline_set(area.Y, area.X + 1, WACS_HLINE, area.Width - 2);
  mvhline_set(area.Bottom() - 1, area.X + 1, WACS_HLINE, area.Width - 2);
  mvvline_set(area.Y + 1, area.X, WACS_VLINE, area.Height - 2);
  mvvline_set(area.Y + 1, area.Right() - 1, WACS_VLINE, area.Height - 2);
  mvadd_wch(area.Y, area.X, WACS_ULCORNER);
  mvadd_wch(area.Y, area.Right() - 1, WACS_URCORNER);
  mvadd_wch(area.Bottom() - 1, area.X, WACS_LLCORNER);
  mvadd_wch(area.Bottom() - 1, area.Right() - 1, WACS_LRCORNER);
  if (title.empty()) return;
  const std::string shown = " " + std::string(title) + " ";
  const int width = std::min(CellsOf(shown), area.Width - 4);
  Put(area.Y, area.X + (area.Width - width) / 2, shown, width, Ink::Bold);
}

void Screen::VerticalLine(int y, int x, int height, Ink ink) {
  const int top = std::max(y, clip_.Y);
  const int bottom = std::min(y + height, clip_.Bottom());
  if (x < clip_.X || x >= clip_.Right() || top >= bottom) return;
  Dip(ink);
  mvvline_set(top, x, WACS_VLINE, bottom - top);
}

void Screen::ScrollBar(int y, int x, int height, int first, int total, Ink ink) {
  VerticalLine(y, x, height, ink);
  if (total <= height || height < 1) return;
  const int length = std::max(height * height / total, 1);
  const int room = std::max(total - height, 1);
  const int from = std::clamp((height - length) * first / room, 0, height - length);
  for (int line = from; line < from + length; ++line) Put(y + line, x, "#", 1, ink);
}

void Screen::SetCursor(int y, int x) {
  cursorY_ = y;
  cursorX_ = x;
}

void Screen::ShowKeys(std::string_view keys) {
  Put(Rows() - 1, 0, " " + std::string(keys), Columns(), Ink::Bar, 0, true);
}

void Screen::ShowText(std::string_view text, int bottom) {
  const auto width = [](std::string_view line) { return CellsOf(line); };
  const int most = std::max(Rows() / 3, 1);
  const auto shown = CutToBytes(text, static_cast<std::size_t>(most) * static_cast<std::size_t>(Columns()));
  std::vector<std::string> lines = WrapText(shown, std::max(Columns() - 2, 1), width);
  lines.resize(std::min(lines.size(), static_cast<std::size_t>(most)));
  const int top = Rows() - 1 - static_cast<int>(lines.size());
  int y = top < bottom && lines.size() > 1 ? 0 : top;
  for (const std::string& line : lines) Put(y++, 0, " " + line, Columns(), Ink::Bar);
}

void Screen::Beep() {
  if (!IsLost()) beep();
}

bool Screen::SendToClipboard(std::string_view text) {
  if (IsLost()) return false;
  const std::string sequence = "\033]52;c;" + Base64(text) + "\a";
  std::fwrite(sequence.data(), 1, sequence.size(), stdout);
  return std::fflush(stdout) == 0;
}

}  // namespace veld
