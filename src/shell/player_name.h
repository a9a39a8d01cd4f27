#pragma once

#include <string>

namespace veld {

/// The desktop user's full name, else the login name; empty if the system knows neither.
std::string DesktopUserName();

}  // namespace veld
