#include "shell/veld.h"

#include "generation/main_title.h"
#include "shell/data_folder.h"
#include "shell/main_menu.h"
#include "shell/start_up.h"
#include "store/recovery.h"

namespace veld {

int RunVeld(Platform& platform) {
  const bool hasFolder = EnterDataFolder(UserDataFolder(), ShippedDataFolder());
  std::unique_ptr<Game> game;  // made once the window stands: its size takes longer than the window
  MainWindow window;
  window.Title = kProgramTitle;
  window.Menu = MainMenu();
  window.onStart = [&] {
    if (!hasFolder) {
      platform.ShowMessage(Format("The data folder %s can not be used. VELD works in the folder it was started in.",
                                  UserDataFolder().string()));
    }
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
