#include "desktop/paper.h"

#include <QEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextLayout>
#include <QToolTip>
#include <algorithm>
#include <utility>

namespace veld {

namespace {

constexpr int kFrameGap = 4;  // from a frame to the text in it

/// Draws a row of a list: its text on the rule, a wash over the chosen one.
class RowPainter : public QStyledItemDelegate {
 public:
  RowPainter(const PageMetrics& metrics, QObject* parent) : QStyledItemDelegate(parent), metrics_(metrics) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {QStyledItemDelegate::sizeHint(option, index).width(), metrics_.Pitch};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool isChosen = option.state.testFlag(QStyle::State_Selected);
    const bool isActive = option.state.testFlag(QStyle::State_HasFocus) || option.state.testFlag(QStyle::State_Active);
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const QRect row = option.rect.adjusted(0, 0, 0, -1);
    if (isChosen) painter->fillRect(row, QColor(isActive && isEnabled ? Colors().Chosen : Colors().Wash));
    painter->setFont(option.font);
    painter->setPen(QColor(!isEnabled ? Colors().Faint : isChosen && isActive ? Colors().ChosenText : Colors().Text));
    const QString text =
        option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, row.width() - 2 * kFrameGap);
    painter->drawText(row.left() + kFrameGap, row.top() + metrics_.Baseline, text);
  }

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    const QString text = index.data().toString();
    const bool isCut = option.fontMetrics.horizontalAdvance(text) > option.rect.width() - 2 * kFrameGap;
    if (event->type() != QEvent::ToolTip || !isCut) return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), text.toHtmlEscaped(), view);
    return true;
  }

 private:
  const PageMetrics& metrics_;
};

}  // namespace

void DrawRules(QPainter& painter, int first, int pitch, const QRect& area) {
  for (int y = first; y <= area.bottom(); y += pitch) {
    if (y >= area.top()) painter.fillRect(area.left(), y, area.width(), 1, QColor(Colors().Rule));
  }
}

double LineHeight(const QFont& font) {
  QTextLayout layout("X", font);
  layout.beginLayout();
  layout.createLine().setLineWidth(1000);
  layout.endLayout();
  return layout.lineAt(0).height();
}

// --- Paper -------------------------------------------------------------------------------------------------------

Paper::Paper(int top, int pitch, QWidget* parent) : QWidget(parent), top_(top), pitch_(pitch) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void Paper::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), QColor(Colors().Paper));
  DrawRules(painter, top_ + pitch_ - 1, pitch_, event->rect());
  if (!hasEdge_) return;
  painter.setPen(QColor(Colors().Edge));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

// --- Writing -----------------------------------------------------------------------------------------------------

Writing::Writing(const PaperStyle& style, TextFace face, QRgb PaperColors::*color, QWidget* parent)
    : QLabel(parent), metrics_(style.Metrics), color_(color) {
  setTextFormat(Qt::PlainText);
  setFont(style.FontOf(face));
}

void Writing::SetLines(const std::vector<std::string>& lines) {
  lines_.clear();
  for (const std::string& line : lines) lines_ << ToQtLine(line);
  update();
}

QStringList Writing::Lines() const {
  return lines_.isEmpty() ? QStringList(ToQtLine(text().toStdString())) : lines_;
}

/// A mark before a letter, of a label that reaches a control, becomes a line under the letter.
void Writing::DrawLine(QPainter& painter, const QString& line, int baseline) const {
  if (!buddy() || !lines_.isEmpty()) return painter.drawText(0, baseline, line);
  QString plain;
  qsizetype marked = -1;
  for (qsizetype i = 0; i < line.size(); ++i) {
    if (line[i] == '&' && i + 1 < line.size()) {
      ++i;
      if (line[i] != '&' && marked < 0) marked = plain.size();
    }
    plain += line[i];
  }
  painter.drawText(0, baseline, plain);
  if (marked < 0) return;
  const int from = fontMetrics().horizontalAdvance(plain.left(marked));
  const int to = fontMetrics().horizontalAdvance(plain.left(marked + 1));
  painter.fillRect(from, baseline + 2, to - from, 1, painter.pen().color());
}

void Writing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(QColor(isEnabled() ? Colors().*color_ : Colors().Faint));
  const QStringList lines = Lines();
  const qsizetype room = std::max(1, (height() + metrics_.FrameAbove) / metrics_.Pitch);
  for (qsizetype i = 0; i < std::min(lines.size(), room); ++i) {
    QString line = lines[i];
    if (i + 1 == room && lines.size() > room) line += u' ' + lines[i + 1];
    if (fontMetrics().horizontalAdvance(line) > width() + 1 && !buddy()) {
      line = fontMetrics().elidedText(line, Qt::ElideRight, width());
    }
    DrawLine(painter, line, static_cast<int>(i) * metrics_.Pitch + metrics_.Baseline);
  }
}

