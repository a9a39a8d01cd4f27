#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/form.h"
#include "platform/main_window.h"
#include "platform/platform.h"

namespace veld::testing {

/// The player of a test: answers what the program asks from a script, in order, and keeps all that was shown.
/// A question, form or path that the script does not expect next fails the test and is closed as its close box would.
/// Messages need no script; they are only kept.
class ScriptedPlatform : public Platform {
 public:
  ~ScriptedPlatform() override;

  // The script.
  void ExpectForm(std::string name, std::function<void(Form&)> act);  ///< act must close the form
  void ExpectTyped(std::string name, std::string text);               ///< into the one field of a form, and Enter
  void ExpectQuestion(std::string part, Answer answer);               ///< part of its caption or text
  void ExpectOpenPath(std::string path);                              ///< empty: cancelled
  void ExpectSavePath(std::string path);
  void CancelProgressAt(int percent) { cancelAt_ = percent; }
  /// Answers every question that the script does not expect next, instead of failing.
  void AnswerOthers(Answer answer) { others_ = answer; }

  // What was shown.
  std::vector<std::string> messages;   ///< "caption: text"
  std::vector<std::string> questions;  ///< "caption: text"
  std::vector<std::string> forms;      ///< names
  std::string mainTitle;
  std::vector<PageLine> page;    ///< of the main window
  std::int64_t now = 1;          ///< the clock; ResetCharacter seeds the dice with it
  std::shared_ptr<Form> window;  ///< the window shown last by ShowWindow
  bool mainWindowClosed = false;
  std::vector<int> progress;
  std::string clipboard;
  std::vector<std::string> opened;   ///< files that were handed to the viewer
  std::vector<std::string> printed;  ///< and to the printer
  bool canHandOver = true;           ///< there is a viewer and a printer
  bool Showed(std::string_view part) const;  ///< a message held this text
  std::size_t StepsLeft() const { return script_.size(); }

  void RunForm(Form& form) override;
  void ShowWindow(std::shared_ptr<Form> form) override;
  void RunMainWindow(const MainWindow& window) override;
  void CloseMainWindow() override { mainWindowClosed = true; }
  void SetMainTitle(std::string_view title) override { mainTitle = std::string(title); }
  void ShowPage(const std::vector<PageLine>& shown) override { page = shown; }
  void BeginProgress(std::string_view caption, std::string_view text) override;
  bool ShowProgress(int percent) override;
  void EndProgress() override {}
  bool CopyText(std::string_view text) override {
    clipboard = std::string(text);
    return true;
  }
  bool OpenFile(const std::string& path) override {
    opened.push_back(path);
    return canHandOver;
  }
  bool PrintFile(const std::string& path) override {
    printed.push_back(path);
    return canHandOver;
  }
  std::int64_t Now() const override { return now; }

 protected:
  void DoShowMessage(const std::string& caption, const std::string& text) override;
  Answer DoAskYesNo(const std::string& caption, const std::string& text) override;
  std::optional<std::string> DoAskOpenPath(const std::string& caption, std::span<const FileFilter> filters) override;
  std::optional<ChosenPath> DoAskSavePath(const std::string& caption, std::span<const FileFilter> filters,
                                          const std::string& suggestedName) override;

 private:
  enum class Kind { Form, Question, OpenPath, SavePath };
  struct Step {
    Kind kind = Kind::Form;
    std::string text;
    std::function<void(Form&)> act = {};
    Answer reply = Answer::Closed;
  };
  bool Next(Kind kind, std::string_view shown, Step& step);

  std::deque<Step> script_;
  std::optional<Answer> others_;
  int cancelAt_ = 101;
};

/// Chooses the line of a list or drop-down list that reads so; fails the test if there is none.
void ChooseText(Form& form, int id, std::string_view text);

/// Spreads the points that a page of a thief's abilities has over all of them, evenly, and enters them.
void SpreadPoints(Form& form);

/// A folder of its own for a test, made the working directory until the test ends and removed with all that is in it.
class TestFolder {
 public:
  TestFolder();
  ~TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
  std::string before_;
};

/// The whole text of a file; empty if it can't be read.
std::string FileText(const std::string& path);
std::vector<std::string> FileLines(const std::string& path);
void WriteText(const std::string& path, std::string_view text);

}  // namespace veld::testing
