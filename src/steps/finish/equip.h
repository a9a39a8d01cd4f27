#pragma once

#include "store/game.h"

namespace veld {

/// Step 19: goods are bought and sold. Whatever was traded stands, whichever way the dialog closes.
void RunEquip(Game& game);

/// The same page for a finished character, on which goods can also be added and taken away without charge.
void RunEditEquip(Game& game);
/// It opens with goods free of charge: those of a character on paper are his already.
void RunFreeEquip(Game& game);

}  // namespace veld
