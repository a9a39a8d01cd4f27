#pragma once

#include <span>
#include <string>
#include <string_view>

namespace veld {

/// The kinds of goods that a father leaves, each with a table and a die of its own.
enum class InheritanceKind { Weapon, Armor, Shield, Mount };

/// A band of a table. Of two goods that share a band the one that names the heir's race comes, else the plain one.
struct InheritedGood {
  int Low;
  int High;
  std::string_view Name;
  std::string_view Race = {};  ///< a word of the race's name, or empty
};

/// The bands of a table, in their order.
std::span<const InheritedGood> InheritanceTable(InheritanceKind kind);

/// The sides of a table's die: 10000, 4000, 400 and 6000.
int InheritanceDie(InheritanceKind kind);

/// What a social class (1 to 12) adds to the die; 0 for an index that the table doesn't list.
int InheritanceTierModifier(int socialClass, InheritanceKind kind);

/// What a total of die and modifier yields: a name; or none, and then the die is rolled again, with what the total adds
/// to the enchantment (1 above the die, -1 below 1, 0 in a gap of the table).
struct InheritanceResult {
  std::string_view Name;
  int Enchantment = 0;
};
InheritanceResult ReadInheritance(InheritanceKind kind, int total, std::string_view race);

/// A good with its enchantment: "Dagger", "Dagger+2", a cursed "Dagger-1".
std::string InheritedText(std::string_view name, int enchantment);

/// The deed of a d100; a roll outside 1..100 takes the first or the last.
std::string_view InheritedDeed(int roll);

}  // namespace veld
