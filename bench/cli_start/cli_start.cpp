// How long veld-cli takes from its start to its end: a sheet of one file, and one character that plays himself. What
// /bin/true takes stands beside them.
//
//   cli_start [ROUNDS]   prints the medians, and fails if a limit is passed

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr double kMostSheet = 20;  // milliseconds
constexpr double kMostNpc = 30;

/// Runs a program to its end with its output thrown away. Milliseconds; below 0 if it failed.
double TimeOf(std::vector<std::string> command) {
  std::vector<char*> arguments;
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  const Clock::time_point start = Clock::now();
  pid_t child = 0;
  int status = 1;
  const bool runs = posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ) == 0;
  if (runs) waitpid(child, &status, 0);
  posix_spawn_file_actions_destroy(&actions);
  const double time = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
  return runs && status == 0 ? time : -1;
}

double Median(const std::vector<std::string>& command, int rounds) {
  std::vector<double> times;
  for (int i = 0; i < rounds; ++i) {
    times.push_back(TimeOf(command));
    if (times.back() < 0) return -1;
  }
  std::ranges::sort(times);
  return times[times.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 50;
  const std::string program = VELD_CLI_PROGRAM;
  char folder[] = "/tmp/veld-cli-start-XXXXXX";
  if (!mkdtemp(folder)) return EXIT_FAILURE;
  const std::vector<std::string> npc{program, "npc", "--class", "Fighter", "--race", "Human", "--seed", "1"};
  std::vector<std::string> saved = npc;
  saved.insert(saved.end(), {"--name", "a", "--format", "vlf", "--out", folder});
  if (TimeOf(saved) < 0) return EXIT_FAILURE;
  const std::string file = std::string(folder) + "/a.vlf";

  struct Promise {
    const char* What;
    std::vector<std::string> Command;
    double Most;
  };
  const Promise promises[] = {
      {"/bin/true", {"/bin/true"}, 1000},
      {"sheet, text", {program, "sheet", file, "--to", "txt"}, kMostSheet},
      {"sheet, HTML", {program, "sheet", file, "--to", "html"}, kMostSheet},
      {"sheet, JSON", {program, "sheet", file, "--to", "json"}, kMostSheet},
      {"npc", npc, kMostNpc},
      {"sheet, PDF (loads its library)", {program, "sheet", file, "--to", "pdf"}, 1000},
  };
  bool isKept = true;
  for (const Promise& promise : promises) {
    const double time = Median(promise.Command, rounds);
    std::printf("%-32s %6.1f ms\n", promise.What, time);
    isKept = isKept && time >= 0 && time <= promise.Most;
  }
  std::remove(file.c_str());
  rmdir(folder);
  return isKept ? EXIT_SUCCESS : EXIT_FAILURE;
}
