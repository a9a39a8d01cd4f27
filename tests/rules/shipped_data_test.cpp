// The shipped spells.vld and equip.vlb as the build made them, held against the rule tables that name their rows.

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "rules/equipment_catalogue.h"
#include "rules/find_row.h"
#include "rules/inheritance_tables.h"
#include "rules/proficiency_table.h"
#include "rules/spell_book_tables.h"
#include "rules/spell_catalogue.h"
#include "rules/spell_tables.h"

namespace veld {
namespace {

constexpr std::size_t kSpellFields = 12;
constexpr std::size_t kLevelField = 9;
constexpr std::size_t kCategoryField = 10;
constexpr std::size_t kSourceField = 11;

std::string ReadShipped(const std::string& name) {
  std::ifstream file(std::string(VELD_DATA_DIR "/") + name, std::ios::binary);
  EXPECT_TRUE(file) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> SpellTokens() {
  std::istringstream in(ReadShipped("spells.vld"));
  std::vector<std::string> tokens;
  for (std::string token; in >> token;) tokens.push_back(token);
  return tokens;
}

std::string WithBlanks(std::string token) {
  for (char& c : token) {
    if (c == '_') c = ' ';
  }
  return token;
}

std::vector<SpellRecord> Spells() {
  const std::vector<std::string> tokens = SpellTokens();
  std::vector<SpellRecord> spells(tokens.size() / kSpellFields);
  for (std::size_t row = 0; row < spells.size(); ++row) {
    const auto field = [&](std::size_t n) { return WithBlanks(tokens[row * kSpellFields + n]); };
    spells[row].Name = field(0);
    spells[row].Type = field(1);
    spells[row].Component = field(4);
    spells[row].Level = std::stoi(field(kLevelField));
    spells[row].Category = field(kCategoryField);
  }
  return spells;
}

std::vector<EquipmentRecord> Goods() {
  const std::string bytes = ReadShipped("equip.vlb");
  std::vector<EquipmentRecord> goods(kEquipmentRows);
  EXPECT_EQ(bytes.size(), kEquipmentFileBytes);
  if (bytes.size() == kEquipmentFileBytes) std::memcpy(goods.data(), bytes.data(), bytes.size());
  return goods;
}

bool IsSold(const std::vector<EquipmentRecord>& goods, std::string_view name) {
  return FindRowNamed(goods, name) >= 0;
}

TEST(ShippedSpells, AreTwelveFieldsThatFitTheirWidths) {
  const std::vector<std::string> tokens = SpellTokens();
  ASSERT_EQ(tokens.size(), kSpellRecords * kSpellFields);
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    EXPECT_LT(tokens[i].size(), i % kSpellFields == kSourceField ? 10U : 50U) << tokens[i];
    // These fields keep an underscore, which would be shown.
    const std::size_t field = i % kSpellFields;
    if (field == 2 || field == 4 || field == kSourceField) {
      EXPECT_EQ(tokens[i].find('_'), std::string::npos) << tokens[i];
    }
  }
}

TEST(ShippedSpells, CantripsComeFirstThenTheLevels) {
  std::vector<std::string_view> order;
  std::map<std::string, int> sizes;
  std::set<std::string> names;
  const std::vector<SpellRecord> spells = Spells();
  for (std::size_t row = 0; row < spells.size(); ++row) {
    const SpellRecord& spell = spells[row];
    if (order.empty() || order.back() != spell.Category.View()) order.push_back(spell.Category);
    ++sizes[std::string(spell.Category.View())];
    EXPECT_TRUE(names.insert(std::string(spell.Name.View())).second) << spell.Name.View();
    EXPECT_EQ(row < kCantripRows, spell.Level == 0) << spell.Name.View();
    const bool cantrip = spell.Category.View().starts_with("Cantrips, ");
    EXPECT_EQ(cantrip ? 0 : spell.Category.View().back() - '0', spell.Level) << spell.Name.View();
  }
  EXPECT_EQ(order, std::vector<std::string_view>(SpellCategories.begin(), SpellCategories.end()));
  for (const auto& [category, size] : sizes) EXPECT_GE(size, 10) << category;
}

// A spell that a list names is found, is of the level where the list tells one (-1 where not) and of the school.
void ExpectSpell(const std::vector<SpellRecord>& spells, std::string_view name, int level, std::string_view school) {
  const int row = FindSpell(spells, name);
  ASSERT_GE(row, 0) << name;
  const SpellRecord& spell = spells[static_cast<std::size_t>(row)];
  EXPECT_TRUE(school.empty() || spell.Type.View().find(school) != std::string_view::npos) << name;
  EXPECT_TRUE(level < 0 || spell.Level == level) << name;
}

TEST(ShippedSpells, EverySpellOfTheListsIsThere) {
  const std::vector<SpellRecord> spells = Spells();
  for (const FirstLevelTable table : {FirstLevelTable::A, FirstLevelTable::B, FirstLevelTable::C}) {
    for (int roll = 1; roll < kExtraSpellRoll; ++roll) {
      const std::string_view name = FirstLevelSpell(table, roll);
      EXPECT_EQ(name.empty(), table == FirstLevelTable::C && roll > 96) << roll;
      if (!name.empty()) ExpectSpell(spells, name, 1, "");
    }
  }
  for (const SchoolSection& section : SchoolSections()) {
    const SpecialistSchool* specialist = FindSpecialist(section.Specialist);
    ASSERT_TRUE(specialist);
    EXPECT_LE(section.Die, section.Spells.Count() + section.After.Count());
    for (int n = 1; n <= section.Spells.Count(); ++n)
      ExpectSpell(spells, section.Spells.Name(n), -1, specialist->School);
    for (int n = 1; n <= section.After.Count(); ++n) ExpectSpell(spells, section.After.Name(n), -1, "Abjuration");
  }
  for (const SolePractitioner& each : SolePractitioners()) {
    for (int n = 1; n <= each.Spells.Count(); ++n) ExpectSpell(spells, each.Spells.Name(n), -1, "");
  }
  for (const std::string_view name : {"Read Magic", "Write", "Find Familiar", "Witherslow", "Blood Missile"}) {
    ExpectSpell(spells, name, 1, "");
  }
}

TEST(SpellTables, ListsAreReadByNameAndNumber) {
  const SchoolSection* section = FindSchoolSection("Abjurer", 2);
  ASSERT_TRUE(section);
  EXPECT_EQ(section->Spell(7), "Protection from Cantrips");
  EXPECT_EQ(section->Spell(8), "");  // printed, but past the die
  EXPECT_EQ(SpellSlotsAtLevel(10), SpellSlotsAtLevel(98));
  EXPECT_EQ(CantripAllowance(40, true), 9);
}

TEST(ShippedGoods, ArePricedInOneCoinAndFillEveryCategory) {
  const std::vector<EquipmentRecord> goods = Goods();
  std::map<int, int> sizes;
  int named = 0;
  for (std::size_t row = 0; row < goods.size(); ++row) {
    const EquipmentRecord& good = goods[row];
    EXPECT_EQ(good.LegacyId, static_cast<int>(row));
    EXPECT_EQ(good.Quantity, 0);
    if (good.Name.Empty()) continue;
    ++named;
    ++sizes[good.Category];
    EXPECT_LT(good.Name.Length(), 50U);
    EXPECT_EQ((good.GoldCost > 0) + (good.SilverCost > 0) + (good.CopperCost > 0), 1) << good.Name.View();
    EXPECT_EQ(good.CopperValue, good.GoldCost * 100 + good.SilverCost * 10 + good.CopperCost) << good.Name.View();
    EXPECT_TRUE(std::isfinite(good.Weight) && good.Weight >= 0) << good.Name.View();
    EXPECT_TRUE(!IsCarried(good) || good.Weight <= 400) << good.Name.View() << " is more than anybody carries";
  }
  EXPECT_GE(named, 600);
  EXPECT_EQ(sizes.size(), EquipmentCategories.size());
  for (const auto& [category, size] : sizes) {
    EXPECT_FALSE(EquipmentCategoryName(category).empty()) << category;
    EXPECT_GE(size, 10) << category;
  }
}

TEST(ShippedGoods, EveryNameBuysItsOwnRow) {
  const std::vector<EquipmentRecord> goods = Goods();
  for (std::size_t row = 0; row < goods.size(); ++row) {
    if (goods[row].Name.Empty()) continue;
    const std::string name(goods[row].Name.View());
    EXPECT_EQ(FindRowWithin(goods, name), static_cast<int>(row)) << name;
    EXPECT_EQ(FindRowWithin(goods, name + " x 12"), static_cast<int>(row)) << name;
  }
}

TEST(ShippedGoods, HoldWhatTheRulesName) {
  const std::vector<EquipmentRecord> goods = Goods();
  for (std::size_t row = 0; row < ProficiencyTable().size(); ++row) {
    const ProficiencyRecord& weapon = ProficiencyTable()[row];
    const std::string_view name = TrimRight(weapon.Name);
    const bool sold = !name.empty() && weapon.SpecializationCost < kUnspecializable && !name.starts_with("Unconscious");
    EXPECT_TRUE(!sold || IsSold(goods, name)) << name;
  }
  for (const InheritanceKind kind : {InheritanceKind::Armor, InheritanceKind::Shield, InheritanceKind::Mount}) {
    for (const InheritedGood& good : InheritanceTable(kind)) EXPECT_TRUE(IsSold(goods, good.Name)) << good.Name;
  }
  for (const NonStandardFormat& format : NonStandardFormats) {
    EXPECT_TRUE(format.Capacity == 0 || IsSold(goods, format.Name)) << format.Name;
  }
}

TEST(InheritanceTables, HaveNoGapsAndOverlapOnlyForARace) {
  for (const InheritanceKind kind :
       {InheritanceKind::Weapon, InheritanceKind::Armor, InheritanceKind::Shield, InheritanceKind::Mount}) {
    int reached = 0;
    for (const InheritedGood& good : InheritanceTable(kind)) {
      EXPECT_TRUE(good.Low == reached + 1 || good.High == reached) << good.Name;
      EXPECT_LE(good.Low, good.High) << good.Name;
      reached = good.High;
    }
    for (int total = 1; total <= reached; ++total) {
      ASSERT_FALSE(ReadInheritance(kind, total, "Human").Name.empty()) << total;
    }
    EXPECT_EQ(ReadInheritance(kind, 0, "Human").Enchantment, -1);
    EXPECT_EQ(ReadInheritance(kind, reached + 1, "Human").Enchantment, 1);
  }
}

TEST(InheritanceTables, TheHeirsRaceDecidesASharedBand) {
  EXPECT_EQ(ReadInheritance(InheritanceKind::Armor, 3920, "Elf, Grey").Name, "Elven chain mail");
  EXPECT_EQ(ReadInheritance(InheritanceKind::Armor, 3920, "Half-elf").Name, "Chain mail");
  EXPECT_EQ(ReadInheritance(InheritanceKind::Weapon, 10000, "Dwarf").Name, "Composite long bow");
}

}  // namespace
}  // namespace veld
