#include "steps/classes/class_choice.h"

#include "platform/form.h"
#include "platform/platform.h"
#include "rules/ability_effects.h"
#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "rules/race_table.h"
#include "store/sheet_accessors.h"
#include "text/format.h"

namespace veld {

namespace {

constexpr int kHighestSocialClass = 12;
constexpr int kNotPreviewed = 9;  ///< the step from which on Charisma's change stands in Comeliness

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

/// What a character is held against the classes with.
struct Candidate {
  std::array<float, kAbilityCount> Abilities{};  ///< see AbilityAsNumber
  int SocialClass = 0;
};

Candidate CandidateOf(const Game& game) {
  const CharacterSheet& sheet = game.sheet;
  Candidate candidate;
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    AbilityScore score = AbilityAt(sheet, ability);
    const bool isPreview = game.run.CurrentStep > 0 && game.run.CurrentStep < kNotPreviewed;
    if (ability == kComeliness && isPreview) {
      score.Whole = AddSaturated(score.Whole, ComelinessChange(sheet.Charisma));
    }
    candidate.Abilities[Index(ability)] = AbilityAsNumber(score);
  }
  // A mage of the Hexwright's Almanac may be of any birth.
  const bool anyBirth = sheet.UsesMageBackground == 1 || !game.IsOn(kSocialClassRestrictions);
  candidate.SocialClass = anyBirth ? kHighestSocialClass : sheet.SocialClassIndex;
  return candidate;
}

/// The abilities as they count for one class: some races are shrewder as battle mages.
std::array<float, kAbilityCount> AbilitiesFor(const Game& game, const Candidate& candidate, int classRow) {
  std::array<float, kAbilityCount> abilities = candidate.Abilities;
  if (classRow == ClassRow::BattleMage && HasTrait(game.sheet.RaceName, RaceTrait::ShrewdBattleMage)) {
    abilities[kIntelligence] += 1;
  }
  return abilities;
}

bool IsOffered(const Game& game, const Candidate& candidate, int classRow) {
  const ClassRecord& record = ClassTable()[Index(classRow)];
  return game.run.ClassAllowed[Index(classRow)] != 0 && !record.Name.empty() && game.IsOn(Index(record.RuleSwitch)) &&
         record.MinSocialClass <= candidate.SocialClass &&
         FirstUnmetAbility(classRow, AbilitiesFor(game, candidate, classRow)) < 0;
}

/// An almanac whose flaws bind a character to classes of one group.
struct LockIn {
  int GenerationFlag;
  int ClassRecord::*Group;
  std::string_view Book;
  std::string_view GroupName;
};

std::array<LockIn, 4> LockIns(const Game& game) {
  return {{
      {game.sheet.UsesFighterBackground, &ClassRecord::IsFighter, "Warmonger's Almanac", "fighter"},
      {game.sheet.UsesMageBackground, &ClassRecord::IsMage, "Hexwright's Almanac", "mage"},
      {game.run.UsesThiefBackground, &ClassRecord::IsThief, "Swindler's Almanac", "thief"},
      {game.sheet.UsesClericBackground, &ClassRecord::IsCleric, "Devotee's Almanac", "cleric"},
  }};
}

/// True if the race, or the race that a half-blood takes after, has the class.
bool IsOpenToRace(const Game& game, int classRow) {
  const CharacterSheet& sheet = game.sheet;
  int row = FindTakenAfterRow(RaceTakenAfter(sheet));
  if (row < 0) row = FindRaceRow(sheet.RaceName, sheet.Gender);
  return row >= 0 && RaceTable()[Index(row)].ClassLevelLimits[Index(classRow)] != 0;
}

/// A limit of an ability as players write it: 16 or 16/50.
std::string LimitText(float limit) {
  const int whole = TruncateToInt(limit);
  const int percent = TruncateToInt((limit - static_cast<float>(whole)) * 100 + 0.5F);
  return percent == 0 ? Format("%i", whole) : Format("%i/%i", whole, percent);
}

void AddSentence(std::string& text, const std::string& sentence) {
  if (!text.empty()) text += ' ';
  text += sentence;
}

/// A score that counts as `value`, as the page writes it.
std::string ScoreText(const Game& game, float value, int ability) {
  return Format("%i/%i", TruncateToInt(value), AbilityAt(game.sheet, ability).Percentile);
}

void AddAbilityReasons(std::string& reasons, const Game& game, const Candidate& candidate, int classRow) {
  const auto abilities = AbilitiesFor(game, candidate, classRow);
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const AbilityNumberRange& range = ClassTable()[Index(classRow)].AbilityRange[Index(ability)];
    const float value = abilities[Index(ability)];
    if (value < range.Minimum) {
      AddSentence(reasons, Format("Needs %s %s, yours is %s.", AbilityName(ability), LimitText(range.Minimum),
                                  ScoreText(game, value, ability)));
    } else if (value > range.Maximum) {
      AddSentence(reasons, Format("%s may be %s at most, yours is %s.", AbilityName(ability), LimitText(range.Maximum),
                                  ScoreText(game, value, ability)));
    }
  }
}

