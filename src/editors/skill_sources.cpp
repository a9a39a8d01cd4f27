#include "editors/skill_sources.h"

#include <algorithm>

#include "editors/whole_number.h"
#include "platform/ask_name.h"
#include "rules/ability_effects.h"
#include "rules/skill_prices.h"
#include "steps/skills/skill_buyer.h"
#include "steps/skills/skill_target.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kSlots = static_cast<int>(kDetailRows);

std::size_t At(int number) {
  return static_cast<std::size_t>(number);
}

/// The slots are looked up: a character from a file has no effects of the abilities yet.
int LanguageSlotsOf(const Game& game) {
  return IntelligenceEffectOf(game.sheet.Intelligence).LanguageSlots;
}

std::string LanguagesText(const Game& game) {
  return Format("Languages known: %i, slots: %i", game.sheet.LanguagesKnown, LanguageSlotsOf(game));
}

SkillTarget TargetOf(const HeldPlace& place, SkillKind kind) {
  return {kind, place.Row, place.Item};
}

/// Sets a mastery; a language that comes or goes is counted.
void SetMastery(CharacterSheet& sheet, const SkillTarget& target, int mastery) {
  int& now = MasteryOf(sheet, target);
  if (RecordOf(target).Category == SkillCategory::Language) {
    const int change = (mastery > 0 ? 1 : 0) - (now > 0 ? 1 : 0);
    sheet.LanguagesKnown = std::max(AddSaturated(sheet.LanguagesKnown, change), std::min(sheet.LanguagesKnown, 0));
  }
  now = mastery;
  if (mastery == 0) PurchasesOf(sheet, target) = 0;
}

HeldField MasteryField(const Game& game, const SkillRecord& skill) {
  HeldField field{.Label = "&Mastery"};
  field.First =
      std::clamp(StartingMastery(skill.MasteryAbilities, WholeScores(game.sheet)), field.Lowest, field.Highest);
  return field;
}

HeldNote NoteOn(const Game& game, const SkillRecord& skill, float price) {
  HeldNote note;
  note.Tell(Format("%s, %s", SkillCategoryText(skill.Category), skill.Page));
  note.Tell(skill.CourseDieSides == 0 ? Format("A purchase costs %g BP and sets it to 100", price)
                                      : Format("A purchase costs %g BP, begins at %s and adds %id%i", price,
                                               skill.MasteryAbilities, skill.CourseDieCount, skill.CourseDieSides));
  note.ObjectToBook(game, skill.Book);
  if (skill.Category == SkillCategory::Language && game.sheet.LanguagesKnown > LanguageSlotsOf(game)) {
    note.Object("More languages are known than there are slots.");
  }
  return note;
}

class PlainSkills : public HeldSource {
 public:
  std::string_view Name() const override { return "Skills"; }
  std::string State(const Game& game) const override { return LanguagesText(game); }

  std::vector<HeldLine> Catalogue(const Game&) const override {
    std::vector<HeldLine> lines;
    for (int row = 0; row < kSkillTableRows; ++row) {
      const std::string_view name = TrimRight(SkillTable()[At(row)].Name);
      if (!name.empty()) lines.push_back({{.Row = row}, std::string(name)});
    }
    return lines;
  }

  std::vector<HeldLine> Held(const Game& game) const override {
    std::vector<HeldLine> lines;
    for (int row = 0; row < kSkillTableRows; ++row) {
      const int mastery = game.sheet.SkillScores[At(row)];
      if (mastery == 0) continue;
      lines.push_back({{.Row = row}, Format("%s %i", NameOrRow(SkillTable()[At(row)].Name, row), mastery)});
    }
    return lines;
  }

  HeldField Field(const Game& game, const HeldPlace& place) const override {
    return MasteryField(game, SkillTable()[At(place.Row)]);
  }
  int Value(const Game& game, const HeldPlace& place) const override { return game.sheet.SkillScores[At(place.Row)]; }

