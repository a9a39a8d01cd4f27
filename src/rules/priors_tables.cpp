#include "rules/priors_tables.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>

#include "rules/race_table.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kRest = INT_MAX;  // the last row of a table takes all that is left

struct TextRow {
  int Highest;  // the highest total that yields the row
  std::string_view Text;
};

// The row of a table that a total yields.
template <typename Row, std::size_t N>
const Row& RowOf(const Row (&rows)[N], int total) {
  const auto row = std::ranges::find_if(rows, [&](const Row& each) { return total <= each.Highest; });
  return row == std::end(rows) ? rows[N - 1] : *row;
}

template <std::size_t N>
std::string_view TextOf(const TextRow (&rows)[N], int total) {
  return RowOf(rows, total).Text;
}

// clang-format off

constexpr int kHighDexterity = 15;  // a Dexterity above it

constexpr TextRow kHandednessHigh[]     = {{ 7, "Left"}, {27, "Ambidextrous"}, {kRest, "Right"}};
constexpr TextRow kHandedness[]         = {{12, "Left"}, {22, "Ambidextrous"}, {kRest, "Right"}};
constexpr TextRow kSeldomLeftHigh[]     = {              {37, "Ambidextrous"}, {kRest, "Right"}};  // no left hand here
constexpr TextRow kSeldomLeft[]         = {{ 2, "Left"}, {32, "Ambidextrous"}, {kRest, "Right"}};

struct SocialClassRow {
  int Highest;
  SocialClass Class;
};

constexpr int kSlaveTotal = 1;

constexpr SocialClassRow kSocialClasses[] = {
    {    6, {"Lower Lower Class",   4}},
    {   11, {"Middle Lower Class",  5}},
    {   20, {"Upper Lower Class",   6}},
    {   35, {"Lower Middle Class",  7}},
    {   55, {"Middle Middle Class", 8}},
    {   87, {"Upper Middle Class",  9}},
    {   96, {"Lower Upper Class",  10}},
    {   99, {"Middle Upper Class", 11}},
    {kRest, {"Upper Upper Class",  12}},
};

constexpr SocialClassRow kSlaveClasses[] = {
    {    5, {"Slave Class, runaway slave",    1}},
    {   15, {"Slave Class, escaped criminal", 2}},
    {kRest, {"Slave Class, banished",         3}},
};

// By index of the social class: the message of its class limits, and what it adds to the inheritance.
struct SocialClassEffect {
  int Inheritance;
  std::string_view Limits;
};

constexpr SocialClassEffect kSocialClassEffects[] = {
    {  0, ""},
    {-20, "Slave Class: Thief and Assassin classes only"},
    {-20, "Slave Class: Thief and Assassin classes only"},
    {-20, "Slave Class: Thief and Assassin classes only"},
    {-20, "Lower Lower Class: Thief, Assassin, Barbarian and Bard classes only"},
    {-15, "Middle Lower Class: Thief, Assassin, Barbarian, Bard and Fighter classes only"},
    {-10, "Upper Lower Class: Thief, Assassin, Barbarian, Bard, Fighter, Knights, Druid and Ranger classes only"},
    { -5, "Lower Middle Class: Thief, Assassin, Barbarian, Bard, Fighter, Knights, Druid, Ranger, Magic-User and "
          "Illusionist classes only"},
    {  0, "Middle Middle Class: Thief, Assassin, Barbarian, Bard, Fighter, Knights, Druid, Ranger, Magic-User, "
          "Illusionist and Cleric classes only"},
    {  5, "Upper Middle Class: Thief, Assassin, Barbarian, Bard, Fighter, Knights, Druid, Ranger, Magic-User, "
          "Illusionist, Cleric, Cavalier and Paladin classes only"},
    { 10, "Lower Upper Class: Thief, Assassin, Barbarian, Bard, Fighter, Knights, Druid, Ranger, Magic-User, "
          "Illusionist, Cleric, Cavalier and Paladin classes only"},
    { 15, "Middle Upper Class: Thief, Assassin, Barbarian, Bard, Fighter, Knights, Druid, Ranger, Magic-User, "
          "Illusionist, Cleric, Cavalier and Paladin classes only"},
    { 20, "Upper Upper Class: Thief, Assassin, Barbarian, Bard, Fighter, Knights, Druid, Ranger, Magic-User, "
          "Illusionist, Cleric, Cavalier and Paladin classes only"},
};
static_assert(std::size(kSocialClassEffects) == 13);

