#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "store/game.h"

namespace veld {

/// What the character's coins are worth, in copper.
std::int64_t PurseWorth(const CharacterSheet& sheet);

/// What a good costs, in copper: never less than the coins that it takes, nor than nothing.
std::int64_t PriceInCopper(const EquipmentRecord& good);

/// The good that a purchase of `text` takes: the first whose name stands in the text, looking at each row of the goods
/// and then at the same row of the user's own goods; null if there is none. A line of the owned list ("Rope x 3") finds
/// its good as well as its bare name does.
EquipmentRecord* FindGood(Game& game, std::string_view text);

/// Buys (`count` 1) or sells (-1) the good that TextScratch asks for, at its full price in its own coin, with change
/// made of larger coins where one runs short, and empties TextScratch. Without the funds the player is told and nothing
/// is changed. A sale is never refused, and then a quantity below 0 is possible.
void TradeItem(Game& game, int count);

/// As TradeItem with no coins moved, and so no funds needed.
void AdjustItem(Game& game, int count);

/// Breaks larger coins for those that are below 0. Only the platinum can be below 0 afterwards: small coins are never
/// gathered up into larger ones.
void MakeChange(CharacterSheet& sheet);

/// The goods of a category (its place in the list, from 0), those of the list before the user's own.
std::vector<const EquipmentRecord*> GoodsOfCategory(const Game& game, int index);

/// The goods of all categories whose names hold a text, in any case; likewise. None for an empty text.
std::vector<const EquipmentRecord*> GoodsHolding(const Game& game, std::string_view text);

/// The goods that the character owns; likewise.
std::vector<const EquipmentRecord*> OwnedGoods(const Game& game);

/// A good as the list of owned ones shows it: "Rope", "Rope x 3".
std::string OwnedLine(const EquipmentRecord& good);

/// Sets CarriedWeightLbs to the weight of what is owned, less what walks and what is harnessed.
void ComputeCarriedWeight(Game& game);

}  // namespace veld
