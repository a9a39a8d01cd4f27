#include "platform/ask_name.h"

#include "platform/form.h"
#include "platform/platform.h"

namespace veld {

namespace {

enum : int { kPrompt = AskNameControl::Prompt, kEntry = AskNameControl::Entry, kOk = 1, kCancel = 2 };

constexpr ControlTemplate kGetNameControls[] = {
    TextAt(0, 0, kPrompt, "", 54, 0),
    EditAt(1, 0, kEntry, 48, 99),
    ButtonAt(2, 0, kOk, "OK", ButtonRole::Default),
    ButtonAt(2, 0, kCancel, "Cancel", ButtonRole::Cancel),
};
constexpr std::string_view kGetNameHelp =
    "The rules leave this to you: type what the text asks for, and press Enter. It is written on the sheet as it "
    "stands. With Cancel, or an empty line, there is no name, and what should have got it may go without.";
constexpr FormTemplate kGetName{"GetName", "Choose a name", kGetNameControls, kGetNameHelp};

}  // namespace

std::optional<std::string> AskText(Platform& platform, std::string_view prompt, std::string_view suggested) {
  Form form(kGetName);
  form.SetText(kPrompt, prompt);
  form.SetText(kEntry, suggested);
  std::optional<std::string> text;
  form.onCommand = [&](int id) {
    if (id == kOk) text = form.Text(kEntry);
    form.Close();
  };
  platform.RunForm(form);
  return text;
}

}  // namespace veld
