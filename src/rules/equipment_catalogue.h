#pragma once

#include <array>
#include <string>
#include <string_view>

#include "rules/equipment_record.h"

namespace veld {

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
