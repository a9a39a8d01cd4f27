#include "pty_program.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <fstream>

namespace veld::testing {

namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kMostWait = std::chrono::seconds(60);

}  // namespace

PtyProgram::PtyProgram(const std::function<int()>& program, int rows, int columns) : screen(rows, columns) {
  const winsize size{static_cast<unsigned short>(rows), static_cast<unsigned short>(columns), 0, 0};
  const auto start = Clock::now();
  std::array<char, 256> name{};
  child_ = forkpty(&master_, name.data(), nullptr, &size);
  if (child_ == 0) {
    setenv("TERM", "xterm", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    _exit(program());
  }
  fcntl(master_, F_SETFL, O_NONBLOCK);
  fcntl(master_, F_SETFD, FD_CLOEXEC);
  slave_ = open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  while (screen.Text().find_first_not_of(" \n") == std::string::npos && Clock::now() < start + kMostWait) {
    if (!Read(5) && !IsRunning()) break;
  }
  WaitUntilIdle(0);
}

PtyProgram::~PtyProgram() {
  if (IsRunning()) {
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
  }
  HangUp();
}

bool PtyProgram::IsRunning() {
  if (child_ <= 0 || status_) return false;
  int status = 0;
  if (waitpid(child_, &status, WNOHANG) != child_) return true;
  status_ = status;
  return false;
}

std::optional<int> PtyProgram::WaitForEnd() {
  const auto end = Clock::now() + kMostWait;
  while (IsRunning() && Clock::now() < end) {
    if (!Read(5)) usleep(2000);
  }
  if (IsRunning() || !WIFEXITED(*status_)) return std::nullopt;
  return WEXITSTATUS(*status_);
}

/// Reads what has come, waiting at most so long for it. Returns true if something has.
bool PtyProgram::Read(int milliseconds) {
  if (master_ < 0) return false;
  pollfd end{master_, POLLIN, 0};
  if (poll(&end, 1, milliseconds) <= 0) return false;
  std::array<char, 8192> bytes;
  const ssize_t count = read(master_, bytes.data(), bytes.size());
  if (count <= 0) return false;
  screen.Feed({bytes.data(), static_cast<std::size_t>(count)});
  return true;
}

/// True if the program has taken all that was typed and waits for a key without an end. While it waits for the rest of
/// a key's bytes, works or sleeps for another reason, it does not: so no machine is too busy for it.
bool PtyProgram::IsWaiting() const {
  int unread = 0;
  if (ioctl(slave_, FIONREAD, &unread) == 0 && unread > 0) return false;
  std::ifstream call("/proc/" + std::to_string(child_) + "/syscall");
  long number = -1;
  unsigned long ends = 0;
  unsigned long count = 0;
  unsigned long timeout = 0;
  call >> number >> std::hex >> ends >> count >> timeout;
#ifdef SYS_poll
  if (number == SYS_poll) return static_cast<int>(timeout) < 0;
#endif
  return number == SYS_ppoll && timeout == 0;
}

/// How often the program has gone to sleep of its own will.
long PtyProgram::Sleeps() const {
  std::ifstream status("/proc/" + std::to_string(child_) + "/status");
  const std::string word = "voluntary_ctxt_switches:";
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(word)) return std::atol(line.c_str() + word.size());
  }
  return 0;
}

/// Waits until the program has gone to sleep more than `sleeps` times since it was started and waits for a key: what
/// was typed has been answered by then, if only by nothing that shows.
void PtyProgram::WaitUntilIdle(long sleeps) {
  const auto end = Clock::now() + kMostWait;
  bool hasAnswered = false;  // what it writes comes here a little later too
  while (Clock::now() < end && IsRunning()) {
    const bool isOver = IsWaiting() && Sleeps() > sleeps;
    const bool hasCome = Read(!isOver ? 1 : hasAnswered ? 4 : 60);
    if (isOver && !hasCome) return;
    hasAnswered |= hasCome;
  }
}

void PtyProgram::Type(std::string_view keys) {
  if (!IsRunning() || master_ < 0) return;
  [[maybe_unused]] const ssize_t written = write(master_, keys.data(), keys.size());
}

bool PtyProgram::WaitUntilShown(std::string_view text) {
  const auto end = Clock::now() + kMostWait;
  while (!Shows(text) && Clock::now() < end && IsRunning()) Read(5);
  return Shows(text);
}

void PtyProgram::Press(std::string_view keys) {
  const long sleeps = Sleeps();  // what is typed comes to the program a little later
  Type(keys);
  WaitUntilIdle(sleeps);
}

void PtyProgram::Command(std::string_view letters) {
  Press("\x1B" + std::string(letters.substr(0, 1)));
  for (const char letter : letters.substr(1)) Press({&letter, 1});
}

void PtyProgram::Press(std::string_view keys, int times) {
  for (; times > 0; --times) Press(keys);
}

void PtyProgram::HangUp() {
  if (slave_ >= 0) close(slave_);
  if (master_ >= 0) close(master_);
  slave_ = master_ = -1;
}

void PtyProgram::Signal(int number) {
  kill(child_, number);
}

void PtyProgram::Resize(int rows, int columns) {
  const winsize size{static_cast<unsigned short>(rows), static_cast<unsigned short>(columns), 0, 0};
  const long sleeps = Sleeps();
  screen = VtScreen(rows, columns);
  ioctl(master_, TIOCSWINSZ, &size);
  WaitUntilIdle(sleeps);
}

std::string PtyProgram::Title() const {
  for (int row = screen.CursorRow(); row >= 0; --row) {
    int left = screen.CursorColumn();
    while (left >= 0 && screen.At(row, left) != U'┌') --left;
    int right = screen.CursorColumn();
    while (right < screen.Columns() && screen.At(row, right) != U'┐') ++right;
    if (left < 0 || right == screen.Columns()) continue;
    std::u32string title;
    bool isCovered = false;  // the upper edge of a page that another one lies over
    for (int column = left + 1; column < right; ++column) {
      isCovered = isCovered || screen.At(row, column) == U'│';
      if (screen.At(row, column) != U'─') title += screen.At(row, column);
    }
    if (isCovered) continue;
    std::string text(title.begin(), title.end());
    text.erase(0, text.find_first_not_of(' '));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
  }
  return {};
}

std::string PtyProgram::KeysLine() const {
  return screen.Line(screen.Rows() - 1);
}

std::string PtyProgram::EnterDoes() const {
  const std::string keys = KeysLine();
  const std::size_t enter = keys.find("Enter ");
  if (enter == std::string::npos) return {};
  const std::size_t begin = enter + 6;
  return keys.substr(begin, keys.find("  ", begin) - begin);
}

}  // namespace veld::testing
