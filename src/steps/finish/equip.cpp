#include "steps/finish/equip.h"

#include <algorithm>
#include <array>

#include "platform/form.h"
#include "platform/platform.h"
#include "rules/equipment_catalogue.h"
#include "steps/finish/equipment_purchase.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

enum : int {
  kOk = 1,
  kGold = 25,
  kSilver = 26,
  kCopper = 27,
  kWeight = 28,
  kPlatinum = 29,
  kHardSilver = 30,
  kElectrum = 31,
  kPriceHead = 80,
  kGoodWeightHead = 81,
  kPrice = 90,
  kGoodWeight = 91,
  kBuy = 3003,
  kAddFree = 3004,
  kCategories = 3021,
  kGoods = EquipControl::Goods,
  kOwned = EquipControl::Owned,
  kSearch = EquipControl::Search,
  kAdd = EquipControl::Add,
  kRemove = EquipControl::Remove,
};

constexpr int kListWidth = 34;
constexpr int kListLines = 14;
constexpr int kListRows = 8;
constexpr int kCoinWidth = 8;
constexpr int kSearchBytes = 49;

constexpr ControlTemplate LabelWithId(int row, int column, int id, std::string_view text) {
  return {.Kind = ControlKind::Label, .Id = id, .Row = row, .Column = column, .Text = text};
}

constexpr ControlTemplate kEquipControls[] = {
    TitleAt(0, 0, "Step 19: Equipment Purchasing", 4),
    LabelAt(1, 0, "&Category"),
    ComboAt(1, 0, kCategories, 27),
    LabelAt(1, 1, "&Search"),
    SearchAt(1, 1, kSearch, kGoods, 25, kSearchBytes),
    LabelAt(2, 0, "&Equipment"),
    ListAt(3, 0, kGoods, kListWidth, kListLines, kListRows),
    LabelAt(2, 1, "Equipment &you own"),
    ListAt(3, 1, kOwned, kListWidth, kListLines, kListRows),
    LabelAt(3, 2, "Platinum"),
    ResultAt(3, 3, kPlatinum, kCoinWidth),
    LabelAt(4, 2, "Hard Silver"),
    ResultAt(4, 3, kHardSilver, kCoinWidth),
    LabelAt(5, 2, "Gold"),
    ResultAt(5, 3, kGold, kCoinWidth),
    LabelAt(6, 2, "Electrum"),
    ResultAt(6, 3, kElectrum, kCoinWidth),
    LabelAt(7, 2, "Silver"),
    ResultAt(7, 3, kSilver, kCoinWidth),
    LabelAt(8, 2, "Copper"),
    ResultAt(8, 3, kCopper, kCoinWidth),
    LabelAt(9, 2, "Weight, lb"),
    ResultAt(9, 3, kWeight, kCoinWidth),
    LabelWithId(11, 0, kPriceHead, "Price"),
    ResultAt(11, 0, kPrice, 12),
    LabelWithId(11, 0, kGoodWeightHead, "Weight"),
    ResultAt(11, 0, kGoodWeight, 10),
    ButtonAt(12, 0, kAdd, "&Add >>", ButtonRole::Default),
    ButtonAt(12, 1, kRemove, "<< &Remove"),
    ButtonAt(12, 2, kOk, "&OK", ButtonRole::Cancel),
};
constexpr std::string_view kEquipHelp =
    "The shop, and the last step. Choose a category, or type a part of a name in Search, which looks through all "
    "categories and tells with each find which one it stands in; clear it to be back in yours. Choose what you want, "
    "see its price and weight, and press Add. Change is made from greater coins by "
    "itself. Remove gives the whole price back, so nothing is lost by trying. Your own goods from the Custom Item "
    "Editor are sold beside the others.\n\n"
    "Buy in this order: the weapon he is proficient with, armor that his class lets him wear, a pack, food for a "
    "week, light, a rope. Keep some gold for the inn. Weight counts what he carries; a mule carries itself and what "
    "is on it. OK ends the run and asks whether to save.";
constexpr FormTemplate kEquip{"Equip", "Step 19", kEquipControls, kEquipHelp};

constexpr auto kEditEquipControls = [] {
  std::array<ControlTemplate, std::size(kEquipControls) + 2> controls{};
  std::ranges::copy(kEquipControls, controls.begin());
  controls.front().Text = "Equipment";
  controls[std::size(kEquipControls)] = {
      .Kind = ControlKind::Radio, .Id = kBuy, .Row = 11, .Column = 1, .Text = "&Buy and sell"};
  controls[std::size(kEquipControls) + 1] = {
      .Kind = ControlKind::Radio, .Id = kAddFree, .Row = 11, .Column = 1, .Text = "&Free of charge"};
  return controls;
}();
constexpr std::string_view kEditEquipHelp =
    "What the character owns, for changes in play. Buy and sell as in the shop, in his coins and at the full price, "
    "or choose the way without coins for what was found, stolen or lost. Search looks through all categories. The "
    "weight follows at once.";
constexpr FormTemplate kEditEquip{"EditEquip", "Equipment", kEditEquipControls, kEditEquipHelp};

using GoodList = std::vector<const EquipmentRecord*>;

/// The open page: the goods behind the lines of its two lists.
struct EquipPage {
  explicit EquipPage(const FormTemplate& page) : form(page) {}

  Form form;
  GoodList goods;
  GoodList owned;
  int category = 0;  ///< that was chosen last
};

/// What the box of the categories shows while a search goes through all of them.
constexpr std::string_view kAllCategories = "Found in all categories";

