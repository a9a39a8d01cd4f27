#include "rules/military_tables.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "rules/purchase_rules.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kNoUpperEnd = std::numeric_limits<int>::max();

// The columns are aligned by hand, and the texts stand as the book prints them, slips and all.
// clang-format off

struct CampModifierRow {
  int High;  ///< highest SocialClassIndex
  int Modifier;
};
//   class        modifier
constexpr CampModifierRow kCampModifiers[] = {
    {          3, -10},
    {          4,  -8},
    {          5,  -3},
    {          6,  -1},
    {          7,   0},
    {          8,   1},
    {          9,   3},
    {         10,   7},
    {         11,   8},
    {kNoUpperEnd,   9},
};

//   total        camp                            quality
constexpr TrainingCamp kCamps[] = {
    {          3, "secret rebel/insurgent camp",   -3},
    {          7, "local militia camp",            -2},
    {         10, "territorial militia camp",      -1},
    {         15, "regular army boot camp",         0},
    {         18, "elite military academy",         3},
    {kNoUpperEnd, "royal guardsmen",                5},
};

//   total        quality        results accident war non-proficiency
constexpr TrainingQuality kQualities[] = {
    {          3, "Horrific",      -10,   0,  -4,  -4},
    {          7, "Poor",           -4,   4,  -2,  -3},
    {         10, "Sub-par",        -2,   2,  -1,  -2},
    {         15, "Average",         1,   1,   0,  -2},
    {         18, "Above Average",   1,   0,   3,  -2},
    {kNoUpperEnd, "Top Notch",       4,  -1,   2,  -2},
};

//   total, what is offered, modifier, grants, what is remembered, and the percentile dice that decide further
constexpr TrainingResult kResults[] = {
    {3, "You gained no weapon proficiencies and lost 2 points of Honor from the degrading experience",
     -4, "Honor-=2",
     "You gained no weapon proficiencies and lost 2 points of Honor from the degrading experience"},
    {7, "You gained 1 melee weapon proficiency at no BP cost. However your training was so poor with this weapon "
        "there is a 50% chance that you suffer a -1 'to hit' penalty with this weapon. Either spending a BP or "
        "taking a course in this weapon at some future point will rectify this",
     -2, {},
     "You gained 1 melee weapon proficiency.",
     50, "You are to roll percentile dice. 51+ indicates free weapon proficiency, 50 or less indicates shoddy "
         "training with said weapon (-1 penalty)",
     "[melee pick, shoddy]", "[melee pick]",
     "You gained 1 melee weapon proficiency. However your training was so poor with this weapon you suffer a -1 "
     "penalty to hit. This can be rectified in the future through training."},
    {10, "You gained 1 melee weapon proficiency at no BP cost",
     0, "[melee pick]",
     "You gained 1 melee weapon proficiency"},
    {15, "You gained 1 melee weapon proficiency at no BP cost and your choice of armor or weapon maintenance "
         "skill, again at no BP cost",
     1, "[melee pick] | [maintenance pick]",
     "You gained 1 melee weapon proficiency and your choice of armor or weapon maintenance skill."},
    {18, "You gained 1 melee weapon proficiency at no BP cost and both armor and weapon maintenance skills, again "
         "at no BP cost",
     2, "[melee pick] | Armor Maintenance | Weapon Maintenance",
     "You gained 1 melee weapon proficiency and both armor and weapon maintenance skills."},
    {kNoUpperEnd, "You gained 2 weapon proficiencies as well as armor and weapon maintenance skills and "
                  "Shaving/Grooming all at no BP cost. In addition there is a 33% likelihood that your basic "
                  "weapons training was so superior that your non-weapon proficinecy is permanently reduced to -1",
     3, "[melee pick] | [melee pick] | Armor Maintenance | Shaving/Grooming | Weapon Maintenance",
     "You gained 2 weapon proficiencies as well as armor and weapon maintenance skills and Shaving/Grooming.",
     33, "You are to roll percentile dice. 33 or less indicates superior weapons training reducing your "
         "non-proficiency penalty to -1)",
     "NonProficiencyPenalty=-1", {},
     "You gained 2 weapon proficiencies as well as armor and weapon maintenance skills and Shaving/Grooming. In "
     "addition your basic weapons training was so superior that your non-weapon proficinecy is permanently reduced "
     "to -1"},
};

