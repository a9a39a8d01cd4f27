#include "backgrounds/seminary.h"

#include <algorithm>

#include "backgrounds/chain_page.h"
#include "backgrounds/youth_modifiers.h"
#include "dice/building_points.h"
#include "dice/dice.h"
#include "dice/keep_roll.h"
#include "platform/platform.h"
#include "rules/class_table.h"
#include "rules/quirk_table.h"
#include "rules/seminary_tables.h"
#include "rules/skill_table.h"
#include "steps/skills/buy_skill.h"
#include "steps/skills/grants.h"
#include "steps/skills/pick_dialogs.h"
#include "steps/skills/talent_purchase.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr ChainGroup kGroups[] = {
    {"The Call", 200},
    {"Type of Ecclesiastical Training", 201},
    {"Competency of Reverend Superior", 202},
    {"Personality of Reverend Superior", 203},
    {"Religious Accoutrements", 204},
    {"Location of Residency", 205},
    {"Results of Residency", 206},
    {"Quality of Education final Results", 207},
};
constexpr auto kControls = ChainControls<kGroups>("The Devotee's Almanac to Erdra Conversion Training Tables");
constexpr std::string_view kPageHelp =
    "How he became a priest: what called him, the school that took him, the reverend superior he served and what he "
    "was like, the things of his faith he was given, and how his residency went. Begin rolls one table after another "
    "and shows each result beside its name. What this brought lists the skills, quirks, Honor and goods that came of "
    "it.\n\n"
    "To keep a result is free; to refuse it costs 1 BP and rolls it again. The superior's competency carries through "
    "to the final results, so a BP is best spent there. What is left goes to the skills. Close goes on when all has "
    "been rolled.";
constexpr FormTemplate kPage{"DVABackground", "Devotee's Almanac", kControls, kPageHelp};

constexpr int kMastered = 50;
constexpr std::size_t kPriestClasses = 150;  ///< rows among which experience of the youth is shared out
constexpr std::string_view kReadingWriting = "Reading/Writing";

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

void Add(int& number, int amount) {
  number = AddSaturated(number, amount);
}

// --- A table -----------------------------------------------------------------------------------------------------

/// A table of the chain: its name, where its result is shown and where it is kept.
template <typename Field>
struct ChainTable {
  std::string_view Name;
  int Line;
  Field& Result;
};
template <typename Field>
ChainTable(std::string_view, int, Field&) -> ChainTable<Field>;

/// Rolls a table until its row is kept, and lets `take` do what the row says. A total that no row is for leaves the
/// result as it was, asks nothing and does what the first row says.
template <typename Field, typename Row, typename Roll, typename Take>
void RollTable(ChainPage& page, ChainTable<Field> table, std::span<const Row> rows, Roll roll, Take take) {
  RollChainTable(page, table.Name, [&] {
    const int total = roll();
    const Row* const row = RowOfRoll(rows, total);
    if (row != nullptr) {
      const std::string question = Format("%s - Keep your result of (%i) %s?", table.Name, total, row->Text);
      if (!AskKeep(page.game, question, Answer::No)) return false;
      table.Result = row->Text;
      ShowChainLine(page, table.Line, row->Text);  // whole, where the field holds less
    }
    take(row != nullptr ? *row : rows.front());
    return true;
  });
}

int RollTwoKinds(Game& game) {
  const int eight = RollDice(game, 8, 1);
  return eight + RollDice(game, 12, 1);
}

// --- Who one is --------------------------------------------------------------------------------------------------

int BirthModifier(int socialClass) {
  if (socialClass < 4) return -70;
  if (socialClass > 11) return 35;
  constexpr int kModifiers[] = {-60, -50, -40, -15, 0, 5, 10, 25};  // of the classes 4 to 11
  return kModifiers[socialClass - 4];
}

struct HeritageModifier {
  std::string_view Heritage;
  int Training;
  int Personality;
};

constexpr HeritageModifier kHeritages[] = {
    {"Great Dishonor", -30, -6},
    {"Dishonor", -10, -2},
    {"Honorable", 10, 2},
    {"Great Honor", 20, 4},
};

int ModifierOfHeritage(const CharacterSheet& sheet, int HeritageModifier::*modifier) {
  for (const HeritageModifier& row : kHeritages) {
    if (EqualsIgnoringCase(sheet.FamilyHeritage, row.Heritage)) return row.*modifier;
  }
  return 0;
}

/// The strength of the will against magic is a sign of the gawds' favor.
int FavorModifier(const CharacterSheet& sheet) {
  return 5 * SaturateToInt(ReadNumberPrefix(sheet.MagicalDefenseAdj));
}

int ZealModifier(const CharacterSheet& sheet) {
  return Contains(sheet.ClassName, "Zealot") ? 2 : 0;
}

