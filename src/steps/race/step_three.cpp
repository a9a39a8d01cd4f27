#include "steps/race/step_three.h"

#include <algorithm>

#include "platform/form.h"
#include "platform/platform.h"
#include "steps/race/race_choice.h"
#include "steps/race/step_three_menu.h"
#include "text/format.h"

namespace veld {

namespace {

constexpr int kFirstScore = 3000;
constexpr int kBuildingPoints = 3014;
constexpr int kHelp = 3015;
constexpr int kRaces = StepThreeControl::Races;
constexpr int kLanguages = 3028;
constexpr int kContinue = StepThreeControl::Continue;
constexpr int kAbort = 3046;
constexpr int kRollAgain = 3047;

constexpr std::string_view kHelpText =
    "HELP\n\n"
    "To complete this section you must select a race.\n\n"
    "You can activate the menu by right-clicking.\n\n"
    "From the menu you can adjust ability scores, burn for BP and even enter your own dice rolls. (3-18 please, you "
    "are "
    "playing Quellmarch, right?)\n\n"
    "For all other questions, look in your Adventurer's Codex!";

constexpr int kScoreWidth = 8;

constexpr ControlTemplate kStepThreeControls[] = {
    TitleAt(0, 0, "Roll Ability Scores and Select Race", 4),
    LabelAt(1, 0, "Strength"),
    ResultAt(1, 1, kFirstScore + kStrength, kScoreWidth),
    LabelAt(2, 0, "Dexterity"),
    ResultAt(2, 1, kFirstScore + kDexterity, kScoreWidth),
    LabelAt(3, 0, "Constitution"),
    ResultAt(3, 1, kFirstScore + kConstitution, kScoreWidth),
    LabelAt(4, 0, "Intelligence"),
    ResultAt(4, 1, kFirstScore + kIntelligence, kScoreWidth),
    LabelAt(5, 0, "Wisdom"),
    ResultAt(5, 1, kFirstScore + kWisdom, kScoreWidth),
    LabelAt(6, 0, "Charisma"),
    ResultAt(6, 1, kFirstScore + kCharisma, kScoreWidth),
    LabelAt(7, 0, "Comeliness"),
    ResultAt(7, 1, kFirstScore + kComeliness, kScoreWidth),
    LabelAt(9, 0, "Building Points"),
    ResultAt(9, 1, kBuildingPoints, kScoreWidth),
    LabelAt(1, 2, "Ra&ce"),
    ListAt(2, 2, kRaces, 28, 12, 12),
    LabelAt(14, 2, "&Native Language"),
    ComboAt(15, 2, kLanguages, 24),
    TextAt(1, 3, kHelp, kHelpText, 34, 15, 15),
    ButtonAt(17, 0, kContinue, "C&ontinue", ButtonRole::Default),
    ButtonAt(17, 0, kAbort, "&Abort", ButtonRole::Cancel),
    ButtonAt(17, 0, kRollAgain, "&Roll again"),
};
constexpr std::string_view kStepThreeHelp =
    "Here the character gets his seven abilities and his race. Each ability is 3d6 with a percentile behind it, in "
    "the order rolled; Roll again throws all of them anew, as often as you like, and forgets what was traded. The "
    "list holds only the races that these scores allow, and choosing one shows its changes and its Building Points at "
    "once.\n\n"
    "The page's menu trades two points of an ability for one of another, burns a point for 2 BP, or takes scores from "
    "your own dice, at the price of all BP so far. Trade before you choose, for it forgets the race, and burn with "
    "care: a score once lost bars races and classes.\n\n"
    "Then pick the native language, and Continue. After this page the race stands.";
constexpr FormTemplate kStepThree{"StepThree", "Step 3", kStepThreeControls, kStepThreeHelp};

constexpr int kFirstWhole = 3000;
constexpr int kFirstPercentile = 3007;
constexpr int kEntryOk = 1;
constexpr int kEntryAbort = 2;

constexpr auto kEnterAbilityControls = [] {
  constexpr std::string_view kNames[] = {"Strength", "Dexterity", "Constitution", "Intelligence",
                                         "Wisdom",   "Charisma",  "Comeliness"};
  std::array<ControlTemplate, 3 * kAbilityCount + 5> controls{};
  std::size_t next = 0;
  controls[next++] = TitleAt(0, 0, "Enter Ability Scores", 3);
  controls[next++] = LabelAt(1, 1, "3d6");
  controls[next++] = LabelAt(1, 2, "1d100");
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    controls[next++] = LabelAt(ability + 2, 0, kNames[ability]);
    controls[next++] = NumberAt(ability + 2, 1, kFirstWhole + ability, 6);
    controls[next++] = NumberAt(ability + 2, 2, kFirstPercentile + ability, 6);
  }
  controls[next] = ButtonAt(kAbilityCount + 2, 0, kEntryOk, "OK", ButtonRole::Default);
  controls[next].ColumnSpan = 3;
  ++next;
  controls[next] = ButtonAt(kAbilityCount + 2, 0, kEntryAbort, "Abort", ButtonRole::Cancel);
  controls[next].ColumnSpan = 3;
  return controls;
}();
constexpr std::string_view kEnterAbilityHelp =
    "For scores thrown with your own dice: 3d6 in the first column, 3 to 18, and the percentile in the second, 1 to "
    "100. OK takes them all at once. Either way out of this page costs all the Building Points gained so far, so "
    "enter scores before you trade or burn.";
constexpr FormTemplate kEnterAbility{"EnterAbility", "Enter Stats", kEnterAbilityControls, kEnterAbilityHelp};

using EnteredScores = std::array<AbilityScore, kAbilityCount>;

/// Tells what is wrong with scores that no dice give. Returns false if so.
bool AcceptEnteredScores(Game& game, const EnteredScores& scores) {
  const auto isWhole = [](const AbilityScore& s) { return s.Whole >= 3 && s.Whole <= 18; };
  const auto isPercentile = [](const AbilityScore& s) { return s.Percentile >= 1 && s.Percentile <= 100; };
  if (!std::ranges::all_of(scores, isWhole)) {
    game.platform.ShowMessage("All ability scores must be between 3 and 18. You are rolling 3d6, right?");
    return false;
  }
  if (!std::ranges::all_of(scores, isPercentile)) {
    game.platform.ShowMessage("All percentile scores must be between 1 and 100. You are rolling 1d100, right?");
    return false;
  }
  return true;
}

void RunEnterAbility(Game& game) {
  Form form(kEnterAbility);
  form.onOpened = [&] {
    for (int ability = 0; ability < kAbilityCount; ++ability) {
      form.SetNumber(kFirstWhole + ability, AbilityAt(game.sheet, ability).Whole);
      form.SetNumber(kFirstPercentile + ability, AbilityAt(game.sheet, ability).Percentile);
    }
  };
  form.onCommand = [&](int id) {
    if (id == kEntryAbort) return form.Close();
    EnteredScores scores;
    for (int ability = 0; ability < kAbilityCount; ++ability) {
      scores[static_cast<std::size_t>(ability)] = {static_cast<int>(form.Number(kFirstWhole + ability)),
                                                   static_cast<int>(form.Number(kFirstPercentile + ability))};
    }
    if (!AcceptEnteredScores(game, scores)) return;
    for (int ability = 0; ability < kAbilityCount; ++ability) {
      AbilityAt(game.sheet, ability) = scores[static_cast<std::size_t>(ability)];
    }
    game.run.BuildingPoints = 0;
    form.Close();
  };
  game.platform.RunForm(form);
}

/// The open window: its form and the base that its commands work on.
struct StepThreeWindow {
  Form form{kStepThree};
  BaseAbilities base;
};

void ShowScores(const Game& game, Form& form) {
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const AbilityScore& score = AbilityAt(game.sheet, ability);
    form.SetText(kFirstScore + ability, Format("%i/%i", score.Whole, score.Percentile));
  }
  form.SetNumber(kBuildingPoints, TruncateToInt(game.run.BuildingPoints));
}

