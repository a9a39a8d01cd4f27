#pragma once

#include <cstdint>
#include <string>

#include "rules/inheritance_tables.h"
#include "store/game.h"

namespace veld {

/// Rolls the years that the training for the character's class took, 0 to 24.
int RollClassAge(Game& game);

/// Takes 1 BP for a roll that isn't the first. Returns false, with nothing taken, if the BP do not reach for it.
bool PayForRoll(Game& game, bool isFirst);

/// Takes BP for the money roll into MoneyBPSpent. Refuses what is negative or more than there is, but never 0.
bool SpendMoneyBP(Game& game, std::int64_t bp);

/// Rolls the starting money, the BP in MoneyBPSpent included, with all that changes it, and what the father left. What
/// an earlier roll brought is gone, but a debt stays until another debt takes its place.
void GenerateStartingMoney(Game& game);

/// Reads a total in the money bands: gold and the tier of the inheritance, or a hereditary debt.
void RollStartingMoney(Game& game, int total);

/// Draws what the tier of the inheritance gives, and tells it in StartingMoneyText.
void DescribeInheritance(Game& game);

/// Draws an inherited good by the character's social class and race, cursed or magic if the die goes past the ends.
std::string RollInheritedGood(Game& game, InheritanceKind kind);

/// Draws a deed, by a plain d100.
std::string RollInheritedDeed(Game& game);

}  // namespace veld
