#pragma once

#include <functional>
#include <string_view>

#include "store/game.h"

namespace veld {

class Form;

/// The control of a window that shows the Building Points left.
inline constexpr int kBuildingPointsControl = 50;

/// A roll that the player keeps: while the BP reach for it each result can be refused for 1 BP. The BP left are written
/// to the window's control 50.
int AskKeepRoll(Game& game, Form& window, int sides, int count);

/// How many of a quirk row the character can hold now: its MaxCount, or 0 once a row held has barred it.
int QuirkLimit(const Game& game, int row);

/// What a roll on a quirk table came to.
struct TableResult {
  enum class Outcome {
    Row,        ///< a row the player keeps
    RollAgain,  ///< refused for 1 BP, or a row that the character can't hold (more of)
    NoRow,      ///< nothing on this table can come up any more; the player has been told
  };
  Outcome Outcome = Outcome::NoRow;
  int Row = 0;

  bool IsRow() const { return Outcome == Outcome::Row; }
};

/// One roll on a table of the quirk catalogue, with the offer to refuse it for 1 BP while the BP reach.
TableResult AskKeepTableResult(Game& game, std::string_view table);

/// Rolls on the table until there is a row that the player keeps and `isUsable` accepts. Ends without one, having told
/// the player, when nothing can come up or after 10,000 tries.
TableResult RollTableUntilRow(Game& game, std::string_view table, const std::function<bool(int row)>& isUsable = {});

/// AskKeep with the question of a supplement's table: "<table> - Keep your result of <result>?".
bool IsResultKept(Game& game, std::string_view table, std::string_view result);

/// Tries a table until it stands, which is when `tryOnce` returns true. False, having told the player that the table
/// has no result left, after 10,000 tries.
bool RollUntilItStands(Game& game, std::string_view table, const std::function<bool()>& tryOnce);

}  // namespace veld
