#include "rules/class_grants.h"

#include "text/search.h"

namespace veld {

namespace {

enum class Background { Either, With, Without };

/// What a class grants.
struct GrantLine {
  std::string_view ClassName;
  Background When;  ///< with or without the military background tables
  GrantText Grants;
};

// A mastery that is set stands before the purchases that ask for it.
// clang-format off
constexpr GrantLine kGrants[] = {
  {"Barbarian", Background::Without,
   "Tracking | [tracking aside]"},
  {"Barbarian", Background::With,
   "[survival pick] | Holistic First Aid | Outdoor Craft | Tracking | [tracking aside] | Wild Animal Handling | "
   "new Riding, Land-based: Horse | pick F6 | Wilderness Running | Makeshift Small Craft, Paddled | "
   "Makeshift Small Craft, Rowed | Sound Mimicry | Set Snares"},
  {"Knight Errant", Background::Without,
   "Metalworking=50 | Blacksmithing=50 | Blacksmith Tools=50 | Leatherworking=50 | Armorer | pick F19 | "
   "talent Blind Fighting | Endurance | Gaming | ?Social Ettiquette | Weaponsmithing"},
  {"Knight Errant", Background::With,
   "pick F19 | talent Blind Fighting | Endurance | Gaming | ?Social Ettiquette"},
  {"Bard", Background::Either,
   "pick F4 | [bard language] | Singing | [bard instrument]"},
  {"Ranger", Background::Either,
   "Tracking"},
  {"Painted Mage", Background::Either,
   "pick F17 | pick F13 | Art Appreciation: Subset: Painting=50 | Spell Tattooing=75 | Spell Tattooing+1d6 | "
   "Arcane Lore=INT | Arcane Lore+1d6"},
  {"Bounty Hunter", Background::Either,
   "Slip Away into Shadows=50 | Rope Use | Tracking | Stealthy Movement"},
  {"Gladiator", Background::Either,
   "Tumbling | Charioteering"},
  {"Pirate (WMA)", Background::Either,
   "Swimming: Dog Paddle=50 | talent Acrobatic Skill Suite | [pirate skills]"},
  {"Samurai", Background::Either,
   "?Horse | Social Etiquette | MartialStyleDiscount=1"},
  {"Swashbuckler", Background::Either,
   "Tumbling | Social Etiquette | Snappy Comeback | Snappy Comeback+=5 | Tumbling+=5"},
  {"Soldier", Background::Either,
   "Armor Maintenance | Weapon Maintenance | Shaving/Grooming | Dig Hasty Grave | Leadership: Basic | "
   "Military: Battle Sense | [language pick]"},
  {"Holy Knight", Background::Either,
   "pick F19>=50"},
  {"Chosen", Background::Either,
   "Religion (general)=50 | Divine Lore | Ancient History | Astrology | pick F4>=50 | History: World | "
   "Leadership: Basic | Maintenance/Upkeep (General)=100 | Rousing Speech"},
  {"Shaman", Background::Either,
   "Religion (general)=50 | Divine Lore | Leadership: Basic"},
  {"Zealot of Aknar (Aknari)", Background::Either,
   "?Identify Animal By Tracks"},
  {"Zealot of Alu (The Gaunt)", Background::Either,
   "Animal Lore=50 | Animal Handling | Religion (general) | Agriculture | [language pick]"},
  {"Zealot of Arnuya (Revenger)", Background::Either,
   "Slip Away into Shadows=51 | Stealthy Movement=51 | Tracking | Rope Use | Secret Persona"},
  {"Zealot of Bast (Bastettes)", Background::Either,
   "Threat Gesture (Nonverbal gestures - body and hand) | Identify Animal by Tracks"},
  {"Zealot of Benyar (Imperious)", Background::Either,
   "Orchestrate Task=51 | Leadership: Basic=51"},
  {"Zealot of Deneir (Deneiri)", Background::Either,
   "Art Appreciation: Subset: Painting=51 | Art Appreciation: Subset: Sculpture=51 | [first language=90]"},
  {"Zealot of Draper (Clandestine)", Background::Either,
   "Set Snares=26 | Slip Away into Shadows=50 | Stealthy Movement=26 | pick F3 | pick F4>=50 | History: World | "
   "Religion (general) | Fondling (Covert Appraisal Technique) | Forgery | Gaming | Tracking=50 | "
   "Liar, Skilled=50 | Glean Information=50 | Intelligence Gathering | Interrogation | pick F7 | Liar, Skilled | "
   "Looting, Basic | Maintain Self-Discipline | Mimic Dialect | pick F16 | Seduction, Art of | Tumbling"},
  {"Zealot of Druaga (Droog)", Background::Either,
   "Orchestrate Task | pick F17"},
  {"Zealot of Enlil (Bombard)", Background::Either,
   "Armor Maintenance | Weapon Maintenance"},
  {"Zealot of Francor'Dieus (Earther)", Background::Either,
   "Pottery | Stonemasonry | Religion (general) | Geology | Mining | Survival, Underground | Dig Proper Grave"},
  {"Zealot of Grawdyng (Charnelist)", Background::Either,
   "Herbalism (Prepare Poison) | Anatomy, Basic=50 | Anatomy, Vital | Religion (general)"},
  {"Zealot of Gruumsh (Tang)", Background::Either,
   "Dirty Fighting | Eye Gouge"},
  {"Zealot of Hokalas (Keyholder)", Background::Either,
   "Arcane Lore | Arcane Lore>=50 | ?SpellCraft"},
  {"Zealot of Kazaar-Freem (Peacenik)", Background::Either,
   "Parley | Diplomacy"},
  {"Zealot of Kishijoten (Fortune)", Background::Either,
   "Gaming"},
  {"Zealot of Lathander (Morninglord)", Background::Either,
   "Religion (general) | Muster Resolve"},
  {"Zealot of Loviatar, (Inflictor)", Background::Either,
   "Art of Beating=65 | Threat Gesture (Nonverbal gestures - body and hand)=65 | Torture=65 | "
   "Taunting, Minor=51 | Maintain Self-Discipline=51"},
  {"Zealot of Luvia (Scale)", Background::Either,
   "Rules of Fair Play | Religion (general) | pick F1"},
  {"Zealot of Mangrus (Plague)", Background::Either,
   "Interrogation=50 | Herbalism (Prepare Poison)"},
  {"Zealot of Markovia (Sopie)", Background::Either,
   "Weather Sense | Fishing | Rope Use | Seamanship | Swimming: Dog Paddle=50 | Swimming | "
   "talent Elemental Resistance: Water"},
  {"Zealot of Marlog (Sea Dawgs)", Background::Either,
   "Seamanship"},
  {"Zealot of Navinger (Navaro)", Background::Either,
   "Identify Animal by Tracks=51 | Hunting"},
  {"Zealot of Nephthys (Profit)", Background::Either,
   "Appraising | Dig Proper Grave | Appraising+=4 | Dig Proper Grave+=4"},
  {"Zealot of Nudor (Flagellant)", Background::Either,
   "Healing=50 | Herbalism (Prepare Poison)=50 | First Aid Skill Suite=50 | Religion (general) | "
   "talent Endurance | Endurance"},
  {"Zealot of Odin (Odinite)", Background::Either,
   "Resist Persuasion=50"},
  {"Zealot of Oghma (Knower)", Background::Either,
   "pick F17"},
  {"Zealot of Pangrus (Pangrite)", Background::Either,
   "Military: Battle Sense=50 | Leadership: Basic=50 | Military: Small Unit Tactics=50 | "
   "Military: Operations=50 | ?Campaign Logistics | Armor Maintenance | Weapon Maintenance | Attitude Adjustment | "
   "Cricket-in-the-Pea-Pod | Eye Gouge | Pimp Slap (Wuss Slap)"},
  {"Zealot of Par'Kryus (Wafter)", Background::Either,
   "Astrology | Weather Sense | Religion (general) | Woodland Lore | Angawa Battle Cry | Crane | ?Juggling | "
   "pick F12 | Animal Handling | Jumping | pick F19 | pick F18"},
  {"Zealot of P'Rakeke (Purger)", Background::Either,
   "Improved Overbearing | Improved Subdual"},
  {"Zealot of Pyremius (Pyrophiles)", Background::Either,
   "Fire-building | Botany>=50 | Herbalism (Prepare Poison) | Plant Identification: Holistic | Art of Beating | "
   "Dirty Fighting | ?Slip Away Into Shadows | Torture | talent Poison Bonus | talent Elemental Resistance: Fire"},
  {"Zealot of Set (Cobra)", Background::Either,
   "Ulterior Motive | talent Blind Fighting"},
  {"Zealot of Shang-Ti (Warder of Order)", Background::Either,
   "Administration=51 | Agriculture=51 | Clever Packer=51 | Diplomacy=51 | Knowledge of Courtly Affairs=51 | "
   "Leadership: Basic=51 | Maintain Self-Discipline=51 | Maintenance/Upkeep (General)=51 | Orchestrate Task=51 | "
   "Shaving/Grooming=51 | Weather Sense=51"},
  {"Zealot of Shona (Shonite)", Background::Either,
   "Maintain Self-Discipline | Gaming | Rules of Fair Play | Rules of Fair Play+=25 | Pugilism"},
  {"Zealot of Skraad (Toiler)", Background::Either,
   "Armor Maintenance | Blacksmith Tools>=51 | Maintenance/Upkeep (General) | Weapon Maintenance | "
   "Blacksmithing | Fire-building | Laborer, General | Blacksmithing>=51 | Metalworking"},
  {"Zealot of Thor (Thunorite)", Background::Either,
   "Leadership: Basic | Weather Sense | Percussion Instrument | Weapon Maintenance | Angawa Battle Cry | "
   "Feign Toughness | Flex Muscle | talent Elemental Resistance: Electricity"},
  {"Zealot of Thrain (Skite)", Background::Either,
   "pick F1 | Geology | pick F4 | History: World | Fire-building | pick F15 | Map Sense | Mountaineering | "
   "Armor Maintenance | Weapon Maintenance | Maintenance/Upkeep (General)"},
  {"Zealot of Sumar-Fareen (Ardorheart)", Background::Either,
   "pick F3 | Religion (general) | Maintenance/Upkeep (General) | Shaving/Grooming | Dig Hasty Grave | "
   "Dig Proper Grave | Seduction, Art of | Graceful Entrance/Exit | Social Etiquette"},
  {"Zealot of Zelaur (Natas Gangites)", Background::Either,
   "?Pimp Slap | Religion (general) | Idle Gossip | pick F4 | History: World | pick F1 | pick F3"},
  {"Zealot of Zeus (Astrapie)", Background::Either,
   "Leadership: Basic | Weather Sense"},
};
// clang-format on

bool IsFor(const GrantLine& line, std::string_view className, bool usesFighterBackground) {
  if (line.When == Background::With && !usesFighterBackground) return false;
  if (line.When == Background::Without && usesFighterBackground) return false;
  const bool anyBarbarian = line.ClassName == "Barbarian" && Contains(className, line.ClassName);
  return anyBarbarian || className == line.ClassName;
}

}  // namespace

std::vector<GrantText> ClassGrants(std::string_view className, bool usesFighterBackground) {
  std::vector<GrantText> grants;
  for (const GrantLine& line : kGrants) {
    if (IsFor(line, className, usesFighterBackground)) grants.push_back(line.Grants);
  }
  return grants;
}

}  // namespace veld
