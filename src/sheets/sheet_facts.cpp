#include "sheets/sheet_facts.h"

#include <algorithm>
#include <initializer_list>

#include "rules/proficiency_table.h"
#include "rules/skill_table.h"
#include "rules/spell_catalogue.h"
#include "rules/talent_table.h"
#include "steps/skills/proficiency_purchase.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace {

constexpr int kAssassinsFirstLevel = 3;  ///< an assassin has no thief's skills before

// clang-format off
constexpr std::array<ClassAbilityRow, kThiefAbilities> kThiefRows{{
    // ability           short  none  chain  studded
    {"Pick Pockets",    "PP",      5,   -20,     -25},
    {"Open Locks",      "OL",      0,    -5,     -10},
    {"Find Traps",      "FT",      0,    -5,     -10},
    {"Remove Traps",    "RT",      0,    -5,     -10},
    {"Move Silently",   "MS",     10,   -10,     -15},
    {"Hide in Shadows", "HiS",     5,   -10,     -15},
    {"Detect Noise",    "DN",      0,    -5,      -5},
    {"Climb Walls",     "CW",     10,   -20,     -25},
    {"Read Languages",  "RL",      0,     0,       0},
}};
struct BarbarianAbility {
  ClassAbilityRow Row;
  int CharacterSheet::*Base;
};
// The last has the short name of the first: a slip that readers of sheets are used to.
constexpr BarbarianAbility kBarbarianRows[] = {
    {{"Back Protection",              "Bck Prot",     0,   0,   0}, &CharacterSheet::BarbarianBackProtection},
    {{"Detect Illusion",              "Det Ill",      0,   0,   0}, &CharacterSheet::BarbarianDetectIllusion},
    {{"Hide in Natural Surroundings", "Hide in Nat",  5, -10, -15}, &CharacterSheet::BarbarianHide},
    {{"Barbarian Tracking",           "Track",        0,   0,   0}, &CharacterSheet::BarbarianTracking},
    {{"Climb Cliffs and Trees",       "Bck Prot",    10, -20, -25}, &CharacterSheet::BarbarianClimb},
};
// clang-format on

/// The name of an item of a family, led by the family's name where the item does not say it.
std::string ItemName(std::string_view family, std::string_view item) {
  const std::string name = OneLine(TrimRight(item));
  return Contains(name, family) ? name : Format("%s: %s", family, name);
}

std::vector<ClassAbility> ThiefAbilities(const CharacterSheet& sheet, std::initializer_list<std::size_t> abilities) {
  std::vector<ClassAbility> held;
  for (const std::size_t ability : abilities) {
    held.push_back({&kThiefRows[ability], LevelSum(ThiefAbilityAt(sheet, ability))});
  }
  return held;
}

std::vector<ClassAbility> BarbarianAbilities(const CharacterSheet& sheet) {
  std::vector<ClassAbility> held;
  for (const BarbarianAbility& ability : kBarbarianRows) held.push_back({&ability.Row, sheet.*ability.Base});
  return held;
}

}  // namespace

