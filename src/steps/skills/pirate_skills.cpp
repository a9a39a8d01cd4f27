#include "steps/skills/pirate_skills.h"

#include "dice/building_points.h"
#include "dice/dice.h"
#include "rules/purchase_rules.h"
#include "steps/skills/buy_skill.h"
#include "steps/skills/skill_target.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

constexpr int kTradeGain = 70;

struct PirateTrade {
  int High;  ///< highest roll of 1d100
  std::string_view Skill;
  std::string_view Raised;  ///< what gains 70, '|' between the names
};

// clang-format off
constexpr PirateTrade kTrades[] = {
  { 10, "Navigation, Nautical",   "Navigation, Nautical"},
  { 20, "Navigator Skill Suite",  "Navigator Skill Suite | Astrology | Navigation, Nautical | Swimming | "
                                  "Swimming: Dog Paddle"},
  { 85, "Sailor Skill Suite",     "Sailor Skill Suite | Seamanship | Navigation, Nautical | Swimming | "
                                  "Swimming: Dog Paddle | Rope Use"},
  {100, "Shipwright Skill Suite", "Shipwright Skill Suite | Seamanship | Carpentry | Carpentry Tools (Wood Working) | "
                                  "Seamstress/Tailor"},
};
// clang-format on

const PirateTrade& TradeOf(int roll) {
  for (const PirateTrade& trade : kTrades) {
    if (roll <= trade.High) return trade;
  }
  return kTrades[std::size(kTrades) - 1];
}

/// The gain is the pirate's whatever becomes of the purchase.
void TakeTrade(Game& game, const PirateTrade& trade) {
  BuySkill(game, {.Name = std::string(trade.Skill), .Price = PriceOf(game, FindTarget(game.sheet, trade.Skill))});
  ForEachName(trade.Raised, [&](std::string_view name) {
    const int row = FindSkillRow(name);
    if (row < 0) return;
    int& mastery = game.sheet.SkillScores[static_cast<std::size_t>(row)];
    mastery = AddSaturated(mastery, kTradeGain);
  });
}

}  // namespace

void RollPirateSkills(Game& game) {
  while (true) {
    const PirateTrade& trade = TradeOf(RollDice(game, 100, 1));
    if (!CanPay(game)) return;
    const std::string question = Format("Table IL: Pirate Skills - Keep your result of %s?", trade.Skill);
    if (AskKeep(game, question)) return TakeTrade(game, trade);
  }
}

}  // namespace veld
