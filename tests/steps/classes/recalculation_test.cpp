#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "rules/class_table.h"
#include "rules/race_table.h"
#include "steps/classes/class_levels.h"
#include "steps/classes/class_recalculation.h"
#include "steps/classes/experience_ladder.h"
#include "steps/classes/movement.h"
#include "steps/race/race_choice.h"
#include "support/game_test.h"
#include "text/format.h"

namespace veld {
namespace {

/// A player who reads on through trainings and spreads every point he may place.
class LevelUpPlayer : public testing::ScriptedPlatform {
 public:
  int trainings = 0;
  int allotments = 0;
  std::function<void()> onTraining;

  void RunForm(Form& form) override {
    form.Open();
    if (form.Name() == "Training") {
      ++trainings;
      if (onTraining) onTraining();
      form.Press(2);
    } else {
      ++allotments;
      testing::SpreadPoints(form);
    }
    ASSERT_TRUE(form.IsClosed()) << form.Name();
  }
};

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

/// All that hangs on levels, as far as it may be compared from one run to another.
struct Picture {
  std::array<AbilityScore, kAbilityCount> Abilities{};
  int HitDice = 0;
  int HitPoints = 0;
  int Slots = 0;
  std::array<int, 4> Barbarian{};
  std::array<int, kThiefAbilities> ThiefTotals{};
  std::array<int, kSaves> Saves{};
  std::string Levels;
  std::string Classes;

  bool operator==(const Picture&) const = default;
};

/// A score in percentile points: 13/100 is 14/0.
std::int64_t PointsOf(AbilityScore score) {
  return std::int64_t{score.Whole} * 100 + score.Percentile;
}

Picture PictureOf(const CharacterSheet& sheet) {
  Picture picture;
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    picture.Abilities[Index(ability)] = AbilityAt(sheet, ability);
  }
  picture.HitDice = sheet.HitDiceCount;
  picture.HitPoints = sheet.HitPoints;
  picture.Slots = sheet.ProficiencySlots;
  picture.Barbarian = {sheet.BarbarianClimb, sheet.BarbarianBackProtection, sheet.BarbarianHide,
                       sheet.BarbarianDetectIllusion};
  for (std::size_t i = 0; i < kThiefAbilities; ++i) picture.ThiefTotals[i] = ThiefAbilityAt(sheet, i)[kLevelSum];
  for (std::size_t i = 0; i < kSaves; ++i) picture.Saves[i] = SaveAt(sheet, i)[kBestSave];
  picture.Levels = sheet.LevelText.View();
  picture.Classes = sheet.ClassName.View();
  return picture;
}

class RecalculationTest : public testing::GameTest<LevelUpPlayer> {
 protected:
  RecalculationTest() { Restart("Human", "Male", "Fighter"); }

  void Restart(std::string_view race, std::string_view gender, std::string_view className) {
    platform.now = 7;
    ResetCharacter(*game);
    for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(game->sheet, ability) = {13, percentile};
    game->sheet.RaceName = race;
    game->sheet.Gender = gender;
    game->sheet.ClassName = className;
    game->sheet.Honor = 18;
    BindRaceRow(*game);
  }

  /// Gives the class the experience of a level and recomputes; then once more, which must change nothing.
  Picture Reach(int row, int level) {
    game->sheet.ClassExperience[Index(row)] =
        static_cast<float>(ClassTable()[Index(row)].ExperienceForLevel[Index(level)] + 1);
    RecomputeFromClasses(*game);
    const Picture picture = PictureOf(game->sheet);
    const int trained = platform.trainings + platform.allotments;
    const std::uint32_t dice = game->dice.RandomState;
    RecomputeFromClasses(*game);
    EXPECT_EQ(PictureOf(game->sheet), picture) << picture.Classes << level;
    EXPECT_EQ(platform.trainings + platform.allotments, trained);
    EXPECT_EQ(game->dice.RandomState, dice) << "nothing is rolled again";
    return picture;
  }

  CharacterSheet& Sheet() { return game->sheet; }

  int percentile = 95;  ///< of all abilities at the start

