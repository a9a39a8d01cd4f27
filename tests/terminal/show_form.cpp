#include "show_form.h"

#include <clocale>
#include <memory>

#include "platform/main_window.h"
#include "shell/main_menu.h"
#include "terminal/terminal_platform.h"

namespace veld::testing {

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

}  // namespace veld::testing
