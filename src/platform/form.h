#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/form_template.h"
#include "platform/menu.h"
#include "text/numbers.h"

namespace veld {

class Form;

/// What a front end that shows a form is told of changes. It then reads the form's state and draws it.
class FormObserver {
 public:
  virtual ~FormObserver() = default;
  virtual void OnControlChanged(std::size_t control) = 0;  ///< its place in Form::Controls()
  virtual void OnTitleChanged() = 0;
  virtual void OnFocusWanted(std::size_t control) = 0;
  virtual void OnClosed() = 0;
};

/// Something that a player did to a form and that the form took.
struct FormAct {
  enum class Kind { Press, Choose, Type, Mark, MenuItem, CloseBox };
  Kind What = Kind::Press;
  int Id = 0;
  std::string_view Text = {};  ///< Choose: the row; Type: all that stands in the field
  int Place = 0;               ///< Choose: how many rows of that text stand before it; Mark: 1 or 0
};

/// Who keeps what players do to forms, and can take it back. The form tells an act before its handler runs.
class FormActs {
 public:
  virtual ~FormActs() = default;
  virtual void OnAct(const Form& form, const FormAct& act) = 0;
  /// What was pressed, marked or chosen in a menu has been carried out. The form may be gone.
  virtual void OnCarriedOut() {}
  virtual bool CanTakeBack() const = 0;
  virtual void TakeBack() = 0;  ///< the last act that counted; the form may close
  virtual bool CanDoAgain() const = 0;
  virtual void DoAgain() = 0;  ///< what was taken back last
};

/// A control and its live state.
struct Control {
  ControlTemplate Template;
  std::string Text = {};                ///< label, result, button: its text; edit: what stands in it
  std::vector<std::string> Items = {};  ///< list, combo
  int Selection = -1;                   ///< list, combo: place in Items, -1 none
  bool Checked = false;                 ///< check, radio
  bool Enabled = true;
  bool Visible = true;
};

/// A dialog at work: its controls' state and what happens when they are used. The state lives here, so that it is the
/// same in every front end. A handler reads controls, calls rule procedures and writes controls; it holds no rule.
///
/// Texts given to a form are shown as DisplayText makes them. An id that the template does not have is ignored on
/// writing and reads as empty, no selection and 0.
class Form {
 public:
  explicit Form(const FormTemplate& formTemplate);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  std::function<void()> onOpened;         ///< once, when the form is about to be shown
  std::function<void(int id)> onCommand;  ///< a button was pressed, a check or radio button changed, a menu item chosen
  /// A player chose a row of a list or combo. Or he typed in the field that searches it: that chooses the first row
  /// found, once onEdit has filled it, and none if nothing is found or the search is cleared.
  std::function<void(int id)> onSelect;
  std::function<void(int id)> onEdit;  ///< a player typed
  std::vector<MenuItem> contextMenu;   ///< the menu of a right click; its ids go to onCommand

  // For handlers.
  const std::string& Text(int id) const;
  std::int64_t Number(int id, std::int64_t largest = kLargestEntry) const { return ReadEntry(Text(id), largest); }
  void SetText(int id, std::string_view text);
  void SetNumber(int id, std::int64_t number);
  const std::vector<std::string>& Items(int id) const;
  void SetItems(int id, std::vector<std::string> items);  ///< the selection becomes none
  int Selection(int id) const;
  std::string SelectedText(int id) const;
  void Select(int id, int selection);  ///< none if there is no such item; calls no handler
  bool IsChecked(int id) const;
  void SetChecked(int id, bool checked);  ///< a radio button takes the mark from its group
  void SetEnabled(int id, bool enabled);
  void SetVisible(int id, bool visible);
  void SetTitle(std::string_view title);
  void Focus(int id);
  void Close();
  bool IsClosed() const { return closed_; }

  // For front ends: the form and what a player does to it. What is disabled or hidden does not act.
  std::string_view Name() const { return name_; }
  const std::string& Title() const { return title_; }
  std::string_view Help() const { return help_; }  ///< what F1 shows; empty if there is nothing to tell
  const std::vector<Control>& Controls() const { return controls_; }
  void SetObserver(FormObserver* observer) { observer_ = observer; }
  void SetActs(FormActs* acts) { acts_ = acts; }
  /// The control that has the focus first, if no handler wants another: a field to type in, so that a player just
  /// types; else a list; else the default button; else whatever can be pressed. The number of controls if there is
  /// none.
  std::size_t FirstFocus() const;
  /// Lets this control, if it can be used, have the focus first; 0 leaves it to the one that was wanted before.
  void BeginAt(int id) {
    if (id != 0) beginAt_ = id;
  }
  void Open();  ///< calls onOpened, the first time
  bool Press(int id);
  bool Choose(int id, int selection);
  bool Type(int id, std::string_view text);  ///< replaces what stands in the edit, cut to its limit
  bool Mark(int id, bool checked);
  bool ChooseMenuItem(int id);
  bool PressDefault();
  bool PressEnterAt(std::size_t control);  ///< the button of its field, else the default one
  void PressCloseBox();                    ///< its Cancel button; a form without an enabled one closes
  bool CanTakeBack() const { return acts_ && !closed_ && acts_->CanTakeBack(); }
  void TakeBack();  ///< the last act that counted, in this form or one before it; nothing if there is none
  bool CanDoAgain() const { return acts_ && !closed_ && acts_->CanDoAgain(); }
  void DoAgain();  ///< what was taken back last

 private:
  Control* Find(int id);
  const Control* Find(int id) const;
  void Changed(const Control& control);
  bool IsUsable(const Control* control) const;
  void SetMark(Control& control, bool checked);
  void TellAct(const FormAct& act) const;
  void Command(int id);
  void ChooseFound(int list, bool isSought);

  std::string_view name_;
  std::string title_;
  std::string_view help_;
  std::vector<Control> controls_;
  FormObserver* observer_ = nullptr;
  FormActs* acts_ = nullptr;
  int beginAt_ = 0;
  bool opened_ = false;
  bool closed_ = false;
};

}  // namespace veld
