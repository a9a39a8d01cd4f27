#pragma once

#include <span>

namespace veld {

/// The thirteen saving throws in the order of the character's record.
enum SavingThrowKind {
  kSaveParalyzation,
  kSavePoison,
  kSaveDeathMagic,
  kSavePetrification,
  kSavePolymorph,
  kSaveRod,
  kSaveStaff,
  kSaveWand,
  kSaveQuellFrenzy,
  kSaveQuellLust,
  kSaveBreathWeapon,
  kSaveApology,
  kSaveSpells,
  kSaveCount
};

/// The number to roll for a saving throw (2 to 19) from saving throw table 1 to 5. Levels outside 1 to 20 read the
/// nearest line. 0 for a table or a saving throw that does not exist.
int SavingThrow(int saveTable, int level, int save);

/// Writes the thirteen saving throws of a class at a level, with what barbarians and paladins take off theirs. Returns
/// false, and leaves `saves` as they stand, for a class without a saving throw table.
bool ReadClassSaves(int classRow, int level, std::span<int, kSaveCount> saves);

}  // namespace veld
