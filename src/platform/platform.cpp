#include "platform/platform.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <system_error>

#include "platform/form.h"
#include "platform/message_form.h"
#include "text/format.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace {

enum : int { kQuestionText = 10, kQuestionYes = 6, kQuestionNo = 7 };
constexpr int kQuestionWidth = 64;

constexpr ControlTemplate kQuestionControls[] = {
    TextAt(0, 0, kQuestionText, "", kQuestionWidth, 0),
    ButtonAt(1, 0, kQuestionYes, "&Yes", ButtonRole::Default),
    ButtonAt(1, 0, kQuestionNo, "&No"),
};
constexpr FormTemplate kQuestionTemplate{"Question", "VELD", kQuestionControls, ""};

}  // namespace

std::string WithExtension(std::string path, std::span<const FileFilter> filters, std::size_t chosen) {
  const bool isKnown = std::ranges::any_of(filters, [&](const FileFilter& filter) {
    return !filter.Extension.empty() && EndsIgnoringCase(path, filter.Extension);
  });
  if (!isKnown && chosen < filters.size()) path += filters[chosen].Extension;
  return path;
}

void Platform::ShowMessage(std::string_view text, std::string_view caption) {
  DoShowMessage(DisplayText(caption), DisplayText(text));
}

Answer Platform::AskYesNo(std::string_view caption, std::string_view text) {
  return DoAskYesNo(DisplayText(caption), DisplayText(text));
}

std::optional<std::string> Platform::AskOpenPath(std::string_view caption, std::span<const FileFilter> filters) {
  return DoAskOpenPath(std::string(caption), filters);
}

std::optional<std::string> Platform::AskSavePath(std::string_view caption, std::span<const FileFilter> filters,
                                                 std::string_view suggestedName) {
  std::string name(suggestedName);
  while (const auto chosen = DoAskSavePath(std::string(caption), filters, name)) {
    if (chosen->Path.empty()) break;
    const std::string path = WithExtension(chosen->Path, filters, chosen->Filter);
    // The front end has asked about a file of the name as it was typed.
    std::error_code ignored;
    if (path == chosen->Path || !std::filesystem::exists(path, ignored)) return path;
    name = std::filesystem::path(path).filename().string();
    if (Confirms(caption, Format("%s is there already. Do you want to replace it?", name))) return path;
  }
  return std::nullopt;
}

std::int64_t Platform::Now() const {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::seconds>(now).count();
}

void Platform::DoShowMessage(const std::string& caption, const std::string& text) {
  MessageForm message(caption, text);
  RunForm(message.form);
}

Answer Platform::DoAskYesNo(const std::string& caption, const std::string& text) {
  Form form(kQuestionTemplate);
  form.SetTitle(caption);
  form.SetText(kQuestionText, text);
  Answer answer = Answer::Closed;
  form.onCommand = [&](int id) {
    answer = id == kQuestionYes ? Answer::Yes : Answer::No;
    form.Close();
  };
  RunForm(form);
  return answer;
}

}  // namespace veld
