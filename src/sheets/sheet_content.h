#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "rules/proficiency_table.h"
#include "store/game.h"

namespace veld {

// What all printed sheets show, gathered once from the character and the catalogues. The names of catalogues come
// without the blanks at their ends; texts that players typed are one line each, tabs and line ends read as blanks.

/// The first of the proficiency marks that count as Mastery on a sheet; see ProficiencyMark for the others.
inline constexpr int kMasteryMark = 3;

struct SheetFact {
  std::string_view Label;
  std::string Value;
};

struct SheetClass {
  std::string_view Name;
  int Level;
  double Experience;
  int NextLevel;  ///< experience that the next level needs
};

/// A proficiency held, with its mark.
struct SheetWeapon {
  const ProficiencyRecord* Weapon;
  int Mark;
};

/// A thing held, and how often or how well.
struct SheetItem {
  std::string Name;
  int Count;
};

/// A talent held; the rating says how much of it ("x2", "d6") where there is a measure of it, else it is empty.
struct SheetTalent {
  std::string Name;
  std::string Rating;
};

/// A percentile ability: without any thought of armor, without armor, in elven chain, and in studded leather and such.
struct SheetPercents {
  std::string_view Name;
  std::array<int, 4> Values;
};

struct SheetAbilityTable {
  std::string_view Title;  ///< "Thief Abilities"
  std::vector<SheetPercents> Rows;
};

struct SheetGood {
  std::string Name;
  int Quantity;
  double Weight;  ///< pounds, of one
};

/// The goods of a category: the single ones before those owned more than once, those of the list before the user's own.
struct SheetGoods {
  int Category;
  std::string_view Heading;
  bool HasListedGood;  ///< not only goods of the user's own
  std::vector<SheetGood> Goods;
};

struct SheetCoin {
  std::string_view Name;
  std::string_view Sign;
  int Count;
};

struct SheetContent {
  std::vector<SheetClass> Classes;
  std::array<int, 5> EncumbranceLimits{};  ///< pounds from which a burden counts as none, light ... severe
  std::vector<SheetWeapon> Melee;          ///< in the order of the marks, as all proficiencies below
  std::vector<SheetWeapon> Missile;
  std::vector<SheetWeapon> Proficiencies;  ///< of all kinds
  std::vector<SheetFact> Picks;            ///< abilities taken for a weapon: "Quick Draw", "Dagger"
  std::vector<std::string_view> Tattoos;   ///< a line each
  bool IsMage = false;
  bool IsCleric = false;
  bool IsFighter = false;
  std::vector<SheetFact> MageBackground;  ///< empty without one, as the other two
  std::vector<SheetFact> ClericBackground;
  std::vector<SheetFact> FighterBackground;
  std::vector<std::string> Spells;
  std::vector<SheetAbilityTable> ClassAbilities;
  std::vector<SheetItem> Quirks;
  std::vector<SheetTalent> Talents;
  std::vector<SheetItem> Skills;  ///< mastery in percent
  std::array<SheetCoin, 6> Coins{};
  std::vector<SheetFact> Inheritance;  ///< what there is of it, the debt included
  std::vector<SheetGoods> Goods;       ///< in the order of the categories; none is empty
  std::vector<std::string> Siblings;
};

/// Brings all that follows from abilities and classes up to date: once and for all, so that a second sheet of the
/// character is the same as the first.
void BringUpToDate(Game& game);

/// What there is to print of a character that is up to date.
SheetContent GatherSheet(const Game& game);

/// A typed text as one line: tabs and line ends are blanks.
std::string OneLine(std::string_view text);

/// The adjustments that a mark brings with a weapon, empty for none: "-1" for a limited proficiency.
std::string_view HitAdjustment(const SheetWeapon& held);
std::string_view DamageAdjustment(const SheetWeapon& held);

/// "Basic"; empty for a mark that is none.
std::string_view MarkName(int mark);

}  // namespace veld
