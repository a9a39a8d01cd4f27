#include "rules/quirk_rows.h"

namespace veld {

namespace {

// The rows of the Almanacs and the smaller books, table by table as the books print them.
// A row with kAny can be held any number of times; a row of range 0 is on no roll table.
// Not formatted by the tool: the columns are aligned by hand.
// clang-format off

//   row  low high   BP  kind           most  name, next table, its rolls, BP once held

constexpr QuirkEntry kHexwrightsAlmanac6JRows[] = {
    {306,   1,  15,   6, kMinorQuirk,      1, "Bookworm"},
    {307,  16,  30,   5, kMinorQuirk,      1, "Clumsy Fingers"},
    {308,  31,  46,   6, kMinorQuirk,      1, "Large Handwriting"},
    {309,  47,  61,   6, kMinorQuirk,      1, "Limited Faculties"},
    {310,  62,  75,   9, kSubTable,        1, "Magical Allergy [type]", "HXA Magical Allergy Table"},
    {311,  76,  87,   6, kMinorQuirk,      1, "Scar, Bodily"},
    {312,  88, 100,   0, kSubTable,        1, "Sloppy Penmanship    ", "HXA Sloppy Penmanship Table"},
};

constexpr QuirkEntry kHXASloppyPenmanshipTableRows[] = {
    {313,   1,   3,   7, kMinorQuirk,      1, "Sloppy Penmanship (Minor)"},
    {314,   4,   6,  12, kMajorQuirk,      1, "Sloppy Penmanship (Major)"},
};

constexpr QuirkEntry kHexwrightsAlmanac6KRows[] = {
    {315,   1,  14,   7, kSubTable,        1, "College Rivalry", "HXA College Rivalry Table"},
    {316,  15,  28,  15, kMajorQuirk,      1, "Learning Disability"},
    {317,  29,  42,   8, kMinorQuirk,      1, "Performance Anxiety"},
    {318,  43,  56,   7, kMinorQuirk,      1, "Security Blanket"},
    {319,  57,  70,   6, kSubTable,        1, "Superstitious Caster", "HXA Superstitious Caster Table"},
    {320,  71,  84,   8, kMinorQuirk,      1, "Wild Gestures"},
    {321,  85, 100,   5, kMinorQuirk,      1, "Know-it-all"},
};

constexpr QuirkEntry kHexwrightsAlmanac6LRows[] = {
    {322,   1,  17,   9, kMinorQuirk,      1, "Chintzy Mentor"},
    {323,  18,  34,  15, kMajorQuirk,      1, "Gimp Mentor"},
    {324,  35,  50,   9, kMinorQuirk,      1, "Old School Mentor"},
    {325,  51,  67,  12, kMajorQuirk,      1, "Pacifist Mentor"},
    {326,  68,  84,   7, kMinorQuirk,      1, "Wasteful Mentor"},
    {327,  85, 100,   8, kMinorQuirk,      1, "Wuss Mentor"},
};

constexpr QuirkEntry kHXAMagicalAllergyTableRows[] = {
    {328,   1,   6,   9, kMinorQuirk,      1, "Magical Allergy [Abjuration School]"},
    {329,   7,  12,   9, kMinorQuirk,      1, "Magical Allergy [Alteration School]"},
    {330,  13,  18,   9, kMinorQuirk,      1, "Magical Allergy [Conjuration/Summoning School]"},
    {331,  19,  24,   9, kMinorQuirk,      1, "Magical Allergy [Divination School]"},
    {332,  25,  30,   9, kMinorQuirk,      1, "Magical Allergy [Enchantment/Charm School]"},
    {333,  31,  36,   9, kMinorQuirk,      1, "Magical Allergy [Illusion/Phantasm School]"},
    {334,  37,  42,   9, kMinorQuirk,      1, "Magical Allergy [Invocation/Evocation]"},
    {335,  43,  47,   9, kMinorQuirk,      1, "Magical Allergy [Magical Cold]"},
    {336,  48,  52,   9, kMinorQuirk,      1, "Magical Allergy [Magical Electricity]"},
    {337,  53,  64,   9, kMinorQuirk,      1, "Magical Allergy [Magical Fire]"},
    {338,  65,  70,   9, kMinorQuirk,      1, "Magical Allergy [Necromancy School]"},
    {340,  81,  90,   9, kMinorQuirk,      1, "Magical Allergy [Spell Components: Mineral Matter]"},
    {341,  91, 100,   9, kMinorQuirk,      1, "Magical Allergy [Spell Components: Plant Matter]"},
};

// Kept slip: the misspelt table name puts this row outside the Magical Allergy table, which so has no row for 71-80.
constexpr QuirkEntry kHXAMAgicalAllergyTableRows[] = {
    {339,  71,  80,   9, kMinorQuirk,      1, "Magical Allergy [Spell Components: Animal Matter]"},
};

constexpr QuirkEntry kHXACollegeRivalryTableRows[] = {
    {342,   1,   1,   7, kMinorQuirk,      1, "College Rivalry [Abjuration]"},
    {343,   2,   2,   7, kMinorQuirk,      1, "College Rivalry [Alteration]"},
    {344,   3,   3,   7, kMinorQuirk,      1, "College Rivalry [Conjuration/Summoning]"},
    {345,   4,   4,   7, kMinorQuirk,      1, "College Rivalry [Divination]"},
    {346,   5,   5,   7, kMinorQuirk,      1, "College Rivalry [Enchantment/Charm]"},
    {347,   6,   6,   7, kMinorQuirk,      1, "College Rivalry [Illusion/Phantasm]"},
    {348,   7,   7,   7, kMinorQuirk,      1, "College Rivalry [Invocation/Evocation]"},
    {349,   8,   8,   7, kMinorQuirk,      1, "College Rivalry [Necromancy]"},
};

constexpr QuirkEntry kHXASuperstitiousCasterTableRows[] = {
    {350,   1,   1,   6, kMinorQuirk,      1, "Superstitious Caster: Always adds a minor material component to the "
                                              "casting of a spell."},
    {351,   2,   2,   6, kMinorQuirk,      1, "Superstitious Caster: Always adds a minor somatic component to the "
                                              "casting of a spell."},
    {352,   3,   3,   6, kMinorQuirk,      1, "Superstitious Caster: Always adds a minor verbal component to the "
                                              "casting of a spell."},
    {353,   4,   4,   6, kMinorQuirk,      1, "Superstitious Caster: Always casts his spells at the end of the round."},
    {354,   5,   5,   7, kMinorQuirk,      1, "Superstitious Caster: Always casts his spells at the begining of the "
                                              "round."},
    {355,   6,   6,   7, kMinorQuirk,      1, "Superstitious Caster: Cannot cast with someone closer to the target "
                                              "then him."},
    {356,   7,   7,   7, kMinorQuirk,      1, "Superstitious Caster: Must hold a certain object to cast a spell."},
    {357,   8,   8,   7, kMinorQuirk,      1, "Superstitious Caster: Will not cast spells on allies."},
    {358,   9,   9,   7, kMinorQuirk,      1, "Superstitious Caster: Loud mouth."},
    {359,  10,  10,   7, kMinorQuirk,      1, "Superstitious Caster: Performer."},
};

constexpr QuirkEntry kWarmongersAlmanac6MRows[] = {
    {360,   1,  12,   7, kMinorQuirk,      1, "Bad Back"},
    {361,  13,  24,   5, kMinorQuirk,      1, "Butt Ugly"},
    {362,  25,  36,   9, kMajorQuirk,      1, "Corrosive Sweat"},
    {363,  37,  48,  10, kMajorQuirk,      1, "Easily Dehydrated"},
    {364,  49,  61,   5, kMinorQuirk,      1, "Poorly Proportioned"},
    {365,  62,  74,   6, kMinorQuirk,      1, "Small Bladder"},
    {366,  74,  87,  12, kMajorQuirk,      1, "Small Hands"},
    {367,  88, 100,  10, kMajorQuirk,      1, "Uncoordinated"},
};

constexpr QuirkEntry kWarmongersAlmanac6NRows[] = {
    {368,   1,   9,  11, kSubTable,        1, "Armor Prejudice    ", "WMA Armor Prejudice"},
    {369,  10,  18,   4, kMinorQuirk,      1, "Armor Snobbery"},
    {370,  19,  27,   9, kMajorQuirk,      1, "Bad Luck"},
    {371,  28,  36,   9, kMajorQuirk,      1, "Bardic Tendencies"},
    {372,  37,  45,   6, kMinorQuirk,      1, "Blood Feud"},
    {373,  46,  54,  10, kMajorQuirk,      1, "Combat Arrogance"},
    {374,  55,  63,  12, kMajorQuirk,      1, "Flashbacks"},
    {375,  64,  72,   5, kMinorQuirk,      1, "Maintenance Compulsion"},
    {376,  73,  81,   8, kMajorQuirk,      1, "Outlawed"},
    {377,  82,  90,   6, kSubTable,        1, "Weapon Phobia    ", "WMA Weapon Phobia"},
    {378,  91, 100,   0, kSubTable,        1, "Weapon Prejudice    ", "WMA Weapon Prejudice Major/Minor"},
};

constexpr QuirkEntry kWMAArmorPrejudiceRows[] = {
    {379,   1,   5,  11, kMajorQuirk,      1, "Armor Prejudice: Robes/Garments"},
    {380,   6,  20,  11, kMajorQuirk,      1, "Armor Prejudice: Leather"},
    {381,  21,  35,  11, kMajorQuirk,      1, "Armor Prejudice: Padded"},
    {382,  36,  43,  11, kMajorQuirk,      1, "Armor Prejudice: Ring Mail"},
    {383,  44,  51,  11, kMajorQuirk,      1, "Armor Prejudice: Studded Leather"},
    {384,  52,  57,  11, kMajorQuirk,      1, "Armor Prejudice: Scale Mail"},
    {385,  58,  62,  11, kMajorQuirk,      1, "Armor Prejudice: Hide"},
    {386,  63,  70,  11, kMajorQuirk,      1, "Armor Prejudice: Brigandine"},
    {387,  71,  73,  11, kMajorQuirk,      1, "Armor Prejudice: Chain Mail"},
    {388,  74,  77,  11, kMajorQuirk,      1, "Armor Prejudice: Elven Chain Mail"},
    {389,  78,  81,  11, kMajorQuirk,      1, "Armor Prejudice: Heavy Chain"},
    {390,  82,  85,  11, kMajorQuirk,      1, "Armor Prejudice: Bronze Plate Mail"},
    {391,  86,  88,  11, kMajorQuirk,      1, "Armor Prejudice: Banded Mail"},
    {392,  89,  90,  11, kMajorQuirk,      1, "Armor Prejudice: Splint Mail"},
    {393,  91,  92,  11, kMajorQuirk,      1, "Armor Prejudice: Plate Mail"},
    {394,  93,  94,  11, kMajorQuirk,      1, "Armor Prejudice: Field Plate"},
    {395,  95,  96,  11, kMajorQuirk,      1, "Armor Prejudice: Full Plate"},
    {396,  97, 100,  11, kMajorQuirk,      1, "Armor Prejudice: Other/Unusual"},
};

constexpr QuirkEntry kWMAWeaponPhobiaRows[] = {
    {397,   1,   4,   6, kMinorQuirk,      1, "Weapon Phobia: Battle Axe"},
    {398,   5,   6,   6, kMinorQuirk,      1, "Weapon Phobia: Short Bow"},
    {399,   7,   8,   6, kMinorQuirk,      1, "Weapon Phobia: Long Bow"},
    {400,   9,  12,   6, kMinorQuirk,      1, "Weapon Phobia: Club"},
    {401,  13,  20,   6, kMinorQuirk,      1, "Weapon Phobia: Dagger"},
    {402,  21,  22,   6, kMinorQuirk,      1, "Weapon Phobia: Light Crossbow"},
    {403,  23,  24,   6, kMinorQuirk,      1, "Weapon Phobia: Heavy Crossbow"},
    {404,  25,  25,   6, kMinorQuirk,      1, "Weapon Phobia: Hand Crossbow"},
    {405,  26,  31,   6, kMinorQuirk,      1, "Weapon Phobia: Flail (footman's or horseman's)"},
    {406,  32,  34,   6, kMinorQuirk,      1, "Weapon Phobia: Mace (footman's or horseman's)"},
    {407,  35,  37,   6, kMinorQuirk,      1, "Weapon Phobia: Pick (footman's or horseman's)"},
    {408,  38,  39,   6, kMinorQuirk,      1, "Weapon Phobia: Javelin"},
    {409,  40,  42,   6, kMinorQuirk,      1, "Weapon Phobia: Knife"},
    {410,  43,  44,   6, kMinorQuirk,      1, "Weapon Phobia: Lance (all kinds)"},
    {411,  45,  46,   6, kMinorQuirk,      1, "Weapon Phobia: Morning Star"},
    {412,  47,  49,   6, kMinorQuirk,      1, "Weapon Phobia: Quarterstaff"},
    {413,  50,  51,   6, kMinorQuirk,      1, "Weapon Phobia: Sickle"},
    {414,  52,  53,   6, kMinorQuirk,      1, "Weapon Phobia: Sling"},
    {415,  54,  57,   6, kMinorQuirk,      1, "Weapon Phobia: Spear"},
    {416,  58,  61,   6, kMinorQuirk,      1, "Weapon Phobia: Bastard Sword"},
    {417,  62,  65,   6, kMinorQuirk,      1, "Weapon Phobia: Broad Sword"},
    {418,  66,  75,   6, kMinorQuirk,      1, "Weapon Phobia: Long Sword"},
    {419,  76,  81,   6, kMinorQuirk,      1, "Weapon Phobia: Scimitar"},
    {420,  82,  87,   6, kMinorQuirk,      1, "Weapon Phobia: Short Sword"},
    {421,  88,  91,   6, kMinorQuirk,      1, "Weapon Phobia: Two-handed Sword"},
    {422,  92,  94,   6, kMinorQuirk,      1, "Weapon Phobia: Warhammer"},
    {423,  95, 100,   6, kMinorQuirk,      1, "Weapon Phobia: Whip"},
};

// Kept slip: no row for 13-20 (the dagger of the phobia table is missing).
constexpr QuirkEntry kWMAWeaponPrejudiceMajorRows[] = {
    {424,   1,   4,   9, kMajorQuirk,      1, "Weapon Prejudice: Battle Axe"},
    {425,   5,   6,   9, kMajorQuirk,      1, "Weapon Prejudice: Short Bow"},
    {426,   7,   8,   9, kMajorQuirk,      1, "Weapon Prejudice: Long Bow"},
    {427,   9,  12,   9, kMajorQuirk,      1, "Weapon Prejudice: Club"},
    {428,  21,  22,   9, kMajorQuirk,      1, "Weapon Prejudice: Light Crossbow"},
    {429,  23,  24,   9, kMajorQuirk,      1, "Weapon Prejudice: Heavy Crossbow"},
    {430,  25,  25,   9, kMajorQuirk,      1, "Weapon Prejudice: Hand Crossbow"},
    {431,  26,  31,   9, kMajorQuirk,      1, "Weapon Prejudice: Flail (footman's or horseman's)"},
    {432,  32,  34,   9, kMajorQuirk,      1, "Weapon Prejudice: Mace (footman's or horseman's)"},
    {433,  35,  37,   9, kMajorQuirk,      1, "Weapon Prejudice: Pick (footman's or horseman's)"},
    {434,  38,  39,   9, kMajorQuirk,      1, "Weapon Prejudice: Javelin"},
    {435,  40,  42,   9, kMajorQuirk,      1, "Weapon Prejudice: Knife"},
    {436,  43,  44,   9, kMajorQuirk,      1, "Weapon Prejudice: Lance (all kinds)"},
    {437,  45,  46,   9, kMajorQuirk,      1, "Weapon Prejudice: Morning Star"},
    {438,  47,  49,   9, kMajorQuirk,      1, "Weapon Prejudice: Quarterstaff"},
    {439,  50,  51,   9, kMajorQuirk,      1, "Weapon Prejudice: Sickle"},
    {440,  52,  53,   9, kMajorQuirk,      1, "Weapon Prejudice: Sling"},
    {441,  54,  57,   9, kMajorQuirk,      1, "Weapon Prejudice: Spear"},
    {442,  58,  61,   9, kMajorQuirk,      1, "Weapon Prejudice: Bastard Sword"},
    {443,  62,  65,   9, kMajorQuirk,      1, "Weapon Prejudice: Broad Sword"},
    {444,  66,  75,   9, kMajorQuirk,      1, "Weapon Prejudice: Long Sword"},
    {445,  76,  81,   9, kMajorQuirk,      1, "Weapon Prejudice: Scimitar"},
    {446,  82,  87,   9, kMajorQuirk,      1, "Weapon Prejudice: Short Sword"},
    {447,  88,  91,   9, kMajorQuirk,      1, "Weapon Prejudice: Two-handed Sword"},
    {448,  92,  94,   9, kMajorQuirk,      1, "Weapon Prejudice: Warhammer"},
    {449,  95, 100,   9, kMajorQuirk,      1, "Weapon Prejudice: Whip"},
};

constexpr QuirkEntry kWMAWeaponPrejudiceMinorRows[] = {
    {450,   1,   1,   4, kMinorQuirk,      1, "Weapon Prejudice: Hacking"},
    {451,   2,   2,   4, kMinorQuirk,      1, "Weapon Prejudice: Crushing"},
    {452,   3,   3,   4, kMinorQuirk,      1, "Weapon Prejudice: Puncturing"},
};

constexpr QuirkEntry kWMAWeaponPrejudiceMajorMinorRows[] = {
    {453,   1,   1,   0, kSubTable,        1, "Weapon Prejudice: Minor", "WMA Weapon Prejudice Minor"},
    {454,   2,   2,   0, kSubTable,        1, "Weapon Prejudice: Major", "WMA Weapon Prejudice Major"},
};

constexpr QuirkEntry kWMARows[] = {
    {455,   0,   0,   0, kMinorQuirk,      1, "Animal Phobia [Mule]"},
    {456,   0,   0,   0, kMinorQuirk,      1, "Facial Burns"},
};

constexpr QuirkEntry kSFMRows[] = {
    {457,   0,   0,   0, kMinorQuirk,      1, "Poor Bargain Sense"},
};

constexpr QuirkEntry kTTMRows[] = {
    {458,   0,   0,   0, kMinorQuirk,      1, "Nicotine Addiction"},
};

constexpr QuirkEntry kTG12Rows[] = {
    {459,   0,   0,   0, kMinorQuirk,      1, "Drinking Problem"},
    {460,   0,   0,   0, kMinorQuirk,      1, "Fool in Love"},
    {461,   0,   0,   0, kMinorQuirk,      1, "Idiot Savant"},
    {462,   0,   0,   0, kMinorQuirk,      1, "Mortephobia"},
    {463,   0,   0,   0, kMinorQuirk,      1, "Argumentative"},
    {464,   0,   0,   0, kMinorQuirk,      1, "Code of Honor"},
    {465,   0,   0,   0, kMinorQuirk,      1, "Slob"},
    {467,   0,   0,   0, kMinorQuirk,      1, "Secret Past"},
    {468,   0,   0,   0, kMinorQuirk,   kAny, "Married"},
    {469,   0,   0,   0, kMinorQuirk,   kAny, "Children"},
};

// Kept slip: the only row of its group that goes with the Warmonger's Almanac.
constexpr QuirkEntry kBadReputationRows[] = {
    {466,   0,   0,   0, kMinorQuirk,      1, "Bad Reputation"},
};

constexpr QuirkEntry kHexwrightsAlmanac6ARows[] = {
    {479,   1,  10,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6B: Flaws, Minor (Physical)", kTable6B},
    {480,  11,  20,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6C: Flaws, Minor (Physical)", kTable6C},
    {481,  21,  29,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6D: Flaws, Minor (Physical)", kTable6D},
    {482,  30,  37,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6E: Flaws, Major (Physical)", kTable6E},
    {483,  38,  47,   0, kSubTable,     kAny, "Roll on Table Hexwright's Almanac 6J", kTable6J},
    {484,  48,  56,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6F: Quirks, Minor (Mental)", kTable6F},
    {485,  57,  64,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6G: Quirks, Major (Mental)", kTable6G},
    {486,  65,  74,   0, kSubTable,     kAny, "Roll on Table Hexwright's Almanac 6K", kTable6K},
    {487,  75,  83,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6H: Quirks, Minor (Personality)",
                                              kTable6H},
    {488,  84,  90,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6I: Quirks, Major (Personality)",
                                              kTable6I},
    {489,  91, 100,   0, kSubTable,     kAny, "Roll on Table Hexwright's Almanac 6L", kTable6L},
};

constexpr QuirkEntry kWarmongersAlmanac6ARows[] = {
    {490,   1,   9,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6B: Flaws, Minor (Physical)", kTable6B},
    {491,  10,  19,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6C: Flaws, Minor (Physical)", kTable6C},
    {492,  20,  31,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6D: Flaws, Minor (Physical)", kTable6D},
    {493,  32,  44,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6E: Flaws, Major (Physical)", kTable6E},
    {494,  45,  60,   0, kSubTable,     kAny, "Roll on Table Warmonger's Almanac 6M", kTable6M},
    {495,  61,  66,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6F: Quirks, Minor (Mental)", kTable6F},
    {496,  67,  73,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6G: Quirks, Major (Mental)", kTable6G},
    {497,  74,  80,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6H: Quirks, Minor (Personality)",
                                              kTable6H},
    {498,  81,  88,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6I: Quirks, Major (Personality)",
                                              kTable6I},
    {499,  89, 100,   0, kSubTable,     kAny, "Roll on Table Warmonger's Almanac 6N", kTable6N},
};

constexpr QuirkEntry kSwindlersAlmanac6ARows[] = {
    {500,   1,   9,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6B: Flaws, Minor (Physical)", kTable6B},
    {501,  10,  19,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6C: Flaws, Minor (Physical)", kTable6C},
    {502,  20,  31,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6D: Flaws, Minor (Physical)", kTable6D},
    {503,  32,  44,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6E: Flaws, Major (Physical)", kTable6E},
    // Kept slip: there is no table of the name "SWA 6Q" (the book's own is "Swindler's Almanac 6Q"): no result.
    {504,  45,  60,   0, kSubTable,     kAny, "Roll on Table SWA 6Q", "SWA 6Q"},
    {505,  61,  66,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6F: Quirks, Minor (Mental)", kTable6F},
    {506,  67,  73,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6G: Quirks, Major (Mental)", kTable6G},
    {507,  74,  80,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6H: Quirks, Minor (Personality)",
                                              kTable6H},
    {508,  81,  88,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6I: Quirks, Major (Personality)",
                                              kTable6I},
    {509,  89, 100,   0, kSubTable,     kAny, "Roll on Table SWA 6R", kTable6R},
};

constexpr QuirkEntry kSwindlersAlmanac6QRows[] = {
    {510,   1,  11,   8, kMajorQuirk,      1, "Arthritis"},
    {511,  12,  21,   6, kMinorQuirk,      1, "Big Hands"},
    {512,  22,  31,   7, kMinorQuirk,      1, "Club-Footed"},
    {513,  32,  41,   8, kMajorQuirk,      1, "Impotent/Barren"},
    {514,  42,  45,   7, kMinorQuirk,      1, "Loud Talker"},
    {515,  46,  55,   0, kSubTable,        1, "Precious Metal Allergy", "SWA Precious Metal Allergy Table"},
    {516,  56,  67,  10, kMajorQuirk,      1, "Shaky Hands"},
    {517,  68,  78,  12, kMajorQuirk,      1, "Sleep Stealer"},
    {518,  79,  90,   6, kMinorQuirk,      1, "Small Ears"},
    {519,  91, 100,   0, kSubTable,        1, "Suspicious Mannerism [type]", "SWA Suspicious Mannerism Table"},
};

constexpr QuirkEntry kSwindlersAlmanac6RRows[] = {
    {520,   1,   7,  11, kMajorQuirk,      1, "Afraid of the Dark (SWA)"},
    {521,   8,  15,   7, kMinorQuirk,      1, "Anal Retentive"},
    {522,  16,  26,  10, kMajorQuirk,      1, "Attention Deficit Disorder"},
    {523,  27,  33,   3, kMinorQuirk,      1, "Close Talker"},
    {524,  34,  39,   4, kMinorQuirk,      1, "Expanded Personal Space"},
    {525,  40,  44,   4, kMinorQuirk,      1, "Identity Paranoia"},
    {526,  45,  48,  13, kMajorQuirk,      1, "Mask Fetish"},
    {527,  49,  55,   6, kMinorQuirk,      1, "Nervous Laugh"},
    {528,  56,  59,   5, kMinorQuirk,      1, "Overly Competitive"},
    {529,  60,  69,   0, kSubTable,        1, "Poor Impulse Control [type]", "SWA Poor Impulse Control Table"},
    {530,  70,  75,   7, kMinorQuirk,      1, "Secret Identity"},
    {531,  76,  84,  12, kMajorQuirk,      1, "Social Guilt"},
    {532,  85,  90,   7, kMinorQuirk,      1, "Tourette's Syndrome, Minor"},
    {533,  91,  94,  13, kMajorQuirk,      1, "Tourette's Syndrome, Major"},
    {534,  95, 100,  10, kMajorQuirk,      1, "Whisperer"},
};

constexpr QuirkEntry kSWAPreciousMetalAllergyTableRows[] = {
    {535,   1,   3,  11, kMajorQuirk,      1, "Precious Metal Allergy [Copper]"},
    {536,   4,   6,  11, kMajorQuirk,      1, "Precious Metal Allergy [Silver]"},
    {537,   7,  12,  11, kMajorQuirk,      1, "Precious Metal Allergy [Gold]"},
    {538,  13,  15,  11, kMajorQuirk,      1, "Precious Metal Allergy [Platinum]"},
    {539,  16,  17,  11, kMajorQuirk,      1, "Precious Metal Allergy [Electrum]"},
    {540,  18,  18,  11, kMajorQuirk,      1, "Precious Metal Allergy [Hard Silver]"},
    {541,  19,  20,   0, kSubTable,        1, "Precious Metal Allergy: Roll twice more",
                                              "SWA Precious Metal Allergy Table", 2},
};

constexpr QuirkEntry kSWASuspiciousMannerismTableRows[] = {
    {542,   2,   2,  15, kMajorQuirk,      1, "Suspicious Mannerism [Shifty Eyes]"},
    {543,   3,   3,  15, kMajorQuirk,      1, "Suspicious Mannerism [Hunched Shoulders]"},
    {544,   4,   4,  15, kMajorQuirk,      1, "Suspicious Mannerism [Dark Eyebrows]"},
    {545,   5,   5,  15, kMajorQuirk,      1, "Suspicious Mannerism [Evil Laugh]"},
    {546,   6,   6,  15, kMajorQuirk,      1, "Suspicious Mannerism [Slinking Walk]"},
    {547,   7,   7,  15, kMajorQuirk,      1, "Suspicious Mannerism [Handlebar Mustache]"},
    {548,   8,   8,  15, kMajorQuirk,      1, "Suspicious Mannerism [Unkempt Hair]"},
    {549,   9,   9,  15, kMajorQuirk,      1, "Suspicious Mannerism [Crotch Grabber]"},
    {550,  10,  10,  15, kMajorQuirk,      1, "Suspicious Mannerism [Nail Biter]"},
    {551,  11,  11,  15, kMajorQuirk,      1, "Suspicious Mannerism [Questioning Attitude]"},
    {552,  12,  12,  15, kMajorQuirk,      1, "Suspicious Mannerism [Inquisitive Attitude]"},
    {553,  13,  13,  15, kMajorQuirk,      1, "Suspicious Mannerism [Runs From Lawmen]"},
    {554,  14,  14,  15, kMajorQuirk,      1, "Suspicious Mannerism [Nervously Watches Door]"},
    {555,  15,  15,  15, kMajorQuirk,      1, "Suspicious Mannerism [Prefers 'Street' Fashions]"},
    {556,  16,  16,  15, kMajorQuirk,      1, "Suspicious Mannerism [GM Choice]"},
};

constexpr QuirkEntry kSWAPoorImpulseControlTableRows[] = {
    {557,   1,   3,   6, kMinorQuirk,      1, "Poor Impulse Control [Sex]"},
    {558,   4,   5,   6, kMinorQuirk,      1, "Poor Impulse Control [Gems]"},
    {559,   6,   7,   6, kMinorQuirk,      1, "Poor Impulse Control [Coins]"},
    {560,   8,   8,   6, kMinorQuirk,      1, "Poor Impulse Control [Tobacco]"},
    {561,   9,  10,   6, kMinorQuirk,      1, "Poor Impulse Control [Rings]"},
    {562,  11,  12,   6, kMinorQuirk,      1, "Poor Impulse Control [Necklaces]"},
    {563,  13,  14,   6, kMinorQuirk,      1, "Poor Impulse Control [Daggers]"},
    {564,  15,  16,   6, kMinorQuirk,      1, "Poor Impulse Control [Cloaks]"},
    {565,  17,  18,   6, kMinorQuirk,      1, "Poor Impulse Control [Sweets]"},
    {566,  19,  20,   6, kMinorQuirk,      1, "Poor Impulse Control [Musical Instruments]"},
};

constexpr QuirkEntry kDevoteesAlmanac6ARows[] = {
    {567,   1,   9,   0, kRollAgain,    kAny, "Roll on Table Adventurer's Codex 6B: Flaws, Minor (Physical)"},
    {568,  10,  19,   0, kRollAgain,    kAny, "Roll on Table Adventurer's Codex 6C: Flaws, Minor (Physical)"},
    {569,  20,  31,   0, kRollAgain,    kAny, "Roll on Table Adventurer's Codex 6D: Flaws, Minor (Physical)"},
    {570,  32,  44,   0, kRollAgain,    kAny, "Roll on Table Adventurer's Codex 6E: Flaws, Major (Physical)"},
    {571,  45,  60,   0, kRollAgain,    kAny, "Roll on Table DVA 6O"},
    {572,  61,  66,   0, kRollAgain,    kAny, "Roll on Table Adventurer's Codex 6F: Quirks, Minor (Mental)"},
    {573,  67,  73,   0, kRollAgain,    kAny, "Roll on Table Adventurer's Codex 6G: Quirks, Major (Mental)"},
    {574,  74,  80,   0, kRollAgain,    kAny, "Roll on Table Adventurer's Codex 6H: Quirks, Minor (Personality)"},
    {575,  81,  88,   0, kRollAgain,    kAny, "Roll on Table Adventurer's Codex 6I: Quirks, Minor (Personality)"},
    {576,  89, 100,   0, kRollAgain,       1, "Roll on Table DVA 6P"},
};

constexpr QuirkEntry kDevoteesAlmanac6ORows[] = {
    // Kept slip: leads to the convictions, so the goiter subtable is never rolled.
    {577,   1,  12,   4, kSubTable,        1, "Goiter", "DVA Unusual Convictions SubTable"},
    {578,  13,  25,   3, kMinorQuirk,      1, "Low Tolerance for Alcohol"},
    {579,  26,  38,  10, kMajorQuirk,      1, "Rapid Aging"},
    {580,  39,  50,   6, kMinorQuirk,      1, "Scoliosis"},
    {581,  51,  63,   3, kMinorQuirk,      1, "Shy Bladder"},
    {582,  64,  76,  12, kMajorQuirk,      1, "Sleep Casting"},
    {583,  77,  88,   6, kMinorQuirk,      1, "Weak Bladder"},
    {584,  89, 100,  10, kMajorQuirk,      1, "Weak Stomach"},
};

// Kept slip: the first rows of the Devotee's Almanac table 6P stand under a name of their own and are never rolled.
constexpr QuirkEntry kDVA6PRows[] = {
    {585,   1,   8,  20, kMajorQuirk,      1, "Atheist"},
    {586,   9,  17,   9, kMajorQuirk,      1, "Afraid of the Dark (DVA)"},
};

// Kept slip: with its rows 1-17 under another name the table starts at 18, so its die is 18d5 and 91-100 never come up.
constexpr QuirkEntry kDevoteesAlmanac6PRows[] = {
    {587,  18,  26,   5, kMinorQuirk,      1, "Bragart"},
    {588,  27,  35,  18, kMajorQuirk,      1, "Death Wish"},
    {589,  36,  44,   5, kMinorQuirk,      1, "Enabler"},
    {590,  45,  53,   7, kMinorQuirk,      1, "Enmity Versus a Gawd"},
    {591,  54,  62,   4, kMinorQuirk,      1, "Ill-Informed"},
    {592,  63,  71,   3, kMinorQuirk,      1, "Impotence/Frigid"},
    {593,  72,  80,   9, kMajorQuirk,      1, "Intolerant"},
    {594,  81,  89,  12, kMajorQuirk,      1, "Little Faith"},
    {595,  90,  96,   9, kMajorQuirk,      1, "Necrophobia"},
    // Kept slip: a further roll, but on no table: it owes nothing.
    {596,  97, 100,   4, kSubTable,        1, "Unusual Convictions"},
};

// Never rolled: row 577 leads elsewhere.
constexpr QuirkEntry kDVAGoiterSubTableRows[] = {
    {597,   1,  50,   4, kMinorQuirk,      1, "Goiter: Hyperthyroidism"},
    {598,  51, 100,   4, kMinorQuirk,      1, "Goiter: Hypothyroidism"},
};

constexpr QuirkEntry kDVAUnusualConvictionsSubTableRows[] = {
    {599,   1,   1,   4, kMinorQuirk,      1, "Unusual Convictions: Thinks the erdra is flat"},
    {600,   2,   2,   4, kMinorQuirk,      1, "Unusual Convictions: Believes all beggers are sacred agents of the "
                                              "gawds"},
    {601,   3,   3,   4, kMinorQuirk,      1, "Unusual Convictions: Insists pigs are plotting to take over the "
                                              "barnyard"},
    {602,   4,   4,   4, kMinorQuirk,      1, "Unusual Convictions: Thinks daily bloodletting will help prevent/cure "
                                              "disease"},
    {603,   5,   5,   4, kMinorQuirk,      1, "Unusual Convictions: Believes there is only one gawd"},
    {604,   6,   6,   4, kMinorQuirk,      1, "Unusual Convictions: Believes urine is sacred"},
    {605,   7,   7,   4, kMinorQuirk,      1, "Unusual Convictions: Refuses to harm animals because they are holy "
                                              "spirits in disguise"},
    {606,   8,   8,   4, kMinorQuirk,      1, "Unusual Convictions: Follows exclusively vegetarian diet because meat "
                                              "is unhealty"},
    {607,   9,   9,   4, kMinorQuirk,      1, "Unusual Convictions: Follows exclusively carnivorous diet beacause "
                                              "vegetables are poisonous"},
    {608,  10,  10,   4, kMinorQuirk,      1, "Unusual Convictions: Believes all holy accoutrements must be made of "
                                              "silver to be effective"},
    {609,  11,  11,   4, kMinorQuirk,      1, "Unusual Convictions: Believes walking on hot coals purifies ones soul"},
    {610,  12,  12,   4, kMinorQuirk,      1, "Unusual Convictions: Engages in self-flogging to atone for sins "
                                              "(performed as necessary)"},
    {611,  13,  13,   4, kMinorQuirk,      1, "Unusual Convictions: Must pray outdoors as prayers indoors will not be "
                                              "heard"},
    {612,  14,  14,   4, kMinorQuirk,      1, "Unusual Convictions: Must pray indoors as prayers out-of-doors will go "
                                              "unheard"},
    {613,  15,  15,   4, kMinorQuirk,      1, "Unusual Convictions: Believes he has a guardian spirit that protects "
                                              "him from harm"},
    {614,  16,  16,   4, kMinorQuirk,      1, "Unusual Convictions: Believes he has an invisible angel that he can "
                                              "consult and converse with"},
    {615,  17,  17,   4, kMinorQuirk,      1, "Unusual Convictions: Thinks books are profane and must be burned"},
    {616,  18,  18,   4, kMinorQuirk,      1, "Unusual Convictions: Believes bathing causes disease"},
    {617,  19,  19,   4, kMinorQuirk,      1, "Unusual Convictions: Believes wealth is the root of all evil"},
    {618,  20,  20,   4, kSubTable,        1, "Unusual Convictions: Roll twice", "DVA Unusual Convictions SubTable", 2},
};

// Table, source, book (its rule switch), rows.
constexpr QuirkRowGroup kGroups[] = {
    {kTable6J,                           "HXA",  1, kHexwrightsAlmanac6JRows},
    {"HXA Sloppy Penmanship Table",      "HXA",  1, kHXASloppyPenmanshipTableRows},
    {kTable6K,                           "HXA",  1, kHexwrightsAlmanac6KRows},
    {kTable6L,                           "HXA",  1, kHexwrightsAlmanac6LRows},
    {"HXA Magical Allergy Table",        "HXA",  1, kHXAMagicalAllergyTableRows},
    {"HXA MAgical Allergy Table",        "HXA",  1, kHXAMAgicalAllergyTableRows},
    {"HXA College Rivalry Table",        "HXA",  1, kHXACollegeRivalryTableRows},
    {"HXA Superstitious Caster Table",   "HXA",  1, kHXASuperstitiousCasterTableRows},
    {kTable6M,                           "WMA",  2, kWarmongersAlmanac6MRows},
    {kTable6N,                           "WMA",  2, kWarmongersAlmanac6NRows},
    {"WMA Armor Prejudice",              "WMA",  2, kWMAArmorPrejudiceRows},
    {"WMA Weapon Phobia",                "WMA",  2, kWMAWeaponPhobiaRows},
    {"WMA Weapon Prejudice Major",       "WMA",  2, kWMAWeaponPrejudiceMajorRows},
    {"WMA Weapon Prejudice Minor",       "WMA",  2, kWMAWeaponPrejudiceMinorRows},
    {"WMA Weapon Prejudice Major/Minor", "WMA",  2, kWMAWeaponPrejudiceMajorMinorRows},
    {"WMA",                              "WMA",  2, kWMARows},
    {"SFM",                              "SFM", 11, kSFMRows},
    {"TTM",                              "TTM", 12, kTTMRows},
    {"TG 12",                            "TG 12", 10, kTG12Rows},
    {"TG 12",                            "TG 12",  2, kBadReputationRows},
    {kHexwright6A,                       "HXA",  1, kHexwrightsAlmanac6ARows},
    {kWarmonger6A,                       "WMA",  2, kWarmongersAlmanac6ARows},
    {kSwindler6A,                        "SWA",  3, kSwindlersAlmanac6ARows},
    {kTable6Q,                           "SWA",  3, kSwindlersAlmanac6QRows},
    {kTable6R,                           "SWA",  3, kSwindlersAlmanac6RRows},
    {"SWA Precious Metal Allergy Table", "SWA",  3, kSWAPreciousMetalAllergyTableRows},
    {"SWA Suspicious Mannerism Table",   "SWA",  3, kSWASuspiciousMannerismTableRows},
    {"SWA Poor Impulse Control Table",   "SWA",  3, kSWAPoorImpulseControlTableRows},
    {kDevotee6A,                         "DVA",  4, kDevoteesAlmanac6ARows},
    {kTable6O,                           "DVA",  4, kDevoteesAlmanac6ORows},
    {"DVA 6P",                           "DVA",  4, kDVA6PRows},
    {kTable6P,                           "DVA",  4, kDevoteesAlmanac6PRows},
    {"DVA Goiter SubTable",              "DVA",  4, kDVAGoiterSubTableRows},
    {"DVA Unusual Convictions SubTable", "DVA",  4, kDVAUnusualConvictionsSubTableRows},
};
// clang-format on

constexpr std::size_t CountRows() {
  std::size_t count = 0;
  for (const QuirkRowGroup& group : kGroups) count += group.Rows.size();
  return count;
}
static_assert(CountRows() == 304);

}  // namespace

std::span<const QuirkRowGroup> AlmanacQuirkRows() {
  return kGroups;
}

}  // namespace veld
