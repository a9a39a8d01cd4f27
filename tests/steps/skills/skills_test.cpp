#include "steps/skills/skills.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "rules/class_table.h"
#include "rules/proficiency_table.h"
#include "rules/race_table.h"
#include "rules/talent_table.h"
#include "steps/skills/buy_skill.h"
#include "steps/skills/free_skills.h"
#include "steps/skills/pick_dialogs.h"
#include "steps/skills/skill_lists.h"
#include "steps/skills/skill_setup.h"
#include "steps/skills/skill_target.h"
#include "steps/skills/talent_purchase.h"
#include "support/game_test.h"
#include "support/random_player.h"

namespace veld {
namespace {

constexpr int kDieResult = 4;
constexpr int kAbilityScore = 12;

/// A player who throws 4 with every die and answers the side dialogs: `picks` chooses a line in each pick dialog ("":
/// the close box), `names` answers each question for a name.
class SkillsTest : public testing::GameTest<testing::DicePlayer> {
 protected:
  SkillsTest() {
    game->sheet.HonorDie = 1;
    game->sheet.LanguageSlots = 3;
    game->run.BuildingPoints = 50;
    for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(game->sheet, ability) = {kAbilityScore, 7};
    player.thrower = [this](int sides, int) {
      thrown.push_back(sides);
      return kDieResult;
    };
    player.dialog = [this](Form& form) { Play(form); };
  }

  void Play(Form& form) {
    if (form.Name() == "GetName") {
      asked.push_back(form.Text(10));
      form.Type(3000, Next(names));
      form.Press(1);
    } else if (form.Name() == "FreeRemote" || form.Name() == "FreeWeapon") {
      listed = form.Items(3021);
      EXPECT_EQ(form.Selection(3021), 0);
      const std::string pick = Next(picks);
      if (pick.empty()) return form.PressCloseBox();
      testing::ChooseText(form, 3021, pick);
      form.Press(1);
    } else if (form.Name() == "BardInstrument") {
      form.Press(4002);
    } else if (form.Name() == "Skills" && play) {
      play(form);
    }
  }

  static std::string Next(std::deque<std::string>& answers) {
    if (answers.empty()) return {};
    std::string answer = answers.front();
    answers.pop_front();
    return answer;
  }

  int& Score(std::string_view name) { return game->sheet.SkillScores[static_cast<std::size_t>(FindSkillRow(name))]; }
  int& Member(int family, int slot) {
    return game->sheet.SkillDetailCounts[static_cast<std::size_t>(family)][static_cast<std::size_t>(slot)];
  }
  std::string MemberName(int family, std::size_t slot) {
    return std::string(game->sheet.SkillDetailNames[static_cast<std::size_t>(family)][slot].View());
  }
  bool Buy(std::string_view name, float price) { return BuySkill(*game, {.Name = std::string(name), .Price = price}); }
  float Price(std::string_view name) { return PriceOf(*game, FindTarget(game->sheet, name)); }

  /// The refusal is foretold, told, and leaves everything as it stood.
  void ExpectRefused(std::string_view name, float price, const std::string& text) {
    EXPECT_EQ(SkillRefusal(*game, {.Name = std::string(name), .Price = price}), text);
    const auto scores = game->sheet.SkillScores;
    const auto members = game->sheet.SkillDetailCounts;
    const float bp = game->run.BuildingPoints;
    player.messages.clear();
    EXPECT_FALSE(Buy(name, price)) << name;
    EXPECT_EQ(player.messages, (std::vector<std::string>{"VELD: " + text}));
    EXPECT_EQ(game->run.BuildingPoints, bp);
    EXPECT_TRUE(scores == game->sheet.SkillScores && members == game->sheet.SkillDetailCounts);
  }

