#include "steps/finish/naming.h"

#include "platform/form.h"
#include "platform/platform.h"
#include "text/search.h"

namespace veld {

namespace {

enum : int { kOk = 1, kAbort = 2, kNext = 50, kCharacterName = NamingControl::CharacterName, kPlayerName = 3001 };

constexpr ControlTemplate kStepEightteenControls[] = {
    TitleAt(0, 0, "Step 18: Name your character", 2),
    LabelAt(1, 0, "Character &Name"),
    EditAt(1, 1, kCharacterName, 44, static_cast<int>(decltype(CharacterSheet::CharacterName)::kWidth) - 1),
    LabelAt(2, 0, "&Player Name"),
    EditAt(2, 1, kPlayerName, 44, static_cast<int>(decltype(CharacterSheet::PlayerName)::kWidth) - 1),
    {.Kind = ControlKind::Result, .Id = kNext, .Row = 3, .Width = 40, .ColumnSpan = 2},
    ButtonAt(4, 0, kOk, "&OK", ButtonRole::Default),
    ButtonAt(4, 0, kAbort, "&Abort", ButtonRole::Cancel),
};
constexpr std::string_view kStepEightteenHelp =
    "His name, as it will stand on the sheet and over his grave, and yours beside it. OK takes any name but the one "
    "he was made with, and goes on to the shop. A name that the others can say is worth more than one they can not "
    "spell. It also becomes the name of the file that is offered for saving.";
constexpr FormTemplate kStepEightteen{"StepEightteen", "Step 18: Name your character", kStepEightteenControls,
                                      kStepEightteenHelp};

/// OK refuses the name that he was made with, and says nothing.
void ShowNext(Form& form) {
  const bool isNamed = !EqualsIgnoringCase(form.Text(kCharacterName), kUnnamedCharacter);
  form.SetText(kNext, isNamed ? "Next: OK" : "Next: type the character's name");
}

}  // namespace

bool NameCharacter(Game& game, std::string_view characterName, std::string_view playerName) {
  if (EqualsIgnoringCase(characterName, kUnnamedCharacter)) return false;
  game.sheet.CharacterName = characterName;
  game.sheet.PlayerName = playerName;
  return true;
}

void RunStepEightteen(Game& game) {
  Form form(kStepEightteen);
  form.onOpened = [&] {
    form.SetText(kCharacterName, game.sheet.CharacterName);
    form.SetText(kPlayerName, game.sheet.PlayerName);
    form.Focus(kCharacterName);
    ShowNext(form);
  };
  form.onEdit = [&](int) { ShowNext(form); };
  form.onCommand = [&](int id) {
    if (id == kOk) {
      if (!NameCharacter(game, form.Text(kCharacterName), form.Text(kPlayerName))) return;  // stays without a word
      game.run.CurrentStep = 19;
    }
    form.Close();
  };
  game.platform.RunForm(form);
}

}  // namespace veld
