#include "steps/skills/buy_skill.h"

#include "dice/building_points.h"
#include "dice/dice.h"
#include "platform/platform.h"
#include "rules/skill_prices.h"
#include "platform/ask_name.h"
#include "steps/skills/skill_buyer.h"
#include "steps/skills/skill_suites.h"
#include "steps/skills/skill_target.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kGrantBP = 100;        // what a character has while a grant is bought, so that it is never too dear
constexpr float kStyleDiscount = 5;  // BP off a samurai's one martial arts style
constexpr int kFullMastery = 100;
constexpr int kKnown = 50;

std::string NameOf(const SkillTarget& target) {
  return std::string(TrimRight(RecordOf(target).Name));
}

bool IsPlain(const SkillTarget& target) {
  return target.Kind == SkillKind::Plain;
}

// --- Paying ------------------------------------------------------------------------------------------------------

/// All BP that a purchase can draw on.
struct Purse {
  float BuildingPoints = 0;
  float PackageBP = 0;
  float ArcaneBP = 0;
  float AcademicBP = 0;
  float LanguageBP = 0;
  float SocialBP = 0;
};

Purse TakePurse(const GenerationRun& run) {
  return {run.BuildingPoints, run.PackageBP, run.ArcaneBP, run.AcademicBP, run.LanguageBP, run.SocialBP};
}

void PutPurse(GenerationRun& run, const Purse& purse) {
  run.BuildingPoints = purse.BuildingPoints;
  run.PackageBP = purse.PackageBP;
  run.ArcaneBP = purse.ArcaneBP;
  run.AcademicBP = purse.AcademicBP;
  run.LanguageBP = purse.LanguageBP;
  run.SocialBP = purse.SocialBP;
}

struct CategoryBudget {
  int Category;
  float Purse::*Budget;
};

constexpr CategoryBudget kBudgets[] = {
    {SkillCategory::Arcane, &Purse::ArcaneBP},
    {SkillCategory::Academia, &Purse::AcademicBP},
    {SkillCategory::Language, &Purse::LanguageBP},
    {SkillCategory::Social, &Purse::SocialBP},
};

bool PackagePays(const SkillTarget& target, const SkillBuyer& buyer) {
  return IsPlain(target) ? PackagePaysFor(target.Row, buyer) : PackagePaysForFamily(target.Row, buyer);
}

/// Draws on the package's BP, then on the budget of the skill's category. Returns what is left for the building points,
/// which a budget fills up.
float DrawOnBudgets(const Game& game, const SkillTarget& target, float cost, Purse& purse) {
  if (PackagePays(target, MakeSkillBuyer(game))) PayFromPackage(cost, purse.PackageBP, purse.BuildingPoints);
  const bool hasSlot = Mastery(game.sheet, target) != 0 || game.sheet.LanguagesKnown < game.sheet.LanguageSlots;
  for (const CategoryBudget& budget : kBudgets) {
    if (budget.Category != RecordOf(target).Category) continue;
    if (budget.Category == SkillCategory::Language && !hasSlot) continue;
    DrawOnBudget(cost, purse.*budget.Budget, purse.BuildingPoints);
  }
  return cost;
}

// --- The samurai's style -----------------------------------------------------------------------------------------

/// A grant is free as it is, and takes no discount.
bool OffersStyleDiscount(const Game& game, const SkillTarget& target, float price) {
  return IsPlain(target) && IsMartialStyle(target.Row) && game.run.MartialStyleDiscount > 0 && price > 0 &&
         CanPay(game, price - kStyleDiscount);
}

/// The cost after the offer of the discount.
float AskStyleDiscount(Game& game, const SkillTarget& target, float price) {
  if (!OffersStyleDiscount(game, target, price)) return price;
  const std::string question = Format(
      "Samurai may purchase a single martial arts style for 5BP less then all other characters, will %s be the one?",
      NameOf(target));
  if (!game.platform.Confirms("VELD", question)) return price;
  game.run.MartialStyleDiscount = 0;
  return price - kStyleDiscount;
}

// --- Refusals: what is said, empty if nothing stands against the purchase ------------------------------------------

std::string Restriction(const Game& game, const SkillTarget& target) {
  return IsPlain(target) ? SkillRestriction(target.Row, MakeSkillBuyer(game)) : std::string{};
}

std::string Lack(const Game& game, const SkillTarget& target) {
  const SkillBuyer buyer = MakeSkillBuyer(game);
  if (IsPlain(target)) return LackingPrerequisite(target.Row, buyer);
  return Mastery(game.sheet, target) == 0 ? LackingFamilyPrerequisite(target.Row, buyer) : std::string{};
}

