#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/form.h"
#include "platform/layout.h"
#include "terminal/field_keys.h"
#include "terminal/screen.h"

namespace veld {

/// A form as a framed page on the terminal: the one renderer of all forms. Whatever a player does goes to the form;
/// the page is drawn from the form's state.
class FormScreen : public Layer, private FormObserver {
 public:
  /// A dialog has the whole screen but the last two lines; a window leaves the menu bar free too. `form` outlives it.
  enum class Place : std::uint8_t { Dialog, Window };
  FormScreen(Form& form, Screen& screen, Place place, std::string_view lettersOfMainMenu = {});
  ~FormScreen() override;

  void FocusFirst();  ///< once the form has been opened
  void Draw(bool isActive) override;
  void HandleKey(const Key& key);
  bool IsOver() const { return form_.IsClosed(); }
  bool HasLetter(char32_t letter) const;  ///< Alt with this letter does something here

  std::function<bool()> onTab;  ///< before Tab moves on; returns true if it has used the key

 private:
  /// What the terminal alone knows of a control.
  struct View {
    int First = 0;           ///< list, text, multi-line: the first line shown
    int Left = 0;            ///< list, edit: the first cell shown
    int Row = 0;             ///< list: where the keys are when no row is chosen
    std::size_t Cursor = 0;  ///< edit, multi-line
    bool IsChosen = false;   ///< edit: all of it is marked
  };

  void OnControlChanged(std::size_t) override { isLaidOut_ = false; }
  void OnTitleChanged() override {}
  void OnFocusWanted(std::size_t control) override;
  void OnClosed() override {}

  // The page.
  void LayOut();
  void ScrollToFocus();
  const PlacedControl* PlacedAt(std::size_t control) const;
  void DrawControl(const PlacedControl& placed);
  void DrawLines(const PlacedControl& placed, Ink ink, bool isFocus);
  void DrawEdit(const PlacedControl& placed, bool isFocus);
  void DrawMultiLine(const PlacedControl& placed, bool isFocus);
  void DrawList(const PlacedControl& placed, bool isFocus);
  void DrawCombo(const PlacedControl& placed, bool isFocus);
  void DrawButton(const PlacedControl& placed, bool isFocus);
  void DrawMark(const PlacedControl& placed, bool isFocus);
  void DrawProgress(const PlacedControl& placed);
  void DrawCorner();
  void ShowFocusLine();
  std::string KeysLine() const;
  int ScreenX(int x) const { return view_.X + x - scrollX_; }
  int ScreenY(int y) const { return view_.Y + y - scrollY_; }

  // The focus. The place after the last control is the button of the form's menu.
  const Control& At(std::size_t control) const { return form_.Controls()[control]; }
  std::size_t Corner() const { return form_.Controls().size(); }
  bool CanFocus(std::size_t control) const;
  void KeepFocus();
  void MoveFocus(int step);
  void MoveFocusDown(int rows);
  void TakeFocus(std::size_t control);

  // Keys.
  bool HandleControlKey(const Key& key);
  bool HandleFieldKey(const Key& key);
  bool IsForeignKey(const Key& key) const;
  bool HandleListKey(const Key& key);
  bool HandleTextKey(const Key& key);
  bool HandleComboKey(const Key& key);
  void ChooseRow(std::size_t control, int row);
  void SearchRow(std::size_t control, char32_t letter);
  void DropDown(std::size_t control);
  void ToggleMark(std::size_t control);
  void PressEnter();
  void OpenPageMenu();
  void ShowHelp();
  bool PressLetter(char32_t letter);
  void ScrollPage(int lines);

  Form& form_;
  Screen& screen_;
  Place place_;
  std::string takenLetters_;
  PageMetrics metrics_;
  PageLayout page_;
  std::vector<std::string> marked_;
  std::map<std::size_t, View> views_;
  PageRect frame_;
  PageRect view_;   ///< what of the screen shows the page
  PageSize room_;   ///< that the page was laid out for
  PageSize grown_;  ///< the page never shrinks while it is open
  int scrollX_ = 0;
  int scrollY_ = 0;
  bool isScrolledByHand_ = false;
  bool isLaidOut_ = false;
  std::size_t focus_ = 0;
  std::optional<std::size_t> wantedFocus_;
  std::string search_;           ///< letters typed one after another in a list
  std::int64_t searchedAt_ = 0;  ///< milliseconds
};

}  // namespace veld
