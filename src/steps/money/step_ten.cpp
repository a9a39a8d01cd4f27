#include "steps/money/step_ten.h"

#include "platform/form.h"
#include "platform/platform.h"
#include "rules/race_table.h"
#include "steps/money/money_bp.h"
#include "steps/money/starting_money.h"

namespace veld {

namespace {

enum : int {
  kOk = 1,
  kAbort = 2,
  kNext = 50,
  kMoneyText = 55,
  kBuildingPoints = 90,
  kAge = 91,
  kMoney = 92,
  kRollMoney = StepTenControl::Money,
  kRollAge = StepTenControl::Age
};

constexpr int kNumberWidth = 6;

constexpr ControlTemplate kStepTenControls[] = {
    TitleAt(0, 0, "Step 10: Finish Background", 3),
    LabelAt(1, 1, "Building Points:"),
    ResultAt(1, 2, kBuildingPoints, kNumberWidth),
    ButtonAt(2, 0, kRollAge, "&Class Adjusted Age"),
    LabelAt(2, 1, "Age:"),
    ResultAt(2, 2, kAge, kNumberWidth),
    LabelAt(2, 2, "years"),
    ButtonAt(3, 0, kRollMoney, "Starting &Money"),
    LabelAt(3, 1, "Money:"),
    ResultAt(3, 2, kMoney, kNumberWidth),
    LabelAt(3, 2, "gp"),
    HeadingAt(4, 0, "Money Special", 3),
    TextAt(5, 0, kMoneyText, "", 58, 2, 1, 3),
    {.Kind = ControlKind::Result, .Id = kNext, .Row = 6, .Width = 40, .ColumnSpan = 3},
    ButtonAt(7, 0, kOk, "&OK", ButtonRole::Default),
    ButtonAt(7, 0, kAbort, "&Abort", ButtonRole::Cancel),
};
constexpr std::string_view kStepTenHelp =
    "Two buttons end his youth. Class Adjusted Age adds the years that his class took to learn; a mage's are many, a "
    "thief's few. Starting Money asks how many BP you put into the roll, then throws d100 with them, his class, his "
    "birth and his family added: much of it is silver spoon. High totals bring an inheritance, from a father's weapon "
    "up to a deed of land; the lowest bring his father's debts. An orphan has half.\n\n"
    "The first press of each is free. Every further one costs 1 BP, and the new result replaces the old, better or "
    "worse. Both must have been pressed before OK. Mind that BP left after the skills become 25 gold each: money can "
    "wait, a bad inheritance can not.";
constexpr FormTemplate kStepTen{"StepTen", "Step 10", kStepTenControls, kStepTenHelp};

/// What has been rolled while the dialog is open. The character's age is written on OK only.
struct StepTenRolls {
  bool HasAge = false;
  bool HasMoney = false;
  int Age = 0;
};

/// Says what comes next, and goes there: Enter pressed again must not pay for the same roll once more.
void ShowNext(const StepTenRolls& rolls, Form& form) {
  const int next = !rolls.HasAge ? kRollAge : !rolls.HasMoney ? kRollMoney : kOk;
  form.SetText(kNext, next == kRollAge     ? "Next: Class Adjusted Age"
                      : next == kRollMoney ? "Next: Starting Money"
                                           : "Next: OK");
  form.Focus(next);
}

void ShowStepTen(const Game& game, const StepTenRolls& rolls, Form& form) {
  ShowNext(rolls, form);
  form.SetNumber(kBuildingPoints, TruncateToInt(game.run.BuildingPoints));
  if (rolls.HasAge) form.SetNumber(kAge, rolls.Age);
  if (!rolls.HasMoney) return;
  form.SetNumber(kMoney, game.sheet.GoldPieces);
  form.SetText(kMoneyText, game.sheet.StartingMoneyText);
}

void OpenStepTen(Game& game, StepTenRolls& rolls) {
  game.run.CurrentStep = 0;
  rolls.HasAge = HasTrait(game.sheet.RaceName, RaceTrait::NoYearsOfTraining);
  rolls.Age = game.sheet.Age;
}

void PressAge(Game& game, StepTenRolls& rolls) {
  if (HasTrait(game.sheet.RaceName, RaceTrait::NoYearsOfTraining) || !PayForRoll(game, !rolls.HasAge)) return;
  rolls.HasAge = true;
  rolls.Age = AddSaturated(game.sheet.Age, RollClassAge(game));
}

/// Returns false if the player aborted.
bool PressMoney(Game& game, StepTenRolls& rolls) {
  if (!PayForRoll(game, !rolls.HasMoney)) return true;
  if (!RunMoneyBP(game)) return false;
  rolls.HasMoney = true;
  GenerateStartingMoney(game);
  return true;
}

/// Returns false, with the player told, while something is left to roll.
bool FinishStepTen(Game& game, const StepTenRolls& rolls) {
  if (!rolls.HasAge || !rolls.HasMoney) {
    game.platform.ShowMessage("You must finish this section");
    return false;
  }
  game.sheet.Age = rolls.Age;
  game.run.CurrentStep = 11;
  return true;
}

}  // namespace

void RunStepTen(Game& game) {
  Form form(kStepTen);
  StepTenRolls rolls;
  form.onOpened = [&] {
    OpenStepTen(game, rolls);
    ShowStepTen(game, rolls, form);
  };
  form.onCommand = [&](int id) {
    if (id == kAbort) return form.Close();
    if (id == kOk && FinishStepTen(game, rolls)) return form.Close();
    if (id == kRollAge) PressAge(game, rolls);
    if (id == kRollMoney && !PressMoney(game, rolls)) return form.Close();
    ShowStepTen(game, rolls, form);
  };
  game.platform.RunForm(form);
}

}  // namespace veld
