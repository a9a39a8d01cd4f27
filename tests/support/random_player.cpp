#include "support/random_player.h"


#include "text/format.h"

namespace veld::testing {

namespace {

constexpr const char* kTexts[] = {"",       "0",       "1",       "3",      "12",       "50",          "100",
                                  "999999", "-1",      "2.5",     "abc",    "Tolmar",   "18446744073709551616",
                                  "a%s%n",  "\xC3\x89", "Sword", "x/y\\z", "          ", "Common"};
constexpr int kOk = 1;
constexpr int kDiceEntry = 3000;
constexpr int kRounds = 6;             // of random actions, each followed by a press on OK
constexpr int kMostTries = 40;
constexpr std::uint32_t kPatience = 1000;  // one in so many presses on Abort is meant

bool IsTyped(ControlKind kind) {
  return kind == ControlKind::Edit || kind == ControlKind::Number || kind == ControlKind::MultiLine;
}

bool CanBeUsed(ControlKind kind) {
  return IsTyped(kind) || kind == ControlKind::Button || kind == ControlKind::List || kind == ControlKind::Combo ||
         kind == ControlKind::Check || kind == ControlKind::Radio;
}

}  // namespace

std::uint32_t RandomPlayer::Pick(std::uint32_t below) {
  state_ = state_ * 1664525U + 1013904223U;
  return below == 0 ? 0 : (state_ >> 8) % below;
}

void RandomPlayer::Act(Form& form) {
  std::vector<const Control*> usable;
  for (const Control& control : form.Controls()) {
    if (control.Enabled && control.Visible && CanBeUsed(control.Template.Kind)) usable.push_back(&control);
  }
  if (usable.empty()) return;
  // A copy: the handler may change or close the form.
  const Control control = *usable[Pick(static_cast<std::uint32_t>(usable.size()))];
  const int id = control.Template.Id;
  const ButtonRole role = control.Template.Role;
  switch (control.Template.Kind) {
    case ControlKind::Button:
      if (role == ButtonRole::Cancel && Pick(kPatience) != 0) return;
      form.Press(id);
      return;
    case ControlKind::List:
    case ControlKind::Combo: form.Choose(id, static_cast<int>(Pick(static_cast<std::uint32_t>(control.Items.size())))); return;
    case ControlKind::Check:
    case ControlKind::Radio: form.Mark(id, Pick(2) == 1); return;
    default:
      if (IsTyped(control.Template.Kind)) {
        const std::string number = Format("%i", Pick(Pick(3) == 0 ? 120 : 12));
        form.Type(id, Pick(3) == 0 ? kTexts[Pick(std::size(kTexts))] : number);
      }
  }
}

/// Types what may be a result of the dice, or leaves the roll to the program.
void RandomPlayer::ThrowDice(Form& form) {
  if (Pick(3) == 0) return form.PressCloseBox();
  form.Type(kDiceEntry, Format("%i", Pick(Pick(2) == 0 ? 110 : 7)));
  form.Press(kOk);
  if (!form.IsClosed()) form.PressCloseBox();
}

void RandomPlayer::RunForm(Form& form) {
  forms.emplace_back(form.Name());
  form.Open();
  if (form.Name() == "GetDice") return ThrowDice(form);
  if (seldomUsed > 0) form.SetVisible(seldomUsed, Pick(4) == 0);
  for (int round = 0; round < kRounds && !form.IsClosed(); ++round) {
    for (int action = 0; action < actionsPerForm_ && !form.IsClosed(); ++action) Act(form);
    if (!form.IsClosed()) form.Press(kOk);
  }
  // A dialog may refuse to be aborted until what it owes is rolled; then the player goes on.
  for (int tries = 0; tries < kMostTries && !form.IsClosed(); ++tries) {
    form.PressCloseBox();
    for (int action = 0; action < actionsPerForm_ && !form.IsClosed(); ++action) Act(form);
    if (!form.IsClosed()) form.Press(kOk);
  }
  if (form.IsClosed()) return;
  stuckForm = std::string(form.Name());
  form.Close();
}

void RandomPlayer::ShowWindow(std::shared_ptr<Form> form) {
  forms.emplace_back(form->Name());
  window = std::move(form);
  window->Open();
}

void RandomPlayer::DoShowMessage(const std::string& caption, const std::string& text) {
  messages.push_back(caption + ": " + text);
}

Answer RandomPlayer::DoAskYesNo(const std::string&, const std::string&) {
  const std::uint32_t answer = Pick(10);
  return answer < 6 ? Answer::Yes : answer < 9 ? Answer::No : Answer::Closed;
}

std::optional<ChosenPath> RandomPlayer::DoAskSavePath(const std::string&, std::span<const FileFilter>,
                                                      const std::string&) {
  if (savePath.empty()) return std::nullopt;
  return ChosenPath{savePath, 0};
}

}  // namespace veld::testing
