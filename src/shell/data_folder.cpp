#include "shell/data_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <string>
#include <system_error>

namespace veld {

namespace fs = std::filesystem;

namespace {

/// Copies by a temporary name, so that another copy of the program that starts now never sees half a file.
void CopyWhole(const fs::path& from, const fs::path& to) {
  std::error_code error;
  const fs::path half = to.string() + ".copy" + std::to_string(getpid());
  if (fs::copy_file(from, half, fs::copy_options::overwrite_existing, error)) fs::rename(half, to, error);
  if (error) fs::remove(half, error);
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

bool EnterDataFolder(const fs::path& folder, const fs::path& shipped) {
  std::error_code error;
  if (fs::exists("options.vlb", error)) return true;
  fs::create_directories(folder, error);
  fs::current_path(folder, error);
  if (error) return false;
  if (shipped.empty()) return true;
  for (const char* name : kShippedFiles) {
    if (!fs::exists(name, error)) CopyWhole(shipped / name, name);
  }
  return true;
}

}  // namespace veld
