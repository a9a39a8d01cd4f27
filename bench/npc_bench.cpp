// Promise: a thousand characters of the first level that play themselves, of any race and class, take at most 2 s.
#include <benchmark/benchmark.h>

#include <fstream>
#include <sstream>

#include "npc/npc.h"
#include "silent_platform.h"
#include "store/side_files.h"

namespace veld {
namespace {

std::string FileText(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

std::unique_ptr<Game> ShopGame(Platform& platform) {
  auto game = MakeGame(platform);
  DecodeEquipment(FileText(std::string(VELD_DATA_DIR) + "/equip.vlb"), game->EquipmentTable);
  DecodeSpells(FileText(std::string(VELD_DATA_DIR) + "/spells.vld"), game->SpellTable);
  return game;
}

void MakeThem(benchmark::State& state, const NpcWishes& first, int count) {
  SilentPlatform platform;
  const auto game = ShopGame(platform);
  NpcMaker maker;
  NpcWishes wishes = first;
  for (auto _ : state) {
    for (int i = 0; i < count; ++i, ++wishes.seed) {
      if (!maker.Make(*game, wishes).isMade) state.SkipWithError("somebody was not made");
    }
  }
}

void AThousandOfTheFirstLevel(benchmark::State& state) {
  MakeThem(state, {}, 1'000);
}
BENCHMARK(AThousandOfTheFirstLevel)->Unit(benchmark::kMillisecond);

/// The floor: a record cleared, and copied to the game that it is made for.
void AThousandRecordsClearedAndCopied(benchmark::State& state) {
  SilentPlatform platform;
  const auto from = ShopGame(platform);
  const auto to = ShopGame(platform);
  for (auto _ : state) {
    for (int i = 0; i < 1'000; ++i) {
      ResetCharacter(*from);
      ResetCharacter(*to);
      to->sheet = from->sheet;
      benchmark::ClobberMemory();
    }
  }
}
BENCHMARK(AThousandRecordsClearedAndCopied)->Unit(benchmark::kMillisecond);

void FiveBandits(benchmark::State& state) {
  MakeThem(state, {.race = "Human", .className = "Brigand", .level = 3}, 5);
}
BENCHMARK(FiveBandits)->Unit(benchmark::kMillisecond);

void OneOfTheTwentiethLevel(benchmark::State& state) {
  MakeThem(state, {.race = "Human", .className = "Paladin", .level = 20}, 1);
}
BENCHMARK(OneOfTheTwentiethLevel)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veld