//   total, accident, what is offered, prompt, text when it goes ill, text when it goes well
constexpr AccidentRow kAccidents[] = {
    {4, Accident::Ladder,
     "A fellow recruit fell from a ladder durring castle assault training week. The clumsy trainee is 10% likely "
     "to have been seriously injured. You must save vs. Apology to avoid having laughed at your fellow student's "
     "misfortune and thus losing 1 point of honor",
     "You are to roll a saving throw vs Apology. you need to roll a %i or higher. Failure results in the loss of "
     "one point of Honor ",
     "A fellow recruit fell from a ladder durring castle assault training week. You laughed at his misfortune and "
     "suffer -1 penalty to your honor",
     "A fellow recruit fell from a ladder durring castle assault training week. You did not laugh."},
    {6, Accident::HeatStroke,
     "You suffered from heat stroke during a long forced march. You suffer a -1 penalty to your Fatigue Factor "
     "should you fail to drink ample water whenever exerting yourself"},
    {7, Accident::Impaled,
     "You were impaled on a spear during weapons training. Though no permanent harm resulted, you gained an "
     "appreciation of the lethality of these oft-neglected melee weapons and decided to become proficient with "
     "one, using up one of your weapon proficiency slots on it"},
    {9, Accident::Trampled,
     "You were trampled by pack animals during final field exercises. There is a 25% chance that you receive the "
     "animal phobia [mules] quirk",
     "You are to roll percentile dice. 25 or less indicates that you have gained the Animal Phobia: Mule",
     "You were trampled by pack animals during final field exercises and gained the animal phobia [mules] quirk",
     "You were trampled by pack animals during final field exercises."},
    {11, Accident::Shot,
     "You were shot by a fellow recruit on the crossbow range. Roll a d20 - on a natural 20 you gain the Loss of "
     "Eye flaw",
     "You are to roll 1 d20. A result of 20 indicates a critical hit to one of your eyes, resulting in the Loss of "
     "eye Flaw (may be upgraded to Blind if you are already half way there)",
     "You were shot by a fellow recruit on the crossbow range. The bolt struck you in the eye.",
     "You were shot by a fellow recruit on the crossbow range."},
    {12, Accident::Burned,
     "You were doused by flaming oil during castle assault training week. There is a 20% chance that the burns "
     "were severe enough for you to gain the Maimed, severe facial burn flaw. No BP are gained",
     "You are to roll percentile dice. A 20 or less indicates you have earned the Facial Burns flaw)",
     "You were doused by flaming oil during castle assault training week. This accident resulted in severe facial "
     "burning.",
     "You were doused by flaming oil during castle assault training week."},
    {kNoUpperEnd, Accident::Trebuchet,
     "An errant Shot from the trebuchet range landed in the midst of your platoon during morning formation. There "
     "is a 50% chance that you were struck and killed instantly",
     "You are to roll percentile dice. A 50 or less indicates that you died)",
     "An errant Shot from the trebuchet range landed in the midst of your platoon during morning formation. "
     " Too bad for you, you were killed.",
     "An errant Shot from the trebuchet range landed in the midst of your platoon during morning formation. "
     " Luckily you were missed."},
};

/// A row of an assignment table: for the races named, or for those whose name holds a part.
struct SpecialtyRow {
  int High;  ///< highest roll of 1d100
  std::string_view Specialty;
};
constexpr SpecialtyRow kHumans[] = {
    { 30, "Infantry, light"},
    { 36, "Infantry, hobilar"},
    { 50, "Infantry, heavy"},
    { 55, "Archer"},
    { 65, "Crossbow"},
    { 69, "Cavalry, light"},
    { 85, "Infantry, pikeman"},
    { 90, "Cavalry, crossbow"},
    { 94, "Engineer"},
    { 98, "Cavalry, medium"},
    {100, "Cavalry, heavy"},
};
constexpr SpecialtyRow kElves[] = {
    { 40, "Infantry, light"},
    { 80, "Archer"},
    {100, "Cavalry, light"},
};
constexpr SpecialtyRow kDwarves[] = {
    { 20, "Infantry, light"},
    { 60, "Infantry, heavy"},
    { 70, "Crossbow"},
    {100, "Cavalry, crossbow"},
};
constexpr SpecialtyRow kSmallFolk[] = {
    { 60, "Infantry, light"},
    {100, "Archer"},
};
constexpr SpecialtyRow kHalfMonsters[] = {
    { 35, "Infantry, light"},
    { 70, "Infantry, heavy"},
    { 80, "Crossbow"},
    {100, "Infantry, pikeman"},
};
constexpr SpecialtyRow kRangers[] = {
    {100, "Infantry, light"},
};
constexpr SpecialtyRow kKnights[] = {
    {100, "Cavalry, heavy"},
};
constexpr SpecialtyRow kPaladins[] = {
    { 50, "Cavalry, medium"},
    {100, "Cavalry, heavy"},
};