bool Writing::IsCut() const {
  const QStringList lines = Lines();
  return lines.size() > std::max(1, (height() + metrics_.FrameAbove) / metrics_.Pitch) ||
         fontMetrics().horizontalAdvance(lines.first()) > width() + 1;
}

bool Writing::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLabel::event(event);
  if (IsCut()) QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(), this);
  return true;
}

QAbstractItemDelegate* MakeRowPainter(const PaperStyle& style, QObject* parent) {
  return new RowPainter(style.Metrics, parent);
}

// --- RuledList ---------------------------------------------------------------------------------------------------

RuledList::RuledList(const PaperStyle& style, QWidget* parent)
    : QListView(parent), model_(new QStringListModel(this)), pitch_(style.Metrics.Pitch) {
  setItemDelegate(MakeRowPainter(style, this));
  setModel(model_);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTabKeyNavigation(false);
}

void RuledList::Show(const std::vector<std::string>& items, int selection) {
  isShowing_ = true;
  selection_ = selection;
  if (items != items_) {
    items_ = items;
    QStringList rows;
    rows.reserve(static_cast<qsizetype>(items.size()));
    for (const std::string& item : items) rows << ToQtLine(item);
    model_->setStringList(rows);
  }
  if (selection < 0) {
    selectionModel()->clear();
  } else if (currentIndex().row() != selection || selectionModel()->selectedIndexes().isEmpty()) {
    setCurrentIndex(model_->index(selection));
  }
  isShowing_ = false;
}

void RuledList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QListView::selectionChanged(selected, deselected);
  if (isShowing_) return;
  const QModelIndexList chosen = selectionModel()->selectedIndexes();
  if (chosen.isEmpty()) {  // a list always keeps its chosen row
    QMetaObject::invokeMethod(
        this, [this] { Show(std::vector(items_), selection_); }, Qt::QueuedConnection);
  } else if (onChosen) {
    onChosen(chosen.first().row());
  }
}

void RuledList::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(viewport());
    DrawRules(painter, pitch_ - 1, pitch_, viewport()->rect());
  }
  QListView::paintEvent(event);
}

/// Coming into a list without a chosen row does not make a row current: the next arrow key then chooses the first.
void RuledList::focusInEvent(QFocusEvent* event) {
  QListView::focusInEvent(event);
  if (selectionModel()->selectedIndexes().isEmpty()) selectionModel()->clearCurrentIndex();
  update();
}

void RuledList::focusOutEvent(QFocusEvent* event) {
  QListView::focusOutEvent(event);
  update();
}

// --- RuledEdit ---------------------------------------------------------------------------------------------------

RuledEdit::RuledEdit(const PaperStyle& style, QWidget* parent) : QTextEdit(parent), metrics_(style.Metrics) {
  setAcceptRichText(false);
  setTabChangesFocus(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  document()->setDocumentMargin(0);
  QObject::connect(this, &QTextEdit::textChanged, this, [this] {
    if (!isShowing_ && onTyped) onTyped();
  });
}

void RuledEdit::SetText(const QString& text) {
  isShowing_ = true;
  setPlainText(text);
  QTextBlockFormat format;
  format.setLineHeight(metrics_.Pitch - LineHeight(font()), QTextBlockFormat::LineDistanceHeight);
  QTextCursor all(document());
  all.select(QTextCursor::Document);
  all.mergeBlockFormat(format);
  SetMargins();
  verticalScrollBar()->setSingleStep(metrics_.Pitch);
  document()->clearUndoRedoStacks();
  isShowing_ = false;
}

void RuledEdit::SetFramed(bool isFramed) {
  isShowing_ = true;
  isFramed_ = isFramed;
  setFrameShape(isFramed ? QFrame::StyledPanel : QFrame::NoFrame);
  viewport()->setAutoFillBackground(isFramed);
  SetMargins();
  isShowing_ = false;
}

/// The first line stands on the first rule; a frame keeps its distance from the text.
void RuledEdit::SetMargins() {
  QTextFrameFormat page = document()->rootFrame()->frameFormat();
  page.setTopMargin(metrics_.Baseline - QFontMetrics(font()).ascent());
  page.setLeftMargin(isFramed_ ? kFrameGap : 0);
  document()->rootFrame()->setFrameFormat(page);
}

void RuledEdit::focusInEvent(QFocusEvent* event) {
  QTextEdit::focusInEvent(event);
  update();
}

void RuledEdit::focusOutEvent(QFocusEvent* event) {
  QTextEdit::focusOutEvent(event);
  update();
}

}  // namespace veld
