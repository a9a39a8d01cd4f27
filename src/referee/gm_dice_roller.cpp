#include "referee/gm_dice_roller.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "dice/dice.h"
#include "platform/ask_name.h"
#include "platform/form.h"
#include "referee/dice_expression.h"
#include "referee/dice_package.h"
#include "referee/dice_row.h"
#include "referee/monster_attack.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kRows = static_cast<int>(kDiceRows);

// A row's controls: these and its number.
constexpr int kSides = 100;
constexpr int kTimes = 110;
constexpr int kModPerDie = 120;
constexpr int kModPerRoll = 130;
constexpr int kResults = 140;
constexpr int kTotal = 150;
constexpr int kInclude = 160;
constexpr int kPenetrate = 170;

constexpr int kClose = 1;
constexpr int kSum = 3001;
constexpr int kHistory = 3021;
constexpr int kRoll = 3043;
constexpr int kAddDiceRoll = 3046;
constexpr int kRemoveDiceRoll = 3047;
constexpr int kMonsterAttack = 3050;
constexpr int kLoadPackage = 3060;
constexpr int kSavePackage = 3061;
constexpr int kExpression = 3062;
constexpr int kRollExpression = 3063;
constexpr int kClearRows = 3064;
constexpr int kCopyHistory = 3065;
constexpr int kNote = 3066;
constexpr int kDiceRollNames = 3115;

constexpr std::size_t kMostHistoryLines = 500;
constexpr std::size_t kMostShownValues = 2'000;  // bytes; more of them stand in dice.log

constexpr FileFilter kPackageFilters[] = {{"Quellmarch Dice Package Files (*.DICE)", ".dice"}};

/// A row's button of an Honor modifier, -1 to 1. The history's id lies among those of row 6.
constexpr int HonorButton(int row, int modifier) {
  return 3004 + 3 * row + (row >= 6 ? 1 : 0) + modifier;
}
static_assert(HonorButton(6, -1) == kHistory + 1 && HonorButton(9, 1) == 3033);

// --- The page ----------------------------------------------------------------------------------------------------

/// The number of a row is its letter too.
constexpr std::string_view kRowNames[] = {"&0", "&1", "&2", "&3", "&4", "&5", "&6", "&7", "&8", "&9"};
constexpr std::string_view kHonorNames[] = {"-1", "0", "+1"};

constexpr int kNamesRow = 0;
constexpr int kNoteRow = 1;
constexpr int kHeadRow = 2;
constexpr int kFirstRow = 3;
constexpr int kExpressionRow = kFirstRow + kRows;
constexpr int kButtonRow = kExpressionRow + 1;
constexpr int kResultsRow = kButtonRow + 1;
constexpr int kFirstResult = kResultsRow + 1;

enum : int { kIncludeColumn, kTimesColumn, kSidesColumn, kModPerDieColumn, kModPerRollColumn, kPenetrateColumn };
constexpr int kHonorColumn = kPenetrateColumn + 1;
constexpr int kTotalColumn = kHonorColumn + 3;
constexpr int kHistoryColumns = kTotalColumn - kModPerRollColumn + 1;

constexpr ControlTemplate Spanning(ControlTemplate control, int columns) {
  control.ColumnSpan = columns;
  return control;
}

