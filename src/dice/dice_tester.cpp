#include "dice/dice_tester.h"

#include <algorithm>
#include <array>

#include "dice/dice.h"
#include "dice/typed_dice.h"
#include "platform/platform.h"
#include "text/format.h"

namespace veld {

namespace {

constexpr std::size_t kTotals = 18;
using Bins = std::array<int, kTotals>;

struct Series {
  int Rolls;
  const char* Printed;
};
constexpr Series kSeries[] = {
    {1'000'000, "1,000,000"}, {100'000, "100,000"}, {10'000, "10,000"}, {1'000, "1,000"}, {100, "100"},
};
constexpr int kAllRolls = 1'111'100;
constexpr int kRollsPerUpdate = 2'000;

std::string ResultText(const Series& series, const Bins& bins) {
  std::string text = Format("The dice roller has rolled 3d6 %s times and resulted in; ", series.Printed);
  for (std::size_t total = 1; total <= kTotals; ++total) {
    text += Format("%i:%i%s", total, bins[total - 1], total < kTotals ? ", " : ".");
  }
  return text;
}

/// Rolls one series; false if the player cancelled.
bool RollSeries(Game& game, const Series& series, int& rolled, Bins& bins) {
  for (int i = 0; i < series.Rolls; ++i, ++rolled) {
    if (rolled % kRollsPerUpdate == 0 && !game.platform.ShowProgress(rolled / (kAllRolls / 100))) return false;
    const int total = RollDice(game, 6, 3);
    ++bins[static_cast<std::size_t>(std::clamp(total, 1, static_cast<int>(kTotals)) - 1)];
  }
  return true;
}

}  // namespace

void RunDiceTester(Game& game) {
  if (DiceAreTyped(game)) {
    game.platform.ShowMessage("Dice Tester is inactive while you are set to roll your own dice.");
    return;
  }
  game.platform.BeginProgress("Dice Tester 3d6", "Rolling 3d6 ...");
  std::array<Bins, std::size(kSeries)> bins{};
  int rolled = 0;
  bool finished = true;
  {
    const HeldDiceLog log(game);
    for (std::size_t i = 0; i < std::size(kSeries) && finished; ++i) {
      finished = RollSeries(game, kSeries[i], rolled, bins[i]);
    }
  }
  game.platform.EndProgress();
  if (!finished) return;
  for (std::size_t i = 0; i < std::size(kSeries); ++i) game.platform.ShowMessage(ResultText(kSeries[i], bins[i]));
}

}  // namespace veld
