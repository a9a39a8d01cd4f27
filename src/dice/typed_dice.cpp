#include "dice/typed_dice.h"

#include "platform/form.h"
#include "platform/platform.h"

namespace veld {

namespace {

enum : int { kPrompt = 10, kPurpose = 11, kEntry = 3000, kOk = 1, kRollForMeButton = 2, kTurnThisOff = 3043 };

constexpr ControlTemplate kGetDiceControls[] = {
    TextAt(0, 0, kPurpose, "", 54, 0),
    TextAt(1, 0, kPrompt, "", 54, 0),
    NumberAt(2, 0, kEntry, 10),
    ButtonAt(3, 0, kOk, "OK", ButtonRole::Default),
    ButtonAt(3, 0, kRollForMeButton, "&Roll For Me", ButtonRole::Cancel),
    ButtonAt(3, 0, kTurnThisOff, "&Turn This Off"),
};
constexpr FormTemplate kGetDice{"GetDice", "Roll Your Own Dice", kGetDiceControls};

/// One showing of the dialog.
void RunGetDice(Game& game) {
  Form form(kGetDice);
  game.dice.DiceEntryValue = 0;
  form.onOpened = [&] {
    form.SetText(kPurpose, game.dice.RollPurpose);
    form.SetVisible(kPurpose, !game.dice.RollPurpose.empty());
    form.SetText(kPrompt, game.dice.DiceLabel);
  };
  form.onCommand = [&](int id) {
    if (id == kOk) {
      game.dice.DiceEntryValue = form.Number(kEntry);
    } else {
      game.dice.DiceEntryValue = kRollForMe;
      if (id == kTurnThisOff) game.RuleSwitches[kRollYourOwnDice] = 0;
    }
    form.Close();
  };
  game.platform.RunForm(form);
}

}  // namespace

bool DiceAreTyped(const Game& game) {
  return game.IsOn(kRollYourOwnDice);
}

std::int64_t AskTypedDice(Game& game, std::int64_t lowest, std::int64_t highest) {
  const auto isAccepted = [&](std::int64_t entry) {
    return entry == kRollForMe || (entry >= lowest && entry <= highest);
  };
  do {
    RunGetDice(game);
  } while (!isAccepted(game.dice.DiceEntryValue));
  return game.dice.DiceEntryValue;
}

}  // namespace veld
