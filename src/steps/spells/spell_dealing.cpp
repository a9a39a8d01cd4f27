#include "steps/spells/spell_dealing.h"

#include <algorithm>
#include <vector>

#include "dice/dice.h"
#include "rules/spell_catalogue.h"
#include "store/sheet_accessors.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kMostDealRolls = 1'000;
constexpr int kMostAnyRolls = 10'000;
constexpr int kPaintedMagePicks = 4;
constexpr int kFirstLevel = 1;

bool LearnsNoAttack(const Game& game) {
  return HasQuirk(game.sheet, QuirkRow::PacifistMentor) || HasQuirk(game.sheet, QuirkRow::WussMentor);
}

int& Mark(Game& game, int row) {
  return game.sheet.SpellsKnown[static_cast<std::size_t>(row)];
}

bool IsFree(const Game& game, int row) {
  return row >= 0 && game.sheet.SpellsKnown[static_cast<std::size_t>(row)] == kUnknownSpell;
}

void Deal(Game& game, int row) {
  Mark(game, row) = 1;
  game.run.DealtSpells[static_cast<std::size_t>(row)] = true;
}

/// Gives a spell by name if it is unknown and not barred; a name without a row is lost.
bool Grant(Game& game, std::string_view name) {
  const int row = FindSpell(game.SpellTable, name);
  if (!IsFree(game, row)) return false;
  Deal(game, row);
  return true;
}

bool AnyFree(const Game& game, const NameList& names) {
  for (int n = 1; n <= names.Count(); ++n) {
    if (IsFree(game, FindSpell(game.SpellTable, names.Name(n)))) return true;
  }
  return false;
}

bool IsAttack(std::string_view name) {
  const NameList attacks = FirstLevelSpells(FirstLevelTable::C);
  for (int n = 1; n <= attacks.Count(); ++n) {
    if (attacks.Name(n) == name) return true;
  }
  return false;
}

template <typename Wanted>
void BarSpells(Game& game, const Wanted& isBarred) {
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    int& mark = game.sheet.SpellsKnown[row];
    if (mark == kUnknownSpell && isBarred(game.SpellTable[row])) mark = kBarredSpell;
  }
}

void BarSchools(Game& game, const NameList& schools) {
  BarSpells(game, [&](const SpellRecord& spell) { return schools.AnyIn(spell.Type); });
}

/// A random unknown spell of a level whose school text holds the word; of any school for no word. False if there is
/// none.
bool DealSpellOf(Game& game, int level, std::string_view school) {
  std::vector<int> rows;
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    const SpellRecord& spell = game.SpellTable[row];
    const bool isWanted = school.empty() ? spell.Level == level : IsSpellOf(spell, level, school);
    if (!isWanted || !IsFree(game, static_cast<int>(row))) continue;
    if (LearnsNoAttack(game) && IsAttack(spell.Name)) continue;
    rows.push_back(static_cast<int>(row));
  }
  if (rows.empty()) return false;
  const int roll = RollDice(game, static_cast<int>(rows.size()), 1);
  Deal(game, rows[static_cast<std::size_t>(std::clamp(roll, 1, static_cast<int>(rows.size())) - 1)]);
  return true;
}

/// True if a roll on a section can end the deal: by a spell that can be given, or by one of another level.
bool CanDeal(const Game& game, const SchoolSection& section) {
  for (int roll = 1; roll <= section.Die; ++roll) {
    const std::string_view name = section.Spell(roll);
    const int row = FindSpell(game.SpellTable, name);
    if (row < 0) continue;
    if (game.SpellTable[static_cast<std::size_t>(row)].Level != section.Level) return true;
    if (IsFree(game, row) && !(LearnsNoAttack(game) && IsAttack(name))) return true;
  }
  return false;
}

