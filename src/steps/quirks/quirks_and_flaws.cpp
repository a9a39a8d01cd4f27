#include "steps/quirks/quirks_and_flaws.h"

#include <algorithm>
#include <numeric>

#include "dice/keep_roll.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr std::string_view kCaption = "Quirks and Flaws";
constexpr int kMostRolls = 9;
constexpr int kLastForgottenQuirk = 599;  ///< what later rows earned is never paid, nor forgotten
constexpr int kMissingFinger = 17;
constexpr int kBaldness = 15;

/// A lettered table that a row may say to roll "twice" on.
struct TwiceTable {
  std::string_view Letter;
  std::string_view WhenRolled;
  std::string_view WhenGranted;  ///< for a row that the character was given before the dialog opened
};
constexpr TwiceTable kTwiceTables[] = {
    {"6C", kTable6C, kTable6B},  // the two differ on purpose
    {"6H", kTable6H, kTable6H},
    {"6G", kTable6G, kTable6G},
};

/// A row that wipes out another while it is held, beside those that the catalogue excludes.
struct QuirkWipe {
  int Quirk;
  int Wiped;
};
constexpr QuirkWipe kWipes[] = {
    {36, 35},                                                    // both arms: the one arm
    {37, 38},                                                    // both legs: the one leg
    {39, 5},  {39, 14}, {39, 28}, {39, 29}, {39, 30}, {39, 46},  // blind: whatever else ails the eyes
    {40, 9},  {40, 27},                                          // deaf: hearing impaired, tone deaf
};

const QuirkRecord& QuirkAt(int row) {
  return QuirkTable()[static_cast<std::size_t>(row)];
}
int& CountOf(Game& game, int row) {
  return game.sheet.QuirkCounts[static_cast<std::size_t>(row)];
}
int& EarnedBy(Game& game, int row) {
  return game.sheet.QuirkBP[static_cast<std::size_t>(row)];
}
int& BPCostOf(Game& game, int row) {
  return game.run.QuirkBPCosts[static_cast<std::size_t>(row)];
}

void Owe(QuirkWork& work, std::string_view table, int rolls = 1) {
  if (table.empty()) return;  // a row that leads nowhere
  work.Tables.insert(work.Tables.end(), static_cast<std::size_t>(rolls), table);
}

/// Adds the tables that the name of a row tells to roll on. Returns false if it tells of none.
bool OweNamedTables(QuirkWork& work, std::string_view name, bool granted) {
  const std::size_t before = work.Tables.size();
  if (Contains(name, "twice")) {
    for (const TwiceTable& table : kTwiceTables) {
      if (Contains(name, table.Letter)) Owe(work, granted ? table.WhenGranted : table.WhenRolled, 2);
    }
  } else {
    for (const QuirkTableLetter& table : kQuirkTableLetters) {
      if (Contains(name, table.Letter)) Owe(work, table.Table);
    }
  }
  return work.Tables.size() > before;
}

/// Rows held of which the character only got that they lead to another table.
void OweForSubTables(Game& game, QuirkWork& work) {
  for (int row = 0; row <= kLastQuirk; ++row) {
    if (QuirkAt(row).Kind != kSubTable || CountOf(game, row) <= 0) continue;
    Owe(work, QuirkAt(row).NextTable);
    CountOf(game, row) = 0;
  }
}

/// Rows held whose names tell of further rolls: those of two rolls, or all others.
void OweForNames(Game& game, QuirkWork& work, bool twice) {
  for (int row = 0; row <= kLastForgottenQuirk; ++row) {
    if (CountOf(game, row) <= 0 || Contains(QuirkAt(row).Name, "twice") != twice) continue;
    if (OweNamedTables(work, QuirkAt(row).Name, true)) CountOf(game, row) = 0;
  }
}

/// After a roll on an entry: it goes, or a 6A roll is used up. Returns the entry to be selected next.
int SettleEntry(Game& game, QuirkWork& work, int entry) {
  const std::string_view table = work.Tables[static_cast<std::size_t>(entry)];
  if (!IsStartTable(table)) {
    work.Tables.erase(work.Tables.begin() + entry);
    return std::max(entry - 1, 0);
  }
  --game.run.QuirkRollsLeft;
  const auto start = std::ranges::find(kQuirkStartTables, table, &QuirkStartTable::Table);
  if (start != kQuirkStartTables.end()) BindToBook(game, start->Book);
  return entry;
}

