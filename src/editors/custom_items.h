#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "store/game.h"
#include "store/safe_file.h"

namespace veld {

/// The coins that a price can stand in.
inline constexpr std::array<std::string_view, 3> kPriceCoins{"gp", "sp", "cp"};

inline constexpr int kLargestPrice = 999'999;  ///< in any coin
inline constexpr int kLargestWeight = 99'999;  ///< pounds

/// A good as the user types it.
struct GoodEntry {
  std::string Name = {};    ///< blanks around it count for nothing
  std::string Price = {};   ///< a whole number, 0 to kLargestPrice, of one coin
  int Coin = 0;             ///< place in kPriceCoins
  std::string Weight = {};  ///< pounds, 0 to kLargestWeight, with a point before fractions
  int Category = 0;         ///< 1 to 21
};

enum class GoodField { None, Name, Price, Coin, Weight, Category };

/// What became of a change of the user's goods.
struct GoodResult {
  std::string Refusal = {};           ///< why nothing was changed; empty: done, and saved
  GoodField Field = GoodField::None;  ///< of the entry that is refused
  std::size_t Row = 0;                ///< of CustomEquipmentTable, where the good stands now
};

// The user's goods are the rows of CustomEquipmentTable that did not come with the character in memory. Each change is
// saved to cequip.vlb at once; if the save fails, which it tells itself, the table is as it was before. Nothing of an
// entry is cut: what does not fit is refused, and so is a name by which the trade could take one good for another.

/// Puts a new good in the first free row. A full list is refused.
GoodResult AddCustomGood(Game& game, const GoodEntry& entry, SaveWay way = {});

/// Changes a good in its row. What the character owns of it stays his, and what he carries is weighed anew. One that
/// came with the character remains his alone. A row without a good is refused.
GoodResult ChangeCustomGood(Game& game, std::size_t row, const GoodEntry& entry, SaveWay way = {});

/// Frees the row of a good. One that the character owns is refused, and a row without a good.
GoodResult DeleteCustomGood(Game& game, std::size_t row, SaveWay way = {});

/// Makes a good that came with the character the user's own. One that could not be added as it is, is refused, and one
/// that is the user's already.
GoodResult KeepCustomGood(Game& game, std::size_t row, SaveWay way = {});

/// The rows whose names hold a text, in any case; all that have a good for an empty text.
std::vector<std::size_t> CustomGoodRows(const Game& game, std::string_view search);

/// A good as the list shows it: "Moon lamp", "Moon lamp (came with Brom)".
std::string CustomGoodLine(const Game& game, std::size_t row);

/// What there is to know of a chosen good before it is changed; empty if nothing.
std::string CustomGoodNote(const Game& game, std::size_t row);

/// A good as the user would type it. A price in several coins is told in copper.
GoodEntry EntryOf(const EquipmentRecord& good);

}  // namespace veld
