#include "editors/custom_item_editor.h"

#include <algorithm>

#include "editors/custom_items.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/equipment_catalogue.h"
#include "text/format.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace {

enum : int {
  kClose = 1,
  kStatus = 90,
  kName = 3000,
  kPrice = 3001,
  kWeight = 3002,
  kCoin = 3020,
  kCategories = 3021,
  kGoods = 3022,
  kSearch = 3024,
  kAdd = 4001,
  kDelete = 4002,
  kChange = 4003,
  kKeep = 4004,
};

constexpr int kPageWidth = 72;
constexpr int kListLines = 9;
constexpr int kNumberWidth = 10;

constexpr auto kControls = [] {
  // No field has a limit: what is too long is refused with a word, not cut.
  auto controls = std::to_array<ControlTemplate>({
      LabelAt(0, 0, "&Search"),
      SearchAt(0, 1, kSearch, kGoods, 30),
      LabelAt(1, 0, "Your own &goods"),
      ListAt(2, 0, kGoods, kPageWidth, kListLines),
      LabelAt(3, 0, "&Name"),
      EditAt(3, 1, kName, 50),
      LabelAt(4, 0, "&Price"),
      EditAt(4, 1, kPrice, kNumberWidth),
      LabelAt(4, 1, "Co&in"),
      ComboAt(4, 1, kCoin, 4),
      LabelAt(4, 1, "&Weight (lb)"),
      EditAt(4, 1, kWeight, kNumberWidth),
      LabelAt(5, 0, "Ca&tegory"),
      ComboAt(5, 1, kCategories, 50),
      ButtonAt(6, 0, kAdd, "&Add", ButtonRole::Default),
      ButtonAt(6, 0, kChange, "C&hange"),
      ButtonAt(6, 0, kDelete, "&Delete"),
      ButtonAt(6, 0, kKeep, "&Keep"),
      ButtonAt(6, 0, kClose, "C&lose", ButtonRole::Cancel),
      TextAt(7, 0, kStatus, "", kPageWidth, 2),
  });
  for (ControlTemplate& control : controls) {
    const bool isOfWholeWidth = control.Kind == ControlKind::List || control.Kind == ControlKind::Button ||
                                control.Kind == ControlKind::Text || control.Row == 1;
    if (isOfWholeWidth) control.ColumnSpan = 2;
  }
  return controls;
}();
constexpr std::string_view kEditEquipmentHelp =
    "Your own goods, sold in Step 19 beside the others. Fill in name, price and coin, weight and category, and press "
    "Add. Choose one of the list to Change or Delete it. Goods that came with a character from elsewhere are marked "
    "and go again with him, unless Keep makes them yours. Every change is saved at once, and a refusal tells its "
    "reason below.";
constexpr FormTemplate kEditEquipment{"EditEquipment", "Custom Item Editor", kControls, kEditEquipmentHelp};

/// The open page: the rows behind the lines of its list.
struct GoodsPage {
  Form form{kEditEquipment};
  std::vector<std::size_t> rows;
};

/// The row of the chosen good; one that there is not if none is.
std::size_t ChosenRow(const GoodsPage& page) {
  const int selection = page.form.Selection(kGoods);
  return selection < 0 ? kEquipmentRows : page.rows[static_cast<std::size_t>(selection)];
}

/// Lists the goods that the search finds, the one of `row` chosen if it is among them.
void FillGoods(const Game& game, GoodsPage& page, std::size_t row) {
  page.rows = CustomGoodRows(game, TrimRight(page.form.Text(kSearch)));
  std::vector<std::string> lines;
  for (const std::size_t listed : page.rows) lines.push_back(CustomGoodLine(game, listed));
  page.form.SetItems(kGoods, std::move(lines));
  const auto chosen = std::ranges::find(page.rows, row);
  if (chosen != page.rows.end()) page.form.Select(kGoods, static_cast<int>(chosen - page.rows.begin()));
}

/// Likewise, with the search given up if it hides a good that there is.
void ShowGoods(const Game& game, GoodsPage& page, std::size_t row) {
  FillGoods(game, page, row);
  if (page.form.Selection(kGoods) >= 0 || game.CustomEquipmentTable[row].Name.Empty()) return;
  page.form.SetText(kSearch, "");
  FillGoods(game, page, row);
}

