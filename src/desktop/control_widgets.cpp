#include "desktop/control_widgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

#include "desktop/paper.h"

namespace veld {

namespace {

TextFace FaceOf(ControlKind kind) {
  if (kind == ControlKind::Title) return TextFace::Title;
  return kind == ControlKind::Heading ? TextFace::Bold : TextFace::Plain;
}

/// A button that leaves Enter to the form, which knows what it presses.
class FormButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return event->ignore();
    QPushButton::keyPressEvent(event);
  }
};

QWidget* MakeButton(const Control& control, QWidget* page) {
  auto* button = new FormButton(page);
  button->setAutoDefault(false);
  button->setDefault(IsDefault(control.Template.Role));
  return button;
}

QWidget* MakeText(const PaperStyle& style, QWidget* page) {
  auto* text = new RuledEdit(style, page);
  text->setReadOnly(true);
  text->setLineWrapMode(QTextEdit::NoWrap);  // the lay-out breaks its lines
  text->SetFramed(false);
  return text;
}

QWidget* MakeEdit(const Control& control, QWidget* page) {
  auto* edit = new QLineEdit(page);
  edit->setReadOnly(control.Template.IsReadOnly);
  edit->setTextMargins(3, 0, 3, 0);
  if (control.Template.Kind == ControlKind::Number) {
    static const QRegularExpression kNumber("[+-]?[0-9]*");
    edit->setValidator(new QRegularExpressionValidator(kNumber, edit));
  }
  return edit;
}

QWidget* MakeMultiLine(const PaperStyle& style, QWidget* page) {
  auto* edit = new RuledEdit(style, page);
  edit->SetFramed(true);
  return edit;
}

QWidget* MakeCombo(const PaperStyle& style, QWidget* page) {
  auto* combo = new QComboBox(page);
  combo->setItemDelegate(MakeRowPainter(style, combo));
  return combo;
}

QWidget* MakeProgress(QWidget* page) {
  auto* progress = new QProgressBar(page);
  progress->setRange(0, 100);
  return progress;
}

void ShowLine(QLineEdit& edit, const std::string& text) {
  const QString line = ToQtLine(text);
  if (edit.text() == line) return;
  const int cursor = edit.isReadOnly() ? 0 : edit.cursorPosition();
  edit.setText(line);
  edit.setCursorPosition(std::min(cursor, static_cast<int>(line.size())));
}

void ShowCombo(QComboBox& combo, const Control& control) {
  QStringList items;
  for (const std::string& item : control.Items) items << ToQtLine(item);
  QStringList shown;
  for (int i = 0; i < combo.count(); ++i) shown << combo.itemText(i);
  if (items != shown) {
    combo.clear();
    combo.addItems(items);
  }
  combo.setCurrentIndex(control.Selection);
}

}  // namespace

QWidget* MakeControlWidget(const Control& control, const PaperStyle& style, QWidget* page) {
  const ControlKind kind = control.Template.Kind;
  switch (kind) {
    case ControlKind::Title:
    case ControlKind::Heading:
    case ControlKind::Label:
      return new Writing(style, FaceOf(kind), &PaperColors::Text, page);
    case ControlKind::Result:
      return new Writing(style, TextFace::Plain, &PaperColors::Ink, page);
    case ControlKind::Text:
      return MakeText(style, page);
    case ControlKind::Edit:
    case ControlKind::Number:
      return MakeEdit(control, page);
    case ControlKind::MultiLine:
      return MakeMultiLine(style, page);
    case ControlKind::Button:
      return MakeButton(control, page);
    case ControlKind::List:
      return new RuledList(style, page);
    case ControlKind::Combo:
      return MakeCombo(style, page);
    case ControlKind::Check:
      return new QCheckBox(page);
    case ControlKind::Radio:
      return new QRadioButton(page);
    case ControlKind::Progress:
      return MakeProgress(page);
  }
  return new QWidget(page);
}

void ShowControl(QWidget& widget, const Control& control, const QString& marked) {
  const QSignalBlocker quiet(&widget);
  switch (control.Template.Kind) {
    case ControlKind::Title:
    case ControlKind::Heading:
    case ControlKind::Label:
    case ControlKind::Result:
      static_cast<QLabel&>(widget).setText(marked);
      break;
    case ControlKind::Text:
      break;  // its lines come with its place
    case ControlKind::Edit:
    case ControlKind::Number:
      ShowLine(static_cast<QLineEdit&>(widget), control.Text);
      break;
    case ControlKind::MultiLine: {
      auto& edit = static_cast<RuledEdit&>(widget);
      if (edit.toPlainText() != ToQt(control.Text) || control.Text.empty()) edit.SetText(ToQt(control.Text));
      break;
    }
    case ControlKind::List:
      static_cast<RuledList&>(widget).Show(control.Items, control.Selection);
      break;
    case ControlKind::Combo:
      ShowCombo(static_cast<QComboBox&>(widget), control);
      break;
    case ControlKind::Progress: {
      auto& progress = static_cast<QProgressBar&>(widget);
      progress.setValue(static_cast<int>(ReadEntry(control.Text, 100)));
      break;
    }
    case ControlKind::Button:
      static_cast<QAbstractButton&>(widget).setText(marked);
      break;
    case ControlKind::Check:
    case ControlKind::Radio: {
      auto& button = static_cast<QAbstractButton&>(widget);
      button.setText(marked);
      button.setChecked(control.Checked);
      break;
    }
  }
  widget.setEnabled(control.Enabled);
  if (widget.isHidden() == control.Visible) widget.setVisible(control.Visible);
}

void PlaceControl(QWidget& widget, const Control& control, const PlacedControl& placed) {
  const PageRect& area = placed.Area;
  widget.setGeometry(area.X, area.Y, area.Width, area.Height);
  const ControlKind kind = control.Template.Kind;
  if (kind == ControlKind::Text) {
    auto& text = static_cast<RuledEdit&>(widget);
    text.setFocusPolicy(placed.Scrolls ? Qt::StrongFocus : Qt::ClickFocus);
    text.setVerticalScrollBarPolicy(placed.Scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    QStringList lines;
    for (const std::string& line : placed.Wrapped) lines << ToQt(line);
    const QString shown = lines.join('\n');
    if (text.toPlainText() != shown) text.SetText(shown);
    text.SetFramed(placed.Scrolls);
  } else if (auto* writing = dynamic_cast<Writing*>(&widget)) {
    writing->SetLines(placed.Wrapped);
  }
}

}  // namespace veld
