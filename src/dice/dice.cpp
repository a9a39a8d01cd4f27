#include "dice/dice.h"

#include <limits>
#include <optional>
#include <utility>

#include "dice/random.h"
#include "dice/typed_dice.h"
#include "platform/platform.h"
#include "store/log_file.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr const char* kDiceLog = "dice.log";
constexpr std::int64_t kNoUpperBound = std::numeric_limits<std::int64_t>::max();
/// No run of penetrating dice is longer than this beyond the dice asked for.
constexpr int kMostPenetrations = 10'000;

/// A label counts from three characters on, but is printed only from four on: one of exactly three is neither logged
/// nor cleared. A slip of the two length tests that is kept.
bool HasLabel(const Game& game) {
  return game.dice.DiceLabel.size() >= 3;
}
bool HasPrintedLabel(const Game& game) {
  return game.dice.DiceLabel.size() >= 4;
}

bool IsRollable(int sides, int count) {
  return sides >= 1 && count >= 1;
}

/// What Honor adds to each die: 1, -1 or 0.
int HonorPerDie(const Game& game) {
  int perDie = 0;
  if (Contains(game.sheet.HonorCategory, "Great")) ++perDie;
  if (Contains(game.sheet.HonorCategory, "Dishonorable")) --perDie;
  return perDie;
}

/// The player types what his dice show; a die of one side shows the same to everybody and is not asked for.
bool IsTyped(const Game& game, int sides) {
  return DiceAreTyped(game) && sides > 1;
}

/// Asks for a roll whose prompt stands in DiceLabel; a number typed is logged and final.
std::optional<int> TypedRoll(Game& game, std::int64_t lowest, std::int64_t highest) {
  const std::int64_t typed = AskTypedDice(game, lowest, highest);
  if (typed == kRollForMe) return std::nullopt;
  LogDiceLine(game, game.dice.DiceLabel + " User input: ");
  game.dice.DiceLabel.clear();
  return SaturateToInt(typed);
}

bool IsLogged(const Game& game) {
  return game.dice.LogMode != DiceLogMode::Off;
}

/// Logs a roll of the program's: under its label, or with the words of `unlabelled`.
void LogRoll(Game& game, std::string_view unlabelled, int sides, int count, int total) {
  if (!HasLabel(game)) {
    if (IsLogged(game)) LogDiceLine(game, Format(unlabelled, count, sides, total));
    game.dice.DiceLabel.clear();
  } else if (HasPrintedLabel(game)) {
    if (IsLogged(game)) LogDiceLine(game, game.dice.DiceLabel + Format(" VELD has rolled: %i ", total));
    game.dice.DiceLabel.clear();
  }
}

/// The Scholar's gain on dice for Intelligence or Wisdom and loss on dice for the practical skills, as far as
/// RollContextText tells what the dice are for.
int ScholarPerDie(const Game& game) {
  if (game.sheet.PackageName != "Scholar") return 0;
  const std::string& context = game.dice.RollContextText;
  int perDie = 0;
  if (Contains(context, "INT") || Contains(context, "WIS")) ++perDie;
  if (Contains(context, "Social Interaction") || Contains(context, "Tool") || Contains(context, "Combat Procedures")) {
    --perDie;
  }
  return perDie;
}

/// Throws penetrating dice, each with `perDie` added.
int ThrowPenetrating(Game& game, int sides, int count, int perDie) {
  std::int64_t total = 0;
  std::int64_t left = count;
  int penetrations = 0;
  for (bool isFirst = true; left > 0; isFirst = false) {
    const int die = RollDie(game.dice, sides);
    total += die + perDie - (isFirst ? 0 : 1);
    const bool penetrates = die == sides && sides > 1 && penetrations < kMostPenetrations;
    if (penetrates) {
      ++penetrations;
    } else {
      --left;
    }
  }
  return SaturateToInt(total);
}

int ConstitutionFloor(int constitution) {
  if (constitution >= 23) return 4;
  if (constitution >= 21) return 3;
  return constitution == 20 ? 2 : 1;
}

}  // namespace

namespace {

constexpr std::size_t kLogPiece = 64 * 1024;

void WriteGathered(DiceState& dice) {
  if (dice.LogLines.empty()) return;
  dice.LogLines.pop_back();  // the last line's end, which AppendLine writes
  AppendLine(dice.LogFile, dice.LogLines);
  dice.LogLines.clear();
}

}  // namespace

HeldDiceLog::HeldDiceLog(Game& game) : game_(game), before_(game.dice.LogMode) {
  if (before_ != DiceLogMode::EachLine) return;
  game.dice.LogMode = DiceLogMode::HeldOpen;
  game.dice.LogFile = OpenLog(kDiceLog);
}

HeldDiceLog::~HeldDiceLog() {
  if (before_ != DiceLogMode::EachLine) return;
  WriteGathered(game_.dice);
  CloseLog(std::exchange(game_.dice.LogFile, -1));
  game_.dice.LogMode = before_;
}

