#include "terminal/terminal_page.h"

#include <algorithm>

#include "platform/control_names.h"
#include "terminal/cells.h"
#include "text/format.h"

namespace veld {

namespace {

constexpr int kFrame = 1;
constexpr int kLastLines = 2;
constexpr int kCornerWidth = 8;  // "< Menu >"

/// "Race, list 2 of 12: Elf, Grey, Male"
std::string TellRows(const std::string& name, std::string_view kind, const Control& control, int row) {
  const int count = static_cast<int>(control.Items.size());
  const bool isChosen = control.Selection >= 0;
  const int shown = isChosen ? control.Selection : row;
  if (count == 0) return Format("%s, %s: nothing to choose", name, kind);
  if (shown < 0 || shown >= count) return Format("%s, %s: none of %i chosen", name, kind, count);
  return Format("%s, %s %i of %i%s: %s", name, kind, shown + 1, count, isChosen ? "" : ", not chosen",
                control.Items[static_cast<std::size_t>(shown)]);
}

}  // namespace

PageMetrics TerminalMetrics(const Form& form) {
  PageMetrics m;
  m.TextWidth = [](std::string_view line, TextFace) { return CellsOf(line); };
  m.MarginLeft = 1;
  m.MarginRight = 1;
  m.ColumnGap = 2;
  m.ControlGap = 2;
  m.ButtonPadding = 2;  // "< OK >"
  m.EditPadding = 2;    // "[...]"
  m.ComboPadding = 4;   // "[... v]"
  m.ListPadding = 2;    // its edges; the right one is the scroll bar
  m.MarkWidth = 4;      // "[x] "
  m.CornerWidth = form.contextMenu.empty() ? 0 : kCornerWidth;
  m.WrapsResults = true;
  m.Roomy = {.BoxLines = 2, .TitleLines = 2};  // a blank line above buttons and fields, and under the title
  return m;
}

PageSize RoomForPage(int rows, int columns, int top) {
  return {std::max(columns - 2 * kFrame, 1), std::max(rows - top - kLastLines - 2 * kFrame, 1)};
}

std::string FocusLine(const Form& form, std::size_t control, int row) {
  if (control >= form.Controls().size()) return "Menu, button";
  const Control& state = form.Controls()[control];
  std::string name = ControlNames(form)[control];
  if (name.ends_with(':') || (name.ends_with('.') && !name.ends_with(".."))) name.pop_back();
  switch (state.Template.Kind) {
    case ControlKind::Edit:
    case ControlKind::Number:
      return Format("%s, %s%s%s", name, state.Template.IsReadOnly ? "result" : "field", state.Text.empty() ? "" : ": ",
                    state.Text);
    case ControlKind::MultiLine:
      return name + ", field of several lines";
    case ControlKind::Button:
      return name + ", button";
    case ControlKind::List:
      return TellRows(name, "list", state, row);
    case ControlKind::Combo:
      return TellRows(name, "choice", state, -1);
    case ControlKind::Check:
      return Format("%s, box: %s", name, state.Checked ? "marked" : "not marked");
    case ControlKind::Radio:
      return Format("%s, one of several: %s", name, state.Checked ? "chosen" : "not chosen");
    default:
      return name + ", text";
  }
}

}  // namespace veld
