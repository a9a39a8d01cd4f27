#include "rules/purchase_rules.h"

#include <algorithm>
#include <cstddef>

#include "text/search.h"

namespace veld {

namespace {

bool HoldsOneOf(std::string_view text, std::string_view list) {
  bool found = false;
  ForEachName(list, [&](std::string_view part) { found = found || Contains(text, part); });
  return found;
}

bool HasLevelInOneOf(const std::array<int, 2>& classRows, const SkillBuyer& buyer) {
  return std::any_of(classRows.begin(), classRows.end(),
                     [&](int row) { return row > 0 && ValueAt(buyer.ClassLevels, row) > 0; });
}

bool IsGroup(int wanted, int flag) {
  return wanted == Who::kEither || wanted == flag;
}

float Changed(float price, Change change, const SkillBuyer& buyer) {
  const auto unlessNone = [price](int own) { return own != 0 ? static_cast<float>(own) : price; };
  switch (change.Does) {
    case Change::Kind::Become:
      return change.Amount;
    case Change::Kind::Add:
      return price + change.Amount;
    case Change::Kind::Times:
      return price * change.Amount;
    case Change::Kind::LeastOne:
      return price <= 0 ? 1.0F : price;
    case Change::Kind::SelfDiscipline:
      return unlessNone(buyer.SelfDisciplinePrice);
    case Change::Kind::BowDiscount:
      return unlessNone(buyer.BowBonusDiscount);
    case Change::Kind::CrossbowDiscount:
      return unlessNone(buyer.CrossbowBonusDiscount);
  }
  return price;
}

}  // namespace

int ValueAt(std::span<const int> values, int index) {
  const auto at = static_cast<std::size_t>(index);
  return index >= 0 && at < values.size() ? values[at] : 0;
}

int SkillScore(const SkillBuyer& buyer, int row) {
  return ValueAt(buyer.SkillScores, row);
}

int FirstMemberScore(const SkillBuyer& buyer, int family) {
  const auto row = static_cast<std::size_t>(family);
  return family >= 0 && row < buyer.FamilyScores.size() ? buyer.FamilyScores[row].front() : 0;
}

bool HoldsFamily(const SkillBuyer& buyer, int family) {
  const auto row = static_cast<std::size_t>(family);
  if (family < 0 || row >= buyer.FamilyScores.size()) return false;
  const auto& members = buyer.FamilyScores[row];
  return std::any_of(members.begin(), members.end(), [](int score) { return score > 0; });
}

bool IsMeant(const Who& who, const SkillBuyer& buyer) {
  if (!who.Package.empty() && buyer.PackageName != who.Package) return false;
  if (!who.Class.empty() && buyer.ClassName != who.Class) return false;
  if (!who.ClassHolding.empty() && !HoldsOneOf(buyer.ClassName, who.ClassHolding)) return false;
  if (who.LevelIn.front() > 0 && !HasLevelInOneOf(who.LevelIn, buyer)) return false;
  if (!who.Race.empty() && !ListHolds(who.Race, buyer.RaceName)) return false;
  if (ListHolds(who.NotRace, buyer.RaceName)) return false;
  if (who.BookOn > 0 && ValueAt(buyer.RuleSwitches, who.BookOn) != 1) return false;
  if (who.AmazonDoubleRoll && buyer.AmazonDoubleRoll <= 0) return false;
  if (who.BowDiscount && buyer.BowBonusDiscount == 0) return false;
  if (who.CrossbowDiscount && buyer.CrossbowBonusDiscount == 0) return false;
  return IsGroup(who.IsCleric, buyer.ClassIsCleric) && IsGroup(who.IsMage, buyer.ClassIsMage) &&
         IsGroup(who.IsThief, buyer.ClassIsThief > 0 ? 1 : 0);
}

bool IsMeant(const Rows& rows, int row, std::string_view name, int category) {
  if (ListHolds(rows.Except, name)) return false;
  const bool everyRow =
      rows.Names.empty() && rows.NameHolding.empty() && rows.Range[1] < rows.Range[0] && rows.Category == 0;
  return everyRow || ListHolds(rows.Names, name) || Contains(name, rows.NameHolding) ||
         (row >= rows.Range[0] && row <= rows.Range[1]) || (rows.Category != 0 && category == rows.Category);
}

float PriceAfter(std::span<const PriceRule> rules, float price, int row, std::string_view name, int category,
                 const SkillBuyer& buyer) {
  for (const PriceRule& rule : rules) {
    if (!IsMeant(rule.For, buyer) || !IsMeant(rule.Of, row, name, category)) continue;
    if (rule.Of.NotHeld && SkillScore(buyer, row) != 0) continue;
    price = Changed(price, rule.Does, buyer);
  }
  return price;
}

bool ListHolds(std::string_view list, std::string_view name) {
  const std::string_view sought = TrimRight(name);
  bool found = false;
  ForEachName(list, [&](std::string_view listed) { found = found || listed == sought; });
  return found;
}

}  // namespace veld
