#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/form.h"

namespace veld {

/// What stands on the page for a control's name: the label to the left of it, or above it and others of its kind; for a
/// result also the button to the left. Without marks before letters; empty if nothing names it.
std::string ControlName(const Form& form, std::size_t control);

/// The names of all controls to someone who can not see the page, in their order: a button's text, or what the page has
/// for a name, else the text above it, else the page's title. Of those that can be used no two of a kind are named
/// alike: in a table each has its row and its column for a name, "Strength, 1d100".
std::vector<std::string> ControlNames(const Form& form);

/// The control that the label names: the first one after it in its row, or the one below it, that can be used. Its
/// place in Form::Controls(), or the number of controls if there is none.
std::size_t NamedControl(const Form& form, std::size_t label);

/// The usable control of the same kind and column in the row above (-1) or below (1), where fields stand in a table.
/// Its place in Form::Controls(), or the number of controls if there is none.
std::size_t ControlInNextRow(const Form& form, std::size_t control, int rows);

/// True for the kinds in which '&' stands before the letter that reaches the control; "&&" is a plain '&' there.
bool HasMnemonic(ControlKind kind);

/// A text with its marks before letters taken out.
std::string WithoutMnemonic(std::string_view text);

/// The text of a control as it is read: without marks before letters.
std::string ShownText(const Control& control);

}  // namespace veld
