#include "steps/classes/class_saves.h"

#include <algorithm>

#include "rules/saving_throws.h"

namespace veld {

static_assert(kSaves == kSaveCount);

void ComputeSaves(Game& game, int classRow) {
  const auto row = static_cast<std::size_t>(classRow);
  if (classRow < 0 || row >= kBestSave) return;
  std::array<int, kSaveCount> saves{};
  if (!ReadClassSaves(classRow, game.sheet.ClassLevels[row], saves)) return;
  for (std::size_t save = 0; save < kSaves; ++save) SaveAt(game.sheet, save)[row] = saves[save];
}

void ClearSavesAndSlots(CharacterSheet& sheet) {
  for (std::size_t save = 0; save < kSaves; ++save) SaveAt(sheet, save)[kBestSave] = kNoSave;
  sheet.ProficiencySlots = 0;
}

void JoinSavesAndSlots(Game& game) {
  CharacterSheet& sheet = game.sheet;
  for (std::size_t row = 0; row < kBestSave; ++row) {
    const bool isHeld = sheet.ClassLevels[row] > 0;
    if (isHeld) ComputeSaves(game, static_cast<int>(row));
    for (std::size_t save = 0; save < kSaves; ++save) {
      SaveNumbers& numbers = SaveAt(sheet, save);
      if (!isHeld) numbers[row] = kNoSave;
      numbers[kBestSave] = std::min(numbers[kBestSave], numbers[row]);
    }
    sheet.ProficiencySlots = std::max(sheet.ProficiencySlots, sheet.ClassProficiencySlots[row]);
  }
}

}  // namespace veld
