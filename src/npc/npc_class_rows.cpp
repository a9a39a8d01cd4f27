#include "npc/npc_class_rows.h"

#include <algorithm>

#include "rules/purchase_rules.h"
#include "text/search.h"

namespace veld {

namespace {

// clang-format off

constexpr NpcWayOfLife kWaysOfLife[] = {
  {"Soldier",
   "Splint mail | Chain mail | Scale mail | Ring mail | Studded Leather | Leather | Padded",
   "Shield, Medium | Shield, Small | Shield, Buckler",
   "Weapon Maintenance | Armor Maintenance | Dirty Fighting | Running | Fire-building | Attitude Adjustment | "
   "Jumping | Swimming: Dog Paddle | Laborer, General",
   "Hit Point Bonus | Endurance | Damage Bonus | Tough Hide | Blind Fighting | Acute (high) Alertness",
   "Helmet, Leather | Whetstone",
   "Pre-pack: Soldier on campaign | Pre-pack: Scout | Pre-pack: Pilgrim | Pre-pack: Hermit"},
  {"Knight",
   "Plate mail | Splint mail | Chain mail | Scale mail | Ring mail | Studded Leather | Leather | Padded",
   "Shield, Medium | Shield, Small | Shield, Buckler",
   "Riding, Land-based | Heraldry | Weapon Maintenance | Armor Maintenance | Social Etiquette | Rules of Fair Play | "
   "Leadership: Basic | Religion (general) | Shaving/Grooming",
   "Hit Point Bonus | Endurance | Damage Bonus | Acute (high) Alertness | Tough Hide | Reaction Bonus",
   "Helmet, kettle | Helmet, Leather | Whetstone",
   "Pre-pack: Knight's field outfit | Pre-pack: Soldier on campaign | Pre-pack: Pilgrim | Pre-pack: Hermit"},
  {"Wilderness",
   "Studded Leather | Leather | Hide | Padded", "Shield, Small | Shield, Buckler",
   "Fire-building | Identify Animal by Tracks | Set Snares | Weather Sense | Forage for Food | Map Sense | Running | "
   "Fishing | Weapon Maintenance | Swimming: Dog Paddle",
   "Hit Point Bonus | Acute (high) Alertness | Endurance | Bow Bonus | Forest Movement | Hardy Traveler",
   "Snare wire, 50 feet | Fish hooks, dozen | Whetstone",
   "Pre-pack: Hunter and trapper | Pre-pack: Scout | Pre-pack: Barbarian wanderer | Pre-pack: Hermit"},
  {"Priest",
   "Chain mail | Scale mail | Ring mail | Studded Leather | Leather | Padded", "Shield, Medium | Shield, Small",
   "Religion (general) | Divine Lore | Religion Specific | First Aid: Sew Own Wounds | Oration | Reading/Writing | "
   "Local History | Dig Proper Grave | Maintenance/Upkeep (General) | Resist Persuasion",
   "Hit Point Bonus | Courage | Enhanced Turning | Receptive Healer | Divine Shield | Acute (high) Alertness",
   "Holy symbol, wooden | Holy book, plain | Prayer beads, olive wood",
   "Pre-pack: Temple novice | Pre-pack: Pilgrim | Pre-pack: Hermit"},
  {"Zealous priest",
   "Chain mail | Scale mail | Ring mail | Studded Leather | Leather | Padded", "Shield, Small | Shield, Buckler",
   "Religion (general) | Divine Lore | Religion Specific | Rousing Speech | Intimidation | First Aid: Sew Own Wounds | "
   "Resist Persuasion | Maintenance/Upkeep (General) | Oration",
   "Hit Point Bonus | Courage | Divine Smite | Endurance | Acute (high) Alertness",
   "Holy symbol, wooden | Prayer beads, olive wood",
   "Pre-pack: Pilgrim | Pre-pack: Temple novice | Pre-pack: Hermit"},
  {"Scholarly priest",
   "Leather | Padded", "Shield, Small",
   "Religion (general) | Reading/Writing | Divine Lore | Ancient History | History: World | Local History | Astrology | "
   "Oration | Current Affairs | Heraldry",
   "Photographic Memory | Hit Point Bonus | Sixth Sense | Courage | Acute (high) Alertness",
   "Holy symbol, wooden | Holy book, plain",
   "Pre-pack: Temple novice | Pre-pack: Pilgrim | Pre-pack: Hermit"},
  {"Mage",
   "none", "",
   "Reading/Writing | Arcane Lore | Spellcraft | Penmanship | Arcane Speak | Ancient History | Astrology | Calligraphy | "
   "Botany | Current Affairs | Local History | Cooking | Culinary Arts",
   "Quick Learner | Magic Bonus | Hit Point Bonus | Superior Meditation | Photographic Memory | Acute (high) Alertness",
   "Spell component pouch, twelve pockets | Map or scroll case, oiled hide",
   "Pre-pack: Apprentice mage | Pre-pack: Pilgrim | Pre-pack: Hermit"},
  {"Rogue",
   "Studded Leather | Leather | Padded", "Shield, Buckler",
   "Stealthy Movement | Observation | Looting, Basic | Street Cred | Rope Use | Jumping | Liar, Skilled | Gaming | "
   "Pinch | Slip Away into Shadows | Idle Gossip | Appraising",
   "Acute (high) Alertness | Opportunist (skill/trait) | Hit Point Bonus | Quick Movement | Dagger Bonus | Balance Bonus",
   "Lock picks, plain, set | Chalk, stick | Sack, small",
   "Pre-pack: Burglar | Pre-pack: Scout | Pre-pack: Hermit"},
  {"Performer",
   "Studded Leather | Leather | Padded", "Shield, Buckler",
   "Singing | Stringed Instrument | Poetry, Writing and Comprehension | Joke Telling | Oration | Local History | "
   "Dancing (Ballroom) | Idle Gossip | Social Etiquette | Whistling/Humming",
   "Opportunist (skill/trait) | Acute (high) Alertness | Hit Point Bonus | Photographic Memory | Grace Under Pressure",
   "Lute, battered | Pan pipes | Fife | Reed pipe",
   "Pre-pack: Wandering minstrel | Pre-pack: Pilgrim | Pre-pack: Hermit"},
};

constexpr std::string_view kStaff = "Quarterstaff | Dagger | Dart | Knife | Sling";
constexpr std::string_view kMaces = "Mace: Footman's | Warhammer | Mace: Horseman's | Morning Star | Flail: Footman's | "
                                    "Quarterstaff | Club | Sling";
constexpr std::string_view kBlades = "Sword: Short | Sword: Rapier | Dagger | Sling | Dart | Club";
constexpr std::string_view kMageSight = "INT DEX WIS CON STR CHA COM";

constexpr NpcClassRow kClassRows[] = {
  {"Cleric", "Priest", "WIS CON STR CHA DEX INT COM", kMaces, "", "Leadership: Basic", "", "", "Holy water, vial"},
  {"Druid", "Wilderness", "WIS CHA CON DEX STR INT COM", "Sword: Scimitar | Spear | Sickle | Quarterstaff | Club | Dagger | Sling",
   "Hide | Leather | Padded", "Botany | Plant Identification: Holistic | Animal Lore | Animal Handling | Woodland Lore | Religion (general) | Forestry", "Animal Friendship", "", "Sickle"},
  {"Fighter", "Soldier", "STR CON DEX WIS INT CHA COM", "Sword: Long | Bow: Short | Dagger | Battle axe | Spear | Sword: Short | Club",
   "", "Endurance", "Sword Bonus", "Shield Specialization", ""},
  {"Barbarian", "Wilderness", "STR CON DEX WIS CHA INT COM", "Sword: Two-handed | Battle axe | Great Spear | Spear | Bow: Short | Hand or throwing axe | Dagger | Club",
   "Hide | Leather | Padded", "Endurance | Hunting | Wild Animal Handling | Mountaineering | Flex Muscle", "Tough Hide | Damage Bonus", "", "Sleeping fur"},
  {"Berserker", "Soldier", "STR CON DEX WIS CHA INT COM", "Battle axe | Sword: Broad | Spear | Hand or throwing axe | Dagger | Club",
   "Chain mail | Ring mail | Studded Leather | Hide | Leather | Padded", "Angawa Battle Cry | Endurance | Intimidation | Flex Muscle | Brawler", "Damage Bonus | Tough Hide", "", "Horn, battle, ox"},
  {"Cavalier", "Knight", "STR CON DEX CHA WIS COM INT", "Sword: Long | Mace: Horseman's | Dagger | Lance: Light horse | Lance: Medium horse | Club",
   "", "Jousting | Graceful Entrance/Exit | Knowledge of Courtly Affairs | Dancing (Ballroom)", "Sword Bonus", "Shield Specialization", "Surcoat with arms"},
  {"Dark Knight", "Knight", "STR CHA CON WIS COM DEX INT", "Sword: Broad | Sword: Long | Flail: Horseman's | Morning Star | Dagger | Club",
   "", "Intimidation | Evil Speak | Torture | Threat Gesture (Nonverbal gestures - body and hand)", "Sword Bonus", "", ""},
  {"Knight Errant", "Knight", "STR CHA CON WIS COM DEX INT", "Sword: Bastard | Sword: Long | Sword: Broad | Dagger | Sword: Short | Lance: Light horse | Club",
   "", "Endurance | Armor Repair, Basic | Gaming | Current Affairs", "Sword Bonus", "", ""},
  {"Monk", "Wilderness", "WIS DEX STR CON INT CHA COM", "Quarterstaff | Spear | Crossbow: Light | Hand or throwing axe | Javelin | Dagger | Club",
   "none", "Maintain Self-Discipline | Tumbling | Pugilism | Crane | Stealthy Movement | Endurance | Religion (general)", "Acute (high) Alertness | Balance Bonus", "", "Robe, plain"},
  {"Paladin", "Knight", "STR CHA WIS CON DEX COM INT", "Sword: Long | Sword: Broad | Dagger | Mace: Horseman's | Lance: Light horse | Club",
   "", "Divine Lore | Rousing Speech | Resist Persuasion | Muster Resolve", "Courage | Sword Bonus", "Shield Specialization", "Holy symbol, iron | Holy symbol, wooden"},
  {"Ranger", "Wilderness", "DEX STR CON WIS INT CHA COM", "Bow: Long | Sword: Long | Bow: Short | Spear | Hand or throwing axe | Dagger | Club",
   "Studded Leather | Leather | Padded", "Tracking | Woodland Lore | Hunting | Stealthy Movement | Camouflage | Trailing", "Bow Bonus | Astute Observation", "", "Quiver, twenty arrows"},
  {"Magic-User", "Mage", kMageSight, kStaff, "", "Know Ability", "Fast Cast", "", ""},
  {"Battle Mage", "Mage", "INT CON STR DEX WIS CHA COM", "Sword: Short | Quarterstaff | Dagger | Dirk", "Leather | Padded", "Weapon Maintenance | Military: Battle Sense | Endurance", "Damage Bonus | Fast Cast", "", ""},
  {"Blood Mage", "Mage", "CON INT DEX STR CHA COM WIS", "Dagger | Quarterstaff | Dirk | Dart", "", "Anatomy, Basic | Intimidation | Healing", "Thick Blood | Bloodline", "", "Vial, glass"},
  {"Illusionist", "Mage", "DEX INT WIS CON CHA STR COM", kStaff, "", "Sleight of Hand | Ventriloquism | Acting", "Illusion Resistant", "", "Mask, carnival"},
  {"Thief", "Rogue", "DEX INT STR CON CHA WIS COM", "Sword: Short | Dagger | Sling | Club | Dart", "", "Trap Sweep (Full Sweep) | Set Snares | Locksmithing", "", "", "Crampons, pair"},
  {"Assassin", "Rogue", "DEX STR INT CON CHA WIS COM", "Sword: Short | Dagger | Crossbow: Light | Garrote | Stiletto | Blowgun | Club", "", "Disguise | Identify Poison | Trailing | Poker Face | Anatomy, Basic", "Poison Bonus | Dagger Bonus", "", "Disguise kit, actor's | Hood, cowl"},
  {"Bard", "Performer", "CHA DEX INT COM WIS CON STR", "Sword: Long | Sword: Short | Sling | Dagger | Club | Dart", "", "Ancient History | Rousing Speech | Fast-Talking", "", "", ""},
  {"Standard Specialist: Abjurer", "Mage", "INT WIS DEX CON CHA STR COM", kStaff, "", "Resist Persuasion | Divine Lore", "Counter Speller", "", ""},
  {"Standard Specialist: Transmuter", "Mage", "DEX INT CON WIS STR CHA COM", kStaff, "", "Alchemy | Geology", "Item Savant", "", "Crucible, clay"},
  {"Standard Specialist: Conjurer", "Mage", "INT CON WIS DEX STR CHA COM", kStaff, "", "Spirit Lore | Animal Lore", "Fast Cast", "", "Chalk, stick"},
  {"Standard Specialist: Diviner", "Mage", "INT WIS DEX CHA CON STR COM", kStaff, "", "Glean Information | Fortune Telling | Observation", "Sixth Sense", "", "Candle, beeswax"},
  {"Standard Specialist: Enchanter", "Mage", "CHA INT DEX WIS CON COM STR", kStaff, "", "Diplomacy | Seduction, Art of | Social Etiquette", "Ladies Man", "", "Doublet, plain"},
  {"Standard Specialist: Illusionist", "Mage", "DEX INT WIS CON CHA STR COM", kStaff, "", "Sleight of Hand | Ventriloquism | Acting", "Illusion Resistant", "", "Mask, carnival"},
  {"Standard Specialist: Invoker", "Mage", "INT CON DEX WIS STR CHA COM", kStaff, "", "Weather Sense | Endurance", "Precise Targeting | Spell Razor", "", ""},
  {"Standard Specialist: Necromancer", "Mage", "INT WIS DEX CON STR CHA COM", kStaff, "", "Anatomy, Basic | Language, Undead | Dig Proper Grave", "Death Magic Bonus", "", "Funeral shroud"},
  {"Double Specialist: Abjurer", "Mage", "INT WIS DEX CON CHA STR COM", kStaff, "", "Resist Persuasion | Divine Lore", "Counter Speller", "", ""},
  {"Double Specialist: Transmuter", "Mage", "DEX INT CON WIS STR CHA COM", kStaff, "", "Alchemy | Geology", "Item Savant", "", "Crucible, clay"},
  {"Double Specialist: Conjurer", "Mage", "INT CON WIS DEX STR CHA COM", kStaff, "", "Spirit Lore | Animal Lore", "Fast Cast", "", "Chalk, stick"},
  {"Double Specialist: Diviner", "Mage", "INT WIS DEX CHA CON STR COM", kStaff, "", "Glean Information | Fortune Telling | Observation", "Sixth Sense", "", "Candle, beeswax"},
  {"Double Specialist: Enchanter", "Mage", "CHA INT DEX WIS CON COM STR", kStaff, "", "Diplomacy | Seduction, Art of | Social Etiquette", "Ladies Man", "", "Doublet, plain"},
  {"Double Specialist: Illusionist", "Mage", "DEX INT WIS CON CHA STR COM", kStaff, "", "Sleight of Hand | Ventriloquism | Acting", "Illusion Resistant", "", "Mask, carnival"},
  {"Double Specialist: Invoker", "Mage", "INT CON DEX WIS STR CHA COM", kStaff, "", "Weather Sense | Endurance", "Precise Targeting | Spell Razor", "", ""},
  {"Double Specialist: Necromancer", "Mage", "INT WIS DEX CON STR CHA COM", kStaff, "", "Anatomy, Basic | Language, Undead | Dig Proper Grave", "Death Magic Bonus", "", "Funeral shroud"},
  {"Sole Practitioner: Anti-Mage", "Mage", "INT WIS CON DEX STR CHA COM", kStaff, "", "Resist Persuasion | Poker Face | Intimidation", "Counter Speller", "", ""},
  {"Sole Practitioner: Guardian", "Mage", "INT WIS CON DEX STR CHA COM", kStaff, "", "Observation | Muster Resolve | First Aid: Sew Own Wounds", "Defensive Bonus", "", "Padlock, poor"},
  {"Sole Practitioner: Constructor", "Mage", "INT DEX WIS CON STR CHA COM", kStaff, "", "Engineering | Carpentry Tools (Wood Working) | Carpentry | Stonemasonry | Geology", "Engineering Bonus", "", "Measuring cord, knotted, 100 feet"},
  {"Sole Practitioner: Metamorpher", "Mage", "INT DEX CON WIS STR CHA COM", kStaff, "", "Animal Lore | Animal Noise | Disguise", "Quick Change", "", "Cloak, peasant"},
  {"Sole Practitioner: Transporter", "Mage", "INT DEX WIS CON STR CHA COM", kStaff, "", "Map Sense | Cartography, Overland | Distance Sense | Clever Packer", "Quick Movement", "", "Map or scroll case, bone"},
  {"Sole Practitioner: Conjurer", "Mage", "INT CON WIS DEX STR CHA COM", kStaff, "", "Spirit Lore | Animal Lore", "Fast Cast", "", "Chalk, stick"},
  {"Sole Practitioner: Power Speaker", "Mage", "INT CON WIS CHA DEX STR COM", kStaff, "", "Language, Modern | Oration | Language, Ancient/Dead | Chanting", "Knack for Languages", "", ""},
  {"Sole Practitioner: Detective", "Mage", "INT WIS CHA DEX CON STR COM", kStaff, "", "Observation | Glean Information | Interrogation | Trailing | Ulterior Motive", "Detect Secret Doors | Astute Observation", "", "Scarf, wool"},
  {"Sole Practitioner: Seer", "Mage", "INT WIS CHA DEX CON STR COM", kStaff, "", "Fortune Telling | Observation | Religion (general)", "Sixth Sense", "", "Candle, beeswax"},
  {"Sole Practitioner: Itemist", "Mage", "INT CHA CON DEX WIS STR COM", kStaff, "", "Appraising | Appraisal: Gemstone | Blacksmith Tools | Haggle", "Item Savant | Magic Identification", "", "Vial, metal"},
  {"Sole Practitioner: Puppeteer", "Mage", "CHA INT WIS DEX CON COM STR", kStaff, "", "Ventriloquism | Orchestrate Task | Ulterior Motive | Acting", "Taunt", "", "String, ball of twine"},
  {"Sole Practitioner: Hypnotist", "Mage", "DEX INT COM CHA WIS CON STR", kStaff, "", "Seduction, Art of | Fast-Talking | Glean Information", "Ladies Man", "", "Chalk, stick"},
  {"Sole Practitioner: Shadow Weaver", "Mage", "DEX INT WIS CON CHA STR COM", kStaff, "", "Stealthy Movement | Slip Away into Shadows | Weaving", "Stealth | Blind Casting", "", "Hood, cowl"},
  {"Sole Practitioner: Demolitionist", "Mage", "CON INT DEX WIS STR CHA COM", kStaff, "", "Engineering | Vandalism/Desecration | Fire-building | Alchemy", "Precise Targeting | Heat Resistance", "", "Oil, lamp, flask"},
  {"Sole Practitioner: Icer", "Mage", "CON INT DEX WIS STR CHA COM", kStaff, "", "Survival, Winter | Weather Sense | Endurance", "Cold Resistance", "", "Mittens, wool"},
  {"Sole Practitioner: Pyrotechnician", "Mage", "CON INT DEX WIS STR CHA COM", kStaff, "", "Fire-building | Alchemy | Weather Sense", "Heat Resistance", "", "Tinderbox"},
  {"Sole Practitioner: Sniper", "Mage", "CON INT DEX WIS STR CHA COM", kStaff, "", "Camouflage | Distance Sense | Observation", "Precise Targeting | Eagle Eye", "", "Cloak, peasant"},
  {"Sole Practitioner: Animator", "Mage", "INT WIS CON DEX STR CHA COM", kStaff, "", "Anatomy, Basic | Dig Proper Grave | Language, Undead", "Death Magic Bonus", "", "Funeral shroud"},
  {"Sole Practitioner: Exterminator", "Mage", "INT WIS DEX CON STR CHA COM", kStaff, "", "Anatomy, Basic | Intimidation | Identify Poison", "Precise Targeting | Spell Razor", "", ""},
  {"Elementalist: Air", "Mage", "INT CHA DEX CON WIS STR COM", kStaff, "", "Weather Sense | Whistling/Humming | Jumping", "Eagle Eye", "", "Whistle, tin"},
  {"Elementalist: Earth", "Mage", "INT CHA CON STR WIS DEX COM", kStaff, "", "Geology | Mining | Stonemasonry", "Close to the Earth", "", "Chalk, stick"},
  {"Elementalist: Fire", "Mage", "INT CHA DEX CON WIS STR COM", kStaff, "", "Fire-building | Alchemy | Cooking", "Heat Resistance", "", "Tinderbox"},
  {"Elementalist: Water", "Mage", "INT CHA CON DEX WIS STR COM", kStaff, "", "Swimming | Fishing | Boating | Weather Sense", "Aquatic Background", "", "Waterskin, half gallon"},
  {"Painted Mage", "Mage", "INT CON DEX WIS STR CHA COM", kStaff, "", "Spell Tattooing | Artistic Ability | Art Appreciation: Subset: Painting", "Pain Resistance", "", "Needle and thread"},
  {"Wild Mage", "Mage", "INT CON WIS DEX STR CHA COM", kStaff, "", "Gaming | Astrology", "Lucky | Fast Cast", "", ""},
  {"Bounty Hunter", "Wilderness", "STR DEX CON INT WIS CHA COM", "Crossbow: Light | Sword: Short | Lasso | Club | Mancatcher | Dagger", "Chain mail | Studded Leather | Leather | Padded",
   "Tracking | Intimidation | Glean Information | Rope Use | Trailing | Street Cred", "Acute (high) Alertness | Astute Observation", "", "Manacles, human size"},
  {"Gladiator", "Soldier", "STR CON DEX CHA WIS INT COM", "Trident | Sword: Short | Net | Spear | Dagger | Club", "Scale mail | Studded Leather | Leather | Padded",
   "Mortal Combat | Flex Muscle | Taunting, Minor | Tumbling | Brawler | Groin Punch", "Damage Bonus | Critical Hit Bonus", "Shield Specialization", ""},
  {"Pirate (WMA)", "Soldier", "DEX STR CON CHA INT WIS COM", "Sword: Cutlass | Sword: Sabre | Dagger | Crossbow: Light | Club", "Studded Leather | Leather | Padded",
   "Seamanship | Rope Use | Swimming | Navigation, Nautical | Weather Sense | Gaming", "Aquatic Background | Balance Bonus", "", "Bandana | Trousers, sailor's"},
  {"Samurai", "Soldier", "STR DEX CON WIS CHA INT COM", "Sword: Katana | Wakizashi | Spear | Bow: Short | Tanto | Dagger | Sword: Short", "Splint mail | Scale mail | Ring mail | Studded Leather | Leather | Padded",
   "Maintain Self-Discipline | Social Etiquette | Riding, Land-based | Calligraphy | Poetry, Writing and Comprehension", "Sword Bonus | Grace Under Pressure", "", "Sash, silk"},
  {"Soldier", "Soldier", "STR CON INT DEX WIS CHA COM", "Spear | Sword: Short | Crossbow: Light | Polearm: Halberd | Dagger | Club", "",
   "Military: Battle Sense | Entrenchment Construction | Dig Hasty Grave | Camouflage", "Endurance | Hardy Traveler", "Shield Specialization", "Uniform, soldier's | Kit bag, soldier's"},
  {"Swashbuckler", "Soldier", "DEX STR CHA CON INT WIS COM", "Sword: Rapier | Main-gauche | Sword: Sabre | Dagger | Sword: Short | Club", "Studded Leather | Leather | Padded",
   "Tumbling | Snappy Comeback | Taunting, Minor | Graceful Entrance/Exit | Disarm | Gaming | Seduction, Art of", "Grace Under Pressure | Balance Bonus", "", "Hat, feathered"},
  {"Holy Knight", "Knight", "STR CHA DEX CON WIS INT COM", "Sword: Long | Sword: Broad | Dagger | Mace: Horseman's | Lance: Light horse | Mace: Footman's", "",
   "Divine Lore | Rousing Speech | Muster Resolve | Resist Persuasion", "Courage | Sword Bonus", "Shield Specialization", "Holy symbol, iron | Holy symbol, wooden"},
  {"Chosen", "Priest", "CHA WIS CON DEX STR INT COM", "Mace: Footman's | Quarterstaff | Mace: Horseman's | Sling | Club", "", "Rousing Speech | Diplomacy | Leadership: Basic", "Sixth Sense", "", "Vestments, novice's"},
  {"Shaman", "Priest", "WIS CHA STR DEX CON INT COM", "Spear | Quarterstaff | Club | Sling | Dagger", "Hide | Leather | Padded", "Spirit Lore | Animal Lore | Herbalism (Prepare Poison) | Chanting | Botany | Weather Sense", "Sixth Sense", "", "Rattle, gourd"},
  {"Zealot of Aknar (Aknari)", "Zealous priest", "WIS STR CON DEX CHA INT COM", "Spear | Battle axe | Bow: Short | Hand or throwing axe | Dagger", "Hide | Leather | Padded", "Animal Lore | Hunting | Tracking | Woodland Lore", "Animal Friendship", "", ""},
  {"Zealot of Alu (The Gaunt)", "Zealous priest", "WIS CON STR DEX INT CHA COM", "Flail: Footman's | Quarterstaff | Mace: Footman's | Club | Sling", "", "Agriculture | Endurance | Animal Handling", "Endurance", "", "Robe, plain"},
  {"Zealot of Arnuya (Revenger)", "Zealous priest", "WIS DEX STR CON INT CHA COM", "Bow: Short | Spear | Crossbow: Light | Garrote", "Studded Leather | Leather | Padded", "Secret Persona | Tracking | Stealthy Movement | Disguise", "Stealth", "", "Hood, cowl"},
  {"Zealot of Bast (Bastettes)", "Zealous priest", "WIS DEX CHA CON STR INT COM", "Sword: Short | Dagger | Javelin | Dart | Club", "Leather | Padded", "Stealthy Movement | Tumbling | Animal Lore | Jumping | Graceful Entrance/Exit", "Balance Bonus", "", "Kerchief, linen"},
  {"Zealot of Benyar (Imperious)", "Zealous priest", "CHA WIS INT CON STR DEX COM", "Spear | Trident | Sword: Short | Dagger", "", "Leadership: Basic | Orchestrate Task | Diplomacy | Administration", "Grace Under Pressure", "", "Vestments, novice's"},
  {"Zealot of Camaxtli (Expounder)", "Scholarly priest", "WIS INT CHA CON DEX STR COM", "Quarterstaff | Mace: Footman's | Club | Sling", "", "Fortune Telling | Astrology | Observation", "Sixth Sense | Prophesy", "", "Candle, beeswax"},
  {"Zealot of Deneir (Deneiri)", "Scholarly priest", "INT WIS CON CHA DEX STR COM", "Quarterstaff | Mace: Footman's | Dagger | Sling", "", "Calligraphy | Penmanship | Artistic Ability | Speed Reading", "Photographic Memory", "", ""},
  {"Zealot of Draper (Clandestine)", "Zealous priest", "DEX WIS INT CHA CON STR COM", "Sword: Rapier | Dagger | Stiletto | Bow: Short | Dart", "Leather | Padded", "Stealthy Movement | Glean Information | Disguise | Trailing | Liar, Skilled", "Stealth | Forgettable Face", "", "Hood, cowl"},
  {"Zealot of Druaga (Droog)", "Zealous priest", "CHA WIS INT CON STR DEX COM", "Morning Star | Mace: Footman's | Spear | Dagger | Club", "", "Liar, Skilled | Ulterior Motive | Orchestrate Task | Evil Speak", "Grace Under Pressure", "", ""},
  {"Zealot of Enlil (Bombard)", "Zealous priest", "STR WIS CON DEX CHA INT COM", "Warhammer | Battle axe | Mace: Footman's | Sling | Club", "", "Weather Sense | Weapon Maintenance | Endurance | Angawa Battle Cry", "Endurance", "", ""},
  {"Zealot of The Feeble Gawd (Oracle)", "Scholarly priest", "WIS INT CHA CON DEX STR COM", "Quarterstaff | Club | Dagger | Sling", "none", "Fortune Telling | Astrology | Interpret/Perfom Mime", "Sixth Sense | Prophesy", "", "Robe, plain"},
  {"Zealot of Francor'Dieus (Earther)", "Zealous priest", "CON WIS STR INT DEX CHA COM", "Pick: Footman's | Battle axe | Sword: Short | Dagger", "", "Geology | Mining | Stonemasonry | Survival, Underground", "Close to the Earth | Defensive Bonus", "", "Chalk, stick"},
  {"Zealot of Grawdyng (Charnelist)", "Zealous priest", "WIS INT CON STR DEX CHA COM", "Mace: Footman's | Warhammer | Club | Sling", "", "Anatomy, Basic | Dig Proper Grave | Dig Hasty Grave | Botany", "Death Magic Bonus", "", "Funeral shroud"},
  {"Zealot of Gronfyr (Greaver)", "Zealous priest", "STR CON WIS DEX CHA INT COM", "Battle axe | Sword: Broad | Morning Star | Hand or throwing axe | Club", "", "Angawa Battle Cry | Flex Muscle | Endurance", "Damage Bonus", "", ""},
  {"Zealot of Gruumsh (Tang)", "Zealous priest", "STR CON WIS DEX CHA INT COM", "Spear | Battle axe | Sword: Broad | Javelin | Club", "", "Dirty Fighting | Eye Gouge | Angawa Battle Cry", "Damage Bonus | Tough Hide", "", ""},
  {"Zealot of Hokalas (Keyholder)", "Scholarly priest", "WIS INT DEX CON CHA STR COM", "Dagger | Dirk | Knife", "none", "Arcane Lore | Spellcraft | Locksmithing", "Concentration | Quick Casting", "", "Robe, plain"},
  {"Zealot of Ikka Pataang (Druid)", "Wilderness", "WIS CHA CON DEX STR INT COM", "Spear | Sickle | Quarterstaff | Club | Sling | Dagger", "Hide | Leather | Padded", "Botany | Animal Lore | Animal Handling | Woodland Lore | Religion (general)", "Animal Friendship", "", "Holy symbol, wooden | Sickle"},
  {"Zealot of Kazaar-Freem (Peacenik)", "Scholarly priest", "WIS CHA INT CON DEX STR COM", "Quarterstaff | Club", "none", "Diplomacy | Parley | Healing | Interpret/Perfom Mime", "Receptive Healer", "", "Prayer flags, string"},
  {"Zealot of Kishijoten (Fortune)", "Scholarly priest", "WIS CHA DEX CON INT STR COM", "Mace: Horseman's | Quarterstaff | Club | Dagger | Dart", "", "Gaming | Fortune Telling | Poker Face", "Opportunist (skill/trait) | Lucky", "", "Sash, silk"},
  {"Zealot of Kuchooloo (Kuchoo)", "Zealous priest", "WIS CON STR INT DEX CHA COM", "Scourge | Sword: Short | Morning Star | Dagger | Club", "", "Evil Speak | Intimidation | Chanting", "Sixth Sense", "", ""},
  {"Zealot of Lathander (Morninglord)", "Priest", "WIS CHA CON STR DEX INT COM", kMaces, "", "Muster Resolve | Rousing Speech | Healing", "Courage", "", "Vestments, novice's"},
  {"Zealot of Loviatar, (Inflictor)", "Zealous priest", "WIS CON STR COM DEX CHA INT", "Scourge | Whip | Mace: Footman's | Dagger | Club", "Leather | Padded", "Torture | Art of Beating | Taunting, Minor", "Pain Resistance", "", ""},
  {"Zealot of Luvia (Scale)", "Scholarly priest", "WIS INT CHA CON STR DEX COM", "Mace: Footman's | Quarterstaff | Warhammer | Club | Sling", "Chain mail | Ring mail | Leather | Padded", "Rules of Fair Play | Poker Face | Interrogation | Ulterior Motive", "Astute Observation", "", "Balance scale, merchant's"},
  {"Zealot of Mangrus (Plague)", "Zealous priest", "CON WIS DEX STR INT CHA COM", "Sword: Scimitar | Battle axe | Sword: Short | Dagger", "Leather | Padded", "Herbalism (Prepare Poison) | Botany | Interrogation", "Good Immune System | Poison Bonus", "", ""},
  {"Zealot of Markovia (Sopie)", "Priest", "WIS CON DEX STR CHA INT COM", "Trident | Spear | Harpoon | Dagger", "Leather | Padded", "Swimming | Fishing | Boating | Seamanship | Weather Sense", "Aquatic Background", "", "Fishing line, 100 feet"},
  {"Zealot of Navinger (Navaro)", "Wilderness", "WIS CHA DEX COM CON STR INT", "Bow: Short | Spear | Dagger | Dart", "Leather | Padded", "Hunting | Religion (general) | Woodland Lore | Animal Lore", "Bow Bonus", "", "Holy symbol, wooden"},
  {"Zealot of Nephthys (Profit)", "Scholarly priest", "WIS INT CHA CON DEX STR COM", "Mace: Horseman's | Dagger | Quarterstaff | Club", "", "Appraising | Haggle | Bartering | Administration", "Expert Haggler", "", "Balance scale, merchant's"},
  {"Zealot of Nudor (Flagellant)", "Zealous priest", "WIS CON CHA STR DEX INT COM", "Scourge", "none", "Healing | Endurance | First Aid: Sew Wounds", "Thick Blood | Pain Resistance", "", "Robe, plain"},
  {"Zealot of Odin (Odinite)", "Zealous priest", "STR WIS CON CHA DEX INT COM", "Spear | Battle axe | Sword: Long | Dagger | Club", "", "Poetry, Writing and Comprehension | Glean Information | Endurance", "Spear Bonus | Courage", "Shield Specialization", ""},
  {"Zealot of Oghma (Knower)", "Scholarly priest", "INT WIS CHA CON DEX STR COM", "Quarterstaff | Mace: Footman's | Club | Sling", "", "Speed Reading | Penmanship | Arcane Lore", "Photographic Memory", "", ""},
  {"Zealot of Pangrus (Pangrite)", "Zealous priest", "STR CON WIS CHA DEX INT COM", "Sword: Broad | Spear | Sword: Short | Bow: Short | Javelin", "Splint mail | Chain mail | Scale mail | Ring mail | Studded Leather | Leather | Padded", "Military: Battle Sense | Leadership: Basic | Weapon Maintenance | Armor Maintenance", "Damage Bonus", "Shield Specialization", ""},
  {"Zealot of Par'Kryus (Wafter)", "Zealous priest", "WIS CHA DEX INT CON STR COM", "Bow: Short | Spear | Javelin | Dart | Dagger | Club", "Leather | Padded", "Astrology | Weather Sense | Woodland Lore | Jumping", "Eagle Eye", "", "Whistle, tin"},
  {"Zealot of P'Rakeke (Purger)", "Zealous priest", "WIS CHA STR CON DEX INT COM", "Mace: Footman's | Whip | Quarterstaff | Dagger | Club", "", "Rope Use | Local History | Ancient History | Reading/Writing", "Burst of Speed", "", "Rope, hemp, 50 feet"},
  {"Zealot of Pyremius (Pyrophiles)", "Zealous priest", "WIS CON INT STR DEX CHA COM", "Spear | Sword: Short | Trident | Dagger", "Leather | Padded", "Fire-building | Botany | Alchemy", "Heat Resistance | Poison Bonus", "", "Oil, lamp, flask | Tinderbox"},
  {"Zealot of Set (Cobra)", "Zealous priest", "WIS INT CHA DEX CON STR COM", "Spear | Sword: Khopesh | Dagger | Blowgun | Club", "Leather | Padded", "Ulterior Motive | Identify Poison | Stealthy Movement | Liar, Skilled", "Poison Bonus", "", ""},
  {"Zealot of Shang-Ti (Warder of Order)", "Scholarly priest", "INT WIS CHA CON STR DEX COM", "Sword: Long | Quarterstaff | Spear | Club | Dagger", "Chain mail | Leather | Padded", "Administration | Leadership: Basic | Diplomacy | Knowledge of Courtly Affairs", "Grace Under Pressure", "", "Vestments, novice's"},
  {"Zealot of Shona (Shonite)", "Zealous priest", "DEX WIS STR INT CON CHA COM", "Quarterstaff | Spear | Nunchaku | Dagger | Club", "none", "Maintain Self-Discipline | Pugilism | Crane | Tumbling | Cricket-in-the-Pea-Pod", "Balance Bonus", "Punching Specialization", "Robe, plain"},
  {"Zealot of Skraad (Toiler)", "Priest", "WIS CON STR DEX INT CHA COM", "Warhammer | Mace: Footman's | Club | Sling", "", "Blacksmith Tools | Blacksmithing | Metalworking | Weapon Maintenance", "Endurance | Concentration", "", "Hammer, carpenter's"},
  {"Zealot of Sumar-Fareen (Ardorheart)", "Scholarly priest", "COM CHA WIS CON DEX INT STR", "Lasso | Net", "none", "Seduction, Art of | Social Etiquette | Dancing (Ballroom) | Mingling (Balls, Parties)", "Ladies Man | Divine Shield", "", "Robe, silk"},
  {"Zealot of Thor (Thunorite)", "Zealous priest", "STR CON WIS CHA DEX INT COM", "Warhammer | Mace: Footman's | Mace: Horseman's | Club", "", "Angawa Battle Cry | Weather Sense | Flex Muscle | Rousing Speech", "Damage Bonus | Courage", "Shield Specialization", "Horn, battle, ox"},
  {"Zealot of Thrain (Skite)", "Priest", "WIS CON STR INT DEX CHA COM", "Pick: Footman's | Spear | Morning Star | Sword: Short | Dagger", "", "Map Sense | Mountaineering | Geology | Clever Packer", "Hardy Traveler", "", "Chalk, stick"},
  {"Zealot of Tobadzistini (Brave)", "Zealous priest", "STR CON DEX WIS CHA INT COM", "Spear | Bow: Short | Hand or throwing axe | Dagger | Club", "Hide | Leather | Padded", "Hunting | Tracking | Angawa Battle Cry | Running", "Bow Bonus | Courage", "", ""},
  {"Zealot of Yiders (Yidinator)", "Zealous priest", "STR CON WIS DEX CHA INT COM", "Warhammer | Mace: Footman's | Mace: Horseman's | Mace: Footman's, Large", "", "Flex Muscle | Brawler | Intimidation | Attitude Adjustment", "Damage Bonus | Tough Hide", "", ""},
  {"Zealot of Yi-Gor (Visionite)", "Zealous priest", "WIS DEX CON INT STR CHA COM", "Dagger", "Leather | Padded", "Anatomy, Basic | Fortune Telling | Surgery Tools/Suture Kit", "Sixth Sense | Dagger Bonus", "", ""},
  {"Zealot of Zelaur (Natas Gangites)", "Zealous priest", "CHA DEX WIS CON INT STR COM", "Sword: Long | Battle axe | Sword: Scimitar | Hand or throwing axe | Knife", "Leather | Padded", "Mocking Jig | Idle Gossip | Seduction, Art of | Dancing (Ballroom)", "Taunt | Ladies Man", "", "Hat, feathered"},
  {"Zealot of Zeus (Astrapie)", "Zealous priest", "STR WIS CHA CON DEX INT COM", "Javelin | Spear | Great Spear | Dart", "", "Weather Sense | Leadership: Basic | Rousing Speech", "Javelin Bonus | Courage", "", ""},
  {"Zealot of Marlog (Sea Dawgs)", "Zealous priest", "WIS CON DEX STR CHA INT COM", "Mace: Footman's | Net | Dagger | Quarterstaff | Club", "Leather | Padded", "Seamanship | Swimming: Dog Paddle | Swimming | Boating | Weather Sense", "Aquatic Background", "", "Trousers, sailor's"},
  {"Acrobat", "Rogue", "DEX STR CON CHA INT WIS COM", kBlades, "Leather | Padded", "Tumbling | Tightrope Walking | Jumping | Juggling (SWA)", "Balance Bonus | Acrobatic Skill Suite", "", "Grappling hook, iron | Rope, hemp, 50 feet"},
  {"Brigand", "Rogue", "STR DEX CON INT CHA WIS COM", "Sword: Short | Bow: Short | Club | Dagger | Sling", "", "Establish Ambush Zone | Intimidation | Camouflage | Survival, Jungle | Fire-building", "Damage Bonus", "", "Sack, large | Hood, cowl"},
  {"Infiltrator", "Rogue", "DEX INT CON STR WIS CHA COM", kBlades, "Leather | Padded", "Disguise | Locksmithing | Observation | Trailing", "Stealth | Forgettable Face", "", "Hood, cowl"},
  {"Minstrel", "Performer", "DEX CHA WIS INT CON COM STR", kBlades, "", "Pinch | Fast-Talking | Juggling (SWA)", "", "", "Hat, feathered"},
  {"Ninja", "Rogue", "DEX CON CHA INT STR WIS COM", "Ninja-to | Shuriken (throwing stars) | Dagger | Sword: Short | Garrote", "Leather | Padded", "Disguise | Tumbling | Maintain Self-Discipline | Camouflage | Identify Poison", "Stealth | Balance Bonus", "", "Hood, cowl | Tetsu-bishi (caltrops)"},
  {"Pirate (SWA)", "Rogue", "DEX STR CON INT CHA WIS COM", "Sword: Cutlass | Dagger | Crossbow: Light | Club | Sling", "Leather | Padded", "Seamanship | Swimming: Dog Paddle | Boating | Gaming | Weather Sense", "Aquatic Background | Balance Bonus", "", "Bandana | Trousers, sailor's"},
  {"Yakuza", "Rogue", "DEX CHA INT STR CON WIS COM", "Wakizashi | Tanto | Sword: Short | Dagger | Club", "Leather | Padded", "Intimidation | Gaming | Street Cred | Poker Face", "Opportunist (skill/trait)", "", "Sash, silk"},
  {"Realm Channeler (Fire)", "Mage", "INT CHA CON WIS DEX STR COM", kStaff, "", "Fire-building | Alchemy | Spirit Lore", "Heat Resistance | Fast Cast", "", "Tinderbox"},
};

// clang-format on

using Names = std::vector<std::string_view>;

Names NamesOf(std::string_view list) {
  Names names;
  ForEachName(list, [&](std::string_view name) { names.push_back(name); });
  return names;
}

void AddOnce(Names& names, std::string_view name) {
  if (std::ranges::find(names, name) == names.end()) names.push_back(name);
}

/// The names of several lists in turns: the first of each, then the second of each.
Names TakeTurns(const std::vector<Names>& lists) {
  Names taken;
  std::size_t longest = 0;
  for (const Names& list : lists) longest = std::max(longest, list.size());
  for (std::size_t place = 0; place < longest; ++place) {
    for (const Names& list : lists) {
      if (place < list.size()) AddOnce(taken, list[place]);
    }
  }
  return taken;
}

/// What stands in all of the lists, in the order of the first.
Names InAll(const std::vector<Names>& lists) {
  Names shared;
  for (const std::string_view name : lists.front()) {
    const auto holds = [&](const Names& list) { return std::ranges::find(list, name) != list.end(); };
    if (std::ranges::all_of(lists, holds)) shared.push_back(name);
  }
  return shared;
}

const NpcWayOfLife& WayOf(const NpcClassRow& row) {
  const auto found = std::ranges::find(kWaysOfLife, row.WayOfLife, &NpcWayOfLife::Name);
  return found == std::end(kWaysOfLife) ? kWaysOfLife[0] : *found;
}

Names ArmorOf(const NpcClassRow& row) {
  Names armor = NamesOf(row.Armor.empty() ? WayOf(row).Armor : row.Armor);
  std::erase(armor, "none");
  return armor;
}

}  // namespace

std::span<const NpcWayOfLife> NpcWaysOfLife() {
  return kWaysOfLife;
}

std::span<const NpcClassRow> NpcClassRows() {
  return kClassRows;
}

std::vector<std::string_view> NpcSingleClasses(std::string_view className) {
  std::vector<std::string_view> classes;
  while (!className.empty()) {
    const std::size_t stroke = className.find('/');
    classes.push_back(className.substr(0, stroke));
    className.remove_prefix(stroke == std::string_view::npos ? className.size() : stroke + 1);
  }
  return classes;
}

NpcWants NpcWantsOf(std::string_view className) {
  std::vector<const NpcClassRow*> rows;
  for (const std::string_view single : NpcSingleClasses(className)) {
    const auto found = std::ranges::find(kClassRows, single, &NpcClassRow::Class);
    if (found != std::end(kClassRows)) rows.push_back(&*found);
  }
  if (rows.empty()) return {};
  const auto ofClasses = [&](std::string_view NpcClassRow::*list) {
    std::vector<Names> lists;
    for (const NpcClassRow* row : rows) lists.push_back(NamesOf(row->*list));
    return lists;
  };
  const auto ofWays = [&](std::string_view NpcWayOfLife::*list) {
    std::vector<Names> lists;
    for (const NpcClassRow* row : rows) lists.push_back(NamesOf(WayOf(*row).*list));
    return lists;
  };
  // What the classes want comes before what their ways of life bring.
  const auto both = [&](std::string_view NpcClassRow::*own, std::string_view NpcWayOfLife::*way) {
    Names names = TakeTurns(ofClasses(own));
    for (const std::string_view name : TakeTurns(ofWays(way))) AddOnce(names, name);
    return names;
  };
  std::vector<Names> armor;
  for (const NpcClassRow* row : rows) armor.push_back(ArmorOf(*row));
  const bool wearsArmor = std::ranges::none_of(armor, &Names::empty);
  return {.Abilities = TakeTurns([&] {
            std::vector<Names> lists;
            for (const NpcClassRow* row : rows) {
              Names& names = lists.emplace_back();
              const std::string_view order = row->Abilities;
              for (std::size_t at = 0; at + 3 <= order.size(); at += 4) names.push_back(order.substr(at, 3));
            }
            return lists;
          }()),
          .Weapons = TakeTurns(ofClasses(&NpcClassRow::Weapons)),
          .Armor = InAll(armor),
          .Shields = wearsArmor ? InAll(ofWays(&NpcWayOfLife::Shields)) : Names{},
          .Skills = both(&NpcClassRow::Skills, &NpcWayOfLife::Skills),
          .Talents = both(&NpcClassRow::Talents, &NpcWayOfLife::Talents),
          .Styles = TakeTurns(ofClasses(&NpcClassRow::Styles)),
          .Goods = both(&NpcClassRow::Goods, &NpcWayOfLife::Goods),
          .Packs = TakeTurns(ofWays(&NpcWayOfLife::Packs))};
}

}  // namespace veld
