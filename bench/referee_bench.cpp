// Promise: each dialog of the referee opens below one frame, 16.7 ms: its lists are filled and its page is laid out.
// The floor is the lay-out of the page alone. The dialogs are those of a full party and of ten results to look back at.
#include <benchmark/benchmark.h>

#include <utility>

#include "platform/layout.h"
#include "referee/critical_hits.h"
#include "referee/honor_track.h"
#include "referee/party.h"
#include "rules/critical_hit_table.h"
#include "silent_platform.h"
#include "store/game.h"
#include "text/columns.h"
#include "text/format.h"

namespace veld {
namespace {

constexpr PageSize kTerminal{78, 22};

PageMetrics Metrics() {
  PageMetrics metrics;
  metrics.TextWidth = [](std::string_view line, TextFace) { return ColumnsOf(line); };
  metrics.ColumnGap = metrics.ControlGap = metrics.ButtonPadding = metrics.EditPadding = metrics.ListPadding = 2;
  metrics.ComboPadding = 4;
  metrics.Roomy = {.BoxLines = 2, .TitleLines = 2};
  return metrics;
}

/// Opens every dialog, lays its page out and leaves it at once.
class PagePlatform : public SilentPlatform {
 public:
  int Opened = 0;
  int NextButton = 0;                 ///< is pressed in the next dialog, and opens another
  benchmark::State* Floor = nullptr;  ///< measures lay-outs alone

  void RunForm(Form& form) override {
    form.Open();
    if (Floor) {
      for (auto _ : *Floor) benchmark::DoNotOptimize(LayOutPage(form, metrics_, kTerminal));
    } else {
      benchmark::DoNotOptimize(LayOutPage(form, metrics_, kTerminal));
    }
    ++Opened;
    if (NextButton != 0) form.Press(std::exchange(NextButton, 0));
    form.Close();
  }

 private:
  PageMetrics metrics_ = Metrics();
};

std::unique_ptr<Game> FullGame(Platform& platform) {
  auto game = MakeGame(platform);
  for (int i = 1; i <= kMostPartyMembers; ++i) {
    PartyMember member;
    member.Name = Format("Member %i of the party", i);
    member.Alignment = kPartyAlignment;
    AddMember(game->party, member);
  }
  game->criticalHits.LastResults.assign(10, std::string(CriticalHitResult(1, 24, 1500)) + "  (Hacking 24, roll 1500)");
  return game;
}

void Open(benchmark::State& state, void (*dialog)(Game&), int button) {
  PagePlatform platform;
  const auto game = FullGame(platform);
  for (auto _ : state) {
    platform.NextButton = button;
    dialog(*game);
  }
  if (platform.Opened != state.iterations() * (button == 0 ? 1 : 2)) state.SkipWithError("a dialog did not open");
}
BENCHMARK_CAPTURE(Open, HonorTracking, RunHonorTracking, 0)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, HonorTrackingAndGetPC, RunHonorTracking, 3043)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, HonorTrackingAndAdjust, RunHonorTracking, 3049)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, CriticalHits, RunCriticalHits, 0)->Unit(benchmark::kMicrosecond);

void FloorLayOut(benchmark::State& state, void (*dialog)(Game&)) {
  PagePlatform platform;
  platform.Floor = &state;
  const auto game = FullGame(platform);
  dialog(*game);
}
BENCHMARK_CAPTURE(FloorLayOut, HonorTracking, RunHonorTracking)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(FloorLayOut, CriticalHits, RunCriticalHits)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace veld
