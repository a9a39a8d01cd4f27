#pragma once

#include <string_view>
#include <vector>

#include "store/game.h"

namespace veld {

// The chain: the classes that a text names, in the order in which it is searched.

/// True if the text names a class, alone or among others.
bool NamesKnownClass(std::string_view className);

/// A class that a class text names, as its levels left it.
struct NamedClass {
  int Row;
  bool IsEntered;  ///< the first level came in this run
  bool IsCaster;
};

/// Brings each class that the text names to its level, with what the first level brings once: group, free slot,
/// starting spells.
std::vector<NamedClass> AdvanceNamedClasses(Game& game, std::string_view classText);

/// Sets the spell slots of the run for a mage's level.
void SetSpellsForLevel(Game& game, int level);

}  // namespace veld
