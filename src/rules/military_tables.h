#pragma once

#include <array>
#include <span>
#include <string_view>

#include "rules/grant_notation.h"

namespace veld {

// The tables of a fighter's youth, from the training camp to the tour of duty. A lookup takes a finished total and
// answers for any number: below its first row a table gives the first one, above its last row the last one.

/// Names of the tables, as questions and prompts write them.
namespace MilitaryTable {
inline constexpr std::string_view Camp = "Table 2C: Type of Training Camp";
inline constexpr std::string_view Quality = "Table 2D: Quality of Basic Training";
inline constexpr std::string_view Results = "Table 2E: Results of Basic Training";
inline constexpr std::string_view Accidents = "Table 2F: Training Accidents";
inline constexpr std::string_view Specialty = "Table 2G: Speciality Assignment";
inline constexpr std::string_view Advanced = "Table 2H: Quality of Advanced Individual Training";
inline constexpr std::string_view Hostilities = "Table 2I: State of Hostilities";
inline constexpr std::string_view War = "Table 2J: War";
inline constexpr std::string_view Opponents = "Table 2ja: Potential Opponents";
inline constexpr std::string_view Attitude = "Table 2K: Local Attitude to Occupying Force";
inline constexpr std::string_view Occupation = "Table 2Ka: Notable Events During Occupation";
inline constexpr std::string_view Guerilla = "Table 2Kb: Notable Events to Quell Guerilla Movement";
inline constexpr std::string_view Tour = "Table 2L: Notable Events During Non-Combat Tour of Duty";
}  // namespace MilitaryTable

/// The sentences under which a player throws the dice that are no table's own.
namespace MilitaryPrompt {
extern const std::string_view Accidents;
extern const std::string_view FreeSkills;
extern const std::string_view ColdWar;
extern const std::string_view Wars;
extern const std::string_view PeaceTours;
extern const std::string_view OccupationTours;
extern const std::string_view AmbivalentTours;
extern const std::string_view SiegePounds;
extern const std::string_view WastedMoney;
extern const std::string_view Alcoholic;
extern const std::string_view GymStrength;
extern const std::string_view GymConstitution;
}  // namespace MilitaryPrompt

/// Table 2C.
struct TrainingCamp {
  int High;  ///< highest total, as in all rows below
  std::string_view Text;
  int QualityModifier;
};
const TrainingCamp& TrainingCampOf(int total);
/// What a social class adds to the roll.
int CampModifierOfClass(int socialClassIndex);

/// Table 2D.
struct TrainingQuality {
  int High;
  std::string_view Text;
  int ResultsModifier;
  int AccidentModifier;
  int WarModifier;
  int NonProficiencyPenalty;
};
const TrainingQuality& TrainingQualityOf(int total);

/// Table 2E.
struct TrainingResult {
  int High;
  std::string_view Offered;  ///< what the player is asked to keep
  int AdvancedModifier;
  GrantText Grants;
  std::string_view Text;         ///< what is remembered
  int PercentHigh = 0;           ///< above 0: percentile dice decide further
  std::string_view Prompt = {};  ///< of the percentile dice
  GrantText GrantsAtMost = {};   ///< at PercentHigh or less
  GrantText GrantsAbove = {};
  std::string_view TextAtMost = {};
};
const TrainingResult& TrainingResultOf(int total);

/// Table 2F. The rows that need a die are decided by it: `Hit` is what stands when it goes ill, else `Missed`.
enum class Accident { Ladder, HeatStroke, Impaled, Trampled, Shot, Burned, Trebuchet };
struct AccidentRow {
  int High;
  Accident What;
  std::string_view Offered;
  std::string_view Prompt = {};
  std::string_view Hit = {};
  std::string_view Missed = {};
};
const AccidentRow& AccidentOf(int total);
extern const std::string_view kImpaledOnPoleArm;  ///< the text of Impaled for who is big enough for a pole arm
extern const std::string_view kBlindedByBolt;     ///< the text of Shot for who loses the last eye

/// Table 2G: the assignment by race, which some classes overrule. Empty for a race that is not listed.
std::string_view SpecialtyOf(std::string_view raceName, std::string_view className, int roll);

/// Table 2H.
struct AdvancedTraining {
  int High;
  std::string_view Text;
  int WarModifier;
};
const AdvancedTraining& AdvancedTrainingOf(int total);

/// The quality ladders: what a specialty gives those trained this well in it.
struct SpecialtyTraining {
  std::string_view Specialty;
  std::string_view Quality;
  GrantText Grants;
};
std::span<const SpecialtyTraining> SpecialtyTrainings();

/// What a die gives after the grants of a ladder.
struct RolledTraining {
  struct Row {
    int High;
    GrantText Grants;
  };
  std::string_view Specialty;
  std::string_view Quality;
  std::string_view Prompt;
  int Sides;
  std::array<Row, 3> Rows;
};
std::span<const RolledTraining> RolledTrainings();

/// Table 2I.
enum class Hostilities { ExtendedPeace, Peace, ColdWar, War, PostWar };
struct HostilitiesRow {
  int High;
  Hostilities State;
  std::string_view Text;
};
const HostilitiesRow& HostilitiesOf(int roll);
/// A cold war by its own roll of 1d10.
inline constexpr int kHighestUneventful = 7;
inline constexpr std::string_view kUneventful = ", Uneventful";
inline constexpr std::string_view kColdWarFought = ", War";

/// Table 2ja.
std::string_view OpponentsOf(int roll);

/// Table 2J. Texts with a %s name the opponents. A row with a save has it eased by `SaveBonus`: `Made` and `Failed` are
/// what follows the text `Begins`.
enum class WarEvent { Report, Prison, Siege, Routed, PyrrhicVictory, Flanking, Routing, Lynchpin };
struct WarRow {
  int High;
  WarEvent What;
  bool NamesOpponents;
  std::string_view Offered;
  int SaveBonus = 0;
  std::string_view Prompt = {};
  std::string_view Begins = {};
  std::string_view Made = {};
  std::string_view Failed = {};
};
const WarRow& WarOf(int total);
extern const std::string_view kExperienceOfRouting;  ///< what follows the text of Routing in any case

/// Table 2K.
enum class Attitude { Friendly, Ambivalent, Uppity, Hostile };
struct AttitudeRow {
  int High;
  Attitude What;
  std::string_view Text;
};
const AttitudeRow& AttitudeOf(int roll);

/// Table 2Ka.
enum class OccupationEvent { Vigil, HeartsAndMinds, Pelted, RiotVolunteer };
struct OccupationRow {
  int High;
  OccupationEvent What;
  std::string_view Text;
};
const OccupationRow& OccupationOf(int roll);

/// Table 2Kb. Snipers and traps strike so many times; each makes paranoia likelier.
struct GuerillaRow {
  int High;
  std::string_view Offered;
  std::string_view Text;  ///< with a %i for the times
  int TimesSides = 0;     ///< 0: the enemy is never met
  int PercentEach = 0;
  std::string_view TimesPrompt = {};
  std::string_view ParanoiaPrompt = {};
};
const GuerillaRow& GuerillaOf(int roll);
extern const std::string_view kBecameParanoid;

/// Table 2L.
enum class TourEvent { DancingGirls, Alcoholic, Gambler, GymRat, Granted };
struct TourRow {
  int High;
  TourEvent What;
  std::string_view Text;
  GrantText Grants = {};
};
const TourRow& TourOf(int total);
std::span<const TourRow> TourRows();
std::span<const TrainingResult> TrainingResults();
extern const std::string_view kMoneyWasted;     ///< with a %i for the percents
extern const std::string_view kStillAlcoholic;  ///< what follows the text of Alcoholic

}  // namespace veld
