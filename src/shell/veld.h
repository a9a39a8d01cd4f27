#pragma once

#include "platform/platform.h"

namespace veld {

/// The program: enters the data folder, shows the main window and serves its menu until it is closed. Returns the
/// process's exit status.
int RunVeld(Platform& platform);

}  // namespace veld