  testing::TestFolder folder;
};

/// What the levels up to `level` give, read from the tables and the rolls kept.
void ExpectLevels(const CharacterSheet& sheet, const Picture& picture, int row, int level, std::int64_t start) {
  const ClassRecord& record = ClassTable()[Index(row)];
  int hitDice = 0;
  int slots = 0;
  std::int64_t hitPoints = 0;
  std::array<std::int64_t, kAbilityCount> gains{};
  for (int i = 0; i <= level; ++i) {
    hitDice += record.HitDiceAtLevel[Index(i)] * (i == 1 && sheet.RaceName == "Half-ogre" ? 2 : 1);
    slots += record.ProficiencySlotsAtLevel[Index(i)];
    hitPoints += sheet.LevelHitPoints[Index(i)][Index(row)];
    for (int a = 0; a < kAbilityCount; ++a) gains[Index(a)] += LevelGainAt(sheet, a)[Index(row)][Index(i)];
  }
  EXPECT_EQ(picture.HitDice, hitDice);
  EXPECT_EQ(picture.Slots, slots);
  EXPECT_EQ(picture.HitPoints, hitPoints);
  EXPECT_EQ(picture.Levels, Format("%i", level));
  for (int a = 0; a < kAbilityCount; ++a) {
    const int lost = row == 13 && a == kWisdom ? 100 : 0;  // the battle mage's Wisdom
    EXPECT_EQ(PointsOf(picture.Abilities[Index(a)]), start - lost + gains[Index(a)]) << AbilityName(a);
    EXPECT_EQ(LevelGainAt(sheet, a)[Index(row)][kLevelSum], gains[Index(a)]);
  }
  for (std::size_t i = 0; i < kThiefAbilities; ++i) {
    std::int64_t sum = 0;
    for (int l = 0; l <= level; ++l) sum += ThiefAbilityAt(sheet, i)[Index(l)];
    EXPECT_EQ(picture.ThiefTotals[i], sum);
  }
}

TEST_F(RecalculationTest, EveryClassOfEveryRaceRisesAndFallsToTheSameCharacter) {
  constexpr int kTop = 20;
  int classesRun = 0;
  for (int raceRow = 0; raceRow < kRacesFilled; ++raceRow) {
    const RaceRecord& race = RaceTable()[Index(raceRow)];
    percentile = std::array{0, 1, 50, 95, 99, 100}[Index(raceRow % 6)];
    for (int named = 1; named < 99; ++named) {
      if (race.ClassLevelLimits[Index(named)] == 0) continue;
      const int row = named == 15 ? 24 : named;  // a plain illusionist is a standard specialist
      Restart(race.Name, race.Gender, ClassTable()[Index(named)].Name);
      const int top = std::min(kTop, race.ClassLevelLimits[Index(named)] + 2);
      std::array<Picture, kTop + 1> rising;
      for (int level = 1; level <= top; ++level) {
        if (row == 68 && level == 3) continue;  // the shaman's ladder dips: level 3 comes with level 4
        rising[Index(level)] = Reach(row, level == 4 && row == 68 ? 3 : level);
        ExpectLevels(Sheet(), rising[Index(level)], row, level, PointsOf({13, percentile}));
        ASSERT_FALSE(HasFailure()) << race.Name << " " << ClassTable()[Index(named)].Name << " " << level;
      }
      EXPECT_EQ(rising[1].Classes, ClassTable()[Index(row)].Name);
      for (int level = top - 1; level >= 1; --level) {
        if (row == 68 && level <= 4) continue;
        ASSERT_EQ(Reach(row, level), rising[Index(level)]) << race.Name << rising[1].Classes << level;
      }
      ++classesRun;
    }
  }
  EXPECT_GT(classesRun, 1000);
  EXPECT_GT(platform.allotments, 0);
}

TEST_F(RecalculationTest, CombinationsAverageTheirClasses) {
  for (int combination = kFirstMultiClass; combination < kClassRows; ++combination) {
    Restart("Human", "Male", ClassTable()[Index(combination)].Name);
    Sheet().ConstitutionHPAdj = 2;
    Sheet().TalentCounts[40] = 1;
    std::vector<int> rows;
    RecomputeFromClasses(*game);
    for (int row = 1; row <= kLastSingleClass; ++row) {
      if (Sheet().ClassLevels[Index(row)] > 0) rows.push_back(row);
    }
    const auto count = static_cast<int>(rows.size());
    EXPECT_EQ(count, 1 + std::ranges::count(ClassTable()[Index(combination)].Name, '/'));
    EXPECT_EQ(Sheet().FreeWeaponProficiencySlots, 0) << "only a plain fighter has the free step";
    const Picture first = PictureOf(Sheet());
    for (int level = 2; level <= 6; ++level) {
      for (const int row : rows) Reach(row, level);
    }
    std::int64_t hitPoints = 0;
    for (const int row : rows) hitPoints += game->run.ClassHitPoints[Index(row)];
    EXPECT_EQ(Sheet().HitPoints, (hitPoints + Sheet().HitDiceCount * 3) / count);
    EXPECT_EQ(Sheet().LevelText, count == 2 ? "6/6" : "6/6/6");
    for (const int row : rows) Reach(row, 1);
    EXPECT_EQ(PictureOf(Sheet()), first) << ClassTable()[Index(combination)].Name;
    EXPECT_EQ(Sheet().TalentCounts[40], 1);
  }
}

TEST_F(RecalculationTest, ARaceStopsAtItsLimitAndADruidAtLevelTwentyThree) {
  Restart("Dwarf", "Male", "Fighter");
  Sheet().ClassExperience[3] = 900'000'000;
  RecomputeFromClasses(*game);
  EXPECT_EQ(Sheet().ClassLevels[3], 17);
  EXPECT_EQ(platform.trainings, 16);

  Restart("Human", "Male", "Druid");
  Sheet().ClassExperience[2] = 900'000'000;
  RecomputeFromClasses(*game);
  EXPECT_EQ(Sheet().ClassLevels[2], 23);

  Restart("Human", "Male", "Monk");
  Sheet().ClassExperience[9] = 900'000'000;
  RecomputeFromClasses(*game);
  EXPECT_EQ(Sheet().ClassLevels[9], 97);
  Sheet().ClassLevels[9] = 99;
  RecomputeFromClasses(*game);
  EXPECT_EQ(Sheet().LevelText, "98");
}

TEST_F(RecalculationTest, TheShamansLadderDips) {
  for (const auto& [experience, level] : {std::pair{1501, 1}, {3001, 2}, {6000, 2}, {6001, 4}, {29001, 5}}) {
    EXPECT_EQ(EarnedLevel(68, static_cast<float>(experience)), level) << experience;
  }
  for (int row = 1; row <= kLastSingleClass; ++row) EXPECT_EQ(EarnedLevel(row, -1e30F), 1) << row;
  EXPECT_EQ(EarnedLevel(3, 1e30F), 98);
  EXPECT_EQ(EarnedLevel(198, 5), 0) << "a combination has no ladder";
}

TEST_F(RecalculationTest, ACharacterWithoutAKnownClassStaysAsHeIs) {
  Sheet().ClassName = "Please Pick";
  Sheet().ClassLevels[3] = 4;
  Sheet().HitPoints = 9;
  const auto before = std::make_unique<CharacterSheet>(Sheet());
  RecomputeFromClasses(*game);
  EXPECT_EQ(std::memcmp(before.get(), &Sheet(), sizeof(CharacterSheet)), 0);

  Restart("Unknown", "Male", "Battle Mage");  // a class whose levels are all closed
  game->run.ClassAllowed.fill(0);
  RecomputeFromClasses(*game);
  RecomputeFromClasses(*game);
  EXPECT_EQ(Sheet().ClassName, "Battle Mage");
  EXPECT_EQ(Sheet().LevelText, "");
  EXPECT_EQ(Sheet().Wisdom.Whole, 13);
}

TEST_F(RecalculationTest, GroupsAndSpellsComeWithTheFirstLevel) {
  RecomputeFromClasses(*game);
  EXPECT_EQ(Sheet().IsFighterClass, 1);
  EXPECT_EQ(Sheet().FreeWeaponProficiencySlots, 1);
  EXPECT_EQ(game->run.SpellListIndex, -1);

  struct Expected {
    std::string_view Class;
    int StartingSpells = 3;
    int SpellList = 26;
    int IsMage = 1;
  };
  for (const Expected& expected :
       {Expected{"Magic-User"}, Expected{"Blood Mage", 3, -1}, Expected{"Battle Mage", 3, 26, 0},
        Expected{"Double Specialist: Illusionist"}, Expected{"Sole Practitioner: Seer", 8}, Expected{"Painted Mage", 4},
        Expected{"Zealot of Thrain (Skite)", 0, -1, 0}}) {
    Restart("Human", "Male", expected.Class);
    RecomputeFromClasses(*game);
    EXPECT_EQ(game->run.StartingSpells, expected.StartingSpells) << expected.Class;
    EXPECT_EQ(game->run.SpellListIndex, expected.SpellList) << expected.Class;
    EXPECT_EQ(Sheet().IsMageClass, expected.IsMage) << expected.Class;
    EXPECT_EQ(Sheet().IsClericClass, 0) << expected.Class;
    EXPECT_EQ(game->run.SpellsPerLevel[0], expected.StartingSpells > 0 ? 3 : 0) << expected.Class;
  }
}

TEST_F(RecalculationTest, WhatAnIllusionistHeldMovesToTheStandardSpecialist) {
  Restart("Human", "Male", "Illusionist");
  Sheet().ClassLevels[15] = 2;
  Sheet().ClassExperience[15] = 2500;
  Sheet().LevelHitPoints[0][15] = 20;
  Sheet().LevelHitPoints[2][15] = 3;
  Sheet().LevelWisdomGain[15][2] = 4;
  Sheet().Wisdom.Percentile = 54;
  RecomputeFromClasses(*game);
  EXPECT_EQ(Sheet().ClassName, "Standard Specialist: Illusionist");
  EXPECT_EQ(Sheet().LevelText, "2");
  EXPECT_EQ(Sheet().HitPoints, 23);
  EXPECT_EQ(Sheet().Wisdom.Percentile, 54);
}

TEST_F(RecalculationTest, RacesBendTheHitPointsOfTheFirstLevel) {
  const auto first = [&](std::string_view race) {
    Restart(race, "Male", "Fighter");
    game->run.ClassAllowed[3] = 5;
    AdvanceClassLevels(*game, 3);
    return std::array{Sheet().LevelHitPoints[0][3], Sheet().LevelHitPoints[1][3], Sheet().HitDiceCount};
  };
  const auto human = first("Human");
  EXPECT_EQ(human[0], 20);
  EXPECT_EQ(human[2], 1);
  EXPECT_EQ(first("Pixie Fairy"), (std::array{10, (human[1] + 1) / 2, 1}));
  EXPECT_EQ(first("Gnome Titan"), (std::array{20, human[1] / 2, 1}));
  const auto ogre = first("Half-ogre");
  EXPECT_GT(ogre[1], human[1]) << "a second die on top of the same first one";
  EXPECT_EQ(ogre[2], 2);
}

TEST_F(RecalculationTest, TheBestSaveAndTheMostSlotsOfAllClassesCount) {
  Restart("Human", "Male", "Cleric/Fighter");
  RecomputeFromClasses(*game);
  EXPECT_EQ(Sheet().SavePoison[kBestSave], 10);
  EXPECT_EQ(Sheet().SavePoison[3], 15);
  EXPECT_EQ(Sheet().ProficiencySlots, 4);
  Sheet().ClassExperience[1] = -5;
  RecomputeFromClasses(*game);
  EXPECT_EQ(Sheet().LevelText, "1/1") << "a class is not lost by its experience";
  Sheet().ClassLevels[1] = 0;  // the cleric is given up
  Sheet().ClassName = "Fighter";
  RecomputeFromClasses(*game);
  EXPECT_EQ(Sheet().SavePoison[kBestSave], 15);
}

TEST_F(RecalculationTest, WhatReadsAnAbilitySeesItWithItsGains) {
  Restart("Human", "Male", "Barbarian");
  for (int a = 0; a < kAbilityCount; ++a) AbilityAt(Sheet(), a) = {16, 95};
  Reach(4, 16);
  EXPECT_GT(Sheet().Dexterity.Whole, 16);
  EXPECT_EQ(Sheet().BarbarianHide, 5 * 16 + 10 + Sheet().ThiefHideInShadows[0]);
  EXPECT_NE(Sheet().ThiefHideInShadows[0], 0);

  Restart("Human", "Male", "Magic-User");
  Sheet().Intelligence.Percentile = 100;
  Reach(12, 8);  // all levels at once
  EXPECT_EQ(game->run.SpellListIndex, 28);
}

TEST_F(RecalculationTest, BarbariansBerserkersMonksAndBattleMagesHaveTheirOwn) {
  Restart("Human", "Male", "Barbarian");
  Sheet().BarbarianTracking = 20;
  EXPECT_EQ(Reach(4, 16).Barbarian, (std::array{92, 80, 90, 75}));
  EXPECT_EQ(Sheet().BarbarianTracking, 20);

  Restart("Human", "Male", "Berserker");
  RecomputeFromClasses(*game);
  EXPECT_EQ(Sheet().QuirkCounts[76] + Sheet().QuirkCounts[77], 2);

  Restart("Human", "Male", "Monk");
  Reach(9, 5);
  EXPECT_EQ(Sheet().ThiefClimbWalls[kLevelSum], 62);
  Sheet().ClassName = "Knight Errant/Monk";
  Reach(8, 3);
  EXPECT_EQ(Sheet().ThiefClimbWalls[kLevelSum], 66);

  for (const auto& [change, counted] : {std::pair{3, 16}, {-1, 15}}) {
    Restart("Human", "Male", "Battle Mage");
    Sheet().ConstitutionHPAdj = change;
    RecomputeFromClasses(*game);
    EXPECT_EQ(Sheet().HitPoints, counted + Sheet().LevelHitPoints[1][13]) << "no use of a high Constitution";
  }
}

TEST_F(RecalculationTest, AnHonorDieOfNoSidesAddsNothingToALevel) {
  RecomputeFromClasses(*game);
  Sheet().HonorDie = 0;
  game->run.HonorDieBonus = 0;
  Sheet().HonorCategory = "Average Honor d0";
  Reach(3, 2);
  EXPECT_LE(Sheet().LevelComelinessGain[3][2], 4);
  Sheet().HonorDie = 1;
  Sheet().ClassExperience[3] = 4001;
  platform.onTraining = [&] { game->run.HonorDieBonus = 2; };
  RecomputeFromClasses(*game);
  EXPECT_GE(Sheet().LevelComelinessGain[3][3], 4);
}

TEST_F(RecalculationTest, MovementFollowsRaceAndLostLegs) {
  const auto moves = [&](int base, int light, int heavy) {
    ComputeMovement(*game);
    EXPECT_EQ((std::array{Sheet().BaseMovement, Sheet().MovementLight, Sheet().MovementHeavy}),
              (std::array{base, light, heavy}));
  };
  moves(12, 9, 3);
  Sheet().QuirkCounts[37] = 1;
  moves(9, 7, 2);
  Sheet().QuirkCounts[38] = 1;
  moves(4, 3, 1);
  Sheet().SkillScores[198] = 5;
  moves(12, 9, 3);
  Sheet().SkillScores[199] = 5;
  moves(11, 8, 2);
  Sheet().RaceName = "Darkmen";
  Sheet().Gender = "Female";
  Sheet().BaseMovement = 12;
  moves(12, 9, 3);  // never found: it stays
}

TEST_F(RecalculationTest, TheLastRowsOfTheTableAddTheirGainsOnEveryRun) {
  Restart("Human", "Male", "Acrobat");
  Sheet().ClassExperience[116] = 1251;
  RecomputeFromClasses(*game);
  const Picture first = PictureOf(Sheet());
  RecomputeFromClasses(*game);
  EXPECT_EQ(PointsOf(Sheet().Dexterity) - PointsOf(first.Abilities[kDexterity]), Sheet().LevelDexterityGain[116][2]);
}

TEST_F(RecalculationTest, AnyNumbersOfAFileAreTaken) {
  constexpr int kMost = 2'147'483'647;
  std::uint32_t seed = 1;
  for (int round = 0; round < 20; ++round) {
    Restart("Human", "Male", round % 2 == 0 ? "Cleric/Thief/Monk" : "Standard Specialist: Illusionist/Illusionist");
    const auto any = [&] { return static_cast<int>(seed = seed * 1'664'525U + 1'013'904'223U); };
    for (int& level : Sheet().ClassLevels) level = any() % 100;
    for (auto& points : Sheet().LevelHitPoints) points.fill(any());
    for (int a = 0; a < kAbilityCount; ++a) {
      AbilityAt(Sheet(), a) = {any(), any()};
      for (auto& gains : LevelGainAt(Sheet(), a)) gains.fill(any());
    }
    for (std::size_t i = 0; i < kThiefAbilities; ++i) ThiefAbilityAt(Sheet(), i).fill(any());
    Sheet().HitDiceCount = Sheet().ConstitutionHPAdj = Sheet().TalentCounts[40] = kMost;
    Sheet().ClassProficiencySlots.fill(any());
    Sheet().SkillScores.fill(kMost);
    Sheet().Honor = any();
    Sheet().ClassExperience.fill(static_cast<float>(any() % 40'000));
    RecomputeFromClasses(*game);
    RecomputeFromClasses(*game);
    EXPECT_LE(Sheet().LevelText.Length(), 9U);
  }
}

}  // namespace
}  // namespace veld
