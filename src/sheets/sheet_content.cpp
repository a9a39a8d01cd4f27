#include "sheets/sheet_content.h"

#include <algorithm>
#include <initializer_list>

#include "rules/class_table.h"
#include "rules/quirk_table.h"
#include "rules/race_table.h"
#include "rules/skill_table.h"
#include "rules/talent_table.h"
#include "steps/abilities/ability_effects_apply.h"
#include "steps/classes/class_recalculation.h"
#include "steps/skills/proficiency_purchase.h"
#include "steps/skills/tattoo.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace {

// Rows of the class table that own percentile abilities.
constexpr std::size_t kThiefRow = 16;
constexpr std::size_t kAssassinRow = 17;
constexpr std::size_t kBountyHunterRow = 60;
constexpr int kAssassinsFirstLevel = 3;  ///< an assassin has no thief's skills before
constexpr std::size_t kSiblingsShown = 9;

std::size_t At(int number) {
  return static_cast<std::size_t>(number);
}

// ---- Classes and weapons ----

std::vector<SheetClass> GatherClasses(const CharacterSheet& sheet) {
  std::vector<SheetClass> classes;
  for (std::size_t row = 0; row < sheet.ClassLevels.size(); ++row) {
    const int level = sheet.ClassLevels[row];
    if (level <= 0) continue;
    const ClassRecord& record = ClassTable()[row];
    const int next = std::min(level + 1, kHighestLadderLevel);
    classes.push_back({record.Name, level, sheet.ClassExperience[row], record.ExperienceForLevel[At(next)]});
  }
  return classes;
}

std::array<int, 5> GatherLimits(const CharacterSheet& sheet) {
  const int steps[] = {0, sheet.WeightAllowanceLight, sheet.WeightAllowanceModerate, sheet.WeightAllowanceHeavy,
                       sheet.WeightAllowanceSevere};
  std::array<int, 5> limits{};
  int sum = 0;
  for (std::size_t i = 0; i < limits.size(); ++i) limits[i] = sum = AddSaturated(sum, steps[i]);
  return limits;
}

/// The proficiencies with a mark: pass after pass, so that those of one mark stand together.
void GatherProficiencies(const CharacterSheet& sheet, SheetContent& content) {
  using namespace ProficiencyMark;
  for (const int pass : {Limited, Proficient, Specialized, kMasteryMark}) {
    for (std::size_t row = 0; row < kProficiencyRows; ++row) {
      const int mark = sheet.ProficiencyLevels[row];
      const ProficiencyRecord& record = ProficiencyTable()[row];
      if (record.Name.empty() || std::min(mark, kMasteryMark) != pass) continue;
      content.Proficiencies.push_back({&record, mark});
      // The table of missile weapons has no line for Mastery.
      if (record.Kind == ProficiencyKind::Melee) content.Melee.push_back({&record, mark});
      if (record.Kind == ProficiencyKind::Missile && mark <= Specialized) content.Missile.push_back({&record, mark});
    }
  }
  for (std::size_t row = 0; row < sheet.ProficiencyPicks.size(); ++row) {
    for (const int pick : sheet.ProficiencyPicks[row]) {
      if (pick < 0 || pick >= kProficiencyTableRows) continue;
      content.Picks.push_back(
          {ProficiencyTable2()[row].Name, std::string(TrimRight(ProficiencyTable()[At(pick)].Name))});
    }
  }
}

// ---- Tattoos ----

/// What is printed of a tattoo on a place. One line begins with a stray bracket and some are a blank short: kept.
struct TattooLine {
  int CharacterSheet::*Tattoo;
  int Place;
  std::string_view Line;
};

using Sheet = CharacterSheet;

