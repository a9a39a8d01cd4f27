#include "platform/form.h"

#include <algorithm>
#include <utility>

#include "platform/control_kinds.h"
#include "text/format.h"
#include "text/utf8.h"

namespace veld {

Form::Form(const FormTemplate& formTemplate)
    : name_(formTemplate.Name), title_(formTemplate.Title), help_(formTemplate.Help) {
  controls_.reserve(formTemplate.Controls.size());
  for (const ControlTemplate& control : formTemplate.Controls) {
    Control live{.Template = control, .Text = std::string(control.Text)};
    live.Enabled = control.Enabled;
    live.Visible = control.Visible;
    controls_.push_back(std::move(live));
  }
}

Control* Form::Find(int id) {
  return const_cast<Control*>(std::as_const(*this).Find(id));
}

const Control* Form::Find(int id) const {
  if (id == 0) return nullptr;
  const auto found = std::ranges::find_if(controls_, [id](const Control& c) { return c.Template.Id == id; });
  return found == controls_.end() ? nullptr : &*found;
}

void Form::Changed(const Control& control) {
  if (observer_) observer_->OnControlChanged(static_cast<std::size_t>(&control - controls_.data()));
}

const std::string& Form::Text(int id) const {
  static const std::string kNone;
  const Control* control = Find(id);
  return control ? control->Text : kNone;
}

void Form::SetText(int id, std::string_view text) {
  Control* control = Find(id);
  if (!control) return;
  std::string shown = DisplayText(text);
  if (control->Text == shown) return;
  control->Text = std::move(shown);
  Changed(*control);
}

void Form::SetNumber(int id, std::int64_t number) {
  SetText(id, Format("%i", number));
}

const std::vector<std::string>& Form::Items(int id) const {
  static const std::vector<std::string> kNone;
  const Control* control = Find(id);
  return control ? control->Items : kNone;
}

void Form::SetItems(int id, std::vector<std::string> items) {
  Control* control = Find(id);
  if (!control) return;
  for (std::string& item : items) item = DisplayText(item);
  control->Items = std::move(items);
  control->Selection = -1;
  Changed(*control);
}

int Form::Selection(int id) const {
  const Control* control = Find(id);
  return control ? control->Selection : -1;
}

std::string Form::SelectedText(int id) const {
  const Control* control = Find(id);
  if (!control || control->Selection < 0) return {};
  return control->Items[static_cast<std::size_t>(control->Selection)];
}

void Form::Select(int id, int selection) {
  Control* control = Find(id);
  if (!control) return;
  control->Selection = selection >= 0 && selection < static_cast<int>(control->Items.size()) ? selection : -1;
  Changed(*control);
}

bool Form::IsChecked(int id) const {
  const Control* control = Find(id);
  return control && control->Checked;
}

void Form::SetChecked(int id, bool checked) {
  if (Control* control = Find(id)) SetMark(*control, checked);
}

void Form::SetMark(Control& control, bool checked) {
  control.Checked = checked;
  Changed(control);
  if (!checked || control.Template.Kind != ControlKind::Radio) return;
  for (Control& other : controls_) {
    if (&other == &control || other.Template.Kind != ControlKind::Radio || !other.Checked) continue;
    if (other.Template.Group != control.Template.Group) continue;
    other.Checked = false;
    Changed(other);
  }
}

void Form::SetEnabled(int id, bool enabled) {
  Control* control = Find(id);
  if (!control || control->Enabled == enabled) return;
  control->Enabled = enabled;
  Changed(*control);
}

void Form::SetVisible(int id, bool visible) {
  Control* control = Find(id);
  if (!control || control->Visible == visible) return;
  control->Visible = visible;
  Changed(*control);
}

void Form::SetTitle(std::string_view title) {
  title_ = DisplayText(title);
  if (observer_) observer_->OnTitleChanged();
}

void Form::Focus(int id) {
  const Control* control = Find(id);
  if (!control) return;
  if (!observer_) return BeginAt(id);  // whoever shows the form later begins there
  observer_->OnFocusWanted(static_cast<std::size_t>(control - controls_.data()));
}

void Form::Close() {
  if (closed_) return;
  closed_ = true;
  if (observer_) observer_->OnClosed();
}

void Form::Open() {
  if (std::exchange(opened_, true)) return;
  if (onOpened) onOpened();
}

bool Form::IsUsable(const Control* control) const {
  return control && !closed_ && control->Enabled && control->Visible;
}

void Form::TellAct(const FormAct& act) const {
  if (acts_) acts_->OnAct(*this, act);
}

/// The handler may end the form: nothing of it is touched afterwards.
void Form::Command(int id) {
  FormActs* const acts = acts_;
  if (onCommand) onCommand(id);
  if (acts) acts->OnCarriedOut();
}

/// What is chosen depends on the text alone that stands in the search, not on the way in which it was typed: a journal
/// keeps the last text only.
void Form::ChooseFound(int list, bool isSought) {
  if (closed_ || list == 0) return;
  Select(list, isSought ? 0 : -1);
  if (onSelect) onSelect(list);
}

void Form::TakeBack() {
  if (CanTakeBack()) acts_->TakeBack();
}

void Form::DoAgain() {
  if (CanDoAgain()) acts_->DoAgain();
}

bool Form::Press(int id) {
  const Control* control = Find(id);
  if (!IsUsable(control) || control->Template.Kind != ControlKind::Button) return false;
  TellAct({.What = FormAct::Kind::Press, .Id = id});
  Command(id);
  return true;
}

bool Form::Choose(int id, int selection) {
  Control* control = Find(id);
  if (!IsUsable(control)) return false;
  if (control->Template.Kind != ControlKind::List && control->Template.Kind != ControlKind::Combo) return false;
  if (selection < 0 || selection >= static_cast<int>(control->Items.size())) return false;
  const auto row = control->Items.begin() + selection;
  const auto before = std::count(control->Items.begin(), row, *row);
  TellAct({.What = FormAct::Kind::Choose, .Id = id, .Text = *row, .Place = static_cast<int>(before)});
  control->Selection = selection;
  Changed(*control);
  if (onSelect) onSelect(id);
  return true;
}

bool Form::Type(int id, std::string_view text) {
  Control* control = Find(id);
  if (!IsUsable(control)) return false;
  const ControlKind kind = control->Template.Kind;
  if (kind != ControlKind::Edit && kind != ControlKind::Number && kind != ControlKind::MultiLine) return false;
  if (control->Template.IsReadOnly) return false;
  if (control->Template.Limit > 0) text = CutToBytes(text, static_cast<std::size_t>(control->Template.Limit));
  TellAct({.What = FormAct::Kind::Type, .Id = id, .Text = text});
  if (control->Text != text) {
    control->Text = std::string(text);
    Changed(*control);
  }
  if (onEdit) onEdit(id);
  ChooseFound(control->Template.Searches, !control->Text.empty());
  return true;
}

bool Form::Mark(int id, bool checked) {
  Control* control = Find(id);
  if (!IsUsable(control)) return false;
  if (!IsMark(control->Template.Kind)) return false;
  TellAct({.What = FormAct::Kind::Mark, .Id = id, .Place = checked ? 1 : 0});
  SetMark(*control, checked || control->Template.Kind == ControlKind::Radio);
  Command(id);
  return true;
}

bool Form::ChooseMenuItem(int id) {
  if (closed_ || id == 0 || !onCommand) return false;
  TellAct({.What = FormAct::Kind::MenuItem, .Id = id});
  Command(id);
  return true;
}

bool Form::PressDefault() {
  for (const Control& control : controls_) {
    const ButtonRole role = control.Template.Role;
    if (IsDefault(role) && Press(control.Template.Id)) return true;
  }
  return false;
}

bool Form::PressEnterAt(std::size_t control) {
  // The word that was searched for stays, marked: what is typed next takes its place.
  if (control < controls_.size() && controls_[control].Template.Searches != 0) Focus(controls_[control].Template.Id);
  if (control < controls_.size() && Press(controls_[control].Template.EnterPresses)) return true;
  return PressDefault();
}

void Form::PressCloseBox() {
  for (const Control& control : controls_) {
    const ButtonRole role = control.Template.Role;
    if (IsCancel(role) && Press(control.Template.Id)) return;
  }
  if (!closed_) TellAct({.What = FormAct::Kind::CloseBox});
  Close();
}

std::size_t Form::FirstFocus() const {
  const Control* const wanted = Find(beginAt_);
  if (IsUsable(wanted)) return static_cast<std::size_t>(wanted - controls_.data());
  constexpr bool (*kWanted[])(const ControlTemplate&) = {
      [](const ControlTemplate& control) { return IsTyped(control.Kind); },
      [](const ControlTemplate& control) { return IsChosenFrom(control.Kind); },
      [](const ControlTemplate& control) { return IsDefault(control.Role); },
      [](const ControlTemplate& control) { return CanBeUsed(control.Kind); },
  };
  for (const auto isWanted : kWanted) {
    for (std::size_t i = 0; i < controls_.size(); ++i) {
      if (controls_[i].Visible && controls_[i].Enabled && isWanted(controls_[i].Template)) return i;
    }
  }
  return controls_.size();
}

}  // namespace veld
