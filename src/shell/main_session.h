#pragma once

#include <string>
#include <vector>

#include "generation/main_title.h"
#include "journal/journal_platform.h"
#include "store/game.h"

namespace veld {

/// What the main window does beyond its commands: it plays runs that can be taken back and taken up again, and takes
/// back the last changes that were made to a finished character.
class MainSession {
 public:
  MainSession(Game& game, JournalPlatform& journal) : game_(game), journal_(journal) {
    journal_.onChanged = ShowCharacter;
  }

  /// Carries out a command of the main menu.
  void Command(int id);
  /// Plays the run of a journal file to its last act and goes on from there.
  void PlayFile(const std::string& path);

 private:
  /// A character as he was before a change.
  struct Before {
    std::string Bytes;  ///< of a character file
    bool IsFinished = false;
    std::string RecoveryCopy = {};
  };

  Before Present() const;
  void BringBack(const Before& before);
  void Edit();
  void Undo();
  void Redo();
  void Recover();
  void SaveRun();
  void Forget();

  Game& game_;
  JournalPlatform& journal_;
  std::vector<Before> changes_;    ///< the last changes of Edit, each as it was before
  std::vector<Before> takenBack_;  ///< those that were taken back
};

}  // namespace veld