struct SpecialtyTable {
  std::string_view Names;   ///< '|' between the names of races or classes
  std::string_view Holding; ///< or what the name of the race holds
  std::span<const SpecialtyRow> Rows;
};
constexpr SpecialtyTable kSpecialtiesOfRace[] = {
    {"Human|Half-elf|Darkmen",   {},         kHumans},
    {{},                         "Elf",      kElves},
    {"Dwarf|Gnome|Gnome Titan",  {},         kDwarves},
    {"Gnomeling|Pixie Fairy",    "Halfling", kSmallFolk},
    {"Half-ogre|Half-orc",       {},         kHalfMonsters},
};
constexpr SpecialtyTable kSpecialtiesOfClass[] = {
    {"Ranger",               {}, kRangers},
    {"Cavalier|Holy Knight", {}, kKnights},
    {"Paladin",              {}, kPaladins},
};

//   total        quality            war
constexpr AdvancedTraining kAdvanced[] = {
    {          3, "Shabby",             -4},
    {          7, "Poor",               -2},
    {         11, "Fair",               -1},
    {         14, "Average",             0},
    {         16, "Superior",            1},
    {         18, "Excellent",           2},
    {kNoUpperEnd, "Creme de la creme",   3},
};

// Assignments are to "Engineer", and so nobody is trained as one of the "Engineers".
constexpr SpecialtyTraining kTrainings[] = {
    {"Infantry, light",   "Shabby",            "Forage for Food"},
    {"Infantry, light",   "Poor",              "[sword pick, shoddy]"},
    {"Infantry, light",   "Fair",              "[sword pick]"},
    {"Infantry, light",   "Average",           "[sword pick]"},
    {"Infantry, light",   "Superior",          "[sword pick] | Establish Ambush Zone"},
    {"Infantry, light",   "Excellent",         "[sword pick] | Establish Ambush Zone | Endurance"},
    {"Infantry, light",   "Creme de la creme", "[sword pick] | Establish Ambush Zone x2 | Endurance"},
    {"Infantry, hobilar", "Shabby",            {}},
    {"Infantry, hobilar", "Poor",              "Blacksmith Tools=50 | Blacksmithing"},
    {"Infantry, hobilar", "Fair",              "prof Spear"},
    {"Infantry, hobilar", "Average",           "[melee pick] | Animal Handling"},
    {"Infantry, hobilar", "Superior",          "[weapon pick] | Animal Handling | [mount]"},
    {"Infantry, hobilar", "Excellent",         "[weapon pick] | Animal Handling x2 | [mount]"},
    {"Infantry, hobilar", "Creme de la creme", "[weapon pick] | Animal Handling x2 | [mount]"},
    {"Infantry, heavy",   "Shabby",            "Brass Instrument"},
    {"Infantry, heavy",   "Poor",              "[sword pick, shoddy] | Brewing"},
    {"Infantry, heavy",   "Fair",              "[sword pick]"},
    {"Infantry, heavy",   "Average",           "[sword pick]"},
    {"Infantry, heavy",   "Superior",          "[sword pick] | Eye of the Tiger Advantage"},
    {"Infantry, heavy",   "Excellent",         "[sword pick] | [combat pick]"},
    {"Infantry, heavy",   "Creme de la creme", "[sword pick] | Maintain Self-Discipline x2 | "
                                               "Eye of the Tiger Advantage x2 | Muster Resolve | "
                                               "[named attack bonus]"},
    {"Archer",            "Shabby",            "Skinning"},
    {"Archer",            "Poor",              "Bowyer/Fletcher"},
    {"Archer",            "Fair",              "[bow pick, shoddy]"},
    {"Archer",            "Average",           "[bow pick]"},
    {"Archer",            "Superior",          "prof Bow: Short | prof Bow: Long"},
    {"Archer",            "Excellent",         "prof Bow: Short | prof Bow: Long | BowBonusDiscount=5"},
    {"Archer",            "Creme de la creme", "prof Bow: Short | prof Bow: Long | BowBonusDiscount=5"},
    {"Crossbow",          "Shabby",            "Weapon Maintenance"},
    {"Crossbow",          "Poor",              "Clever Packer"},
    {"Crossbow",          "Fair",              "[crossbow pick, shoddy]"},
    {"Crossbow",          "Average",           "prof Crossbow: Heavy"},
    {"Crossbow",          "Superior",          "prof Crossbow: Heavy | prof Crossbow: Light | ProficiencySlotsUsed-=1"},
    {"Crossbow",          "Excellent",         "prof Crossbow: Heavy | prof Crossbow: Light | "
                                               "ProficiencySlotsUsed-=1 | CrossbowBonusDiscount=5"},
    {"Crossbow",          "Creme de la creme", "prof Crossbow: Heavy | prof Crossbow: Light | "
                                               "ProficiencySlotsUsed-=1 | take talent Crossbow Bonus | "
                                               "CrossbowBonusDiscount=5"},
    {"Cavalry, light",    "Shabby",            "Looting, Basic x2 | Honor-=3"},
    {"Cavalry, light",    "Poor",              "Rope Use | Rope Use+=25"},
    {"Cavalry, light",    "Fair",              "[lances untaught]"},
    {"Cavalry, light",    "Average",           "[lance pick]"},
    {"Cavalry, light",    "Superior",          "[lance pick] | pick F19+=25"},
    {"Cavalry, light",    "Excellent",         "[lance pick] | Muster Resolve | pick F19+=25"},
    {"Cavalry, light",    "Creme de la creme", "[lance pick] | Muster Resolve | pick F19+=45 | "
                                               "talent Attack Bonus: Lance: light horse"},
    {"Infantry, pikeman", "Shabby",            "Laborer, General"},
    {"Infantry, pikeman", "Poor",              "Liar, Skilled x2"},
    {"Infantry, pikeman", "Fair",              "[polearm pick, shoddy]"},
    {"Infantry, pikeman", "Average",           "[polearm pick] | SelfDisciplinePrice=1"},
    {"Infantry, pikeman", "Superior",          "[polearm pick] | Maintain Self-Discipline"},
    {"Infantry, pikeman", "Excellent",         "[polearm pick] | Muster Resolve | Honor+=1"},
    {"Infantry, pikeman", "Creme de la creme", "[polearm pick] | Muster Resolve | Maintain Self-Discipline | Honor+=2"},
    {"Cavalry, crossbow", "Shabby",            "Fire-building"},
    {"Cavalry, crossbow", "Poor",              "Orchestrate Task"},
    {"Cavalry, crossbow", "Fair",              "prof Crossbow: Light"},
    {"Cavalry, crossbow", "Average",           "prof Crossbow: Light | pick F19"},
    {"Cavalry, crossbow", "Superior",          "prof Crossbow: Light | pick F19+=25"},
    {"Cavalry, crossbow", "Excellent",         "prof Crossbow: Light | pick F19+=25 | CrossbowBonusDiscount=8"},
    {"Cavalry, crossbow", "Creme de la creme", "prof Crossbow: Light | prof Crossbow: Heavy | "
                                               "ProficiencySlotsUsed-=1 | pick F19+=25 | CrossbowBonusDiscount=5"},
    {"Engineers",         "Shabby",            "Gaming"},
    {"Engineers",         "Poor",              "Dig Hasty Grave"},
    {"Engineers",         "Fair",              "?prof Military Pick | Dig Proper Grave"},
    {"Engineers",         "Average",           "?prof Military Pick | Entrenchment Construction"},
    {"Engineers",         "Superior",          "?prof Military Pick | Entrenchment Construction x2 | "
                                               "Construction: Hasty Defense Works"},
    {"Engineers",         "Excellent",         "?prof Military Pick | Entrenchment Construction x3 | "
                                               "Construction: Hasty Defense Works x2"},
    {"Engineers",         "Creme de la creme", "?prof Military Pick | Entrenchment Construction x3 | "
                                               "Construction: Hasty Defense Works x3 | Complex Geometric Estimation"},
    {"Cavalry, medium",   "Shabby",            "Cooking"},
    {"Cavalry, medium",   "Poor",              "[language pick]"},
    {"Cavalry, medium",   "Fair",              "[mount]"},
    {"Cavalry, medium",   "Average",           "[lance pick] | [mount]"},
    {"Cavalry, medium",   "Superior",          "[lance pick] | pick F19+=20"},
    {"Cavalry, medium",   "Excellent",         "[lance pick] | Muster Resolve | pick F19+=20"},
    {"Cavalry, medium",   "Creme de la creme", "[lance pick] | Muster Resolve | pick F19+=45 | "
                                               "talent Attack Bonus: Lance: medium horse"},
    {"Cavalry, heavy",    "Shabby",            "Cobbling"},
    {"Cavalry, heavy",    "Poor",              "Animal Handling"},
    {"Cavalry, heavy",    "Fair",              "[combat pick] | pick F19"},
    {"Cavalry, heavy",    "Average",           "[lance pick] | pick F19"},
    {"Cavalry, heavy",    "Superior",          "[lance pick] | pick F19+=25"},
    {"Cavalry, heavy",    "Excellent",         "[lance pick] | Maintain Self-Discipline | pick F19+=25"},
    {"Cavalry, heavy",    "Creme de la creme", "[lance pick] | Maintain Self-Discipline | pick F19+=45 | "
                                               "talent Attack Bonus: Lance: heavy horse"},
};

