#include "rules/money_tables.h"

#include <iterator>
#include <limits>

#include "rules/purchase_rules.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kNoUpperEnd = std::numeric_limits<int>::max();

constexpr AgeDice kNoDice{0, 0};
constexpr std::array<AgeDice, 2> k1d2{{{2, 1}, kNoDice}};
constexpr std::array<AgeDice, 2> k1d3{{{3, 1}, kNoDice}};
constexpr std::array<AgeDice, 2> k1d4{{{4, 1}, kNoDice}};
constexpr std::array<AgeDice, 2> k1d6{{{6, 1}, kNoDice}};
constexpr std::array<AgeDice, 2> k2d8{{{8, 2}, kNoDice}};
constexpr std::array<AgeDice, 2> k2d8And2d4{{{8, 2}, {4, 2}}};

// Not listed, and so trained at no age of their own: "Barbarian", "Assassin" and the classes of the later almanacs.
constexpr ClassAgeRow kClassAges[] = {
    {.Dice = k1d6,
     .Names = "Cleric|Cleric/Assassin|Cleric/Fighter|Cleric/Thief|Druid|Druid/Fighter|Cleric/Ranger|Paladin|"
              "Berserker/Cleric|Cleric/Berserker|Fighter/Cleric|Druid/Ranger|Chosen|Shaman",
     .Holding = "Zealot"},
    {.Dice = k1d4,
     .Names = "Fighter|Fighter/Assassin|Fighter/Thief|Berserker|Berserker/Assassin|Berserker/Thief|Cavalier|"
              "Knight Errant|Ranger|Bounty Hunter|Gladiator|Pirate (WMA)|Samurai|Soldier|Swashbuckler|Holy Knight"},
    {.Dice = k1d3, .Names = "Dark Knight|Monk"},
    {.Dice = k1d2, .Names = "Thief|Bard"},
    {.Dice = k2d8And2d4, .Holding = "Sole Practitioner"},
    {.Dice = k2d8,
     .Names = "Painted Mage|Wild Mage|Magic-User|Realm Channeler (Fire)|Battle Mage|Blood Mage|Illusionist",
     .Holding = "Standard Specialist|Double Specialist|Elementalist"},
    {.Dice = k2d8, .Holding = "Magic-User|Illusionist", .MultiClassOnly = true},
};

// clang-format off

constexpr MoneyBand kMoneyBands[] = {
    // low high  gold       tier
    { 11,  15, "20+1d4"},
    { 16,  20, "25+1d4"},
    { 21,  25, "30+1d4"},
    { 26,  30, "35+1d4"},
    { 31,  35, "45+1d6"},
    { 36,  40, "50+1d6"},
    { 41,  45, "55+1d6"},
    { 46,  50, "60+1d6"},
    { 51,  55, "70+1d8"},
    { 56,  60, "80+1d8"},
    { 61,  65, "90+1d8"},
    { 66,  70, "100+1d8"},
    { 71,  75, "110+1d10"},
    { 76,  80, "120+1d10"},
    { 81,  85, "130+1d10"},
    { 86,  90, "140+1d10"},
    { 91,  95, "145+1d20"},
    { 96, 100, "150+1d20"},
    {101, 105, "160+1d20", 2},
    // The book's bands leave 106 out, and that stands: no gold, no tier, no word.
    {107, 110, "170+1d20", 3},
    {111, 115, "180+2d20", 4},
    {116, kNoUpperEnd, "190+2d20", 5},
};

constexpr DebtBand kDebtBands[] = {
    // low high  amount    times
    {  1,  10, "20+1d4"},
    { 11,  15, "25+1d4", 2},  // the only band that doubles its die; kept
    { 16,  20, "30+1d4"},
    { 21,  25, "35+1d4"},
    { 26,  30, "40+1d4"},
    { 31,  35, "45+1d6"},
    { 36,  40, "50+1d6"},
    { 41,  45, "55+1d6"},
    { 46,  50, "60+1d6"},
    { 51,  55, "70+1d8"},
    { 56,  60, "80+1d8"},
    { 61,  65, "90+1d8"},
    { 66,  70, "100+1d8"},
    { 71,  75, "110+1d10"},
    { 76,  80, "120+1d10"},
    { 81,  85, "130+1d10"},
    { 86,  90, "140+1d10"},
    { 91,  95, "145+1d20"},
    { 96, 100, "150+1d20"},
};

// clang-format on

bool IsNamed(std::string_view list, std::string_view name) {
  bool found = false;
  ForEachName(list, [&](std::string_view listed) { found = found || EqualsIgnoringCase(listed, name); });
  return found;
}

bool HoldsOneOf(std::string_view name, std::string_view words) {
  bool found = false;
  ForEachName(words, [&](std::string_view word) { found = found || ContainsIgnoringCase(name, word); });
  return found;
}

}  // namespace

std::span<const ClassAgeRow> ClassAgeTable() {
  return kClassAges;
}

std::array<AgeDice, 2> ClassAgeDice(std::string_view className) {
  const bool isMultiClass = Contains(className, "/");
  for (const ClassAgeRow& row : kClassAges) {
    if (row.MultiClassOnly && !isMultiClass) continue;
    if (IsNamed(row.Names, className) || HoldsOneOf(className, row.Holding)) return row.Dice;
  }
  return {kNoDice, kNoDice};
}

std::span<const MoneyBand> MoneyBands() {
  return kMoneyBands;
}

const MoneyBand* FindMoneyBand(int total) {
  for (const MoneyBand& band : kMoneyBands) {
    if (total >= band.Low && total <= band.High) return &band;
  }
  return nullptr;
}

std::span<const DebtBand> DebtBands() {
  return kDebtBands;
}

const DebtBand& DebtBandOf(int roll) {
  for (const DebtBand& band : kDebtBands) {
    if (roll <= band.High) return band;
  }
  return kDebtBands[std::size(kDebtBands) - 1];
}

}  // namespace veld