/// What race and flaws do. A class that the race has can only have been closed by a flaw.
void AddClosedReasons(std::string& reasons, const Game& game, int classRow) {
  if (game.run.ClassAllowed[Index(classRow)] != 0) return;
  if (!IsOpenToRace(game, classRow)) {
    AddSentence(reasons, Format("Closed to the race %s.", game.sheet.RaceName));
    return;
  }
  for (const LockIn& lockIn : LockIns(game)) {
    if (lockIn.GenerationFlag != 1 || ClassTable()[Index(classRow)].*lockIn.Group != 0) continue;
    AddSentence(reasons, Format("A quirk or flaw of the %s leaves only %s classes.", lockIn.Book, lockIn.GroupName));
    return;
  }
  AddSentence(reasons, "Barred by a quirk or flaw.");
}

}  // namespace

bool IsClassOffered(const Game& game, int classRow) {
  return classRow >= 0 && classRow < kClassRows && IsOffered(game, CandidateOf(game), classRow);
}

void LockInClassGroups(Game& game) {
  if (game.sheet.UsesMageBackground != 1) game.sheet.UsesMageBackground = 0;
  for (const LockIn& lockIn : LockIns(game)) {
    if (lockIn.GenerationFlag != 1) continue;
    for (int row = 0; row < kClassRows; ++row) {
      if (ClassTable()[Index(row)].*lockIn.Group == 0) game.run.ClassAllowed[Index(row)] = 0;
    }
  }
}

void FillClassBox(Game& game, Form& form) {
  LockInClassGroups(game);
  const Candidate candidate = CandidateOf(game);
  std::vector<std::string> offered;
  for (int row = 0; row < kClassRows; ++row) {
    if (!IsOffered(game, candidate, row)) continue;
    offered.emplace_back(ClassTable()[Index(row)].Name);
    if (game.run.CurrentStep == 9) game.platform.ShowMessage(Format("Adding %s", offered.back()), "FillClassBox");
  }
  const std::size_t sent = offered.size();
  form.SetItems(kClassList, std::move(offered));
  const std::size_t posted = form.Items(kClassList).size();
  if (posted >= sent) return;
  game.platform.ShowMessage(
      Format("There was a problem in function FillListBox. %i items were sent and only %i were posted", sent, posted),
      "FillClassBox");
}

std::vector<int> MissingClasses(const Game& game) {
  const Candidate candidate = CandidateOf(game);
  std::vector<int> missing;
  for (int row = 0; row < kClassRows; ++row) {
    if (!ClassTable()[Index(row)].Name.empty() && !IsOffered(game, candidate, row)) missing.push_back(row);
  }
  return missing;
}

std::string WhyClassIsMissing(const Game& game, int classRow) {
  if (classRow < 0 || classRow >= kClassRows) return {};
  const ClassRecord& record = ClassTable()[Index(classRow)];
  const Candidate candidate = CandidateOf(game);
  std::string reasons;
  if (record.Name.empty()) return reasons;
  AddAbilityReasons(reasons, game, candidate, classRow);
  AddClosedReasons(reasons, game, classRow);
  if (record.MinSocialClass > candidate.SocialClass) {
    AddSentence(reasons, Format("Needs social class %i, yours is %i.", record.MinSocialClass, candidate.SocialClass));
  }
  if (!game.IsOn(Index(record.RuleSwitch))) {
    AddSentence(reasons, Format("%s is switched off.", BookOfSwitch(record.RuleSwitch)));
  }
  return reasons;
}

}  // namespace veld
