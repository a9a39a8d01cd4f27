#include "rules/school_tables.h"

#include <algorithm>
#include <cstddef>
#include <limits>

#include "text/search.h"

namespace veld {

namespace {

constexpr int kRest = std::numeric_limits<int>::max();  // the last row of a table takes all that is left

// clang-format off

constexpr SchoolRow kLocationRows[] = {
    {   -1, "",           {}},
    {    3, "Isolated",   {.Type = -10}},
    {    5, "Remote",     {.Type = -1}},
    {    9, "Rural",      {.Type = -2}},
    {   11, "Community",  {}},
    {   14, "Town",       {.Type = 2}},
    {   18, "City",       {.Type = 6}},
    {kRest, "Metropolis", {.Type = 8}},
};

constexpr SchoolRow kTypeRows[] = {
    {    3, "Informal Apprenticeship", {.Honor = -10, .Result = -200, .Nurture = 4, .Education = -8,
                                         .ClassSize = 12, .Equipment = -12}},
    {    5, "Local Hedge School",      {.Honor = -6, .Result = -100, .Nurture = 2, .Education = -4,
                                         .ClassSize = 4, .Equipment = -7}},
    {    9, "Country Classroom",       {.Honor = -2, .Result = -50, .Education = 2, .ClassSize = 2, .Equipment = -3}},
    {   11, "Local College",           {.Nurture = -1, .ClassSize = -1, .Equipment = -1}},
    {   14, "College",                 {.Honor = 2, .Result = 10, .Nurture = -2, .Education = 2,
                                         .ClassSize = -2, .Equipment = 2}},
    {   18, "University",              {.Honor = 6, .Result = 40, .Nurture = -4, .Education = 4,
                                         .ClassSize = -6, .Equipment = 5}},
    {kRest, "Elite Academy",           {.Honor = 10, .Result = 100, .Nurture = 2, .Education = 8,
                                         .ClassSize = 7, .Equipment = 10}},
};

constexpr SchoolRow kNurtureRows[] = {
    {    2, "Abusive",            {.Rank = -8, .Result = -35}, "HonorLimit=5 | StartingSpells=-1"},
    {    4, "Negligent",          {.Rank = -6, .Result = -30}, "SchoolHonor-=2 | StartingSpells=-1"},
    {    6, "Indifferent",        {.Rank = -4, .Result = -25}, "StartingSpells=0"},
    {    8, "Thoughtless",        {.Rank = -4, .Result = -20}, "StartingSpells=1d3"},
    {   10, "Incompetent",        {.Rank = -3, .Result = -15}},
    {   12, "Ill-equipped",       {.Rank = -2, .Result = -10}},
    {   14, "Absent-minded",      {.Rank = -1, .Result = -5}},
    {   18, "Average",            {}},
    {   21, "Competent",          {.Rank = 1, .Result = 25}},
    {   23, "Caring & Competent", {.Rank = 2, .Result = 50},   "FreeLevel1Spells+=1"},
    {kRest, "Loving & Competent", {.Rank = 6, .Result = 100},  "FreeLevel3Spells=1"},
};

constexpr SchoolRow kEducationRows[] = {
    {    2, "Abusive",            {.Rank = -10, .Result = -300}, "Charisma%-=10d12"},
    {    4, "Extremely Negative", {.Rank = -6, .Result = -150}},
    {    6, "Negligent",          {.Rank = -4, .Result = -100}},
    {    8, "Indifferent",        {.Rank = -3, .Result = -50}},
    {   10, "Incompetent",        {.Rank = -2, .Result = -25}},
    {   12, "Below Average",      {.Rank = -1, .Result = -5}},
    {   16, "Average",            {}},
    {   19, "Above Average",      {.Rank = 1, .Result = 50},     "BonusSkillPoints=1d3-1 | FreeSkillPicks+=1"},
    {   21, "Very Competent",     {.Rank = 3, .Result = 100},    "BonusSkillPoints=1d4-1 | FreeSkillPicks+=1"},
    {   23, "Gifted",             {.Rank = 6,
                                    .Result = 200},    "BonusSkillPoints=1d6 | FreeSkillPicks+=1 | SchoolHonor+=1"},
    {kRest, "Caring & Gifted",    {.Rank = 10,
                                    .Result = 300},   "BonusSkillPoints=2d6 | FreeSkillPicks+=1 | SchoolHonor+=2"},
};

constexpr SchoolRow kClassSizeRows[] = {
    {    2, "Over-Crowded", {.Result = -100}},
    {    5, "Crowded",      {.Result = -50}},
    {    8, "Large",        {.Result = -25}},
    {   14, "Medium",       {}},
    {   19, "Small",        {.Result = 25},  "BonusSkillPoints=1d6"},
    {kRest, "One-on-One",   {.Result = 100}, "BonusSkillPoints=2d6 | FreeSkillPicks+=1", 6},
};

constexpr SchoolRow kEquipmentRows[] = {
    {    2, "Severely Lacking",  {.Result = -50}},
    {    4, "Heavily Abused",    {.Result = -25}},
    {    7, "Sub-par",           {.Result = -10}},
    {   14, "Average",           {}},
    {   17, "Quality",           {.Result = 10}, "BonusSkillPoints=1d6"},
    {   19, "Top Notch Quality", {.Result = 25}, "BonusSkillPoints=1d6 | FreeSkillPicks+=1"},
    {kRest, "Anything needed",   {.Result = 50}, "BonusSkillPoints=2d6 | FreeSkillPicks+=1"},
};

constexpr SchoolRow kRankRows[] = {
    {    2, "Perennialy on Academic Probation", {.Honor = -5, .Result = -300}, "Age+=2d4 | MoneyPercent-=50"},
    {    4, "Frequently on Academic Probation", {.Honor = -4, .Result = -250}, "Age+=1d4 | MoneyRoll-=10"},
    {    6, "Bottom decile",                    {.Honor = -3, .Result = -150}},
    {    8, "Bottom quartile",                  {.Honor = -2, .Result = -75}},
    {   10, "Bottom half",                      {.Honor = -1, .Result = -25}},
    {   12, "Top half",                         {.Result = 25}},
    {   16, "Top quartile",                     {.Honor = 1, .Result = 50}},
    {   19, "Top decile",                       {.Honor = 2, .Result = 75}},
    {   21, "Graduated with honors",            {.Honor = 3, .Result = 100}},
    {   23, "Magna Cum Laude",                  {.Honor = 5, .Result = 150}},
    {kRest, "Summa Cum Laude",                  {.Honor = 9, .Result = 200}},
};

//   nurture        quirks flaws maltreated labor  cantrips forgets
constexpr Maltreatment kMaltreatments[] = {
    {"Abusive",     2,     1,    {4,  0},  {4, -2}, true,   false},
    {"Negligent",   1,     0,    {4, -1},  {4, -2}, false,  false},
    {"Indifferent", 0,     0,    {4, -1},  {4, -2}, false,  true},
    {"Thoughtless", 0,     0,    {},       {},      false,  true},
};

//   total name                    kind                   quirk, what bars it, limbs lost, table
constexpr SchoolHarm kQuirks[] = {
    { 2, "Roll Twice",             SchoolHarmKind::RollTwice},
    { 3, "Absent Minded",          SchoolHarmKind::Quirk, 51},
    { 4, "Alcoholic",              SchoolHarmKind::Quirk, 54},
    { 5, "Chronic Nightmares",     SchoolHarmKind::Quirk, 56},
    { 6, "Delusional",             SchoolHarmKind::SubTable, 0, 0, 0, "ADC Delusion Table Minor"},
    { 7, "Depression",             SchoolHarmKind::Quirk, 59, 72},
    { 8, "Obsessive Compulsive",   SchoolHarmKind::SubTable, 0, 0, 0, "ADC Obsession OR Compulsion"},
    { 9, "Paranoid",               SchoolHarmKind::Quirk, 65},
    {10, "Superstitious Caster",   SchoolHarmKind::SubTable, 0, 0, 0, "HXA Superstitious Caster Table"},
    {11, "Sadistic",               SchoolHarmKind::Quirk, 82},
    {12, "Wuss of Heart",          SchoolHarmKind::Quirk, 83},
    {13, "Chronic Liar",           SchoolHarmKind::Quirk, 86},
    {14, "Clingy",                 SchoolHarmKind::Quirk, 87},
    {15, "Gullible",               SchoolHarmKind::Quirk, 90},
    {16, "Jerk",                   SchoolHarmKind::Quirk, 91},
    {17, "Loud Boor",              SchoolHarmKind::Quirk, 92},
    {18, "Performance Anxiety",    SchoolHarmKind::Quirk, 317},
    {19, "Security Blanket",       SchoolHarmKind::Quirk, 318},
    {20, "Reclusive",              SchoolHarmKind::Quirk, 98},
};

constexpr SchoolHarm kFlaws[] = {
    { 2, "Roll Twice",             SchoolHarmKind::RollTwice},
    { 3, "Amputee, Double Leg",    SchoolHarmKind::Leg, 37, 0, 2},
    { 4, "Maimed",                 SchoolHarmKind::SubTable, 0, 0, 0, "ADC Maimed Table"},
    { 5, "Migraines",              SchoolHarmKind::Quirk, 16},
    { 6, "Loss of Eye",            SchoolHarmKind::Eye, 14, 39},
    { 7, "Mising Finger",          SchoolHarmKind::Quirk, 17},
    { 8, "Low Threshold For Pain", SchoolHarmKind::Quirk, 42},
    { 9, "Scar, Facial",           SchoolHarmKind::Quirk, 19},
    {10, "Scar, Bodily",           SchoolHarmKind::Quirk, 311},
    {11, "Limited Faculties",      SchoolHarmKind::Quirk, 309},
    {12, "Chronic Nosebleeds",     SchoolHarmKind::Quirk, 6},
    {13, "AccidentProne",          SchoolHarmKind::Quirk, 33},
    {14, "Loss of Ear",            SchoolHarmKind::Quirk, 13},
    {15, "Amputee, Arm",           SchoolHarmKind::Arm, 35, 0, 1},
    {16, "Amputee, Leg",           SchoolHarmKind::Leg, 38, 0, 1},
    {17, "Nervous Tic",            SchoolHarmKind::Quirk, 18},
    {18, "Trick Knee",             SchoolHarmKind::Quirk, 49},
    {19, "Stutter",                SchoolHarmKind::Quirk, 26, 44},
    {20, "Amputee, Double Arm",    SchoolHarmKind::Arm, 36, 0, 2},
};

// From a total of 2 on. Some names find no skill.
constexpr GrantText kMaltreatedSkills[] = {
    "Torture",
    "Attitude Adjustment",
    "Art of Beating",
    "?Pimp Slap",
    "?Threat Gesture",
    "Weaving",
    "First Aid: Sew Own Wounds",
    "?Forage for food",
    "Berate",
    "Maintenance/Upkeep (General)",
    "Culinary Arts",
    "Laborer, General",
    "Liar, Skilled",
    "Slaughter: Livestock",
    "?Taunting Minor",
    "Vandalism/Desecration",
    "Anatomy, Basic",
    "Sleight of Hand",
    "?Carpentry Tools",
};

constexpr GrantText kLaborSkills[] = {
    "Berate",
    "Attitude Adjustment",
    "Orchestrate Task",
    "Rope Use",
    "Clever Packer",
    "Weaving",
    "Idle Gossip",
    "Animal Lore",
    "Shaving/Grooming",
    "?Maintenance/Upkeep",
    "?Caligraphy",
    "Culinary Arts",
    "?Laborer: General",
    "?Fire Building",
    "Slaughter: Livestock",
    "Fishing",
    "Seamstress/Tailor",
    "?Carpentry Tools",
    "Bargain Sense",
};

struct NamedModifier {
  std::string_view Name;
  int Modifier;
};

constexpr NamedModifier kHeritages[] = {
    {"Great Dishonor", -6},
    {"Dishonor",       -2},
    {"Honorable",       2},
    {"Great Honor",     4},
};

// By what the name of a class holds.
constexpr NamedModifier kTypeClasses[] = {
    {"Unorthodox",        -9},
    {"Holistic",          -9},
    {"Double Specialist",  3},
    {"Sole Practitioner",  5},
};
constexpr NamedModifier kNurtureClasses[] = {
    {"Standard Specialist", -1},
    {"Double Specialist",   -3},
    {"Sole Practitioner",   -5},
};

struct SocialModifier {
  int Highest;
  int Modifier;
};
constexpr SocialModifier kSocialModifiers[] = {
    {    3,  0},
    {    6, -8},
    {    7, -4},
    {    8,  0},
    {    9,  2},
    {   10,  4},
    {   11,  8},
    {kRest, 10},
};

using E = CollegeEventKind;
constexpr CollegeEvent kEvents[] = {
    { 1,   3, "Athlete",                              E::Plain,            "Constitution%+=25 | SchoolHonor-=2"},
    { 4,   8, "Awesome Internship",                   E::Internship,       {}},
    { 9,  15, "Band Geek",                            E::BandGeek,         "quirk 97"},
    {16,  20, "Bohemian",                             E::Bohemian,         "quirk 96"},
    {21,  24, "Cheating Scandal",                     E::CheatingScandal,  {}},
    {55,  28, "Crush",                                E::Plain,            "SchoolHonor-=5"},  // never comes up
    {29,  32, "Dart Skill",                           E::Plain,            "talent Dart Bonus=2 | prof Dart"},
    {33,  45, "Freshman 15",                          E::Plain,            "Weight+=2d12"},
    {46,  57, "Gambler",                              E::Gambler,          {}},
    {58,  67, "Fraternal Society",                    E::FraternalSociety, "quirk 97=0"},
    {68,  71, "Mugged",                               E::Plain,            "MoneyPercent-=10"},
    {72,  79, "Part Time Job",                        E::PartTimeJob,      {}},
    {80,  82, "Prankster",                            E::Prankster,        {}},
    {83,  84, "Roommate dies during finals",          E::Plain,            "EducationResult+=25"},
    {85,  91, "Roommate is Foreign Exchange student", E::ForeignRoommate,  {}},
    {92, 100, "School was land-grant university",     E::LandGrant,
     "Constitution%+=1d20 | Strength%+=1d10 | Age+=1"},
};

// The skills that the others are meant for are named in a way that finds none.
constexpr CollegeSubRow kBohemianRows[] = {
    { 21, "Artistic Ability",                                  "Artistic Ability"},
    { 40, "Juggling",                                          "?Juggling"},
    { 60, "Poetry, Writing and Comprehension/Interpretation",  "?Poetry, Writing & Comprehension/Interpretation"},
    { 80, "Art Appreciation: Subset; Painting",                {}},
    {100, "Art Appreciation: Subset; Sculpture",               {}},
};

constexpr CollegeSubRow kFraternalRows[] = {
    { 30, "Alcoholic Flaw",               "quirk 54",  54},
    { 35, "Wild Gestures Flaw",           "quirk 320", 320},
    { 50, "Obnoxious Quirk",              "quirk 94",  94},
    { 55, "Liar, Skilled Skill",          "Liar, Skilled"},
    { 60, "Leadership: Basic Skill",      "Leadership: Basic"},
    { 65, "Current Affairs Skill",        "Current Affairs"},
    { 70, "Customs & Etiquette Skill",    {},          0, "Customs and Etiquette"},
    { 75, "Shaving/Grooming Skill",       "Shaving/Grooming"},
    { 80, "Graceful Entrance/Exit Skill", "Graceful Entrance/Exit"},
    { 85, "Idle Gossip Skill",            "Idle Gossip"},
    { 90, "Berate Skill",                 "Berate"},
    { 95, "Taunting Minor Skill",         "Taunting, Minor"},
    {100, "Social Etiquette Skill",       "Social Etiquette"},
};

constexpr CollegeSubRow kPartTimeJobRows[] = {
    {1, "Carpenter", "Carpentry"},
    {2, "Cobbler",   "Cobbling"},
    {3, "Cook",      "Cooking"},
    {4, "Farmer",    "Farming"},
    {5, "Laborer",   "Laborer, General"},
    {6, "Miner",     "Mining"},
    {7, "Butcher",   "Slaughter: Livestock"},
    {8, "Weaver",    "Weaving"},
};

constexpr CollegeSubRow kLandGrantRows[] = {
    { 30, "Leadership: Basic Skill",         "Leadership: Basic"},
    { 35, "Military Battle Sense Skill",     "Military: Battle Sense"},
    { 50, "Bonus Weapon Proficiency slot",   "ProficiencySlotsUsed-=1"},
    { 70, "Brass Instrument Skill",          {}, 0, "Brass Instrument"},
    { 90, "Entrenchment Construction Skill", "Entrenchment Construction"},
    {100, "Establish Ambush Zone Skill",     "Establish Ambush Zone"},
};

struct TableHead {
  std::string_view Name;
  std::span<const SchoolRow> Rows;
};
constexpr TableHead kTables[] = {  // by SchoolTable
    {"Table 5D: Location of School",           kLocationRows},
    {"Table 5E: Type of School",               kTypeRows},
    {"Table 5F: Quality of Master: Nurture",   kNurtureRows},
    {"Table 5G: Quality of Master: Education", kEducationRows},
    {"Table 5H: Graduating Class Size",        kClassSizeRows},
    {"Table 5I: Classroom Equipment",          kEquipmentRows},
    {"Table 5J: Graduating Rank",              kRankRows},
};

// clang-format on

const TableHead& HeadOf(SchoolTable table) {
  return kTables[static_cast<std::size_t>(table)];
}

/// All that a name holds, added up: a class may be of two callings.
template <std::size_t N>
int SumOfHeld(const NamedModifier (&modifiers)[N], std::string_view name) {
  int sum = 0;
  for (const NamedModifier& each : modifiers) sum += Contains(name, each.Name) ? each.Modifier : 0;
  return sum;
}

}  // namespace

constexpr CollegeSubTable kBohemianTable{"Bohemian Subtable", "Bohemian Subtable result: %s?", 100, kBohemianRows};
constexpr CollegeSubTable kFraternalTable{"Fraternal Society Subtable", "Fraternal Society Subtable result: Gained %s?",
                                          100, kFraternalRows};
constexpr CollegeSubTable kPartTimeJobTable{"Part Time Job Subtable", "Part Time Job Subtable result: %s?", 8,
                                            kPartTimeJobRows};
constexpr CollegeSubTable kLandGrantTable{"Land-grant university Subtable",
                                          "Land-grant university Subtable result: %s?", 100, kLandGrantRows};

std::string_view SchoolTableName(SchoolTable table) {
  return HeadOf(table).Name;
}

std::span<const SchoolRow> SchoolRows(SchoolTable table) {
  return HeadOf(table).Rows;
}

const SchoolRow& SchoolRowOf(SchoolTable table, int total) {
  return *std::ranges::find_if(SchoolRows(table), [&](const SchoolRow& row) { return total <= row.Highest; });
}

int SchoolSocialModifier(int socialClass) {
  return std::ranges::find_if(kSocialModifiers, [&](const SocialModifier& row) { return socialClass <= row.Highest; })
      ->Modifier;
}

int SchoolHeritageModifier(std::string_view heritage) {
  const auto* const found = std::ranges::find(kHeritages, heritage, &NamedModifier::Name);
  return found == std::end(kHeritages) ? 0 : found->Modifier;
}

int SchoolTypeClassModifier(std::string_view className) {
  return SumOfHeld(kTypeClasses, className);
}

int SchoolNurtureClassModifier(std::string_view className) {
  return SumOfHeld(kNurtureClasses, className);
}

int SchoolIntelligenceModifier(int intelligence) {
  return intelligence < 13 ? intelligence - 13 : (intelligence - 12) / 4;
}

const Maltreatment* FindMaltreatment(std::string_view nurture) {
  const auto* const found = std::ranges::find(kMaltreatments, nurture, &Maltreatment::Nurture);
  return found == std::end(kMaltreatments) ? nullptr : found;
}

std::span<const SchoolHarm> SchoolQuirks() {
  return kQuirks;
}

std::span<const SchoolHarm> SchoolFlaws() {
  return kFlaws;
}

std::span<const GrantText> MaltreatedSkills() {
  return kMaltreatedSkills;
}

std::span<const GrantText> LaborSkills() {
  return kLaborSkills;
}

std::span<const CollegeEvent> CollegeEvents() {
  return kEvents;
}

int CollegeEventOf(int roll) {
  const auto* const found =
      std::ranges::find_if(kEvents, [&](const CollegeEvent& event) { return event.Low <= roll && roll <= event.High; });
  return found == std::end(kEvents) ? -1 : static_cast<int>(found - std::begin(kEvents));
}

const CollegeSubRow* FindCollegeSubRow(const CollegeSubTable& table, int roll) {
  const auto found = std::ranges::find_if(table.Rows, [&](const CollegeSubRow& row) { return roll <= row.Highest; });
  return found == table.Rows.end() ? nullptr : &*found;
}

}  // namespace veld
