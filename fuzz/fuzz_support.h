#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "platform/platform.h"

namespace veld::fuzz {

/// A window system without a player: shows nothing, answers nothing.
class SilentPlatform : public Platform {
 public:
  void RunForm(Form&) override {}
  void ShowWindow(std::shared_ptr<Form>) override {}
  void RunMainWindow(const MainWindow&) override {}
  void CloseMainWindow() override {}
  void SetMainTitle(std::string_view) override {}
  void BeginProgress(std::string_view, std::string_view) override {}
  bool ShowProgress(int) override { return true; }
  void EndProgress() override {}
  std::int64_t Now() const override { return 1; }

 protected:
  void DoShowMessage(const std::string&, const std::string&) override {}
  Answer DoAskYesNo(const std::string&, const std::string&) override { return Answer::Closed; }
  std::optional<std::string> DoAskOpenPath(const std::string&, std::span<const FileFilter>) override { return {}; }
  std::optional<ChosenPath> DoAskSavePath(const std::string&, std::span<const FileFilter>,
                                          const std::string&) override {
    return {};
  }
};

inline std::string_view Bytes(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Stops the fuzzer on a promise that did not hold.
inline void Require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "not so: %s\n", promise);
  std::abort();
}

}  // namespace veld::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
