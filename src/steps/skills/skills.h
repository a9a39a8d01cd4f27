#pragma once

#include <string_view>

#include "store/game.h"

namespace veld {

class Form;

// What the Skills dialog shows of the skill selected, and what a player uses.
namespace SkillsControl {
inline constexpr int Search = 3000;
inline constexpr int Available = 3026;
inline constexpr int Owned = 3027;
inline constexpr int BonusPoints = 3043;
inline constexpr int TakeAsFree = 3046;
inline constexpr int Add = 4001;
inline constexpr int Proficiencies = 4005;
inline constexpr int Talents = 4006;
inline constexpr int Category = 4045;
inline constexpr int Price = 90;
inline constexpr int Abilities = 91;
inline constexpr int Die = 92;
inline constexpr int Links = 93;
inline constexpr int LinksHead = 199;
inline constexpr int Page = 505;
inline constexpr int Refusal = 506;   ///< what a purchase would be refused for
inline constexpr int Selected = 507;  ///< its name
}  // namespace SkillsControl

/// Shows price, abilities, die, links and page of the skill of this name, and why it can't be bought. What the next
/// purchase rolls for goes to RollContextText: the abilities and the category's text. A name that finds no skill clears
/// the fields.
void ShowSkillCost(Game& game, Form& form, std::string_view name);

/// Step 12: the Skills dialog, from which proficiencies, talents and tattoos are bought too. OK sets CurrentStep to 13
/// once class and package have the skills that they demand; any other way out leaves it at 12.
void RunSkills(Game& game);

}  // namespace veld
