#pragma once

#include <string_view>

#include "platform/form.h"

namespace veld {

/// A text to read, with an OK button that closes it.
class MessageForm {
 public:
  MessageForm(std::string_view caption, std::string_view text);

  Form form;
};

/// For front ends: the page of a form's Help. It is shown by the front end itself and not by the platform of the game,
/// so that it is no act of a run.
class HelpForm : public MessageForm {
 public:
  explicit HelpForm(const Form& of);
};

}  // namespace veld
