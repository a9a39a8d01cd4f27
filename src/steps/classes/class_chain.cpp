#include "steps/classes/class_chain.h"

#include <algorithm>

#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "rules/race_table.h"
#include "rules/spell_catalogue.h"
#include "steps/classes/class_levels.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

enum class Group { None, Cleric, Fighter, Mage, Thief };

/// A run of classes in the order in which a class text is searched. Spells: the starting spells, -1 for no caster.
struct ChainRun {
  int First;
  int Last;
  Group FirstTimeGroup;
  int Spells;
};

// clang-format off
constexpr ChainRun kClassChain[] = {
    {  1,   2, Group::Cleric,  -1},
    {  3,  11, Group::Fighter, -1},
    { 12,  12, Group::Mage,     3},
    { 13,  13, Group::None,     3},  // a battle mage is a mage by the choice of the class alone
    { 14,  15, Group::Mage,     3},
    { 16,  18, Group::Thief,   -1},
    { 19,  34, Group::Mage,     3},
    { 35,  53, Group::None,     8},
    { 54,  57, Group::None,     3},
    { 58,  58, Group::None,     4},
    { 59,  59, Group::None,     3},
    { 60,  66, Group::Fighter, -1},
    { 67, 108, Group::Cleric,  -1},
    {109, 109, Group::None,    -1},  // "Zealot of Thrain (Skite)"
    {110, 115, Group::Cleric,  -1},
    {116, 122, Group::Thief,   -1},
    {123, 123, Group::Mage,    -1},
};
// clang-format on

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

/// True if the text names the class of a row. Names that stand inside longer ones are told apart.
bool NamesClass(std::string_view text, int classRow) {
  if (!Contains(text, ClassAt(classRow).Name)) return false;
  if (classRow == ClassRow::Druid) return !Contains(text, "Zealot");
  if (classRow == ClassRow::Illusionist) return !Contains(text, "Standard") && !Contains(text, "Double");
  return true;
}

void SetGroup(CharacterSheet& sheet, Group group) {
  switch (group) {
    case Group::Cleric:
      sheet.IsClericClass = 1;
      break;
    case Group::Fighter:
      sheet.IsFighterClass = 1;
      break;
    case Group::Mage:
      sheet.IsMageClass = 1;
      break;
    case Group::Thief:
      sheet.IsThiefClass = 1;
      break;
    case Group::None:
      break;
  }
}

/// What the first level of a class brings once.
void EnterClass(Game& game, const ChainRun& run, int classRow) {
  CharacterSheet& sheet = game.sheet;
  SetGroup(sheet, run.FirstTimeGroup);
  if (classRow == ClassRow::KnightErrant || (classRow == ClassRow::Fighter && sheet.ClassName == "Fighter")) {
    sheet.FreeWeaponProficiencySlots = 1;
  }
  if (run.Spells >= 0) game.run.StartingSpells = run.Spells;
  if (classRow == ClassRow::BattleMage) {
    sheet.Wisdom.Whole = AddSaturated(sheet.Wisdom.Whole, -1);
    if (HasTrait(sheet.RaceName, RaceTrait::TalentedBattleMage)) sheet.TalentCounts[TalentRow::TouchedByYurgain] = 1;
  }
}

/// A plain illusionist is a standard specialist: what row 15 holds moves there.
void MoveIllusionist(CharacterSheet& sheet) {
  const auto move = [](auto& rows) {
    rows[ClassRow::StandardIllusionist] = rows[ClassRow::Illusionist];
    rows[ClassRow::Illusionist] = {};
  };
  if (sheet.ClassLevels[ClassRow::Illusionist] <= 0 && !(sheet.ClassExperience[ClassRow::Illusionist] > 0)) return;
  move(sheet.ClassLevels);
  move(sheet.ClassExperience);
  move(sheet.ClassProficiencySlots);
  for (ClassNumbers& points : sheet.LevelHitPoints) move(points);
  for (int ability = 0; ability < kAbilityCount; ++ability) move(LevelGainAt(sheet, ability));
}

NamedClass AdvanceNamedClass(Game& game, const ChainRun& run, int namedRow, const LevelWay& way) {
  CharacterSheet& sheet = game.sheet;
  const int classRow = namedRow == ClassRow::Illusionist ? ClassRow::StandardIllusionist : namedRow;
  if (namedRow == ClassRow::Illusionist) MoveIllusionist(sheet);
  const bool isNew = sheet.ClassLevels[Index(classRow)] == 0;
  AdvanceClassLevels(game, classRow, way);
  const int level = sheet.ClassLevels[Index(classRow)];
  const bool isEntered = isNew && level > 0;
  if (isEntered) EnterClass(game, run, classRow);
  if (run.Spells >= 0) SetSpellsForLevel(game, level);
  return {classRow, isEntered, run.Spells >= 0};
}

}  // namespace

bool NamesKnownClass(std::string_view className) {
  return std::ranges::any_of(kClassChain, [&](const ChainRun& run) {
    for (int row = run.First; row <= run.Last; ++row) {
      if (NamesClass(className, row)) return true;
    }
    return false;
  });
}

std::vector<NamedClass> AdvanceNamedClasses(Game& game, std::string_view classText, const LevelWay& way) {
  std::vector<NamedClass> classes;
  for (const ChainRun& run : kClassChain) {
    for (int row = run.First; row <= run.Last; ++row) {
      if (NamesClass(classText, row)) classes.push_back(AdvanceNamedClass(game, run, row, way));
    }
  }
  return classes;
}

void LeaveClass(Game& game, int classRow) {
  CharacterSheet& sheet = game.sheet;
  LoseClassLevels(game, classRow);
  sheet.ClassExperience[Index(classRow)] = 0;
  sheet.ClassProficiencySlots[Index(classRow)] = 0;
  const auto holdsAny = [&](int ClassRecord::*group) {
    for (int row = 1; row <= kLastSingleClass; ++row) {
      if (sheet.ClassLevels[Index(row)] > 0 && ClassAt(row).*group == 1) return 1;
    }
    return 0;
  };
  if (ClassAt(classRow).IsCleric == 1) sheet.IsClericClass = holdsAny(&ClassRecord::IsCleric);
  if (ClassAt(classRow).IsFighter == 1) sheet.IsFighterClass = holdsAny(&ClassRecord::IsFighter);
  if (ClassAt(classRow).IsMage == 1) sheet.IsMageClass = holdsAny(&ClassRecord::IsMage);
  if (ClassAt(classRow).IsThief == 1) sheet.IsThiefClass = holdsAny(&ClassRecord::IsThief);
  if (classRow == ClassRow::KnightErrant || classRow == ClassRow::Fighter) sheet.FreeWeaponProficiencySlots = 0;
  if (classRow == ClassRow::BattleMage) {
    sheet.Wisdom.Whole = AddSaturated(sheet.Wisdom.Whole, 1);
    if (HasTrait(sheet.RaceName, RaceTrait::TalentedBattleMage)) sheet.TalentCounts[TalentRow::TouchedByYurgain] = 0;
  }
}

bool IsCasterClass(int classRow) {
  return std::ranges::any_of(kClassChain, [&](const ChainRun& run) {
    return classRow >= run.First && classRow <= run.Last && run.Spells >= 0;
  });
}

void SetSpellsForLevel(Game& game, int level) {
  game.run.SpellsPerLevel = SpellSlotsAtLevel(level);
}

}  // namespace veld
