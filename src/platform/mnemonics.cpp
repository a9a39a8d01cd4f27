#include "platform/mnemonics.h"

#include <set>

#include "platform/control_names.h"

namespace veld {

namespace {

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The place of the letter that is marked in `text`, or npos.
std::size_t MarkedLetter(std::string_view text) {
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != '&') continue;
    ++i;
    if (text[i] != '&') return i;
  }
  return std::string_view::npos;
}

/// The first letter of the text that is not used yet: of a word's beginning, else of anywhere.
std::size_t FreeLetter(std::string_view text, const std::set<char>& used) {
  std::size_t inside = std::string_view::npos;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!IsLetter(text[i]) || used.contains(Lower(text[i]))) continue;
    if (i == 0 || !IsLetter(text[i - 1])) return i;
    if (inside == std::string_view::npos) inside = i;
  }
  return inside;
}

}  // namespace

std::vector<std::string> MarkMnemonics(const Form& form, std::string_view taken) {
  std::set<char> used;
  for (const char c : taken) used.insert(Lower(c));
  std::vector<std::string> texts;
  for (const Control& control : form.Controls()) {
    texts.push_back(control.Text);
    const bool isLabel = control.Template.Kind == ControlKind::Label;
    if (isLabel && NamedControl(form, texts.size() - 1) == form.Controls().size()) {
      texts.back() = WithoutMnemonic(control.Text);  // there is nothing for a letter to reach
      continue;
    }
    const std::size_t marked = MarkedLetter(control.Text);
    if (HasMnemonic(control.Template.Kind) && marked != std::string_view::npos)
      used.insert(Lower(control.Text[marked]));
  }
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const ControlKind kind = form.Controls()[i].Template.Kind;
    if (!HasMnemonic(kind) || MarkedLetter(texts[i]) != std::string_view::npos) continue;
    if (kind == ControlKind::Label && NamedControl(form, i) == texts.size()) continue;
    const std::size_t letter = FreeLetter(texts[i], used);
    if (letter == std::string_view::npos) continue;
    used.insert(Lower(texts[i][letter]));
    texts[i].insert(letter, 1, '&');
  }
  return texts;
}

}  // namespace veld
