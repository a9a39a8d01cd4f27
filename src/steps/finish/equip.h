#pragma once

#include "store/game.h"

namespace veld {

/// What a player uses in the shop of Step 19.
namespace EquipControl {
inline constexpr int Goods = 3022;
inline constexpr int Owned = 3023;
inline constexpr int Search = 3024;
inline constexpr int Add = 4001;
inline constexpr int Remove = 4002;
}  // namespace EquipControl

/// Step 19: goods are bought and sold. Whatever was traded stands, whichever way the dialog closes.
void RunEquip(Game& game);

/// The same page for a finished character, on which goods can also be added and taken away without charge.
void RunEditEquip(Game& game);
/// It opens with goods free of charge: those of a character on paper are his already.
void RunFreeEquip(Game& game);

}  // namespace veld
