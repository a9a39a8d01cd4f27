#include "dice/typed_dice.h"

#include "platform/form.h"
#include "platform/platform.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

enum : int {
  kPrompt = 10,
  kPurpose = 11,
  kRange = 12,
  kRefusal = 13,
  kEntry = 3000,
  kOk = 1,
  kRollForMeButton = 2,
  kTurnThisOff = 3043
};

constexpr ControlTemplate kGetDiceControls[] = {
    TextAt(0, 0, kPurpose, "", 54, 0),
    TextAt(1, 0, kPrompt, "", 54, 0),
    NumberAt(2, 0, kEntry, 10),
    ResultAt(2, 0, kRange, 24),
    TextAt(3, 0, kRefusal, "", 54, 0),
    ButtonAt(4, 0, kOk, "OK", ButtonRole::Default),
    ButtonAt(4, 0, kRollForMeButton, "&Roll For Me", ButtonRole::Cancel),
    ButtonAt(4, 0, kTurnThisOff, "&Turn This Off"),
};
constexpr std::string_view kGetDiceHelp =
    "Your own dice are wanted. The text tells what is rolled and which dice: throw them, type their sum as it says, "
    "and press Enter. Roll For Me leaves this one to the program; Turn This Off leaves all from now on, until Help, "
    "Options switches it on again. A number that these dice can not show is not taken.";
constexpr FormTemplate kGetDice{"GetDice", "Roll Your Own Dice", kGetDiceControls, kGetDiceHelp};

/// "3 to 18", or "at least 1" where there is no highest number.
std::string RangeText(std::int64_t lowest, std::int64_t highest) {
  return highest < kLargestEntry ? Format("%i to %i", lowest, highest) : Format("at least %i", lowest);
}

/// Shows the dialog until there is a number in the range or the roll is left to the program. An entry that no dice give
/// is refused with the range and stays, marked, to be typed over.
void RunGetDice(Game& game, std::int64_t lowest, std::int64_t highest) {
  Form form(kGetDice);
  game.dice.DiceEntryValue = 0;
  form.onOpened = [&] {
    form.SetText(kPurpose, game.dice.RollPurpose);
    form.SetVisible(kPurpose, !game.dice.RollPurpose.empty());
    form.SetText(kPrompt, game.dice.DiceLabel);
    form.SetText(kRange, RangeText(lowest, highest));
    form.SetVisible(kRefusal, false);
  };
  form.onCommand = [&](int id) {
    if (id == kOk) {
      const std::int64_t entry = form.Number(kEntry);
      if (entry != kRollForMe && (entry < lowest || entry > highest)) {
        form.SetText(kRefusal,
                     Format("Type what your dice show: %s. Or leave the roll to VELD.", RangeText(lowest, highest)));
        form.SetVisible(kRefusal, true);
        return form.Focus(kEntry);
      }
      game.dice.DiceEntryValue = entry;
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
  RunGetDice(game, lowest, highest);
  return game.dice.DiceEntryValue;
}

}  // namespace veld