  HeldNote Note(const Game& game, const HeldPlace& place) const override {
    const SkillBuyer buyer = MakeSkillBuyer(game);
    const SkillRecord& skill = SkillTable()[At(place.Row)];
    HeldNote note = NoteOn(game, skill, SkillPrice(place.Row, buyer));
    if (skill.Category == SkillCategory::Suite) note.Tell("The skills of the suite do not change with it.");
    note.Object(SkillRestriction(place.Row, buyer));
    note.Object(LackingPrerequisite(place.Row, buyer));
    return note;
  }

  HeldChange Add(Game& game, const HeldPlace& place, int value) const override { return Set(game, place, value); }
  HeldChange Set(Game& game, const HeldPlace& place, int value) const override {
    SetMastery(game.sheet, TargetOf(place, SkillKind::Plain), value);
    return {place};
  }
  HeldChange Remove(Game& game, const HeldPlace& place) const override { return Set(game, place, 0); }
};

// --- Named skills ------------------------------------------------------------------------------------------------

const FixedText<100>& NameAt(const CharacterSheet& sheet, int family, int slot) {
  return sheet.SkillDetailNames[At(family)][At(slot)];
}
int MasteryAt(const CharacterSheet& sheet, int family, int slot) {
  return sheet.SkillDetailCounts[At(family)][At(slot)];
}
std::string_view FamilyName(int family) {
  return TrimRight(SkillTable2()[At(family)].Name);
}

std::string MemberText(const CharacterSheet& sheet, int family, int slot) {
  const std::string_view name = TrimRight(NameAt(sheet, family, slot));
  return name.empty() ? Format("%s: number %i", NameOrRow(FamilyName(family), family), slot + 1) : std::string(name);
}

/// "Elvish" of "Modern Language: Elvish"; the whole name if it is not the family's.
std::string_view ItemOf(const CharacterSheet& sheet, int family, int slot) {
  std::string_view name = TrimRight(NameAt(sheet, family, slot));
  const std::string_view start = FamilyName(family);
  constexpr std::string_view kBetween = ": ";
  if (name.starts_with(start) && name.substr(start.size()).starts_with(kBetween)) {
    name.remove_prefix(start.size() + kBetween.size());
  }
  return name;
}

/// The slot that a new member of this name takes: of a language or a writing that of the other, if it is free there,
/// else one that is free for both. -1 if there is none.
int SlotFor(const CharacterSheet& sheet, int family, std::string_view item) {
  const bool isWriting = family == SkillFamily::ReadingWriting;
  if (!isWriting && family != SkillFamily::Language) return FreeMemberSlot(sheet, family);
  const int other = isWriting ? SkillFamily::Language : SkillFamily::ReadingWriting;
  for (int slot = 0; slot < kSlots; ++slot) {
    const bool isFree = NameAt(sheet, family, slot).Empty() && MasteryAt(sheet, family, slot) == 0;
    if (isFree && !NameAt(sheet, other, slot).Empty() && ItemOf(sheet, other, slot) == item) return slot;
  }
  return FreeMemberSlot(sheet, SkillFamily::Language);
}

/// The member of just this item that is held or has a place; -1 if there is none.
int FindItem(const CharacterSheet& sheet, int family, std::string_view item) {
  for (int slot = 0; slot < kSlots; ++slot) {
    const bool isThere = !NameAt(sheet, family, slot).Empty() || MasteryAt(sheet, family, slot) != 0;
    if (isThere && ItemOf(sheet, family, slot) == item) return slot;
  }
  return -1;
}

/// The name of one slot alone: NameMember writes a language's writing too, which may have a name of its own.
void NameSlot(CharacterSheet& sheet, int family, int slot, std::string_view item) {
  FixedText<100>& name = sheet.SkillDetailNames[At(family)][At(slot)];
  name = item.empty() ? std::string{} : Format("%s: %s", FamilyName(family), item);
}

/// Takes a member's name, unless it is the writing of a language that is held, and that of a writing nobody learnt.
void ForgetNames(CharacterSheet& sheet, int family, int slot) {
  constexpr int kWriting = SkillFamily::ReadingWriting;
  if (family != kWriting || MasteryAt(sheet, SkillFamily::Language, slot) == 0) NameSlot(sheet, family, slot, {});
  if (family == SkillFamily::Language && MasteryAt(sheet, kWriting, slot) == 0) NameSlot(sheet, kWriting, slot, {});
}

