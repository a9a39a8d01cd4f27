#pragma once

#include <functional>
#include <set>
#include <string>

#include "platform/form.h"

namespace veld::testing {

/// Plays the program at random - whole runs, the editors, the referee's tools - until every form that it has was opened,
/// and shows each to `look` twice, the first time that it comes up: as it opens, and after it was used for a while.
/// Tests and pictures of all forms begin here. A form that is not in `names` is new and has to be opened by some play.
/// Returns the names of those that did not come up.
std::set<std::string> ShowEveryForm(const std::function<void(Form& form, bool isUsed)>& look);

}  // namespace veld::testing
