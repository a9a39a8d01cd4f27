// Runs a fuzz target on every file of a folder, without a fuzzer: what once was found stays fixed.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "fuzz_support.h"

int main(int count, char** arguments) {
  if (count != 2) {
    std::fprintf(stderr, "usage: %s FOLDER\n", arguments[0]);
    return 2;
  }
  int files = 0;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(arguments[1], error)) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    if (!file.is_open() || file.bad()) {
      std::fprintf(stderr, "can't read %s\n", entry.path().c_str());
      return 1;
    }
    std::printf("%s: %zu bytes\n", entry.path().filename().c_str(), bytes.size());
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++files;
  }
  std::printf("%d files replayed\n", files);
  return files > 0 ? 0 : 1;
}
