#include "backgrounds/school_harm.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

#include "backgrounds/youth_quirks.h"
#include "dice/dice.h"
#include "dice/keep_roll.h"
#include "rules/quirk_table.h"
#include "rules/school_tables.h"
#include "steps/quirks/quirk_effects.h"
#include "steps/skills/grants.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr std::string_view kQuirkTitle = "Table 5F1: Quirks Acquired During Apprenticeship";
constexpr std::string_view kFlawTitle = "Table 5F2: Flaws Acquired During Apprenticeship";
constexpr std::string_view kMaltreatedTitle = "Table 5F3: Maltreated Skills Acquired During Apprenticeship";
constexpr std::string_view kLaborTitle = "Table 5F4: Labor Skills Acquired During Apprenticeship";

constexpr int kMostHarms = 1'000;  ///< rolls on a table of quirks or flaws, however many are owed
constexpr int kBothLimbs = 2;

// Of the spell table: the cantrips that are picked up by chance are the first ones but row 0.
constexpr int kLastChanceCantrip = 107;
constexpr std::string_view kIllusionCantrips = "Cantrips, Minor Illusions";

// What the eyes earn when they are lost one by one.
constexpr int kBlindBP = 20;
constexpr int kSecondEyeBP = 7;
constexpr int kFirstEyeBP = 18;
constexpr int kColorBlind = 5;

/// 1d8 and 1d12, from 2 to 20.
int RollSchoolDice(Game& game) {
  const int eight = RollDice(game, 8, 1);
  return eight + RollDice(game, 12, 1);
}

// --- Quirks and flaws ----------------------------------------------------------------------------------------------

bool CanHold(const Game& game, int row) {
  const int held = game.sheet.QuirkCounts[static_cast<std::size_t>(row)];
  return held >= 0 && held < QuirkLimit(game, row);
}

/// Whether some row of a table of quirks, or of one that it leads to, can still be had.
bool HasRoom(const Game& game, std::string_view table) {
  return std::ranges::any_of(QuirkTableRows(table), [&](int row) {
    const QuirkRecord& quirk = QuirkAt(row);
    if (quirk.Kind == kRollAgain || !CanHold(game, row)) return false;
    return quirk.Kind != kSubTable || HasRoom(game, quirk.NextTable);
  });
}

/// A row of a table of quirks, or of the one that a row leads to, is held.
void GainFromTable(Game& game, std::string_view table) {
  const auto isUsable = [&](int row) {
    const QuirkRecord& quirk = QuirkAt(row);
    return quirk.Kind != kRollAgain && (quirk.Kind != kSubTable || HasRoom(game, quirk.NextTable));
  };
  TableResult result;
  do {
    result = RollTableUntilRow(game, table, isUsable);
    if (!result.IsRow()) return;
    table = QuirkAt(result.Row).NextTable;
  } while (QuirkAt(result.Row).Kind == kSubTable);
  AddQuirk(game, result.Row);
}

void LoseLimbs(int& amputations, int limbs) {
  amputations = limbs == kBothLimbs ? kBothLimbs : amputations + limbs;
}

void SetEye(Game& game, int quirk, int count, int bp) {
  QuirkCount(game, quirk) = count;
  game.sheet.QuirkBP[static_cast<std::size_t>(quirk)] = bp;
}

/// Who has but one eye goes blind; else the eye goes, and with it the sense of depth.
void LoseEye(Game& game) {
  using namespace YouthQuirk;
  const int earned = game.sheet.QuirkBP[static_cast<std::size_t>(LossOfEye)];
  if (HoldsQuirk(game, LossOfEye) || HoldsQuirk(game, BlindInOneEye)) {
    SetEye(game, Blind, 1, kBlindBP);
    for (const int row :
         {LossOfEye, BlindInOneEye, NoDepthPerception, VisionImpaired, FarVisionImpaired, kColorBlind}) {
      QuirkCount(game, row) = 0;
    }
  } else if (HoldsQuirk(game, NoDepthPerception)) {
    SetEye(game, LossOfEye, 1, earned + kSecondEyeBP);
  } else {
    SetEye(game, LossOfEye, 1, earned + kFirstEyeBP);
    SetQuirk(game, NoDepthPerception);
  }
}

bool CanSuffer(const Game& game, const SchoolHarm& harm) {
  if (harm.Bar > 0 && HoldsQuirk(game, harm.Bar)) return false;
  switch (harm.Kind) {
    case SchoolHarmKind::RollTwice:
    case SchoolHarmKind::Eye:
      return true;
    case SchoolHarmKind::SubTable:
      return HasRoom(game, harm.Table);
    case SchoolHarmKind::Quirk:
      return CanHold(game, harm.Quirk);
    case SchoolHarmKind::Arm:
      return game.run.ArmAmputations < kBothLimbs && CanHold(game, harm.Quirk);
    case SchoolHarmKind::Leg:
      return game.run.LegAmputations < kBothLimbs && CanHold(game, harm.Quirk);
  }
  return false;
}

