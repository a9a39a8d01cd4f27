// Promises: 32,000 dice in one row with their log lines take below 20 ms; the referee's dice roller opens below one
// frame (16.7 ms).
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <string>

#include "referee/dice_row.h"
#include "referee/gm_dice_roller.h"
#include "silent_platform.h"

namespace veld {
namespace {

/// The bytes that such a row leaves in the log, in pieces of 64 KB.
void FloorWriteRowsLog(benchmark::State& state) {
  const std::string piece(64 * 1024, 'x');
  for (auto _ : state) {
    const int file = open("dice.log", O_WRONLY | O_APPEND | O_CREAT, 0666);
    for (int i = 0; i < 13; ++i) benchmark::DoNotOptimize(write(file, piece.data(), piece.size()));
    close(file);
    state.PauseTiming();
    unlink("dice.log");
    state.ResumeTiming();
  }
}
BENCHMARK(FloorWriteRowsLog)->Unit(benchmark::kMillisecond);

void RollRowOf32000(benchmark::State& state) {
  SilentPlatform platform;
  const auto game = MakeGame(platform);
  game->RuleSwitches[kRollYourOwnDice] = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(RollDiceRow(*game, {.Times = 32'000, .Sides = 6}, 0, ""));
    state.PauseTiming();
    unlink("dice.log");
    state.ResumeTiming();
  }
}
BENCHMARK(RollRowOf32000)->Unit(benchmark::kMillisecond);

void OpenDiceRoller(benchmark::State& state) {
  SilentPlatform platform;
  const auto game = MakeGame(platform);
  for (auto _ : state) RunGmDiceRoller(*game);
}
BENCHMARK(OpenDiceRoller)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veld
