#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
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

/// Bytes of an equipment file.
inline constexpr std::size_t kEquipmentFileBytes = kEquipmentRows * sizeof(EquipmentRecord);

/// The categories of goods, in the order of the list; a good's Category is the place in it, counted from 1.
inline constexpr std::array<std::string_view, 21> EquipmentCategories{
    "Alcohol/Beverages",
    "Clothing",
    "Containers: Packs, Bags, Bottles etc.",
    "Daily Food and Lodging",
    "Light Sources",
    "Livestock (Including Mounts and Beasts of Burden)",
    "Miscellany",
    "Musical Instruments",
    "Outfitting Bundles (Pre-Packs)",
    "Provisions: Rations",
    "Provisions: Outfitting",
    "Tools",
    "Religious Items and Accouterments",
    "Scribe Materials",
    "Services",
    "Tack and Harness",
    "Transport, Land",
    "Transport, Water",
    "Armor and Related Items",
    "Weapons",
    "Weapons: Ammo",
};

/// What the coins are worth in copper.
inline constexpr int kPlatinumValue = 500;
inline constexpr int kHardSilverValue = 200;
inline constexpr int kGoldValue = 100;
inline constexpr int kElectrumValue = 50;
inline constexpr int kSilverValue = 10;

/// The name of a category number; empty for a number that is none.
std::string_view EquipmentCategoryName(int category);

/// The price of a good as it is shown: "12 gp", "3 sp" or "5 cp".
std::string PriceText(const EquipmentRecord& good);

/// The weight of a good as it is shown: "2.5 lb".
std::string WeightText(const EquipmentRecord& good);

/// False for what walks and what is harnessed, which weighs on nobody's back.
bool IsCarried(const EquipmentRecord& good);

}  // namespace veld
