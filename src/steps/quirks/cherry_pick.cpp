#include "steps/quirks/cherry_pick.h"

#include <algorithm>

#include "dice/keep_roll.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "steps/quirks/held_quirks.h"
#include "steps/quirks/quirk_wipes.h"
#include "steps/quirks/quirk_work.h"
#include "steps/quirks/quirks_and_flaws.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kMinorPickBP = 2;
constexpr int kMajorPickBP = 4;
constexpr int kMinorPicks = 2;
constexpr int kMajorPicks = 1;

int PicksOf(const Game& game, int row) {
  return game.run.QuirkPicks[static_cast<std::size_t>(row)];
}

bool IsRollCount(int number) {
  return number >= 1 && number <= kMostQuirkRolls;
}

/// The first minor or major row whose name, as it is shown, stands in a text; 0 if none does.
int FindPickRow(std::string_view text) {
  for (int row = 1; row <= kLastQuirk; ++row) {
    const int kind = QuirkAt(row).Kind;
    if ((kind == kMinorQuirk || kind == kMajorQuirk) && Contains(text, ShownQuirkName(row))) return row;
  }
  return 0;
}

std::string LockInQuestion(int book) {
  constexpr std::string_view kAlmanacs[] = {"Hexwright's Almanac", "Warmonger's Almanac", "Swindler's Almanac",
                                            "Devotees's Almanac"};
  if (book > static_cast<int>(std::size(kAlmanacs))) {
    return "Taking this quirk or flaw will not force you into any class, do you still want to take it?";
  }
  return Format(
      "Taking this quirk or flaw will force you into creating a character with a class from the %s (single or "
      "multiclass as race permits), do you still want to take it?",
      kAlmanacs[book - 1]);
}

// --- The dialog ---

constexpr int kOk = 1;
constexpr int kAbort = 2;
constexpr int kMinorLeft = 211;
constexpr int kMajorLeft = 212;
constexpr int kNext = 213;
constexpr int kRolls = 3000;
constexpr int kMinorBox = 3022;
constexpr int kMajorBox = 3023;
constexpr int kMinorList = 3024;
constexpr int kMajorList = 3025;
constexpr int kRoll = 4003;
constexpr int kAddMinor = 4012;
constexpr int kRemoveMinor = 4013;
constexpr int kAddMajor = 4014;
constexpr int kRemoveMajor = 4015;

constexpr int kBoxWidth = 38;
constexpr int kListLines = 4;

/// Enter at a box adds what is chosen there, and at the number of rolls it rolls.
constexpr ControlTemplate EnterPresses(ControlTemplate field, int button) {
  field.EnterPresses = button;
  return field;
}

constexpr ControlTemplate kCherryPickControls[] = {
    TitleAt(0, 0, "Step 7: Quirks and Flaws", 3),
    LabelAt(1, 0, "M&inor Picking Box"),
    LabelAt(1, 1, "Ma&jor Picking Box"),
    LabelAt(1, 2, "&Quirks and Flaws you have"),
    EnterPresses(ComboAt(2, 0, kMinorBox, kBoxWidth), kAddMinor),
    EnterPresses(ComboAt(2, 1, kMajorBox, kBoxWidth), kAddMajor),
    ListAt(2, 2, kHeldQuirksList, kBoxWidth, kListLines + 4, 5),
    ButtonAt(3, 0, kAddMinor, "Add &Minor"),
    ButtonAt(3, 0, kRemoveMinor, "Re&move Minor"),
    ButtonAt(3, 1, kAddMajor, "A&dd Major"),
    ButtonAt(3, 1, kRemoveMajor, "R&emove Major"),
    LabelAt(4, 0, "Mi&nor Flaws selected"),
    LabelAt(4, 1, "Majo&r Flaws selected"),
    ListAt(5, 0, kMinorList, kBoxWidth, kListLines),
    ListAt(5, 1, kMajorList, kBoxWidth, kListLines),
    LabelAt(6, 0, "Picks left:"),
    ResultAt(6, 0, kMinorLeft, 4),
    LabelAt(6, 1, "Picks left:"),
    ResultAt(6, 1, kMajorLeft, 4),
    TextAt(
        7, 0, 0,
        "This is no way to make a Quellmarch character! I want to roll for my Quirks and Flaws. (Enter a 1 to 9 in the "
        "box and hit 'Roll')",
        3 * kBoxWidth, 0, 1, 3),
    LabelAt(8, 0, "Rolls (&1 to 9)"),
    EnterPresses(NumberAt(8, 0, kRolls, 6), kRoll),
    ButtonAt(8, 0, kRoll, "Ro&ll"),
    ButtonAt(9, 0, kOk, "OK", ButtonRole::Default),
    ButtonAt(9, 0, kAbort, "&Abort", ButtonRole::Cancel),
    ResultAt(9, 1, kNext, kBoxWidth),
};
constexpr std::string_view kCherryPickHelp =
    "Quirks and flaws are what is wrong with him, and they are paid for. On this page you may pick: at most two minor "
    "ones for 2 BP each and one major for 4. Choose in a box, press Add; Remove takes it off again. What he was born "
    "with stands on the right, and stays.\n\n"
    "Or do as the game means it: type 1 to 9 beside Rolls and press Roll. Then the dice choose, each row pays what it "
    "is worth, and a refusal costs 1 BP. The picks of this page are worth nothing then.\n\n"
    "A pick from an almanac binds him to a class of that almanac; you are asked before it counts. Look at what a flaw "
    "does to the class that you have in mind. OK goes on, with none if you like.";
