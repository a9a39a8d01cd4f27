#pragma once

#include <QTextEdit>
#include <vector>

#include "desktop/style.h"
#include "platform/main_window.h"

namespace veld {

/// The page on the main window's paper: to be read, scrolled and copied. The rules move with the text.
class PageView : public QTextEdit {
 public:
  /// The first line's top edge, and from rule to rule. Under a font too high for that only every second rule is drawn.
  PageView(const PaperStyle& style, int top, int pitch, QWidget* parent);

  /// Shows a page. One of the same title stays scrolled to where the reader is.
  void Show(const std::vector<PageLine>& page);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void WritePage();
  void Write(QTextCursor& at, const PageLine& line, bool hasGap);

  const PaperStyle& style_;
  int top_;
  int pitch_;
  std::vector<PageLine> page_;
};

}  // namespace veld
