#pragma once

#include "platform/form.h"

namespace veld::testing {

/// Shows a form at the terminal of this process, as the program does - Step 3 beside the main window - until it is
/// left.
int ShowAtTerminal(Form& form);

}  // namespace veld::testing
