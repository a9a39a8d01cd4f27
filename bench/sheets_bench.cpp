// The printed character: each sheet without the disk, and the spell list that mages start up with. A finished character
// with nearly everything a sheet can show; the floor is the copying of the sheet's own bytes.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "print/print_save.h"
#include "sheets/html_sheet.h"
#include "sheets/tab_sheet.h"
#include "sheets/text_sheet.h"
#include "sheets/xml_sheet.h"
#include "silent_platform.h"
#include "steps/classes/class_recalculation.h"
#include "store/file_layout.h"
#include "store/game.h"
#include "store/safe_file.h"
#include "store/side_files.h"

namespace veld {
namespace {

std::string DataFile(const char* name) {
  std::string bytes;
  ReadWholeFile(std::string(VELD_DATA_DIR) + "/" + name, bytes, kLargestSpellFileBytes);
  return bytes;
}

/// A multi-class character who owns, knows and holds a good part of all that there is.
std::unique_ptr<Game> MakeFullGame() {
  static SilentPlatform platform;
  auto game = MakeGame(platform);
  game->dice.LogMode = DiceLogMode::Off;
  DecodeEquipment(DataFile("equip.vlb"), game->EquipmentTable);
  DecodeSpells(DataFile("spells.vld"), game->SpellTable);
  CharacterSheet& sheet = game->sheet;
  sheet.RaceName = "Human";
  sheet.ClassName = "Fighter/Magic-User/Thief";
  for (const std::size_t row : {3U, 12U, 16U}) sheet.ClassExperience[row] = 1;
  RecomputeFromClasses(*game);
  sheet.UsesMageBackground = sheet.UsesFighterBackground = sheet.UsesClericBackground = 1;
  for (std::size_t i = 0; i < game->EquipmentTable.size(); i += 3)
    game->EquipmentTable[i].Quantity = static_cast<int>(i % 4);
  for (std::size_t row = 0; row < kSpellRecords; row += 4) sheet.SpellsKnown[row] = 1;
  for (std::size_t row = 1; row < 600; row += 20) sheet.QuirkCounts[row] = 1;
  for (std::size_t row = 0; row < 130; row += 3) sheet.ProficiencyLevels[row] = static_cast<int>(row % 4);
  for (std::size_t row = 0; row < 300; row += 3) sheet.SkillScores[row] = 40;
  for (std::size_t row = 0; row < 140; row += 5) sheet.TalentCounts[row] = 1;
  sheet.Notes = std::string(20000, 'n');
  return game;
}

template <std::string (*Sheet)(Game&)>
void WriteSheet(benchmark::State& state) {
  const auto game = MakeFullGame();
  std::size_t bytes = 0;
  for (auto _ : state) bytes = Sheet(*game).size();
  state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(WriteSheet<TextSheet>)->Name("TextSheet, promised below 2 ms")->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteSheet<TabSheet>)->Name("TabSheet, promised below 2 ms")->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteSheet<HtmlSheet>)->Name("HtmlSheet, promised below 5 ms")->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteSheet<XmlSheet>)->Name("XmlSheet, promised below 10 ms")->Unit(benchmark::kMicrosecond);

/// A character's sheet on paper, with as many spells.
void WritePdf(benchmark::State& state) {
  static SilentPlatform platform;
  auto game = MakeGame(platform);
  game->dice.LogMode = DiceLogMode::Off;
  DecodeEquipment(DataFile("equip.vlb"), game->EquipmentTable);
  DecodeSpells(DataFile("spells.vld"), game->SpellTable);
  CharacterSheet& sheet = game->sheet;
  sheet.RaceName = "Human";
  sheet.ClassName = state.range(0) > 0 ? "Magic-User" : "Fighter";
  sheet.ClassExperience.fill(1);
  for (std::size_t row = 0; row < 40; ++row) game->EquipmentTable[row * 20].Quantity = 1;
  for (std::size_t row = 0; row < static_cast<std::size_t>(state.range(0)); ++row) sheet.SpellsKnown[row * 6] = 1;
  for (const std::size_t row : {10U, 50U, 90U, 130U, 170U, 210U}) {
    sheet.QuirkCounts[row] = sheet.ProficiencyLevels[row / 2] = sheet.TalentCounts[row / 2] = 1;
    for (std::size_t i = 0; i < 5; ++i) sheet.SkillScores[row + i] = 40;
  }
  sheet.Notes = std::string(1000, 'n');
  std::size_t bytes = 0;
  for (auto _ : state) bytes = PdfSheet(*game).size();
  state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(WritePdf)->Name("PdfSheet, promised below 40 ms")->Arg(0)->Unit(benchmark::kMicrosecond);
BENCHMARK(WritePdf)->Name("PdfSheet with spells, promised below 80 ms")->Arg(60)->Unit(benchmark::kMicrosecond);

template <std::string (*Sheet)(Game&)>
void FloorCopySheet(benchmark::State& state) {
  const std::string sheet = Sheet(*MakeFullGame());
  for (auto _ : state) benchmark::DoNotOptimize(std::string(sheet));
}
BENCHMARK(FloorCopySheet<HtmlSheet>)->Unit(benchmark::kMicrosecond);
BENCHMARK(FloorCopySheet<XmlSheet>)->Unit(benchmark::kMicrosecond);

void LoadShippedSpells(benchmark::State& state) {
  const auto game = MakeFullGame();
  for (auto _ : state) DecodeSpells(DataFile("spells.vld"), game->SpellTable);
}
BENCHMARK(LoadShippedSpells)->Name("spells.vld, promised below 2 ms")->Unit(benchmark::kMicrosecond);

void FloorReadSpells(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(DataFile("spells.vld"));
}
BENCHMARK(FloorReadSpells)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace veld
