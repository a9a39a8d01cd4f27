#include "npc/npc_calling.h"

#include <algorithm>
#include <numeric>
#include <optional>

#include "dice/random.h"
#include "npc/npc_class_rows.h"
#include "rules/ability_effects.h"
#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "rules/race_table.h"
#include "steps/abilities/step_eight.h"
#include "steps/classes/class_levels.h"
#include "steps/classes/experience_ladder.h"
#include "steps/classes/take_after.h"
#include "steps/finish/alignment.h"
#include "steps/race/race_choice.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kNoHighest = 99;
constexpr int kNoLeast = -10'000;

std::size_t At(int number) {
  return static_cast<std::size_t>(number);
}

const RaceRecord& RaceAt(int row) {
  return RaceTable()[At(row)];
}

/// A plain illusionist rises as a standard specialist.
int RisesAs(int classRow) {
  return classRow == ClassRow::Illusionist ? ClassRow::StandardIllusionist : classRow;
}

// --- Race and class ------------------------------------------------------------------------------------------------

/// The levels that the classes come to under the limits of a race, each at most `level`; none if the race closes one.
std::vector<int> LevelsUnder(const ClassNumbers& limits, int classRow, const std::vector<int>& classes, int level) {
  if (limits[At(classRow)] == 0) return {};
  std::vector<int> levels;
  for (const int row : classes) {
    const int limit = limits[At(row)];
    if (limit == 0) return {};
    const int open = classes.size() == 1 ? limit + kLevelsOfSingleClass : limit;
    // Where the ladder dips, who comes to one level comes to the next.
    const int wanted = std::min({level, open, HighestLevelOf(row)});
    levels.push_back(std::min(open, EarnedLevel(row, static_cast<float>(ExperienceFor(row, wanted)))));
  }
  return levels;
}

bool ReachesLevel(const std::vector<int>& levels, int level) {
  return std::ranges::find(levels, level) != levels.end();
}

struct RaceClass {
  int RaceRow;
  int ClassRow;
};

std::vector<int> ClassesOf(int classRow) {
  std::vector<int> rows;
  for (const std::string_view name : NpcSingleClasses(ClassAt(classRow).Name)) {
    if (const int row = FindClassRow(name); row >= 0) rows.push_back(RisesAs(row));
  }
  return rows;
}

/// The calling of a race and class, by itself or for a half-blood who takes after somebody; nothing if it is closed or
/// ends below the level. `highest` is told how far it goes.
std::optional<NpcCalling> CallingOf(const RaceClass& pair, int level, bool mayTakeAfter, int& highest) {
  NpcCalling calling{.RaceRow = pair.RaceRow, .ClassRow = pair.ClassRow, .Classes = ClassesOf(pair.ClassRow)};
  const RaceRecord& race = RaceAt(pair.RaceRow);
  const auto fits = [&](const ClassNumbers& limits, std::string_view takesAfter) {
    calling.Levels = LevelsUnder(limits, pair.ClassRow, calling.Classes, level);
    calling.TakesAfter = takesAfter;
    for (const int reached : calling.Levels) highest = std::max(highest, reached);
    return ReachesLevel(calling.Levels, level);
  };
  if (fits(race.ClassLevelLimits, {})) return calling;
  if (!mayTakeAfter) return std::nullopt;
  for (const std::string_view other : race.TakesAfter) {
    const int row = FindTakenAfterRow(other);
    if (row >= 0 && fits(RaceAt(row).ClassLevelLimits, other)) return calling;
  }
  return std::nullopt;
}

std::vector<int> AllOf(int count) {
  std::vector<int> rows(At(count));
  std::iota(rows.begin(), rows.end(), 0);
  return rows;
}

/// Drops the rows that a test refuses.
template <typename Test>
void Keep(std::vector<int>& rows, Test test) {
  std::erase_if(rows, [&](int row) { return !test(row); });
}

