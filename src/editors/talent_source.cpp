#include "editors/talent_source.h"

#include <algorithm>

#include "editors/whole_number.h"
#include "platform/ask_name.h"
#include "rules/named_rows.h"
#include "rules/talent_prices.h"
#include "steps/skills/skill_buyer.h"
#include "steps/skills/talent_purchase.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr std::string_view kTakeAfterTold = "Whom the character takes after is set with the race, not here.";
constexpr int kFamilyBase = kTalentTableRows;  ///< the families stand behind the plain talents
constexpr int kFamilies = kTalentTable2Rows;
constexpr int kItems = static_cast<int>(kDetailRows);

std::size_t At(int number) {
  return static_cast<std::size_t>(number);
}

TalentPlace PlaceOf(const HeldPlace& place) {
  if (place.Row < kFamilyBase) return {.Row = place.Row};
  return {.Family = place.Row - kFamilyBase, .Item = place.Item};
}
HeldPlace FamilyPlace(int family, int item = -1) {
  return {kFamilyBase + family, item};
}

bool IsTakeAfter(const TalentPlace& place) {
  return place.Family == TalentFamily::TakeAfter;
}
bool IsBonus(const TalentPlace& place) {
  return Contains(TalentAt(place).Name, "Bonus");
}

int& CountOf(Game& game, const TalentPlace& place) {
  return place.Row >= 0 ? game.sheet.TalentCounts[At(place.Row)]
                        : game.sheet.TalentDetailCounts[At(place.Family)][At(place.Item)];
}

std::string ItemText(const Game& game, int family, int item) {
  const std::string_view kind = TalentTable2()[At(family)].Name;
  const std::string_view name = TrimRight(game.sheet.TalentDetailNames[At(family)][At(item)]);
  if (name.empty()) return Format("%s: number %i", NameOrRow(kind, family), item + 1);
  return Contains(name, TrimRight(kind)) ? std::string(name) : Format("%s: %s", NameOrRow(kind, family), name);
}

std::string CountText(const TalentPlace& place, int count) {
  if (count == kTalentOfRace && place.Row >= 0) return " (of the race)";
  if (IsLuckyTalent(place)) return Format(" d%i", count);
  return count == 1 && !IsBonus(place) ? "" : Format(" x%i", count);
}

bool IsOpen(const Game& game, const TalentPlace& place) {
  const TalentPlace sought = place.Row >= 0 ? place : TalentPlace{.Family = place.Family};
  const auto offered = TalentsOffered(game);
  return std::ranges::find(offered, sought, &TalentLine::Place) != offered.end();
}

class Talents : public HeldSource {
 public:
  std::string_view Name() const override { return "Talents"; }

  std::string State(const Game& game) const override { return Format("Talents: %i", Held(game).size()); }

  std::vector<HeldLine> Catalogue(const Game&) const override {
    std::vector<HeldLine> lines;
    const auto append = [&](std::string_view name, const HeldPlace& place) {
      if (!TrimRight(name).empty()) lines.push_back({place, std::string(TrimRight(name))});
    };
    for (int row = 0; row < kTalentTableRows; ++row) append(TalentTable()[At(row)].Name, {.Row = row});
    for (int family = 0; family < kFamilies; ++family) append(TalentTable2()[At(family)].Name, FamilyPlace(family));
    return lines;
  }

  std::vector<HeldLine> Held(const Game& game) const override {
    std::vector<HeldLine> lines;
    for (int row = 0; row < kTalentTableRows; ++row) {
      const int count = TalentCount(game, {.Row = row});
      if (count == 0) continue;
      lines.push_back({{.Row = row}, NameOrRow(TalentTable()[At(row)].Name, row) + CountText({.Row = row}, count)});
    }
    for (int family = 0; family < kFamilies; ++family) {
      for (int item = 0; item < kItems; ++item) {
        const TalentPlace place{.Family = family, .Item = item};
        const int count = TalentCount(game, place);
        if (count == 0) continue;
        lines.push_back({FamilyPlace(family, item), ItemText(game, family, item) + CountText(place, count)});
      }
    }
    return lines;
  }

