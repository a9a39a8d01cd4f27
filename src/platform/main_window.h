#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/menu.h"

namespace veld {

/// A line of the page that the main window shows.
struct PageLine {
  enum class Kind {
    Title,    ///< the first, of the whole page
    Heading,  ///< of the lines below it
    Fact,     ///< a label and what it says
    Text,     ///< to be read on
  };
  Kind What = Kind::Text;
  std::string Label = {};  ///< of a fact
  std::string Value = {};

  friend bool operator==(const PageLine&, const PageLine&) = default;
};

/// The one top-level window: a title, a menu and a page on ruled paper.
struct MainWindow {
  std::string Title;
  std::vector<MenuItem> Menu = {};
  std::vector<PageLine> Page = {};             ///< on the paper, until ShowPage brings another
  std::function<void()> onStart = {};          ///< once, when the window stands
  std::function<void(int id)> onCommand = {};  ///< a menu item was chosen
};

}  // namespace veld