std::string WhyNoRace(const Game& game, const NpcWishes& wishes, std::vector<int>& races) {
  races = AllOf(kRacesFilled);
  if (!wishes.race.empty()) {
    Keep(races, [&](int row) { return EqualsIgnoringCase(RaceAt(row).Name, wishes.race); });
    if (races.empty()) return Format("There is no race %s.", wishes.race);
  }
  if (!wishes.gender.empty()) {
    Keep(races, [&](int row) { return EqualsIgnoringCase(RaceAt(row).Gender, wishes.gender); });
    if (races.empty()) return Format("There is no gender %s.", wishes.gender);
  }
  const int ruleSwitch = RaceAt(races.front()).RuleSwitch;
  Keep(races, [&](int row) { return game.IsOn(At(RaceAt(row).RuleSwitch)); });
  return races.empty() ? Format("%s is switched off.", BookOfSwitch(ruleSwitch)) : std::string();
}

std::string WhyNoClass(Game& scratch, const NpcWishes& wishes, std::vector<int>& classes) {
  classes = AllOf(kClassRows);
  Keep(classes, [](int row) { return !ClassAt(row).Name.empty(); });
  if (!wishes.className.empty()) {
    Keep(classes, [&](int row) { return EqualsIgnoringCase(ClassAt(row).Name, wishes.className); });
    if (classes.empty()) return Format("There is no class %s.", wishes.className);
  }
  const int ruleSwitch = ClassAt(classes.front()).RuleSwitch;
  Keep(classes, [&](int row) { return scratch.IsOn(At(ClassAt(row).RuleSwitch)); });
  if (classes.empty()) return Format("%s is switched off.", BookOfSwitch(ruleSwitch));
  if (wishes.alignment.empty()) return {};
  const auto isWished = [&](std::string_view name) {
    return EqualsIgnoringCase(TrimRight(name), TrimRight(wishes.alignment));
  };
  if (std::ranges::none_of(kAlignmentNames, isWished)) return Format("There is no alignment %s.", wishes.alignment);
  Keep(classes, [&](int row) {
    const std::vector<std::string> open = NpcAlignments(scratch, ClassAt(row).Name);
    return std::ranges::any_of(open, isWished);
  });
  if (!classes.empty()) return {};
  return Format("The alignment %s is closed to the class %s.", TrimRight(wishes.alignment), wishes.className);
}

/// Chance takes a way of life first: there are more zealots than kinds of fighters.
NpcCalling PickOne(const std::vector<NpcCalling>& callings, NpcChance& chance) {
  constexpr int ClassRecord::*kGroups[] = {&ClassRecord::IsFighter, &ClassRecord::IsThief, &ClassRecord::IsMage,
                                           &ClassRecord::IsCleric};
  std::vector<const NpcCalling*> ofGroup;
  for (std::size_t tries = 0; ofGroup.empty() && tries < 32; ++tries) {
    const auto group = kGroups[chance.Pick(std::size(kGroups))];
    for (const NpcCalling& calling : callings) {
      if (ClassAt(calling.ClassRow).*group != 0) ofGroup.push_back(&calling);
    }
  }
  return ofGroup.empty() ? callings[chance.Pick(callings.size())] : *ofGroup[chance.Pick(ofGroup.size())];
}

// --- Abilities -----------------------------------------------------------------------------------------------------

int Hundredths(float number) {
  return static_cast<int>(number * 100 + (number < 0 ? -0.5F : 0.5F));
}

/// BP that a roll of the social class again may take, by the lowest that the class needs.
int SpareBPFor(int socialClass) {
  if (socialClass >= 9) return 6;
  if (socialClass >= 8) return 4;
  return socialClass >= 6 ? 3 : 2;
}

/// How deep an ability can be burnt: strength to 1, the others to 3.
int BurntOut(int ability) {
  return ability == kStrength ? 1 : 3;
}

int BPToRaise(int from, int above) {
  return from > above ? 0 : (above + 1 - from + kPercentilePerBP - 1) / kPercentilePerBP;
}

}  // namespace

std::size_t NpcChance::Pick(std::size_t below) {
  state_ = state_ * 1664525U + 1013904223U;
  return below == 0 ? 0 : (state_ >> 8) % below;
}

