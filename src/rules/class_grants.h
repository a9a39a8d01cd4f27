#pragma once

#include <string_view>
#include <vector>

#include "rules/grant_notation.h"

namespace veld {

/// What a class grants just before skills are bought, in order. Empty for a class without grants.
std::vector<GrantText> ClassGrants(std::string_view className, bool usesFighterBackground);

}  // namespace veld
