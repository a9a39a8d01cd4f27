#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "rules/class_grants.h"
#include "support/grant_names.h"
#include "rules/class_table.h"
#include "rules/proficiency_table.h"
#include "rules/skill_prices.h"
#include "rules/skill_table.h"
#include "rules/skills_tsv.h"
#include "rules/talent_prices.h"
#include "rules/talent_table.h"
#include "text/search.h"

namespace veld {
namespace {

const SkillRecord& Skill(std::string_view name) {
  return SkillTable().at(static_cast<std::size_t>(FindSkillRow(name)));
}

/// A character of plain arrays for the rules to look at.
struct Candidate {
  std::array<int, 200> levels{};
  std::array<int, 500> scores{};
  std::array<std::array<int, 50>, 50> members{};
  std::array<int, 150> talentFlags{};
  std::array<int, 50> talent2Flags{};
  std::array<int, 20> switches{};
  SkillBuyer buyer;

  Candidate() {
    switches.fill(1);
    buyer.RaceName = "Human";
    buyer.ClassName = "Fighter";
    buyer.PackageName = "None";
    buyer.ClassLevels = levels;
    buyer.SkillScores = scores;
    buyer.FamilyScores = members;
    buyer.TalentFlags = talentFlags;
    buyer.Talent2Flags = talent2Flags;
    buyer.RuleSwitches = switches;
  }
  Candidate(const Candidate&) = delete;
  Candidate& operator=(const Candidate&) = delete;

