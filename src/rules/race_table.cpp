#include "rules/race_table.h"

#include <algorithm>
#include <cstddef>

#include "rules/race_rows.h"
#include "text/row_runs.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kDarkmenSwitch = 12;

bool IsBlank(const RaceRecord& race) {
  return race.Name.size() < 3 || race.RaceBP == 0;
}

RaceRecord ExpandRace(std::size_t row) {
  const RaceRow& numbers = kRaceNumbers[row];
  const std::size_t kind = row / 2;
  RaceRecord race;
  race.Name = numbers.name;
  race.Gender = numbers.gender;
  race.RowIndex = race.Name == "Elf, Wood" ? 0 : static_cast<int>(row);  // the book leaves the wood elves without one
  race.RuleSwitch = race.Name == "Darkmen" ? kDarkmenSwitch : 0;
  race.SizeClass = numbers.sizeClass;
  race.BaseMovement = numbers.movement;
  race.Languages = kRaceLanguages[kind];
  for (const RaceNote& note : kRaceNotes[kind]) race.Notes[static_cast<std::size_t>(note.slot)] = note.text;
  race.AbilityLimits = numbers.limits.ranges;
  race.AbilityModifiers = numbers.modifiers.values;
  race.RaceBP = numbers.bp;
  race.LegitimacyModifier = numbers.legitimacy;
  race.BirthModifier = numbers.birth;
  race.AgeBase = numbers.age.base;
  race.AgeDieSides = numbers.age.sides;
  race.AgeDieCount = numbers.age.count;
  race.HeightBase = numbers.height.base;
  race.HeightDieSides = numbers.height.sides;
  race.HeightDieCount = numbers.height.count;
  race.WeightBase = numbers.weight.base;
  race.WeightDieSides = numbers.weight.sides;
  race.WeightDieCount = numbers.weight.count;

  const RaceClassLimits& limits = kRaceClassLimits[kind];
  const bool ownList = row % 2 == 1 && !limits.female.empty();
  ExpandRowRuns(ownList ? limits.female : limits.male, race.ClassLevelLimits);
  ExpandRowRuns(kRaceTalents[kind].bought, race.TalentFlags);
  ExpandRowRuns(kRaceTalents[kind].granted, race.TalentFlags, -1);
  ExpandRowRuns(kRaceTalents[kind].bought2, race.Talent2Flags);
  race.ThiefAdjustments = kRaceThiefAdjustments[kind].values;
  return race;
}

struct ExpandedRaces {
  std::array<RaceRecord, kRaceRows> rows;

  ExpandedRaces() {
    for (std::size_t row = 0; row < kRacesFilled; ++row) rows[row] = ExpandRace(row);
  }
};

/// The row as a record, or null if it is blank or outside the table.
const RaceRecord* FilledRace(int row) {
  if (row < 0 || row >= kRaceRows) return nullptr;
  const RaceRecord& race = RaceTable()[static_cast<std::size_t>(row)];
  return IsBlank(race) ? nullptr : &race;
}

int FindRaceUpTo(int lastRow, std::string_view name, std::string_view gender) {
  for (int row = 0; row <= lastRow; ++row) {
    const RaceRecord& race = RaceTable()[static_cast<std::size_t>(row)];
    if (EqualsIgnoringCase(race.Name, name) && EqualsIgnoringCase(race.Gender, gender)) return row;
  }
  return -1;
}

}  // namespace

const std::array<RaceRecord, kRaceRows>& RaceTable() {
  static const ExpandedRaces races;
  return races.rows;
}

int FindRaceRow(std::string_view name, std::string_view gender) {
  return FindRaceUpTo(kRacesFilled - 1, name, gender);
}

int FindSearchedRaceRow(std::string_view name, std::string_view gender) {
  return FindRaceUpTo(kLastSearchedRace, name, gender);
}

std::string RaceListText(int row) {
  const RaceRecord* race = FilledRace(row);
  return race ? std::string(race->Name) + ", " + std::string(race->Gender) : std::string{};
}

int FindRaceInText(std::string_view text) {
  // The order of the rows makes this sound: the gnome titan and the gnomeling stand before the gnome, and "Male" with
  // its capital is not found inside "Female".
  for (int row = 0; row < kRaceRows; ++row) {
    const RaceRecord* race = FilledRace(row);
    if (race && Contains(text, race->Name) && Contains(text, race->Gender)) return row;
  }
  return -1;
}

bool RaceFits(int row, std::span<const int, kAbilityCount> wholeScores) {
  const RaceRecord* race = FilledRace(row);
  if (!race) return false;
  for (std::size_t i = 0; i < kAbilityCount; ++i) {
    const AbilityRange& range = race->AbilityLimits[i];
    if (wholeScores[i] < range.Minimum || wholeScores[i] > range.Maximum) return false;
  }
  return true;
}

int FindTakenAfterRow(std::string_view name) {
  static constexpr std::array<std::string_view, 12> kTakenAfter = {"Human",
                                                                   "Gnome",
                                                                   "Gnome Titan",
                                                                   "Elf, High",
                                                                   "Elf, Wood",
                                                                   "Elf, Drow",
                                                                   "Elf, Grel",
                                                                   "Elf, Grey",
                                                                   "Halfling, Hairfoot",
                                                                   "Halfling, Stout",
                                                                   "Halfling, Tallfellow",
                                                                   "Halfling, Thug"};
  if (std::find(kTakenAfter.begin(), kTakenAfter.end(), name) == kTakenAfter.end()) return -1;
  return FindRaceRow(name, "Male");
}

}  // namespace veld
