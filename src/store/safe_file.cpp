#include "store/safe_file.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

/// True if the C library can be given this path as it is.
bool IsPath(const std::string& path) { return !path.empty() && path.find('\0') == std::string::npos; }

bool IsMissing(int error) { return error == ENOENT || error == ENOTDIR; }

/// An open file that is closed when it goes out of use.
class OpenFile {
 public:
  explicit OpenFile(int file) : file_(file) {}
  ~OpenFile() {
    if (file_ >= 0) close(file_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  bool isOpen() const { return file_ >= 0; }
  int number() const { return file_; }
  bool shut() {
    const int file = file_;
    file_ = -1;
    return close(file) == 0;
  }

 private:
  int file_;
};

/// The file that a save to `path` replaces: the end of the chain of symbolic links there. Empty if it has no end.
std::string EndOfLinks(const std::string& path) {
  std::filesystem::path at = path;
  for (int hops = 0; hops < 40; ++hops) {
    std::error_code error;
    if (!std::filesystem::is_symlink(at, error)) return at.string();
    const std::filesystem::path next = std::filesystem::read_symlink(at, error);
    if (error) return {};
    at = next.is_absolute() ? next : at.parent_path() / next;
  }
  return {};
}

// ".veld-PROCESS-SERIAL.tmp"
constexpr std::string_view kTemporaryStart = ".veld-";
constexpr std::string_view kTemporaryEnd = ".tmp";

/// The process that a temporary file of this name is of; 0 if the name is none of those.
std::int64_t ProcessOf(std::string_view name) {
  if (!name.starts_with(kTemporaryStart) || !name.ends_with(kTemporaryEnd)) return 0;
  name.remove_prefix(kTemporaryStart.size());
  name.remove_suffix(std::min(kTemporaryEnd.size(), name.size()));
  const std::size_t dash = name.find('-');
  const auto isNumber = [](std::string_view part) {
    return !part.empty() && part.find_first_not_of("0123456789") == std::string_view::npos;
  };
  if (dash == std::string_view::npos || !isNumber(name.substr(0, dash)) || !isNumber(name.substr(dash + 1))) return 0;
  return ReadNumberPrefix(name);
}

/// A file of this save's own in the folder of the file that it is to replace; gone unless it took that place.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& target)
      : target_(target), folder_(std::filesystem::path(target).parent_path().string()), file_(make()) {}
  ~TemporaryFile() {
    if (file_.isOpen() || mustRemove_) unlink(path_.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  bool isOpen() const { return file_.isOpen(); }

  /// Gives the file owner and mode of the file that it will replace. Another owner can only be set by root.
  bool takeModeOf(const struct stat& old) {
    [[maybe_unused]] const int owned = fchown(file_.number(), old.st_uid, old.st_gid);
    return fchmod(file_.number(), old.st_mode & 07777) == 0;
  }

  bool write(std::string_view bytes, std::size_t diskRoom) {
    const bool fits = bytes.size() <= diskRoom;
    bytes = bytes.substr(0, diskRoom);
    while (!bytes.empty()) {
      const ssize_t written = ::write(file_.number(), bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return fits;
  }

  /// Flushes, closes and renames.
  bool takePlace(bool flush) {
    mustRemove_ = true;
    const bool flushed = !flush || fsync(file_.number()) == 0;
    if (!file_.shut() || !flushed || std::rename(path_.c_str(), target_.c_str()) != 0) return false;
    mustRemove_ = false;
    if (flush) {
      // The new name of the file is an entry of its folder; some file systems cannot flush one, which does no harm.
      const OpenFile folder(open(folder_.empty() ? "." : folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
      if (folder.isOpen()) fsync(folder.number());
    }
    return true;
  }

 private:
  int make() {
    for (int serial = 0; serial < 1000; ++serial) {
      const std::string name = Format("%s%i-%i%s", kTemporaryStart, getpid(), serial, kTemporaryEnd);
      path_ = folder_.empty() ? name : folder_ + "/" + name;
      const int file = open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
      if (file >= 0 || errno != EEXIST) return file;
    }
    return -1;
  }

  std::string target_;
  std::string folder_;
  std::string path_;
  bool mustRemove_ = false;
  OpenFile file_;
};

}  // namespace

FileRead ReadWholeFile(const std::string& path, std::string& bytes, std::size_t limit) {
  bytes.clear();
  if (!IsPath(path)) return FileRead::Missing;
  // A pipe would wait for its writer: it is opened without waiting, and refused.
  const OpenFile file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!file.isOpen()) return IsMissing(errno) ? FileRead::Missing : FileRead::Unreadable;
  struct stat status {};
  if (fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode)) return FileRead::Unreadable;
  // One byte more than the file has shows its end in a single read.
  const std::size_t expected = static_cast<std::size_t>(std::max<off_t>(status.st_size, 0)) + 1;
  std::size_t held = 0;
  for (bytes.resize(std::min(expected, limit)); held < limit;) {
    if (held == bytes.size()) bytes.resize(std::min(2 * held + 4096, limit));
    const ssize_t got = read(file.number(), bytes.data() + held, bytes.size() - held);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) {
      bytes.resize(held);
      return got == 0 ? FileRead::Done : FileRead::Unreadable;
    }
    held += static_cast<std::size_t>(got);
  }
  return FileRead::Done;
}

bool SaveWholeFile(const std::string& path, std::string_view bytes, SaveWay way) {
  const std::string target = IsPath(path) ? EndOfLinks(path) : std::string();
  if (target.empty()) return false;
  struct stat old {};
  const bool isThere = stat(target.c_str(), &old) == 0;
  if (!isThere && errno != ENOENT) return false;
  if (isThere && (!S_ISREG(old.st_mode) || access(target.c_str(), W_OK) != 0)) return false;
  TemporaryFile file(target);
  return file.isOpen() && (!isThere || file.takeModeOf(old)) && file.write(bytes, way.DiskRoom) &&
         file.takePlace(way.Flush);
}

bool KeepBackup(const std::string& path, std::string_view old, SaveWay way) {
  for (int number = 1; number <= 99; ++number) {
    const std::string backup = path + (number == 1 ? std::string(".bak") : Format(".bak%i", number));
    std::string kept;
    switch (ReadWholeFile(backup, kept, old.size() + 1)) {
      case FileRead::Missing: return SaveWholeFile(backup, old, way);
      case FileRead::Done:
        if (kept == old) return true;
        break;
      case FileRead::Unreadable: break;
    }
  }
  return false;
}

void RemoveLeftFiles(const std::string& folder) {
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    const std::int64_t process = ProcessOf(entry->path().filename().string());
    std::error_code ignored;
    if (process == 0 || RunsElsewhere(process) || !is_regular_file(entry->symlink_status(ignored))) continue;
    std::filesystem::remove(entry->path(), ignored);
  }
}

bool RunsElsewhere(std::int64_t process) {
  const auto id = static_cast<pid_t>(process);
  if (id != process || id <= 0 || id == getpid()) return false;
  return kill(id, 0) == 0 || errno == EPERM;
}

}  // namespace veld
