#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/menu.h"

namespace veld {

/// The one top-level window: a title, a menu and ruled paper.
struct MainWindow {
  std::string Title;
  std::vector<MenuItem> Menu = {};
  std::function<void()> onStart = {};          ///< once, when the window stands
  std::function<void(int id)> onCommand = {};  ///< a menu item was chosen
};

}  // namespace veld