class NamedSkills : public HeldSource {
 public:
  std::string_view Name() const override { return "Named skills"; }
  std::string State(const Game& game) const override { return LanguagesText(game); }

  std::vector<HeldLine> Catalogue(const Game& game) const override {
    std::vector<HeldLine> lines;
    for (int family = 0; family < kSkillTable2Rows; ++family) {
      if (FamilyName(family).empty()) continue;
      lines.push_back({{.Row = family}, std::string(FamilyName(family))});
      if (family != SkillFamily::ReadingWriting) continue;
      for (int slot = 0; slot < kSlots; ++slot) {
        if (MasteryAt(game.sheet, SkillFamily::Language, slot) == 0 || MasteryAt(game.sheet, family, slot) != 0)
          continue;
        const std::string_view item = ItemOf(game.sheet, SkillFamily::Language, slot);
        if (!item.empty()) lines.push_back({{family, slot}, Format("%s: %s", FamilyName(family), item)});
      }
    }
    return lines;
  }

  std::vector<HeldLine> Held(const Game& game) const override {
    std::vector<HeldLine> lines;
    for (int family = 0; family < kSkillTable2Rows; ++family) {
      for (int slot = 0; slot < kSlots; ++slot) {
        const int mastery = MasteryAt(game.sheet, family, slot);
        if (mastery == 0) continue;
        lines.push_back({{family, slot}, Format("%s %i", MemberText(game.sheet, family, slot), mastery)});
      }
    }
    return lines;
  }

  HeldField Field(const Game& game, const HeldPlace& place) const override {
    return MasteryField(game, SkillTable2()[At(place.Row)]);
  }
  int Value(const Game& game, const HeldPlace& place) const override {
    return MasteryAt(game.sheet, place.Row, place.Item);
  }

  HeldNote Note(const Game& game, const HeldPlace& place) const override {
    const SkillBuyer buyer = MakeSkillBuyer(game);
    HeldNote note = NoteOn(game, SkillTable2()[At(place.Row)], SkillFamilyPrice(place.Row, buyer));
    if (place.Item < 0) note.Tell("You will be asked for its name.");
    note.Object(LackingFamilyPrerequisite(place.Row, buyer));
    return note;
  }

  HeldChange Add(Game& game, const HeldPlace& place, int value) const override {
    if (place.Item >= 0) {  // the writing of a language
      const std::string item(ItemOf(game.sheet, SkillFamily::Language, place.Item));
      NameSlot(game.sheet, place.Row, place.Item, item);
      return Set(game, place, value);
    }
    const std::string_view family = FamilyName(place.Row);
    const std::string typed = AskName(game.platform, Format("Choose the name of the Item for your %s Skill.", family));
    const std::string_view item = TrimRight(typed);
    if (item.empty()) return {};
    constexpr std::size_t kMost = FixedText<100>::kWidth - 1;
    if (std::string refusal = TextTooLong("Name", item, kMost - family.size() - 2); !refusal.empty()) {
      return {.Refusal = std::move(refusal)};
    }
    int slot = FindItem(game.sheet, place.Row, item);
    if (slot < 0) {
      slot = SlotFor(game.sheet, place.Row, item);
      if (slot < 0) return {.Refusal = Format("There is no room for another skill of the kind: %s", family)};
      NameSlot(game.sheet, place.Row, slot, item);
      if (place.Row == SkillFamily::Language) NameSlot(game.sheet, SkillFamily::ReadingWriting, slot, item);
    }
    return Set(game, {place.Row, slot}, value);
  }

  HeldChange Set(Game& game, const HeldPlace& place, int value) const override {
    SetMastery(game.sheet, TargetOf(place, SkillKind::Instance), value);
    return {place};
  }

  HeldChange Remove(Game& game, const HeldPlace& place) const override {
    SetMastery(game.sheet, TargetOf(place, SkillKind::Instance), 0);
    ForgetNames(game.sheet, place.Row, place.Item);
    return {place};
  }
};

}  // namespace

const HeldSource& PlainSkillSource() {
  static const PlainSkills source;
  return source;
}

const HeldSource& NamedSkillSource() {
  static const NamedSkills source;
  return source;
}

}  // namespace veld
