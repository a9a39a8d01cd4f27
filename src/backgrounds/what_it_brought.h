#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "store/game.h"

namespace veld {

// What a table of a youth did to the character, in words: found by comparing what stood before it and after it.

inline constexpr std::size_t kYouthNumbers = 31;  ///< single numbers that a youth can change

/// All of a character that a youth can change, as it stood at one moment. Big: kept on the heap.
struct SheetSnapshot {
  std::array<AbilityScore, kAbilityCount> Abilities{};
  std::array<int, kSkillRows> SkillScores{};
  DetailNumbers SkillDetailCounts{};
  std::array<int, kTalentRows> TalentCounts{};
  DetailNumbers TalentDetailCounts{};
  std::array<int, kProficiencyRows> ProficiencyLevels{};
  std::array<int, kQuirkCountRows> QuirkCounts{};
  std::array<int, kSpellMarks> SpellsKnown{};
  std::array<float, kClassRows> ClassExperience{};
  std::array<float, kYouthNumbers> Numbers{};  ///< in the order in which they are told
};

std::unique_ptr<SheetSnapshot> TakeSnapshot(const Game& game);

/// What has changed since `before`, a line each: skills with their new score, proficiencies, talents, quirks and flaws,
/// abilities, Honor, money, age, weight and what is laid up for later steps.
std::vector<std::string> WhatItBrought(const Game& game, const SheetSnapshot& before);

}  // namespace veld