/// Some rows bring less once they are held: a missing finger, and all personalities beside the first.
void CheapenRepeats(Game& game, int taken) {
  if (QuirkAt(taken).RepeatBP == 0) return;
  if (taken == kMissingFinger) {
    BPCostOf(game, taken) = QuirkAt(taken).RepeatBP;
    return;
  }
  for (const int row : QuirkTableRows(QuirkAt(taken).TableName)) BPCostOf(game, row) = QuirkAt(row).RepeatBP;
}

void HoldQuirk(Game& game, int row) {
  CountOf(game, row) += 1;
  EarnedBy(game, row) += BPCostOf(game, row);
}

void Wipe(Game& game, int row) {
  CountOf(game, row) = 0;
  EarnedBy(game, row) = 0;
  game.run.QuirkBarred[static_cast<std::size_t>(row)] = 1;
}

// --- The dialog ---

constexpr int kOk = 1;
constexpr int kAbort = 2;
constexpr int kBP = 210;
constexpr int kRollsLeft = 211;
constexpr int kOtherRolls = 212;
constexpr int kNext = 213;
constexpr int kPotentialBP = 216;
constexpr int kTable = 3115;
constexpr int kOwed = 3116;
constexpr int kRoll = 4001;

constexpr int kTableWidth = 48;

constexpr ControlTemplate kQuirksandFlawsControls[] = {
    TitleAt(0, 0, "Step 7: Quirks and Flaws", 2),
    LabelAt(1, 1, "&Table"),
    ButtonAt(2, 0, kRoll, "&Roll for Quirk or Flaw ->"),
    ComboAt(2, 1, kTable, kTableWidth),
    LabelAt(3, 0, "Next:"),
    ResultAt(3, 1, kNext, kTableWidth + 10),
    LabelAt(4, 0, "6A rolls left:"),
    ResultAt(4, 1, kRollsLeft, 8),
    LabelAt(5, 0, "Other rolls left:"),
    ResultAt(5, 1, kOtherRolls, 8),
    LabelAt(6, 0, "BPs:"),
    ResultAt(6, 1, kBP, 8),
    LabelAt(7, 0, "Potential BPs:"),
    ResultAt(7, 1, kPotentialBP, 8),
    LabelAt(8, 0, "Tables still &owed a roll"),
    LabelAt(8, 1, "&Quirks and Flaws you have"),
    ListAt(9, 0, kOwed, kTableWidth, 8),
    ListAt(9, 1, kHeldQuirksList, kTableWidth + 10, 8),
    ButtonAt(10, 0, kOk, "OK", ButtonRole::Default),
    ButtonAt(10, 0, kAbort, "&Abort", ButtonRole::Cancel),
};
constexpr FormTemplate kQuirksandFlaws{"QuirksandFlaws", "Quirks and Flaws", kQuirksandFlawsControls};
constexpr FormTemplate kQuirksandFlawsMage{"QuirksandFlawsMage", "Quirks and Flaws", kQuirksandFlawsControls};

void ShowNext(const Game& game, const QuirkWork& work, Form& form) {
  form.SetText(kNext, NextQuirkRoll(game, work, form.Selection(kTable)));
}

void ShowWork(const Game& game, const QuirkWork& work, int selected, Form& form) {
  form.SetItems(kTable, {work.Tables.begin(), work.Tables.end()});
  form.Select(kTable, selected);
  std::vector<std::string> owed;
  for (const std::string_view table : work.Tables) {
    if (!IsStartTable(table)) owed.emplace_back(table);
  }
  form.SetItems(kOwed, std::move(owed));
  form.SetNumber(kRollsLeft, game.run.QuirkRollsLeft);
  form.SetNumber(kOtherRolls, PendingQuirkRolls(work));
  form.SetNumber(kBP, TruncateToInt(game.run.BuildingPoints));
  form.SetNumber(kPotentialBP, PotentialQuirkBP(game));
  ListHeldQuirks(game, form);
  ShowNext(game, work, form);
}

/// OK leaves only when nothing is owed; else it says what is.
void TryToLeave(Game& game, const QuirkWork& work, Form& form) {
  const int rolls = game.run.QuirkRollsLeft;
  const int others = PendingQuirkRolls(work);
  if (rolls + others > 0) {
    game.platform.ShowMessage(Format("You need to make %i more 6A rolls and %i more other rolls", rolls, others),
                              kCaption);
    return;
  }
  game.run.CurrentStep = 8;
  form.Close();
}

