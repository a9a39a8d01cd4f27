#include "rules/equipment_catalogue.h"

#include "text/format.h"

namespace veld {

namespace {

constexpr int kLivestock = 6;
constexpr int kTack = 16;

}  // namespace

std::string_view EquipmentCategoryName(int category) {
  if (category < 1 || category > static_cast<int>(EquipmentCategories.size())) return {};
  return EquipmentCategories[static_cast<std::size_t>(category - 1)];
}

std::string PriceText(const EquipmentRecord& good) {
  if (good.GoldCost != 0) return Format("%i gp", good.GoldCost);
  if (good.SilverCost != 0) return Format("%i sp", good.SilverCost);
  return Format("%i cp", good.CopperCost);
}

std::string WeightText(const EquipmentRecord& good) {
  return Format("%g lb", good.Weight);
}

bool IsCarried(const EquipmentRecord& good) {
  return good.Category != kLivestock && good.Category != kTack;
}

}  // namespace veld
