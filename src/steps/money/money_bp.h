#pragma once

#include "store/game.h"

namespace veld {

/// What a player uses in the MoneyBP dialog.
namespace MoneyBPControl {
inline constexpr int Entry = 3000;
}  // namespace MoneyBPControl

/// The MoneyBP dialog: asks for the BP that raise the money roll and takes them into MoneyBPSpent. Returns false, with
/// CurrentStep 1, if it was closed without an answer.
bool RunMoneyBP(Game& game);

}  // namespace veld
