// Promises: RollDice with its log line reaches at least 80% of the rate of the bare file calls that it needs; a plain
// roll without logging takes below 20 ns.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include "dice/dice.h"
#include "silent_platform.h"

namespace veld {
namespace {

std::unique_ptr<Game> QuietGame(Platform& platform, DiceLogMode mode) {
  auto game = MakeGame(platform);
  game->RuleSwitches[kRollYourOwnDice] = 0;
  game->dice.LogMode = mode;
  return game;
}

void FloorOpenAppendClose(benchmark::State& state) {
  constexpr char kLine[] = "VELD has rolled 3d6: 11                \n";
  static_assert(sizeof kLine == 41);
  unlink("dice.log");
  for (auto _ : state) {
    const int file = open("dice.log", O_WRONLY | O_APPEND | O_CREAT, 0666);
    benchmark::DoNotOptimize(write(file, kLine, 40));
    close(file);
  }
}
BENCHMARK(FloorOpenAppendClose);

void RollDiceLogged(benchmark::State& state) {
  SilentPlatform platform;
  const auto game = QuietGame(platform, DiceLogMode::EachLine);
  unlink("dice.log");
  for (auto _ : state) benchmark::DoNotOptimize(RollDice(*game, 6, 3));
  unlink("dice.log");
}
BENCHMARK(RollDiceLogged);

void RollDiceUnlogged(benchmark::State& state) {
  SilentPlatform platform;
  const auto game = QuietGame(platform, DiceLogMode::Off);
  for (auto _ : state) benchmark::DoNotOptimize(RollDice(*game, 6, 3));
}
BENCHMARK(RollDiceUnlogged);

}  // namespace
}  // namespace veld
