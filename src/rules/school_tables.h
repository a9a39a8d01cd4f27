#pragma once

#include <array>
#include <span>
#include <string_view>

#include "rules/grant_notation.h"

namespace veld {

// The tables of a mage's school years.

/// What a row of the early tables adds to the rolls of later ones, and to the final result.
struct SchoolModifiers {
  int Type = 0;
  int Honor = 0;
  int Rank = 0;
  int Result = 0;
  int Nurture = 0;
  int Education = 0;
  int ClassSize = 0;
  int Equipment = 0;
};

/// A row of the tables of a d8 and a d12.
struct SchoolRow {
  int Highest;            ///< the highest total that yields the row; the last row takes all that is left
  std::string_view Name;  ///< empty for a total that finds nothing
  SchoolModifiers Changes;
  GrantText Grants = {};
  int ExperienceDie = 0;  ///< each class gains a hundred times what it shows
};

/// The seven tables that make up a schooling, in the order of rolling.
enum class SchoolTable { Location, Type, Nurture, Education, ClassSize, Equipment, Rank };

std::string_view SchoolTableName(SchoolTable table);
std::span<const SchoolRow> SchoolRows(SchoolTable table);

/// The row of a total.
const SchoolRow& SchoolRowOf(SchoolTable table, int total);

/// What birth adds: the social class to the roll for the location, the heritage to that and to two others.
int SchoolSocialModifier(int socialClass);
int SchoolHeritageModifier(std::string_view heritage);

/// What the calling of a class ("Sole Practitioner") adds to the rolls for the school's type and the master's care.
int SchoolTypeClassModifier(std::string_view className);
int SchoolNurtureClassModifier(std::string_view className);

/// What the whole Intelligence adds to several rolls.
int SchoolIntelligenceModifier(int intelligence);

/// What a table rolls on another: a count of dice rolls that may come out below 1, which is none.
struct SchoolRolls {
  int Sides = 0;  ///< 0: no rolls
  int Plus = 0;
};

/// What a master who does not care does to an apprentice.
struct Maltreatment {
  std::string_view Nurture;  ///< the row of the table of nurture
  int QuirkRolls = 0;
  int FlawRolls = 0;
  SchoolRolls MaltreatedSkills = {};
  SchoolRolls LaborSkills = {};
  bool TeachesCantrips = false;  ///< the apprentice picks up 3d4 of them
  bool ForgetsSpells = false;    ///< all that is known beyond the cantrips goes
};

/// Nullptr for a master who does no harm.
const Maltreatment* FindMaltreatment(std::string_view nurture);

/// What a row of the quirks and the flaws of an apprenticeship does.
enum class SchoolHarmKind {
  RollTwice,  ///< two more rolls on the table
  Quirk,      ///< the row of the quirk catalogue is held once more
  SubTable,   ///< a roll on a table of quirks
  Arm,        ///< the row, and that many arms lost
  Leg,        ///< the row, and that many legs
  Eye,        ///< an eye is lost, or the last one
};

struct SchoolHarm {
  int Total;  ///< of a d8 and a d12
  std::string_view Name;
  SchoolHarmKind Kind;
  int Quirk = 0;                ///< row of the quirk catalogue
  int Bar = 0;                  ///< a row that keeps this one away
  int Limbs = 0;                ///< lost
  std::string_view Table = {};  ///< of SubTable
};

/// A row for each total from 2 to 20.
std::span<const SchoolHarm> SchoolQuirks();
std::span<const SchoolHarm> SchoolFlaws();

/// A skill for each total from 2 to 20. What the player is asked about is the name in the notation.
inline constexpr int kLowestSchoolTotal = 2;
std::span<const GrantText> MaltreatedSkills();
std::span<const GrantText> LaborSkills();

/// What a row of the final results does, by the sum of a d1000 and all that went before.
struct SchoolResult {
  int Low;
  int High;
  GrantText Grants;  ///< empty for a row that does nothing but show its text
  std::string_view Text;
};

/// The final results in the order in which they are tested.
std::span<const SchoolResult> SchoolResults();

/// The first row that holds the total; nullptr if none does, and then the dice are rolled again.
const SchoolResult* FindSchoolResult(int total);

/// The events of college life that are more than what they grant.
enum class CollegeEventKind {
  Plain,
  Internship,
  BandGeek,
  Bohemian,
  CheatingScandal,
  Gambler,
  FraternalSociety,
  PartTimeJob,
  Prankster,
  ForeignRoommate,
  LandGrant,
};

struct CollegeEvent {
  int Low;  ///< of a d100; a row whose Low is above its High never comes up
  int High;
  std::string_view Name;
  CollegeEventKind Kind;
  GrantText Grants;  ///< given before the event is played out
};

/// The 16 events, each of which happens once at most.
std::span<const CollegeEvent> CollegeEvents();

/// The place of a roll's event; -1 if it has none.
int CollegeEventOf(int roll);

/// A row of the tables that an event rolls on.
struct CollegeSubRow {
  int Highest;  ///< the highest roll that yields the row
  std::string_view Name;
  GrantText Grants;
  int Bar = 0;                   ///< a quirk that keeps the row away
  std::string_view Family = {};  ///< the row brings a new member of this family of skills
};

struct CollegeSubTable {
  std::string_view Title;     ///< "Bohemian Subtable"
  std::string_view Question;  ///< with a place for the row's name
  int Die;
  std::span<const CollegeSubRow> Rows;
};

extern const CollegeSubTable kBohemianTable;
extern const CollegeSubTable kFraternalTable;
extern const CollegeSubTable kPartTimeJobTable;
extern const CollegeSubTable kLandGrantTable;

/// Nullptr for a roll that finds no row.
const CollegeSubRow* FindCollegeSubRow(const CollegeSubTable& table, int roll);

/// The instruments that a band geek chooses from.
inline constexpr std::array<std::string_view, 3> kBandInstruments = {"Brass Instrument", "Percussion Instrument",
                                                                     "Wind Instrument"};

}  // namespace veld
