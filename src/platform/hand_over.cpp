#include "platform/hand_over.h"

#include <fcntl.h>
#include <pthread.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <future>
#include <memory>
#include <thread>

namespace veld {

namespace {

bool IsSet(const char* variable) {
  const char* const value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

/// Waits for a child in a thread of its own, so that nothing is left of it whenever it ends. Signals stay those of the
/// thread that reads the keys.
std::future<int> StatusOf(pid_t child) {
  const auto status = std::make_shared<std::promise<int>>();
  sigset_t all;
  sigset_t before;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &before);
  std::thread([child, status] {
    int ended = 0;
    while (waitpid(child, &ended, 0) < 0 && errno == EINTR) {
    }
    status->set_value(ended);
  }).detach();
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
  return status->get_future();
}

}  // namespace

bool RunProgram(std::vector<std::string> arguments, int milliseconds) {
  std::vector<char*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);

  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_adddup2(&files, STDOUT_FILENO, STDERR_FILENO);
  posix_spawnattr_t how;
  posix_spawnattr_init(&how);
  sigset_t signals;
  sigemptyset(&signals);
  posix_spawnattr_setsigmask(&how, &signals);
  for (const int ignored : {SIGPIPE, SIGXFSZ, SIGINT, SIGTERM, SIGHUP}) sigaddset(&signals, ignored);
  posix_spawnattr_setsigdefault(&how, &signals);
  posix_spawnattr_setflags(&how, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  pid_t child = 0;
  const int failure = posix_spawnp(&child, argv[0], &files, &how, argv.data(), environ);
  posix_spawnattr_destroy(&how);
  posix_spawn_file_actions_destroy(&files);
  if (failure != 0) return false;

  std::future<int> status = StatusOf(child);
  const bool hasEnded = status.wait_for(std::chrono::milliseconds(milliseconds)) == std::future_status::ready;
  return !hasEnded || status.get() == 0;
}

bool ShowInViewer(const std::string& path) {
  constexpr int kPatience = 1500;  // it gives up at once where it finds nothing to show the file with
  // Without a desktop a viewer would be one of the terminal, which is ours.
  return (IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY")) && RunProgram({"xdg-open", path}, kPatience);
}

bool SendToPrinter(const std::string& path) {
  constexpr int kPatience = 5000;
  return RunProgram({"lp", "--", path}, kPatience);
}

}  // namespace veld
