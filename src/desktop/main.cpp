#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "desktop/desktop_platform.h"
#include "desktop/fonts_ahead.h"
#include "shell/veld.h"

namespace {

constexpr char kNoDesktop[] =
    "VELD needs a desktop to show its windows on: start it inside a graphical session, or under Xvfb with "
    "'xvfb-run veld'.";

int Refuse(const char* reason) {
  std::fprintf(stderr, "%s\n", reason);
  return EXIT_FAILURE;
}

bool IsSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value && *value;
}

bool HasDesktop() {
  return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY") || IsSet("QT_QPA_PLATFORM");
}

/// A folder of this user's own that nobody else can look into.
bool IsPrivateFolder(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == getuid() &&
         (status.st_mode & 077) == 0;
}

/// The toolkit wants a private folder for its sockets, which a plain session does not always have.
void ProvideRuntimeFolder() {
  if (IsSet("XDG_RUNTIME_DIR")) return;
  std::string path = "/tmp/veld-runtime-" + std::to_string(getuid());
  const bool isMade = mkdir(path.c_str(), 0700) == 0 || errno == EEXIST;
  if (!isMade || !IsPrivateFolder(path)) {
    path = "/tmp/veld-runtime-XXXXXX";
    if (!mkdtemp(path.data())) return;
  }
  setenv("XDG_RUNTIME_DIR", path.c_str(), 1);
}

/// The toolkit's remarks are not for players. Where it gives up, it found no desktop that it can use.
void HearToolkit(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  Refuse(kNoDesktop);
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string run = veld::RunToPlay(argc, argv);
  if (!HasDesktop()) return Refuse(kNoDesktop);
  ProvideRuntimeFolder();
  qInstallMessageHandler(HearToolkit);
  veld::FontsAhead fonts;
  QApplication application(argc, argv);
  QApplication::setApplicationName("veld");
  QApplication::setDesktopFileName("veld");
  try {
    veld::DesktopPlatform platform({.Fonts = &fonts});
    return veld::RunVeld(platform, run);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "VELD stops: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
