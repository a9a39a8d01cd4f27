#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "rules/quirk_table.h"
#include "store/game.h"

namespace veld {

class Form;

/// Step 7: the CherryPick dialog. The player picks up to two minor and one major quirk or flaw from lists for 2 and 4
/// BP, or enters how often to roll for them. CurrentStep becomes 8, or 1 on Abort.
void RunCherryPick(Game& game);

/// What the picking boxes offer of a kind: rows of the books in use that can be picked (again).
std::vector<std::string> OfferedQuirkNames(const Game& game, QuirkKind kind);
/// The picks of a kind, each as often as it was picked.
std::vector<std::string> PickedQuirkNames(const Game& game, QuirkKind kind);

/// Fills the two picking boxes of the dialog.
void FillQuirkPickBoxes(const Game& game, Form& form);
/// Fills the two lists of picks of the dialog.
void FillQuirkPickLists(const Game& game, Form& form);

/// Adds (delta 1) or takes back (delta -1) a pick of the first minor or major row whose name the text holds. For a row
/// of a supplement the player is asked first, on taking it back too. Returns false if nothing changed.
bool ChangeQuirkPick(Game& game, std::string_view text, int delta);

void ClearQuirkPicks(Game& game);

/// The picks become what the character has; each supplement of a row held binds the character to its classes.
void ApplyQuirkPicks(Game& game);

}  // namespace veld
