#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/form.h"
#include "text/search.h"

namespace veld {

// Lists of a form of which each line stands for something: a Line has the Text that is shown and the Place that it
// stands for, which knows whether it is none (IsNone) and can be compared.

/// The place behind the selected line of a list; none if no line is selected.
template <typename Line>
auto SelectedPlace(const Form& form, int list, const std::vector<Line>& lines) {
  const int selection = form.Selection(list);
  const bool isLine = selection >= 0 && selection < static_cast<int>(lines.size());
  return isLine ? lines[static_cast<std::size_t>(selection)].Place : decltype(Line::Place){};
}

/// Puts new lines in a list in place of those shown; what was selected stays so if it is still there.
template <typename Line>
void RefillList(Form& form, int list, std::vector<Line>& shown, std::vector<Line> lines) {
  const auto selected = SelectedPlace(form, list, shown);
  std::vector<std::string> texts;
  for (const Line& line : lines) texts.push_back(line.Text);
  form.SetItems(list, std::move(texts));
  const auto found = std::ranges::find(lines, selected, &Line::Place);
  if (!selected.IsNone() && found != lines.end()) form.Select(list, static_cast<int>(found - lines.begin()));
  shown = std::move(lines);
}

/// The lines that hold the text of a search, case aside; all if it is empty.
template <typename Line>
std::vector<Line> LinesHolding(std::vector<Line> lines, std::string_view sought) {
  if (sought.empty()) return lines;
  std::erase_if(lines, [&](const Line& line) { return !ContainsIgnoringCase(line.Text, sought); });
  return lines;
}

constexpr ControlTemplate LabelWithIdAt(int row, int column, int id, std::string_view text) {
  return {.Kind = ControlKind::Label, .Id = id, .Row = row, .Column = column, .Text = text};
}

}  // namespace veld
