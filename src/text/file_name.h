#pragma once

#include <string>
#include <string_view>

#include "text/utf8.h"

namespace veld {

/// A text as a part of a file name: "_" stands for "/" and for control characters.
inline std::string FileNamePart(std::string_view text) {
  std::string name(text);
  for (char& c : name) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '/' || byte < 0x20 || byte == 0x7F) c = '_';
  }
  return DisplayText(name);
}

}  // namespace veld