// Who hears of an ambush or of silent ways learns what they rest on, too.
constexpr RolledTraining kRolled[] = {
    {"Infantry, light", "Average",
     "You are to roll percentile dice. A 50 or less indicates that you earn the Establish Ambush Zone skill for "
     "free)",
     100, {{{50, "Establish Ambush Zone"}, {100, {}}, {100, {}}}}},
    {"Infantry, light", "Creme de la creme",
     "You are to roll 1d99. A roll of 1-33 grants you the Forest Movement Talent, 34-66 grants you the Stealthy "
     "Movement Talent and 67-99 grants you the Sword Bonus Talent)",
     99, {{{33, "take talent Forest Movement"}, {66, "Slip Away into Shadows>=50 | Stealthy Movement"},
           {99, "take talent Sword Bonus"}}}},
    {"Engineers", "Creme de la creme",
     "ou are to roll 1d100. A roll of 1-50 grants you the Pick bonus Talent, 51-100 grants you the Determine "
     "Stability)",
     99, {{{50, "take talent Pick Bonus"}, {99, "take talent Determine Stability"}, {99, {}}}}},
};

//   roll  state
constexpr HostilitiesRow kHostilities[] = {
    { 1, Hostilities::ExtendedPeace, "extended peace"},
    { 3, Hostilities::Peace,         "peace"},
    { 8, Hostilities::ColdWar,       "cold war"},
    {18, Hostilities::War,           "war"},
    {20, Hostilities::PostWar,       "post war"},
};

