#include "rules/package_tables.h"

#include <algorithm>
#include <iterator>

#include "rules/purchase_rules.h"
#include "text/format.h"
#include "text/row_runs.h"
#include "text/search.h"

namespace veld {

namespace {

using enum PackageList;

// clang-format off

// The second line of a record: its races and those it is closed to, the gender and the classes that pay the other
// price, the classes that it is closed to and those that may take it. "Half-Elf" is no race's spelling and bars nobody, which is kept; so is it that a nobleman's
// other price names no transmuter, though it names the sole practitioners of their school.
constexpr PackageRecord kPackages[] = {
    // List   Name                       Abilities                                  Gender Class BP Price Other
    {Fighter, "Amazon",                  "",                                        "Female", 0,  0, 15, 11,
     {}, {}, {}, "4 11 61", {}, "3-5 7-11 60-62 64-65"},
    {Fighter, "Archer",                  "DEX>9",                                   {},       0,  0, 21, 15,
     {}, {}, {}, "3 11 64", {}, "3-4 7 10-11 60 62-65"},
    {Fighter, "Beast Rider",             "WIS>11, CHA>12",                          {},       0,  0, 20, 14,
     {}, {}, {}, "4 11", {}, "3-5 7 11 60 63-64 66"},
    {Fighter, "Falconer",                "DEX>8, WIS>12, CHA>11",                   {},       0,  0, 17, 12,
     {}, {}, {}, "3 6 8 10-11", {}, "3-4 6-8 10-11 60 62-66"},
    {Fighter, "Myrmidon",                "STR>11, CON>11",                          {},       0,  0, 15, 11,
     {}, {}, {}, "6 10 63-64 66", {}, "3 6-8 10-11 60-66"},
    {Fighter, "Noble Warrior",           "CHA>10",                                  {},       0,  0, 14,  8,
     {}, {}, {}, "3 6-8 10 63-64 66", {}, "3 6-8 10-11 60 63-64 66"},
    {Fighter, "Peasant Hero",            "",                                        {},       0,  0,  9,  6,
     {}, {}, {}, "3 61", {}, "3-5 9-11 60-62 64-65"},
    {Fighter, "Savage",                  "STR>10, CON>14",                          {},       0,  0, 17, 13,
     {}, {}, {}, "3-5", {}, "3-5 11 61-62"},
    {Fighter, "Wilderness Warrior",      "CON>12",                                  {},       0,  0, 15, 10,
     {}, {}, {}, "3-5 11", {}, "3-5 11 60-65"},
    {Fighter, "Trailblazer",             "",                                        {},       0,  0, 20, 15,
     {}, {}, {}, "4 11 64", {}, "3-4 7-8 11 60-65"},
    {Mage,    "Hermit",                  "INT>13/34",                               {},       0, 16, 20, 16,
     "Human | Gnomeling | Elf, Grel", {}, {}, "12 20-21 25", {}, "12 15 19-26 54-59"},
    {Mage,    "Militaristic Magic-User", "STR>10/50, CON>11/00, CHA>13/66, WIS>10", {},       0, 22, 26, 22,
     {}, "Pixie Fairy | Gnomeling | Elf, Grel | Gnome", "Male", {}, "13", {}},
    {Mage,    "Mystic",                  "WIS>12/84",                               {},       0, 14, 17, 14,
     {}, {}, {}, "22-24 30-32 42-47", {}, "12-15 19-20 22-24 27 30-31 34-39 42-47 54-59"},
    {Mage,    "Nobleman",                "",                                        {},       9, 14, 20, 14,
     {}, "Half-Elf | Gnomeling | Elf, Grel", {}, "21 25 29 33 37-41 48-51", {}, "12-15 19-25 27-28 30-32 34-51"},
    {Mage,    "Remote Primitive",        "CON>12",                                  {},       0, 15, 15, 15,
     {}, {}, {}, {}, {}, "12-14 19-23 25 27-28 30 32 34-45 48-51 54-59"},
    {Mage,    "Savage Magic-User",       "CON>13/00, STR>11/04",                    {},       0, 15, 15, 15,
     {}, {}, {}, {}, {}, "12-15 20-22 24-28 31-33 37-43 46-59"},
    {Mage,    "Scholar",                 "INT>13/66, WIS>11/24",                    {},       0, 18, 18, 20,
     {}, "Pixie Fairy", {}, "13-14 54-59", "13 54-57", {}},
    {Mage,    "Virago Sorceress",        "",                                        "Female", 0, 12, 12, 12,
     {}, {}, {}, {}, {}, "12-14 19-23 25 27-28 30 32 34-45 48-51 54-59"},
    {Mage,    "Witch",                   "CON>13/00, WIS>13/00",                    {},       0, 19, 19, 19,
     {}, {}, {}, {}, {}, {}},
    {Forced,  "Rustic Magic-User",       "",                                        {},       0,  0,  6,  6,
     {}, {}, {}, {}, {}, {}},
};

// '?' stands before names that find no skill and have never given anything. Skills that are picked to train an animal
// ask for the lore of animals as well as for their handling.
constexpr PackageGrant kGrants[] = {
    {"Amazon", {}, {},
     "Animal Lore>=50 | pick F14 | Survival, Jungle | AmazonDoubleRoll=1"},
    {"Archer", {}, {},
     "Bowyer/Fletcher x2 | talent Bow Bonus+=1 | [missile pick]"},
    {"Beast Rider", {}, {},
     "Animal Lore>=50 | pick F14", PackageExtra::LandRiding},
    {"Beast Rider", {}, {},
     "pick F18 | "
     "choose item Map Sense; Fire-building; Hunting; Identify Animal by Tracks; Set Snares; Track Game; "
     "Survival, Desert; Survival, Jungle; Survival, Underground; Survival, Winter"},
    {"Falconer", {}, {},
     "Animal Lore>=50 | Identify Animal by Tracks>=50 | new Animal Training: Falcons/birds of prey"},
    {"Myrmidon", {}, {},
     "FreeWeaponProficiencySlots=1 | ?Military: History | Leadership: Basic | Military: Campaign Logistics | "
     "Military: Battle Sense"},
    {"Noble Warrior", {}, {},
     "pick F3 | Heraldry | pick F19"},
    {"Peasant Hero", {}, {},
     "Weather Sense | Map Sense | choose item Agriculture; Animal Lore; Fishing"},
    {"Savage", {}, {},
     "Weather Sense | Map Sense | choose item Botany; Animal Lore; Fishing; Fire-building; Forestry; "
     "Identify Animal by Tracks; Running; Set Snares; Swimming"},
    {"Wilderness Warrior", {}, {},
     "[survival pick] | Weather Sense | Map Sense"},
    {"Trailblazer", {}, {},
     "Glersee (Trail Markers) | Map Sense | Distance Sense"},
    {"Hermit", "Dwarf | Half-ogre | Half-orc | Human", {},
     "talent Endurance"},
    {"Hermit", {}, {},
     "PackageBP=18 | MoneyRoll-=45", PackageExtra::HermitVows},
    {"Militaristic Magic-User", {}, {},
     "Administration | Military: Campaign Logistics | Military: Leadership | Maintenance/Upkeep (General) | "
     "Shaving/Grooming | Maintain Self-Discipline | Orchestrate Task | Recruit Army"},
    {"Mystic", {}, {},
     "Religion (general) | [language pick] | ?Maintain Self Discipline | MoneyRoll-=25", PackageExtra::MysticPicks},
    {"Nobleman", {}, {},
     "Social Etiquette | Graceful Entrance/Exit | Berate | Heraldry | Knowledge of Courtly Affairs | [language pick] | "
     "pick F19 | Gaming | Singing | Current Affairs | Resist Persuasion | Rules of Fair Play | ?Taunting Minor | "
     "[bard instrument]"},
    {"Remote Primitive", {}, {},
     "talent Endurance | "
     "choose Animal Lore; Fire-building; Fishing; Forestry; Hunting; Mountaineering; Navigation, Nautical; Running; "
     "Set Snares; Slaughter: Game Animal; Survival, Desert; Survival, Jungle; Survival, Underground; "
     "Survival, Winter | MoneyRoll-=25"},
    {"Rustic Magic-User", {}, {},
     "choose Farming; Laborer, General; Fishing", PackageExtra::RusticPicks},
    {"Savage Magic-User", {}, {},
     "talent Endurance | "
     "choose Animal Lore; Fire-building; Fishing; Forestry; Hunting; Mountaineering; Navigation, Nautical; Running; "
     "Set Snares; Slaughter: Game Animal; Survival, Desert; Survival, Jungle; Survival, Underground; "
     "Survival, Winter | MoneyRoll-=40"},
    {"Scholar", {}, {},
     "Historian Skill Suite | PackageBP=20 | quirk 321 | MoneyRoll+=5"},
    {"Virago Sorceress", "Gnome", {},
     "talent Track Game Animal | Survival, Jungle"},
    {"Virago Sorceress", "Elf", "Gnome",
     "Set Snares | Endurance"},
    {"Virago Sorceress", {}, "Gnome | Elf",
     "pick F19 | Animal Lore>=50 | pick F14"},
    {"Witch", {}, {},
     "Botany>=50 | ?Herbalism | Spellcraft", PackageExtra::FindFamiliar},
};

struct Taboo {
  int High;  ///< highest roll of 1d100
  std::string_view Text;
};

constexpr Taboo kTaboos[] = {
    {  3, "Cannot speak after sunset, except to cast spells."},
    {  6, "Cannot sleep within 20 yards of a member of the opposite sex."},
    { 10, "Cannot wear red anywhere on his person."},
    { 13, "Cannot wear orange anywhere on his person."},
    { 16, "Cannot wear yellow anywhere on his person."},
    { 20, "Cannot wear green anywhere on his person."},
    { 23, "Cannot wear blue anywhere on his person."},
    { 26, "Cannot wear violet anywhere on his person."},
    { 30, "Cannot wear brown anywhere on his person."},
    { 33, "Cannot wear black anywhere on his person."},
    { 36, "Cannot wear white anywhere on his person."},
    { 40, "Cannot carry copper on his person."},
    { 43, "Cannot carry silver on his person."},
    { 46, "Cannot carry electrum on his person."},
    { 50, "Cannot carry gold on his person."},
    { 53, "Cannot carry hard silver on his person."},
    { 56, "Cannot carry platinum on his person."},
    { 60, "Cannot bathe."},
    { 63, "Must bathe frequently (at least twice a day.)"},
    { 66, "Cannot cut his hair or fingernails."},
    { 70, "Cannot intentionally take the life of an insect."},
    { 73, "Cannot drink alcoholic beverages."},
    { 76, "Cannot sit facing north."},
    { 80, "Cannot sit facing south."},
    { 83, "Cannot sit facing east."},
    { 86, "Cannot sit facing west."},
    { 90, "Cannot eat beef or beef products."},
    { 93, "Cannot eat poultry or poultry products."},
    { 96, "Cannot eat dairy or dairy products."},
    {100, "Cannot eat fish or fish products."},
};

// clang-format on

constexpr int kHundred = 100;

int AsNumber(int whole, int percentile) {
  return whole * kHundred + percentile;
}

bool IsAbove(AbilityScore score, const AbilityFloor& floor) {
  if (floor.Percentile < 0) return score.Whole > floor.Whole;
  return AsNumber(score.Whole, score.Percentile) > AsNumber(floor.Whole, floor.Percentile);
}

bool HasLevelInOneOf(std::string_view classes, const PackageTaker& taker) {
  std::array<int, kClassRows> rows{};
  ExpandRowRuns(classes, rows);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row] != 0 && taker.ClassLevels[row] > 0) return true;
  }
  return false;
}