void ShowFields(Form& form, const GoodEntry& entry) {
  form.SetText(kName, entry.Name);
  form.SetText(kPrice, entry.Price);
  form.Select(kCoin, entry.Coin);
  form.SetText(kWeight, entry.Weight);
  form.Select(kCategories, entry.Category - 1);
}

GoodEntry TypedEntry(const Form& form) {
  return {.Name = form.Text(kName),
          .Price = form.Text(kPrice),
          .Coin = form.Selection(kCoin),
          .Weight = form.Text(kWeight),
          .Category = form.Selection(kCategories) + 1};
}

int ControlOf(GoodField field) {
  switch (field) {
    case GoodField::Name:
      return kName;
    case GoodField::Price:
      return kPrice;
    case GoodField::Coin:
      return kCoin;
    case GoodField::Weight:
      return kWeight;
    case GoodField::Category:
      return kCategories;
    case GoodField::None:
      break;
  }
  return 0;
}

GoodResult Obey(Game& game, const GoodsPage& page, int id, std::size_t row) {
  switch (id) {
    case kAdd:
      return AddCustomGood(game, TypedEntry(page.form));
    case kChange:
      return ChangeCustomGood(game, row, TypedEntry(page.form));
    case kDelete:
      return DeleteCustomGood(game, row);
    default:
      return KeepCustomGood(game, row);
  }
}

std::string DoneText(const Game& game, int id, std::size_t row, std::string_view nameBefore) {
  const std::string name = DisplayText(game.CustomEquipmentTable[row].Name);
  if (id == kAdd) return Format("Added %s.", name);
  if (id == kDelete) return Format("Deleted %s. As long as its fields stand here, Add brings it back.", nameBefore);
  if (id == kKeep) return Format("%s is your own now.", name);
  return Format("Changed %s. %s", name, CustomGoodNote(game, row));
}

void RunCommand(Game& game, GoodsPage& page, int id) {
  const std::size_t row = ChosenRow(page);
  const GoodEntry before = row < kEquipmentRows ? EntryOf(game.CustomEquipmentTable[row]) : GoodEntry{};
  const GoodResult result = Obey(game, page, id, row);
  if (!result.Refusal.empty()) {
    page.form.SetText(kStatus, result.Refusal);
    if (result.Field != GoodField::None) page.form.Focus(ControlOf(result.Field));
    return;
  }
  ShowGoods(game, page, result.Row);
  if (id == kDelete) ShowFields(page.form, before);
  if (id == kAdd || id == kChange) ShowFields(page.form, EntryOf(game.CustomEquipmentTable[result.Row]));
  page.form.SetText(kStatus, DoneText(game, id, result.Row, DisplayText(before.Name)));
}

void Open(const Game& game, GoodsPage& page) {
  page.form.SetItems(kCoin, {kPriceCoins.begin(), kPriceCoins.end()});
  page.form.SetItems(kCategories, {EquipmentCategories.begin(), EquipmentCategories.end()});
  ShowFields(page.form, {.Price = "0", .Weight = "0"});
  FillGoods(game, page, kEquipmentRows);
  page.form.SetText(kStatus, "Fill in a new good and press Add, or choose one of the list.");
  page.form.Focus(kName);
}

}  // namespace

void RunCustomItemEditor(Game& game) {
  GoodsPage page;
  page.form.onOpened = [&] { Open(game, page); };
  page.form.onSelect = [&](int id) {
    if (id != kGoods) return;
    const std::size_t row = ChosenRow(page);
    if (row == kEquipmentRows) return;  // the search finds none: what is being filled in stays
    ShowFields(page.form, EntryOf(game.CustomEquipmentTable[row]));
    page.form.SetText(kStatus, CustomGoodNote(game, row));
  };
  page.form.onEdit = [&](int id) {
    if (id == kSearch) FillGoods(game, page, ChosenRow(page));
  };
  page.form.onCommand = [&](int id) {
    if (id == kClose) return page.form.Close();
    RunCommand(game, page, id);
  };
  game.platform.RunForm(page.form);
}

}  // namespace veld
