#pragma once

#include "store/game.h"

namespace veld {

/// What a player uses on the page of Step 10.
namespace StepTenControl {
inline constexpr int Money = 4002;
inline constexpr int Age = 6078;
}  // namespace StepTenControl

/// Step 10, "Finish Background": the age after training, and the starting money with debt and inheritance. The first
/// roll of each is free, every other costs 1 BP. OK leaves CurrentStep at 11, Abort at 0, an Abort of the BP for the
/// money roll at 1.
void RunStepTen(Game& game);

}  // namespace veld
