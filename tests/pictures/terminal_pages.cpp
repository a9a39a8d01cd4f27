// Writes every page of the program to a folder, as text, as it stands at a terminal of 80 columns and 24 lines:
//   veld_terminal_pages FOLDER
// Ends with 1 if a page could not be opened.

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "shell/veld.h"
#include "support/every_form.h"
#include "support/scripted_platform.h"
#include "terminal/pty_program.h"
#include "terminal/show_form.h"
#include "terminal/terminal_platform.h"

namespace {

using namespace veld;
using namespace veld::testing;

class Pictures {
 public:
  explicit Pictures(const char* folder) : folder_(std::filesystem::absolute(folder)) {
    std::filesystem::create_directories(folder_);
  }

  /// The form as it opens, its help and its menus; once it was used for a while, the form alone.
  void TakeForm(Form& form, bool isUsed) const {
    const std::string name(form.Name());
    PtyProgram program([&] { return ShowAtTerminal(form); });
    Take(program, name + (isUsed ? "-used" : ""));
    if (isUsed) return;
    program.Press(kHelpKey);
    Take(program, name + "-help");
    program.Press(kEscapeKey);
    if (form.contextMenu.empty()) return;
    program.Press(kPageMenuKey);
    Take(program, name + "-menu");
    program.Press(kEscapeKey);
    program.Press(kMainMenuKey);
    Take(program, name + "-main-menu");
  }

  /// The main window without a character and with one, and the pages that ask for a file.
  void TakeMainWindow() const {
    const TestFolder data;
    setenv("XDG_DATA_HOME", data.Path().c_str(), 1);
    PtyProgram program(RunProgram);
    Take(program, "main-window-begin");
    for (int i = 0; i < 5 && !program.Title().empty(); ++i) program.Press(kEnterKey);
    Take(program, "main-window");
    program.Command("fl");
    Take(program, "main-window-load");
    program.Press(std::string(VELD_SOURCE_DIR) + "/tests/sheets/golden/zealot.vlf" + kEnterKey);
    program.Press(kEnterKey);
    Take(program, "main-window-character");
    program.Command("fs");
    Take(program, "main-window-save");
  }

 private:
  static int RunProgram() {
    std::setlocale(LC_ALL, "C.UTF-8");
    Screen screen;
    if (!screen.IsOpen()) return 1;
    TerminalPlatform platform(screen);
    return RunVeld(platform, {});
  }

  void Take(const PtyProgram& program, const std::string& name) const {
    std::ofstream(folder_ / (name + ".txt")) << program.Shows();
  }

  std::filesystem::path folder_;
};

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "veld_terminal_pages FOLDER\n";
    return 2;
  }
  const Pictures pictures(arguments[1]);
  const auto missing = ShowEveryForm([&](Form& form, bool isUsed) { pictures.TakeForm(form, isUsed); });
  for (const std::string& name : missing) std::cerr << "not opened: " << name << '\n';
  pictures.TakeMainWindow();
  return missing.empty() ? 0 : 1;
}
