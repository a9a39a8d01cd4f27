#pragma once

#include <string>
#include <vector>

#include "store/game.h"

namespace veld {

// What the character has of the catalogue of quirks and flaws, and what it earned.

/// What later rows earned is shown, but never paid, nor forgotten.
inline constexpr int kLastPaidQuirk = 599;

/// How often a row (0 to 699) is held; -1 bars it.
inline int& HeldCount(Game& game, int row) {
  return game.sheet.QuirkCounts[static_cast<std::size_t>(row)];
}
inline int HeldCount(const Game& game, int row) {
  return game.sheet.QuirkCounts[static_cast<std::size_t>(row)];
}

/// BP that the quirks and flaws have earned so far.
int PotentialQuirkBP(const Game& game);

/// The minor and major quirks and flaws held, each as often as it is held.
std::vector<std::string> HeldQuirkNames(const Game& game);

/// Binds the character to the classes of a supplement: its Uses...Background becomes 1. Other books bind nothing.
void BindToBook(Game& game, int book);

}  // namespace veld
