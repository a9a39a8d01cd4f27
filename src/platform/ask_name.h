#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace veld {

/// What a player uses in the GetName dialog.
namespace AskNameControl {
inline constexpr int Prompt = 10;
inline constexpr int Entry = 3000;
}  // namespace AskNameControl

/// The GetName dialog: asks for a text, with `suggested` standing in its field. Nothing if the player cancels.
std::optional<std::string> AskText(Platform& platform, std::string_view prompt, std::string_view suggested = {});

/// The same; empty if the player cancels or enters nothing.
inline std::string AskName(Platform& platform, std::string_view prompt) {
  return AskText(platform, prompt).value_or(std::string());
}

}  // namespace veld
