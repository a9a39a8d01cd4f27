#include "steps/skills/grants.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "dice/dice.h"
#include "platform/ask_name.h"
#include "rules/proficiency_table.h"
#include "rules/quirk_table.h"
#include "rules/skill_table.h"
#include "rules/talent_table.h"
#include "steps/quirks/quirks_and_flaws.h"
#include "steps/skills/buy_skill.h"
#include "steps/skills/pick_dialogs.h"
#include "steps/skills/pirate_skills.h"
#include "steps/skills/proficiency_purchase.h"
#include "steps/skills/skill_buyer.h"
#include "steps/skills/skill_target.h"
#include "steps/skills/talent_purchase.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr float kGrantBP = 100;  ///< what a purchase that costs nothing finds in the purse
constexpr int kPrerequisiteScore = 50;
constexpr int kMishapStep = 20;  ///< of QuirksandFlawsMage while it works off a mishap
constexpr std::string_view kAttackBonus = "Attack Bonus";

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

int RollAmount(Game& game, const GrantAmount& amount) {
  const int rolled = amount.Count > 0 ? RollDice(game, amount.Sides, amount.Count) : 0;
  return AddSaturated(rolled, amount.Plus);
}

void ChangeNumber(int& number, GrantChange change, int amount) {
  switch (change) {
    case GrantChange::None:
      return;
    case GrantChange::Set:
      number = amount;
      return;
    case GrantChange::Raise:
      number = std::max(number, amount);
      return;
    case GrantChange::Add:
      number = AddSaturated(number, amount);
      return;
    case GrantChange::Take:
      number = AddSaturated(number, -amount);
      return;
  }
}

void ChangeNumber(float& number, GrantChange change, int amount) {
  const auto value = static_cast<float>(amount);
  switch (change) {
    case GrantChange::None:
      return;
    case GrantChange::Set:
      number = value;
      return;
    case GrantChange::Raise:
      number = std::max(number, value);
      return;
    case GrantChange::Add:
      number += value;
      return;
    case GrantChange::Take:
      number -= value;
      return;
  }
}

/// Runs a purchase with enough BP for anything, and gives the player's own back as a whole number.
template <typename Purchase>
void RunForNothing(Game& game, Purchase purchase) {
  const int kept = TruncateToInt(game.run.BuildingPoints);
  game.run.BuildingPoints = kGrantBP;
  purchase();
  game.run.BuildingPoints = static_cast<float>(kept);
}

// --- Fields --------------------------------------------------------------------------------------------------------

/// Where the pools of BP stand; null for a field that is no pool.
float* PoolOf(GenerationRun& run, GrantField field) {
  switch (field) {
    case GrantField::BuildingPoints:
      return &run.BuildingPoints;
    case GrantField::AcademicBP:
      return &run.AcademicBP;
    case GrantField::ArcaneBP:
      return &run.ArcaneBP;
    case GrantField::LanguageBP:
      return &run.LanguageBP;
    case GrantField::SocialBP:
      return &run.SocialBP;
    case GrantField::PackageBP:
      return &run.PackageBP;
    default:
      return nullptr;
  }
}

