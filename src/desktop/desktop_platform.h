#pragma once

#include <QObject>
#include <QWidget>
#include <exception>
#include <memory>
#include <vector>

#include "desktop/style.h"
#include "platform/hand_over.h"
#include "platform/main_window.h"
#include "platform/platform.h"
#include "platform/windows_beside.h"

class QEventLoop;
class QFileDialog;

namespace veld {

class FontsAhead;
class FormWindow;
class MainPage;

/// The port on a desktop. The application object must stand when it is made, and it is the only one while it lives.
/// Throws std::runtime_error when there is no font to write with.
class DesktopPlatform : public Platform {
 public:
  struct Settings {
    bool UsesNativeFileDialogs = true;
    FontsAhead* Fonts = nullptr;  ///< being read; waited for before the first text is measured
  };

  DesktopPlatform();
  explicit DesktopPlatform(Settings settings);
  ~DesktopPlatform() override;

  void RunForm(Form& form) override;
  void ShowWindow(std::shared_ptr<Form> form) override;
  void RunMainWindow(const MainWindow& window) override;
  void CloseMainWindow() override;
  void SetMainTitle(std::string_view title) override;
  void ShowPage(const std::vector<PageLine>& page) override;
  void BeginProgress(std::string_view caption, std::string_view text) override;
  bool ShowProgress(int percent) override;
  void EndProgress() override;
  bool CopyText(std::string_view text) override;
  bool OpenFile(const std::string& path) override { return ShowInViewer(path); }
  bool PrintFile(const std::string& path) override { return SendToPrinter(path); }

 protected:
  std::optional<std::string> DoAskOpenPath(const std::string& caption, std::span<const FileFilter> filters) override;
  std::optional<ChosenPath> DoAskSavePath(const std::string& caption, std::span<const FileFilter> filters,
                                          const std::string& suggestedName) override;

 private:
  struct Progress;

  const PaperStyle& Style();
  QWidget* Top() const;
  bool RunFileDialog(QFileDialog& dialog, std::span<const FileFilter> filters);
  void SoonAfter(std::function<void()> act);
  void Act(const std::function<void()>& act);
  void Fail(std::exception_ptr error);
  void SweepSoon();
  void Sweep();

  Settings settings_;
  std::optional<PaperStyle> style_;
  std::unique_ptr<MainPage> main_;
  std::vector<QWidget*> open_;  ///< dialogs that are running, the topmost last
  WindowsBeside<FormWindow> beside_;
  std::unique_ptr<Progress> progress_;
  QEventLoop* mainLoop_ = nullptr;
  std::exception_ptr error_;  ///< of a handler that no dialog runs; thrown on by RunMainWindow
  QString title_;
  std::vector<PageLine> page_;  ///< of the main window
  QObject timers_;
};

}  // namespace veld
