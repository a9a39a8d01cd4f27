#include "steps/money/money_bp.h"

#include "platform/form.h"
#include "platform/platform.h"
#include "steps/money/starting_money.h"
#include "text/format.h"

namespace veld {

namespace {

enum : int { kOk = 1, kAbort = 2, kLeft = 15, kEntry = MoneyBPControl::Entry };

constexpr ControlTemplate kMoneyBPControls[] = {
    TextAt(0, 0, 0, "For every BP you spend you add 2-24 to your money roll", 54, 0, 1, 2),
    ResultAt(1, 0, kLeft, 24),
    LabelAt(1, 1, "&Spend"),
    NumberAt(1, 1, kEntry),
    LabelAt(1, 1, "BP"),
    ButtonAt(2, 0, kOk, "&OK", ButtonRole::Default),
    ButtonAt(2, 0, kAbort, "&Abort", ButtonRole::Cancel),
};
constexpr std::string_view kMoneyBPHelp =
    "Whole BP, none or as many as you have, go into the roll for money: each adds two twelve-sided dice to its d100. "
    "They are spent, whatever comes. A BP or two lifts a poor total out of the debts; more is for those who hunt the "
    "inheritance. OK rolls, Abort ends the generation.";
constexpr FormTemplate kMoneyBP{"MoneyBP", "Money", kMoneyBPControls, kMoneyBPHelp};

}  // namespace

bool RunMoneyBP(Game& game) {
  Form form(kMoneyBP);
  bool isSpent = false;
  form.onOpened = [&] {
    game.run.MoneyBPSpent = 0;
    form.SetText(kLeft, Format("You have %g BPs.", game.run.BuildingPoints));
    form.SetNumber(kEntry, 0);
    form.Focus(kEntry);
  };
  form.onCommand = [&](int id) {
    if (id == kOk) {
      isSpent = SpendMoneyBP(game, ReadNumberPrefix(form.Text(kEntry)));
      if (!isSpent) return;  // stays open without a word
    }
    form.Close();
  };
  game.platform.RunForm(form);
  if (!isSpent) game.run.CurrentStep = 1;
  return isSpent;
}

}  // namespace veld