void RefreshAbilityDisplay(const Game& game, Form& form) {
  ShowScores(game, form);
  form.SetItems(kRaces, FittingRaces(game));
}

void ChooseRace(Game& game, StepThreeWindow& window) {
  if (ApplyRace(game, window.base, window.form.SelectedText(kRaces))) {
    window.form.SetItems(kLanguages, RaceLanguages(game));
    window.form.Select(kLanguages, 0);
  }
  ShowScores(game, window.form);
}

/// The native language that stands in the list; its first one if none is chosen.
std::string ChosenLanguage(const Form& form) {
  const auto& languages = form.Items(kLanguages);
  if (languages.empty()) return {};
  return form.Selection(kLanguages) < 0 ? languages.front() : form.SelectedText(kLanguages);
}

/// Enter Stats takes the scores as they stand, entered or not, for the new base, and forfeits all BP: after an Abort
/// with a race chosen its modifiers are in the base from then on.
void EnterStats(Game& game, StepThreeWindow& window) {
  RunEnterAbility(game);
  RefreshAbilityDisplay(game, window.form);
  game.run.BuildingPoints = 0;
  window.base = TakeBase(game);
  RefreshAbilityDisplay(game, window.form);
}

void Abort(Game& game, Form& form) {
  game.run.CurrentStep = 0;
  form.Close();
  game.stepThree.reset();
}

