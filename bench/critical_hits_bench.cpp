// Promise: the lookup of a critical hit takes below 20 microseconds wherever in the table its row stands. Its floor is
// the copy of a result's text.
#include <benchmark/benchmark.h>

#include "rules/critical_hit_table.h"

namespace veld {
namespace {

void FloorText(benchmark::State& state) {
  const FixedText<kCriticalHitWidth> text = CriticalHitResult(3, 24, 10000);
  for (auto _ : state) {
    FixedText<kCriticalHitWidth> copy = text.View();
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(FloorText);

void Lookup(benchmark::State& state, int damageType, int severity, int roll) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(roll);
    benchmark::DoNotOptimize(CriticalHitResult(damageType, severity, roll));
  }
}
BENCHMARK_CAPTURE(Lookup, FirstRow, 0, 1, 0);
BENCHMARK_CAPTURE(Lookup, LastRow, 3, 24, 10000);
BENCHMARK_CAPTURE(Lookup, NoRow, 3, 24, 10001);

void NotationLines(benchmark::State& state) {
  const FixedText<kCriticalHitWidth> text = CriticalHitResult(3, 24, 2400);
  for (auto _ : state) benchmark::DoNotOptimize(NotationLinesOf(text.View()));
}
BENCHMARK(NotationLines);

}  // namespace
}  // namespace veld
