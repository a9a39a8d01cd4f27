#pragma once

#include <string>

#include "store/game.h"

namespace veld {

// Sums over the classes held.

/// What the classes of a character come to together.
struct ClassTotals {
  std::int64_t Classes = 0;
  std::int64_t Levels = 0;
  std::int64_t HitPoints = 0;                       ///< as SumHitPoints left those of each class
  std::array<std::int64_t, kAbilityCount> Gains{};  ///< percentile points, as SumLevelGains left those of each class
};

/// The totals of the classes held in the first `rows` class rows.
ClassTotals SumClasses(const Game& game, std::size_t rows = kBestSave);

/// Sums the hit points of each class held over its levels.
void SumHitPoints(Game& game);

/// The hit points of all classes with the bonus on each hit die, as the average of the classes.
void SetHitPoints(Game& game, const ClassTotals& totals);

/// The same of a character that nobody has brought up to date: from what was rolled and the present Constitution.
int HitPointsOf(const CharacterSheet& sheet);

/// The names and levels of the classes held, joined by "/"; without any level the name of the class chosen alone.
struct ClassTexts {
  std::string Names;
  std::string Levels;
};
ClassTexts ClassTextsOf(const CharacterSheet& sheet);

/// Puts them into the record.
void SetClassTexts(CharacterSheet& sheet);

/// Who holds a class of mages is one, the battle mage aside.
void JoinMages(CharacterSheet& sheet);

}  // namespace veld