// --- What rows give ----------------------------------------------------------------------------------------------

/// The members of a suite are known before the suite itself is taken up. No suite of Table 2H has a family among them.
void RaiseMembers(Game& game, std::string_view name) {
  for (const SkillRecord& skill : SkillTable()) {
    if (!Contains(name, skill.Name)) continue;
    for (const int member : skill.SuiteMembers) {
      if (member < 0) continue;
      int& mastery = game.sheet.SkillScores[Index(member)];
      mastery = std::max(mastery, kMastered);
    }
  }
}

void GainSkill(Game& game, std::string_view name) {
  RaiseMembers(game, name);
  if (name != kReadingWriting) return GrantSkillAtNoCost(game, name);
  const int kept = TruncateToInt(game.run.BuildingPoints);
  PickReadingWriting(game);
  game.run.BuildingPoints = static_cast<float>(kept);
}

void RollAcquiredSkill(ChainPage& page) {
  constexpr std::string_view kTable = "Table 2H: Skills Acquired";
  RollChainTable(page, kTable, [&] {
    const int roll = RollDice(page.game, 12, 2);
    const std::string_view skill = AcquiredSkill(roll);
    const std::string question = Format("%s - Keep your result of (%i) %s?", kTable, roll, TrimRight(skill));
    if (!AskKeep(page.game, question, Answer::No)) return false;
    GainSkill(page.game, skill);
    return true;
  });
}

void GainPoints(Game& game, int points) {
  int& bonus = game.run.PackageBonusPoints;
  if (points == 1) Add(bonus, RollDice(game, 4, 1) - 1);
  if (points == 2) Add(bonus, RollDice(game, 6, 1));
  if (points == 3) Add(bonus, RollDice(game, 6, 2));
}

/// The percentile of Charisma may stand below 0 until it is next carried into the whole score.
void MeetSuperior(ChainPage& page, const SuperiorRow& row) {
  Game& game = page.game;
  if (row.CharismaDice > 0) Add(game.sheet.Charisma.Percentile, -RollDice(game, 12, row.CharismaDice));
  Add(game.run.SeminaryEducationModifier, row.Education);
  if (row.Skill > 0) RollAcquiredSkill(page);
  GainPoints(game, row.Points);
  Add(game.run.HonorTableModifier, row.Honor);
}

/// A row that owes a roll on another table has it rolled, and nothing comes of it.
void GainQuirk(Game& game, int row) {
  if (row <= 0) return;
  const QuirkRecord& quirk = QuirkTable()[Index(row)];
  if (quirk.Kind == kSubTable) {
    RollTableUntilRow(game, quirk.NextTable);
  } else {
    game.sheet.QuirkCounts[Index(row)] = 1;
  }
}

void GainExperience(CharacterSheet& sheet, int experience) {
  for (std::size_t row = 0; row < kPriestClasses; ++row) {
    if (sheet.ClassLevels[row] != 1 || ClassTable()[row].IsCleric != 1) continue;
    sheet.ClassExperience[row] += static_cast<float>(experience);
  }
}

void GainTalent(CharacterSheet& sheet, int row) {
  if (row <= 0) return;
  int& count = sheet.TalentCounts[Index(row)];
  if (count != kTalentOfRace) Add(count, 1);
}

void EndResidency(Game& game, const ResidencyResultRow& row) {
  Add(game.run.SeminaryEducationModifier, row.Education);
  Add(game.run.HonorTableModifier, row.Honor);
  GainQuirk(game, row.Quirk);
  if (!row.Skill.empty()) BuySkill(game, {.Name = std::string(row.Skill)});
  GainExperience(game.sheet, row.Experience);
  if (row.Weapon == 1) PickProficiency(game, WeaponPick::Melee);
  if (row.Gold > 0) Add(game.run.ResidencyGold, RollDice(game, row.Gold, 1));
  GainTalent(game.sheet, row.Talent);
}

/// What an education costs in BP can't be more than there is.
void EndEducation(Game& game, const EducationRow& row) {
  const float before = game.run.BuildingPoints;
  GiveGrants(game, row.Change);
  float& bp = game.run.BuildingPoints;
  if (bp < before) bp = std::max(bp, 0.0F);
}

// --- The chain ---------------------------------------------------------------------------------------------------

void RollCall(ChainPage& page) {
  Game& game = page.game;
  RollTable(
      page, ChainTable{"Table 2B: The Call", 200, game.sheet.TheCall}, SeminaryCalls(),
      [&] { return RollDice(game, 100, 1); }, [&](const CallRow& row) { game.run.CallModifier = row.Value; });
}

