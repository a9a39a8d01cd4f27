#include "steps/skills/proficiency_purchase.h"

#include <algorithm>

#include "dice/building_points.h"
#include "rules/class_table.h"
#include "rules/proficiency_table.h"
#include "steps/skills/pick_dialogs.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kMasteryLevel = 5;          ///< as a Fighter
constexpr int kMostSingleWeapon = 4;      ///< steps of the style that is counted in multiples
constexpr int kDearestForAbilities = 10;  ///< abilities are for weapons that cost less than this to specialize in
constexpr int kEmptyPick = -1;
constexpr const char* kGivingUpIsTooDear = "Giving it up costs 1 BP, and you do not have it.";

std::size_t At(int number) {
  return static_cast<std::size_t>(number);
}

const ProficiencyRecord& WeaponAt(int row) {
  return ProficiencyTable()[At(row)];
}
const ProficiencyRecord& WeaponAbilityAt(int row) {
  return ProficiencyTable2()[At(row)];
}
std::string_view WeaponName(int row) {
  return TrimRight(WeaponAt(row).Name);
}
std::string_view WeaponAbilityName(int row) {
  return TrimRight(WeaponAbilityAt(row).Name);
}

int LevelOf(const Game& game, int row) {
  return game.sheet.ProficiencyLevels[At(row)];
}
bool IsHeld(int level) {
  return level >= ProficiencyMark::Proficient || level == ProficiencyMark::Limited;
}

/// A row of which more than one step is a matter of taking it again.
bool CanBeTakenAgain(int row) {
  return row == ProficiencyRow::SingleWeaponStyle || WeaponAt(row).Kind == ProficiencyKind::Repeatable;
}

void Charge(Game& game, int slots, int bp) {
  game.sheet.ProficiencySlotsUsed = AddSaturated(game.sheet.ProficiencySlotsUsed, slots);
  game.run.BuildingPoints -= static_cast<float>(bp);
}

std::string SlotsOutText(const Game& game) {
  return Format("All of your %i proficiency slots are used.", game.sheet.ProficiencySlots);
}

// --- Weapons and styles ---

std::string ObstacleToAddWeapon(const Game& game, int row) {
  const int level = LevelOf(game, row);
  if (row == ProficiencyRow::SingleWeaponStyle && level >= kMostSingleWeapon) return "You have all of its steps.";
  if (level >= ProficiencyMark::Proficient && !CanBeTakenAgain(row)) return "You are proficient in it.";
  return {};
}

/// BP that giving a weapon up costs; below 0 they come back. The last that a fighter gives up is taken to be the one
/// that cost no BP, and a half step was no purchase.
int RemovalCharge(const Game& game, int row) {
  const bool wasFree =
      game.sheet.IsFighterClass == 1 && game.sheet.ProficiencySlotsUsed == ProficiencySlotCost(game, row);
  return (wasFree ? 1 : 0) - (LevelOf(game, row) == ProficiencyMark::Limited ? 0 : 1);
}

std::string ObstacleToRemoveWeapon(const Game& game, int row) {
  const int level = LevelOf(game, row);
  if (!IsHeld(level)) return "You are not proficient in it.";
  if (level >= ProficiencyMark::Specialized && !CanBeTakenAgain(row)) {
    return "Your Specialization must be removed first.";
  }
  return RemovalCharge(game, row) > 0 && !CanPay(game) ? kGivingUpIsTooDear : "";
}

void AddWeapon(Game& game, int row) {
  int& level = game.sheet.ProficiencyLevels[At(row)];
  const int bp = IsNextProficiencyFree(game) ? 0 : 1;
  // A half step has its slot already.
  const int slots = level == ProficiencyMark::Limited ? 0 : ProficiencySlotCost(game, row);
  level = AddSaturated(std::max(level, ProficiencyMark::None), 1);
  Charge(game, slots, bp);
}

void RemoveWeapon(Game& game, int row) {
  int& level = game.sheet.ProficiencyLevels[At(row)];
  const int bp = RemovalCharge(game, row);
  level = level == ProficiencyMark::Limited ? ProficiencyMark::None : level - 1;
  Charge(game, -ProficiencySlotCost(game, row), bp);
}

// --- Abilities that are taken for a weapon ---