  HeldField Field(const Game&, const HeldPlace& place) const override {
    if (IsLuckyTalent(PlaceOf(place))) return {.Label = "Sides of the di&e", .First = 6};
    return {.Label = "&Times"};
  }
  int Value(const Game& game, const HeldPlace& place) const override { return TalentCount(game, PlaceOf(place)); }

  HeldNote Note(const Game& game, const HeldPlace& held) const override {
    const TalentPlace place = PlaceOf(held);
    const TalentRecord& talent = TalentAt(place);
    HeldNote note;
    if (IsTakeAfter(place)) {
      note.Tell(kTakeAfterTold);
      return note;
    }
    const int count = TalentCount(game, place);
    note.Tell(Format("%s. It costs %i BP", talent.Page, TalentPriceNow(game, place)));
    if (place.Family >= 0 && place.Item < 0) note.Tell("You will be asked what it is for.");
    if (place.Row == TalentRow::AcuteAlertnessAndKeenSight) {
      note.Tell("A character that is loaded from a file has the two talents in its stead.");
    }
    const auto ofRace = TalentsOfRace(MakeSkillBuyer(game));
    const bool isOfRace = std::ranges::find(ofRace, place.Row) != ofRace.end();
    if (isOfRace) note.Tell("The race has it for nothing: the Talents of a generation give it back if it is removed.");
    note.ObjectToBook(game, talent.Book);
    if (!isOfRace && count != kTalentOfRace && !IsOpen(game, place)) {
      note.Object("It is not open to race, class or package.");
    }
    if (count > 1 && !IsBonus(place) && !IsLuckyTalent(place)) note.Object("Only a Bonus can be taken again.");
    return note;
  }

  HeldChange Add(Game& game, const HeldPlace& held, int value) const override {
    const TalentPlace place = PlaceOf(held);
    if (place.Row >= 0) return Set(game, held, value);
    if (IsTakeAfter(place)) return {.Refusal = std::string(kTakeAfterTold)};
    const std::string_view family = TrimRight(TalentAt(place).Name);
    const std::string typed = AskName(game.platform, Format("Choose the name of the Item for your %s Talent.", family));
    const std::string_view item = TrimRight(typed);
    if (item.empty()) return {};
    constexpr std::size_t kMost = FixedText<100>::kWidth - 1;
    if (std::string refusal = TextTooLong("Name", item, kMost - family.size() - 2); !refusal.empty()) {
      return {.Refusal = std::move(refusal)};
    }
    const std::string name = Format("%s: %s", family, item);
    int found = FindItem(game, place.Family, name);
    if (found < 0 && GrantTalentItem(game, place.Family, item)) found = FindItem(game, place.Family, name);
    if (found < 0) return {.Refusal = Format("There is no room for another %s.", family)};
    return Set(game, FamilyPlace(place.Family, found), value);
  }

  HeldChange Set(Game& game, const HeldPlace& held, int value) const override {
    const TalentPlace place = PlaceOf(held);
    if (IsTakeAfter(place)) return {.Refusal = std::string(kTakeAfterTold)};
    CountOf(game, place) = value;
    return {held};
  }

  HeldChange Remove(Game& game, const HeldPlace& held) const override {
    const HeldChange change = Set(game, held, 0);
    const TalentPlace place = PlaceOf(held);
    if (change.Refusal.empty() && place.Family >= 0) {
      game.sheet.TalentDetailNames[At(place.Family)][At(place.Item)].Clear();
    }
    return change;
  }

 private:
  static int FindItem(const Game& game, int family, std::string_view name) {
    for (int item = 0; item < kItems; ++item) {
      const bool isHeld = TalentCount(game, {.Family = family, .Item = item}) != 0;
      if (isHeld && TrimRight(game.sheet.TalentDetailNames[At(family)][At(item)]) == name) return item;
    }
    return -1;
  }
};

}  // namespace

const HeldSource& TalentSource() {
  static const Talents source;
  return source;
}

}  // namespace veld