/// What a specialist's die says for a level: a spell of the book's section if its row is of that level, else any
/// unknown one of the level and school. A spell that is known, barred or kept back by a mentor is drawn again.
void DealSchoolSpell(Game& game, const SpecialistSchool& school, int level) {
  const SchoolSection* section = FindSchoolSection(school.Specialist, level);
  const int mostRolls = section && CanDeal(game, *section) ? kMostDealRolls : 0;
  for (int rolls = 0; rolls < mostRolls; ++rolls) {
    const std::string_view name = section->Spell(RollDice(game, section->Die, 1));
    const int row = FindSpell(game.SpellTable, name);
    if (row >= 0 && game.SpellTable[static_cast<std::size_t>(row)].Level != level) break;
    if (LearnsNoAttack(game) && IsAttack(name)) continue;
    if (Grant(game, name)) return;
  }
  DealSpellOf(game, level, school.School);
}

/// One spell of any first-level table, by a d300; nothing once all names are known or barred.
void DealAnyFirstLevel(Game& game) {
  using enum FirstLevelTable;
  const bool isAnyLeft = AnyFree(game, FirstLevelSpells(A)) || AnyFree(game, FirstLevelSpells(B)) ||
                         (!LearnsNoAttack(game) && AnyFree(game, FirstLevelSpells(C)));
  if (!isAnyLeft) return;
  for (int tries = 0; tries < kMostAnyRolls; ++tries) {
    FirstLevelTable table = FirstLevelTableOf(RollDice(game, 300, 1));
    if (table == FirstLevelTable::C && LearnsNoAttack(game)) table = FirstLevelTable::A;
    if (DealFirstLevelSpell(game, table)) return;
  }
}

/// The tables that a mage without a school is dealt from, in order; what is beyond them comes from any table.
std::vector<FirstLevelTable> PlainTables(const Game& game) {
  using enum FirstLevelTable;
  if (HasQuirk(game.sheet, QuirkRow::PacifistMentor)) return {A, B, A};
  if (HasQuirk(game.sheet, QuirkRow::WussMentor)) return {A, B};
  return {C, B, A};
}

/// Deals `picks` spells to a mage without a school. In a Wild Mage's deal any spell of the first level stands for
/// table A.
void DealPlain(Game& game, int picks, bool isWild) {
  const std::vector<FirstLevelTable> tables = PlainTables(game);
  const bool endsWithTables =
      HasQuirk(game.sheet, QuirkRow::WussMentor) && !HasQuirk(game.sheet, QuirkRow::PacifistMentor);
  for (std::size_t pick = 0; pick < static_cast<std::size_t>(std::max(picks, 0)); ++pick) {
    if (pick >= tables.size()) {
      if (endsWithTables) return;
      DealAnyFirstLevel(game);
    } else if (isWild && tables[pick] == FirstLevelTable::A) {
      DealSpellOf(game, kFirstLevel, "");
    } else {
      DealFirstLevelSpell(game, tables[pick]);
    }
  }
}

/// Deals a specialist `perLevel` spells of the school for each level that the mage has slots for, then any of the first
/// level. Of the first level there are `picks` in all.
void DealSpecialist(Game& game, const SpecialistSchool& school, int perLevel, int picks) {
  int dealt = 0;
  for (int level = 1; level <= static_cast<int>(kSpellLevels); ++level) {
    if (game.run.SpellsPerLevel[static_cast<std::size_t>(level - 1)] <= 0) break;
    const int ofSchool = level == kFirstLevel ? std::min(perLevel, picks) : perLevel;
    for (int i = 0; i < ofSchool; ++i) DealSchoolSpell(game, school, level);
    if (level == kFirstLevel) dealt = ofSchool;
  }
  for (; dealt < picks; ++dealt) DealAnyFirstLevel(game);
}

void DealBloodMage(Game& game, int picks) {
  Grant(game, "Witherslow");
  Grant(game, "Blood Missile");
  const SpecialistSchool* necromancer = FindSpecialist("Necromancer");
  for (int pick = 2; necromancer && pick < picks; ++pick) DealSchoolSpell(game, *necromancer, kFirstLevel);
}

