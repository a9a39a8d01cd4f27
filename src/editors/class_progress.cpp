#include "editors/class_progress.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "rules/spell_catalogue.h"
#include "rules/thief_tables.h"
#include "steps/abilities/ability_effects_apply.h"
#include "steps/classes/class_chain.h"
#include "steps/classes/class_recalculation.h"
#include "steps/classes/class_totals.h"
#include "steps/classes/experience_ladder.h"
#include "steps/classes/level_gains.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

/// The experience of a class as a whole number.
std::int64_t ExperienceOf(const CharacterSheet& sheet, int classRow) {
  const double experience = sheet.ClassExperience[Index(classRow)];
  return experience > 0 ? static_cast<std::int64_t>(std::min(experience, static_cast<double>(kMostExperience))) : 0;
}

void WriteExperience(CharacterSheet& sheet, int classRow, std::int64_t experience) {
  sheet.ClassExperience[Index(classRow)] = static_cast<float>(std::clamp<std::int64_t>(experience, 0, kMostExperience));
}

/// The least experience of a level as the record can hold it: large numbers are rounded up to one it can.
float LeastExperience(int classRow, int level) {
  const int least = ClassAt(classRow).ExperienceForLevel[Index(level)];
  auto experience = static_cast<float>(least);
  while (static_cast<double>(experience) < least) {
    experience = std::nextafter(experience, std::numeric_limits<float>::max());
  }
  return experience;
}

std::string ClassTextWith(const CharacterSheet& sheet, int classRow) {
  const std::string_view name = ClassAt(classRow).Name;
  return ClassesHeld(sheet).empty() ? std::string(name) : Format("%s/%s", sheet.ClassName, name);
}

void JoinGroups(CharacterSheet& sheet, const ClassRecord& record) {
  if (record.IsCleric == 1) sheet.IsClericClass = 1;
  if (record.IsFighter == 1) sheet.IsFighterClass = 1;
  if (record.IsMage == 1) sheet.IsMageClass = 1;
  if (record.IsThief == 1) sheet.IsThiefClass = 1;
}

// ---- What levels brought ----

using Lines = std::vector<std::string>;

void AddChange(Lines& lines, std::string_view what, int before, int after) {
  if (before != after) lines.push_back(Format("%s %i to %i", what, before, after));
}

void AddLevelChanges(Lines& lines, const CharacterSheet& before, const CharacterSheet& after) {
  for (int row = 1; row <= kLastSingleClass; ++row) {
    AddChange(lines, Format("%s level", ClassAt(row).Name), before.ClassLevels[Index(row)],
              after.ClassLevels[Index(row)]);
  }
}

void AddAbilityChanges(Lines& lines, const CharacterSheet& before, const CharacterSheet& after) {
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const AbilityScore& old = AbilityAt(before, ability);
    const AbilityScore& now = AbilityAt(after, ability);
    if (old == now) continue;
    lines.push_back(
        Format("%s %i/%i to %i/%i", AbilityName(ability), old.Whole, old.Percentile, now.Whole, now.Percentile));
  }
}

void AddSaveChanges(Lines& lines, const CharacterSheet& before, const CharacterSheet& after) {
  constexpr std::array<std::string_view, kSaves> kNames = {
      "paralyzation", "poison", "death magic", "petrification", "polymorph", "rod",   "staff",
      "wand",         "frenzy", "lust",        "breath weapon", "apology",   "spells"};
  std::string changed;
  for (std::size_t save = 0; save < kSaves; ++save) {
    const int old = BestSave(SaveAt(before, save));
    const int now = BestSave(SaveAt(after, save));
    if (old == now) continue;
    changed += Format("%s%s %i", changed.empty() ? "Saving throws: " : ", ", kNames[save], now);
  }
  if (!changed.empty()) lines.push_back(changed);
}

