#include "store/recovery.h"

#include <sys/stat.h>

#include <ctime>
#include <filesystem>

namespace veld {

namespace fs = std::filesystem;

namespace {

std::string CopyPath(int number) { return number == 1 ? "autosave.vlf" : Format("autosave%i.vlf", number); }

bool IsBegun(const CharacterSheet& sheet) { return sheet.RaceName != "Unknown" || sheet.CharacterName != "name"; }

/// Moves each copy one place on; the last one goes.
void MoveCopiesOn() {
  std::error_code ignored;
  for (int number = kRecoveryCopies; number > 1; --number) {
    fs::rename(CopyPath(number - 1), CopyPath(number), ignored);
  }
}

std::string LocalMinute(std::int64_t seconds) {
  const auto time = static_cast<std::time_t>(seconds);
  std::tm local{};
  if (!localtime_r(&time, &local)) return {};
  return Format("%04i-%02i-%02i %02i:%02i", local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                local.tm_min);
}

/// The time a file was last written, in seconds since 1970.
std::int64_t WrittenAt(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 ? static_cast<std::int64_t>(status.st_mtime) : 0;
}

bool ReadDraft(const std::string& path, CharacterDraft& draft) {
  std::string bytes;
  return ReadWholeFile(path, bytes, kLargestCharacterBytes) == FileRead::Done &&
         DecodeCharacter(bytes, draft) == LoadResult::Loaded;
}

}  // namespace

void KeepRecoveryCopy(Game& game) {
  if (!IsBegun(game.sheet)) return;
  if (!game.hasRecoveryCopy) MoveCopiesOn();
  game.hasRecoveryCopy = true;
  SaveWholeFile(CopyPath(1), EncodeCharacter(game), {.Flush = false});
}

void LeaveRecoveryCopy(Game& game) {
  KeepRecoveryCopy(game);
  game.hasRecoveryCopy = false;
}

std::vector<RecoveryCopy> RecoveryCopies() {
  std::vector<RecoveryCopy> copies;
  const auto draft = std::make_unique<CharacterDraft>();
  for (int number = 1; number <= kRecoveryCopies; ++number) {
    const std::string path = CopyPath(number);
    if (!ReadDraft(path, *draft)) continue;
    copies.push_back({path, std::string(draft->sheet.CharacterName), std::string(draft->sheet.ClassName),
                      LocalMinute(WrittenAt(path))});
  }
  return copies;
}

bool Recover(Game& game, const std::string& path) {
  const auto draft = std::make_unique<CharacterDraft>();
  if (!ReadDraft(path, *draft)) return false;  // read before the copies move on
  LeaveRecoveryCopy(game);
  TakeCharacter(game, *draft);
  return true;
}

}  // namespace veld