// clang-format off
constexpr TattooLine kTattooLines[] = {
    {&Sheet::TattooArdkrin,  kLeftUpperArm,  "Ardkrin,      Left Upper Arm, +1AC against all melee attacks"},
    {&Sheet::TattooArdkrin,  kRightUpperArm, "Ardkrin,      Right Upper Arm, +1AC against all melee attacks"},
    {&Sheet::TattooShewkrin, kLeftLowerArm,  "Shewkrin,     Left Lower Arm, +1AC against all missile attacks"},
    {&Sheet::TattooShewkrin, kRightLowerArm, ">Shewkrin,    Right Lower Arm, +1AC against all missile attacks"},
    {&Sheet::TattooYiskrin,  kForehead,      "Yiskrin,      Forehead, +1 to Charisma"},
    {&Sheet::TattooTarkrin,  kForehead,      "Tarkrin,      Forehead, Diminish Evil"},
    {&Sheet::TattooTarkrin,  kLeftUpperArm,  "Tarkrin,      Left Upper Arm, Diminish Evil"},
    {&Sheet::TattooTarkrin,  kRightUpperArm, "Tarkrin,      Right Upper Arm, Diminish Evil"},
    {&Sheet::TattooTarkrin,  kLeftLowerArm,  "Tarkrin,      Left Lower Arm, Diminish Evil"},
    {&Sheet::TattooTarkrin,  kRightLowerArm, "Tarkrin,      Right Lower Arm, Diminish Evil"},
    {&Sheet::TattooFakrin,   kForehead,      "Fakrin,       Forehead, Detect Evil"},
    {&Sheet::TattooFakrin,   kLeftUpperArm,  "Fakrin,       Left Upper Arm, Detect Evil"},
    {&Sheet::TattooFakrin,   kRightUpperArm, "Fakrin,       Right Upper Arm, Detect Evil"},
    {&Sheet::TattooFakrin,   kLeftLowerArm,  "Fakrin,      Left Lower Arm, Detect Evil"},
    {&Sheet::TattooFakrin,   kRightLowerArm, "Fakrin,      Right Lower Arm, Detect Evil"},
    {&Sheet::TattooEmphkrin, kForehead,      "Emphkrin,    Forehead, Detect Living Creature"},
    {&Sheet::TattooShunkrin, kForehead,      "Shunkrin,    Forehead, +1 to all saves"},
    {&Sheet::TattooHurdkrin, kLeftUpperArm,  "Hurdkrin,    Left Upper Arm, +1 to Hit Points per level"},
    {&Sheet::TattooHurdkrin, kRightUpperArm, "Hurdkrin,    Right Upper Arm, +1 to Hit Points per level"},
    {&Sheet::TattooGrekrin,  kBothLowerArms, "Grekrin,     Both Lower Arms, +2 to Strength (2 slots)"},
    {&Sheet::TattooGorkrink, kLeftUpperArm,  "Gorkrink,    Left Upper Arm, +1 to damage"},
    {&Sheet::TattooGorkrink, kRightUpperArm, "Gorkrink,    Right Upper Arm, +1 to damage"},
};
// clang-format on

std::vector<std::string_view> GatherTattoos(const CharacterSheet& sheet) {
  std::vector<std::string_view> lines;
  if (!HasTrait(sheet.RaceName, RaceTrait::Tattooed)) return lines;
  for (const TattooLine& tattoo : kTattooLines) {
    if (sheet.*tattoo.Tattoo == tattoo.Place) lines.push_back(tattoo.Line);
  }
  return lines;
}

// ---- Callings and youths ----

bool IsShownAsMage(const CharacterSheet& sheet) {
  constexpr std::string_view kMages[] = {"Elementalist", "Blood Mage", "Painted Mage", "Wild Mage"};
  const auto isNamed = [&](std::string_view name) { return Contains(sheet.ClassName, name); };
  return sheet.IsMageClass == 1 || sheet.ClassName == "Battle Mage" || std::ranges::any_of(kMages, isNamed);
}

void AddFact(std::vector<SheetFact>& facts, std::string_view label, std::string_view value) {
  facts.push_back({label, OneLine(value)});
}

/// Adds the texts that say anything.
void AddTold(std::vector<SheetFact>& facts, std::string_view label, std::string_view value) {
  if (value.size() > 1) AddFact(facts, label, value);
}

void AddPackage(std::vector<SheetFact>& facts, const CharacterSheet& sheet) {
  if (!sheet.PackageName.Empty()) AddFact(facts, "Package", sheet.PackageName);
}

