#include <cstdlib>

#include "fuzz_support.h"
#include "journal/journal_platform.h"
#include "shell/main_menu.h"
#include "silent_platform.h"

using namespace veld;
using fuzz::Require;

namespace {

/// Works in a folder of its own, where the journals go.
void EnterFolder() {
  static char path[] = "/tmp/veld-run-fuzz-XXXXXX";
  static const bool isMade = mkdtemp(path) != nullptr && chdir(path) == 0;
  Require(isMade, "there is a folder to work in");
}

}  // namespace

/// Any text is read as a journal and played as far as it fits; then whoever is there closes all that is open.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  EnterFolder();
  RunJournal run;
  if (!ReadJournal(fuzz::Bytes(data, size), run)) return 0;
  RunJournal again;
  Require(ReadJournal(JournalText(run), again), "a journal that was read can be read again");
  Require(JournalText(again) == JournalText(run), "and is the same");
  SilentPlatform platform;
  JournalPlatform journal(platform);
  const auto game = MakeGame(journal);
  game->dice.LogMode = DiceLogMode::Off;
  journal.Resume(*game, std::move(run), BeginCharacter);
  Require(!journal.IsReplaying(), "the player has the run before him in the end");
  for (int acts = 0; acts < 3 && journal.CanTakeBack(); ++acts) journal.TakeBack();
  return 0;
}