void RunQuirkForm(Game& game, const FormTemplate& formTemplate, std::span<const std::string_view> owedTables) {
  Form form(formTemplate);
  QuirkWork work;
  form.onOpened = [&] {
    work = OpenQuirkWork(game);
    for (const std::string_view table : owedTables) Owe(work, table);
    ShowWork(game, work, 0, form);
  };
  form.onSelect = [&](int) { ShowNext(game, work, form); };
  form.onCommand = [&](int id) {
    if (id == kRoll) {
      const int selected = RollQuirkWork(game, work, form.Selection(kTable));
      ShowWork(game, work, selected, form);
    } else if (id == kOk) {
      TryToLeave(game, work, form);
    } else if (id == kAbort && game.run.CurrentStep == 7) {  // elsewhere what is owed must be rolled
      game.run.CurrentStep = 1;
      form.Close();
    }
  };
  game.platform.RunForm(form);
}

// --- A free quirk of one of two tables ---

constexpr int kMinorMental = 4006;
constexpr int kMajorMental = 4007;
constexpr int kMinorPersonality = 4008;
constexpr int kMajorPersonality = 4009;

// There is no way out but a table: the close box is the second one.
constexpr ControlTemplate kMinorQuirkControls[] = {
    TitleAt(0, 0, "You just earned a free minor quirk!"),
    ButtonAt(1, 0, kMinorMental, "6&F: Quirks, Minor (Mental)", ButtonRole::Default),
    ButtonAt(2, 0, kMinorPersonality, "6&H: Quirks, Minor (Personality)", ButtonRole::Cancel),
};
constexpr FormTemplate kFreeMinorQuirk{"MinorQuirk", "Minor Quirk", kMinorQuirkControls};

constexpr ControlTemplate kMajorQuirkControls[] = {
    TitleAt(0, 0, "You just earned a free major quirk!"),
    ButtonAt(1, 0, kMajorMental, "6&G: Quirks, Major (Mental)", ButtonRole::Default),
    ButtonAt(2, 0, kMajorPersonality, "6&I: Quirks, Major (Personality)", ButtonRole::Cancel),
};
constexpr FormTemplate kFreeMajorQuirk{"MajorQuirk", "Major Quirk", kMajorQuirkControls};

std::string_view TableOfButton(int id) {
  switch (id) {
    case kMinorMental:
      return kTable6F;
    case kMinorPersonality:
      return kTable6H;
    case kMajorMental:
      return kTable6G;
    default:
      return kTable6I;
  }
}

void RunFreeQuirk(Game& game, const FormTemplate& formTemplate) {
  Form form(formTemplate);
  form.onCommand = [&](int id) {
    if (const int row = RollQuirkRow(game, TableOfButton(id)); row > 0) CountOf(game, row) += 1;
    form.Close();
  };
  game.platform.RunForm(form);
}

}  // namespace

bool IsStartTable(std::string_view table) {
  return Contains(table, "6A");
}

int PendingQuirkRolls(const QuirkWork& work) {
  return static_cast<int>(std::ranges::count_if(work.Tables, [](auto table) { return !IsStartTable(table); }));
}

QuirkWork OpenQuirkWork(Game& game) {
  for (int row = 0; row <= kLastForgottenQuirk; ++row) EarnedBy(game, row) = 0;
  QuirkWork work;
  for (const QuirkStartTable& start : kQuirkStartTables) {
    if (start.Book == 0 || game.IsOn(static_cast<std::size_t>(start.Book))) work.Tables.push_back(start.Table);
  }
  OweForSubTables(game, work);
  OweForNames(game, work, true);
  OweForNames(game, work, false);
  return work;
}

int RollQuirkWork(Game& game, QuirkWork& work, int entry) {
  const bool isEntry = entry >= 0 && entry < static_cast<int>(work.Tables.size());
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
  const int pending = PendingQuirkRolls(work);
  if (game.run.QuirkRollsLeft <= 0 && pending == 0) return "Nothing is left to roll: go on with OK.";
  if (entry < 0 || entry >= static_cast<int>(work.Tables.size())) return "Choose a table and roll.";
  const std::string_view table = work.Tables[static_cast<std::size_t>(entry)];
  if (!IsStartTable(table) || game.run.QuirkRollsLeft > 0) return Format("Roll on %s", table);
  return Format("No 6A roll is left: choose %s.", pending == 1 ? "the other table" : "one of the other tables");
}

