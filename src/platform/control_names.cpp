#include "platform/control_names.h"

#include <algorithm>

#include "platform/control_kinds.h"

namespace veld {

bool HasMnemonic(ControlKind kind) {
  return kind == ControlKind::Label || kind == ControlKind::Button || IsMark(kind);
}

std::string WithoutMnemonic(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '&' && ++i == text.size()) break;
    plain += text[i];
  }
  return plain;
}

std::string ShownText(const Control& control) {
  return HasMnemonic(control.Template.Kind) ? WithoutMnemonic(control.Text) : control.Text;
}

namespace {

bool IsCaption(ControlKind kind) {
  return kind == ControlKind::Label || kind == ControlKind::Heading;
}

bool IsField(ControlKind kind) {
  return kind == ControlKind::Edit || kind == ControlKind::Number || kind == ControlKind::Combo;
}

/// True if control `a` stands left of control `b` in the same row.
bool IsLeftOf(const Form& form, std::size_t a, std::size_t b) {
  const ControlTemplate& left = form.Controls()[a].Template;
  const ControlTemplate& right = form.Controls()[b].Template;
  return left.Row == right.Row && (left.Column < right.Column || (left.Column == right.Column && a < b));
}

/// The visible control next to `control` in its row, to the left or the right; the number of controls if there is none.
std::size_t Neighbour(const Form& form, std::size_t control, bool toTheLeft) {
  const std::size_t count = form.Controls().size();
  std::size_t nearest = count;
  for (std::size_t i = 0; i < count; ++i) {
    if (!form.Controls()[i].Visible) continue;
    const bool isOnSide = toTheLeft ? IsLeftOf(form, i, control) : IsLeftOf(form, control, i);
    if (!isOnSide) continue;
    const bool isNearer = nearest == count || (toTheLeft ? IsLeftOf(form, nearest, i) : IsLeftOf(form, i, nearest));
    if (isNearer) nearest = i;
  }
  return nearest;
}

/// The first visible control in the same column of the row above (-1) or below (1); the number of controls if none.
std::size_t Vertical(const Form& form, std::size_t control, int rows) {
  const ControlTemplate& self = form.Controls()[control].Template;
  const auto& controls = form.Controls();
  const auto found = std::ranges::find_if(controls, [&](const Control& other) {
    return other.Visible && other.Template.Row == self.Row + rows && other.Template.Column == self.Column;
  });
  return static_cast<std::size_t>(found - controls.begin());
}

bool IsSameKind(ControlKind a, ControlKind b) {
  return a == b || (IsTyped(a) && IsTyped(b));
}

/// What names the row of a table that the control stands in: the nearest label, heading or marked box to its left.
std::string RowName(const Form& form, std::size_t control) {
  const auto& controls = form.Controls();
  for (std::size_t i = Neighbour(form, control, true); i < controls.size(); i = Neighbour(form, i, true)) {
    const ControlKind kind = controls[i].Template.Kind;
    if (!controls[i].Text.empty() && (IsCaption(kind) || IsMark(kind))) return ShownText(controls[i]);
  }
  return {};
}

/// The heading of several columns that stands over the caption of one of them.
std::string GroupName(const Form& form, const ControlTemplate& caption) {
  const auto heads = [&](const Control& other) {
    const ControlTemplate& head = other.Template;
    return head.Kind == ControlKind::Heading && head.Row == caption.Row - 1 && head.ColumnSpan > 1 &&
           head.Column <= caption.Column && caption.Column < head.Column + head.ColumnSpan;
  };
  const auto head = std::ranges::find_if(form.Controls(), heads);
  return head == form.Controls().end() ? std::string() : head->Text + " ";
}

/// What names the column: the first label or heading over the controls above it, with the heading over that.
std::string ColumnName(const Form& form, std::size_t control) {
  const auto& controls = form.Controls();
  std::size_t above = Vertical(form, control, -1);
  while (above < controls.size() && CanBeUsed(controls[above].Template.Kind)) above = Vertical(form, above, -1);
  if (above == controls.size() || !IsCaption(controls[above].Template.Kind)) return {};
  return GroupName(form, controls[above].Template) + ShownText(controls[above]);
}

/// What names a control that has no label: the text above it, which asks for something, or the heading of its column;
/// else the title of the page.
std::string NameOfPlace(const Form& form, std::size_t control) {
  const auto& controls = form.Controls();
  const bool isText = controls[control].Template.Kind == ControlKind::Text;
  const std::size_t above = isText ? controls.size() : Vertical(form, control, -1);
  if (above < controls.size() && controls[above].Template.Kind == ControlKind::Text) return controls[above].Text;
  if (above < controls.size() && CanBeUsed(controls[above].Template.Kind)) {
    if (std::string column = ColumnName(form, control); !column.empty()) return column;
  }
  const auto isTitle = [](const Control& other) { return other.Template.Kind == ControlKind::Title; };
  const auto title = std::ranges::find_if(controls, isTitle);
  return title == controls.end() ? form.Title() : title->Text;
}

/// The name of one of several controls that are named alike.
std::string NameInTable(const Form& form, std::size_t control, const std::string& name) {
  const std::string row = RowName(form, control);
  const std::string column = ColumnName(form, control);
  const bool hasText = !form.Controls()[control].Text.empty() && HasMnemonic(form.Controls()[control].Template.Kind);
  if (!hasText && !row.empty() && !column.empty()) {
    const bool isNumbered = row.find_first_not_of("0123456789") == std::string::npos;
    return isNumbered ? column + ", row " + row : row + ", " + column;
  }
  const std::string& more = row.empty() || row == name ? column : row;
  return more.empty() || more == name ? name : name + ", " + more;
}

}  // namespace

