#pragma once

#include <array>
#include <cstddef>
#include <type_traits>

#include "rules/ability.h"
#include "rules/class_row_count.h"
#include "text/fixed_text.h"

namespace veld {

// Rows of the arrays of a character. A row number is a catalogue row's identity: it goes to character files and is
// compared literally by rules, so catalogues only ever grow at their end.
inline constexpr std::size_t kLevels = 100;
inline constexpr std::size_t kLevelSum = 99;  ///< element of a level table that holds the sum of the others
inline constexpr int kHighestLevel = 98;
inline constexpr std::size_t kBestSave = 199;  ///< element of a saving throw that holds the best of all classes
inline constexpr std::size_t kQuirkCountRows = 700;
inline constexpr std::size_t kSkillRows = 500;
inline constexpr std::size_t kTalentRows = 150;
inline constexpr std::size_t kDetailRows = 50;  ///< rows of named skills and talents, and items in each
inline constexpr std::size_t kProficiencyRows = 200;
inline constexpr std::size_t kSpellMarks = 2000;
inline constexpr std::size_t kSpellBooks = 50;

using ClassNumbers = std::array<int, kClassRows>;
using LevelNumbers = std::array<int, kLevels>;
using DetailNumbers = std::array<std::array<int, kDetailRows>, kDetailRows>;
using DetailTexts = std::array<std::array<FixedText<100>, kDetailRows>, kDetailRows>;

/// A mage's spell book. In use when Name is not empty; the books of a character are packed from the first.
struct SpellBook {
  FixedText<255> Name;
  int FormatIndex = 0;
  int PageCount = 0;
  FixedText<255> FormatName;
  FixedText<255> FreeText;
  int SizeIndex = 0;
  int ThicknessIndex = 0;
  int SpellLevelsUsed = 0;
  FixedText<80> SizeText;
  FixedText<80> ThicknessText;
  FixedText<80> WeightText;
  FixedText<80> EncumbranceText;
  int FirstPage = 0;
  int LastPage = 0;
  std::array<FixedText<100>, 100> Pages;
  std::array<int, 200> PageFlags{};
  std::array<int, 4000> SpellRows{};  ///< pages used by each SpellTable row
};

/// A list of named items of a skill in the making: names, and a number with each.
struct NamedItemList {
  std::array<FixedText<50>, 100> Names;
  std::array<int, 100> Counts{};
};

/// The points a thief placed in one ability at each level of the class; element kLevelSum is the total on the sheet.
using ThiefAbility = LevelNumbers;
inline constexpr std::size_t kThiefAbilities = 9;
/// Percentile points gained at a level, class first; element kLevelSum of a class is the sum of its levels.
using LevelGains = std::array<LevelNumbers, kClassRows>;

inline constexpr int kNoSave = 30;
inline constexpr std::size_t kSaves = 13;

/// A saving throw for each class, and the best in element kBestSave; lower is better.
struct SaveNumbers : ClassNumbers {
  SaveNumbers() { fill(kNoSave); }
};

/// The one character in memory. A default-made record is a character before anything was rolled; text widths are those
/// of the character file.
struct CharacterSheet {
  // Who it is. Saved.
  FixedText<80> CharacterName = "name";
  FixedText<200> PlayerName;  ///< the desktop user's name; set at start-up, kept by ResetCharacter, not saved
  FixedText<30> RaceName = "Unknown";
  FixedText<10> Gender = "Male";
  FixedText<50> ClassName = "Please Pick";  ///< '/' stands between the classes of a multi-class
  FixedText<10> LevelText = " ";
  FixedText<20> Alignment = "Please Pick";
  FixedText<50> PackageName = "None";
  FixedText<20> Handedness = "Unknown";
  FixedText<200> IllegitimacyNature = "N/A";
  FixedText<20> BirthCircumstance = "Unknown";
  FixedText<50> SocialClassName = "Unknown";
  FixedText<50> MotherStatus = "Unknown";
  FixedText<50> FatherStatus = "Unknown";
  FixedText<50> MotherQuality = "Unknown";
  FixedText<50> FatherQuality = "Unknown";
  FixedText<50> FamilyHeritage = "Unknown";
  FixedText<30> StepParent;
  FixedText<50> SiblingCountText = "Unknown";
  FixedText<50> BirthOrder = "Unknown";
  std::array<FixedText<160>, 100> SiblingLines;  ///< " " in each
  FixedText<100> StartingMoneyText = "Roll";
  FixedText<50> HonorCategory;  ///< holds "Great" or "Dishonorable" where those apply; rebuilt with Honor, not saved
  FixedText<20> EyeColor = " ";
  FixedText<20> HairColor = " ";
  FixedText<25> InheritedWeapon;
  FixedText<40> InheritedArmor;
  FixedText<30> InheritedShieldHelmet;
  FixedText<40> InheritedMount;
  FixedText<100> InheritedDeed;
  FixedText<32000> Notes = " ";
  FixedText<30> HermitField = " ";
  FixedText<750> HermitTaboo = " ";

