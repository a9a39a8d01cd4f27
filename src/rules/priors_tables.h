#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace veld {

// The tables of Step 6 and of the siblings. Every lookup takes a finished roll (a "total" has its modifiers added) and
// answers for any number: below its first row a table gives the first one, above its last row the last one.

/// What a text of Step 6 holds before its table is rolled, and where a table does not apply.
inline constexpr std::string_view kPriorUnknown = "Unknown";
inline constexpr std::string_view kPriorNotApplicable = "N/A";

/// What is known of a parent: the values of MotherPresence and FatherPresence.
enum ParentPresence : int { kParentUnknown = -1, kParentDead = 0, kParentLiving = 1, kStepParentFound = 2 };

/// True for the elf races, who are "Ambidextrous" without a roll. `race` is compared without regard to case.
bool IsBornAmbidextrous(std::string_view race);

/// "Left", "Ambidextrous" or "Right" for a d100 and the whole Dexterity.
std::string_view HandednessOf(std::string_view race, int dexterity, int roll);

struct SocialClass {
  std::string_view Name;
  int Index;  ///< 1 (a runaway slave) to 12 (upper upper class)
};

/// The social class of a d100 with its modifier; none for a total of 1 or less, which is a slave: SlaveClassOf follows.
std::optional<SocialClass> SocialClassOf(int total);

/// The class of a slave, by a d20.
SocialClass SlaveClassOf(int roll);

/// The message that tells which classes a social class may take; empty for an index outside 1..12.
std::string_view SocialClassLimits(int index);

/// What a social class adds to the inheritance, in points of the money roll; 0 for an index outside 1..12.
int SocialClassInheritance(int index);

struct Legitimacy {
  std::string_view BirthCircumstance;   ///< "Legitimate" or "illegitimate"
  std::string_view IllegitimacyNature;  ///< what it starts as
};

/// Legitimacy of birth, by a d100 with the modifier of the race.
Legitimacy LegitimacyOf(int total);

/// True for the birth circumstance "illegitimate", in any case.
bool IsIllegitimate(std::string_view birthCircumstance);

/// Whose circumstance a second d100 decides in the nature of an illegitimacy.
enum class SecondBirthRoll { None, Father, Mother };

struct IllegitimacyNature {
  std::string_view Text;
  int IsOrphan;
  int MotherPresence;
  int FatherPresence;
};

SecondBirthRoll SecondRollOfIllegitimacy(int total);

/// The nature of an illegitimacy, by a d100 with the modifier of the race, and a second d100 where one is asked for.
IllegitimacyNature IllegitimacyNatureOf(int total, int secondRoll);

struct ParentStatus {
  std::string_view Text;  ///< "Celebrity", "Alive" or "Dead"
  int Presence;           ///< kParentDead or kParentLiving
};

struct MotherStatus {
  ParentStatus Mother;
  ParentStatus Father;  ///< what a father who is not kParentUnknown becomes, until his own status is rolled
};

/// The parents' status, each by a d100.
MotherStatus MotherStatusOf(int roll);
ParentStatus FatherStatusOf(int roll);

inline constexpr std::string_view kNoStepMother = "Step Mother: NO";
inline constexpr std::string_view kNoStepFather = "Step Father: NO";

/// True if the d20 of a step parent check finds one. Step mother and step father use the result differently on purpose.
bool FindsStepParent(int roll);

/// The status of a step parent that was found, by a d100.
std::string_view StepMotherStatusOf(int roll);
std::string_view StepFatherStatusOf(int roll);

struct ParentQuality {
  std::string_view Text;
  int MinorQuirks;
  int MajorQuirks;
  int BP;
};

/// The quality of a parent, by a d100 to which an illegitimate birth adds 35.
ParentQuality ParentQualityOf(int roll, bool illegitimate);

/// The family's heritage, by a d100.
std::string_view FamilyHeritageOf(int roll);

struct SiblingNumber {
  std::string_view Text;
  int Count;  ///< 0 only child, 1..9 siblings, -1..-4 illegitimate siblings
};

/// The number of siblings, by a d100; none for 96 and above, whose siblings are illegitimate: the next table follows.
std::optional<SiblingNumber> SiblingNumberOf(int roll);

/// The number of illegitimate siblings, by a d4.
SiblingNumber IllegitimateSiblingNumberOf(int roll);

struct BirthOrder {
  std::string_view Text;
  int IsMiddleChild = 0;
};

/// The order of birth, by a d100 and the number of siblings; an empty text for a number that has no table (0, or
/// outside -4..9).
BirthOrder BirthOrderOf(int siblingCount, int roll);

/// What an order of birth, compared without regard to case, adds to the inheritance in points of the money roll.
int BirthOrderInheritance(std::string_view birthOrder);

/// What an orphan's inheritance loses besides.
inline constexpr int kOrphanInheritance = -20;

/// The dice of one sibling, in the order of the rolls. The last two are thrown for illegitimate siblings only.
struct SiblingRolls {
  int Death = 0;         ///< d100
  int Sex = 0;           ///< d20
  int Relationship = 0;  ///< d100 + whole Charisma
  int Twin = 0;          ///< d100
  int Circumstance = 0;  ///< d100 - 10
  int SecondRoll = 0;    ///< d100
};

/// The line that tells of a sibling. A legitimate one's starts with a blank.
std::string SiblingLine(const SiblingRolls& rolls);
std::string IllegitimateSiblingLine(const SiblingRolls& rolls);

}  // namespace veld
