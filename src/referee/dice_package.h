#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "store/game.h"
#include "store/safe_file.h"
#include "text/fixed_text.h"

namespace veld {

inline constexpr std::size_t kDiceRows = 10;
inline constexpr std::size_t kDiceRolls = 500;

/// A referee's dice roll: ten rows of dice under a name, as a package file holds it.
struct DiceRollRecord {
  std::array<int, kDiceRows> Include{};  ///< 1: the row is rolled
  std::array<int, kDiceRows> Times{};    ///< dice of the row
  std::array<int, kDiceRows> Sides{};
  std::array<int, kDiceRows> ModPerDie{};      ///< added to each die
  std::array<int, kDiceRows> ModPerRoll{};     ///< added once to the row
  std::array<int, kDiceRows> Penetrate{};      ///< 1: its dice penetrate
  std::array<int, kDiceRows> HonorModifier{};  ///< -1, 0 or 1; anything else counts as 0 and shows as none of them
  FixedText<256> Name;                         ///< empty: a free slot
};
inline constexpr std::size_t kDiceRollBytes = 536;
static_assert(sizeof(DiceRollRecord) == kDiceRollBytes);

/// Big: lives on the heap.
using DicePackage = std::array<DiceRollRecord, kDiceRolls>;
inline constexpr std::size_t kDicePackageBytes = kDiceRolls * kDiceRollBytes;

/// A free slot. Its Honor modifiers are the ids of the roller's "0" buttons: none of -1, 0 and 1.
DiceRollRecord FreeDiceRoll();
void ResetDicePackage(DicePackage& package);

/// Puts a roll in the slot of its name, or else in the first free one, whose place it returns. Nothing if the package
/// is full or the roll has no name.
std::optional<std::size_t> StoreDiceRoll(DicePackage& package, const DiceRollRecord& roll);

/// Reads a whole package; false, and nothing is read, if the bytes are too few.
bool DecodeDicePackage(std::string_view bytes, DicePackage& package);
std::string EncodeDicePackage(const DicePackage& package);

/// A failure is told in a message, and leaves the package, or the file, as it was.
bool LoadDicePackage(Game& game, const std::string& path, DicePackage& package);
bool SaveDicePackage(Game& game, const std::string& path, const DicePackage& package, SaveWay way = {});

}  // namespace veld
