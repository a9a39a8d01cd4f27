#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "text/fixed_text.h"

namespace veld {

/// Rows of the goods list and of the user's own list of goods.
inline constexpr std::size_t kEquipmentRows = 1000;

/// One row of equip.vlb and cequip.vlb, byte for byte (little-endian, as the machines it runs on). A free row has no
/// name. The price stands in one of the three coins and again in copper.
struct EquipmentRecord {
  FixedText<50> Name;
  char Padding[2] = {};
  std::int32_t GoldCost = 0;
  std::int32_t SilverCost = 0;
  std::int32_t CopperCost = 0;
  std::int32_t CopperValue = 0;
  float Weight = 0;           // pounds
  std::int32_t Category = 0;  // 1 to 21, the number of its category
  std::int32_t Quantity = 0;  // owned by the character at hand; noise in a file
  std::int32_t LegacyId = 0;  // the row's number in older character files
};
static_assert(sizeof(EquipmentRecord) == 84 && std::is_trivially_copyable_v<EquipmentRecord>);
static_assert(offsetof(EquipmentRecord, GoldCost) == 52 && offsetof(EquipmentRecord, SilverCost) == 56 &&
              offsetof(EquipmentRecord, CopperCost) == 60 && offsetof(EquipmentRecord, CopperValue) == 64 &&
              offsetof(EquipmentRecord, Weight) == 68 && offsetof(EquipmentRecord, Category) == 72 &&
              offsetof(EquipmentRecord, Quantity) == 76 && offsetof(EquipmentRecord, LegacyId) == 80);

/// A row without its good: what remains is the row's own number.
inline EquipmentRecord Emptied(const EquipmentRecord& row) {
  EquipmentRecord empty;
  empty.LegacyId = row.LegacyId;
  return empty;
}

/// Bytes of an equipment file.
inline constexpr std::size_t kEquipmentFileBytes = kEquipmentRows * sizeof(EquipmentRecord);

}  // namespace veld
