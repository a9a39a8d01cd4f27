#pragma once

#include <memory>
#include <string>

#include "store/game.h"

namespace veld {

/// The character as it was when this was made: what a page of the editor goes back to when it is cancelled. Pages
/// change the character in memory itself, so that every rule works on it as it does in a generation.
class CharacterBackup {
 public:
  explicit CharacterBackup(const Game& game);
  /// Puts the character, the run and the goods back. Training.log and dice.log keep their lines.
  void Restore(Game& game) const;
  const CharacterSheet& Sheet() const { return *sheet_; }

 private:
  struct Goods {
    decltype(Game::EquipmentTable) Shop;
    decltype(Game::CustomEquipmentTable) Custom;
    decltype(Game::CameWithCharacter) CameWithCharacter;
  };

  std::unique_ptr<CharacterSheet> sheet_;
  std::unique_ptr<GenerationRun> run_;
  std::unique_ptr<Goods> goods_;
  std::string recoveryCopy_;
  int character_;
  bool isFinished_;
};

}  // namespace veld
