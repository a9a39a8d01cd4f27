#include "desktop/form_window.h"

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/control_widgets.h"
#include "platform/control_kinds.h"
#include "platform/control_names.h"
#include "platform/message_form.h"
#include "platform/mnemonics.h"

namespace veld {

namespace {

constexpr int kTitleBarHeight = 40;  // room for what a window manager draws around a window
constexpr int kFrameWidth = 12;

/// The keys that take back and do again.
struct ActKey {
  QKeyCombination Key;
  bool DoesAgain;
};
constexpr ActKey kActKeys[] = {
    {Qt::CTRL | Qt::Key_Z, false}, {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, true}, {Qt::CTRL | Qt::Key_Y, true}};

/// The texts that a page begins with: of a message or a question all there is to read. They are read out with its
/// title.
std::string FirstTexts(const Form& form) {
  std::string texts;
  for (const Control& control : form.Controls()) {
    if (CanBeUsed(control.Template.Kind)) break;
    if (control.Template.Kind != ControlKind::Text || !control.Visible || control.Text.empty()) continue;
    texts += (texts.empty() ? "" : "\n") + control.Text;
  }
  return texts;
}

}  // namespace

void FillMenu(QWidget& menu, const std::vector<MenuItem>& items, const std::function<void(int id)>& onChosen) {
  auto* popup = qobject_cast<QMenu*>(&menu);
  for (const MenuItem& item : items) {
    if (!item.Items.empty()) {
      auto* sub = new QMenu(ToQtLine(item.Text), &menu);
      sub->setEnabled(item.Enabled);
      FillMenu(*sub, item.Items, onChosen);
      menu.addAction(sub->menuAction());
    } else if (item.Text.empty()) {
      if (popup) popup->addSeparator();
    } else {
      auto* action = new QAction(ToQtLine(item.Text), &menu);
      action->setEnabled(item.Enabled);
      action->setShortcut(QKeySequence(ToQtLine(item.Shortcut)));
      action->setAutoRepeat(false);
      QObject::connect(action, &QAction::triggered, &menu, [onChosen, id = item.Id] { onChosen(id); });
      menu.addAction(action);
    }
  }
}

FormWindow::FormWindow(Form& form, const PaperStyle& style, QWidget* parent)
    : QDialog(parent), form_(form), style_(style), metrics_(style.Metrics) {
  scroll_ = new QScrollArea(this);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  paper_ = new Paper(style.Metrics.MarginTop, style.Metrics.Pitch, nullptr);
  paper_->SetHasEdge(true);
  scroll_->setWidget(paper_);
  form_.SetObserver(this);
}

FormWindow::~FormWindow() {
  form_.SetObserver(nullptr);
}

// --- Opening -----------------------------------------------------------------------------------------------------

bool FormWindow::Open() {
  form_.Open();
  if (form_.IsClosed()) return false;
  Build();
  return true;
}

void FormWindow::Run() {
  if (!Open()) return;
  isModal_ = true;
  exec();
  isModal_ = false;
  if (error_) std::rethrow_exception(std::exchange(error_, nullptr));
}

void FormWindow::ShowAt(QPoint place) {
  if (!Open()) {
    if (onOver) onOver();
    return;
  }
  move(place);
  show();
}

void FormWindow::ShowForProgress() {
  if (!Open()) return;
  setWindowModality(Qt::ApplicationModal);
  show();
}

void FormWindow::Build() {
  OnTitleChanged();
  for (const Control& control : form_.Controls()) widgets_.push_back(MakeControlWidget(control, style_, paper_));
  for (std::size_t i = 0; i < widgets_.size(); ++i) Connect(i);
  MakeCorner();
  MakeHelp();
  MakeKeys();
  NameControls();
  MarkTexts();
  ShowActs();
  isBuilt_ = true;
  for (std::size_t i = 0; i < widgets_.size(); ++i) Refresh(i);
  ResizeToForm();
  LayOut();
  FocusFirst();
}

/// What a player does to the control goes to the form.
void FormWindow::Connect(std::size_t control) {
  QWidget* widget = widgets_[control];
  const int id = IdOf(control);
  if (id != 0) widget->setObjectName(QString::number(id));
  switch (form_.Controls()[control].Template.Kind) {
    case ControlKind::Button:
      QObject::connect(static_cast<QPushButton*>(widget), &QPushButton::clicked, this,
                       [this, id] { Act([&] { form_.Press(id); }); });
      break;
    case ControlKind::Radio:
      JoinGroup(control);
      [[fallthrough]];
    case ControlKind::Check:
      QObject::connect(static_cast<QAbstractButton*>(widget), &QAbstractButton::clicked, this,
                       [this, id](bool checked) { Act([&] { form_.Mark(id, checked); }); });
      break;
    case ControlKind::Edit:
    case ControlKind::Number:
      QObject::connect(static_cast<QLineEdit*>(widget), &QLineEdit::textEdited, this,
                       [this, control, id](const QString& text) {
                         Act([&] { form_.Type(id, ToQtLine(text.toStdString()).toStdString()); });
                         typedIn_ = widgets_[control];
                         Refresh(control);
                       });
      break;
    case ControlKind::MultiLine: {
      auto* edit = static_cast<RuledEdit*>(widget);
      edit->onTyped = [this, control, id, edit] {
        Act([&] { form_.Type(id, edit->toPlainText().toStdString()); });
        typedIn_ = edit;
        Refresh(control);
      };
      break;
    }
    case ControlKind::List:
      static_cast<RuledList*>(widget)->onChosen = [this, control](int row) { Choose(control, row); };
      break;
    case ControlKind::Combo:
      QObject::connect(static_cast<QComboBox*>(widget), &QComboBox::activated, this, [this, control, id](int row) {
        Act([&] { form_.Choose(id, row); });
        Refresh(control);
      });
      break;
    default:
      break;
  }
}

void FormWindow::JoinGroup(std::size_t control) {
  QButtonGroup*& group = groups_[form_.Controls()[control].Template.Group];
  if (!group) group = new QButtonGroup(this);
  group->addButton(static_cast<QAbstractButton*>(widgets_[control]));
}

/// Ties each label to the control that it names, for its letter and for screen readers, and names what has no label.
void FormWindow::NameControls() {
  needsNames_ = false;
  const std::vector<std::string> names = ControlNames(form_);
  for (std::size_t i = 0; i < widgets_.size(); ++i) {
    const Control& control = form_.Controls()[i];
    const ControlKind kind = control.Template.Kind;
    const QString name = ToQtLine(names[i]);
    if (kind == ControlKind::Label) {
      const std::size_t named = NamedControl(form_, i);
      static_cast<QLabel*>(widgets_[i])->setBuddy(named < widgets_.size() ? widgets_[named] : nullptr);
    } else if (kind == ControlKind::Result) {
      widgets_[i]->setAccessibleDescription(ToQtLine(ControlName(form_, i)));  // it is read by its own text
    } else if (!IsWriting(kind)) {
      widgets_[i]->setAccessibleName(name);
    }
    if (kind == ControlKind::Combo) NameCombo(i, name);
  }
  setAccessibleDescription(ToQt(FirstTexts(form_)));
}

/// Where the toolkit reads a combo by what is chosen in it, only a label gives it a name; where none does on the page,
/// one that nobody sees.
void FormWindow::NameCombo(std::size_t combo, const QString& name) {
  for (std::size_t i = 0; i < widgets_.size(); ++i) {
    const bool isLabel = form_.Controls()[i].Template.Kind == ControlKind::Label;
    if (isLabel && NamedControl(form_, i) == combo && ToQtLine(ShownText(form_.Controls()[i])) == name) return;
  }
  QLabel*& label = unseen_[combo];
  if (!label) label = new QLabel(paper_);
  label->setText(QString(name).replace("&", "&&"));
  label->setGeometry(0, 0, 0, 0);
  label->hide();
  label->setBuddy(widgets_[combo]);
}

int FormWindow::CornerButtonWidth(const QPushButton& button) const {
  const std::string text = WithoutMnemonic(button.text().toStdString());
  const int padding = button.isFlat() ? metrics_.ControlGap : metrics_.ButtonPadding;
  return style_.Metrics.TextWidth(text, TextFace::Plain) + 2 * padding;
}

/// The button of the form's menu, which a right click also opens; and the keys that open it.
void FormWindow::MakeCorner() {
  if (form_.contextMenu.empty()) return;
  corner_ = new QPushButton("&Menu", paper_);
  corner_->setAutoDefault(false);
  corner_->setObjectName("menu");
  QObject::connect(corner_, &QPushButton::clicked, this, [this] { OpenMenuByKeyboard(); });
  metrics_.CornerWidth = CornerButtonWidth(*corner_);
  for (const QKeySequence& key : {QKeySequence(Qt::Key_Menu), QKeySequence(Qt::SHIFT | Qt::Key_F10)}) {
    QObject::connect(new QShortcut(key, this), &QShortcut::activated, this, [this] { OpenMenuByKeyboard(); });
  }
  for (std::size_t i = 0; i < widgets_.size(); ++i) {  // the form's menu, in place of the one that edits have
    if (IsTyped(form_.Controls()[i].Template.Kind) || form_.Controls()[i].Template.Kind == ControlKind::Text) {
      widgets_[i]->setContextMenuPolicy(Qt::NoContextMenu);
    }
  }
}

/// The word that shows the form's help, and F1.
void FormWindow::MakeHelp() {
  if (form_.Help().empty()) return;
  help_ = MakeWord("Help", "What this page is, and what to do here (F1)", &FormWindow::ShowHelp);
  metrics_.IsCornerFlat = !corner_;
  auto* key = new QShortcut(Qt::Key_F1, this);
  key->setAutoRepeat(false);
  QObject::connect(key, &QShortcut::activated, this, &FormWindow::ShowHelp);
}

/// The keys that take back and do again. They come here from every control, fields among them, which would keep them
/// for themselves.
void FormWindow::MakeKeys() {
  for (const ActKey& key : kActKeys) {
    auto* shortcut = new QShortcut(key.Key, this);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, this, [this, again = key.DoesAgain] {
      if (!TypeBack(again)) again ? DoAgain() : TakeBack();
    });
  }
  for (QWidget* widget : widgets_) {
    widget->installEventFilter(this);
    if (auto* combo = qobject_cast<QComboBox*>(widget)) combo->view()->installEventFilter(this);
  }
}

