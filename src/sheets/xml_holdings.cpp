#include <array>
#include <string>

#include "rules/proficiency_table.h"
#include "rules/quirk_table.h"
#include "sheets/sheet_facts.h"
#include "sheets/xml_parts.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

/// The categories of goods, by their number, as this sheet has always written them.
constexpr std::string_view kGoodsCategories[] = {
    "Alcohol/Beverages",
    "Clothing",
    "Containers: Packs, Bags, Bottles, etc.",
    "Daily Food and Lodging",
    "Light Sources",
    "Livestock",
    "Miscellany",
    "Musical Instruments",
    "Outfitting Bundles",
    "Provisions: Rations",
    "Provisions: Outfitting",
    "Tools",
    "Religious Items and Accoouterments",
    "Scribe Materials",
    "Services",
    "Tack and Harness",
    "Transport, Land",
    "Transport, Water",
    "Armor and Related Items",
    "Weapons",
    "Weapons: Ammo",
};

constexpr std::string_view kCoinWeight = "0.1";  // pounds

/// Calls `act` with each good owned: those of the list, then the user's own. A file of another list can count goods on
/// rows that are free in this one.
template <typename Act>
void ForEachGood(const Game& game, Act act) {
  for (const auto* table : {&game.EquipmentTable, &game.CustomEquipmentTable}) {
    for (const EquipmentRecord& good : *table) {
      if (good.Quantity > 0 && HasText(good.Name)) act(good);
    }
  }
}

void AddWeight(XmlWriter& xml, std::string_view pounds) {
  xml.Leaf("WEIGHT", "UNIT", "Lbs.", pounds);
}

void AddItem(XmlWriter& xml, std::string_view title, int quantity, std::string_view pounds) {
  const auto item = xml.Open("ITEM");
  xml.Leaf("TITLE", title);
  xml.Leaf("QUANTITY", quantity);
  AddWeight(xml, pounds);
}

void AddSpells(XmlWriter& xml, const Game& game) {
  const auto spells = xml.Open("SPELLS");
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    const int pages = game.sheet.SpellsKnown[row];
    if (pages <= 0) continue;
    xml.Leaf("SPELLNAME", TrimRight(game.SpellTable[row].Name));
    xml.Leaf("SPELL_PAGES", pages);
  }
}

void AddQuirks(XmlWriter& xml, const CharacterSheet& sheet) {
  const auto quirks = xml.Open("QUIRKS_AND_FLAWS");
  for (int row = 0; row < kQuirkRows; ++row) {
    const int count = sheet.QuirkCounts[static_cast<std::size_t>(row)];
    const std::string_view name = TrimRight(ShownQuirkName(row));
    if (count <= 0 || name.empty()) continue;
    xml.Leaf("QUIRKNAME", name);
    xml.Leaf("QUIRKQUANTITY", count);
  }
}

void AddProficiencies(XmlWriter& xml, const CharacterSheet& sheet) {
  const auto section = xml.Open("PROFICIENCY_SECTION");
  for (std::size_t row = 0; row < kProficiencyRows; ++row) {
    const std::string_view name = TrimRight(ProficiencyTable()[row].Name);
    const std::string_view mark = MarkName(sheet.ProficiencyLevels[row]);
    if (name.empty() || mark.empty()) continue;
    xml.Leaf("PROFICIENCYNAME", name);
    xml.Leaf("PROFICIENCYRATING", mark);
  }
}

void AddTalentsAndSkills(XmlWriter& xml, const CharacterSheet& sheet) {
  {
    const auto section = xml.Open("TALENT_SECTION");
    for (const HeldAbility& held : HeldTalents(sheet)) {
      xml.Leaf("TALENTNAME", held.Name);
      xml.Leaf("TALENTRATING", held.Amount);
    }
  }
  const auto section = xml.Open("SKILL_SECTION");
  for (const HeldAbility& held : HeldSkills(sheet)) {
    xml.Leaf("SKILLNAME", held.Name);
    xml.Leaf("SKILLRATING", held.Amount);
  }
}

void AddEquipment(XmlWriter& xml, const Game& game) {
  const auto section = xml.Open("EQUIPMENT_SECTION");
  ForEachGood(game, [&](const EquipmentRecord& good) {
    const auto item = xml.Open("EQUIPMENT_ITEM");
    xml.Leaf("EQUIPNAME", TrimRight(good.Name));
    xml.Leaf("EQUIPQTY", good.Quantity);
    AddWeight(xml, Format("%.2f", good.Weight));
  });
}

void AddCoins(XmlWriter& xml, const CharacterSheet& sheet) {
  const auto coins = xml.Open("COINS");
  xml.Leaf("GOLDCOINS", sheet.GoldPieces);
  xml.Leaf("SILVERCOINS", sheet.SilverPieces);
  xml.Leaf("COPPERCOINS", sheet.CopperPieces);
}

/// What was inherited: the element that tells it, and its title in the inventory.
struct Inherited {
  std::string_view Element;
  std::string_view Title;
  std::string_view Text;
};
std::array<Inherited, 5> InheritedThings(const CharacterSheet& sheet) {
  return {{{"INHERITED_WEAPON", "Inherited weapon", sheet.InheritedWeapon},
           {"INHERITED_ARMOR", "Inherited armor", sheet.InheritedArmor},
           {"INHERITED_SHIELDHELMET", "Inherited shield/helmt", sheet.InheritedShieldHelmet},
           {"INHERITED_MOUNT", "Inherited mount", sheet.InheritedMount},
           {"INHERITED_DEED", "Inherited Deed", sheet.InheritedDeed}}};
}

void AddInherited(XmlWriter& xml, const CharacterSheet& sheet) {
  const auto items = xml.Open("INHERITED_ITEMS");
  for (const Inherited& thing : InheritedThings(sheet)) {
    if (HasText(thing.Text)) xml.Leaf(thing.Element, thing.Text);
  }
}

void AddInventory(XmlWriter& xml, const Game& game) {
  const CharacterSheet& sheet = game.sheet;
  const auto inventory = xml.Open("INVENTORY");
  {
    const auto category = xml.Open("CATEGORY", "TYPE", "Coins and Money");
    for (const Coin& coin : kCoins) AddItem(xml, coin.Name, sheet.*coin.Count, kCoinWeight);
  }
  {
    const auto category = xml.Open("CATEGORY", "TYPE", "Inherited");
    for (const Inherited& thing : InheritedThings(sheet)) {
      if (HasText(thing.Text)) AddItem(xml, thing.Title, 1, "");  // nobody knows what they weigh
    }
    if (sheet.HereditaryDebt != 0) AddItem(xml, "Hereditary Debt", 1, "");
  }
  int number = 0;
  for (const std::string_view name : kGoodsCategories) {
    const auto category = xml.Open("CATEGORY", "TYPE", name);
    ++number;
    ForEachGood(game, [&](const EquipmentRecord& good) {
      if (good.Category != number) return;
      AddItem(xml, TrimRight(good.Name), good.Quantity, Format("%.2f", good.Weight));
    });
  }
}

}  // namespace

void AddHoldings(XmlWriter& xml, const Game& game) {
  AddSpells(xml, game);
  AddQuirks(xml, game.sheet);
  AddProficiencies(xml, game.sheet);
  AddTalentsAndSkills(xml, game.sheet);
  AddEquipment(xml, game);
  AddCoins(xml, game.sheet);
  AddInherited(xml, game.sheet);
  AddInventory(xml, game);
}

}  // namespace veld