  // Abilities. Saved.
  AbilityScore Strength;
  AbilityScore Dexterity;
  AbilityScore Constitution;
  AbilityScore Intelligence;
  AbilityScore Wisdom;
  AbilityScore Charisma;
  AbilityScore Comeliness;

  // Body and family. Saved.
  int Age = 0;
  int HeightInches = 0;
  int WeightLbs = 0;
  int SocialClassIndex = 0;  ///< below 7 is low class
  int IsOrphan = 0;
  int MotherPresence = 1;  ///< -1 unknown, 0 dead, 1 alive, 2 step parent found
  int FatherPresence = 1;
  int SiblingCount = 0;     ///< negative: that many illegitimate siblings
  int WeaponSizeClass = 0;  ///< of the race: 0 tiny, 1 small, 2 medium, 3 large
  int LanguagesKnown = 0;

  // Money. Saved.
  int HereditaryDebt = 0;   ///< gold
  int InheritanceTier = 0;  ///< 0 or 2..5: how much was inherited
  int GoldPieces = 0;
  int SilverPieces = 0;
  int CopperPieces = 0;
  int ElectrumPieces = 0;
  int HardSilverPieces = 0;
  int PlatinumPieces = 0;

  // Burden and movement. Saved. The allowances are the steps between the weight columns of the Strength table.
  float CarriedWeightLbs = 0;
  int BaseMovement = 0;
  int MovementRow2 = 0;
  int MovementLight = 0;
  int MovementModerate = 0;
  int MovementHeavy = 0;
  int WeightAllowanceLight = 0;
  int WeightAllowanceModerate = 0;
  int WeightAllowanceHeavy = 0;
  int WeightAllowanceSevere = 0;
  int MaxPressExtra = 0;

  // Standing and calling. Saved, but HitPoints.
  int HitPoints = 0;  ///< rebuilt from the levels
  int HitDiceCount = 0;
  int Honor = 0;
  int HonorDie = 0;  ///< sides; 1 means none
  int IsFighterClass = 0;
  int IsMageClass = 0;
  int IsThiefClass = 0;
  int IsClericClass = 0;
  int FreeWeaponProficiencySlots = 0;  ///< free steps of Specialization
  int ProficiencySlots = 0;
  int ProficiencySlotsUsed = 0;
  int MinorFlawPicksLeft = 2;
  int MajorFlawPicksLeft = 1;

  // Barbarian abilities. Saved.
  int BarbarianClimb = 0;
  int BarbarianHide = 0;
  int BarbarianBackProtection = 0;
  int BarbarianDetectIllusion = 0;
  int BarbarianTracking = 0;

  // Tattoos of a Pixie Fairy: which, and where on the body (0 none). Saved.
  std::array<int, 7> TattooChoices{};
  int TattooArdkrin = 0;
  int TattooShewkrin = 0;
  int TattooYiskrin = 0;
  int TattooTarkrin = 0;
  int TattooFakrin = 0;
  int TattooEmphkrin = 0;
  int TattooShunkrin = 0;
  int TattooHurdkrin = 0;
  int TattooGrekrin = 0;
  int TattooGorkrink = 0;

