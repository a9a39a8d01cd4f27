#pragma once

#include <memory>
#include <vector>

#include "platform/hand_over.h"
#include "platform/platform.h"
#include "platform/windows_beside.h"
#include "terminal/form_screen.h"
#include "terminal/screen.h"

namespace veld {

/// The port at a text terminal. When the terminal is lost, or the program is told to end, every form that is open or
/// still opened is left by its close box, questions are answered Closed, no path is chosen, and RunMainWindow returns.
class TerminalPlatform : public Platform {
 public:
  explicit TerminalPlatform(Screen& screen);
  ~TerminalPlatform() override;

  void RunForm(Form& form) override;
  void ShowWindow(std::shared_ptr<Form> form) override;
  void RunMainWindow(const MainWindow& window) override;
  void CloseMainWindow() override { isClosed_ = true; }
  void SetMainTitle(std::string_view title) override;
  void ShowPage(const std::vector<PageLine>& page) override;
  void BeginProgress(std::string_view caption, std::string_view text) override;
  bool ShowProgress(int percent) override;
  void EndProgress() override;
  bool IsLost() const override { return screen_.IsLost(); }
  bool CopyText(std::string_view text) override;
  bool OpenFile(const std::string& path) override { return ShowInViewer(path); }
  bool PrintFile(const std::string& path) override { return SendToPrinter(path); }

 protected:
  Answer DoAskYesNo(const std::string& caption, const std::string& text) override;
  std::optional<std::string> DoAskOpenPath(const std::string& caption, std::span<const FileFilter> filters) override;
  std::optional<ChosenPath> DoAskSavePath(const std::string& caption, std::span<const FileFilter> filters,
                                          const std::string& suggestedName) override;

 private:
  class Desk;
  struct Progress;

  void RunPage(Form& form, const std::function<bool()>& onTab);
  void LeaveForm(Form& form);
  void HandleMainKey(const MainWindow& window, const Key& key);
  void RunShortcut(const MainWindow& window, std::string_view shortcut);
  void RunMenuBar(const MainWindow& window, std::size_t menu);

  Screen& screen_;
  std::unique_ptr<Desk> desk_;
  std::unique_ptr<Progress> progress_;
  WindowsBeside<FormScreen> beside_;
  bool isClosed_ = false;
  int leftForms_ = 0;  ///< since the terminal was lost
};

}  // namespace veld
