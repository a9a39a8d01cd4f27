#include "steps/family/step_six.h"

#include "platform/control_names.h"
#include "platform/platform.h"
#include "steps/family/prior_gates.h"
#include "steps/family/priors.h"
#include "text/format.h"

namespace veld {

namespace {

constexpr int kOk = 1;
constexpr int kAbort = 2;
constexpr int kBuildingPoints = 25;
constexpr int kNext = 27;
constexpr int kFirstButton = StepSixControl::FirstTable;

/// A table on the page: its button (their ids run in the order of Prior), its result and the unit of a number.
struct PriorRow {
  std::string_view Button;
  int Result;
  std::string_view Unit = {};
};

constexpr std::array<PriorRow, kPriorCount> kPriorRows{{
    {"Starting A&ge", 11, "years"},
    {"&Handedness", 12},
    {"H&eight", 13, "inches"},
    {"&Weight", 14, "pounds"},
    {"Social &Class", 15},
    {"Circumstance of &Birth", 16},
    {"&Nature of Illegitimacy", 17},
    {"Status of &Mother", 18},
    {"Status of &Father", 19},
    {"Step &Parent Check", 26},
    {"&Quality of Mother", 20},
    {"Q&uality of Father", 21},
    {"Fam&ily Heritage", 22},
    {"Number of &Siblings", 23},
    {"O&rder of Birth", 24},
}};

constexpr int kResultWidth = 64;
constexpr int kNumberWidth = 5;

constexpr auto kStepSixControls = [] {
  constexpr std::size_t kUnits = 3;
  constexpr std::size_t kOthers = 6;
  std::array<ControlTemplate, 2 * kPriorCount + kUnits + kOthers> controls{};
  std::size_t next = 0;
  controls[next++] = TitleAt(0, 0, "Step 6: Character Priors and Particulars", 2);
  controls[next++] = LabelAt(1, 0, "Building Points: ");
  controls[next++] = ResultAt(1, 1, kBuildingPoints, kNumberWidth);
  int row = 2;
  for (std::size_t prior = 0; prior < kPriorCount; ++prior, ++row) {
    const PriorRow& shown = kPriorRows[prior];
    controls[next++] = ButtonAt(row, 0, kFirstButton + static_cast<int>(prior), shown.Button);
    controls[next++] = ResultAt(row, 1, shown.Result, shown.Unit.empty() ? kResultWidth : kNumberWidth);
    if (!shown.Unit.empty()) controls[next++] = LabelAt(row, 1, shown.Unit);
  }
  controls[next] = ResultAt(row, 0, kNext, 40);
  controls[next++].ColumnSpan = 2;
  controls[next] = ButtonAt(row + 1, 0, kOk, "&OK", ButtonRole::Default);
  controls[next++].ColumnSpan = 2;
  controls[next] = ButtonAt(row + 1, 0, kAbort, "&Abort", ButtonRole::Cancel);
  controls[next++].ColumnSpan = 2;
  return controls;
}();
constexpr std::string_view kStepSixHelp =
    "This step settles who he was before he was anybody: age, hand and size, the class he was born into, his parents "
    "and his place among his brothers and sisters. Press the buttons from the top; each opens the next, and OK takes "
    "you on when the last is done. The line under the table tells what is wanted now.\n\n"
    "The first press of a button is free. A second one rolls it again for 1 BP, but only until a later roll has "
    "closed it. If you pay for anything here, pay for social class: it decides which classes will have him, his Honor "
    "and his purse. Quality of the parents may bring BP or cost them, and may bring quirks, which you roll at once. A "
    "low birth is playable, and often the better story.";
constexpr FormTemplate kStepSix{"StepSix", "Step 6", kStepSixControls, kStepSixHelp};

int ButtonOf(Prior prior) {
  return kFirstButton + static_cast<int>(prior);
}

/// The table whose button this is; kPriorCount for any other control.
Prior PriorOf(int button) {
  const int place = button - kFirstButton;
  return place >= 0 && place < static_cast<int>(kPriorCount) ? static_cast<Prior>(place) : kPriorCount;
}

/// What the character has of each table.
std::array<std::string, kPriorCount> PriorResults(const CharacterSheet& sheet) {
  const auto number = [](int value) { return Format("%i", value); };
  const auto text = [](std::string_view value) { return std::string(value); };
  return {number(sheet.Age),
          text(sheet.Handedness),
          number(sheet.HeightInches),
          number(sheet.WeightLbs),
          text(sheet.SocialClassName),
          text(sheet.BirthCircumstance),
          text(sheet.IllegitimacyNature),
          text(sheet.MotherStatus),
          text(sheet.FatherStatus),
          text(sheet.StepParent),
          text(sheet.MotherQuality),
          text(sheet.FatherQuality),
          text(sheet.FamilyHeritage),
          text(sheet.SiblingCountText),
          text(sheet.BirthOrder)};
}

/// Shows all results, the BP left and the table that comes next, whose button takes the focus.
void ShowStepSix(const Game& game, const PriorGates& gates, Form& form) {
  const auto results = PriorResults(game.sheet);
  for (std::size_t prior = 0; prior < kPriorCount; ++prior) form.SetText(kPriorRows[prior].Result, results[prior]);
  form.SetNumber(kBuildingPoints, TruncateToInt(game.run.BuildingPoints));
  const Prior next = NextPrior(game, gates);
  const bool isComplete = next == kPriorCount;
  form.SetText(kNext, isComplete ? "Next: OK" : Format("Next: %s", WithoutMnemonic(kPriorRows[next].Button)));
  form.Focus(isComplete ? kOk : ButtonOf(next));
}

}  // namespace

void RunStepSix(Game& game) {
  Form form(kStepSix);
  PriorGates gates{};
  form.onOpened = [&] {
    gates = OpenPriors(game);
    ShowStepSix(game, gates, form);
  };
  form.onCommand = [&](int id) {
    if (id == kAbort) {
      game.run.CurrentStep = 1;
      return form.Close();
    }
    if (id == kOk) {
      if (FinishPriors(game)) return form.Close();
    } else if (PriorOf(id) != kPriorCount) {
      PressPrior(game, gates, PriorOf(id));
    }
    ShowStepSix(game, gates, form);
    // The limits are told on every press of this button, on a closed gate too.
    if (PriorOf(id) == kSocialClass) TellSocialClassLimits(game);
  };
  game.platform.RunForm(form);
}

}  // namespace veld