  // Classes and levels. Saved.
  ClassNumbers ClassLevels{};  ///< 0: not of that class
  std::array<float, kClassRows> ClassExperience{};
  ClassNumbers ClassProficiencySlots{};
  std::array<ClassNumbers, kLevels> LevelHitPoints{};  ///< level first; level 0 holds the class's base hit points
  LevelGains LevelStrengthGain{};
  LevelGains LevelDexterityGain{};
  LevelGains LevelConstitutionGain{};
  LevelGains LevelIntelligenceGain{};
  LevelGains LevelWisdomGain{};
  LevelGains LevelCharismaGain{};
  LevelGains LevelComelinessGain{};
  ThiefAbility ThiefPickPockets{};
  ThiefAbility ThiefOpenLocks{};
  ThiefAbility ThiefFindTraps{};
  ThiefAbility ThiefRemoveTraps{};
  ThiefAbility ThiefMoveSilently{};
  ThiefAbility ThiefHideInShadows{};
  ThiefAbility ThiefDetectNoise{};
  ThiefAbility ThiefClimbWalls{};
  ThiefAbility ThiefReadLanguages{};

  // Owned things, by catalogue row. Saved, but what is marked.
  std::array<int, kQuirkCountRows> QuirkCounts{};  ///< -1: the row is barred
  std::array<int, kQuirkCountRows> QuirkBP{};      ///< BP that each row earned; not saved
  std::array<int, kSkillRows> SkillScores{};       ///< mastery in percentile points, 0 not held
  std::array<int, kSkillRows> SkillPurchases{};    ///< rolls bought; not saved
  DetailNumbers SkillDetailCounts{};               ///< mastery of a named item: [skill row][item]
  DetailNumbers SkillDetailPurchases{};            ///< not saved
  DetailTexts SkillDetailNames;
  std::array<int, kTalentRows> TalentCounts{};
  DetailNumbers TalentDetailCounts{};
  DetailTexts TalentDetailNames;  ///< [2][0] names the race that a half-blood takes after, its count is the flag
  std::array<int, kProficiencyRows> ProficiencyLevels{};
  std::array<std::array<int, 50>, 10> ProficiencyPicks;  ///< bought in order, a row for each pick group; -1 empty
  std::array<std::array<int, 10>, 10> SkillGroupTable{};
  std::array<int, kSpellMarks> SpellsKnown{};  ///< above 0: held; the pages it takes in a book
  std::array<SpellBook, kSpellBooks> SpellBooks;

  // Youth of a mage. Saved when UsesMageBackground is 1.
  int UsesMageBackground = 0;
  FixedText<15> SchoolLocation;
  FixedText<30> SchoolType;
  FixedText<30> MasterNurture;
  FixedText<30> MasterEducation;
  FixedText<30> GraduatingClassSize;
  FixedText<30> ClassroomEquipment;
  FixedText<50> GraduatingRank;
  int SchoolLocationRoll = 0;
  int SchoolQualityRoll = 0;
  int MasterNurtureRoll = 0;
  int MasterEducationRoll = 0;
  int GraduatingClassRoll = 0;
  int ClassroomRoll = 0;
  int GraduatingRankRoll = 0;

  // Youth of a fighter. Saved when UsesFighterBackground is 1.
  int UsesFighterBackground = 0;
  FixedText<50> TrainingCampType;
  FixedText<50> BasicTrainingQuality;
  FixedText<500> BasicTrainingResults;
  std::array<FixedText<500>, 2> TrainingAccidents;
  FixedText<50> SpecialtyAssignment;
  FixedText<50> AdvancedTrainingQuality;
  FixedText<50> HostilitiesState;
  std::array<FixedText<500>, 3> Wars;
  FixedText<500> OccupationAttitude;
  FixedText<500> OccupationEvents;
  FixedText<500> GuerillaEvents;
  std::array<FixedText<500>, 5> NonCombatTourEvents;  ///< the fifth is scratch and not saved

