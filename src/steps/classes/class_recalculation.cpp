#include "steps/classes/class_recalculation.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

#include "dice/dice.h"
#include "referee/training.h"
#include "rules/class_table.h"
#include "rules/race_table.h"
#include "rules/saving_throws.h"
#include "rules/spell_catalogue.h"
#include "rules/thief_tables.h"
#include "steps/classes/allotments.h"
#include "steps/classes/honor.h"
#include "steps/race/race_choice.h"
#include "text/search.h"

namespace veld {

namespace {

static_assert(kSaves == kSaveCount);

// Rows of the class table that rules name.
constexpr int kDruid = 2;
constexpr int kFighter = 3;
constexpr int kBarbarian = 4;
constexpr int kBerserker = 5;
constexpr int kKnightErrant = 8;
constexpr int kMonk = 9;
constexpr int kBattleMage = 13;
constexpr int kBloodMage = 14;
constexpr int kIllusionist = 15;
constexpr int kStandardIllusionist = 24;

// Rows of other tables.
constexpr std::size_t kQuellFrenzyQuirk = 76;
constexpr std::size_t kQuellLustQuirk = 77;
constexpr std::size_t kBothLegsLost = 37;
constexpr std::size_t kOneLegLost = 38;
constexpr std::size_t kPegLegLeft = 198;
constexpr std::size_t kPegLegRight = 199;
constexpr std::size_t kHitPointTalent = 40;  ///< a hit point for each hit die and count
constexpr std::size_t kDwarfMageTalent = 70;

constexpr int kHighestGain = 97;  ///< no level above is gained
constexpr int kHighestDruidGain = 23;
constexpr std::size_t kGainRows = 99;  ///< class rows whose ability gains are taken out before they are added anew
constexpr std::size_t kSummedRows = kBestSave;
constexpr int kLevelsControl = 51;

enum class Group { None, Cleric, Fighter, Mage, Thief };

/// A run of classes in the order in which a class text is searched. Spells: the starting spells, -1 for no caster.
struct ChainRun {
  int First;
  int Last;
  Group FirstTimeGroup;
  int Spells;
};

// clang-format off
constexpr ChainRun kClassChain[] = {
    {  1,   2, Group::Cleric,  -1},
    {  3,  11, Group::Fighter, -1},
    { 12,  12, Group::Mage,     3},
    { 13,  13, Group::None,     3},  // a battle mage is a mage by the choice of the class alone
    { 14,  15, Group::Mage,     3},
    { 16,  18, Group::Thief,   -1},
    { 19,  34, Group::Mage,     3},
    { 35,  53, Group::None,     8},
    { 54,  57, Group::None,     3},
    { 58,  58, Group::None,     4},
    { 59,  59, Group::None,     3},
    { 60,  66, Group::Fighter, -1},
    { 67, 108, Group::Cleric,  -1},
    {109, 109, Group::None,    -1},  // "Zealot of Thrain (Skite)"
    {110, 115, Group::Cleric,  -1},
    {116, 122, Group::Thief,   -1},
    {123, 123, Group::Mage,    -1},
};
// clang-format on

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

const ClassRecord& ClassAt(int classRow) {
  return ClassTable()[Index(classRow)];
}

/// True if the text names the class of a row. Names that stand inside longer ones are told apart.
bool NamesClass(std::string_view text, int classRow) {
  if (!Contains(text, ClassAt(classRow).Name)) return false;
  if (classRow == kDruid) return !Contains(text, "Zealot");
  if (classRow == kIllusionist) return !Contains(text, "Standard") && !Contains(text, "Double");
  return true;
}

// ---- Levels gained and lost ----

void AddHitDice(Game& game, int classRow, int level, int sign) {
  int& total = game.sheet.HitDiceCount;
  int dice = ClassAt(classRow).HitDiceAtLevel[Index(level)];
  if (level == 1 && HasTrait(game.sheet.RaceName, RaceTrait::DoubledFirstHitDice)) dice *= 2;
  total = AddSaturated(total, sign * dice);
}

void RollLevelHitPoints(Game& game, int classRow, int level) {
  CharacterSheet& sheet = game.sheet;
  const ClassRecord& record = ClassAt(classRow);
  const auto roll = [&] {
    return RollHitPointDice(game, record.HitDieSides[Index(level)], record.HitDieCount[Index(level)]);
  };
  int& base = sheet.LevelHitPoints[0][Index(classRow)];
  if (level == 1) base = record.Kicker;
  int points = roll();
  const auto has = [&](RaceTrait trait) { return HasTrait(sheet.RaceName, trait); };
  if (level == 1 && has(RaceTrait::DoubledFirstHitDice)) points = AddSaturated(points, roll());
  if (has(RaceTrait::HalvedHitPoints)) points /= 2;
  if (has(RaceTrait::HalvedHitPointsAndKicker)) {
    points = AddSaturated(points, 1) / 2;
    if (level == 1) base /= 2;
  }
  sheet.LevelHitPoints[Index(level)][Index(classRow)] = AddSaturated(points, record.FlatHitPoints[Index(level)]);
}

/// Each ability grows by its class's die and the Honor Die, rolled in the order of the players' sheet.
void RollAbilityGains(Game& game, int classRow, int level) {
  constexpr Ability kRollOrder[] = {kStrength,     kIntelligence, kWisdom,    kDexterity,
                                    kConstitution, kCharisma,     kComeliness};
  const auto gain = [&](int ability) -> int& {
    return LevelGainAt(game.sheet, ability)[Index(classRow)][Index(level)];
  };
  for (const Ability ability : kRollOrder)
    gain(ability) = RollHonorDice(game, ClassAt(classRow).AbilityGainDie[ability], 1);
  for (const Ability ability : kRollOrder) {
    gain(ability) = AddSaturated(gain(ability), RollHonorDice(game, game.sheet.HonorDie, 1));
  }
  for (const Ability ability : kRollOrder) gain(ability) = AddSaturated(gain(ability), game.run.HonorDieBonus);
}

void GainLevel(Game& game, int classRow) {
  CharacterSheet& sheet = game.sheet;
  const ClassRecord& record = ClassAt(classRow);
  int& held = sheet.ClassLevels[Index(classRow)];
  if (held > 0) RunTraining(game);
  const int level = ++held;
  AddHitDice(game, classRow, level, 1);
  int& slots = sheet.ClassProficiencySlots[Index(classRow)];
  slots = AddSaturated(slots, record.ProficiencySlotsAtLevel[Index(level)]);
  if (record.ThiefPointsAtLevel[Index(level)] != 0) {
    game.run.ThiefPointsToSpend = record.ThiefPointsAtLevel[Index(level)];
    RunAllotment(game, classRow);
  }
  RollLevelHitPoints(game, classRow, level);
  if (level > 1) RollAbilityGains(game, classRow, level);
}

/// The points of the level held in a class go, as far as they lie in a slot of that class.
void TakeBackThiefPoints(Game& game, int classRow, int level) {
  const Allotment allotment = AllotmentOf(classRow);
  if (ClassAt(classRow).ThiefPointsAtLevel[Index(level)] == 0) return;
  if (AllotmentSlot(game.sheet, allotment, classRow) != Index(level)) return;
  for (const int ability : AllottedAbilities(allotment)) ThiefAbilityAt(game.sheet, Index(ability))[Index(level)] = 0;
}

void LoseLevel(Game& game, int classRow) {
  CharacterSheet& sheet = game.sheet;
  int& held = sheet.ClassLevels[Index(classRow)];
  const int level = held;
  TakeBackThiefPoints(game, classRow, level);
  AddHitDice(game, classRow, level, -1);
  int& slots = sheet.ClassProficiencySlots[Index(classRow)];
  slots = AddSaturated(slots, -ClassAt(classRow).ProficiencySlotsAtLevel[Index(level)]);
  sheet.LevelHitPoints[Index(level)][Index(classRow)] = 0;
  if (level == 1) sheet.LevelHitPoints[0][Index(classRow)] = 0;
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    LevelGainAt(sheet, ability)[Index(classRow)][Index(level)] = 0;
  }
  --held;
}

// ---- The chain of classes ----

void SetGroup(CharacterSheet& sheet, Group group) {
  switch (group) {
    case Group::Cleric:
      sheet.IsClericClass = 1;
      break;
    case Group::Fighter:
      sheet.IsFighterClass = 1;
      break;
    case Group::Mage:
      sheet.IsMageClass = 1;
      break;
    case Group::Thief:
      sheet.IsThiefClass = 1;
      break;
    case Group::None:
      break;
  }
}

/// What the first level of a class brings once.
void EnterClass(Game& game, const ChainRun& run, int classRow) {
  CharacterSheet& sheet = game.sheet;
  SetGroup(sheet, run.FirstTimeGroup);
  if (classRow == kKnightErrant || (classRow == kFighter && sheet.ClassName == "Fighter")) {
    sheet.FreeWeaponProficiencySlots = 1;
  }
  if (run.Spells >= 0) {
    game.run.StartingSpells = run.Spells;
  }
  if (classRow == kBattleMage) {
    sheet.Wisdom.Whole = AddSaturated(sheet.Wisdom.Whole, -1);
    if (HasTrait(sheet.RaceName, RaceTrait::TalentedBattleMage)) sheet.TalentCounts[kDwarfMageTalent] = 1;
  }
}

void SetBarbarianAbilities(Game& game) {
  CharacterSheet& sheet = game.sheet;
  const int level = sheet.ClassLevels[kBarbarian];
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
  const int last = game.sheet.ClassLevels[kKnightErrant];
  for (const MonkAbility& monk : kMonkAbilities) {
    ThiefAbility& scores = ThiefAbilityAt(game.sheet, monk.Ability);
    scores[1] = monk.First;
    for (int level = 2; level <= kHighestLevel; ++level) scores[Index(level)] = level <= last ? monk.Further : 0;
  }
}

/// A class that a class text names, as its levels left it.
struct ClassOfChain {
  const ChainRun* Run;
  int Row;
  bool IsEntered;  ///< the first level came in this run
};

/// What hangs on the abilities once all levels have their gains: the cantrips of a class just entered, and what some
/// classes bring on every run. The tracking of barbarians and rangers loses 5 for each three levels of row 10
/// before their levels are looked at and has them back after: nothing is left of it.
void SetClassExtras(Game& game, const ClassOfChain& held) {
  const int classRow = held.Row;
  if (held.IsEntered && held.Run->Spells >= 0 && classRow != kBloodMage) {
    game.run.SpellListIndex = SaturateToInt(std::int64_t{game.sheet.Intelligence.Whole} * 2);
  }
  if (classRow == kBarbarian) SetBarbarianAbilities(game);
  if (classRow == kMonk) SetMonkAbilities(game);
  if (classRow == kBerserker) {
    game.sheet.QuirkCounts[kQuellFrenzyQuirk] = 1;
    game.sheet.QuirkCounts[kQuellLustQuirk] = 1;
  }
}

/// A plain illusionist is a standard specialist: what row 15 holds moves there.
void MoveIllusionist(CharacterSheet& sheet) {
  const auto move = [](auto& rows) {
    rows[kStandardIllusionist] = rows[kIllusionist];
    rows[kIllusionist] = {};
  };
  if (sheet.ClassLevels[kIllusionist] <= 0 && !(sheet.ClassExperience[kIllusionist] > 0)) return;
  move(sheet.ClassLevels);
  move(sheet.ClassExperience);
  move(sheet.ClassProficiencySlots);
  for (ClassNumbers& points : sheet.LevelHitPoints) move(points);
  for (int ability = 0; ability < kAbilityCount; ++ability) move(LevelGainAt(sheet, ability));
}

ClassOfChain RunClassOfChain(Game& game, const ChainRun& run, int namedRow) {
  CharacterSheet& sheet = game.sheet;
  const int classRow = namedRow == kIllusionist ? kStandardIllusionist : namedRow;
  if (namedRow == kIllusionist) MoveIllusionist(sheet);
  const bool isNew = sheet.ClassLevels[Index(classRow)] == 0;
  AdvanceClassLevels(game, classRow);
  const int level = sheet.ClassLevels[Index(classRow)];
  const bool isEntered = isNew && level > 0;
  if (isEntered) EnterClass(game, run, classRow);
  if (run.Spells >= 0) SetSpellsForLevel(game, level);
  return {&run, classRow, isEntered};
}

std::vector<ClassOfChain> RunClassChain(Game& game, std::string_view classText) {
  std::vector<ClassOfChain> classes;
  for (const ChainRun& run : kClassChain) {
    for (int row = run.First; row <= run.Last; ++row) {
      if (NamesClass(classText, row)) classes.push_back(RunClassOfChain(game, run, row));
    }
  }
  return classes;
}

// ---- Sums over the classes held ----

using AbilitySums = std::array<std::int64_t, kAbilityCount>;

/// What the classes of a character come to together.
struct ClassTotals {
  std::int64_t Classes = 0;
  std::int64_t Levels = 0;
  AbilitySums Gains{};

