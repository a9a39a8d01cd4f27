#include "shell/data_folder.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <system_error>

#include "store/recovery.h"
#include "store/safe_file.h"
#include "text/format.h"

namespace veld {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLargestShippedFile = 64'000'000;

/// Makes a folder the working directory if files can be made in it.
bool EnterFolder(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) != 0) return false;
  fs::current_path(folder, error);
  return !error;
}

void CopyMissing(const fs::path& shipped) {
  for (const char* name : kShippedFiles) {
    std::error_code error;
    std::string bytes;
    if (shipped.empty() || fs::exists(name, error)) continue;
    if (ReadWholeFile(shipped / name, bytes, kLargestShippedFile) == FileRead::Done) SaveWholeFile(name, bytes);
  }
}

}  // namespace

fs::path UserDataFolder() {
  const char* data = std::getenv("XDG_DATA_HOME");
  if (data && *data == '/') return fs::path(data) / "veld";
  const char* home = std::getenv("HOME");
  return fs::path(home ? home : "/") / ".local" / "share" / "veld";
}

fs::path ShippedDataFolder() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  if (error) return {};
  const fs::path prefix = program.parent_path().parent_path();
  for (const fs::path& folder : {prefix / "share" / "veld", prefix / "data"}) {
    if (fs::exists(folder / kShippedFiles[0], error)) return folder;
  }
  return {};
}

std::string EnterDataFolder(const fs::path& folder, const fs::path& shipped) {
  std::error_code error;
  const fs::path start = fs::current_path(error);
  const bool isOwn = fs::is_regular_file("options.vlb", error);
  std::string told;
  for (const fs::path& possible : isOwn ? std::array{start, folder} : std::array{folder, start}) {
    if (!EnterFolder(possible)) {
      told += Format("The folder %s can not be written. ", possible.string());
      continue;
    }
    for (const char* place : {".", kRecoveryFolder}) RemoveLeftFiles(place);
    if (!isOwn || possible != start) CopyMissing(shipped);
    return told.empty() ? told : told + Format("VELD works in %s.", possible.string());
  }
  return told + "What you do is lost unless you save it elsewhere.";
}

}  // namespace veld