/// A button of the corner that is a mere word, and has no place among what the keys go to.
QPushButton* FormWindow::MakeWord(const char* text, const char* tip, void (FormWindow::*act)()) {
  auto* button = new QPushButton(text, paper_);
  button->setObjectName(text);
  button->setToolTip(tip);
  button->setAutoDefault(false);
  button->setFlat(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setCursor(Qt::PointingHandCursor);
  QObject::connect(button, &QPushButton::clicked, this, act);
  metrics_.CornerWidth += CornerButtonWidth(*button);
  return button;
}

/// Shows the buttons of what can be taken back and done again. From when there is something both have their room, so
/// that nothing moves as they come and go.
void FormWindow::ShowActs() {
  const bool canTakeBack = form_.CanTakeBack();
  const bool canDoAgain = form_.CanDoAgain();
  if (!takeBack_) {
    if (!canTakeBack && !canDoAgain) return;
    takeBack_ = MakeWord("Undo", "Takes back what was done last (Ctrl+Z)", &FormWindow::TakeBack);
    doAgain_ = MakeWord("Redo", "Does again what was taken back last (Ctrl+Shift+Z)", &FormWindow::DoAgain);
    metrics_.IsCornerFlat = !corner_;
    FitSoon();
  }
  takeBack_->setVisible(canTakeBack);
  doAgain_->setVisible(canDoAgain);
}

void FormWindow::FocusFirst() {
  const std::size_t first = wantedFocus_ ? *wantedFocus_ : form_.FirstFocus();
  if (first < form_.Controls().size()) TakeFocus(first);
}

void FormWindow::TakeFocus(std::size_t control) {
  QWidget* widget = widgets_[control];
  widget->setFocus(Qt::OtherFocusReason);
  auto* edit = qobject_cast<QLineEdit*>(widget);
  if (edit && !edit->isReadOnly()) edit->selectAll();
  scroll_->ensureWidgetVisible(widget);
}

// --- The page ----------------------------------------------------------------------------------------------------

/// The largest page that the screen has room for.
PageSize FormWindow::Limit() const {
  const QSize room = screen()->availableSize();
  return {room.width() - kFrameWidth, room.height() - kTitleBarHeight};
}

void FormWindow::ResizeToForm() {
  const PageSize limit = Limit();
  const PageSize natural = NaturalPageSize(form_, metrics_, limit);
  const int bar = natural.Height > limit.Height ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
  resize(std::min(natural.Width + bar, limit.Width), std::min(natural.Height, limit.Height));
  setMinimumSize(std::min(width(), 160), std::min(height(), 80));
}

/// After texts or what is visible have changed: the window grows where the page needs more room; it never shrinks.
void FormWindow::FitToForm() {
  needsFit_ = false;
  if (needsNames_) NameControls();
  const PageSize limit = Limit();
  const PageSize natural = NaturalPageSize(form_, metrics_, limit);
  const int wider = std::max(width(), std::min(natural.Width, limit.Width));
  const int higher = std::max(height(), std::min(natural.Height, limit.Height));
  if (wider != width() || higher != height()) resize(wider, higher);
  LayOut();
}

void FormWindow::FitSoon() {
  if (std::exchange(needsFit_, true)) return;
  QTimer::singleShot(0, this, [this] {
    if (needsFit_) FitToForm();
  });
}

void FormWindow::LayOut() {
  scroll_->setGeometry(rect());
  PageLayout page = LayOutPage(form_, metrics_, {width(), height()});
  if (page.Page.Height > height()) {  // the scroll bar stands beside the page
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    page = LayOutPage(form_, metrics_, {width() - bar, height()});
  }
  paper_->resize(page.Page.Width, page.Page.Height);
  for (const PlacedControl& placed : page.Controls) {
    PlaceControl(*widgets_[placed.Control], form_.Controls()[placed.Control], placed);
  }
  int right = page.Corner.Right();
  for (QPushButton* button : {corner_, help_, takeBack_, doAgain_}) {
    if (!button) continue;
    const int width = CornerButtonWidth(*button);
    right -= width;
    button->setGeometry(right, page.Corner.Y, width, page.Corner.Height);
  }
}

void FormWindow::MarkTexts() {
  marked_.clear();
  for (const std::string& text : MarkMnemonics(form_, corner_ ? "m" : "")) marked_.push_back(ToQtLine(text));
}

void FormWindow::Refresh(std::size_t control) {
  const Control& state = form_.Controls()[control];
  QButtonGroup* group = state.Template.Kind == ControlKind::Radio ? groups_[state.Template.Group] : nullptr;
  if (group) group->setExclusive(false);  // the form sees to that; a group would keep the last mark
  ShowControl(*widgets_[control], state, marked_[control]);
  if (group) group->setExclusive(true);
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (isBuilt_) LayOut();
}

// --- What the form changes ---------------------------------------------------------------------------------------

void FormWindow::OnControlChanged(std::size_t control) {
  if (!isBuilt_) return;
  const Control& state = form_.Controls()[control];
  const ControlKind kind = state.Template.Kind;
  const bool isSized = kind == ControlKind::Text || kind == ControlKind::Result ||
                       (state.Template.Width == 0 && !IsTyped(kind)) || HasMnemonic(kind);
  const bool comesOrGoes = widgets_[control]->isHidden() == state.Visible;
  needsNames_ |= comesOrGoes || kind == ControlKind::Text || HasMnemonic(kind);
  if (isSized || comesOrGoes) FitSoon();
  if (HasMnemonic(kind))
    MarkTexts();
  else
    marked_[control] = ToQtLine(state.Text);
  Refresh(control);
}

void FormWindow::OnTitleChanged() {
  setWindowTitle(ToQtTitle(form_.Title()));
}

void FormWindow::OnFocusWanted(std::size_t control) {
  if (isBuilt_) {
    TakeFocus(control);
  } else {
    wantedFocus_ = control;
  }
}

void FormWindow::OnClosed() {
  if (!isBuilt_) return;
  if (isModal_) {
    done(0);
  } else {
    hide();
  }
  if (depth_ == 0 && onOver) onOver();
}

// --- What a player does ------------------------------------------------------------------------------------------

/// Runs a handler of the form. What it throws must not pass through the toolkit: the form closes, and whoever runs it
/// gets the exception.
void FormWindow::Act(const std::function<void()>& act) {
  ++depth_;
  typedIn_ = nullptr;
  try {
    ChooseNow();
    if (!form_.IsClosed()) act();
  } catch (...) {
    error_ = std::current_exception();
  }
  --depth_;
  AfterAct();
}

void FormWindow::AfterAct() {
  if (error_ && !isModal_ && onError) onError(std::exchange(error_, nullptr));
  if (error_) form_.Close();
  if (!form_.IsClosed()) ShowActs();
  if (needsFit_ && !form_.IsClosed()) FitToForm();
  if (IsOver() && onOver) onOver();
}

/// A row chosen in a list is told to the form when the list is done with its own work, or before anything else that the
/// player does.
void FormWindow::Choose(std::size_t control, int row) {
  choice_ = {control, row};
  QTimer::singleShot(0, this, [this] {
    if (choice_) Act([] {});
  });
}

void FormWindow::ChooseNow() {
  if (!choice_) return;
  const auto [control, row] = *std::exchange(choice_, std::nullopt);
  if (form_.IsClosed()) return;
  form_.Choose(IdOf(control), row);
  if (!form_.IsClosed()) Refresh(control);
}

void FormWindow::reject() {
  if (!form_.IsClosed()) Act([this] { form_.PressCloseBox(); });
}

/// Up and Down keep to their column where fields stand in a table. Enter presses the button that has the focus, else
/// that of the field, else the default one. A key held down does not press on and on, through one form after another.
void FormWindow::keyPressEvent(QKeyEvent* event) {
  const auto focus = static_cast<std::size_t>(std::ranges::find(widgets_, focusWidget()) - widgets_.begin());
  if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {  // a field leaves them to the page
    const std::size_t count = widgets_.size();
    const int rows = event->key() == Qt::Key_Up ? -1 : 1;
    const std::size_t next = focus < count ? ControlInNextRow(form_, focus, rows) : count;
    if (next < count) return TakeFocus(next);
  }
  if (!event->isAutoRepeat() && PressButtonOf(event->text())) return;
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QDialog::keyPressEvent(event);
  if (event->isAutoRepeat()) return;
  if (auto* button = qobject_cast<QPushButton*>(focusWidget()); button && button->isEnabled()) return button->click();
  Act([this, focus] { form_.PressEnterAt(focus); });
}

/// A question is answered by the letter of the answer, without Alt. True if there is an answer of that letter. On the
/// pages of the steps a letter by itself must not press: one slip there costs a Building Point.
bool FormWindow::PressButtonOf(const QString& letter) {
  if (form_.Name() != "Question" || letter.size() != 1 || !letter[0].isLetter()) return false;
  for (std::size_t i = 0; i < widgets_.size(); ++i) {
    auto* button = qobject_cast<QPushButton*>(widgets_[i]);
    if (!button || !marked_[i].contains('&' + letter, Qt::CaseInsensitive)) continue;
    button->click();
    return true;
  }
  return false;
}

/// What another window did may be there to be taken back in this one.
void FormWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isBuilt_ && !form_.IsClosed()) ShowActs();
}

