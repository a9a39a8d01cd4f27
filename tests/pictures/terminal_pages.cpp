// Writes every page of the program as a terminal of 80 columns and 24 lines shows it, as text, to a folder:
//   veld_terminal_pages FOLDER
// and tells on its way which could not be opened.

#include <clocale>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>

#include "platform/main_window.h"
#include "shell/main_menu.h"
#include "support/every_form.h"
#include "terminal/pty_program.h"
#include "terminal/terminal_platform.h"

namespace {

using namespace veld;

/// Shows the form at the terminal of this process, as the program does: Step 3 beside the main window.
int ShowAtTerminal(Form& form) {
  std::setlocale(LC_ALL, "C.UTF-8");
  Screen screen;
  if (!screen.IsOpen()) return 1;
  TerminalPlatform platform(screen);
  if (form.Name() != "StepThree") {
    platform.RunForm(form);
    return 0;
  }
  MainWindow window{.Title = "VELD", .Menu = MainMenu()};
  window.onStart = [&] { platform.ShowWindow({std::shared_ptr<void>(), &form}); };
  platform.RunMainWindow(window);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "veld_terminal_pages FOLDER\n";
    return 2;
  }
  const std::filesystem::path folder = std::filesystem::absolute(arguments[1]);
  std::filesystem::create_directories(folder);
  const auto missing = testing::ShowEveryForm([&](Form& form, bool isUsed) {
    testing::PtyProgram program([&] { return ShowAtTerminal(form); });
    std::ofstream(folder / (std::string(form.Name()) + (isUsed ? "-used.txt" : ".txt"))) << program.Shows();
  });
  for (const std::string& name : missing) std::cerr << "not opened: " << name << '\n';
  return missing.empty() ? 0 : 1;
}
