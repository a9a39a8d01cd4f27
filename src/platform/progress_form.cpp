#include "platform/progress_form.h"

namespace veld {

namespace {

enum : int { kProgressText = 10, kProgressBar = 11, kProgressCancel = 2 };
constexpr int kProgressWidth = 48;

constexpr ControlTemplate kProgressControls[] = {
    TextAt(0, 0, kProgressText, "", kProgressWidth, 0),
    {.Kind = ControlKind::Progress, .Id = kProgressBar, .Row = 1, .Column = 0, .Width = kProgressWidth},
    ButtonAt(2, 0, kProgressCancel, "&Cancel", ButtonRole::Cancel),
};
constexpr FormTemplate kProgressTemplate{"Progress", "VELD", kProgressControls, ""};
constexpr auto kProgressEvery = std::chrono::milliseconds(25);  // from one look at what the player does to the next

}  // namespace

ProgressForm::ProgressForm(std::string_view caption, std::string_view text) : form(kProgressTemplate) {
  form.SetTitle(caption);
  form.SetText(kProgressText, text);
  form.onCommand = [this](int) {
    isCancelled_ = true;
    form.SetEnabled(kProgressCancel, false);
  };
}

bool ProgressForm::IsLookDue() const {
  return std::chrono::steady_clock::now() - lookedAt_ >= kProgressEvery;
}

void ProgressForm::ShowPercent(int percent) {
  form.SetNumber(kProgressBar, percent);
}

}  // namespace veld
