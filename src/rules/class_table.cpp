#include "rules/class_table.h"

#include <algorithm>
#include <cstddef>

#include "rules/class_rows.h"
#include "text/row_runs.h"

namespace veld {

namespace {

void SetHitDice(ClassRecord& record, int level, int hitDice, int count, int sides, int flat) {
  const auto at = static_cast<std::size_t>(level);
  record.HitDiceAtLevel[at] = hitDice;
  record.HitDieCount[at] = count;
  record.HitDieSides[at] = sides;
  if (at < record.FlatHitPoints.size()) record.FlatHitPoints[at] = flat;
}

void ExpandHitDice(ClassRecord& record, const HitDiceNotation& notation) {
  const int levels = static_cast<int>(record.HitDieSides.size());
  for (int level = 1; level < levels; ++level) {
    if (level <= notation.lastRolled) {
      SetHitDice(record, level, 1, 1, notation.sides, 0);
    } else {
      SetHitDice(record, level, 0, 0, 0, notation.flat);
    }
  }
}

void ExpandSlots(ClassRecord& record, const SlotNotation& notation) {
  auto& slots = record.ProficiencySlotsAtLevel;
  for (auto level = static_cast<std::size_t>(notation.step); level < slots.size();
       level += static_cast<std::size_t>(notation.step)) {
    slots[level] = 1;
  }
  slots[1] = notation.first;
}

void SetGroups(ClassRecord& record, const ClassGroups& groups) {
  record.IsCleric = groups.cleric;
  record.IsFighter = groups.fighter;
  record.IsMage = groups.mage;
  record.IsThief = groups.thief;
}

void ExpandClass(ClassRecord& record, const ClassEntry& row) {
  record.Name = row.name;
  record.RuleSwitch = row.ruleSwitch;
  record.ExperienceForLevel = kExperienceLadders[static_cast<std::size_t>(row.ladder - 1)].experience;
  ExpandHitDice(record, row.hitDice);
  record.Kicker = row.kicker;
  ExpandSlots(record, row.slots);
  record.ClassBPGift = row.bp;
  record.MinSocialClass = row.socialClass;
  record.AlignmentFlags = row.alignments.flags;
  record.BackgroundModifier = row.background;
  SetGroups(record, row.groups);
  record.Reserved.fill(1);
  record.AbilityGainDie = row.gainDice.values;
  record.AbilityRange = row.requirements.ranges;
  record.SaveTable = row.saveTable;
}

/// A combination of classes has no ladder, hit dice or alignments: its character rises in each class by itself.
void ExpandMultiClass(ClassRecord& record, const MultiClassRow& row) {
  record.Name = row.name;
  record.ClassBPGift = row.bp;
  record.MinSocialClass = row.socialClass;
  record.BackgroundModifier = row.background;
  SetGroups(record, row.groups);
  record.AbilityRange = row.requirements.ranges;
}

void ExpandThiefPoints(ClassRecord& record, const ThiefPoints& points) {
  for (int level = points.firstLevel; level <= kHighestLadderLevel; ++level) {
    record.ThiefPointsAtLevel[static_cast<std::size_t>(level)] =
        level == points.firstLevel ? points.first : points.further;
  }
}

struct ExpandedClasses {
  std::array<ClassRecord, kClassRows> rows;

  ExpandedClasses() {
    for (const ClassEntry& row : kClasses) ExpandClass(Row(row.row), row);
    for (const MultiClassRow& row : kMultiClasses) ExpandMultiClass(Row(row.row), row);
    for (const HitDiceLevels& dice : kHitDiceByLevel) {
      for (int level = dice.firstLevel; level <= dice.lastLevel; ++level) {
        SetHitDice(Row(dice.classRow), level, dice.hitDice, dice.count, dice.sides, dice.flat);
      }
    }
    for (const ThiefPoints& points : kThiefPoints) ExpandThiefPoints(Row(points.classRow), points);
    for (const WeaponList& list : kClassWeapons) ExpandWeapons(list);
  }

  ClassRecord& Row(int row) { return rows[static_cast<std::size_t>(row)]; }

  void ExpandWeapons(const WeaponList& list) {
    std::array<int, kClassRows> classes{};
    ExpandRowRuns(list.classes, classes);
    for (std::size_t row = 0; row < rows.size(); ++row) {
      if (!classes[row]) continue;
      ExpandRowRuns(list.weapons, rows[row].WeaponAllowed);
      rows[row].Weapon2Allowed[0] = list.quickDraw;
    }
  }
};

}  // namespace

const std::array<ClassRecord, kClassRows>& ClassTable() {
  static const ExpandedClasses classes;
  return classes.rows;
}

int FindClassRow(std::string_view name) {
  if (name.empty()) return -1;
  const auto& table = ClassTable();
  const auto found = std::find_if(table.begin(), table.end(), [&](const ClassRecord& row) { return row.Name == name; });
  return found == table.end() ? -1 : static_cast<int>(found - table.begin());
}

int FirstUnmetAbility(int classRow, std::span<const float, kAbilityCount> abilities) {
  if (classRow < 0 || classRow >= kClassRows) return kStrength;
  const ClassRecord& record = ClassTable()[static_cast<std::size_t>(classRow)];
  if (record.Name.empty()) return kStrength;
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const auto at = static_cast<std::size_t>(ability);
    const AbilityNumberRange& range = record.AbilityRange[at];
    if (!(abilities[at] >= range.Minimum && abilities[at] <= range.Maximum)) return ability;
  }
  return -1;
}

}  // namespace veld
