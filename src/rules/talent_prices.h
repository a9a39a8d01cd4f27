#pragma once

#include <string_view>
#include <vector>

#include "rules/purchase_rules.h"

namespace veld {

/// The price of a talent of either table in BP, whole as it is shown and paid; 0 for a name that finds no row.
int TalentPrice(std::string_view name, const SkillBuyer& buyer);

/// The rows of the plain talents that the buyer's race has for nothing.
std::vector<int> TalentsOfRace(const SkillBuyer& buyer);

/// The talents that the race may buy, of the books in use, first those of the plain table. Empty for an unknown race.
std::vector<std::string_view> TalentsOpenToRace(const SkillBuyer& buyer);

/// What class, package or background open beside those of the race; none that the race's list has already.
std::vector<std::string_view> FurtherTalents(const SkillBuyer& buyer);

}  // namespace veld
