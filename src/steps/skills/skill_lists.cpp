#include "steps/skills/skill_lists.h"

#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kAllInOne = 0;

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

bool IsListed(const Game& game, const SkillRecord& skill, int view) {
  const bool isOfView = view == kAllInOne ? skill.Category > 0 : skill.Category == view;
  return isOfView && skill.Category > 0 && game.IsOn(Index(skill.Book));
}

void AddName(std::vector<std::string>& names, std::string_view name) {
  if (!name.empty()) names.emplace_back(TrimRight(name));
}

/// The writings of the languages held stand at the head of the sophisticated tasks.
void AddWritings(const CharacterSheet& sheet, std::vector<std::string>& names) {
  for (std::size_t slot = 0; slot < kDetailRows; ++slot) {
    if (sheet.SkillDetailCounts[SkillFamily::Language][slot] <= 0) continue;
    AddName(names, sheet.SkillDetailNames[SkillFamily::ReadingWriting][slot]);
  }
}

/// The members of a family that are held; in the view of all skills a language brings its writing with it.
void AddMembers(const CharacterSheet& sheet, int family, int view, std::vector<std::string>& names) {
  for (std::size_t slot = 0; slot < kDetailRows; ++slot) {
    if (sheet.SkillDetailCounts[Index(family)][slot] <= 0) continue;
    AddName(names, sheet.SkillDetailNames[Index(family)][slot]);
    if (family == SkillFamily::Language && view == kAllInOne) {
      AddName(names, sheet.SkillDetailNames[SkillFamily::ReadingWriting][slot]);
    }
  }
}

/// Calls `visit` with each skill held and its name, plain skills first, until it returns true.
template <typename Visit>
void VisitOwned(const CharacterSheet& sheet, Visit visit) {
  for (int row = 0; row < kSkillTableRows; ++row) {
    const std::string_view name = SkillTable()[Index(row)].Name;
    if (sheet.SkillScores[Index(row)] <= 0 || name.empty()) continue;
    if (visit(SkillTarget{SkillKind::Plain, row}, name)) return;
  }
  for (int family = 0; family < kSkillTable2Rows; ++family) {
    for (int slot = 0; slot < static_cast<int>(kDetailRows); ++slot) {
      const auto& name = sheet.SkillDetailNames[Index(family)][Index(slot)];
      if (sheet.SkillDetailCounts[Index(family)][Index(slot)] <= 0 || name.Empty()) continue;
      if (visit(SkillTarget{SkillKind::Instance, family, slot}, name.View())) return;
    }
  }
}

std::string LineOf(std::string_view name, int mastery) {
  return Format("%s %i.", TrimRight(name), mastery);
}

std::string_view NameOf(const CharacterSheet& sheet, const SkillTarget& target) {
  if (target.Kind == SkillKind::Plain) return RecordOf(target).Name;
  return sheet.SkillDetailNames[Index(target.Row)][Index(target.Slot)];
}

}  // namespace

std::vector<std::string> SkillListNames(const Game& game, int category) {
  std::vector<std::string> names;
  names.reserve(kSkillTableRows);
  if (category == SkillCategory::Sophisticated) AddWritings(game.sheet, names);
  for (const SkillRecord& skill : SkillTable()) {
    if (IsListed(game, skill, category)) AddName(names, skill.Name);
  }
  for (int family = 0; family < kSkillTable2Rows; ++family) {
    const SkillRecord& skill = SkillTable2()[Index(family)];
    if (family == SkillFamily::ReadingWriting || !IsListed(game, skill, category)) continue;
    AddName(names, skill.Name);
    AddMembers(game.sheet, family, category, names);
  }
  return names;
}

std::vector<std::string> OwnedSkillLines(const CharacterSheet& sheet) {
  std::vector<std::string> lines;
  VisitOwned(sheet, [&](const SkillTarget& target, std::string_view name) {
    lines.push_back(LineOf(name, Mastery(sheet, target)));
    return false;
  });
  return lines;
}

std::string OwnedSkillLine(const CharacterSheet& sheet, const SkillTarget& target) {
  const bool isNamed = target.Kind == SkillKind::Plain || target.Slot >= 0;
  return isNamed && Mastery(sheet, target) > 0 ? LineOf(NameOf(sheet, target), Mastery(sheet, target)) : std::string{};
}

SkillTarget FindOwnedSkill(const CharacterSheet& sheet, std::string_view line) {
  constexpr std::size_t kShortest = 2;
  SkillTarget exact;
  SkillTarget within;
  if (line.size() < kShortest) return exact;
  VisitOwned(sheet, [&](const SkillTarget& target, std::string_view name) {
    if (LineOf(name, Mastery(sheet, target)) == line) exact = target;
    if (within.Kind == SkillKind::None && Contains(line, name)) within = target;
    return exact.Kind != SkillKind::None;
  });
  return exact.Kind != SkillKind::None ? exact : within;
}

}  // namespace veld
