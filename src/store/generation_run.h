#pragma once

#include <array>

#include "store/character_sheet.h"

namespace veld {

/// What a generation remembers while it runs and no file holds. Cleared by ResetCharacter.
struct GenerationRun {
  float BuildingPoints = 0;  ///< BP; may hold fractions, shown truncated
  int CurrentStep = 0;       ///< in the numbers of the game's creation steps; 0 aborted or none running

  // Priors and family (Step 6).
  int LegitimacyModifier = 0;
  int BirthModifier = 0;
  int SocialClassModifier = 0;
  int IsMiddleChild = 0;
  int MotherMinorQuirks = 0;
  int MotherMajorQuirks = 0;
  int FatherMinorQuirks = 0;
  int FatherMajorQuirks = 0;
  int MotherQualityBP = 0;
  int FatherQualityBP = 0;

  // Quirks and flaws (Step 7).
  std::array<int, kQuirkCountRows> QuirkPicks{};
  std::array<int, kQuirkCountRows> QuirkBPCosts{};  ///< what a row pays now: its BPCost, or its RepeatBP once taken
  std::array<int, kQuirkCountRows> QuirkBarred{};   ///< 1: wiped out by a row held; its MaxCount counts as 0
  int QuirkRollsLeft = 0;
  int UsesThiefBackground = 0;
  int ArmAmputations = 0;
  int LegAmputations = 0;

  // Class choice (Step 9).
  ClassNumbers ClassAllowed{};  ///< highest level open in each ClassTable row, 0 barred
  ClassNumbers ClassHitPoints{};
  std::array<int, 7> AtZeroBeforeGains{};  ///< 1: the ability stood at exactly 0 percent before its levels' gains
  int AtZeroBeforeTattoos = 0;             ///< the same of Constitution before the first tattoo

  // Money and Honor (Step 10, 11).
  int MoneyBPSpent = 0;
  int InheritanceModifier = 0;   ///< to the starting money roll
  int MoneyBonusPercent = 0;     ///< percent added to the starting money
  int HonorDieBonus = 0;
  int HonorBackgroundModifier = 0;
  int HonorLimitFlag = 0;        ///< 5 after an abusive master: Honor is capped at 5
  int ThiefPointsToSpend = 0;

  // Training for a level: the rows of the last teacher and class size, and what the training gave.
  int TeacherIndex = 0;
  int ClassSizeIndex = 0;
  int TrainingFreeMastery = 0;
  int TrainingFreeSkills = 0;

  // Skills (Step 12). Pools in BP.
  float PackageBP = 0;
  float ArcaneBP = 0;
  float AcademicBP = 0;
  float LanguageBP = 0;
  float SocialBP = 0;
  int BonusSkillPoints = 0;
  int PackageBonusPoints = 0;
  int FreeSkillPicks = 0;
  int VeteranFreeSkills = 0;
  int MartialStyleDiscount = 0;
  int AmazonDoubleRoll = 0;
  int SelfDisciplinePrice = 0;
  int PickSkillGroup = 0;
  int LastSkillDetail = 0;
  int BowBonusDiscount = 0;
  int CrossbowBonusDiscount = 0;

  // Spells.
  int SpellListIndex = -1;  ///< cantrips that the mage may choose; -1: no spells
  int StartingSpells = 0;   ///< -1: none are dealt
  std::array<bool, kSpellRows> DealtSpells{};  ///< given by the tables, not chosen
  int FreeLevel1Spells = 0;
  int FreeLevel3Spells = 0;
  int FreeAnySpells = 0;
  std::array<int, 9> SpellsPerLevel{};
  int SpellLearnBonusPermanent = 0;   ///< percent
  int SpellLearnBonusFirstLevel = 0;  ///< percent

  // Military youth.
  int CharacterDead = 0;
  int TrainingCampModifier = 0;
  int BasicResultsModifier = 0;
  int AccidentModifier = 0;
  int WarModifier = 0;
  int NonProficiencyPenalty = 0;
  int AdvancedQualityModifier = 0;
  int NonCombatEventModifier = 0;
  int HeatStrokeSuffered = 0;
  int HasMaimedResult = 0;
  int RiotVolunteer = 0;
  int VigilBuster = 0;

  // Mage school.
  int SchoolHonorModifier = 0;
  int NurtureModifier = 0;
  int SchoolEducationModifier = 0;
  int ClassSizeModifier = 0;
  int EquipmentModifier = 0;
  int GraduatingRankModifier = 0;
  int EducationResultModifier = 0;
  std::array<int, 16> CollegeEventSeen{};

  // Seminary.
  int CallModifier = 0;
  int CompetencyModifier = 0;
  int PersonalityModifier = 0;
  int AccoutrementsModifier = 0;
  int SeminaryEducationModifier = 0;
  int ResidencyLocationModifier = 0;
  int ResidencyResultsModifier = 0;
  int HonorTableModifier = 0;
  int MoneyTableModifier = 0;
  int ResidencyGold = 0;

  // Items of named skills in the making.
  NamedItemList AnatomyItems;
  NamedItemList CultureItems;
  NamedItemList CustomsItems;
  NamedItemList ReligionItems;
  NamedItemList BrassItems;
  NamedItemList ExoticItems;
  NamedItemList PercussionItems;
  NamedItemList StringedItems;
  NamedItemList WindItems;
  NamedItemList ModernLanguageItems;
  NamedItemList AncientLanguageItems;
  NamedItemList ForageItems;
};

}  // namespace veld
