#pragma once

#include <thread>

namespace veld {

/// Reads the system's font settings, which takes as long as a third of all start-up, on a second thread while the
/// application object is made. Make it first thing; wait for it before the first text is measured.
class FontsAhead {
 public:
  FontsAhead();
  ~FontsAhead() { Wait(); }
  FontsAhead(const FontsAhead&) = delete;
  FontsAhead& operator=(const FontsAhead&) = delete;

  void Wait();

 private:
  std::thread reader_;
};

}  // namespace veld
