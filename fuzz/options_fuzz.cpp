#include <algorithm>

#include "fuzz_support.h"
#include "store/side_files.h"

using namespace veld;
using fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  RuleSwitchArray switches;
  DecodeOptions(fuzz::Bytes(data, size), switches);
  Require(std::ranges::all_of(switches, [](int value) { return value == 0 || value == 1; }), "a switch is 0 or 1");
  Require(switches[kCoreRules] == 1, "the core rules are on");
  RuleSwitchArray again;
  DecodeOptions(EncodeOptions(switches), again);
  Require(again == switches, "saved switches load as they were");
  return 0;
}
