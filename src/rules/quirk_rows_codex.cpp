#include "rules/quirk_rows.h"

namespace veld {

namespace {

// The rows of the Adventurer's Codex, table by table as the books print them.
// A row with kAny can be held any number of times; a row of range 0 is on no roll table.
// Not formatted by the tool: the columns are aligned by hand.
// clang-format off

//   row  low high   BP  kind           most  name, next table, its rolls, BP once held

constexpr QuirkEntry kAdventurersCodex6BRows[] = {
    {  1,   1,   9,   5, kMinorQuirk,      1, "Albino"},
    {  2,  10,  14,   7, kSubTable,     kAny, "Animal [type] Antipathy", "ADC Animal Antipathy Table"},
    {  3,  15,  23,   5, kMinorQuirk,      1, "Anosmia (loss of the sense of taste)"},
    {  4,  24,  26,  10, kMinorQuirk,      1, "Asthmatic"},
    {  5,  27,  35,   5, kMinorQuirk,      1, "Blind, Color"},
    {  6,  36,  40,   8, kMinorQuirk,      1, "Chronic Nose Bleeds"},
    {  7,  41,  49,   5, kMinorQuirk,      1, "Excessive Drooling"},
    {  8,  50,  58,   5, kMinorQuirk,      1, "Flatulent"},
    {  9,  59,  61,  10, kMinorQuirk,      1, "Hearing Impaired"},
    { 10,  62,  70,   5, kMinorQuirk,      1, "Lisp"},
    { 11,  71,  85,   0, kRollAgain,    kAny, "Roll again on Table 6B and an extra time on Table 6C"},
    { 12,  86, 100,   0, kRollAgain,    kAny, "Roll again on Table 6B and an extra time on Table 6D"},
};

constexpr QuirkEntry kAdventurersCodex6CRows[] = {
    { 13,   1,   7,   6, kMinorQuirk,      2, "Loss of Ear"},
    { 14,   8,  13,   7, kMinorQuirk,      2, "Loss of Eye"},
    { 15,  14,  21,   5, kMinorQuirk,      1, "Male Pattern Baldness"},
    { 16,  22,  26,   8, kMinorQuirk,      1, "Migraines"},
    { 17,  27,  34,   5, kMinorQuirk,     10, "Missing Finger", {}, 0, 1},
    { 18,  35,  42,   5, kMinorQuirk,      1, "Nervous Tic"},
    { 19,  43,  47,   8, kMinorQuirk,   kAny, "Scar, Facial"},
    { 20,  48,  54,   6, kMinorQuirk,      1, "Sleep Chatter"},
    { 21,  55,  61,   6, kMinorQuirk,      1, "Sound Sleeper"},
    { 22,  62,  70,   6, kMinorQuirk,      1, "Strange Body Odor"},
    { 23,  71,  85,   0, kRollAgain,    kAny, "Roll again on Table 6C and an extra time on Table 6F"},
    { 24,  86, 100,   0, kRollAgain,       1, "Roll twice more on Table 6C"},
    // Never reached: row 24 holds the same range and comes first. Kept as printed.
    { 25,  86, 100,   0, kRollAgain,    kAny, "Roll again on Table 6C and an extra time on Table 6E"},
};

constexpr QuirkEntry kAdventurersCodex6DRows[] = {
    { 26,   1,  10,   8, kMinorQuirk,      1, "Stutter"},
    { 27,  11,  30,   5, kMinorQuirk,      1, "Tone Deaf"},
    { 28,  31,  45,   7, kMinorQuirk,      1, "Vision Impaired, Far Sighted"},
    { 29,  46,  55,   5, kMinorQuirk,      1, "Blind, One Eye"},
    { 30,  56,  70,   7, kMinorQuirk,      1, "Vision Impaired, Near Sighted"},
    { 31,  71,  90,   0, kRollAgain,    kAny, "Roll once on Table 6B and once on Table 6C"},
    { 32,  91, 100,   0, kRollAgain,    kAny, "Roll on Table 6E (Flaws, Major)"},
};

constexpr QuirkEntry kAdventurersCodex6ERows[] = {
    { 33,   1,   6,  11, kMajorQuirk,      1, "Accident Prone"},
    { 34,   7,  12,  11, kSubTable,       99, "Acute Allergies", "ADC Allergen Table"},
    { 35,  13,  17,  15, kMajorQuirk,      1, "Amputee, Arm"},
    { 36,  18,  20,  20, kMajorQuirk,      1, "Amputee, Double, Arm"},
    { 37,  21,  23,  20, kMajorQuirk,      1, "Amputee, Double, Leg"},
    { 38,  24,  28,  15, kMajorQuirk,      1, "Amputee, Leg"},
    { 39,  29,  31,  20, kMajorQuirk,      1, "Blind    "},
    { 40,  32,  40,  20, kMajorQuirk,      1, "Deaf    "},
    { 41,  41,  45,  15, kMajorQuirk,      1, "Hemophiliac"},
    { 42,  46,  50,  15, kMajorQuirk,      1, "Low Threshold for Pain (LTP)"},
    { 43,  51,  56,  11, kSubTable,     kAny, "Maimed    ", "ADC Maimed Table"},
    { 44,  57,  62,  11, kMajorQuirk,      1, "Mute"},
    { 45,  63,  67,  15, kMajorQuirk,      1, "Narcolepsy"},
    { 46,  68,  73,  11, kMajorQuirk,      1, "No Depth Perception"},
    { 47,  74,  78,   0, kSubTable,        1, "Seizure, Disorders (Epilepsy)", "ADC Seizure Table"},
    { 48,  79,  84,  11, kMajorQuirk,      1, "Sleep Walker"},
    { 49,  85,  90,  12, kMajorQuirk,      2, "Trick Knee"},
    { 50,  91, 100,   0, kRollAgain,    kAny, "Roll once on Table 6E and once on Table 6B"},
};

constexpr QuirkEntry kAdventurersCodex6FRows[] = {
    { 51,   1,   5,   9, kMinorQuirk,      1, "Absent Minded"},
    { 52,   6,   8,  10, kMinorQuirk,      1, "Acrophobia (fear of heights)"},
    { 53,   9,  11,  10, kMinorQuirk,      1, "Agoraphobia (fear of open spaces)"},
    { 54,  12,  17,   8, kMinorQuirk,      1, "Alcoholic"},
    { 55,  18,  22,   9, kSubTable,       99, "Animal [type] Phobia", "ADC Animal Phobia Table"},
    { 56,  23,  28,   6, kMinorQuirk,      1, "Chronic Nightmares"},
    { 57,  29,  32,   8, kMinorQuirk,      1, "Claustrophobia (fear of closed spaces)"},
    { 58,  33,  35,   0, kSubTable,       10, "Delusional (Minor)    ", "ADC Delusion Table Minor"},
    { 59,  36,  41,   8, kMinorQuirk,      1, "Depression (Minor)"},
    { 60,  42,  47,   8, kMinorQuirk,      1, "Gambling Addiction"},
    { 61,  48,  53,   7, kMinorQuirk,      1, "Inappropriate Sense of Humor"},
    { 62,  54,  56,  10, kMinorQuirk,      1, "Kleptomaniac (compelled to steal)"},
    { 63,  57,  59,  10, kSubTable,        1, "Obsessive Compulsive", "ADC Obsession OR Compulsion"},
    { 64,  60,  70,   5, kMinorQuirk,      1, "Nagging Conscience"},
    { 65,  71,  73,  10, kMinorQuirk,      1, "Paranoid"},
    { 66,  74,  79,   8, kMinorQuirk,      1, "Short Term Memory Loss"},
    { 67,  80,  82,  10, kSubTable,       20, "Superstitious    ", "ADC Superstitions Table"},
    { 68,  83,  90,   7, kMinorQuirk,      1, "Temper Tantrums"},
    { 69,  91,  95,   0, kRollAgain,    kAny, "Roll again on Table 6F and an extra time on Table 6G"},
    { 70,  96, 100,   0, kRollAgain,    kAny, "Roll again on Table 6F and an extra time on Table 6H"},
};

constexpr QuirkEntry kAdventurersCodex6GRows[] = {
    { 71,   1,   4,   0, kSubTable,       10, "Delusional (Major)    ", "ADC Delusion Table Major"},
    { 72,   5,   7,  16, kMajorQuirk,      1, "Depression (Major)"},
    { 73,   8,  13,  13, kRefereeQuirk,    1, "Enmity toward [class]", "ADC Class Enmity Table"},
    { 74,  14,  19,  13, kMajorQuirk,     99, "Enmity toward [monster]"},
    { 75,  20,  25,  13, kRefereeQuirk,    1, "Enmity toward [race]", "ADC Racial Enmity Table"},
    { 76,  26,  29,  15, kMajorQuirk,      1, "QuellFrenzy"},
    { 77,  30,  33,  15, kMajorQuirk,      1, "QuellLust"},
    { 78,  34,  41,  11, kRefereeQuirk,    1, "Psychotic Aversion to [class]", "ADC Class Aversion Table"},
    { 79,  42,  50,  11, kMajorQuirk,      1, "Psychotic Aversion to [monster]"},
    { 80,  51,  58,  11, kRefereeQuirk,    1, "Psychotic Aversion to [race]", "ADC Racial Aversion Table"},
    { 81,  59,  65,  12, kMajorQuirk,      1, "Pyromaniac"},
    { 82,  66,  72,  12, kMajorQuirk,      1, "Sadistic"},
    { 83,  73,  80,  11, kMajorQuirk,      1, "Wuss-of-Heart"},
    { 84,  81,  90,   0, kRollAgain,    kAny, "Roll again on Table 6G and an extra time on Table 6F"},
    { 85,  91, 100,   0, kRollAgain,    kAny, "Roll again on Table 6G and an extra time on Table 6H"},
};

constexpr QuirkEntry kAdventurersCodex6HRows[] = {
    { 86,   1,   8,   6, kMinorQuirk,      1, "Chronic Liar"},
    { 87,   9,  17,   5, kMinorQuirk,      1, "Clingy"},
    { 88,  18,  30,   5, kMinorQuirk,      1, "Glutton"},
    { 89,  31,  35,   8, kMinorQuirk,      1, "Greedy"},
    { 90,  36,  42,   7, kMinorQuirk,      1, "Gullible"},
    { 91,  43,  48,   8, kMinorQuirk,      1, "Jerk"},
    { 92,  49,  55,   7, kMinorQuirk,      1, "Loud Boor"},
    { 93,  56,  67,   5, kMinorQuirk,      1, "Misguided"},
    { 94,  68,  72,   6, kMinorQuirk,      1, "Obnoxious"},
    { 95,  73,  76,   5, kMinorQuirk,      1, "Pack Rat"},
    { 96,  77,  82,   8, kMinorQuirk,      1, "Self Absorbed"},
    { 97,  83,  88,   7, kMinorQuirk,      1, "Socially Awkward"},
    { 98,  89,  95,   9, kMinorQuirk,      1, "Value Privacy (Reclusive)"},
    { 99,  96, 100,   0, kRollAgain,    kAny, "Roll again on Table 6H and an extra time on Table 6G"},
};

constexpr QuirkEntry kAdventurersCodex6IRows[] = {
    {100,   1,  35,   0, kSubTable,      100, "Multiple Personalities [type]", "ADC Extra Personality Table"},
    {101,  36,  70,  11, kMajorQuirk,      1, "Truthful"},
    {102,  71,  85,   0, kRollAgain,    kAny, "Roll twice on Table 6H"},
    {103,  86, 100,   0, kRollAgain,    kAny, "Roll twice on Table 6G"},
};

constexpr QuirkEntry kADCAnimalAntipathyTableRows[] = {
    {104,   1,   2,   7, kMinorQuirk,      1, "Animal Antipathy [horse]"},
    {105,   3,   4,   7, kMinorQuirk,      1, "Animal Antipathy [dog]"},
    {106,   5,   6,   7, kMinorQuirk,      1, "Animal Antipathy [cat]"},
    {107,   7,   8,   7, kMinorQuirk,      1, "Animal Antipathy [bird]"},
    {108,   9,  10,   7, kMinorQuirk,      1, "Animal Antipathy [insect]"},
    {109,  11,  12,   7, kMinorQuirk,      1, "Animal Antipathy [fish]"},
    {110,  13,  14,   7, kMinorQuirk,      1, "Animal Antipathy [bat]"},
    {111,  15,  16,   7, kMinorQuirk,      1, "Animal Antipathy [snake]"},
    {112,  17,  18,   7, kMinorQuirk,      1, "Animal Antipathy [ape]"},
    {113,  19,  20,   7, kMinorQuirk,     99, "Animal Antipathy [GM's choice]"},
};

constexpr QuirkEntry kADCMaimedTableRows[] = {
    {114,   1,   1,  11, kMajorQuirk,      1, "Maimed: Severe facial burn or scarring"},
    {115,   2,   2,  11, kMajorQuirk,      1, "Maimed: Misshapen head"},
    {116,   3,   3,   0, kSubTable,        1, "Maimed: Roll again (1-3) Fingers webbed, (4-6) extra finger",
                                              "ADC Maimed Subtable"},
    {119,   4,   4,  11, kMajorQuirk,      1, "Maimed: Two missing facial features"},
    {120,   5,   5,  11, kMajorQuirk,      1, "Maimed: Misshapen Body"},
    {121,   6,   6,   0, kRollAgain,    kAny, "Maimed: Person gets an additional area of maiming. Roll again twice on "
                                              "the Maimed Table"},
};

constexpr QuirkEntry kADCMaimedSubtableRows[] = {
    {117,   1,   3,  11, kMajorQuirk,      1, "Maimed: Fingers Webbed"},
    {118,   4,   6,  11, kMajorQuirk,     99, "Maimed: Extra Finger"},
};

constexpr QuirkEntry kADCSeizureTableRows[] = {
    {122,   1,  60,  20, kMajorQuirk,      1, "Seizure, Disorder (Epilepsy), Grand Mal"},
    {123,  61, 100,  12, kMinorQuirk,      1, "Seizure, Disorder (Epilepsy), Minor"},
};

constexpr QuirkEntry kADCAnimalPhobiaTableRows[] = {
    {124,   1,   2,   9, kMinorQuirk,      1, "Animal Phobia [horse]"},
    {125,   3,   4,   9, kMinorQuirk,      1, "Animal Phobia [dog]"},
    {126,   5,   6,   9, kMinorQuirk,      1, "Animal Phobia [cat]"},
    {127,   7,   8,   9, kMinorQuirk,      1, "Animal Phobia [insect]"},
    {128,   9,  10,   9, kMinorQuirk,      1, "Animal Phobia [rodent]"},
    {129,  11,  12,   9, kMinorQuirk,      1, "Animal Phobia [snake]"},
    {130,  13,  14,   9, kMinorQuirk,      1, "Animal Phobia [birds]"},
    {131,  15,  16,   9, kMinorQuirk,      1, "Animal Phobia [fish]"},
    {132,  17,  18,   9, kMinorQuirk,      1, "Animal Phobia [worms]"},
    {133,  19,  20,   9, kMinorQuirk,      1, "Animal Phobia [cattle]"},
};

constexpr QuirkEntry kADCDelusionTableMajorRows[] = {
    {134,   1,   1,  15, kMajorQuirk,      1, "Delusional (Major): Character thinks he is an animal and behaves like "
                                              "one."},
    {136,   2,   2,  15, kMajorQuirk,      1, "Delusional (Major): Character thinks he can fly, and often tries."},
    {138,   3,   3,  15, kMajorQuirk,      1, "Delusional (Major): Character thinks he is royalty and acts like it."},
    {140,   4,   4,  15, kMajorQuirk,      1, "Delusional (Major): Character thinks he is in the middle of battle "
                                              "when he is not."},
    {142,   5,   5,  15, kMajorQuirk,      1, "Delusional (Major): Character thinks his party members are monsters."},
    {144,   6,   6,  15, kMajorQuirk,      1, "Delusional (Major): Character thinks scaled monsters are his friends "
                                              "and treats them as such."},
    {146,   7,   7,  15, kMajorQuirk,      1, "Delusional (Major): Character thinks screaming will scare away "
                                              "monsters."},
    {148,   8,   8,  15, kMajorQuirk,      1, "Delusional (Major): Character thinks he is invisible."},
    {150,   9,   9,  15, kMajorQuirk,      1, "Delusional (Major): Character thinks he can walk on water."},
    {152,  10,  10,  15, kMajorQuirk,      1, "Delusional (Major): Character thinks he can tame monsters, and tries."},
};

constexpr QuirkEntry kADCDelusionTableMinorRows[] = {
    {135,   1,   1,  10, kMinorQuirk,      1, "Delusional (Minor): Character thinks animals are people and talks to "
                                              "them."},
    {137,   2,   2,  10, kMinorQuirk,      1, "Delusional (Minor): Character thinks other people can fly and often "
                                              "asks them to."},
    {139,   3,   3,  10, kMinorQuirk,      1, "Delusional (Minor): Character thinks one of the party members is "
                                              "royalty and treats him as such."},
    {141,   4,   4,  10, kMinorQuirk,      1, "Delusional (Minor): Character thinks he is a war hero and brags "
                                              "accomplishments that aren't his."},
    {143,   5,   5,  10, kMinorQuirk,      1, "Delusional (Minor): Character thinks bugs are crawling on himslef and "
                                              "those around him."},
    {145,   6,   6,  10, kMinorQuirk,      1, "Delusional (Minor): Character talks to an imaginary friend."},
    {147,   7,   7,  10, kMinorQuirk,      1, "Delusional (Minor): Character thinks a monster is following him."},
    // Kept slip: the text is longer than its field of 100 characters. It is cut there, and the byte that follows is the
    // BP of the row (10, a line end), which nothing that is shown or printed carries on into.
    {149,   8,   8,  10, kMinorQuirk,      1, "Delusional (Minor): Character thinks his eyes are tricking him so he "
                                              "is constantly asking others wha\n"},
    {151,   9,   9,  10, kMinorQuirk,      1, "Delusional (Minor): Character thinks water is poisonous."},
    {153,  10,  10,  10, kMinorQuirk,      1, "Delusional (Minor): Character thinks he has a tame monster for a pet."},
};

constexpr QuirkEntry kADCClassEnmityTableRows[] = {
    {154,   1,   1,  13, kMajorQuirk,      1, "Enmity Toward [Barbarian]"},
    {155,   2,   2,  13, kMajorQuirk,      1, "Enmity Toward [Bard]"},
    {156,   3,   3,  13, kMajorQuirk,      1, "Enmity Toward [Cleric]"},
    {157,   4,   4,  13, kMajorQuirk,      1, "Enmity Toward [Druid]"},
    {158,   5,   5,  13, kMajorQuirk,      1, "Enmity Toward [Fighter]"},
    {159,   6,   6,  13, kMajorQuirk,      1, "Enmity Toward [Quellmarch]"},
    {160,   7,   7,  13, kMajorQuirk,      1, "Enmity Toward [Cavalier]"},
    {161,   8,   8,  13, kMajorQuirk,      1, "Enmity Toward [Paladin]"},
    {162,   9,   9,  13, kMajorQuirk,      1, "Enmity Toward [Ranger]"},
    {163,  10,  10,  13, kMajorQuirk,      1, "Enmity Toward [Magic User]"},
    {164,  11,  11,  13, kMajorQuirk,      1, "Enmity Toward [BattleMage]"},
    {165,  12,  12,  13, kMajorQuirk,      1, "Enmity Toward [Dark Knight]"},
    {166,  13,  13,  13, kMajorQuirk,      1, "Enmity Toward [Illusionist]"},
    {167,  14,  14,  13, kMajorQuirk,      1, "Enmity Toward [Thief]"},
    {168,  15,  15,  13, kMajorQuirk,      1, "Enmity Toward [Assassin]"},
    {169,  16,  16,  13, kMajorQuirk,      1, "Enmity Toward [Monk]"},
    {170,  17,  17,  13, kMajorQuirk,      1, "Enmity Toward [Berserker]"},
    {171,  18,  18,  13, kMajorQuirk,      1, "Enmity Toward [Knight Errant]"},
    {172,  19,  19,  13, kMajorQuirk,      1, "Enmity Toward [Blood Mage]"},
    // Never reached: the Barbarian comes first at 1. Kept.
    {173,   1,   1,  13, kRollAgain,       1, "Roll twice, ignoring this result."},
};

constexpr QuirkEntry kADCRacialEnmityTableRows[] = {
    {174,   1,   1,  13, kMajorQuirk,      1, "Enmity Toward [Dwarf]"},
    {175,   2,   2,  13, kMajorQuirk,      1, "Enmity Toward [Elf]"},
    {176,   3,   3,  13, kMajorQuirk,      1, "Enmity Toward [Gnome]"},
    {177,   4,   4,  13, kMajorQuirk,      1, "Enmity Toward [Gnomeling]"},
    {178,   5,   5,  13, kMajorQuirk,      1, "Enmity Toward [Half-elf]"},
    {179,   6,   6,  13, kMajorQuirk,      1, "Enmity Toward [Halfling]"},
    {180,   7,   7,  13, kMajorQuirk,      1, "Enmity Toward [Half-orc]"},
    {181,   8,   8,  13, kMajorQuirk,      1, "Enmity Toward [Half-ogre]"},
    {182,   9,   9,  13, kMajorQuirk,      1, "Enmity Toward [Pixie Fairy]"},
    {183,  10,  10,  13, kMajorQuirk,      1, "Enmity Toward [Human]"},
};

constexpr QuirkEntry kADCObsessionORCompulsionRows[] = {
    {184,   1,   1,   0, kSubTable,        1, "Obsession    ", "ADC Obsession"},
    {470,   2,   2,   0, kSubTable,        1, "Compulsion    ", "ADC Compulsion"},
};

constexpr QuirkEntry kADCObsessionRows[] = {
    {185,   1,   1,  10, kMinorQuirk,      1, "Obsessed with members of opposite sex."},
    {186,   2,   2,  10, kMinorQuirk,      1, "Obsessed with numbers."},
    {187,   3,   3,  10, kMinorQuirk,      1, "Obsessed with clothing."},
    {188,   4,   4,  10, kMinorQuirk,      1, "Obsessed with gold."},
    {189,   5,   5,  10, kMinorQuirk,      1, "Obsessed with horses."},
    {190,   6,   6,  10, kMinorQuirk,      1, "Obsessed with weapons."},
    {191,   7,   7,  10, kMinorQuirk,      1, "Obsessed with armor."},
    {192,   8,   8,  10, kMinorQuirk,      1, "Obsessed with magic."},
    {193,   9,   9,  10, kMinorQuirk,      1, "Obsessed with cleanliness."},
    {194,  10,  10,  10, kMinorQuirk,      1, "Obsessed with body image."},
    {195,  11,  11,  10, kMinorQuirk,      1, "Obsessed with hair."},
    {196,  12,  12,  10, kMinorQuirk,      1, "Obsessed with the sun."},
    {197,  13,  13,  10, kMinorQuirk,      1, "Obsessed with bugs."},
    {198,  14,  14,  10, kMinorQuirk,      1, "Obsessed with food."},
    {199,  15,  15,  10, kMinorQuirk,      1, "Obsessed with sounds."},
    {200,  16,  16,  10, kMinorQuirk,      1, "Obsessed with books or scrolls."},
    {201,  17,  17,  10, kMinorQuirk,      1, "Obsessed with jewels."},
    {202,  18,  18,  10, kMinorQuirk,      1, "Obsessed with rocks."},
    {203,  19,  19,  10, kMinorQuirk,      1, "Obsessed with smells."},
    {204,  20,  20,   0, kRollAgain,       1, "Roll again."},
};

constexpr QuirkEntry kADCCompulsionRows[] = {
    {205,   1,   1,  10, kMinorQuirk,      1, "Compulsion to kiss members of opposite sex."},
    {206,   2,   2,  10, kMinorQuirk,      1, "Compulsion to count everything."},
    {207,   3,   3,  10, kMinorQuirk,      1, "Compulsion to buy clothing."},
    {208,   4,   4,  10, kMinorQuirk,      1, "Compulsion to gather as much gold as possible."},
    {209,   5,   5,  10, kMinorQuirk,      1, "Compulsion to srub and brush horses."},
    {210,   6,   6,  10, kMinorQuirk,      1, "Compulsion to own as many weapons as possible."},
    {211,   7,   7,  10, kMinorQuirk,      1, "Compulsion to own as much armor as possible."},
    {212,   8,   8,  10, kMinorQuirk,      1, "Compulsion to accumulate as many magical items as possible."},
    {213,   9,   9,  10, kMinorQuirk,      1, "Compulsion to clean."},
    {214,  10,  10,  10, kMinorQuirk,      1, "Compulsion to exercise."},
    {215,  11,  11,  10, kMinorQuirk,      1, "Compulsion to comb hair."},
    {216,  12,  12,  10, kMinorQuirk,      1, "Compulsion to star at the sun."},
    {217,  13,  13,  10, kMinorQuirk,      1, "Compulsion to eat bugs."},
    {218,  14,  14,  10, kMinorQuirk,      1, "Compulsion to cook/eat."},
    // "sounds.sounds" is kept.
    {219,  15,  15,  10, kMinorQuirk,      1, "Compulsion to discover source of unusual or unknown sounds.sounds"},
    {220,  16,  16,  10, kMinorQuirk,      1, "Compulsion to accumulate as many books or scrolls as possible."},
    {221,  17,  17,  10, kMinorQuirk,      1, "Compulsion to accumulate as many jewels as possible."},
    {222,  18,  18,  10, kMinorQuirk,      1, "Compulsion to collect rocks."},
    {223,  19,  19,  10, kMinorQuirk,      1, "Compulsion to discover source of any odd odors."},
    {224,  20,  20,   0, kRollAgain,       1, "Roll again"},
};

constexpr QuirkEntry kADCClassAversionTableRows[] = {
    {225,   1,   1,  11, kMajorQuirk,      1, "Psychotic Aversion to [Barbarian]"},
    {226,   2,   2,  11, kMajorQuirk,      1, "Psychotic Aversion to [Bard]"},
    {227,   3,   3,  11, kMajorQuirk,      1, "Psychotic Aversion to [Cleric]"},
    {228,   4,   4,  11, kMajorQuirk,      1, "Psychotic Aversion to [Druid]"},
    {229,   5,   5,  11, kMajorQuirk,      1, "Psychotic Aversion to [Fighter]"},
    {230,   6,   6,  11, kMajorQuirk,      1, "Psychotic Aversion to [Quellmarch]"},
    {231,   7,   7,  11, kMajorQuirk,      1, "Psychotic Aversion to [Cavalier]"},
    {232,   8,   8,  11, kMajorQuirk,      1, "Psychotic Aversion to [Paladin]"},
    {233,   9,   9,  11, kMajorQuirk,      1, "Psychotic Aversion to [Ranger]"},
    {234,  10,  10,  11, kMajorQuirk,      1, "Psychotic Aversion to [Magic User]"},
    {235,  11,  11,  11, kMajorQuirk,      1, "Psychotic Aversion to [BattleMage]"},
    {236,  12,  12,  11, kMajorQuirk,      1, "Psychotic Aversion to [Dark Knight]"},
    {237,  13,  13,  11, kMajorQuirk,      1, "Psychotic Aversion to [Illusionist]"},
    {238,  14,  14,  11, kMajorQuirk,      1, "Psychotic Aversion to [Thief]"},
    {239,  15,  15,  11, kMajorQuirk,      1, "Psychotic Aversion to [Assassin]"},
    {240,  16,  16,  11, kMajorQuirk,      1, "Psychotic Aversion to [Monk]"},
    {241,  17,  17,  11, kMajorQuirk,      1, "Psychotic Aversion to [Berserker]"},
    {242,  18,  18,  11, kMajorQuirk,      1, "Psychotic Aversion to [Knight Errant]"},
    {243,  19,  19,  11, kMajorQuirk,      1, "Psychotic Aversion to [Blood Mage]"},
    // Never reached: the Barbarian comes first at 1. Kept.
    {244,   1,   1,  11, kRollAgain,       1, "Roll twice, ignoring this result."},
};

constexpr QuirkEntry kADCRacialAversionTableRows[] = {
    {245,   1,   1,  11, kMajorQuirk,      1, "Psychotic Aversion to [Dwarf]"},
    {246,   2,   2,  11, kMajorQuirk,      1, "Psychotic Aversion to [Elf]"},
    {247,   3,   3,  11, kMajorQuirk,      1, "Psychotic Aversion to [Gnome]"},
    // Kept slip: the low end meant for row 249 stands here, so this row can't be rolled, and row 249 is minor and runs
    // from 0. The table's die reads that 0 as 1.
    {248,   5,   4,  11, kMajorQuirk,      1, "Psychotic Aversion to [Gnomeling]"},
    {249,   0,   5,  11, kMinorQuirk,      1, "Psychotic Aversion to [Half-elf]"},
    {250,   6,   6,  11, kMajorQuirk,      1, "Psychotic Aversion to [Halfling]"},
    {251,   7,   7,  11, kMajorQuirk,      1, "Psychotic Aversion to [Half-orc]"},
    {252,   8,   8,  11, kMajorQuirk,      1, "Psychotic Aversion to [Half-ogre]"},
    {253,   9,   9,  11, kMajorQuirk,      1, "Psychotic Aversion to [Pixie Fairy]"},
    {254,  10,  10,  11, kMajorQuirk,      1, "Psychotic Aversion to [Human]"},
};

constexpr QuirkEntry kADCSuperstitionsTableRows[] = {
    {255,   1,   1,  10, kMinorQuirk,      1, "Superstitious: Believes a certain color is unlucky."},
    {256,   2,   2,  10, kMinorQuirk,      1, "Superstitious: Believes a certain color is lucky."},
    {257,   3,   3,  10, kMinorQuirk,      1, "Superstitious: Thinks the Erdra is flat."},
    {258,   4,   4,  10, kMinorQuirk,      1, "Superstitious: Thinks being near dead things is unlucky."},
    {259,   5,   5,  10, kMinorQuirk,      1, "Superstitious: Believes haggling or price-shopping is bad luck."},
    {260,   6,   6,  10, kMinorQuirk,      1, "Superstitious: Has a lucky number."},
    {261,   7,   7,  10, kMinorQuirk,      1, "Superstitious: Believes he's lucky and anyone touching him will steal "
                                              "his luck."},
    {262,   8,   8,  10, kMinorQuirk,      1, "Superstitious: Believes a certain common animal is unlucky."},
    {263,   9,   9,  10, kMinorQuirk,      1, "Superstitious: Believes going left is unlucky."},
    {264,  10,  10,  10, kMinorQuirk,      1, "Superstitious: Doesn't believe in ghosts or undead of any type."},
    {265,  11,  11,  10, kMinorQuirk,      1, "Superstitious: Believes pixie fairies are lucky."},
    {266,  12,  12,  10, kMinorQuirk,      1, "Superstitious: Believes harm will befall him, his friends or his "
                                              "relatives if he steps on a crack."},
    {267,  13,  13,  10, kMinorQuirk,      1, "Superstitious: He has an unlucky number."},
    {268,  14,  14,  10, kMinorQuirk,      1, "Superstitious: Believes he must make a donation to any cleric or "
                                              "church he passes."},
    {269,  15,  15,  10, kMinorQuirk,      1, "Superstitious: Believes those in authority were chosen by the gawds to "
                                              "be in their position."},
    {270,  16,  16,  10, kMinorQuirk,      1, "Superstitious: Believes every time he hears a bell tinkling an angel "
                                              "gets his wings."},
    {271,  17,  17,  10, kMinorQuirk,      1, "Superstitious: Believes adventuring with members of the opposite sex "
                                              "is bad luck."},
    {272,  18,  18,  10, kMinorQuirk,      1, "Superstitious: Has a magic charm that he believes protects him."},
    {273,  19,  19,  10, kMinorQuirk,      1, "Superstitious: Believes it's bad luck not to tip a beggar."},
    // Kept slip: no table follows, so this result owes nothing.
    {274,  20,  20,  10, kSubTable,        1, "Has two superstitions. Roll again and ignore this result."},
};

constexpr QuirkEntry kADCExtraPersonalityTableRows[] = {
    {275,   1,   4,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Young member of the opposite sex.",
                                              {}, 0, 5},
    {276,   5,   8,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Elderly member of the opposite sex.",
                                              {}, 0, 5},
    {277,   9,  12,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Young adult or middle-aged member of "
                                              "the opposite sex.", {}, 0, 5},
    {278,  13,  16,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Young member of the same sex.", {}, 0, 5},
    {279,  17,  20,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Elderly member of the same sex.",
                                              {}, 0, 5},
    {280,  21,  24,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Young adult or middle-aged member of "
                                              "the same sex.", {}, 0, 5},
    {281,  25,  28,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Extremely violent person.", {}, 0, 5},
    {282,  29,  32,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Extremely cowardly person.", {}, 0, 5},
    {283,  33,  36,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Extremely nasty person.", {}, 0, 5},
    {284,  37,  40,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Noble.", {}, 0, 5},
    {285,  41,  44,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Slave.", {}, 0, 5},
    {286,  45,  48,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Beggar.", {}, 0, 5},
    {287,  49,  52,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Royalty.", {}, 0, 5},
    {288,  53,  56,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Dwarf.", {}, 0, 5},
    {289,  57,  60,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Pixie Fairy.", {}, 0, 5},
    {290,  61,  64,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Gnome Titan.", {}, 0, 5},
    {291,  65,  68,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Elf.", {}, 0, 5},
    {292,  69,  72,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Assassin.", {}, 0, 5},
    {293,  73,  76,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Thief.", {}, 0, 5},
    {294,  77,  80,  11, kMajorQuirk,   kAny, "Multiple Personality Disorder: Extremely pious person.", {}, 0, 5},
    {295,  81, 100, -11, kSubTable,     kAny, "Roll twice more for extra Personalities.",
                                              "ADC Extra Personality Table", 2},
};

constexpr QuirkEntry kADCAllergenTableRows[] = {
    {296,   1,   2,  11, kMajorQuirk,      1, "Acute Allergies [food]"},
    {297,   3,   4,  11, kMajorQuirk,      1, "Acute Allergies [cloth]"},
    {298,   5,   6,  11, kMajorQuirk,      1, "Acute Allergies [wood]"},
    {299,   7,   9,  11, kMajorQuirk,      1, "Acute Allergies [cats]"},
    {300,  10,  10,  11, kMajorQuirk,      1, "Acute Allergies [other animals (all)]"},
    {301,  11,  12,  11, kMajorQuirk,      1, "Acute Allergies [gold]"},
    {302,  13,  14,  11, kMajorQuirk,      1, "Acute Allergies [other metals]"},
    {303,  15,  16,  11, kMajorQuirk,      1, "Acute Allergies [pollen]"},
    {304,  17,  18,  11, kMajorQuirk,      1, "Acute Allergies [dust]"},
    {305,  19,  20, -11, kSubTable,       10, "Character must roll an additional allergy, roll twice.",
                                              "ADC Allergen Table", 2},
};

constexpr QuirkEntry kAdventurersCodex6ARows[] = {
    {471,   1,  14,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6B: Flaws, Minor (Physical)", kTable6B},
    {472,  15,  28,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6C: Flaws, Minor (Physical)", kTable6C},
    {473,  29,  42,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6D: Flaws, Minor (Physical)", kTable6D},
    {474,  43,  50,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6E: Flaws, Major (Physical)", kTable6E},
    {475,  51,  66,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6F: Quirks, Minor (Mental)", kTable6F},
    {476,  67,  76,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6G: Quirks, Major (Mental)", kTable6G},
    {477,  77,  93,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6H: Quirks, Minor (Personality)",
                                              kTable6H},
    {478,  94, 100,   0, kSubTable,     kAny, "Roll on Table Adventurer's Codex 6I: Quirks, Major (Personality)",
                                              kTable6I},
};

// Table, source, book (its rule switch), rows.
constexpr QuirkRowGroup kGroups[] = {
    {kTable6B,                      "ADC",  0, kAdventurersCodex6BRows},
    {kTable6C,                      "ADC",  0, kAdventurersCodex6CRows},
    {kTable6D,                      "ADC",  0, kAdventurersCodex6DRows},
    {kTable6E,                      "ADC",  0, kAdventurersCodex6ERows},
    {kTable6F,                      "ADC",  0, kAdventurersCodex6FRows},
    {kTable6G,                      "ADC",  0, kAdventurersCodex6GRows},
    {kTable6H,                      "ADC",  0, kAdventurersCodex6HRows},
    {kTable6I,                      "ADC",  0, kAdventurersCodex6IRows},
    {"ADC Animal Antipathy Table",  "ADC",  0, kADCAnimalAntipathyTableRows},
    {"ADC Maimed Table",            "ADC",  0, kADCMaimedTableRows},
    {"ADC Maimed Subtable",         "ADC",  0, kADCMaimedSubtableRows},
    {"ADC Seizure Table",           "ADC",  0, kADCSeizureTableRows},
    {"ADC Animal Phobia Table",     "ADC",  0, kADCAnimalPhobiaTableRows},
    {"ADC Delusion Table Major",    "ADC",  0, kADCDelusionTableMajorRows},
    {"ADC Delusion Table Minor",    "ADC",  0, kADCDelusionTableMinorRows},
    {"ADC Class Enmity Table",      "ADC",  0, kADCClassEnmityTableRows},
    {"ADC Racial Enmity Table",     "ADC",  0, kADCRacialEnmityTableRows},
    {"ADC Obsession OR Compulsion", "ADC",  0, kADCObsessionORCompulsionRows},
    {"ADC Obsession",               "ADC",  0, kADCObsessionRows},
    {"ADC Compulsion",              "ADC",  0, kADCCompulsionRows},
    {"ADC Class Aversion Table",    "ADC",  0, kADCClassAversionTableRows},
    {"ADC Racial Aversion Table",   "ADC",  0, kADCRacialAversionTableRows},
    {"ADC Superstitions Table",     "ADC",  0, kADCSuperstitionsTableRows},
    {"ADC Extra Personality Table", "ADC",  0, kADCExtraPersonalityTableRows},
    {"ADC Allergen Table",          "ADC",  0, kADCAllergenTableRows},
    {kCodex6A,                      "ADC",  0, kAdventurersCodex6ARows},
};
// clang-format on

constexpr std::size_t CountRows() {
  std::size_t count = 0;
  for (const QuirkRowGroup& group : kGroups) count += group.Rows.size();
  return count;
}
static_assert(CountRows() == 314);

}  // namespace

std::span<const QuirkRowGroup> CodexQuirkRows() {
  return kGroups;
}

}  // namespace veld