std::string LackOfRoom(const Game& game, const SkillTarget& target) {
  if (target.Kind != SkillKind::Family || FreeMemberSlot(game.sheet, target.Row) >= 0) return {};
  return Format("There is no room for another skill of the kind: %s", NameOf(target));
}

std::string LackOfBP(const SkillTarget& target, float price, float cost, float buildingPoints) {
  if (Reaches(buildingPoints, cost)) return {};
  return Format("The Skill: %s requires %s to purchase, you only have %g BP.", NameOf(target), Format("%g BP", price),
                buildingPoints);
}

/// A purchase lets one language past the slots, a free pick does not.
std::string LackOfLanguageSlot(const Game& game, const SkillTarget& target, bool isFreePick) {
  const CharacterSheet& sheet = game.sheet;
  if (RecordOf(target).Category != SkillCategory::Language || Mastery(sheet, target) != 0) return {};
  const bool isOut =
      isFreePick ? sheet.LanguagesKnown >= sheet.LanguageSlots : sheet.LanguagesKnown > sheet.LanguageSlots;
  if (!isOut) return {};
  return Format("You have no available language slots left for this character. You have used %i out of %i slots",
                sheet.LanguagesKnown, sheet.LanguageSlots);
}

/// Tells a refusal, if there is one. What the roll would have been for is over then.
bool Refuses(Game& game, const std::string& refusal) {
  if (refusal.empty()) return false;
  game.platform.ShowMessage(refusal);
  game.dice.RollContextText.clear();
  return true;
}

// --- Mastery -----------------------------------------------------------------------------------------------------

/// The first step: what the abilities give. A suite brings its members with it.
void StartMastery(Game& game, const SkillTarget& target) {
  const SkillRecord& skill = RecordOf(target);
  int& mastery = MasteryOf(game.sheet, target);
  if (skill.Category == SkillCategory::Language) {
    game.sheet.LanguagesKnown = AddSaturated(game.sheet.LanguagesKnown, 1);
  }
  mastery = StartingMastery(skill.MasteryAbilities, WholeScores(game.sheet));
  if (!IsPlain(target)) return;
  mastery = AddSaturated(mastery, FirstPurchaseBonus(target.Row, MakeSkillBuyer(game)));
  if (skill.Category == SkillCategory::Suite) StartSuite(game, target.Row, mastery);
}

struct CourseRoll {
  int Gain = 0;
  int Extra = 0;  ///< at 1 the Honor die and the count of purchases are doubled
};

CourseRoll RollCourse(Game& game, const SkillTarget& target) {
  const SkillRecord& skill = RecordOf(target);
  const SkillBuyer buyer = MakeSkillBuyer(game);
  const ExtraRolls more =
      IsPlain(target) ? SkillExtraRolls(target.Row, buyer) : SkillFamilyExtraRolls(target.Row, buyer);
  CourseRoll roll{0, more.Extra};
  const auto rollOnce = [&] {
    roll.Gain = AddSaturated(roll.Gain, RollPenetratingDice(game, skill.CourseDieSides, skill.CourseDieCount));
  };
  for (int rolls = 0; rolls <= more.Rolls; ++rolls) rollOnce();
  if (!more.AsksAmazon) return roll;
  const std::string question =
      Format("%s is a skill that an amazon may purchase and get double rolls on. you only get one, will this be it",
             NameOf(target));
  if (!game.platform.Confirms("Amazon Package Bonus", question)) return roll;
  game.run.AmazonDoubleRoll = 0;
  rollOnce();
  roll.Extra = 1;
  return roll;
}

int RollHonorGain(Game& game, int extra) {
  int gain = 0;
  for (int dice = extra == 1 ? 2 : 1; dice > 0; --dice) {
    const int die = game.sheet.HonorDie;
    gain = AddSaturated(gain, die == 1 ? 1 : RollPenetratingDicePlus(game, die, 1, game.run.HonorDieBonus));
  }
  return gain;
}

void AddGain(Game& game, const SkillTarget& target, int gain) {
  int& mastery = MasteryOf(game.sheet, target);
  mastery = AddSaturated(mastery, gain);
  if (IsPlain(target) && RecordOf(target).Category == SkillCategory::Suite)
    SpreadSuiteGain(game.sheet, target.Row, gain);
}

