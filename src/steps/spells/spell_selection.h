#pragma once

#include <span>
#include <string>
#include <vector>

#include "rules/spell_catalogue.h"
#include "store/game.h"

namespace veld {

/// What a player uses in the dialogs in which spells are chosen: the box of lists, the spells of one, and Add.
namespace SpellControl {
inline constexpr int MasterBox = 3115;
inline constexpr int MasterList = 3021;
inline constexpr int Add = 4001;
}  // namespace SpellControl

/// True for a character with cantrips to choose or spells to be dealt. (A Blood Mage has spells but no cantrips.)
bool HasSpells(const Game& game);

/// A mage's spells at stage 10: deals the starting spells, then lets the player choose cantrips (SpellSellection). A
/// mage without cantrips gets no dialog.
void RunSpellSellection(Game& game);

/// What follows the choice: "Read Magic" and "Write", then the free spells that a school youth earned, each chosen in a
/// dialog of its own, then the end of all bars.
void FinishSpellList(Game& game);

/// The FreeSpellSellection dialog: one spell for free. Closed without a pick it gives nothing.
void RunFreeSpellSellection(Game& game, FreeSpellKind kind);

/// The cantrips that the mage may choose in all, 0 or more. A Chintzy Mentor's quarter is applied once, here at the
/// latest.
int CantripsToChoose(const Game& game);

/// How many of them are still to be chosen, as far as there are any left to choose.
int CantripsLeft(const Game& game);
/// Learns spells by their rows, in their order, until the mage has all the cantrips that he may choose.
void LearnCantrips(Game& game, std::span<const std::size_t> rows);

/// Rows of a spell list (one of SpellCategories): those that can be learned, or those that are known; the known ones
/// of all lists for the last choice of its box.
std::vector<std::size_t> SpellsToLearn(const Game& game, std::string_view category);
std::vector<std::size_t> SpellsHeld(const Game& game, std::string_view category);

}  // namespace veld
