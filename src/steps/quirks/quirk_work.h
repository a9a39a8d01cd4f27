#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/game.h"

namespace veld {

// The work list of Step 7 by dice: the tables that are owed a roll, and what a roll brings.

/// The caption of all that is told about quirks and flaws.
inline constexpr std::string_view kQuirksCaption = "Quirks and Flaws";

/// The tables to roll on. The 6A tables stand at the head, every other one is owed one roll.
struct QuirkWork {
  std::vector<std::string_view> Tables;
  int Rolls = 0;  ///< made so far
};

/// From this roll of one work list on, a row that only owes further rolls owes none. Once table 6C has no flaw left to
/// give, each roll on it owes more than one new roll on the average, so that bad luck would have no end. Most players
/// are done after two dozen rolls, and hardly any makes so many.
inline constexpr int kLastOwingRoll = 150;

/// Begins a work list: forgets what quirks earned (rows 0 to 599), lists the 6A tables of the books in use and turns
/// the rows held that stand for further rolls into entries.
QuirkWork OpenQuirkWork(Game& game);

bool IsStartTable(std::string_view table);
/// Rolls owed on tables that are not 6A tables.
int PendingQuirkRolls(const QuirkWork& work);

/// The entry of the table of this place (from 0) among those that are no 6A tables; -1 if there are not so many.
int OwedEntry(const QuirkWork& work, int place);
/// The entry that a player means who has this one selected: itself if it can be rolled on, else the first that is owed
/// a roll, else the first one; -1 if nothing is left to roll.
int EntryToRoll(const Game& game, const QuirkWork& work, int entry);

/// Adds rolls on a table. Nothing is owed on a table without a name: a row that leads nowhere.
void OweQuirkRolls(QuirkWork& work, std::string_view table, int rolls = 1);

/// One press: a roll on the entry, kept or rolled again until a row stands, and all that the row brings. Nothing is
/// rolled on a 6A table when no such roll is left, nor without an entry. A table without results owes nothing more.
/// Returns the entry to be selected next.
int RollQuirkWork(Game& game, QuirkWork& work, int entry);

/// What a player does next, in one sentence; `entry` is the selected one (see EntryToRoll).
std::string NextQuirkRoll(const Game& game, const QuirkWork& work, int entry);

/// A row comes up: it is held and paid, or owes further rolls (see kLastOwingRoll).
void TakeQuirkResult(Game& game, QuirkWork& work, int row);

/// RollTableUntilRow as a row number: 0 if the table can give none.
int RollQuirkRow(Game& game, std::string_view table);

}  // namespace veld