/// A list or menu that hangs open goes before anything is taken back. A field does not keep the keys for itself:
/// whether its typing goes first is decided here.
bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
  const auto isPressed = [event](const ActKey& key) {
    return key.Key == static_cast<const QKeyEvent&>(*event).keyCombination();
  };
  if (!isKey || std::ranges::none_of(kActKeys, isPressed)) return QDialog::eventFilter(watched, event);
  QWidget* const popup = QApplication::activePopupWidget();
  if (popup) popup->close();
  event->setAccepted(popup != nullptr);
  return true;
}

/// Takes back what was typed last in the field that has the focus, or types it again; the form is told as of any
/// typing. Returns false if there is nothing more of it, or something that was done since goes first.
bool FormWindow::TypeBack(bool again) {
  const bool hasActs = again ? form_.CanDoAgain() : form_.CanTakeBack();
  if (hasActs && typedIn_ != focusWidget()) return false;
  if (auto* line = qobject_cast<QLineEdit*>(focusWidget())) {
    if (!(again ? line->isRedoAvailable() : line->isUndoAvailable())) return false;
    again ? line->redo() : line->undo();
    return true;
  }
  auto* text = qobject_cast<QTextEdit*>(focusWidget());
  if (!text || !(again ? text->document()->isRedoAvailable() : text->document()->isUndoAvailable())) return false;
  again ? text->redo() : text->undo();
  return true;
}

