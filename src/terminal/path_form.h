#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>

#include "platform/platform.h"

namespace veld {

class Form;

/// Runs a form and tells it of Tab, which completes what is typed. `form` is opened by it.
using RunWithTab = std::function<void(Form& form, const std::function<bool()>& onTab)>;

/// Asks for the path of a file. One to load must be there; one to save that is there already is asked about first.
std::optional<ChosenPath> RunPathForm(Platform& platform, const RunWithTab& run, const std::string& caption,
                                      std::span<const FileFilter> filters, const std::string& suggestedName,
                                      bool isForSaving);

}  // namespace veld
