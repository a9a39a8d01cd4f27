#include "steps/abilities/step_eight.h"

#include <algorithm>

#include "platform/form.h"
#include "platform/platform.h"
#include "rules/class_table.h"
#include "steps/abilities/ability_effects_apply.h"
#include "steps/classes/class_choice.h"
#include "text/numbers.h"

namespace veld {

namespace {


constexpr int kOk = 1;
constexpr int kAbort = 2;
constexpr int kTryChanges = 3043;
constexpr int kFirstWhole = 11;
constexpr int kFirstPercentile = 18;
constexpr int kBuildingPoints = 25;
constexpr int kSocialClass = 26;
constexpr int kFirstEntry = StepEightControl::FirstEntry;
constexpr int kMissing = 3116;
constexpr int kReason = 27;

constexpr int kFirstAbilityRow = 5;
constexpr int kMissingRow = kFirstAbilityRow + kAbilityCount + 1;
constexpr int kLastRow = kMissingRow + 5;

constexpr auto kStepEightControls = [] {
  constexpr std::string_view kNames[] = {"&Strength", "&Dexterity", "Co&nstitution", "&Intelligence",
                                         "&Wisdom",   "C&harisma",  "Co&meliness"};
  std::array<ControlTemplate, 4 * kAbilityCount + 16> controls{};
  std::size_t next = 0;
  const auto add = [&](ControlTemplate control, int columnSpan = 1) {
    control.ColumnSpan = columnSpan;
    controls[next++] = control;
  };
  add(TitleAt(0, 0, "Step 8: Raise Ability Scores with BPs"), 5);
  add(LabelAt(1, 0, "Building Points: "));
  add(ResultAt(1, 1, kBuildingPoints, 8), 3);
  add(LabelAt(2, 0, "Social Class: "));
  add(ResultAt(2, 1, kSocialClass, 30), 3);
  add(LabelAt(4, 1, "Score"));
  add(LabelAt(4, 2, "%"));
  add(LabelAt(4, 3, "BP to spend"));
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const int row = kFirstAbilityRow + ability;
    add(LabelAt(row, 0, kNames[ability]));
    add(ResultAt(row, 1, kFirstWhole + ability, 5));
    add(ResultAt(row, 2, kFirstPercentile + ability, 5));
    add(NumberAt(row, 3, kFirstEntry + ability, 8));
  }
  add(LabelAt(kMissingRow, 0, "Wh&y not"));
  add(ComboAt(kMissingRow, 1, kMissing, 32), 3);
  add(TextAt(kMissingRow + 1, 0, kReason, {}, 46, 3), 4);
  add(LabelAt(1, 4, "C&lasses"));
  add(ListAt(2, 4, kClassList, 36, 12, kLastRow - 2));
  add(ButtonAt(kLastRow, 0, kOk, "&OK", ButtonRole::Default), 5);
  add(ButtonAt(kLastRow, 0, kAbort, "&Abort", ButtonRole::Cancel), 5);
  add(ButtonAt(kLastRow, 0, kTryChanges, "&Try Changes"), 5);
  return controls;
}();
constexpr std::string_view kStepEightHelp =
    "Building Points become ability here: each BP adds 25 to the percentile of one ability, and a percentile past 100 "
    "carries into the next whole point. Four BP are thus one point of score, at every height, and there is no other "
    "limit than the BP.\n\n"
    "Type the whole number of BP for each ability and press Try Changes. The page shows the scores, what is left and "
    "the classes that they open; Why not tells what a missing class wants. You may try as often as you like, even "
    "with more than you have. OK spends for good, and refuses if it is too much. A fraction of a BP is lost on the "
    "way.\n\n"
    "Buy the point that opens the class you want, or nothing. Every BP kept goes to skills later, and those are "
    "seldom regretted.";
constexpr FormTemplate kStepEight{"StepEight", "Step 8", kStepEightControls, kStepEightHelp};

std::size_t Index(int ability) {
  return static_cast<std::size_t>(ability);
}

RaiseEntries ReadEntries(const Form& form) {
  RaiseEntries entries{};
  for (int ability = 0; ability < kAbilityCount; ++ability)
    entries[Index(ability)] = form.Number(kFirstEntry + ability);
  return entries;
}

void ShowBuildingPoints(const Game& game, Form& form) {
  form.SetNumber(kBuildingPoints, TruncateToInt(game.run.BuildingPoints));
}

void ShowReason(const Game& game, Form& form) {
  const int selection = form.Selection(kMissing);
  const std::vector<int> missing = MissingClasses(game);
  const bool isChosen = selection >= 0 && selection < static_cast<int>(missing.size());
  form.SetText(kReason, isChosen ? WhyClassIsMissing(game, missing[Index(selection)]) : std::string());
}

/// The classes that the scores allow; those that are missing, with the reason of the one chosen while it is missing.
void ShowClasses(Game& game, Form& form) {
  FillClassBox(game, form);
  const std::string chosen = form.SelectedText(kMissing);
  std::vector<std::string> names;
  for (const int row : MissingClasses(game)) names.emplace_back(ClassTable()[Index(row)].Name);
  const auto place = chosen.empty() ? names.end() : std::ranges::find(names, chosen);
  const int selection = place == names.end() ? -1 : static_cast<int>(place - names.begin());
  form.SetItems(kMissing, std::move(names));
  form.Select(kMissing, selection);
  ShowReason(game, form);
}

void ShowStepEight(Game& game, Form& form) {
  ShowBuildingPoints(game, form);
  form.SetText(kSocialClass, game.sheet.SocialClassName);
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    form.SetNumber(kFirstWhole + ability, AbilityAt(game.sheet, ability).Whole);
    form.SetNumber(kFirstPercentile + ability, AbilityAt(game.sheet, ability).Percentile);
  }
  ShowClasses(game, form);
}

