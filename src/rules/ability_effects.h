#pragma once

#include <string_view>

#include "rules/ability.h"

namespace veld {

// What ability scores bring. Texts hold a signed number as it is printed ("+2"), or one blank where there is none. A
// score above 25 reads the row of 25; one below 1 reads a cleared record: numbers 0 and texts empty, or one blank each
// for Intelligence. A percentile of 50 or less reads the lower half of a split row. Comeliness has no table of its own.

struct StrengthEffect {
  std::string_view StrengthHitAdj;
  std::string_view StrengthDamageAdj;
  int WeightAllowance = 0;  ///< pounds, as the four limits
  int WeightLightLimit = 0;
  int WeightModerateLimit = 0;
  int WeightHeavyLimit = 0;
  int WeightSevereLimit = 0;
  int MaxPress = 0;  ///< pounds
  std::string_view OpenDoors;
  int BendBars = 0;  ///< percent
};

struct DexterityEffect {
  std::string_view DefenseAdj;
  std::string_view ReactionAdj;
  std::string_view MissileAdj;
};

struct ConstitutionEffect {
  std::string_view ConstitutionHPAdjText;  ///< ConstitutionHPAdj as it is printed, a blank for 0
  int ConstitutionHPAdj = 0;
  int SystemShock = 0;           ///< percent
  int ResurrectionSurvival = 0;  ///< percent
  std::string_view PoisonSave;
  std::string_view ImmuneToDisease;
  std::string_view RegenHeal;
};

struct IntelligenceEffect {
  int LanguageSlots = 0;
  int LearnAbility = 0;  ///< percent
  int SpellMishap = 0;   ///< percent
  std::string_view MaxSpellLevelText;
  std::string_view MaxSpellsText;
  std::string_view IllusionImmunity;  ///< with its markup, as it goes to the sheets
};

struct WisdomEffect {
  std::string_view MagicalDefenseAdj;
  std::string_view BonusSpells;
  int SpellFailure = 0;  ///< percent
  std::string_view SpellImmunity;
  int ImproveSkillChance = 0;  ///< percent
};

struct CharismaEffect {
  int MaxHenchmen = 0;
  std::string_view LoyaltyBase;
  std::string_view CharismaReactionAdj;
  std::string_view ComelinessMod;  ///< also what the whole Comeliness changes by: see ComelinessChange
  std::string_view HonorMod;       ///< the term of the Honor base as it is printed
};

const StrengthEffect& StrengthEffectOf(AbilityScore strength);
const DexterityEffect& DexterityEffectOf(AbilityScore dexterity);
const ConstitutionEffect& ConstitutionEffectOf(AbilityScore constitution);
const IntelligenceEffect& IntelligenceEffectOf(AbilityScore intelligence);
const WisdomEffect& WisdomEffectOf(AbilityScore wisdom);
const CharismaEffect& CharismaEffectOf(AbilityScore charisma);

/// What Charisma adds to the whole Comeliness (-8 to 8): the number of ComelinessMod.
int ComelinessChange(AbilityScore charisma);

}  // namespace veld
