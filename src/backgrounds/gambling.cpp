#include "backgrounds/gambling.h"

#include "backgrounds/youth_quirks.h"
#include "dice/building_points.h"
#include "dice/dice.h"
#include "dice/keep_roll.h"
#include "rules/quirk_table.h"
#include "rules/skill_table.h"
#include "steps/skills/buy_skill.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

constexpr std::string_view kGaming = "Gaming";
constexpr std::string_view kMaimedTable = "ADC Maimed Table";
constexpr int kMostTurns = 100;
constexpr int kMoneyWon = 20;  // percent
constexpr int kMoneyLost = 40;

constexpr std::string_view kMasteryPrompt =
    "You must now roll a d4. The resulting number is how many 'bonus' mastery die rolls you get for the Gaming "
    "Skill";
constexpr std::string_view kMoneyPrompt =
    "You must now make a Gaming Skill check (%i) If you make it you will get 20%% added to your starting funds. "
    "Failure sends you down the Gamlbing spiral and lowers your starting cash by 40%%!";
constexpr std::string_view kAddictionPrompt =
    "You must now make a Gaming Skill check (%i) Failure indicates you gain the Gambling Addiction Flaw!";
constexpr std::string_view kBodyPrompt =
    "You must now make a Gaming Skill check (%i) Failure indicates you were so bad at the dice that you had to "
    "resort to selling body parts and rent yourself out as a punching bag to pay off your debts!";
constexpr std::string_view kStillPrompt =
    "You must now make a Gaming Skill check (%i) Failure indicates you were so bad at the dice that you STILL had "
    "to resort to selling body parts and rent yourself out as a punching bag to pay off your debts!";

int GamingScore(const Game& game) {
  const int row = FindSkillRow(kGaming);
  return row < 0 ? 0 : game.sheet.SkillScores[static_cast<std::size_t>(row)];
}

int Roll(ChainPage& page, GamblerPrompts prompts, std::string_view prompt, int sides) {
  if (prompts == GamblerPrompts::None) return RollDice(page.game, sides, 1);
  page.game.dice.RollContextText = std::string(prompt);
  return AskKeepRoll(page.game, page.form, sides, 1);
}

/// A roll of 1d100 against the score in Gaming.
int RollCheck(ChainPage& page, GamblerPrompts prompts, std::string_view prompt) {
  return Roll(page, prompts, Format(prompt, GamingScore(page.game)), 100);
}

/// One row of the Maimed Table and of the table that it leads to; false if none can be had.
bool MaimCharacter(Game& game) {
  const auto isOneRow = [](int row) { return QuirkTable()[static_cast<std::size_t>(row)].Kind != kRollAgain; };
  TableResult result = RollTableUntilRow(game, kMaimedTable, isOneRow);
  if (!result.IsRow()) return false;
  const QuirkRecord& quirk = QuirkTable()[static_cast<std::size_t>(result.Row)];
  if (quirk.Kind == kSubTable) result = RollTableUntilRow(game, quirk.NextTable, isOneRow);
  if (!result.IsRow()) return false;
  AddQuirk(game, result.Row);
  game.run.HasMaimedResult = 1;
  return true;
}

/// The spiral: a flaw for each turn lost. Who can not gamble at all is out after the first.
void RunSpiral(ChainPage& page, GamblerPrompts prompts, int roll) {
  for (int turn = 0; turn < kMostTurns && roll > GamingScore(page.game); ++turn) {
    RollGamblingSubtable(page);
    if (GamingScore(page.game) < 1) return;
    roll = RollCheck(page, prompts, kStillPrompt);
  }
}

struct GamblingFlaw {
  std::string_view Question;
  int Quirk;  ///< 0: a row of the Maimed Table
};
// by the roll of 1d4
constexpr GamblingFlaw kFlaws[] = {
    {"Gambling Subtable result: Gained Maimed Flaw?", 0},
    {"Gambling Subtable result: Gained Scar Facial Flaw?", YouthQuirk::FacialScar},
    {"Gambling Subtable result: Gained Loss of Ear Flaw?", YouthQuirk::LossOfEar},
    {"Gambling Subtable result: Gained Missing Finger Flaw?", YouthQuirk::MissingFinger},
};

bool CanHaveFlaw(const Game& game, const GamblingFlaw& flaw) {
  if (flaw.Quirk == YouthQuirk::FacialScar) return !HoldsQuirk(game, flaw.Quirk);
  if (flaw.Quirk == YouthQuirk::LossOfEar) return QuirksHeld(game, flaw.Quirk) < 2 && game.run.HasMaimedResult == 0;
  return true;
}

}  // namespace

bool RollGamblingSubtable(ChainPage& page) {
  Game& game = page.game;
  const int kept = TruncateToInt(game.run.BuildingPoints);
  const GamblingFlaw& flaw = kFlaws[static_cast<std::size_t>(RollDice(game, 4, 1) - 1)];
  if (!CanHaveFlaw(game, flaw) || !AskKeep(game, flaw.Question)) return false;
  if (flaw.Quirk == 0 && !MaimCharacter(game)) return false;
  if (flaw.Quirk != 0) AddQuirk(game, flaw.Quirk);
  game.run.BuildingPoints = static_cast<float>(kept);
  return true;
}

void RunGambler(ChainPage& page, GamblerPrompts prompts) {
  Game& game = page.game;
  GrantSkillAtNoCost(game, kGaming);
  const int further = Roll(page, prompts, kMasteryPrompt, 4);
  for (int step = 0; step < further; ++step) GrantSkillAtNoCost(game, kGaming);
  int& percent = game.run.MoneyBonusPercent;
  if (RollCheck(page, prompts, kMoneyPrompt) < GamingScore(game)) {
    percent = AddSaturated(percent, kMoneyWon);
    return;
  }
  percent = AddSaturated(percent, -kMoneyLost);
  if (RollCheck(page, prompts, kAddictionPrompt) < GamingScore(game)) return;
  SetQuirk(game, YouthQuirk::GamblingAddiction);
  RunSpiral(page, prompts, RollCheck(page, prompts, kBodyPrompt));
}

}  // namespace veld
