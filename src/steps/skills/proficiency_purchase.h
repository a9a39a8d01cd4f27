#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/game.h"

namespace veld {

/// Values of ProficiencyLevels; each step above Specialized is one of Mastery.
namespace ProficiencyMark {
inline constexpr int Untaught = -20;  ///< withheld by a background; counts as none
inline constexpr int Limited = -10;   ///< shoddy training, a half step
inline constexpr int None = 0;
inline constexpr int Proficient = 1;
inline constexpr int Specialized = 2;
}  // namespace ProficiencyMark

/// A weapon or style, an ability that is taken for a weapon, or such an ability for the weapon it was taken for.
struct ProficiencyPlace {
  int Row = -1;      ///< of the weapons and styles
  int Ability = -1;  ///< of the second table

  bool IsNone() const { return Row < 0 && Ability < 0; }
  bool operator==(const ProficiencyPlace&) const = default;
};

/// A line of a list of proficiencies.
struct ProficiencyLine {
  ProficiencyPlace Place;
  std::string Text;
};

/// The proficiency of a name: "Quick Draw: Dagger" for an ability taken for a weapon, else as FindProficiencyRow finds
/// a weapon or style, else an ability. None for any other text.
ProficiencyPlace FindProficiency(std::string_view name);

/// Why ChangeProficiency would do nothing, in one sentence; empty if it would go through.
std::string ProficiencyObstacle(const Game& game, const ProficiencyPlace& place, int direction);

/// Adds (direction 1) or removes (-1) one step of a proficiency for 1 BP and 1 slot, which removing gives back. A
/// missile weapon takes 2 slots of a Gladiator. The first proficiency of a fighter costs no BP. An ability of the
/// second table asks for the weapon it is for, and charges the same whether it is added or removed. Returns false, with
/// nothing changed, if there is no such proficiency, an obstacle stands or no weapon was picked. Refusals are silent.
bool ChangeProficiency(Game& game, std::string_view name, int direction);
bool ChangeProficiency(Game& game, const ProficiencyPlace& place, int direction);

/// The same for Specialization in the weapon of a row: proficient to specialized and back, for the weapon's slots and
/// BP and one of the character's steps of Specialization. From a master it takes one step of Mastery instead. A Knight
/// Errant pays neither BP nor slots.
std::string SpecializationObstacle(const Game& game, int row, int direction);
bool Specialize(Game& game, int row, int direction);

/// The same for Mastery: a Fighter of the 5th level may take steps of it while slots are left, each for a slot and the
/// weapon's BP.
std::string MasteryObstacle(const Game& game, int row, int direction);
bool Master(Game& game, int row, int direction);

/// True if a class that the character has a level in may learn the weapon, style or ability.
bool ClassMayLearn(const Game& game, const ProficiencyPlace& place);

/// What may be taken: of the books in use, all or only what a class may learn.
enum class ProficiencyMode { Class, All };
std::vector<ProficiencyLine> ProficienciesOffered(const Game& game, ProficiencyMode mode);

/// What is held below Specialization: "Dagger", "Lasso - Limited", "Wrestling Specialization - x2", "Quick Draw:
/// Dagger".
std::vector<ProficiencyLine> ProficienciesHeld(const Game& game);

/// What is held above level 1, but the style that is counted in multiples.
std::vector<ProficiencyLine> Specializations(const Game& game);

/// What Specialization in a weapon costs the character, in BP and in slots.
int SpecializationPrice(const Game& game, int row);

/// Slots that a step of a weapon or style takes.
int ProficiencySlotCost(const Game& game, int row);

/// True if every proficiency slot is used.
bool ProficiencySlotsAreOut(const Game& game);

/// True if the next proficiency costs no BP: the first of a fighter.
bool IsNextProficiencyFree(const Game& game);

/// True while no more slots are used than there are, or nothing is left that could give one back.
bool MayLeaveProficiencies(const Game& game);

}  // namespace veld
