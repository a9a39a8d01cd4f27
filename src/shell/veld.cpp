#include "shell/veld.h"

#include <csignal>

#include "generation/main_title.h"
#include "platform/main_window.h"
#include "shell/data_folder.h"
#include "shell/main_menu.h"
#include "shell/start_up.h"
#include "store/recovery.h"

namespace veld {

int RunVeld(Platform& platform) {
  // A file that may not grow, and a log whose reader has gone, fail their write; they do not end the program.
  for (const int number : {SIGXFSZ, SIGPIPE}) std::signal(number, SIG_IGN);
  const std::string told = EnterDataFolder(UserDataFolder(), ShippedDataFolder());
  std::unique_ptr<Game> game;  // made once the window stands: its size takes longer than the window
  MainWindow window;
  window.Title = kProgramTitle;
  window.Menu = MainMenu();
  window.onStart = [&] {
    if (!told.empty()) platform.ShowMessage(told);
    game = MakeGame(platform);
    StartUp(*game);
  };
  window.onCommand = [&](int id) {
    if (game) RunMainCommand(*game, id);
  };
  platform.RunMainWindow(window);
  if (game) KeepRecoveryCopy(*game);
  return 0;
}

}  // namespace veld
