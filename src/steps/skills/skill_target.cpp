#include "steps/skills/skill_target.h"

#include "rules/skill_prices.h"
#include "steps/skills/skill_buyer.h"
#include "text/search.h"

namespace veld {

namespace {

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

bool IsSlotFree(const CharacterSheet& sheet, int family, std::size_t slot) {
  return sheet.SkillDetailNames[Index(family)][slot].Empty() && sheet.SkillDetailCounts[Index(family)][slot] == 0;
}

std::string MemberName(int family, std::string_view item) {
  return std::string(TrimRight(SkillTable2()[Index(family)].Name)) + ": " + std::string(item);
}

}  // namespace

SkillTarget FindTarget(const CharacterSheet& sheet, std::string_view name) {
  const SkillMatch match = FindSkill(name);
  SkillTarget target{match.Kind, match.Row, -1};
  if (match.Kind != SkillKind::Instance) return target;
  target.Slot = FindMember(sheet, match.Row, name);
  return target.Slot < 0 ? SkillTarget{} : target;
}

const SkillRecord& RecordOf(const SkillTarget& target) {
  return target.Kind == SkillKind::Plain ? SkillTable().at(Index(target.Row)) : SkillTable2().at(Index(target.Row));
}

int Mastery(const CharacterSheet& sheet, const SkillTarget& target) {
  if (target.Kind == SkillKind::Plain) return sheet.SkillScores.at(Index(target.Row));
  return target.Slot < 0 ? 0 : sheet.SkillDetailCounts.at(Index(target.Row)).at(Index(target.Slot));
}

int& MasteryOf(CharacterSheet& sheet, const SkillTarget& target) {
  if (target.Kind == SkillKind::Plain) return sheet.SkillScores.at(Index(target.Row));
  return sheet.SkillDetailCounts.at(Index(target.Row)).at(Index(target.Slot));
}

int& PurchasesOf(CharacterSheet& sheet, const SkillTarget& target) {
  if (target.Kind == SkillKind::Plain) return sheet.SkillPurchases.at(Index(target.Row));
  return sheet.SkillDetailPurchases.at(Index(target.Row)).at(Index(target.Slot));
}

int* MemberMastery(CharacterSheet& sheet, int family, int slot) {
  if (family < 0 || family >= kSkillTable2Rows || slot < 0 || slot >= static_cast<int>(kDetailRows)) return nullptr;
  return &sheet.SkillDetailCounts[Index(family)][Index(slot)];
}

float PriceOf(const Game& game, const SkillTarget& target) {
  if (target.Kind == SkillKind::None) return 0;
  const SkillBuyer buyer = MakeSkillBuyer(game);
  return target.Kind == SkillKind::Plain ? SkillPrice(target.Row, buyer) : SkillFamilyPrice(target.Row, buyer);
}

int FindMemberNamed(const CharacterSheet& sheet, int family, std::string_view name) {
  const auto& names = sheet.SkillDetailNames.at(Index(family));
  for (std::size_t slot = 0; slot < names.size(); ++slot) {
    if (!names[slot].Empty() && TrimRight(names[slot]) == TrimRight(name)) return static_cast<int>(slot);
  }
  return -1;
}

int FindMember(const CharacterSheet& sheet, int family, std::string_view name) {
  if (const int named = FindMemberNamed(sheet, family, name); named >= 0) return named;
  const auto& names = sheet.SkillDetailNames.at(Index(family));
  for (std::size_t slot = 0; slot < names.size(); ++slot) {
    if (Contains(name, names[slot])) return static_cast<int>(slot);
  }
  return -1;
}

int FreeMemberSlot(const CharacterSheet& sheet, int family) {
  for (std::size_t slot = 0; slot < kDetailRows; ++slot) {
    if (!IsSlotFree(sheet, family, slot)) continue;
    if (family == SkillFamily::Language && !IsSlotFree(sheet, SkillFamily::ReadingWriting, slot)) continue;
    return static_cast<int>(slot);
  }
  return -1;
}

void NameMember(CharacterSheet& sheet, int family, int slot, std::string_view item) {
  const auto write = [&](int row) {
    sheet.SkillDetailNames.at(Index(row)).at(Index(slot)) = item.empty() ? std::string{} : MemberName(row, item);
  };
  write(family);
  if (family == SkillFamily::Language) write(SkillFamily::ReadingWriting);
}

}  // namespace veld