void AddThiefChanges(Lines& lines, const CharacterSheet& before, const CharacterSheet& after) {
  constexpr std::array<std::string_view, kThiefAbilities> kNames = {"Pick pockets", "Open locks",    "Find traps",
                                                                    "Remove traps", "Move silently", "Hide in shadows",
                                                                    "Detect noise", "Climb walls",   "Read languages"};
  for (std::size_t ability = 0; ability < kThiefAbilities; ++ability) {
    AddChange(lines, kNames[ability], LevelSum(ThiefAbilityAt(before, ability)),
              LevelSum(ThiefAbilityAt(after, ability)));
  }
}

void AddSpellChanges(Lines& lines, const CharacterSheet& before, const CharacterSheet& after) {
  for (int row = 1; row <= kLastSingleClass; ++row) {
    const int old = before.ClassLevels[Index(row)];
    const int now = after.ClassLevels[Index(row)];
    if (old == now || !IsCasterClass(row)) continue;
    const auto oldSlots = SpellSlotsAtLevel(old);
    const auto newSlots = SpellSlotsAtLevel(now);
    for (std::size_t level = 0; level < newSlots.size(); ++level) {
      AddChange(lines, Format("Spells of level %i", level + 1), oldSlots[level], newSlots[level]);
    }
  }
}

void AddTraining(Lines& lines, const GenerationRun& run) {
  if (run.TrainingFreeMastery <= 0 && run.TrainingFreeSkills <= 0) return;
  lines.push_back(Format("The last training gave %i mastery points and %i skills: write them in under Skills",
                         run.TrainingFreeMastery, run.TrainingFreeSkills));
}

}  // namespace

void BringClassesUpToDate(Game& game, const LevelWay& way) {
  if (!NamesKnownClass(game.sheet.ClassName)) return RefreshAbilityEffects(game);
  // The run that gains levels changes the abilities; the one after it counts what they now give.
  constexpr int kRuns = 2;
  for (int run = 0; run < kRuns; ++run) {
    RefreshAbilityEffects(game);
    game.run.SpellsPerLevel = {};
    if (!RecomputeFromClasses(game, way, GainsTakenOut::AllClasses)) return;
  }
}

std::vector<int> ClassesHeld(const CharacterSheet& sheet) {
  std::vector<int> rows;
  for (int row = 1; row <= kLastSingleClass; ++row) {
    if (HasClass(sheet, row)) rows.push_back(row);
  }
  return rows;
}

void AwardExperience(Game& game, int classRow, std::int64_t points) {
  WriteExperience(game.sheet, classRow, ExperienceOf(game.sheet, classRow) + points);
  BringClassesUpToDate(game);
}

void AwardExperienceToAll(Game& game, std::int64_t points) {
  const std::vector<int> rows = ClassesHeld(game.sheet);
  if (rows.empty()) return;
  const auto count = static_cast<std::int64_t>(rows.size());
  for (const int row : rows) {
    const std::int64_t share = points / count + (row == rows.front() ? points % count : 0);
    WriteExperience(game.sheet, row, ExperienceOf(game.sheet, row) + share);
  }
  BringClassesUpToDate(game);
}

void SetExperience(Game& game, int classRow, std::int64_t experience, const LevelWay& way) {
  WriteExperience(game.sheet, classRow, experience);
  BringClassesUpToDate(game, {.HasTraining = way.HasTraining, .IsRolled = way.IsRolled});
}

void SetLevel(Game& game, int classRow, int level, const LevelWay& way) {
  const int wanted = std::clamp(level, 1, HighestLevelOf(classRow));
  float& experience = game.sheet.ClassExperience[Index(classRow)];
  if (EarnedLevel(classRow, experience) != wanted) experience = LeastExperience(classRow, wanted);
  BringClassesUpToDate(game, way);
}

