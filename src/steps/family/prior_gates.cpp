#include "steps/family/prior_gates.h"

#include <initializer_list>

#include "dice/building_points.h"
#include "platform/platform.h"
#include "rules/priors_tables.h"
#include "rules/quirk_table.h"
#include "steps/family/priors.h"
#include "steps/quirks/free_quirk.h"
#include "steps/quirks/quirks_and_flaws.h"
#include "text/search.h"

namespace veld {

namespace {

void Open(PriorGates& gates, Prior prior) {
  gates[prior] = PriorGate::Open;
}

void Close(PriorGates& gates, std::initializer_list<Prior> priors, PriorGate closed = PriorGate::Closed) {
  for (const Prior prior : priors) gates[prior] = closed;
}

bool IsOpen(const PriorGates& gates, Prior prior) {
  return gates[prior] == PriorGate::Open || gates[prior] == PriorGate::OpenForBP;
}

// --- The results --------------------------------------------------------------------------------------------------

/// A table: the result that it gives and its roll. A result is a text that is not "Unknown", or a number above 0.
struct PriorTable {
  bool (*HasResult)(const CharacterSheet&);
  void (*Generate)(Game&);
};

template <auto Field>
bool HasText(const CharacterSheet& sheet) {
  return sheet.*Field != kPriorUnknown;
}

template <auto Field>
bool HasNumber(const CharacterSheet& sheet) {
  return sheet.*Field != 0;
}

using Sheet = CharacterSheet;

// clang-format off
constexpr std::array<PriorTable, kPriorCount> kPriorTables{{
    {HasNumber<&Sheet::Age>,               GenerateAge},
    {HasText  <&Sheet::Handedness>,        GenerateHandedness},
    {HasNumber<&Sheet::HeightInches>,      GenerateHeight},
    {HasNumber<&Sheet::WeightLbs>,         GenerateWeight},
    {HasText  <&Sheet::SocialClassName>,   GenerateSocialClass},
    {HasText  <&Sheet::BirthCircumstance>, GenerateLegitimacy},
    {HasText  <&Sheet::IllegitimacyNature>, GenerateBirthCircumstance},
    {HasText  <&Sheet::MotherStatus>,      GenerateMotherStatus},
    {HasText  <&Sheet::FatherStatus>,      GenerateFatherStatus},
    {nullptr,                              nullptr},  // the step parent check goes its own way
    {HasText  <&Sheet::MotherQuality>,     GenerateMotherQuality},
    {HasText  <&Sheet::FatherQuality>,     GenerateFatherQuality},
    {HasText  <&Sheet::FamilyHeritage>,    GenerateFamilyHeritage},
    {HasText  <&Sheet::SiblingCountText>,  GenerateSiblingCount},
    {HasText  <&Sheet::BirthOrder>,        GenerateBirthOrder},
}};
// clang-format on

/// What a press of an open table did.
enum class Rolled { No, First, Again };

Rolled RollPrior(Game& game, Prior prior) {
  const PriorTable& table = kPriorTables[prior];
  const bool isAgain = table.HasResult(game.sheet);
  if (isAgain && !Pay(game)) return Rolled::No;
  table.Generate(game);
  return isAgain ? Rolled::Again : Rolled::First;
}

// --- What the parents owe -----------------------------------------------------------------------------------------

void TakeMinorQuirk(Game& game, int& owed) {
  if (owed == 0) return;
  game.platform.ShowMessage("You just earned a Minor quirk");
  RunMinorQuirk(game);
  RunQuirksandFlaws(game);
  --owed;
}

void TakeMajorQuirk(Game& game, int& owed) {
  if (owed == 0) return;
  game.platform.ShowMessage("You just earned a Major quirk");
  RunMajorQuirk(game);
  RunQuirksandFlaws(game);
  --owed;
}

void TakeQualityBP(Game& game, int& owed) {
  game.run.BuildingPoints += static_cast<float>(owed);
  owed = 0;
}

void TakeFromMother(Game& game) {
  TakeMinorQuirk(game, game.run.MotherMinorQuirks);
  TakeMajorQuirk(game, game.run.MotherMajorQuirks);
  TakeQualityBP(game, game.run.MotherQualityBP);
}

void TakeFromBothParents(Game& game) {
  TakeQualityBP(game, game.run.MotherQualityBP);
  TakeQualityBP(game, game.run.FatherQualityBP);
  TakeMinorQuirk(game, game.run.MotherMinorQuirks);
  TakeMajorQuirk(game, game.run.MotherMajorQuirks);
  TakeMinorQuirk(game, game.run.FatherMinorQuirks);
  TakeMajorQuirk(game, game.run.FatherMajorQuirks);
}

// --- How the gates move -------------------------------------------------------------------------------------------

bool IsLegitimate(const Game& game) {
  return game.sheet.BirthCircumstance == "Legitimate";
}

void Advance(PriorGates& gates, Prior closed, Prior opened) {
  Close(gates, {closed});
  Open(gates, opened);
}

void MoveAfterLegitimacy(const Game& game, PriorGates& gates) {
  Close(gates, {kSocialClass, kFatherStatus, kMotherStatus, kIllegitimacyNature});
  Open(gates, IsLegitimate(game) ? kMotherStatus : kIllegitimacyNature);
}

void MoveAfterNature(const Game& game, PriorGates& gates) {
  Close(gates, {kLegitimacy, kMotherStatus, kFatherStatus, kFamilyHeritage});
  if (game.sheet.MotherPresence > kParentUnknown) {
    Open(gates, kMotherStatus);
  } else if (game.sheet.FatherPresence > kParentUnknown) {
    Open(gates, kFatherStatus);
  } else {
    Open(gates, kFamilyHeritage);
  }
}

void MoveAfterMotherStatus(Game& game, PriorGates& gates) {
  const int mother = game.sheet.MotherPresence;
  const int father = game.sheet.FatherPresence;
  const bool isFatherMissed = father == kParentDead && mother != kParentDead;
  Close(gates, {kIllegitimacyNature, kStepParentCheck, kMotherQuality, kFatherStatus, kFamilyHeritage});
  Open(gates, isFatherMissed ? kStepParentCheck : kMotherQuality);
  if (father > kParentDead) Open(gates, kFatherStatus);
  game.sheet.StepParent = isFatherMissed ? "Father?" : kPriorNotApplicable;
}

void MoveAfterFatherStatus(Game& game, PriorGates& gates) {
  const int mother = game.sheet.MotherPresence;
  const int father = game.sheet.FatherPresence;
  Close(gates, {kIllegitimacyNature, kMotherStatus, kStepParentCheck, kMotherQuality, kFatherQuality, kFamilyHeritage});
  game.sheet.StepParent = kPriorNotApplicable;
  if (mother == kParentUnknown) {
    Open(gates, kFatherQuality);
  } else if ((mother == kParentDead) == (father == kParentDead)) {
    Open(gates, kMotherQuality);
  } else {
    Open(gates, kStepParentCheck);
    game.sheet.StepParent = father == kParentDead ? "Father?" : "Mother?";
  }
}

void MoveAfterMotherQuality(const Game& game, PriorGates& gates) {
  Close(gates, {kStepParentCheck, kIllegitimacyNature, kMotherStatus, kFatherStatus});
  Open(gates, game.sheet.FatherPresence > kParentUnknown ? kFatherQuality : kFamilyHeritage);
}

void MoveAfterFatherQuality(Rolled rolled, PriorGates& gates) {
  Close(gates, {kStepParentCheck, kMotherQuality});
  if (rolled == Rolled::First) Close(gates, {kFatherStatus, kMotherStatus});
  Open(gates, kFamilyHeritage);
}

void MoveAfterHeritage(PriorGates& gates) {
  Close(gates, {kLegitimacy, kIllegitimacyNature});
  Close(gates, {kFatherStatus, kMotherStatus, kFatherQuality, kMotherQuality}, PriorGate::ClosedForGood);
  Open(gates, kSiblingNumber);
}

/// An only child has no order of birth to roll, and a legitimate child is born before illegitimate ones.
void MoveAfterSiblingNumber(Game& game, Rolled rolled, PriorGates& gates) {
  CharacterSheet& sheet = game.sheet;
  Close(gates, {kFamilyHeritage});
  if (rolled != Rolled::No) sheet.BirthOrder = kPriorUnknown;
  Open(gates, kBirthOrder);
  if (sheet.SiblingCount == 0) {
    sheet.SiblingCountText = "Only Child";
    sheet.BirthOrder = "Only Child";
    Close(gates, {kBirthOrder});
  } else if (IsLegitimate(game) && sheet.SiblingCount < 0) {
    sheet.BirthOrder = "First born";
    Close(gates, {kBirthOrder});
  }
}

void MoveAfterBirthOrder(Game& game, PriorGates& gates) {
  // Whether the roll was a middle place stays as rolled.
  if (IsLegitimate(game) && game.sheet.SiblingCount < 0) game.sheet.BirthOrder = "First born";
  Close(gates, {kSiblingNumber});
}

void MoveGates(Game& game, PriorGates& gates, Prior prior, Rolled rolled) {
  switch (prior) {
    case kStartingAge:
      return Open(gates, kHandedness);
    case kHandedness:
      return Advance(gates, kStartingAge, kHeight);
    case kHeight:
      return Advance(gates, kHandedness, kWeight);
    case kWeight:
      return Advance(gates, kHeight, kSocialClass);
    case kSocialClass:
      return Advance(gates, kWeight, kLegitimacy);
    case kLegitimacy:
      return MoveAfterLegitimacy(game, gates);
    case kIllegitimacyNature:
      return MoveAfterNature(game, gates);
    case kMotherStatus:
      return MoveAfterMotherStatus(game, gates);
    case kFatherStatus:
      return MoveAfterFatherStatus(game, gates);
    case kMotherQuality:
      return MoveAfterMotherQuality(game, gates);
    case kFatherQuality:
      return MoveAfterFatherQuality(rolled, gates);
    case kFamilyHeritage:
      return MoveAfterHeritage(gates);
    case kSiblingNumber:
      return MoveAfterSiblingNumber(game, rolled, gates);
    case kBirthOrder:
      return MoveAfterBirthOrder(game, gates);
    case kStepParentCheck:
    case kPriorCount:
      return;
  }
}

// --- The step parent check ----------------------------------------------------------------------------------------

bool MayHaveStepParent(int presence) {
  return presence == kParentDead || presence == kStepParentFound;
}
bool MayHaveStepParent(const Game& game) {
  return MayHaveStepParent(game.sheet.FatherPresence) || MayHaveStepParent(game.sheet.MotherPresence);
}

/// Free for the one parent that the first press looks for, 1 BP for each parent looked for later.
void CheckStepParents(Game& game, PriorGates& gates) {
  PriorGate& gate = gates[kStepParentCheck];
  const auto needsFather = [&] { return MayHaveStepParent(game.sheet.FatherPresence); };
  const auto needsMother = [&] { return MayHaveStepParent(game.sheet.MotherPresence); };
  if (gate == PriorGate::OpenForBP) {
    if (needsFather() && Pay(game)) GenerateStepFather(game);
    if (needsMother() && Pay(game)) GenerateStepMother(game);
  } else if (needsFather()) {
    GenerateStepFather(game);
    gate = PriorGate::OpenForBP;
  } else if (needsMother()) {
    GenerateStepMother(game);
    gate = PriorGate::OpenForBP;
  }
  Close(gates, {kIllegitimacyNature, kFatherStatus, kMotherStatus});
  Open(gates, kMotherQuality);
}

/// True if a press of the open table would still bring something new for nothing.
bool AwaitsResult(const Game& game, const PriorGates& gates, Prior prior) {
  switch (prior) {
    case kStepParentCheck:
      return gates[prior] == PriorGate::Open && MayHaveStepParent(game);
    // A race that the tables do not find stays at age and height 0: the first press shows in the gate behind.
    case kStartingAge:
      return !IsOpen(gates, kHandedness);
    case kHeight:
      return !IsOpen(gates, kWeight);
    default:
      return !kPriorTables[prior].HasResult(game.sheet);
  }
}

/// A middle child's personality quirk, with the rolls that it may owe.
void GrantMiddleChildQuirk(Game& game) {
  game.platform.ShowMessage("You just earned a minor personality quirk!");
  if (TakeFreeQuirk(game, kTable6H)) RunQuirksandFlaws(game);
}

}  // namespace

PriorGates OpenPriors(Game& game) {
  game.sheet.StepParent = kPriorUnknown;
  game.sheet.IllegitimacyNature = kPriorUnknown;
  PriorGates gates{};
  Open(gates, kStartingAge);
  return gates;
}

void PressPrior(Game& game, PriorGates& gates, Prior prior) {
  if (!IsOpen(gates, prior)) return;
  if (prior == kStepParentCheck) return CheckStepParents(game, gates);
  if (prior == kHeight) game.sheet.WeightLbs = 0;  // weighed anew, for nothing, even if the height stays the same
  if (prior == kFatherQuality) TakeFromMother(game);
  if (prior == kFamilyHeritage) TakeFromBothParents(game);
  const Rolled rolled = RollPrior(game, prior);
  MoveGates(game, gates, prior, rolled);
}

Prior NextPrior(const Game& game, const PriorGates& gates) {
  if (!EqualsIgnoringCase(game.sheet.BirthOrder, kPriorUnknown)) return kPriorCount;
  Prior next = kPriorCount;
  for (std::size_t i = 0; i < kPriorCount; ++i) {
    const Prior prior = static_cast<Prior>(i);
    if (!IsOpen(gates, prior)) continue;
    next = prior;
    if (AwaitsResult(game, gates, prior)) break;
  }
  return next;
}

bool FinishPriors(Game& game) {
  if (EqualsIgnoringCase(game.sheet.BirthOrder, kPriorUnknown)) {
    game.platform.ShowMessage("You must Complete this section");
    return false;
  }
  if (game.run.IsMiddleChild != 0) GrantMiddleChildQuirk(game);
  ApplyPriorsToInheritance(game);
  game.run.CurrentStep = 7;
  return true;
}

}  // namespace veld