constexpr ControlTemplate kAboveRows[] = {
    LabelAt(kNamesRow, 0, "&Dice Roll"),
    ComboAt(kNamesRow, 0, kDiceRollNames, 20),
    ButtonAt(kNamesRow, 0, kAddDiceRoll, "&Add"),
    ButtonAt(kNamesRow, 0, kRemoveDiceRoll, "R&emove"),
    ButtonAt(kNamesRow, 0, kLoadPackage, "&Load"),
    ButtonAt(kNamesRow, 0, kSavePackage, "&Save"),
    Spanning(ResultAt(kNoteRow, 0, kNote, 40), kHonorColumn),
    HeadingAt(kNoteRow, kHonorColumn, "Honor Modifier", 3),
    HeadingAt(kHeadRow, kIncludeColumn, "Incl."),
    HeadingAt(kHeadRow, kTimesColumn, "Times"),
    HeadingAt(kHeadRow, kSidesColumn, "Sides"),
    HeadingAt(kHeadRow, kModPerDieColumn, "Mod/Die"),
    HeadingAt(kHeadRow, kModPerRollColumn, "Mod/Roll"),
    HeadingAt(kHeadRow, kPenetrateColumn, "Penetrate"),
    HeadingAt(kHeadRow, kHonorColumn, kHonorNames[0]),
    HeadingAt(kHeadRow, kHonorColumn + 1, kHonorNames[1]),
    HeadingAt(kHeadRow, kHonorColumn + 2, kHonorNames[2]),
    HeadingAt(kHeadRow, kTotalColumn, "Total"),
};

constexpr ControlTemplate HonorButtonAt(int row, int modifier) {
  return {.Kind = ControlKind::Radio,
          .Id = HonorButton(row, modifier),
          .Row = kFirstRow + row,
          .Column = kHonorColumn + modifier + 1,
          .Group = row + 1};
}

constexpr int kRowControls = 10;
constexpr std::array<ControlTemplate, kRowControls> ControlsOfRow(int row) {
  const int line = kFirstRow + row;
  return {CheckAt(line, kIncludeColumn, kInclude + row, kRowNames[row]),
          NumberAt(line, kTimesColumn, kTimes + row, 4),
          NumberAt(line, kSidesColumn, kSides + row, 4),
          NumberAt(line, kModPerDieColumn, kModPerDie + row, 4),
          NumberAt(line, kModPerRollColumn, kModPerRoll + row, 4),
          CheckAt(line, kPenetrateColumn, kPenetrate + row, ""),
          HonorButtonAt(row, -1),
          HonorButtonAt(row, 0),
          HonorButtonAt(row, 1),
          ResultAt(line, kTotalColumn, kTotal + row, 5)};
}

constexpr ControlTemplate kBelowRows[] = {
    LabelAt(kExpressionRow, 0, "E&xpression"),
    {.Kind = ControlKind::Edit,
     .Id = kExpression,
     .Row = kExpressionRow,
     .Width = 16,
     .Limit = 60,
     .EnterPresses = kRollExpression},
    ButtonAt(kExpressionRow, 0, kRollExpression, "Roll &It"),
    LabelAt(kExpressionRow, kHonorColumn, "Sum of the rows", 3),
    ResultAt(kExpressionRow, kTotalColumn, kSum, 5),
    ButtonAt(kButtonRow, 0, kRoll, "&Roll", ButtonRole::Default),
    ButtonAt(kButtonRow, 0, kMonsterAttack, "&Monster Attack"),
    ButtonAt(kButtonRow, 0, kClearRows, "Clear Ro&ws"),
    ButtonAt(kButtonRow, 0, kCopyHistory, "C&opy History"),
    ButtonAt(kButtonRow, 0, kClose, "&Close", ButtonRole::Cancel),
    HeadingAt(kResultsRow, 0, "Results", 4),
    HeadingAt(kResultsRow, kModPerRollColumn, "History", kHistoryColumns),
};
constexpr ControlTemplate kHistoryList =
    Spanning(ListAt(kFirstResult, kModPerRollColumn, kHistory, 40, kRows, kRows), kHistoryColumns);

