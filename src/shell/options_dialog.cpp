#include "shell/options_dialog.h"

#include <algorithm>

#include "platform/form.h"
#include "platform/platform.h"
#include "store/side_files.h"

namespace veld {

namespace {

constexpr int kApply = 1;
constexpr int kClose = 2;

constexpr bool HasBox(const RuleSwitchRow& row) {
  return row.BoxId != 0;
}
constexpr auto kBoxes = std::ranges::count_if(kRuleSwitchRows, HasBox);

constexpr auto kOptionsControls = [] {
  std::array<ControlTemplate, kBoxes + 3> controls{};
  std::size_t row = 0;
  controls[row++] = HeadingAt(0, 0, "I want to use the following Rules");
  for (const RuleSwitchRow& box : kRuleSwitchRows) {
    if (!HasBox(box)) continue;
    controls[row] = CheckAt(static_cast<int>(row), 0, box.BoxId, box.Label);
    ++row;
  }
  const int last = static_cast<int>(row) + 1;
  controls[row++] = ButtonAt(last, 0, kApply, "&Apply", ButtonRole::Default);
  controls[row] = ButtonAt(last, 0, kClose, "Close", ButtonRole::Cancel);
  return controls;
}();
constexpr std::string_view kOptionsHelp =
    "Which books and optional rules your table plays by. A book in use opens its classes, skills, quirks and tables; "
    "without it they are never offered. Roll Your Own Dice asks for every roll. Apply makes it so and keeps it for "
    "the next time; Close leaves all as it was. Agree on it with the referee before New Character: a switch turned in "
    "the middle of a run counts from there on only.";
constexpr FormTemplate kOptions{"Options", "VELD Options", kOptionsControls, kOptionsHelp};

}  // namespace

void RunOptions(Game& game) {
  Form form(kOptions);
  form.onOpened = [&] {
    LoadOptions(game);  // what is on disk: "Turn This Off" may have changed a switch for this run only
    for (const RuleSwitchRow& row : kRuleSwitchRows) {
      if (HasBox(row)) form.SetChecked(row.BoxId, game.RuleSwitches[row.Switch] > 0);
    }
    form.Focus(std::ranges::find_if(kRuleSwitchRows, HasBox)->BoxId);
  };
  form.onCommand = [&](int id) {
    if (id == kClose) return form.Close();
    if (id != kApply) return;
    for (const RuleSwitchRow& row : kRuleSwitchRows) {
      if (HasBox(row)) game.RuleSwitches[row.Switch] = form.IsChecked(row.BoxId) ? 1 : 0;
    }
    SaveOptions(game);
    form.Close();
  };
  game.platform.RunForm(form);
}

}  // namespace veld