void FormWindow::TakeBack() {
  if (form_.CanTakeBack()) Act([this] { form_.TakeBack(); });
}

void FormWindow::DoAgain() {
  if (form_.CanDoAgain()) Act([this] { form_.DoAgain(); });
}

/// The help is a page of this window alone: the game's platform, and with it a run's journal, do not see it. What was
/// typed last stays so.
void FormWindow::ShowHelp() {
  ++depth_;
  HelpForm help(form_);
  FormWindow(help.form, style_, this).Run();
  --depth_;
  AfterAct();
}

void FormWindow::contextMenuEvent(QContextMenuEvent* event) {
  if (form_.contextMenu.empty()) return QDialog::contextMenuEvent(event);
  if (event->reason() == QContextMenuEvent::Keyboard) {
    OpenMenuByKeyboard();
  } else {
    OpenMenu(event->globalPos());
  }
}

void FormWindow::OpenMenuByKeyboard() {
  OpenMenu(corner_ ? corner_->mapToGlobal(corner_->rect().bottomLeft()) : mapToGlobal(rect().center()));
}

void FormWindow::OpenMenu(QPoint place) {
  int chosen = 0;
  QMenu menu(this);
  FillMenu(menu, form_.contextMenu, [&](int id) { chosen = id; });
  menu.installEventFilter(this);
  for (QMenu* sub : menu.findChildren<QMenu*>()) sub->installEventFilter(this);
  menu.exec(place);
  if (chosen != 0) Act([&] { form_.ChooseMenuItem(chosen); });
}

}  // namespace veld
