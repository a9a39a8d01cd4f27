#pragma once

#include <string_view>

#include "platform/platform.h"
#include "store/game.h"

namespace veld {

/// True if so many BP reach for a charge. BP hold fractions: 0.5 BP do not reach for 1.
constexpr bool Reaches(float buildingPoints, float charge) {
  return buildingPoints >= charge;
}

/// True if the character can pay a charge, in BP. What he gets back is a charge below 0: a debt deeper than it can't
/// take it.
bool CanPay(const Game& game, float charge = 1);

/// Takes a charge if the BP reach for it; returns whether they did.
bool Pay(Game& game, float charge = 1);

/// Asks whether a result of the dice is kept. A refusal takes the 1 BP of a re-roll; a player who can't pay it is not
/// asked and keeps what the dice gave. `closed` is what the close box stands for.
bool AskKeep(Game& game, std::string_view question, Answer closed = Answer::Yes);

}  // namespace veld
