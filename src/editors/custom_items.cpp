#include "editors/custom_items.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "rules/equipment_catalogue.h"
#include "steps/finish/equipment_purchase.h"
#include "store/side_files.h"
#include "text/format.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace {

constexpr std::size_t kNoRow = kEquipmentRows;
constexpr std::string_view kNoGood = "Choose a good of the list first.";

std::string_view Trimmed(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  return TrimRight(text);
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsControl(char c) {
  return (c >= '\0' && c < ' ') || c == '\x7F';
}

/// True if the whole of `text` is a number of 0 to `largest`, which `number` then holds.
template <typename Number>
bool ReadWhole(std::string_view text, int largest, Number& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && number >= 0 &&
         number <= static_cast<Number>(largest);
}

/// The character as messages call him.
std::string Owner(const Game& game, std::string_view unnamed) {
  const std::string name(TrimRight(DisplayText(game.sheet.CharacterName)));
  return name.empty() || name == CharacterSheet().CharacterName ? std::string(unnamed) : name;
}

/// True if the list of owned goods could write the end of a name, or all of it, behind another good: "Rope x 2".
bool LooksLikeAnAmount(std::string_view name) {
  while (!name.empty() && IsDigit(name.back())) name.remove_suffix(1);
  name = TrimRight(name);
  return name.empty() || name == "x" || name.ends_with(" x");
}

/// Why the trade could take the good of this name for another one, or another for it; empty if it could not.
std::string MistakenFor(const Game& game, std::string_view name, std::size_t ownRow) {
  for (const auto* table : {&game.EquipmentTable, &game.CustomEquipmentTable}) {
    for (std::size_t row = 0; row < kEquipmentRows; ++row) {
      const std::string_view other = (*table)[row].Name;
      if (other.empty() || (table == &game.CustomEquipmentTable && row == ownRow)) continue;
      if (other == name) return Format("Name: there is a good \"%s\" already.", DisplayText(other));
      constexpr std::string_view kWhy = "The trade goes by names and could take one for the other.";
      if (Contains(name, other)) return Format("Name: \"%s\" stands in it. %s", DisplayText(other), kWhy);
      if (Contains(other, name)) return Format("Name: it stands in \"%s\". %s", DisplayText(other), kWhy);
    }
  }
  return {};
}

std::string RefuseName(const Game& game, std::string_view name, std::size_t ownRow) {
  constexpr std::size_t kMost = decltype(EquipmentRecord::Name)::kWidth - 1;
  if (name.empty()) return "Name: a good needs one.";
  if (name.size() > kMost) {
    return Format("Name: at most %i letters, of which one with an accent counts as two; this has %i.", kMost,
                  name.size());
  }
  if (std::ranges::any_of(name, IsControl)) return "Name: it holds a character that can't be shown.";
  if (LooksLikeAnAmount(name)) {
    return "Name: a number, or an end like \"x 2\", is how the list of owned goods tells how many there are.";
  }
  return MistakenFor(game, name, ownRow);
}

/// Reads an entry into a good of `ownRow`, or a new one; what the entry does not tell stays as it is.
GoodResult ReadGood(const Game& game, const GoodEntry& entry, std::size_t ownRow, EquipmentRecord& good) {
  const std::string_view name = Trimmed(entry.Name);
  std::string refusal = RefuseName(game, name, ownRow);
  if (!refusal.empty()) return {std::move(refusal), GoodField::Name};
  int price = 0;
  if (!ReadWhole(Trimmed(entry.Price), kLargestPrice, price)) {
    return {Format("Price: a whole number from 0 to %i.", kLargestPrice), GoodField::Price};
  }
  if (entry.Coin < 0 || entry.Coin >= static_cast<int>(kPriceCoins.size())) {
    return {"Price: choose its coin.", GoodField::Coin};
  }
  float weight = 0;
  if (!ReadWhole(Trimmed(entry.Weight), kLargestWeight, weight)) {
    return {Format("Weight: a number of pounds from 0 to %i, such as 2.5.", kLargestWeight), GoodField::Weight};
  }
  if (EquipmentCategoryName(entry.Category).empty()) {
    return {Format("Category: choose one of the %i.", EquipmentCategories.size()), GoodField::Category};
  }
  good.Name = name;
  good.GoldCost = entry.Coin == 0 ? price : 0;
  good.SilverCost = entry.Coin == 1 ? price : 0;
  good.CopperCost = entry.Coin == 2 ? price : 0;
  good.CopperValue = kGoldValue * good.GoldCost + kSilverValue * good.SilverCost + good.CopperCost;
  good.Weight = weight + 0.0F;  // no "-0"
  good.Category = entry.Category;
  return {};
}
static_assert(std::int64_t{kLargestPrice} * kGoldValue <= INT32_MAX);

bool HasGood(const Game& game, std::size_t row) {
  return row < kEquipmentRows && !game.CustomEquipmentTable[row].Name.Empty();
}

/// Puts a good in a row and saves the user's goods, or leaves all as it was.
GoodResult Store(Game& game, std::size_t row, const EquipmentRecord& good, bool cameWithCharacter, SaveWay way) {
  const EquipmentRecord before = std::exchange(game.CustomEquipmentTable[row], good);
  const bool cameBefore = game.CameWithCharacter[row];
  game.CameWithCharacter[row] = cameWithCharacter;
  if (SaveCustomEquipment(game, way)) return {.Row = row};
  game.CustomEquipmentTable[row] = before;
  game.CameWithCharacter[row] = cameBefore;
  return {.Refusal = "The goods could not be saved, and nothing was changed.", .Row = row};
}

/// Reads an entry into the row of a good and saves.
GoodResult StoreEntry(Game& game, std::size_t row, const GoodEntry& entry, bool cameWithCharacter, SaveWay way) {
  EquipmentRecord good = game.CustomEquipmentTable[row];
  GoodResult result = ReadGood(game, entry, row, good);
  if (!result.Refusal.empty()) return result;
  result = Store(game, row, good, cameWithCharacter, way);
  if (result.Refusal.empty() && good.Quantity > 0) ComputeCarriedWeight(game);
  return result;
}

}  // namespace

