#include "platform/message_form.h"

#include "text/format.h"

namespace veld {

namespace {

enum : int { kText = 10, kOk = 1 };
constexpr int kWidth = 64;

constexpr ControlTemplate kControls[] = {
    TextAt(0, 0, kText, "", kWidth, 0),
    ButtonAt(1, 0, kOk, "OK", ButtonRole::Both),
};
constexpr FormTemplate kMessage{"Message", "VELD", kControls, ""};

}  // namespace

MessageForm::MessageForm(std::string_view caption, std::string_view text) : form(kMessage) {
  form.SetTitle(caption);
  form.SetText(kText, text);
  form.onCommand = [this](int) { form.Close(); };
}

HelpForm::HelpForm(const Form& of) : MessageForm(Format("Help: %s", of.Title()), of.Help()) {}

}  // namespace veld
