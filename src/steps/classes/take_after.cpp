#include "steps/classes/take_after.h"

#include "dice/building_points.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/race_table.h"
#include "steps/quirks/quirk_effects.h"
#include "steps/race/race_choice.h"
#include "store/sheet_accessors.h"

namespace veld {

namespace {

constexpr int kYes = TakeAfterControl::Yes;
constexpr int kNo = 2;
constexpr int kRaces = TakeAfterControl::Races;

constexpr std::string_view kTitle = "Do you wish to take the Take After Talent for 30 BP?";

constexpr ControlTemplate kTakeAfterControls[] = {
    HeadingAt(0, 0, kTitle, 2),
    LabelAt(2, 0, "&Race to take after"),
    ComboAt(2, 1, kRaces, 24),
    ButtonAt(4, 1, kYes, "&Yes", ButtonRole::Default),
    ButtonAt(4, 1, kNo, "&NO", ButtonRole::Cancel),
};
constexpr std::string_view kTakeAfterHelp =
    "A half-blood may take after one side of the family. For 30 BP the race that you choose here decides which "
    "classes are open and how far he rises in them, in place of his own; scores and looks stay. It is offered only "
    "here. NO costs nothing. It is a great part of the BP you have: take it for a class that you could not have "
    "otherwise.";
constexpr FormTemplate kTakeAfter{"TakeAfter", kTitle, kTakeAfterControls, kTakeAfterHelp};

}  // namespace

std::span<const std::string_view> TakeAfterRaces(std::string_view race) {
  const RaceRecord* record = FindRace(race);
  return record ? record->TakesAfter : std::span<const std::string_view>{};
}

void TakeAfter(Game& game, std::string_view race) {
  if (race.empty() || !Pay(game, kTakeAfterCost)) return;
  TakeAfterRace(game.sheet, race);
  BindRaceRow(game);
  BarClassesForQuirks(game);
}

void RunTakeAfter(Game& game) {
  const auto races = TakeAfterRaces(game.sheet.RaceName);
  if (races.empty()) return;
  Form form(kTakeAfter);
  form.onOpened = [&] {
    form.SetItems(kRaces, {races.begin(), races.end()});
    form.Select(kRaces, 0);
    form.Focus(kNo);  // an Enter too many must not spend so much
  };
  form.onCommand = [&](int id) {
    if (id == kYes) {
      if (form.Selection(kRaces) < 0) return;
      TakeAfter(game, form.SelectedText(kRaces));
    }
    form.Close();
  };
  game.platform.RunForm(form);
}

}  // namespace veld
