#pragma once

#include "platform/platform.h"

namespace veld {

/// A platform that shows nothing, for whoever plays without a window: no main window, no progress, no files to choose.
/// What is done with a form is left to it.
class NoFrontEnd : public Platform {
 public:
  void RunMainWindow(const MainWindow&) override {}
  void CloseMainWindow() override {}
  void SetMainTitle(std::string_view) override {}
  void BeginProgress(std::string_view, std::string_view) override {}
  bool ShowProgress(int) override { return true; }
  void EndProgress() override {}

 protected:
  std::optional<std::string> DoAskOpenPath(const std::string&, std::span<const FileFilter>) override { return {}; }
  std::optional<ChosenPath> DoAskSavePath(const std::string&, std::span<const FileFilter>,
                                          const std::string&) override {
    return {};
  }
};

}  // namespace veld