constexpr FormTemplate kCherryPick{"CherryPick", "Step 7: Pick Quirks and Flaws", kCherryPickControls, kCherryPickHelp};

/// New items for a box or list; what was selected stays so if it is still there. In a box the one in its place is
/// selected otherwise.
void Refill(Form& form, int id, std::vector<std::string> items) {
  const bool isBox = id == kMinorBox || id == kMajorBox;
  const int place = form.Selection(id);
  const std::string selected = form.SelectedText(id);
  form.SetItems(id, std::move(items));
  const auto& filled = form.Items(id);
  const auto found = std::ranges::find(filled, selected);
  const int last = static_cast<int>(filled.size()) - 1;
  if (!selected.empty() && found != filled.end()) {
    form.Select(id, static_cast<int>(found - filled.begin()));
  } else if (isBox && place >= 0) {
    form.Select(id, std::min(place, last));
  }
}

/// Says what can be picked yet. Returns the control to go to for it.
int ShowNext(const Game& game, Form& form) {
  const bool hasMinor = game.sheet.MinorFlawPicksLeft != 0;
  const bool hasMajor = game.sheet.MajorFlawPicksLeft != 0;
  form.SetText(kNext, hasMinor && hasMajor ? "Next: a minor or major flaw, or OK"
                      : hasMinor           ? "Next: a minor flaw, or OK"
                      : hasMajor           ? "Next: a major flaw, or OK"
                                           : "Next: OK");
  return hasMinor ? kMinorBox : hasMajor ? kMajorBox : kOk;
}

void ShowPicks(Game& game, Form& form) {
  ReconcileQuirks(game);
  ListHeldQuirks(game, form);
  FillQuirkPickBoxes(game, form);
  FillQuirkPickLists(game, form);
  form.SetNumber(kMinorLeft, game.sheet.MinorFlawPicksLeft);
  form.SetNumber(kMajorLeft, game.sheet.MajorFlawPicksLeft);
}

/// Add and Remove: nothing can be added with no pick left, nor removed with all picks left. Returns false if nothing
/// changed.
bool ChangePick(Game& game, const Form& form, int id) {
  const int minorLeft = game.sheet.MinorFlawPicksLeft;
  const int majorLeft = game.sheet.MajorFlawPicksLeft;
  switch (id) {
    case kAddMinor:
      return minorLeft != 0 && ChangeQuirkPick(game, form.SelectedText(kMinorBox), 1);
    case kRemoveMinor:
      return minorLeft != kMinorPicks && ChangeQuirkPick(game, form.SelectedText(kMinorList), -1);
    case kAddMajor:
      return majorLeft != 0 && ChangeQuirkPick(game, form.SelectedText(kMajorBox), 1);
    case kRemoveMajor:
      return majorLeft != kMajorPicks && ChangeQuirkPick(game, form.SelectedText(kMajorList), -1);
    default:
      return false;
  }
}

/// How the dialog was left.
enum class Leave { Abort, Take, Roll, RollThenTake };

Leave AskLeaveByOk(Game& game, int rolls) {
  if (!IsRollCount(rolls)) return Leave::Take;
  const bool rollsFirst = game.platform.Confirms(
      kQuirksCaption,
      "You have entered a number in the Roll box, Do you wish to roll and ignore any Cherry Picking selections?");
  return rollsFirst ? Leave::RollThenTake : Leave::Take;
}

