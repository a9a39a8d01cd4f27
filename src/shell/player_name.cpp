#include "shell/player_name.h"

#include <pwd.h>
#include <unistd.h>

namespace veld {

std::string DesktopUserName() {
  const passwd* user = getpwuid(getuid());
  if (!user) return {};
  // The full name is the first of the comma-separated fields kept about a user.
  std::string fullName = user->pw_gecos ? user->pw_gecos : "";
  fullName.resize(std::min(fullName.find(','), fullName.size()));
  return fullName.empty() && user->pw_name ? user->pw_name : fullName;
}

}  // namespace veld