  Candidate& Level(int classRow) {
    levels.at(static_cast<std::size_t>(classRow)) = 1;
    return *this;
  }
  Candidate& Level(std::string_view className) { return Level(FindClassRow(className)); }
  Candidate& Holds(std::string_view skill, int mastery) {
    scores.at(static_cast<std::size_t>(FindSkillRow(skill))) = mastery;
    return *this;
  }
  float Price(std::string_view skill) const { return SkillPrice(FindSkillRow(skill), buyer); }
  float FamilyPrice(std::string_view family) const { return SkillFamilyPrice(FindSkillFamilyRow(family), buyer); }
  std::string Lacks(std::string_view skill) const { return LackingPrerequisite(FindSkillRow(skill), buyer); }
};

template <typename Table>
void ExpectEachNameFindsItsRow(const Table& table, int (*find)(std::string_view), std::size_t nameWidth) {
  for (std::size_t row = 0; row < table.size(); ++row) {
    const std::string_view name = table[row].Name;
    if (name.empty()) continue;
    EXPECT_EQ(find(name), static_cast<int>(row)) << name;
    EXPECT_EQ(find(TrimRight(name)), static_cast<int>(row)) << name;
    EXPECT_LT(name.size(), nameWidth) << name;
    EXPECT_LT(table[row].Book, 20) << name;
  }
  EXPECT_EQ(find(""), -1);
  EXPECT_EQ(find("   "), -1);
  EXPECT_EQ(find("No such thing"), -1);
}

TEST(Catalogues, EveryNameFindsItsOwnRowWithAndWithoutItsBlanks) {
  ExpectEachNameFindsItsRow(SkillTable(), FindSkillRow, 60);
  ExpectEachNameFindsItsRow(SkillTable2(), FindSkillFamilyRow, 60);
  ExpectEachNameFindsItsRow(TalentTable(), FindTalentRow, 52);
  ExpectEachNameFindsItsRow(TalentTable2(), FindTalentFamilyRow, 52);
  ExpectEachNameFindsItsRow(ProficiencyTable(), FindProficiencyRow, 52);
  ExpectEachNameFindsItsRow(ProficiencyTable2(), FindProficiencyAbilityRow, 52);
}

TEST(Catalogues, NamesAreSoughtInLongerTextsWithCaseAndBlanks) {
  EXPECT_EQ(FindSkillRow("SpellCraft"), -1);
  EXPECT_EQ(FindSkillRow("Spellcraft 45."), 2);
  EXPECT_EQ(FindSkillRow("Swimming: Dog Paddle 12."), FindSkillRow("Swimming: Dog Paddle"));
  EXPECT_EQ(FindProficiencyRow("Staff Sling - Limited"), FindProficiencyRow("Staff Sling"));
  EXPECT_EQ(FindTalentRow("Divine Smite"), -1);
  EXPECT_EQ(FindTalentFamilyRow("Divine Smite"), 7);
}

TEST(SkillTables, LinksNameRowsInUse) {
  for (const SkillRecord& skill : SkillTable()) {
    std::vector<int> links(skill.Prerequisites.begin(), skill.Prerequisites.end());
    links.insert(links.end(), skill.SuiteMembers.begin(), skill.SuiteMembers.end());
    for (const int link : links) {
      if (link == kNoSkillLink) continue;
      ASSERT_NE(LinkedSkill(link), nullptr) << skill.Name;
      EXPECT_FALSE(LinkedSkill(link)->Name.empty()) << skill.Name;
      EXPECT_NE(LinkedSkill(link), &skill) << skill.Name;
    }
    EXPECT_EQ(skill.Category == SkillCategory::None, skill.Name.empty());
    EXPECT_LE(skill.Category, SkillCategory::Barbarian);
    EXPECT_TRUE(skill.Category != SkillCategory::Suite || skill.SuiteMembers[0] != kNoSkillLink) << skill.Name;
  }
  EXPECT_EQ(LinkedSkill(kNoSkillLink), nullptr);
  EXPECT_EQ(LinkedSkill(-50), nullptr);
}

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts(1);
  for (const char c : text) c == separator ? parts.emplace_back() : parts.back() += c;
  return parts;
}

TEST(SkillsSheet, HasALineForEveryRowOfBothTables) {
  const std::vector<std::string> lines = Split(SkillsTsv(), '\n');
  ASSERT_EQ(lines.size(), 552u);  // head, 500 and 50 rows, nothing after the last line end
  EXPECT_EQ(lines.back(), "");
  for (std::size_t i = 0; i + 1 < lines.size(); ++i) EXPECT_EQ(Split(lines[i], '\t').size(), 10u) << lines[i];
  const auto line = [&](std::string_view name) { return lines.at(static_cast<std::size_t>(FindSkillRow(name)) + 1); };
  EXPECT_EQ(line("Pinch"), "Pinch\tADC pg 328\tDEX\tTasks: Sophisticated\t1\tADC\t0\t1d0\t0%\t");
}

TEST(SkillPrices, RulesWorkOnWhatEarlierOnesLeft) {
  Candidate myrmidon;
  EXPECT_EQ(myrmidon.Price("Armorer"), 10);
  myrmidon.buyer.PackageName = "Myrmidon";
  EXPECT_EQ(myrmidon.Price("Armorer"), 9);
  EXPECT_EQ(myrmidon.Price("Heraldry"), 1) << "never below 1 before the class rules";
  myrmidon.Level("Zealot of Pangrus (Pangrite)").Level("Zealot of Skraad (Toiler)");
  EXPECT_EQ(myrmidon.Price("Armorer"), 6);
  EXPECT_EQ(myrmidon.FamilyPrice("Reading/Writing"), 1);

  Candidate disciplined;
  disciplined.buyer.SelfDisciplinePrice = 3;
  EXPECT_EQ(disciplined.Price("Maintain Self-Discipline"), 3);
  disciplined.Level("Zealot of Pangrus (Pangrite)");
  EXPECT_EQ(disciplined.Price("Maintain Self-Discipline"), 2);

  Candidate falconer;
  falconer.buyer.PackageName = "Falconer";
  EXPECT_EQ(falconer.Price("Leatherworking"), 2);
}

TEST(SkillPrices, MagesStudyAtHalfAndFightAtDoublePriceUnlessTheyAreGnomeTitans) {
  Candidate mage;
  mage.buyer.ClassIsMage = 1;
  EXPECT_EQ(mage.Price("Alchemy"), 3.5F);
  EXPECT_EQ(mage.Price("Brawler"), 4);
  EXPECT_EQ(mage.FamilyPrice("Ancient History"), 0.5F);
  mage.buyer.RaceName = "Gnome Titan";
  EXPECT_EQ(mage.Price("Brawler"), 2);

  Candidate fighter;
  fighter.buyer.RaceName = "Gnome Titan";
  EXPECT_EQ(fighter.Price("Brawler"), 1);
  EXPECT_EQ(fighter.Price("Military: Battle Sense"), 4.5F);
  EXPECT_EQ(fighter.FamilyPrice("Military History"), 0.5F);
}

TEST(SkillPrices, ClassesHaveSkillsOfTheirOwn) {
  EXPECT_EQ(Candidate().Level("Sole Practitioner: Hypnotist").Price("Dragon Speak"), 5);
  EXPECT_EQ(Candidate().Level("Zealot of Luvia (Scale)").Price("Poker Face"), 1);
  EXPECT_EQ(Candidate().Level("Zealot of Luvia (Scale)").Holds("Poker Face", 20).Price("Poker Face"), 3);
  Candidate thief;
  EXPECT_EQ(thief.Price("Trailing"), 2);
  thief.buyer.ClassIsThief = 1;
  EXPECT_EQ(thief.Price("Trailing"), 1);
  EXPECT_EQ(SkillPrice(-1, thief.buyer) + SkillPrice(400, thief.buyer) + SkillPrice(500, thief.buyer), 0);
}

TEST(SkillPrerequisites, AskForFiftyInEachUntilTheSkillIsHeld) {
  Candidate student;
  EXPECT_NE(student.Holds("Swimming: Dog Paddle", 49).Lacks("Swimming"), "");
  EXPECT_EQ(student.Holds("Swimming: Dog Paddle", 50).Lacks("Swimming"), "");
  EXPECT_NE(student.Lacks("Speed Reading"), "");
  student.members[17][0] = 50;
  EXPECT_EQ(student.Lacks("Speed Reading"), "");
  EXPECT_NE(student.Lacks("Set Traps, Advanced"), "");
  student.buyer.ClassIsThief = 1;
  EXPECT_EQ(student.Lacks("Set Traps, Advanced"), "");
}

TEST(SkillBudgets, AreUsedUpFirstAndOnlyWhenThePurchaseCanBePaid) {
  float budget = 2;
  float points = 4;
  DrawOnBudget(7, budget, points);  // 6 do not pay 7
  EXPECT_EQ(budget, 2);
  DrawOnBudget(6, budget, points);
  EXPECT_EQ(budget, 0);
  EXPECT_EQ(points, 6);

  float cost = 5;
  float package = 3;
  PayFromPackage(cost, package, 1);
  EXPECT_EQ(cost, 5);
  PayFromPackage(cost, package, 2);
  EXPECT_EQ(cost, 2);
  EXPECT_EQ(package, 0);
}

TEST(SkillRolls, SomeClassesRollTheCourseDieAgain) {
  const auto rolls = [](const Candidate& who, std::string_view skill) {
    const auto more = SkillExtraRolls(FindSkillRow(skill), who.buyer);
    return std::pair{more.Rolls, more.Extra};
  };
  Candidate duellist;
  duellist.Level("Swashbuckler");
  EXPECT_EQ(rolls(duellist, "Berate"), (std::pair{1, 1}));
  EXPECT_EQ(rolls(duellist, "Flex Muscle"), (std::pair{0, 0}));
  duellist.Level("Bounty Hunter");
  EXPECT_EQ(rolls(duellist, "Berate"), (std::pair{2, 1}));
}

TEST(SkillMastery, StartsFromTheAbilitiesNamed) {
  const std::array<int, kAbilityCount> scores = {16, 13, 12, 11, 10, 9, 8};
  EXPECT_EQ(StartingMastery("(INT+WIS)/2", scores), 10);
  EXPECT_EQ(StartingMastery("(STR+DEX+INT)/3", scores), 13);
  EXPECT_EQ(StartingMastery(Skill("Jousting").MasteryAbilities, scores), 20) << "three abilities, halved";
  EXPECT_EQ(StartingMastery("", scores), 0);

  Candidate falconer;
  falconer.buyer.PackageName = "Falconer";
  EXPECT_EQ(RowSetByFalconer(FindSkillRow("Hunting"), 2, 1, falconer.buyer), -1);
  falconer.Holds("Identify Animal by Tracks", 50);
  EXPECT_EQ(RowSetByFalconer(FindSkillRow("Hunting"), 1, 1, falconer.buyer), -1);
}

TEST(SkillDemands, CountWhatPackagesAndClassesInsistOn) {
  Candidate warrior;
  EXPECT_EQ(UnmetSkillDemand(warrior.buyer), "");
  warrior.buyer.PackageName = "Wilderness Warrior";
  EXPECT_TRUE(UnmetSkillDemand(warrior.buyer).starts_with("The Wilderness Warrior Package requires"));
  warrior.Holds("Forestry", 1);
  warrior.members[19][3] = 12;
  warrior.members[19][4] = 12;
  EXPECT_EQ(UnmetSkillDemand(warrior.buyer), "");
  warrior.buyer.PackageName = "Amazon";
  EXPECT_TRUE(UnmetSkillDemand(warrior.buyer).starts_with("The Amazon Package requires")) << "a family counts once";
  warrior.Holds("Running", 1).Holds("Hunting", 1);
  EXPECT_EQ(UnmetSkillDemand(warrior.buyer), "");
}

TEST(ClassGrantLists, SetAMasteryBeforeThePurchasesThatAskForIt) {
  for (const ClassRecord& record : ClassTable()) {
    for (const bool trained : {false, true}) {
      std::set<int> needed;
      for (const GrantText& grants : ClassGrants(record.Name, trained)) {
        testing::ExpectNamesFound(grants);
        ForEachGrant(grants, [&](const Grant& grant) {
          const SkillMatch bought = grant.Kind == GrantKind::Buy ? FindSkill(grant.Name) : SkillMatch{};
          if (grant.Kind == GrantKind::Score) {
            EXPECT_FALSE(needed.contains(FindSkillRow(grant.Name))) << record.Name << ": " << grant.Name;
          }
          if (bought.Kind == SkillKind::Plain) {
            const auto& links = SkillTable()[static_cast<std::size_t>(bought.Row)].Prerequisites;
            needed.insert(links.begin(), links.end());
          }
        });
      }
    }
  }
  EXPECT_TRUE(ClassGrants("Thief", false).empty());
  EXPECT_TRUE(ClassGrants("", true).empty());
}

TEST(GrantNotation, ReadsEachKind) {
  std::vector<Grant> grants;
  ForEachGrant("Forage for Food x2 | pick F19+=25 | talent Dart Bonus=2 | talent Attack Bonus: Lance: light horse | "
               "quirk 13+=1 | Charisma%-=2d8-1 | Track Game>=50 | [first language=90] | mishap 6D x2 | ?Horse | "
               "[sword pick, shoddy] | choose item Survival, Desert; Hunting | Arcane Lore+1d6",
               [&](const Grant& grant) { grants.push_back(grant); });
  const auto is = [&](std::size_t at, GrantKind kind, std::string_view name, int row, GrantChange change, int plus) {
    const Grant& grant = grants.at(at);
    EXPECT_TRUE(grant.Kind == kind && grant.Name == name && grant.Row == row && grant.Change == change &&
                grant.Amount.Plus == plus)
        << at << ": " << grant.Name << " " << grant.Row << " " << grant.Amount.Plus;
  };
  is(0, GrantKind::Buy, "Forage for Food", -1, GrantChange::None, 0);
  EXPECT_EQ(grants[0].Times, 2);
  is(1, GrantKind::Pick, "", 19, GrantChange::Add, 25);
  is(2, GrantKind::Talent, "Dart Bonus", -1, GrantChange::Set, 2);
  is(3, GrantKind::NewTalent, "Attack Bonus: Lance: light horse", -1, GrantChange::None, 0);
  is(4, GrantKind::Quirk, "", 13, GrantChange::Add, 1);
  is(5, GrantKind::Field, "", static_cast<int>(GrantField::CharismaPercentile), GrantChange::Take, -1);
  EXPECT_EQ(grants[5].Amount.Sides, 8);
  is(6, GrantKind::Score, "Track Game", -1, GrantChange::Raise, 50);
  is(7, GrantKind::FirstLanguage, "", -1, GrantChange::Set, 90);
  is(8, GrantKind::Mishap, "6D", -1, GrantChange::None, 0);
  EXPECT_EQ(grants[8].Times, 2);
  EXPECT_TRUE(grants[9].FindsNoRow);
  is(10, GrantKind::WeaponPick, "", static_cast<int>(WeaponPick::SwordShoddy), GrantChange::None, 0);
  is(11, GrantKind::ChooseItem, "Survival, Desert; Hunting", -1, GrantChange::None, 0);
  is(12, GrantKind::AddDie, "Arcane Lore", -1, GrantChange::None, 0);
}

TEST(GrantNotation, ReadsNoSlip) {
  constexpr const char* kSlips[] = {
      "Honour-=2", "Honor-=", "Honor-=2x", "[sword  pick]", "[sword pick", "[mount=3]", "[first language]",
      "pick F50", "pick F1-9", "quirk 0", "quirk 700", "quirk Alcoholic", "mishap 6S", "new Horse", "| Tracking",
      "Tracking |", "Tracking || Hunting", "Tracking=5=", "Spell Tattooing+1d", "choose A;; B",
      "talent Attack Bonus: Dart=2", "?[mount]", "?quirk 5", "Tracking>50", "Endurance x0", "Charisma%+=0d8"};
  for (const char* slip : kSlips) {
    GrantReader reader(slip);
    EXPECT_ANY_THROW(while (!reader.AtEnd()) reader.Next()) << slip;
  }
}

TEST(TalentPrices, FollowPackageAndClass) {
  struct Case {
    const char* Package;
    const char* Race;
    const char* Class;
    const char* Talent;
    int Price;
  };
  constexpr Case kCases[] = {
      {"Militaristic Magic-User", "Human", "Fighter", "Ambidextrous", 10},
      {"Myrmidon", "Human", "Fighter", "Endurance", 3},
      {"Myrmidon", "High Elf", "Fighter", "Endurance", 5},
      {"None", "Human", "Sole Practitioner: Sniper", "Precise Targeting", 2},
      {"None", "Human", "Zealot of Shona (Shonite)", "Axe Bonus", 2},  // halves are dropped
      {"None", "Human", "Fighter", "No such talent", 0},
  };
  for (const Case& test : kCases) {
    Candidate who;
    who.buyer.PackageName = test.Package;
    who.buyer.RaceName = test.Race;
    who.buyer.ClassName = test.Class;
    EXPECT_EQ(TalentPrice(test.Talent, who.buyer), test.Price) << test.Package << test.Class << test.Talent;
  }
  Candidate discounted;
  discounted.buyer.CrossbowBonusDiscount = 3;
  EXPECT_EQ(TalentPrice("Crossbow Bonus", discounted.buyer), 3);
  discounted.buyer.RaceName = "Dwarf";
  EXPECT_EQ(TalentPrice("Crossbow Bonus", discounted.buyer), 5);
}

TEST(TalentOffers, AddWhatClassAndBackgroundOpenToTheRacesOwn) {
  Candidate keyholder;
  keyholder.buyer.ClassName = "Zealot of Hokalas (Keyholder)";
  keyholder.buyer.ClassIsCleric = 1;
  keyholder.talentFlags[static_cast<std::size_t>(FindTalentRow("Fast Cast"))] = 1;
  keyholder.talentFlags[static_cast<std::size_t>(FindTalentRow("Sixth Sense"))] = -1;
  const auto offers = [&](std::string_view name) {
    const auto further = FurtherTalents(keyholder.buyer);
    return std::count(further.begin(), further.end(), name);
  };
  const std::vector<std::string_view> ofRace = {"Fast Cast"};
  EXPECT_EQ(TalentsOpenToRace(keyholder.buyer), ofRace);
  EXPECT_EQ(TalentsOfRace(keyholder.buyer), std::vector<int>{60});
  EXPECT_EQ(offers("Fast Cast"), 0) << "the race's list has it";
  EXPECT_EQ(offers("Spell Razor"), 1);
  EXPECT_EQ(offers("Divine Smite"), 1);
  keyholder.switches[1] = 0;
  EXPECT_EQ(offers("Fast Cast"), 1);
  EXPECT_TRUE(TalentsOpenToRace(keyholder.buyer).empty());
  keyholder.switches[4] = 0;
  EXPECT_EQ(offers("Divine Smite"), 0);
  EXPECT_EQ(offers("Bow Bonus"), 0);
  keyholder.buyer.BowBonusDiscount = 5;
  EXPECT_EQ(offers("Bow Bonus"), 1);
}

}  // namespace
}  // namespace veld