void TakePicks(Game& game) {
  ApplyQuirkPicks(game);
  if (game.run.CurrentStep != 1) game.run.CurrentStep = 8;
}

void FinishCherryPick(Game& game, Leave leave, int rolls) {
  switch (leave) {
    case Leave::Abort:
      game.run.CurrentStep = 1;
      break;
    case Leave::Take:
      TakePicks(game);
      break;
    case Leave::Roll:  // the picks are dropped
      RollForQuirks(game, rolls);
      break;
    case Leave::RollThenTake:
      // The picks do join what was rolled, though what they earned was forgotten when the dice were taken up.
      RollForQuirks(game, rolls);
      if (!IsRollCount(game.run.QuirkRollsLeft)) TakePicks(game);
      break;
  }
  game.run.QuirkRollsLeft = 0;  // an old number must not lock the player in later
}

}  // namespace

void RunCherryPick(Game& game) {
  Form form(kCherryPick);
  Leave leave = Leave::Abort;
  int rolls = 0;
  form.onOpened = [&] {
    ClearQuirkPicks(game);
    ShowPicks(game, form);
    form.Focus(ShowNext(game, form));
  };
  form.onCommand = [&](int id) {
    rolls = static_cast<int>(form.Number(kRolls));
    if (id == kRoll) {
      if (!IsRollCount(rolls)) return;
      leave = Leave::Roll;
    } else if (id == kOk) {
      leave = AskLeaveByOk(game, rolls);
    } else if (id != kAbort) {
      if (ChangePick(game, form, id)) ShowPicks(game, form);
      return form.Focus(ShowNext(game, form));
    }
    form.Close();
  };
  game.platform.RunForm(form);
  FinishCherryPick(game, leave, rolls);
}

std::vector<std::string> OfferedQuirkNames(const Game& game, QuirkKind kind) {
  std::vector<std::string> names;
  for (int row = 1; row <= kLastQuirk; ++row) {
    const QuirkRecord& quirk = QuirkAt(row);
    if (quirk.Kind != kind || !game.IsOn(static_cast<std::size_t>(quirk.Book))) continue;
    const int picks = PicksOf(game, row);
    if (picks >= QuirkLimit(game, row)) continue;
    names.insert(names.end(), static_cast<std::size_t>(std::max(picks, 1)), std::string(ShownQuirkName(row)));
  }
  return names;
}

std::vector<std::string> PickedQuirkNames(const Game& game, QuirkKind kind) {
  std::vector<std::string> names;
  for (int row = 1; row <= kLastQuirk; ++row) {
    if (QuirkAt(row).Kind != kind) continue;
    const int picks = std::max(PicksOf(game, row), 0);
    names.insert(names.end(), static_cast<std::size_t>(picks), std::string(ShownQuirkName(row)));
  }
  return names;
}

void FillQuirkPickBoxes(const Game& game, Form& form) {
  Refill(form, kMinorBox, OfferedQuirkNames(game, kMinorQuirk));
  Refill(form, kMajorBox, OfferedQuirkNames(game, kMajorQuirk));
}

void FillQuirkPickLists(const Game& game, Form& form) {
  Refill(form, kMinorList, PickedQuirkNames(game, kMinorQuirk));
  Refill(form, kMajorList, PickedQuirkNames(game, kMajorQuirk));
}

bool ChangeQuirkPick(Game& game, std::string_view text, int delta) {
  const int row = FindPickRow(text);
  if (row == 0 || PicksOf(game, row) + delta < 0) return false;
  const QuirkRecord& quirk = QuirkAt(row);
  if (quirk.Book > 0 && !game.platform.Confirms("Class Book Lock-in", LockInQuestion(quirk.Book))) return false;
  const bool isMinor = quirk.Kind == kMinorQuirk;
  game.run.QuirkPicks[static_cast<std::size_t>(row)] += delta;
  game.sheet.QuirkBP[static_cast<std::size_t>(row)] += delta * (isMinor ? kMinorPickBP : kMajorPickBP);
  (isMinor ? game.sheet.MinorFlawPicksLeft : game.sheet.MajorFlawPicksLeft) -= delta;
  return true;
}

void ClearQuirkPicks(Game& game) {
  game.run.QuirkPicks.fill(0);
}

void ApplyQuirkPicks(Game& game) {
  for (int row = 0; row < kQuirkRows; ++row) {
    int& count = HeldCount(game, row);
    count = AddSaturated(count, PicksOf(game, row));
    if (count > 0) BindToBook(game, QuirkAt(row).Book);
  }
}

}  // namespace veld
