#pragma once

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "store/side_files.h"
#include "support/scripted_platform.h"

namespace veld::testing {

/// Finished characters, kept as files beside the sheets that they print.
inline const std::string kGolden = std::string(VELD_SOURCE_DIR) + "/tests/sheets/golden/";

inline std::vector<std::string> GoldenNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(kGolden)) {
    if (entry.path().extension() == ".vlf") names.push_back(entry.path().stem().string());
  }
  std::ranges::sort(names);
  return names;
}

/// A game whose goods and spells are those that ship.
inline std::unique_ptr<Game> ShippedGame(Platform& platform) {
  static const std::string kGoods = FileText(std::string(VELD_DATA_DIR) + "/equip.vlb");
  static const std::string kSpells = FileText(std::string(VELD_DATA_DIR) + "/spells.vld");
  auto game = MakeGame(platform);
  game->dice.LogMode = DiceLogMode::Off;
  game->sheet.PlayerName = "Robin";
  DecodeEquipment(kGoods, game->EquipmentTable);
  DecodeSpells(kSpells, game->SpellTable);
  return game;
}

}  // namespace veld::testing
