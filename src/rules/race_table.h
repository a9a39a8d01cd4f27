#pragma once

#include <array>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "rules/ability.h"
#include "rules/class_table.h"
#include "rules/talent_table.h"

namespace veld {

inline constexpr int kRaceRows = 50;
inline constexpr int kRacesFilled = 38;       ///< two rows a race, the male first; the rows after them are blank
inline constexpr int kUnsearchedRace = 37;  ///< see FindSearchedRaceRow

/// The lowest and the highest whole score, both inclusive.
struct AbilityRange {
  int Minimum = 0;
  int Maximum = 0;
};

/// What rules ask of a race. No rule compares the name of one where a trait is meant.
enum class RaceTrait {
  BornAmbidextrous,          ///< no roll for handedness
  SeldomLeftHanded,          ///< has a handedness table of its own
  TakenAfter,                ///< half-bloods of its blood can take after it
  DoubledFirstHitDice,       ///< the hit dice of the first level are doubled
  HalvedHitPoints,           ///< of the hit points rolled it gets half, rounded down
  HalvedHitPointsAndKicker,  ///< half, rounded up, and half the base hit points
  Tattooed,                  ///< tattoos are open to it
  NoYearsOfTraining,         ///< it is no older for having learned its class
  TalentedBattleMage,        ///< a battle mage of it gets a talent
  ShrewdBattleMage,          ///< its Intelligence is 1 higher where a battle mage's minimum is asked
};

class RaceTraitSet {
 public:
  constexpr RaceTraitSet(std::initializer_list<RaceTrait> traits) {
    for (const RaceTrait trait : traits) bits_ |= 1U << static_cast<unsigned>(trait);
  }
  constexpr bool Has(RaceTrait trait) const { return (bits_ >> static_cast<unsigned>(trait) & 1U) != 0; }

 private:
  unsigned bits_ = 0;
};

/// A playable race in one gender.
struct RaceRecord {
  std::string_view Name;
  std::string_view Gender;  ///< "Male" or "Female"
  int RowIndex = 0;         ///< the row's own number, 0 in the rows of the wood elves; read by nothing
  int RuleSwitch = 0;       ///< the row is offered while this rule switch is 1
  int SizeClass = 0;        ///< 0 tiny, 1 small, 2 medium, 3 large
  int BaseMovement = 0;
  int SecondMovement = 0;   ///< 0 in all rows
  std::array<std::string_view, 10> Languages;  ///< unused slots empty
  /// Sheet notes: slots 0 to 9 are the racial bonuses, 10 to 19 the talents, 20 to 29 the downside; others empty.
  std::array<std::string_view, 30> Notes;
  std::array<AbilityRange, kAbilityCount> AbilityLimits;  ///< tested before the race's modifiers are added
  std::array<int, kAbilityCount> AbilityModifiers{};      ///< added to the whole scores
  int RaceBP = 0;                                         ///< BP that taking the race brings
  int LegitimacyModifier = 0;                             ///< added to the d100 of legitimacy
  int BirthModifier = 0;                                  ///< added to the d100 of the circumstance of birth
  int AgeBase = 0;                                        ///< age in years is the base and the dice
  int AgeDieSides = 0;
  int AgeDieCount = 0;
  int HeightBase = 0;  ///< inches
  int HeightDieSides = 0;
  int HeightDieCount = 0;
  int WeightBase = 0;  ///< pounds
  int WeightDieSides = 0;
  int WeightDieCount = 0;
  /// The highest level in each class row: 0 closed, 99 unlimited. In the rows of several classes a 1 means open.
  std::array<int, kClassRows> ClassLevelLimits{};
  std::array<int, kTalentTableRows> TalentFlags{};  ///< 0 closed, 1 may be bought, -1 the race has it for nothing
  std::array<int, kTalentTable2Rows> Talent2Flags{};
  /// Percent added to picking pockets, opening locks, finding traps, removing traps, moving silently, hiding in
  /// shadows, detecting noise, climbing walls and reading languages when the points are allotted.
  std::array<int, 9> ThiefAdjustments{};
  std::span<const std::string_view> TakesAfter;  ///< the races that a half-blood may take after; empty for others
  RaceTraitSet Traits{};
};

/// All races. Row numbers stand in other tables; rows are never reordered.
const std::array<RaceRecord, kRaceRows>& RaceTable();

/// The row of a race and gender, ignoring case; -1 if there is none.
int FindRaceRow(std::string_view name, std::string_view gender);

/// The male row of a race, ignoring case; null if there is none.
const RaceRecord* FindRace(std::string_view name);
/// True if there is a race of this name, ignoring case, and it has the trait.
bool HasTrait(std::string_view race, RaceTrait trait);

/// As FindRaceRow, for the rolls of age, height and weight and for movement. These searches never find the female
/// darkman of row 37 (-1): a limit of the game's tables that is kept, not to be widened.
int FindSearchedRaceRow(std::string_view name, std::string_view gender);

/// "Name, Gender" as the race list shows a row; empty for a row that is blank or outside the table.
std::string RaceListText(int row);

/// The first row whose name and gender both stand in a text of the race list, with case; -1 if none does.
int FindRaceInText(std::string_view text);

/// True if the seven whole scores, without any race's modifiers, lie within the row's limits, both ends inclusive.
bool RaceFits(int row, std::span<const int, kAbilityCount> wholeScores);

/// The male row of a race that a half-blood may take after, whose class limits then hold in place of the half-blood's
/// own; -1 for any other text. A half-blood can also take after an orc or an ogre, who have no row and change nothing.
int FindTakenAfterRow(std::string_view name);

}  // namespace veld