std::string OneLine(std::string_view text) {
  std::string line = DisplayText(text);
  std::ranges::replace_if(
      line, [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
  return line;
}

std::vector<HeldWeapon> HeldWeapons(const CharacterSheet& sheet) {
  using namespace ProficiencyMark;
  std::vector<HeldWeapon> weapons;
  for (const int pass : {Limited, Proficient, Specialized, kMasteryMark}) {
    for (std::size_t row = 0; row < kProficiencyRows; ++row) {
      const int mark = sheet.ProficiencyLevels[row];
      const ProficiencyRecord& record = ProficiencyTable()[row];
      if (!record.Name.empty() && std::min(mark, kMasteryMark) == pass) weapons.push_back({&record, mark});
    }
  }
  return weapons;
}

std::string_view HitAdjustment(const HeldWeapon& held) {
  const bool isMissile = held.Weapon->Kind == ProficiencyKind::Missile;
  if (held.Mark == ProficiencyMark::Limited) return "-1";
  if (held.Mark == ProficiencyMark::Specialized) return isMissile ? "+2" : "+1";
  return held.Mark >= kMasteryMark && !isMissile ? "+2" : "";
}

std::string_view DamageAdjustment(const HeldWeapon& held) {
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

std::array<int, 6> EncumbranceLimits(const CharacterSheet& s) {
  std::array<int, 6> limits{0,
                            s.WeightAllowanceLight,
                            s.WeightAllowanceModerate,
                            s.WeightAllowanceHeavy,
                            s.WeightAllowanceSevere,
                            s.MaxPressExtra};
  for (std::size_t i = 1; i < limits.size(); ++i) limits[i] = AddSaturated(limits[i - 1], limits[i]);
  return limits;
}

int PresentLoad(const CharacterSheet& sheet) {
  const auto limits = EncumbranceLimits(sheet);
  int load = 1;
  for (int i = 1; i < 5; ++i) {
    const int limit = limits[static_cast<std::size_t>(i)];
    if (limit > 0 && static_cast<double>(sheet.CarriedWeightLbs) >= limit) load = i + 1;
  }
  return load;
}

TickBoxCount HitPointBoxes(int hitPoints) {
  constexpr std::int64_t kMostBoxes = 120;
  constexpr int kBoxesOfNobody = 20;
  const std::int64_t points = hitPoints;
  const std::int64_t each = points > kMostBoxes ? (points + kMostBoxes - 1) / kMostBoxes : 1;
  return {points > 0 ? static_cast<int>((points + each - 1) / each) : kBoxesOfNobody, each};
}

std::array<int, kSaveCount> BestSaves(const CharacterSheet& sheet) {
  std::array<int, kSaveCount> best;
  best.fill(kNoSave);
  for (std::size_t row = 0; row < kBestSave; ++row) {
    std::array<int, kSaveCount> saves{};
    if (sheet.ClassLevels[row] <= 0) continue;
    if (!ReadClassSaves(static_cast<int>(row), sheet.ClassLevels[row], saves)) continue;
    for (std::size_t save = 0; save < best.size(); ++save) best[save] = std::min(best[save], saves[save]);
  }
  best[kSaveStaff] = best[kSaveRod];  // one number serves rods and staves
  return best;
}

int AverageLevel(const CharacterSheet& sheet) {
  std::int64_t classes = 0;
  std::int64_t levels = 0;
  for (std::size_t row = 0; row < kBestSave; ++row) {
    if (sheet.ClassLevels[row] <= 0) continue;
    ++classes;
    levels += sheet.ClassLevels[row];
  }
  return classes > 0 ? static_cast<int>(levels / classes) : 1;
}

std::vector<std::size_t> KnownSpells(const Game& game) {
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    if (game.sheet.SpellsKnown[row] > 0) rows.push_back(row);
  }
  std::ranges::stable_sort(rows, {}, [&](std::size_t row) { return game.SpellTable[row].Level; });
  return rows;
}

std::string PageInBooks(const CharacterSheet& sheet, std::string_view spell) {
  for (std::size_t book = 0; book < kSpellBooks; ++book) {
    const SpellBook& held = sheet.SpellBooks[book];
    for (std::size_t i = 0; i < held.Pages.size() && !held.Name.Empty(); ++i) {
      if (held.Pages[i].Empty() || TrimRight(held.Pages[i]) != spell) continue;
      return book == 0 ? Format("%i", held.PageFlags[i]) : Format("%i: %i", book + 1, held.PageFlags[i]);
    }
  }
  return {};
}

std::string BookMake(const SpellBook& book) {
  std::string make;
  const auto add = [&](std::string_view part) {
    if (!TrimRight(part).empty()) make += (make.empty() ? "" : ", ") + OneLine(TrimRight(part));
  };
  for (const std::string_view part : {book.FormatName.View(), book.SizeText.View(), book.ThicknessText.View(),
                                      book.WeightText.View(), book.EncumbranceText.View(), book.FreeText.View()}) {
    add(part);
  }
  if (book.PageCount > 0) add(Format("%i pages, written from %i to %i", book.PageCount, book.FirstPage, book.LastPage));
  return make;
}

std::vector<BookEntry> BookEntries(const Game& game, const SpellBook& book) {
  std::vector<BookEntry> entries;
  for (std::size_t i = 0; i < book.Pages.size(); ++i) {
    if (book.Pages[i].Empty()) continue;
    const int row = FindSpell(game.SpellTable, book.Pages[i]);
    const auto at = static_cast<std::size_t>(std::max(row, 0));
    entries.push_back({book.PageFlags[i], OneLine(TrimRight(book.Pages[i])), row < 0 ? nullptr : &game.SpellTable[at],
                       book.SpellRows[at]});
  }
  return entries;
}

bool IsShownAsMage(const CharacterSheet& sheet) {
  constexpr std::string_view kMages[] = {"Elementalist", "Blood Mage", "Painted Mage", "Wild Mage"};
  const auto isNamed = [&](std::string_view name) { return Contains(sheet.ClassName, name); };
  return sheet.IsMageClass == 1 || sheet.ClassName == "Battle Mage" || std::ranges::any_of(kMages, isNamed);
}

std::vector<HeldAbility> HeldTalents(const CharacterSheet& sheet) {
  std::vector<HeldAbility> held;
  for (std::size_t row = 0; row < kTalentRows; ++row) {
    const std::string_view name = TrimRight(TalentTable()[row].Name);
    const int count = sheet.TalentCounts[row];
    if (count <= 0 || name.empty()) continue;
    held.push_back({std::string(name), count,
                    Contains(name, "Bonus")   ? "x%i"
                    : Contains(name, "Lucky") ? "d%i"
                                              : "",
                    TalentTable()[row].Page});
  }
  for (std::size_t family = 0; family < kDetailRows; ++family) {
    const std::string_view name = TrimRight(TalentTable2()[family].Name);
    for (std::size_t item = 0; item < kDetailRows; ++item) {
      const int count = sheet.TalentDetailCounts[family][item];
      if (count <= 0) continue;
      held.push_back({ItemName(name, sheet.TalentDetailNames[family][item]), count,
                      Contains(name, "Bonus") ? "x%i" : "", TalentTable2()[family].Page});
    }
  }
  return held;
}

std::vector<HeldAbility> HeldSkills(const CharacterSheet& sheet) {
  std::vector<HeldAbility> held;
  for (std::size_t row = 0; row < kSkillRows; ++row) {
    const std::string_view name = TrimRight(SkillTable()[row].Name);
    const int score = sheet.SkillScores[row];
    if (score > 0 && !name.empty()) held.push_back({std::string(name), score, {}, SkillTable()[row].Page});
  }
  for (std::size_t family = 0; family < kDetailRows; ++family) {
    const std::string_view name = TrimRight(SkillTable2()[family].Name);
    for (std::size_t item = 0; item < kDetailRows; ++item) {
      const int score = sheet.SkillDetailCounts[family][item];
      if (score <= 0) continue;
      held.push_back({ItemName(name, sheet.SkillDetailNames[family][item]), score, {}, SkillTable2()[family].Page});
    }
  }
  return held;
}

std::vector<ClassAbilityList> ClassAbilityLists(const CharacterSheet& s) {
  const auto allNine = {0UL, 1UL, 2UL, 3UL, 4UL, 5UL, 6UL, 7UL, 8UL};
  std::vector<ClassAbilityList> lists;
  if (Contains(s.ClassName, "Barbarian")) {
    lists.push_back({"Barbarian", "Barbarian Abilities", BarbarianAbilities(s)});
  }
  if (s.ClassName == "Monk") lists.push_back({"Monk", "Monk Abilities", ThiefAbilities(s, {2, 4, 5, 6, 7})});
  if (s.ClassName == "Bard") lists.push_back({"Bard", "Bard Abilities", ThiefAbilities(s, {0, 6, 7, 8})});
  if (HasClass(s, ClassRow::Thief) || HasClass(s, ClassRow::BountyHunter)) {
    lists.push_back({"Thief", "Thief Abilities", ThiefAbilities(s, allNine)});
  }
  if (s.ClassLevels[ClassRow::Assassin] >= kAssassinsFirstLevel) {
    lists.push_back({"Assassin", "Assassin Abilities", ThiefAbilities(s, allNine)});
  }
  return lists;
}

}  // namespace veld
