#pragma once

#include <string_view>
#include <vector>

#include "steps/classes/class_levels.h"
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
std::vector<NamedClass> AdvanceNamedClasses(Game& game, std::string_view classText, const LevelWay& way = {});

/// Gives a class up: its experience and levels go, and what its first level brought once. The ability gains of its
/// levels are taken out of the abilities by whoever calls.
void LeaveClass(Game& game, int classRow);

/// True of a class with spell slots by level.
bool IsCasterClass(int classRow);

/// Sets the spell slots of the run for a mage's level.
void SetSpellsForLevel(Game& game, int level);

}  // namespace veld