/// One who was forced into the service has no say in his training.
int RollTraining(Game& game) {
  const CharacterSheet& sheet = game.sheet;
  const int roll = RollDice(game, 100, 1);
  if (game.run.CallModifier == kConscripted) return kConscriptedRoll;
  return roll + game.run.CallModifier + BirthModifier(sheet.SocialClassIndex) +
         ModifierOfHeritage(sheet, &HeritageModifier::Training) + FavorModifier(sheet);
}

void RollTrainingTable(ChainPage& page) {
  Game& game = page.game;
  RollTable(
      page, ChainTable{"Table 2C: Type of Ecclesiastical Training", 201, game.sheet.EcclesiasticalTraining},
      SeminaryTrainings(), [&] { return RollTraining(game); },
      [&](const TrainingRow& row) {
        game.run.AccoutrementsModifier = row.Accoutrements;
        game.run.CompetencyModifier = row.Competency;
        game.run.PersonalityModifier = row.Personality;
        game.run.SeminaryEducationModifier = row.Education;
        game.run.ResidencyLocationModifier = row.Location;
      });
}

void RollSuperior(ChainPage& page) {
  Game& game = page.game;
  CharacterSheet& sheet = game.sheet;
  const auto meet = [&](const SuperiorRow& row) { MeetSuperior(page, row); };
  const auto competency = [&] {
    return RollTwoKinds(game) + game.run.CompetencyModifier + ZealModifier(sheet) + FavorModifier(sheet);
  };
  const auto personality = [&] {
    return RollTwoKinds(game) + game.run.PersonalityModifier + ZealModifier(sheet) +
           ModifierOfHeritage(sheet, &HeritageModifier::Personality) +
           SaturateToInt(ReadNumberPrefix(sheet.CharismaReactionAdj));
  };
  RollTable(page, ChainTable{"Table 2D: Competency of Reverend Superior", 202, sheet.SuperiorCompetency},
            SuperiorCompetencies(), competency, meet);
  RollTable(page, ChainTable{"Table 2E: Personality of Reverend Superior", 203, sheet.SuperiorPersonality},
            SuperiorPersonalities(), personality, meet);
}

void RollAccoutrements(ChainPage& page) {
  Game& game = page.game;
  RollTable(
      page, ChainTable{"Table 2F: Religious Accoutrements", 204, game.sheet.ReligiousAccoutrements},
      SeminaryAccoutrements(), [&] { return RollTwoKinds(game) + game.run.AccoutrementsModifier; },
      [&](const AccoutrementsRow& row) {
        Add(game.run.SeminaryEducationModifier, row.Education);
        if (row.Skill > 0) RollAcquiredSkill(page);
        GainPoints(game, row.Points);
      });
}

void RollResidency(ChainPage& page) {
  Game& game = page.game;
  RollTable(
      page, ChainTable{"Table 2I: Location of Residency", 205, game.sheet.ResidencyLocation}, Residencies(),
      [&] { return RollDice(game, 6, 3) + game.run.ResidencyLocationModifier; },
      [&](const ResidencyRow& row) {
        Add(game.run.ResidencyResultsModifier, row.Results);
        if (row.Years > 0) Add(game.sheet.Age, RollDice(game, row.Years, 1));
      });
  RollTable(
      page, ChainTable{"Table 2J: Results of Residency", 206, game.sheet.ResidencyResults}, ResidencyResultRows(),
      [&] { return RollDice(game, 12, 2) + game.run.ResidencyResultsModifier; },
      [&](const ResidencyResultRow& row) { EndResidency(game, row); });
}

void RollEducation(ChainPage& page) {
  Game& game = page.game;
  RollTable(
      page, ChainTable{"Table 2G: Quality of Education Final Results", 207, game.sheet.EducationResults},
      EducationRows(), [&] { return RollDice(game, 100, 1) + game.run.SeminaryEducationModifier; },
      [&](const EducationRow& row) { EndEducation(game, row); });
}

void RollModifiers(ChainPage& page) {
  RollHonorModifier(page, "2K", page.game.run.HonorTableModifier);
  RollMoneyModifier(page, "2L", page.game.run.MoneyTableModifier);
}

void RunPriestChain(ChainPage& page) {
  if (page.game.run.CharacterDead == 1) {
    page.game.run.CurrentStep = 0;
    return;
  }
  constexpr void (*kTables[])(ChainPage&) = {RollCall,      RollTrainingTable, RollSuperior, RollAccoutrements,
                                             RollResidency, RollEducation,     RollModifiers};
  for (const auto roll : kTables) roll(page);
}

}  // namespace

void RunDVABackground(Game& game) {
  RunChainPage(game, kPage, kGroups, RunPriestChain, ChainBP::Whole);
}

}  // namespace veld
