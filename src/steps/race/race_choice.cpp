#include "steps/race/race_choice.h"

#include "dice/dice.h"
#include "platform/ask_name.h"
#include "rules/race_table.h"
#include "store/sheet_accessors.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kFullMastery = 100;

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

const RaceRecord* RaceOf(const CharacterSheet& sheet) {
  const int row = FindRaceRow(sheet.RaceName, sheet.Gender);
  return row < 0 ? nullptr : &RaceTable()[Index(row)];
}

int& BaseWhole(BaseAbilities& base, int ability) {
  return base.Scores[Index(ability)].Whole;
}

}  // namespace

BaseAbilities TakeBase(const Game& game) {
  BaseAbilities base;
  for (int ability = 0; ability < kAbilityCount; ++ability)
    base.Scores[Index(ability)] = AbilityAt(game.sheet, ability);
  base.BP = TruncateToInt(game.run.BuildingPoints);
  return base;
}

void RestoreWholeScores(Game& game, const BaseAbilities& base) {
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    AbilityAt(game.sheet, ability).Whole = base.Scores[Index(ability)].Whole;
  }
}

std::vector<std::string> FittingRaces(const Game& game) {
  const auto scores = WholeScores(game.sheet);
  std::vector<std::string> races;
  for (int row = 0; row < kRacesFilled; ++row) {
    if (game.IsOn(Index(RaceTable()[Index(row)].RuleSwitch)) && RaceFits(row, scores))
      races.push_back(RaceListText(row));
  }
  return races;
}

bool ApplyRace(Game& game, const BaseAbilities& base, std::string_view listText) {
  RestoreWholeScores(game, base);
  game.run.BuildingPoints = static_cast<float>(base.BP);
  const int row = FindRaceInText(listText);
  if (row < 0) return false;
  const RaceRecord& race = RaceTable()[Index(row)];
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    int& whole = AbilityAt(game.sheet, ability).Whole;
    whole = AddSaturated(whole, race.AbilityModifiers[Index(ability)]);
  }
  game.run.BuildingPoints += static_cast<float>(race.RaceBP);
  game.run.LegitimacyModifier = race.LegitimacyModifier;
  game.run.BirthModifier = race.BirthModifier;
  game.sheet.RaceName = race.Name;
  game.sheet.Gender = race.Gender;
  game.sheet.BaseMovement = race.BaseMovement;
  game.sheet.MovementRow2 = race.SecondMovement;
  BindRaceRow(game);
  return true;
}

void BindRaceRow(Game& game) {
  const RaceRecord* race = RaceOf(game.sheet);
  if (!race) return;
  game.sheet.WeaponSizeClass = race->SizeClass;
  game.run.ClassAllowed = race->ClassLevelLimits;
  if (const std::string_view other = RaceTakenAfter(game.sheet); !other.empty()) {
    const int takenAfter = FindTakenAfterRow(other);
    if (takenAfter >= 0) game.run.ClassAllowed = RaceTable()[Index(takenAfter)].ClassLevelLimits;
  }
  if (Contains(game.sheet.ClassName, "/")) return;
  for (int& limit : game.run.ClassAllowed) {
    if (limit > 0) limit += kLevelsOfSingleClass;
  }
}

std::vector<std::string> RaceLanguages(const Game& game) {
  const RaceRecord* race = RaceOf(game.sheet);
  std::vector<std::string> languages;
  if (!race) return languages;
  languages.emplace_back(race->Languages.front());
  for (std::size_t i = 1; i < race->Languages.size() && race->Languages[i].size() >= 3; ++i) {
    languages.emplace_back(race->Languages[i]);
  }
  return languages;
}

void ForgetRace(Game& game) {
  game.sheet.Gender = "Unknown";
  game.sheet.RaceName = "Unknown";
}

bool AdjustAbility(Game& game, BaseAbilities& base, Ability source, Ability target) {
  RestoreWholeScores(game, base);
  // Strength alone may be traded down to 1; the others stop at 3.
  if (BaseWhole(base, source) < (source == kStrength ? 3 : 5)) return false;
  BaseWhole(base, source) -= 2;
  BaseWhole(base, target) = AddSaturated(BaseWhole(base, target), 1);
  RestoreWholeScores(game, base);
  ForgetRace(game);
  return true;
}

bool BurnAbility(Game& game, BaseAbilities& base, Ability ability) {
  RestoreWholeScores(game, base);
  if (BaseWhole(base, ability) < (ability == kStrength ? 2 : 4)) return false;
  BaseWhole(base, ability) -= 1;
  RestoreWholeScores(game, base);
  game.run.BuildingPoints += kBurnGain;
  base.BP += kBurnGain;
  ForgetRace(game);
  return true;
}

BaseAbilities RerollAbilities(Game& game) {
  RollAbilityScores(game);
  game.run.BuildingPoints = 0;
  ForgetRace(game);
  return TakeBase(game);
}

void TakeNativeLanguage(Game& game, const std::string& language) {
  CharacterSheet& sheet = game.sheet;
  if (language.empty()) return;
  if (language == "Glersee") {
    sheet.SkillScores[SkillRow::TrailMarkers] = kFullMastery;
    return;
  }
  std::string name = language;
  if (EqualsIgnoringCase(language, "Human Dialect")) {
    const std::string dialect = AskName(game.platform, "Choose the name of the human dialect");
    name = dialect.empty() ? "Human Dialect" : "Human Dialect: " + dialect;
  }
  NativeLanguageName(sheet) = "Language, Modern: " + name;
  NativeLanguageMastery(sheet) = kFullMastery;
  NativeWritingName(sheet) = "Reading/Writing: " + name;
}

}  // namespace veld
