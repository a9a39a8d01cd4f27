#include "pty_program.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <fstream>

namespace veld::testing {

namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kFirstAnswer = std::chrono::milliseconds(150);  // some keys change nothing that can be seen
constexpr auto kMostWait = std::chrono::seconds(20);
constexpr int kEscapeWait = 60;  // milliseconds; the program waits 25 for the rest of a sequence

}  // namespace

PtyProgram::PtyProgram(const std::function<int()>& program, int rows, int columns) : screen(rows, columns) {
  const winsize size{static_cast<unsigned short>(rows), static_cast<unsigned short>(columns), 0, 0};
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
  WaitUntilIdle();
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

std::optional<int> PtyProgram::WaitForEnd(int seconds) {
  const auto end = Clock::now() + std::chrono::seconds(seconds);
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

/// True if the program has taken all that was typed and sleeps.
bool PtyProgram::IsWaiting() const {
  int unread = 0;
  if (ioctl(slave_, FIONREAD, &unread) == 0 && unread > 0) return false;
  std::ifstream stat("/proc/" + std::to_string(child_) + "/stat");
  std::string text;
  std::getline(stat, text);
  const std::size_t state = text.rfind(") ");
  return state == std::string::npos || text[state + 2] == 'S' || text[state + 2] == 'Z';
}

void PtyProgram::WaitUntilIdle() {
  const auto start = Clock::now();
  bool hasAnswered = false;
  for (int quiet = 0; quiet < 3 && Clock::now() - start < kMostWait && IsRunning();) {
    if (Read(1)) {
      hasAnswered = true;
      quiet = 0;
    } else if (IsWaiting() && (hasAnswered || Clock::now() - start > kFirstAnswer)) {
      ++quiet;
    } else {
      quiet = 0;
    }
  }
}

void PtyProgram::Press(std::string_view keys) {
  if (!IsRunning() || master_ < 0) return;
  [[maybe_unused]] const ssize_t written = write(master_, keys.data(), keys.size());
  if (keys == kEscapeKey) usleep(kEscapeWait * 1000);
  WaitUntilIdle();
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
  screen = VtScreen(rows, columns);
  ioctl(master_, TIOCSWINSZ, &size);
  WaitUntilIdle();
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