std::vector<SheetFact> GatherMageBackground(const CharacterSheet& sheet) {
  std::vector<SheetFact> facts;
  if (sheet.UsesMageBackground != 1) return facts;
  AddFact(facts, "Location of School", sheet.SchoolLocation);
  AddFact(facts, "Type of School", sheet.SchoolType);
  AddFact(facts, "Quality of Master, Nurture", sheet.MasterNurture);
  AddFact(facts, "Quality of Master, Education", sheet.MasterEducation);
  AddFact(facts, "Graduating Class Size", sheet.GraduatingClassSize);
  AddFact(facts, "Classroom Equipment", sheet.ClassroomEquipment);
  AddFact(facts, "Graduating Rank", sheet.GraduatingRank);
  AddPackage(facts, sheet);
  if (sheet.PackageName == "Hermit") AddFact(facts, "Hermit Taboo", sheet.HermitTaboo);
  return facts;
}

std::vector<SheetFact> GatherClericBackground(const CharacterSheet& sheet) {
  std::vector<SheetFact> facts;
  if (sheet.UsesClericBackground != 1) return facts;
  AddFact(facts, "The Call", sheet.TheCall);
  AddFact(facts, "Type of Ecclesiastical Training", sheet.EcclesiasticalTraining);
  AddFact(facts, "Competency of Reverend Superior", sheet.SuperiorCompetency);
  AddFact(facts, "Personality of Reverend Superior", sheet.SuperiorPersonality);
  AddFact(facts, "Religious Accoutrements", sheet.ReligiousAccoutrements);
  AddFact(facts, "Location of Residency", sheet.ResidencyLocation);
  AddFact(facts, "Results of Residency", sheet.ResidencyResults);
  AddFact(facts, "Quality of Education Final Results", sheet.EducationResults);
  AddPackage(facts, sheet);
  return facts;
}

std::vector<SheetFact> GatherFighterBackground(const CharacterSheet& sheet) {
  std::vector<SheetFact> facts;
  if (sheet.UsesFighterBackground != 1) return facts;
  AddFact(facts, "Type of Training Camp", sheet.TrainingCampType);
  AddFact(facts, "Quality of Basic Training", sheet.BasicTrainingQuality);
  AddFact(facts, "Results of Basic Training", sheet.BasicTrainingResults);
  for (const auto& accident : sheet.TrainingAccidents) AddTold(facts, "Training Accident", accident);
  AddFact(facts, "Specialty Assignment", sheet.SpecialtyAssignment);
  AddFact(facts, "Quality of Advanced Individual Training", sheet.AdvancedTrainingQuality);
  AddFact(facts, "State of Hostilities", sheet.HostilitiesState);
  for (const auto& war : sheet.Wars) AddTold(facts, "War", war);
  AddTold(facts, "Local Attitude to Occupying Force", sheet.OccupationAttitude);
  AddTold(facts, "Notable Events During Occupation", sheet.OccupationEvents);
  AddTold(facts, "Notable Events to Quell Guerilla Movement", sheet.GuerillaEvents);
  constexpr std::size_t kTours = 4;  // the fifth text is scratch
  for (std::size_t tour = 0; tour < kTours; ++tour) {
    AddTold(facts, "Notable Events During Non-Combat Tour of Duty", sheet.NonCombatTourEvents[tour]);
  }
  AddPackage(facts, sheet);
  return facts;
}

std::vector<std::string> GatherSpells(const Game& game) {
  std::vector<std::string> spells;
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    if (game.sheet.SpellsKnown[row] > 0) spells.push_back(OneLine(TrimRight(game.SpellTable[row].Name)));
  }
  return spells;
}

// ---- Class abilities ----

// clang-format off
/// A thief's ability and what armor changes of it.
struct ThiefAbilityRow {
  std::string_view Name;
  int NoArmor;
  int ElvenChain;
  int Studded;  ///< studded leather, ring mail, padded
};
constexpr std::array<ThiefAbilityRow, kThiefAbilities> kThiefRows{{
    // ability            none  chain  studded
    {"Pick Pockets",         5,   -20,     -25},
    {"Open Locks",           0,    -5,     -10},
    {"Find Traps",           0,    -5,     -10},
    {"Remove Traps",         0,    -5,     -10},
    {"Move Silently",       10,   -10,     -15},
    {"Hide in Shadows",      5,   -10,     -15},
    {"Detect Noise",         0,    -5,      -5},
    {"Climb Walls",         10,   -20,     -25},
    {"Read Languages",       0,     0,       0},
}};
constexpr ThiefAbilityRow kInTheOpen{"Hide in Natural Surroundings", 5, -10, -15};
constexpr ThiefAbilityRow kOnCliffs {"Climb Cliffs and Trees",      10, -20, -25};
// clang-format on

