#include "shell/veld.h"

#include <csignal>
#include <filesystem>
#include <optional>

#include "generation/main_title.h"
#include "platform/main_window.h"
#include "sheets/character_page.h"
#include "shell/data_folder.h"
#include "shell/main_menu.h"
#include "shell/main_session.h"
#include "shell/start_up.h"
#include "store/recovery.h"

namespace veld {

int RunVeld(Platform& platform, const std::string& run) {
  // A file that may not grow, and a log whose reader has gone, fail their write; they do not end the program.
  for (const int number : {SIGXFSZ, SIGPIPE}) std::signal(number, SIG_IGN);
  const std::string told = EnterDataFolder(UserDataFolder(), ShippedDataFolder());
  JournalPlatform journal(platform);
  std::optional<MainSession> session;
  std::unique_ptr<Game> game;  // made once the window stands: its size takes longer than the window
  MainWindow window;
  window.Title = kProgramTitle;
  window.Menu = MainMenu();
  window.Page = NobodyPage();
  window.onStart = [&] {
    if (!told.empty()) platform.ShowMessage(told);
    game = MakeGame(journal);
    StartUp(*game);
    session.emplace(*game, journal);
    if (!run.empty()) session->PlayFile(run);
  };
  window.onCommand = [&](int id) {
    if (session) session->Command(id);
  };
  platform.RunMainWindow(window);
  if (game) KeepRecoveryCopy(*game);
  return 0;
}

std::string RunToPlay(int argc, char** argv) {
  for (int i = 1; i + 1 < argc; ++i) {
    if (std::string_view(argv[i]) != "--replay") continue;
    std::error_code ignored;
    return std::filesystem::absolute(argv[i + 1], ignored).string();
  }
  return {};
}

}  // namespace veld
