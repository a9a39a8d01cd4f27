#include "platform/wrap_text.h"

#include <algorithm>

#include "text/utf8.h"

namespace veld {

namespace {

/// The longest start of `word` that fits, at least one character.
std::string_view FittingStart(std::string_view word, int width, const std::function<int(std::string_view)>& textWidth) {
  std::string_view fits;
  for (std::size_t end = 1; end <= word.size(); ++end) {
    const std::string_view start = CutToBytes(word, end);
    if (start.size() <= fits.size()) continue;
    if (!fits.empty() && textWidth(start) > width) break;
    fits = start;
  }
  return fits.empty() ? word : fits;
}

void WrapParagraph(std::string_view paragraph, int width, const std::function<int(std::string_view)>& textWidth,
                   std::vector<std::string>& lines) {
  while (textWidth(paragraph) > width) {
    std::size_t lineEnd = 0;  // of what fits so far
    const std::size_t first = std::min(paragraph.find_first_not_of(' '), paragraph.size());
    for (std::size_t end = paragraph.find(' ', first);; end = paragraph.find(' ', end + 1)) {
      const std::size_t wordEnd = std::min(end, paragraph.size());
      if (textWidth(paragraph.substr(0, wordEnd)) > width) break;
      lineEnd = wordEnd;
      if (wordEnd == paragraph.size()) break;
    }
    if (lineEnd == 0) lineEnd = FittingStart(paragraph, width, textWidth).size();
    lines.emplace_back(paragraph.substr(0, lineEnd));
    const std::size_t next = paragraph.find_first_not_of(' ', lineEnd);
    if (next == std::string_view::npos) return;
    paragraph.remove_prefix(next);
  }
  lines.emplace_back(paragraph);
}

}  // namespace

std::vector<std::string> WrapText(std::string_view text, int width,
                                  const std::function<int(std::string_view)>& textWidth) {
  std::vector<std::string> lines;
  for (std::size_t from = 0; from <= text.size();) {
    const std::size_t end = std::min(text.find('\n', from), text.size());
    std::string_view paragraph = text.substr(from, end - from);
    if (paragraph.ends_with('\r')) paragraph.remove_suffix(1);
    WrapParagraph(paragraph, width, textWidth, lines);
    from = end + 1;
  }
  return lines;
}

}  // namespace veld
