#include "rules/spell_catalogue.h"

#include <algorithm>

#include "rules/find_row.h"
#include "rules/spell_aliases.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

// clang-format off

// Slots for spells of level  1  2  3  4  5  6  7  8  9, by the mage's level.
constexpr std::array<int, kSpellLevels> kSpellSlots[] = {
                            { 3, 0, 0, 0, 0, 0, 0, 0, 0},   //  1
                            { 4, 0, 0, 0, 0, 0, 0, 0, 0},
                            { 5, 1, 0, 0, 0, 0, 0, 0, 0},
                            { 6, 2, 0, 0, 0, 0, 0, 0, 0},
                            { 6, 3, 1, 0, 0, 0, 0, 0, 0},   //  5
                            { 6, 4, 2, 0, 0, 0, 0, 0, 0},
                            { 6, 4, 3, 1, 0, 0, 0, 0, 0},
                            { 6, 4, 4, 2, 0, 0, 0, 0, 0},
                            { 6, 4, 4, 3, 1, 0, 0, 0, 0},
                            { 6, 5, 4, 4, 2, 0, 0, 0, 0}};  // 10

// clang-format on


}  // namespace

int FindSpell(std::span<const SpellRecord> spells, std::string_view name) {
  return FindRowNamed(spells, SpellNameInCatalogue(TrimRight(name)));
}

bool IsSpellOf(const SpellRecord& spell, int level, std::string_view school) {
  return spell.Level == level && Contains(spell.Type, school);
}

std::array<int, kSpellLevels> SpellSlotsAtLevel(int level) {
  if (level < 1) return {};
  return kSpellSlots[std::min(static_cast<std::size_t>(level), std::size(kSpellSlots)) - 1];
}

int CantripAllowance(int intelligence, bool chintzyMentor) {
  const int cantrips = AddSaturated(intelligence, intelligence);
  return chintzyMentor ? std::min(cantrips / 4, kChintzyCantrips) : cantrips;
}

int CapStartingSpells(int spells, bool chintzyMentor) {
  return std::min(spells, chintzyMentor ? 2 : 3);
}

FreeSpell FreeSpellOf(FreeSpellKind kind, std::string_view className) {
  const bool learnsMore = Contains(className, "Double") || Contains(className, "Sole");
  switch (kind) {
    case FreeSpellKind::LevelOne:
      return {"You may pick any one spell castable by you for free at level 1.", learnsMore ? 2 : 1};
    case FreeSpellKind::UpToLevelThree:
      return {"You may pick any one spell up to level 3 for free.", 3};
    case FreeSpellKind::AnyLevel:
      break;
  }
  return {"You may pick any one spell of any level for free.", static_cast<int>(kSpellLevels)};
}

}  // namespace veld