bool HoldsOneOf(std::string_view text, std::string_view parts) {
  bool found = false;
  ForEachName(parts, [&](std::string_view part) { found = found || Contains(text, part); });
  return found;
}

/// The least score above a floor, as a book prints it.
std::string FloorText(const AbilityFloor& floor) {
  const std::string_view name = AbilityName(floor.Ability);
  if (floor.Percentile < 0) return Format("%s %i", name, floor.Whole + 1);
  return Format(floor.Percentile < 9 ? "%s %i/0%i" : "%s %i/%i", name, floor.Whole, floor.Percentile + 1);
}

}  // namespace

std::span<const PackageRecord> Packages() {
  return kPackages;
}

const PackageRecord* FindPackage(std::string_view name) {
  const auto* const found = std::ranges::find(kPackages, name, &PackageRecord::Name);
  return found == std::end(kPackages) ? nullptr : found;
}

bool MayTake(const PackageRecord& package, const PackageTaker& taker) {
  for (std::size_t i = 0; i < package.Abilities.Count; ++i) {
    const AbilityFloor& floor = package.Abilities.Floors[i];
    if (!IsAbove(taker.Abilities[static_cast<std::size_t>(floor.Ability)], floor)) return false;
  }
  if (!package.Gender.empty() && taker.Gender != package.Gender) return false;
  if (taker.SocialClass < package.SocialClass) return false;
  if (!package.Races.empty() && !ListHolds(package.Races, taker.Race)) return false;
  if (ListHolds(package.NotRaces, taker.Race)) return false;
  if (HasLevelInOneOf(package.NotClasses, taker)) return false;
  return package.Classes.empty() || HasLevelInOneOf(package.Classes, taker);
}

