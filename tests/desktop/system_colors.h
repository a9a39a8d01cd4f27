#pragma once

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>

#include "desktop/paper_look.h"

namespace veld::testing {

/// A system whose windows are of this colour, dark or light.
class SystemColors : public QProxyStyle {
 public:
  explicit SystemColors(QColor windows) : QProxyStyle(MakePaperLook()), windows_(windows) {}
  using QProxyStyle::polish;
  void polish(QPalette& palette) override {
    palette = QPalette(windows_);
    QProxyStyle::polish(palette);
  }

 private:
  QColor windows_;
};

inline void ChangeSystemTo(QColor windows) {
  QApplication::setStyle(new SystemColors(windows));
}

}  // namespace veld::testing