/// Where a field that is neither an ability nor a pool stands.
int* NumberOf(Game& game, GrantField field) {
  GenerationRun& run = game.run;
  switch (field) {
    case GrantField::Honor:
      return &run.HonorBackgroundModifier;
    case GrantField::SchoolHonor:
      return &run.SchoolHonorModifier;
    case GrantField::Age:
      return &game.sheet.Age;
    case GrantField::Weight:
      return &game.sheet.WeightLbs;
    case GrantField::Gold:
      return &game.sheet.GoldPieces;
    case GrantField::MoneyPercent:
      return &run.MoneyBonusPercent;
    case GrantField::MoneyRoll:
      return &run.InheritanceModifier;
    case GrantField::FreeSkillPicks:
      return &run.FreeSkillPicks;
    case GrantField::VeteranFreeSkills:
      return &run.VeteranFreeSkills;
    case GrantField::BonusSkillPoints:
      return &run.BonusSkillPoints;
    case GrantField::PackageBonusPoints:
      return &run.PackageBonusPoints;
    case GrantField::ProficiencySlotsUsed:
      return &game.sheet.ProficiencySlotsUsed;
    case GrantField::FreeWeaponProficiencySlots:
      return &game.sheet.FreeWeaponProficiencySlots;
    case GrantField::MartialStyleDiscount:
      return &run.MartialStyleDiscount;
    case GrantField::AmazonDoubleRoll:
      return &run.AmazonDoubleRoll;
    case GrantField::BowBonusDiscount:
      return &run.BowBonusDiscount;
    case GrantField::CrossbowBonusDiscount:
      return &run.CrossbowBonusDiscount;
    case GrantField::SelfDisciplinePrice:
      return &run.SelfDisciplinePrice;
    case GrantField::StartingCantrips:
      return &run.SpellListIndex;
    case GrantField::StartingSpells:
      return &run.StartingSpells;
    case GrantField::FreeLevel1Spells:
      return &run.FreeLevel1Spells;
    case GrantField::FreeLevel3Spells:
      return &run.FreeLevel3Spells;
    case GrantField::FreeAnySpells:
      return &run.FreeAnySpells;
    case GrantField::SpellLearn:
      return &run.SpellLearnBonusPermanent;
    case GrantField::SpellLearnFirstLevel:
      return &run.SpellLearnBonusFirstLevel;
    case GrantField::EducationResult:
      return &run.EducationResultModifier;
    case GrantField::HonorLimit:
      return &run.HonorLimitFlag;
    case GrantField::NonProficiencyPenalty:
      return &run.NonProficiencyPenalty;
    default:
      return nullptr;
  }
}

int Distance(GrantField field, GrantField from) {
  return static_cast<int>(field) - static_cast<int>(from);
}

/// Percentile points that leave their range are carried into the whole score.
bool ChangeAbility(Game& game, GrantField field, GrantChange change, int amount) {
  const int percentile = Distance(field, GrantField::StrengthPercentile);
  if (percentile >= 0 && percentile < kAbilityCount) {
    AbilityScore& score = AbilityAt(game.sheet, percentile);
    ChangeNumber(score.Percentile, change, amount);
    NormalizeAbility(score);
    return true;
  }
  const int whole = Distance(field, GrantField::Strength);
  if (whole < 0 || whole >= kAbilityCount) return false;
  ChangeNumber(AbilityAt(game.sheet, whole).Whole, change, amount);
  return true;
}

void ChangeField(Game& game, const Grant& grant) {
  const auto field = static_cast<GrantField>(grant.Row);
  const int amount = RollAmount(game, grant.Amount);
  if (ChangeAbility(game, field, grant.Change, amount)) return;
  if (float* const pool = PoolOf(game.run, field)) return ChangeNumber(*pool, grant.Change, amount);
  if (int* const number = NumberOf(game, field)) ChangeNumber(*number, grant.Change, amount);
}

// --- Skills --------------------------------------------------------------------------------------------------------

void RaiseFor(Game& game, std::string_view skill, Prerequisites prerequisites) {
  if (prerequisites == Prerequisites::Raised) RaisePrerequisites(game, skill);
}

void BuyTimes(Game& game, const Grant& grant, Prerequisites prerequisites) {
  RaiseFor(game, grant.Name, prerequisites);
  for (int time = 0; time < grant.Times; ++time) GrantSkillAtNoCost(game, grant.Name);
}

void ChangeScore(Game& game, const Grant& grant) {
  const int row = FindSkillRow(grant.Name);
  if (row < 0) return;
  int& mastery = game.sheet.SkillScores[Index(row)];
  if (grant.Kind == GrantKind::AddDie) {
    mastery = AddSaturated(mastery, RollPenetratingDice(game, grant.Amount.Sides, grant.Amount.Count));
  } else if (grant.Kind == GrantKind::FromIntellect) {
    if (mastery == 0) mastery = game.sheet.Intelligence.Whole;
  } else {
    ChangeNumber(mastery, grant.Change, RollAmount(game, grant.Amount));
  }
}