constexpr auto kGmDiceRollerControls = [] {
  constexpr std::size_t kCount = std::size(kAboveRows) + kDiceRows * (kRowControls + 2) + std::size(kBelowRows) + 1;
  std::array<ControlTemplate, kCount> controls{};
  auto next = std::ranges::copy(kAboveRows, controls.begin()).out;
  for (int row = 0; row < kRows; ++row) next = std::ranges::copy(ControlsOfRow(row), next).out;
  next = std::ranges::copy(kBelowRows, next).out;
  for (int row = 0; row < kRows; ++row) {
    *next++ = LabelAt(kFirstResult + row, 0, kRowNames[row].substr(1));
    *next++ = {.Kind = ControlKind::Edit,
               .Id = kResults + row,
               .Row = kFirstResult + row,
               .Column = 1,
               .Width = 21,
               .ColumnSpan = 3,
               .IsReadOnly = true};
  }
  *next = kHistoryList;
  return controls;
}();
constexpr std::string_view kGmDiceRollerHelp =
    "The referee's dice, away from any character. Each row throws so many dice of so many sides, with a number added "
    "to each die or to the whole; Penetrate lets a highest face throw on. Mark the rows and press Roll: totals and "
    "single dice are shown, and the history keeps them.\n\n"
    "Or type 3d6+2, or 2d8p-1 for dice that penetrate, into Expression and press Enter: it fills the next row and "
    "throws. Add keeps the rows under a name, and a package of such names saves a night's monsters. Monster Attack "
    "throws to hit and tells the armor class that is hit.";
constexpr FormTemplate kGmDiceRoller{"GMDiceRoller", "GM's Dice Roller", kGmDiceRollerControls, kGmDiceRollerHelp};

// --- The roller --------------------------------------------------------------------------------------------------

/// The open dialog.
struct Roller {
  explicit Roller(Game& g) : game(g) {}

  Game& game;
  Form form{kGmDiceRoller};
  std::unique_ptr<DicePackage> package = std::make_unique<DicePackage>();
  std::vector<std::size_t> shownSlots;           ///< of the package, in the order of their names in the combo
  bool isUnsaved = false;                        ///< rolls were added or removed since the last load or save
  std::array<int, kDiceRows> expressionTurns{};  ///< when an expression filled the row; 0: a referee did
  int turn = 0;
};

void Note(Roller& roller, std::string_view text) {
  roller.form.SetText(kNote, text);
}

int HonorOf(int stored) {
  return stored == -1 || stored == 1 ? stored : 0;
}

/// A modifier's box: a number with a sign.
int SignedNumber(const Form& form, int id) {
  return static_cast<int>(std::clamp<std::int64_t>(ReadNumberPrefix(form.Text(id)), -kLargestEntry, kLargestEntry));
}

/// The rows as they stand on the page; the name is that of the roll chosen.
DiceRollRecord ReadRows(const Form& form) {
  DiceRollRecord roll;
  for (int row = 0; row < kRows; ++row) {
    const auto at = static_cast<std::size_t>(row);
    roll.Include[at] = form.IsChecked(kInclude + row) ? 1 : 0;
    roll.Times[at] = static_cast<int>(form.Number(kTimes + row));
    roll.Sides[at] = static_cast<int>(form.Number(kSides + row));
    roll.ModPerDie[at] = SignedNumber(form, kModPerDie + row);
    roll.ModPerRoll[at] = SignedNumber(form, kModPerRoll + row);
    roll.Penetrate[at] = form.IsChecked(kPenetrate + row) ? 1 : 0;
    roll.HonorModifier[at] = form.IsChecked(HonorButton(row, -1)) ? -1 : form.IsChecked(HonorButton(row, 1)) ? 1 : 0;
  }
  return roll;
}

DiceRow RowOf(const DiceRollRecord& roll, int row) {
  const auto at = static_cast<std::size_t>(row);
  return {.Times = roll.Times[at],
          .Sides = roll.Sides[at],
          .ModPerDie = roll.ModPerDie[at],
          .ModPerRoll = roll.ModPerRoll[at],
          .Penetrates = roll.Penetrate[at] == 1,
          .HonorModifier = HonorOf(roll.HonorModifier[at])};
}

/// A number of 0 is an empty box, so that the rows in use stand out.
void ShowNumber(Form& form, int id, int number) {
  form.SetText(id, number == 0 ? std::string() : Format("%i", number));
}

