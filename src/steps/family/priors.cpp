#include "steps/family/priors.h"

#include "dice/dice.h"
#include "platform/platform.h"
#include "rules/priors_tables.h"
#include "rules/race_table.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

const RaceRecord& Race(int row) {
  return RaceTable()[static_cast<std::size_t>(row)];
}

/// The race row for age, height and weight; nothing for the one that their search leaves out.
const RaceRecord* SearchedRace(const Game& game) {
  const int row = FindSearchedRaceRow(game.sheet.RaceName, game.sheet.Gender);
  return row < 0 ? nullptr : &Race(row);
}

/// Rolls under the label "Generate <what>: <race>, <gender>, <count>d<sides>.".
int RollLabelled(Game& game, std::string_view what, std::string_view race, std::string_view gender, int sides,
                 int count = 1) {
  game.dice.DiceLabel = Format("Generate %s: %s, %s, %id%i.", what, race, gender, count, sides);
  return RollDice(game, sides, count);
}

int RollLabelled(Game& game, std::string_view what, int sides, int count = 1) {
  return RollLabelled(game, what, game.sheet.RaceName, game.sheet.Gender, sides, count);
}

/// As RollLabelled, with the race of another search: one that moves on from the first row only while the row is the
/// character's own. So the log names the first race for nearly everybody. Kept: it shows in the log alone.
int RollLabelledByFirstRace(Game& game, std::string_view what, int sides) {
  const auto isOwn = [&](const RaceRecord& race) {
    return EqualsIgnoringCase(race.Name, game.sheet.RaceName) && EqualsIgnoringCase(race.Gender, game.sheet.Gender);
  };
  int row = 0;
  while (row < kRacesFilled - 1 && isOwn(Race(row))) ++row;
  return RollLabelled(game, what, Race(row).Name, Race(row).Gender, sides);
}

}  // namespace

void GenerateAge(Game& game) {
  const RaceRecord* race = SearchedRace(game);
  game.sheet.Age = race ? race->AgeBase + RollLabelled(game, "Age", race->AgeDieSides, race->AgeDieCount) : 0;
}

void GenerateHandedness(Game& game) {
  const bool isBornAmbidextrous = IsBornAmbidextrous(game.sheet.RaceName);
  const int roll = isBornAmbidextrous ? 0 : RollLabelledByFirstRace(game, "Handeness", 100);
  game.sheet.Handedness = HandednessOf(game.sheet.RaceName, game.sheet.Dexterity.Whole, roll);
}

void GenerateHeight(Game& game) {
  const RaceRecord* race = SearchedRace(game);
  game.sheet.HeightInches = race ? race->HeightBase + RollDice(game, race->HeightDieSides, race->HeightDieCount) : 0;
}

void GenerateWeight(Game& game) {
  constexpr int kNoWeight = 999;  // not 0: a weight that is plainly wrong is told from one not rolled
  const RaceRecord* race = SearchedRace(game);
  game.sheet.WeightLbs =
      race ? race->WeightBase + RollDice(game, race->WeightDieSides, race->WeightDieCount) : kNoWeight;
}

void GenerateSocialClass(Game& game) {
  const int roll = RollLabelled(game, "Social Class", 100);
  RollDice(game, 20, 1);  // thrown and not used, whatever the class
  auto socialClass = SocialClassOf(AddSaturated(roll, game.run.SocialClassModifier));
  if (!socialClass) socialClass = SlaveClassOf(RollLabelled(game, "Slave Class Breakdown", 20));
  game.sheet.SocialClassName = socialClass->Name;
  game.sheet.SocialClassIndex = socialClass->Index;
}

void GenerateLegitimacy(Game& game) {
  const int roll = RollLabelled(game, "Legitimacy of Birth", 100);
  const Legitimacy legitimacy = LegitimacyOf(AddSaturated(roll, game.run.LegitimacyModifier));
  game.sheet.BirthCircumstance = legitimacy.BirthCircumstance;
  game.sheet.IllegitimacyNature = legitimacy.IllegitimacyNature;
}

void GenerateBirthCircumstance(Game& game) {
  const int roll = RollLabelledByFirstRace(game, "Circumstance of Birth", 100);
  const int total = AddSaturated(roll, game.run.BirthModifier);
  int secondRoll = 0;
  switch (SecondRollOfIllegitimacy(total)) {
    case SecondBirthRoll::None:
      break;
    case SecondBirthRoll::Father:
      secondRoll = RollLabelledByFirstRace(game, "Circumstance of father", 100);
      break;
    case SecondBirthRoll::Mother:
      secondRoll = RollLabelledByFirstRace(game, "Circumstance of mother", 100);
      break;
  }
  const IllegitimacyNature nature = IllegitimacyNatureOf(total, secondRoll);
  game.sheet.IllegitimacyNature = nature.Text;
  game.sheet.IsOrphan = nature.IsOrphan;
  game.sheet.MotherPresence = nature.MotherPresence;
  game.sheet.FatherPresence = nature.FatherPresence;
}

