#pragma once

#include <string_view>

#include "store/game.h"

namespace veld {

// The roll primitives: sides first, count second. A count below 1 gives 0 at once, with nothing logged and no random
// number drawn; so does a die of no sides. Each roll leaves DiceLabel empty and one line in dice.log.
// While "Roll Your Own Dice" is on the player is asked for the result of dice of two sides and more.

/// The sum of the dice.
int RollDice(Game& game, int sides, int count);

/// Each die one higher for a character of great Honor, one lower for a dishonorable one. A labelled roll is never asked
/// for.
int RollHonorDice(Game& game, int sides, int count);

/// Penetrating dice: a die that comes up at its highest is thrown again and added. Every die after the very first of
/// the roll counts one less, penetration or not. Honor adjusts each die as in RollHonorDice, and so does the Scholar's
/// package where RollContextText tells what the roll is for; RollContextText is emptied. A labelled roll is never asked
/// for.
int RollPenetratingDice(Game& game, int sides, int count);

/// As RollPenetratingDice with `plus` on each die and no Scholar.
int RollPenetratingDicePlus(Game& game, int sides, int count, int plus);

/// Hit points: each die is at least 2 at a Constitution of 20, 3 at 21 and 22, 4 above, then adjusted by Honor. A typed
/// result is adjusted by Honor only.
int RollHitPointDice(Game& game, int sides, int count);

/// Rolls the seven abilities (3d6 each), then their percentile points (1d100 each).
void RollAbilityScores(Game& game);

/// Holds dice.log open for a run of many rolls: their lines are gathered and written in large pieces. At the end all of
/// them stand in the file and the game logs as before.
class HeldDiceLog {
 public:
  explicit HeldDiceLog(Game& game);
  ~HeldDiceLog();
  HeldDiceLog(const HeldDiceLog&) = delete;
  HeldDiceLog& operator=(const HeldDiceLog&) = delete;

 private:
  Game& game_;
  DiceLogMode before_;
};

/// One line in dice.log.
void LogDiceLine(Game& game, std::string_view line);

/// "With a Total of: " and the number in dice.log.
void LogDiceTotal(Game& game, int total);

}  // namespace veld