struct OpponentsRow {
  int High;
  std::string_view Text;
};
constexpr OpponentsRow kOpponents[] = {
    { 20, "Orcs"},
    { 25, "Kobolds"},
    { 40, "Goblins"},
    { 48, "Hobgoblins"},
    { 50, "Gnolls"},
    { 90, "Hostile Nation"},
    { 98, "Gnome Titan clan"},
    {100, "Lizardmen"},
};

//   total, event, opponents named, what is offered, save, prompt, beginning of the text, what follows it
constexpr WarRow kWars[] = {
    {3, WarEvent::Report, false,
     "Your regiment was slain to the last man. Your body was never recovered and was suspected to have been eaten "
     "by Worgs"},
    {4, WarEvent::Prison, false,
     "Your unit was overrun and you were captured as a POW. You spent %i years in a prison camp Named Stalag %i"},
    {5, WarEvent::Siege, false,
     "Your regiment was forced to retreat to defensive works and was besieged. Make a Constitution check at -5 "
     "(bonus) on the die or you starved to death. If you make the save you suffer a permanent loss of 2d6 pounds. "
     "The siege was eventually lifted but the regiment suffered disgrace. You suffer a -2 penalty to Honor",
     0, "You are to roll 1d20. A roll of %i or less indicates you made the Constitution check (-5 bonus). Failure "
        "results in the loss of 2d6 pounds)",
     {},
     "Your regiment was forced to retreat to defensive works and was besieged. you suffer a permanent loss of %i "
     "pounds. The siege was eventually lifted but the regiment suffered disgrace.",
     "Your regiment was forced to retreat to defensive works and was besieged. you died before the siege was "
     "lifted."},
    {6, WarEvent::Routed, true,
     "Your regiment was routed on the battlefield by %s. Save vs. death magic at +10 or you were killed in action. "
     "If you lived through the experience, you suffer a -2 penalty to Honor",
     10, "You are to roll a save vs. Death Magic. A roll of %i or higher indicates you made the save",
     "Your regiment was routed on the battlefield by %s. ",
     " You managed to survive but suffered some disgrace.",
     " You were trampled underfoot and died."},
    {7, WarEvent::PyrrhicVictory, true,
     "Your regiment won a pyrhic victory over %s. Save vs. death magic at +10 or you were killed in action",
     10, "You are to roll a save vs. Death Magic. A result of %i or higher will result in you living",
     {},
     "Your regiment won a pyrhic victory over %s.",
     "Your regiment won a pyrhic victory over %s. you died during the battle"},
    {8, WarEvent::Report, false,
     "Your regiment was deployed to a quiet front for six months. You saw no action there"},
    {9, WarEvent::Report, true,
     "Your regiment held in reserve during major battle with %s. Unit not called into trouble"},
    {11, WarEvent::Flanking, true,
     "Your regiment was deployed as flanking force during a minor victory over %s. There is a 25%% chance that you "
     "saw a portion of the battle",
     0, "You are to roll percentile. A 25 or less indicates you saw some action)",
     "Your regiment was deployed as flanking force during a minor victory over %s. ",
     "You saw a portion of the battle."},
    {13, WarEvent::Report, true,
     "Your regiment beseiged a fortress or mountain redoubt of %s"},
    {15, WarEvent::Report, true,
     "Your regiment beseiged a town of %s"},
    {18, WarEvent::Routing, true,
     "Your unit had a significant role in the routing of large enemy force of %s. Save vs. death magic at +8 or "
     "suffer major wound. This wound caused an impressive scar for purposes of bragging rights but (luckily) no "
     "loss to Comeliness. You gained 300 EP",
     8, "You are to roll a save vs Death Magic at +8. You need to roll %i or higher to pass, failure indicating a "
        "major wound",
     "Your unit had a significant role in the routing of large enemy force of %s. ",
     {},
     "You suffered a major wound. This wound caused an impressive scar for purposes of bragging rights but "
     "(luckily) no loss to Comeliness. "},
    {kNoUpperEnd, WarEvent::Lynchpin, true,
     "Your unit was the lynchpin against a final desperate charge of %s. Your unit held their ground and was "
     "lauded for saving the battle. Make save vs. death at +8. Failure means you were killed but posthumously "
     "awarded the Mithril Star (+5 to clan Honor). Your mom was deeply saddened but proud. Save results in minor "
     "wound and awarding of Electrum Star. Mom still proud. You gained 4 Honor and 400 EP from the experience",
     8, "You are to roll a save vs. Death Magic at +8. You need to get a %i or higher, failure indicates you were "
        "killed in action",
     "Your unit was the lynchpin against a final desperate charge of %s. Your unit held their ground and was "
     "lauded for saving the battle. ",
     "You suffered a minor wound and was awarded of Electrum Star. Mom proud. You gained 4 Honor and 400 EP from "
     "the experience.",
     "You were killed but posthumously awarded the Mithril Star (+5 to clan Honor). Your mom was deeply saddened "
     "but proud."},
};