std::size_t NamedControl(const Form& form, std::size_t label) {
  const auto& controls = form.Controls();
  const std::size_t none = controls.size();
  const std::size_t right = Neighbour(form, label, false);
  if (right < none && CanBeUsed(controls[right].Template.Kind)) return right;
  if (right < none && controls[right].Template.Kind == ControlKind::Result) {
    // What the character has may stand between a label and the field to type in.
    std::size_t field = right;
    while (field < none && controls[field].Template.Kind == ControlKind::Result) field = Neighbour(form, field, false);
    return field < none && IsField(controls[field].Template.Kind) ? field : none;
  }
  const std::size_t below = Vertical(form, label, 1);
  if (below == none || !CanBeUsed(controls[below].Template.Kind)) return none;
  const bool namesText = right < none && controls[right].Template.Kind == ControlKind::Text;
  return namesText && controls[below].Template.Kind != ControlKind::List ? none : below;
}

std::size_t ControlInNextRow(const Form& form, std::size_t control, int rows) {
  const auto& controls = form.Controls();
  if (const int searched = controls[control].Template.Searches; searched != 0) {
    const auto list = std::ranges::find(controls, searched, [](const Control& other) { return other.Template.Id; });
    return static_cast<std::size_t>(list - controls.begin());
  }
  const std::size_t next = Vertical(form, control, rows);
  if (next == controls.size() || !controls[next].Enabled) return controls.size();
  return controls[next].Template.Kind == controls[control].Template.Kind ? next : controls.size();
}

std::string ControlName(const Form& form, std::size_t control) {
  const auto& controls = form.Controls();
  const std::size_t none = controls.size();
  const ControlKind self = controls[control].Template.Kind;
  for (std::size_t left = Neighbour(form, control, true); left < none; left = Neighbour(form, left, true)) {
    const ControlKind kind = controls[left].Template.Kind;
    if (IsCaption(kind) || (self == ControlKind::Result && kind == ControlKind::Button))
      return ShownText(controls[left]);
    // A row of fields, or of results, is named by the one label before them.
    const bool isOfRow = kind == ControlKind::Result || (IsField(self) && IsField(kind));
    if (!(IsField(self) || self == ControlKind::Result) || !isOfRow) break;
  }
  std::size_t above = Vertical(form, control, -1);
  const bool isInColumn = self != ControlKind::Text;
  while (isInColumn && above < none && controls[above].Template.Kind == self) above = Vertical(form, above, -1);
  if (above == none || !IsCaption(controls[above].Template.Kind)) return {};
  const std::size_t next = Neighbour(form, above, false);
  const bool namesAnother =
      next < none && (CanBeUsed(controls[next].Template.Kind) || controls[next].Template.Kind == ControlKind::Result);
  return namesAnother ? std::string() : ShownText(controls[above]);
}

std::vector<std::string> ControlNames(const Form& form) {
  const auto& controls = form.Controls();
  std::vector<std::string> names;
  for (std::size_t i = 0; i < controls.size(); ++i) {
    names.push_back(HasMnemonic(controls[i].Template.Kind) ? ShownText(controls[i]) : std::string());
    if (names[i].empty()) names[i] = ControlName(form, i);
    if (names[i].empty() && !IsWriting(controls[i].Template.Kind)) names[i] = NameOfPlace(form, i);
  }
  const std::vector<std::string> plain = names;
  const auto isUsable = [&](std::size_t i) { return controls[i].Visible && CanBeUsed(controls[i].Template.Kind); };
  for (std::size_t i = 0; i < controls.size(); ++i) {
    bool isAlike = false;
    for (std::size_t other = 0; isUsable(i) && other < controls.size(); ++other) {
      isAlike |= other != i && plain[other] == plain[i] && isUsable(other) &&
                 IsSameKind(controls[other].Template.Kind, controls[i].Template.Kind);
    }
    if (isAlike) names[i] = NameInTable(form, i, plain[i]);
  }
  return names;
}

}  // namespace veld
