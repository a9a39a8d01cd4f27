#include "cli/workbench.h"

#include <cstdio>

#include "platform/form.h"
#include "shell/data_folder.h"
#include "store/character_file.h"
#include "store/safe_file.h"
#include "store/side_files.h"
#include "text/format.h"

namespace veld {

namespace {

constexpr std::size_t kLargestFile = 64'000'000;

bool ReadStandardInput(std::string& bytes) {
  bytes.clear();
  char block[65536];
  while (const std::size_t count = std::fread(block, 1, sizeof block, stdin)) {
    bytes.append(block, count);
    if (bytes.size() > kLargestFile) return false;
  }
  return std::ferror(stdin) == 0;
}

}  // namespace

void PromptPlatform::RunForm(Form& form) {
  form.Open();
  form.PressCloseBox();
  form.Close();
}

void PromptPlatform::ShowWindow(std::shared_ptr<Form> form) {
  form->Open();
}

void PromptPlatform::DoShowMessage(const std::string&, const std::string& text) {
  std::fprintf(stderr, "%s\n", text.c_str());
}

std::unique_ptr<Game> QuietGame(PromptPlatform& platform) {
  auto game = MakeGame(platform);
  ResetCharacter(*game);
  game->dice.LogMode = DiceLogMode::Off;
  game->RuleSwitches[kRollYourOwnDice] = 0;
  return game;
}

std::string LoadShippedCatalogues(Game& game) {
  const auto folder = ShippedDataFolder();
  std::string goods;
  std::string spells;
  if (folder.empty() || ReadWholeFile(folder / "equip.vlb", goods, kLargestFile) != FileRead::Done ||
      ReadWholeFile(folder / "spells.vld", spells, kLargestFile) != FileRead::Done) {
    return "the goods and spells that ship with VELD can't be read: install it again";
  }
  DecodeEquipment(goods, game.EquipmentTable);
  DecodeSpells(spells, game.SpellTable);
  return {};
}

std::string ReadBytes(const std::string& path, std::string& bytes) {
  if (path == "-") return ReadStandardInput(bytes) ? "" : "standard input can't be read";
  switch (ReadWholeFile(path, bytes, kLargestFile)) {
    case FileRead::Missing:
      return "there is no such file";
    case FileRead::Unreadable:
      return "can't be read";
    case FileRead::Done:
      break;
  }
  return {};
}

std::string ReadCharacter(Game& game, const std::string& path) {
  std::string bytes;
  if (const std::string why = ReadBytes(path, bytes); !why.empty()) return why;
  const auto draft = std::make_unique<CharacterDraft>();
  switch (DecodeCharacter(bytes, *draft)) {
    case LoadResult::UnknownVersion:
      return "no character file, or of a version that is not known";
    case LoadResult::Damaged:
      return "damaged: it counts more than any table holds";
    case LoadResult::Loaded:
      break;
  }
  TakeCharacter(game, *draft);
  return {};
}

}  // namespace veld
