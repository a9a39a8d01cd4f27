#include "npc/npc.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <set>

#include "generation/sheet_formats.h"
#include "npc/npc_class_rows.h"
#include "npc/npc_names.h"
#include "rules/ability_effects.h"
#include "rules/class_grants.h"
#include "rules/class_table.h"
#include "rules/equipment_catalogue.h"
#include "rules/proficiency_table.h"
#include "rules/purchase_rules.h"
#include "rules/race_table.h"
#include "rules/skill_table.h"
#include "steps/finish/alignment.h"
#include "steps/finish/equipment_purchase.h"
#include "steps/spells/spell_dealing.h"
#include "steps/spells/spell_selection.h"
#include "store/character_file.h"
#include "store/sheet_accessors.h"
#include "support/game_test.h"
#include "text/search.h"

namespace veld {
namespace {

using testing::TestFolder;

std::size_t At(int number) {
  return static_cast<std::size_t>(number);
}

// ---- What the rules allow, read from the tables alone ----

/// The rows of the classes that a name holds.
std::vector<int> RowsOf(std::string_view className) {
  std::vector<int> rows;
  for (std::size_t from = 0; from <= className.size();) {
    const std::size_t to = std::min(className.find('/', from), className.size());
    const std::string_view name = className.substr(from, to - from);
    rows.push_back(FindClassRow(name == "Illusionist" ? "Standard Specialist: Illusionist" : name));
    from = to + 1;
  }
  return rows;
}

/// The highest level of any of the classes under a race's limits; 0 if it closes one.
int HighestUnder(const ClassNumbers& limits, int classRow) {
  const std::vector<int> rows = RowsOf(ClassAt(classRow).Name);
  int highest = 0;
  for (const int row : rows) {
    if (limits[At(row)] == 0 || limits[At(classRow)] == 0) return 0;
    highest = std::max(highest, limits[At(row)] + (rows.size() == 1 ? 2 : 0));
  }
  return highest;
}

int HighestLevel(int raceRow, int classRow) {
  return HighestUnder(RaceTable()[At(raceRow)].ClassLevelLimits, classRow);
}

/// The same for a half-blood who pays 30 BP to take after somebody.
int HighestLevelAfterOthers(int raceRow, int classRow) {
  int highest = 0;
  for (const std::string_view other : RaceTable()[At(raceRow)].TakesAfter) {
    const int row = FindTakenAfterRow(other);
    if (row >= 0) highest = std::max(highest, HighestLevel(row, classRow));
  }
  return highest;
}

bool IsAlignmentOpen(const std::vector<int>& classes, std::string_view alignment) {
  for (std::size_t i = 0; i < kAlignmentNames.size(); ++i) {
    if (TrimRight(kAlignmentNames[i]) != TrimRight(alignment)) continue;
    // A druid is neutral, whatever he is besides.
    const bool isDruids = i == 4 && std::ranges::find(classes, int{ClassRow::Druid}) != classes.end();
    return isDruids || std::ranges::all_of(classes, [&](int row) { return ClassAt(row).AlignmentFlags[i] != 0; });
  }
  return false;
}

std::string_view AlignmentFor(int classRow, std::uint32_t seed) {
  for (std::size_t i = 0; i < kAlignmentNames.size(); ++i) {
    const std::string_view name = TrimRight(kAlignmentNames[(seed + i) % kAlignmentNames.size()]);
    if (IsAlignmentOpen(RowsOf(ClassAt(classRow).Name), name)) return name;
  }
  return {};
}

bool MayWield(const std::vector<int>& classes, std::size_t weapon) {
  return std::ranges::any_of(classes, [&](int row) {
    const auto& list = ClassAt(row).WeaponAllowed;
    return list[weapon] != 0 || std::ranges::none_of(list, [](int flag) { return flag != 0; });
  });
}

constexpr int kShaman = 68;  ///< whose 6001st point lifts him from level 2 to 4

// ---- What a character is, read from his record alone ----

void ExpectClassesAndLevels(const CharacterSheet& sheet, const NpcWishes& wishes, std::vector<int>& classes) {
  int highest = 0;
  for (int row = 1; row <= kLastSingleClass; ++row) {
    const int level = sheet.ClassLevels[At(row)];
    if (level == 0) continue;
    classes.push_back(row);
    highest = std::max(highest, level);
    const auto& ladder = ClassAt(row).ExperienceForLevel;
    EXPECT_GE(sheet.ClassExperience[At(row)], static_cast<float>(ladder[At(level)]));
    EXPECT_LT(sheet.ClassExperience[At(row)], static_cast<float>(ladder[At(level + 1)]));
  }
  EXPECT_EQ(highest, wishes.level);
  std::vector<int> wished = RowsOf(wishes.className);
  std::ranges::sort(wished);
  EXPECT_EQ(classes, wished);
  EXPECT_GT(sheet.HitPoints, 0);
}

void ExpectAbilities(const CharacterSheet& sheet, int classRow) {
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const AbilityScore& score = AbilityAt(sheet, ability);
    const AbilityNumberRange& range = ClassAt(classRow).AbilityRange[At(ability)];
    const bool isFirstLevel = sheet.LevelText == "1";
    // 17/4 counts as 17.4 and is above 17.26; 17/15, to which levels may raise it, is not.
    EXPECT_GE(AbilityAsNumber(score), isFirstLevel ? range.Minimum : std::floor(range.Minimum)) << AbilityName(ability);
    EXPECT_TRUE(!isFirstLevel || AbilityAsNumber(score) <= range.Maximum) << AbilityName(ability);
  }
  EXPECT_GE(sheet.SocialClassIndex, ClassAt(classRow).MinSocialClass);
}

void ExpectArms(const Game& game, const std::vector<int>& classes, bool hasYouth) {
  const CharacterSheet& sheet = game.sheet;
  EXPECT_LE(sheet.ProficiencySlotsUsed, sheet.ProficiencySlots);
  bool isArmed = false;
  for (std::size_t row = 0; row < kProficiencyRows; ++row) {
    const std::string_view name = TrimRight(ProficiencyTable()[row].Name);
    const bool owns = std::ranges::any_of(game.EquipmentTable, [&](const EquipmentRecord& good) {
      return good.Quantity > 0 && EquipmentCategoryName(good.Category) == "Weapons" && good.Name == name;
    });
    isArmed = isArmed || owns;
    // A youth may have taught what the class does not.
    const bool hasLearned = !hasYouth && sheet.ProficiencyLevels[row] > 0;
    EXPECT_TRUE(MayWield(classes, row) || (!owns && !hasLearned)) << name;
  }
  EXPECT_TRUE(isArmed);
}

void ExpectGoods(const Game& game, const std::vector<int>& classes) {
  const CharacterSheet& sheet = game.sheet;
  float weight = 0;
  std::set<std::string_view> kinds;
  for (const EquipmentRecord& good : game.EquipmentTable) {
    if (good.Quantity <= 0) continue;
    kinds.insert(EquipmentCategoryName(good.Category));
    if (IsCarried(good)) weight += static_cast<float>(good.Quantity) * good.Weight;
  }
  const auto allowance = static_cast<float>(StrengthEffectOf(sheet.Strength).WeightAllowance);
  EXPECT_NEAR(weight, sheet.CarriedWeightLbs, 0.01);
  EXPECT_LT(weight, allowance) << "he goes without a burden";
  EXPECT_GE(PurseWorth(sheet), 0);
  EXPECT_GE(sheet.GoldPieces, 0);
  EXPECT_TRUE(kinds.contains("Clothing"));
  // Padding for 4 gold and 10 pounds is within reach of any fighter who has both to spare.
  const auto wears = [](int row) { return ClassAt(row).IsFighter != 0 && row != ClassRow::Monk; };
  const bool canWear = sheet.GoldPieces >= 10 && allowance - weight > 24;
  EXPECT_TRUE(!canWear || !std::ranges::all_of(classes, wears) || kinds.contains("Armor and Related Items"));
}

void ExpectSkills(const CharacterSheet& sheet) {
  const bool isThief = sheet.IsThiefClass != 0;
  std::set<int> granted;  // asked for nothing
  for (const GrantText& grants : ClassGrants(sheet.ClassName, sheet.UsesFighterBackground == 1)) {
    ForEachGrant(grants, [&](const Grant& grant) { granted.insert(FindSkillRow(grant.Name)); });
  }
  for (int row = 0; row < kSkillTableRows; ++row) {
    if (sheet.SkillPurchases[At(row)] <= 0 || granted.contains(row) || (row == SkillRow::AdvancedTraps && isThief))
      continue;
    for (const int link : SkillTable()[At(row)].Prerequisites) {
      if (link == kNoSkillLink) continue;
      const int mastery = link >= 0 ? sheet.SkillScores[At(link)] : sheet.SkillDetailCounts[At(-link)][0];
      EXPECT_GE(mastery, 50) << SkillTable()[At(row)].Name;
    }
  }
}

void ExpectLoadsBackEqual(const Game& game) {
  const std::string bytes = EncodeCharacter(game);
  const auto draft = std::make_unique<CharacterDraft>();
  ASSERT_EQ(DecodeCharacter(bytes, *draft), LoadResult::Loaded);
  EXPECT_TRUE(EncodeCharacter(draft->sheet, draft->goods) == bytes);
}

void ExpectSound(const Game& game, const NpcWishes& wishes, const NpcResult& result, int raceRow, int classRow) {
  const CharacterSheet& sheet = game.sheet;
  std::vector<int> classes;
  EXPECT_EQ(FindRaceRow(sheet.RaceName, sheet.Gender), raceRow);
  ExpectClassesAndLevels(sheet, wishes, classes);
  if (!wishes.hasYouth) ExpectAbilities(sheet, classRow);
  ExpectArms(game, classes, wishes.hasYouth);
  ExpectGoods(game, classes);
  ExpectSkills(sheet);
  EXPECT_TRUE(IsAlignmentOpen(classes, sheet.Alignment)) << sheet.Alignment.View();
  EXPECT_EQ(TrimRight(sheet.Alignment), wishes.alignment);
  EXPECT_LE(result.cashedBP, 3);
  EXPECT_TRUE(!sheet.CharacterName.Empty() && sheet.CharacterName != "name");
  // All cantrips that he may have; who gave up schools for his own may find too few.
  const bool gaveUpSchools = sheet.ClassName.View().starts_with("Sole") || sheet.ClassName.View().starts_with("Double");
  const bool hasGrown = wishes.hasYouth || wishes.level > 1;
  EXPECT_TRUE(hasGrown || gaveUpSchools || KnownCantrips(game) == CantripsToChoose(game)) << KnownCantrips(game);
  EXPECT_TRUE(game.isFinished);
  ExpectLoadsBackEqual(game);
}

class NpcTest : public testing::GameTest<> {
 protected:
  NpcTest() { testing::LoadShippedCatalogues(*game); }

