#pragma once

#include <string>
#include <vector>

#include "platform/menu.h"
#include "terminal/screen.h"

namespace veld {

enum class MenuEnd : std::uint8_t { Chosen, Left, Right, Escaped };

struct MenuChoice {
  MenuEnd End = MenuEnd::Escaped;
  int Id = 0;  ///< of the item chosen
};

/// Opens a menu with its upper left corner at a place, or as near to it as the screen allows, and its submenus; returns
/// when an item is chosen or the menu is left. `first` is the row that is marked at first.
MenuChoice RunMenu(Screen& screen, const std::vector<MenuItem>& items, int y, int x, int first = 0);

/// The letter that chooses an item or presses a button, in lower case; 0 if none is marked.
char32_t MarkedLetterOf(std::string_view text);
char32_t LowerLetter(char32_t letter);

}  // namespace veld
