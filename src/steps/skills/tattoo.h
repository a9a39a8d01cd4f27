#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "store/game.h"

namespace veld {

/// Places of the body: elements of TattooChoices and the values of a tattoo's location code. The last stands for both
/// lower arms, which its tattoo marks besides.
enum TattooPlace : int {
  kNoPlace = 0,
  kForehead = 1,
  kLeftUpperArm = 2,
  kRightUpperArm = 3,
  kLeftLowerArm = 4,
  kRightLowerArm = 5,
  kBothLowerArms = 6,
};

struct TattooRecord {
  std::string_view Name;
  std::string_view CostText;
  std::string_view ConstitutionLossText;
  std::string_view Effect;
  std::string_view LocationText;
  std::string_view Places;  ///< digits of the places that it can be asked for
  int Cost;                 ///< BP
  int ConstitutionLoss;     ///< percentile points
  int StrengthGain;
  int CharismaGain;  ///< Comeliness gains the same
  int CharacterSheet::*Location;
};

/// The tattoos in the order of their list.
const std::array<TattooRecord, 10>& TattooTable();

/// The tattoo of a line of either list: the name, or the name and what follows a comma; null if there is none.
const TattooRecord* FindTattoo(std::string_view line);

/// "Left Upper Arm"; empty for a number that is no place.
std::string_view TattooPlaceName(int place);

/// What the character has, a line each: "Ardkrin,  Left Upper Arm".
std::vector<std::string> OwnedTattoos(const Game& game);

/// Gives the tattoo named in TextScratch on a place (1 to 5) for its BP and Constitution. Returns false, with nothing
/// changed, if it is held, too dear, not for that place, or the place is taken.
bool AddTattoo(Game& game, int place);

/// Takes the tattoo of the line in TextScratch away and gives back all that it took. Returns false if it isn't held.
bool RemoveTattoo(Game& game);

/// The Tattoo dialog of Step 12. Opens for a Pixie Fairy only.
void RunTattoo(Game& game);

}  // namespace veld