std::string AddClass(Game& game, int classRow, const LevelWay& way) {
  CharacterSheet& sheet = game.sheet;
  if (classRow < 1 || classRow > kLastSingleClass) return "There is no such class.";
  // A plain illusionist is written as a standard specialist.
  if (classRow == ClassRow::Illusionist) classRow = ClassRow::StandardIllusionist;
  const std::string_view name = ClassAt(classRow).Name;
  if (HasClass(sheet, classRow)) return Format("The character is a %s already.", name);
  const FixedText<50> before = sheet.ClassName;
  const std::string text = ClassTextWith(sheet, classRow);
  if (text.size() >= sheet.ClassName.kWidth) {
    return Format("The names of the classes have room for %i letters in all, and %s would not fit.",
                  sheet.ClassName.kWidth - 1, name);
  }
  sheet.ClassName = text;
  WriteExperience(sheet, classRow, 0);
  BringClassesUpToDate(game, way);
  if (!HasClass(sheet, classRow)) {
    sheet.ClassName = before;
    return Format("A %s can't be a %s besides.", before, name);
  }
  JoinGroups(sheet, ClassAt(classRow));
  return {};
}

std::string GiveUpClass(Game& game, int classRow) {
  CharacterSheet& sheet = game.sheet;
  if (!HasClass(sheet, classRow)) return "The character has no level in that class.";
  if (ClassesHeld(sheet).size() < 2) return "The last class can't be given up: add another one first.";
  ChangeLevelTables(game, [&] {
    LeaveClass(game, classRow);
    SetClassTexts(sheet);
  });
  return {};
}

void ChangeLevelTables(Game& game, const std::function<void()>& change) {
  SumLevelGains(game.sheet);
  TakeOutLevelGains(game, GainsTakenOut::AllClasses);
  change();
  SumLevelGains(game.sheet);
  AddLevelGains(game, SumClasses(game));
  BringClassesUpToDate(game);
}

void WriteHitPoints(Game& game, int hitPoints) {
  CharacterSheet& sheet = game.sheet;
  BringClassesUpToDate(game);
  struct Cell {
    int Row;
    int Level;
  };
  std::vector<Cell> cells;
  for (const int row : ClassesHeld(sheet)) {
    for (int level = 1; level <= sheet.ClassLevels[Index(row)]; ++level) cells.push_back({row, level});
  }
  if (cells.empty()) return;
  const auto classes = static_cast<std::int64_t>(ClassesHeld(sheet).size());
  const auto count = static_cast<std::int64_t>(cells.size());
  const std::int64_t perDie = std::max(sheet.TalentCounts[TalentRow::HitPointBonus], 0) + sheet.ConstitutionHPAdj;
  std::int64_t sum = 0;
  for (const int row : ClassesHeld(sheet)) sum += game.run.ClassHitPoints[Index(row)];
  std::int64_t missing = hitPoints * classes - sheet.HitDiceCount * perDie - sum;
  for (std::int64_t left = count; left > 0; --left) {
    const Cell& cell = cells[static_cast<std::size_t>(count - left)];
    const std::int64_t share = missing / left;
    int& points = sheet.LevelHitPoints[Index(cell.Level)][Index(cell.Row)];
    points = SaturateToInt(points + share);
    missing -= share;
  }
  BringClassesUpToDate(game);
}

std::vector<std::string> WhatLevelsBrought(const CharacterSheet& before, const Game& game) {
  const CharacterSheet& after = game.sheet;
  Lines lines;
  AddLevelChanges(lines, before, after);
  AddChange(lines, "Hit points", before.HitPoints, after.HitPoints);
  AddAbilityChanges(lines, before, after);
  AddChange(lines, "Proficiency slots", before.ProficiencySlots, after.ProficiencySlots);
  AddSaveChanges(lines, before, after);
  AddThiefChanges(lines, before, after);
  AddSpellChanges(lines, before, after);
  AddChange(lines, "Honor", before.Honor, after.Honor);
  AddChange(lines, "Honor Die d", before.HonorDie, after.HonorDie);
  AddTraining(lines, game.run);
  return lines;
}

}  // namespace veld
