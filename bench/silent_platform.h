#pragma once

#include "platform/form.h"
#include "platform/main_window.h"
#include "platform/platform.h"

namespace veld {

/// A player who answers Yes to all and closes every dialog: what benchmarks talk to.
class SilentPlatform : public Platform {
 public:
  void RunForm(Form& form) override {
    form.Open();
    form.PressCloseBox();
    form.Close();
  }
  void ShowWindow(std::shared_ptr<Form> form) override { form->Open(); }
  void RunMainWindow(const MainWindow&) override {}
  void CloseMainWindow() override {}
  void SetMainTitle(std::string_view) override {}
  void BeginProgress(std::string_view, std::string_view) override {}
  bool ShowProgress(int) override { return true; }
  void EndProgress() override {}
  std::int64_t Now() const override { return 1; }

 protected:
  void DoShowMessage(const std::string&, const std::string&) override {}
  Answer DoAskYesNo(const std::string&, const std::string&) override { return Answer::Yes; }
  std::optional<std::string> DoAskOpenPath(const std::string&, std::span<const FileFilter>) override { return {}; }
  std::optional<ChosenPath> DoAskSavePath(const std::string&, std::span<const FileFilter>,
                                          const std::string&) override {
    return {};
  }
};

}  // namespace veld
