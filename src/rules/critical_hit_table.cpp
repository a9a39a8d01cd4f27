#include "rules/critical_hit_table.h"

#include <algorithm>

#include "rules/critical_hit_notation.h"
#include "rules/critical_hit_rows.h"
#include "text/format.h"

namespace veld {
namespace {

constexpr int kPlaces = static_cast<int>(kCriticalHitPlaces.size());
static_assert(kDamageTypes.size() * kCriticalHitSeverities * kPlaces == kCriticalHitRows);
static_assert(kCriticalHitPlaces.back().High == 10000);

struct DamageTypeTable {
  const std::array<CriticalHitLadder, 50>& Ladders;
  const CriticalHitIndex& Index;
};

constexpr std::array<DamageTypeTable, 4> kTables = {{
    {kPuncturingHits, kPuncturingIndex},
    {kHackingHits, kHackingIndex},
    {kCrushingHits, kCrushingIndex},
    {kMonsterBiteHits, kMonsterBiteIndex},
}};

int RowOf(int damageType, int severity, int place) {
  return (damageType * kCriticalHitSeverities + severity - 1) * kPlaces + place;
}

/// The first place begins at 0, so that a typed 0 finds it. The table of the book begins one group at 1.
int LowOfFirstPlace(int damageType, int severity) {
  return damageType == 0 && severity == 5 ? 1 : 0;
}

}  // namespace

// clang-format off

constexpr std::array<std::string_view, 34> kCriticalHitNotation = {
    "Critical Hit Notations",
    "numeral X = extra damage of dX type",
    "aX = -X to-hit",
    "bX = p if spine; ws if arm or shoulder; 30% chance of pb; 30% chance of ib if torso",
    "bfX = p if spine; ws if arm or shoulder; 30% chance of pb; 30% chance of ib if torso",
    "bmX = 50% chance of pb, 50% chance of ib if torso",
    "bsX = 65% chance of pb, 65% chance of ib if torso",
    "dX = reduce Deterity by X",
    "f = fall prone",
    "hX = loss of X Honor",
    "ib = 1d4 damage/hour; CON check for shock",
    "ls = limb severed; pb unless finger or toe",
    "m1 = 50% move for 1 rd, 10% for 2d4 rds",
    "m2 = 50% move for 2 rds, 25% for 2d10 rds",
    "m3 = m1, then 1 25% for 1d6 turns",
    "m4 = 50% move for 1d12 hours",
    "m5 = m4, then 25% for 1d12 days",
    "m6 = 75% for 6 hours, 50% for 2d12 days",
    "m7 = 75% for 6 hours, 50% for 4d12 days",
    "m8 = 75% for 6 hours, 50% for 1d3 months",
    "m9 = 75% for 1 day, 50% for 1d4 months",
    "m10 = 75% for 1 week, 50% for 1d6 months",
    "mc = temporarily gains migraines flaw and headache. 3% x severity level chance of seizure disorder",
    "mtX = ws if arm; 3% x severity level of pb",
    "p = 5% x severity level chance of paralysis",
    "pb = bleed to death in Con/2 rounds",
    "sc = temporarily gains migraines and short term memory loss flaws. 5% x severity level chance of seizure disorder "
    "flaw",
    "sX - reduce Strength by x",
    "tX = ws if arm, shoulder or hand; p if leg or arm, shoulder or hand; 30% chance of pb",
    "u = unconscious",
    "vX = ws (-10); ib; 3% x severity chance of pb; roll on vital organ damage table",
    "w = drops carried weapons or items",
    "ws = as w unless check at 1/2 Str made",
    "xX = X times the damage",
};

// clang-format on

CriticalHitRecord CriticalHitRow(int row) {
  CriticalHitRecord record;
  if (row < 0 || row >= kCriticalHitRows) return record;
  const int group = row / kPlaces;
  const auto place = static_cast<std::size_t>(row % kPlaces);
  record.DamageType = group / kCriticalHitSeverities;
  record.Severity = group % kCriticalHitSeverities + 1;
  record.Low =
      place == 0 ? LowOfFirstPlace(record.DamageType, record.Severity) : kCriticalHitPlaces[place - 1].High + 1;
  record.High = kCriticalHitPlaces[place].High;

  const DamageTypeTable& table = kTables[static_cast<std::size_t>(record.DamageType)];
  const CriticalHitSlice slice = table.Index[place][static_cast<std::size_t>(record.Severity - 1)];
  const auto& [location, ladder] = table.Ladders[place];
  record.Result = Format("%s: %s", location, ladder.substr(slice.Start, slice.Length));
  return record;
}

FixedText<kCriticalHitWidth> CriticalHitResult(int damageType, int severity, int roll) {
  if (severity < 1) return "Severity level below 1; Critical Hit negated";
  severity = std::min(severity, kCriticalHitSeverities);
  if (damageType >= 0 && damageType < static_cast<int>(kDamageTypes.size()) &&
      roll >= LowOfFirstPlace(damageType, severity)) {
    for (int place = 0; place < kPlaces; ++place) {
      if (roll > kCriticalHitPlaces[static_cast<std::size_t>(place)].High) continue;
      return CriticalHitRow(RowOf(damageType, severity, place)).Result;
    }
  }
  return "Error, incomplete data in program";
}

std::vector<std::size_t> NotationLinesOf(std::string_view result) {
  constexpr int kMovementLines = 10;
  TakePart(result, ": ");
  std::vector<std::size_t> lines;
  while (!result.empty()) {
    const CriticalHitEffect effect = ReadEffect(TakePart(result, ", "));
    if (effect.Kind < 0) return lines;
    int line = 1 + effect.Kind;
    if (effect.Kind == kMovementEffect) line += effect.Number - 1;
    if (effect.Kind > kMovementEffect) line += kMovementLines - 1;
    lines.push_back(static_cast<std::size_t>(line));
  }
  return lines;
}

}  // namespace veld
