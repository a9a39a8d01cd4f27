#pragma once

#include <string>
#include <string_view>

#include "store/game.h"

namespace veld {

/// One purchase of a skill. It is passed by value, as one purchase can lead to others: a suite brings picks of skills.
struct SkillPurchase {
  /// A plain skill, a family (a new member, whose name is asked for) or a member of a family that the sheet names.
  std::string Name;
  float Price = 0;          ///< BP; a grant costs 0
  bool IsFreePick = false;  ///< a pick of the step's own: no BP and no budgets, and a stricter test of language slots
};

/// Buys one step of a skill: the single entry through which anything acquires one. The first step starts the mastery at
/// the abilities; each step adds the course die and the Honor die. BP and budgets are charged. A purchase that the
/// rules refuse, or a new member that the player gives no name, buys nothing; a refusal is told. A name that finds no
/// row grants nothing, silently. Returns true if the step was bought. LastSkillDetail becomes the slot of the member
/// that was bought or improved, -1 if it was none.
bool BuySkill(Game& game, const SkillPurchase& purchase);

/// What BuySkill would say to refuse this purchase now; empty if it would not. Changes nothing.
std::string SkillRefusal(const Game& game, const SkillPurchase& purchase);

/// Buys one step of a skill for nothing, with all refusals of a purchase. The BP come out of it as a whole number: a
/// fraction is lost.
void GrantSkillAtNoCost(Game& game, std::string_view name);

/// Grants a member of a family by its own name ("Horse"), in a new slot unless it is named in the sheet already.
void GrantMember(Game& game, int family, std::string_view item);

}  // namespace veld