void Suffer(Game& game, const SchoolHarm& harm, int& owed) {
  switch (harm.Kind) {
    case SchoolHarmKind::RollTwice:
      owed += 2;
      return;
    case SchoolHarmKind::Quirk:
      return AddQuirk(game, harm.Quirk);
    case SchoolHarmKind::SubTable:
      return GainFromTable(game, harm.Table);
    case SchoolHarmKind::Arm:
      AddQuirk(game, harm.Quirk);
      LoseLimbs(game.run.ArmAmputations, harm.Limbs);
      ApplyArmGain(game);
      return NormalizeAbility(game.sheet.Intelligence);
    case SchoolHarmKind::Leg:
      AddQuirk(game, harm.Quirk);
      LoseLimbs(game.run.LegAmputations, harm.Limbs);
      ApplyLegGain(game);
      return NormalizeAbility(game.sheet.Strength);
    case SchoolHarmKind::Eye:
      return LoseEye(game);
  }
}

void RollHarms(ChainPage& page, std::string_view title, std::span<const SchoolHarm> harms, int owed) {
  for (int rolls = 0; owed > 0 && rolls < kMostHarms; ++rolls) {
    --owed;
    RollChainTable(page, title, [&] {
      const int total = RollSchoolDice(page.game);
      const SchoolHarm& harm = harms[static_cast<std::size_t>(total - kLowestSchoolTotal)];
      if (!CanSuffer(page.game, harm) || !IsResultKept(page.game, title, harm.Name)) return false;
      Suffer(page.game, harm, owed);
      return true;
    });
  }
}

// --- Skills --------------------------------------------------------------------------------------------------------

int RollCount(Game& game, const SchoolRolls& rolls) {
  return RollDice(game, rolls.Sides, 1) + rolls.Plus;
}

std::string_view ShownName(const GrantText& skill) {
  std::string_view name = skill.View();
  if (name.starts_with('?')) name.remove_prefix(1);
  return name;
}

void RollSkills(ChainPage& page, std::string_view title, std::span<const GrantText> skills, int rolls) {
  Game& game = page.game;
  for (; rolls > 0; --rolls) {
    RollChainTable(page, title, [&] {
      const int total = RollSchoolDice(game);
      const GrantText& skill = skills[static_cast<std::size_t>(total - kLowestSchoolTotal)];
      if (!IsResultKept(game, title, ShownName(skill))) return false;
      game.run.BuildingPoints = static_cast<float>(TruncateToInt(game.run.BuildingPoints));
      GiveGrants(game, skill);
      return true;
    });
  }
}

// --- Spells --------------------------------------------------------------------------------------------------------

/// The cantrips that a class picks up by chance; those of illusion are an illusionist's.
std::vector<std::size_t> ChanceCantrips(const Game& game) {
  const bool isIllusionist = Contains(game.sheet.ClassName, "Illusion");
  std::vector<std::size_t> rows;
  for (std::size_t row = 1; row <= kLastChanceCantrip; ++row) {
    if (game.sheet.SpellsKnown[row] > 0) continue;
    if (isIllusionist || !Contains(game.SpellTable[row].Type, kIllusionCantrips)) rows.push_back(row);
  }
  return rows;
}

/// A die that falls on a cantrip that is known, or not for the class, is thrown again.
void PickUpCantrips(Game& game, int cantrips) {
  for (; cantrips > 0; --cantrips) {
    const std::vector<std::size_t> rows = ChanceCantrips(game);
    if (rows.empty()) return;
    RollUntilItStands(game, "Cantrips", [&] {
      const auto row = static_cast<std::size_t>(RollDice(game, kLastChanceCantrip, 1));
      if (!std::ranges::binary_search(rows, row)) return false;
      game.sheet.SpellsKnown[row] = 1;
      return true;
    });
  }
}

void ForgetSpells(Game& game) {
  for (std::size_t row = kLastChanceCantrip + 1; row < kSpellRows; ++row) {
    const std::string_view name = game.SpellTable[row].Name;
    if (name != "Read Magic" && name != "Write") game.sheet.SpellsKnown[row] = 0;
  }
}

}  // namespace

void SufferMaster(ChainPage& page, std::string_view nurture) {
  const Maltreatment* const harm = FindMaltreatment(nurture);
  if (harm == nullptr) return;
  Game& game = page.game;
  if (harm->TeachesCantrips) {
    RunChainPart(page, "Cantrips picked up from the master", [&] { PickUpCantrips(game, RollDice(game, 4, 3)); });
  }
  if (harm->ForgetsSpells) RunChainPart(page, "Spells forgotten", [&] { ForgetSpells(game); });
  RollHarms(page, kQuirkTitle, SchoolQuirks(), harm->QuirkRolls);
  RollHarms(page, kFlawTitle, SchoolFlaws(), harm->FlawRolls);
  RollSkills(page, kMaltreatedTitle, MaltreatedSkills(), RollCount(game, harm->MaltreatedSkills));
  RollSkills(page, kLaborTitle, LaborSkills(), RollCount(game, harm->LaborSkills));
}

}  // namespace veld