void ShowRow(Roller& roller, const DiceRollRecord& roll, int row) {
  Form& form = roller.form;
  const auto at = static_cast<std::size_t>(row);
  form.SetChecked(kInclude + row, roll.Include[at] == 1);
  ShowNumber(form, kTimes + row, roll.Times[at]);
  ShowNumber(form, kSides + row, roll.Sides[at]);
  ShowNumber(form, kModPerDie + row, roll.ModPerDie[at]);
  ShowNumber(form, kModPerRoll + row, roll.ModPerRoll[at]);
  form.SetChecked(kPenetrate + row, roll.Penetrate[at] == 1);
  for (int modifier = -1; modifier <= 1; ++modifier) {
    form.SetChecked(HonorButton(row, modifier), roll.HonorModifier[at] == modifier);
  }
  roller.expressionTurns[at] = 0;
}

void ShowRows(Roller& roller, const DiceRollRecord& roll) {
  for (int row = 0; row < kRows; ++row) ShowRow(roller, roll, row);
}

/// Long values are cut behind one of them.
std::string ShownValues(std::string_view values) {
  if (values.size() <= kMostShownValues) return std::string(values);
  return std::string(values.substr(0, values.rfind(' ', kMostShownValues) + 1)) + "...";
}

void ShowResult(Form& form, int row, const RowRoll& roll) {
  if (!roll.Values.empty()) form.SetText(kResults + row, ShownValues(roll.Values));
  form.SetNumber(kTotal + row, roll.Total);
}

void ClearResults(Form& form, int row) {
  form.SetText(kResults + row, {});
  form.SetText(kTotal + row, {});
}

void AddHistory(Form& form, const std::string& line) {
  std::vector<std::string> lines = form.Items(kHistory);
  if (lines.size() == kMostHistoryLines) lines.erase(lines.begin());
  lines.push_back(line);
  const int last = static_cast<int>(lines.size()) - 1;
  form.SetItems(kHistory, std::move(lines));
  form.Select(kHistory, last);
}

/// Rolls rows under a name: their totals, the sum, and a line of the history.
void RollRows(Roller& roller, const DiceRollRecord& roll, std::string_view name, const std::vector<int>& rows) {
  Game& game = roller.game;
  Form& form = roller.form;
  const HeldDiceLog log(game);
  LogDiceLine(game, name);
  for (int row = 0; row < kRows; ++row) {
    if (std::ranges::find(rows, row) == rows.end()) ClearResults(form, row);
  }
  int sum = 0;
  std::string totals;
  for (const int row : rows) {
    const RowRoll rolled = RollDiceRow(game, RowOf(roll, row), row, name);
    ShowResult(form, row, rolled);
    sum = AddSaturated(sum, rolled.Total);
    totals += Format(totals.empty() ? "%i" : ", %i", rolled.Total);
  }
  form.SetNumber(kSum, sum);
  LogDiceTotal(game, sum);
  AddHistory(form, std::string(name) + " ( " + totals + Format(" ) = %i", sum));
}

/// The chosen roll's slot in the package.
std::optional<std::size_t> ChosenSlot(const Roller& roller) {
  const int chosen = roller.form.Selection(kDiceRollNames);
  if (chosen < 0) return std::nullopt;
  return roller.shownSlots[static_cast<std::size_t>(chosen)];
}

std::string ChosenName(const Roller& roller) {
  const auto slot = ChosenSlot(roller);
  return slot ? std::string((*roller.package)[*slot].Name.View()) : std::string();
}

void Roll(Roller& roller) {
  const DiceRollRecord roll = ReadRows(roller.form);
  std::vector<int> rows;
  for (int row = 0; row < kRows; ++row) {
    if (roll.Include[static_cast<std::size_t>(row)] == 1) rows.push_back(row);
  }
  Note(roller, rows.empty() ? "No row is included: mark the box before it." : "");
  RollRows(roller, roll, ChosenName(roller), rows);
}

