#pragma once

#include <sys/types.h>

#include <functional>
#include <optional>
#include <string>

#include "vt_screen.h"

namespace veld::testing {

// What the keys send.
inline constexpr const char* kEnterKey = "\r";
inline constexpr const char* kEscapeKey = "\x1B";
inline constexpr const char* kTabKey = "\t";
inline constexpr const char* kDownKey = "\x1BOB";
inline constexpr const char* kRightKey = "\x1BOC";
inline constexpr const char* kMainMenuKey = "\x1B[21~";  // F10
inline constexpr const char* kPageMenuKey = "\x1B[20~";  // F9
inline constexpr const char* kHelpKey = "\x1BOP";        // F1
inline constexpr const char* kUndoKey = "\x1BOQ";        // F2
inline constexpr const char* kRedoKey = "\x1BOR";        // F3

/// A program at a terminal of its own, with a person before it: reads the screen, types.
class PtyProgram {
 public:
  /// Runs `program` in a child process whose terminal this is; what it returns is the exit status.
  explicit PtyProgram(const std::function<int()>& program, int rows = 24, int columns = 80);
  ~PtyProgram();
  PtyProgram(const PtyProgram&) = delete;
  PtyProgram& operator=(const PtyProgram&) = delete;

  VtScreen screen;

  void Press(std::string_view keys);  ///< types, and waits until the program has answered and waits again
  void Press(std::string_view keys, int times);
  void Type(std::string_view keys);             ///< and goes on at once: for a program that is at work
  bool WaitUntilShown(std::string_view text);  ///< false if it does not come in good time
  void Command(std::string_view letters);  ///< of a menu, with Alt, and of the item in it
  bool IsRunning();
  std::optional<int> WaitForEnd();  ///< the exit status; nothing if it goes on or was killed
  void HangUp();                    ///< the terminal goes away
  void Signal(int number);
  void Resize(int rows, int columns);

  // What a person reads.
  std::string Shows() const { return screen.Text(); }
  bool Shows(std::string_view part) const { return screen.Text().find(part) != std::string::npos; }
  std::string Title() const;      ///< of the page that the cursor stands in; empty if there is none
  std::string KeysLine() const;   ///< the last line
  std::string EnterDoes() const;  ///< what the keys' line says of Enter

 private:
  bool Read(int milliseconds);
  void WaitUntilIdle(long sleeps);
  bool IsWaiting() const;
  long Sleeps() const;

  pid_t child_ = -1;
  int master_ = -1;
  int slave_ = -1;
  std::optional<int> status_;
};

}  // namespace veld::testing
