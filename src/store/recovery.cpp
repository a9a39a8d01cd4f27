#include "store/recovery.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <filesystem>
#include <functional>
#include <span>
#include <tuple>

#include "platform/platform.h"
#include "store/run_note.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/utf8.h"

namespace veld {

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::string_view, kCopyKinds> kEndings = {"-unfinished.vlf", "-finished.vlf", "-party.vlp",
                                                               "-begun.run"};
constexpr int kMostBegunInASecond = 1000;
constexpr int kOldCopies = 5;  // of earlier versions

/// A file that may be a copy. Its stem is the name without what tells its kind; a file of an earlier version has none.
struct CopyFile {
  std::string Path;
  std::string Stem;
  CopyKind Kind = CopyKind::Unfinished;
  struct timespec WrittenAt {};
};

std::size_t Index(CopyKind kind) {
  return static_cast<std::size_t>(kind);
}

std::string PathOf(std::string_view stem, CopyKind kind) {
  return Format("%s/%s%s", kRecoveryFolder, stem, kEndings[Index(kind)]);
}

CopyKind CharacterKind(const Game& game) {
  return game.isFinished ? CopyKind::Finished : CopyKind::Unfinished;
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
    for (std::size_t kind = 0; kind < kCopyKinds; ++kind) {
      if (!name.ends_with(kEndings[kind])) continue;
      CopyFile copy{entry->path().string(), name.substr(0, name.size() - kEndings[kind].size()),
                    static_cast<CopyKind>(kind)};
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
    const auto isFree = [&](std::string_view ending) {
      std::error_code error;
      return !fs::exists(Format("%s/%s%s", kRecoveryFolder, stem, ending), error);
    };
    if (std::ranges::all_of(kEndings, isFree)) return stem;
  }
  return {};
}

/// Of each kind the newest copies stay, those of the character and the party in memory before all others.
void DropOldCopies(const Game& game) {
  std::array<int, kCopyKinds> kept{};
  if (!game.recoveryCopy.empty()) kept[Index(CharacterKind(game))] = 1;
  if (!game.partyCopy.empty()) kept[Index(CopyKind::Party)] = 1;
  if (!game.runCopy.empty()) kept[Index(CopyKind::Run)] = 1;
  const auto stemInMemory = [&](CopyKind kind) -> const std::string& {
    return kind == CopyKind::Party ? game.partyCopy : kind == CopyKind::Run ? game.runCopy : game.recoveryCopy;
  };
  for (const CopyFile& copy : CopyFiles()) {
    const bool isInMemory = copy.Stem == stemInMemory(copy.Kind);
    if (isInMemory || ++kept[Index(copy.Kind)] <= kRecoveryCopies) continue;
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

/// Takes over the copy that the character or party in memory was recovered from, so that who looks through the copies
/// pushes none out: under a name of this process, and only while it is no other's and holds nothing but `expected`. Its
/// new stem, or none.
std::string GoOnWithCopy(const Game& game, const std::string& path, std::string_view expected) {
  const auto files = CopyFiles();
  const auto file = std::ranges::find(files, path, &CopyFile::Path);
  if (file == files.end() || RunsElsewhere(WriterOf(file->Stem))) return {};
  std::string bytes;
  ReadWholeFile(path, bytes, kLargestCharacterBytes);
  const std::string stem = NewStem(game);
  if (stem.empty() || bytes != expected) return {};
  std::error_code error;
  fs::rename(path, PathOf(stem, file->Kind), error);
  return error ? std::string() : stem;
}

bool ReadDraft(const std::string& path, CharacterDraft& draft) {
  std::string bytes;
  return ReadWholeFile(path, bytes, kLargestCharacterBytes) == FileRead::Done &&
         DecodeCharacter(bytes, draft) == LoadResult::Loaded;
}

bool ReadParty(const std::string& path, Party& party) {
  std::string bytes;
  return ReadWholeFile(path, bytes, kPartyFileBytes) == FileRead::Done && DecodeParty(bytes, party);
}

/// How far a run is that did not come to its end; empty for any other.
std::string UnfinishedRunOf(const std::string& path) {
  std::string text;
  if (ReadWholeFile(path, text, kLargestJournal) != FileRead::Done) return {};
  const RunNote note = NoteOfRun(text);
  return note.IsEnded ? std::string() : DisplayText(note.Text);
}

/// "Ada, Bo": who is in a party.
std::string MemberNames(const Party& party) {
  std::string names;
  for (const PartyMember& member : std::span(party.Rows).subspan(1)) {
    if (!member.Name.Empty()) names += (names.empty() ? "" : ", ") + std::string(member.Name);
  }
  return names;
}

/// Writes a copy, which is begun if there is none yet, and drops what is too old.
void KeepCopy(Game& game, CopyKind kind, std::string& ownStem, std::string_view bytes, SaveWay way) {
  const std::string stem = ownStem.empty() ? NewStem(game) : ownStem;
  if (bytes.empty() || stem.empty()) return;
  std::error_code ignored;
  fs::create_directory(kRecoveryFolder, ignored);
  if (kind == CopyKind::Finished) {
    fs::rename(PathOf(stem, CopyKind::Unfinished), PathOf(stem, kind), ignored);  // as which it was kept till now
  }
  if (!SaveWholeFile(PathOf(stem, kind), bytes, way)) return;
  ownStem = stem;
  DropOldCopies(game);
}

bool RecoverParty(Game& game, const RecoveryCopy& copy) {
  Party party;
  if (!ReadParty(copy.Path, party)) return false;
  KeepPartyCopy(game);
  game.party = party;
  game.partyCopy = GoOnWithCopy(game, copy.Path, EncodeParty(party));
  return true;
}

}  // namespace

void KeepRecoveryCopy(Game& game, SaveWay way) {
  if (!IsBegun(game.sheet) || game.platform.LeavesNoTrace()) return;
  KeepCopy(game, CharacterKind(game), game.recoveryCopy, EncodeCharacter(game), way);
}

void KeepPartyCopy(Game& game, SaveWay way) {
  if (game.party.Count > 0) KeepCopy(game, CopyKind::Party, game.partyCopy, EncodeParty(game.party), way);
}

std::string NewRunPath(Game& game) {
  game.runCopy = NewStem(game);
  if (game.runCopy.empty()) return {};
  std::error_code ignored;
  fs::create_directory(kRecoveryFolder, ignored);
  DropOldCopies(game);
  return PathOf(game.runCopy, CopyKind::Run);
}

void DropRun(const RecoveryCopy& copy) {
  for (const CopyFile& file : CopyFiles()) {
    std::error_code ignored;
    if (file.Path == copy.Path && !RunsElsewhere(WriterOf(file.Stem))) fs::remove(copy.Path, ignored);
  }
}

std::vector<RecoveryCopy> RecoveryCopies() {
  std::vector<CopyFile> files = CopyFiles();
  for (int number = 1; number <= kOldCopies; ++number) {
    CopyFile old{number == 1 ? "autosave.vlf" : Format("autosave%i.vlf", number), {}, CopyKind::Finished};
    if (IsCopyFile(old)) files.push_back(std::move(old));
  }
  SortNewestFirst(files);
  std::vector<RecoveryCopy> copies;
  const auto draft = std::make_unique<CharacterDraft>();
  Party party;
  for (const CopyFile& file : files) {
    RecoveryCopy copy{file.Path, {}, {}, LocalMinute(file.WrittenAt.tv_sec), file.Kind};
    if (file.Kind == CopyKind::Run) {
      copy.Name = UnfinishedRunOf(file.Path);
      if (copy.Name.empty()) continue;
    } else if (file.Kind == CopyKind::Party) {
      if (!ReadParty(file.Path, party)) continue;
      copy.Name = MemberNames(party);
    } else {
      if (!ReadDraft(file.Path, *draft)) continue;
      copy.Name = std::string(draft->sheet.CharacterName);
      copy.ClassName = std::string(draft->sheet.ClassName);
    }
    copies.push_back(std::move(copy));
  }
  std::stable_partition(copies.begin(), copies.end(),
                        [](const RecoveryCopy& copy) { return copy.Kind == CopyKind::Run; });
  return copies;
}

bool Recover(Game& game, const RecoveryCopy& copy) {
  if (copy.Kind == CopyKind::Run) return false;
  if (copy.Kind == CopyKind::Party) return RecoverParty(game, copy);
  const auto draft = std::make_unique<CharacterDraft>();
  if (!ReadDraft(copy.Path, *draft)) return false;  // read before the character in memory may push it out
  KeepRecoveryCopy(game);
  TakeCharacter(game, *draft);
  game.isFinished = copy.Kind == CopyKind::Finished;
  const std::string stem = GoOnWithCopy(game, copy.Path, EncodeCharacter(game));
  if (!stem.empty()) game.recoveryCopy = stem;
  return true;
}

}  // namespace veld
