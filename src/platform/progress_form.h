#pragma once

#include <chrono>
#include <string_view>

#include "platform/form.h"

namespace veld {

/// For front ends: the page of long work. Cancel marks it and can't be pressed again; the work ends by itself when
/// Platform::ShowProgress tells it so.
class ProgressForm {
 public:
  ProgressForm(std::string_view caption, std::string_view text);

  Form form;

  /// True if it is time to look at what the player does again.
  bool IsLookDue() const;
  void Looked() { lookedAt_ = std::chrono::steady_clock::now(); }
  void ShowPercent(int percent);
  bool IsCancelled() const { return isCancelled_; }

 private:
  std::chrono::steady_clock::time_point lookedAt_ = std::chrono::steady_clock::now();
  bool isCancelled_ = false;
};

}  // namespace veld
