#include "steps/quirks/quirk_work.h"

#include <algorithm>

#include "dice/keep_roll.h"
#include "platform/platform.h"
#include "rules/quirk_table.h"
#include "steps/quirks/held_quirks.h"
#include "steps/quirks/quirk_wipes.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

int& EarnedBy(Game& game, int row) {
  return game.sheet.QuirkBP[static_cast<std::size_t>(row)];
}

/// Null for a table that no player starts on.
const QuirkStartTable* FindStartTable(std::string_view table) {
  const auto start = std::ranges::find(kQuirkStartTables, table, &QuirkStartTable::Table);
  return start == kQuirkStartTables.end() ? nullptr : &*start;
}

bool IsEntry(const QuirkWork& work, int entry) {
  return entry >= 0 && entry < static_cast<int>(work.Tables.size());
}

// --- Rows that owe rolls ---

bool IsTwice(std::string_view name) {
  return Contains(name, "twice");
}

/// Adds the tables whose letters stand in the name of a row, two rolls on each for "twice". Returns false if it names
/// none. Granted is a row that the character was given before the dialog opened.
bool OweNamedTables(QuirkWork& work, std::string_view name, bool granted) {
  const std::size_t before = work.Tables.size();
  const bool isTwice = IsTwice(name);
  for (const QuirkTableLetter& table : kQuirkTableLetters) {
    if (!Contains(name, table.Letter)) continue;
    // "Twice more on Table 6C" sends whom it was granted to 6B: the two differ on purpose.
    const bool isTurned = isTwice && granted && table.Table == kTable6C;
    OweQuirkRolls(work, isTurned ? kTable6B : table.Table, isTwice ? 2 : 1);
  }
  return work.Tables.size() > before;
}

/// Rows held of which the character only got that they lead to another table.
void OweForSubTables(Game& game, QuirkWork& work) {
  for (int row = 0; row <= kLastQuirk; ++row) {
    if (QuirkAt(row).Kind != kSubTable || HeldCount(game, row) <= 0) continue;
    OweQuirkRolls(work, QuirkAt(row).NextTable);
    HeldCount(game, row) = 0;
  }
}

/// Rows held whose names tell of further rolls: those of two rolls, or all others.
void OweForNames(Game& game, QuirkWork& work, bool twice) {
  for (int row = 0; row <= kLastPaidQuirk; ++row) {
    if (HeldCount(game, row) <= 0 || IsTwice(QuirkAt(row).Name) != twice) continue;
    if (OweNamedTables(work, QuirkAt(row).Name, true)) HeldCount(game, row) = 0;
  }
}

// --- A roll ---

/// After a roll on an entry: it goes, or a 6A roll is used up. Returns the entry to be selected next.
int SettleEntry(Game& game, QuirkWork& work, int entry) {
  if (const QuirkStartTable* start = FindStartTable(work.Tables[static_cast<std::size_t>(entry)])) {
    --game.run.QuirkRollsLeft;
    BindToBook(game, start->Book);
    return entry;
  }
  work.Tables.erase(work.Tables.begin() + entry);
  return std::max(entry - 1, 0);
}

void HoldQuirk(Game& game, int row) {
  HeldCount(game, row) += 1;
  EarnedBy(game, row) += game.run.QuirkBPCosts[static_cast<std::size_t>(row)];
}

}  // namespace

QuirkWork OpenQuirkWork(Game& game) {
  for (int row = 0; row <= kLastPaidQuirk; ++row) EarnedBy(game, row) = 0;
  QuirkWork work;
  for (const QuirkStartTable& start : kQuirkStartTables) {
    if (start.Book == 0 || game.IsOn(static_cast<std::size_t>(start.Book))) work.Tables.push_back(start.Table);
  }
  OweForSubTables(game, work);
  OweForNames(game, work, true);
  OweForNames(game, work, false);
  return work;
}

bool IsStartTable(std::string_view table) {
  return FindStartTable(table) != nullptr;
}

int PendingQuirkRolls(const QuirkWork& work) {
  return static_cast<int>(std::ranges::count_if(work.Tables, [](auto table) { return !IsStartTable(table); }));
}

int OwedEntry(const QuirkWork& work, int place) {
  for (int entry = 0; IsEntry(work, entry); ++entry) {
    if (!IsStartTable(work.Tables[static_cast<std::size_t>(entry)]) && place-- == 0) return entry;
  }
  return -1;
}

int EntryToRoll(const Game& game, const QuirkWork& work, int entry) {
  const bool isLeft = game.run.QuirkRollsLeft > 0;
  if (IsEntry(work, entry) && (isLeft || !IsStartTable(work.Tables[static_cast<std::size_t>(entry)]))) return entry;
  const int owed = OwedEntry(work, 0);
  return owed >= 0 ? owed : isLeft && !work.Tables.empty() ? 0 : -1;
}

void OweQuirkRolls(QuirkWork& work, std::string_view table, int rolls) {
  if (!table.empty()) work.Tables.insert(work.Tables.end(), static_cast<std::size_t>(rolls), table);
}

int RollQuirkWork(Game& game, QuirkWork& work, int entry) {
  const bool isEntry = IsEntry(work, entry);
  const std::string_view table = isEntry ? work.Tables[static_cast<std::size_t>(entry)] : std::string_view{};
  if (isEntry && (!IsStartTable(table) || game.run.QuirkRollsLeft > 0)) {
    const int row = RollQuirkRow(game, table);
    work.Rolls = AddSaturated(work.Rolls, 1);
    entry = SettleEntry(game, work, entry);
    if (row > 0) TakeQuirkResult(game, work, row);
  }
  ReconcileQuirks(game);
  return entry;
}

std::string NextQuirkRoll(const Game& game, const QuirkWork& work, int entry) {
  entry = EntryToRoll(game, work, entry);
  if (entry < 0) return "Nothing is left to roll: go on with OK.";
  return Format("Roll on %s", work.Tables[static_cast<std::size_t>(entry)]);
}

void TakeQuirkResult(Game& game, QuirkWork& work, int row) {
  const QuirkRecord& quirk = QuirkAt(row);
  const bool mayOwe = work.Rolls < kLastOwingRoll;
  switch (quirk.Kind) {
    case kRefereeQuirk:
      game.platform.ShowMessage(
          Format("This flaw '%s' falls under the direction of the GM to roll your final result", ShownQuirkName(row)),
          kQuirksCaption);
      HoldQuirk(game, row);
      break;
    case kMinorQuirk:
    case kMajorQuirk:
      HoldQuirk(game, row);
      CheapenRepeats(game, row);
      break;
    case kSubTable:
      if (mayOwe) OweQuirkRolls(work, quirk.NextTable, std::max(quirk.Rolls, 1));
      break;
    default:
      if (mayOwe) OweNamedTables(work, quirk.Name, false);
      break;
  }
}

int RollQuirkRow(Game& game, std::string_view table) {
  const TableResult result = RollTableUntilRow(game, table);
  return result.IsRow() ? result.Row : 0;
}

}  // namespace veld
