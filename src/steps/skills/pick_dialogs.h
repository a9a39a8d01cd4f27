#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rules/grant_notation.h"
#include "store/game.h"

namespace veld {

// Dialogs in which the player picks one thing that is granted. A list that would be empty opens no dialog. The close
// box drops the grant.

/// What a player uses where one thing is picked.
namespace PickControl {
inline constexpr int Accept = 1;
inline constexpr int Choices = 3021;
}  // namespace PickControl

/// The pages that a pick is made on.
enum class PickPage {
  FreeRemote,  ///< "Pick your free skill"
  FreeWeapon,  ///< "Pick your free item"
};

/// Lets the player pick one of `names`; the first stands selected. Its place in the list, -1 if none was picked.
int PickOne(Game& game, PickPage page, std::vector<std::string> names, std::string_view title = {});

/// A pick of one of `names` that is granted at no cost. Returns false if none was picked.
bool PickSkill(Game& game, PickPage page, std::span<const std::string_view> names);

/// The survival pick: desert, jungle, underground or winter.
bool PickSurvivalSkill(Game& game);

/// The pick of armor or weapon maintenance, and that of a combat procedure. Refused when the proficiency slots are out.
bool PickMaintenanceSkill(Game& game);
bool PickCombatSkill(Game& game);

/// The pick of a held member of a skill family, or of a new one that the player names. LastSkillDetail is the slot
/// granted, -1 if nothing was.
void PickDetail(Game& game, int family);

/// The pick of a language held, whose reading and writing is granted. LastSkillDetail as above.
void PickReadingWriting(Game& game);

/// Where the mastery stands that the last pick or grant of a family left in LastSkillDetail; null if it granted
/// nothing.
int* LastDetailMastery(Game& game, int family);

/// The choice of a kind of instrument, of which the player then names one.
void PickBardInstrument(Game& game);

/// Lets the player pick a proficiency that a class of the character may learn and that is not held. Returns its row, -1
/// if none was picked, or none could be, as when the proficiency slots are out.
int PickProficiency(Game& game, WeaponPick pick);

}  // namespace veld
