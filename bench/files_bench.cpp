// Files: loading and saving of characters and spells, each beside its floor. Files are not flushed to the disk here.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include "silent_platform.h"
#include "store/character_file.h"
#include "store/side_files.h"

namespace veld {
namespace {

constexpr SaveWay kNoFlush{.Flush = false};

/// A folder of this program's own, the working directory while it runs.
struct BenchFolder {
  BenchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "veld-bench-XXXXXX").string();
    if (mkdtemp(pattern.data())) std::filesystem::current_path(path = pattern);
  }
  ~BenchFolder() {
    std::error_code ignored;
    std::filesystem::current_path("/", ignored);
    if (!path.empty()) std::filesystem::remove_all(path, ignored);
  }
  std::filesystem::path path;
};
const BenchFolder folder;

/// A character with levels, goods, a spell book and all three backgrounds, saved as a.vlf.
std::unique_ptr<Game> MakeSavedGame() {
  static SilentPlatform platform;
  auto game = MakeGame(platform);
  CharacterSheet& sheet = game->sheet;
  sheet.ClassLevels[8] = 5;
  sheet.ClassLevels[40] = 3;
  sheet.UsesMageBackground = sheet.UsesFighterBackground = sheet.UsesClericBackground = 1;
  sheet.SpellBooks[0].Name = "First Spellbook";
  for (std::size_t row = 0; row < 10; ++row) {
    game->CustomEquipmentTable[row].Name = "Thing " + std::to_string(row);
    game->CustomEquipmentTable[row].Quantity = 1;
  }
  SaveCharacterFile(*game, "a.vlf", kNoFlush);
  return game;
}

void LoadCharacter(benchmark::State& state) {
  const auto game = MakeSavedGame();
  for (auto _ : state) {
    if (!LoadCharacterFile(*game, "a.vlf")) state.SkipWithError("not loaded");
  }
}
BENCHMARK(LoadCharacter)->Unit(benchmark::kMicrosecond);

void FloorLoadCharacter(benchmark::State& state) {
  MakeSavedGame();
  std::string bytes;
  for (auto _ : state) benchmark::DoNotOptimize(ReadWholeFile("a.vlf", bytes, kLargestCharacterBytes));
}
BENCHMARK(FloorLoadCharacter)->Unit(benchmark::kMicrosecond);

void SaveCharacter(benchmark::State& state) {
  const auto game = MakeSavedGame();
  for (auto _ : state) {
    if (!SaveCharacterFile(*game, "a.vlf", kNoFlush)) state.SkipWithError("not saved");
  }
}
BENCHMARK(SaveCharacter)->Unit(benchmark::kMicrosecond);

void FloorSaveCharacter(benchmark::State& state) {
  const std::string bytes = EncodeCharacter(*MakeSavedGame());
  for (auto _ : state) {
    std::ofstream("b.tmp", std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    std::filesystem::rename("b.tmp", "b.vlf");
  }
}
BENCHMARK(FloorSaveCharacter)->Unit(benchmark::kMicrosecond);

void ResetTheCharacter(benchmark::State& state) {
  const auto game = MakeSavedGame();
  for (auto _ : state) {
    ResetCharacter(*game);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(ResetTheCharacter)->Unit(benchmark::kMicrosecond);

void FloorResetTheCharacter(benchmark::State& state) {
  const std::size_t size = sizeof(CharacterSheet) + sizeof(GenerationRun);
  const auto bytes = std::make_unique<char[]>(size);
  for (auto _ : state) {
    std::memset(bytes.get(), 0, size);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(FloorResetTheCharacter)->Unit(benchmark::kMicrosecond);

void WriteSpellFile() {
  std::ofstream file("spells.vld");
  for (std::size_t row = 0; row < kSpellRecords; ++row) {
    file << "Some_Spell_" << row
         << " Conjuration/Summoning Conjurer 10_yards_per_level V,S,M 1_turn_per_level 3_segments "
         << "One_creature_or_object_touched Negates 4 Magic-user_Level_4 ADC\n";
  }
}

void LoadSpellFile(benchmark::State& state) {
  const auto game = MakeSavedGame();
  WriteSpellFile();
  for (auto _ : state) {
    if (!LoadSpells(*game)) state.SkipWithError("not loaded");
  }
}
BENCHMARK(LoadSpellFile)->Unit(benchmark::kMicrosecond);

void FloorLoadSpellFile(benchmark::State& state) {
  WriteSpellFile();
  std::string bytes;
  for (auto _ : state) benchmark::DoNotOptimize(ReadWholeFile("spells.vld", bytes, kLargestSpellFileBytes));
}
BENCHMARK(FloorLoadSpellFile)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace veld
