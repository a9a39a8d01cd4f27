#include "rules/skill_prices.h"

#include <cstddef>

#include "rules/skill_table.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr std::string_view kGnomeTitan = "Gnome Titan";

// clang-format off

// Who, which skills, what it does to the price. From the top, each rule on what those before it left.
constexpr PriceRule kSkillPriceRules[] = {
  {{.IsThief = 1},                        {.Names = "Trailing"}, Becomes(1)},
  {{},                                    {.Names = "Maintain Self-Discipline"}, kSelfDisciplinePrice},
  {{.Package = "Myrmidon"},               {.Names = "Armorer | Armor Repair, Basic | Armor Repair, Advanced | "
                                                    "Armor Repair, Expert | Blacksmithing | Bowyer/Fletcher | "
                                                    "Cartography, Hasty Mapping | Cartography, Overland | "
                                                    "Construction: Defense Works | Construction: Fortifications | "
                                                    "Construction: Hasty Defense Works | "
                                                    "Construction: Siege Works | Heraldry | Leatherworking | "
                                                    "Navigation, Nautical | Seamanship | Tracking | "
                                                    "Weaponsmithing"}, Less(1)},
  {{.Package = "Noble Warrior"},          {.Names = "Gaming | History: World"}, Less(1)},
  {{.Package = "Savage"},                 {.Names = "Healing | Herbalism (Prepare Poison) | "
                                                    "Plant Identification: Holistic | Tracking | "
                                                    "Tumbling"}, Less(1)},
  {{.Package = "Falconer"},               {.Names = "Leatherworking"}, Becomes(2)},
  {{},                                    {}, kAtLeastOne},
  {{.IsMage = 1},                         {.Category = SkillCategory::Academia}, kHalved},
  {{.NotRace = kGnomeTitan, .IsMage = 1}, {.Category = SkillCategory::Combat}, kDoubled},
  {{.Race = kGnomeTitan, .IsMage = 0},    {.Category = SkillCategory::Combat}, kHalved},
  {{.LevelIn = {ClassRow::SeaDawg}},      {.Names = "Mingling (Balls, Parties) | Shipwright Skill Suite"}, Becomes(5)},
  {{.LevelIn = {ClassRow::Thunorite}},    {.Names = "Mingling (Balls, Parties) | Mortal Combat"}, Less(2)},
  {{.LevelIn = {ClassRow::Ardorheart}},   {.Names = "Mingling (Balls, Parties) | Divine Lore"}, Less(1)},
  {{.LevelIn = {ClassRow::Pangrite}},     {.Names = "Engineering: Fortifications | Leadership: Basic | "
                                                    "Military: Battle Sense | Military: Leadership | "
                                                    "Military: Operations | Military: Small Unit Tactics | "
                                                    "Armorer | Armor Repair, Basic | Armor Repair, Advanced | "
                                                    "Armor Repair, Expert | Cartography, Overland | "
                                                    "Maintain Self-Discipline | Recruit Army | "
                                                    "Shield Repair, Metal | Shield Repair, Wood | Distraction | "
                                                    "Feint | Improve Cover | Improved Overbearing | "
                                                    "Improved Subdual | Weaponsmithing"}, Less(1)},
  {{.LevelIn = {ClassRow::Gangite}},      {.Names = "Divine Lore | Crane | Mocking Jig | Manu Weasel Dance"}, Less(1)},
  {{.LevelIn = {ClassRow::Shonite}},      {.Names = "Crane | Cricket-in-the-Pea-Pod | Eye of the Tiger Advantage | "
                                                    "Kidney Bruiser | Mortal Combat",
                                           .Range = {SkillRow::FirstMartialStyle, SkillRow::LastMartialTraining}},
   kHalved},
  {{.LevelIn = {ClassRow::Toiler}},       {.Names = "Armorer | Shield Repair, Metal | Shield Repair, Wood | "
                                                    "Weaponsmithing"}, Less(2)},
  {{.LevelIn = {ClassRow::Skite}},        {.Names = "Divine Lore | Clever Packer | Mapless Travel | "
                                                    "Survival Skill Suite | Survival, Desert | Survival, Jungle | "
                                                    "Survival, Underground | Survival, Winter"}, Less(1)},
  {{.LevelIn = {ClassRow::Droog}},        {.Names = "Liar, Skilled"}, Becomes(2)},
  {{.LevelIn = {ClassRow::Scale}},        {.Names = "Poker Face", .NotHeld = true}, Becomes(1)},
  {{.LevelIn = {ClassRow::PowerSpeaker}}, {.Category = SkillCategory::Language}, kHalved},
  {{.LevelIn = {ClassRow::Hypnotist}},    {.Names = "Dragon Speak"}, kHalved},
  {{.Race = kGnomeTitan},                 {.NameHolding = "Military"}, kHalved},
};

