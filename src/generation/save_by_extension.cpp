#include "generation/save_by_extension.h"

#include "platform/platform.h"
#include "print/print_save.h"
#include "sheets/sheet_save.h"
#include "steps/race/step_three.h"
#include "store/character_file.h"
#include "text/file_name.h"
#include "text/search.h"

namespace veld {

namespace {

// The misspelling and the double blanks are as players know them.
constexpr FileFilter kSaveFilters[] = {
    {"Quellmarch Files (*.VLF)", ".vlf"}, {"Text Files (*.TXT)", ".txt"},           {"HTML Files (*.HTML)", ".html"},
    {"HTM Files  (*.HTM)", ".htm"},       {"Tab Seperated Files  (*.CSV)", ".csv"}, {"XML Files  (*.XML)", ".xml"},
    {"PDF Files (*.PDF)", ".pdf"},
};
constexpr FileFilter kLoadFilters[] = {{"Quellmarch Files (*.VLF)", ".vlf"}};

}  // namespace

void SaveByExtension(Game& game, const std::string& path) {
  if (game.platform.LeavesNoTrace()) return;
  const auto has = [&](std::string_view part) { return Contains(path, part); };
  if (has(".vlf")) {
    SaveCharacterFile(game, path);
  } else if (has(".htm") || has(".html")) {
    SaveHtmlSheet(game, path);
  } else if (has(".txt") || has(".TXT")) {
    SaveTextSheet(game, path);
  } else if (has(".xml") || has(".XML")) {
    SaveXmlSheet(game, path);
  } else if (has(".csv") || has(".CSV")) {
    SaveTabSheet(game, path);
  } else if (has(".pdf") || has(".PDF")) {
    SavePdfSheet(game, path);
  } else {
    game.platform.ShowMessage("Problem Saving Character: invalid file extension");
  }
}

bool AskAndSaveCharacter(Game& game) {
  std::string name = FileNamePart(game.sheet.CharacterName);
  if (!name.empty()) name += kSaveFilters[0].Extension;
  const auto path = game.platform.AskSavePath("Save", kSaveFilters, name);
  if (!path) return false;
  SaveByExtension(game, *path);
  return true;
}

bool AskAndLoadCharacter(Game& game) {
  const auto path = game.platform.AskOpenPath("Load", kLoadFilters);
  if (!path) return false;
  if (LoadCharacterFile(game, *path)) CloseStepThree(game);  // which was of the character that has gone
  return true;
}

}  // namespace veld
