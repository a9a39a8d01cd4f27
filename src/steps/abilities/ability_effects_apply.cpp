#include "steps/abilities/ability_effects_apply.h"

#include "rules/ability_effects.h"
#include "text/numbers.h"

namespace veld {

namespace {

/// The five weights of the Strength table are limits, the character keeps the steps between them: its running sums are
/// the limits again. A step is negative where a limit falls (Strength 22, lower half).
void SetEncumbranceSteps(CharacterSheet& sheet, const StrengthEffect& effect) {
  sheet.WeightAllowanceLight = effect.WeightAllowance;
  sheet.WeightAllowanceModerate = effect.WeightLightLimit - effect.WeightAllowance;
  sheet.WeightAllowanceHeavy = effect.WeightModerateLimit - effect.WeightLightLimit;
  sheet.WeightAllowanceSevere = effect.WeightHeavyLimit - effect.WeightModerateLimit;
  sheet.MaxPressExtra = effect.WeightSevereLimit - effect.WeightHeavyLimit;
}

}  // namespace

void ApplyStrengthTable(Game& game) {
  CharacterSheet& sheet = game.sheet;
  const StrengthEffect& effect = StrengthEffectOf(sheet.Strength);
  sheet.StrengthHitAdj = effect.StrengthHitAdj;
  sheet.StrengthDamageAdj = effect.StrengthDamageAdj;
  sheet.MaxPress = effect.MaxPress;
  sheet.OpenDoors = effect.OpenDoors;
  sheet.BendBars = effect.BendBars;
  SetEncumbranceSteps(sheet, effect);
}

void ApplyDexterityTable(Game& game) {
  const DexterityEffect& effect = DexterityEffectOf(game.sheet.Dexterity);
  game.sheet.DefenseAdj = effect.DefenseAdj;
  game.sheet.ReactionAdj = effect.ReactionAdj;
  game.sheet.MissileAdj = effect.MissileAdj;
}

void ApplyConstitutionTable(Game& game) {
  CharacterSheet& sheet = game.sheet;
  const ConstitutionEffect& effect = ConstitutionEffectOf(sheet.Constitution);
  sheet.ConstitutionHPAdjText = effect.ConstitutionHPAdjText;
  sheet.ConstitutionHPAdj = effect.ConstitutionHPAdj;
  sheet.SystemShock = effect.SystemShock;
  sheet.ResurrectionSurvival = effect.ResurrectionSurvival;
  sheet.PoisonSave = effect.PoisonSave;
  sheet.ImmuneToDisease = effect.ImmuneToDisease;
  sheet.RegenHeal = effect.RegenHeal;
}

void ApplyIntelligenceTable(Game& game) {
  CharacterSheet& sheet = game.sheet;
  const IntelligenceEffect& effect = IntelligenceEffectOf(sheet.Intelligence);
  sheet.LanguageSlots = effect.LanguageSlots;
  sheet.LearnAbility = effect.LearnAbility;
  sheet.SpellMishap = effect.SpellMishap;
  sheet.MaxSpellLevelText = effect.MaxSpellLevelText;
  sheet.MaxSpellsText = effect.MaxSpellsText;
  sheet.IllusionImmunity = effect.IllusionImmunity;
}

void ApplyWisdomTable(Game& game) {
  CharacterSheet& sheet = game.sheet;
  const WisdomEffect& effect = WisdomEffectOf(sheet.Wisdom);
  sheet.MagicalDefenseAdj = effect.MagicalDefenseAdj;
  sheet.BonusSpells = effect.BonusSpells;
  sheet.SpellFailure = effect.SpellFailure;
  sheet.SpellImmunity = effect.SpellImmunity;
  sheet.ImproveSkillChance = effect.ImproveSkillChance;
}

void ApplyCharismaTable(Game& game) {
  CharacterSheet& sheet = game.sheet;
  const CharismaEffect& effect = CharismaEffectOf(sheet.Charisma);
  sheet.MaxHenchmen = effect.MaxHenchmen;
  sheet.LoyaltyBase = effect.LoyaltyBase;
  sheet.CharismaReactionAdj = effect.CharismaReactionAdj;
  sheet.ComelinessMod = effect.ComelinessMod;
  sheet.HonorMod = effect.HonorMod;
  sheet.Comeliness.Whole = AddSaturated(sheet.Comeliness.Whole, ComelinessChange(sheet.Charisma));
}

void ApplyAbilityTables(Game& game) {
  ApplyStrengthTable(game);
  ApplyDexterityTable(game);
  ApplyConstitutionTable(game);
  ApplyIntelligenceTable(game);
  ApplyWisdomTable(game);
  ApplyCharismaTable(game);
}

void RefreshAbilityEffects(Game& game) {
  const AbilityScore comeliness = game.sheet.Comeliness;
  ApplyAbilityTables(game);
  game.sheet.Comeliness = comeliness;
}

}  // namespace veld
