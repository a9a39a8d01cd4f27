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
    std::ofstream(folder / (std::string(form.Name()) + (isUsed ? "-used.txt" : ".txt"))) << program.Shows();
  });
  for (const std::string& name : missing) std::cerr << "not opened: " << name << '\n';
  return missing.empty() ? 0 : 1;
}
