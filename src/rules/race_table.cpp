#include "rules/race_table.h"

#include <algorithm>
#include <cstddef>

#include "rules/race_rows.h"
#include "text/row_runs.h"
#include "text/search.h"

namespace veld {

namespace {

bool IsBlank(const RaceRecord& race) {
  return race.Name.size() < 3 || race.RaceBP == 0;
}

RaceRecord ExpandRace(std::size_t row) {
  const RaceEntry& entry = kRaces[row / 2];
  const bool isFemale = row % 2 == 1;
  const RaceNumbers& numbers = entry.Numbers[isFemale ? 1 : 0];
  RaceRecord race;
  race.Name = entry.Name;
  race.Gender = numbers.Gender;
  race.RowIndex = race.Name == "Elf, Wood" ? 0 : static_cast<int>(row);  // the book leaves the wood elves without one
  race.RuleSwitch = entry.RuleSwitch;
  race.SizeClass = numbers.SizeClass;
  race.BaseMovement = numbers.Movement;
  race.Languages = entry.Languages.texts;
  const auto note = std::ranges::copy(entry.Notes.Bonuses.texts, race.Notes.begin()).out;
  std::ranges::copy(entry.Notes.Downside.texts, std::ranges::copy(entry.Notes.Talents.texts, note).out);
  race.AbilityLimits = numbers.Limits.ranges;
  race.AbilityModifiers = numbers.Modifiers.values;
  race.RaceBP = numbers.BP;
  race.LegitimacyModifier = numbers.Legitimacy;
  race.BirthModifier = numbers.Birth;
  race.AgeBase = numbers.Age.base;
  race.AgeDieSides = numbers.Age.sides;
  race.AgeDieCount = numbers.Age.count;
  race.HeightBase = numbers.Height.base;
  race.HeightDieSides = numbers.Height.sides;
  race.HeightDieCount = numbers.Height.count;
  race.WeightBase = numbers.Weight.base;
  race.WeightDieSides = numbers.Weight.sides;
  race.WeightDieCount = numbers.Weight.count;

  const bool ownList = isFemale && !entry.FemaleClassLimits.list.empty();
  ExpandRowRuns((ownList ? entry.FemaleClassLimits : entry.MaleClassLimits).list, race.ClassLevelLimits);
  ExpandRowRuns(entry.TalentsBought.list, race.TalentFlags);
  ExpandRowRuns(entry.TalentsGranted.list, race.TalentFlags, -1);
  ExpandRowRuns(entry.NamedTalentsBought.list, race.Talent2Flags);
  race.ThiefAdjustments = entry.ThiefAdjustments.values;
  const auto takesAfter = std::ranges::find(entry.TakesAfter.texts, std::string_view{});
  race.TakesAfter = {entry.TakesAfter.texts.begin(), takesAfter};
  race.Traits = entry.Traits;
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

}  // namespace

const std::array<RaceRecord, kRaceRows>& RaceTable() {
  static const ExpandedRaces races;
  return races.rows;
}

int FindRaceRow(std::string_view name, std::string_view gender) {
  for (int row = 0; row < kRacesFilled; ++row) {
    const RaceRecord& race = RaceTable()[static_cast<std::size_t>(row)];
    if (EqualsIgnoringCase(race.Name, name) && EqualsIgnoringCase(race.Gender, gender)) return row;
  }
  return -1;
}

const RaceRecord* FindRace(std::string_view name) {
  return FilledRace(FindRaceRow(name, "Male"));
}

bool HasTrait(std::string_view race, RaceTrait trait) {
  const RaceRecord* record = FindRace(race);
  return record && record->Traits.Has(trait);
}

int FindSearchedRaceRow(std::string_view name, std::string_view gender) {
  const int row = FindRaceRow(name, gender);
  return row == kUnsearchedRace ? -1 : row;
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
  const bool isTakenAfter = std::ranges::any_of(
      kRaces, [&](const RaceEntry& race) { return race.Name == name && race.Traits.Has(RaceTrait::TakenAfter); });
  return isTakenAfter ? FindRaceRow(name, "Male") : -1;
}

}  // namespace veld
