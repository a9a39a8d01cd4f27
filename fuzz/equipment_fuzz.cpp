#include <cmath>
#include <memory>

#include "fuzz_support.h"
#include "store/side_files.h"

using namespace veld;
using fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto table = std::make_unique<EquipmentArray>();
  DecodeEquipment(fuzz::Bytes(data, size), *table);
  for (const EquipmentRecord& row : *table) {
    Require(row.Quantity == 0, "nothing is owned after reading");
    Require(row.Category >= 0 && row.Category <= 21, "a category is known or none");
    Require(std::isfinite(row.Weight), "a weight is finite");
    Require(row.Name.View().size() <= 50, "a name ends");
  }
  const std::string saved = EncodeEquipment(*table);
  DecodeEquipment(saved, *table);
  Require(saved.size() == 84'000 && EncodeEquipment(*table) == saved, "a saved table loads as it was");
  return 0;
}
