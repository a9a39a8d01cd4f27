#include "backgrounds/youth_modifiers.h"

#include <span>
#include <string>

#include "dice/dice.h"
#include "dice/keep_roll.h"
#include "rules/youth_modifier_tables.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

constexpr int kSides = 12;
constexpr int kDice = 3;

void RollModifier(ChainPage& page, const std::string& title, std::span<const YouthModifier> rows, int modifier,
                  int& sum) {
  RollChainTable(page, title, [&] {
    const int total = AddSaturated(RollDice(page.game, kSides, kDice), modifier);
    const int value = YouthModifierOf(rows, total);
    if (!IsResultKept(page.game, title, Format("(%i) %i", total, value))) return false;
    sum = AddSaturated(sum, value);
    return true;
  });
}

}  // namespace

void RollHonorModifier(ChainPage& page, std::string_view table, int modifier) {
  RollModifier(page, Format("Table %s: Starting Honor Modifier", table), HonorModifierTable(), modifier,
               page.game.run.HonorBackgroundModifier);
}

void RollMoneyModifier(ChainPage& page, std::string_view table, int modifier) {
  RollModifier(page, Format("Table %s: Starting Money Roll Modifier", table), MoneyRollModifierTable(), modifier,
               page.game.run.InheritanceModifier);
}

}  // namespace veld
