#include "steps/classes/honor.h"

#include <algorithm>
#include <cstdint>

#include "rules/honor_tables.h"
#include "text/numbers.h"

namespace veld {

namespace {

constexpr int kAbusedLimit = 5;  ///< HonorLimitFlag of a pupil whom his master broke, and the Honor left to him
constexpr int kBattleMageHonor = 2;

std::int64_t StartingHonor(const Game& game) {
  const CharacterSheet& sheet = game.sheet;
  std::int64_t honor = 0;
  for (const int whole : WholeScores(sheet)) honor += whole;
  honor /= kAbilityCount;
  honor += SocialClassHonor(sheet.SocialClassIndex);
  honor += HeritageHonor(sheet.FamilyHeritage);
  honor += CharismaHonor(sheet.Charisma.Whole);
  honor += game.run.HonorBackgroundModifier;
  if (sheet.ClassName == "Battle Mage") honor += kBattleMageHonor;
  honor = std::max<std::int64_t>(honor, 1);
  return game.run.HonorLimitFlag == kAbusedLimit ? std::min<std::int64_t>(honor, kAbusedLimit) : honor;
}

}  // namespace

void ComputeHonor(Game& game) {
  game.sheet.Honor = SaturateToInt(StartingHonor(game));
  game.run.BuildingPoints += static_cast<float>(HonorBP(game.sheet.Honor));
  ComputeHonorDie(game, 1);
}

void ComputeHonorDie(Game& game, int level) {
  const HonorDice dice = HonorDiceOf(game.sheet.Honor, level);
  game.sheet.HonorDie = dice.Sides;
  game.run.HonorDieBonus = dice.Bonus;
  game.sheet.HonorCategory = HonorCategoryText(game.sheet.Honor, level);
  game.sheet.ClassLevels[0] = 0;
}

}  // namespace veld
