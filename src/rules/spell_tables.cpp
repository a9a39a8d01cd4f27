#include "rules/spell_tables.h"

#include <algorithm>

#include "text/search.h"

namespace veld {

namespace {

constexpr std::string_view kBetweenNames = "; ";

// Takes the first name off a list.
std::string_view TakeName(std::string_view& names) {
  const std::size_t end = std::min(names.find(kBetweenNames), names.size());
  const std::string_view name = names.substr(0, end);
  names.remove_prefix(std::min(end + kBetweenNames.size(), names.size()));
  return name;
}

// clang-format off

constexpr std::string_view kFirstLevelA =
    "Animate Dead Animals; Bash Door; Compass; Comprehend Languages; Conjure Mount; Copy; Corpse Visage; "
    "Detect Disease; Detect Illusion; Detect Magic; Detect Phase; Detect Undead; Dirty Coins; Diving Rod; Erase; "
    "Find Familiar; Fog Vision; Fool's Silver; Gabal's Magic Aura; Imaginary Friend; Melt; Mend; Merge Coin Pile; "
    "Message; Metal Bug; Phantasmal Force; Pool Gold; Precipitation; Remove Thirst; Run; Throw Voice; "
    "Unseen Servant; Wizard Mark";

constexpr std::string_view kFirstLevelB =
    "Affect Normal Fires; Alarm; Armor; Audible Glamer; Aura of Innocence; Change Self; Cloud Mind; Corpse Visage; "
    "Dancing Lights; Detect Intent; Disable Hand; Faerie Phantoms; Feather Fall; Fluttersoft; Gaze Reflection; "
    "Hesitation; Hold Portal; Jump; Know School; Magic Shield; Phantom Armor; Protection from Evil; "
    "Protection from Insects; Protection from Sunburn; Protective Amulet; Remove Fear; Resist Cold; Resist Fire; "
    "Shift Blame; Smell Immunity; Spider Climb; Spider Hairs; Wall of Fog";

constexpr std::string_view kFirstLevelC =
    "Befriend; Burning Hands; Charm Person; Chill Touch; Chromatic Orb; Color Spray; Enlarge; Evaporate; "
    "Exterminate; Eyes of the Hawk; Fireball, Barrage; Fireball, Sidewinder Factor 1; Firewater; Fist of Stone; "
    "Grease; Hypnotism; Icy Sphere; Jack Punch; Light; Lightning Bug; Magic Missile; Magic Stone; "
    "Minor Sphere of Perturbation; Phantasmal Fireball; Power Word: Cartwheel; Power Word: Moon; "
    "Power Word: Summersault; Push; Shocking Grasp; Sleep; Spook; Taunt";

constexpr std::string_view kThirdLevelAbjurations =
    "Dispel Magic; Dispel Silence; Glyph of Ice; Glyph of Lightning; Glyph of Sniping; Glyph of Wind; Non-Detection; "
    "Proof from Teleport; Protection from Normal Missiles; Quarantine; Ward of Evil";

constexpr std::string_view kFourthLevelAbjurations =
    "Circle of Protection; Exploding Glyph; Fire Trap; Minor Globe of Invulnerbility; Remove Curse; "
    "Wimpel's Dispelling Screen";

constexpr std::string_view kFifthLevelAbjurations =
    "Avoidance; Containment; Dismissal; Jorrel's Private Sanctum; Spell Shield";

constexpr std::string_view kSixthLevelAbjurations =
    "Anti-Animal Shell; Anti-Magic Shell; Break Hex; Globe of Invulnerbility; Invulnerbility to Magical Weapons; "
    "Reginald's Protection from Scrying; Repulsion; Spiritwrack";

constexpr std::string_view kSeventhLevelAbjurations =
    "Banishment; Sequester; Spell Turning; Volley";

constexpr std::string_view kEighthLevelAbjurations =
    "Sanboreg's Random Dispatcher; Dispel Enchantment; Gandle's Spell Immunity; Mind Blank";

constexpr std::string_view kNinthLevelAbjurations =
    "Elemental Aura; Immunity to Undeath; Imprisonment; Jebidiah's Ultimate Circle; Prismatic Sphere; Stabilize";

// Specialist, level, die, the spells that belong to the level, what the books print after them.
constexpr SchoolSection kSchoolSections[] = {
    {"Abjurer",     1,  5,
     "Alarm; Protection from Evil; Protection from Sunburn; Protective Amulet; Remove Fear",
     ""},
    {"Abjurer",     2,  7,
     "Chaos Shield; Filter; Hullman's Baneful Deflector; Magic Missile Reflection; Noonan's Nonsensical Nulifier; "
     "Preserve; Protection from Cantrips",
     kThirdLevelAbjurations},
    {"Abjurer",     3,  6, "", kFourthLevelAbjurations},
    {"Abjurer",     4,  5, "", kFifthLevelAbjurations},
    {"Abjurer",     5,  8, "", kSixthLevelAbjurations},
    {"Abjurer",     6,  4, "", kSeventhLevelAbjurations},
    {"Abjurer",     7,  4, "", kEighthLevelAbjurations},
    {"Abjurer",     8,  6, "", kNinthLevelAbjurations},
    {"Transmuter",  1,  6, "", kFourthLevelAbjurations},
    {"Transmuter",  2,  5, "", kFifthLevelAbjurations},
    {"Transmuter",  3,  8, "", kSixthLevelAbjurations},
    {"Transmuter",  4,  4, "", kSeventhLevelAbjurations},
    {"Transmuter",  5,  4, "", kEighthLevelAbjurations},
    {"Transmuter",  6,  6, "", kNinthLevelAbjurations},
    {"Conjurer",    1,  9,
     "Armor; Conjure Mount; Find Familiar; Grease; Power Word: Cartwheel; Power Word: Moon; Power Word: Summersault; "
     "Push; Unseen Servant",
     ""},
    {"Conjurer",    2,  9,
     "Aname's Extra-Dimensional Mallet; Choke; Glitterdust; Munz's Bolt of Acid; Power Word: Belch; "
     "Power Word: Detect; Power Word: Light; Summon Swarm; Zed's Crystal Dagger",
     kThirdLevelAbjurations},
    {"Conjurer",    3,  6, "", kFourthLevelAbjurations},
    {"Conjurer",    4,  5, "", kFifthLevelAbjurations},
    {"Conjurer",    5,  8, "", kSixthLevelAbjurations},
    {"Conjurer",    6,  4, "", kSeventhLevelAbjurations},
    {"Conjurer",    7,  4, "", kEighthLevelAbjurations},
    {"Conjurer",    8,  6, "", kNinthLevelAbjurations},
    {"Diviner",     1, 10,
     "Detect Disease; Detect Illusion; Detect Magic; Detect Phase; Detect Undead; Diving Rod; Fog Vision; "
     "Horvath's Guess; Identify; Patternweave; Bloodglass; Death Recall; Detect Charm; Detect Evil; "
     "Detect Invisibilty; Detect Life; ESP; Find Traps; Know Alignment; Living Link; Locate Object; Premonition; "
     "Reveal Secret Portal",
     kThirdLevelAbjurations},
    {"Diviner",     2,  6, "", kFourthLevelAbjurations},
    {"Diviner",     3,  5, "", kFifthLevelAbjurations},
    {"Diviner",     4,  8, "", kSixthLevelAbjurations},
    {"Diviner",     5,  4, "", kSeventhLevelAbjurations},
    {"Diviner",     6,  4, "", kEighthLevelAbjurations},
    {"Diviner",     7,  6, "", kNinthLevelAbjurations},
    {"Enchanter",   1,  9,
     "Bind; Deepockets; Fustis's Mnemonic Enhancer; Forget; Murgain's Muster Strength; "
     "Proadus' Uncontrollable Fit of Laughter; Ray of Enfeeblement; Scare; Total Control",
     kThirdLevelAbjurations},
    {"Enchanter",   2,  6, "", kFourthLevelAbjurations},
    {"Enchanter",   3,  5, "", kFifthLevelAbjurations},
    {"Enchanter",   4,  8, "", kSixthLevelAbjurations},
    {"Enchanter",   5,  4, "", kSeventhLevelAbjurations},
    {"Enchanter",   6,  4, "", kEighthLevelAbjurations},
    {"Enchanter",   7,  6, "", kNinthLevelAbjurations},
    {"Illusionist", 1,  6, "", kFourthLevelAbjurations},
    {"Illusionist", 2,  5, "", kFifthLevelAbjurations},
    {"Illusionist", 3,  8, "", kSixthLevelAbjurations},
    {"Illusionist", 4,  4, "", kSeventhLevelAbjurations},
    {"Illusionist", 5,  4, "", kEighthLevelAbjurations},
    {"Illusionist", 6,  6, "", kNinthLevelAbjurations},
    {"Invoker",     1,  6, "", kFourthLevelAbjurations},
    {"Invoker",     2,  5, "", kFifthLevelAbjurations},
    {"Invoker",     3,  8, "", kSixthLevelAbjurations},
    {"Invoker",     4,  4, "", kSeventhLevelAbjurations},
    {"Invoker",     5,  4, "", kEighthLevelAbjurations},
    {"Invoker",     6,  6, "", kNinthLevelAbjurations},
    {"Necromancer", 1,  9,
     "Animate Dead Animals; Blood Missile; Chill Touch; Corpse Visage; Detect Undead; Disable Hand; Exterminate; "
     "Ralph's Placid Arrow; Witherslow",
     ""},
    {"Necromancer", 2, 10,
     "Blood Mark; Blood Thirst; Choke; Death Recall; Disable Foot; Fihrsid's Horrid Armor; Ghoul Touch; "
     "Slow Healing; Spectral Hand; Spy of Derijnah",
     kThirdLevelAbjurations},
    {"Necromancer", 3,  6, "", kFourthLevelAbjurations},
    {"Necromancer", 4,  5, "", kFifthLevelAbjurations},
    {"Necromancer", 5,  8, "", kSixthLevelAbjurations},
    {"Necromancer", 6,  4, "", kSeventhLevelAbjurations},
    {"Necromancer", 7,  4, "", kEighthLevelAbjurations},
    {"Necromancer", 8,  6, "", kNinthLevelAbjurations},
};

constexpr SolePractitioner kSolePractitioners[] = {
    {"Anti-Mage", "Alteration; Illusion; Divination",
     "Noonan's Nonsensical Nullifier; Remove Fear; Protective Amulet; Magic Missile Reflection; "
     "Protection from Cantrips"},
    {"Guardian", "Alteration; Illusion; Divination",
     "Alarm; Protection from Sunburn; Filter; Preserve"},
    {"Constructor", "Abjuration; Necromancy; Conjuration; Summoning",
     "Hold Portal; Mend; Phantom Armor; Precipitation; Wizard Mark; Shatter; Wizard Lock"},
    {"Metamorpher", "Abjuration; Necromancy; Conjuration; Summoning",
     "Enlarge; Firewater; Metal Bug; Alter Self; Chaotic Transformation; Elenwyd's Majestic Bosom; "
     "Galinor's Gender Reversal; Strength; Tattoo of Shame"},
    {"Transporter", "Abjuration; Necromancy; Conjuration; Summoning",
     "Feather Fall; Jump; Merge Coin Pile; Pool Gold; Spider Climb; Cheetah Speed; Fire Telekinesis; Levitate; "
     "Rope Trick"},
    {"Conjurer", "Divination; vocation; Alteration",
     "Armor; Grease; Push; Aname's Extra-Dimensional Mallet; Glitterdust; Munz's Bolt of Acid"},
    {"Power Speaker", "Divination; vocation; Alteration",
     "Power Word: Cartwheel; Power Word: Moon; Power Word: Summersault; Power Word: Belch; Power Word: Detect; "
     "Power Word: Light"},
    {"Detective", "Conjuration; Summoning; Abjuration",
     "Detect Disease; Detect Magic; Detect Phase; Detect Undead; Detect Evil; Detect Invisibility; Detect Life"},
    {"Seer", "Conjuration; Summoning; Abjuration",
     "Divining Rod; Fog Vision; Death Recall; Premonition"},
    {"Itemist", "vocation; Necromancy",
     "Magic Stone; Protective Amulet; Bind; Deeppockets"},
    {"Puppeteer", "vocation; Necromancy",
     "Hypnotism; Run; Shift Blame; Sleep; Taunt; Murgain's Muster Strength; Ray of Enfeeblement; Scare; Total Control"},
    {"Hypnotist", "Necromancy; vocation",
     "Audible Glamer; Phantsmal Force; Smell Immunity; Spook; Deafness; Fascinate; Hypnotic Pattern; Misdirection"},
    {"Shadow Weaver", "",
     "Imaginary Friend; Phantom Armor; Dancing Shadows; Deepen Shadows"},
    {"Demolitionist", "Enchantment; Charm; Conjuration; Summoning; Illusion",
     "Bash Door; Jack Punch; Kachirut's Exploding Palm; Cloud of Pummeling Fists; Heat Seeking Fist of Thunder; "
     "Kachirut's Kinetic Strike"},
    {"Icer", "Enchantment; Charm; Conjuration; Summoning; Illusion",
     "Icy Sphere; Resist Cold; Wall of Fog; Ice Knife; Zed's Crystal Dagger"},
    {"Pyrotechnician", "Enchantment; Charm; Conjuration; Summoning; Illusion",
     "Fireball, Sidewinder Factor 1; Resist Fire; Chain of Fire; Fireball, Sidewinder Factor 2; "
     "Fireball, Skipping Betty; Flaming Sphere"},
    {"Sniper", "Enchantment; Charm",
     "Magic Missile; Magic Shield; Magic Missile of Skewering; Magic Missile 2; Shield Screen"},
    {"Animator", "Enchantment; Charm",
     "Animate Dead Animals; Corpse Visage; Detect Undead; Death Recall; Fihrsid's Horrid Armor; Ghoul Touch; "
     "Spectral Hand"},
    {"Exterminator", "",
     "Disable Hand; Exterminate; Choke; Disable Foot; Slow Healing"},
};

// clang-format on

}  // namespace

std::string_view NameList::Name(int n) const {
  std::string_view rest = Names;
  for (int skipped = 1; skipped < n; ++skipped) TakeName(rest);
  return n >= 1 ? TakeName(rest) : std::string_view{};
}

int NameList::Count() const {
  int count = 0;
  for (std::string_view rest = Names; !rest.empty(); TakeName(rest)) ++count;
  return count;
}

bool NameList::AnyIn(std::string_view text) const {
  for (std::string_view rest = Names; !rest.empty();) {
    if (Contains(text, TakeName(rest))) return true;
  }
  return false;
}

NameList FirstLevelSpells(FirstLevelTable table) {
  if (table == FirstLevelTable::A) return {kFirstLevelA};
  return {table == FirstLevelTable::B ? kFirstLevelB : kFirstLevelC};
}

std::string_view FirstLevelSpell(FirstLevelTable table, int roll) {
  if (roll < 1 || roll >= kExtraSpellRoll) return {};
  return FirstLevelSpells(table).Name((roll - 1) / 3 + 1);
}

FirstLevelTable FirstLevelTableOf(int roll) {
  if (roll <= 100) return FirstLevelTable::C;
  return roll <= 200 ? FirstLevelTable::B : FirstLevelTable::A;
}

std::string_view SchoolSection::Spell(int roll) const {
  if (roll < 1 || roll > Die) return {};
  const int own = Spells.Count();
  return roll <= own ? Spells.Name(roll) : After.Name(roll - own);
}

std::span<const SchoolSection> SchoolSections() {
  return kSchoolSections;
}

const SchoolSection* FindSchoolSection(std::string_view specialist, int level) {
  for (const SchoolSection& section : kSchoolSections) {
    if (section.Specialist == specialist && section.Level == level) return &section;
  }
  return nullptr;
}

const SpecialistSchool* FindSpecialist(std::string_view className) {
  for (const SpecialistSchool& school : SpecialistSchools) {
    if (Contains(className, school.Specialist)) return &school;
  }
  return nullptr;
}

std::span<const SolePractitioner> SolePractitioners() {
  return kSolePractitioners;
}

const SolePractitioner* FindSolePractitioner(std::string_view className) {
  constexpr std::string_view group = "Sole Practitioner: ";
  const std::size_t at = className.find(group);
  if (at == std::string_view::npos) return nullptr;
  for (const SolePractitioner& practitioner : kSolePractitioners) {
    if (className.substr(at + group.size()).starts_with(practitioner.Practice)) return &practitioner;
  }
  return nullptr;
}

}  // namespace veld
