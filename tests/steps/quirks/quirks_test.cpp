#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "dice/keep_roll.h"
#include "rules/class_table.h"
#include "steps/quirks/cherry_pick.h"
#include "steps/quirks/free_quirk.h"
#include "steps/quirks/held_quirks.h"
#include "steps/quirks/quirk_effects.h"
#include "steps/quirks/quirk_wipes.h"
#include "steps/quirks/quirk_work.h"
#include "steps/quirks/quirks_and_flaws.h"
#include "support/game_test.h"
#include "support/random_player.h"

namespace veld {
namespace {

using testing::ChooseText;
using testing::ScriptedPlatform;

constexpr int kOk = 1;
constexpr int kAbort = 2;
constexpr int kTable = 3115;
constexpr int kOwed = 3116;
constexpr int kRollForQuirk = 4001;
constexpr int kRollBox = 3000;
constexpr int kRollButton = 4003;
constexpr int kMinorBox = 3022;
constexpr int kMajorBox = 3023;
constexpr int kMinorList = 3024;
constexpr int kMajorList = 3025;
constexpr int kAddMinor = 4012;
constexpr int kRemoveMinor = 4013;
constexpr int kAddMajor = 4014;

const QuirkRecord& Row(int row) {
  return QuirkTable()[static_cast<std::size_t>(row)];
}

class QuirksTest : public testing::GameTest<> {
 protected:
  QuirksTest() {
    game->run.CurrentStep = 7;
  }

  int& Count(int row) { return game->sheet.QuirkCounts[static_cast<std::size_t>(row)]; }
  int& Earned(int row) { return game->sheet.QuirkBP[static_cast<std::size_t>(row)]; }