constexpr AttitudeRow kAttitudes[] = {
    { 10, Attitude::Friendly,   "The locals were friendly and glad to be free of the oppressive former regime"},
    { 29, Attitude::Ambivalent, "The locals were ambivalent about the occupying army"},
    { 59, Attitude::Uppity,     "The locals were very uppity about the occupying army. They frequently protested "
                                "your presence"},
    {100, Attitude::Hostile,    "The locals were hostile, Usually this took the form of being uncooperative "
                                "whenever you  and your fellow soldiers were nearby. There was an active guerilla "
                                "movement that required frequent patroling to quell disent"},
};

constexpr OccupationRow kOccupations[] = {
    { 20, OccupationEvent::Vigil,
     "You were sent out to bust heads at a candlelight vigil. The protestors were later revealed to be Samaratins"},
    { 35, OccupationEvent::HeartsAndMinds,
     "Your commander assigned you to a 'hearts & minds' unit. You participated in the pursuit of convincing locals "
     "that you meant them no harm and that they were really better off under your protection. While fruitless and "
     "ineffective, the experience trains you for dealing with monsters - at least those capable of understanding "
     "you"},
    { 60, OccupationEvent::Pelted,
     "You were subjected to repeated pelting by stones from local youths. However, you are prevented by your "
     "superiors from retaliating againts the little terrorists due to some arcane 'rules of engagement'"},
    {100, OccupationEvent::RiotVolunteer,
     "You volunteered at every opportunity to participate in riot suppresion or strike busting duties"},
};

