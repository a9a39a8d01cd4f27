#include "store/log_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <string>

namespace veld {

// Never waits for somebody to read, should the log be a pipe.
int OpenLog(const char* path) { return open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666); }

void CloseLog(int log) {
  if (log >= 0) close(log);
}

void AppendLine(int log, std::string_view line) {
  if (log < 0) return;
  std::array<char, 256> small;
  if (line.size() < small.size()) {
    std::memcpy(small.data(), line.data(), line.size());
    small[line.size()] = '\n';
    [[maybe_unused]] const auto written = write(log, small.data(), line.size() + 1);
  } else {
    const std::string whole = std::string(line) + '\n';
    [[maybe_unused]] const auto written = write(log, whole.data(), whole.size());
  }
}

void AppendLine(const char* path, std::string_view line) {
  const int log = OpenLog(path);
  AppendLine(log, line);
  CloseLog(log);
}

}  // namespace veld
