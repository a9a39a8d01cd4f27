#pragma once

#include <string>
#include <string_view>

namespace veld {

// Honor: what a character starts with, and the Honor Die and category that an Honor has at a level. Levels above 19
// read the line of level 20, levels below 1 that of level 1.

/// Sides of the Honor Die and what is added to its roll. Sides 1: no Honor Die. Sides 0: the empty band of level 4.
struct HonorDice {
  int Sides = 1;
  int Bonus = 0;

  friend bool operator==(const HonorDice&, const HonorDice&) = default;
};

enum class HonorCategoryKind { Dishonorable, Average, Great, TooMuch };

HonorDice HonorDiceOf(int honor, int level);
HonorCategoryKind HonorCategoryOf(int honor, int level);

/// The category as sheets and dice read it: "Average Honor d4+1", "Great Honor d6", "Dishonorable d1" ...
std::string HonorCategoryText(int honor, int level);

// What birth and Charisma add to the starting Honor (the seven whole scores / 7).
int SocialClassHonor(int socialClassIndex);
int HeritageHonor(std::string_view familyHeritage);  ///< case aside
int CharismaHonor(int charisma);                     ///< of the whole score; 0 below 1 and above 25

/// BP that a starting Honor costs (-9 and up) or pays (up to 12). An Honor below 1 counts as 1.
int HonorBP(int honor);

}  // namespace veld
