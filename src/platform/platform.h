#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace veld {

class Form;
struct MainWindow;
struct PageLine;

/// The answer to a question. A rule that says "any answer but Yes" reads Closed as No; a rule that takes a Building
/// Point "on No" reads Closed as Yes.
enum class Answer { Yes, No, Closed };

/// One line of a file dialog's list of file types.
struct FileFilter {
  std::string_view Name;       ///< "Text Files (*.TXT)"
  std::string_view Extension;  ///< ".txt"; empty: all files
};

/// A path as a player chose it in a save dialog.
struct ChosenPath {
  std::string Path;
  std::size_t Filter = 0;  ///< which of the filters stood chosen
};

/// `path` with the extension of the chosen filter, unless it ends in that of one of the filters, in capitals or not:
/// what follows the point in "St. Ada" is none.
std::string WithExtension(std::string path, std::span<const FileFilter> filters, std::size_t chosen);

/// The whole of what the program asks of a window system. The desktop, the terminal and the tests implement it.
/// All texts are UTF-8. Everything runs on one thread.
class Platform {
 public:
  virtual ~Platform() = default;

  /// Shows `text` with an OK button and returns when it is closed.
  void ShowMessage(std::string_view text, std::string_view caption = "VELD");
  /// Asks `text` with Yes and No.
  Answer AskYesNo(std::string_view caption, std::string_view text);
  bool Confirms(std::string_view caption, std::string_view text) { return AskYesNo(caption, text) == Answer::Yes; }
  /// Asks for a file to load; nothing if the player cancels.
  std::optional<std::string> AskOpenPath(std::string_view caption, std::span<const FileFilter> filters);
  /// Asks for a file to save, asking before one is overwritten; nothing if the player cancels. A name that ends in the
  /// extension of none of the filters gets that of the chosen one.
  std::optional<std::string> AskSavePath(std::string_view caption, std::span<const FileFilter> filters,
                                         std::string_view suggestedName);

  /// Shows a dialog and returns when it has closed. The windows below it do not act meanwhile.
  virtual void RunForm(Form& form) = 0;
  /// Shows a window beside the main window and returns at once; it stays until the form closes.
  virtual void ShowWindow(std::shared_ptr<Form> form) = 0;
  /// Shows the main window and returns when it was closed.
  virtual void RunMainWindow(const MainWindow& window) = 0;
  virtual void CloseMainWindow() = 0;
  virtual void SetMainTitle(std::string_view title) = 0;
  /// Shows a page on the main window's paper in place of the one before.
  virtual void ShowPage(const std::vector<PageLine>& /*page*/) {}

  /// Long work: shows how far it is (0..100). The second returns false once the player has cancelled.
  virtual void BeginProgress(std::string_view caption, std::string_view text) = 0;
  virtual bool ShowProgress(int percent) = 0;
  virtual void EndProgress() = 0;

  /// Gives a text to the clipboard. Returns false where there is none.
  virtual bool CopyText(std::string_view /*text*/) { return false; }
  /// Hands a file to the program that the system shows such files with, or to its printer. Returns false where there is
  /// none, or none takes it.
  virtual bool OpenFile(const std::string& /*path*/) { return false; }
  virtual bool PrintFile(const std::string& /*path*/) { return false; }

  /// The clock, in seconds since 1970.
  virtual std::int64_t Now() const;

  /// True while a run is played again that was played before: nobody sees it.
  virtual bool IsReplaying() const { return false; }
  /// True where a run is to leave nothing behind but its character: who writes logs, copies and files does not write
  /// them, and no page is shown. So it is while a run is played again, and when a character plays itself.
  virtual bool LeavesNoTrace() const { return IsReplaying(); }
  /// True when nobody is there any more, and open forms are only being left.
  virtual bool IsLost() const { return false; }

 protected:
  // A message and a question are ordinary forms, so that everything a player sees is the same paper.
  virtual void DoShowMessage(const std::string& caption, const std::string& text);
  virtual Answer DoAskYesNo(const std::string& caption, const std::string& text);
  virtual std::optional<std::string> DoAskOpenPath(const std::string& caption, std::span<const FileFilter> filters) = 0;
  virtual std::optional<ChosenPath> DoAskSavePath(const std::string& caption, std::span<const FileFilter> filters,
                                                  const std::string& suggestedName) = 0;
};

}  // namespace veld
