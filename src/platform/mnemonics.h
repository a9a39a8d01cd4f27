#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/form.h"

namespace veld {

/// The texts of the form's controls with a mark before the letter that reaches each: those that the form gives, and for
/// every other button, check and radio button, and every label that names a control, a free letter of its own text as
/// long as there is one (words' first letters first). Letters in `taken` are not given out. Other texts are as they
/// are.
std::vector<std::string> MarkMnemonics(const Form& form, std::string_view taken);

}  // namespace veld
