#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "rules/equipment_catalogue.h"
#include "store/game.h"

namespace veld {

struct CoinKind {
  std::string_view Name;
  int CharacterSheet::*Count;
  int Copper;  ///< what one is worth
};

/// The coins as a page lists them.
inline constexpr std::array<CoinKind, 6> kCoinKinds{
    {{"Gold pieces", &CharacterSheet::GoldPieces, kGoldValue},
     {"Silver pieces", &CharacterSheet::SilverPieces, kSilverValue},
     {"Copper pieces", &CharacterSheet::CopperPieces, 1},
     {"Electrum pieces", &CharacterSheet::ElectrumPieces, kElectrumValue},
     {"Hard silver pieces", &CharacterSheet::HardSilverPieces, kHardSilverValue},
     {"Platinum pieces", &CharacterSheet::PlatinumPieces, kPlatinumValue}}};

/// The most of a coin that a page lets a character have.
inline constexpr int kMostCoins = 999'999'999;

/// Adds coins (0 to kMostCoins) to the purse and tells so.
std::string FindMoney(CharacterSheet& sheet, const CoinKind& coin, std::int64_t count);

/// Pays coins (0 to kMostCoins) out of the purse: in that coin as far as it goes, then in others, with change for the
/// last in gold, silver and copper. Tells what happened; a purse that does not hold as much stays as it is.
std::string SpendMoney(CharacterSheet& sheet, const CoinKind& coin, std::int64_t count);

}  // namespace veld
