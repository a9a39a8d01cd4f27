#pragma once

#include <string>
#include <vector>

namespace veld {

// Files are handed to other programs without a shell, and those hold neither our terminal nor our process table.

/// Shows a file with the program that the desktop has for its kind. False where there is no desktop, no such program,
/// or it gives up.
bool ShowInViewer(const std::string& path);

/// Gives a file to the default printer. False where there is none.
bool SendToPrinter(const std::string& path);

/// Starts a program, found as the shell finds it, in a session of its own: its input is empty, what it prints goes
/// nowhere, and no signal of our terminal reaches it. Waits for it so many milliseconds at most. False if it could not
/// be started or has failed by then; a program that still runs goes on.
bool RunProgram(std::vector<std::string> arguments, int milliseconds);

}  // namespace veld
