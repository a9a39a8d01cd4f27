#include "backgrounds/mage_school.h"

#include <algorithm>
#include <string>

#include "backgrounds/chain_page.h"
#include "backgrounds/college_events.h"
#include "backgrounds/school_harm.h"
#include "backgrounds/youth_modifiers.h"
#include "backgrounds/youth_quirks.h"
#include "dice/dice.h"
#include "dice/keep_roll.h"
#include "platform/form.h"
#include "rules/named_rows.h"
#include "rules/school_tables.h"
#include "rules/spell_catalogue.h"
#include "steps/skills/grants.h"
#include "steps/spells/spell_dealing.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

// --- The page ------------------------------------------------------------------------------------------------------

namespace Line {
constexpr int Location = 200;
constexpr int Type = 201;
constexpr int Nurture = 202;
constexpr int Education = 203;
constexpr int ClassSize = 204;
constexpr int Equipment = 205;
constexpr int Rank = 206;
constexpr int Results = 217;
constexpr int FirstEvent = 218;
}  // namespace Line

constexpr int kEventLines = 3;

constexpr ChainGroup kGroups[] = {
    {"Location of School", Line::Location},
    {"Type of School", Line::Type},
    {"Quality of Master: Nurture", Line::Nurture},
    {"Quality of Master: Education", Line::Education},
    {"Graduating Class Size", Line::ClassSize},
    {"Classroom Equipment", Line::Equipment},
    {"Graduating Rank", Line::Rank},
    {"Final Results of Education", Line::Results},
    {"Notable Collegiate Events\nDuring Apprenticeship", Line::FirstEvent, kEventLines},
};
constexpr auto kHXABackgroundControls =
    ChainControls<kGroups>("The Hexwright's Almanac to Erdra Domination: Training Tables");
constexpr std::string_view kHXABackgroundHelp =
    "How he became a mage: where his school lay and of what kind, whether the master was kind and knew his craft, how "
    "many sat beside him, and how well he came out. Each of these leans on the next, so the first ones weigh most. "
    "Then come the events of his college years, for good and ill.\n\n"
    "Begin rolls one table after another and shows each result beside its name; What this brought lists the skills, "
    "spells, quirks, age and BP that came of it. To keep a result is free; to refuse it costs 1 BP and rolls it "
    "again. Save BP for the quality of the master and the final results. The events may cost him a limb, but not his "
    "life. Close goes on when all has been rolled.";
constexpr FormTemplate kHXABackground{"HXABackground", "Hexwright's Almanac", kHXABackgroundControls,
                                      kHXABackgroundHelp};

// --- What is added to the rolls ------------------------------------------------------------------------------------

/// The number at the head of a text of the ability tables; a blank is 0.
int NumberOf(std::string_view text) {
  return SaturateToInt(ReadNumberPrefix(text));
}

int HeritageModifier(const Game& game) {
  return SchoolHeritageModifier(game.sheet.FamilyHeritage);
}
int IntelligenceModifier(const Game& game) {
  return SchoolIntelligenceModifier(game.sheet.Intelligence.Whole);
}
int MagicalDefense(const Game& game) {
  return NumberOf(game.sheet.MagicalDefenseAdj);
}

int LocationModifier(const Game& game) {
  return SchoolSocialModifier(game.sheet.SocialClassIndex) + HeritageModifier(game);
}

int TypeModifier(const Game& game, int ofLocation) {
  return ofLocation + MagicalDefense(game) + IntelligenceModifier(game) + HeritageModifier(game) +
         SchoolTypeClassModifier(game.sheet.ClassName);
}

int NurtureModifier(const Game& game) {
  return game.run.NurtureModifier + NumberOf(game.sheet.CharismaReactionAdj) + HeritageModifier(game) +
         SchoolNurtureClassModifier(game.sheet.ClassName);
}

int EducationModifier(const Game& game) {
  return game.run.SchoolEducationModifier + IntelligenceModifier(game);
}

int RankModifier(const Game& game) {
  return game.run.GraduatingRankModifier + 2 * MagicalDefense(game) + IntelligenceModifier(game);
}

// --- The tables of the schooling -----------------------------------------------------------------------------------

constexpr std::string_view kNoRankType = "Informal Apprenticeship";  ///< its graduates have no rank
constexpr std::string_view kFinalTitle = "Table 5K: Quality of Education Final Results";
constexpr int kExperienceStep = 100;

void GainExperience(Game& game, int die) {
  for (std::size_t row = 0; row < kClassRows; ++row) {
    if (game.sheet.ClassLevels[row] <= 0) continue;
    game.sheet.ClassExperience[row] += static_cast<float>(kExperienceStep * RollDice(game, die, 1));
  }
}

void TakeRow(Game& game, const SchoolRow& row) {
  GenerationRun& run = game.run;
  run.SchoolHonorModifier += row.Changes.Honor;
  run.GraduatingRankModifier += row.Changes.Rank;
  run.EducationResultModifier += row.Changes.Result;
  run.NurtureModifier += row.Changes.Nurture;
  run.SchoolEducationModifier += row.Changes.Education;
  run.ClassSizeModifier += row.Changes.ClassSize;
  run.EquipmentModifier += row.Changes.Equipment;
  GiveGrants(game, row.Grants);
  if (row.ExperienceDie > 0) GainExperience(game, row.ExperienceDie);
}

