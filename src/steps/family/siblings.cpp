#include "steps/family/siblings.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "dice/dice.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/priors_tables.h"
#include "text/numbers.h"

namespace veld {

namespace {

constexpr int kOk = 1;
constexpr int kAbort = 2;
constexpr int kFirstLine = 11;
constexpr int kReroll = 3040;  // no button of the page, but a command all the same
constexpr int kShownSiblings = 9;
constexpr int kMostIllegitimate = 4;

constexpr std::array<std::string_view, kShownSiblings> kSiblingNames = {
    "Sibling 1:", "Sibling 2:", "Sibling 3:", "Sibling 4:", "Sibling 5:",
    "Sibling 6:", "Sibling 7:", "Sibling 8:", "Sibling 9:"};

/// The page with so many lines for each of the first siblings: one for legitimate ones, two where a birth is told of.
constexpr auto SiblingsControls(int lines) {
  std::array<ControlTemplate, 2 * kShownSiblings + 3> controls{};
  std::size_t next = 0;
  controls[next++] = TitleAt(0, 0, "Character's Sibling Information", 2);
  for (int i = 0; i < kShownSiblings; ++i) {
    controls[next++] = LabelAt(i + 1, 0, kSiblingNames[static_cast<std::size_t>(i)]);
    controls[next] = ResultAt(i + 1, 1, kFirstLine + i, 78);
    controls[next++].Lines = i < kMostIllegitimate ? lines : 1;
  }
  controls[next] = ButtonAt(kShownSiblings + 1, 0, kOk, "&OK", ButtonRole::Default);
  controls[next++].ColumnSpan = 2;
  controls[next] = ButtonAt(kShownSiblings + 1, 0, kAbort, "&Abort", ButtonRole::Cancel);
  controls[next++].ColumnSpan = 2;
  return controls;
}
constexpr auto kLegitimateControls = SiblingsControls(1);
constexpr auto kIllegitimateControls = SiblingsControls(2);
constexpr std::string_view kSiblingsHelp =
    "The brothers and sisters that Step 6 counted, one line each: whether one lives, what he or she is to the "
    "character, and whether they are twins. Charisma decides who is a friend and who a rival. There is nothing to "
    "choose here and no second roll; note the names that you will give them, and OK goes on to quirks and flaws.";
constexpr FormTemplate kLegitimateSiblings{"Siblings", "Siblings", kLegitimateControls, kSiblingsHelp};
constexpr FormTemplate kIllegitimateSiblings{"Siblings", "Siblings", kIllegitimateControls, kSiblingsHelp};

/// The dice of a sibling, thrown in the order of the fields.
SiblingRolls RollSibling(Game& game) {
  SiblingRolls rolls;
  rolls.Death = RollDice(game, 100, 1);
  rolls.Sex = RollDice(game, 20, 1);
  rolls.Relationship = AddSaturated(game.sheet.Charisma.Whole, RollDice(game, 100, 1));
  rolls.Twin = RollDice(game, 100, 1);
  return rolls;
}

SiblingRolls RollIllegitimateSibling(Game& game) {
  SiblingRolls rolls = RollSibling(game);
  rolls.Circumstance = RollDice(game, 100, 1) - 10;
  rolls.SecondRoll = RollDice(game, 100, 1);
  return rolls;
}

void ShowSiblings(const Game& game, Form& form) {
  for (int i = 0; i < kShownSiblings; ++i) {
    form.SetText(kFirstLine + i, game.sheet.SiblingLines[static_cast<std::size_t>(i)]);
  }
}

}  // namespace

void GenerateSiblings(Game& game) {
  auto& lines = game.sheet.SiblingLines;
  const int count =
      std::clamp(game.sheet.SiblingCount, -static_cast<int>(lines.size()), static_cast<int>(lines.size()));
  for (int i = 0; i < std::abs(count); ++i) {
    lines[static_cast<std::size_t>(i)] =
        count > 0 ? SiblingLine(RollSibling(game)) : IllegitimateSiblingLine(RollIllegitimateSibling(game));
  }
}

void RunSiblings(Game& game) {
  Form form(game.sheet.SiblingCount < 0 ? kIllegitimateSiblings : kLegitimateSiblings);
  const auto rollAndShow = [&] {
    GenerateSiblings(game);
    ShowSiblings(game, form);
  };
  form.onOpened = rollAndShow;
  form.onCommand = [&](int id) {
    if (id == kReroll) return rollAndShow();
    if (id != kOk && id != kAbort) return;
    game.run.CurrentStep = id == kOk ? 7 : 0;
    form.Close();
  };
  game.platform.RunForm(form);
}

}  // namespace veld
