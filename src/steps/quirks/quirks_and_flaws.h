#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rules/quirk_table.h"
#include "store/game.h"

namespace veld {

// Step 7 by dice: the tables of quirks and flaws, and the rolls that they owe.

/// The QuirksandFlaws dialog, in which all rolls owed are worked off: opened by whatever gave the character a row that
/// owes further rolls. Any roll on a 6A table left over from before is forgotten, and so is what earlier quirks earned.
void RunQuirksandFlaws(Game& game);

/// The same dialog with 0..9 rolls to make on the 6A tables. QuirkRollsLeft tells afterwards what an Abort left.
void RollForQuirks(Game& game, int rolls);

/// The same dialog for a mage's mishaps at school, with a roll owed on each of these tables.
void RunQuirksandFlawsMage(Game& game, std::span<const std::string_view> owedTables);

/// A parent's gift: the player chooses one of two tables, mental or personality, and gets one row of it. A row that
/// owes further rolls is left for QuirksandFlaws.
void RunMinorQuirk(Game& game);
void RunMajorQuirk(Game& game);

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

/// One press: a roll on the entry, kept or rolled again until a row stands, and all that the row brings. Nothing is
/// rolled on a 6A table when no such roll is left, nor without an entry. A table without results owes nothing more.
/// Returns the entry to be selected next.
int RollQuirkWork(Game& game, QuirkWork& work, int entry);

/// What a player does next, in one sentence; `entry` is the selected one.
std::string NextQuirkRoll(const Game& game, const QuirkWork& work, int entry);

/// A row comes up: it is held and paid, or owes further rolls (see kLastOwingRoll).
void TakeQuirkResult(Game& game, QuirkWork& work, int row);

/// Puts the catalogue's BP back and wipes out what the rows held exclude: their counts and BP go, and they can't be
/// taken again in this run.
void ReconcileQuirks(Game& game);

/// RollTableUntilRow as a row number: 0 if the table can give none.
int RollQuirkRow(Game& game, std::string_view table);

/// Binds the character to the classes of a supplement: its Uses...Background becomes 1. Other books bind nothing.
void BindToBook(Game& game, int book);

/// BP that the quirks and flaws have earned so far.
int PotentialQuirkBP(const Game& game);

/// The minor and major quirks and flaws held, each as often as it is held.
std::vector<std::string> HeldQuirkNames(const Game& game);

/// The list of a form that shows HeldQuirkNames.
inline constexpr int kHeldQuirksList = 3021;
void ListHeldQuirks(const Game& game, Form& form);

}  // namespace veld