GoodResult AddCustomGood(Game& game, const GoodEntry& entry, SaveWay way) {
  std::size_t row = 0;
  while (HasGood(game, row)) ++row;
  if (row == kNoRow) return {.Refusal = Format("The list is full: it has room for %i goods.", kEquipmentRows)};
  return StoreEntry(game, row, entry, false, way);
}

GoodResult ChangeCustomGood(Game& game, std::size_t row, const GoodEntry& entry, SaveWay way) {
  if (!HasGood(game, row)) return {.Refusal = std::string(kNoGood)};
  return StoreEntry(game, row, entry, game.CameWithCharacter[row], way);
}

GoodResult DeleteCustomGood(Game& game, std::size_t row, SaveWay way) {
  if (!HasGood(game, row)) return {.Refusal = std::string(kNoGood)};
  const EquipmentRecord& good = game.CustomEquipmentTable[row];
  if (good.Quantity > 0) {
    return {.Refusal = Format("%s owns %i of these: remove them first.", Owner(game, "The character"), good.Quantity)};
  }
  return Store(game, row, Emptied(good), false, way);
}

GoodResult KeepCustomGood(Game& game, std::size_t row, SaveWay way) {
  if (!HasGood(game, row)) return {.Refusal = std::string(kNoGood)};
  if (!game.CameWithCharacter[row]) return {.Refusal = "This good is your own already."};
  return StoreEntry(game, row, EntryOf(game.CustomEquipmentTable[row]), false, way);
}

std::vector<std::size_t> CustomGoodRows(const Game& game, std::string_view search) {
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < kEquipmentRows; ++row) {
    if (!HasGood(game, row)) continue;
    const std::string name = DisplayText(game.CustomEquipmentTable[row].Name);
    if (search.empty() || ContainsIgnoringCase(name, search)) rows.push_back(row);
  }
  return rows;
}

std::string CustomGoodLine(const Game& game, std::size_t row) {
  std::string line = DisplayText(game.CustomEquipmentTable[row].Name);
  if (game.CameWithCharacter[row]) line += Format(" (came with %s)", Owner(game, "the character"));
  return line;
}

std::string CustomGoodNote(const Game& game, std::size_t row) {
  const EquipmentRecord& good = game.CustomEquipmentTable[row];
  std::string note;
  if (good.Quantity > 0) note = Format("%s owns %i of these. ", Owner(game, "The character"), good.Quantity);
  if (game.CameWithCharacter[row]) {
    note += Format("It came with %s; Keep makes it your own.", Owner(game, "the character"));
  }
  return note;
}

GoodEntry EntryOf(const EquipmentRecord& good) {
  const std::array<std::int64_t, 3> costs{good.GoldCost, good.SilverCost, good.CopperCost};
  const auto first = std::ranges::find_if(costs, [](std::int64_t cost) { return cost != 0; });
  int coin = first == costs.end() ? 0 : static_cast<int>(first - costs.begin());
  std::int64_t price = costs[static_cast<std::size_t>(coin)];
  if (costs.size() - static_cast<std::size_t>(std::ranges::count(costs, 0)) > 1) {
    coin = 2;
    price = kGoldValue * costs[0] + kSilverValue * costs[1] + costs[2];
  }
  std::array<char, 32> weight{};  // the shortest text that reads as the same weight
  const auto written = std::to_chars(weight.data(), weight.data() + weight.size(), good.Weight);
  return {.Name = std::string(good.Name.View()),
          .Price = Format("%i", price),
          .Coin = coin,
          .Weight = std::string(weight.data(), written.ptr),
          .Category = good.Category};
}

}  // namespace veld
