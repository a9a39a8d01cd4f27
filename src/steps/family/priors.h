#pragma once

#include "store/game.h"

namespace veld {

// The rolls of Step 6: each labels its line in the dice log, rolls, and writes its result to the character. None takes
// BP, and none asks whether a result is kept.

/// Starting age in years; 0, with nothing rolled, for a race and gender that the tables do not find.
void GenerateAge(Game& game);
/// By Dexterity and race; an elf is ambidextrous without a roll.
void GenerateHandedness(Game& game);
/// Height in inches; 0 for a race and gender that are not found.
void GenerateHeight(Game& game);
/// Weight in pounds; 999 for a race and gender that are not found.
void GenerateWeight(Game& game);
/// Social class and its index (1 to 12).
void GenerateSocialClass(Game& game);
/// Legitimacy of birth, and what the nature of an illegitimacy starts as.
void GenerateLegitimacy(Game& game);
/// The nature of an illegitimacy, and which parents are known.
void GenerateBirthCircumstance(Game& game);
/// The mother's status. A father who is known gets a status too, until his own is rolled.
void GenerateMotherStatus(Game& game);
void GenerateFatherStatus(Game& game);
/// Looks for a step mother. A step mother found earlier stays found whatever the roll.
void GenerateStepMother(Game& game);
/// Looks for a step father. One found earlier can't be lost, only rolled a new status.
void GenerateStepFather(Game& game);
/// A parent's quality: replaces the quirks and BP that the parent owes the character.
void GenerateMotherQuality(Game& game);
void GenerateFatherQuality(Game& game);
void GenerateFamilyHeritage(Game& game);
/// Number of siblings; negative for illegitimate ones.
void GenerateSiblingCount(Game& game);
/// Order of birth among the siblings, and whether that is a middle place; unchanged for a number that has no table.
void GenerateBirthOrder(Game& game);

/// The message that tells which classes the character's social class may take; shows nothing before it is rolled.
void TellSocialClassLimits(Game& game);

/// Adds what social class and order of birth bring to the inheritance (in points of the money roll), and tells an
/// orphan by the parents' presence in between. Once, when Step 6 ends well.
void ApplyPriorsToInheritance(Game& game);

}  // namespace veld
