#include <langinfo.h>
#include <unistd.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <optional>
#include <string_view>

#include "shell/veld.h"
#include "terminal/screen.h"
#include "terminal/terminal_platform.h"

namespace {

int Refuse(const char* reason) {
  std::fprintf(stderr, "%s\n", reason);
  return EXIT_FAILURE;
}

/// Letters as the terminal has them; numbers always in the same way.
void SetUpLocale() {
  std::setlocale(LC_ALL, "");
  // A session without a locale says ASCII; its terminal knows UTF-8 all the same.
  if (std::string_view(nl_langinfo(CODESET)) == "ANSI_X3.4-1968") std::setlocale(LC_CTYPE, "C.UTF-8");
  std::setlocale(LC_NUMERIC, "C");
}

}  // namespace

int main(int argc, char** argv) {
  const std::string run = veld::RunToPlay(argc, argv);
  if (!isatty(STDIN_FILENO) || !isatty(STDOUT_FILENO)) {
    return Refuse("VELD needs a terminal to show its pages on: start it in one.");
  }
  SetUpLocale();
  std::optional<veld::Screen> screen(std::in_place);
  if (!screen->IsOpen())
    return Refuse("VELD does not know this kind of terminal: set TERM to one that it has, such as xterm.");
  try {
    veld::TerminalPlatform platform(*screen);
    return veld::RunVeld(platform, run);
  } catch (const std::exception& error) {
    screen.reset();
    std::fprintf(stderr, "VELD stops: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
