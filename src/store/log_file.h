#pragma once

#include <string_view>

namespace veld {

/// Opens a log for appending; -1 if it can't be. CloseLog gives it back; both accept -1.
int OpenLog(const char* path);
void CloseLog(int log);

/// Writes `line` and a line end to an open log in one piece. A failure is nobody's concern: a log is a convenience.
void AppendLine(int log, std::string_view line);

/// Opens the log, appends one line and closes it.
void AppendLine(const char* path, std::string_view line);

}  // namespace veld
