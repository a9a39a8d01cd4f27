#pragma once

#include <memory>
#include <string>
#include <vector>

#include "store/character_file.h"
#include "store/game.h"

namespace veld {

// Recovery copies: character and party files in a folder of the working directory. Each belongs to one character or
// party in memory and is written again and again while that stays there. Its name tells when it was begun, by which
// process, and what it is: "20261121-140533-1234-1-finished.vlf".

inline constexpr char kRecoveryFolder[] = "recovery";
/// What a copy is of: a character on its way, one that is made, a referee's party, a run as it was played.
enum class CopyKind { Unfinished, Finished, Party, Run };
inline constexpr std::size_t kCopyKinds = 4;
/// How many copies of each kind are kept.
inline constexpr int kRecoveryCopies = 5;

/// Writes the character in memory over its recovery copy, silently. Once that is done the oldest copies beyond five of
/// their kind go, but not those of a program that still runs. A character that nobody has begun is not kept. Without
/// the flush to disk: a copy guards against the program's end.
void KeepRecoveryCopy(Game& game, SaveWay way = {.Flush = false});

/// The same for the party in memory. One without a member is not kept.
void KeepPartyCopy(Game& game, SaveWay way = {.Flush = false});

/// The path of a new journal, in the folder of the copies, for the run that begins; the oldest journals beyond five go.
/// Empty if there is none to be had.
std::string NewRunPath(Game& game);

struct RecoveryCopy;
/// Removes the journal of a run that was taken up, unless a program that still runs plays it.
void DropRun(const RecoveryCopy& copy);

struct RecoveryCopy {
  std::string Path;
  std::string Name;       ///< of a party those of its members; of a run how far it is
  std::string ClassName;  ///< of a character
  std::string Time;       ///< "2026-11-21 14:05", of the desktop's time zone
  CopyKind Kind = CopyKind::Unfinished;
};

/// The runs that did not come to their end, newest first, then the copies that can be loaded, newest first; with them
/// the autosave.vlf to autosave5.vlf of earlier versions.
std::vector<RecoveryCopy> RecoveryCopies();

/// Makes a copy, but of a run, the character, or the party, in memory; the one that was there is kept as a copy first.
/// False if it can't be read.
bool Recover(Game& game, const RecoveryCopy& copy);

}  // namespace veld