void GenerateMotherStatus(Game& game) {
  const MotherStatus status = MotherStatusOf(RollLabelled(game, "Status of Mother", 100));
  game.sheet.MotherStatus = status.Mother.Text;
  game.sheet.MotherPresence = status.Mother.Presence;
  if (game.sheet.FatherPresence == kParentUnknown) return;
  game.sheet.FatherStatus = status.Father.Text;
  game.sheet.FatherPresence = status.Father.Presence;
}

void GenerateFatherStatus(Game& game) {
  const ParentStatus status = FatherStatusOf(RollLabelled(game, "Status of Father", 100));
  game.sheet.FatherStatus = status.Text;
  game.sheet.FatherPresence = status.Presence;
}

void GenerateStepMother(Game& game) {
  game.sheet.StepParent = kNoStepMother;
  if (!FindsStepParent(RollLabelled(game, "Step Mother", 20))) return;
  game.sheet.MotherPresence = kStepParentFound;
  game.sheet.StepParent = StepMotherStatusOf(RollLabelled(game, "Status of Step Mother", 100));
}

void GenerateStepFather(Game& game) {
  game.sheet.StepParent = kNoStepFather;
  const bool isFound = FindsStepParent(RollLabelled(game, "Step Father", 20));
  if (!isFound && game.sheet.FatherPresence != kStepParentFound) return;
  game.sheet.StepParent = StepFatherStatusOf(RollLabelled(game, "Status of Step Father", 100));
  game.sheet.FatherPresence = kStepParentFound;
}

void GenerateMotherQuality(Game& game) {
  const int roll = RollLabelled(game, "Quality of Mother", 100);
  const ParentQuality quality = ParentQualityOf(roll, IsIllegitimate(game.sheet.BirthCircumstance));
  game.sheet.MotherQuality = quality.Text;
  game.run.MotherMinorQuirks = quality.MinorQuirks;
  game.run.MotherMajorQuirks = quality.MajorQuirks;
  game.run.MotherQualityBP = quality.BP;
}

void GenerateFatherQuality(Game& game) {
  const int roll = RollLabelled(game, "Quality of Father", 100);
  const ParentQuality quality = ParentQualityOf(roll, IsIllegitimate(game.sheet.BirthCircumstance));
  game.sheet.FatherQuality = quality.Text;
  game.run.FatherMinorQuirks = quality.MinorQuirks;
  game.run.FatherMajorQuirks = quality.MajorQuirks;
  game.run.FatherQualityBP = quality.BP;
}

void GenerateFamilyHeritage(Game& game) {
  game.sheet.FamilyHeritage = FamilyHeritageOf(RollLabelled(game, "Family Heritage", 100));
}

void GenerateSiblingCount(Game& game) {
  auto siblings = SiblingNumberOf(RollLabelled(game, "Number of Siblings", 100));
  if (!siblings) siblings = IllegitimateSiblingNumberOf(RollLabelled(game, "Number of Illegitimate Siblings", 4));
  game.sheet.SiblingCountText = siblings->Text;
  game.sheet.SiblingCount = siblings->Count;
}

void GenerateBirthOrder(Game& game) {
  const BirthOrder order = BirthOrderOf(game.sheet.SiblingCount, RollLabelled(game, "Order of Birth", 100));
  if (order.Text.empty()) return;
  game.sheet.BirthOrder = order.Text;
  game.run.IsMiddleChild = order.IsMiddleChild;
}

void TellSocialClassLimits(Game& game) {
  const std::string_view limits = SocialClassLimits(game.sheet.SocialClassIndex);
  if (!limits.empty()) game.platform.ShowMessage(limits);
}

void ApplyPriorsToInheritance(Game& game) {
  CharacterSheet& sheet = game.sheet;
  int& inheritance = game.run.InheritanceModifier;
  inheritance = AddSaturated(inheritance, SocialClassInheritance(sheet.SocialClassIndex));
  if (sheet.MotherPresence < kParentLiving && sheet.FatherPresence < kParentLiving) sheet.IsOrphan = 1;
  inheritance = AddSaturated(inheritance, BirthOrderInheritance(sheet.BirthOrder));
  if (sheet.IsOrphan == 1) inheritance = AddSaturated(inheritance, kOrphanInheritance);
}

}  // namespace veld
