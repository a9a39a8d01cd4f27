#include "steps/skills/talent_purchase.h"

#include <algorithm>

#include "dice/building_points.h"
#include "platform/platform.h"
#include "rules/named_rows.h"
#include "rules/talent_prices.h"
#include "rules/talent_table.h"
#include "platform/ask_name.h"
#include "steps/skills/skill_buyer.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

// The rows of the second table and the items of each, as the sheet holds them.
constexpr int kFamilies = static_cast<int>(kDetailRows);
constexpr int kItems = static_cast<int>(kDetailRows);
static_assert(kTalentTableRows == static_cast<int>(kTalentRows) && kTalentTable2Rows == kFamilies);

std::size_t At(int number) {
  return static_cast<std::size_t>(number);
}

/// The name without the blanks that some have at their end.
std::string_view NameOf(const TalentPlace& place) {
  return TrimRight(TalentAt(place).Name);
}

FixedText<100>& ItemName(Game& game, const TalentPlace& place) {
  return game.sheet.TalentDetailNames[At(place.Family)][At(place.Item)];
}
std::string_view ItemName(const Game& game, const TalentPlace& place) {
  return game.sheet.TalentDetailNames[At(place.Family)][At(place.Item)];
}

bool CanBeTakenAgain(std::string_view name) {
  return Contains(name, "Bonus");
}
bool IsGivenByRace(const Game& game, const TalentPlace& place) {
  return place.Row >= 0 && TalentCount(game, place) == kTalentOfRace;
}

/// The family whose first item is the race that a half-blood takes after. Its name is that race's alone: the limits of
/// the classes are looked up by it.

bool IsTakeAfter(const TalentPlace& place) {
  return place.Family == TalentFamily::TakeAfter;
}

/// How an item stands in the lists.
std::string ShownItem(const Game& game, const TalentPlace& place) {
  const std::string_view item = ItemName(game, place);
  const bool needsFamily = IsTakeAfter(place) && !Contains(item, NameOf(place));
  return needsFamily ? Format("%s: %s", NameOf(place), item) : std::string(item);
}

/// Calls `visit` with each item that is held and has a name; it returns false to end the walk.
template <typename Visit>
void ForEachItemHeld(const Game& game, Visit visit) {
  for (int family = 0; family < kFamilies; ++family) {
    for (int item = 0; item < kItems; ++item) {
      const TalentPlace place{.Family = family, .Item = item};
      if (TalentCount(game, place) > 0 && !ItemName(game, place).empty() && !visit(place)) return;
    }
  }
}

/// The place of a name of the catalogue.
TalentPlace PlaceOf(std::string_view catalogueName) {
  if (const int row = FindTalentRow(catalogueName); row >= 0) return {.Row = row};
  return {.Family = FindTalentFamilyRow(catalogueName)};
}

/// Where a family's next item goes: behind all that are held, or into a gap when the end is reached; -1 if it is full.
int FreeItem(const Game& game, int family) {
  const auto& counts = game.sheet.TalentDetailCounts[At(family)];
  const auto isHeld = [](int count) { return count > 0; };
  const auto end = std::find_if(counts.rbegin(), counts.rend(), isHeld).base();
  const auto free = end != counts.end() ? end : std::find_if_not(counts.begin(), counts.end(), isHeld);
  return free == counts.end() ? -1 : static_cast<int>(free - counts.begin());
}

bool TakeNewItem(Game& game, const TalentPlace& family) {
  const std::string item = AskName(game.platform, Format("Choose the name of the Item for your %s Talent.", NameOf(family)));
  return !TrimRight(item).empty() && GrantTalentItem(game, family.Family, item);
}

void MoveItem(Game& game, const TalentPlace& place, int direction) {
  int& count = game.sheet.TalentDetailCounts[At(place.Family)][At(place.Item)];
  count = AddSaturated(count, direction);
  if (count == 0) ItemName(game, place).Clear();  // files do not keep the name of what is not held
}

bool ChangeLucky(Game& game, const TalentPlace& place, int direction) {
  int& sides = game.sheet.TalentCounts[At(place.Row)];
  if (direction < 0) {
    sides = 0;
    return true;
  }
  const std::string typed = AskName(
      game.platform,
      Format("Choose the number of sides for the die for your %s Talent. Only enter a whole number.", NameOf(place)));
  if (TrimRight(typed).empty()) return false;
  sides = static_cast<int>(ReadEntry(typed));
  return true;
}

bool MakeChange(Game& game, const TalentPlace& place, int direction) {
  if (IsLuckyTalent(place)) return ChangeLucky(game, place, direction);
  if (place.Row >= 0) {
    int& count = game.sheet.TalentCounts[At(place.Row)];
    count = AddSaturated(std::max(count, 0), direction);
    return true;
  }
  if (place.Item < 0) return TakeNewItem(game, place);
  MoveItem(game, place, direction);
  return true;
}

std::string ObstacleToAdd(const Game& game, const TalentPlace& place) {
  const int held = TalentCount(game, place);
  if (place.Row >= 0 && held > 0 && !CanBeTakenAgain(NameOf(place))) {
    return "You have this talent, and only a Bonus can be taken again.";
  }
  if (place.Row < 0 && place.Item < 0 && FreeItem(game, place.Family) < 0) {
    return Format("There is no room for another %s.", NameOf(place));
  }
  return {};
}

