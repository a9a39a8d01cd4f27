#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "steps/skills/skill_target.h"
#include "store/game.h"

namespace veld {

/// The names that a view of the skill list shows: the skills of a category (all at once for 0) whose books are on, each
/// family followed by the members held.
std::vector<std::string> SkillListNames(const Game& game, int category);

/// What the character has, a line each: "Tracking 34."
std::vector<std::string> OwnedSkillLines(const CharacterSheet& sheet);

/// The line of one skill held; empty for one that is not.
std::string OwnedSkillLine(const CharacterSheet& sheet, const SkillTarget& target);

/// The skill of a line of the owned skills, or else the first one held whose name stands in the line, plain skills
/// first. None for a text of fewer than 2 characters and for one that names no skill held.
SkillTarget FindOwnedSkill(const CharacterSheet& sheet, std::string_view line);

}  // namespace veld