std::vector<int> WeaponsForAbilities(const Game& game) {
  std::vector<int> rows;
  for (int row = 0; row < kProficiencyTableRows; ++row) {
    const ProficiencyRecord& weapon = WeaponAt(row);
    if (weapon.Name.empty() || weapon.SpecializationCost >= kDearestForAbilities) continue;
    if (IsHeld(LevelOf(game, row))) rows.push_back(row);
  }
  return rows;
}

std::string ObstacleToAddAbility(const Game& game, int ability) {
  const auto& picks = game.sheet.ProficiencyPicks[At(ability)];
  if (std::ranges::find(picks, kEmptyPick) == picks.end()) {
    return Format("There is no room for another %s.", WeaponAbilityName(ability));
  }
  if (WeaponsForAbilities(game).empty()) return "You need a weapon that you are proficient in.";
  return {};
}

/// An ability is charged for a second time when it is given up, so that must be within the character's means as well.
std::string ObstacleToRemoveAbility(const Game& game, const ProficiencyPlace& place) {
  const auto& picks = game.sheet.ProficiencyPicks[At(place.Ability)];
  if (place.Row < 0 || std::ranges::find(picks, place.Row) == picks.end()) return "You do not have it.";
  if (!CanPay(game)) return kGivingUpIsTooDear;
  return ProficiencySlotsAreOut(game) ? "Giving it up costs 1 slot, and you have none." : "";
}

bool AddAbility(Game& game, int ability) {
  const std::vector<int> rows = WeaponsForAbilities(game);
  std::vector<std::string> names;
  for (const int row : rows) names.emplace_back(WeaponName(row));
  const int picked = PickOne(game, PickPage::FreeWeapon, std::move(names));
  if (picked < 0) return false;
  const int bp = IsNextProficiencyFree(game) ? 0 : 1;
  *std::ranges::find(game.sheet.ProficiencyPicks[At(ability)], kEmptyPick) = rows[At(picked)];
  Charge(game, 1, bp);
  return true;
}

void RemoveAbility(Game& game, const ProficiencyPlace& place) {
  *std::ranges::find(game.sheet.ProficiencyPicks[At(place.Ability)], place.Row) = kEmptyPick;
  Charge(game, 1, 1);
}

bool IsStep(int direction) {
  return direction == 1 || direction == -1;
}

}  // namespace

ProficiencyPlace FindProficiency(std::string_view name) {
  for (int ability = 0; ability < kProficiencyTable2Rows; ++ability) {
    const std::string start = Format("%s: ", WeaponAbilityName(ability));
    if (WeaponAbilityAt(ability).Name.empty() || !name.starts_with(start)) continue;
    const std::string_view weapon = name.substr(start.size());
    const int row = FindProficiencyRow(weapon);
    return row >= 0 && WeaponName(row) == TrimRight(weapon) ? ProficiencyPlace{row, ability} : ProficiencyPlace{};
  }
  if (const int row = FindProficiencyRow(name); row >= 0) return {.Row = row};
  return {.Ability = FindProficiencyAbilityRow(name)};
}

std::string ProficiencyObstacle(const Game& game, const ProficiencyPlace& place, int direction) {
  if (place.IsNone()) return "There is no such proficiency.";
  const bool isAbility = place.Ability >= 0;
  if (direction < 0) {
    return isAbility ? ObstacleToRemoveAbility(game, place) : ObstacleToRemoveWeapon(game, place.Row);
  }
  std::string own = isAbility ? ObstacleToAddAbility(game, place.Ability) : ObstacleToAddWeapon(game, place.Row);
  if (!own.empty()) return own;
  if (ProficiencySlotsAreOut(game)) return SlotsOutText(game);
  return IsNextProficiencyFree(game) || CanPay(game) ? "" : "It costs 1 BP, and you do not have it.";
}

bool ChangeProficiency(Game& game, std::string_view name, int direction) {
  return ChangeProficiency(game, FindProficiency(name), direction);
}

bool ChangeProficiency(Game& game, const ProficiencyPlace& place, int direction) {
  if (!IsStep(direction) || !ProficiencyObstacle(game, place, direction).empty()) return false;
  if (place.Ability >= 0) {
    if (direction > 0) return AddAbility(game, place.Ability);
    RemoveAbility(game, place);
  } else if (direction > 0) {
    AddWeapon(game, place.Row);
  } else {
    RemoveWeapon(game, place.Row);
  }
  return true;
}

