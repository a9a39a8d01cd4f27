#include <algorithm>

#include "editors/character_backup.h"
#include "editors/class_progress.h"
#include "editors/edit_classes.h"
#include "editors/whole_number.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/class_table.h"
#include "text/format.h"

namespace veld {

namespace {

enum : int {
  kOk = 1,
  kCancel = 2,
  kTold = 3,
  kClasses = 10,
  kLevels = 11,
  kRoll = 12,
  kSet = 13,
  kFirstNumber = 20,
};

constexpr int kGains = 1;  // number 0 is the hit points, then come the gains, then the points placed
constexpr int kPlaced = kGains + kAbilityCount;
constexpr int kNumbers = kPlaced + static_cast<int>(kThiefAbilities);
constexpr int kRows = 9;
constexpr int kLeast = -9'999;
constexpr int kMost = 9'999;

constexpr std::array<std::string_view, kNumbers> kNames = {
    "Hit points",    "STR gained",      "DEX gained",   "CON gained",  "INT gained",    "WIS gained",
    "CHA gained",    "COM gained",      "Pick pockets", "Open locks",  "Find traps",    "Remove traps",
    "Move silently", "Hide in shadows", "Detect noise", "Climb walls", "Read languages"};

constexpr auto kControls = [] {
  std::array<ControlTemplate, 2 * kNumbers + 9> controls{};
  std::size_t next = 0;
  controls[next++] = TitleAt(0, 0, "Levels and hit points", 5);
  controls[next++] = LabelAt(1, 0, "&Class");
  controls[next++] = ComboAt(1, 0, kClasses, 22);
  controls[next] = ListAt(2, 0, kLevels, 29, kRows, kRows);
  controls[next++].EnterPresses = kSet;  // not the dice
  for (int number = 0; number < kNumbers; ++number) {
    const int row = 2 + number % kRows;
    const int column = 1 + 2 * (number / kRows);
    controls[next++] = LabelAt(row, column, kNames[static_cast<std::size_t>(number)]);
    controls[next] = NumberAt(row, column + 1, kFirstNumber + number, 6);
    controls[next++].EnterPresses = kSet;
  }
  controls[next++] = TextAt(2 + kRows, 0, kTold, {}, 76, 2, 1, 5);
  const auto addButton = [&](int id, std::string_view text, ButtonRole role) {
    controls[next] = ButtonAt(3 + kRows, 0, id, text, role);
    controls[next++].ColumnSpan = 5;
  };
  addButton(kRoll, "&Roll hit points again", ButtonRole::Default);
  addButton(kSet, "&Set", ButtonRole::Plain);
  addButton(kOk, "&OK", ButtonRole::Plain);
  addButton(kCancel, "Ca&ncel", ButtonRole::Cancel);
  return controls;
}();
constexpr std::string_view kEditLevelsHelp =
    "What each level brought, a row each: hit points, gains of the abilities, and a thief's arts. Choose the class "
    "and the level, change numbers and press Set, or roll its hit points again. The total follows at once. Use it "
    "when a die was misread or a level was drained; Cancel puts everything back.";
constexpr FormTemplate kEditLevels{"EditLevels", "Levels and hit points", kControls, kEditLevelsHelp};

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

/// What a level brought of one number.
int& NumberOf(CharacterSheet& sheet, int number, int classRow, int level) {
  if (number < kGains) return sheet.LevelHitPoints[Index(level)][Index(classRow)];
  if (number < kPlaced) return LevelGainAt(sheet, number - kGains)[Index(classRow)][Index(level)];
  return ThiefAbilityAt(sheet, Index(number - kPlaced))[Index(level)];
}

class LevelsPage {
 public:
  explicit LevelsPage(Game& game) : game_(game), form_(kEditLevels), backup_(game), rows_(ClassesHeld(game.sheet)) {
    form_.onOpened = [this] {
      std::vector<std::string> names;
      for (const int row : rows_) names.emplace_back(ClassAt(row).Name);
      form_.SetItems(kClasses, std::move(names));
      form_.Select(kClasses, 0);
      ShowLevels(HighestShown());
      form_.Focus(kLevels);
    };
    form_.onSelect = [this](int id) {
      if (id == kClasses) ShowLevels(HighestShown());
      if (id == kLevels) ShowNumbers();
    };
    form_.onCommand = [this](int id) { Command(id); };
  }

  void Run() {
    if (rows_.empty()) {
      return game_.platform.ShowMessage("A character without a class has no levels.");
    }
    game_.platform.RunForm(form_);
    if (!isAccepted_) backup_.Restore(game_);
  }

 private:
  int Row() const { return rows_[Index(std::max(form_.Selection(kClasses), 0))]; }
  int Level() const { return std::max(form_.Selection(kLevels), 0); }
  int HighestShown() const { return game_.sheet.ClassLevels[Index(Row())]; }
  void Tell(std::string_view text) { form_.SetText(kTold, text); }

  /// Level 0 is what the class brings before its first level.
  void ShowLevels(int chosen) {
    std::vector<std::string> lines;
    for (int level = 0; level <= HighestShown(); ++level) {
      const int points = game_.sheet.LevelHitPoints[Index(level)][Index(Row())];
      lines.push_back(level == 0 ? Format("Before: %i hit points", points)
                                 : Format("Level %i: %i hit points", level, points));
    }
    form_.SetItems(kLevels, std::move(lines));
    form_.Select(kLevels, chosen);
    ShowNumbers();
  }

  void ShowNumbers() {
    for (int number = 0; number < kNumbers; ++number) {
      form_.SetNumber(kFirstNumber + number, NumberOf(game_.sheet, number, Row(), Level()));
      // What the class brings at first is hit points; the other numbers of level 0 follow from race and Dexterity.
      form_.SetEnabled(kFirstNumber + number, Level() > 0 || number < kGains);
    }
    form_.SetEnabled(kRoll, Level() > 0);
  }

  /// Writes in all numbers of the level, or tells the first that is out of its range and goes there.
  bool Set() {
    std::array<int, kNumbers> numbers{};
    for (int number = 0; number < kNumbers; ++number) {
      const int id = kFirstNumber + number;
      numbers[Index(number)] = NumberOf(game_.sheet, number, Row(), Level());
      if (form_.Text(id) == Format("%i", numbers[Index(number)])) continue;  // a number from a file may be anything
      const auto typed = WholeNumber(form_.Text(id), kLeast, kMost);
      if (!typed) {
        Tell(WholeNumberWanted(kNames[Index(number)], kLeast, kMost));
        form_.Focus(id);
        return false;
      }
      numbers[Index(number)] = *typed;
    }
    ChangeLevelTables(game_, [&] {
      for (int number = 0; number < kNumbers; ++number) {
        NumberOf(game_.sheet, number, Row(), Level()) = numbers[Index(number)];
      }
    });
    return true;
  }

  void TellHitPoints() { Tell(Format("The character has %i hit points.", game_.sheet.HitPoints)); }

  void Command(int id) {
    if (id == kOk || id == kCancel) {
      isAccepted_ = id == kOk;
      return form_.Close();
    }
    if (id == kRoll) {
      RollLevelHitPoints(game_, Row(), Level());
      BringClassesUpToDate(game_);
    } else if (!Set()) {
      return;
    }
    TellHitPoints();
    ShowLevels(Level());
  }

  Game& game_;
  Form form_;
  CharacterBackup backup_;
  std::vector<int> rows_;
  bool isAccepted_ = false;
};

}  // namespace

void RunEditLevels(Game& game) {
  BringClassesUpToDate(game);
  LevelsPage(game).Run();
}

}  // namespace veld
