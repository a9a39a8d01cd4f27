#include "steps/family/step_six.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <tuple>

#include "platform/control_names.h"
#include "rules/priors_tables.h"
#include "rules/quirk_table.h"
#include "rules/race_table.h"
#include "steps/family/prior_gates.h"
#include "steps/family/priors.h"
#include "support/game_test.h"
#include "support/random_player.h"

namespace veld {
namespace {

constexpr int kOk = 1;
constexpr int kAbort = 2;
constexpr int kNext = 27;
constexpr int kFirstButton = 6078;

class StepSixTest : public testing::GameTest<testing::DicePlayer> {
 protected:
  StepSixTest() {
    game->sheet.RaceName = "Human";
    game->sheet.Gender = "Male";
    gates = OpenPriors(*game);
  }

  /// Presses a table with these dice; all of them must be thrown.
  void Press(Prior prior, std::initializer_list<int> dice = {}) {
    player.dice = dice;
    PressPrior(*game, gates, prior);
    EXPECT_TRUE(player.dice.empty()) << "table " << prior << " left dice";
  }

  /// Takes the gates to Circumstance of Birth with every table before it rolled.
  void ReachBirth() {
    gates = {};
    gates[kLegitimacy] = PriorGate::Open;
    game->sheet.SocialClassIndex = 8;
  }

  /// Takes the gates to Quality of Mother: a legitimate child of two living parents.
  void ReachMotherQuality() {
    ReachBirth();
    Press(kLegitimacy, {50});
    Press(kMotherStatus, {50});
    Press(kFatherStatus, {50});
  }

  float& BP() { return game->run.BuildingPoints; }

