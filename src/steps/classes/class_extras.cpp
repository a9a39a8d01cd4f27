#include "steps/classes/class_extras.h"

#include <algorithm>

#include "rules/named_rows.h"
#include "rules/thief_tables.h"
#include "steps/classes/allotments.h"
#include "text/numbers.h"

namespace veld {

namespace {

void SetBarbarianAbilities(Game& game) {
  CharacterSheet& sheet = game.sheet;
  const int level = sheet.ClassLevels[ClassRow::Barbarian];
  SetThiefBaseScores(game);
  sheet.BarbarianClimb = 2 * level + 60 + sheet.ThiefClimbWalls[0];
  sheet.BarbarianBackProtection = 5 * level;
  sheet.BarbarianHide = 5 * level + 10 + sheet.ThiefHideInShadows[0];
  sheet.BarbarianDetectIllusion = std::min(5 * level, 75);
}

void SetMonkAbilities(Game& game) {
  struct MonkAbility {
    ThiefAbilityKind Ability;
    int First;    ///< percent at level 1
    int Further;  ///< percent for each level above
  };
  constexpr MonkAbility kMonkAbilities[] = {{kFindTraps, 13, 3},
                                            {kMoveSilently, 20, 5},
                                            {kHideInShadows, 15, 5},
                                            {kDetectNoise, 12, 2},
                                            {kClimbWalls, 62, 2}};
  SetThiefBaseScores(game);
  // The book reads the level of the knights errant here: a monk who is none keeps to the first line.
  const int last = game.sheet.ClassLevels[ClassRow::KnightErrant];
  for (const MonkAbility& monk : kMonkAbilities) {
    ThiefAbility& scores = ThiefAbilityAt(game.sheet, monk.Ability);
    scores[1] = monk.First;
    for (int level = 2; level <= kHighestLevel; ++level) {
      scores[static_cast<std::size_t>(level)] = level <= last ? monk.Further : 0;
    }
  }
}

}  // namespace

void SetClassExtras(Game& game, const NamedClass& held) {
  const int classRow = held.Row;
  if (held.IsEntered && held.IsCaster && classRow != ClassRow::BloodMage) {
    game.run.SpellListIndex = SaturateToInt(std::int64_t{game.sheet.Intelligence.Whole} * 2);
  }
  if (classRow == ClassRow::Barbarian) SetBarbarianAbilities(game);
  if (classRow == ClassRow::Monk) SetMonkAbilities(game);
  if (classRow == ClassRow::Berserker) {
    game.sheet.QuirkCounts[QuirkRow::QuellFrenzy] = 1;
    game.sheet.QuirkCounts[QuirkRow::QuellLust] = 1;
  }
}

}  // namespace veld
