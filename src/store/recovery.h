#pragma once

#include <memory>
#include <string>
#include <vector>

#include "store/character_file.h"
#include "store/game.h"

namespace veld {

/// Recovery copies in the working directory, newest first: autosave.vlf, autosave2.vlf, ... Each belongs to one
/// character in memory; it is written again and again while that character stays there.
inline constexpr int kRecoveryCopies = 5;

/// Writes the character in memory over its recovery copy, silently; the first time for a character the older copies
/// move on and the last one goes. A character that nobody has begun is not kept. Without the flush to disk: a copy
/// guards against the program's end, and there are five.
void KeepRecoveryCopy(Game& game);

/// As KeepRecoveryCopy, and the next copy is a new one: called before another character takes the memory.
void LeaveRecoveryCopy(Game& game);

struct RecoveryCopy {
  std::string Path;
  std::string Name;
  std::string ClassName;
  std::string Time;  ///< "2026-11-21 14:05", of the desktop's time zone
};

/// The copies that can be loaded, newest first.
std::vector<RecoveryCopy> RecoveryCopies();

/// Makes a copy the character in memory; the one that was there is kept as a copy first. False if it can't be read.
bool Recover(Game& game, const std::string& path);

}  // namespace veld
