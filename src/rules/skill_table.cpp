#include "rules/skill_table.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "rules/find_row.h"
#include "rules/notation.h"

namespace veld {

namespace {

/// A line of the skill tables as the books print it. `Die` is "1d6", or "-" for a skill without a course die;
/// `Prerequisites` are row numbers, F before the row of a family, or "-".
struct SkillLine {
  int Row;
  std::string_view Name;
  int BP;
  int Book;
  std::string_view Page;
  int CourseCost;
  std::string_view MasteryAbilities;
  std::string_view Die;
  int Difficulty;
  int Category;
  std::string_view Prerequisites;
};

struct SuiteLine {
  int Row;
  std::string_view Members;
};

// clang-format off

// Row  Name                              BP  Bk  Page           Cost Abilities          Die     Add Cat Prerequisites
constexpr SkillLine kSkills[] = {
  {  0, "Arcane Lore",                     5,  0, "ADC pg 313",  500, "INT",             "1d6",   4,  1, "-"},
  {  1, "Divine Lore",                     5,  0, "ADC pg 313",  450, "WIS",             "1d6",   4,  1, "35"},
  {  2, "Spellcraft",                      2,  0, "ADC pg 313",  500, "INT",             "1d4",   5,  1, "0"},
  {  3, "Administration",                  1,  0, "ADC pg 313",  475, "(INT+WIS)/2",     "1d6",  10,  2, "29"},
  {  4, "Agriculture",                     1,  0, "ADC pg 313",  250, "WIS",             "1d10",  0,  2, "-"},
  {  5, "Alchemy",                         7,  0, "ADC pg 313",  400, "INT",             "1d6",   5,  2, "-"},
  {  6, "Anatomy, Basic",                  3,  0, "ADC pg 313",  500, "(INT+WIS)/2",     "1d8",   5,  2, "-"},
  {  7, "Animal Lore",                     2,  0, "ADC pg 313",  200, "INT",             "1d10",  5,  2, "-"},
  {  8, "Appraisal: Gemstone",             3,  0, "ADC pg 314",  500, "INT",             "1d6",  15,  2, "9"},
  {  9, "Appraising",                      6,  0, "ADC pg 314",  400, "INT",             "1d8",   0,  2, "-"},
  { 10, "Art Appraisal: Subset: Painting", 3,  0, "ADC pg 314",  275, "INT",             "1d6",  15,  2, "12"},
  { 11, "Art Appraisal: Subset: Sculpture", 3, 0, "ADC pg 314",  250, "INT",             "1d6",  15,  2, "13"},
  { 12, "Art Appreciation: Subset: Painting", 1, 0, "ADC pg 314", 350, "WIS",            "1d20",  0,  2, "-"},
  { 13, "Art Appreciation: Subset: Sculpture", 1, 0, "ADC pg 314", 300, "WIS",           "1d20",  0,  2, "-"},
  { 14, "Astrology",                       1,  0, "ADC pg 314",  550, "(INT+WIS)/2",     "1d8",   5,  2, "-"},
  { 15, "Botany",                          1,  0, "ADC pg 314",  250, "INT",             "1d8",  10,  2, "-"},
  { 16, "Military: Campaign Logistics",    1,  0, "ADC pg 314", 1200, "INT",             "1d6",  15,  2, "32"},
  { 17, "Civil Operations",                2,  0, "ADC pg 314",  500, "(INT+WIS+CHA)/3", "1d4",  20,  2, "29"},
  { 18, "Culinary Arts",                   1,  0, "ADC pg 314",  300, "WIS",             "1d10", 10,  2, "-"},
  { 19, "Current Affairs",                 1,  0, "ADC pg 315",  100, "INT",             "1d6",   0,  2, "-"},
  { 20, "Engineering     ",                2,  0, "ADC pg 315", 1750, "(INT+WIS)/2",     "1d4",  20,  2, "-"},
  { 21, "Engineering: Fortifications",     2,  0, "ADC pg 315",  950, "(INT+WIS)/2",     "1d6",  15,  2, "20"},
  { 22, "Engineering: Public Works",       2,  0, "ADC pg 315",  650, "(INT+WIS)/2",     "1d4",  10,  2, "20"},
  { 23, "Forestry",                        1,  0, "ADC pg 315",  300, "INT",             "1d6",   0,  2, "-"},
  { 24, "Geology",                         1,  0, "ADC pg 315",  300, "INT",             "1d6",   5,  2, "-"},
  { 25, "Heraldry",                        1,  0, "ADC pg 315",  165, "INT",             "1d6",   0,  2, "-"},
  { 26, "Herbalism (Prepare Poison)",      6,  0, "ADC pg 315",  250, "INT",             "1d6",   5,  2, "15"},
  { 27, "History: World",                  1,  0, "ADC pg 315",  150, "WIS",             "1d6",   5,  2, "F4"},
  { 28, "Leadership: Basic",               3,  0, "ADC pg 316",  225, "(CHA+WIS)/2",     "1d5",   5,  2, "-"},
  { 29, "Leadership: Committee",           2,  0, "ADC pg 316",  275, "(CHA+WIS)/2",     "1d5",   5,  2, "28"},
  { 30, "Military: Battle Sense",          9,  0, "ADC pg 316",  350, "(INT+WIS)/2",     "1d4",  10,  2, "-"},
  { 31, "Military: Leadership",            4,  0, "ADC pg 316",  275, "(INT+WIS+CHA)/3", "1d4",   5,  2, "32"},
  { 32, "Military: Operations",            2,  0, "ADC pg 316",  325, "(INT+WIS)/2",     "1d4",  10,  2, "33"},
  { 33, "Military: Small Unit Tactics",    5,  0, "ADC pg 316",  375, "(INT+WIS)/2",     "1d6",  15,  2, "30 28"},
  { 34, "Plant Identification: Holistic",  2,  0, "ADC pg 316",  300, "(INT+WIS)/2",     "1d8",   5,  2, "15"},
  { 35, "Religion (general)",              1,  0, "ADC pg 316",  100, "WIS",             "1d12",  0,  2, "-"},
  { 36, "Weather Sense",                   1,  0, "ADC pg 316",  150, "(INT+WIS)/2",     "1d4",   5,  2, "-"},
  { 37, "Woodland Lore",                   1,  0, "ADC pg 316",  200, "(INT+WIS)/2",     "1d8",   0,  2, "23"},
  { 38, "Dimple Runes (Braille)",          2,  0, "ADC pg 317",  200, "DEX",             "1d3",   5,  3, "-"},
  { 39, "Dragon Speak",                   10,  0, "ADC pg 317",  800, "(INT+CHA)/2",     "1d2",   5,  3, "-"},
  { 40, "Evil Speak",                      5,  0, "ADC pg 317",  450, "INT",             "1d4",  15,  3, "-"},
  { 41, "Glersee (Trail Markers)",         2,  0, "ADC pg 317",  275, "INT",             "1d6",   5,  3, "-"},
  { 42, "Armor Maintenance",               1,  0, "ADC pg 318",   75, "(INT+DEX)/2",     "-",    -5,  5, "-"},
  { 43, "Maintenance/Upkeep (General)",    1,  0, "ADC pg 318",   50, "WIS",             "-",    -20, 5, "-"},
  { 44, "Shaving/Grooming",                1,  0, "ADC pg 318",   25, "INT",             "-",    -15, 5, "-"},
  { 45, "Weapon Maintenance",              1,  0, "ADC pg 319",   75, "WIS",             "-",    -5,  5, "-"},
  { 46, "Angawa Battle Cry",               2,  0, "ADC pg 319",  225, "(STR+CHA)/2",     "1d6",   0,  6, "-"},
  { 47, "Art of Beating",                  2,  0, "ADC pg 319",  275, "(STR+INT)/2",     "1d4",   5,  6, "-"},
  { 48, "Attitude Adjustment",             1,  0, "ADC pg 319",  200, "(STR+CHA)/2",     "1d8",   5,  6, "-"},
  { 49, "Brawler",                         2,  0, "ADC pg 319",  175, "(STR+DEX)/2",     "1d8",   5,  6, "-"},
  { 50, "Crane",                           2,  0, "ADC pg 319",  215, "DEX",             "1d4",  10,  6, "-"},
  { 51, "Cricket-in-the-Pea-Pod",          1,  0, "ADC pg 319",  275, "DEX",             "1d5",  15,  6, "-"},
  { 52, "Dirty Fighting",                  1,  0, "ADC pg 319",  225, "INT",             "1d6",   0,  6, "-"},
  { 53, "Establish Ambush Zone",           8,  0, "ADC pg 319",  225, "WIS",             "1d6",   5,  6, "-"},
  { 54, "Eye Gouge",                       1,  0, "ADC pg 319",  125, "DEX",             "1d8",   5,  6, "-"},
  { 55, "Eye of the Tiger Advantage",      5,  0, "ADC pg 319",  325, "DEX",             "1d5",  10,  6, "-"},
  { 56, "Groin Punch",                    10,  0, "ADC pg 320",   75, "STR",             "1d4",   5,  6, "-"},
  { 57, "Jugular Swipe",                  10,  0, "ADC pg 320",  275, "DEX",             "1d4",   5,  6, "-"},
  { 58, "Kidney Bruiser",                 15,  0, "ADC pg 320",  255, "STR",             "1d6",   5,  6, "-"},
  { 59, "Mortal Combat",                   9,  0, "ADC pg 320",  435, "CON",             "1d4",   5,  6, "-"},
  { 60, "Muster Resolve",                  8,  0, "ADC pg 320",  325, "CON",             "1d6",  10,  6, "-"},
  { 61, "Pimp Slap (Wuss Slap)",           1,  0, "ADC pg 320",   95, "STR",             "1d6",   5,  6, "-"},
  { 62, "Pugilism",                        7,  0, "ADC pg 320",  125, "(STR+DEX+INT)/3", "1d6",   5,  6, "-"},
  { 63, "Round House Groin Kick",         10,  0, "ADC pg 320",  125, "DEX",             "1d6",   5,  6, "-"},
  { 64, "Who's Yer Mamma Ankle Wrench",    6,  0, "ADC pg 320",  225, "(STR+DEX)/2",     "1d6",   5,  6, "-"},
  { 65, "Dancing (Ballroom)",              1,  0, "ADC pg 321",  400, "DEX",             "1d6",  10,  7, "-"},
  { 66, "Interpret/Perfom Mime",           1,  0, "ADC pg 321",  240, "INT",             "1d12",  0,  7, "-"},
  { 67, "Juggling (ADC)",                  1,  0, "ADC pg 321",  100, "DEX",             "1d8",  10,  7, "-"},
  { 68, "Manu Weasel Dance",               5,  0, "ADC pg 321",  250, "DEX",             "1d12",  5,  7, "-"},
  { 69, "Mocking Jig",                    10,  0, "ADC pg 321",  120, "DEX",             "1d10",  5,  7, "-"},
  { 70, "Poetry, Writing and Comprehension", 1, 0, "ADC pg 321", 200, "(INT+WIS)/2",     "1d8",  10,  7, "-"},
  { 71, "Singing",                         1,  0, "ADC pg 321",  500, "CHA",             "1d4",  15,  7, "-"},
  { 72, "Animal Handling    ",             1,  0, "ADC pg 321",  300, "WIS",             "1d10",  5,  8, "7"},
  { 73, "Armorer",                        10,  0, "ADC pg 321",  600, "INT",             "1d6",   5,  8, "119 126"},
  { 74, "Armor Repair, Basic",             3,  0, "ADC pg 322/WMA pg 49", 375, "(INT+DEX)/2", "1d10", 5, 8, "42"},
  { 75, "Armor Repair, Advanced",          4,  0, "ADC pg 322/WMA pg 49", 575, "(INT+DEX)/2", "1d8", 10, 8, "74"},
  { 76, "Armor Repair, Expert",            8,  0, "ADC pg 322/WMA pg 49", 875, "(INT+DEX)/2", "1d6", 10, 8, "75"},
  { 77, "Bargain Sense",                   5,  0, "ADC pg 322",  100, "WIS",             "1d8",   0,  8, "-"},
  { 78, "Bartering",                       1,  0, "ADC pg 322",  100, "WIS",             "1d8",   0,  8, "-"},
  { 79, "Blacksmithing",                   1,  0, "ADC pg 322",  100, "STR",             "1d8",   0,  8, "191"},
  { 80, "Bowyer/Fletcher",                 1,  0, "ADC pg 322",  450, "DEX",             "1d8",   5,  8, "-"},
  { 81, "Brewing",                         1,  0, "ADC pg 322",   75, "INT",             "1d12",  0,  8, "-"},
  { 82, "Carpentry     ",                  1,  0, "ADC pg 322",  150, "STR",             "1d10",  5,  8, "192"},
  { 83, "Cartography, Dungeon",            2,  0, "ADC pg 322",  200, "INT",             "1d8",   5,  8, "124"},
  { 84, "Cartography, Hasty Mapping",      2,  0, "ADC pg 322",   75, "INT",             "1d10",  0,  8, "124"},
  { 85, "Cartography, Overland",           2,  0, "ADC pg 323",  225, "INT",             "1d6",  10,  8, "124"},
  { 86, "Charioteering",                   1,  0, "ADC pg 323",  165, "DEX",             "1d8",   5,  8, "-"},
  { 87, "Clever Packer",                   3,  0, "ADC pg 323",   80, "WIS",             "1d8",   0,  8, "-"},
  { 88, "Cobbling",                        1,  0, "ADC pg 323",   85, "DEX",             "1d12",  5,  8, "-"},
  { 89, "Coin Pile Numerical Approximation", 2, 0, "ADC pg 323", 200, "INT",             "1d6",  10,  8, "-"},
  { 90, "Complex Geometric Estimation",    2,  0, "ADC pg 323",  350, "INT",             "1d4",  10,  8, "-"},
  { 91, "Construction: Defense Works",     2,  0, "ADC pg 323",  400, "(STR+DEX+WIS)/3", "1d6",   5,  8, "-"},
  { 92, "Construction: Fortifications",    2,  0, "ADC pg 323",  450, "(STR+DEX+WIS)/3", "1d6",   5,  8, "-"},
  { 93, "Construction: Hasty Defense Works", 4, 0, "ADC pg 323", 300, "(STR+DEX+WIS)/3", "1d10",  0,  8, "-"},
  { 94, "Construction: Siege Works",       2,  0, "ADC pg 323",  500, "(STR+DEX+WIS)/3", "1d4",   5,  8, "-"},
  { 95, "Cooking",                         1,  0, "ADC pg 323",   75, "INT",             "1d12",  0,  8, "18"},
  { 96, "Dig Hasty Grave",                 1,  0, "ADC pg 323",    5, "STR",             "-",    -2,  8, "-"},
  { 97, "Dig Proper Grave",                1,  0, "ADC pg 323",   15, "WIS",             "1d20",  0,  8, "-"},
  { 98, "Endurance",                       4,  0, "ADC pg 323",  400, "(WIS+CON)/2",     "1d6",  10,  8, "-"},
  { 99, "Farming",                         1,  0, "ADC pg 324",  100, "WIS",             "1d8",   5,  8, "4"},
  {100, "Fire-building",                   1,  0, "ADC pg 324",   75, "WIS",             "1d6",   5,  8, "-"},
  {101, "First Aid: Cauterize Wound",      2,  0, "ADC pg 324",  350, "INT",             "1d8",   5,  8, "-"},
  {102, "First Aid: Sew Own Wounds",       2,  0, "ADC pg 324",  200, "INT",             "1d4",   5,  8, "-"},
  {103, "First Aid: Sew Wounds",           2,  0, "ADC pg 324",  350, "INT",             "1d6",   0,  8, "102"},
  {104, "Fishing",                         1,  0, "ADC pg 324",  100, "WIS",             "1d10",  5,  8, "-"},
  {105, "Fondling (Covert Appraisal Technique)", 3, 0, "ADC pg 324", 325, "(DEX+WIS)/2", "1d4",  10,  8, "-"},
  {106, "Forgery",                        10,  0, "ADC pg 325",  350, "(DEX+INT)/2",     "1d4",  20,  8, "-"},
  {107, "Gaming",                          3,  0, "ADC pg 325",  200, "CHA",             "1d6",  10,  8, "-"},
  {108, "Gem Cutting",                     2,  0, "ADC pg 325",  700, "DEX",             "1d4",  10,  8, "8"},
  {109, "Glean Information",               3,  0, "ADC pg 325",  300, "CHA",             "1d8",  10,  8, "-"},
  {110, "Haggle",                          2,  0, "ADC pg 325",  375, "(CHA+INT)/2",     "1d6",   0,  8, "-"},
  {111, "Healing     ",                    2,  0, "ADC pg 325",  400, "WIS",             "1d4",   5,  8, "251"},
  {112, "Hunting",                         1,  0, "ADC pg 326",  370, "WIS",             "1d6",   5,  8, "113"},
  {113, "Identify Animal by Tracks",       1,  0, "ADC pg 326",  230, "WIS",             "1d6",  15,  8, "-"},
  {114, "Intelligence Gathering",          4,  0, "ADC pg 326",  575, "(INT+WIS)/2",     "1d6",  10,  8, "147 159 120"},
  {115, "Interrogation",                   4,  0, "ADC pg 326",  400, "(STR+WIS)/2",     "1d6",  10,  8, "109"},
  {116, "Jeweler",                         2,  0, "ADC pg 326",  670, "INT",             "1d6",   5,  8, "126 108"},
  {117, "Jumping",                         2,  0, "ADC pg 326",  200, "STR",             "1d4",   5,  8, "-"},
  {118, "Laborer, General",                1,  0, "ADC pg 326",   50, "(STR+WIS)/2",     "-",    -20, 8, "-"},
  {119, "Leatherworking",                  3,  0, "ADC pg 326",  300, "(STR+INT)/2",     "1d8",   0,  8, "-"},
  {120, "Liar, Skilled",                   3,  0, "ADC pg 327",  400, "(INT+CHA)/2",     "1d6",  10,  8, "-"},
  {121, "Looting, Advanced",               4,  0, "ADC pg 327",  550, "WIS",             "1d4",  10,  8, "122"},
  {122, "Looting, Basic",                  2,  0, "ADC pg 327",  350, "WIS",             "1d6",   5,  8, "-"},
  {123, "Maintain Self-Discipline",        2,  0, "ADC pg 327",  300, "WIS",             "1d4",   5,  8, "-"},
  {124, "Map Sense",                       1,  0, "ADC pg 327",  200, "WIS",             "1d6",   5,  8, "-"},
  {125, "Mapless Travel",                  3,  0, "ADC pg 327",  150, "WIS",             "1d8",  10,  8, "-"},
  {126, "Metalworking",                    2,  0, "ADC pg 327",  500, "(STR+DEX+WIS)/3", "1d6",   5,  8, "79"},
  {127, "Mimic Dialect",                   2,  0, "ADC pg 327",  200, "INT",             "1d6",  10,  8, "-"},
  {128, "Mining   ",                       2,  0, "ADC pg 327",  500, "WIS",             "1d6",   5,  8, "-"},
  {129, "Mountaineering",                  1,  0, "ADC pg 327",  400, "(STR+DEX+INT)/3", "1d8",   5,  8, "-"},
  {130, "Navigation, Nautical",            2,  0, "ADC pg 327",  300, "INT",             "1d6",  10,  8, "-"},
  {131, "Orchestrate Task",                3,  0, "ADC pg 328",  400, "(INT+CHA)/2",     "1d6",  15,  8, "-"},
  {132, "Pinch",                           1,  0, "ADC pg 328",    0, "DEX",             "-",     0,  8, "-"},
  {133, "Pottery",                         1,  0, "ADC pg 328",   75, "DEX",             "1d10", -1,  8, "-"},
  {134, "Recruit Army",                    2,  0, "ADC pg 328",  300, "CHA",             "1d8",   5,  8, "-"},
  {135, "Riding, Warhorse (Dwarven)",      2,  0, "ADC pg 329",  400, "(DEX+CHA)/2",     "1d4",  10,  8, "-"},
  {136, "Rope Use",                        1,  0, "ADC pg 329",   85, "DEX",             "1d8",  -5,  8, "-"},
  {137, "Running   ",                      1,  0, "ADC pg 329",  100, "CON",             "1d8",   0,  8, "-"},
  {138, "Seamanship",                      5,  0, "ADC pg 329",  700, "DEX",             "1d6",  10,  8, "-"},
  {139, "Seamstress/Tailor",               2,  0, "ADC pg 330",  200, "DEX",             "1d12",  0,  8, "-"},
  {140, "Seduction, Art of",               1,  0, "ADC pg 330",  750, "(COM+CHA)/2",     "1d6",  15,  8, "-"},
  {141, "Set Snares",                      1,  0, "ADC pg 330",  250, "DEX",             "1d8",   5,  8, "-"},
  {142, "Shield Repair, Metal",            3,  0, "ADC pg 330",  275, "(INT+DEX)/2",     "1d8",  15,  8, "119 126"},
  {143, "Shield Repair, Wood",             3,  0, "ADC pg 330",  175, "(INT+DEX)/2",     "1d10", 15,  8, "119 192"},
  {144, "Slaughter: Game Animal",          1,  0, "ADC pg 330",  300, "(STR+WIS)/2",     "1d8",   5,  8, "-"},
  {145, "Slaughter: Livestock",            1,  0, "ADC pg 330",  385, "(STR+WIS)/2",     "1d10",  0,  8, "-"},
  {146, "Slip Away into Shadows",          1,  0, "ADC pg 330",  450, "DEX",             "1d6",  10,  8, "-"},
  {147, "Stealthy Movement",               4,  0, "ADC pg 331",  370, "DEX",             "1d6",  10,  8, "146"},
  {148, "Stonemasonry",                    1,  0, "ADC pg 331",  170, "(STR+INT)/2",     "1d10",  5,  8, "-"},
  {149, "Survival Skill Suite",           10,  0, "ADC pg 331", 1500, "(INT+CON+WIS)/3", "1d6",   5,  8, "-"},
  {150, "Survival, Desert",                3,  0, "ADC pg 331",  450, "(INT+CON+WIS)/3", "1d6",  10,  8, "-"},
  {151, "Survival, Jungle",                2,  0, "ADC pg 331",  250, "(INT+CON+WIS)/3", "1d8",   5,  8, "-"},
  {152, "Survival, Underground",           3,  0, "ADC pg 331",  275, "(INT+CON+WIS)/3", "1d4",   5,  8, "-"},
  {153, "Survival, Winter",                3,  0, "ADC pg 331",  450, "(INT+CON+WIS)/3", "1d4",  10,  8, "-"},
  {154, "Swimming      ",                  3,  0, "ADC pg 331",  175, "(STR+DEX+CON)/3", "1d6",   5,  8, "155"},
  {155, "Swimming: Dog Paddle",            1,  0, "ADC pg 331",   50, "(STR+CON)/2",     "1d10",  0,  8, "-"},
  {156, "Tightrope Walking",               1,  0, "ADC pg 331",  375, "DEX",             "1d4",  15,  8, "-"},
  {157, "Torture",                         3,  0, "ADC pg 332",  250, "(STR+INT)/2",     "1d6",   5,  8, "-"},
  {158, "Track Game",                      1,  0, "ADC pg 332",  300, "WIS",             "1d6",  10,  8, "113"},
  {159, "Tracking",                        2,  0, "ADC pg 332",  350, "WIS",             "1d4",  10,  8, "-"},
  {160, "Trap Sweep (Full Sweep)",         1,  0, "ADC pg 332",  375, "(DEX+WIS)/2",     "1d8",  20,  8, "-"},
  {161, "Tumbling",                        2,  0, "ADC pg 332",  125, "DEX",             "1d6",  10,  8, "-"},
  {162, "Vandalism/Desecration",           2,  0, "ADC pg 332",  200, "STR",             "1d12",  5,  8, "-"},
  {163, "Ventriloquism",                   3,  0, "ADC pg 333",  300, "INT",             "1d4",  15,  8, "-"},
  {164, "Weaponsmithing",                  4,  0, "ADC pg 333",  700, "(DEX+INT)/2",     "1d6",  10,  8, "79"},
  {165, "Weaving",                         2,  0, "ADC pg 333",  100, "(DEX+INT)/2",     "1d8",   5,  8, "-"},
  {166, "Berate",                          1,  0, "ADC pg 333",  200, "CHA",             "1d6",   5,  9, "-"},
  {167, "Calling Dibs",                    3,  0, "ADC pg 333",  100, "WIS",             "1d8",  15,  9, "-"},
  {168, "Diplomacy",                       2,  0, "ADC pg 334",  150, "CHA",             "1d8",  10,  9, "-"},
  {169, "Feign Toughness",                 2,  0, "ADC pg 334",  250, "CHA",             "1d10",  5,  9, "-"},
  {170, "Flex Muscle",                     2,  0, "ADC pg 334",  170, "STR",             "1d8",   0,  9, "-"},
  {171, "Graceful Entrance/Exit",          1,  0, "ADC pg 334",  100, "CHA",             "1d6",  10,  9, "-"},
  {172, "Idle Gossip",                     1,  0, "ADC pg 334",  185, "CHA",             "1d12",  0,  9, "-"},
  {173, "Intimidation",                    2,  0, "ADC pg 334",  250, "WIS",             "1d4",   5,  9, "169"},
  {174, "Joke Telling",                    1,  0, "ADC pg 334",   50, "(INT+CHA)/2",     "1d4",  10,  9, "-"},
  {175, "Knowledge of Courtly Affairs",    2,  0, "ADC pg 334",  400, "WIS",             "1d8",   5,  9, "-"},
  {176, "Mingling (Balls, Parties)",       2,  0, "ADC pg 334",  300, "CHA",             "1d6",  10,  9, "-"},
  {177, "Oration",                         2,  0, "ADC pg 334",  190, "(INT+CHA)/2",     "1d4",  20,  9, "181"},
  {178, "Parley",                          4,  0, "ADC pg 334",  150, "CHA",             "1d4",  15,  9, "-"},
  {179, "Poker Face",                      3,  0, "ADC pg 334",   80, "WIS",             "1d6",  10,  9, "-"},
  {180, "Resist Persuasion",               1,  0, "ADC pg 334",   90, "WIS",             "1d8",   5,  9, "-"},
  {181, "Rousing Speech",                  3,  0, "ADC pg 335",  270, "CHA",             "1d6",  20,  9, "-"},
  {182, "Rules of Fair Play",              1,  0, "ADC pg 335",  150, "WIS",             "1d6",   5,  9, "-"},
  {183, "Secret Persona",                  2,  0, "ADC pg 335",  600, "WIS",             "1d4",   5,  9, "-"},
  {184, "Social Etiquette",                1,  0, "ADC pg 335",  170, "(WIS+CHA)/2",     "1d6",   5,  9, "-"},
  {185, "Street Cred",                     1,  0, "ADC pg 335",  150, "(STR+WIS+CHA)/3", "1d8",  10,  9, "-"},
  {186, "Taunting, Major",                 3,  0, "ADC pg 335",  200, "WIS",             "1d6",  10,  9, "187"},
  {187, "Taunting, Minor",                 2,  0, "ADC pg 335",  100, "WIS",             "1d8",   5,  9, "-"},
  {188, "Threat Gesture (Nonverbal gestures - body and hand)", 1, 0, "ADC pg 335", 175, "WIS", "1d8", 5, 9, "-"},
  {189, "Ulterior Motive",                 2,  0, "ADC pg 335",  100, "CHA",             "1d4",  10,  9, "-"},
  {190, "Assaying/Surveying Tools",        1,  0, "ADC pg 335", 4200, "(DEX+INT)/2",     "1d8",   0, 10, "-"},
  {191, "Blacksmith Tools",                1,  0, "ADC pg 335",  600, "(STR+DEX+INT)/3", "1d6",   5, 10, "-"},
  {192, "Carpentry Tools (Wood Working)",  1,  0, "ADC pg 336", 4200, "(STR+DEX+INT)/3", "1d8",   0, 10, "-"},
  {193, "Construction Tools",              1,  0, "ADC pg 336", 4200, "(STR+DEX+INT)/3", "1d8",   0, 10, "-"},
  {194, "Drafting Tools",                  1,  0, "ADC pg 336", 4200, "DEX",             "1d6",   0, 10, "-"},
  {195, "Jeweler Tools",                   1,  0, "ADC pg 336", 4200, "(DEX+WIS)/2",     "1d8",   0, 10, "-"},
  {196, "Leather Working Tools",           1,  0, "ADC pg 336",  400, "DEX",             "1d6",   5, 10, "-"},
  {197, "Mining Tools (stone working)",    1,  0, "ADC pg 336",  400, "STR",             "1d8",   5, 10, "-"},
  {198, "Peg Leg (left)",                  1,  0, "ADC pg 336",    0, "DEX",             "-",    10, 10, "-"},
  {199, "Peg Leg (right)",                 1,  0, "ADC pg 336",    0, "DEX",             "-",    10, 10, "-"},
  {200, "Surgery Tools/Suture Kit",        1,  0, "ADC pg 336", 4200, "(DEX+INT)/2",     "1d8",   0, 10, "-"},
  {201, "Skinning",                        1,  0, "Posted Fixes", 650, "(STR+WIS)/2",    "1d8",   5,  8, "-"},
  {202, "Arcane Speak",                    2,  1, "HXA pg 53",   800, "INT",             "1d8",  10,  3, "-"},
  {203, "Calligraphy",                     1,  1, "HXA pg 53",   100, "DEX",             "1d10",  5,  8, "-"},
  {204, "Know Ability",                    5,  1, "HXA pg 53",   100, "WIS",             "1d8",   5,  2, "-"},
  {205, "Penmanship",                      1,  1, "HXA pg 53",   125, "(INT+DEX)/2",     "1d12",  0,  8, "-"},
  {206, "Sleight of Hand",                 4,  1, "HXA pg 53",   450, "DEX",             "1d6",  15,  8, "-"},
  {207, "Speed Reading",                   2,  1, "HXA pg 53",   300, "(INT+WIS)/2",     "1d10", 10,  8, "F17"},
  {208, "Spell Tattooing",                 4,  1, "HXA pg 54",   500, "DEX",             "1d6",  15,  8, "12 F13"},
  {209, "Spirit Lore",                     2,  1, "HXA pg 54",   300, "(INT+WIS)/2",     "1d8",  10,  2, "2 1"},
  {210, "Camouflage",                      2,  2, "WMA pg 50",   275, "WIS",             "1d10",  5,  8, "-"},
  {211, "Distance Sense",                  1,  2, "WMA pg 50",   125, "WIS",             "1d12",  0,  8, "-"},
  {212, "Disarm    ",                      2,  2, "WMA pg 50",   400, "DEX",             "1d8",   5,  6, "-"},
  {213, "Expert Disarm",                   3,  2, "WMA pg 50",  1000, "DEX",             "1d6",  15,  6, "212"},
  {214, "Flying Combat",                   3,  2, "WMA pg 51",  1500, "(DEX+WIS)/2",     "1d6",  10,  6, "F18"},
  {215, "Improved Charge",                 4,  2, "WMA pg 51",   300, "DEX",             "1d6",  10,  6, "-"},
  {216, "Shield Bash",                     2,  2, "WMA pg 52",   500, "STR",             "1d6",  10,  6, "217"},
  {217, "Shield Punch",                    1,  2, "WMA pg 52",   375, "STR",             "1d8",   5,  6, "-"},
  {218, "Trip Attack",                     2,  2, "WMA pg 52",   300, "(STR+DEX)/2",     "1d8",   0,  6, "-"},
  {219, "Snappy Comeback",                 1,  2, "WMA pg 52",   125, "(INT+WIS)/2",     "1d8",   5,  9, "-"},
  {220, "Press the Attack",                6, 10, "WMA pg 51",   400, "(STR+DEX)/2",     "2d4",   0,  6, "-"},
  {221, "Fast Draw (TG12)",                3, 10, "TG12 pg 38",  200, "DEX",             "1d8",   0,  6, "-"},
  {222, "Jousting",                        1, 10, "TG12 pg 38",  550, "(STR+DEX+CON)/2", "1d8",  10,  6, "F19"},
  {223, "Ka-Bob Maneuver",                 3, 10, "TG12 pg 38",  130, "STR",             "1d6",   5,  6, "-"},
  {224, "Administrator/Politician Skill Suite", 10, 0, "RFC pg 71", 2075, "(WIS+CHA)/2", "1d5",  15, 11, "-"},
  {225, "Artist Skill Suite",              8,  0, "RFC pg 71",  1850, "WIS",             "1d10", 15, 11, "-"},
  {226, "Blacksmith Skill Suite",          4,  0, "RFC pg 71",  1400, "STR",             "1d6",  10, 11, "-"},
  {227, "Carpenter Skill Suite",           5,  0, "RFC pg 71",  5300, "(STR+DEX+INT)/3", "1d8",  10, 11, "-"},
  {228, "Cartographer Skill Suite",        7,  0, "RFC pg 71",   935, "INT",             "1d8",  15, 11, "-"},
  {229, "Healer/Doctor Skill Suite",       8,  0, "RFC pg 71",  6270, "INT",             "1d8",  15, 11, "-"},
  {230, "Historian Skill Suite",           4,  0, "RFC pg 71",  1375, "(INT+WIS)/2",     "1d8",  15, 11, "-"},
  {231, "Limner/Painter Skill Suite",      7,  0, "RFC pg 71",  5555, "INT",             "1d6",  15, 11, "-"},
  {232, "Missionary Skill Suite",         12,  0, "RFC pg 71",  2750, "WIS",             "1d10", 10, 11, "-"},
  {233, "Navigator Skill Suite",           6,  0, "RFC pg 71",  1180, "INT",             "1d8",  15, 11, "-"},
  {234, "Sailor Skill Suite",             11,  0, "RFC pg 71",  1550, "DEX",             "1d8",  15, 11, "-"},
  {235, "Scribe Skill Suite",              3,  0, "RFC pg 71",   700, "INT",             "1d6",  15, 11, "-"},
  {236, "Shipwright Skill Suite",          8,  0, "RFC pg 71",  5775, "DEX",             "1d10", 15, 11, "-"},
  {237, "Tailor/Weaver Skill Suite",       4,  0, "RFC pg 71",   500, "(DEX+INT)/2",     "1d12", 10, 11, "-"},
  {238, "Teamster/Freighter Skill Suite",  4,  0, "RFC pg 71",  1000, "(INT+WIS)/2",     "1d10", 15, 11, "-"},
  {239, "Thug Skill Suite",               10,  0, "RFC pg 71",  1400, "(STR+WIS)/2",     "1d6",  10, 11, "-"},
  {240, "Trader/Barter Skill Suite",      13,  0, "RFC pg 71",  1250, "(STR+WIS)/2",     "1d8",  15, 11, "-"},
  {241, "Trapper/Furrier Skill Suite",     5,  0, "RFC pg 71",  1100, "WIS",             "1d8",  10, 11, "-"},
  {242, "Holistic First Aid",              3,  2, "WMA pg 8",    150, "WIS",             "1d6",   5, 12, "-"},
  {243, "Makeshift Small Craft, Paddled",  2,  2, "WMA pg 8",    400, "INT",             "1d8",  10, 12, "-"},
  {244, "Makeshift Small Craft, Rowed",    2,  2, "WMA pg 8",    450, "INT",             "1d8",  10, 12, "-"},
  {245, "Outdoor Craft",                   4,  2, "WMA pg 8",    200, "(INT+WIS)/2",     "1d4",   5, 12, "-"},
  {246, "Sound Mimicry",                   1,  2, "WMA pg 8",    150, "INT",             "1d8",   0, 12, "-"},
  {247, "Wild Animal Handling",            2,  2, "WMA pg 8",    400, "WIS",             "1d8",   0, 12, "-"},
  {248, "Wilderness Running",              2,  2, "WMA pg 8",     50, "CON",             "1d6",  -5, 12, "-"},
  {249, "Language, Undead",                2,  0, "ADC pg 317",  300, "INT",             "1d8",   5,  3, "-"},
  {250, "Entrenchment Construction",       4,  0, "ADC pg 319",  425, "WIS",             "1d6",   5,  6, "-"},
  {251, "First Aid Skill Suite",           5,  0, "ADC pg 324", 1000, "INT",             "1d6",  10, 11, "-"},
  {252, "Fung-Chi",                        7,  2, "WMA pg 109",  600, "(DEX+WIS)/2",     "1d6",   5,  6, "-"},
  {253, "Gung-fu",                         9,  2, "WMA pg 109",  525, "(DEX+WIS)/2",     "1d8",   7,  6, "-"},
  {254, "Bilodo",                          8,  2, "WMA pg 109",  580, "(DEX+WIS)/2",     "1d6",   6,  6, "-"},
  {255, "Sung Hoy",                        9,  2, "WMA pg 109",  550, "(DEX+WIS)/2",     "1d6",   7,  6, "-"},
  {256, "Curlamo",                         8,  2, "WMA pg 109",  600, "(DEX+WIS)/2",     "1d10",  0,  6, "-"},
  {257, "Hoohah",                          8,  2, "WMA pg 109",  600, "(DEX+WIS)/2",     "1d8",   5,  6, "-"},
  {258, "Chi-Star",                        8,  2, "WMA pg 109",  650, "(DEX+WIS)/2",     "1d5",  -5,  6, "-"},
  {259, "Kick 1. Circle Kick",             3,  2, "WMA pg 110",  400, "DEX",             "1d8",   3,  6, "-"},
  {260, "Kick 2. Flying Kick",             6,  2, "WMA pg 110",  750, "DEX",             "1d6",   6,  6, "-"},
  {261, "Kick 3. Backward Kick",           9,  2, "WMA pg 110", 1000, "DEX",             "1d4",   9,  6, "-"},
  {262, "Lock 1. Choke Hold",              3,  2, "WMA pg 110",  400, "DEX",             "1d8",   3,  6, "-"},
  {263, "Lock 2. Locking Block",           6,  2, "WMA pg 110",  750, "DEX",             "1d6",   6,  6, "-"},
  {264, "Lock 3. Incapacitator",           9,  2, "WMA pg 112", 1000, "DEX",             "1d4",   9,  6, "-"},
  {265, "Lock 4. Immobilizing",           12,  2, "WMA pg 112", 1300, "CON",             "1d4",  13,  6, "-"},
  {266, "Movement 1. Feint",               3,  2, "WMA pg 112",  400, "DEX",             "1d10",  3,  6, "-"},
  {267, "Movement 2. Prone Fighting",      6,  2, "WMA pg 112",  750, "DEX",             "1d8",   6,  6, "-"},
  {268, "Movement 3. Immovability",        9,  2, "WMA pg 112", 1000, "DEX",             "1d8",   9,  6, "-"},
  {269, "Movement 4. Missile Deflection", 12,  2, "WMA pg 112", 1300, "DEX",             "1d6",  13,  6, "-"},
  {270, "Movement 5. Leap",               15,  2, "WMA pg 112", 1600, "DEX",             "1d6",  16,  6, "-"},
  {271, "Movement 6. Speed",              17,  2, "WMA pg 112", 1950, "DEX",             "1d4",  18,  6, "-"},
  {272, "Movement 7. Slow Resistance",    20,  2, "WMA pg 112", 2300, "DEX",             "1d4",  20,  6, "-"},
  {273, "Push 1. Concentrated Push",       3,  2, "WMA pg 113",  400, "WIS",             "1d8",   3,  6, "-"},
  {274, "Push 2. Sticking Touch",          6,  2, "WMA pg 113",  750, "WIS",             "1d6",   6,  6, "-"},
  {275, "Push 3. One Finger",              9,  2, "WMA pg 113", 1000, "WIS",             "1d4",   9,  6, "-"},
  {276, "Strike 1. Iron fist",             3,  2, "WMA pg 113",  400, "CON",             "1d8",   3,  6, "-"},
  {277, "Strike 2. Crushing Blow",         6,  2, "WMA pg 113",  750, "STR",             "1d6",   6,  6, "-"},
  {278, "Strike 3. Eagle Claw",            9,  2, "WMA pg 114", 1000, "STR",             "1d4",   9,  6, "-"},
  {279, "Throw 1. Fall",                   3,  2, "WMA pg 114",  400, "DEX",             "1d8",   3,  6, "-"},
  {280, "Throw 2. Instant Stand",          6,  2, "WMA pg 114",  750, "DEX",             "1d6",   6,  6, "-"},
  {281, "Throw 3. Hurl",                   9,  2, "WMA pg 114", 1000, "DEX",             "1d4",   9,  6, "-"},
  {282, "Throw 4. Great Throw",           12,  2, "WMA pg 114", 1300, "DEX",             "1d4",  12,  6, "-"},
  {283, "Vital Area 1. Pain Touch",        3,  2, "WMA pg 114",  400, "DEX",             "1d8",   3,  6, "-"},
  {284, "Vital Area 2. Stunning Touch",    6,  2, "WMA pg 114",  750, "DEX",             "1d6",   6,  6, "-"},
  {285, "Vital Area 3. Paralyzing Touch",  9,  2, "WMA pg 114", 1000, "WIS",             "1d4",   9,  6, "-"},
  {286, "Vital Area 4. Distance Death",   12,  2, "WMA pg 114", 1300, "WIS",             "1d4",  12,  6, "-"},
  {287, "Mental and Physical Training 1. Meditation", 3, 2, "WMA pg 114", 400, "WIS",    "1d8",   3,  6, "-"},
  {288, "Mental and Physical Training 2. All-around sight", 6, 2, "WMA pg 115", 750, "WIS", "1d6", 6, 6, "-"},
  {289, "Mental and Physical Training 3. Mental Resistance", 9, 2, "WMA pg 115", 1000, "WIS", "1d4", 9, 6, "-"},
  {290, "Mental and Physical Training 4. Ironskin", 12, 2, "WMA pg 115", 1300, "CON",    "1d4",  12,  6, "-"},
  {291, "Mental and Physical Training 5. Levitation", 15, 2, "WMA pg 115", 1650, "WIS",  "1d4",  17,  6, "-"},
  {292, "Distraction",                     1,  4, "DVA pg 72",   100, "(CHA+WIS)/2",     "1d8",  15,  9, "-"},
  {293, "Feint",                           4,  4, "DVA pg 72",   225, "(DEX+WIS)/2",     "1d6",   5,  6, "-"},
  {294, "Improve Cover",                   4,  4, "DVA pg 72",   200, "(DEX+WIS)/2",     "1d6",   0,  6, "-"},
  {295, "Improved Overbearing",            2,  4, "DVA pg 72",   250, "(STR+WIS)/2",     "1d8",   5,  6, "-"},
  {296, "Improved Subdual",                3,  4, "DVA pg 72",   300, "(CHA+WIS)/2",     "1d4",   0,  6, "-"},
  {297, "Improved Unarmed Combat",         2,  4, "DVA pg 72",   150, "(DEX+WIS)/2",     "1d6",   0,  6, "-"},
  {298, "Veterinary Healing",              3,  4, "DVA pg 72",   350, "WIS",             "1d6",   0,  8, "-"},
  {299, "Acting",                          2,  3, "SWA pg 62",   800, "WIS",             "1d10",  0,  8, "-"},
  {300, "Animal Noise",                    1,  3, "SWA pg 62",   100, "WIS",             "1d8",   0,  8, "-"},
  {301, "Begging (General)",               1,  3, "SWA pg 62",   350, "CHA",             "1d6",  -10, 9, "-"},
  {302, "Begging (Panhandling)",           2,  3, "SWA pg 63",   400, "CHA",             "1d4",   0,  9, "301"},
  {303, "Boating",                         1,  3, "SWA pg 63",   120, "WIS",             "1d8",  -5,  8, "-"},
  {304, "Chanting",                        1,  3, "SWA pg 63",   250, "CON",             "1d12", -10, 7, "-"},
  {305, "Craft Instrument",                3,  3, "SWA pg 64",  1600, "WIS",             "1d8",   5,  9, "192"},
  {306, "Disguise",                        6,  3, "SWA pg 64",   900, "(INT+CHA)/2",     "1d6",  10,  9, "-"},
  {307, "Fast Draw (SWA)",                 2,  3, "SWA pg 65",   175, "CHA",             "1d6",   5,  9, "-"},
  {308, "Fast-Talking",                    1,  3, "SWA pg 65",   200, "CHA",             "1d8",   0,  9, "-"},
  {309, "Fortune Telling",                 2,  3, "SWA pg 65",   550, "CHA",             "1d8",   0,  9, "-"},
  {310, "Identify Poison",                 2,  3, "SWA pg 66",   500, "INT",             "1d8",   5,  2, "-"},
  {311, "Juggling (SWA)",                  2,  3, "SWA pg 66",   400, "DEX",             "1d6",   5,  9, "-"},
  {312, "Locksmithing",                    3,  3, "SWA pg 66",   800, "(STR+DEX+WIS)/3", "1d6",  10,  9, "126"},
  {313, "Observation",                     2,  3, "SWA pg 67",   250, "(WIS+INT)/2",     "1d8",   5,  9, "-"},
  {314, "Set Traps, Advanced",             2,  3, "SWA pg 67",   250, "DEX",             "1d8",  -5,  9, "141"},
  {315, "Trailing",                        2,  3, "SWA pg 67",   300, "DEX",             "1d8",   5,  9, "-"},
  {316, "Voice Mimicry",                   2,  3, "SWA pg 68",   700, "CHA",             "1d6",  15,  9, "-"},
  {317, "Whistling/Humming",               1,  3, "SWA pg 68",    80, "CHA",             "1d10", -15, 7, "-"},
};

// Row  Name                              BP  Bk  Page           Cost Abilities          Die     Add Cat Prerequisites
constexpr SkillLine kFamilies[] = {
  {  0, "Anatomy, Vital",                  1,  0, "ADC pg 313",  750, "(INT+WIS)/2",     "1d8",   5,  2, "6"},
  {  1, "Ancient History",                 1,  0, "ADC pg 313",  750, "INT",             "1d12",  0,  2, "-"},
  {  2, "Culture",                         1,  0, "ADC pg 314",  175, "WIS",             "1d6",  10,  2, "-"},
  {  3, "Customs and Etiquette",           1,  0, "ADC pg 314",  275, "WIS",             "1d8",  15,  2, "-"},
  {  4, "Local History",                   1,  0, "ADC pg 314",  100, "(CHA+WIS)/2",     "1d8",   0,  2, "-"},
  {  5, "Religion Specific",               2,  0, "ADC pg 316",  250, "WIS",             "1d8",   5,  2, "35"},
  {  6, "Language, Ancient/Dead",          2,  0, "ADC pg 317",  200, "INT",             "1d6",  10,  3, "-"},
  {  7, "Language, Modern",                1,  0, "ADC pg 317",  150, "INT",             "1d10",  0,  3, "-"},
  {  8, "Brass Instrument",                2,  0, "ADC pg 317",  600, "(WIS+DEX)/2",     "1d8",   5,  4, "-"},
  {  9, "Exotic Instrument",               2,  0, "ADC pg 317",  500, "(WIS+DEX)/2",     "1d8",   5,  4, "-"},
  { 10, "Percussion Instrument",           2,  0, "ADC pg 318",  300, "(WIS+DEX)/2",     "1d8",   0,  4, "-"},
  { 11, "Stringed Instrument",             2,  0, "ADC pg 318",  600, "(WIS+DEX)/2",     "1d8",   5,  4, "-"},
  { 12, "Wind Instrument",                 2,  0, "ADC pg 318",  500, "(WIS+DEX)/2",     "1d8",   5,  4, "-"},
  { 13, "Artistic Ability",                1,  0, "ADC pg 320",  500, "(DEX+INT)/2",     "1d6",   5,  7, "-"},
  { 14, "Animal Training",                 2,  0, "ADC pg 321",  500, "(INT+WIS)/2",     "1d10", 10,  8, "72"},
  { 15, "Forage for Food",                 1,  0, "ADC pg 325",  245, "WIS",             "1d6",  10,  8, "-"},
  { 16, "Reading Lips",                    2,  0, "ADC pg 328",  400, "INT",             "1d4",  15,  8, "-"},
  { 17, "Reading/Writing",                 2,  0, "ADC pg 328",  350, "INT",             "1d6",  10,  8, "-"},
  { 18, "Riding, Airborne",                2,  0, "ADC pg 328",  550, "(DEX+WIS)/2",     "1d6",  10,  8, "F19"},
  { 19, "Riding, Land-based",              1,  0, "ADC pg 328",  350, "(DEX+WIS)/2",     "1d8",   5,  8, "-"},
  { 20, "Military History",                1,  2, "WMA pg 51",   400, "INT",             "1d12",  0,  2, "-"},
  { 21, "Riding, Sea-based",               2,  2, "WMA pg 51",   500, "(DEX+WIS)/2",     "1d6",  10,  8, "-"},
};

// What makes up a suite. A purchase spreads only over the members of rows of category 11, so neither over those of row
// 149 nor over those of the martial arts styles (252-258), which look like a slip and are kept.
// Row  Members
constexpr SuiteLine kSuites[] = {
  {149, "150 151 152 153"},                         // Survival Skill Suite
  {224, "3 17 28 29 120"},                          // Administrator/Politician Skill Suite
  {225, "F13 10 11 12 13"},                         // Artist Skill Suite
  {226, "79 191 100 126"},                          // Blacksmith Skill Suite
  {227, "23 82 143 192"},                           // Carpenter Skill Suite
  {228, "83 84 85 F17"},                            // Cartographer Skill Suite
  {229, "6 200 251 101 102 103"},                   // Healer/Doctor Skill Suite
  {230, "F1 F4 F17 27"},                            // Historian Skill Suite
  {231, "85 10 F17 194"},                           // Limner/Painter Skill Suite
  {232, "F1 35 F5 149 150 151 152 153"},            // Missionary Skill Suite
  {233, "14 130 155 154"},                          // Navigator Skill Suite
  {234, "138 130 155 154 136"},                     // Sailor Skill Suite
  {235, "F17"},                                     // Scribe Skill Suite
  {236, "138 82 192 139"},                          // Shipwright Skill Suite
  {237, "165 139 172"},                             // Tailor/Weaver Skill Suite
  {238, "72 86 82 90"},                             // Teamster/Freighter Skill Suite
  {239, "169 170 173 47 188 52"},                   // Thug Skill Suite
  {240, "110 77 185 78 9"},                         // Trader/Barter Skill Suite
  {241, "144 37 201 78 77"},                        // Trapper/Furrier Skill Suite
  {251, "101 102 103"},                             // First Aid Skill Suite
  {252, "101 102 103 101 102 103 101"},             // Fung-Chi
  {253, "101 102 103 101 102 103 101 101"},         // Gung-fu
  {254, "101 102 103 101 102 103"},                 // Bilodo
  {255, "101 102 103 101 102 103 101 102 103 101"}, // Sung Hoy
  {256, "101 102 103 101 102 101 102 103 101"},     // Curlamo
  {257, "101 102 103 101 102 101 102 103"},         // Hoohah
  {258, "101 102 103 101 102 101 102"},             // Chi-Star
};

// clang-format on

static_assert(std::size(kSkills) == 318);
static_assert(std::size(kFamilies) == 22);
static_assert(std::size(kSuites) == 27);

/// A row number, or F and the row of a family.
constexpr int ReadLink(NotationReader& reader) {
  if (!reader.Skip("F")) return reader.Number();
  const int family = reader.Number();
  if (family == 0) throw "the negation of family 0 would name a plain skill";
  return -family;
}

/// A list such as "F13 10 11"; "-" is an empty one.
template <std::size_t Room>
constexpr void ReadLinks(std::string_view list, std::array<int, Room>& slots) {
  NotationReader reader(list);
  if (reader.SkipWord("-")) return;
  for (std::size_t slot = 0; !reader.AtEnd(); ++slot) {
    if (slot > 0) reader.Expect(" ");
    slots.at(slot) = ReadLink(reader);
  }
}

constexpr void ReadDie(std::string_view die, SkillRecord& skill) {
  skill.CourseDieCount = 1;
  NotationReader reader(die);
  if (reader.SkipWord("-")) return;
  skill.CourseDieCount = reader.Number();
  reader.Expect("d");
  skill.CourseDieSides = reader.Number();
}

constexpr SkillRecord ReadLine(const SkillLine& line) {
  SkillRecord skill;
  skill.Name = line.Name;
  skill.BP = line.BP;
  skill.Book = line.Book;
  skill.Page = line.Page;
  skill.Flag = 1;
  skill.CourseCost = line.CourseCost;
  skill.MasteryAbilities = line.MasteryAbilities;
  skill.Difficulty = line.Difficulty;
  skill.Category = line.Category;
  ReadDie(line.Die, skill);
  ReadLinks(line.Prerequisites, skill.Prerequisites);
  return skill;
}

template <std::size_t Rows, std::size_t Lines>
constexpr std::array<SkillRecord, Rows> ReadLines(const SkillLine (&lines)[Lines]) {
  static_assert(Lines <= Rows);
  std::array<SkillRecord, Rows> table;
  for (std::size_t row = 0; row < Lines; ++row) {
    if (lines[row].Row != static_cast<int>(row)) throw "the rows are out of order";
    table[row] = ReadLine(lines[row]);
  }
  return table;
}

constexpr std::array<SkillRecord, kSkillTableRows> BuildSkills() {
  auto table = ReadLines<kSkillTableRows>(kSkills);
  table[1].Flag = 0;
  table[2].Flag = 0;
  for (const SuiteLine& suite : kSuites) {
    ReadLinks(suite.Members, table.at(static_cast<std::size_t>(suite.Row)).SuiteMembers);
  }
  return table;
}

constexpr std::array<SkillRecord, kSkillTableRows> kSkillTable = BuildSkills();
constexpr std::array<SkillRecord, kSkillTable2Rows> kSkillTable2 = ReadLines<kSkillTable2Rows>(kFamilies);

constexpr std::string_view kCategoryTexts[] = {
    "All-in-One",
    "Skills: Arcane",
    "Skills: Academia",
    "Skills: Languages/Communication",
    "Skills: Musical Instrument",
    "Tasks: Mundane",
    "Tasks: Combat Procedures",
    "Tasks: Artisan and Performing Arts",
    "Tasks: Sophisticated",
    "Skills: Social Interaction",
    "Skills: Tools",
    "Skills: Suites",
    "Unique Barbarian Skills",
};

/// The family whose member `text` is, -1 if it is none.
int FamilyOfMember(std::string_view text) {
  const auto& table = SkillTable2();
  for (std::size_t row = 0; row < table.size(); ++row) {
    const std::string_view name = table[row].Name;
    if (!name.empty() && text.starts_with(name) && text.substr(name.size()).starts_with(": ")) {
      return static_cast<int>(row);
    }
  }
  return -1;
}

}  // namespace

const std::array<SkillRecord, kSkillTableRows>& SkillTable() {
  return kSkillTable;
}

const std::array<SkillRecord, kSkillTable2Rows>& SkillTable2() {
  return kSkillTable2;
}

int FindSkillRow(std::string_view text) {
  return FindRow(SkillTable(), text);
}

int FindSkillFamilyRow(std::string_view text) {
  return FindRow(SkillTable2(), text);
}

SkillMatch FindSkill(std::string_view text) {
  if (const int row = FindRowNamed(SkillTable(), text); row >= 0) return {SkillKind::Plain, row};
  if (const int row = FindRowNamed(SkillTable2(), text); row >= 0) return {SkillKind::Family, row};
  if (const int row = FamilyOfMember(text); row >= 0) return {SkillKind::Instance, row};
  if (const int row = FindRowWithin(SkillTable(), text); row >= 0) return {SkillKind::Plain, row};
  if (const int row = FindRowWithin(SkillTable2(), text); row >= 0) return {SkillKind::Instance, row};
  return {};
}

const SkillRecord* LinkedSkill(int link) {
  if (link >= 0) return link < kSkillTableRows ? &SkillTable()[static_cast<std::size_t>(link)] : nullptr;
  const int family = link > -kSkillTable2Rows ? -link : -1;
  return family > 0 ? &SkillTable2()[static_cast<std::size_t>(family)] : nullptr;
}

std::string_view SkillCategoryText(int category) {
  const bool known = category > 0 && category < static_cast<int>(std::size(kCategoryTexts));
  return kCategoryTexts[known ? static_cast<std::size_t>(category) : 0];
}

int SuiteCode(int row) {
  constexpr int kSuitesOfFamilies[] = {228, 230, 231, 232, 235};
  const auto* const end = std::end(kSuitesOfFamilies);
  const auto* const found = std::find(std::begin(kSuitesOfFamilies), end, row);
  return found == end ? 0 : static_cast<int>(found - std::begin(kSuitesOfFamilies)) + 1;
}

}  // namespace veld
