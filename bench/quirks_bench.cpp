// Promise: AskKeepTableResult, with its search for a row that can still come up, takes below 20 microseconds where no
// question is asked and no log is written. Its floor is the roll of its dice.
#include <benchmark/benchmark.h>

#include "dice/dice.h"
#include "dice/keep_roll.h"
#include "rules/quirk_table.h"
#include "silent_platform.h"

namespace veld {
namespace {

std::unique_ptr<Game> QuietGame(Platform& platform) {
  auto game = MakeGame(platform);
  game->RuleSwitches[kRollYourOwnDice] = 0;
  game->dice.LogMode = DiceLogMode::Off;
  game->run.BuildingPoints = 0;
  return game;
}

void FloorRoll(benchmark::State& state, std::string_view table) {
  SilentPlatform platform;
  const auto game = QuietGame(platform);
  const QuirkDie die = QuirkTableDie(table);
  for (auto _ : state) benchmark::DoNotOptimize(RollDice(*game, die.Sides, die.Count));
}
BENCHMARK_CAPTURE(FloorRoll, 1d100, kCodex6A);
BENCHMARK_CAPTURE(FloorRoll, 18d5, kTable6P);

void TableResult(benchmark::State& state, std::string_view table) {
  SilentPlatform platform;
  const auto game = QuietGame(platform);
  for (auto _ : state) benchmark::DoNotOptimize(AskKeepTableResult(*game, table));
}
BENCHMARK_CAPTURE(TableResult, 6A, kCodex6A);
BENCHMARK_CAPTURE(TableResult, 6R, kTable6R);
BENCHMARK_CAPTURE(TableResult, 6P, kTable6P);
BENCHMARK_CAPTURE(TableResult, WeaponPrejudice, "WMA Weapon Prejudice Major");

/// The longest search: every row but the last one that the dice reach is used up.
void TableResultNearlyUsedUp(benchmark::State& state, std::string_view table) {
  SilentPlatform platform;
  const auto game = QuietGame(platform);
  const QuirkDie die = QuirkTableDie(table);
  const int last = QuirkRowOfRoll(table, die.Sides * die.Count);
  game->sheet.QuirkCounts.fill(kAnyQuirkCount);
  game->sheet.QuirkCounts[static_cast<std::size_t>(last)] = 0;
  for (auto _ : state) benchmark::DoNotOptimize(AskKeepTableResult(*game, table));
}
BENCHMARK_CAPTURE(TableResultNearlyUsedUp, 6R, kTable6R);
BENCHMARK_CAPTURE(TableResultNearlyUsedUp, 6P, kTable6P);
BENCHMARK_CAPTURE(TableResultNearlyUsedUp, WeaponPrejudice, "WMA Weapon Prejudice Major");

}  // namespace
}  // namespace veld
