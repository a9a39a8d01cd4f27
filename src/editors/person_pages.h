#pragma once

#include "store/game.h"

namespace veld {

// The pages of the editor that are fields and nothing else.

void RunEditPerson(Game& game);     ///< names, race, gender, alignment, looks, age, height, weight, notes
void RunEditAbilities(Game& game);  ///< the seven scores
void RunEditMoney(Game& game);      ///< coins, debts, what was inherited; money found and spent
void RunPriorEdit(Game& game);      ///< birth, parents, siblings, social class
void RunEditMilitary(Game& game);   ///< the youth of a fighter
void RunEditSchool(Game& game);     ///< the youth of a mage
void RunEditSeminary(Game& game);   ///< the youth of a priest
void RunEditTattoos(Game& game);    ///< where a Pixie Fairy bears which
void RunEditStanding(Game& game);   ///< Honor, slots and the other counts that rules keep

}  // namespace veld