/// The good behind the selected line of a list; null if none is selected.
const EquipmentRecord* Selected(const Form& form, int list, const GoodList& goods) {
  const int selection = form.Selection(list);
  return selection >= 0 && selection < static_cast<int>(goods.size()) ? goods[static_cast<std::size_t>(selection)]
                                                                      : nullptr;
}

/// Shows what the good that a purchase of TextScratch takes costs and weighs.
void ShowEquipmentRow(Game& game, Form& form) {
  const EquipmentRecord* good = FindGood(game, game.TextScratch);
  form.SetText(kPrice, good ? PriceText(*good) : "");
  form.SetText(kGoodWeight, good ? WeightText(*good) : "");
}

void ShowSelectedGood(Game& game, EquipPage& page) {
  const EquipmentRecord* good = Selected(page.form, kGoods, page.goods);
  game.TextScratch = good ? good->Name.View() : std::string_view{};
  ShowEquipmentRow(game, page.form);
}

/// The categories, and in a search of them all a last line that says so.
void FillEquipmentCategories(EquipPage& page, bool isSearch) {
  std::vector<std::string> categories(EquipmentCategories.begin(), EquipmentCategories.end());
  if (isSearch) categories.emplace_back(kAllCategories);
  page.form.SetItems(kCategories, std::move(categories));
  page.form.Select(kCategories, isSearch ? static_cast<int>(EquipmentCategories.size()) : page.category);
}

std::string FoundLine(const EquipmentRecord& good) {
  const auto category = static_cast<std::size_t>(good.Category) - 1;
  const std::string_view name = TrimRight(good.Name);
  return category < EquipmentCategories.size() ? Format("%s (%s)", name, EquipmentCategories[category])
                                               : std::string(name);
}

/// Lists the goods that a search finds, each with its category, else those of the category.
void FillEquipmentList(Game& game, EquipPage& page) {
  const std::string_view search = TrimRight(page.form.Text(kSearch));
  const bool isSearch = !search.empty();
  FillEquipmentCategories(page, isSearch);
  page.goods = isSearch ? GoodsHolding(game, search) : GoodsOfCategory(game, page.category);
  std::vector<std::string> lines;
  for (const EquipmentRecord* good : page.goods) {
    lines.push_back(isSearch ? FoundLine(*good) : std::string(good->Name.View()));
  }
  page.form.SetItems(kGoods, std::move(lines));
  ShowSelectedGood(game, page);
}

/// Lists what is owned; a good that was selected and is still owned stays so.
void FillOwnedEquipment(Game& game, EquipPage& page) {
  const EquipmentRecord* selected = Selected(page.form, kOwned, page.owned);
  page.owned = OwnedGoods(game);
  std::vector<std::string> lines;
  for (const EquipmentRecord* good : page.owned) lines.push_back(OwnedLine(*good));
  page.form.SetItems(kOwned, std::move(lines));
  const auto kept = std::ranges::find(page.owned, selected);
  if (kept != page.owned.end()) page.form.Select(kOwned, static_cast<int>(kept - page.owned.begin()));
  ComputeCarriedWeight(game);
}

void ShowPurse(const CharacterSheet& sheet, Form& form) {
  form.SetNumber(kPlatinum, sheet.PlatinumPieces);
  form.SetNumber(kHardSilver, sheet.HardSilverPieces);
  form.SetNumber(kGold, sheet.GoldPieces);
  form.SetNumber(kElectrum, sheet.ElectrumPieces);
  form.SetNumber(kSilver, sheet.SilverPieces);
  form.SetNumber(kCopper, sheet.CopperPieces);
  form.SetText(kWeight, Format("%g", sheet.CarriedWeightLbs));
}

void Trade(Game& game, EquipPage& page, std::string_view text, int count) {
  game.TextScratch = text;
  if (page.form.IsChecked(kAddFree)) {
    AdjustItem(game, count);
  } else {
    TradeItem(game, count);
  }
  FillOwnedEquipment(game, page);
  ShowPurse(game.sheet, page.form);
}

void PressTrade(Game& game, EquipPage& page, int id) {
  const EquipmentRecord* wanted = Selected(page.form, kGoods, page.goods);
  const EquipmentRecord* owned = Selected(page.form, kOwned, page.owned);
  if (id == kAdd && wanted) Trade(game, page, wanted->Name, 1);
  if (id == kRemove && owned) Trade(game, page, OwnedLine(*owned), -1);
}

void RunEquipPage(Game& game, const FormTemplate& pageTemplate, bool isFree) {
  EquipPage page(pageTemplate);
  page.form.onOpened = [&] {
    page.form.SetChecked(isFree ? kAddFree : kBuy, true);
    FillEquipmentList(game, page);
    FillOwnedEquipment(game, page);
    ShowPurse(game.sheet, page.form);
  };
  page.form.onSelect = [&](int id) {
    if (id == kCategories && page.form.SelectedText(kCategories) != kAllCategories) {
      page.category = page.form.Selection(kCategories);
      page.form.SetText(kSearch, "");
      FillEquipmentList(game, page);
    }
    if (id == kGoods) ShowSelectedGood(game, page);
  };
  page.form.onEdit = [&](int id) {
    if (id == kSearch) FillEquipmentList(game, page);
  };
  page.form.onCommand = [&](int id) {
    if (id == kOk) return page.form.Close();
    PressTrade(game, page, id);
  };
  game.platform.RunForm(page.form);
}

}  // namespace

void RunEquip(Game& game) {
  RunEquipPage(game, kEquip, false);
}

void RunEditEquip(Game& game) {
  RunEquipPage(game, kEditEquip, false);
}

void RunFreeEquip(Game& game) {
  RunEquipPage(game, kEditEquip, true);
}

}  // namespace veld