std::int64_t ExperienceFor(int classRow, int level) {
  const auto& ladder = ClassAt(classRow).ExperienceForLevel;
  return *std::max_element(ladder.begin(), ladder.begin() + level + 1);
}

bool IsNpcClassOpen(int raceRow, int classRow) {
  int highest = 0;
  return CallingOf({raceRow, classRow}, 1, true, highest).has_value();
}

std::vector<std::string> NpcAlignments(Game& scratch, std::string_view className) {
  scratch.sheet.ClassName = className;
  std::vector<std::string> names;
  for (const std::string_view name : OpenAlignmentNames(scratch)) names.emplace_back(TrimRight(name));
  return names;
}

std::string ChooseCalling(Game& scratch, const NpcWishes& wishes, NpcChance& chance, NpcCalling& calling) {
  if (wishes.level < 1 || wishes.level > kHighestNpcLevel) return Format("The level may be 1 to %i.", kHighestNpcLevel);
  std::vector<int> races;
  std::vector<int> classes;
  if (std::string why = WhyNoRace(scratch, wishes, races); !why.empty()) return why;
  if (std::string why = WhyNoClass(scratch, wishes, classes); !why.empty()) return why;
  // Who leaves the race or the class open shall not have to pay 30 BP for it.
  const bool isOpen = wishes.race.empty() || wishes.className.empty();
  int highest = 0;
  if (isOpen) {
    // One race after the other, in an order of chance, until one has something to offer.
    while (!races.empty()) {
      const std::size_t place = chance.Pick(races.size());
      std::vector<NpcCalling> callings;
      for (const int row : classes) {
        if (auto found = CallingOf({races[place], row}, wishes.level, false, highest)) callings.push_back(*found);
      }
      if (!callings.empty()) {
        calling = PickOne(callings, chance);
        return {};
      }
      races.erase(races.begin() + static_cast<std::ptrdiff_t>(place));
    }
  } else {
    std::vector<NpcCalling> callings;
    for (const int row : races) {
      if (auto found = CallingOf({row, classes.front()}, wishes.level, true, highest)) callings.push_back(*found);
    }
    const auto isPlain = [](const NpcCalling& found) { return found.TakesAfter.empty(); };
    if (std::ranges::any_of(callings, isPlain))
      std::erase_if(callings, [&](const auto& found) { return !isPlain(found); });
    if (!callings.empty()) {
      calling = callings[chance.Pick(callings.size())];
      return {};
    }
  }
  const std::string race = wishes.race.empty() ? "any race" : Format("the race %s", wishes.race);
  const std::string what = wishes.className.empty() ? "Every class" : Format("The class %s", wishes.className);
  if (highest == 0) return Format("Closed to %s.", race);
  if (highest > wishes.level) return Format("%s has no level %i.", what, wishes.level);
  return Format("%s ends at level %i for %s.", what, highest, race);
}

NpcAbilityNeeds NeedsOf(const Game& game, const NpcCalling& calling, int leastStrength) {
  constexpr int kLeastWisdom = 6;  // below it the alignment is no choice
  const ClassRecord& record = ClassAt(calling.ClassRow);
  NpcAbilityNeeds needs;
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const AbilityNumberRange& range = record.AbilityRange[At(ability)];
    const int least = ability == kCharisma || ability == kComeliness ? kNoLeast : 100;
    needs.Above[At(ability)] = range.Minimum < 1 ? least : Hundredths(range.Minimum);
    // 17/1 is above 17: a highest score of 17 is met up to 16/100.
    needs.HighestWhole[At(ability)] = range.Maximum >= kNoHighest ? kNoHighest : static_cast<int>(range.Maximum) - 1;
  }
  int& wisdom = needs.Above[kWisdom];
  // Who enters as a battle mage loses a point of it.
  wisdom = std::max(wisdom, 100 * (kLeastWisdom + (calling.ClassRow == ClassRow::BattleMage ? 1 : 0)));
  needs.Above[kStrength] = std::max(needs.Above[kStrength], 100 * leastStrength);
  for (const std::string_view name : NpcWantsOf(record.Name).Abilities) {
    const auto found = std::ranges::find(kAbilityShortNames, name);
    if (found != kAbilityShortNames.end()) needs.Order.push_back(static_cast<int>(found - kAbilityShortNames.begin()));
  }
  const bool needsBirth = game.IsOn(kSocialClassRestrictions);
  needs.SpareBP = SpareBPFor(needsBirth ? record.MinSocialClass : 0);
  if (!calling.TakesAfter.empty()) needs.SpareBP += static_cast<int>(kTakeAfterCost);
  return needs;
}

