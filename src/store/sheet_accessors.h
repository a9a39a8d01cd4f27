#pragma once

#include <cstdint>
#include <numeric>
#include <string_view>

#include "rules/named_rows.h"
#include "store/character_sheet.h"
#include "text/numbers.h"

namespace veld {

// What an element of the character's arrays means where its number doesn't tell. An `auto&` sheet is one to be changed
// or one that is only read.

inline bool HasClass(const CharacterSheet& sheet, int classRow) {
  return sheet.ClassLevels[static_cast<std::size_t>(classRow)] > 0;
}
inline bool HasQuirk(const CharacterSheet& sheet, int quirkRow) {
  return sheet.QuirkCounts[static_cast<std::size_t>(quirkRow)] > 0;
}

/// The race that a half-blood takes after; empty if there is none.
inline std::string_view RaceTakenAfter(const CharacterSheet& sheet) {
  const bool takesAfter = sheet.TalentDetailCounts[TalentFamily::TakeAfter][0] > 0;
  return takesAfter ? sheet.TalentDetailNames[TalentFamily::TakeAfter][0].View() : std::string_view();
}
inline void TakeAfterRace(CharacterSheet& sheet, std::string_view race) {
  sheet.TalentDetailNames[TalentFamily::TakeAfter][0] = race;
  sheet.TalentDetailCounts[TalentFamily::TakeAfter][0] = 1;
}

/// The native language is the first of the languages; its writing has its name, and a mastery only once it is learnt.
inline auto& NativeLanguageName(auto& sheet) {
  return sheet.SkillDetailNames[SkillFamily::Language][0];
}
inline auto& NativeLanguageMastery(auto& sheet) {
  return sheet.SkillDetailCounts[SkillFamily::Language][0];
}
inline auto& NativeWritingName(auto& sheet) {
  return sheet.SkillDetailNames[SkillFamily::ReadingWriting][0];
}

/// The hit points that a class brings before its first level.
inline auto& BaseHitPoints(auto& sheet, int classRow) {
  return sheet.LevelHitPoints[0][static_cast<std::size_t>(classRow)];
}

/// The best of a saving throw's numbers by class.
inline int& BestSave(SaveNumbers& save) {
  return save[kBestSave];
}
inline int BestSave(const SaveNumbers& save) {
  return save[kBestSave];
}

/// The sum that a level table holds, as SumLevels left it.
inline int LevelSum(const LevelNumbers& numbers) {
  return numbers[kLevelSum];
}
inline void SumLevels(LevelNumbers& numbers) {
  numbers[kLevelSum] = SaturateToInt(std::accumulate(numbers.begin(), numbers.begin() + kLevelSum, std::int64_t{0}));
}

}  // namespace veld
