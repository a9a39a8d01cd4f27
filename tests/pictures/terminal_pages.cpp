// Writes every page of the program to a folder, as text, as it stands at a terminal of 80 columns and 24 lines:
//   veld_terminal_pages FOLDER
// Ends with 1 if a page could not be opened.

#include <filesystem>
#include <fstream>
#include <iostream>

#include "support/every_form.h"
#include "terminal/pty_program.h"
#include "terminal/show_form.h"

int main(int count, char** arguments) {
  using namespace veld;
  if (count != 2) {
    std::cerr << "veld_terminal_pages FOLDER\n";
    return 2;
  }
  const std::filesystem::path folder = std::filesystem::absolute(arguments[1]);
  std::filesystem::create_directories(folder);
  const auto missing = testing::ShowEveryForm([&](Form& form, bool isUsed) {
    testing::PtyProgram program([&] { return testing::ShowAtTerminal(form); });
    const auto keep = [&](const char* what) {
      std::ofstream(folder / (std::string(form.Name()) + what + ".txt")) << program.Shows();
    };
    keep(isUsed ? "-used" : "");
    if (isUsed) return;
    program.Press(testing::kHelpKey);
    keep("-help");
    program.Press(testing::kEscapeKey);
    if (form.contextMenu.empty()) return;
    program.Press(testing::kPageMenuKey);
    keep("-menu");
    program.Press(testing::kEscapeKey);
    program.Press(testing::kMainMenuKey);
    keep("-main-menu");
  });
  for (const std::string& name : missing) std::cerr << "not opened: " << name << '\n';
  return missing.empty() ? 0 : 1;
}