void TakeQuirkResult(Game& game, QuirkWork& work, int row) {
  const QuirkRecord& quirk = QuirkAt(row);
  const bool mayOwe = work.Rolls < kLastOwingRoll;
  switch (quirk.Kind) {
    case kRefereeQuirk:
      game.platform.ShowMessage(
          Format("This flaw '%s' falls under the direction of the GM to roll your final result", ShownQuirkName(row)),
          kCaption);
      HoldQuirk(game, row);
      break;
    case kMinorQuirk:
    case kMajorQuirk:
      HoldQuirk(game, row);
      CheapenRepeats(game, row);
      break;
    case kSubTable:
      if (mayOwe) Owe(work, quirk.NextTable, std::max(quirk.Rolls, 1));
      break;
    default:
      if (mayOwe) OweNamedTables(work, quirk.Name, false);
      break;
  }
}

// The catalogue's BP are read anew on each pass, so what a repeat brings less is undone at once and a repeat is paid in
// full.
void ReconcileQuirks(Game& game) {
  std::ranges::transform(QuirkTable(), game.run.QuirkBPCosts.begin(), &QuirkRecord::BPCost);
  for (int row = 0; row <= kLastQuirk; ++row) {
    if (CountOf(game, row) <= 0) continue;
    if (row == kBaldness && game.sheet.Gender == "Female") Wipe(game, row);
    for (const QuirkWipe& wipe : kWipes) {
      if (wipe.Quirk == row) Wipe(game, wipe.Wiped);
    }
    for (const int excluded : QuirkAt(row).Excludes) {
      if (excluded > 0) Wipe(game, excluded);
    }
  }
}

int RollQuirkRow(Game& game, std::string_view table) {
  const TableResult result = RollTableUntilRow(game, table);
  return result.IsRow() ? result.Row : 0;
}

void BindToBook(Game& game, int book) {
  switch (book) {
    case kHexwrightsAlmanac:
      game.sheet.UsesMageBackground = 1;
      break;
    case kWarmongersAlmanac:
      game.sheet.UsesFighterBackground = 1;
      break;
    case kSwindlersAlmanac:
      game.run.UsesThiefBackground = 1;
      break;
    case kDevoteesAlmanac:
      game.sheet.UsesClericBackground = 1;
      break;
    default:
      break;
  }
}

int PotentialQuirkBP(const Game& game) {
  const auto first = game.sheet.QuirkBP.begin();
  return SaturateToInt(std::accumulate(first, first + kLastQuirk + 1, std::int64_t{0}));
}

std::vector<std::string> HeldQuirkNames(const Game& game) {
  std::vector<std::string> names;
  for (int row = 1; row <= kLastQuirk; ++row) {
    const QuirkRecord& quirk = QuirkAt(row);
    if (quirk.Kind != kMinorQuirk && quirk.Kind != kMajorQuirk) continue;
    const int held = std::clamp(game.sheet.QuirkCounts[static_cast<std::size_t>(row)], 0, kAnyQuirkCount);
    names.insert(names.end(), static_cast<std::size_t>(held), std::string(ShownQuirkName(row)));
  }
  return names;
}

void ListHeldQuirks(const Game& game, Form& form) {
  form.SetItems(kHeldQuirksList, HeldQuirkNames(game));
}

void RunQuirksandFlaws(Game& game) {
  game.run.QuirkRollsLeft = 0;
  RunQuirkForm(game, kQuirksandFlaws, {});
}

void RollForQuirks(Game& game, int rolls) {
  game.run.QuirkRollsLeft = std::clamp(rolls, 0, kMostRolls);
  RunQuirkForm(game, kQuirksandFlaws, {});
}

void RunQuirksandFlawsMage(Game& game, std::span<const std::string_view> owedTables) {
  game.run.QuirkRollsLeft = 0;
  RunQuirkForm(game, kQuirksandFlawsMage, owedTables);
}

void RunMinorQuirk(Game& game) {
  RunFreeQuirk(game, kFreeMinorQuirk);
}
void RunMajorQuirk(Game& game) {
  RunFreeQuirk(game, kFreeMajorQuirk);
}

}  // namespace veld
