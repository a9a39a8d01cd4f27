#include "steps/quirks/quirk_wipes.h"

#include <algorithm>

#include "rules/named_rows.h"
#include "rules/quirk_table.h"
#include "steps/quirks/held_quirks.h"

namespace veld {

namespace {

int& BPCostOf(Game& game, int row) {
  return game.run.QuirkBPCosts[static_cast<std::size_t>(row)];
}

void Wipe(Game& game, int row) {
  HeldCount(game, row) = 0;
  game.sheet.QuirkBP[static_cast<std::size_t>(row)] = 0;
  game.run.QuirkBarred[static_cast<std::size_t>(row)] = 1;
}

}  // namespace

// The catalogue's BP are read anew on each pass, so what a repeat brings less is undone at once and a repeat is paid in
// full.
void ReconcileQuirks(Game& game) {
  std::ranges::transform(QuirkTable(), game.run.QuirkBPCosts.begin(), &QuirkRecord::BPCost);
  for (int row = 0; row <= kLastQuirk; ++row) {
    if (HeldCount(game, row) <= 0) continue;
    if (row == QuirkRow::Baldness && game.sheet.Gender == "Female") Wipe(game, row);
    if (row == QuirkRow::Deaf) Wipe(game, QuirkRow::HearingImpaired);  // the catalogue leaves this pair out
    for (const int excluded : QuirkAt(row).Excludes) {
      if (excluded > 0) Wipe(game, excluded);
    }
  }
}

void CheapenRepeats(Game& game, int taken) {
  if (QuirkAt(taken).RepeatBP == 0) return;
  if (taken == QuirkRow::MissingFinger) {
    BPCostOf(game, taken) = QuirkAt(taken).RepeatBP;
    return;
  }
  for (const int row : QuirkTableRows(QuirkAt(taken).TableName)) BPCostOf(game, row) = QuirkAt(row).RepeatBP;
}

}  // namespace veld
