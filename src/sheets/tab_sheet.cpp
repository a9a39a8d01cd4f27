#include "sheets/tab_sheet.h"

#include <algorithm>
#include <array>
#include <vector>

#include "sheets/sheet_content.h"

namespace veld {

namespace {

// Blanks around the tabs and at line ends are part of the format: spreadsheets in use were made for it.

/// What stands around the facts of a row.
struct RowFrame {
  TabRow Row;
  std::string_view Lead;
  std::string_view Tail;
};

// clang-format off
constexpr RowFrame kRows[] = {
    // row                         lead                  tail
    {TabRow::Facts,                "",                   ""},
    {TabRow::Abilities,            "",                   ""},
    {TabRow::Saves,                "Saves",              " \n"},
    {TabRow::HitPoints,            "",                   ""},
    {TabRow::WeaponNames,          "Weapon Name \t",     " \t \t \t \t \t \t \n"},
    {TabRow::WeaponSpeeds,         " Weapon Spd \t",     " \t \t \t \t \t \t \t \n"},
    {TabRow::WeaponRanges,         " Weapon Range \t",   " \t \t \t \t \t \t \t \n"},
    {TabRow::WeaponTypes,          " Weapon Type \t",    " \t \t \t \t \t \t \t \n"},
    {TabRow::WeaponBsl,            " BSL \t",            " \t \t \t \t \t \t \t \n"},
    {TabRow::WeaponDamages,        " Weapon Dam \t",     " \t \t \t \t \t \t \t \n"},
    {TabRow::Accomplishments,      "STP \t",             "\n"},
    {TabRow::AccomplishmentValues, "Value \t",           "\n"},
    {TabRow::ClassNames,           "Class \t",           "\n"},
    {TabRow::ClassExperience,      " XP \t",             "\n"},
    {TabRow::ClassNextLevels,      " Next Level \t",     "\n"},
    {TabRow::Encumbrance,          "Encumbrance",        " \n"},
    {TabRow::Movement,             "Move",               " \n"},
    {TabRow::Quirks,               "\n Quirks/Flaws \t", ""},
    {TabRow::Coins,                "\n Coins \t",        ""},
    {TabRow::Inventory,            "\n Inventory",       ""},
    {TabRow::ClassAbilities,       "",                   ""},
};
// clang-format on

}  // namespace

std::string TabSheet(Game& game) {
  BringUpToDate(game);
  const SheetContent content = GatherSheet(game);
  std::array<std::vector<const SheetFact*>, static_cast<std::size_t>(TabRow::Count)> rows;
  for (const SheetBlock& block : content.Blocks) {
    for (const SheetFact& fact : block.Facts) rows[static_cast<std::size_t>(fact.Tab.Row)].push_back(&fact);
  }
  std::string text;
  for (const RowFrame& frame : kRows) {
    auto& facts = rows[static_cast<std::size_t>(frame.Row)];
    std::ranges::stable_sort(facts, {}, [](const SheetFact* fact) { return fact->Tab.Order; });
    text += frame.Lead;
    for (const SheetFact* fact : facts) text += PrintedPart(fact->Tab.Part, *fact);
    text += frame.Tail;
  }
  return text;
}

}  // namespace veld