// The same for the skill families.
constexpr PriceRule kFamilyPriceRules[] = {
  {{.Package = "Myrmidon"},               {.Names = "Reading/Writing"}, Less(1)},
  {{.Package = "Noble Warrior"},          {.Names = "Animal Training | Local History | Brass Instrument | "
                                                    "Exotic Instrument | Stringed Instrument | Wind Instrument | "
                                                    "Reading/Writing"}, Less(1)},
  {{.Package = "Savage"},                 {.Names = "Animal Training"}, Less(1)},
  {{},                                    {}, kAtLeastOne},
  {{.IsMage = 1},                         {.Category = SkillCategory::Academia}, kHalved},
  {{.NotRace = kGnomeTitan, .IsMage = 1}, {.Category = SkillCategory::Combat}, kDoubled},
  {{.Race = kGnomeTitan, .IsMage = 0},    {.Category = SkillCategory::Combat}, kHalved},
  {{.Race = kGnomeTitan},                 {.NameHolding = "Military"}, kHalved},
  {{.LevelIn = {ClassRow::PowerSpeaker}}, {.Names = "Reading/Writing"}, kHalved},
};

struct PackageList {
  std::string_view Package;
  std::string_view Skills;
  std::string_view Families;
};

// What the packages with BP of their own pay for.
constexpr PackageList kPackageLists[] = {
  {"Hermit",  "Glersee (Trail Markers) | Weather Sense | Identify Animal by Tracks | Culinary Arts | Endurance | "
              "Fire-building | Hunting | First Aid: Sew Own Wounds | Map Sense | Mapless Travel | Set Snares | "
              "Skinning | Survival, Desert | Survival, Jungle | Survival, Underground | Survival, Winter | "
              "Swimming: Dog Paddle | Track Game | Weaving",
              "Forage for Food | Reading/Writing"},
  {"Scholar", "Agriculture | Alchemy | Arcane Speak | Anatomy, Basic | Animal Lore | Astrology | Botany | "
              "Engineering | Forestry | Geology | Heraldry | Religion (general)",
              "Culture | Customs and Etiquette"},
};

struct ExtraRollRule {
  Who For;
  Rows Of;
  int Rolls;
  int Extra;
  bool AsksAmazon = false;
};

// Further rolls of the course die. Extra above 1, and 0 with further rolls, look like slips and are kept. So does the
// missing rule of the myrmidon (military leadership, operations, small unit tactics: 1, 1): it was held against the
// skill's name in place of the package's, and nobody ever had it.
constexpr ExtraRollRule kExtraRollRules[] = {
  {{.LevelIn = {ClassRow::Peacenik}},     {.Names = "Diplomacy"}, 2, 0},
  {{.LevelIn = {ClassRow::Droog}},        {.Names = "Dragon Speak | Liar, Skilled | Orchestrate Task"}, 1, 1},
  {{.LevelIn = {ClassRow::Expounder}},    {.Names = "Astrology"}, 2, 2},
  {{.LevelIn = {ClassRow::Swashbuckler}}, {.Category = SkillCategory::Social,
                                           .Except = "Feign Toughness | Flex Muscle | Intimidation | "
                                                     "Street Cred"}, 1, 1},
  {{.LevelIn = {ClassRow::Swashbuckler}}, {.Names = "Tumbling"}, 1, 1},
  {{.LevelIn = {ClassRow::Pirate, ClassRow::SwindlingPirate}}, {.Names = "Tightrope Walking | Weather Sense"}, 1, 1},
  {{.LevelIn = {ClassRow::BountyHunter}}, {.Names = "Berate | Feign Toughness | Flex Muscle | Glean Information | "
                                                    "Intimidation | Poker Face | Resist Persuasion | Street Cred | "
                                                    "Taunting, Major | Taunting, Minor | "
                                                    "Threat Gesture (Nonverbal gestures - body and hand) | "
                                                    "Ulterior Motive"}, 1, 1},
  {{.AmazonDoubleRoll = true},            {.Names = "Bowyer/Fletcher | Hunting | Running | Track Game | "
                                                    "Tracking"}, 0, 0, true},
};

/// Skills of which some must be held in the end. The count runs on from one demand to the next.
struct SkillDemand {
  Who For;
  std::string_view Skills;
  std::string_view Families;
  int Least;
  std::string_view Refusal;
};