//   roll, what is offered, what is remembered, dice for the times, percents each time, their prompts
constexpr GuerillaRow kGuerilla[] = {
    { 50,
     "You participated in frequent patrols through rough terrain. The enemy was never encountered. There is a 25% "
     "chance you contracted a disease",
     "You participated in frequent patrols through rough terrain. The enemy was never encountered. "},
    { 80,
     "You particpated in frequent patrols through rough terrain and were fired upon by snipers 1d4 times",
     "You particpated in frequent patrols through rough terrain and were fired upon by snipers %i times. ",
     4, 5,
     "You are to roll 1d4 for the number of times you were fired on by snipers",
     "You must now roll 1d100. A roll of %i or less indicates you gained the paranoid quirk"},
    {100,
     "You particpated in frequent patrols through rough terrain and fell prey to booby traps 1d3 times",
     "You particpated in frequent patrols through rough terrain and fell prey to booby traps %i times. ",
     3, 10,
     "You are to roll 1d3 for the number of times you fell prey to booby traps",
     "You must now roll 1d10. A roll of %i or less indicates you gained the paranoid quirk"},
};

//   total        event                    text             grants
constexpr TourRow kTours[] = {
    {         20, TourEvent::DancingGirls, "Dancing Girl Clubs"},
    {         40, TourEvent::Alcoholic,    "Alcoholic"},
    {         55, TourEvent::Gambler,      "Gambler"},
    {         60, TourEvent::Granted,      "Blanket Party",  "Honor-=2"},
    {         70, TourEvent::Granted,      "Chaplain Duty",  "Religion (general)"},
    {         80, TourEvent::Granted,      "Quatermaster",   "Haggle"},
    {         87, TourEvent::Granted,      "Armorer",        "Armor Maintenance=100 | Armor Repair, Basic"},
    {         92, TourEvent::Granted,      "Corporal",       "Leadership: Basic"},
    {kNoUpperEnd, TourEvent::GymRat,       "Gym Rat"},
};
// clang-format on

/// The first row whose end the total does not pass, else the last.
template <typename Rows>
const auto& RowOf(const Rows& rows, int total) {
  const auto row = std::ranges::find_if(rows, [&](const auto& candidate) { return total <= candidate.High; });
  return row == std::end(rows) ? *std::prev(std::end(rows)) : *row;
}

/// The assignment of the first table that is for `name`; empty if none is.
std::string_view SpecialtyFrom(std::span<const SpecialtyTable> tables, std::string_view name, int roll) {
  for (const SpecialtyTable& table : tables) {
    if (ListHolds(table.Names, name) || Contains(name, table.Holding)) return RowOf(table.Rows, roll).Specialty;
  }
  return {};
}

}  // namespace