int PackagePrice(std::string_view name, const PackageTaker& taker) {
  const PackageRecord* const package = FindPackage(name);
  if (package == nullptr) return kUnknownPackagePrice;
  const bool isOther = HasLevelInOneOf(package->OtherClasses, taker) ||
                       (!package->OtherGender.empty() && taker.Gender == package->OtherGender);
  return isOther ? package->OtherPrice : package->Price;
}

std::string PackageNeedsText(const PackageRecord& package) {
  std::string text;
  const auto add = [&](std::string_view need) {
    if (!text.empty()) text += ", ";
    text += need;
  };
  for (std::size_t i = 0; i < package.Abilities.Count; ++i) add(FloorText(package.Abilities.Floors[i]));
  if (!package.Gender.empty()) add(package.Gender);
  if (package.SocialClass > 0) add("high birth");
  const auto addNames = [&](std::string_view start, std::string_view names) {
    std::string joined;
    ForEachName(names, [&](std::string_view name) { joined += (joined.empty() ? "" : " or ") + std::string(name); });
    if (!joined.empty()) add(std::string(start) + joined);
  };
  addNames("", package.Races);
  addNames("not ", package.NotRaces);
  return text;
}

std::vector<PackageGrant> PackageGrants(std::string_view package, std::string_view race) {
  std::vector<PackageGrant> grants;
  for (const PackageGrant& grant : kGrants) {
    const bool isFor = grant.RaceHolding.empty() || HoldsOneOf(race, grant.RaceHolding);
    if (grant.Package == package && isFor && !HoldsOneOf(race, grant.RaceNotHolding)) grants.push_back(grant);
  }
  return grants;
}

std::string_view HermitTaboo(int roll) {
  for (const Taboo& taboo : kTaboos) {
    if (roll <= taboo.High) return taboo.Text;
  }
  return kTaboos[std::size(kTaboos) - 1].Text;
}

}  // namespace veld
