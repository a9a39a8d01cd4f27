#pragma once

#include <array>

#include "store/game.h"

namespace veld {

/// The fifteen tables of Step 6, in the order of their buttons.
enum Prior : std::size_t {
  kStartingAge,
  kHandedness,
  kHeight,
  kWeight,
  kSocialClass,
  kLegitimacy,
  kIllegitimacyNature,
  kMotherStatus,
  kFatherStatus,
  kStepParentCheck,
  kMotherQuality,
  kFatherQuality,
  kFamilyHeritage,
  kSiblingNumber,
  kBirthOrder,
  kPriorCount,
};

/// Whether a table can be rolled.
enum class PriorGate {
  Closed,
  Open,
  OpenForBP,      ///< of the step parent check alone: each parent that is looked for costs 1 BP
  ClosedForGood,  ///< of the parents' tables once the family's heritage is reached
};
using PriorGates = std::array<PriorGate, kPriorCount>;

/// Starts Step 6: only Starting Age is open; the texts of the step parent and of the illegitimacy are "Unknown".
PriorGates OpenPriors(Game& game);

/// A press of a table's button. While its gate is open a table that has no result yet is rolled for nothing, else it is
/// rolled again for 1 BP while BP are above 0; then the gates move on, rolled or not, so that every character can reach
/// the end of the step. Quality of Father and Family Heritage first take what the parents owe.
void PressPrior(Game& game, PriorGates& gates, Prior prior);

/// The table whose press leads on: the first open one without a result, else the last open one. kPriorCount when the
/// step is complete.
Prior NextPrior(const Game& game, const PriorGates& gates);

/// Ends Step 6: grants a middle child's quirk, changes the inheritance, and CurrentStep becomes 7. Returns false,
/// having told the player, while there is no order of birth.
bool FinishPriors(Game& game);

}  // namespace veld
