// Undo: what keeping an act costs, with its line in the file; how long Undo in the last form of a whole run takes, the
// run being played again; how much memory a run's journal holds.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "journal/journal_platform.h"
#include "shell/main_menu.h"
#include "silent_platform.h"
#include "store/side_files.h"

namespace veld {
namespace {

std::string Text(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Works in a folder of its own.
void EnterFolder() {
  static char path[] = "/tmp/veld-journal-XXXXXX";
  static const bool isMade = mkdtemp(path) != nullptr;
  if (!isMade || chdir(path) != 0) std::abort();
}

/// The front end of a run that has been played: it leaves the form before it as it is.
class LastForm : public SilentPlatform {
 public:
  void RunForm(Form& form) override {
    form.Open();
    if (onForm) onForm(form);
    if (!form.IsClosed()) SilentPlatform::RunForm(form);
  }
  std::function<void(Form&)> onForm;
};

std::unique_ptr<Game> NewGame(Platform& platform) {
  auto game = MakeGame(platform);
  game->dice.LogMode = DiceLogMode::Off;
  DecodeEquipment(Text(std::string(VELD_DATA_DIR) + "/equip.vlb"), game->EquipmentTable);
  DecodeSpells(Text(std::string(VELD_DATA_DIR) + "/spells.vld"), game->SpellTable);
  return game;
}

/// Promise: below 20 microseconds. The window of Step 3 takes a race each time.
void KeepAnAct(benchmark::State& state) {
  EnterFolder();
  class Front : public SilentPlatform {
   public:
    void ShowWindow(std::shared_ptr<Form> form) override {
      form->Open();
      window = std::move(form);
    }
    std::shared_ptr<Form> window;
  } front;
  JournalPlatform journal(front);
  const auto game = NewGame(journal);
  const auto withoutActs = [&](bool isKept) {
    journal.BeginRun(*game, BeginCharacter);
    if (!isKept) front.window->SetActs(nullptr);
  };
  withoutActs(state.range(0) == 1);
  front.window->onSelect = {};
  for (auto _ : state) front.window->Choose(3028, 0) || front.window->Choose(3021, 0);
}
BENCHMARK(KeepAnAct)->ArgName("kept")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond)->Iterations(20000);

/// Promise: below 30 ms. VELD_RUN names the journal of a whole run; without it that of the tests is played.
void UndoInTheLastForm(benchmark::State& state) {
  const char* const named = std::getenv("VELD_RUN");
  const std::string text = Text(named ? named : VELD_DATA_DIR "/../../../tests/journal/runs/fighter.run");
  EnterFolder();
  LastForm front;
  JournalPlatform journal(front);
  const auto game = NewGame(journal);
  RunJournal run;
  if (!ReadJournal(text, run)) return state.SkipWithError("no journal of a whole run");
  run.TakeBack();  // the last form stands open
  state.counters["acts"] = static_cast<double>(run.Entries.size());
  std::size_t bytes = run.Entries.capacity() * sizeof(JournalEntry);
  for (const JournalEntry& entry : run.Entries) bytes += entry.Text.size() > 15 ? entry.Text.capacity() : 0;
  state.counters["bytes"] = static_cast<double>(bytes);
  int left = 0;
  front.onForm = [&](Form& form) {
    // Each Undo and Redo comes back here with the run played again.
    if (left-- <= 0) return;
    if (form.CanDoAgain()) {
      form.DoAgain();
    } else {
      form.TakeBack();
    }
  };
  for (auto _ : state) {
    left = 2;
    journal.Resume(*game, run, BeginCharacter);
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * 3);  // each plays the run three times
}
BENCHMARK(UndoInTheLastForm)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veld