  void AddGains(const CharacterSheet& sheet, std::size_t classRow) {
    ++Classes;
    Levels += sheet.ClassLevels[classRow];
    for (int ability = 0; ability < kAbilityCount; ++ability) {
      Gains[Index(ability)] += LevelGainAt(sheet, ability)[classRow][kLevelSum];
    }
  }
};

/// Levels as the tables can hold them, and none in row 0.
void HoldLevels(CharacterSheet& sheet) {
  for (int& level : sheet.ClassLevels) level = std::clamp(level, 0, kHighestLevel);
  sheet.ClassLevels[0] = 0;
}

void SumGains(CharacterSheet& sheet) {
  for (std::size_t row = 0; row < sheet.ClassLevels.size(); ++row) {
    if (sheet.ClassLevels[row] <= 0) continue;
    for (int ability = 0; ability < kAbilityCount; ++ability) {
      LevelNumbers& gains = LevelGainAt(sheet, ability)[row];
      std::int64_t sum = 0;
      for (std::size_t level = 0; level < kLevelSum; ++level) sum += gains[level];
      gains[kLevelSum] = SaturateToInt(sum);
    }
  }
}

/// The average gain of the classes in an ability, in percentile points.
std::int64_t AverageGain(const ClassTotals& totals, int ability) {
  return totals.Classes > 0 ? totals.Gains[Index(ability)] / totals.Classes : 0;
}

/// Takes out of the abilities what the last run added, and remembers which score stood at 0 without it. Only the
/// classes of the first 99 rows are taken out, though those of all rows are added: so it stands in the rules, and only
/// the last rows of the table feel it. Until AddGains the whole scores are those with the gains: new levels are rolled
/// by them.
void TakeOutGains(Game& game) {
  ClassTotals totals;
  for (std::size_t row = 0; row < kGainRows; ++row) {
    if (game.sheet.ClassLevels[row] > 0) totals.AddGains(game.sheet, row);
  }
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    AbilityScore& score = AbilityAt(game.sheet, ability);
    const std::int64_t gain = AverageGain(totals, ability);
    if (gain == 0) game.run.AtZeroBeforeGains[Index(ability)] = StandsAtZero(score) ? 1 : 0;
    score.Percentile = SaturateToInt(score.Percentile - gain);
  }
}