SheetPercents PercentsOf(const ThiefAbilityRow& row, int base) {
  return {row.Name,
          {base, AddSaturated(base, row.NoArmor), AddSaturated(base, row.ElvenChain), AddSaturated(base, row.Studded)}};
}

SheetAbilityTable ThiefTable(const CharacterSheet& sheet, std::string_view title,
                             std::initializer_list<std::size_t> abilities) {
  SheetAbilityTable table{title, {}};
  for (const std::size_t ability : abilities) {
    table.Rows.push_back(PercentsOf(kThiefRows[ability], ThiefAbilityAt(sheet, ability)[kLevelSum]));
  }
  return table;
}

SheetAbilityTable BarbarianTable(const CharacterSheet& sheet) {
  const auto inAnyArmor = [](std::string_view name, int value) { return PercentsOf({name, 0, 0, 0}, value); };
  return {"Barbarian Abilities",
          {inAnyArmor("Back Protection", sheet.BarbarianBackProtection),
           inAnyArmor("Detect Illusion", sheet.BarbarianDetectIllusion), PercentsOf(kInTheOpen, sheet.BarbarianHide),
           inAnyArmor("Barbarian Tracking", sheet.BarbarianTracking), PercentsOf(kOnCliffs, sheet.BarbarianClimb)}};
}

std::vector<SheetAbilityTable> GatherClassAbilities(const CharacterSheet& sheet) {
  const auto allNine = {0UL, 1UL, 2UL, 3UL, 4UL, 5UL, 6UL, 7UL, 8UL};
  std::vector<SheetAbilityTable> tables;
  if (Contains(sheet.ClassName, "Barbarian")) tables.push_back(BarbarianTable(sheet));
  if (sheet.ClassName == "Monk") tables.push_back(ThiefTable(sheet, "Monk Abilities", {2, 4, 5, 6, 7}));
  if (sheet.ClassName == "Bard") tables.push_back(ThiefTable(sheet, "Bard Abilities", {0, 6, 7, 8}));
  if (sheet.ClassLevels[kThiefRow] > 0 || sheet.ClassLevels[kBountyHunterRow] > 0) {
    tables.push_back(ThiefTable(sheet, "Thief Abilities", allNine));
  }
  if (sheet.ClassLevels[kAssassinRow] >= kAssassinsFirstLevel) {
    tables.push_back(ThiefTable(sheet, "Assassin Abilities", allNine));
  }
  return tables;
}

// ---- Quirks, talents, skills ----

std::vector<SheetItem> GatherQuirks(const CharacterSheet& sheet) {
  std::vector<SheetItem> quirks;
  for (int row = 0; row < kQuirkRows; ++row) {
    const int count = sheet.QuirkCounts[At(row)];
    const std::string_view name = TrimRight(ShownQuirkName(row));
    if (count > 0 && !name.empty()) quirks.push_back({std::string(name), count});
  }
  return quirks;
}

/// The name of an item of a family, led by the family's name where the item does not say it.
std::string ItemName(std::string_view family, std::string_view item) {
  const std::string name = OneLine(TrimRight(item));
  return Contains(name, family) ? name : Format("%s: %s", family, name);
}

std::vector<SheetTalent> GatherTalents(const CharacterSheet& sheet) {
  std::vector<SheetTalent> talents;
  for (std::size_t row = 0; row < kTalentRows; ++row) {
    const std::string_view name = TrimRight(TalentTable()[row].Name);
    const int count = sheet.TalentCounts[row];
    if (count <= 0 || name.empty()) continue;
    const std::string_view measure = Contains(name, "Bonus") ? "x%i" : Contains(name, "Lucky") ? "d%i" : "";
    talents.push_back({std::string(name), Format(measure, count)});
  }
  for (std::size_t family = 0; family < kDetailRows; ++family) {
    const std::string_view name = TrimRight(TalentTable2()[family].Name);
    for (std::size_t item = 0; item < kDetailRows; ++item) {
      const int count = sheet.TalentDetailCounts[family][item];
      if (count <= 0) continue;
      const std::string_view measure = Contains(name, "Bonus") ? "x%i" : "";
      talents.push_back({ItemName(name, sheet.TalentDetailNames[family][item]), Format(measure, count)});
    }
  }
  return talents;
}

