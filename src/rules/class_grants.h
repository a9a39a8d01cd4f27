#pragma once

#include <string_view>
#include <vector>

namespace veld {

/// What one grant of a class does. "Buys" is a purchase that costs nothing, with the refusals and dice of any other.
enum class GrantKind {
  Buy,             ///< buys the skill Name; a name that finds no row grants nothing, and some are misspelt for good
  Set,             ///< the mastery of plain skill Row becomes Value
  Add,             ///< Value is added to the mastery of plain skill Row
  Raise,           ///< the mastery of plain skill Row becomes at least Value
  AddDie,          ///< one penetrating roll of a die of Value sides is added to the mastery of plain skill Row
  FromIntellect,   ///< plain skill Row starts at the whole Intelligence if it is not held
  Pick,            ///< the pick of a member of family Row, which then has at least mastery Value
  NewMember,       ///< buys the new member Name ("family: name") of family Row
  Talent,          ///< the count of plain talent Row becomes 1, unless the race has it for nothing
  NewTalent,       ///< the new entry Name ("talent: what") of talent Row of the second table, count 1
  TrackingAside,   ///< the mastery of Tracking moves to the barbarian's own tracking, the skill returns to 0
  SurvivalPick,    ///< the pick of a survival skill
  LanguagePick,    ///< the pick of Reading & Writing in a language held
  BardLanguage,    ///< buys the reading and writing of the first language
  BardInstrument,  ///< the choice of a kind of instrument
  PirateSkills,    ///< the roll on "Table IL: Pirate Skills"
  StyleDiscount,   ///< the next martial arts style may be bought at a discount
  FirstLanguage,   ///< the mastery of the first language (family Row) becomes Value
};

struct ClassGrant {
  GrantKind Kind = GrantKind::Buy;
  std::string_view Name;  ///< for Buy, NewMember and NewTalent
  int Row = -1;           ///< see GrantKind; -1 where it has none
  int Value = 0;
};

/// What a class grants just before skills are bought, in order. Empty for a class without grants.
std::vector<ClassGrant> ClassGrants(std::string_view className, bool usesFighterBackground);

}  // namespace veld