void GivePick(Game& game, const Grant& grant, Prerequisites prerequisites) {
  RaiseFor(game, SkillTable2()[Index(grant.Row)].Name, prerequisites);
  PickDetail(game, grant.Row);
  int* const mastery = LastDetailMastery(game, grant.Row);
  if (mastery != nullptr) ChangeNumber(*mastery, grant.Change, RollAmount(game, grant.Amount));
}

void GiveChoice(Game& game, const Grant& grant, Prerequisites prerequisites) {
  std::vector<std::string> names;
  for (std::string_view rest = grant.Name; !rest.empty();) names.emplace_back(GrantReader::NextName(rest));
  const PickPage page = grant.Kind == GrantKind::Choose ? PickPage::FreeRemote : PickPage::FreeWeapon;
  const int picked = PickOne(game, page, names);
  if (picked < 0) return;
  RaiseFor(game, names[Index(picked)], prerequisites);
  GrantSkillAtNoCost(game, names[Index(picked)]);
}

/// What stands after "family: ".
std::string_view ItemOf(std::string_view member) {
  constexpr std::string_view kColon = ": ";
  const std::size_t colon = member.find(kColon);
  return colon == std::string_view::npos ? std::string_view{} : member.substr(colon + kColon.size());
}

void GiveMember(Game& game, const Grant& grant, Prerequisites prerequisites) {
  const int family = FindSkillFamilyRow(grant.Name);
  if (family < 0) return;
  RaiseFor(game, SkillTable2()[Index(family)].Name, prerequisites);
  GrantMember(game, family, ItemOf(grant.Name));
}

/// Who rides an animal rides a further one; who rides none picks what he learns.
void GiveMount(Game& game, Prerequisites prerequisites) {
  const std::string_view riding = TrimRight(SkillTable2()[SkillFamily::LandRiding].Name);
  RaiseFor(game, riding, prerequisites);
  if (game.sheet.SkillDetailCounts[SkillFamily::LandRiding].front() != 0) return GrantSkillAtNoCost(game, riding);
  PickDetail(game, SkillFamily::LandRiding);
}

/// A barbarian tracks in a way of his own, that is no skill.
void PutTrackingAside(CharacterSheet& sheet) {
  const int row = FindSkillRow("Tracking");
  if (row < 0) return;
  sheet.BarbarianTracking = sheet.SkillScores[Index(row)];
  sheet.SkillScores[Index(row)] = 0;
}

void GrantFirstWriting(Game& game) {
  const std::string writing(game.sheet.SkillDetailNames[SkillFamily::ReadingWriting].front().View());
  GrantSkillAtNoCost(game, writing);
}

void MasterFirstLanguage(Game& game, const Grant& grant) {
  if (game.sheet.SkillDetailNames[SkillFamily::Language].front().Empty()) return;
  ChangeNumber(game.sheet.SkillDetailCounts[SkillFamily::Language].front(), grant.Change,
               RollAmount(game, grant.Amount));
}

// --- Talents, proficiencies and quirks -----------------------------------------------------------------------------

void ChangeTalentCount(Game& game, const Grant& grant) {
  const int row = FindTalentRow(grant.Name);
  if (row < 0) return;
  int& count = game.sheet.TalentCounts[Index(row)];
  const bool isOfRace = ValueAt(MakeSkillBuyer(game).TalentFlags, row) == kTalentOfRace;
  if (!isOfRace && count != kTalentOfRace) ChangeNumber(count, grant.Change, RollAmount(game, grant.Amount));
}

void GiveNamedAttackBonus(Game& game) {
  const std::string weapon = AskName(game.platform, "Choose the name of the Weapon for your Attack Bonus Talent.");
  if (!TrimRight(weapon).empty()) GrantTalentItem(game, FindTalentFamilyRow(kAttackBonus), weapon);
}

void WithholdLances(Game& game) {
  const auto& table = ProficiencyTable();
  for (int row = 0; row < kProficiencyTableRows; ++row) {
    if (!Contains(table[Index(row)].Name, "Lance:") || !ClassMayLearn(game, {.Row = row})) continue;
    game.sheet.ProficiencyLevels[Index(row)] = ProficiencyMark::Untaught;
  }
}

