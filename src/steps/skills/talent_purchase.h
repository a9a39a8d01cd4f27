#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "rules/talent_table.h"
#include "store/game.h"

namespace veld {

/// The count of a talent that the race has for nothing.
inline constexpr int kTalentOfRace = -1;

/// A talent by its place on the sheet: a row of the plain talents, or an item of a family of the second table.
struct TalentPlace {
  int Row = -1;     ///< of the plain talents
  int Family = -1;  ///< of the talents that are taken for something named
  int Item = -1;    ///< of the family; -1: an item that is yet to be named

  bool IsNone() const { return Row < 0 && Family < 0; }
  bool operator==(const TalentPlace&) const = default;
};

/// A line of a list of talents.
struct TalentLine {
  TalentPlace Place;
  std::string Text;
};

/// The talent of a name: an item that is held ("Attack Bonus: Dart"), else a plain talent as FindTalentRow finds it,
/// else the family of just this name. None for any other text.
TalentPlace FindTalent(const Game& game, std::string_view name);

/// The catalogue's record of a talent, of an item that of its family.
const TalentRecord& TalentAt(const TalentPlace& place);

/// How often it is held, or the sides of a Lucky die; 0 for an item yet to be named, -1 for a talent of the race.
int TalentCount(const Game& game, const TalentPlace& place);

/// True of a talent that is a die of the player's choice.
bool IsLuckyTalent(const TalentPlace& place);

/// What one step of the talent costs the character now, in whole BP.
int TalentPriceNow(const Game& game, const TalentPlace& place);

/// Why ChangeTalent would do nothing, in one sentence; empty if it would go through. Take After is neither bought nor
/// given up this way: the character's classes hang on it.
std::string TalentObstacle(const Game& game, const TalentPlace& place, int direction, int price);

/// Adds (direction 1) or takes away (-1) one step of a talent for `price` BP, which is given back on taking it away; a
/// grant costs 0. Asks for the name of a new item of a family, and for the sides of a "Lucky" die; a die below 1 is
/// stored as 0, though it is paid. Returns false, with nothing changed, if there is no such talent, an obstacle stands
/// or the player cancels. Refusals are silent but for a talent that the race gives.
bool ChangeTalent(Game& game, std::string_view name, int direction, int price = 0);
bool ChangeTalent(Game& game, const TalentPlace& place, int direction, int price);

/// Gives the item "family: item" of a family of the second table, for nothing. Returns false if the family has no room.
bool GrantTalentItem(Game& game, int family, std::string_view item);

/// Marks the talents that the character's race has for nothing; they can't be taken away.
void GrantRaceTalents(Game& game);

/// What may be taken: the talents open to the race, the items held, and what class, package and background open. Take
/// After, which must be taken before the class, is not among them.
std::vector<TalentLine> TalentsOffered(const Game& game);

/// What is held, with the count of a Bonus ("Dart Bonus x2"), the die of a Lucky one ("Lucky d6") and the race of Take
/// After ("Take After: Human").
std::vector<TalentLine> TalentsHeld(const Game& game);

}  // namespace veld