/// Adds the average gain of the classes to the abilities.
void AddGains(Game& game, const ClassTotals& totals) {
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    AbilityScore& score = AbilityAt(game.sheet, ability);
    const std::int64_t gain = AverageGain(totals, ability);
    score.Percentile = SaturateToInt(score.Percentile + gain);
    NormalizeGained(score, gain, game.run.AtZeroBeforeGains[Index(ability)] == 1);
  }
}

void SumHitPoints(Game& game) {
  for (std::size_t row = 0; row < game.sheet.ClassLevels.size(); ++row) {
    if (game.sheet.ClassLevels[row] <= 0) continue;
    std::int64_t sum = 0;
    for (std::size_t level = 0; level < kLevelSum; ++level) sum += game.sheet.LevelHitPoints[level][row];
    game.run.ClassHitPoints[row] = SaturateToInt(sum);
  }
}

void ClearBestSaves(CharacterSheet& sheet) {
  for (std::size_t save = 0; save < kSaves; ++save) SaveAt(sheet, save)[kBestSave] = kNoSave;
}

/// The best saving throws and the most proficiency slots of a class row join the character's. A row without a level
/// saves as nobody does, so that a class given up leaves nothing behind.
void JoinSavesAndSlots(Game& game, std::size_t row) {
  CharacterSheet& sheet = game.sheet;
  const bool isHeld = sheet.ClassLevels[row] > 0;
  for (std::size_t save = 0; save < kSaves; ++save) {
    SaveNumbers& numbers = SaveAt(sheet, save);
    if (!isHeld) numbers[row] = kNoSave;
    numbers[kBestSave] = std::min(numbers[kBestSave], numbers[row]);
  }
  sheet.ProficiencySlots = std::max(sheet.ProficiencySlots, sheet.ClassProficiencySlots[row]);
}

