#pragma once

#include <QDialog>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "desktop/paper.h"
#include "platform/form.h"

class QButtonGroup;
class QLabel;
class QPushButton;
class QScrollArea;

namespace veld {

/// A form as a window: the one renderer of all forms. Whatever a player does goes to the form; whatever the form
/// changes is shown. The window disappears as soon as the form closes, even while the handler that closed it still
/// runs.
class FormWindow : public QDialog, private FormObserver {
 public:
  /// `form` outlives the window.
  FormWindow(Form& form, const PaperStyle& style, QWidget* parent);
  ~FormWindow() override;

  void Run();                 ///< modal; returns when the form has closed. Passes on what a handler threw
  void ShowAt(QPoint place);  ///< not modal; returns at once
  void ShowForProgress();     ///< modal, but returns at once; the window acts while events are processed

  bool IsOver() const { return form_.IsClosed() && depth_ == 0; }  ///< closed, and no handler of it still runs
  std::function<void()> onOver;
  std::function<void(std::exception_ptr)> onError;  ///< of a window that is not run: what a handler threw

 protected:
  void reject() override;  // Escape, the close box
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void OnControlChanged(std::size_t control) override;
  void OnTitleChanged() override;
  void OnFocusWanted(std::size_t control) override;
  void OnClosed() override;

  bool Open();  // false if the form closed itself while it opened
  void Build();
  void Connect(std::size_t control);
  void JoinGroup(std::size_t control);
  void NameControls();
  void NameCombo(std::size_t combo, const QString& name);
  void MakeCorner();
  void MakeHelp();
  void MakeKeys();
  void ShowActs();
  int CornerButtonWidth(const QPushButton& button) const;
  QPushButton* MakeWord(const char* text, const char* tip, void (FormWindow::*act)());
  void FocusFirst();
  void TakeFocus(std::size_t control);
  void ResizeToForm();
  void FitToForm();
  void FitSoon();
  void LayOut();
  PageSize Limit() const;
  void MarkTexts();
  void Refresh(std::size_t control);
  void Choose(std::size_t control, int row);
  void ChooseNow();
  bool PressButtonOf(const QString& letter);
  void OpenMenu(QPoint place);
  void OpenMenuByKeyboard();
  bool TypeBack(bool again);
  void TakeBack();
  void DoAgain();
  void ShowHelp();
  void Act(const std::function<void()>& act);
  void AfterAct();
  int IdOf(std::size_t control) const { return form_.Controls()[control].Template.Id; }

  Form& form_;
  const PaperStyle& style_;
  PageMetrics metrics_;
  QScrollArea* scroll_;
  Paper* paper_;
  QPushButton* corner_ = nullptr;
  QPushButton* help_ = nullptr;      ///< of a form that has one
  QPushButton* takeBack_ = nullptr;  ///< both are made when there is first something for one of them to do
  QPushButton* doAgain_ = nullptr;
  std::vector<QWidget*> widgets_;  ///< one for each control of the form
  std::map<int, QButtonGroup*> groups_;
  std::map<std::size_t, QLabel*> unseen_;  ///< of combos that no label on the page names
  std::vector<QString> marked_;
  std::optional<std::size_t> wantedFocus_;
  std::optional<std::pair<std::size_t, int>> choice_;  ///< a row just chosen, not yet told to the form
  const QWidget* typedIn_ = nullptr;  ///< the field, if nothing has been done since something was typed there
  bool isBuilt_ = false;
  bool isModal_ = false;
  bool needsFit_ = false;
  bool needsNames_ = false;
  int depth_ = 0;  ///< handlers of this form that are running
  std::exception_ptr error_;
};

/// A menu as the port has it, for a menu bar or a popup. `onChosen` gets the id of the item that was chosen.
void FillMenu(QWidget& menu, const std::vector<MenuItem>& items, const std::function<void(int id)>& onChosen);

}  // namespace veld