  std::deque<std::string> names;
  std::deque<std::string> picks;
  std::vector<std::string> listed;  ///< in the last pick dialog
  std::vector<std::string> asked;
  std::vector<int> thrown;
  std::function<void(Form&)> play;  ///< plays the Skills dialog
};

TEST_F(SkillsTest, AbilitiesCountOnceAndEachStepAddsItsDice) {
  EXPECT_TRUE(Buy("Astrology", 1));
  EXPECT_EQ(Score("Astrology"), kAbilityScore + kDieResult + 1) << "an Honor die of 1 adds 1";
  EXPECT_TRUE(Buy("Astrology", 1));
  EXPECT_EQ(Score("Astrology"), kAbilityScore + 2 * (kDieResult + 1));
  EXPECT_EQ(game->sheet.SkillPurchases[14], 2);
  game->sheet.HonorDie = 10;
  thrown.clear();
  GrantSkillAtNoCost(*game, "Botany");
  EXPECT_EQ(Score("Botany"), kAbilityScore + 2 * kDieResult);
  EXPECT_EQ(thrown, (std::vector<int>{8, 10}));
}

TEST_F(SkillsTest, ASkillWithoutADieIsMasteredAtOnceAndMundaneTasksNeverCount) {
  for (const char* skill : {"Armor Maintenance", "Armor Maintenance", "Dig Hasty Grave"}) Buy(skill, 1);
  EXPECT_EQ(Score("Armor Maintenance") + Score("Dig Hasty Grave"), 200);
  EXPECT_EQ(game->sheet.SkillPurchases[42], 0);
  EXPECT_EQ(game->sheet.SkillPurchases[96], 1);
}

TEST_F(SkillsTest, RefusalsAreForetoldAndLeaveEverythingAsItStood) {
  ExpectRefused("Pinch", 1, "The Skill: Pinch is restricted to Thieves");
  ExpectRefused("Dragon Speak", 10, "The Skill Dragon Speak requires a minimum of a 19 Intelligence and 15 Charisma");
  ExpectRefused("Hunting", 1, "Skill: Hunting requires a 50 or greater skill mastery in Identify Animal by Tracks");
  ExpectRefused("Riding, Airborne", 2,
                "Skill: Riding, Airborne requires a 50 or greater skill mastery in Riding, Land-based");
  ExpectRefused("Mortal Combat", 51, "The Skill: Mortal Combat requires 51 BP to purchase, you only have 50 BP.");
  game->sheet.LanguagesKnown = 3;
  EXPECT_TRUE(Buy("Evil Speak", 5)) << "one language past the slots is let through";
  ExpectRefused("Arcane Speak", 2,
                "You have no available language slots left for this character. You have used 4 out of 3 slots");
  EXPECT_TRUE(Buy("Evil Speak", 5)) << "a language known needs no slot";
  Score("Hunting") = 1;
  EXPECT_TRUE(Buy("Hunting", 1)) << "prerequisites are asked for only before a skill is held";
}

TEST_F(SkillsTest, BudgetsArePaidFromFirst) {
  game->run.AcademicBP = 3;
  game->run.ArcaneBP = 9;
  Buy("Alchemy", 7);
  Buy("Arcane Lore", 5);
  EXPECT_EQ(game->run.AcademicBP, 0);
  EXPECT_EQ(game->run.ArcaneBP, 4);
  EXPECT_EQ(game->run.BuildingPoints, 46);
  game->sheet.PackageName = "Scholar";
  game->run.PackageBP = 20;
  Buy("Alchemy", 7);
  GrantSkillAtNoCost(*game, "Arcane Lore");
  EXPECT_EQ(game->run.ArcaneBP, 4) << "a grant draws on nothing";
  Buy("Culture", 1);
  EXPECT_FALSE(Buy("SpellCraft", 1));
  EXPECT_EQ(game->run.PackageBP, 13) << "no name and no such skill buy nothing and draw on nothing";
  EXPECT_TRUE(player.messages.empty());

  game->run.LanguageBP = 8;
  game->sheet.LanguagesKnown = 3;
  Buy("Evil Speak", 5);
  EXPECT_EQ(game->run.LanguageBP, 8) << "without a free slot the budget is closed";
  EXPECT_EQ(game->run.BuildingPoints, 41);
  Buy("Evil Speak", 5);
  EXPECT_EQ(game->run.LanguageBP, 3) << "a language known needs none";
  EXPECT_FALSE(Buy("Arcane Speak", 2));
  EXPECT_EQ(game->run.PackageBP, 11) << "what a budget gave before a later refusal is gone";
}

TEST_F(SkillsTest, ANewMemberIsNamedAndTakesTheFirstFreeSlot) {
  game->sheet.SkillDetailNames[17][0] = "Reading/Writing: Dwarven";
  names = {"Elven", "Orc"};
  EXPECT_TRUE(Buy("Language, Modern", 1));
  EXPECT_EQ(asked.front(), "Choose the name of the Item for your Language, Modern Skill.");
  EXPECT_EQ(MemberName(7, 1), "Language, Modern: Elven") << "the slot must be free among the writings too";
  EXPECT_EQ(MemberName(17, 1), "Reading/Writing: Elven");
  EXPECT_EQ(Member(7, 1), kAbilityScore + kDieResult + 1);
  EXPECT_EQ(Member(17, 1), 0) << "the writing is named, not held";
  EXPECT_EQ(game->sheet.LanguagesKnown, 1);
  EXPECT_EQ(game->run.LastSkillDetail, 1);
  EXPECT_TRUE(Buy("Language, Modern", 1));
  EXPECT_EQ(MemberName(7, 2), "Language, Modern: Orc");
  EXPECT_TRUE(Buy("Language, Modern: Elven", 1));
  EXPECT_EQ(game->run.LastSkillDetail, 1) << "an improved member leaves its own slot";
  EXPECT_EQ(Member(7, 1), kAbilityScore + 2 * (kDieResult + 1));
  EXPECT_EQ(game->sheet.LanguagesKnown, 2);

  names = {"Singing", "   "};
  Buy("Artistic Ability", 1);
  Buy("Artistic Ability: Singing", 1);
  EXPECT_EQ(Score("Singing"), 0) << "a member is not taken for the plain skill in its name";
  EXPECT_EQ(Member(13, 0), kAbilityScore + 2 * (kDieResult + 1));
  const float bp = game->run.BuildingPoints;
  EXPECT_FALSE(Buy("Artistic Ability", 1)) << "blanks are no name";
  EXPECT_EQ(game->run.LastSkillDetail, -1);
  EXPECT_EQ(game->run.BuildingPoints, bp);
  Member(13, 0) = 0;
  game->sheet.SkillDetailCounts[2].fill(1);
  asked.clear();
  ExpectRefused("Culture", 1, "There is no room for another skill of the kind: Culture");
  EXPECT_TRUE(asked.empty());
}

TEST_F(SkillsTest, PurchasesInsideASuiteLeaveItsOwnAlone) {
  game->run.BuildingPoints = 20.5F;
  NameMember(game->sheet, 4, 0, "Town");
  Member(4, 0) = 20;
  // Historian: an ancient history that is new, the local history held, and no reading.
  picks = {"Ancient History", "Local History: Town", ""};
  names = {"Dragons"};
  EXPECT_TRUE(Buy("Historian Skill Suite", 4));
  EXPECT_EQ(listed, std::vector<std::string>{"Reading/Writing"});
  const int own = kAbilityScore + kDieResult + 1;
  const int gain = kDieResult + 1;
  EXPECT_EQ(Score("Historian Skill Suite"), own);
  EXPECT_EQ(Score("History: World"), own);
  EXPECT_EQ(MemberName(1, 0), "Ancient History: Dragons");
  EXPECT_EQ(Member(1, 0), own + gain) << "bought for nothing, then raised with the suite";
  EXPECT_EQ(Member(4, 0), 20 + 2 * gain);
  EXPECT_EQ(game->run.BuildingPoints, 16) << "the grants inside cost the fraction";
  EXPECT_EQ(game->sheet.SkillGroupTable[2][2], -1);
  NameMember(game->sheet, 17, 0, "Runes");
  Member(17, 0) = 10;
  Buy("Historian Skill Suite", 4);
  EXPECT_EQ(Member(1, 0), own + 2 * gain);
  EXPECT_EQ(Member(17, 0), 10) << "a dropped pick gains nothing later";
}

TEST_F(SkillsTest, SomeClassesRollMoreDice) {
  game->sheet.ClassLevels[77] = 1;
  Buy("Liar, Skilled", 3);
  EXPECT_EQ(Score("Liar, Skilled"), kAbilityScore + 2 * kDieResult + 2) << "the Honor die doubles with it";
  game->sheet.ClassLevels[74] = 1;
  Buy("Astrology", 1);
  EXPECT_EQ(Score("Astrology"), kAbilityScore + 3 * kDieResult + 1);

  game->run.AmazonDoubleRoll = 1;
  player.ExpectQuestion("Amazon Package Bonus: Running is a skill that an amazon", Answer::No);
  Buy("Running", 1);
  EXPECT_EQ(Score("Running"), kAbilityScore + kDieResult + 1);
  player.ExpectQuestion("Riding, Land-based", Answer::Yes);
  names = {"Horse"};
  Buy("Riding, Land-based", 1);
  EXPECT_EQ(Member(19, 0), kAbilityScore + 2 * (kDieResult + 1));
  EXPECT_EQ(game->run.AmazonDoubleRoll, 0);
  Buy("Running", 1);  // asks no more
}

TEST_F(SkillsTest, ASamuraiTakesOneStyleCheaper) {
  game->run.MartialStyleDiscount = 1;
  game->run.BuildingPoints = 4;
  EXPECT_EQ(SkillRefusal(*game, {.Name = "Gung-fu", .Price = 9}), "");
  player.ExpectQuestion("will Gung-fu be the one?", Answer::No);
  EXPECT_FALSE(Buy("Gung-fu", 9));
  EXPECT_TRUE(player.Showed("The Skill: Gung-fu requires 9 BP to purchase, you only have 4 BP."));
  player.ExpectQuestion("will Gung-fu be the one?", Answer::Yes);
  EXPECT_TRUE(Buy("Gung-fu", 9));
  EXPECT_EQ(game->run.BuildingPoints, 0);
  EXPECT_EQ(game->run.MartialStyleDiscount, 0);
}

TEST_F(SkillsTest, PackagesChangeWhatAPurchaseSets) {
  game->sheet.PackageName = "Falconer";
  EXPECT_FALSE(Buy("Hunting", 1));
  EXPECT_EQ(Score("Interrogation"), 50) << "the wrong row, as ever";
  game->sheet.PackageName = "Trailblazer";
  Buy("Mapless Travel", 3);
  EXPECT_EQ(Score("Mapless Travel"), kAbilityScore + 50 + kDieResult + 1);
}

TEST_F(SkillsTest, TheScholarsAdjustmentReachesTheDie) {
  game->RuleSwitches[kRollYourOwnDice] = 0;
  const auto masteryFrom = [&](std::uint32_t seed, const char* package, const char* skill) {
    game->sheet.PackageName = package;
    game->dice.RandomState = seed;
    Score(skill) = 0;
    Form form(FormTemplate{"None", "", {}, ""});
    ShowSkillCost(*game, form, skill);
    Buy(skill, 0);
    return Score(skill);
  };
  for (std::uint32_t seed = 1; seed < 9; ++seed) {
    EXPECT_GT(masteryFrom(seed, "Scholar", "Botany"), masteryFrom(seed, "None", "Botany"));
    EXPECT_LT(masteryFrom(seed, "Scholar", "Berate"), masteryFrom(seed, "None", "Berate"));
  }
}

TEST_F(SkillsTest, FreePicksAndBonusPoints) {
  TakeAsFree(*game, "Botany");
  EXPECT_TRUE(player.Showed("You do not have any more free skills to allocate"));
  game->run.FreeSkillPicks = 2;
  EXPECT_FALSE(TakeAsFree(*game, "Brawler"));
  EXPECT_TRUE(player.Showed("Free SG skills are limited to Arcane, Academia and Languages"));
  EXPECT_TRUE(TakeAsFree(*game, "Botany"));
  game->sheet.LanguagesKnown = 3;
  EXPECT_FALSE(TakeAsFree(*game, "Evil Speak")) << "a pick lets no language past the slots";
  EXPECT_EQ(game->run.FreeSkillPicks, 1);
  game->run.FreeSkillPicks = 0;
  game->run.VeteranFreeSkills = 1;
  EXPECT_FALSE(TakeAsFree(*game, "Divine Lore")) << "prerequisites hold";
  EXPECT_TRUE(TakeAsFree(*game, "Groin Punch"));
  EXPECT_EQ(game->run.VeteranFreeSkills, 0);

  ApplyBonusPoints(*game, "Botany 17.");
  EXPECT_TRUE(player.Showed("You do not have any more bonus skill points to allocate"));
  game->run.BonusSkillPoints = 1;
  game->run.PackageBonusPoints = 2;
  Score("Singing") = 9;
  NameMember(game->sheet, 13, 0, "Singing");
  Member(13, 0) = 9;
  for (const char* line : {"", "B", "Nothing held 3."}) ApplyBonusPoints(*game, line);
  ApplyBonusPoints(*game, "Artistic Ability: Singing 9.");
  EXPECT_EQ(Member(13, 0), 11) << "a point of each kind in one press";
  ApplyBonusPoints(*game, "Singing 9.");
  EXPECT_EQ(Score("Singing"), 10);
  EXPECT_EQ(game->run.BonusSkillPoints + game->run.PackageBonusPoints, 0);
}

TEST_F(SkillsTest, SetupPaysTheHonorDieOfYouthAndGrantsWhatTheClassBrings) {
  game->run.BuildingPoints = 7.75F;
  game->sheet.SkillPurchases[251] = 2;  // first aid
  Score("First Aid Skill Suite") = 20;
  game->sheet.SkillDetailPurchases[19][3] = 1;
  Member(19, 3) = 30;
  game->sheet.ClassName = "Ranger";
  game->sheet.RaceName = "Half-ogre";
  game->sheet.Gender = "Male";
  RunSkillSetup(*game);
  const int denseSkin = game->sheet.TalentCounts[static_cast<std::size_t>(FindTalentRow("Dense Skin"))];
  EXPECT_EQ(denseSkin, kTalentOfRace) << "whether or not the talents are looked at";
  EXPECT_EQ(Score("First Aid Skill Suite"), 22);
  EXPECT_EQ(Score("First Aid: Sew Wounds"), 2);
  EXPECT_EQ(Member(19, 3), 31);
  EXPECT_EQ(Score("Tracking"), kAbilityScore + kDieResult + 1);
  EXPECT_EQ(game->run.BuildingPoints, 7);
}

TEST_F(SkillsTest, SetupOfTheKnightErrantAndTheHolyKnight) {
  game->sheet.ClassName = "Knight Errant";
  game->sheet.RaceName = "Human";
  const auto blindFighting = static_cast<std::size_t>(FindTalentRow("Blind Fighting"));
  picks = {"Riding, Land-based", "Riding, Land-based: Horse"};
  names = {"Horse"};
  RunSkillSetup(*game);
  EXPECT_EQ(Score("Armorer"), kAbilityScore + kDieResult + 1) << "its prerequisites were set first";
  EXPECT_EQ(game->sheet.TalentCounts[blindFighting], 1);
  game->sheet.TalentCounts[blindFighting] = -1;
  game->sheet.ClassName = "Holy Knight";
  RunSkillSetup(*game);
  EXPECT_EQ(Member(19, 0), 50);
  game->sheet.ClassName = "Zealot of Set (Cobra)";
  RunSkillSetup(*game);
  EXPECT_EQ(game->sheet.TalentCounts[blindFighting], -1) << "the race has it already";
}

TEST_F(SkillsTest, SetupOfTheBarbarianTheBardAndTheSoldier) {
  game->sheet.ClassName = "Barbarian";
  game->sheet.ClassLevels[4] = 1;
  game->sheet.UsesFighterBackground = 1;
  picks = {"Survival, Winter", ""};
  RunSkillSetup(*game);
  EXPECT_EQ(Score("Survival, Winter"), kAbilityScore + kDieResult + 1);
  EXPECT_EQ(game->sheet.BarbarianTracking, kAbilityScore + kDieResult + 1);
  EXPECT_EQ(Score("Tracking"), 0);
  EXPECT_EQ(MemberName(19, 0), "Riding, Land-based: Horse");
  EXPECT_EQ(Member(19, 0), kAbilityScore + kDieResult + 1);
  EXPECT_EQ(Member(6, 0), 0) << "the pick that was closed grants nothing";

  player.forms.clear();
  game->sheet.ClassName = "Soldier";
  RunSkillSetup(*game);
  EXPECT_TRUE(player.forms.empty()) << "nobody picks from an empty list";

  NameMember(game->sheet, 7, 0, "Common");
  Member(7, 0) = 100;
  game->sheet.ClassName = "Bard";
  picks = {"Local History"};
  names = {"Town", "Lyre"};
  RunSkillSetup(*game);
  EXPECT_GT(Member(17, 0), 0);
  EXPECT_EQ(MemberName(9, 0), "Exotic Instrument: Lyre");
  picks = {"Language, Modern: Common"};
  PickReadingWriting(*game);
  EXPECT_EQ(game->run.LastSkillDetail, 0);
  EXPECT_EQ(Member(17, 0), kAbilityScore + 2 * (kDieResult + 1));
}

TEST_F(SkillsTest, APiratesTradeCanBeRolledAgainAndIsPaidFromTheSetup) {
  game->sheet.ClassName = "Pirate (WMA)";
  game->sheet.SkillScores[static_cast<std::size_t>(FindSkillRow("Rope Use"))] = 5;
  std::deque<int> table = {5, 50};
  player.thrower = [&](int sides, int) {
    if (sides != 100) return kDieResult;
    const int roll = table.front();
    table.pop_front();
    return roll;
  };
  player.ExpectQuestion("Table IL: Pirate Skills - Keep your result of Navigation, Nautical?", Answer::No);
  player.ExpectQuestion("Keep your result of Sailor Skill Suite?", Answer::Yes);
  RunSkillSetup(*game);
  const int gain = kDieResult + 1;
  EXPECT_EQ(Score("Sailor Skill Suite"), kAbilityScore + gain + 70);
  EXPECT_EQ(Score("Rope Use"), 5 + gain + 70);
  EXPECT_EQ(Score("Swimming: Dog Paddle"), 50 + gain + 70);
  EXPECT_EQ(game->run.BuildingPoints, 50);
}

TEST_F(SkillsTest, APirateWhoRollsTooOftenLearnsTheTradeUntaught) {
  game->sheet.ClassName = "Pirate (WMA)";
  player.thrower = [&](int sides, int) { return sides == 100 ? 50 : kDieResult; };
  for (int rolls = 0; rolls < 90; ++rolls) player.ExpectQuestion("Keep your result of Sailor Skill Suite?", Answer::No);
  player.ExpectQuestion("Keep your result of Sailor Skill Suite?", Answer::Yes);
  RunSkillSetup(*game);
  EXPECT_TRUE(player.Showed("The Skill: Sailor Skill Suite requires 11 BP to purchase, you only have 10 BP."));
  EXPECT_EQ(Score("Sailor Skill Suite"), 70);
  EXPECT_EQ(game->sheet.SkillPurchases[static_cast<std::size_t>(FindSkillRow("Sailor Skill Suite"))], 0);
}

TEST_F(SkillsTest, ProficiencyPicksOfferWhatAClassMayLearn) {
  game->sheet.ClassLevels[3] = 1;  // a fighter
  EXPECT_EQ(PickProficiency(*game, WeaponPick::Sword), -1);
  EXPECT_TRUE(player.Showed("You are out of proficiency slots"));
  EXPECT_FALSE(PickMaintenanceSkill(*game));
  game->sheet.ProficiencySlots = 5;
  const auto longBow = static_cast<std::size_t>(FindProficiencyRow("Bow: Long"));
  picks = {"Bow: Short"};
  const int shortBow = PickProficiency(*game, WeaponPick::BowShoddy);
  EXPECT_EQ(game->sheet.ProficiencyLevels[static_cast<std::size_t>(shortBow)], -10);
  EXPECT_EQ(listed, (std::vector<std::string>{"Bow: Long", "Bow: Short"}));
  picks = {"Bow: Long"};
  PickProficiency(*game, WeaponPick::Missile);
  EXPECT_EQ(std::ranges::count(listed, "Bow: Short"), 0) << "what is held is not offered";
  EXPECT_EQ(game->sheet.ProficiencyLevels[longBow], 2);
  EXPECT_EQ(game->sheet.ProficiencySlotsUsed, 2 + ProficiencyTable()[longBow].SpecializationCost);
  game->sheet.ProficiencySlotsUsed = 0;
  game->sheet.ClassLevels.fill(0);
  player.forms.clear();
  EXPECT_EQ(PickProficiency(*game, WeaponPick::Any), -1);
  EXPECT_TRUE(player.forms.empty());
}

TEST_F(SkillsTest, TheListHoldsTheSkillsOfAViewWhoseBooksAreOn) {
  const auto holds = [&](int view, std::string_view name) {
    return std::ranges::count(SkillListNames(*game, view), name) == 1;
  };
  NameMember(game->sheet, 7, 0, "Elven");
  Member(7, 0) = 5;
  const auto all = SkillListNames(*game, 0);
  const auto language = std::ranges::find(all, "Language, Modern: Elven");
  ASSERT_NE(language, all.end());
  EXPECT_EQ(*(language - 1), "Language, Modern");
  EXPECT_EQ(*(language + 1), "Reading/Writing: Elven");
  EXPECT_FALSE(holds(SkillCategory::Language, "Reading/Writing: Elven"));
  EXPECT_TRUE(holds(SkillCategory::Combat, "Fung-Chi"));
  game->RuleSwitches[kWarmongersAlmanac] = 0;
  EXPECT_FALSE(holds(SkillCategory::Combat, "Fung-Chi"));
}

TEST_F(SkillsTest, TheDialogShowsPricesBudgetsAndRefusalsAndBuys) {
  game->run.CurrentStep = 12;
  game->run.AcademicBP = 2;
  names = {"Elven"};
  play = [&](Form& form) {
    const auto isVisible = [&](int id) {
      return std::ranges::find(form.Controls(), id, [](const Control& c) { return c.Template.Id; })->Visible;
    };
    const auto shows = [&](const std::vector<std::pair<int, const char*>>& texts) {
      for (const auto& [id, text] : texts) EXPECT_EQ(form.Text(id), text) << id;
    };
    shows({{25, "50 BP"}, {27, "2 Academic BP"}});
    EXPECT_TRUE(isVisible(27) && !isVisible(26));
    form.Press(4001);  // nothing is selected
    form.Type(3000, "HISTORIAN");
    ASSERT_EQ(form.Items(3026), std::vector<std::string>{"Historian Skill Suite"});
    form.Choose(3026, 0);
    shows({{199, "Skill Suite Skills"}, {93, "Ancient History, Local History, Reading/Writing, History: World"}});
    form.Type(3000, "woodland");
    form.Choose(3026, 0);
    shows({{90, "1 BP"},
           {199, "Prerequisite Skills"},
           {506, "Skill: Woodland Lore requires a 50 or greater skill mastery in Forestry"}});
    EXPECT_TRUE(player.messages.empty());
    form.Type(3000, "");
    testing::ChooseText(form, 3026, "Engineering");
    form.Press(4001);
    EXPECT_EQ(form.Items(3027), std::vector<std::string>{"Engineering 17."});
    EXPECT_FALSE(isVisible(27));
    EXPECT_EQ(form.SelectedText(3026), "Engineering") << "another press improves it again";
    testing::ChooseText(form, 3026, "Language, Modern");
    form.Press(4001);
    EXPECT_EQ(form.SelectedText(4045), "Skills: Languages/Communication");
    EXPECT_EQ(std::ranges::count(form.Items(3026), "Language, Modern: Elven"), 1);
    game->sheet.PackageName = "Amazon";
    form.Press(1);
    EXPECT_FALSE(form.IsClosed());
    EXPECT_TRUE(player.Showed("The Amazon Package requires that you purchase three"));
    Score("Running") = Score("Tracking") = Member(19, 4) = 1;
    form.Press(1);
    EXPECT_TRUE(form.IsClosed());
  };
  RunSkills(*game);
  EXPECT_EQ(game->run.CurrentStep, 13);
  game->run.CurrentStep = 12;
  play = [](Form& form) { form.PressCloseBox(); };
  RunSkills(*game);
  EXPECT_EQ(game->run.CurrentStep, 12);
}

/// Buys in every second action.
class Shopper : public testing::RandomPlayer {
 public:
  using RandomPlayer::RandomPlayer;
  void Act(Form& form) override {
    if (form.Name() != "Skills" || Pick(2) == 0) return RandomPlayer::Act(form);
    form.Type(3000, "");
    form.Choose(3026, static_cast<int>(Pick(static_cast<std::uint32_t>(form.Items(3026).size()))));
    form.Press(Pick(3) == 0 ? 3046 : 4001);
  }
};

void ExpectSoundSkills(const Game& game) {
  const CharacterSheet& sheet = game.sheet;
  for (std::size_t row = 0; row < kSkillRows; ++row) {
    EXPECT_TRUE(sheet.SkillScores[row] == 0 || !SkillTable()[row].Name.empty()) << row;
  }
  for (int family = 0; family < kSkillTable2Rows; ++family) {
    for (std::size_t slot = 0; slot < kDetailRows; ++slot) {
      const auto row = static_cast<std::size_t>(family);
      if (sheet.SkillDetailCounts[row][slot] == 0) continue;
      const SkillMatch match = FindSkill(sheet.SkillDetailNames[row][slot]);
      EXPECT_EQ(match.Kind, SkillKind::Instance) << sheet.SkillDetailNames[row][slot].View();
      EXPECT_EQ(match.Row, family);
    }
  }
  EXPECT_GE(game.run.BuildingPoints, 0);
  EXPECT_GE(game.run.FreeSkillPicks, 0);
  EXPECT_GE(game.run.PackageBP, 0);
}

TEST(SkillsPlayTest, AnyPlayEndsWithSoundSkills) {
  constexpr const char* kPackages[] = {"None",          "Hermit", "Scholar",  "Falconer",    "Amazon",
                                       "Noble Warrior", "Savage", "Myrmidon", "Trailblazer", "Wilderness Warrior"};
  int bought = 0;
  for (std::uint32_t seed = 1; seed <= 130 && !::testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    Shopper player(seed * 2654435761U, 5);
    const auto draw = [&](std::uint32_t sides) { return static_cast<int>(player.Pick(sides)); };
    const auto game = testing::QuietGame(player);
    game->dice.RandomState = seed;
    CharacterSheet& sheet = game->sheet;
    const auto classRow = static_cast<std::size_t>(1 + seed % static_cast<std::uint32_t>(kLastSingleClass));
    sheet.ClassName = ClassTable()[classRow].Name;
    sheet.ClassLevels[classRow] = 1;
    sheet.RaceName = RaceTable()[seed % static_cast<std::uint32_t>(kRacesFilled)].Name;
    sheet.PackageName = kPackages[player.Pick(10)];
    sheet.HonorDie = draw(4) * 5 + 1;
    sheet.LanguageSlots = draw(4);
    sheet.UsesFighterBackground = draw(2);
    for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(sheet, ability).Whole = 3 + draw(22);
    game->run.BuildingPoints = static_cast<float>(draw(200)) / 2;
    game->run.PackageBP = static_cast<float>(draw(20));
    game->run.LanguageBP = static_cast<float>(draw(3));
    game->run.FreeSkillPicks = draw(3);
    game->run.VeteranFreeSkills = draw(3);
    game->run.BonusSkillPoints = draw(5);
    game->run.AmazonDoubleRoll = draw(2);
    RunSkillSetup(*game);
    ExpectSoundSkills(*game);
    RunSkills(*game);
    ExpectSoundSkills(*game);
    bought += static_cast<int>(OwnedSkillLines(sheet).size());
  }
  EXPECT_GT(bought, 400) << "the player bought next to nothing";
}

}  // namespace
}  // namespace veld