/// Goes through the classes held: texts, groups, saving throws, slots and sums. Returns what they come to.
ClassTotals GatherClasses(Game& game, std::int64_t& hitPoints) {
  CharacterSheet& sheet = game.sheet;
  ClassTotals totals;
  std::string names;
  std::string levels;
  for (std::size_t row = 0; row < kSummedRows; ++row) {
    if (sheet.ClassLevels[row] > 0) {
      const ClassRecord& record = ClassTable()[row];
      if (record.IsMage == 1 && row != kBattleMage) sheet.IsMageClass = 1;
      hitPoints += game.run.ClassHitPoints[row];
      ComputeSaves(game, static_cast<int>(row));
      if (totals.Classes > 0) {
        names += '/';
        levels += '/';
      }
      totals.AddGains(sheet, row);
      names += record.Name;
      levels += Format("%i", sheet.ClassLevels[row]);
    }
    JoinSavesAndSlots(game, row);
  }
  // Without any level the name of the class that was chosen stays.
  if (totals.Classes > 0) sheet.ClassName = names;
  sheet.LevelText = levels;
  return totals;
}

/// The hit points of all classes with the bonus on each hit die, as the average of the classes.
void SetHitPoints(Game& game, std::int64_t rolled, std::int64_t classes) {
  CharacterSheet& sheet = game.sheet;
  // A battle mage has no use of a high Constitution.
  if (sheet.ClassName == "Battle Mage") sheet.ConstitutionHPAdj = std::min(sheet.ConstitutionHPAdj, 0);
  const int perDie = AddSaturated(std::max(sheet.TalentCounts[kHitPointTalent], 0), sheet.ConstitutionHPAdj);
  sheet.HitPoints = classes > 0 ? SaturateToInt((rolled + std::int64_t{sheet.HitDiceCount} * perDie) / classes) : 0;
}

