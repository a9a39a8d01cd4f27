#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "store/game.h"

namespace veld {

/// What a player uses where points are placed: a field for each ability, in the order of AllottedAbilities.
namespace AllotmentControl {
inline constexpr int FirstEntry = 3000;
}  // namespace AllotmentControl

/// Slot 0 of the nine thief abilities := the percentages before any point is placed, by class, Dexterity and race; the
/// totals of slot 99 become 0.
void SetThiefBaseScores(Game& game);

/// Slot 99 of the nine thief abilities := the sum of their slots 0 to 98.
void SumThiefAbilities(Game& game);

/// Who places points of a level, and on which abilities.
enum class Allotment {
  None,
  Thief,         ///< all nine abilities, at most 30 on one, at most 15 of 35 points or fewer
  Bard,          ///< climb walls, detect noise, pick pockets, read languages, without a limit
  BountyHunter,  ///< find traps, remove traps, move silently, hide in shadows, at most half the points on one
};

/// How a class places points; None for a class that has none.
Allotment AllotmentOf(int classRow);

/// The thief abilities (ThiefAbilityKind) of an allotment, in the order of its dialog.
std::span<const int> AllottedAbilities(Allotment allotment);

/// The slot that the points of a class row are placed in: the level in the allotment's own class. Other thieves than
/// the plain one use his level, and their own where they hold none of his.
std::size_t AllotmentSlot(const CharacterSheet& sheet, Allotment allotment, int classRow);

/// Which of the entries can not stand, and why; whether there are too many of them all. Empty while they can, though
/// points may be left.
std::string AllotmentRefusal(Allotment allotment, int points, std::span<const std::int64_t> entries);

/// Places points, one entry for each ability of the allotment. Returns false, with nothing placed, if they do not add
/// up to ThiefPointsToSpend or one is out of its limits.
bool PlaceThiefPoints(Game& game, Allotment allotment, int classRow, std::span<const std::int64_t> entries);

/// The dialog in which the class places ThiefPointsToSpend: ThiefAbilities, BardAbilities or BountyHunterAbilities,
/// with base scores and totals brought up to date before. Closed without OK it places nothing; in ThiefAbilities that
/// is its Abort and sets CurrentStep 1.
void RunAllotment(Game& game, int classRow);

}  // namespace veld