// --- Specialization and mastery ---

std::string SpecializationObstacle(const Game& game, int row, int direction) {
  if (row < 0) return "There is no such weapon.";
  const int level = LevelOf(game, row);
  const int cost = WeaponAt(row).SpecializationCost;
  if (cost >= kUnspecializable) return "It can not be specialized.";
  if (direction < 0) {
    if (level > ProficiencyMark::Specialized) return MasteryObstacle(game, row, -1);
    if (level < ProficiencyMark::Specialized) return "You are not specialized in it.";
    return CanPay(game, static_cast<float>(-cost)) ? "" : Format("You are more than %i BP in debt.", cost);
  }
  if (level != ProficiencyMark::Proficient) {
    return level > ProficiencyMark::Proficient ? "You are specialized in it."
                                               : "Specialization needs a full proficiency.";
  }
  if (game.sheet.FreeWeaponProficiencySlots <= 0) return "You have no step of Specialization to take.";
  if (HasClass(game.sheet, ClassRow::KnightErrant)) return {};
  if (ProficiencySlotsAreOut(game)) return SlotsOutText(game);
  if (CanPay(game, static_cast<float>(cost))) return {};
  return Format("Specialization costs %i BP and you have %g.", cost, game.run.BuildingPoints);
}

bool Specialize(Game& game, int row, int direction) {
  if (!IsStep(direction) || !SpecializationObstacle(game, row, direction).empty()) return false;
  const float bp = game.run.BuildingPoints;
  const int used = game.sheet.ProficiencySlotsUsed;
  if (direction < 0 && LevelOf(game, row) > ProficiencyMark::Specialized) {
    Master(game, row, -1);
  } else {
    const int cost = direction * WeaponAt(row).SpecializationCost;
    game.sheet.ProficiencyLevels[At(row)] += direction;
    game.sheet.FreeWeaponProficiencySlots = AddSaturated(game.sheet.FreeWeaponProficiencySlots, -direction);
    Charge(game, cost, cost);
  }
  if (HasClass(game.sheet, ClassRow::KnightErrant)) {
    game.run.BuildingPoints = bp;
    game.sheet.ProficiencySlotsUsed = used;
  }
  return true;
}

std::string MasteryObstacle(const Game& game, int row, int direction) {
  if (row < 0) return "There is no such weapon.";
  if (WeaponAt(row).SpecializationCost >= kUnspecializable) return "It can not be specialized.";
  if (LevelOf(game, row) < (direction < 0 ? ProficiencyMark::Specialized + 1 : ProficiencyMark::Specialized)) {
    return direction < 0 ? "You are no master of it." : "Mastery needs Specialization.";
  }
  if (direction < 0) return {};
  if (ProficiencySlotsAreOut(game)) return SlotsOutText(game);
  if (game.sheet.ClassLevels[ClassRow::Fighter] < kMasteryLevel) return "Mastery needs the 5th level as a Fighter.";
  const int cost = WeaponAt(row).SpecializationCost;
  if (CanPay(game, static_cast<float>(cost))) return {};
  return Format("A step of Mastery costs %i BP and you have %g.", cost, game.run.BuildingPoints);
}

bool Master(Game& game, int row, int direction) {
  if (!IsStep(direction) || !MasteryObstacle(game, row, direction).empty()) return false;
  int& level = game.sheet.ProficiencyLevels[At(row)];
  level = AddSaturated(level, direction);
  Charge(game, direction, direction * WeaponAt(row).SpecializationCost);
  return true;
}

// --- Lists and the like ---

bool ClassMayLearn(const Game& game, const ProficiencyPlace& place) {
  if (place.IsNone()) return false;
  for (int row = 0; row < kClassRows; ++row) {
    if (!HasClass(game.sheet, row)) continue;
    const ClassRecord& record = ClassTable()[At(row)];
    const bool isAbility = place.Ability >= 0;
    if ((isAbility ? record.Weapon2Allowed[At(place.Ability)] : record.WeaponAllowed[At(place.Row)]) != 0) return true;
  }
  return false;
}

