#include <algorithm>
#include <memory>
#include <string>

#include "fuzz_support.h"
#include "referee/dice_expression.h"
#include "referee/dice_package.h"
#include "silent_platform.h"

using namespace veld;
using fuzz::Require;

namespace {

constexpr int kMostThrown = 200;  // so that the fuzzer gets on

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static SilentPlatform platform;
  static const auto game = MakeGame(platform);
  static const auto package = std::make_unique<DicePackage>();
  game->dice.LogMode = DiceLogMode::Off;
  game->RuleSwitches[kRollYourOwnDice] = 0;

  // The bytes are the head of a file; cut off there it is refused.
  std::string file(fuzz::Bytes(data, size));
  ResetDicePackage(*package);
  const std::string before = EncodeDicePackage(*package);
  if (size < kDicePackageBytes) {
    Require(!DecodeDicePackage(file, *package), "a short file is refused");
    Require(EncodeDicePackage(*package) == before, "and leaves the package as it was");
    file.resize(kDicePackageBytes);
  }
  Require(DecodeDicePackage(file, *package), "a whole file is read");
  file.resize(kDicePackageBytes);
  Require(EncodeDicePackage(*package) == file, "and saved as it was");

  const DiceRollRecord roll = (*package)[0];
  Require(roll.Name.View().size() <= 256, "a name ends");
  Require(StoreDiceRoll(*package, roll).has_value() == !roll.Name.Empty(), "a roll with a name keeps its slot");
  for (std::size_t row = 0; row < 2; ++row) {
    const DiceRow dice{.Times = std::min(roll.Times[row], kMostThrown),
                       .Sides = roll.Sides[row],
                       .ModPerDie = roll.ModPerDie[row],
                       .ModPerRoll = roll.ModPerRoll[row],
                       .Penetrates = roll.Penetrate[row] == 1,
                       .HonorModifier = std::clamp(roll.HonorModifier[row], -1, 1)};
    const RowRoll rolled = RollDiceRow(*game, dice, 0, roll.Name.View());
    Require(std::ranges::count(rolled.Values, ' ') <= kMostRowDice + 1, "a row keeps its limit");
    Require(rolled.Values.empty() == (dice.Times < 1 || dice.Sides < 1), "a row of dice is rolled");
  }
  const auto expression = ReadDiceExpression(roll.Name.View());
  Require(!expression || (expression->Times >= 1 && expression->Times <= kMostRowDice && expression->Sides >= 1),
          "an expression has dice");
  return 0;
}