/// Rolls one of the tables of the schooling with 1d8 and 1d12. Its text and its total go to the sheet, its text to the
/// page.
template <typename Text>
const SchoolRow& RollSchoolTable(ChainPage& page, SchoolTable table, int modifier, int line, Text& text, int& total) {
  Game& game = page.game;
  const std::string_view title = SchoolTableName(table);
  const SchoolRow* row = nullptr;
  RollChainTable(page, title, [&] {
    const int eight = RollDice(game, 8, 1);
    total = AddSaturated(eight + RollDice(game, 12, 1), modifier);
    row = &SchoolRowOf(table, total);
    const std::string shown =
        table == SchoolTable::Location ? Format("(%i) %s", total, row->Name) : std::string(row->Name);
    if (!IsResultKept(game, title, shown)) return false;
    text = row->Name;
    TakeRow(game, *row);
    return true;
  });
  ShowChainLine(page, line, text);
  return *row;
}

/// The result has no line of its own, and what a row takes off the BP is no change of the character.
void TellFinalResult(ChainPage& page, std::string_view text) {
  page.brought.push_back(Format("Final result: %s", text));
  page.form.SetItems(ChainControl::Brought, page.brought);
}

void RollFinalResult(ChainPage& page) {
  Game& game = page.game;
  game.run.AcademicBP = 0;
  game.run.ArcaneBP = 0;
  game.run.LanguageBP = 0;
  RollChainTable(page, kFinalTitle, [&] {
    const int total = AddSaturated(RollDice(game, 1000, 1), game.run.EducationResultModifier);
    const SchoolResult* const result = FindSchoolResult(total);
    if (result == nullptr) return false;
    const bool isKept = IsResultKept(game, kFinalTitle, Format("%i %s", total, result->Text));
    if (isKept) {
      TellFinalResult(page, result->Text);
      GiveGrants(game, result->Grants);
    }
    game.run.BuildingPoints = std::max(game.run.BuildingPoints, 0.0F);
    return isKept;
  });
}

/// The cantrips of a mage without school years, which the results of the education may change.
int Cantrips(const Game& game) {
  return CantripAllowance(game.sheet.Intelligence.Whole, game.sheet.QuirkCounts[QuirkRow::ChintzyMentor] > 0);
}

void RunMageChain(ChainPage& page) {
  Game& game = page.game;
  CharacterSheet& sheet = game.sheet;
  GenerationRun& run = game.run;
  run.SpellListIndex = Cantrips(game);
  run.CollegeEventSeen = {};
  run.MoneyBonusPercent = 0;
  run.SchoolHonorModifier = 0;
  page.before = TakeSnapshot(game);  // that is how the years begin, and no table's doing

  const SchoolRow& location = RollSchoolTable(page, SchoolTable::Location, LocationModifier(game), Line::Location,
                                              sheet.SchoolLocation, sheet.SchoolLocationRoll);
  RollSchoolTable(page, SchoolTable::Type, TypeModifier(game, location.Changes.Type), Line::Type, sheet.SchoolType,
                  sheet.SchoolQualityRoll);
  RollSchoolTable(page, SchoolTable::Nurture, NurtureModifier(game), Line::Nurture, sheet.MasterNurture,
                  sheet.MasterNurtureRoll);
  SufferMaster(page, sheet.MasterNurture);
  RollSchoolTable(page, SchoolTable::Education, EducationModifier(game), Line::Education, sheet.MasterEducation,
                  sheet.MasterEducationRoll);
  RollSchoolTable(page, SchoolTable::ClassSize, run.ClassSizeModifier, Line::ClassSize, sheet.GraduatingClassSize,
                  sheet.GraduatingClassRoll);
  RollSchoolTable(page, SchoolTable::Equipment, run.EquipmentModifier, Line::Equipment, sheet.ClassroomEquipment,
                  sheet.ClassroomRoll);
  if (sheet.SchoolType != kNoRankType) {
    RollSchoolTable(page, SchoolTable::Rank, RankModifier(game), Line::Rank, sheet.GraduatingRank,
                    sheet.GraduatingRankRoll);
  }
  // The lines of the events show the rank; what the events were is told by what they brought.
  for (int rounds = RollDice(game, kEventLines, 1); rounds > 0; --rounds) {
    RollCollegeEvent(page);
    ShowChainLine(page, Line::FirstEvent + rounds - 1, sheet.GraduatingRank);
  }
  RollFinalResult(page);
  RollHonorModifier(page, "5M", run.SchoolHonorModifier);
  RollMoneyModifier(page, "5N", 0);
  sheet.UsesMageBackground = 1;
  // A Chintzy Mentor's limit holds whatever the results brought.
  if (sheet.QuirkCounts[QuirkRow::ChintzyMentor] > 0)
    run.SpellListIndex = std::min(run.SpellListIndex, kChintzyCantrips);
}

}  // namespace

void RunHXABackground(Game& game) {
  RunChainPage(game, kHXABackground, kGroups, RunMageChain);
}

}  // namespace veld
