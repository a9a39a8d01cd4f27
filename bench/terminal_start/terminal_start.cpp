// How long the terminal front end takes from its start to its first screen, and from a key to its answer, both as a
// program sees them that sits at the other end of the terminal.
//
//   terminal_start [ROUNDS]   prints the medians, and fails if a limit is passed

#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr double kMostStart = 30;  // milliseconds
constexpr double kMostAnswer = 5;
constexpr int kWait = 2000;
constexpr int kKeys = 20;

double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Reads until `part` has come. Returns false if it does not.
bool ReadUntil(int terminal, std::string_view part) {
  std::string seen;
  std::array<char, 8192> bytes;
  for (;;) {
    pollfd end{terminal, POLLIN, 0};
    if (poll(&end, 1, kWait) <= 0) return false;
    const ssize_t count = read(terminal, bytes.data(), bytes.size());
    if (count <= 0) return false;
    seen.append(bytes.data(), static_cast<std::size_t>(count));
    if (seen.find(part) != std::string::npos) return true;
  }
}

/// Reads what is still to come.
void ReadRest(int terminal) {
  std::array<char, 8192> bytes;
  for (pollfd end{terminal, POLLIN, 0}; poll(&end, 1, 20) > 0;) {
    if (read(terminal, bytes.data(), bytes.size()) <= 0) return;
  }
}

struct Sample {
  double Start = 0;
  std::vector<double> Answers = {};
};

/// Starts the program and waits for its first screen, then presses keys; each changes something.
bool Measure(const char* program, std::string_view first, const std::vector<std::string>& keys, Sample& sample) {
  const winsize size{24, 80, 0, 0};
  int terminal = -1;
  const Clock::time_point start = Clock::now();
  const pid_t child = forkpty(&terminal, nullptr, nullptr, &size);
  if (child == 0) {
    setenv("TERM", "xterm", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    execlp(program, program, nullptr);
    _exit(EXIT_FAILURE);
  }
  bool isShown = ReadUntil(terminal, first);
  sample.Start = MillisecondsSince(start);
  ReadRest(terminal);
  for (const std::string& key : keys) {
    const Clock::time_point pressed = Clock::now();
    isShown = isShown && write(terminal, key.data(), key.size()) > 0 && ReadUntil(terminal, "");
    sample.Answers.push_back(MillisecondsSince(pressed));
    ReadRest(terminal);
  }
  kill(child, SIGTERM);
  close(terminal);
  int status = 0;
  return waitpid(child, &status, 0) == child && isShown;
}

double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values.empty() ? 0 : values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  std::string folder = "/tmp/veld-start-XXXXXX";
  if (!mkdtemp(folder.data())) return EXIT_FAILURE;
  setenv("XDG_DATA_HOME", folder.c_str(), 1);
  const int rounds = std::max(argc == 2 ? std::atoi(argv[1]) : 15, 1);
  std::vector<std::string> keys{"\x1B[21~"};
  for (int i = 0; i < kKeys; ++i) keys.emplace_back("\x1BOB");
  std::vector<double> starts;
  std::vector<double> answers;
  for (int round = -3; round < rounds;
       ++round) {  // the first ones warm the caches and see the messages of a first start
    Sample veld;
    if (!Measure(VELD_TERMINAL_PROGRAM, "Toolkit", keys, veld) && round >= 0) {
      std::fprintf(stderr, "A screen did not come up.\n");
      return EXIT_FAILURE;
    }
    if (round < 0) continue;
    starts.push_back(veld.Start);
    answers.insert(answers.end(), veld.Answers.begin() + 1, veld.Answers.end());
  }
  const double start = Median(starts);
  const double answer = Median(answers);
  const double slowest = *std::ranges::max_element(answers);
  std::printf("start to first screen: %.1f ms (at most %.0f)\n", start, kMostStart);
  std::printf("key to its answer: %.2f ms, the slowest of %zu %.2f ms (at most %.0f)\n", answer, answers.size(),
              slowest, kMostAnswer);
  return start <= kMostStart && answer <= kMostAnswer ? EXIT_SUCCESS : EXIT_FAILURE;
}
