#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "editors/edit_field.h"

namespace veld {

class Form;

/// A button of a page, and what it does; it returns what the page then tells, and all fields are shown anew.
struct PageAction {
  std::string_view Text;
  std::function<std::string(Game&)> Do;
};

/// A page of fields. What is typed goes to the character as soon as its field can take it, so that the page can tell
/// what it does elsewhere; Cancel and the close box put everything back.
struct FieldPage {
  std::string_view Name;   ///< of the form
  std::string_view Title;  ///< of its window and page
  std::string_view Help;   ///< of the form
  std::vector<EditField> Fields = {};
  int Rows = 99;                                ///< fields in a column
  std::function<std::string(Game&)> Told = {};  ///< what the present values do elsewhere; may be missing
  std::vector<PageAction> Actions = {};
};

/// Shows a page. Its OK refuses a field that can't take its text, with the field's name and its range, and goes there;
/// a field that nobody changed is never refused.
void RunFieldPage(Game& game, const FieldPage& page);

}  // namespace veld