void LogDiceLine(Game& game, std::string_view line) {
  if (game.platform.LeavesNoTrace()) return;
  switch (game.dice.LogMode) {
    case DiceLogMode::EachLine:
      AppendLine(kDiceLog, line);
      break;
    case DiceLogMode::HeldOpen:
      (game.dice.LogLines += line) += '\n';
      if (game.dice.LogLines.size() >= kLogPiece) WriteGathered(game.dice);
      break;
    case DiceLogMode::Off:
      break;
  }
}

void LogDiceTotal(Game& game, int total) {
  LogDiceLine(game, Format("With a Total of: %i", total));
}

int RollDice(Game& game, int sides, int count) {
  if (!IsRollable(sides, count)) return 0;
  if (IsTyped(game, sides)) {
    game.dice.DiceLabel = Format("VELD needs a roll of: %id%i.", count, sides);
    if (const auto typed = TypedRoll(game, count, std::int64_t{sides} * count)) return *typed;
  }
  std::int64_t total = 0;
  for (int die = 0; die < count; ++die) total += RollDie(game.dice, sides);
  const int result = SaturateToInt(total);
  LogRoll(game, "VELD has rolled %id%i: %i ", sides, count, result);
  return result;
}

int RollHonorDice(Game& game, int sides, int count) {
  if (!IsRollable(sides, count)) return 0;
  if (IsTyped(game, sides) && !HasLabel(game)) {
    game.dice.DiceLabel = Format("VELD needs a roll of: %id%i. Honor category adjustments apply.", count, sides);
    if (const auto typed = TypedRoll(game, count, kNoUpperBound)) return *typed;
  }
  const int perDie = HonorPerDie(game);
  std::int64_t total = 0;
  for (int die = 0; die < count; ++die) total += RollDie(game.dice, sides) + perDie;
  const int result = SaturateToInt(total);
  LogRoll(game, "VELD has rolled (Honor) %id%i: %i ", sides, count, result);
  return result;
}

int RollPenetratingDice(Game& game, int sides, int count) {
  if (!IsRollable(sides, count)) return 0;
  const int perDie = ScholarPerDie(game) + HonorPerDie(game);
  game.dice.RollContextText.clear();
  if (IsTyped(game, sides) && !HasLabel(game)) {
    game.dice.DiceLabel =
        Format("VELD needs a roll of: %id%i. Penetration is active. Honor category adjustments apply.", count, sides);
    if (const auto typed = TypedRoll(game, count, kNoUpperBound)) return *typed;
  }
  const int result = ThrowPenetrating(game, sides, count, perDie);
  LogRoll(game, "VELD has rolled (Penetration) %id%i: %i ", sides, count, result);
  return result;
}

int RollPenetratingDicePlus(Game& game, int sides, int count, int plus) {
  if (!IsRollable(sides, count)) return 0;
  if (IsTyped(game, sides) && !HasLabel(game)) {
    game.dice.DiceLabel = Format(
        "VELD needs a roll of: %id%i+%i. Penetration is active. Honor category adjustments apply.", count, sides, plus);
    if (const auto typed = TypedRoll(game, count, kNoUpperBound)) return *typed;
  }
  const int result = ThrowPenetrating(game, sides, count, plus + HonorPerDie(game));
  const std::string logText = "VELD has rolled (Penetration & Honor) %id%i" + Format("+%i", plus) + ": %i ";
  LogRoll(game, logText, sides, count, result);
  return result;
}

int RollHitPointDice(Game& game, int sides, int count) {
  if (!IsRollable(sides, count)) return 0;
  game.dice.DiceLabel = Format(
      "VELD is about to roll for your hit points %id%i. Any bonuses and penalties for Constitution and Honor will be "
      "factored in by the program. Minimum dice rolls for exceptional (above 19 Constitution) are up to you to factor "
      "in.",
      count, sides);
  const int perDie = HonorPerDie(game);
  if (IsTyped(game, sides)) {
    const auto typed = TypedRoll(game, count, std::int64_t{sides} * count);
    if (typed) return SaturateToInt(*typed + std::int64_t{perDie} * count);
  }
  const int floor = ConstitutionFloor(game.sheet.Constitution.Whole);
  std::int64_t total = 0;
  for (int die = 0; die < count; ++die) total += std::max(floor, RollDie(game.dice, sides)) + perDie;
  const int result = SaturateToInt(total);
  LogRoll(game, "", sides, count, result);
  return result;
}

void RollAbilityScores(Game& game) {
  constexpr int kRolls = 2 * kAbilityCount;
  const std::string purpose = game.dice.RollPurpose;
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    game.dice.RollPurpose = Format("%s (3d6), %i of %i", AbilityName(ability), ability + 1, kRolls);
    AbilityAt(game.sheet, ability).Whole = RollDice(game, 6, 3);
  }
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    game.dice.RollPurpose =
        Format("%s, percent (1d100), %i of %i", AbilityName(ability), kAbilityCount + ability + 1, kRolls);
    AbilityAt(game.sheet, ability).Percentile = RollDice(game, 100, 1);
  }
  game.dice.RollPurpose = purpose;
}

}  // namespace veld
