#pragma once

#include <string>
#include <string_view>

#include "store/game.h"

namespace veld {

/// The monster attack table: the armor class that a monster hits with a result on 1d20. Hit dice are a text as the
/// bestiaries print it: "1-1", "4+2", "9hp". A text that stands in no row hits 999.
int MonsterHitsArmorClass(std::string_view hitDice, int result);

/// Rolls to hit for a monster, shows what it hits and returns that text.
std::string MonsterAttackRoll(Game& game, std::string_view hitDice);

}  // namespace veld