  PriorGates gates{};
};

TEST_F(StepSixTest, TheFirstRollIsFreeAndLaterOnesCostOneBP) {
  BP() = 1.5F;
  Press(kHandedness);
  EXPECT_EQ(sheet.Handedness, "Unknown") << "still closed";
  Press(kStartingAge, {2});
  const int first = sheet.Age;
  EXPECT_GT(first, 0);
  EXPECT_EQ(BP(), 1.5F);
  Press(kStartingAge, {3});
  EXPECT_EQ(sheet.Age, first + 1);
  Press(kStartingAge);
  EXPECT_EQ(BP(), 0.5F) << "half a BP buys no roll";
  EXPECT_EQ(sheet.Age, first + 1);

  Press(kHandedness, {12});
  EXPECT_EQ(sheet.Handedness, "Left");
  EXPECT_EQ(gates[kStartingAge], PriorGate::Closed);
  sheet.RaceName = "Elf, Drow";
  BP() = 1;
  Press(kHandedness);
  EXPECT_EQ(sheet.Handedness, "Ambidextrous");
  EXPECT_EQ(BP(), 0) << "an elf pays for a hand that never changes";
}

TEST_F(StepSixTest, APressOfHeightFreesTheWeightEvenWithoutBP) {
  gates[kHeight] = PriorGate::Open;
  player.thrower = [](int, int count) { return count; };
  Press(kHeight);
  Press(kWeight);
  const int height = sheet.HeightInches;
  const int weight = sheet.WeightLbs;
  gates[kHeight] = PriorGate::Open;  // Weight has closed it
  player.thrower = [](int sides, int count) { return sides * count; };
  Press(kHeight);
  EXPECT_EQ(sheet.HeightInches, height);
  EXPECT_EQ(sheet.WeightLbs, 0);
  Press(kWeight);
  EXPECT_GT(sheet.WeightLbs, weight);
}

TEST_F(StepSixTest, TheModifiersOfTheRaceAreAddedToTheDiceAndASlaveIsRolledAgainBehindADieThatIsThrownAway) {
  gates[kSocialClass] = PriorGate::Open;
  Press(kSocialClass, {1, 20, 5});
  EXPECT_EQ(sheet.SocialClassName, "Slave Class, runaway slave");
  BP() = 1;
  game->run.LegitimacyModifier = 50;
  game->run.BirthModifier = -90;
  game->run.SocialClassModifier = 99;
  Press(kSocialClass, {1, 1});
  EXPECT_EQ(sheet.SocialClassIndex, 12);
  Press(kLegitimacy, {41});
  EXPECT_EQ(sheet.BirthCircumstance, "illegitimate");
  Press(kIllegitimacyNature, {95});
  EXPECT_EQ(sheet.MotherPresence, kParentUnknown) << "abandoned, for all its high roll";
}

TEST_F(StepSixTest, AnAbandonedChildGoesStraightToItsHeritage) {
  ReachBirth();
  Press(kLegitimacy, {91});
  Press(kIllegitimacyNature, {5});
  EXPECT_EQ(sheet.IllegitimacyNature, "Character was abandoned at birth");
  EXPECT_EQ(NextPrior(*game, gates), kFamilyHeritage);
  for (const Prior closed : {kMotherStatus, kFatherStatus, kStepParentCheck, kMotherQuality, kFatherQuality}) {
    Press(closed);
  }
  Press(kFamilyHeritage, {50});
  Press(kSiblingNumber, {98, 2});
  EXPECT_EQ(sheet.SiblingCount, -2);
  Press(kBirthOrder, {33});
  EXPECT_TRUE(FinishPriors(*game));
  EXPECT_EQ(sheet.IsOrphan, 1);
  EXPECT_EQ(game->run.InheritanceModifier, 5 - 20);
}

TEST_F(StepSixTest, TheMothersDeathCanTakeTheFatherWithHer) {
  ReachBirth();
  Press(kLegitimacy, {1});
  Press(kMotherStatus, {91});
  EXPECT_EQ(sheet.FatherStatus, "Dead");
  EXPECT_EQ(sheet.StepParent, "N/A");
  EXPECT_EQ(NextPrior(*game, gates), kMotherQuality);
  sheet.BirthOrder = "2nd to last born";
  EXPECT_TRUE(FinishPriors(*game));
  EXPECT_EQ(sheet.IsOrphan, 1);
  EXPECT_EQ(game->run.InheritanceModifier, -22);
}

TEST_F(StepSixTest, AnUnknownFatherIsLeftAlone) {
  ReachBirth();
  Press(kLegitimacy, {95});
  Press(kIllegitimacyNature, {70, 75});
  EXPECT_EQ(sheet.IllegitimacyNature, "birth was the result of an adultrous affair, father unknown");
  Press(kMotherStatus, {95});
  EXPECT_EQ(sheet.FatherStatus, "Unknown");
  EXPECT_EQ(sheet.FatherPresence, kParentUnknown);
  // Illegitimacy adds 35 to the quality, and what such a mother owes is taken at the heritage.
  Press(kMotherQuality, {25});
  EXPECT_EQ(sheet.MotherQuality, "Loving parent +5BP");
  EXPECT_EQ(BP(), 0);
  Press(kFamilyHeritage, {50});
  EXPECT_EQ(BP(), 5);
  Press(kFamilyHeritage, {1});
  EXPECT_EQ(BP(), 4) << "paid once";
  EXPECT_EQ(sheet.FamilyHeritage, "Great Dishonor");
}

TEST_F(StepSixTest, AStepFatherOnceFoundIsNotLostAndAStepMotherStaysCounted) {
  ReachBirth();
  Press(kLegitimacy, {50});
  Press(kMotherStatus, {50});
  Press(kFatherStatus, {90});
  EXPECT_EQ(sheet.StepParent, "Father?");
  BP() = 2;
  Press(kStepParentCheck, {14});
  EXPECT_EQ(BP(), 2);
  Press(kStepParentCheck, {15, 1});
  Press(kStepParentCheck, {1, 90});
  EXPECT_EQ(sheet.StepParent, "Step Father is dead");
  EXPECT_EQ(sheet.FatherPresence, kStepParentFound);
  EXPECT_EQ(BP(), 0);
  Press(kStepParentCheck);

  sheet.MotherPresence = kStepParentFound;
  player.dice = {14};
  GenerateStepMother(*game);
  EXPECT_EQ(sheet.StepParent, "Step Mother: NO");
  EXPECT_EQ(sheet.MotherPresence, kStepParentFound);
}

TEST_F(StepSixTest, WhatTheMotherOwesIsTakenAtTheFathersQuality) {
  ReachMotherQuality();
  Press(kMotherQuality, {92});
  BP() = 1;
  Press(kMotherQuality, {81});
  EXPECT_EQ(game->run.MotherMajorQuirks, 0) << "the new result replaces all that was owed";
  EXPECT_TRUE(player.forms.empty());
  Press(kFatherQuality, {60});
  EXPECT_TRUE(player.Showed("You just earned a Minor quirk"));
  EXPECT_EQ(player.forms, (std::vector<std::string>{"MinorQuirk", "QuirksandFlaws"}));
  EXPECT_EQ(game->run.MotherMinorQuirks, 0);
  EXPECT_EQ(BP(), 0) << "the father's own is paid at the heritage";
  BP() = 1;
  Press(kFatherQuality, {95});
  player.forms.clear();
  Press(kFamilyHeritage, {50});
  EXPECT_TRUE(player.Showed("You just earned a Major quirk"));
  EXPECT_EQ(player.forms, (std::vector<std::string>{"MajorQuirk", "QuirksandFlaws"}));
  EXPECT_EQ(BP(), 0);
  EXPECT_EQ(gates[kFatherQuality], PriorGate::ClosedForGood);
}

TEST_F(StepSixTest, SiblingsDecideWhetherThereIsAnOrderOfBirth) {
  gates = {};
  gates[kSiblingNumber] = PriorGate::Open;
  sheet.BirthCircumstance = "Legitimate";
  BP() = 3;
  Press(kSiblingNumber, {98, 4});
  EXPECT_EQ(sheet.SiblingCountText, "4 illegitimate siblings");
  EXPECT_EQ(sheet.BirthOrder, "First born");
  Press(kSiblingNumber, {15});
  EXPECT_EQ(sheet.SiblingCountText, "Only Child");
  EXPECT_EQ(sheet.BirthOrder, "Only Child");
  Press(kBirthOrder);
  EXPECT_EQ(NextPrior(*game, gates), kPriorCount);
  Press(kSiblingNumber, {60});
  EXPECT_EQ(sheet.BirthOrder, "Unknown");
  Press(kBirthOrder, {50});
  EXPECT_EQ(sheet.BirthOrder, "2nd born");
  Press(kSiblingNumber);
  EXPECT_EQ(sheet.SiblingCount, 3) << "closed by the order of birth";

  sheet.BirthOrder = "Only Child";
  sheet.SocialClassIndex = 5;
  EXPECT_TRUE(FinishPriors(*game));
  EXPECT_EQ(game->run.InheritanceModifier, -15 + 10);
}

TEST_F(StepSixTest, AMiddleChildEarnsAPersonalityQuirk) {
  sheet.SiblingCount = 2;
  gates[kBirthOrder] = PriorGate::Open;
  Press(kBirthOrder, {66});
  EXPECT_EQ(sheet.BirthOrder, "Middle born (2nd)");
  game->RuleSwitches[kRollYourOwnDice] = 0;
  EXPECT_TRUE(FinishPriors(*game));
  EXPECT_TRUE(player.Showed("You just earned a minor personality quirk!"));
  EXPECT_EQ(std::accumulate(sheet.QuirkCounts.begin(), sheet.QuirkCounts.end(), 0), 1);
  EXPECT_EQ(player.forms.back(), "QuirksandFlaws");

  player.forms.clear();
  for (const int row : QuirkTableRows(kTable6H)) sheet.QuirkCounts[static_cast<std::size_t>(row)] = -1;
  game->run.CurrentStep = 6;
  EXPECT_TRUE(FinishPriors(*game)) << "a table with nothing left holds nobody up";
  EXPECT_TRUE(player.forms.empty());
  EXPECT_EQ(game->run.CurrentStep, 7);
}

TEST_F(StepSixTest, TheLogNamesTheFirstRaceWhereItsSearchStops) {
  const testing::TestFolder folder;
  game->RuleSwitches[kRollYourOwnDice] = 0;
  game->dice.LogMode = DiceLogMode::EachLine;
  GenerateHandedness(*game);
  GenerateFamilyHeritage(*game);
  const auto lines = testing::FileLines("dice.log");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_TRUE(lines[0].starts_with("Generate Handeness: " + RaceListText(0) + ", 1d100. VELD has rolled: "))
      << lines[0];
  EXPECT_TRUE(lines[1].starts_with("Generate Family Heritage: Human, Male, 1d100.")) << lines[1];
}

/// The button that the dialog names as next.
int NextButton(const Form& form) {
  for (const Control& control : form.Controls()) {
    if (control.Template.Kind != ControlKind::Button) continue;
    if (form.Text(kNext) == "Next: " + WithoutMnemonic(control.Text)) return control.Template.Id;
  }
  ADD_FAILURE() << "no button for " << form.Text(kNext);
  return kAbort;
}

TEST_F(StepSixTest, FollowingTheNextLineCompletesTheStep) {
  game->RuleSwitches[kRollYourOwnDice] = 0;
  BP() = 3.5F;
  player.dialog = [&](Form& form) {
    if (form.Name() != "StepSix") return;
    EXPECT_EQ(form.Text(kNext), "Next: Starting Age");
    form.Press(kFirstButton + static_cast<int>(kSocialClass));
    EXPECT_TRUE(player.messages.empty()) << "no class, no limits";
    form.Press(kOk);
    EXPECT_TRUE(player.Showed("You must Complete this section"));
    int presses = 0;
    for (; presses < 15 && form.Text(kNext) != "Next: OK"; ++presses) form.Press(NextButton(form));
    EXPECT_GE(presses, 9);
    player.messages.clear();
    form.Press(kFirstButton + static_cast<int>(kSocialClass));
    EXPECT_TRUE(player.Showed(SocialClassLimits(sheet.SocialClassIndex))) << "told on a closed gate too";
    form.PressDefault();
    EXPECT_TRUE(form.IsClosed());
  };
  RunStepSix(*game);
  EXPECT_EQ(game->run.CurrentStep, 7);

  player.dialog = [](Form& form) { form.PressCloseBox(); };
  RunStepSix(*game);
  EXPECT_EQ(game->run.CurrentStep, 1);
}

// --- All that can happen ------------------------------------------------------------------------------------------

using Sheet = CharacterSheet;
constexpr int Sheet::*kNumbers[] = {
    &Sheet::Age,         &Sheet::HeightInches, &Sheet::WeightLbs, &Sheet::MotherPresence, &Sheet::FatherPresence,
    &Sheet::SiblingCount};
constexpr std::tuple kTexts{&Sheet::Handedness,    &Sheet::SocialClassName, &Sheet::BirthCircumstance,
                            &Sheet::MotherStatus,  &Sheet::FatherStatus,    &Sheet::IllegitimacyNature,
                            &Sheet::MotherQuality, &Sheet::FatherQuality,   &Sheet::FamilyHeritage,
                            &Sheet::BirthOrder,    &Sheet::SiblingCountText};

constexpr std::string_view kTold[] = {"Unknown", "Legitimate", "illegitimate", "something else"};

/// All that the gates depend on.
struct PriorState {
  PriorGates Gates{};
  std::array<int, std::size(kNumbers)> Numbers{};
  std::array<std::size_t, std::tuple_size_v<decltype(kTexts)>> Texts{};  ///< places in kTold
  auto operator<=>(const PriorState&) const = default;
};

PriorState TakeState(const Sheet& sheet, const PriorGates& gates) {
  PriorState state{gates, {}, {}};
  for (std::size_t i = 0; i < std::size(kNumbers); ++i) state.Numbers[i] = std::clamp(sheet.*kNumbers[i], -1, 2);
  for (std::size_t i = 0; i < 3; ++i) state.Numbers[i] = std::min(state.Numbers[i], 1);
  std::size_t next = 0;
  const auto take = [&](std::string_view text) {
    const auto told = std::ranges::find(kTold, text) - kTold;
    state.Texts[next++] = std::min<std::size_t>(static_cast<std::size_t>(told), std::size(kTold) - 1);
  };
  std::apply([&](auto... field) { (take(sheet.*field), ...); }, kTexts);
  return state;
}

PriorGates PutState(Sheet& sheet, const PriorState& state) {
  for (std::size_t i = 0; i < std::size(kNumbers); ++i) sheet.*kNumbers[i] = state.Numbers[i];
  std::size_t next = 0;
  std::apply([&](auto... field) { ((sheet.*field = kTold[state.Texts[next++]]), ...); }, kTexts);
  return state.Gates;
}

bool IsComplete(const PriorState& state) {
  return kTold[state.Texts[9]] != kPriorUnknown;
}

/// Walks every state of Step 6 that presses and dice can bring about, with BP and without.
class PriorWalk {
 public:
  PriorWalk(std::string_view race, std::string_view gender) {
    game->sheet.RaceName = race;
    game->sheet.Gender = gender;
    player.thrower = [this](int sides, int count) { return NextDie(sides, count); };
    Visit(TakeState(game->sheet, OpenPriors(*game)));
    for (std::size_t i = 0; i < states.size(); ++i) {
      for (const float bp : {0.0F, 1.0F}) LeaveState(i, bp);
    }
  }