/// The row that an expression goes to: the first free one, else the one that an expression filled longest ago; -1 if
/// the referee has filled all ten.
int NextRow(const Roller& roller, const DiceRollRecord& roll) {
  int oldest = -1;
  for (std::size_t row = 0; row < kDiceRows; ++row) {
    if (roll.Times[row] == 0 && roll.Sides[row] == 0) return static_cast<int>(row);
    const int turn = roller.expressionTurns[row];
    if (turn > 0 && (oldest < 0 || turn < roller.expressionTurns[static_cast<std::size_t>(oldest)])) {
      oldest = static_cast<int>(row);
    }
  }
  return oldest;
}

void RollExpression(Roller& roller) {
  Form& form = roller.form;
  form.Focus(kExpression);
  const std::string text = form.Text(kExpression);
  const auto dice = ReadDiceExpression(text);
  if (!dice) return Note(roller, "Write dice like 3d6+2, 2d8p-1 or d20.");
  DiceRollRecord roll = ReadRows(form);
  const int row = NextRow(roller, roll);
  if (row < 0) return Note(roller, "All ten rows are in use: clear one of them.");
  Note(roller, "");
  const auto at = static_cast<std::size_t>(row);
  roll.Include[at] = 1;
  roll.Times[at] = dice->Times;
  roll.Sides[at] = dice->Sides;
  roll.ModPerDie[at] = 0;
  roll.ModPerRoll[at] = dice->ModPerRoll;
  roll.Penetrate[at] = dice->Penetrates ? 1 : 0;
  roll.HonorModifier[at] = 0;
  ShowRow(roller, roll, row);
  roller.expressionTurns[at] = ++roller.turn;
  RollRows(roller, roll, text, {row});
}

/// Fills the combo with the names of the package, and chooses one of its slots.
void RefillNames(Roller& roller, std::optional<std::size_t> chosen = std::nullopt) {
  const DicePackage& package = *roller.package;
  std::vector<std::size_t>& slots = roller.shownSlots;
  slots.clear();
  for (std::size_t slot = 0; slot < kDiceRolls; ++slot) {
    if (!package[slot].Name.Empty()) slots.push_back(slot);
  }
  std::ranges::stable_sort(slots, IsBeforeIgnoringCase, [&](std::size_t slot) { return package[slot].Name.View(); });
  std::vector<std::string> names;
  for (const std::size_t slot : slots) names.emplace_back(package[slot].Name.View());
  roller.form.SetItems(kDiceRollNames, std::move(names));
  if (!chosen) return;
  roller.form.Select(kDiceRollNames, static_cast<int>(std::ranges::find(slots, *chosen) - slots.begin()));
}

void AddDiceRoll(Roller& roller) {
  const auto name = AskText(roller.game.platform, "Choose the name for this new die roll", ChosenName(roller));
  if (!name) return;
  DiceRollRecord roll = ReadRows(roller.form);
  roll.Name = *name;
  if (roll.Name.Empty()) return roller.game.platform.ShowMessage("A dice roll without a name is not stored.");
  const auto slot = StoreDiceRoll(*roller.package, roll);
  if (!slot) {
    return roller.game.platform.ShowMessage(
        Format("The package is full: it holds %i dice rolls. Nothing is stored.", kDiceRolls));
  }
  roller.isUnsaved = true;
  RefillNames(roller, slot);
  Note(roller, Format("Stored as %s.", *name));
}

void RemoveDiceRoll(Roller& roller) {
  const auto slot = ChosenSlot(roller);
  if (!slot) return Note(roller, "Choose the dice roll to remove.");
  Note(roller, Format("Removed %s.", ChosenName(roller)));
  (*roller.package)[*slot] = FreeDiceRoll();
  roller.isUnsaved = true;
  RefillNames(roller);
}

/// True if nothing would be lost, or the referee does not mind.
bool MayLeavePackage(Roller& roller) {
  return !roller.isUnsaved ||
         roller.game.platform.Confirms("VELD", "The dice rolls are not saved to a package. Go on without them?");
}

