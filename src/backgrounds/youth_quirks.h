#pragma once

#include <algorithm>
#include <cstddef>

#include "store/game.h"

namespace veld {

/// Rows of the quirk catalogue that the tables of a youth name.
namespace YouthQuirk {
inline constexpr int LossOfEar = 13;
inline constexpr int LossOfEye = 14;
inline constexpr int MissingFinger = 17;
inline constexpr int FacialScar = 19;
inline constexpr int VisionImpaired = 28;
inline constexpr int BlindInOneEye = 29;
inline constexpr int FarVisionImpaired = 30;
inline constexpr int Blind = 39;
inline constexpr int NoDepthPerception = 46;
inline constexpr int Alcoholic = 54;
inline constexpr int GamblingAddiction = 60;
inline constexpr int NaggingConscience = 64;
inline constexpr int Paranoid = 65;
inline constexpr int TemperTantrums = 68;
inline constexpr int MulePhobia = 455;
inline constexpr int FacialBurns = 456;
}  // namespace YouthQuirk

inline int& QuirkCount(Game& game, int row) {
  return game.sheet.QuirkCounts[static_cast<std::size_t>(row)];
}
/// How often a quirk or flaw is held; a barred one is not.
inline int QuirksHeld(const Game& game, int row) {
  return std::max(game.sheet.QuirkCounts[static_cast<std::size_t>(row)], 0);
}
inline bool HoldsQuirk(const Game& game, int row) {
  return QuirksHeld(game, row) > 0;
}
inline void SetQuirk(Game& game, int row) {
  QuirkCount(game, row) = 1;
}
inline void AddQuirk(Game& game, int row) {
  QuirkCount(game, row) = QuirksHeld(game, row) + 1;
}

}  // namespace veld
