// The editor: a level won by an award, and how long its fullest pages take to open.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <fstream>
#include <iterator>

#include "editors/class_progress.h"
#include "editors/edit_skills.h"
#include "editors/edit_spells.h"
#include "editors/main_edit.h"
#include "editors/person_pages.h"
#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "silent_platform.h"
#include "steps/finish/equip.h"
#include "store/side_files.h"

namespace veld {
namespace {

std::string Shipped(const std::string& name) {
  std::ifstream file(std::string(VELD_DATA_DIR) + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::unique_ptr<Game> Fighter(Platform& platform) {
  auto game = MakeGame(platform);
  game->dice.LogMode = DiceLogMode::Off;
  game->RuleSwitches[kRollYourOwnDice] = 0;
  DecodeEquipment(Shipped("equip.vlb"), game->EquipmentTable);
  DecodeSpells(Shipped("spells.vld"), game->SpellTable);
  game->sheet.RaceName = "Human";
  AddClass(*game, ClassRow::Fighter);
  return game;
}

/// Promise: below 1 ms. The level is taken back out of the measured time.
void AwardALevel(benchmark::State& state) {
  if (chdir("/tmp") != 0) return;  // where Training.log goes
  SilentPlatform platform;
  const auto game = Fighter(platform);
  const int points = ClassAt(ClassRow::Fighter).ExperienceForLevel[2];
  for (auto _ : state) {
    AwardExperience(*game, ClassRow::Fighter, points);
    state.PauseTiming();
    SetLevel(*game, ClassRow::Fighter, 1);
    SetExperience(*game, ClassRow::Fighter, 0);
    state.ResumeTiming();
  }
}
BENCHMARK(AwardALevel);

/// Promise: each below one frame (16 ms), without the drawing.
template <auto RunPage>
void OpenPage(benchmark::State& state) {
  SilentPlatform platform;
  const auto game = Fighter(platform);
  for (auto _ : state) RunPage(*game);
}
BENCHMARK(OpenPage<RunEditSkills>)->Name("OpenSkills");
BENCHMARK(OpenPage<RunEditSpells>)->Name("OpenSpells");
BENCHMARK(OpenPage<RunEditEquip>)->Name("OpenGoods");
BENCHMARK(OpenPage<RunEditPerson>)->Name("OpenPerson");

}  // namespace
}  // namespace veld