/// The practitioner's own spells are not barred by the schools given up for them.
void DealSolePractitioner(Game& game, const SolePractitioner& practitioner) {
  for (int n = 1; n <= practitioner.Spells.Count(); ++n) {
    const std::string_view name = practitioner.Spells.Name(n);
    if (!LearnsNoAttack(game) || !IsAttack(name)) Grant(game, name);
  }
  BarSchools(game, practitioner.Barred);
}

void DealByClass(Game& game, int picks) {
  const std::string_view className = game.sheet.ClassName;
  const SpecialistSchool* school = FindSpecialist(className);
  if (const SolePractitioner* practitioner = FindSolePractitioner(className)) {
    DealSolePractitioner(game, *practitioner);
  } else if (Contains(className, "Blood Mage")) {
    DealBloodMage(game, picks);
  } else if (Contains(className, "Battle Mage")) {
    const FirstLevelTable table = LearnsNoAttack(game) ? FirstLevelTable::A : FirstLevelTable::C;
    for (int pick = 0; pick < picks; ++pick) DealFirstLevelSpell(game, table);
  } else if (Contains(className, "Painted Mage")) {
    DealPlain(game, kPaintedMagePicks, false);
  } else if (school) {
    DealSpecialist(game, *school, Contains(className, "Double") ? 2 : 1, picks);
  } else {
    DealPlain(game, picks, Contains(className, "Wild Mage"));
  }
}

}  // namespace

bool DealFirstLevelSpell(Game& game, FirstLevelTable table) {
  const NameList names = FirstLevelSpells(table);
  int pending = 1;
  bool hadExtra = false;
  for (int rolls = 0; pending > 0; ++rolls) {
    if (rolls == kMostDealRolls || !AnyFree(game, names)) return false;
    const int roll = RollDice(game, 100, 1);
    if (roll == kExtraSpellRoll) {
      pending += hadExtra ? 1 : 2;
      hadExtra = true;
    } else if (Grant(game, FirstLevelSpell(table, roll))) {
      --pending;
    }
  }
  return true;
}

void GrantStartingSpells(Game& game) {
  if (game.run.StartingSpells < 0) return;
  if (HasQuirk(game.sheet, QuirkRow::GimpMentor)) {
    BarSpells(game, [](const SpellRecord& spell) { return Contains(spell.Component, "S"); });
  }
  if (const SpecialistSchool* school = FindSpecialist(game.sheet.ClassName);
      school && Contains(game.sheet.ClassName, "Double")) {
    BarSchools(game, school->DoubleBars);
  }
  game.run.StartingSpells = CapStartingSpells(game.run.StartingSpells, HasQuirk(game.sheet, QuirkRow::ChintzyMentor));
  DealByClass(game, game.run.StartingSpells);
}

void GrantReadingAndWriting(Game& game) {
  if (game.run.StartingSpells < 0) return;
  for (const std::string_view name : {"Read Magic", "Write"}) {
    if (name == "Write" && Contains(game.sheet.ClassName, "Painted Mage")) continue;
    // Every mage holds them, whatever a mentor or a school bars.
    const int row = FindSpell(game.SpellTable, name);
    if (row >= 0 && Mark(game, row) <= kUnknownSpell) Deal(game, row);
  }
}

void LiftSpellBars(Game& game) {
  std::ranges::replace(game.sheet.SpellsKnown, kBarredSpell, kUnknownSpell);
}

void LearnSpell(Game& game, std::size_t row) {
  if (row >= kSpellRows || game.SpellTable[row].Name == "Empty") return;
  const int mark = game.SpellTable[row].Level + RollDice(game, 6, 1) - 1;
  game.sheet.SpellsKnown[row] = std::max(mark, 1);
}

void ForgetSpell(Game& game, std::size_t row) {
  if (row >= kSpellRows) return;
  game.sheet.SpellsKnown[row] = kUnknownSpell;
  game.run.DealtSpells[row] = false;
}

int KnownCantrips(const Game& game) {
  const auto& known = game.sheet.SpellsKnown;
  return static_cast<int>(
      std::count_if(known.begin(), known.begin() + kCantripRows, [](int mark) { return mark > 0; }));
}

}  // namespace veld