constexpr SkillDemand kSkillDemands[] = {
  {{.Class = "Zealot of P'Rakeke (Purger)"},
   "Rope Use", "Local History | Ancient History | Reading/Writing", 4,
   "The Zealot of P'Rakeke requires that you purchase the following skills: Rope Use, Local History, Ancient History "
   "and Reading/Writing. If you lack the BP's to make these purchases simply hit the ABORT button, pick up your copy "
   "of the Devotee's Almanac to Erdra Conversion and do some reading."},
  {{.Package = "Amazon"},
   "Bowyer/Fletcher | Hunting | Running | Track Game | Tracking", "Riding, Land-based", 3,
   "The Amazon Package requires that you purchase three of the following skills: Bowyer/Fletcher, Hunting, Land-based "
   "Riding, Running, Track Game and Tracking. If you lack the BP's to make these purchases simply hit the ABORT "
   "button, pick up your copy of the Warmonger's Almanac to Slaughtering Foes and do some reading."},
  {{.Package = "Wilderness Warrior"},
   "Animal Handling | Fire-building | Fishing | Forestry | Carpentry Tools (Wood Working) | Mountaineering | "
   "Seamanship | Set Snares | Swimming | Track Game", "Animal Training | Riding, Land-based", 2,
   "The Wilderness Warrior Package requires that you purchase two (appropriate to native enviorment) of the following "
   "skills: Animal handling, Animal Training, Fire-building, fishing, Forestry, Land-based Riding, Mountaineering, "
   "Seamanship, Set Snares, Swimming and Track Game. If you lack the BP's to make these purchases simply hit the ABORT "
   "button, pick up your copy of the Warmonger's Almanac to Slaughtering Foes and do some reading."},
};

// clang-format on

constexpr int kNeededMastery = 50;

/// The record of a row in use, nullptr for any other.
template <typename Table>
const SkillRecord* InUse(const Table& table, int row) {
  const auto at = static_cast<std::size_t>(row);
  return row >= 0 && at < table.size() && table[at].Category > 0 ? &table[at] : nullptr;
}

const SkillRecord* Skill(int row) {
  return InUse(SkillTable(), row);
}
const SkillRecord* Family(int row) {
  return InUse(SkillTable2(), row);
}

std::string Lacking(const SkillRecord& skill, const std::array<int, 5>& links, const SkillBuyer& buyer) {
  for (const int link : links) {
    const SkillRecord* needed = LinkedSkill(link);
    if (needed == nullptr) continue;
    const int mastery = link >= 0 ? SkillScore(buyer, link) : FirstMemberScore(buyer, -link);
    if (mastery >= kNeededMastery) continue;
    return Format("Skill: %s requires a 50 or greater skill mastery in %s", TrimRight(skill.Name),
                  TrimRight(needed->Name));
  }
  return {};
}

bool PackageLists(std::string_view PackageList::*list, const SkillRecord* skill, const SkillBuyer& buyer) {
  if (skill == nullptr) return false;
  for (const PackageList& package : kPackageLists) {
    if (package.Package == buyer.PackageName) return ListHolds(package.*list, skill->Name);
  }
  return false;
}

int CountHeld(const SkillDemand& demand, const SkillBuyer& buyer) {
  int held = 0;
  ForEachName(demand.Skills, [&](std::string_view name) {
    if (SkillScore(buyer, FindSkillRow(name)) > 0) ++held;
  });
  ForEachName(demand.Families, [&](std::string_view name) {
    if (HoldsFamily(buyer, FindSkillFamilyRow(name))) ++held;
  });
  return held;
}

}  // namespace

float SkillPrice(int row, const SkillBuyer& buyer) {
  const SkillRecord* skill = Skill(row);
  if (skill == nullptr) return 0;
  return PriceAfter(kSkillPriceRules, static_cast<float>(skill->BP), row, skill->Name, skill->Category, buyer);
}

float SkillFamilyPrice(int family, const SkillBuyer& buyer) {
  const SkillRecord* skill = Family(family);
  if (skill == nullptr) return 0;
  return PriceAfter(kFamilyPriceRules, static_cast<float>(skill->BP), family, skill->Name, skill->Category, buyer);
}

std::array<int, 5> SkillPrerequisites(int row, const SkillBuyer& buyer) {
  const SkillRecord* skill = Skill(row);
  const bool thiefKnows = row == SkillRow::AdvancedTraps && buyer.ClassIsThief > 0;
  return skill == nullptr || thiefKnows ? SkillRecord{}.Prerequisites : skill->Prerequisites;
}

