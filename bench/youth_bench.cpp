// Promise: a whole chain of youth tables with all questions answered by a script, logging included, takes below 5 ms.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "backgrounds/mage_school.h"
#include "backgrounds/military_background.h"
#include "rules/class_table.h"
#include "silent_platform.h"
#include "store/game.h"

namespace veld {
namespace {

constexpr int kFirstButton = 1;
constexpr std::size_t kFighter = 3;
constexpr std::size_t kMagicUser = 12;

/// Presses the first button of every dialog, types a name where one is asked for, and leaves.
class ScriptedPlayer : public SilentPlatform {
 public:
  void RunForm(Form& form) override {
    form.Open();
    form.Type(3000, "Flail");
    form.Press(kFirstButton);
    form.PressCloseBox();
    form.Close();
  }
};

void Youth(benchmark::State& state, std::size_t classRow, void (*chain)(Game&)) {
  const auto before = std::filesystem::current_path();
  const auto folder = std::filesystem::temp_directory_path() / "veld-youth-bench";
  std::filesystem::create_directories(folder);
  std::filesystem::current_path(folder);
  ScriptedPlayer player;
  const auto game = MakeGame(player);
  for (auto _ : state) {
    state.PauseTiming();
    const auto seed = game->dice.RandomState;
    ResetCharacter(*game);
    game->RuleSwitches[kRollYourOwnDice] = 0;
    game->dice.RandomState = seed;
    for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(game->sheet, ability) = {14, 50};
    game->sheet.RaceName = "Human";
    game->sheet.ClassName = ClassTable()[classRow].Name;
    game->sheet.ClassLevels[classRow] = 1;
    game->sheet.ProficiencySlots = 12;
    game->run.BuildingPoints = 20;
    state.ResumeTiming();
    chain(*game);
  }
  std::filesystem::current_path(before);
  std::filesystem::remove_all(folder);
}
BENCHMARK_CAPTURE(Youth, Military, kFighter, RunWMABackground)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Youth, MageSchool, kMagicUser, RunHXABackground)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veld