  /// The states from which no presses and dice lead to an order of birth once the BP are gone.
  std::size_t DeadEnds() const {
    std::vector<bool> ends(states.size());
    for (std::size_t i = 0; i < states.size(); ++i) ends[i] = IsComplete(states[i]);
    for (bool grew = true; grew;) {
      grew = false;
      for (const auto& [from, to] : freeSteps) {
        if (ends[from] || !ends[to]) continue;
        ends[from] = true;
        grew = true;
      }
    }
    return static_cast<std::size_t>(std::ranges::count(ends, false));
  }

  /// The states from which a player without BP who presses what is shown as next does not get there, whatever the dice.
  std::size_t MisleadingStates() {
    std::size_t misleading = 0;
    for (const PriorState& state : states) {
      bool arrives = true;
      for (const int die : kHundreds) {
        player.thrower = [die](int sides, int count) { return sides == 100 ? die : count; };
        PriorGates gates = PutState(game->sheet, state);
        game->run.BuildingPoints = 0;
        Prior next = NextPrior(*game, gates);
        for (int presses = 0; presses < 20 && next != kPriorCount; ++presses) {
          PressPrior(*game, gates, next);
          game->run.BuildingPoints = 0;
          next = NextPrior(*game, gates);
        }
        arrives = arrives && next == kPriorCount;
      }
      if (!arrives) ++misleading;
    }
    return misleading;
  }

