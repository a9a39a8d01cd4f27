#include "desktop/page_view.h"

#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextFrame>
#include <algorithm>

#include "desktop/paper.h"

namespace veld {

namespace {

using Kind = PageLine::Kind;

constexpr int kMargin = 28;      // left and right of the text
constexpr int kLabelGap = 20;    // from the longest label to the values
constexpr int kLeastLabels = 8;  // characters of room for labels

}  // namespace

PageView::PageView(const PaperStyle& style, int top, int pitch, QWidget* parent)
    : QTextEdit(parent), style_(style), top_(top) {
  const int height = QFontMetrics(style.Text).height();
  pitch_ = (height + pitch - 1) / pitch * pitch;
  setFont(style.Text);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setReadOnly(true);
  setUndoRedoEnabled(false);
  setTabChangesFocus(true);
  setAccessibleName("The character in memory");
  viewport()->setAutoFillBackground(false);
  document()->setDocumentMargin(0);
}

void PageView::Show(const std::vector<PageLine>& page) {
  if (page == page_) return;
  const bool isSame = !page.empty() && !page_.empty() && page.front() == page_.front();
  const int place = isSame ? verticalScrollBar()->value() : 0;
  page_ = page;
  WritePage();
  verticalScrollBar()->setValue(place);
}

void PageView::WritePage() {
  clear();
  QTextCursor at(document());
  at.beginEditBlock();
  const PageLine* before = nullptr;
  for (const PageLine& line : page_) {
    if (before) at.insertBlock();
    const bool isIntroduction = before && before->What == Kind::Title && line.What == Kind::Text;
    Write(at, line, line.What == Kind::Heading || isIntroduction);
    before = &line;
  }
  QTextFrameFormat frame;
  const QFontMetrics font(style_.Text);
  const int titleRise = QFontMetrics(style_.Title).ascent() - font.ascent();
  frame.setTopMargin(top_ + pitch_ - 1 - font.descent() - font.ascent() - titleRise);
  frame.setLeftMargin(kMargin);
  frame.setRightMargin(kMargin);
  frame.setBottomMargin(pitch_);
  document()->rootFrame()->setFrameFormat(frame);
  at.endEditBlock();
  verticalScrollBar()->setSingleStep(pitch_);
}

/// Every line is as high as the rules are apart, whatever its face; a gap is a line without text.
void PageView::Write(QTextCursor& at, const PageLine& line, bool hasGap) {
  const QFontMetrics text(style_.Text);
  const bool isTitle = line.What == Kind::Title;
  const QFont& face = isTitle ? style_.Title : line.What == Kind::Heading ? style_.Bold : style_.Text;
  QTextBlockFormat block;
  // From one line's top to that of the next is a pitch, and the baselines of all faces are at one place in it.
  const int rise = QFontMetrics(face).ascent() - text.ascent();
  block.setTopMargin(hasGap ? pitch_ - rise : 0);
  block.setLineHeight(pitch_ + rise - LineHeight(face), QTextBlockFormat::LineDistanceHeight);
  block.setNonBreakableLines(isTitle);
  QTextCharFormat ink;
  ink.setFont(face);
  ink.setForeground(QColor(line.What == Kind::Text ? Colors().Ink : Colors().Text));
  if (line.What == Kind::Fact) {
    int labels = kLeastLabels * style_.Metrics.Character;
    for (const PageLine& other : page_) labels = std::max(labels, text.horizontalAdvance(ToQtLine(other.Label)));
    const int column = labels + kLabelGap;
    block.setLeftMargin(column);
    block.setTextIndent(-column);
    block.setTabPositions({QTextOption::Tab(column, QTextOption::LeftTab)});
    at.setBlockFormat(block);
    at.insertText(ToQtLine(line.Label) + '\t', ink);
    ink.setForeground(QColor(Colors().Ink));
  }
  at.setBlockFormat(block);
  at.insertText(ToQtLine(line.Value), ink);
}

/// In other colours the page is written anew.
void PageView::changeEvent(QEvent* event) {
  QTextEdit::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || page_.empty()) return;
  const int place = verticalScrollBar()->value();
  WritePage();
  verticalScrollBar()->setValue(place);
}

void PageView::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), QColor(Colors().Paper));
    const int scrolled = verticalScrollBar()->value();
    DrawRules(painter, top_ + pitch_ - 1 - scrolled, pitch_, event->rect());
  }
  QTextEdit::paintEvent(event);
}

}  // namespace veld
