#include "desktop/text_to_read.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>

#include "desktop/page_view.h"

namespace veld {

namespace {

/// A text that is read: all of it, its lines and words, and what is marked in it.
class TextToRead : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit TextToRead(QTextEdit* edit) : QAccessibleWidget(edit, QAccessible::StaticText) {}

  QAccessible::Role role() const override {
    return dynamic_cast<PageView*>(&Edit()) ? QAccessible::Document : QAccessible::StaticText;
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
  }
  QString text(QAccessible::Text what) const override {
    return what == QAccessible::Value ? Edit().toPlainText() : QAccessibleWidget::text(what);
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QString text(int from, int to) const override { return Edit().toPlainText().mid(from, to - from); }
  int characterCount() const override { return static_cast<int>(Edit().toPlainText().size()); }
  int cursorPosition() const override { return Edit().textCursor().position(); }
  void setCursorPosition(int place) override { Mark(place, place); }
  int selectionCount() const override { return Edit().textCursor().hasSelection() ? 1 : 0; }
  void selection(int, int* from, int* to) const override {
    *from = Edit().textCursor().selectionStart();
    *to = Edit().textCursor().selectionEnd();
  }
  void addSelection(int from, int to) override { Mark(from, to); }
  void setSelection(int, int from, int to) override { Mark(from, to); }
  void removeSelection(int) override { setCursorPosition(cursorPosition()); }
  QRect characterRect(int place) const override {
    const QRect caret = Edit().cursorRect(At(place));
    const int width = std::max(Edit().cursorRect(At(place + 1)).left() - caret.left(), 1);
    return {Edit().viewport()->mapToGlobal(caret.topLeft()), QSize(width, caret.height())};
  }
  int offsetAtPoint(const QPoint& place) const override {
    return Edit().cursorForPosition(Edit().viewport()->mapFromGlobal(place)).position();
  }
  void scrollToSubstring(int from, int) override {
    const QRect line = Edit().cursorRect(At(from));
    QScrollBar* const bar = Edit().verticalScrollBar();
    if (!Edit().viewport()->rect().contains(line)) bar->setValue(bar->value() + line.top());
  }
  QString attributes(int, int* from, int* to) const override {
    *from = 0;
    *to = characterCount();
    return {};
  }

 private:
  QTextEdit& Edit() const { return *static_cast<QTextEdit*>(widget()); }
  QTextCursor At(int place) const {
    QTextCursor cursor(Edit().document());
    cursor.setPosition(std::clamp(place, 0, characterCount()));
    return cursor;
  }
  void Mark(int from, int to) {
    QTextCursor cursor = At(from);
    cursor.setPosition(std::clamp(to, 0, characterCount()), QTextCursor::KeepAnchor);
    Edit().setTextCursor(cursor);
  }
};

QAccessibleInterface* MakeInterface(const QString& kind, QObject* object) {
  if (kind != "QTextEdit") return nullptr;
  auto* edit = static_cast<QTextEdit*>(object);
  return edit->isReadOnly() ? new TextToRead(edit) : nullptr;
}

}  // namespace

void TellTextsToRead() {
  QAccessible::installFactory(MakeInterface);
}

}  // namespace veld