/// The movement of the race after lost legs.
void SetBaseMovement(CharacterSheet& sheet, const RaceRecord& race) {
  const int left = sheet.SkillScores[kPegLegLeft];
  const int right = sheet.SkillScores[kPegLegRight];
  const bool noPegLeg = std::int64_t{left} + right == 0;
  int movement = race.BaseMovement;
  // The loss of one leg slows more than that of both: a slip of the book that is kept.
  if (sheet.QuirkCounts[kBothLegsLost] == 1 && noPegLeg) movement -= 3;
  if (sheet.QuirkCounts[kOneLegLost] == 1 && noPegLeg) movement = 4;
  if (sheet.QuirkCounts[kOneLegLost] == 1 && left > 0 && right > 0) movement -= 1;
  sheet.BaseMovement = movement;
  sheet.MovementRow2 = race.SecondMovement;
}

}  // namespace

bool NamesKnownClass(std::string_view className) {
  return std::ranges::any_of(kClassChain, [&](const ChainRun& run) {
    for (int row = run.First; row <= run.Last; ++row) {
      if (NamesClass(className, row)) return true;
    }
    return false;
  });
}

int EarnedLevel(int classRow, float experience) {
  if (classRow < 1 || classRow > kLastSingleClass) return 0;
  const auto& ladder = ClassAt(classRow).ExperienceForLevel;
  const double earned = experience > 0 ? experience : 0;
  int level = 0;
  while (level < kHighestLevel && earned >= ladder[Index(level + 1)]) ++level;
  return level;
}

