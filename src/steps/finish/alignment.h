#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "rules/class_table.h"
#include "store/game.h"

namespace veld {

/// What a player uses on the page of Step 14.
namespace AlignmentControl {
inline constexpr int Alignments = 4046;
}  // namespace AlignmentControl

/// The alignments as the sheet prints them, with two blanks at the end.
inline constexpr std::array<std::string_view, kAlignmentCount> kAlignmentNames = {
    "Lawful-good  ",  "Lawful-neutral  ", "Lawful-evil  ",     "Neutral-good  ", "Neutral  ",
    "Neutral-evil  ", "Chaotic-good  ",   "Chaotic-neutral  ", "Chaotic-evil  "};

/// The alignments that all classes of the character allow. Druids may always be neutral.
std::vector<std::string_view> OpenAlignmentNames(const Game& game);

/// What an alignment makes of a rioter who is not good, and of a breaker of riots who is: a quirk, each time it is
/// told.
void ApplyAlignmentQuirks(Game& game);

/// Step 14, "Choose an Alignment". OK leaves CurrentStep at 15, Abort as it is.
void RunStepFourteen(Game& game);

}  // namespace veld
