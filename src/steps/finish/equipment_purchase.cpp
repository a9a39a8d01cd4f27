#include "steps/finish/equipment_purchase.h"

#include <algorithm>

#include "platform/platform.h"
#include "rules/equipment_catalogue.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr std::string_view kNoFunds = "You lack sufficient funds to make this transaction.";

/// The coins that a good takes. A price below 0 in a damaged file gives nothing away.
struct Price {
  std::int64_t Gold;
  std::int64_t Silver;
  std::int64_t Copper;
};

Price PriceInCoins(const EquipmentRecord& good) {
  return {std::max(good.GoldCost, 0), std::max(good.SilverCost, 0), std::max(good.CopperCost, 0)};
}

void Add(int& coin, std::int64_t coins) {
  coin = SaturateToInt(coin + coins);
}

/// Breaks as many larger coins as a coin that is below 0 needs: each gives `parts` of it.
void Break(int& coin, int parts, int& larger) {
  if (coin >= 0) return;
  const std::int64_t broken = (parts - 1 - std::int64_t{coin}) / parts;
  Add(coin, parts * broken);
  Add(larger, -broken);
}

void Own(Game& game, EquipmentRecord& good, int count) {
  good.Quantity = AddSaturated(good.Quantity, count);
  game.sheet.CarriedWeightLbs += static_cast<float>(count) * good.Weight;
  game.TextScratch.clear();
}

template <typename IsWanted>
std::vector<const EquipmentRecord*> GoodsThat(const Game& game, IsWanted isWanted) {
  std::vector<const EquipmentRecord*> goods;
  for (const auto* table : {&game.EquipmentTable, &game.CustomEquipmentTable}) {
    for (const EquipmentRecord& good : *table) {
      if (!good.Name.Empty() && isWanted(good)) goods.push_back(&good);
    }
  }
  return goods;
}

}  // namespace

std::int64_t PurseWorth(const CharacterSheet& sheet) {
  return std::int64_t{kPlatinumValue} * sheet.PlatinumPieces + std::int64_t{kHardSilverValue} * sheet.HardSilverPieces +
         std::int64_t{kGoldValue} * sheet.GoldPieces + std::int64_t{kElectrumValue} * sheet.ElectrumPieces +
         std::int64_t{kSilverValue} * sheet.SilverPieces + sheet.CopperPieces;
}

std::int64_t PriceInCopper(const EquipmentRecord& good) {
  const Price price = PriceInCoins(good);
  return std::max<std::int64_t>(good.CopperValue, kGoldValue * price.Gold + kSilverValue * price.Silver + price.Copper);
}

EquipmentRecord* FindGood(Game& game, std::string_view text) {
  for (std::size_t row = 0; row < kEquipmentRows; ++row) {
    for (auto* table : {&game.EquipmentTable, &game.CustomEquipmentTable}) {
      EquipmentRecord& good = (*table)[row];
      if (!good.Name.Empty() && Contains(text, good.Name)) return &good;
    }
  }
  return nullptr;
}

void TradeItem(Game& game, int count) {
  EquipmentRecord* good = FindGood(game, game.TextScratch);
  if (!good) return game.TextScratch.clear();
  if (count > 0 && PriceInCopper(*good) * count > PurseWorth(game.sheet)) return game.platform.ShowMessage(kNoFunds);
  const Price price = PriceInCoins(*good);
  Own(game, *good, count);
  Add(game.sheet.GoldPieces, -count * price.Gold);
  Add(game.sheet.SilverPieces, -count * price.Silver);
  Add(game.sheet.CopperPieces, -count * price.Copper);
  MakeChange(game.sheet);
}

void AdjustItem(Game& game, int count) {
  EquipmentRecord* good = FindGood(game, game.TextScratch);
  if (!good) return game.TextScratch.clear();
  Own(game, *good, count);
}

void MakeChange(CharacterSheet& sheet) {
  Break(sheet.CopperPieces, 10, sheet.SilverPieces);
  Break(sheet.SilverPieces, 5, sheet.ElectrumPieces);
  Break(sheet.ElectrumPieces, 2, sheet.GoldPieces);
  Break(sheet.GoldPieces, 2, sheet.HardSilverPieces);
  const int platinum = sheet.PlatinumPieces;
  Break(sheet.HardSilverPieces, 2, sheet.PlatinumPieces);  // and a platinum piece has a gold piece more in it
  Add(sheet.GoldPieces, std::int64_t{platinum} - sheet.PlatinumPieces);
}

std::vector<const EquipmentRecord*> GoodsOfCategory(const Game& game, int index) {
  return GoodsThat(game, [&](const EquipmentRecord& good) { return good.Category == index + 1; });
}

std::vector<const EquipmentRecord*> GoodsHolding(const Game& game, std::string_view text) {
  return GoodsThat(game, [&](const EquipmentRecord& good) { return ContainsIgnoringCase(good.Name, text); });
}

std::vector<const EquipmentRecord*> OwnedGoods(const Game& game) {
  return GoodsThat(game, [](const EquipmentRecord& good) { return good.Quantity > 0; });
}

std::string OwnedLine(const EquipmentRecord& good) {
  return good.Quantity > 1 ? Format("%s x %i", good.Name, good.Quantity) : std::string(good.Name.View());
}

void ComputeCarriedWeight(Game& game) {
  game.sheet.CarriedWeightLbs = 0;
  for (const EquipmentRecord* good : OwnedGoods(game)) {
    if (IsCarried(*good)) game.sheet.CarriedWeightLbs += good->Weight * static_cast<float>(good->Quantity);
  }
}

}  // namespace veld