void AdvanceClassLevels(Game& game, int classRow) {
  if (classRow < 1 || classRow > kLastSingleClass) return;
  const int earned = EarnedLevel(classRow, game.sheet.ClassExperience[Index(classRow)]);
  const int highest = classRow == kDruid ? kHighestDruidGain : kHighestGain;
  const int allowed = std::min({earned, highest, game.run.ClassAllowed[Index(classRow)]});
  const int& held = game.sheet.ClassLevels[Index(classRow)];
  while (held < allowed) GainLevel(game, classRow);
  while (held > earned) LoseLevel(game, classRow);
}

void ComputeSaves(Game& game, int classRow) {
  if (classRow < 0 || Index(classRow) >= kBestSave) return;
  std::array<int, kSaveCount> saves{};
  if (!ReadClassSaves(classRow, game.sheet.ClassLevels[Index(classRow)], saves)) return;
  for (std::size_t save = 0; save < kSaves; ++save) SaveAt(game.sheet, save)[Index(classRow)] = saves[save];
}

void ComputeMovement(Game& game) {
  CharacterSheet& sheet = game.sheet;
  if (const int row = FindSearchedRaceRow(sheet.RaceName, sheet.Gender); row >= 0) {
    SetBaseMovement(sheet, RaceTable()[Index(row)]);
  }
  sheet.MovementLight = static_cast<int>(std::lround(sheet.BaseMovement * 0.75));
  sheet.MovementModerate = sheet.BaseMovement / 2;
  sheet.MovementHeavy = sheet.BaseMovement / 4;
}

void SetSpellsForLevel(Game& game, int level) {
  game.run.SpellsPerLevel = SpellSlotsAtLevel(level);
}

void RecomputeFromClasses(Game& game, Form* window) {
  CharacterSheet& sheet = game.sheet;
  const std::string classText(sheet.ClassName.View());
  if (!NamesKnownClass(classText)) return;
  BindRaceRow(game);
  HoldLevels(sheet);
  sheet.ProficiencySlots = 0;
  SumGains(sheet);
  TakeOutGains(game);
  ClearBestSaves(sheet);
  const std::vector<ClassOfChain> classes = RunClassChain(game, classText);
  SumHitPoints(game);
  SumGains(sheet);
  std::int64_t hitPoints = 0;
  const ClassTotals totals = GatherClasses(game, hitPoints);
  SetHitPoints(game, hitPoints, totals.Classes);
  ComputeMovement(game);
  AddGains(game, totals);
  for (const ClassOfChain& held : classes) SetClassExtras(game, held);
  if (totals.Classes > 0) ComputeHonorDie(game, static_cast<int>(totals.Levels / totals.Classes));
  if (window) window->SetText(kLevelsControl, sheet.LevelText);
  SetThiefBaseScores(game);
  SumThiefAbilities(game);
}

}  // namespace veld