// clang-format off
namespace MilitaryPrompt {
const std::string_view Accidents =
    "You are to roll 1d4 and consult Table 2F: Training Accidents. a result of 1 or 2 indicates no accidents while "
    "a 3 indicates 1 accident and a 4 results in 2 accidents";
const std::string_view FreeSkills =
    "You are to be granted 1d3 free skills via the Lord Montgomery veterans scholarship act";
const std::string_view ColdWar =
    "You are to roll 1d10 for further information about your roll in the cold war";
const std::string_view Wars =
    "You are to roll 1d3 times on Table 2J: War";
const std::string_view PeaceTours =
    "You are to roll 1d4 times on Table 2L: Notable Events during Non-Combat Duty";
const std::string_view OccupationTours =
    "You are to roll 1d3 times on Table 2L: Notable Events during Non-Combat Duty";
const std::string_view AmbivalentTours =
    "You are to roll 1d3 times on Table 2L: Notable Events during Non-Combat Duty with a -10% penalty to all rolls";
const std::string_view SiegePounds =
    "You are to roll 2d6 to determine how many pounds you lost ";
const std::string_view WastedMoney =
    "You are to roll 1d4(*10%) to find out how much of your starting money you wasted";
const std::string_view Alcoholic =
    "You must make a save vs poison (%i) or gain the Alcoholic quirk";
const std::string_view GymStrength =
    "You are to roll 1d20 to gain fractional Strength";
const std::string_view GymConstitution =
    "You are to roll 1d20 to gain fractional Constitution";
}  // namespace MilitaryPrompt

const std::string_view kImpaledOnPoleArm =
    "You were impaled on a pole arm during weapons training. Though no permanent harm resulted, you gained an "
    "appreciation of the lethality of these oft-neglected melee weapons and decided to become proficient with one, "
    "using up one of your weapon proficiency slots on it";
const std::string_view kBlindedByBolt =
    "You were shot by a fellow recruit on the crossbow range. The bolt struck you in your one good eye so you are "
    "now blind";
const std::string_view kExperienceOfRouting = " You also gain 300 XP.";
const std::string_view kBecameParanoid = "You ended up becoming paranoid.";
const std::string_view kMoneyWasted = "Dancing Girl Clubs sucked up %i%% of your cash.";
const std::string_view kStillAlcoholic = " and you still are.";
// clang-format on

const TrainingCamp& TrainingCampOf(int total) {
  return RowOf(kCamps, total);
}

int CampModifierOfClass(int socialClassIndex) {
  return RowOf(kCampModifiers, socialClassIndex).Modifier;
}

const TrainingQuality& TrainingQualityOf(int total) {
  return RowOf(kQualities, total);
}

const TrainingResult& TrainingResultOf(int total) {
  return RowOf(kResults, total);
}

const AccidentRow& AccidentOf(int total) {
  return RowOf(kAccidents, total);
}

std::string_view SpecialtyOf(std::string_view raceName, std::string_view className, int roll) {
  const std::string_view ofClass = SpecialtyFrom(kSpecialtiesOfClass, className, roll);
  return ofClass.empty() ? SpecialtyFrom(kSpecialtiesOfRace, raceName, roll) : ofClass;
}

const AdvancedTraining& AdvancedTrainingOf(int total) {
  return RowOf(kAdvanced, total);
}

std::span<const SpecialtyTraining> SpecialtyTrainings() {
  return kTrainings;
}

std::span<const RolledTraining> RolledTrainings() {
  return kRolled;
}

const HostilitiesRow& HostilitiesOf(int roll) {
  return RowOf(kHostilities, roll);
}

std::string_view OpponentsOf(int roll) {
  return RowOf(kOpponents, roll).Text;
}

const WarRow& WarOf(int total) {
  return RowOf(kWars, total);
}

const AttitudeRow& AttitudeOf(int roll) {
  return RowOf(kAttitudes, roll);
}

const OccupationRow& OccupationOf(int roll) {
  return RowOf(kOccupations, roll);
}

const GuerillaRow& GuerillaOf(int roll) {
  return RowOf(kGuerilla, roll);
}

const TourRow& TourOf(int total) {
  return RowOf(kTours, total);
}

std::span<const TourRow> TourRows() {
  return kTours;
}

std::span<const TrainingResult> TrainingResults() {
  return kResults;
}

}  // namespace veld