void RunMenuCommand(Game& game, StepThreeWindow& window, int id) {
  if (IsAdjustCommand(id)) {
    const AdjustCommand adjust = AdjustCommandOf(id);
    if (AdjustAbility(game, window.base, adjust.Source, adjust.Target)) RefreshAbilityDisplay(game, window.form);
  } else if (IsBurnCommand(id)) {
    if (BurnAbility(game, window.base, BurnCommandOf(id))) RefreshAbilityDisplay(game, window.form);
  } else if (id == kReroll) {
    window.base = RerollAbilities(game);
    RefreshAbilityDisplay(game, window.form);
  } else if (id == kEnterStats) {
    EnterStats(game, window);
  }
}

}  // namespace

void OpenStepThree(Game& game, std::function<void(Game&)> onContinue, std::function<void(Game&)> onChanged) {
  CloseStepThree(game);
  const auto window = std::make_shared<StepThreeWindow>();
  Form& form = window->form;
  form.contextMenu = StepThreeMenu();
  // The handlers live in the form, and the form in the record: they must not keep it alive themselves.
  StepThreeWindow* const open = window.get();
  const auto tellChange = [&game, onChanged = std::move(onChanged)] {
    if (onChanged) onChanged(game);
  };
  form.onOpened = [&game, open, tellChange] {
    game.run.CurrentStep = 3;
    open->base = TakeBase(game);
    RefreshAbilityDisplay(game, open->form);
    tellChange();
  };
  form.onSelect = [&game, open, tellChange](int id) {
    if (id != kRaces) return;
    ChooseRace(game, *open);
    tellChange();
  };
  form.onCommand = [&game, open, tellChange, onContinue = std::move(onContinue)](int id) {
    const std::shared_ptr<Form> alive = game.stepThree;  // until this handler has returned
    if (id != kContinue) {
      if (id == kAbort) {
        Abort(game, open->form);
      } else {
        RunMenuCommand(game, *open, id == kRollAgain ? kReroll : id);
      }
      return tellChange();
    }
    if (game.sheet.RaceName == "Unknown") {
      game.platform.ShowMessage("You must select a race before you may continue");
      return;
    }
    TakeNativeLanguage(game, ChosenLanguage(open->form));
    game.sheet.LanguagesKnown = AddSaturated(game.sheet.LanguagesKnown, 1);
    open->form.Close();
    game.stepThree.reset();
    onContinue(game);
  };
  game.stepThree = std::shared_ptr<Form>(window, &window->form);
  game.platform.ShowWindow(game.stepThree);
}

void CloseStepThree(Game& game) {
  if (!game.stepThree) return;
  const std::shared_ptr<Form> form = game.stepThree;
  Abort(game, *form);
}

}  // namespace veld