void RaiseMastery(Game& game, const SkillTarget& target) {
  const SkillRecord& skill = RecordOf(target);
  if (Mastery(game.sheet, target) == 0) StartMastery(game, target);
  CourseRoll roll;
  if (skill.CourseDieSides != 0) {
    roll = RollCourse(game, target);
    AddGain(game, target, roll.Gain);
  }
  AddGain(game, target, RollHonorGain(game, roll.Extra));
  if (skill.CourseDieSides == 0) MasteryOf(game.sheet, target) = kFullMastery;
  if (skill.Category == SkillCategory::Mundane) return;  // mundane tasks never count
  int& purchases = PurchasesOf(game.sheet, target);
  purchases = AddSaturated(purchases, roll.Extra == 1 ? 2 : 1);
}

/// Asks for a new member's name and gives it a slot. Returns false if the player names none.
bool TakeNewSlot(Game& game, SkillTarget& target) {
  const std::string answer = AskName(game.platform, Format("Choose the name of the Item for your %s Skill.", NameOf(target)));
  const std::string_view item = TrimRight(answer);
  if (item.empty()) return false;
  target.Slot = FreeMemberSlot(game.sheet, target.Row);
  NameMember(game.sheet, target.Row, target.Slot, item);
  return true;
}

void KnowByFalconry(Game& game, const SkillTarget& target, float cost) {
  if (!IsPlain(target)) return;
  const int row = RowSetByFalconer(target.Row, cost, game.run.BuildingPoints, MakeSkillBuyer(game));
  if (row >= 0) game.sheet.SkillScores[static_cast<std::size_t>(row)] = kKnown;
}

}  // namespace

bool BuySkill(Game& game, const SkillPurchase& purchase) {
  game.run.LastSkillDetail = -1;
  SkillTarget target = FindTarget(game.sheet, purchase.Name);
  if (target.Kind == SkillKind::None) return false;
  const float price = purchase.IsFreePick ? 0 : purchase.Price;
  float cost = AskStyleDiscount(game, target, price);
  if (Refuses(game, Restriction(game, target))) return false;
  KnowByFalconry(game, target, cost);
  if (Refuses(game, Lack(game, target)) || Refuses(game, LackOfRoom(game, target))) return false;

  const Purse before = TakePurse(game.run);
  if (!purchase.IsFreePick) {
    Purse purse = before;
    cost = DrawOnBudgets(game, target, cost, purse);
    PutPurse(game.run, purse);  // what a budget gave stays given when a later test refuses
    if (Refuses(game, LackOfBP(target, price, cost, purse.BuildingPoints))) return false;
  }
  if (Refuses(game, LackOfLanguageSlot(game, target, purchase.IsFreePick))) return false;
  if (target.Kind == SkillKind::Family && !TakeNewSlot(game, target)) {
    PutPurse(game.run, before);
    return false;
  }
  RaiseMastery(game, target);
  game.run.BuildingPoints -= cost;
  game.run.LastSkillDetail = target.Slot;
  return true;
}

std::string SkillRefusal(const Game& game, const SkillPurchase& purchase) {
  const SkillTarget target = FindTarget(game.sheet, purchase.Name);
  if (target.Kind == SkillKind::None) return {};
  for (const auto test : {Restriction, Lack, LackOfRoom}) {
    if (std::string refusal = test(game, target); !refusal.empty()) return refusal;
  }
  if (!purchase.IsFreePick) {
    const bool isDiscounted = OffersStyleDiscount(game, target, purchase.Price);
    Purse purse = TakePurse(game.run);
    const float cost =
        DrawOnBudgets(game, target, isDiscounted ? purchase.Price - kStyleDiscount : purchase.Price, purse);
    if (std::string refusal = LackOfBP(target, purchase.Price, cost, purse.BuildingPoints); !refusal.empty()) {
      return refusal;
    }
  }
  return LackOfLanguageSlot(game, target, purchase.IsFreePick);
}

void GrantSkillAtNoCost(Game& game, std::string_view name) {
  const int kept = TruncateToInt(game.run.BuildingPoints);
  game.run.BuildingPoints = kGrantBP;
  BuySkill(game, {.Name = std::string(name)});
  game.run.BuildingPoints = static_cast<float>(kept);
}

void GrantMember(Game& game, int family, std::string_view item) {
  game.run.LastSkillDetail = -1;
  if (family < 0 || family >= kSkillTable2Rows || item.empty()) return;
  const std::string name =
      std::string(TrimRight(SkillTable2()[static_cast<std::size_t>(family)].Name)) + ": " + std::string(item);
  if (FindMemberNamed(game.sheet, family, name) >= 0) return GrantSkillAtNoCost(game, name);
  const int slot = FreeMemberSlot(game.sheet, family);
  if (slot < 0) return;
  NameMember(game.sheet, family, slot, item);
  GrantSkillAtNoCost(game, name);
  if (game.run.LastSkillDetail < 0) NameMember(game.sheet, family, slot, {});  // refused
}

}  // namespace veld
