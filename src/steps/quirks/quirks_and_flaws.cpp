#include "steps/quirks/quirks_and_flaws.h"

#include <algorithm>

#include "platform/form.h"
#include "platform/platform.h"
#include "steps/quirks/held_quirks.h"
#include "steps/quirks/quirk_work.h"
#include "text/format.h"

namespace veld {

namespace {

constexpr int kOk = 1;
constexpr int kAbort = 2;
constexpr int kBP = 210;
constexpr int kRollsLeft = 211;
constexpr int kOtherRolls = 212;
constexpr int kNext = 213;
constexpr int kPotentialBP = 216;
constexpr int kTable = QuirksControl::Table;
constexpr int kOwed = QuirksControl::Owed;
constexpr int kRoll = QuirksControl::Roll;

constexpr int kTableWidth = 48;

/// Enter at a table rolls on it.
constexpr ControlTemplate EnterRolls(ControlTemplate tables) {
  tables.EnterPresses = kRoll;
  return tables;
}

constexpr ControlTemplate kQuirksandFlawsControls[] = {
    TitleAt(0, 0, "Step 7: Quirks and Flaws", 2),
    ButtonAt(1, 0, kRoll, "&Roll for Quirk or Flaw ->"),
    LabelAt(1, 1, "&Table"),
    EnterRolls(ComboAt(1, 1, kTable, kTableWidth)),
    LabelAt(2, 0, "Next:"),
    ResultAt(2, 1, kNext, kTableWidth + 10),
    LabelAt(3, 0, "6A rolls left:"),
    ResultAt(3, 1, kRollsLeft, 8),
    LabelAt(4, 0, "Other rolls left:"),
    ResultAt(4, 1, kOtherRolls, 8),
    LabelAt(5, 0, "BPs:"),
    ResultAt(5, 1, kBP, 8),
    LabelAt(6, 0, "Potential BPs:"),
    ResultAt(6, 1, kPotentialBP, 8),
    LabelAt(7, 0, "Tables still &owed a roll"),
    LabelAt(7, 1, "&Quirks and Flaws you have"),
    EnterRolls(ListAt(8, 0, kOwed, kTableWidth, 8)),
    ListAt(8, 1, kHeldQuirksList, kTableWidth + 10, 8),
    ButtonAt(9, 0, kOk, "OK", ButtonRole::Default),
    ButtonAt(9, 0, kAbort, "&Abort", ButtonRole::Cancel),
};
constexpr std::string_view kQuirksHelp =
    "Here the dice say what is wrong with him. The box and the list below hold the tables that are owed a roll: choose "
    "one or none and press Roll; Next tells what that will be. A 6A table is where each of your rolls begins; pick "
    "that of the codex, or of "
    "an almanac, which then binds him to a class of that almanac. Many rows send you on to a lower table, and that "
    "roll must be made.\n\n"
    "Each result asks whether you keep it. To refuse one costs 1 BP, paid at once; what you keep pays its own BP, "
    "shown as Potential BPs and added when the step ends. The same flaw can come twice and pay twice. Some rows the "
    "referee decides, at the end of the run.\n\n"
    "OK goes on when none is owed any more.";
constexpr FormTemplate kQuirksandFlaws{"QuirksandFlaws", "Step 7: Roll for Quirks and Flaws",
                                       kQuirksandFlawsControls, kQuirksHelp};
constexpr FormTemplate kQuirksandFlawsMage{"QuirksandFlawsMage", "A Mishap: Quirks and Flaws", kQuirksandFlawsControls,
                                           kQuirksHelp};

int EntryToRoll(const Game& game, const QuirkWork& work, const Form& form) {
  return EntryToRoll(game, work, form.Selection(kTable));
}

/// Tells what Roll will do; a table that is owed stands chosen in its list too.
void ShowNext(const Game& game, const QuirkWork& work, Form& form) {
  form.SetText(kNext, NextQuirkRoll(game, work, form.Selection(kTable)));
  const int entry = EntryToRoll(game, work, form);
  int place = 0;
  while (entry >= 0 && OwedEntry(work, place) >= 0 && OwedEntry(work, place) != entry) ++place;
  form.Select(kOwed, entry < 0 ? -1 : place);
}

/// Shows all, and goes to what comes next.
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
  form.Focus(EntryToRoll(game, work, form) < 0 ? kOk : kRoll);
}

/// OK leaves only when nothing is owed; else it says what is.
void TryToLeave(Game& game, const QuirkWork& work, Form& form) {
  const int rolls = game.run.QuirkRollsLeft;
  const int others = PendingQuirkRolls(work);
  if (rolls + others > 0) {
    form.Focus(kRoll);
    game.platform.ShowMessage(Format("You need to make %i more 6A rolls and %i more other rolls", rolls, others),
                              kQuirksCaption);
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
    for (const std::string_view table : owedTables) OweQuirkRolls(work, table);
    ShowWork(game, work, 0, form);
  };
  form.onSelect = [&](int id) {
    if (id == kOwed) form.Select(kTable, OwedEntry(work, form.Selection(kOwed)));
    ShowNext(game, work, form);
  };
  form.onCommand = [&](int id) {
    if (id == kRoll) {
      const int entry = EntryToRoll(game, work, form);
      ShowWork(game, work, RollQuirkWork(game, work, entry < 0 ? form.Selection(kTable) : entry), form);
    } else if (id == kOk) {
      TryToLeave(game, work, form);
    } else if (id == kAbort && game.run.CurrentStep == 7) {  // elsewhere what is owed must be rolled
      game.run.CurrentStep = 1;
      form.Close();
    }
  };
  game.platform.RunForm(form);
}

}  // namespace

void RunQuirksandFlaws(Game& game) {
  game.run.QuirkRollsLeft = 0;
  RunQuirkForm(game, kQuirksandFlaws, {});
}

void RollForQuirks(Game& game, int rolls) {
  game.run.QuirkRollsLeft = std::clamp(rolls, 0, kMostQuirkRolls);
  RunQuirkForm(game, kQuirksandFlaws, {});
}

void RunQuirksandFlawsMage(Game& game, std::span<const std::string_view> owedTables) {
  game.run.QuirkRollsLeft = 0;
  RunQuirkForm(game, kQuirksandFlawsMage, owedTables);
}

void ListHeldQuirks(const Game& game, Form& form) {
  form.SetItems(kHeldQuirksList, HeldQuirkNames(game));
}

}  // namespace veld
