#include "rules/talent_table.h"

#include <cstddef>
#include <iterator>

#include "rules/find_row.h"

namespace veld {

namespace {

struct TalentLine {
  int Row;
  std::string_view Name;
  int BP;
  int Book;
  std::string_view Page;
};

// clang-format off

// Row  Name                              BP  Bk  Page
constexpr TalentLine kTalents[] = {
  {  0, "Acrobatic Skill Suite",           5,  0, "ADC pg 337"},
  {  1, "Active Sense of Smell",           5,  0, "ADC pg 337"},
  {  2, "Acute (high) Alertness",          5,  0, "ADC pg 337"},
  {  3, "Acute Taste",                     5,  0, "ADC pg 337"},
  {  4, "Ambidextrous",                    5,  0, "ADC pg 337"},
  {  5, "Animal Companion",               10,  0, "ADC pg337"},
  {  6, "Animal Friendship",              10,  0, "ADC pg337"},
  {  7, "Astute Observation",              5,  0, "ADC pg 337"},
  {  8, "Axe Bonus",                       5,  0, "ADC pg 337"},
  {  9, "Balance Bonus",                  10,  0, "ADC pg 337"},
  { 10, "Blind Fighting",                 10,  0, "ADC pg 337"},
  { 11, "Bow Bonus",                       5,  0, "ADC pg 337"},
  { 12, "Brewing",                         5,  0, "ADC pg 337"},
  { 13, "Close to the Earth",              5,  0, "ADC pg 338"},
  { 14, "Cold Resistance",                 5,  0, "ADC pg 338"},
  { 15, "Constitution/Health Bonus",      10,  0, "ADC pg 338"},
  { 16, "Called Shot Bonus",               5,  2, "WMA pg 57"},
  { 17, "Crossbow Bonus",                  5,  0, "ADC pg 338"},
  { 18, "Dagger Bonus",                    5,  0, "ADC pg 338"},
  { 19, "Dart Bonus",                      5,  0, "ADC pg 338"},
  { 20, "Endurance",                       5,  0, "ADC pg 338"},
  { 21, "Perfect Grooming",                2,  3, "SWA pg 69"},
  { 22, "Defensive Bonus",                 5,  0, "ADC pg 338"},
  { 23, "Dense Skin",                     10,  0, "ADC pg 338"},
  { 24, "Detect Evil",                     5,  0, "ADC pg 338"},
  { 25, "Detect Poison",                   5,  0, "ADC pg 338"},
  { 26, "Detect Secret Doors",             5,  0, "ADC pg 338"},
  { 27, "Determine Age",                   5,  0, "ADC pg 338"},
  { 28, "Determine Stability",             5,  0, "ADC pg 338"},
  { 29, "Engineering Bonus",               5,  0, "ADC pg 338"},
  { 30, "Evaluate Gems",                   5,  0, "ADC pg 338"},
  { 31, "Experience Bonus",               10,  0, "ADC pg 338"},
  { 32, "Expert Haggler",                  5,  0, "ADC pg 338"},
  { 33, "Faerie Kind Martial Arts",        5,  0, "ADC pg 338"},
  { 34, "Flutter",                         2,  0, "ADC/Posted Fixes"},
  { 35, "Forest Movement",                10,  0, "ADC pg 339"},
  { 36, "Freeze",                         10,  0, "ADC pg 339"},
  { 37, "Grace Under Pressure",            5,  0, "ADC pg 339"},
  { 38, "Heat Resistance",                 5,  0, "ADC pg 339"},
  { 39, "Hide   ",                        10,  0, "ADC pg 339"},
  { 40, "Hit Point Bonus",                10,  0, "ADC pg 339"},
  { 41, "Illusion Resistant",              5,  0, "ADC pg 339"},
  { 42, "Javelin Bonus",                   5,  0, "ADC pg 339"},
  { 43, "Keen Sight (Long Distance)",      5,  0, "ADC pg 339"},
  { 44, "Ladies Man",                      5, 10, "TG12, pg 38"},
  { 45, "Less Sleep",                      5,  0, "ADC pg 339"},
  { 46, "Mace Bonus",                      5,  0, "ADC pg 339"},
  { 47, "Magic Bonus",                     5,  0, "ADC/Posted Fixes"},
  { 48, "Magic Identification",           10,  0, "ADC pg 339"},
  { 49, "Meld into Stone",                10,  0, "ADC pg 339"},
  { 50, "Mining Sense",                    5,  0, "ADC pg 339"},
  { 51, "Opportunist (skill/trait)",       5,  0, "ADC pg 339"},
  { 52, "Photographic Memory",             5,  0, "ADC pg 339"},
  { 53, "Pick Bonus",                      5,  0, "ADC pg 339"},
  { 54, "Potion Identification",           5,  0, "ADC pg 339"},
  { 55, "Reaction Bonus",                  5,  0, "ADC pg 339"},
  { 56, "Resistance   ",                   5,  0, "ADC pg 339"},
  { 57, "Seeking Grasping Hands",          5,  0, "ADC pg 340"},
  { 58, "Shortsword Bonus",                5,  0, "ADC pg 340"},
  { 59, "Sibling Empathy",                10,  0, "ADC pg 340"},
  { 60, "Sixth Sense",                     5,  0, "ADC pg 340"},
  { 61, "Sling Bonus",                     5,  0, "ADC pg 340"},
  { 62, "Speak With Plants",              10,  0, "ADC pg 340"},
  { 63, "Spear Bonus",                     5,  0, "ADC pg 340"},
  { 64, "Spell Abilities",                15,  0, "ADC pg 340"},
  { 65, "Stealth",                        10,  0, "ADC pg 340"},
  { 66, "Stone Tell",                     10,  0, "ADC pg 340"},
  { 67, "Sword Bonus",                     5,  0, "ADC pg 340"},
  { 68, "Taunt",                           5,  0, "ADC pg 340"},
  { 69, "Tough Hide",                      5,  0, "ADC pg 340"},
  { 70, "Touched by Yurgain",              0,  0, "ADC pg 340"},
  { 71, "Track Game Animal",              10,  0, "ADC pg 340"},
  { 72, "Trident Bonus",                   5,  0, "ADC pg 340"},
  { 73, "Warhammer Bonus",                 5,  0, "ADC pg 340"},
  { 74, "Arcane Swindler",                 6,  1, "HXA pg 54"},
  { 75, "Blind Casting",                  10,  1, "HXA pg 54"},
  { 76, "Bloodline",                       5,  1, "HXA pg 54"},
  { 77, "Eagle Eye",                       4,  1, "HXA pg 54"},
  { 78, "Fast Cast",                      10,  1, "HXA pg 54"},
  { 79, "High Spell-Jacker",               5,  1, "HXA pg 54"},
  { 80, "Item Savant",                     5,  1, "HXA pg 54"},
  { 81, "Magically Efficient",             4,  1, "HXA pg 54"},
  { 82, "Martial Tradition",               4,  1, "HXA pg 54"},
  { 83, "Mnemonically Gifted",            15,  1, "HXA pg 54"},
  { 84, "Precise Targeting",               5,  1, "HXA pg 55"},
  { 85, "Quick Learner",                   5,  1, "HXA pg 55"},
  { 86, "Quick Thinking",                  4,  1, "HXA pg 55"},
  { 87, "Spell Razor",                    15,  1, "HXA pg 55"},
  { 88, "Superior Meditation",             3,  1, "HXA pg 55"},
  { 89, "Counter Speller",                15,  1, "HXA pg 55"},
  { 90, "Mountain Fighting",               3,  2, "WMA pg 58"},
  { 91, "Voiceless Casting",              20,  1, "HXA pg 55"},
  { 92, "Still Casting",                  15,  1, "HXA pg 55"},
  { 93, "Aquatic Background",              4,  2, "WMA pg 57"},
  { 94, "Attack Higher Bonus",             5,  2, "WMA pg 57"},
  { 95, "Critical Hit Bonus",              4,  2, "WMA pg 57"},
  { 96, "Defend Bigger Bonus",             5,  2, "WMA pg 57"},
  { 97, "Hardy Traveler",                  5,  2, "WMA pg 57"},
  { 98, "Forest Fighting",                 3,  2, "WMA pg 57"},
  { 99, "Multiattack Bonus",               5,  2, "WMA pg 58"},
  {100, "Pain Resistance",                 6,  2, "WMA pg 58"},
  {101, "Quick Change",                    4,  2, "WMA pg 58"},
  {102, "Thick Headed",                    5,  2, "WMA pg 58"},
  {103, "Unyielding",                     10,  2, "WMA pg 58"},
  {104, "Lucky",                           5,  2, "WMA pg 57"},
  {105, "Bad Taste",                       0,  5, "BG pg 12"},
  {106, "Bright Light Fighting",           0,  5, "BG pg 13"},
  {107, "Cower",                           5,  3, "SWA pg 68"},
  {108, "Detect Good",                     0,  5, "BG pg 13"},
  {109, "Hive Empathy",                    0,  5, "BG pg 14"},
  {110, "Light Fighting",                  0,  5, "BG pg ??"},
  {111, "Quick Movement",                  5,  3, "SWA pg 69"},
  {112, "Simultaneous Backstab Attacks",   2,  3, "SWA pg 69"},
  {114, "Acute Alertness & Keen Sight",    6,  2, "WMA pg 40"},
  {115, "Blood Turning",                  10,  4, "DVA pg 73"},
  {116, "Burst of Speed",                 10,  4, "DVA pg 73"},
  {117, "Concentration",                  20,  4, "DVA pg 73"},
  {118, "Courage",                         4,  4, "DVA pg 73"},
  {119, "Curse Resistance",                6,  4, "DVA pg 73"},
  {120, "Death Magic Bonus",               6,  4, "DVA pg 73"},
  {121, "Divination",                     13,  4, "DVA pg 73"},
  {122, "Divine Shield",                   6,  4, "DVA pg 73"},
  {123, "Divine Smite (OLD)",             11,  4, "DVA pg 74"},
  {125, "Enhanced Turning",                7,  4, "DVA pg 74"},
  {126, "Fast Turning",                    7,  4, "DVA pg 74"},
  {127, "Follow-Through Healing",          4,  4, "DVA pg 74"},
  {128, "Legacy",                         10,  4, "DVA pg 74"},
  {129, "Life Smite",                      6,  4, "DVA pg 74"},
  {130, "Mass Turning",                    7,  4, "DVA pg 74"},
  {131, "Paralyzation Bonus",              4,  4, "DVA pg 74"},
  {132, "Poison Bonus",                    5,  4, "DVA pg 74"},
  {133, "Precision Casting",               5,  4, "DVA pg 74"},
  {134, "Prophesy",                       12,  4, "DVA pg 75"},
  {135, "Prudish",                         5,  4, "DVA pg 75"},
  {136, "Puritanical",                    10,  4, "DVA pg 75"},
  {137, "Quick Casting",                   5,  4, "DVA pg 75"},
  {138, "Receptive Healer",                6,  4, "DVA pg 75"},
  {139, "Reduced Facing",                  4,  4, "DVA pg 75"},
  {140, "Second Sight",                    5,  4, "DVA pg 75"},
  {141, "Thick Blood",                     5,  4, "DVA pg 75"},
  {142, "Vigor",                           9,  4, "DVA pg 75"},
  {143, "Breath Weapon Bonus",             4,  3, "SWA pg 68"},
  {144, "Expert Cheater",                  5,  3, "SWA pg 68"},
  {145, "Forgettable Face",                5,  3, "SWA pg 69"},
  {146, "Good Immune System",              5,  3, "SWA pg 69"},
  {147, "High Tolerance",                  5,  3, "SWA pg 69"},
  {148, "Knack for Languages",             3,  3, "SWA pg 69"},
  {149, "Magic Trap Sense",                1,  3, "SWA pg 69"},
};

// Row  Name                              BP  Bk  Page
constexpr TalentLine kTalentFamilies[] = {
  {  0, "Attack Bonus",                    5,  0, "ADC pg 337"},
  {  1, "Damage Bonus",                    5,  0, "ADC pg 338"},
  {  2, "Take After",                     30,  0, "RFC pg"},
  {  3, "Damage Cap Bonus",                5,  2, "WMA pg 57"},
  {  4, "School Resistant",                8,  1, "HXA pg 55"},
  {  5, "Deadeye",                         5, 10, "TG12 pg 38"},
  {  6, "Elemental Resistance",            5,  4, "DVA pg 74"},
  {  7, "Divine Smite",                   11,  4, "DVA pg 74"},
};

// clang-format on

static_assert(std::size(kTalents) == 148);
static_assert(std::size(kTalentFamilies) == 8);

template <std::size_t Rows, std::size_t Lines>
constexpr std::array<TalentRecord, Rows> ReadLines(const TalentLine (&lines)[Lines]) {
  std::array<TalentRecord, Rows> table;
  for (const TalentLine& line : lines) {
    TalentRecord& talent = table.at(static_cast<std::size_t>(line.Row));
    if (!talent.Name.empty()) throw "two lines for one row";
    talent.Name = line.Name;
    talent.BP = line.BP;
    talent.Book = line.Book;
    talent.Page = line.Page;
  }
  return table;
}

constexpr std::array<TalentRecord, kTalentTableRows> kTalentTable = ReadLines<kTalentTableRows>(kTalents);
constexpr std::array<TalentRecord, kTalentTable2Rows> kTalentTable2 = ReadLines<kTalentTable2Rows>(kTalentFamilies);

}  // namespace

const std::array<TalentRecord, kTalentTableRows>& TalentTable() {
  return kTalentTable;
}

const std::array<TalentRecord, kTalentTable2Rows>& TalentTable2() {
  return kTalentTable2;
}

int FindTalentRow(std::string_view text) {
  return FindRow(TalentTable(), text);
}

int FindTalentFamilyRow(std::string_view text) {
  return FindRow(TalentTable2(), text);
}

}  // namespace veld
