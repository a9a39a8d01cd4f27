#pragma once

#include <string>
#include <vector>

namespace veld {

/// One entry of a menu: a command, a submenu (Items not empty) or a separator (no text). '&' stands before the letter
/// that chooses the entry.
struct MenuItem {
  int Id = 0;
  std::string Text;
  std::vector<MenuItem> Items = {};
  bool Enabled = true;
  std::string Shortcut = {};  ///< "Ctrl+Z", "F1": chooses it without the menu
};

}  // namespace veld