  NpcResult Make(const NpcWishes& wishes) { return maker_.Make(*game, wishes); }

  TestFolder folder;
  NpcMaker maker_;
};

/// VELD_NPCS=10000 makes more of them.
int NpcsToMake() {
  const char* const asked = std::getenv("VELD_NPCS");
  return asked ? std::atoi(asked) : 1000;
}

TEST_F(NpcTest, WhomTheRulesAllowComesOutSoundAndNobodyElseDoes) {
  constexpr int kStride = 3571;  // prime to the pairs, so that all of them have their turn
  constexpr int kPairs = kRacesFilled * kClassRows;
  int made = 0;
  int refused = 0;
  std::set<int> races;
  std::set<int> classes;
  for (int turn = 0; made < NpcsToMake() && !HasFailure(); ++turn) {
    const int raceRow = turn * kStride % kPairs % kRacesFilled;
    const int classRow = turn * kStride % kPairs / kRacesFilled;
    const RaceRecord& race = RaceTable()[At(raceRow)];
    if (ClassAt(classRow).Name.empty()) continue;
    NpcWishes wishes{.race = std::string(race.Name), .gender = std::string(race.Gender)};
    wishes.className = ClassAt(classRow).Name;
    wishes.seed = static_cast<std::uint32_t>(turn);
    wishes.hasYouth = turn % 5 == 0;
    const int ownHighest = HighestLevel(raceRow, classRow);
    const int othersHighest = HighestLevelAfterOthers(raceRow, classRow);
    const int highest = std::min(ownHighest > 0 ? ownHighest : othersHighest, kHighestNpcLevel);
    wishes.level = turn % 2 == 0 ? 1 : std::clamp(turn % kHighestNpcLevel + 1, 1, std::max(highest, 1));
    if (classRow == kShaman && wishes.level == 3) wishes.level = 2;
    wishes.alignment = AlignmentFor(classRow, wishes.seed);
    SCOPED_TRACE(wishes.race + ' ' + wishes.gender + ' ' + wishes.className + ' ' + std::to_string(wishes.level) +
                 " seed " + std::to_string(turn));
    const NpcResult result = Make(wishes);
    EXPECT_TRUE(result.isMade || ownHighest == 0) << result.refusal;
    EXPECT_TRUE(!result.isMade || highest > 0);
    // What the race of another opens may still want more than any dice and BP give.
    const bool needsMore = result.refusal.starts_with("No roll of the abilities brings a ");
    EXPECT_TRUE(result.isMade || result.refusal == "Closed to the race " + wishes.race + "." ||
                (highest > 0 && needsMore))
        << result.refusal;
    EXPECT_EQ(result.refusal.empty(), result.isMade);
    if (!result.isMade) {
      ++refused;
      continue;
    }
    ++made;
    races.insert(raceRow);
    classes.insert(classRow);
    ExpectSound(*game, wishes, result, raceRow, classRow);
    if (made % 10 != 0) continue;
    for (const SheetFormat& format : kSheetFormats) EXPECT_FALSE(format.Write(*game).empty()) << format.Name;
  }
  std::cout << made << " made, " << refused << " refused, " << races.size() << " races, " << classes.size()
            << " classes\n";
  EXPECT_EQ(races.size(), At(kRacesFilled));
  EXPECT_EQ(std::filesystem::begin(std::filesystem::directory_iterator(folder.Path())),
            std::filesystem::end(std::filesystem::directory_iterator{}))
      << "nothing is written";
}

TEST_F(NpcTest, TheSameWishesAndSeedMakeTheSameCharacter) {
  const NpcWishes kOpen[] = {
      {}, {.className = "Cleric"}, {.race = "Half-elf", .level = 4}, {.hasYouth = true}, {.books = RuleSwitchArray{1}}};
  for (NpcWishes wishes : kOpen) {
    std::set<std::string> characters;
    for (wishes.seed = 1; wishes.seed <= 5; ++wishes.seed) {
      ASSERT_TRUE(Make(wishes).isMade);
      const std::string bytes = EncodeCharacter(*game);
      characters.insert(bytes);
      ASSERT_TRUE(MakeNpc(*game, wishes).isMade);
      EXPECT_TRUE(EncodeCharacter(*game) == bytes);
    }
    EXPECT_EQ(characters.size(), 5U);
  }
}

TEST_F(NpcTest, AYouthIsPlayedWhereItIsWished) {
  for (const std::string_view className : {"Fighter", "Magic-User", "Cleric"}) {
    for (std::uint32_t seed = 1; seed <= 12; ++seed) {
      NpcWishes wishes{.race = "Human", .gender = "Male", .hasYouth = true};
      wishes.className = className;
      wishes.alignment = "Neutral";
      wishes.seed = seed;
      const NpcResult result = Make(wishes);
      ASSERT_TRUE(result.isMade) << result.refusal;
      EXPECT_EQ(sheet.UsesFighterBackground + sheet.UsesMageBackground + sheet.UsesClericBackground, 1);
      ExpectSound(*game, wishes, result, FindRaceRow("Human", "Male"), FindClassRow(className));
    }
  }
}

TEST_F(NpcTest, ARefusalTellsWhichWishCantBeMetAndChangesNothing) {
  ASSERT_TRUE(Make({.name = "Tolmar"}).isMade);
  const std::string before = EncodeCharacter(*game);
  const std::pair<NpcWishes, const char*> kRefused[] = {
      {{.race = "Dwarf", .className = "Paladin"}, "Closed to the race Dwarf."},
      {{.race = "Orc"}, "There is no race Orc."},
      {{.className = "Bandit"}, "There is no class Bandit."},
      {{.gender = "Both"}, "There is no gender Both."},
      {{.className = "Paladin", .alignment = "chaotic-evil"},
       "The alignment chaotic-evil is closed to the class Paladin."},
      {{.className = "Thief", .alignment = "Naughty"}, "There is no alignment Naughty."},
      {{.className = "Shaman", .level = 3}, "The class Shaman has no level 3."},
      {{.name = "Name "}, "Nobody can be called that."},
      {{.level = 21}, "The level may be 1 to 20."},
      {{.race = "Halfling, Stout", .className = "Cleric", .level = 11},
       "The class Cleric ends at level 10 for the race Halfling, Stout."},
      {{.className = "Samurai", .books = RuleSwitchArray{1}}, "The Warmonger's Almanac is switched off."},
  };
  for (const auto& [wishes, refusal] : kRefused) {
    const NpcResult result = Make(wishes);
    EXPECT_FALSE(result.isMade);
    EXPECT_EQ(result.refusal, refusal);
  }
  EXPECT_TRUE(EncodeCharacter(*game) == before);
  EXPECT_TRUE(NpcLine(*game).starts_with("Tolmar, ")) << NpcLine(*game);
}

TEST(NpcRowsTest, TheBoxesOfferWhatARaceCanHave) {
  for (int raceRow = 0; raceRow < kRacesFilled; ++raceRow) {
    const RaceRecord& race = RaceTable()[At(raceRow)];
    const std::vector<std::string> offered = NpcClasses(kDefaultRuleSwitches, race.Name, race.Gender);
    for (int classRow = 0; classRow < kClassRows; ++classRow) {
      const std::string_view name = ClassAt(classRow).Name;
      const bool isOpen =
          !name.empty() && HighestLevel(raceRow, classRow) + HighestLevelAfterOthers(raceRow, classRow) > 0;
      EXPECT_EQ(std::ranges::count(offered, name), isOpen ? 1 : 0) << RaceListText(raceRow) << name;
    }
  }
  EXPECT_EQ(NpcRaces(kDefaultRuleSwitches).size(), At(kRacesFilled / 2));
  EXPECT_EQ(NpcRaces(RuleSwitchArray{1}).size(), At(kRacesFilled / 2 - 1)) << "without the darkmen";
}

TEST(NpcRowsTest, EveryClassHasItsRowAndEveryNameIsKnown) {
  testing::ScriptedPlatform player;
  const auto shop = testing::QuietGame(player);
  testing::LoadShippedCatalogues(*shop);
  const auto expectEach = [](std::string_view list, std::string_view of, auto isKnown) {
    ForEachName(list, [&](std::string_view name) { EXPECT_TRUE(isKnown(name)) << of << ": " << name; });
  };
  const auto isSold = [&](std::string_view name) {
    return std::ranges::any_of(shop->EquipmentTable, [&](const EquipmentRecord& good) { return good.Name == name; });
  };
  const auto isArmor = [&](std::string_view name) { return name == "none" || isSold(name); };
  const auto isWeapon = [&](std::string_view name) {
    return isSold(name) && TrimRight(ProficiencyTable()[At(FindProficiencyRow(name))].Name) == name;
  };
  const auto isStyle = [](std::string_view name) { return FindProficiencyRow(name) >= 0; };
  const auto isSkill = [](std::string_view name) { return FindSkill(name).Kind != SkillKind::None; };
  const auto isTalent = [](std::string_view name) {
    return FindTalentRow(name) >= 0 || FindTalentFamilyRow(name) >= 0;
  };
  const auto isAbility = [](std::string_view name) { return std::ranges::count(kAbilityShortNames, name) == 1; };
  for (const NpcWayOfLife& way : NpcWaysOfLife()) {
    expectEach(way.Armor, way.Name, isArmor);
    expectEach(way.Shields, way.Name, isSold);
    expectEach(way.Skills, way.Name, isSkill);
    expectEach(way.Talents, way.Name, isTalent);
    expectEach(way.Goods, way.Name, isSold);
    expectEach(way.Packs, way.Name, isSold);
  }
  ASSERT_EQ(NpcClassRows().size(), At(kLastSingleClass));
  for (int row = 1; row <= kLastSingleClass; ++row) {
    const NpcClassRow& wants = NpcClassRows()[At(row - 1)];
    EXPECT_EQ(wants.Class, ClassAt(row).Name);
    EXPECT_EQ(std::ranges::count(NpcWaysOfLife(), wants.WayOfLife, &NpcWayOfLife::Name), 1) << wants.WayOfLife;
    expectEach(wants.Weapons, wants.Class, isWeapon);
    expectEach(wants.Armor, wants.Class, isArmor);
    expectEach(wants.Skills, wants.Class, isSkill);
    expectEach(wants.Talents, wants.Class, isTalent);
    expectEach(wants.Styles, wants.Class, isStyle);
    expectEach(wants.Goods, wants.Class, isSold);
    const NpcWants all = NpcWantsOf(wants.Class);
    EXPECT_EQ(all.Abilities.size(), At(kAbilityCount));
    EXPECT_TRUE(std::ranges::all_of(all.Abilities, isAbility));
  }
  for (int row = 0; row < kRacesFilled; ++row) {
    const NpcNames& names = NamesOfRace(RaceTable()[At(row)].Name, false);
    for (const auto& list : {names.Men, names.Women}) {
      EXPECT_GE(std::set<std::string_view>(list.begin(), list.end()).size(), 60U) << RaceListText(row);
    }
  }
}

}  // namespace
}  // namespace veld
