#pragma once

#include <cstddef>
#include <string>

#include "platform/form.h"
#include "platform/layout.h"

namespace veld {

/// What the lay-out must know of a terminal: a cell is its unit.
PageMetrics TerminalMetrics(const Form& form);

/// The cells that a page has inside its frame, on a screen whose first `top` lines are not its own. The last two lines
/// of the screen tell what the keys go to and which keys there are.
PageSize RoomForPage(int rows, int columns, int top);

/// What the keys go to, in words: its name, what it is, and all that stands in it, however much of that the page cuts
/// off. `row` is where the keys are in a list of which no row is chosen. The place after the last control is the button
/// of the form's menu.
std::string FocusLine(const Form& form, std::size_t control, int row);

}  // namespace veld
