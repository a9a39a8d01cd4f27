#pragma once

#include <string>
#include <vector>

#include "rules/package_tables.h"
#include "store/game.h"

namespace veld {

/// Lets the player choose a background package of a list, pay it and have what it gives. Nothing for a character that
/// has one.
void RunPackageSelect(Game& game, PackageList list);

/// Gives what the package named in PackageName gives. The BP come out of it as a whole number.
void ApplyPackage(Game& game);

/// The names of the packages of a list that are open to the character, in their order.
std::vector<std::string_view> PackagesOffered(const Game& game, PackageList list);

/// What the package of this name costs the character, in BP; kUnknownPackagePrice if there is none.
int PackagePriceNow(const Game& game, std::string_view name);

/// What the package of this name gives the character, in words, a line each.
std::vector<std::string> PackageGifts(const Game& game, std::string_view name);

}  // namespace veld
