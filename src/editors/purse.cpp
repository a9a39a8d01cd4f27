#include "editors/purse.h"

#include <algorithm>

#include "steps/finish/equipment_purchase.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

/// Pays as much of `due` (copper) in a coin as it goes into it without change.
void PayIn(CharacterSheet& sheet, const CoinKind& coin, std::int64_t& due) {
  int& held = sheet.*coin.Count;
  const std::int64_t coins = std::min<std::int64_t>(std::max(held, 0), due / coin.Copper);
  held = SaturateToInt(held - coins);
  due -= coins * coin.Copper;
}

/// Breaks the smallest coin held that is worth more than what is due, and takes the change.
void BreakCoinFor(CharacterSheet& sheet, std::int64_t due) {
  const CoinKind* broken = nullptr;
  for (const CoinKind& coin : kCoinKinds) {
    if (sheet.*coin.Count > 0 && coin.Copper > due && (!broken || coin.Copper < broken->Copper)) broken = &coin;
  }
  if (!broken) return;
  --(sheet.*broken->Count);
  const std::int64_t change = broken->Copper - due;
  sheet.GoldPieces = SaturateToInt(sheet.GoldPieces + change / kGoldValue);
  sheet.SilverPieces = SaturateToInt(sheet.SilverPieces + change % kGoldValue / kSilverValue);
  sheet.CopperPieces = SaturateToInt(sheet.CopperPieces + change % kSilverValue);
}

}  // namespace

std::string FindMoney(CharacterSheet& sheet, const CoinKind& coin, std::int64_t count) {
  int& held = sheet.*coin.Count;
  if (held + count > kMostCoins) return Format("%s: a purse holds %i at most.", coin.Name, kMostCoins);
  held = SaturateToInt(held + count);
  return Format("Found: %i %s.", count, coin.Name);
}

std::string SpendMoney(CharacterSheet& sheet, const CoinKind& coin, std::int64_t count) {
  std::int64_t due = count * coin.Copper;
  if (due > PurseWorth(sheet)) {
    return Format("%i %s are more than the purse holds: nothing was spent.", count, coin.Name);
  }
  std::array<CoinKind, kCoinKinds.size()> coins = kCoinKinds;
  std::ranges::sort(coins, std::ranges::greater(), &CoinKind::Copper);
  PayIn(sheet, coin, due);
  for (const CoinKind& other : coins) PayIn(sheet, other, due);
  if (due > 0) BreakCoinFor(sheet, due);
  return Format("Spent: %i %s.", count, coin.Name);
}

}  // namespace veld