constexpr int kHighestLegitimate = 90;
constexpr std::string_view kIllegitimate = "illegitimate";

// Where a second d100 decides, the first outcome holds up to SecondHighest and the other one above it.
struct IllegitimacyRow {
  int Highest;
  SecondBirthRoll Second;
  int SecondHighest;
  IllegitimacyNature Nature;
  IllegitimacyNature OtherNature;
};

//  highest, second roll, its highest, {nature, orphan, mother, father}
constexpr IllegitimacyRow kIllegitimacyNatures[] = {
    {    5, SecondBirthRoll::None,    0, {"Character was abandoned at birth", 1, kParentUnknown, kParentUnknown}, {}},
    {   30, SecondBirthRoll::None,    0, {"birth was the result of a rape, father unknown",
                                          0, kParentLiving, kParentUnknown}, {}},
    {   60, SecondBirthRoll::None,    0, {"mother was a prostitute, father unknown",
                                          0, kParentLiving, kParentUnknown}, {}},
    {   90, SecondBirthRoll::Father, 75, {"birth was the result of an adultrous affair, father unknown",
                                          0, kParentLiving, kParentUnknown},
                                         {"birth was the result of an adultrous affair, father known",
                                          0, kParentLiving, kParentLiving}},
    {kRest, SecondBirthRoll::Mother, 25, {"birth was arranged through a surogate mother, identity known",
                                          0, kParentLiving, kParentLiving},
                                         {"birth was arranged through a surogate mother, identity unknown",
                                          0, kParentUnknown, kParentLiving}},
};

struct MotherStatusRow {
  int Highest;
  MotherStatus Status;
};

constexpr MotherStatusRow kMotherStatuses[] = {
    {    1, {{"Celebrity", kParentLiving}, {"Unknown", kParentLiving}}},
    {   80, {{"Alive",     kParentLiving}, {"Unknown", kParentLiving}}},
    {   90, {{"Dead",      kParentDead},   {"Unknown", kParentLiving}}},
    {kRest, {{"Dead",      kParentDead},   {"Dead",    kParentDead}}},
};

struct ParentStatusRow {
  int Highest;
  ParentStatus Status;
};

constexpr ParentStatusRow kFatherStatuses[] = {
    {    1, {"Celebrity", kParentLiving}},
    {   80, {"Alive",     kParentLiving}},
    {kRest, {"Dead",      kParentDead}},
};

constexpr int kHighestWithoutStepParent = 14;

constexpr TextRow kStepMotherStatuses[] = {
    {    1, "Step Mother is a celebrity"},
    {   80, "Step Mother is alive"},
    {kRest, "Step Mother is dead"},
};

constexpr TextRow kStepFatherStatuses[] = {
    {    1, "Step Father is a celebrity"},
    {   80, "Step Father is alive"},
    {kRest, "Step Father is dead"},
};

constexpr int kIllegitimateQuality = 35;

struct ParentQualityRow {
  int Highest;
  ParentQuality Quality;
};

//  highest, {text, minor quirks, major quirks, BP}
constexpr ParentQualityRow kParentQualities[] = {
    {   60, {"Loving parent +5BP",               0, 0, 5}},
    {   80, {"Ill-equiped parent",               0, 0, 0}},
    {   91, {"Indiferent parent +1 minor quirk", 1, 0, 0}},
    {kRest, {"Abusive parent +1 major quirk",    0, 1, 0}},
};

constexpr TextRow kFamilyHeritages[] = {
    {    1, "Great Dishonor"},
    {   15, "Dishonor"},
    {   45, "No honor"},
    {   76, "Honorable"},
    {kRest, "Great Honor"},
};

constexpr int kHighestLegitimateSiblings = 95;

struct SiblingNumberRow {
  int Highest;
  SiblingNumber Number;
};

constexpr SiblingNumberRow kSiblingNumbers[] = {
    {   15, {"Only Child", 0}},
    {   35, {"1 sibling",  1}},
    {   50, {"2 siblings", 2}},
    {   60, {"3 siblings", 3}},
    {   68, {"4 siblings", 4}},
    {   75, {"5 siblings", 5}},
    {   81, {"6 siblings", 6}},
    {   85, {"7 siblings", 7}},
    {   90, {"8 siblings", 8}},
    {kRest, {"9 siblings", 9}},
};

constexpr SiblingNumberRow kIllegitimateSiblingNumbers[] = {
    {    1, {"1 illegitimate sibling",  -1}},
    {    2, {"2 illegitimate siblings", -2}},
    {    3, {"3 illegitimate siblings", -3}},
    {kRest, {"4 illegitimate siblings", -4}},
};

