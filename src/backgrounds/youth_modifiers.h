#pragma once

#include <string_view>

#include "backgrounds/chain_page.h"

namespace veld {

// The last two tables of a schooling. `table` is what the book calls the table ("5M"), `modifier` is added to the 3d12.

/// Rolls the Starting Honor Modifier, which joins what the youth adds to Honor.
void RollHonorModifier(ChainPage& page, std::string_view table, int modifier);

/// Rolls the Starting Money Roll Modifier, which joins what is added to the starting money roll.
void RollMoneyModifier(ChainPage& page, std::string_view table, int modifier);

}  // namespace veld
