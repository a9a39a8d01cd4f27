#include "steps/classes/step_nine.h"

#include "platform/form.h"
#include "platform/platform.h"
#include "rules/class_table.h"
#include "steps/classes/class_choice.h"
#include "steps/classes/class_recalculation.h"
#include "steps/race/race_choice.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kOk = 1;
constexpr int kAbort = 2;
constexpr int kFirstWhole = 11;
constexpr int kFirstPercentile = 18;
constexpr int kBuildingPoints = 25;
constexpr int kReason = 27;
constexpr int kClassName = 55;
constexpr int kMissing = 3116;

constexpr int kFirstAbilityRow = 5;
constexpr int kMissingRow = kFirstAbilityRow + kAbilityCount + 1;
constexpr int kLastRow = kMissingRow + 5;

constexpr auto kStepNineControls = [] {
  constexpr std::string_view kNames[] = {"Strength", "Dexterity", "Constitution", "Intelligence",
                                         "Wisdom",   "Charisma",  "Comeliness"};
  std::array<ControlTemplate, 3 * kAbilityCount + 14> controls{};
  std::size_t next = 0;
  const auto add = [&](ControlTemplate control, int columnSpan = 1) {
    control.ColumnSpan = columnSpan;
    controls[next++] = control;
  };
  add(TitleAt(0, 0, "Step 9: Choose a Class"), 4);
  add(LabelAt(1, 0, "Building Points: "));
  add(ResultAt(1, 1, kBuildingPoints, 8), 2);
  add(LabelAt(2, 0, "Class: "));
  add(ResultAt(2, 1, kClassName, 30), 2);
  add(LabelAt(4, 1, "Score"));
  add(LabelAt(4, 2, "%"));
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const int row = kFirstAbilityRow + ability;
    add(LabelAt(row, 0, kNames[ability]));
    add(ResultAt(row, 1, kFirstWhole + ability, 5));
    add(ResultAt(row, 2, kFirstPercentile + ability, 5));
  }
  add(LabelAt(kMissingRow, 0, "&Why not"));
  add(ComboAt(kMissingRow, 1, kMissing, 32), 2);
  add(TextAt(kMissingRow + 1, 0, kReason, {}, 46, 3), 3);
  add(LabelAt(1, 3, "&Classes"));
  add(ListAt(2, 3, kClassList, 36, 12, kLastRow - 2));
  add(ButtonAt(kLastRow, 0, kOk, "&OK", ButtonRole::Default), 4);
  add(ButtonAt(kLastRow, 0, kAbort, "&Abort", ButtonRole::Cancel), 4);
  return controls;
}();
constexpr std::string_view kStepNineHelp =
    "Here he gets his calling. The list has every class that his scores, race, birth and flaws allow and whose book "
    "is in use; Why not tells of any other what stands in the way. Choosing a class costs nothing and shows at once "
    "the BP that it brings, which are paid once however often you change your mind. Classes with a stroke between "
    "their names are multiclasses: broader, and slower in every level that follows.\n\n"
    "OK makes it stand: hit points, saves, fighting and what the class grants are rolled and written now, and cannot "
    "be changed but by Undo. An empty list means that flaws, a low birth or poor scores have shut every door; then "
    "take back a flaw or the last step, or Abort and begin anew.";
constexpr FormTemplate kStepNine{"StepNine", "Step 9", kStepNineControls, kStepNineHelp};

constexpr std::string_view kNoClass = "Please Pick";

void ShowStepNine(const Game& game, Form& form) {
  form.SetNumber(kBuildingPoints, TruncateToInt(game.run.BuildingPoints));
  form.SetText(kClassName, game.sheet.ClassName);
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    form.SetNumber(kFirstWhole + ability, AbilityAt(game.sheet, ability).Whole);
    form.SetNumber(kFirstPercentile + ability, AbilityAt(game.sheet, ability).Percentile);
  }
}

void ShowMissingClasses(Form& form, const std::vector<int>& missing) {
  std::vector<std::string> names;
  for (const int row : missing) names.emplace_back(ClassTable()[static_cast<std::size_t>(row)].Name);
  form.SetItems(kMissing, std::move(names));
}

}  // namespace

ClassNotes ChooseClass(Game& game, const ClassChoiceBase& base, std::string_view name) {
  game.sheet.ClassName = name;
  game.sheet.Wisdom.Whole = base.Wisdom;
  game.run.BuildingPoints = static_cast<float>(base.BP);
  ClassNotes notes;
  for (const ClassRecord& record : ClassTable()) {
    if (record.Name.empty() || !EqualsIgnoringCase(record.Name, name)) continue;
    game.run.BuildingPoints += static_cast<float>(record.ClassBPGift);
    notes = {record.BackgroundModifier, record.IsThief, record.IsCleric, record.IsMage, record.IsFighter};
  }
  return notes;
}

void AcceptClass(Game& game, const ClassNotes& notes) {
  BindRaceRow(game);
  game.run.InheritanceModifier = AddSaturated(game.run.InheritanceModifier, notes.BackgroundModifier);
  game.sheet.IsThiefClass = notes.IsThief;
  game.sheet.IsClericClass = notes.IsCleric;
  game.sheet.IsMageClass = notes.IsMage;
  game.sheet.IsFighterClass = notes.IsFighter;
  game.run.CurrentStep = 10;
  RecomputeFromClasses(game);
}

void RunStepNine(Game& game) {
  Form form(kStepNine);
  ClassChoiceBase base;
  ClassNotes notes;
  std::vector<int> missing;
  form.onOpened = [&] {
    game.run.CurrentStep = 0;
    base = {TruncateToInt(game.run.BuildingPoints), game.sheet.Wisdom.Whole};
    ShowStepNine(game, form);
    FillClassBox(game, form);
    missing = MissingClasses(game);
    ShowMissingClasses(form, missing);
    form.Focus(kClassList);
  };
  form.onSelect = [&](int id) {
    const int selection = form.Selection(id);
    if (selection < 0) return;
    if (id == kMissing) {
      form.SetText(kReason, WhyClassIsMissing(game, missing[static_cast<std::size_t>(selection)]));
    } else {
      notes = ChooseClass(game, base, form.SelectedText(id));
      ShowStepNine(game, form);
    }
  };
  form.onCommand = [&](int id) {
    if (id == kAbort) {
      game.run.CurrentStep = 0;
      return form.Close();
    }
    if (game.sheet.ClassName == kNoClass || !notes.IsChosen()) {
      game.platform.ShowMessage("You must pick a class");
      return;
    }
    AcceptClass(game, notes);
    form.Close();
  };
  game.platform.RunForm(form);
}

}  // namespace veld
