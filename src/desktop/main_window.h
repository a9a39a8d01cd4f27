#pragma once

#include <QWidget>

#include "desktop/page_view.h"
#include "desktop/paper.h"
#include "platform/platform.h"

namespace veld {

/// The main window: a menu over ruled paper with a page on it.
class MainPage : public QWidget {
 public:
  MainPage();
  void SetMenu(const std::vector<MenuItem>& items);  ///< once; reads the fonts
  void ShowPage(const PaperStyle& style, const std::vector<PageLine>& page);
  QPoint PagePlace() const;  ///< where a window beside this one is shown: on its paper, the menu left free
  std::function<void(int id)> onCommand;
  std::function<void()> onClosed;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  Paper* paper_;
  PageView* page_ = nullptr;  ///< over the paper, once there are fonts
};

}  // namespace veld
