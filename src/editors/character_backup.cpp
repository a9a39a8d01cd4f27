#include "editors/character_backup.h"

namespace veld {

CharacterBackup::CharacterBackup(const Game& game)
    : sheet_(std::make_unique<CharacterSheet>(game.sheet)),
      run_(std::make_unique<GenerationRun>(game.run)),
      goods_(new Goods{game.EquipmentTable, game.CustomEquipmentTable, game.CameWithCharacter}),
      recoveryCopy_(game.recoveryCopy),
      character_(game.characters),
      isFinished_(game.isFinished) {}

void CharacterBackup::Restore(Game& game) const {
  game.sheet = *sheet_;
  game.run = *run_;
  game.EquipmentTable = goods_->Shop;
  game.CustomEquipmentTable = goods_->Custom;
  game.CameWithCharacter = goods_->CameWithCharacter;
  game.recoveryCopy = recoveryCopy_;
  game.characters = character_;
  game.isFinished = isFinished_;
}

}  // namespace veld