bool PlanAbilities(const NpcCalling& calling, const NpcAbilityNeeds& needs,
                   const std::array<AbilityScore, kAbilityCount>& scores, int mostExtraBurn, NpcAbilityPlan& plan) {
  const RaceRecord& race = RaceAt(calling.RaceRow);
  std::array<int, kAbilityCount> surplus{};
  plan = {};
  int bp = race.RaceBP;
  int needed = needs.SpareBP;
  int charisma = 0;
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const AbilityRange& limits = race.AbilityLimits[At(ability)];
    const int rolled = scores[At(ability)].Whole;
    const int modifier = race.AbilityModifiers[At(ability)];
    if (rolled < limits.Minimum) return false;
    int whole = std::min({rolled, limits.Maximum, needs.HighestWhole[At(ability)] - modifier});
    if (whole < limits.Minimum || whole < BurntOut(ability)) return false;
    plan.Burn[At(ability)] = rolled - whole;
    bp += kBurnGain * (rolled - whole);
    int above = needs.Above[At(ability)];
    // Charisma, whose final score is known here, changes Comeliness before the class is chosen.
    if (ability == kComeliness) above -= 100 * ComelinessChange({charisma, 1});
    const int score = 100 * (whole + modifier) + scores[At(ability)].Percentile;
    const int raise = BPToRaise(score, above);
    plan.RaiseBP += raise;
    if (ability == kCharisma) charisma = (score + raise * kPercentilePerBP - 1) / 100;
    surplus[At(ability)] =
        std::max(0, std::min({(score - above - 1) / 100, whole - limits.Minimum, whole - BurntOut(ability)}));
  }
  if (needs.Above[kComeliness] > 100) surplus[kCharisma] = 0;
  needed += plan.RaiseBP;
  int missing = bp >= needed ? 0 : (needed - bp + kBurnGain - 1) / kBurnGain;
  if (missing > mostExtraBurn) return false;
  plan.ExtraBurn = missing;
  for (auto ability = needs.Order.rbegin(); ability != needs.Order.rend() && missing > 0; ++ability) {
    const int burnt = std::min(missing, surplus[At(*ability)]);
    plan.Burn[At(*ability)] += burnt;
    missing -= burnt;
  }
  return missing == 0;
}

bool SeekRoll(Game& game, const NpcCalling& calling, const NpcAbilityNeeds& needs, NpcAbilityPlan& plan) {
  // The longer it takes, the more is burnt for it.
  struct Patience {
    int Rolls;
    int MostExtraBurn;
  };
  constexpr Patience kPatience[] = {{300, 0}, {2'000, 3}, {12'000, 8}, {400'000, 60}};
  std::array<AbilityScore, kAbilityCount> scores;
  for (const Patience& patience : kPatience) {
    for (int roll = 0; roll < patience.Rolls; ++roll) {
      const std::uint32_t before = game.dice.RandomState;
      for (AbilityScore& score : scores) {
        score.Whole = 0;
        for (int die = 0; die < 3; ++die) score.Whole += RollDie(game.dice, 6);
      }
      for (AbilityScore& score : scores) score.Percentile = RollDie(game.dice, 100);
      if (!PlanAbilities(calling, needs, scores, patience.MostExtraBurn, plan)) continue;
      game.dice.RandomState = before;
      return true;
    }
  }
  return false;
}

}  // namespace veld