/// The line of a talent in the list of those held.
std::string HeldText(const Game& game, const TalentPlace& place) {
  const std::string name = place.Row >= 0 ? std::string(NameOf(place)) : ShownItem(game, place);
  const int count = TalentCount(game, place);
  if (count > 0 && CanBeTakenAgain(NameOf(place))) return Format("%s x%i", name, count);
  if (count > 0 && IsLuckyTalent(place)) return Format("%s d%i", name, count);
  return name;
}

}  // namespace

const TalentRecord& TalentAt(const TalentPlace& place) {
  return place.Row >= 0 ? TalentTable()[At(place.Row)] : TalentTable2()[At(place.Family)];
}

int TalentCount(const Game& game, const TalentPlace& place) {
  if (place.Row >= 0) return game.sheet.TalentCounts[At(place.Row)];
  return place.Item < 0 ? 0 : game.sheet.TalentDetailCounts[At(place.Family)][At(place.Item)];
}

bool IsLuckyTalent(const TalentPlace& place) {
  return place.Row >= 0 && Contains(NameOf(place), "Lucky");
}

TalentPlace FindTalent(const Game& game, std::string_view name) {
  const std::string_view sought = TrimRight(name);
  if (sought.empty()) return {};
  // Items come first: what a player named one must not be taken for another talent.
  TalentPlace found;
  ForEachItemHeld(game, [&](const TalentPlace& place) {
    if (TrimRight(ShownItem(game, place)) == sought) found = place;
    return found.IsNone();
  });
  if (!found.IsNone()) return found;
  for (const TalentRecord& family : TalentTable2()) {
    if (!family.Name.empty() && sought.starts_with(std::string(family.Name) + ": ")) return {};
  }
  if (const int row = FindTalentRow(sought); row >= 0) return {.Row = row};
  const int family = FindTalentFamilyRow(sought);
  return family >= 0 && TrimRight(TalentTable2()[At(family)].Name) == sought ? TalentPlace{.Family = family}
                                                                             : TalentPlace{};
}

int TalentPriceNow(const Game& game, const TalentPlace& place) {
  return place.IsNone() ? 0 : TalentPrice(TalentAt(place).Name, MakeSkillBuyer(game));
}

std::string TalentObstacle(const Game& game, const TalentPlace& place, int direction, int price) {
  if (place.IsNone()) return "There is no such talent.";
  if (IsTakeAfter(place)) return "Whom you take after is settled before your class.";
  if (IsGivenByRace(game, place)) return "Your race has this talent for nothing.";
  if (direction < 0 && TalentCount(game, place) <= 0) return "You do not have this talent.";
  if (direction > 0) {
    if (std::string obstacle = ObstacleToAdd(game, place); !obstacle.empty()) return obstacle;
  }
  if (CanPay(game, static_cast<float>(direction) * static_cast<float>(price))) return {};
  return direction > 0 ? Format("It costs %i BP and you have %g.", price, game.run.BuildingPoints)
                       : Format("You are more than %i BP in debt.", price);
}

bool ChangeTalent(Game& game, std::string_view name, int direction, int price) {
  return ChangeTalent(game, FindTalent(game, name), direction, price);
}

bool ChangeTalent(Game& game, const TalentPlace& place, int direction, int price) {
  if (place.IsNone() || (direction != 1 && direction != -1)) return false;
  if (IsGivenByRace(game, place)) {
    game.platform.ShowMessage("You cannot remove a Talent granted due to your race.");
    return false;
  }
  if (!TalentObstacle(game, place, direction, price).empty()) return false;
  if (!MakeChange(game, place, direction)) return false;
  game.run.BuildingPoints -= static_cast<float>(direction) * static_cast<float>(price);
  return true;
}

bool GrantTalentItem(Game& game, int family, std::string_view item) {
  if (family < 0 || family >= kFamilies) return false;
  const TalentPlace place{.Family = family, .Item = FreeItem(game, family)};
  if (place.Item < 0) return false;
  game.sheet.TalentDetailCounts[At(family)][At(place.Item)] = 1;
  ItemName(game, place) = Format("%s: %s", NameOf(place), item);
  return true;
}

void GrantRaceTalents(Game& game) {
  for (const int row : TalentsOfRace(MakeSkillBuyer(game))) game.sheet.TalentCounts[At(row)] = kTalentOfRace;
}

std::vector<TalentLine> TalentsOffered(const Game& game) {
  const SkillBuyer buyer = MakeSkillBuyer(game);
  std::vector<TalentLine> lines;
  const auto append = [&](std::string_view name) {
    const TalentPlace place = PlaceOf(name);
    if (!IsTakeAfter(place)) lines.push_back({place, std::string(TrimRight(name))});
  };
  for (const std::string_view name : TalentsOpenToRace(buyer)) append(name);
  ForEachItemHeld(game, [&](const TalentPlace& place) {
    if (!IsTakeAfter(place)) lines.push_back({place, std::string(ItemName(game, place))});
    return true;
  });
  for (const std::string_view name : FurtherTalents(buyer)) append(name);
  return lines;
}

std::vector<TalentLine> TalentsHeld(const Game& game) {
  std::vector<TalentLine> lines;
  for (int row = 0; row < kTalentTableRows; ++row) {
    const TalentPlace place{.Row = row};
    const bool isHeld = TalentCount(game, place) > 0 || IsGivenByRace(game, place);
    if (isHeld && !NameOf(place).empty()) lines.push_back({place, HeldText(game, place)});
  }
  ForEachItemHeld(game, [&](const TalentPlace& place) {
    lines.push_back({place, HeldText(game, place)});
    return true;
  });
  return lines;
}

}  // namespace veld