  // Youth of a cleric. Saved when UsesClericBackground is 1.
  int UsesClericBackground = 0;
  FixedText<600> TheCall;
  FixedText<100> EcclesiasticalTraining;
  FixedText<50> SuperiorCompetency;
  FixedText<50> SuperiorPersonality;
  FixedText<100> ReligiousAccoutrements;
  FixedText<512> ResidencyLocation;
  FixedText<512> ResidencyResults;
  FixedText<100> EducationResults;

  // Saving throws. Rebuilt from the classes, not saved.
  SaveNumbers SaveParalyzation;
  SaveNumbers SavePoison;
  SaveNumbers SaveDeathMagic;
  SaveNumbers SavePetrification;
  SaveNumbers SavePolymorph;
  SaveNumbers SaveRod;
  SaveNumbers SaveStaff;
  SaveNumbers SaveWand;
  SaveNumbers SaveQuellFrenzy;
  SaveNumbers SaveQuellLust;
  SaveNumbers SaveBreathWeapon;
  SaveNumbers SaveApology;
  SaveNumbers SaveSpells;

  // What the ability tables give. Rebuilt from the scores, not saved.
  FixedText<5> StrengthHitAdj;
  FixedText<5> StrengthDamageAdj;
  FixedText<10> OpenDoors;
  FixedText<5> StrengthSpecial;
  int MaxPress = 0;
  int BendBars = 0;
  FixedText<5> DefenseAdj;
  FixedText<5> ReactionAdj;
  FixedText<5> MissileAdj;
  FixedText<5> ConstitutionHPAdjText;
  int ConstitutionHPAdj = 0;
  int SystemShock = 0;
  int ResurrectionSurvival = 0;
  FixedText<5> PoisonSave;
  FixedText<5> ImmuneToDisease;
  FixedText<40> RegenHeal;
  int LanguageSlots = 0;
  int LearnAbility = 0;
  int SpellMishap = 0;
  FixedText<40> MaxSpellLevelText;
  FixedText<40> MaxSpellsText;
  FixedText<40> IllusionImmunity;
  FixedText<5> MagicalDefenseAdj;
  FixedText<100> BonusSpells;
  int SpellFailure = 0;
  int ImproveSkillChance = 0;
  FixedText<100> SpellImmunity;
  int MaxHenchmen = 0;
  FixedText<5> LoyaltyBase;
  FixedText<5> CharismaReactionAdj;
  FixedText<5> ComelinessMod;
  FixedText<5> HonorMod;

  CharacterSheet();
};

static_assert(std::is_trivially_copyable_v<CharacterSheet>);

/// The format version of the character files this build writes, and the version the program shows.
inline constexpr char FileVersion[10] = "4.5";

/// The seven abilities in the game's order: kStrength to kComeliness.
AbilityScore& AbilityAt(CharacterSheet& sheet, int ability);
const AbilityScore& AbilityAt(const CharacterSheet& sheet, int ability);
/// The seven whole scores in the game's order.
std::array<int, kAbilityCount> WholeScores(const CharacterSheet& sheet);
/// LevelStrengthGain to LevelComelinessGain.
LevelGains& LevelGainAt(CharacterSheet& sheet, int ability);
const LevelGains& LevelGainAt(const CharacterSheet& sheet, int ability);
/// The nine thief abilities in the order pick pockets, open locks, find traps, remove traps, move silently, hide in
/// shadows, detect noise, climb walls, read languages.
ThiefAbility& ThiefAbilityAt(CharacterSheet& sheet, std::size_t ability);
const ThiefAbility& ThiefAbilityAt(const CharacterSheet& sheet, std::size_t ability);
/// The thirteen saving throws in the order of the record.
SaveNumbers& SaveAt(CharacterSheet& sheet, std::size_t save);
const SaveNumbers& SaveAt(const CharacterSheet& sheet, std::size_t save);

}  // namespace veld
