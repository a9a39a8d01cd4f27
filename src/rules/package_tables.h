#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rules/ability.h"
#include "rules/class_table.h"
#include "rules/grant_notation.h"

namespace veld {

// The background packages of the Warmonger's and the Hexwright's Almanac: who may take one, for how many BP, and what
// it gives.

/// The package that is no package.
inline constexpr std::string_view kNoPackage = "None";
/// What a name costs that is no package's.
inline constexpr int kUnknownPackagePrice = 999;

/// Lists that a package is chosen from. A forced one is in none: it befalls a mage of low birth.
enum class PackageList { Fighter, Mage, Forced };

/// What a package asks of one ability: a score above Whole/Percentile, or above Whole alone.
struct AbilityFloor {
  int Ability = 0;
  int Whole = 0;
  int Percentile = -1;  ///< -1: the whole score alone counts
};

/// "INT>13/34, WIS>10": what a package asks of the abilities.
struct AbilityFloors {
  std::array<AbilityFloor, 4> Floors{};
  std::size_t Count = 0;

  consteval AbilityFloors(const char* notation) {
    NotationReader reader(notation);
    while (!reader.AtEnd()) {
      if (Count == Floors.size()) throw "more abilities than there is room for";
      AbilityFloor& floor = Floors[Count++];
      while (floor.Ability < kAbilityCount && !reader.Skip(kAbilityShortNames[static_cast<std::size_t>(floor.Ability)]))
        ++floor.Ability;
      if (floor.Ability == kAbilityCount) throw "an unknown ability";
      reader.Expect(">");
      floor.Whole = reader.Number();
      if (reader.Skip("/")) floor.Percentile = reader.Number();
      if (!reader.AtEnd()) reader.Expect(", ");
    }
  }
};

/// A package. Races stand between '|', classes are rows of the class table ("3-5 11"); an empty text asks for nothing.
struct PackageRecord {
  PackageList List;
  std::string_view Name;
  AbilityFloors Abilities;
  std::string_view Gender;
  int SocialClass;            ///< least SocialClassIndex
  int OfferedAt;              ///< BP with which it is listed at all
  int Price;                  ///< BP
  int OtherPrice;             ///< BP for the gender and the classes below
  std::string_view Races;     ///< one of these ...
  std::string_view NotRaces;  ///< ... and none of these
  std::string_view OtherGender;
  std::string_view OtherClasses;
  std::string_view NotClasses;
  std::string_view Classes;
};

/// All packages, those of a list in its order.
std::span<const PackageRecord> Packages();

/// The package of this name, nullptr if there is none.
const PackageRecord* FindPackage(std::string_view name);

/// Who chooses a package, as far as one asks.
struct PackageTaker {
  std::array<AbilityScore, kAbilityCount> Abilities;
  std::string_view Race;
  std::string_view Gender;
  int SocialClass = 0;
  std::span<const int, kClassRows> ClassLevels;
};

/// True if the taker is what the package asks for, its price aside.
bool MayTake(const PackageRecord& package, const PackageTaker& taker);

/// What the package of this name costs, in BP; kUnknownPackagePrice if there is none.
int PackagePrice(std::string_view name, const PackageTaker& taker);

/// What a package asks for besides the class, in words: "Intelligence 13/35, Wisdom 11"; empty if nothing.
std::string PackageNeedsText(const PackageRecord& package);

/// What only packages give, after the grants of its line.
enum class PackageExtra {
  None,
  LandRiding,    ///< the first member of the family of land riding is raised to 50, to learn riding in the air
  HermitVows,    ///< a weapon of the poor, and a taboo
  MysticPicks,   ///< three skills
  RusticPicks,   ///< six skills
  FindFamiliar,  ///< the spell of this name
};

/// What a package gives to characters of some races.
struct PackageGrant {
  std::string_view Package;
  std::string_view RaceHolding;  ///< '|' between parts of a race's name; empty: any race
  std::string_view RaceNotHolding;
  GrantText Grants;
  PackageExtra Extra = PackageExtra::None;
};

/// The grants of a package for a race, in order. Prerequisites of what they name are raised to 50 first.
std::vector<PackageGrant> PackageGrants(std::string_view package, std::string_view race);

/// Table 5A of the Hexwright's Almanac: what a hermit must never do. Rolls outside 1..100 take the first or last row.
std::string_view HermitTaboo(int roll);

}  // namespace veld
