#pragma once

#include <string>
#include <vector>

#include "store/game.h"

namespace veld {

inline constexpr int kBurnGain = 2;             ///< BP for a point of an ability that is burnt
inline constexpr int kLevelsOfSingleClass = 2;  ///< that a single class rises above the limit of its race

/// The abilities and BP of a character before any race: what Adjust and Burn work on, and what taking another race goes
/// back to.
struct BaseAbilities {
  std::array<AbilityScore, kAbilityCount> Scores;
  int BP = 0;
};

/// The present abilities and (whole) BP as a base.
BaseAbilities TakeBase(const Game& game);
/// Puts the seven whole scores back to the base, so that no race's modifiers are in them.
void RestoreWholeScores(Game& game, const BaseAbilities& base);

/// The races that the present whole scores and the rule switches allow, as the list shows them ("Dwarf, Male").
std::vector<std::string> FittingRaces(const Game& game);

/// Takes a race from the list: the base scores and BP come back, then the race's modifiers and BP are added and its
/// movement is copied. Returns false, with nothing changed but the base restored, for a text that names no race.
bool ApplyRace(Game& game, const BaseAbilities& base, std::string_view listText);

/// Sets what the character's race and gender bind: the weapon size and the level limits of the classes. The limits are
/// those of the race that a half-blood takes after, where there is one; while ClassName names a single class every open
/// limit is 2 higher.
void BindRaceRow(Game& game);

/// The languages that the character's race speaks, the native one first.
std::vector<std::string> RaceLanguages(const Game& game);

/// Forgets the race: nothing is chosen in Step 3.
void ForgetRace(Game& game);

/// Trades 2 points of an ability for 1 of another, away from any race. Returns false, with the scores back at their base
/// and the race kept, if the source is too low: Strength below 3, any other ability below 5.
bool AdjustAbility(Game& game, BaseAbilities& base, Ability source, Ability target);

/// Burns 1 point of an ability for 2 BP, away from any race. Returns false as AdjustAbility does: Strength below 2, any
/// other ability below 4.
bool BurnAbility(Game& game, BaseAbilities& base, Ability ability);

/// All abilities rolled anew; BP and race are gone.
BaseAbilities RerollAbilities(Game& game);

/// Takes the native language of the list's text: a modern language at full mastery with its reading named but not held,
/// or the trail markers of "Glersee". The name of a "Human Dialect" is asked for.
void TakeNativeLanguage(Game& game, const std::string& language);

}  // namespace veld