  /// A random state from which the table's first roll yields the row.
  void SeedFor(std::string_view table, int row) {
    for (std::uint32_t seed = 0; seed < 100'000; ++seed) {
      game->dice.RandomState = seed;
      if (RollQuirkRow(*game, table) != row) continue;
      game->dice.RandomState = seed;
      return;
    }
    FAIL() << "no seed gives row " << row;
  }
};

using Tables = std::vector<std::string_view>;

TEST_F(QuirksTest, WhatIsHeldAndOwesRollsBecomesEntriesOfTheWorkList) {
  game->RuleSwitches[kHexwrightsAlmanac] = 0;
  game->RuleSwitches[kSwindlersAlmanac] = 0;
  const int held[] = {11, 24, 102, 2, 34, 274, 1, 571};
  for (const int row : held) Count(row) = 2;
  Earned(599) = 5;
  Earned(600) = 4;
  const QuirkWork work = OpenQuirkWork(*game);
  EXPECT_EQ(work.Tables, (Tables{kCodex6A, kWarmonger6A, kDevotee6A, "ADC Animal Antipathy Table", "ADC Allergen Table",
                                 kTable6B, kTable6B, kTable6H, kTable6H, kTable6B, kTable6C, kTable6O}))
      << "granted, two rolls on 6C are two on 6B";
  EXPECT_EQ(PendingQuirkRolls(work), 9);
  for (const int row : held) EXPECT_EQ(Count(row), row == 1 ? 2 : 0) << row;
  EXPECT_EQ(Earned(599), 0);
  EXPECT_EQ(PotentialQuirkBP(*game), 4) << "the last rows are shown though never paid";
}

TEST_F(QuirksTest, AResultOwesWhatItsKindSays) {
  const auto owes = [&](int row) {
    QuirkWork work;
    TakeQuirkResult(*game, work, row);
    return work.Tables;
  };
  EXPECT_EQ(owes(24), (Tables{kTable6C, kTable6C})) << "rolled, it is 6C";
  EXPECT_EQ(owes(12), (Tables{kTable6B, kTable6D}));
  EXPECT_EQ(owes(304), Tables{}) << "a plain flaw";
  EXPECT_EQ(owes(305), (Tables{"ADC Allergen Table", "ADC Allergen Table"}));
  EXPECT_EQ(owes(570), Tables{kTable6E});
  for (const int leadsNowhere : {121, 204, 224, 274, 596}) EXPECT_EQ(owes(leadsNowhere), Tables{}) << leadsNowhere;
  EXPECT_EQ(owes(73), Tables{});
  EXPECT_TRUE(
      platform.Showed("Quirks and Flaws: This flaw 'Enmity toward [class]' falls under the direction of the GM"));
  for (int row = 1; row <= kLastQuirk; ++row) {
    const bool isHeld = row == 304 || row == 73;
    EXPECT_EQ(Count(row), isHeld ? 1 : 0) << row;
    EXPECT_EQ(Earned(row), isHeld ? Row(row).BPCost : 0) << row;
  }
}

TEST_F(QuirksTest, ARepeatIsPaidInFullOnceTheTableIsReadAnew) {
  QuirkWork work;
  TakeQuirkResult(*game, work, 17);
  EXPECT_EQ(game->run.QuirkBPCosts[17], 1);
  EXPECT_EQ(game->run.QuirkBPCosts[16], 8) << "the rest of its table keeps its price";
  TakeQuirkResult(*game, work, 275);
  EXPECT_EQ(game->run.QuirkBPCosts[294], 5);
  EXPECT_EQ(game->run.QuirkBPCosts[295], 0);
  ReconcileQuirks(*game);
  TakeQuirkResult(*game, work, 17);
  EXPECT_EQ(Earned(17), 10);
}

TEST_F(QuirksTest, A6AEntryStaysUsesUpARollAndBindsToItsBook) {
  game->run.QuirkRollsLeft = 4;
  QuirkWork work = OpenQuirkWork(*game);
  for (int entry = 1; entry <= 4; ++entry) EXPECT_EQ(RollQuirkWork(*game, work, entry), entry);
  EXPECT_EQ(game->run.QuirkRollsLeft, 0);
  EXPECT_EQ(game->sheet.UsesMageBackground + game->sheet.UsesFighterBackground + game->run.UsesThiefBackground +
                game->sheet.UsesClericBackground,
            4);
  const QuirkWork before = work;
  EXPECT_EQ(RollQuirkWork(*game, work, 0), 0);
  EXPECT_EQ(RollQuirkWork(*game, work, -1), -1);
  EXPECT_EQ(work.Tables, before.Tables) << "no 6A roll is left, and no entry is none";
  EXPECT_EQ(game->run.QuirkRollsLeft, 0);
}

TEST_F(QuirksTest, ATableWithoutResultsIsToldOnceAndOwesNothing) {
  Count(15) = 1;
  QuirkWork work{{kCodex6A, kTable6B, "SWA 6Q", ""}};
  EXPECT_EQ(RollQuirkWork(*game, work, 2), 1) << "the entry before it is next";
  EXPECT_EQ(work.Tables, (Tables{kCodex6A, kTable6B, ""}));
  EXPECT_EQ(platform.messages, std::vector<std::string>{"VELD: The table 'SWA 6Q' has no result left."});
  RollQuirkWork(*game, work, 2);
  EXPECT_EQ(PendingQuirkRolls(work), 1);
  EXPECT_EQ(PotentialQuirkBP(*game), 0);
}

TEST_F(QuirksTest, WhatIsHeldWipesOutWhatItExcludes) {
  for (const int row : {5, 9, 10, 14, 20, 26, 27, 28, 29, 30, 35, 38, 46, 49}) Count(row) = Earned(row) = 1;
  for (const int row : {36, 37, 39, 40, 44}) Count(row) = Earned(row) = 1;
  Count(15) = Earned(15) = 1;
  ReconcileQuirks(*game);
  EXPECT_EQ(PotentialQuirkBP(*game), 6) << "the five, and a bald man";
  EXPECT_EQ(HeldQuirkNames(*game).size(), 6U);
  for (const int row : {9, 14, 38, 49}) EXPECT_EQ(QuirkLimit(*game, row), 0) << row;

  game->sheet.Gender = "Female";
  ReconcileQuirks(*game);
  ReconcileQuirks(*game);
  EXPECT_EQ(Count(15) + Earned(15) + QuirkLimit(*game, 15), 0) << "for the rest of the run";

  // A barred row is thrown again without a question, and the counts are what they were.
  game->run.BuildingPoints = 5;
  platform.AnswerOthers(Answer::Yes);
  const auto counts = game->sheet.QuirkCounts;
  for (int tries = 0; tries < 300; ++tries) {
    const int row = RollQuirkRow(*game, kTable6D);
    EXPECT_TRUE(row == 31 || row == 32) << row;
  }
  EXPECT_EQ(platform.questions.size(), 300U);
  EXPECT_EQ(game->sheet.QuirkCounts, counts);
}

TEST_F(QuirksTest, ARefusedRowCostsABPAndIsRolledAgain) {
  game->run.BuildingPoints = 1.5F;
  platform.ExpectQuestion("Reroll costs 1 BP: Keep your result of", Answer::No);
  EXPECT_GT(RollQuirkRow(*game, kTable6B), 0);
  EXPECT_FLOAT_EQ(game->run.BuildingPoints, 0.5F);
}

TEST_F(QuirksTest, TheDialogShowsWhatIsOwedAndIsLeftOnlyWhenNothingIs) {
  game->run.QuirkRollsLeft = 7;  // left over from a roll box
  game->run.CurrentStep = 3;
  Count(2) = 1;
  Play("QuirksandFlaws", RunQuirksandFlaws, [&](Form& form) {
    form.Press(kAbort);
    EXPECT_FALSE(form.IsClosed()) << "outside Step 7 there is no Abort";
    form.Press(kOk);
    EXPECT_EQ(platform.messages.back(), "Quirks and Flaws: You need to make 0 more 6A rolls and 1 more other rolls");
    EXPECT_EQ(form.Items(kOwed), std::vector<std::string>{"ADC Animal Antipathy Table"});
    EXPECT_EQ(form.SelectedText(kTable), kCodex6A);
    EXPECT_EQ(form.Text(213), "Roll on ADC Animal Antipathy Table") << "no 6A roll is left";
    form.Press(kRollForQuirk);
    EXPECT_EQ(form.Items(kHeldQuirksList).size(), 1U);
    EXPECT_EQ(form.Text(216), "7");
    EXPECT_EQ(form.Text(213), "Nothing is left to roll: go on with OK.");
    form.Press(kOk);
  });
  EXPECT_EQ(game->run.CurrentStep, 8);
}

TEST_F(QuirksTest, RollRollsOnTheTableChosenAmongThoseOwed) {
  QuirkWork work = OpenQuirkWork(*game);
  EXPECT_EQ(EntryToRoll(*game, work, 0), -1) << "nothing is left";
  const int first = static_cast<int>(work.Tables.size());
  OweQuirkRolls(work, kTable6B);
  OweQuirkRolls(work, kTable6D);
  EXPECT_EQ(EntryToRoll(*game, work, 0), first) << "no 6A roll is left";
  EXPECT_EQ(EntryToRoll(*game, work, first + 1), first + 1);
  game->run.QuirkRollsLeft = 1;
  EXPECT_EQ(EntryToRoll(*game, work, 0), 0);
  EXPECT_EQ(OwedEntry(work, 2), -1);

  platform.AnswerOthers(Answer::Yes);
  const std::string_view owed[] = {kTable6F, kTable6H};
  platform.ExpectForm("QuirksandFlawsMage", [&](Form& form) {
    EXPECT_EQ(form.SelectedText(kOwed), kTable6F) << "the next in the order";
    form.Choose(kOwed, 1);
    EXPECT_EQ(form.SelectedText(kTable), kTable6H);
    form.Press(kRollForQuirk);
    EXPECT_EQ(std::ranges::count(form.Items(kOwed), kTable6H), 0);
    EXPECT_EQ(form.SelectedText(kOwed), kTable6F);
    for (int rolls = 0; rolls < 100 && form.Text(213).starts_with("Roll on"); ++rolls) form.Press(kRollForQuirk);
    EXPECT_TRUE(form.Items(kOwed).empty());
    form.Press(kRollForQuirk);
    EXPECT_GE(form.Selection(kTable), 0) << "nothing is left";
    form.Press(kOk);
  });
  RunQuirksandFlawsMage(*game, owed);
}

TEST_F(QuirksTest, AFreeQuirkIsTakenFromTheTableChosen) {
  const auto held = [&](std::string_view table) {
    int count = 0;
    for (const int row : QuirkTableRows(table)) count += Count(row);
    return count;
  };
  const auto take = [&](const char* dialog, int button, void (*run)(Game&), std::string_view table) {
    platform.ExpectForm(dialog, [button](Form& form) {
      if (button != 0) form.Press(button);
      if (button == 0) form.PressCloseBox();
    });
    run(*game);
    EXPECT_EQ(held(table), 1) << table;
  };
  take("MinorQuirk", 4006, RunMinorQuirk, kTable6F);
  take("MajorQuirk", 4007, RunMajorQuirk, kTable6G);
  take("MinorQuirk", 0, RunMinorQuirk, kTable6H);  // the close box is no way around it
  take("MajorQuirk", 4009, RunMajorQuirk, kTable6I);
}

TEST_F(QuirksTest, EveryOfferedTextStandsForItsOwnRow) {
  platform.AnswerOthers(Answer::Yes);
  std::size_t offered = 0;
  for (int row = 1; row <= kLastQuirk; ++row) {
    if (Row(row).Kind > kMajorQuirk) continue;
    ++offered;
    ASSERT_TRUE(ChangeQuirkPick(*game, ShownQuirkName(row), 1)) << row;
    ASSERT_EQ(game->run.QuirkPicks[static_cast<std::size_t>(row)], 1) << row;
    ASSERT_EQ(Earned(row), Row(row).Kind == kMinorQuirk ? 2 : 4) << row;
  }
  for (const std::string& name : PickedQuirkNames(*game, kMinorQuirk)) {
    EXPECT_TRUE(std::ranges::none_of(name, [](char c) { return c >= 0 && c < ' '; })) << name;
  }
  ClearQuirkPicks(*game);
  EXPECT_EQ(OfferedQuirkNames(*game, kMinorQuirk).size() + OfferedQuirkNames(*game, kMajorQuirk).size(), offered);
  EXPECT_FALSE(ChangeQuirkPick(*game, "", 1));
  EXPECT_FALSE(ChangeQuirkPick(*game, "no such flaw", 1));
  EXPECT_FALSE(ChangeQuirkPick(*game, "Albino", -1)) << "there is no pick to take back";
}

TEST_F(QuirksTest, PicksAreLimitedAskBeforeALockInAndCountOnOk) {
  const std::string hexwright(Row(306).Name);
  platform.ExpectForm("CherryPick", [&](Form& form) {
    form.Press(kAddMinor);  // nothing chosen
    ChooseText(form, kMinorBox, "Albino");
    form.Press(kAddMinor);
    ChooseText(form, kMinorBox, hexwright);
    form.Press(kAddMinor);
    EXPECT_EQ(form.Items(kMinorList).size(), 1U) << "the lock-in was refused";
    form.Press(kAddMinor);
    EXPECT_EQ(form.Items(kMinorList), (std::vector<std::string>{"Albino", hexwright}));
    EXPECT_EQ(std::ranges::count(form.Items(kMinorBox), "Albino"), 0);
    EXPECT_GE(form.Selection(kMinorBox), 0) << "the next one stands in its place";
    EXPECT_EQ(form.Text(213), "Next: a major flaw, or OK");
    ChooseText(form, kMinorBox, "Lisp");
    form.Press(kAddMinor);
    EXPECT_EQ(form.Items(kMinorList).size(), 2U) << "two minor picks at most";
    ChooseText(form, kMinorList, hexwright);
    form.Press(kRemoveMinor);
    EXPECT_EQ(form.Items(kMinorList).size(), 2U) << "taking it back asks too";
    ChooseText(form, kMajorBox, "Mute");
    form.Press(kAddMajor);
    form.Press(kOk);
  });
  platform.ExpectQuestion("class from the Hexwright's Almanac (single", Answer::No);
  platform.ExpectQuestion("Class Book Lock-in", Answer::Yes);
  platform.ExpectQuestion("Class Book Lock-in", Answer::Closed);
  // The script runs in the order of asking: the form first, then the questions it brings.
  RunCherryPick(*game);
  EXPECT_EQ(game->run.CurrentStep, 8);
  EXPECT_EQ(Count(1) + Count(306) + Count(44), 3);
  EXPECT_EQ(game->sheet.UsesMageBackground, 1);
  EXPECT_EQ(game->sheet.MinorFlawPicksLeft, 0);
  EXPECT_EQ(game->sheet.MajorFlawPicksLeft, 0);
  PayQuirks(*game);
  EXPECT_EQ(game->run.BuildingPoints, 8);
}

TEST_F(QuirksTest, ARollBoxLeadsToTheDiceAndDropsOrKeepsThePicks) {
  /// Picks Albino, enters a number of rolls and leaves by a button.
  const auto pickAlbino = [&](std::string_view rolls, int leaveBy) {
    ResetCharacter(*game);
    game->run.CurrentStep = 7;
    platform.ExpectForm("CherryPick", [=](Form& form) {
      ChooseText(form, kMinorBox, "Albino");
      form.Press(kAddMinor);
      form.Type(kRollBox, "10");
      form.Press(kRollButton);
      EXPECT_FALSE(form.IsClosed());
      form.Type(kRollBox, rolls);
      form.Press(leaveBy);
    });
  };
  const auto expect = [&](int step, int albinos) {
    RunCherryPick(*game);
    EXPECT_EQ(game->run.CurrentStep, step);
    EXPECT_EQ(Count(1), albinos);
    EXPECT_EQ(game->run.QuirkRollsLeft, 0);
  };
  const auto abort = [](Form& form) { form.Press(kAbort); };
  constexpr const char* kQuestion = "You have entered a number in the Roll box";

  pickAlbino("3", kRollButton);
  platform.ExpectForm("QuirksandFlaws", [&](Form& form) {
    EXPECT_EQ(form.Text(211), "3");
    form.Press(kAbort);
  });
  expect(1, 0);

  pickAlbino("1", kOk);
  platform.ExpectQuestion(kQuestion, Answer::No);
  expect(8, 1);

  pickAlbino("1", kOk);
  platform.ExpectQuestion(kQuestion, Answer::Yes);
  SeedFor(kCodex6A, 471);
  platform.ExpectForm("QuirksandFlaws", [&](Form& form) {
    form.Press(kRollForQuirk);
    EXPECT_EQ(form.Items(kOwed), std::vector<std::string>{std::string(kTable6B)});
    form.Press(kAbort);
  });
  expect(1, 1);  // with no 6A roll left the picks join, though unpaid
  EXPECT_EQ(PotentialQuirkBP(*game), 0);

  pickAlbino("2", kOk);
  platform.ExpectQuestion(kQuestion, Answer::Yes);
  platform.ExpectForm("QuirksandFlaws", abort);
  expect(1, 0);  // with rolls left nothing joins

  game->run.CurrentStep = 7;
  platform.ExpectForm("CherryPick", abort);
  expect(1, 0);
}

TEST_F(QuirksTest, QuirksBarClasses) {
  const std::vector<std::pair<std::string_view, std::vector<int>>> bars = {
      {"Battle Mage", {325, 327}},
      {"Zealot of Benyar (Imperious)", {86}},
      {"Zealot of Enlil (Bombard)", {369, 185, 203, 205, 223}},
  };
  for (const auto& [name, quirks] : bars) {
    const int barred = FindClassRow(name);
    for (const int quirk : quirks) {
      game->run.ClassAllowed.fill(5);
      Count(quirk) = 1;
      BarClassesForQuirks(*game);
      Count(quirk) = 0;
      for (int row = 0; row < static_cast<int>(game->run.ClassAllowed.size()); ++row) {
        EXPECT_EQ(game->run.ClassAllowed[static_cast<std::size_t>(row)], row == barred ? 0 : 5) << name << quirk;
      }
    }
  }
  game->run.ClassAllowed.fill(5);
  Count(204) = Count(224) = Count(184) = 1;  // no obsessions or compulsions themselves
  BarClassesForQuirks(*game);
  EXPECT_EQ(std::ranges::count(game->run.ClassAllowed, 0), 0);
}

TEST_F(QuirksTest, QuirksLowerAbilitiesOnceAndMaimingEachTime) {
  for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(game->sheet, ability) = {20, 40};
  for (const int row : {361, 458, 7, 8, 10, 14, 15, 19, 22, 26, 29, 94, 96, 97, 98}) Count(row) = 2;
  Count(43) = 3;
  game->run.ArmAmputations = 1;
  game->run.LegAmputations = 2;
  ApplyQuirkEffects(*game);
  EXPECT_EQ(game->sheet.Comeliness, (AbilityScore{20 - 4 - 1 - 1 - 1 - 2 - 1 - 9, 40}));
  EXPECT_EQ(game->sheet.Charisma, (AbilityScore{20 - 9 - 9, 40}));
  EXPECT_EQ(game->sheet.Constitution, (AbilityScore{20, -10}));
  EXPECT_EQ(game->sheet.Intelligence, (AbilityScore{20, 65}));
  EXPECT_EQ(game->sheet.Strength, (AbilityScore{21, 40}));
  EXPECT_EQ(game->sheet.Dexterity, (AbilityScore{20, 40}));
  EXPECT_EQ(Count(46), 1) << "one eye sees no depth";
}

TEST_F(QuirksTest, OnlyTheFirst599RowsArePaid) {
  Earned(0) = Earned(600) = Earned(618) = 100;
  Earned(1) = 5;
  Earned(599) = 4;
  game->run.BuildingPoints = 0.5F;
  PayQuirks(*game);
  EXPECT_FLOAT_EQ(game->run.BuildingPoints, 9.5F);
}

void ExpectPossible(const Game& game) {
  const CharacterSheet& sheet = game.sheet;
  int picks = 0;
  for (std::size_t row = 0; row < kQuirkRows; ++row) {
    const int picked = game.run.QuirkPicks[row];
    const int held = sheet.QuirkCounts[row];
    const int most = QuirkTable()[row].MaxCount;
    // Picks join what was held before.
    EXPECT_TRUE(held >= 0 && held <= most + picked && picked >= 0 && picked <= most && sheet.QuirkBP[row] >= 0)
        << "row " << row << ": held " << held << ", picked " << picked;
    picks += picked;
  }
  EXPECT_TRUE(sheet.MinorFlawPicksLeft >= 0 && sheet.MinorFlawPicksLeft <= 2);
  EXPECT_TRUE(sheet.MajorFlawPicksLeft >= 0 && sheet.MajorFlawPicksLeft <= 1);
  EXPECT_LE(picks, 3 - sheet.MinorFlawPicksLeft - sheet.MajorFlawPicksLeft);
  EXPECT_TRUE(game.run.QuirkRollsLeft >= 0 && game.run.QuirkRollsLeft <= 9);
}

TEST(QuirksProperty, RandomPressesEndAndLeaveNothingImpossible) {
  std::set<int> seen;
  int finished = 0;
  for (std::uint32_t seed = 0; seed < 600 && !::testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    testing::RandomPlayer player(seed * 2'654'435'769U, 30);
    const auto game = testing::QuietGame(player);
    game->dice.RandomState = seed;
    game->sheet.Gender = seed % 2 == 0 ? "Male" : "Female";
    game->run.BuildingPoints = static_cast<float>(player.Pick(30)) - 5;
    game->run.CurrentStep = 3;
    // Step 6 gives, then Step 7.
    for (const auto run : {RunMinorQuirk, RunMajorQuirk, RunQuirksandFlaws}) {
      if (player.Pick(2) == 0) run(*game);
      ExpectPossible(*game);
    }
    game->run.CurrentStep = player.Pick(8) == 0 ? 0 : 7;
    RunCherryPick(*game);
    ExpectPossible(*game);
    ASSERT_EQ(player.stuckForm, "");
    ASSERT_TRUE(game->run.CurrentStep == 8 || game->run.CurrentStep == 1 || game->run.CurrentStep == 0);
    ASSERT_EQ(game->run.QuirkRollsLeft, 0);
    finished += game->run.CurrentStep == 8;
    const float before = game->run.BuildingPoints;
    PayQuirks(*game);
    ASSERT_GE(game->run.BuildingPoints, before);
    ApplyQuirkEffects(*game);
    for (int row = 1; row <= kLastQuirk; ++row) {
      if (game->sheet.QuirkCounts[static_cast<std::size_t>(row)] > 0) seen.insert(row);
    }
  }
  EXPECT_GT(finished, 200);
  EXPECT_GT(seen.size(), 250U) << "the runs reach a good part of the catalogue";
}

/// With fair dice about one opening in a hundred would owe rolls for ever.
TEST(QuirksProperty, EveryOpeningComesToItsEnd) {
  constexpr std::uint32_t kSeeds = 2'000;
  constexpr int kMostPresses = 1'000;
  ScriptedPlatform platform;
  const auto game = testing::QuietGame(platform);
  int mostRolls = 0;
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    game->run = {};
    game->sheet.QuirkCounts.fill(0);
    game->dice.RandomState = seed * 2'654'435'769U;
    for (std::size_t book = kHexwrightsAlmanac; book <= kDevoteesAlmanac; ++book) {
      game->RuleSwitches[book] = static_cast<int>(seed % 2);
    }
    // Whom earlier steps gave every row that owes rolls has the most to do.
    for (int row = 1; row <= kLastQuirk && seed % 50 == 0; ++row) {
      if (Row(row).Kind > kMajorQuirk) game->sheet.QuirkCounts[static_cast<std::size_t>(row)] = 1;
    }
    game->run.QuirkRollsLeft = 9;
    QuirkWork work = OpenQuirkWork(*game);
    ReconcileQuirks(*game);
    int presses = 0;
    for (; game->run.QuirkRollsLeft + PendingQuirkRolls(work) > 0; ++presses) {
      ASSERT_LT(presses, kMostPresses) << seed;
      RollQuirkWork(*game, work, game->run.QuirkRollsLeft > 0 ? 0 : static_cast<int>(work.Tables.size()) - 1);
    }
    mostRolls = std::max(mostRolls, presses);
  }
  EXPECT_GT(mostRolls, kLastOwingRoll) << "no seed tries the limit";

  // One roll before the limit such rows still owe theirs.
  QuirkWork work{.Tables = {}, .Rolls = kLastOwingRoll - 1};
  TakeQuirkResult(*game, work, 305);
  EXPECT_EQ(PendingQuirkRolls(work), 2);
  work.Rolls = kLastOwingRoll;
  for (const int row : {305, 24}) TakeQuirkResult(*game, work, row);
  EXPECT_EQ(PendingQuirkRolls(work), 2);
}

}  // namespace
}  // namespace veld