void ChangeQuirkCount(Game& game, const Grant& grant) {
  ChangeNumber(game.sheet.QuirkCounts[Index(grant.Row)], grant.Change, RollAmount(game, grant.Amount));
}

void RollMishap(Game& game, const Grant& grant) {
  const auto* const letter = std::ranges::find(kQuirkTableLetters, grant.Name, &QuirkTableLetter::Letter);
  if (letter == kQuirkTableLetters.end()) return;
  const std::vector<std::string_view> owed(Index(grant.Times), letter->Table);
  const int step = game.run.CurrentStep;
  game.run.CurrentStep = kMishapStep;
  RunQuirksandFlawsMage(game, owed);
  game.run.CurrentStep = step;
}

}  // namespace

void RaisePrerequisites(Game& game, std::string_view skill) {
  const SkillTarget target = FindTarget(game.sheet, skill);
  if (target.Kind == SkillKind::None) return;
  for (const int link : RecordOf(target).Prerequisites) {
    if (link < 0 || link >= kSkillTableRows) continue;  // of a family no member stands for all
    int& mastery = game.sheet.SkillScores[Index(link)];
    mastery = std::max(mastery, kPrerequisiteScore);
  }
}

void GiveGrant(Game& game, const Grant& grant, Prerequisites prerequisites) {
  if (grant.FindsNoRow) return;
  switch (grant.Kind) {
    case GrantKind::Buy:
      return BuyTimes(game, grant, prerequisites);
    case GrantKind::Score:
    case GrantKind::AddDie:
    case GrantKind::FromIntellect:
      return ChangeScore(game, grant);
    case GrantKind::Pick:
      return GivePick(game, grant, prerequisites);
    case GrantKind::Choose:
    case GrantKind::ChooseItem:
      return GiveChoice(game, grant, prerequisites);
    case GrantKind::NewMember:
      return GiveMember(game, grant, prerequisites);
    case GrantKind::Talent:
      return ChangeTalentCount(game, grant);
    case GrantKind::NewTalent:
      GrantTalentItem(game, FindTalentFamilyRow(grant.Name), ItemOf(grant.Name));
      return;
    case GrantKind::TakeTalent:
      return RunForNothing(game, [&] { ChangeTalent(game, grant.Name, 1); });
    case GrantKind::Proficiency:
      return RunForNothing(game, [&] { ChangeProficiency(game, grant.Name, 1); });
    case GrantKind::Quirk:
      return ChangeQuirkCount(game, grant);
    case GrantKind::Mishap:
      return RollMishap(game, grant);
    case GrantKind::Field:
      return ChangeField(game, grant);
    case GrantKind::WeaponPick:
      PickProficiency(game, static_cast<WeaponPick>(grant.Row));
      return;
    case GrantKind::MaintenancePick:
      PickMaintenanceSkill(game);
      return;
    case GrantKind::CombatPick:
      PickCombatSkill(game);
      return;
    case GrantKind::Mount:
      return GiveMount(game, prerequisites);
    case GrantKind::LancesUntaught:
      return WithholdLances(game);
    case GrantKind::NamedAttackBonus:
      return GiveNamedAttackBonus(game);
    case GrantKind::TrackingAside:
      return PutTrackingAside(game.sheet);
    case GrantKind::SurvivalPick:
      PickSurvivalSkill(game);
      return;
    case GrantKind::LanguagePick:
      return PickReadingWriting(game);
    case GrantKind::BardLanguage:
      return GrantFirstWriting(game);
    case GrantKind::BardInstrument:
      return PickBardInstrument(game);
    case GrantKind::PirateSkills:
      return RollPirateSkills(game);
    case GrantKind::FirstLanguage:
      return MasterFirstLanguage(game, grant);
  }
}

void GiveGrants(Game& game, const GrantText& grants, Prerequisites prerequisites) {
  ForEachGrant(grants, [&](const Grant& grant) { GiveGrant(game, grant, prerequisites); });
}

}  // namespace veld
