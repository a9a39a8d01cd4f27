#include "shell/recover_dialog.h"

#include "platform/form.h"
#include "platform/platform.h"
#include "text/format.h"

namespace veld {

namespace {

constexpr int kCopies = 3021;
constexpr int kOk = 1;
constexpr int kCancel = 2;

constexpr ControlTemplate kRecoverControls[] = {
    LabelAt(0, 0, "&Runs to go on with, then characters and parties that were in memory"),
    ListAt(1, 0, kCopies, 64, 3 * kRecoveryCopies),
    ButtonAt(2, 0, kOk, "&Recover", ButtonRole::Default),
    ButtonAt(2, 0, kCancel, "Cancel", ButtonRole::Cancel),
};
constexpr std::string_view kRecoverTemplateHelp =
    "What was in memory and may have been lost: runs that broke off, then characters, finished ones and others, and "
    "the referee's parties. Choose by name and time and press Recover. A run goes on at the step where it stood; a "
    "character or party takes the place of the one in memory, of which a copy is kept.";
constexpr FormTemplate kRecoverTemplate{"Recover", "Recover", kRecoverControls, kRecoverTemplateHelp};

std::string LineOf(const RecoveryCopy& copy) {
  if (copy.Kind == CopyKind::Run) return Format("Go on: %s, %s", copy.Name, copy.Time);
  if (copy.Kind == CopyKind::Party) return Format("Party, %s: %s", copy.Time, copy.Name);
  const char* const state = copy.Kind == CopyKind::Finished ? "" : ", unfinished";
  return Format("%s, %s, %s%s", copy.Name, copy.ClassName, copy.Time, state);
}

}  // namespace

std::optional<RecoveryCopy> AskRecoveryCopy(Game& game) {
  std::vector<RecoveryCopy> copies = RecoveryCopies();
  if (copies.empty()) {
    game.platform.ShowMessage("There is no character to recover.");
    return std::nullopt;
  }
  Form form(kRecoverTemplate);
  std::vector<std::string> lines;
  for (const RecoveryCopy& copy : copies) lines.push_back(LineOf(copy));
  form.SetItems(kCopies, std::move(lines));
  form.Select(kCopies, 0);
  int chosen = -1;
  form.onCommand = [&](int id) {
    if (id == kOk) chosen = form.Selection(kCopies);
    form.Close();
  };
  game.platform.RunForm(form);
  if (chosen < 0) return std::nullopt;
  return std::move(copies[static_cast<std::size_t>(chosen)]);
}

bool TakeRecoveryCopy(Game& game, const RecoveryCopy& copy) {
  if (!Recover(game, copy)) {
    game.platform.ShowMessage("This file can not be loaded.");
    return false;
  }
  if (copy.Kind != CopyKind::Party) return true;
  game.platform.ShowMessage("The party is in memory again. GM, Honor Tracking shows it.");
  return false;
}

}  // namespace veld
