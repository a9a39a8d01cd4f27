#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace veld {

enum class FileRead { Done, Missing, Unreadable };

/// Reads at most the first `limit` bytes of a file into `bytes`, which holds what could be read. Only regular files are
/// read: anything else could hang the program.
FileRead ReadWholeFile(const std::string& path, std::string& bytes, std::size_t limit);

/// How a save treats the disk. Tests let it run full after any number of bytes; benchmarks leave out the flush.
struct SaveWay {
  std::size_t DiskRoom = SIZE_MAX;
  bool Flush = true;
};

/// Puts `bytes` in the place of the file at `path`, or makes it. They are written to a new file in the same folder,
/// flushed to the disk, and renamed over the old file, whose mode they take; of a symbolic link the target is replaced.
/// On any failure the result is false, the old file is whole and nothing is left beside it. Two programs that save at
/// once each write a file of their own, and one of them stands in the end. A file that is write-protected, or that is
/// no regular file, is not replaced.
bool SaveWholeFile(const std::string& path, std::string_view bytes, SaveWay way = {});

/// Keeps `old`, the contents of the file at `path`, beside it as ".bak" before they are overwritten for good. An
/// earlier backup with other contents stays, and the next free of ".bak2" to ".bak99" is taken.
bool KeepBackup(const std::string& path, std::string_view old, SaveWay way = {});

/// Removes what a killed program has left in a folder amid a save: regular files of the name of such a temporary file
/// whose process runs no more. For the start of the program: a file of this very process is an earlier one's too.
void RemoveLeftFiles(const std::string& folder);

/// True if a process of this number runs that is not this one.
bool RunsElsewhere(std::int64_t process);

}  // namespace veld
