// How long the program takes from its start to the first painted main window, and how much memory it then holds, beside
// an empty window of the toolkit in the same run. The two are started in turn, so that both meet the same machine. The
// program works in a data folder of this bench's own.
//
//   desktop_start [ROUNDS]        prints the medians, and fails if a limit is passed
//   desktop_start empty|veld NS   is started by the above at NS nanoseconds of the steady clock

#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desktop/desktop_platform.h"
#include "desktop/fonts_ahead.h"
#include "shell/data_folder.h"
#include "shell/start_up.h"
#include "shell/veld.h"
#include "silent_platform.h"

namespace {

constexpr double kMostTimes = 1.4;     // of the empty window's start
constexpr double kMostMegabytes = 25;  // above the empty window's memory
constexpr int kSettled = 250;          // milliseconds from the first picture to a program at rest

std::int64_t Nanoseconds() {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

double ResidentMegabytes() {
  std::ifstream statm("/proc/self/statm");
  long pages = 0;
  long resident = 0;
  statm >> pages >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

/// Notes when a window has been painted for the first time and its picture handed over, and when its menu has. Reports
/// both, with the memory held when the program has then read its files too, and leaves.
class FirstPaint : public QObject {
 public:
  explicit FirstPaint(std::int64_t started) : started_(started) {}

  bool eventFilter(QObject* target, QEvent* event) override {
    if (event->type() != QEvent::Paint || !target->isWidgetType()) return false;
    if (!std::exchange(isPainted_, true)) {
      QTimer::singleShot(0, this, [this] {
        window_ = Milliseconds();
        QTimer::singleShot(kSettled, this, [this] {
          std::printf("%.3f %.3f %.3f\n", window_, menu_, ResidentMegabytes());
          std::fflush(stdout);
          std::_Exit(0);
        });
      });
    }
    if (target->inherits("QMenuBar") && !std::exchange(isMenuPainted_, true)) {
      QTimer::singleShot(0, this, [this] { menu_ = Milliseconds(); });
    }
    return false;
  }

 private:
  double Milliseconds() const { return static_cast<double>(Nanoseconds() - started_) / 1e6; }

  std::int64_t started_;
  double window_ = 0;
  double menu_ = 0;
  bool isPainted_ = false;
  bool isMenuPainted_ = false;
};

int ShowEmptyWindow(QApplication& application) {
  QWidget window;
  window.resize(800, 600);
  window.show();
  return application.exec();
}

int RunProgram(veld::FontsAhead& fonts) {
  veld::DesktopPlatform platform({.Fonts = &fonts});
  return veld::RunVeld(platform);
}

int RunOne(bool isVeld, std::int64_t started) {
  std::optional<veld::FontsAhead> fonts;
  if (isVeld) fonts.emplace();
  int argc = 1;
  char name[] = "desktop_start";
  char* argv[] = {name, nullptr};
  QApplication application(argc, argv);
  FirstPaint firstPaint(started);
  application.installEventFilter(&firstPaint);
  return isVeld ? RunProgram(*fonts) : ShowEmptyWindow(application);
}

struct Sample {
  double Milliseconds = 0;
  double Menu = 0;
  double Megabytes = 0;
};

/// Starts this program anew to show one window, and reads what it reports.
bool Measure(const char* which, Sample& sample) {
  int ends[2];
  if (pipe(ends) != 0) return false;
  const std::string now = std::to_string(Nanoseconds());
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    execl("/proc/self/exe", "desktop_start", which, now.c_str(), nullptr);
    std::_Exit(EXIT_FAILURE);
  }
  close(ends[1]);
  FILE* report = fdopen(ends[0], "r");
  const int read = std::fscanf(report, "%lf %lf %lf", &sample.Milliseconds, &sample.Menu, &sample.Megabytes);
  std::fclose(report);
  int status = 0;
  return waitpid(child, &status, 0) == child && status == 0 && read == 3;
}

/// The data folder that the measured programs share, with all that a first start makes; removed in the end.
class DataFolder {
 public:
  DataFolder() {
    if (!mkdtemp(path_)) return;
    setenv("XDG_DATA_HOME", path_, 1);
    veld::SilentPlatform platform;
    const auto game = veld::MakeGame(platform);
    isReady_ = veld::EnterDataFolder(veld::UserDataFolder(), veld::ShippedDataFolder()).empty();
    veld::StartUp(*game);
  }
  ~DataFolder() {
    std::error_code ignored;
    std::filesystem::current_path("/", ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  bool IsReady() const { return isReady_; }
  DataFolder(const DataFolder&) = delete;
  DataFolder& operator=(const DataFolder&) = delete;

 private:
  char path_[24] = "/tmp/veld-start-XXXXXX";
  bool isReady_ = false;
};

double Median(std::vector<Sample>& samples, double Sample::*value) {
  std::ranges::sort(samples, {}, value);
  return samples[samples.size() / 2].*value;
}

}  // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  qputenv("QT_LOGGING_RULES", "*.debug=false;*.warning=false");
  if (argc == 3) return RunOne(std::strcmp(argv[1], "veld") == 0, std::atoll(argv[2]));
  const DataFolder folder;
  if (!folder.IsReady()) return EXIT_FAILURE;
  const int rounds = std::max(argc == 2 ? std::atoi(argv[1]) : 21, 1);
  std::vector<Sample> empty;
  std::vector<Sample> veld;
  for (int round = -2; round < rounds; ++round) {  // the first two warm the caches
    Sample one;
    Sample other;
    if (!Measure("empty", one) || !Measure("veld", other)) {
      std::fprintf(stderr, "A window did not come up.\n");
      return EXIT_FAILURE;
    }
    if (round < 0) continue;
    empty.push_back(one);
    veld.push_back(other);
  }
  const double times = Median(veld, &Sample::Milliseconds) / Median(empty, &Sample::Milliseconds);
  const double more = Median(veld, &Sample::Megabytes) - Median(empty, &Sample::Megabytes);
  std::printf("start to first painted window: %.1f ms, empty window %.1f ms: %.2f times (at most %.1f)\n",
              Median(veld, &Sample::Milliseconds), Median(empty, &Sample::Milliseconds), times, kMostTimes);
  std::printf("start to the painted menu: %.1f ms\n", Median(veld, &Sample::Menu));
  std::printf("resident memory: %.1f MB, empty window %.1f MB: %.1f MB more (at most %.0f)\n",
              Median(veld, &Sample::Megabytes), Median(empty, &Sample::Megabytes), more, kMostMegabytes);
  return times <= kMostTimes && more <= kMostMegabytes ? EXIT_SUCCESS : EXIT_FAILURE;
}
