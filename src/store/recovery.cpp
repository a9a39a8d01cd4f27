#include "store/recovery.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <filesystem>
#include <functional>
#include <tuple>

#include "platform/platform.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kFinished = "-finished.vlf";
constexpr std::string_view kUnfinished = "-unfinished.vlf";
constexpr int kMostBegunInASecond = 1000;
constexpr int kOldCopies = 5;  // of earlier versions

/// A file that may be a copy. Its stem is the name without what tells its kind; a file of an earlier version has none.
struct CopyFile {
  std::string Path;
  std::string Stem;
  bool IsFinished = false;
  struct timespec WrittenAt {};
};

std::string PathOf(std::string_view stem, bool isFinished) {
  return Format("%s/%s%s", kRecoveryFolder, stem, isFinished ? kFinished : kUnfinished);
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Takes a number of digits off the front of `rest`, and the dash behind it unless it is the last one.
bool TakeDigits(std::string_view& rest, std::size_t least, std::size_t most, bool isLast = false) {
  const auto end = std::ranges::find_if_not(rest, IsDigit);
  const auto digits = static_cast<std::size_t>(end - rest.begin());
  if (digits < least || digits > most || (isLast ? end != rest.end() : end == rest.end() || *end != '-')) return false;
  rest.remove_prefix(digits + (isLast ? 0 : 1));
  return true;
}

/// Only files of this very form are ours: all others in the folder are let alone.
bool IsStem(std::string_view stem) {
  return TakeDigits(stem, 8, 8) && TakeDigits(stem, 6, 6) && TakeDigits(stem, 1, 10) && TakeDigits(stem, 1, 4, true);
}

/// The process that has written a copy of this stem.
std::int64_t WriterOf(std::string_view stem) {
  return ReadNumberPrefix(stem.substr(16));
}

/// Fills in when a file was last written. False unless it is a regular file.
bool IsCopyFile(CopyFile& copy) {
  struct stat status {};
  if (lstat(copy.Path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  copy.WrittenAt = status.st_mtim;
  return true;
}

void SortNewestFirst(std::vector<CopyFile>& files) {
  std::ranges::sort(files, std::greater(), [](const CopyFile& copy) {
    return std::tuple(copy.WrittenAt.tv_sec, copy.WrittenAt.tv_nsec, std::string_view(copy.Path));
  });
}

std::vector<CopyFile> CopyFiles() {
  std::vector<CopyFile> files;
  std::error_code error;
  for (fs::directory_iterator entry(kRecoveryFolder, error), end; !error && entry != end; entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    for (const bool isFinished : {false, true}) {
      const std::string_view kind = isFinished ? kFinished : kUnfinished;
      if (!name.ends_with(kind)) continue;
      CopyFile copy{entry->path().string(), name.substr(0, name.size() - kind.size()), isFinished};
      if (IsStem(copy.Stem) && IsCopyFile(copy)) files.push_back(std::move(copy));
    }
  }
  SortNewestFirst(files);
  return files;
}

bool IsBegun(const CharacterSheet& sheet) {
  return sheet.RaceName != "Unknown" || sheet.CharacterName != "name";
}

/// A stem that no copy has yet.
std::string NewStem(const Game& game) {
  const auto time = static_cast<std::time_t>(game.platform.Now());
  std::tm utc{};
  if (!gmtime_r(&time, &utc)) return {};
  const std::string begun = Format("%04i%02i%02i-%02i%02i%02i-%i", utc.tm_year + 1900, utc.tm_mon + 1, utc.tm_mday,
                                   utc.tm_hour, utc.tm_min, utc.tm_sec, getpid());
  for (int serial = 1; serial < kMostBegunInASecond; ++serial) {
    const std::string stem = Format("%s-%i", begun, serial);
    std::error_code error;
    if (!fs::exists(PathOf(stem, false), error) && !fs::exists(PathOf(stem, true), error)) return stem;
  }
  return {};
}

/// Of each kind the newest copies stay, that of the character in memory before all others.
void DropOldCopies(const Game& game) {
  std::array<int, 2> kept{};
  kept[game.isFinished ? 1 : 0] = 1;
  for (const CopyFile& copy : CopyFiles()) {
    if (copy.Stem == game.recoveryCopy || ++kept[copy.IsFinished ? 1 : 0] <= kRecoveryCopies) continue;
    std::error_code ignored;
    if (!RunsElsewhere(WriterOf(copy.Stem))) fs::remove(copy.Path, ignored);
  }
}

std::string LocalMinute(std::time_t time) {
  std::tm local{};
  if (!localtime_r(&time, &local)) return {};
  return Format("%04i-%02i-%02i %02i:%02i", local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                local.tm_min);
}

/// Makes the copy that the character in memory was recovered from its own, so that who looks through the copies pushes
/// none out: under a name of this process, and only while it is no other's and holds nothing else.
void GoOnWithCopy(Game& game, const std::string& path) {
  const auto files = CopyFiles();
  const auto file = std::ranges::find(files, path, &CopyFile::Path);
  if (file == files.end() || RunsElsewhere(WriterOf(file->Stem))) return;
  std::string bytes;
  ReadWholeFile(path, bytes, kLargestCharacterBytes);
  const std::string stem = NewStem(game);
  if (stem.empty() || bytes != EncodeCharacter(game)) return;
  std::error_code error;
  fs::rename(path, PathOf(stem, file->IsFinished), error);
  if (!error) game.recoveryCopy = stem;
}

bool ReadDraft(const std::string& path, CharacterDraft& draft) {
  std::string bytes;
  return ReadWholeFile(path, bytes, kLargestCharacterBytes) == FileRead::Done &&
         DecodeCharacter(bytes, draft) == LoadResult::Loaded;
}

}  // namespace

void KeepRecoveryCopy(Game& game, SaveWay way) {
  if (!IsBegun(game.sheet)) return;
  const std::string bytes = EncodeCharacter(game);
  const std::string stem = game.recoveryCopy.empty() ? NewStem(game) : game.recoveryCopy;
  if (bytes.empty() || stem.empty()) return;
  std::error_code ignored;
  fs::create_directory(kRecoveryFolder, ignored);
  if (game.isFinished) fs::rename(PathOf(stem, false), PathOf(stem, true), ignored);  // as which it was kept till now
  if (!SaveWholeFile(PathOf(stem, game.isFinished), bytes, way)) return;
  game.recoveryCopy = stem;
  DropOldCopies(game);
}

std::vector<RecoveryCopy> RecoveryCopies() {
  std::vector<CopyFile> files = CopyFiles();
  for (int number = 1; number <= kOldCopies; ++number) {
    CopyFile old{number == 1 ? "autosave.vlf" : Format("autosave%i.vlf", number), {}, true};
    if (IsCopyFile(old)) files.push_back(std::move(old));
  }
  SortNewestFirst(files);
  std::vector<RecoveryCopy> copies;
  const auto draft = std::make_unique<CharacterDraft>();
  for (const CopyFile& file : files) {
    if (!ReadDraft(file.Path, *draft)) continue;
    copies.push_back({file.Path, std::string(draft->sheet.CharacterName), std::string(draft->sheet.ClassName),
                      LocalMinute(file.WrittenAt.tv_sec), file.IsFinished});
  }
  return copies;
}

bool Recover(Game& game, const RecoveryCopy& copy) {
  const auto draft = std::make_unique<CharacterDraft>();
  if (!ReadDraft(copy.Path, *draft)) return false;  // read before the character in memory may push it out
  KeepRecoveryCopy(game);
  TakeCharacter(game, *draft);
  game.isFinished = copy.IsFinished;
  GoOnWithCopy(game, copy.Path);
  return true;
}

}  // namespace veld