constexpr std::string_view kBirthOrders[] = {
    "First born",        "2nd born",          "Middle born (2nd)", "Middle born (3rd)",   "Middle born (4th)",
    "Middle born (5th)", "Middle born (6th)", "Middle born (7th)", "Middle born (8th)",   "2nd to last born",
};
constexpr std::string_view kLastBorn = "Last born";
constexpr std::size_t kFirstMiddle = 2;
constexpr std::size_t kLastMiddle = 8;

// The highest roll of each order; 0 where a row has no such order. What is left is the last born.
struct BirthOrderRow {
  int Count;
  int OtherCount;  // a second number of siblings of the same row
  std::array<int, std::size(kBirthOrders)> Highest;
};

// The rows of 4 and -4 differ at 20 and 21 on purpose.
constexpr BirthOrderRow kBirthOrderRows[] = {
    //        first 2nd  (2nd)(3rd)(4th)(5th)(6th)(7th)(8th)  2nd to last
    { 1, -1, {{50,   0,    0,   0,   0,   0,   0,   0,   0,    0}}},
    { 2, -2, {{33,   0,   66,   0,   0,   0,   0,   0,   0,    0}}},
    { 3, -3, {{25,  50,    0,   0,   0,   0,   0,   0,   0,   75}}},
    {-4, -4, {{21,  41,    0,  61,   0,   0,   0,   0,   0,   81}}},
    { 4,  4, {{19,  41,    0,  61,   0,   0,   0,   0,   0,   81}}},
    { 5,  5, {{16,  32,    0,  48,  64,   0,   0,   0,   0,   80}}},
    { 6,  6, {{14,  28,    0,  42,  56,  70,   0,   0,   0,   84}}},
    { 7,  7, {{12,  24,    0,  36,  48,  60,  72,   0,   0,   84}}},
    { 8,  8, {{11,  22,    0,  33,  44,  55,  66,  77,   0,   88}}},
    { 9,  9, {{10,  20,    0,  30,  40,  50,  60,  70,  80,   90}}},
};

struct InheritanceRow {
  std::string_view BirthOrder;
  int Points;
};

constexpr InheritanceRow kBirthOrderInheritance[] = {
    {"First born", 5}, {"2nd born", 2}, {"2nd to last born", -2}, {"Only child", 10}, {"Last born", -5},
};

constexpr TextRow kSiblingSexes[]         = {{10, "This sibling is male, "}, {kRest, "This sibling is female, "}};
constexpr TextRow kSiblingDeaths[]        = {{79, ""}, {kRest, "dead, "}};
constexpr TextRow kSiblingRelationships[] = {{24, "a bitter rival, "}, {84, "a normal sibling, "},
                                             {kRest, "a devoted friend, "}};
constexpr TextRow kSiblingTwins[]         = {{94, "and not a twin."}, {98, "and a twin."},
                                             {kRest, "and an identical twin."}};

struct SiblingBirthRow {
  int Highest;
  int SecondHighest;  // the second d100 up to which Text holds and not OtherText
  std::string_view Text;
  std::string_view OtherText;
};

// The last row never comes up, as the roll is d100 - 10. Kept.
constexpr SiblingBirthRow kSiblingBirths[] = {
    {    5, 100, "Sibling was abandoned at birth. ", ""},
    {   30, 100, "Birth was the result of a rape, father unknown. ", ""},
    {   60, 100, "Mother was a prostitute, father unknown. ", ""},
    {   90,  75, "Birth was the result of an adultrous affair, father unknown. ",
                 "Birth was the result of an adultrous affair, father known. "},
    {kRest,  25, "Birth was arranged through a surogate mother, identity known. ",
                 "Birth was arranged through a surogate mother, identity unknown. "},
};

// clang-format on

// What the lines of all siblings share.
std::string SiblingText(const SiblingRolls& rolls) {
  std::string text(TextOf(kSiblingSexes, rolls.Sex));
  text += TextOf(kSiblingDeaths, rolls.Death);
  text += TextOf(kSiblingRelationships, rolls.Relationship);
  text += TextOf(kSiblingTwins, rolls.Twin);
  return text;
}

}  // namespace

bool IsBornAmbidextrous(std::string_view race) {
  return HasTrait(race, RaceTrait::BornAmbidextrous);
}

