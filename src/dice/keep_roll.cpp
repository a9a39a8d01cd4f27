#include "dice/keep_roll.h"

#include <utility>

#include "dice/building_points.h"
#include "dice/dice.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/quirk_table.h"
#include "text/format.h"

namespace veld {

namespace {

constexpr int kMostTableRolls = 10'000;

using Outcome = enum TableResult::Outcome;

bool CanHold(const Game& game, int row) {
  const int held = game.sheet.QuirkCounts[static_cast<std::size_t>(row)];
  return held != -1 && held < QuirkLimit(game, row);
}

using RowFilter = std::function<bool(int row)>;

/// True if some result of the dice yields a row that the character can hold and the caller can use.
bool CanYieldRow(const Game& game, std::string_view table, const QuirkDie& die, const RowFilter& isUsable) {
  for (int roll = die.Count; roll <= die.Count * die.Sides; ++roll) {
    const int row = QuirkRowOfRoll(table, roll);
    if (CanHold(game, row) && (!isUsable || isUsable(row))) return true;
  }
  return false;
}

TableResult TellNoRow(Game& game, std::string_view table) {
  game.platform.ShowMessage(Format("The table '%s' has no result left.", table));
  return {Outcome::NoRow, 0};
}

/// One roll on a table. Nothing is rolled when no row is left that the caller could use.
TableResult RollOnce(Game& game, std::string_view table, const RowFilter& isUsable) {
  const QuirkDie die = QuirkTableDie(table);
  if (!CanYieldRow(game, table, die, isUsable)) return TellNoRow(game, table);
  const int roll = RollDice(game, die.Sides, die.Count);
  const int row = QuirkRowOfRoll(table, roll);
  if (!CanHold(game, row)) return {Outcome::RollAgain, 0};
  const std::string_view name = ShownQuirkName(row);
  const int bp = game.run.QuirkBPCosts[static_cast<std::size_t>(row)];
  const std::string question = bp > 0 ? Format("Keep your result of (%i) %s (%i BP)?", roll, name, bp)
                                      : Format("Keep your result of (%i) %s?", roll, name);
  if (!AskKeep(game, question)) return {Outcome::RollAgain, 0};
  return {Outcome::Row, row};
}

}  // namespace

int QuirkLimit(const Game& game, int row) {
  const auto at = static_cast<std::size_t>(row);
  return game.run.QuirkBarred[at] != 0 ? 0 : QuirkTable()[at].MaxCount;
}

int AskKeepRoll(Game& game, Form& window, int sides, int count) {
  while (true) {
    const std::string purpose = std::exchange(game.dice.RollPurpose, game.dice.RollContextText);
    const int result = RollDice(game, sides, count);
    game.dice.RollPurpose = purpose;
    if (AskKeep(game, Format("%s - Keep your result of - %i", game.dice.RollContextText, result))) return result;
    window.SetText(kBuildingPointsControl, Format("%g", game.run.BuildingPoints));
  }
}

TableResult AskKeepTableResult(Game& game, std::string_view table) {
  return RollOnce(game, table, {});
}

TableResult RollTableUntilRow(Game& game, std::string_view table, const std::function<bool(int)>& isUsable) {
  for (int tries = 0; tries < kMostTableRolls; ++tries) {
    const TableResult result = RollOnce(game, table, isUsable);
    if (result.Outcome == Outcome::NoRow) return result;
    if (result.IsRow() && (!isUsable || isUsable(result.Row))) return result;
  }
  return TellNoRow(game, table);
}

bool IsResultKept(Game& game, std::string_view table, std::string_view result) {
  return AskKeep(game, Format("%s - Keep your result of %s?", table, result));
}

bool RollUntilItStands(Game& game, std::string_view table, const std::function<bool()>& tryOnce) {
  for (int tries = 0; tries < kMostTableRolls; ++tries) {
    if (tryOnce()) return true;
  }
  TellNoRow(game, table);
  return false;
}

}  // namespace veld
