#include "store/game.h"

#include "platform/platform.h"
#include "rules/quirk_table.h"

namespace veld {

CharacterSheet::CharacterSheet() {
  SiblingLines.fill(" ");
  for (auto& picks : ProficiencyPicks) picks.fill(-1);
}

namespace {

template <typename Sheet>
auto& AbilityOf(Sheet& sheet, int ability) {
  switch (ability) {
    case kDexterity: return sheet.Dexterity;
    case kConstitution: return sheet.Constitution;
    case kIntelligence: return sheet.Intelligence;
    case kWisdom: return sheet.Wisdom;
    case kCharisma: return sheet.Charisma;
    case kComeliness: return sheet.Comeliness;
    default: return sheet.Strength;
  }
}

template <typename Sheet>
auto& LevelGainOf(Sheet& sheet, int ability) {
  switch (ability) {
    case kDexterity: return sheet.LevelDexterityGain;
    case kConstitution: return sheet.LevelConstitutionGain;
    case kIntelligence: return sheet.LevelIntelligenceGain;
    case kWisdom: return sheet.LevelWisdomGain;
    case kCharisma: return sheet.LevelCharismaGain;
    case kComeliness: return sheet.LevelComelinessGain;
    default: return sheet.LevelStrengthGain;
  }
}

template <typename Sheet>
auto& ThiefAbilityOf(Sheet& sheet, std::size_t ability) {
  switch (ability) {
    case 1: return sheet.ThiefOpenLocks;
    case 2: return sheet.ThiefFindTraps;
    case 3: return sheet.ThiefRemoveTraps;
    case 4: return sheet.ThiefMoveSilently;
    case 5: return sheet.ThiefHideInShadows;
    case 6: return sheet.ThiefDetectNoise;
    case 7: return sheet.ThiefClimbWalls;
    case 8: return sheet.ThiefReadLanguages;
    default: return sheet.ThiefPickPockets;
  }
}

template <typename Sheet>
auto& SaveOf(Sheet& sheet, std::size_t save) {
  switch (save) {
    case 1: return sheet.SavePoison;
    case 2: return sheet.SaveDeathMagic;
    case 3: return sheet.SavePetrification;
    case 4: return sheet.SavePolymorph;
    case 5: return sheet.SaveRod;
    case 6: return sheet.SaveStaff;
    case 7: return sheet.SaveWand;
    case 8: return sheet.SaveQuellFrenzy;
    case 9: return sheet.SaveQuellLust;
    case 10: return sheet.SaveBreathWeapon;
    case 11: return sheet.SaveApology;
    case 12: return sheet.SaveSpells;
    default: return sheet.SaveParalyzation;
  }
}

}  // namespace

AbilityScore& AbilityAt(CharacterSheet& sheet, int ability) { return AbilityOf(sheet, ability); }
const AbilityScore& AbilityAt(const CharacterSheet& sheet, int ability) { return AbilityOf(sheet, ability); }

std::array<int, kAbilityCount> WholeScores(const CharacterSheet& sheet) {
  std::array<int, kAbilityCount> whole{};
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    whole[static_cast<std::size_t>(ability)] = AbilityAt(sheet, ability).Whole;
  }
  return whole;
}

LevelGains& LevelGainAt(CharacterSheet& sheet, int ability) { return LevelGainOf(sheet, ability); }
const LevelGains& LevelGainAt(const CharacterSheet& sheet, int ability) { return LevelGainOf(sheet, ability); }
ThiefAbility& ThiefAbilityAt(CharacterSheet& sheet, std::size_t ability) { return ThiefAbilityOf(sheet, ability); }
const ThiefAbility& ThiefAbilityAt(const CharacterSheet& sheet, std::size_t ability) {
  return ThiefAbilityOf(sheet, ability);
}
SaveNumbers& SaveAt(CharacterSheet& sheet, std::size_t save) { return SaveOf(sheet, save); }
const SaveNumbers& SaveAt(const CharacterSheet& sheet, std::size_t save) { return SaveOf(sheet, save); }

std::unique_ptr<Game> MakeGame(Platform& platform) {
  auto game = std::make_unique<Game>(platform);
  ResetCharacter(*game);
  return game;
}

void ResetCharacter(Game& game) {
  const FixedText<200> playerName = game.sheet.PlayerName;
  // Made in place: a temporary of this size does not belong on the stack.
  std::construct_at(&game.sheet);
  std::construct_at(&game.run);
  game.sheet.PlayerName = playerName;
  game.isFinished = false;
  game.recoveryCopy.clear();
  ++game.characters;
  for (std::size_t row = 0; row < kQuirkRows; ++row) game.run.QuirkBPCosts[row] = QuirkTable()[row].BPCost;
  for (EquipmentRecord& goods : game.EquipmentTable) goods.Quantity = 0;
  for (std::size_t row = 0; row < kEquipmentRows; ++row) {
    EquipmentRecord& goods = game.CustomEquipmentTable[row];
    if (game.CameWithCharacter[row]) goods = Emptied(goods);
    goods.Quantity = 0;
  }
  game.CameWithCharacter.reset();
  game.RuleSwitches[kCoreRules] = 1;
  game.dice.RandomState = static_cast<std::uint32_t>(game.platform.Now());
}

}  // namespace veld
