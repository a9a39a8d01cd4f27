#pragma once

#include "store/game.h"

namespace veld {

// Stages of a generation whose rooms are not built yet. Each moves CurrentStep on as its dialog's OK would, so that a
// run goes from Step 3 to the save question; each is replaced by its room in turn.

/// Step 6, "Character Priors and Particulars": age, height, weight, birth, social class and family by fifteen tables.
void RunStepSix(Game& game);
/// What each sibling is like, a line for each.
void RunSiblings(Game& game);
/// Step 7: quirks and flaws picked from lists, or rolled for on the tables.
void RunCherryPick(Game& game);
/// Pays the BP that the quirks earned, in one sum.
void PayQuirks(Game& game);
/// What the quirks held do to the character: barred classes, lowered abilities.
void ApplyQuirkEffects(Game& game);
/// Step 8: BP buy percentile points of abilities.
void RunStepEight(Game& game);
/// A half-blood takes after one parent's race, for BP.
void RunTakeAfter(Game& game);
/// Step 9: choose a class.
void RunStepNine(Game& game);

enum class PackageList { Fighter, Mage };
/// Chooses a background package of a list.
void RunPackageSelect(Game& game, PackageList list);
/// Gives what the package named in PackageName gives.
void ApplyPackage(Game& game);
/// A fighter's military youth.
void RunWMABackground(Game& game);
/// A mage's school years.
void RunHXABackground(Game& game);
/// A priest's seminary.
void RunDVABackground(Game& game);

/// A mage's cantrips and starting spells.
void RunSpellSellection(Game& game);
/// Deals the spells that are not chosen.
void FinishSpellList(Game& game);
/// Writes the known spells into a first spell book.
void MakeFirstSpellBook(Game& game);

/// Step 10: age, starting money, debt and inheritance.
void RunStepTen(Game& game);
/// Honor and Honor Die from the abilities, birth and youth.
void ComputeHonor(Game& game);
/// What race, class and youth give of skills, before any is bought.
void RunSkillSetup(Game& game);
/// Step 12: skills, talents and weapon proficiencies are bought.
void RunSkills(Game& game);
/// Step 14: choose an alignment.
void RunStepFourteen(Game& game);
/// Step 18: name the character.
void RunStepEightteen(Game& game);
/// Step 19: equipment purchasing.
void RunEquip(Game& game);

}  // namespace veld
