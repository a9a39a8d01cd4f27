#include "rules/seminary_tables.h"

#include <algorithm>
#include <iterator>

namespace veld {

namespace {

// clang-format off

constexpr CallRow kCalls[] = {
    // Low High  Value  Text
    { 0,   5, -10, "You were an angst-ridden teenager searching for meaning and found it in the religion you chose"},
    { 6,   9,  -5, "Did something really bad and promised to serve gawd if he spared you/helped you get revenge"},
    {10,  15,   0, "Terrible accident/disease - promised life to gawd if he spared you"},
    {16,  20, -15, "'saw' gawd - 50% chance of this being in a drunken haze"},
    {21,  25,  -5, "Converted from another religion as a youth and became passionate about new gawd"},
    {26,  30, 111, "Forcibly converted by conquering army - decided to 'blend in' for the good of relatives"},
    {31,  40,   0, "Your mom pressured you into becoming a cleric"},
    {41,  50,   5, "Family member was an important lay person of the temple and you were strongly encouraged to become "
                   "a cleric to raise their prestige"},
    {51,  60,  10, "Father/uncle was a cleric"},
    {61, 199,  15, "Character grew up in a sui juris religious community. His aptitude was noted by the patriarchs and "
                   "was strongly encouraged to become a cleric"},
};

constexpr TrainingRow kTrainings[] = {
    // Low High  Acc Comp Pers Edu Loc  Text
    {-99,  15,   0,  0,  0,  0,  0, "Self-taught"},
    { 16,  20,   0,  0,  0,  0,  0, "Conscripted"},
    { 21,  35, -10, -2, -2,  0, -2, "Tribal Shaman"},
    { 36,  75,  -4, -1, -1,  0, -1, "Rural Parsonage"},
    { 76,  95,   0,  0,  0,  0,  0, "Mid-Sized Tabernacle"},
    { 96, 119,   3,  1,  1,  5,  0, "Major Cathedral"},
    {120, 200,   6,  2,  2, 10,  0, "Holy site of religion on Erdra"},
};

constexpr SuperiorRow kCompetencies[] = {
    // Low High d12 Edu Skill Points Honor  Text
    {-99,  4, 10, -50, 0, 0, 0, "Utterly Incompetent"},
    {  5,  6,  0, -25, 0, 0, 0, "Inadequate"},
    {  7,  8,  0, -10, 0, 0, 0, "Underqualified"},
    {  9, 10,  0,  -5, 0, 0, 0, "Sub-par"},
    { 11, 16,  0,   0, 0, 0, 0, "Average"},
    { 17, 18,  0,   5, 1, 1, 0, "Excellent"},
    { 19, 21,  0,  10, 1, 2, 1, "Superior"},
    { 22, 99,  0,  20, 1, 3, 2, "Solomon-like wisdom"},
};

constexpr SuperiorRow kPersonalities[] = {
    // Low High d12 Edu Skill Points Honor  Text
    {-99,  4, 10, -50, 0, 0, 0, "Abusive"},
    {  5,  6,  0, -25, 0, 0, 0, "Reticent"},
    {  7,  8,  0, -10, 0, 0, 0, "Distracted"},
    {  9, 10,  0,  -5, 0, 0, 0, "Stern & Dogmatic"},
    { 11, 16,  0,   0, 0, 0, 0, "Average"},
    { 17, 19,  0,   5, 1, 1, 0, "Helpful & Kindly"},
    { 20, 21,  0,  10, 1, 2, 1, "Nurturing"},
    { 22, 99,  0,  20, 1, 3, 2, "Mesmerizing Presence"},
};

constexpr AccoutrementsRow kAccoutrements[] = {
    // Low High Edu Skill Points  Text
    {-99,  2, -10, 0, 0, "Reverend Superior has no holy symbol, taught doctrine from memory"},
    {  3,  4,  -5, 0, 0, "Religious texts out of date, copper holy water basin"},
    {  5,  7,  -3, 0, 0, "Silver holy water basin, sole copy of most recent holy book chained to desk"},
    {  8, 14,   0, 0, 0, "Average. Electrum holy water basin"},
    { 15, 17,   1, 0, 2, "Gold holy water basin, sufficient holy books for each student to have his own copy"},
    { 18, 19,   3, 1, 2, "Platinum holy water basin, fully stocked library with ample copies of religious texts and "
                         "sundry references"},
    { 20, 99,   5, 1, 3, "Holy Relics on site, original manuscripts handwritten by gawd in archives"},
};

constexpr std::string_view kAcquiredSkills[] = {  // by the roll
    "Divine Lore",                          // 2
    "Art Appreciation: Subset: Painting",   // 3
    "Art Appreciation: Subset: Sculpture",  // 4
    "Local History",                        // 5
    "History: World",                       // 6
    "Religion Specific",                    // 7
    "Religion (general)",                   // 8
    "Brass Instrument",                     // 9
    "Wind Instrument",                      // 10
    "Shaving/Grooming",                     // 11
    "Poetry, Writing and Comprehension",    // 12
    "Singing",                              // 13
    "Dig Proper Grave",                     // 14
    "First Aid Skill Suite",                // 15
    "Healing     ",                         // 16
    "Reading/Writing",                      // 17
    "Diplomacy",                            // 18
    "Knowledge of Courtly Affairs",         // 19
    "Mingling (Balls, Parties)",            // 20
    "Oration",                              // 21
    "Resist Persuasion",                    // 22
    "Rousing Speech",                       // 23
    "Social Etiquette",                     // 24
};

constexpr ResidencyRow kResidencies[] = {
    // Low High Results Years  Text
    {-99,  3, -4, 0, "You were assigned to a remote jungle region to minister to the natives. You spent most of your "
                     "time just trying to comunicate with them and keep them from eating you."},
    {  4,  6, -2, 0, "You were assigned to a region that had a majority of worshipers of a diametrically opposed "
                     "alignment. They attended your sermons just to heckle you and be disruptive"},
    {  7,  9,  0, 3, "You were sent out on a walkabout to spread your faith to the farthest corners of the globe. You "
                     "spent 1d3 years travelling through neighboring lands seeking to convert people to your religion"},
    { 10, 13, -1, 0, "You were posted to an urban ghetto to minister to the poor. You ran a soup kitchen and counseled "
                     "the desperate inhabitants - though with somewhat disapointing results"},
    { 14, 15,  0, 0, "You were assigned to a remote village that had a small core group of devout worshipers"},
    { 16, 18,  1, 0, "You were assigned to minister a mid-sized church with a reasonably sized congregation. Though "
                     "eager to help, there was little real clerical work for you to do as things were running smoothly "
                     "before you arrived"},
    { 19, 99,  3, 0, "You were assigned to assist with the needs of a large congregation. The church staff was so busy "
                     "you often found yourself giving services on your own with little guidance"},
};

constexpr ResidencyResultRow kResidencyResults[] = {
    // Low High Edu Honor Quirk Skill           EP Weapon Gold Talent  Text
    {-99,  3, -10, -2,  16, "Muster Resolve",   0, 0,   0,   0, "You were persecuted, threatened and battered during "
                                                                "your residency and learned to bear it. You lost 2 "
                                                                "points of Honor from being driven out of town after "
                                                                "town, and the blows to the head left you with "
                                                                "migraines. You gained the Muster Resolve skill at no "
                                                                "BP cost but had next to no time for your studies (-10 "
                                                                "to the Quality of Education roll)"},
    {  4,  7,  -6,  0,  43, {},               100, 1,   0,   0, "You gained 100 EP and one melee weapon proficiency at "
                                                                "no BP cost from defending your parsonage against the "
                                                                "raiders who came for the collection plate. You were "
                                                                "wounded often but the temple healers always got to "
                                                                "you in time. There was little peace for your studies "
                                                                "(-6 to the Quality of Education roll)"},
    {  8, 11,  -4,  0, 594, {},                 0, 0,   0,   0, "Your host had a few loose screws giving you a "
                                                                "somewhat warped view of the teachings of your gawd. "
                                                                "You were never quite sure what to believe after that "
                                                                "and gained the Little Faith flaw. Much of what you "
                                                                "learned there had to be unlearned (-4 to the Quality "
                                                                "of Education roll)"},
    { 12, 14,  -2,  0,   0, {},                 0, 0,   0,   0, "The facilities you were assigned to were in a state "
                                                                "of disrepair. Some days you preached in the rain and "
                                                                "most days you mended the roof instead of reading the "
                                                                "holy books (-2 to the Quality of Education roll)"},
    { 15, 19,   0,  0, 590, {},                 0, 0,   0, 137, "Your knack for thinking outside the collection box "
                                                                "allowed you to pick up a trick or two that no "
                                                                "seminary teaches. You gained the Quick Casting talent "
                                                                "at no BP cost. Another gawd took offense at your "
                                                                "methods and you gained the Enmity Versus a Gawd "
                                                                "quirk"},
    { 20, 21,   0,  0,   0, {},                 0, 0, 100,   0, "You got involved in a skimming operation on the "
                                                                "congregation collection plate. Your share came to "
                                                                "1d100 gp, but it went the way of all ill-gotten gains "
                                                                "and you have nothing left to show for it"},
    { 22, 23,   5,  0,   0, {},                 0, 0,   0,   0, "You saw an extra planar representative of your gawd. "
                                                                "You caught a glimpse of what lies beyond the mortal "
                                                                "world and studied the holy books with new eyes (+5 to "
                                                                "the Quality of Education roll)"},
    { 24, 99,  10,  0,   0, {},                 0, 0,   0,   0, "You witnessed a miracle. You were present at an "
                                                                "inexplicable event directly brought about by your "
                                                                "gawd, and have understood every line of the holy "
                                                                "books ever since (+10 to the Quality of Education "
                                                                "roll)"},
};

// Most of it is for the referee; what changes the character at once stands beside it.
constexpr EducationRow kEducations[] = {
    // Low High Change             Text
    {-99,   1, {},                 "You learned nothing - character is a 0 level NPC"},
    {  2,   2, {},                 "You espouse heretical views, booted from seminary, keep character but choose "
                                   "another class"},
    {  3,   3, {},                 "Chance of Spell Failure treated as if Wisdom is 10 lower than actual score"},
    {  4,   4, {},                 "no bonus spells"},
    {  5,   5, {},                 "no spell immunity from high Wisdom"},
    {  6,   6, {},                 "permanent 5% EP penalty"},
    {  7,   7, {},                 "permanent 3% chance os spell failure (regardless of WIS), may add to preexisting "
                                   "chance"},
    {  8,   8, {},                 "gain 2 quirks (roll on quirks table in this book with full BP)"},
    {  9,   9, "Wisdom-=2",        "lose 2 points of WIS"},
    { 10,  10, "BP-=3d4",          "lose 3d4 BP"},
    { 11,  11, {},                 "limited to 1 talent"},
    { 12,  12, {},                 "saves vs. Paralyzation, Poison & Death Magic made as an equivalent level magic "
                                   "user"},
    { 13,  13, {},                 "cannot turn undead"},
    { 14,  14, {},                 "all healing spells permanently -1 hp/die"},
    { 15,  15, {},                 "chance of Spell Failure treated as if Wisdom is 8 lower then actual score"},
    { 16,  16, {},                 "bonus spells capped at 1st level"},
    { 17,  17, {},                 "-2 penalty to magical defense adjustment"},
    { 18,  18, {},                 "permanent 2% chance of Spell Failure (regardless of WIS), may add to preexisting "
                                   "chance"},
    { 19,  19, "Wisdom-=1",        "lose 1 point of WIS"},
    { 20,  20, {},                 "save vs. Breath Weapon made as an equivalent level thief"},
    { 21,  21, {},                 "turn undead as if 2 levels lower"},
    { 22,  22, {},                 "may only become proficient with club"},
    { 23,  23, {},                 "limited to 3 talents"},
    { 24,  24, "BP-=2d4",          "lose 2d4 BP"},
    { 25,  25, {},                 "gain 1 quirk (roll on quirks table in this book with full BP)"},
    { 26,  26, {},                 "mastery level in all skills reduced by 20%"},
    { 27,  27, {},                 "permanent 3% EP penalty"},
    { 28,  28, {},                 "-1 penalty to magical defense adjustment"},
    { 29,  29, "Wisdom%-=5d10",    "lose 5d10 fractional points of WIS"},
    { 30,  30, {},                 "non-proficiency penalty increased to -5"},
    { 31,  31, "Charisma%-=5d10",  "lose 5d10 fractional points of CHA"},
    { 32,  32, {},                 "chance of spell failure treated as if wisdom is 6 lower"},
    { 33,  33, {},                 "lose 1d12 points from a skill (your choice)"},
    { 34,  34, {},                 "permanent 1% chance of Spell Failure (regardless of WIS), may add to preexisting "
                                   "chance"},
    { 35,  35, {},                 "lose 1d6 points from all skills"},
    { 36,  36, "Wisdom%-=2d10",    "lose 2d10 fractional points of WIS"},
    { 37,  37, {},                 "character starts flat broke"},
    { 38,  38, {},                 "lose 1d3 points from all skills"},
    { 39,  39, "BP-=1d4",          "lose 1d4 BP"},
    { 40,  40, "BP-=2d1",          "lose 2BP"},
    { 41,  41, {},                 "permanent 1% EP penalty"},
    { 42,  42, "Wisdom%-=1d10",    "lose 1d10 fractional points od WIS"},
    { 43,  43, {},                 "turn undead as if 1 level lower"},
    { 44,  44, {},                 "chance of Spell Failure treated as if Wisdom is 4 lower then actual score"},
    { 45,  45, "Charisma%-=2d10",  "lose 2d10 fractional points of CHA"},
    { 46,  46, "Charisma%-=1d10",  "lose 1d10 fractional points of CHA"},
    { 47,  47, {},                 "bonus spells capped at 3rd level"},
    { 48,  48, {},                 "initial starting money reduced by 50 gp"},
    { 49,  49, {},                 "lose 1d3 points from a skill (your choice)"},
    { 50,  59, {},                 "save vs. Breath Weapon made as an equivalent level thief"},
    { 60,  60, {},                 "gain 1d3 points in a skill (randomly determined)"},
    { 61,  61, {},                 "gain 1d4 points in a skill (randomly determined)"},
    { 62,  62, {},                 "gain 1d6 points in a skill (randomly determined)"},
    { 63,  63, {},                 "gain 1d10 points in a skill (randomly determined)"},
    { 64,  64, "Charisma%+=1d4",   "gain 1d4 fractional points of CHA"},
    { 65,  65, "Wisdom%+=1d4",     "gain 1d4 fractional points of WIS"},
    { 66,  66, {},                 "non-proficiency penalty reduced to -2"},
    { 67,  67, {},                 "gain 1d12 points in a skill (your choice)"},
    { 68,  68, "BP+=1",            "bonus 1 BP"},
    { 69,  69, {},                 "chance of Spell Failure treated as if Wisdom is 1 higher then actual score"},
    { 70,  70, "Wisdom%+=3d4",     "gain 3d4 fractional points of WIS"},
    { 71,  71, {},                 "gain an additional language"},
    { 72,  72, {},                 "gain 1d4 BP for Academia skills"},
    { 73,  73, {},                 "decrease starting age by 1 year"},
    { 74,  74, {},                 "gain 1d6 points in all current skills"},
    { 75,  75, {},                 "+1 to saves vs. Apology"},
    { 76,  76, "BP+=1d4",          "bonus 1d4 BPs"},
    { 77,  77, {},                 "gain an additional starting weapon proficiency (no BP cost)"},
    { 78,  78, {},                 "gain 1 skill from Table 2H at no initial cost"},
    { 79,  79, {},                 "permanent 1% EP bonus"},
    { 80,  80, "Wisdom%+=5d10",    "gain 5d10 fractional points of WIS"},
    { 81,  81, "Charisma%+=10d10", "gain 10d10 fractional points of CHA"},
    { 82,  82, {},                 "gain 2d4 BP for academia skills"},
    { 83,  83, {},                 "add 35 mastery points to Religion, Specific (your gawd)"},
    { 84,  84, {},                 "gain Divine Lore at 40% Mastery for free"},
    { 85,  85, {},                 "saves vs. Rod, Staff or Wand made as an equivalent level magic user"},
    { 86,  86, {},                 "saves vs. Spells made as an equivalent level magic user"},
    { 87,  87, "BP+=5",            "bonus 5 BPs"},
    { 88,  88, {},                 "extra 1st level bonus spell"},
    { 89,  89, {},                 "turn undead as 1 level higher"},
    { 90,  90, {},                 "permanent 2% EP bonus"},
    { 91,  91, "Wisdom+=1",        "gain 1 point of WIS"},
    { 92,  92, "Charisma+=2",      "gain 2 points of CHA"},
    { 93,  93, {},                 "gain 2 skills from Table 2H at no initial cost"},
    { 94,  94, {},                 "+1 bonus to magical defense adjustment"},
    { 95,  95, {},                 "Bonus Spells gained as if Wisdom is 1 higher than actual"},
    { 96,  96, {},                 "Spell Immunity treated as if Wisdom is 1 higher than actual score"},
    { 97,  97, {},                 "Bonus Spells treated as if Wisdom is 2 higher than actual score"},
    { 98,  98, {},                 "Spell Immunity treated as if Wisdom is 2 higher than actual score"},
    { 99,  99, {},                 "Bonus Spells treated as if Wisdom is 3 higher than actual score"},
    {100, 100, {},                 "Spell Immunity treated as if Wisdom is 1 higher than actual score"},
};

// clang-format on

static_assert(std::size(kAcquiredSkills) == kLastAcquiredSkill - kFirstAcquiredSkill + 1);
static_assert(std::size(kEducations) == 91);

}  // namespace

std::span<const CallRow> SeminaryCalls() {
  return kCalls;
}
std::span<const TrainingRow> SeminaryTrainings() {
  return kTrainings;
}
std::span<const SuperiorRow> SuperiorCompetencies() {
  return kCompetencies;
}
std::span<const SuperiorRow> SuperiorPersonalities() {
  return kPersonalities;
}
std::span<const AccoutrementsRow> SeminaryAccoutrements() {
  return kAccoutrements;
}
std::span<const ResidencyRow> Residencies() {
  return kResidencies;
}
std::span<const ResidencyResultRow> ResidencyResultRows() {
  return kResidencyResults;
}
std::span<const EducationRow> EducationRows() {
  return kEducations;
}

std::string_view AcquiredSkill(int roll) {
  const int row = std::clamp(roll, kFirstAcquiredSkill, kLastAcquiredSkill) - kFirstAcquiredSkill;
  return kAcquiredSkills[static_cast<std::size_t>(row)];
}

}  // namespace veld
