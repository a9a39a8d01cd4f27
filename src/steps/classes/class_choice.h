#pragma once

#include <string>
#include <vector>

#include "store/game.h"

namespace veld {

class Form;

/// The list of classes in the windows of Step 8 and Step 9.
inline constexpr int kClassList = 3023;

/// True if the character may take the class or the combination of classes: abilities, the books in use, social class,
/// race and flaws. In Step 8, where Charisma has not yet changed Comeliness, it is counted as if it had.
bool IsClassOffered(const Game& game, int classRow);

/// Bars every class that does not belong to a group that a flaw of an almanac binds the character to, for good.
void LockInClassGroups(Game& game);

/// Fills list 3023 of a window with the classes offered, in the table's order, after LockInClassGroups. A window
/// without that list is told to the player.
void FillClassBox(Game& game, Form& form);

/// The class rows that have a name and are not offered, in the table's order.
std::vector<int> MissingClasses(const Game& game);

/// Why a class is not offered, a sentence for each thing in its way; empty for a class that is offered or has no name.
std::string WhyClassIsMissing(const Game& game, int classRow);

}  // namespace veld