  std::size_t States() const { return states.size(); }

 private:
  /// A result in each of the ranges that move the gates differently.
  static constexpr int kHundreds[] = {5, 40, 70, 85, 98};

  struct Choice {
    std::size_t Taken = 0;
    std::size_t Options = 0;
  };

  /// The dice of a press follow `choices`; NextCombination counts them on.
  int NextDie(int sides, int count) {
    if (thrown == choices.size()) choices.push_back({0, sides == 100 ? std::size(kHundreds) : 2});
    const std::size_t taken = choices[thrown++].Taken;
    if (sides == 100) return kHundreds[taken];
    return taken == 0 ? count : sides * count;
  }

  bool NextCombination() {
    while (!choices.empty()) {
      if (++choices.back().Taken < choices.back().Options) return true;
      choices.pop_back();
    }
    return false;
  }

  std::size_t Visit(PriorState state) {
    const auto [found, isNew] = numbers.try_emplace(state, states.size());
    if (isNew) states.push_back(std::move(state));
    return found->second;
  }

  void LeaveState(std::size_t from, float bp) {
    for (std::size_t prior = 0; prior < kPriorCount; ++prior) {
      if (states[from].Gates[prior] == PriorGate::Closed) continue;
      choices.clear();
      do {
        thrown = 0;
        PriorGates gates = PutState(game->sheet, states[from]);
        game->run.BuildingPoints = bp;
        PressPrior(*game, gates, static_cast<Prior>(prior));
        EXPECT_GE(game->run.BuildingPoints, 0);
        const std::size_t to = Visit(TakeState(game->sheet, gates));
        if (bp == 0) freeSteps.emplace(from, to);
      } while (NextCombination());
    }
  }