std::vector<SheetItem> GatherSkills(const CharacterSheet& sheet) {
  std::vector<SheetItem> skills;
  for (std::size_t row = 0; row < kSkillRows; ++row) {
    const std::string_view name = TrimRight(SkillTable()[row].Name);
    if (sheet.SkillScores[row] > 0 && !name.empty()) skills.push_back({std::string(name), sheet.SkillScores[row]});
  }
  for (std::size_t family = 0; family < kDetailRows; ++family) {
    const std::string_view name = TrimRight(SkillTable2()[family].Name);
    for (std::size_t item = 0; item < kDetailRows; ++item) {
      const int score = sheet.SkillDetailCounts[family][item];
      if (score > 0) skills.push_back({ItemName(name, sheet.SkillDetailNames[family][item]), score});
    }
  }
  return skills;
}

// ---- Belongings and family ----

/// The headings over the goods owned, by category. Some differ from the names in the shop, and so they are known.
constexpr std::array<std::string_view, EquipmentCategories.size()> kGoodsHeadings{
    "Alcohol/Beverages",
    "Clothing",
    "Containers: Packs, Bags, Bottles etc.",
    "Daily Food & Lodging",
    "Light Sources",
    "Livestock",
    "Miscellany",
    "Musical Instruments",
    "Outfitting Bundles",
    "Provisions: Rations",
    "Provisions: Outfitting",
    "Tools",
    "Religious Items and Accoutrements",
    "Scribe Materials",
    "Services",
    "Tack and Harness",
    "Transport, Land",
    "Transport, Water",
    "Armor and Related Items",
    "Weapons",
    "Weapons: Ammom",
};

using GoodsByCategory = std::array<std::vector<SheetGood>, kGoodsHeadings.size()>;

/// Adds the goods of a list that are owned once, or those that are owned more often.
void AddGoods(GoodsByCategory& goods, const std::array<EquipmentRecord, kEquipmentRows>& table, bool single) {
  for (const EquipmentRecord& good : table) {
    if (good.Quantity < 1 || (good.Quantity == 1) != single) continue;
    if (good.Category < 1 || At(good.Category) > goods.size()) continue;
    goods[At(good.Category) - 1].push_back({OneLine(TrimRight(good.Name)), good.Quantity, good.Weight});
  }
}

std::vector<SheetGoods> GatherGoods(const Game& game) {
  GoodsByCategory listed;
  GoodsByCategory own;
  for (const bool single : {true, false}) {
    AddGoods(listed, game.EquipmentTable, single);
    AddGoods(own, game.CustomEquipmentTable, single);
  }
  std::vector<SheetGoods> all;
  for (std::size_t i = 0; i < kGoodsHeadings.size(); ++i) {
    SheetGoods goods{static_cast<int>(i) + 1, kGoodsHeadings[i], !listed[i].empty(), std::move(listed[i])};
    goods.Goods.insert(goods.Goods.end(), own[i].begin(), own[i].end());
    if (!goods.Goods.empty()) all.push_back(std::move(goods));
  }
  return all;
}

std::array<SheetCoin, 6> GatherCoins(const CharacterSheet& sheet) {
  return {{{"Copper Pieces", "cp", sheet.CopperPieces},
           {"Silver Pieces", "sp", sheet.SilverPieces},
           {"Electrum Pieces", "ep", sheet.ElectrumPieces},
           {"Gold Pieces", "gp", sheet.GoldPieces},
           {"Hard Silver Pieces", "hsp", sheet.HardSilverPieces},
           {"Platinum Pieces", "pp", sheet.PlatinumPieces}}};
}

