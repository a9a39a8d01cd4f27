#include "rules/race_rows.h"

// The notes of the character sheet by race. They are printed as they stand, misspellings included.

namespace veld {

// clang-format off

namespace {

constexpr RaceNote kDwarfNotes[] = {
  { 0, "Infravision. Dwarves can see 60 feet in the dark."},
  { 1, "Saving Throw bonus on saves vs. magic."},
  { 2, "Saving Throw bonus save vs. poison."},
  { 3, "+1 on to-hits vs. Orcs, half-orcs, Goblins, and Hobgoblins."},
  { 4, "Ogres, Trolls, Ogre Magi, giants, and Titans suffer a -4 to hit dwarves."},
  {10, "Detect Grade or Slope in passage 1-5 on 1d6"},
  {11, "Detect new tunnel/passage construction 1-5 on 1d6"},
  {12, "Detect Sliding/shifting walls or rooms 1-4 on 1d6"},
  {13, "Detect stonework traps, pits and dead falls 1-3 on 1d6"},
  {14, "Determine approximate depth underground 1-3 on 1d6"},
  {20, "Dwarves suffer a 20% chance for failure every time they use any magical item except weapons, armor, "
       "shields"},
  {21, " and (if the characters is a thief) items that duplicate thieving abilities. This penalty does not apply "
       "if the character is a battle mage or cleric using a cleric item."},
};

constexpr RaceNote kDrowElfNotes[] = {
  { 0, "Infravision. Drow can see 120 feet in the dark."},
  { 1, "90% resistance to Sleep and all charm-related spells."},
  { 2, "Spell abilities."},
  { 3, "Only surprised on a 1 on 1d10."},
  { 4, "Chance of starting with drow boots/cloak."},
  { 5, "Chance of starting with drow chainmail."},
  { 6, "Base resistance to magic of 50%. increases by 2% for each level of experience."},
  { 7, "+2 bonus on saves vs. all forms of magical attack (including devices)."},
  {10, "+1 bonus on to-hits when using a crossbow, dart or a short/long sword.."},
  {11, "Move Silently. Opponents suffer a -4 penalty to their surprise die rolls. If the elf must open a door or "
       "screen to attack, this penalty is reduced to -2."},
  {12, "Detect secret doors on a one-in-six chance (roll a 1 on 1d6)."},
  {20, "Dark elves suffer a -1 penalty on all rolls when exposed to bright sunlight or continual light spells. "
       "Lesser light sources do not bother them."},
  {21, "All other elves hate dark elves, resulting in an initial reaction roll of -2."},
};

// Elf, Grey; Elf, High; Elf, Wood
constexpr RaceNote kElfNotes[] = {
  { 0, "Infravision. Elves can see 60 feet in the dark."},
  { 1, "90% resistance to Sleep and charm-related spells."},
  {10, "+1 bonus on to-hit rolls when using a bow of any sort (except crossbow) or when using a short or "
       "longsword."},
  {11, "Move Silently. Opponents suffer a -4 penalty to their surprise die rolls. If the elf must open a door or "
       "screen to attack, this penalty is reduced to -2."},
  {12, "Detect secret doors on a one-in-six chance (roll a 1 on 1d6)."},
  {20, "Except for some attribute penalties and class restrictions, none."},
};

constexpr RaceNote kGrelElfNotes[] = {
  { 0, "Infravision. Grel can see 60 feet in the dark."},
  { 1, "90% resistance to Sleep and all charm-related spells."},
  { 2, "Spell abilities."},
  { 3, "Only surprised on a 1 on 1d10."},
  {10, "War Cry: Enemies must save vs. fear at -5 or lose their first attack."},
  {11, "+1 bonus on to-hits when using a spear or bow."},
  {12, "Move Silently. Opponents suffer a -4 penalty to their surprise die rolls. If the elf must open a door or "
       "screen to attack, this penalty is reduced to -2."},
  {13, "Detect secret doors on a one-in-six chance (roll a 1 on 1d6)."},
  {14, "Tracking."},
  {15, "Move through undergrowth as if in open terrain."},
  {20, "The Grel must suffer the jealousy of the other races"},
};

constexpr RaceNote kGnomeTitanNotes[] = {
  { 0, "Infravision. Gnome titans can see 60 feet in the dark."},
  { 1, "Saving Throw bonus on saves vs. magic."},
  { 2, "+1 on to-hits vs. Kobolds or Goblins."},
  { 3, "Gnolls, Bugbears, Ogres, Trolls, Ogre Magi, giants, and Titans suffer a -4 to hit gnomish characters."},
  { 4, "Gnome titans attack at one level higher than their current experience level."},
  { 5, "Gnome titans only pay half Building Point/training costs for any skill of a military or combat nature."},
  { 6, "Gnome titans fighting along side with other gnome titans receive a +1 to their to-hit and damage rolls "
       "because of the incredible boost in morale they receive"},
  { 7, "Gnome titans fighting as a group cannot be broken or routed"},
  {10, "Detect Grade or Slope in passage 1-5 on 1d6"},
  {11, "Detect unsafe walls, ceilings and floors 1-7 on 1d10."},
  {13, "Determine approximate depth underground 1-4 on 1d6"},
  {14, "Determine approximate direction underground 1-3 on 1d6"},
  {15, "Groin Stomp Attack"},
  {20, "A gnome suffer a 20% chance for failure every time they use any magical item except weapons, armor, "
       "shields, illusionist items, and (if the characters is a thief) items that duplicate thieving abilities."},
  {21, "Gnome titans only earn 50% of any experience points awarded."},
  {22, "Gnome titans must choose the gnomish god of war, Pangrus, as their patron god, and pay a tithe of 20% of "
       "all their income."},
  {23, "Gnome titans only receive 50% of any hit points (rounded down) rolled on the hit dice for their "
       "class/level."},
};

constexpr RaceNote kGnomelingNotes[] = {
  { 0, "Infravision. Gnomelings can see 30 feet in the dark."},
  { 1, "Saving Throw bonus on saves vs. magic."},
  { 2, "+1 on to-hits vs. Kobolds or Goblins."},
  { 3, "Gnolls, Bugbears, Ogres, Trolls, Ogre Magi, giants, and Titans suffer a -4 to hit gnomish characters."},
  { 4, "Have special stealth abilities. Are able to hide and move about unnoticed. There is only a 5% chance of "
       "noticing a gnomeling who is hiding, and the person noticing must concentrate for one round."},
  {10, "Detect Grade or Slope in passage 1-5 on 1d6"},
  {11, "Detect unsafe walls, ceilings and floors 1-7 on 1d10."},
  {13, "Determine approximate depth underground 1-4 on 1d6"},
  {14, "Determine approximate direction underground 1-3 on 1d6"},
  {15, "+1 bonus on to-hits when using a dagger"},
  {20, "A gnomlings suffer a 10% chance for failure every time they use any magical item except weapons, armor, "
       "shields, illusionist items, and (if the characters is a thief) items that duplicate thieving abilities."},
};

constexpr RaceNote kGnomeNotes[] = {
  { 0, "Infravision. Gnomes can see 60 feet in the dark."},
  { 1, "Saving Throw bonus on saves vs. magic."},
  { 2, "+1 on to-hits vs. Kobolds or Goblins."},
  { 3, "Gnolls, Bugbears, Ogres, Trolls, Ogre Magi, giants, and Titans suffer a -4 to hit gnomish characters."},
  {10, "Detect Grade or Slope in passage 1-5 on 1d6"},
  {11, "Detect unsafe walls, ceilings and floors 1-7 on 1d10."},
  {13, "Determine approximate depth underground 1-4 on 1d6"},
  {14, "Determine approximate direction underground 1-3 on 1d6"},
  {20, "A gnome suffer a 20% chance for failure every time they use any magical item except weapons, armor, "
       "shields, illusionist items, and (if the characters is a thief) items that duplicate thieving abilities."},
};

constexpr RaceNote kHalfElfNotes[] = {
  { 0, "Infravision enables half-elves to see up to 60 feet in darkness."},
  { 1, "30% resistance to sleep and all charm-related spells."},
  {10, "Half-elves have a one-in-three chance of spotting a secret door."},
  {11, "Half-elves have a one-in-two chance of spotting a concealed door."},
  {20, "None"},
};

// Halfling, Hairfoot; Halfling, Stout; Halfling, Tallfellow; Halfling, Thug
constexpr RaceNote kHalflingNotes[] = {
  { 0, "Possible infravision: 15% of halflings have normal infravision (60-foot range). Failing that, 25% have "
       "limited infravision (30-foot range). Otherwise, halflings have normal vision"},
  { 1, "Saving throw bonus on saves vs. magic"},
  { 2, "Saving throw bonus on saves vs. poison."},
  { 3, "Surprise bonus. Opponents suffer a -4 penalty to their surprise die rolls. If the halfling must open a "
       "door or screen to attack, this penalty is reduced to -2"},
  {10, "+1 bonus to attack rolls when using thrown weapons and slings."},
  {11, "If stout or partially stout blood, character can detect if a passage is an up or down grade with 75% "
       "accuracy."},
  {12, "If stout or partially stout blood, character can determine direction half the time."},
  {20, "Halflings are highly valued in the slave market"},
};

constexpr RaceNote kHalfOgreNotes[] = {
  { 0, "Infravision with a 30 foot range."},
  { 1, "Half-ogres have a natural Armor Class of 8."},
  { 2, "Half-ogres receive a +1 to saving throws versus poison."},
  { 3, "Starting Hit Dice are doubled at first level."},
  {10, "+1 to attack and damage bonus with one melee weapon."},
  {20, "Half-ogres qualify as large creatures and suffer more damage from many weapons."},
  {21, "Certain smaller races enjoy combat bonuses against half-ogres."},
  {22, "-2 penalty to attack rolls against dwarves."},
  {23, "-2 penalty to attack rolls against gnomes."},
  {24, "Their armor and other garb costs 200% that of humans."},
};

constexpr RaceNote kHalfOrcNotes[] = {
  { 0, "Infravision. Half-orcs can see 60 feet in the dark."},
  {10, "Active Sense of Smell"},
  {11, "Acute Taste"},
  {20, "In human and halfling societies, half-orcs suffer a -2 reaction roll penalty."},
  {21, "In dwarven, elven and gnomish societies, half-orcs suffer a -4 reaction roll penalty"},
};

constexpr RaceNote kHumanNotes[] = {
  { 0, "Can rise to any level in chosen class."},
  { 1, "Can choose any character class."},
  {10, "Must be purchased."},
  {20, "None."},
};

constexpr RaceNote kPixieFairyNotes[] = {
  { 0, "Fly at 18 feet per round"},
  { 1, "Can use Giant Moth and Butterfly mounts."},
  { 2, "A +2 bonus to hit in mounted combat or flying combat."},
  { 3, "Heal an extra hit point per day."},
  { 4, "Never surprised."},
  { 5, "Telepathic linking."},
  { 6, "When a fairy dies he is reincarnated within 1d4 months."},
  { 7, "May cast a Faerie Phantom spell once per day."},
  { 8, "At fifth level they may cast a Minor Sphere of Perturbation spell once per day."},
  {10, "Turn invisible once per day."},
  {20, "Pixie fairies must pay 3 times the gp value for their daily food requirements unless they forage for "
       "their food."},
  {21, "They have a very short lifespan - generaly only ten to fifteen years."},
  {22, "Pixie fairies don't get the twenty hit point-kicker other characters receive at first level, instead they "
       "receive only a 10 hit point kicker."},
  {23, "They also only get half the hit points rolled for each level (rounded up)."},
};

constexpr RaceNote kDarkmenNotes[] = {
  { 0, "Infravision enables Darkmen to see up to 60 feet in darkness."},
  { 1, "30% resistance to sleep and all charm-related spells."},
  { 2, "Spell Abilities."},
  { 3, "Base resistance to magic of 20%. Increases by 1% per level of experience."},
  { 4, "+1 bonus on saves vs. all forms of magical attack (including devices)."},
  {10, "Darkmen have a one-in-three chance of spotting a secret door."},
  {11, "Darkmen have a one-in-two chance of spotting a concealed door."},
  {20, "Darkmen suffer a -1 penalty on all rolls when exposed to bright sunlight or Continual Light spells. "
       "Lesser sources do not bother them"},
  {21, "All elves (including Drow) distrust darkmen, resulting in an initial reaction roll penalty of -1."},
};

}  // namespace

constexpr std::array<std::span<const RaceNote>, kRaceKinds> kRaceNotes = {{
  kDwarfNotes,            // Dwarf
  kDrowElfNotes,          // Elf, Drow
  kElfNotes,              // Elf, Grey
  kElfNotes,              // Elf, High
  kElfNotes,              // Elf, Wood
  kGrelElfNotes,          // Elf, Grel
  kGnomeTitanNotes,       // Gnome Titan
  kGnomelingNotes,        // Gnomeling
  kGnomeNotes,            // Gnome
  kHalfElfNotes,          // Half-elf
  kHalflingNotes,         // Halfling, Hairfoot
  kHalflingNotes,         // Halfling, Stout
  kHalflingNotes,         // Halfling, Tallfellow
  kHalflingNotes,         // Halfling, Thug
  kHalfOgreNotes,         // Half-ogre
  kHalfOrcNotes,          // Half-orc
  kHumanNotes,            // Human
  kPixieFairyNotes,       // Pixie Fairy
  kDarkmenNotes,          // Darkmen
}};

// clang-format on

}  // namespace veld