void LoadPackage(Roller& roller) {
  if (!MayLeavePackage(roller)) return;
  const auto path = roller.game.platform.AskOpenPath("Load", kPackageFilters);
  if (!path || !LoadDicePackage(roller.game, *path, *roller.package)) return;
  roller.isUnsaved = false;
  RefillNames(roller);
  Note(roller, Format("Loaded %i dice rolls.", roller.shownSlots.size()));
}

void SavePackage(Roller& roller) {
  const auto path = roller.game.platform.AskSavePath("Save", kPackageFilters, {});
  if (!path || !SaveDicePackage(roller.game, *path, *roller.package)) return;
  roller.isUnsaved = false;
  RefillNames(roller, ChosenSlot(roller));
  Note(roller, Format("Saved %i dice rolls.", roller.shownSlots.size()));
}

void AttackWithMonster(Roller& roller) {
  const auto hitDice = AskText(roller.game.platform, "how many Hit dice does this Monster have?");
  if (hitDice) AddHistory(roller.form, MonsterAttackRoll(roller.game, *hitDice));
}

void ClearRows(Roller& roller) {
  ShowRows(roller, FreeDiceRoll());
  for (int row = 0; row < kRows; ++row) ClearResults(roller.form, row);
  roller.form.SetText(kSum, {});
  roller.form.Select(kDiceRollNames, -1);
  Note(roller, "");
}

void CopyHistory(Roller& roller) {
  const std::vector<std::string>& lines = roller.form.Items(kHistory);
  std::string text;
  for (const std::string& line : lines) (text += line) += '\n';
  const bool isCopied = roller.game.platform.CopyText(text);
  Note(roller, isCopied ? Format("Lines copied to the clipboard: %i.", lines.size())
                        : "There is no clipboard; dice.log holds every roll.");
}

void RunCommand(Roller& roller, int id) {
  switch (id) {
    case kRoll:
      return Roll(roller);
    case kRollExpression:
      return RollExpression(roller);
    case kAddDiceRoll:
      return AddDiceRoll(roller);
    case kRemoveDiceRoll:
      return RemoveDiceRoll(roller);
    case kLoadPackage:
      return LoadPackage(roller);
    case kSavePackage:
      return SavePackage(roller);
    case kMonsterAttack:
      return AttackWithMonster(roller);
    case kClearRows:
      return ClearRows(roller);
    case kCopyHistory:
      return CopyHistory(roller);
    case kClose:
      if (MayLeavePackage(roller)) roller.form.Close();
      return;
    default:
      return;
  }
}

void ChooseDiceRoll(Roller& roller) {
  if (const auto slot = ChosenSlot(roller)) ShowRows(roller, (*roller.package)[*slot]);
  Note(roller, "");
}

/// A row that the referee changes is his own from then on.
void TakeRow(Roller& roller, int id) {
  for (const int first : {kSides, kTimes, kModPerDie, kModPerRoll}) {
    if (id >= first && id < first + kRows) roller.expressionTurns[static_cast<std::size_t>(id - first)] = 0;
  }
}

}  // namespace

void RunGmDiceRoller(Game& game) {
  // What the dice are for in a generation that waits beside is kept for it.
  DiceState before = game.dice;
  game.dice.DiceLabel.clear();
  game.dice.RollContextText.clear();
  Roller roller(game);
  roller.form.onOpened = [&] {
    ResetDicePackage(*roller.package);
    ShowRows(roller, FreeDiceRoll());
    roller.form.Focus(kExpression);
  };
  roller.form.onSelect = [&](int id) {
    if (id == kDiceRollNames) ChooseDiceRoll(roller);
  };
  roller.form.onEdit = [&](int id) { TakeRow(roller, id); };
  roller.form.onCommand = [&](int id) { RunCommand(roller, id); };
  game.platform.RunForm(roller.form);
  before.RandomState = game.dice.RandomState;
  game.dice = before;
}

}  // namespace veld
