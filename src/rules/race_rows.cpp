#include "rules/race_rows.h"

// The races as the game book prints them. All of a race stands in its one record; a part left out does not build.

namespace veld {

// clang-format off

namespace {

// What several races share. The notes are printed as they stand, misspellings included.

constexpr RaceNotes kElfNotes = {
  .Bonuses = {
      "Infravision. Elves can see 60 feet in the dark.",
      "90% resistance to Sleep and charm-related spells."},
  .Talents = {
      "+1 bonus on to-hit rolls when using a bow of any sort (except crossbow) or when using a short or longsword.",
      "Move Silently. Opponents suffer a -4 penalty to their surprise die rolls. If the elf must open a door or "
      "screen to attack, this penalty is reduced to -2.",
      "Detect secret doors on a one-in-six chance (roll a 1 on 1d6)."},
  .Downside = {
      "Except for some attribute penalties and class restrictions, none."}};

constexpr RaceNotes kHalflingNotes = {
  .Bonuses = {
      "Possible infravision: 15% of halflings have normal infravision (60-foot range). Failing that, 25% have limited "
      "infravision (30-foot range). Otherwise, halflings have normal vision",
      "Saving throw bonus on saves vs. magic",
      "Saving throw bonus on saves vs. poison.",
      "Surprise bonus. Opponents suffer a -4 penalty to their surprise die rolls. If the halfling must open a door or "
      "screen to attack, this penalty is reduced to -2"},
  .Talents = {
      "+1 bonus to attack rolls when using thrown weapons and slings.",
      "If stout or partially stout blood, character can detect if a passage is an up or down grade with 75% accuracy.",
      "If stout or partially stout blood, character can determine direction half the time."},
  .Downside = {
      "Halflings are highly valued in the slave market"}};

}  // namespace

// The movement of 0 in the rows of the drow, the minimum of -25 of the half-ogres' comeliness and the minimum of 1 of
// the pixie fairies' strength are meant so.
constexpr std::array<RaceEntry, kRaceKinds> kRaces = {{
{
  .Name = "Dwarf",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   1, 6, "8-18 3-17 12-19 3-18 3-18 3-16 3-15", "0 0 1 0 0 -1 -1", 10, 5, 15, "40+5d6", "43+1d10", "130+4d10"},
    {"Female", 1, 6, "8-17 4-18 12-19 3-18 3-18 3-15 2-14", "0 0 1 0 0 -1 -1", 10, 5, 15, "40+5d6", "41+1d10", "105+4d10"},
  }},
  .Languages = {"Common", "Dwarf", "Gnome", "Gnomeling", "Goblin", "Kobold", "Orc"},
  .MaleClassLimits = {
    "1:10 3:15 5:16 8:15 13:99 16:99 17:12 54-57:14 60:9 61:14 62:8 64:12 67-68:10 70:10 73-78:10 80-81:10 83-84:10 "
    "86-90:10 92-93:10 95-98:10 100-103:10 106-114:10 116:5 117:8 118:12 119:3 121:8 196-199:1"},
  .FemaleClassLimits = {
    "1:10 3:15 5:16 8:15 13:99 16:99 17:12 54-57:14 60:9 61:14 62:8 64:12 67-68:10 70-71:10 73-78:10 80-81:10 "
    "83-84:10 86-93:10 95-98:10 100-103:10 106-114:10 116:5 117:8 118:12 119:3 121:8 196-199:1"},
  .TalentsBought = {
    "2 4 7-8 10 12-13 15-17 20 23-25 27-28 30 32 40-41 44 46 49-50 53 56 58-60 65-66 70 73 75 82 84 90 94-97 99-103 "
    "107 111-112 115-122 125-133 137-143 146-147 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"3 5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"0 10 10 15 -10 -5 0 5 0"},
  .PrintedThiefAdjustments = {"0 10 10 15 -10 -5 0 5 0"},
  .TakesAfter = {},
  .Traits = {RaceTrait::SeldomLeftHanded, RaceTrait::TalentedBattleMage},
  .Notes = {
    .Bonuses = {
        "Infravision. Dwarves can see 60 feet in the dark.",
        "Saving Throw bonus on saves vs. magic.",
        "Saving Throw bonus save vs. poison.",
        "+1 on to-hits vs. Orcs, half-orcs, Goblins, and Hobgoblins.",
        "Ogres, Trolls, Ogre Magi, giants, and Titans suffer a -4 to hit dwarves."},
    .Talents = {
        "Detect Grade or Slope in passage 1-5 on 1d6",
        "Detect new tunnel/passage construction 1-5 on 1d6",
        "Detect Sliding/shifting walls or rooms 1-4 on 1d6",
        "Detect stonework traps, pits and dead falls 1-3 on 1d6",
        "Determine approximate depth underground 1-3 on 1d6"},
    .Downside = {
        "Dwarves suffer a 20% chance for failure every time they use any magical item except weapons, armor, shields",
        " and (if the characters is a thief) items that duplicate thieving abilities. This penalty does not apply if "
        "the character is a battle mage or cleric using a cleric item."}},
},
{
  .Name = "Elf, Drow",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   2, 0, "3-18 7-19 6-18 8-18 3-18 3-18 5-18", "0 1 -1 0 0 0 -2", 13, 5, 15, "100+5d6", "55+1d10", "90+4d10"},
    {"Female", 2, 0, "3-18 7-19 7-18 8-18 3-18 3-18 5-18", "0 1 -1 0 0 0 -2", 13, 5, 15, "100+5d6", "50+1d10", "70+3d10"},
  }},
  .Languages = {"Common", "Drow", "Drow silent language", "Elf", "Dwarf", "Gnome", "Undercommon", "Kuo-toa",
                "Bugbear", "Orc"},
  .MaleClassLimits = {
    "1-2:13 3:12 5-6:13 8:12 11-14:15 16:12 17:10 22-23:13 26:12 30-31:14 34:13 42:15 52-53:15 59:11 60:13 61-62:11 "
    "65:14 67-70:13 72-78:13 80-81:13 83-98:13 100-104:13 106-107:13 109-115:13 116:10 117:12 118:15 119:12 121:11 "
    "193-196:1"},
  .FemaleClassLimits = {
    "1-2:13 3:12 5-6:13 8:12 11-14:15 16:12 17:10 22-23:13 26:12 30-31:14 34:13 42:15 52-53:15 59:11 60:13 61-62:11 "
    "65:14 67-78:13 80-81:13 83-98:13 100-104:13 106-107:13 109-115:13 116:10 117:12 118:15 119:12 121:11 193-196:1"},
  .TalentsBought = {
    "0 2 7 10-11 14-16 18 21 35 37-38 42-45 48 50 52 57 59-60 62-64 72 75-77 84 89 91-94 97-99 101 107 111-112 "
    "115-122 125-133 137-144 149"},
  .TalentsGranted = {"4"},
  .NamedTalentsBought = {"5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"5 -5 5 0 5 10 5 0 0"},
  .PrintedThiefAdjustments = {"5 -5 5 0 10 10 5 0 0"},
  .TakesAfter = {},
  .Traits = {RaceTrait::BornAmbidextrous, RaceTrait::TakenAfter},
  .Notes = {
    .Bonuses = {
        "Infravision. Drow can see 120 feet in the dark.",
        "90% resistance to Sleep and all charm-related spells.",
        "Spell abilities.",
        "Only surprised on a 1 on 1d10.",
        "Chance of starting with drow boots/cloak.",
        "Chance of starting with drow chainmail.",
        "Base resistance to magic of 50%. increases by 2% for each level of experience.",
        "+2 bonus on saves vs. all forms of magical attack (including devices)."},
    .Talents = {
        "+1 bonus on to-hits when using a crossbow, dart or a short/long sword..",
        "Move Silently. Opponents suffer a -4 penalty to their surprise die rolls. If the elf must open a door or "
        "screen to attack, this penalty is reduced to -2.",
        "Detect secret doors on a one-in-six chance (roll a 1 on 1d6)."},
    .Downside = {
        "Dark elves suffer a -1 penalty on all rolls when exposed to bright sunlight or continual light spells. "
        "Lesser light sources do not bother them.",
        "All other elves hate dark elves, resulting in an initial reaction roll of -2."}},
},
{
  .Name = "Elf, Grey",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   2, 12, "3-18 7-19 6-18 8-18 3-18 3-18 5-18", "0 0 -1 1 0 0 2", 12, -8, 25, "100+5d6", "55+1d10", "90+4d10"},
    {"Female", 2, 12, "3-18 7-19 7-18 8-18 3-18 3-18 5-18", "0 0 -1 1 0 0 2", 12, -8, 25, "100+5d6", "50+1d10", "70+3d10"},
  }},
  .Languages = {"Common", "Elf", "Gnome", "Gnomeling", "Halfling", "Goblin", "Hobgoblin", "Orc", "Gnoll"},
  .MaleClassLimits = {
    "1-2:13 3:12 5-6:13 8:12 11-14:15 16:12 17:10 22-23:13 26:12 30-31:14 34:13 42:15 52-53:14 59:11 60:13 61-62:11 "
    "65:14 67-70:13 72-78:13 80-81:13 83-98:13 100-104:13 106-107:13 109-115:13 116:10 117:12 118:15 119:12 121:11 "
    "193-196:1"},
  .FemaleClassLimits = {
    "1-2:13 3:12 5-6:13 8:12 11-14:15 16:12 17:10 22-23:13 26:12 30-31:14 34:13 42:15 52-53:14 59:11 60:13 61-62:11 "
    "65:14 67-78:13 80-81:13 83-98:13 100-104:13 106-107:13 109-115:13 116:10 117:12 118:15 119:12 121:11 193-196:1"},
  .TalentsBought = {
    "0 2 5 7 10-11 14 16 18 21 35 37-38 42-45 48 52 57 59-60 62-64 72 75-77 84 89 91-94 97-99 101 107 111-112 115-122 "
    "125-133 137-144 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"5 -5 5 0 5 10 5 0 0"},
  .PrintedThiefAdjustments = {"5 -5 5 0 10 10 5 0 0"},
  .TakesAfter = {},
  .Traits = {RaceTrait::BornAmbidextrous, RaceTrait::TakenAfter},
  .Notes = kElfNotes,
},
{
  .Name = "Elf, High",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   2, 12, "3-18 7-19 6-18 8-18 3-18 3-18 5-18", "0 1 -1 0 0 0 2", 12, -5, 20, "100+5d6", "55+1d10", "90+4d10"},
    {"Female", 2, 12, "3-18 7-19 7-18 8-18 3-18 3-18 5-18", "0 1 -1 0 0 0 2", 12, -5, 20, "100+5d6", "50+1d10", "70+3d10"},
  }},
  .Languages = {"Common", "Elf", "Gnome", "Gnomeling", "Halfling", "Goblin", "Hobgoblin", "Orc", "Gnoll"},
  .MaleClassLimits = {
    "1-2:13 3:12 5-6:13 8:12 11-14:15 16:12 17:10 22-23:13 30-31:14 42:15 59:11 60:13 61-62:11 65:14 67-70:13 "
    "72-78:13 80-81:13 83-98:13 100-104:13 106-107:13 109-115:13 116:10 117:12 118:15 119:12 121:11 193-196:1"},
  .FemaleClassLimits = {
    "1-2:13 3:12 5-6:13 8:12 11-14:15 16:12 17:10 22-23:13 30-31:14 42:15 59:11 60:13 61-62:11 65:14 67-78:13 "
    "80-81:13 83-98:13 100-104:13 106-107:13 109-115:13 116:10 117:12 118:15 119:12 121:11 193-196:1"},
  .TalentsBought = {
    "0 2 5 7 10-11 14 16 18 21 35 37-38 42-45 48 52 57 59-60 62-64 72 75-77 84 89 91-94 97-99 101 107 111-112 115-122 "
    "125-133 137-144 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"5 -5 5 0 5 10 5 0 0"},
  .PrintedThiefAdjustments = {"5 -5 5 0 10 10 5 0 0"},
  .TakesAfter = {},
  .Traits = {RaceTrait::BornAmbidextrous, RaceTrait::TakenAfter},
  .Notes = kElfNotes,
},
{
  .Name = "Elf, Wood",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   2, 12, "3-18 7-19 6-18 8-18 3-18 3-18 5-18", "1 1 -1 -1 0 0 1", 12, -5, 10, "100+5d6", "55+1d10", "90+4d10"},
    {"Female", 2, 12, "3-18 7-19 7-18 8-18 3-18 3-18 5-18", "1 1 -1 -1 0 0 1", 12, -5, 10, "100+5d6", "50+1d10", "70+3d10"},
  }},
  .Languages = {"Common", "Elf", "Gnome", "Gnomeling", "Halfling", "Goblin", "Hobgoblin", "Orc", "Gnoll"},
  .MaleClassLimits = {
    "1-2:13 3-4:12 5-6:13 8:12 11-14:15 16:12 17:10 22-23:13 30-31:14 42:15 59:11 60:13 61-62:11 65:14 67-70:13 "
    "72-78:13 80-81:13 83-96:13 98:13 100-104:13 106-115:13 116:10 117:12 118:15 119:12 121:11 193-196:1"},
  .FemaleClassLimits = {
    "1-2:13 3-4:12 5-6:13 8:12 11-14:15 16:12 17:10 22-23:13 30-31:14 42:15 59:11 60:13 61-62:11 65:14 67-78:13 "
    "80-81:13 83-96:13 98:13 100-104:13 106-107:13 109-115:13 116:10 117:12 118:15 119:12 121:11 193-196:1"},
  .TalentsBought = {
    "0 2 5 7 10-11 14 16 18 21 35 37-38 42-45 48 52 57 59-60 62-64 72 75-77 84 89 91-94 97-99 101 107 111-112 115-122 "
    "125-133 137-144 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"5 -5 5 0 5 10 5 0 0"},
  .PrintedThiefAdjustments = {"0 0 0 0 0 0 0 0 0"},
  .TakesAfter = {},
  .Traits = {RaceTrait::BornAmbidextrous, RaceTrait::TakenAfter},
  .Notes = kElfNotes,
},
{
  .Name = "Elf, Grel",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   2, 12, "3-18 7-19 6-18 8-18 3-18 3-18 5-18", "0 1 -1 0 0 0 -1", 13, 10, -20, "100+5d6", "55+1d10", "90+4d10"},
    {"Female", 2, 12, "3-18 7-19 7-18 8-18 3-18 3-18 5-18", "0 1 -1 0 0 0 -1", 13, 10, -20, "100+5d6", "50+1d10", "70+3d10"},
  }},
  .Languages = {"Common", "Grel", "Elf", "Dwarf", "Orc", "Ogre", "Glersee", "Gnomish", "Brownie", "Pixie faerie"},
  .MaleClassLimits = {
    "1-2:13 3-4:12 5-6:13 8:12 11-14:15 16:12 17:10 22-23:13 30-31:14 42:15 58-59:11 60:13 61-62:11 65:14 67-70:13 "
    "72-78:13 80-81:13 83-98:13 100-104:13 106-107:13 109-115:13 116:10 117:12 118:15 119:12 121:11 179:1 193-196:1"},
  .FemaleClassLimits = {
    "1-2:13 3-4:12 5-6:13 8:12 11-14:15 16:12 17:10 22-23:13 30-31:14 42:15 58-59:11 60:13 61-62:11 65:14 67-78:13 "
    "80-81:13 83-98:13 100-104:13 106-107:13 109-115:13 116:10 117:12 118:15 119:12 121:11 179:1 193-196:1"},
  .TalentsBought = {
    "0 2 5 7 10-11 14 16 18 21 35 37-38 42-45 48 52 57 59-60 62-64 71-72 75-77 84 89 91-94 97-99 101 107 111-112 "
    "115-122 125-133 137-144 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"5 -5 5 0 5 10 5 0 0"},
  .PrintedThiefAdjustments = {"5 -5 5 0 10 10 5 0 0"},
  .TakesAfter = {},
  .Traits = {RaceTrait::BornAmbidextrous, RaceTrait::TakenAfter},
  .Notes = {
    .Bonuses = {
        "Infravision. Grel can see 60 feet in the dark.",
        "90% resistance to Sleep and all charm-related spells.",
        "Spell abilities.",
        "Only surprised on a 1 on 1d10."},
    .Talents = {
        "War Cry: Enemies must save vs. fear at -5 or lose their first attack.",
        "+1 bonus on to-hits when using a spear or bow.",
        "Move Silently. Opponents suffer a -4 penalty to their surprise die rolls. If the elf must open a door or "
        "screen to attack, this penalty is reduced to -2.",
        "Detect secret doors on a one-in-six chance (roll a 1 on 1d6).",
        "Tracking.",
        "Move through undergrowth as if in open terrain."},
    .Downside = {
        "The Grel must suffer the jealousy of the other races"}},
},
{
  .Name = "Gnome Titan",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   1, 6, "6-18 3-18 8-18 7-18 3-18 3-18 3-17", "2 0 0 1 -1 0 -1", 15, 5, 0, "60+3d12", "38+1d6", "72+5d4"},
    {"Female", 1, 6, "6-18 3-18 8-18 8-18 3-18 3-18 3-17", "2 0 0 1 -1 0 -1", 15, 5, 0, "60+3d12", "36+1d6", "68+5d4"},
  }},
  .Languages = {"Common", "Dwarf", "Gnome", "Gnomeling", "Halfling", "Goblin", "Kobold", "Burrowing animals"},
  .MaleClassLimits = {
    "1:9 3:11 5:12 8:11 13-14:10 15:15 16:13 17:8 24:15 32:16 60:11 61-62:10 64:99 65:13 67-68:9 99:9 116:8 117:10 "
    "118:15 119:5 121:10 185:1 196-198:1"},
  .FemaleClassLimits = {kAsTheMale},
  .TalentsBought = {
    "2 4 6-7 10 12-13 16 18-19 22 29 35-36 39 50-51 54 58-61 65 75 82 93-96 99 101-102 107 111-112 115-122 125-133 "
    "135 137-144 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"3 5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"0 5 10 10 5 5 10 -15 0"},
  .PrintedThiefAdjustments = {"0 5 10 10 5 5 10 -15 0"},
  .TakesAfter = {},
  .Traits = {RaceTrait::SeldomLeftHanded, RaceTrait::TakenAfter, RaceTrait::HalvedHitPoints, RaceTrait::ShrewdBattleMage},
  .Notes = {
    .Bonuses = {
        "Infravision. Gnome titans can see 60 feet in the dark.",
        "Saving Throw bonus on saves vs. magic.",
        "+1 on to-hits vs. Kobolds or Goblins.",
        "Gnolls, Bugbears, Ogres, Trolls, Ogre Magi, giants, and Titans suffer a -4 to hit gnomish characters.",
        "Gnome titans attack at one level higher than their current experience level.",
        "Gnome titans only pay half Building Point/training costs for any skill of a military or combat nature.",
        "Gnome titans fighting along side with other gnome titans receive a +1 to their to-hit and damage rolls "
        "because of the incredible boost in morale they receive",
        "Gnome titans fighting as a group cannot be broken or routed"},
    .Talents = {
        "Detect Grade or Slope in passage 1-5 on 1d6",
        "Detect unsafe walls, ceilings and floors 1-7 on 1d10.",
        "",
        "Determine approximate depth underground 1-4 on 1d6",
        "Determine approximate direction underground 1-3 on 1d6",
        "Groin Stomp Attack"},
    .Downside = {
        "A gnome suffer a 20% chance for failure every time they use any magical item except weapons, armor, shields, "
        "illusionist items, and (if the characters is a thief) items that duplicate thieving abilities.",
        "Gnome titans only earn 50% of any experience points awarded.",
        "Gnome titans must choose the gnomish god of war, Pangrus, as their patron god, and pay a tithe of 20% of all "
        "their income.",
        "Gnome titans only receive 50% of any hit points (rounded down) rolled on the hit dice for their class/level."}},
},
{
  .Name = "Gnomeling",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   1, 4, "6-17 5-18 9-18 6-18 3-17 3-18 3-17", "-1 1 -1 1 -1 0 0", 10, -5, 15, "40+2d12", "32+1d6", "46+2d4"},
    {"Female", 1, 4, "6-17 5-18 9-18 6-18 3-17 3-18 3-17", "-1 1 -1 1 -1 0 0", 10, -5, 15, "40+2d12", "33+1d6", "44+2d4"},
  }},
  .Languages = {"Common", "Dwarf", "Gnome", "Gnomeling", "Halfling", "Goblin", "Kobold"},
  .MaleClassLimits = {
    "1:7 2:6 3:9 5:9 8:9 15-17:99 24:99 32:99 47:99 60:10 61-62:8 67-68:7 70:7 72-78:7 80-81:7 83-90:7 92-93:7 "
    "95-96:7 98:7 100-103:7 106-114:7 185-188:1 196:1 198:1"},
  .FemaleClassLimits = {
    "1:7 2:6 3:9 5:9 8:9 15-17:99 24:99 32:99 47:99 60:10 61-62:8 67-68:7 70-71:9 73-78:9 80-81:9 83-90:9 92-93:9 "
    "95-96:9 98-104:9 106-114:9 116:8 117-118:15 119:5 121:8 185-188:1 196:1 198:1"},
  .TalentsBought = {
    "2 4 6-7 10 16 18-19 22 29 31 35 39 50 54 60-61 65 75 93 99 101 107 111-112 115-122 125-133 135 137-144 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"0 5 5 5 5 10 5 -15 0"},
  .PrintedThiefAdjustments = {"0 5 5 5 5 10 5 -15 0"},
  .TakesAfter = {"Gnome", "Gnome Titan", "Halfling, Hairfoot", "Halfling, Stout", "Halfling, Tallfellow",
                 "Halfling, Thug"},
  .Traits = {},
  .Notes = {
    .Bonuses = {
        "Infravision. Gnomelings can see 30 feet in the dark.",
        "Saving Throw bonus on saves vs. magic.",
        "+1 on to-hits vs. Kobolds or Goblins.",
        "Gnolls, Bugbears, Ogres, Trolls, Ogre Magi, giants, and Titans suffer a -4 to hit gnomish characters.",
        "Have special stealth abilities. Are able to hide and move about unnoticed. There is only a 5% chance of "
        "noticing a gnomeling who is hiding, and the person noticing must concentrate for one round."},
    .Talents = {
        "Detect Grade or Slope in passage 1-5 on 1d6",
        "Detect unsafe walls, ceilings and floors 1-7 on 1d10.",
        "",
        "Determine approximate depth underground 1-4 on 1d6",
        "Determine approximate direction underground 1-3 on 1d6",
        "+1 bonus on to-hits when using a dagger"},
    .Downside = {
        "A gnomlings suffer a 10% chance for failure every time they use any magical item except weapons, armor, "
        "shields, illusionist items, and (if the characters is a thief) items that duplicate thieving abilities."}},
},
{
  .Name = "Gnome",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   1, 6, "6-18 3-18 8-18 7-18 3-18 3-18 3-17", "0 0 0 1 -1 0 -1", 10, -5, 15, "60+3d12", "38+1d6", "72+5d4"},
    {"Female", 1, 6, "6-18 3-18 8-18 8-18 3-18 3-18 3-17", "0 0 0 1 -1 0 -1", 10, -5, 15, "60+3d12", "36+1d6", "68+5d4"},
  }},
  .Languages = {"Common", "Dwarf", "Gnome", "Gnomeling", "Halfling", "Goblin", "Kobold", "Burrowing animals"},
  .MaleClassLimits = {
    "1:9 3:11 8:11 15:15 16:13 17:8 24:15 32:16 46-47:17 54-57:11 60:11 61-62:10 65:13 67-68:9 70:9 72-78:9 80-81:9 "
    "83-84:9 86-90:9 92-93:9 95-96:9 98-103:9 106-115:9 116:8 117:10 118:15 119:5 121:10 185-188:1 196:1 198:1"},
  .FemaleClassLimits = {
    "1:9 3:11 8:11 15:15 16:13 17:8 24:15 32:16 46-47:17 54-57:11 60:11 61-62:10 65:13 67-78:9 80-81:9 83-84:9 "
    "86-90:9 92-93:9 95-96:9 99-103:9 106-115:9 116:8 117:10 118:15 119:5 121:10 185-188:1 196:1 198:1"},
  .TalentsBought = {
    "2 4 6-7 10 12-13 16 18-19 22 29 35-36 39 50-51 54 58-61 65 74-75 77 80 84-85 89-90 93 97 99-101 103 107 111-112 "
    "115-122 125-133 135 137-144 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"0 5 10 10 5 5 10 -15 0"},
  .PrintedThiefAdjustments = {"0 5 10 10 5 5 10 -15 0"},
  .TakesAfter = {},
  .Traits = {RaceTrait::SeldomLeftHanded, RaceTrait::TakenAfter},
  .Notes = {
    .Bonuses = {
        "Infravision. Gnomes can see 60 feet in the dark.",
        "Saving Throw bonus on saves vs. magic.",
        "+1 on to-hits vs. Kobolds or Goblins.",
        "Gnolls, Bugbears, Ogres, Trolls, Ogre Magi, giants, and Titans suffer a -4 to hit gnomish characters."},
    .Talents = {
        "Detect Grade or Slope in passage 1-5 on 1d6",
        "Detect unsafe walls, ceilings and floors 1-7 on 1d10.",
        "",
        "Determine approximate depth underground 1-4 on 1d6",
        "Determine approximate direction underground 1-3 on 1d6"},
    .Downside = {
        "A gnome suffer a 20% chance for failure every time they use any magical item except weapons, armor, shields, "
        "illusionist items, and (if the characters is a thief) items that duplicate thieving abilities."}},
},
{
  .Name = "Half-elf",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   2, 12, "3-18 6-18 6-18 4-18 3-18 3-18 5-17", "0 0 0 0 0 0 1", 11, 15, 0, "15+1d6", "60+2d6", "110+3d12"},
    {"Female", 2, 12, "3-17 6-18 6-18 6-18 3-18 3-18 5-18", "0 0 0 0 0 0 1", 11, 15, 0, "15+1d6", "58+2d6", "85+3d12"},
  }},
  .Languages = {"Common", "Elf", "Gnome", "Gnomeling", "Halfling", "Goblin", "Hobgoblin", "Orc", "Gnoll"},
  .MaleClassLimits = {
    "1-3:14 5:14 8:14 11:16 12:12 13:10 14:11 16:99 17:11 18:99 20:10 22-23:14 28:11 30:15 31:14 37:12 39:12 42:16 "
    "44-45:15 59:13 60:14 61:16 62:13 64:12 65:16 67-68:14 69-70:99 72-81:99 83-98:99 100-116:99 117-118:15 119:99 "
    "121:13 122:99 180-184:1 189:1 193-196:1 198:1"},
  .FemaleClassLimits = {kAsTheMale},
  .TalentsBought = {
    "0 2 4 7 9-11 14 16 21 38 43-45 52 56 59-60 67 74-79 83-85 87 89 91-93 98-101 107 111-112 115-122 125-133 137-145 "
    "149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"5 0 0 0 0 5 0 0 0"},
  .PrintedThiefAdjustments = {"0 5 0 0 0 5 0 0 0"},
  .TakesAfter = {"Human", "Elf, High", "Elf, Wood", "Elf, Drow", "Elf, Grel", "Elf, Grey"},
  .Traits = {},
  .Notes = {
    .Bonuses = {
        "Infravision enables half-elves to see up to 60 feet in darkness.",
        "30% resistance to sleep and all charm-related spells."},
    .Talents = {
        "Half-elves have a one-in-three chance of spotting a secret door.",
        "Half-elves have a one-in-two chance of spotting a concealed door."},
    .Downside = {
        "None"}},
},
{
  .Name = "Halfling, Hairfoot",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   1, 6, "6-17 7-18 10-19 6-18 3-17 3-18 3-18", "-1 1 0 0 0 0 0", 11, -5, 10, "20+3d4", "32+2d8", "52+5d4"},
    {"Female", 1, 6, "6-14 8-18 10-19 6-18 3-16 3-18 3-18", "-1 1 0 0 0 0 0", 11, -5, 10, "20+3d4", "30+2d8", "48+5d4"},
  }},
  .Languages = {"Common", "Halfling", "Dwarf", "Elf", "Gnome", "Gnomeling", "Goblin", "Orc"},
  .MaleClassLimits = {
    "1:8 2:6 3:9 4:99 5:9 8:9 16:99 60:12 61:13 62:9 65:11 67-68:8 70:8 72-78:8 80-81:8 83-90:8 92-93:8 95-96:8 98:8 "
    "100-104:8 106-107:8 109-116:8 117:11 118:15 119:5 121:9 196:1"},
  .FemaleClassLimits = {
    "1:8 2:6 3:9 4:99 5:9 8:9 16:99 60:12 61:13 62:9 65:11 67-68:8 70-78:8 80-81:8 83-90:8 92-93:8 95-96:8 98:8 "
    "100-104:8 106-107:8 109-116:8 117:11 118:15 119:5 121:9 196:1"},
  .TalentsBought = {
    "2 4 7 9-10 12 16 18 24 32 39 44 51 55 59-60 68 93 99-101 103 107 111-112 115-122 125-133 135-143 146 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"5 5 10 0 10 15 5 -15 -5"},
  .PrintedThiefAdjustments = {"5 5 10 0 10 15 5 -15 -5"},
  .TakesAfter = {},
  .Traits = {RaceTrait::TakenAfter},
  .Notes = kHalflingNotes,
},
{
  .Name = "Halfling, Stout",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   1, 6, "6-17 7-18 10-19 6-18 3-17 3-18 3-18", "-1 1 0 0 0 0 0", 11, -5, 10, "20+3d4", "32+2d8", "52+5d4"},
    {"Female", 1, 6, "6-14 8-18 10-19 6-18 3-16 3-18 3-18", "-1 1 0 0 0 0 0", 11, -5, 10, "20+3d4", "30+2d8", "48+5d4"},
  }},
  .Languages = {"Common", "Halfling", "Dwarf", "Elf", "Gnome", "Gnomeling", "Goblin", "Orc"},
  .MaleClassLimits = {
    "1:8 2:6 3:9 4:99 5:9 8:9 16:99 60:12 61:13 62:9 65:11 67-68:8 70:8 72-78:8 80-81:8 83-90:8 92-93:8 95-96:8 98:8 "
    "100-104:8 106-107:8 109-116:8 117:11 118:15 119:5 121:9 196:1"},
  .FemaleClassLimits = {
    "1:8 2:6 3:9 4:99 5:9 8:9 16:99 60:12 61:13 62:9 65:11 67-68:8 70-78:8 80-81:8 83-90:8 92-93:8 95-96:8 98:8 "
    "100-104:8 106-107:8 109-116:8 117:11 118:15 119:5 121:9 196:1"},
  .TalentsBought = {
    "2 4 7 9-10 12 16 18 24 32 39 44 51 55 59-60 68 93 99-101 103 107 111-112 115-122 125-133 135-143 146 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"5 5 10 0 10 15 5 -15 -5"},
  .PrintedThiefAdjustments = {"5 5 10 0 10 15 5 -15 -5"},
  .TakesAfter = {},
  .Traits = {RaceTrait::TakenAfter},
  .Notes = kHalflingNotes,
},
{
  .Name = "Halfling, Tallfellow",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   1, 6, "6-17 7-18 10-19 6-18 3-17 3-18 3-18", "-1 1 0 0 0 0 0", 11, -5, 10, "20+3d4", "32+2d8", "52+5d4"},
    {"Female", 1, 6, "6-14 8-18 10-19 6-18 3-16 3-18 3-18", "-1 1 0 0 0 0 0", 11, -5, 10, "20+3d4", "30+2d8", "48+5d4"},
  }},
  .Languages = {"Common", "Halfling", "Dwarf", "Elf", "Gnome", "Gnomeling", "Goblin", "Orc"},
  .MaleClassLimits = {
    "1:8 2:6 3:9 4:99 5:9 8:9 16:99 60:12 61:13 62:9 65:11 67-68:8 70:8 72-78:8 80-81:8 83-90:8 92-93:8 95-96:8 98:8 "
    "100-104:8 106-107:8 109-116:8 117:11 118:15 119:5 121:9 196:1"},
  .FemaleClassLimits = {
    "1:8 2:6 3:9 4:99 5:9 8:9 16:99 60:12 61:13 62:9 65:11 67-68:8 70-78:8 80-81:8 83-90:8 92-93:8 95-96:8 98:8 "
    "100-104:8 106-107:8 109-116:8 117:11 118:15 119:5 121:9 196:1"},
  .TalentsBought = {
    "2 4 7 9-10 12 16 18 24 32 39 44 51 55 59-60 68 93 99-101 103 107 111-112 115-122 125-133 135-143 146 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"5 5 10 0 10 15 5 -15 -5"},
  .PrintedThiefAdjustments = {"5 5 10 0 10 15 5 -15 -5"},
  .TakesAfter = {},
  .Traits = {RaceTrait::TakenAfter},
  .Notes = kHalflingNotes,
},
{
  .Name = "Halfling, Thug",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   1, 6, "6-17 7-18 10-19 6-18 3-17 3-18 3-18", "-1 2 0 0 -1 0 0", 11, -5, 10, "20+3d4", "32+2d8", "52+5d4"},
    {"Female", 1, 6, "6-14 8-18 10-19 6-18 3-16 3-18 3-18", "-1 2 0 0 -1 0 0", 11, -5, 10, "20+3d4", "30+2d8", "48+5d4"},
  }},
  .Languages = {"Common", "Halfling", "Dwarf", "Elf", "Gnome", "Gnomeling", "Goblin", "Orc"},
  .MaleClassLimits = {
    "1:8 2:6 3:9 4:99 5:9 8:9 16:99 17:10 60:12 61:13 62:9 65:11 67-68:8 70:8 72-78:8 80-81:8 83-90:8 92-93:8 95-96:8 "
    "98:8 100-104:8 106-107:8 109-116:8 117:11 118:15 119:5 121:9 196:1"},
  .FemaleClassLimits = {
    "1:8 2:6 3:9 4:99 5:9 8:9 16:99 17:10 60:12 61:13 62:9 65:11 67-68:8 70-78:8 80-81:8 83-90:8 92-93:8 95-96:8 98:8 "
    "100-104:8 106-107:8 109-116:8 117:11 118:15 119:5 121:9 196:1"},
  .TalentsBought = {
    "2 4 7 9-10 12 16 18 24 32 39 44 51 55 59-60 68 93 99-101 103 107 111-112 115-122 125-133 135-143 146 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"5 5 10 0 10 15 5 -15 -5"},
  .PrintedThiefAdjustments = {"5 5 10 0 10 15 5 -15 -5"},
  .TakesAfter = {},
  .Traits = {RaceTrait::TakenAfter},
  .Notes = kHalflingNotes,
},
{
  .Name = "Half-ogre",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   3, 12, "14-19 3-17 14-19 3-17 3-15 2-11 -25-12", "2 0 2 -2 -1 -3 -5", 8, 35, -40, "13+2d4", "84+2d6", "315+1d100"},
    {"Female", 3, 12, "14-19 3-17 14-19 3-17 3-15 2-11 -25-12", "2 0 2 -2 -1 -3 -5", 8, 35, -40, "13+2d4", "82+2d6", "310+1d100"},
  }},
  .Languages = {"Common", "Ogre", "Orc", "Troll", "Stone giant", "Gnoll"},
  .MaleClassLimits = {
    "1:5 3-5:99 8:99 16-17:7 60:10 61:99 62:7 67-68:5 70:5 72-78:5 80-81:5 83-84:5 86:5 88-90:5 92-93:5 95-96:5 98:5 "
    "100-104:5 106-114:5 117:14 121:7"},
  .FemaleClassLimits = {
    "1:5 3-5:99 8:99 16-17:7 60:10 61:99 62:7 67-68:5 70-78:5 80-81:5 83-84:5 86:5 88-90:5 92-93:5 95-96:5 98:5 "
    "100-104:5 106-114:5 117:14 121:7"},
  .TalentsBought = {
    "1 4 10 16 20 44 46 59 93-97 99-103 107 111-112 115-122 125-133 137-143 146-147 149"},
  .TalentsGranted = {"23 69"},
  .NamedTalentsBought = {"1 3 6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"-10 5 5 5 -5 -20 10 20 -20"},
  .PrintedThiefAdjustments = {"-10 5 5 5 -5 -20 10 20 -10"},
  .TakesAfter = {"Ogre", "Human"},
  .Traits = {RaceTrait::DoubledFirstHitDice},
  .Notes = {
    .Bonuses = {
        "Infravision with a 30 foot range.",
        "Half-ogres have a natural Armor Class of 8.",
        "Half-ogres receive a +1 to saving throws versus poison.",
        "Starting Hit Dice are doubled at first level."},
    .Talents = {
        "+1 to attack and damage bonus with one melee weapon."},
    .Downside = {
        "Half-ogres qualify as large creatures and suffer more damage from many weapons.",
        "Certain smaller races enjoy combat bonuses against half-ogres.",
        "-2 penalty to attack rolls against dwarves.",
        "-2 penalty to attack rolls against gnomes.",
        "Their armor and other garb costs 200% that of humans."}},
},
{
  .Name = "Half-orc",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   2, 12, "6-18 3-17 13-19 3-17 3-14 3-12 3-12", "1 0 1 0 0 -2 -2", 8, 25, -30, "15+1d3", "66+1d4", "150+4d10"},
    {"Female", 2, 12, "8-18 4-17 13-19 3-17 3-14 3-12 3-11", "1 0 1 0 0 -2 -2", 8, 25, -30, "15+1d3", "62+1d4", "120+4d10"},
  }},
  .Languages = {"Common", "Orc", "Dwarf", "Goblin", "Hobgoblin", "Ogre"},
  .MaleClassLimits = {
    "1:4 3-5:99 8:99 16:8 17:99 60-61:15 62:9 64:12 67-68:4 70:4 72-78:4 80-81:4 83-84:4 86-90:4 92-93:4 95-96:4 98:4 "
    "100-104:4 106-114:4 116:5 117:99 118:8 121:9 190-192:1 196-198:1"},
  .FemaleClassLimits = {
    "1:4 3-5:99 8:99 16:8 17:99 60-61:15 62:9 64:12 67-68:4 70-78:4 80-81:4 83-84:4 86-90:4 92-93:4 95-96:4 98:4 "
    "100-104:4 106-114:4 116:5 117:99 118:8 121:9 190-192:1 196-198:1"},
  .TalentsBought = {
    "2 4 10 16 20 23 44 46 59 90 93-97 99-103 107 111-112 115-122 125-133 137-143 147 149"},
  .TalentsGranted = {"1 3"},
  .NamedTalentsBought = {"0-1 3 6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"-5 5 0 5 0 0 5 5 -10"},
  .PrintedThiefAdjustments = {"-5 5 0 5 0 0 5 5 -10"},
  .TakesAfter = {"Orc", "Human"},
  .Traits = {},
  .Notes = {
    .Bonuses = {
        "Infravision. Half-orcs can see 60 feet in the dark."},
    .Talents = {
        "Active Sense of Smell",
        "Acute Taste"},
    .Downside = {
        "In human and halfling societies, half-orcs suffer a -2 reaction roll penalty.",
        "In dwarven, elven and gnomish societies, half-orcs suffer a -4 reaction roll penalty"}},
},
{
  .Name = "Human",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   2, 12, "3-18 3-18 3-18 3-18 3-18 3-18 3-18", "0 0 0 0 0 0 0", 10, 0, 0, "15+1d4", "60+2d10", "140+6d10"},
    {"Female", 2, 12, "3-18 3-18 3-18 3-18 3-18 3-18 3-18", "0 0 0 0 0 0 0", 10, 0, 0, "15+1d4", "59+2d10", "100+6d10"},
  }},
  .Languages = {"Common", "Human Dialect"},
  .MaleClassLimits = {
    "1-70:99 72-81:99 83-98:99 100-123:99"},
  .FemaleClassLimits = {
    "1-81:99 83-98:99 100-123:99"},
  .TalentsBought = {
    "0 2-4 7 9-10 16 20-21 26 31 37 40 43-45 51-52 56-57 59-60 69 74-89 91-97 99-104 107 111-112 115-122 125-149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"0-1 3-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"0 0 0 0 0 0 0 0 0"},
  .PrintedThiefAdjustments = {"0 0 0 0 0 0 0 0 0"},
  .TakesAfter = {},
  .Traits = {RaceTrait::TakenAfter},
  .Notes = {
    .Bonuses = {
        "Can rise to any level in chosen class.",
        "Can choose any character class."},
    .Talents = {
        "Must be purchased."},
    .Downside = {
        "None."}},
},
{
  .Name = "Pixie Fairy",
  .RuleSwitch = kCoreRules,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   0, 6, "1-14 12-19 7-14 8-19 3-19 8-19 8-19", "-6 2 0 1 1 2 3", 14, 15, 50, "2+1d3", "18+1d4", "24+1d6"},
    {"Female", 0, 6, "1-14 12-19 7-14 8-19 3-19 8-19 8-19", "-6 2 0 1 1 2 3", 14, 15, 50, "2+1d3", "18+1d4", "24+1d6"},
  }},
  .Languages = {"Common", "Elf", "Gnome", "Butterfly", "Bird", "Pixie fairy"},
  .MaleClassLimits = {
    "1:10 3:9 5-6:9 8:9 12:99 15:99 16:15 19:12 20:13 23:11 24:99 25:13 27:13 28:14 31:12 32:99 33:14 36:14 38:15 "
    "45-47:99 49:15 51:15 54-57:11 58:14 60:7 61:10 62:13 65:10 67-68:10 70:10 72-78:10 80-81:10 83-84:10 86-90:10 "
    "92-93:10 95-96:10 98:10 100-104:10 106-114:10 117:9 118:12 119:6 121:13 195:1"},
  .FemaleClassLimits = {
    "1:10 3:9 5-6:9 8:9 12:99 15:99 16:15 19:12 20:13 23:11 24:99 25:13 27:13 28:14 31:12 32:99 33:14 36:14 38:15 "
    "45-47:99 49:15 51:15 54-57:11 58:14 60:7 61:10 62:13 65:10 67-68:10 70-78:10 80-81:10 83-84:10 86-90:10 92-93:10 "
    "95-96:10 98:10 100-104:10 106-114:10 117:9 118:12 119:6 121:13 195:1"},
  .TalentsBought = {
    "0 2 4 7 10 16 33-34 40 43-44 47 75 93 99 101 107 111-112 115-122 125-133 137-143 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"0 5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"10 -15 -15 -15 20 30 10 -50 -10"},
  .PrintedThiefAdjustments = {"10 -15 -15 -15 20 30 10 -50 -10"},
  .TakesAfter = {},
  .Traits = {RaceTrait::HalvedHitPointsAndKicker, RaceTrait::Tattooed, RaceTrait::NoYearsOfTraining},
  .Notes = {
    .Bonuses = {
        "Fly at 18 feet per round",
        "Can use Giant Moth and Butterfly mounts.",
        "A +2 bonus to hit in mounted combat or flying combat.",
        "Heal an extra hit point per day.",
        "Never surprised.",
        "Telepathic linking.",
        "When a fairy dies he is reincarnated within 1d4 months.",
        "May cast a Faerie Phantom spell once per day.",
        "At fifth level they may cast a Minor Sphere of Perturbation spell once per day."},
    .Talents = {
        "Turn invisible once per day."},
    .Downside = {
        "Pixie fairies must pay 3 times the gp value for their daily food requirements unless they forage for their "
        "food.",
        "They have a very short lifespan - generaly only ten to fifteen years.",
        "Pixie fairies don't get the twenty hit point-kicker other characters receive at first level, instead they "
        "receive only a 10 hit point kicker.",
        "They also only get half the hit points rolled for each level (rounded up)."}},
},
{
  .Name = "Darkmen",
  .RuleSwitch = kTitanTrilogyModule,
  .Numbers = {{
    // gender, size class, movement, STR DEX CON INT WIS CHA COM, modifiers, BP, legitimacy, birth, age, height, weight
    {"Male",   2, 12, "3-18 6-18 6-18 4-18 3-18 3-18 5-17", "0 0 0 0 0 0 -1", 10, 15, 0, "15+1d6", "60+2d6", "110+3d12"},
    {"Female", 2, 12, "3-18 6-18 6-18 4-18 3-18 3-18 5-17", "0 0 0 0 0 0 -1", 10, 15, 0, "15+1d6", "58+2d6", "85+3d12"},
  }},
  .Languages = {"Common", "Drow", "Drow silent language", "Elf", "Dwarf", "Gnome", "Undercommon", "Kuo-toa",
                "Bugbear", "Orc"},
  .MaleClassLimits = {
    "1:14 3:13 7:13 12:13 13-14:10 16-18:99 20:10 22-23:14 28:11 30:15 31:14 37:12 39:12 42:16 44-45:15 59:13 60:14 "
    "61:16 62:13 64:12 65:16 67-70:14 72-78:14 80-81:14 83-98:14 100-104:14 106-115:14 116:99 117-118:15 119:99 "
    "121:13 122:99 177-178:1 180-184:1 189:1 193-196:1 198-199:1"},
  .FemaleClassLimits = {
    "1:14 3:13 7:13 12:13 13-14:10 16-18:99 20:10 22-23:14 28:11 30:15 31:14 37:12 39:12 42:16 44-45:15 59:13 60:14 "
    "61:16 62:13 64:12 65:16 67-78:14 80-81:14 83-96:14 98:14 100-104:14 106-115:14 116:99 117-118:15 119:99 121:13 "
    "122:99 177-178:1 180-184:1 189:1 193-196:1 198-199:1"},
  .TalentsBought = {
    "0 2 4 7 9-10 13 15-18 20-21 37 42-45 48 52 57-58 60 64 74-79 83-85 87 89 91-93 98-101 107 111-112 115-122 "
    "125-133 137-145 149"},
  .TalentsGranted = {""},
  .NamedTalentsBought = {"5-6"},
  // pick open find remove silent hide noise climb read
  .ThiefAdjustments = {"5 0 0 0 0 5 0 0 0"},
  .PrintedThiefAdjustments = {"0 5 0 0 0 5 0 0 0"},
  .TakesAfter = {"Human", "Elf, Drow"},
  .Traits = {},
  .Notes = {
    .Bonuses = {
        "Infravision enables Darkmen to see up to 60 feet in darkness.",
        "30% resistance to sleep and all charm-related spells.",
        "Spell Abilities.",
        "Base resistance to magic of 20%. Increases by 1% per level of experience.",
        "+1 bonus on saves vs. all forms of magical attack (including devices)."},
    .Talents = {
        "Darkmen have a one-in-three chance of spotting a secret door.",
        "Darkmen have a one-in-two chance of spotting a concealed door."},
    .Downside = {
        "Darkmen suffer a -1 penalty on all rolls when exposed to bright sunlight or Continual Light spells. Lesser "
        "sources do not bother them",
        "All elves (including Drow) distrust darkmen, resulting in an initial reaction roll penalty of -1."}},
},
}};

// clang-format on

}  // namespace veld
