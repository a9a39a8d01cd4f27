#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <type_traits>

#include "store/game.h"
#include "store/side_files.h"
#include "support/dice_player.h"

namespace veld::testing {

/// A game that logs no dice. The program throws them, but for a player who throws real ones.
template <typename Player>
std::unique_ptr<Game> QuietGame(Player& player) {
  auto game = MakeGame(player);
  game->dice.LogMode = DiceLogMode::Off;
  game->RuleSwitches[kRollYourOwnDice] = std::is_base_of_v<DicePlayer, Player> ? 1 : 0;
  return game;
}

/// The goods and spells that ship.
inline void LoadShippedCatalogues(Game& game) {
  static const std::string kGoods = FileText(std::string(VELD_DATA_DIR) + "/equip.vlb");
  static const std::string kSpells = FileText(std::string(VELD_DATA_DIR) + "/spells.vld");
  DecodeEquipment(kGoods, game.EquipmentTable);
  DecodeSpells(kSpells, game.SpellTable);
}

/// What most tests begin with: somebody who plays, and a quiet game of his.
template <typename Player = ScriptedPlatform>
class GameTest : public ::testing::Test {
 protected:
  /// Runs a dialog that is played by `act`, which must close it.
  void Play(const char* form, void (*run)(Game&), std::function<void(Form&)> act) {
    platform.ExpectForm(form, std::move(act));
    run(*game);
  }

  Player platform;
  Player& player = platform;
  std::unique_ptr<Game> game = QuietGame(platform);
  CharacterSheet& sheet = game->sheet;
};

}  // namespace veld::testing
