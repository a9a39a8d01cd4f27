#include "support/scripted_platform.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "text/numbers.h"
#include "text/search.h"

/// What fontconfig keeps, it keeps by offsets, which the search for lost memory can't follow.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }

namespace veld::testing {

void ChooseText(Form& form, int id, std::string_view text) {
  const auto& items = form.Items(id);
  const auto found = std::ranges::find(items, text);
  ASSERT_NE(found, items.end()) << text;
  form.Choose(id, static_cast<int>(found - items.begin()));
}

void SpreadPoints(Form& form) {
  constexpr int kPoints = 150;  // "You have 65 points to spend"
  std::vector<int> entries;
  for (const Control& control : form.Controls()) {
    if (control.Template.Kind == ControlKind::Number) entries.push_back(control.Template.Id);
  }
  std::int64_t left = ReadNumberPrefix(std::string_view(form.Text(kPoints)).substr(9));
  for (auto without = std::ssize(entries); without > 0; --without) {
    const std::int64_t share = left / without;
    form.Type(entries[static_cast<std::size_t>(without) - 1], std::to_string(share));
    left -= share;
  }
  form.PressDefault();
}

ScriptedPlatform::~ScriptedPlatform() {
  if (!script_.empty() && !::testing::Test::HasFailure()) {
    ADD_FAILURE() << script_.size() << " steps of the script were never asked for; the next is '" << script_.front().text
                  << "'";
  }
}

void ScriptedPlatform::ExpectForm(std::string name, std::function<void(Form&)> act) {
  script_.push_back({Kind::Form, std::move(name), std::move(act)});
}

void ScriptedPlatform::ExpectTyped(std::string name, std::string text) {
  constexpr int kEntry = 3000;
  ExpectForm(std::move(name), [text = std::move(text)](Form& form) {
    form.Type(kEntry, text);
    form.PressDefault();
  });
}

void ScriptedPlatform::ExpectQuestion(std::string part, Answer answer) {
  script_.push_back({Kind::Question, std::move(part), {}, answer});
}

void ScriptedPlatform::ExpectOpenPath(std::string path) { script_.push_back({Kind::OpenPath, std::move(path)}); }

void ScriptedPlatform::ExpectSavePath(std::string path) { script_.push_back({Kind::SavePath, std::move(path)}); }

bool ScriptedPlatform::Showed(std::string_view part) const {
  return std::ranges::any_of(messages, [&](const std::string& message) { return Contains(message, part); });
}

bool ScriptedPlatform::Next(Kind kind, std::string_view shown, Step& step) {
  if (script_.empty() || script_.front().kind != kind) {
    ADD_FAILURE() << "the script does not expect '" << shown << "' now"
                  << (script_.empty() ? std::string(", it has ended") : ", but '" + script_.front().text + "'");
    return false;
  }
  step = std::move(script_.front());
  script_.pop_front();
  return true;
}

void ScriptedPlatform::RunForm(Form& form) {
  forms.emplace_back(form.Name());
  form.Open();
  if (form.IsClosed()) return;
  Step step;
  if (Next(Kind::Form, form.Name(), step)) {
    EXPECT_EQ(form.Name(), step.text);
    if (form.Name() == step.text) step.act(form);
    EXPECT_TRUE(form.IsClosed()) << "'" << form.Name() << "' was left open";
  }
  for (int tries = 0; !form.IsClosed() && tries < 10; ++tries) form.PressCloseBox();
  form.Close();
}

void ScriptedPlatform::ShowWindow(std::shared_ptr<Form> form) {
  forms.emplace_back(form->Name());
  window = std::move(form);
  window->Open();
}

void ScriptedPlatform::RunMainWindow(const MainWindow& shown) {
  mainTitle = shown.Title;
  if (shown.onStart) shown.onStart();
}

void ScriptedPlatform::BeginProgress(std::string_view, std::string_view) { progress.clear(); }

bool ScriptedPlatform::ShowProgress(int percent) {
  progress.push_back(percent);
  return percent < cancelAt_;
}

void ScriptedPlatform::DoShowMessage(const std::string& caption, const std::string& text) {
  messages.push_back(caption + ": " + text);
}

Answer ScriptedPlatform::DoAskYesNo(const std::string& caption, const std::string& text) {
  const std::string shown = caption + ": " + text;
  questions.push_back(shown);
  const bool expected = !script_.empty() && script_.front().kind == Kind::Question && Contains(shown, script_.front().text);
  if (!expected && others_) return *others_;
  Step step;
  if (!Next(Kind::Question, shown, step)) return Answer::Closed;
  EXPECT_TRUE(Contains(shown, step.text)) << "asked: " << shown << "\nexpected: " << step.text;
  return step.reply;
}

std::optional<std::string> ScriptedPlatform::DoAskOpenPath(const std::string& caption, std::span<const FileFilter>) {
  Step step;
  if (!Next(Kind::OpenPath, caption, step) || step.text.empty()) return std::nullopt;
  return step.text;
}

std::optional<ChosenPath> ScriptedPlatform::DoAskSavePath(const std::string& caption, std::span<const FileFilter>,
                                                          const std::string&) {
  Step step;
  if (!Next(Kind::SavePath, caption, step) || step.text.empty()) return std::nullopt;
  return ChosenPath{step.text, 0};
}

TestFolder::TestFolder() : before_(std::filesystem::current_path().string()) {
  std::string pattern = (std::filesystem::temp_directory_path() / "veld-test-XXXXXX").string();
  if (!mkdtemp(pattern.data())) ADD_FAILURE() << "no temporary folder";
  path_ = pattern;
  std::filesystem::current_path(path_);
}

TestFolder::~TestFolder() {
  std::error_code ignored;
  std::filesystem::current_path(before_, ignored);
  std::filesystem::remove_all(path_, ignored);
}

std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

std::vector<std::string> FileLines(const std::string& path) {
  std::vector<std::string> lines;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

void WriteText(const std::string& path, std::string_view text) {
  std::ofstream(path, std::ios::binary) << text;
}

}  // namespace veld::testing
