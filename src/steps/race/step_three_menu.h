#pragma once

#include <vector>

#include "platform/menu.h"
#include "rules/ability.h"

namespace veld {

// Commands of the menu of Step 3.
inline constexpr int kFirstAdjust = 4005;  ///< up to 4034: six sources with five targets each
inline constexpr int kFirstBurn = 4035;    ///< up to 4041: the seven abilities
inline constexpr int kReroll = 4042;
inline constexpr int kEnterStats = 4043;

/// Which ability an Adjust command lowers by 2 and which it raises by 1. Comeliness is neither.
struct AdjustCommand {
  Ability Source;
  Ability Target;
};
bool IsAdjustCommand(int id);
AdjustCommand AdjustCommandOf(int id);

bool IsBurnCommand(int id);
Ability BurnCommandOf(int id);

/// The right-click menu of the StepThree window.
std::vector<MenuItem> StepThreeMenu();

}  // namespace veld
