// Promises: the classes of Step 8 and Step 9 are listed in below 50 microseconds; a character of two classes is
// recomputed in below 200 microseconds when no dialog opens.
#include <benchmark/benchmark.h>

#include "silent_platform.h"
#include "steps/classes/class_choice.h"
#include "steps/classes/class_recalculation.h"
#include "steps/race/race_choice.h"

namespace veld {
namespace {

constexpr ControlTemplate kControls[] = {ListAt(0, 0, kClassList, 30, 10)};
constexpr FormTemplate kForm{"Classes", "Classes", kControls, ""};

std::unique_ptr<Game> StrongHuman(Platform& platform) {
  auto game = MakeGame(platform);
  game->RuleSwitches[kRollYourOwnDice] = 0;
  game->dice.LogMode = DiceLogMode::Off;
  for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(game->sheet, ability) = {17, 50};
  game->sheet.SocialClassIndex = 12;
  game->sheet.RaceName = "Human";
  BindRaceRow(*game);
  return game;
}

void FillClasses(benchmark::State& state) {
  SilentPlatform platform;
  const auto game = StrongHuman(platform);
  game->run.CurrentStep = 8;
  Form form(kForm);
  for (auto _ : state) FillClassBox(*game, form);
  state.counters["classes"] = static_cast<double>(form.Items(kClassList).size());
}
BENCHMARK(FillClasses)->Unit(benchmark::kMicrosecond);

void RecomputeTwoClasses(benchmark::State& state) {
  SilentPlatform platform;
  const auto game = StrongHuman(platform);
  game->sheet.ClassName = "Cleric/Fighter";
  RecomputeFromClasses(*game);
  for (auto _ : state) RecomputeFromClasses(*game);
}
BENCHMARK(RecomputeTwoClasses)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace veld