std::vector<SheetFact> GatherInheritance(const CharacterSheet& sheet) {
  std::vector<SheetFact> facts;
  AddTold(facts, "Inherited Weapon", sheet.InheritedWeapon);
  AddTold(facts, "Inherited Armor", sheet.InheritedArmor);
  AddTold(facts, "Inherited Shield/Helmet", sheet.InheritedShieldHelmet);
  AddTold(facts, "Inherited Mount", sheet.InheritedMount);
  AddTold(facts, "Inherited Deed", sheet.InheritedDeed);
  if (sheet.HereditaryDebt != 0) facts.push_back({"Hereditary Debt", Format("%i", sheet.HereditaryDebt)});
  return facts;
}

std::vector<std::string> GatherSiblings(const CharacterSheet& sheet) {
  std::vector<std::string> siblings;
  for (const auto& line : sheet.SiblingLines) {
    if (line.Length() > 2 && siblings.size() < kSiblingsShown) siblings.push_back(OneLine(line));
  }
  return siblings;
}

std::array<AbilityScore, kAbilityCount> Scores(const CharacterSheet& sheet) {
  std::array<AbilityScore, kAbilityCount> scores;
  for (int ability = 0; ability < kAbilityCount; ++ability) scores[At(ability)] = AbilityAt(sheet, ability);
  return scores;
}

}  // namespace

void BringUpToDate(Game& game) {
  CharacterSheet& sheet = game.sheet;
  if (!NamesKnownClass(sheet.ClassName)) return RefreshAbilityEffects(game);
  // The run that gains a level changes the abilities; the one after it only shows what they are then. Ability gains of
  // the last class rows are added on each run though nobody gained anything: those are taken out again.
  constexpr int kRuns = 2;
  for (int run = 0; run < kRuns; ++run) {
    const ClassNumbers levels = sheet.ClassLevels;
    const auto scores = Scores(sheet);
    RefreshAbilityEffects(game);
    game.run.SpellsPerLevel = {};  // a class without spells leaves what another character had
    RecomputeFromClasses(game);
    if (sheet.ClassLevels != levels) continue;
    for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(sheet, ability) = scores[At(ability)];
    return;
  }
}

SheetContent GatherSheet(const Game& game) {
  const CharacterSheet& sheet = game.sheet;
  SheetContent content;
  content.Classes = GatherClasses(sheet);
  content.EncumbranceLimits = GatherLimits(sheet);
  GatherProficiencies(sheet, content);
  content.Tattoos = GatherTattoos(sheet);
  content.IsMage = IsShownAsMage(sheet);
  content.IsCleric = sheet.IsClericClass == 1;
  content.IsFighter = sheet.IsFighterClass == 1;
  content.MageBackground = GatherMageBackground(sheet);
  content.ClericBackground = GatherClericBackground(sheet);
  content.FighterBackground = GatherFighterBackground(sheet);
  content.Spells = GatherSpells(game);
  content.ClassAbilities = GatherClassAbilities(sheet);
  content.Quirks = GatherQuirks(sheet);
  content.Talents = GatherTalents(sheet);
  content.Skills = GatherSkills(sheet);
  content.Coins = GatherCoins(sheet);
  content.Inheritance = GatherInheritance(sheet);
  content.Goods = GatherGoods(game);
  content.Siblings = GatherSiblings(sheet);
  return content;
}

std::string OneLine(std::string_view text) {
  std::string line = DisplayText(text);
  std::ranges::replace_if(
      line, [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
  return line;
}

std::string_view HitAdjustment(const SheetWeapon& held) {
  const bool isMissile = held.Weapon->Kind == ProficiencyKind::Missile;
  if (held.Mark == ProficiencyMark::Limited) return "-1";
  if (held.Mark == ProficiencyMark::Specialized) return isMissile ? "+2" : "+1";
  return held.Mark >= kMasteryMark && !isMissile ? "+2" : "";
}

std::string_view DamageAdjustment(const SheetWeapon& held) {
  if (held.Weapon->Kind == ProficiencyKind::Missile) return "";
  if (held.Mark == ProficiencyMark::Specialized) return "+2";
  return held.Mark >= kMasteryMark ? "+3" : "";
}

std::string_view MarkName(int mark) {
  if (mark == ProficiencyMark::Limited) return "Limited";
  if (mark == ProficiencyMark::Proficient) return "Basic";
  if (mark == ProficiencyMark::Specialized) return "Specialized";
  return mark >= kMasteryMark ? "Mastery" : "";
}

}  // namespace veld