  testing::DicePlayer player;
  std::unique_ptr<Game> game = testing::QuietGame(player);
  std::vector<PriorState> states;
  std::map<PriorState, std::size_t> numbers;
  std::set<std::pair<std::size_t, std::size_t>> freeSteps;
  std::vector<Choice> choices;
  std::size_t thrown = 0;
};

TEST(StepSixGates, TheEndCanBeReachedFromEveryStateWithoutBP) {
  for (const auto& [race, gender] : {std::pair{"Human", "Male"}, std::pair{"Darkmen", "Female"}}) {
    PriorWalk walk(race, gender);
    EXPECT_GT(walk.States(), 100U);
    EXPECT_EQ(walk.DeadEnds(), 0U) << race;
    EXPECT_EQ(walk.MisleadingStates(), 0U) << race;
  }
}

TEST(StepSixAtRandom, NothingImpossibleComesOut) {
  int finished = 0;
  for (std::uint32_t seed = 0; seed < 400; ++seed) {
    testing::RandomPlayer player(seed);
    const auto game = testing::QuietGame(player);
    game->dice.RandomState = seed;
    game->sheet.RaceName = seed % 3 ? "Half-orc" : "Elf, Wood";
    game->run.LegitimacyModifier = static_cast<int>(player.Pick(80));
    game->run.CurrentStep = 3;
    game->run.BuildingPoints = static_cast<float>(player.Pick(20));
    RunStepSix(*game);
    const CharacterSheet& sheet = game->sheet;
    ASSERT_EQ(player.stuckForm, "") << seed;
    EXPECT_GE(game->run.BuildingPoints, 0) << seed;
    ASSERT_TRUE(sheet.MotherPresence >= -1 && sheet.MotherPresence <= 2 && sheet.FatherPresence >= -1 &&
                sheet.FatherPresence <= 2)
        << seed;
    ASSERT_TRUE(sheet.SiblingCount >= -4 && sheet.SiblingCount <= 9) << seed;
    if (game->run.CurrentStep != 7) continue;
    ++finished;
    ASSERT_GT(sheet.Age, 0) << seed;
    ASSERT_TRUE(sheet.SocialClassIndex >= 1 && sheet.SocialClassIndex <= 12) << seed;
    ASSERT_EQ(sheet.SiblingCount == 0, sheet.BirthOrder == "Only Child") << seed;
    ASSERT_EQ(IsIllegitimate(sheet.BirthCircumstance), sheet.IllegitimacyNature != "N/A") << seed;
    ASSERT_NE(sheet.FamilyHeritage, "Unknown") << seed;
    ASSERT_TRUE(sheet.MotherPresence > 0 || sheet.FatherPresence > 0 || sheet.IsOrphan == 1) << seed;
    const GenerationRun& run = game->run;
    ASSERT_EQ(run.MotherMinorQuirks + run.MotherMajorQuirks + run.FatherMinorQuirks + run.FatherMajorQuirks +
                  run.MotherQualityBP + run.FatherQualityBP,
              0)
        << seed;
    for (const int count : sheet.QuirkCounts) ASSERT_GE(count, -1) << seed;
  }
  EXPECT_GT(finished, 100);
}

}  // namespace
}  // namespace veld
