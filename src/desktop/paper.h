#pragma once

#include <QAbstractItemDelegate>
#include <QLabel>
#include <QListView>
#include <QStringListModel>
#include <QTextEdit>
#include <functional>
#include <string>
#include <vector>

#include "desktop/style.h"

namespace veld {

/// Draws the rules of paper in `area`: the first at y = `first`, which may lie above it.
void DrawRules(QPainter& painter, int first, int pitch, const QRect& area);

/// The height that the text engine gives a line of its own accord, which is not quite that of the font's metrics.
double LineHeight(const QFont& font);

/// Paper with a pale rule under every line.
class Paper : public QWidget {
 public:
  Paper(int top, int pitch, QWidget* parent);            ///< the first line's top edge, and from rule to rule
  void SetHasEdge(bool hasEdge) { hasEdge_ = hasEdge; }  ///< where paper lies on paper

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int top_;
  int pitch_;
  bool hasEdge_ = false;
};

/// Writing on the rules of the paper: a title, a heading, a label, a result. Of what does not fit the end is left out,
/// and the whole is shown under the pointer.
class Writing : public QLabel {
 public:
  Writing(const PaperStyle& style, TextFace face, QRgb PaperColors::*color, QWidget* parent);
  void SetLines(const std::vector<std::string>& lines);  ///< of a text of several lines, as the lay-out broke it

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QStringList Lines() const;
  void DrawLine(QPainter& painter, const QString& line, int baseline) const;
  bool IsCut() const;

  const PageMetrics& metrics_;
  QRgb PaperColors::*color_;
  QStringList lines_;
};

/// Draws the rows of lists and combos: one to a rule of the paper, in ink, a wash over the chosen one.
QAbstractItemDelegate* MakeRowPainter(const PaperStyle& style, QObject* parent);

/// A list whose rows stand on the rules of the paper.
class RuledList : public QListView {
 public:
  RuledList(const PaperStyle& style, QWidget* parent);

  /// Shows the items and the chosen row, -1 for none. Tells nobody.
  void Show(const std::vector<std::string>& items, int selection);
  std::function<void(int row)> onChosen;  ///< a player chose another row

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
  QStringListModel* model_;
  std::vector<std::string> items_;
  int pitch_;
  int selection_ = -1;
  bool isShowing_ = false;
};

/// Several lines to read or to type in, on the rules of the paper.
class RuledEdit : public QTextEdit {
 public:
  RuledEdit(const PaperStyle& style, QWidget* parent);
  void SetText(const QString& text);  ///< tells nobody
  void SetFramed(bool isFramed);      ///< without a frame the text stands on the page like writing
  std::function<void()> onTyped;

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void SetMargins();

  const PageMetrics& metrics_;
  bool isFramed_ = true;
  bool isShowing_ = false;
};

}  // namespace veld
