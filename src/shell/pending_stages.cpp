#include "shell/pending_stages.h"

namespace veld {

void RunStepSix(Game& game) { game.run.CurrentStep = 7; }
void RunSiblings(Game& game) { game.run.CurrentStep = 7; }
void RunCherryPick(Game& game) { game.run.CurrentStep = 8; }
void PayQuirks(Game&) {}
void ApplyQuirkEffects(Game&) {}
void RunStepEight(Game& game) { game.run.CurrentStep = 9; }
void RunTakeAfter(Game&) {}
void RunStepNine(Game& game) { game.run.CurrentStep = 10; }
void RunPackageSelect(Game&, PackageList) {}
void ApplyPackage(Game&) {}
void RunWMABackground(Game&) {}
void RunHXABackground(Game&) {}
void RunDVABackground(Game&) {}
void RunSpellSellection(Game&) {}
void FinishSpellList(Game&) {}
void MakeFirstSpellBook(Game&) {}
void RunStepTen(Game& game) { game.run.CurrentStep = 11; }
void ComputeHonor(Game&) {}
void RunSkillSetup(Game&) {}
void RunSkills(Game& game) { game.run.CurrentStep = 13; }
void RunStepFourteen(Game& game) { game.run.CurrentStep = 15; }
void RunStepEightteen(Game& game) { game.run.CurrentStep = 19; }
void RunEquip(Game&) {}

}  // namespace veld
