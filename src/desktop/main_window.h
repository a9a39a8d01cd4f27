#pragma once

#include <QWidget>

#include "desktop/paper.h"
#include "platform/platform.h"

class QMenuBar;

namespace veld {

/// The main window: a menu over ruled paper.
class MainPage : public QWidget {
 public:
  MainPage();
  void SetStyle(const PaperStyle& style);  ///< lays the paper, before the window is shown
  void SetMenu(const std::vector<MenuItem>& items);
  QPoint PagePlace() const;  ///< where a window beside this one is shown: on its paper, the menu left free
  std::function<void(int id)> onCommand;
  std::function<void()> onClosed;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QMenuBar* menu_;
  Paper* paper_ = nullptr;
};

}  // namespace veld