std::string SkillRestriction(int row, const SkillBuyer& buyer) {
  const SkillRecord* skill = Skill(row);
  if (skill == nullptr) return {};
  if (buyer.ClassIsThief == 0 && (row == SkillRow::Pinch || row == SkillRow::TrapSweep)) {
    return Format("The Skill: %s is restricted to Thieves", TrimRight(skill->Name));
  }
  if (ValueAt(buyer.ClassLevels, ClassRow::Barbarian) == 0 && skill->Category == SkillCategory::Barbarian) {
    return Format("The Skill: %s is restricted to Barbarians", TrimRight(skill->Name));
  }
  const bool bornSpeaker =
      ValueAt(buyer.ClassLevels, ClassRow::Hypnotist) != 0 || ValueAt(buyer.ClassLevels, ClassRow::Droog) != 0;
  if (row == SkillRow::DragonSpeak && !bornSpeaker && (buyer.Intelligence < 19 || buyer.Charisma < 15)) {
    return "The Skill Dragon Speak requires a minimum of a 19 Intelligence and 15 Charisma";
  }
  return {};
}

std::string LackingPrerequisite(int row, const SkillBuyer& buyer) {
  const SkillRecord* skill = Skill(row);
  if (skill == nullptr || SkillScore(buyer, row) != 0) return {};
  return Lacking(*skill, SkillPrerequisites(row, buyer), buyer);
}

std::string LackingFamilyPrerequisite(int family, const SkillBuyer& buyer) {
  const SkillRecord* skill = Family(family);
  return skill == nullptr ? std::string{} : Lacking(*skill, skill->Prerequisites, buyer);
}

bool PackagePaysFor(int row, const SkillBuyer& buyer) {
  return PackageLists(&PackageList::Skills, Skill(row), buyer);
}

bool PackagePaysForFamily(int family, const SkillBuyer& buyer) {
  return PackageLists(&PackageList::Families, Family(family), buyer);
}

void PayFromPackage(float& cost, float& packageBP, float buildingPoints) {
  if (cost > buildingPoints + packageBP) return;
  if (packageBP <= cost) {
    cost -= packageBP;
    packageBP = 0;
  } else {
    packageBP -= cost;
    cost = 0;
  }
}

void DrawOnBudget(float cost, float& budget, float& buildingPoints) {
  if (budget <= 0 || cost > buildingPoints + budget) return;
  const float drawn = budget <= cost ? budget : cost;
  buildingPoints += drawn;
  budget -= drawn;
}

ExtraRolls SkillExtraRolls(int row, const SkillBuyer& buyer) {
  const SkillRecord* skill = Skill(row);
  ExtraRolls extra;
  if (skill == nullptr) return extra;
  for (const ExtraRollRule& rule : kExtraRollRules) {
    if (!IsMeant(rule.For, buyer) || !IsMeant(rule.Of, row, skill->Name, skill->Category)) continue;
    extra.Rolls += rule.Rolls;
    if (rule.Extra != 0) extra.Extra = rule.Extra;
    extra.AsksAmazon = extra.AsksAmazon || rule.AsksAmazon;
  }
  return extra;
}

ExtraRolls SkillFamilyExtraRolls(int family, const SkillBuyer& buyer) {
  ExtraRolls extra;
  extra.AsksAmazon = family == SkillFamily::LandRiding && buyer.AmazonDoubleRoll > 0;
  return extra;
}

int StartingMastery(std::string_view masteryAbilities, std::span<const int, kAbilityCount> wholeScores) {
  int sum = 0;
  for (std::size_t ability = 0; ability < kAbilityShortNames.size(); ++ability) {
    if (Contains(masteryAbilities, kAbilityShortNames[ability])) sum += wholeScores[ability];
  }
  if (Contains(masteryAbilities, "2")) sum /= 2;
  if (Contains(masteryAbilities, "3")) sum /= 3;
  return sum;
}

int FirstPurchaseBonus(int row, const SkillBuyer& buyer) {
  return buyer.PackageName == "Trailblazer" && row == SkillRow::MaplessTravel ? 50 : 0;
}

int RowSetByFalconer(int row, float cost, float buildingPoints, const SkillBuyer& buyer) {
  const bool setsOut = buyer.PackageName == "Falconer" && row == SkillRow::Hunting && cost <= buildingPoints;
  const bool knowsTracks = SkillScore(buyer, SkillRow::IdentifyAnimalByTracks) >= kNeededMastery;
  return setsOut && !knowsTracks ? SkillRow::Interrogation : -1;
}

bool IsMartialStyle(int row) {
  return row >= SkillRow::FirstMartialStyle && row <= SkillRow::LastMartialStyle;
}

std::string_view UnmetSkillDemand(const SkillBuyer& buyer) {
  int held = 0;
  for (const SkillDemand& demand : kSkillDemands) {
    if (!IsMeant(demand.For, buyer)) continue;
    held += CountHeld(demand, buyer);
    if (held < demand.Least) return demand.Refusal;
  }
  return {};
}

}  // namespace veld