/// OK: spends the BP for good. Returns false, having told the player, if they are not enough.
bool FinishRaises(Game& game, const RaiseBase& base, const RaiseEntries& entries) {
  if (!SpendRaiseBP(game, base, entries)) {
    game.platform.ShowMessage("You can not spend more BPs then you have!");
    return false;
  }
  RaiseAbilities(game, base, entries);
  ApplyAbilityTables(game);
  game.run.CurrentStep = 9;
  return true;
}

}  // namespace

RaiseBase TakeRaiseBase(const Game& game) {
  RaiseBase base;
  for (int ability = 0; ability < kAbilityCount; ++ability)
    base.Scores[Index(ability)] = AbilityAt(game.sheet, ability);
  base.BP = TruncateToInt(game.run.BuildingPoints);
  return base;
}

void RestoreRaiseBase(Game& game, const RaiseBase& base) {
  for (int ability = 0; ability < kAbilityCount; ++ability)
    AbilityAt(game.sheet, ability) = base.Scores[Index(ability)];
  game.run.BuildingPoints = static_cast<float>(base.BP);
}

bool SpendRaiseBP(Game& game, const RaiseBase& base, const RaiseEntries& entries) {
  std::int64_t left = base.BP;
  for (const std::int64_t entry : entries) left -= entry;
  game.run.BuildingPoints = static_cast<float>(left);
  return left >= 0;
}

void RaiseAbilities(Game& game, const RaiseBase& base, const RaiseEntries& entries) {
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    AbilityScore& score = AbilityAt(game.sheet, ability);
    score = base.Scores[Index(ability)];
    score.Percentile = SaturateToInt(score.Percentile + kPercentilePerBP * entries[Index(ability)]);
    NormalizeAbility(score);
  }
}

void RunStepEight(Game& game) {
  Form form(kStepEight);
  RaiseBase base;
  form.onOpened = [&] {
    base = TakeRaiseBase(game);
    for (int ability = 0; ability < kAbilityCount; ++ability) form.SetNumber(kFirstEntry + ability, 0);
    ShowStepEight(game, form);
  };
  form.onSelect = [&](int id) {
    if (id == kMissing) ShowReason(game, form);
  };
  form.onCommand = [&](int id) {
    if (id == kTryChanges) {
      SpendRaiseBP(game, base, ReadEntries(form));
      RaiseAbilities(game, base, ReadEntries(form));
      ShowStepEight(game, form);
    } else if (id == kOk) {
      if (FinishRaises(game, base, ReadEntries(form))) return form.Close();
      ShowBuildingPoints(game, form);
    } else if (id == kAbort) {
      RestoreRaiseBase(game, base);
      game.run.CurrentStep = 0;
      form.Close();
    }
  };
  game.platform.RunForm(form);
}

}  // namespace veld
