#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace veld::fuzz {

inline std::string_view Bytes(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Stops the fuzzer on a promise that did not hold.
inline void Require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "not so: %s\n", promise);
  std::abort();
}

}  // namespace veld::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
