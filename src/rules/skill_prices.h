#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "rules/ability.h"
#include "rules/purchase_rules.h"

namespace veld {

// The rules of buying a skill, without the buying: what a purchase costs, what forbids it, what rolls it brings. `row`
// is a row of the plain skills and `family` one of the skill families; rows outside or not in use cost and forbid
// nothing. Prices and budgets are BP, mastery is percentile points.

/// The price of one purchase of a plain skill.
float SkillPrice(int row, const SkillBuyer& buyer);

/// The price of a new member of a family, or of improving one.
float SkillFamilyPrice(int family, const SkillBuyer& buyer);

/// The mastery of 50 that a plain skill asks for first, as links (see SkillRecord); a thief needs none for advanced
/// traps.
std::array<int, 5> SkillPrerequisites(int row, const SkillBuyer& buyer);

/// What is said to a buyer to whom a plain skill is closed, whatever is paid: "The Skill: Pinch is restricted to
/// Thieves". Empty if it is open.
std::string SkillRestriction(int row, const SkillBuyer& buyer);

/// What is said to a buyer who lacks a prerequisite of a plain skill not yet held, of the first one lacking; empty if
/// nothing is.
std::string LackingPrerequisite(int row, const SkillBuyer& buyer);

/// The same for a new member of a family.
std::string LackingFamilyPrerequisite(int family, const SkillBuyer& buyer);

/// True if the buyer's package pays for this skill out of its own BP.
bool PackagePaysFor(int row, const SkillBuyer& buyer);
bool PackagePaysForFamily(int family, const SkillBuyer& buyer);

/// Pays `cost` out of the package's BP as far as they go, if both purses together are enough: `cost` becomes what is
/// left to pay.
void PayFromPackage(float& cost, float& packageBP, float buildingPoints);

/// Moves what `cost` needs out of a budget for one kind of skill into the building points, if both together are enough.
/// A budget of the cost or less is moved whole.
void DrawOnBudget(float cost, float& budget, float& buildingPoints);

/// The dice of one purchase beyond the first roll of the course die.
struct ExtraRolls {
  int Rolls = 0;            ///< further rolls of the course die
  int Extra = 0;            ///< at 1 the Honor die and the count of purchases are doubled
  bool AsksAmazon = false;  ///< the player may spend the Amazon's double roll: a further roll, and Extra becomes 1
};

ExtraRolls SkillExtraRolls(int row, const SkillBuyer& buyer);
ExtraRolls SkillFamilyExtraRolls(int family, const SkillBuyer& buyer);

/// The mastery that abilities give a first purchase: the whole scores named in `masteryAbilities`, such as
/// "(INT+WIS)/2", added and divided, fractions dropped.
int StartingMastery(std::string_view masteryAbilities, std::span<const int, kAbilityCount> wholeScores);

/// What a package adds to the mastery of a first purchase.
int FirstPurchaseBonus(int row, const SkillBuyer& buyer);

/// A falconer who hunts without knowing tracks gets 50 in interrogation with the purchase. The wrong row, surely, and
/// kept: characters have been made so for as long as the package is sold. -1 if nothing is set to 50.
int RowSetByFalconer(int row, float cost, float buildingPoints, const SkillBuyer& buyer);

/// True for the seven martial arts styles, of which a samurai gets one 5 BP cheaper.
bool IsMartialStyle(int row);

/// What is said to a buyer who ends the purchases without the skills that class or package demand, of the first such
/// demand; empty if none is open.
std::string_view UnmetSkillDemand(const SkillBuyer& buyer);

}  // namespace veld
