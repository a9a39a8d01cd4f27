#pragma once

#include "platform/form.h"
#include "platform/no_front_end.h"

namespace veld {

/// A player who answers Yes to all and closes every dialog: what benchmarks talk to.
class SilentPlatform : public NoFrontEnd {
 public:
  void RunForm(Form& form) override {
    form.Open();
    form.PressCloseBox();
    form.Close();
  }
  void ShowWindow(std::shared_ptr<Form> form) override { form->Open(); }
  std::int64_t Now() const override { return 1; }

 protected:
  void DoShowMessage(const std::string&, const std::string&) override {}
  Answer DoAskYesNo(const std::string&, const std::string&) override { return Answer::Yes; }
};

}  // namespace veld
