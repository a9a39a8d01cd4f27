#pragma once

#include <string>

#include "platform/platform.h"

namespace veld {

/// The program: enters the data folder, shows the main window and serves its menu until it is closed. Returns the
/// process's exit status. `run`: a journal whose run is played to its last act at the start.
int RunVeld(Platform& platform, const std::string& run = {});

/// The journal that the command line names behind --replay, as a path that holds in any folder; empty if there is none.
std::string RunToPlay(int argc, char** argv);

}  // namespace veld