std::string_view HandednessOf(std::string_view race, int dexterity, int roll) {
  if (IsBornAmbidextrous(race)) return "Ambidextrous";
  const bool high = dexterity > kHighDexterity;
  if (HasTrait(race, RaceTrait::SeldomLeftHanded)) {
    return high ? TextOf(kSeldomLeftHigh, roll) : TextOf(kSeldomLeft, roll);
  }
  return high ? TextOf(kHandednessHigh, roll) : TextOf(kHandedness, roll);
}

std::optional<SocialClass> SocialClassOf(int total) {
  if (total <= kSlaveTotal) return std::nullopt;
  return RowOf(kSocialClasses, total).Class;
}

SocialClass SlaveClassOf(int roll) {
  return RowOf(kSlaveClasses, roll).Class;
}

std::string_view SocialClassLimits(int index) {
  return index >= 1 && index <= 12 ? kSocialClassEffects[index].Limits : std::string_view{};
}

int SocialClassInheritance(int index) {
  return index >= 1 && index <= 12 ? kSocialClassEffects[index].Inheritance : 0;
}

Legitimacy LegitimacyOf(int total) {
  if (total > kHighestLegitimate) return {kIllegitimate, kPriorUnknown};
  return {"Legitimate", kPriorNotApplicable};
}

bool IsIllegitimate(std::string_view birthCircumstance) {
  return EqualsIgnoringCase(birthCircumstance, kIllegitimate);
}

SecondBirthRoll SecondRollOfIllegitimacy(int total) {
  return RowOf(kIllegitimacyNatures, total).Second;
}

IllegitimacyNature IllegitimacyNatureOf(int total, int secondRoll) {
  const IllegitimacyRow& row = RowOf(kIllegitimacyNatures, total);
  const bool other = row.Second != SecondBirthRoll::None && secondRoll > row.SecondHighest;
  return other ? row.OtherNature : row.Nature;
}

MotherStatus MotherStatusOf(int roll) {
  return RowOf(kMotherStatuses, roll).Status;
}

ParentStatus FatherStatusOf(int roll) {
  return RowOf(kFatherStatuses, roll).Status;
}

bool FindsStepParent(int roll) {
  return roll > kHighestWithoutStepParent;
}

std::string_view StepMotherStatusOf(int roll) {
  return TextOf(kStepMotherStatuses, roll);
}

std::string_view StepFatherStatusOf(int roll) {
  return TextOf(kStepFatherStatuses, roll);
}

ParentQuality ParentQualityOf(int roll, bool illegitimate) {
  return RowOf(kParentQualities, roll + (illegitimate ? kIllegitimateQuality : 0)).Quality;
}

std::string_view FamilyHeritageOf(int roll) {
  return TextOf(kFamilyHeritages, roll);
}

std::optional<SiblingNumber> SiblingNumberOf(int roll) {
  if (roll > kHighestLegitimateSiblings) return std::nullopt;
  return RowOf(kSiblingNumbers, roll).Number;
}

SiblingNumber IllegitimateSiblingNumberOf(int roll) {
  return RowOf(kIllegitimateSiblingNumbers, roll).Number;
}

BirthOrder BirthOrderOf(int siblingCount, int roll) {
  const auto fits = [&](const BirthOrderRow& row) {
    return row.Count == siblingCount || row.OtherCount == siblingCount;
  };
  const auto row = std::ranges::find_if(kBirthOrderRows, fits);
  if (row == std::end(kBirthOrderRows)) return {};
  for (std::size_t order = 0; order < std::size(kBirthOrders); ++order) {
    if (row->Highest[order] == 0 || roll > row->Highest[order]) continue;
    return {kBirthOrders[order], order >= kFirstMiddle && order <= kLastMiddle ? 1 : 0};
  }
  return {kLastBorn, 0};
}

int BirthOrderInheritance(std::string_view birthOrder) {
  for (const InheritanceRow& row : kBirthOrderInheritance) {
    if (EqualsIgnoringCase(birthOrder, row.BirthOrder)) return row.Points;
  }
  return 0;
}

std::string SiblingLine(const SiblingRolls& rolls) {
  return Format(" %s", SiblingText(rolls));
}

std::string IllegitimateSiblingLine(const SiblingRolls& rolls) {
  const SiblingBirthRow& birth = RowOf(kSiblingBirths, rolls.Circumstance);
  return std::string(rolls.SecondRoll > birth.SecondHighest ? birth.OtherText : birth.Text) + SiblingText(rolls);
}

}  // namespace veld
