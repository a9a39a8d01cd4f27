// Promise: a whole generation with all questions answered by a script, logging included, takes below 20 ms.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "generation/sequencer.h"
#include "rules/race_table.h"
#include "silent_platform.h"
#include "steps/race/step_three.h"
#include "store/side_files.h"

namespace veld {
namespace {

constexpr int kRaces = 3021;
constexpr int kContinue = 3043;
constexpr int kOk = 1;
constexpr int kMostRounds = 60;

std::string FileText(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

/// Chooses the first row of every list, types a word in every field, and presses every button but those that give up,
/// until the dialog lets go.
class DiligentPlayer : public SilentPlatform {
 public:
  std::shared_ptr<Form> window;

  void RunForm(Form& form) override {
    form.Open();
    for (int round = 0; round < kMostRounds && !form.IsClosed(); ++round) {
      for (std::size_t i = 0; i < form.Controls().size() && !form.IsClosed(); ++i) Use(form, form.Controls()[i].Template);
      form.Press(kOk);
    }
    while (!form.IsClosed()) form.PressCloseBox();
  }
  void ShowWindow(std::shared_ptr<Form> form) override {
    window = std::move(form);
    window->Open();
  }

 protected:
  std::optional<ChosenPath> DoAskSavePath(const std::string&, std::span<const FileFilter>, const std::string&) override {
    return ChosenPath{"hero.vlf", 0};
  }

 private:
  static void Use(Form& form, const ControlTemplate control) {
    switch (control.Kind) {
      case ControlKind::List: form.Choose(control.Id, 0); break;
      case ControlKind::Edit: form.Type(control.Id, "Tolmar"); break;
      case ControlKind::Button:
        if (control.Id != kOk && control.Role != ButtonRole::Cancel) form.Press(control.Id);
        break;
      default: break;
    }
  }
};

void WholeGeneration(benchmark::State& state) {
  const auto before = std::filesystem::current_path();
  const auto folder = std::filesystem::temp_directory_path() / "veld-generation-bench";
  std::filesystem::create_directories(folder);
  std::filesystem::current_path(folder);
  DiligentPlayer player;
  const auto game = MakeGame(player);
  game->RuleSwitches[kRollYourOwnDice] = 0;
  DecodeEquipment(FileText(std::string(VELD_DATA_DIR) + "/equip.vlb"), game->EquipmentTable);
  DecodeSpells(FileText(std::string(VELD_DATA_DIR) + "/spells.vld"), game->SpellTable);
  for (auto _ : state) {
    ResetCharacter(*game);
    for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(game->sheet, ability) = {14, 50};
    OpenStepThree(*game, RunGeneration);
    const auto& races = player.window->Items(kRaces);
    const auto human = std::find(races.begin(), races.end(), "Human, Male");
    player.window->Choose(kRaces, static_cast<int>(human - races.begin()));
    player.window->Press(kContinue);
    if (game->run.CurrentStep != 20) state.SkipWithError("the generation did not reach its end");
  }
  std::filesystem::current_path(before);
  std::filesystem::remove_all(folder);
}
BENCHMARK(WholeGeneration)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veld