namespace {

bool IsOffered(const Game& game, const ProficiencyRecord& record, const ProficiencyPlace& place, ProficiencyMode mode) {
  if (record.Name.empty() || !game.IsOn(At(record.Book))) return false;
  return mode == ProficiencyMode::All || ClassMayLearn(game, place);
}

std::string HeldText(int row, int level) {
  if (row == ProficiencyRow::SingleWeaponStyle) return Format("%s x%i", WeaponName(row), level);
  if (level == ProficiencyMark::Limited) return Format("%s - Limited", WeaponName(row));
  if (level > ProficiencyMark::Proficient) return Format("%s - x%i", WeaponName(row), level);
  return std::string(WeaponName(row));
}

}  // namespace

std::vector<ProficiencyLine> ProficienciesOffered(const Game& game, ProficiencyMode mode) {
  std::vector<ProficiencyLine> lines;
  for (int row = 0; row < kProficiencyTableRows; ++row) {
    const ProficiencyPlace place{.Row = row};
    if (IsOffered(game, WeaponAt(row), place, mode)) lines.push_back({place, std::string(WeaponName(row))});
  }
  for (int row = 0; row < kProficiencyTable2Rows; ++row) {
    const ProficiencyPlace place{.Ability = row};
    if (!IsOffered(game, WeaponAbilityAt(row), place, mode)) continue;
    lines.push_back({place, std::string(WeaponAbilityName(row))});
  }
  return lines;
}

std::vector<ProficiencyLine> ProficienciesHeld(const Game& game) {
  std::vector<ProficiencyLine> lines;
  for (int row = 0; row < kProficiencyTableRows; ++row) {
    const int level = LevelOf(game, row);
    if (WeaponAt(row).Name.empty() || !IsHeld(level)) continue;
    if (level >= ProficiencyMark::Specialized && !CanBeTakenAgain(row)) continue;  // in the other list
    lines.push_back({{.Row = row}, HeldText(row, level)});
  }
  for (int ability = 0; ability < kProficiencyTable2Rows; ++ability) {
    if (WeaponAbilityAt(ability).Name.empty()) continue;
    for (const int row : game.sheet.ProficiencyPicks[At(ability)]) {
      if (row < 0 || row >= kProficiencyTableRows || WeaponAt(row).Name.empty()) continue;
      lines.push_back({{row, ability}, Format("%s: %s", WeaponAbilityName(ability), WeaponName(row))});
    }
  }
  return lines;
}

std::vector<ProficiencyLine> Specializations(const Game& game) {
  std::vector<ProficiencyLine> lines;
  for (int row = 0; row < kProficiencyTableRows; ++row) {
    if (WeaponAt(row).Name.empty() || row == ProficiencyRow::SingleWeaponStyle) continue;
    if (LevelOf(game, row) < ProficiencyMark::Specialized) continue;
    lines.push_back({{.Row = row}, std::string(WeaponName(row))});
  }
  return lines;
}

int SpecializationPrice(const Game& game, int row) {
  return HasClass(game.sheet, ClassRow::KnightErrant) ? 0 : WeaponAt(row).SpecializationCost;
}

int ProficiencySlotCost(const Game& game, int row) {
  return HasClass(game.sheet, ClassRow::Gladiator) && WeaponAt(row).Kind == ProficiencyKind::Missile ? 2 : 1;
}

bool ProficiencySlotsAreOut(const Game& game) {
  return game.sheet.ProficiencySlotsUsed >= game.sheet.ProficiencySlots;
}

bool IsNextProficiencyFree(const Game& game) {
  return game.sheet.IsFighterClass == 1 && game.sheet.ProficiencySlotsUsed == 0;
}

bool MayLeaveProficiencies(const Game& game) {
  if (game.sheet.ProficiencySlotsUsed <= game.sheet.ProficiencySlots) return true;
  const auto givesBack = [&](const ProficiencyLine& line) { return ProficiencyObstacle(game, line.Place, -1).empty(); };
  const auto stepsBack = [&](const ProficiencyLine& line) {
    return SpecializationObstacle(game, line.Place.Row, -1).empty();
  };
  return std::ranges::none_of(ProficienciesHeld(game), givesBack) &&
         std::ranges::none_of(Specializations(game), stepsBack);
}

}  // namespace veld
