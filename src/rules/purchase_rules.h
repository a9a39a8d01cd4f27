#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace veld {

/// What the rules of buying skills and talents read of a character, as plain values. The views look at the caller's
/// arrays, which must outlive the record; an empty view reads as zeros. No rule below changes anything of it.
struct SkillBuyer {
  std::string_view RaceName;
  std::string_view ClassName;
  std::string_view PackageName;
  int ClassIsCleric = 0;
  int ClassIsMage = 0;
  int ClassIsThief = 0;
  int Intelligence = 0;                               ///< whole score
  int Charisma = 0;                                   ///< whole score
  int SelfDisciplinePrice = 0;                        ///< BP; 0: the usual price
  int BowBonusDiscount = 0;                           ///< BP; 0: the usual price
  int CrossbowBonusDiscount = 0;                      ///< BP; 0: the usual price
  int AmazonDoubleRoll = 0;                           ///< above 0: the Amazon's double roll is still to be given
  std::span<const int> ClassLevels;                   ///< by row of the class table
  std::span<const int> SkillScores;                   ///< mastery by row of the plain skills
  std::span<const std::array<int, 50>> FamilyScores;  ///< mastery of each member of each skill family
  std::span<const int> TalentFlags;                   ///< the race's, by row of the plain talents
  std::span<const int> Talent2Flags;                  ///< the race's, by row of the second talent table
  std::span<const int> RuleSwitches;
};

/// `values[index]`, 0 if there is no such element.
int ValueAt(std::span<const int> values, int index);

/// Mastery of a plain skill, 0 if not held.
int SkillScore(const SkillBuyer& buyer, int row);

/// Mastery of a family's first member.
int FirstMemberScore(const SkillBuyer& buyer, int family);

/// True if any member of a family is held.
bool HoldsFamily(const SkillBuyer& buyer, int family);

/// Who a rule is for: everyone for whom all that is filled in holds. Lists of names have '|' between the names.
struct Who {
  static constexpr int kEither = -1;

  std::string_view Package = {};       ///< the package's name
  std::string_view Class = {};         ///< the class's name
  std::string_view ClassHolding = {};  ///< the class's name holds one of these
  std::array<int, 2> LevelIn = {};     ///< a level in one of these class rows
  std::string_view Race = {};          ///< the race is one of these
  std::string_view NotRace = {};       ///< the race is none of these
  int IsCleric = kEither;
  int IsMage = kEither;
  int IsThief = kEither;          ///< 1: ClassIsThief is above 0; 0: it is not
  int BookOn = 0;                 ///< this rule switch is 1
  bool AmazonDoubleRoll = false;  ///< the Amazon's double roll is still to be given
  bool BowDiscount = false;       ///< Bow Bonus has a price of the buyer's own
  bool CrossbowDiscount = false;  ///< Crossbow Bonus has
};

bool IsMeant(const Who& who, const SkillBuyer& buyer);

/// Which rows of a catalogue a rule is for: those that any filled part names, less the exceptions. A rule of which no
/// part is filled in is for every row. Names are held against a row's whole name, without the blanks at its end.
struct Rows {
  std::string_view Names = {};  ///< with '|' between them
  std::string_view NameHolding = {};
  std::array<int, 2> Range = {0, -1};  ///< first and last row
  int Category = 0;
  std::string_view Except = {};  ///< names of rows that are not meant
  bool NotHeld = false;          ///< only while the plain skill is not held
};

/// Says nothing of NotHeld.
bool IsMeant(const Rows& rows, int row, std::string_view name, int category);

/// What a rule does to a price in BP.
struct Change {
  enum class Kind { Become, Add, Times, LeastOne, SelfDiscipline, BowDiscount, CrossbowDiscount };
  Kind Does;
  float Amount = 0;
};

constexpr Change Becomes(float price) {
  return {Change::Kind::Become, price};
}
constexpr Change Plus(float amount) {
  return {Change::Kind::Add, amount};
}
constexpr Change Less(float amount) {
  return {Change::Kind::Add, -amount};
}
inline constexpr Change kHalved = {Change::Kind::Times, 0.5F};
inline constexpr Change kDoubled = {Change::Kind::Times, 2};
inline constexpr Change kAtLeastOne = {Change::Kind::LeastOne};                     ///< 0 or less becomes 1
inline constexpr Change kSelfDisciplinePrice = {Change::Kind::SelfDiscipline};      ///< the buyer's own price, unless 0
inline constexpr Change kBowBonusDiscount = {Change::Kind::BowDiscount};            ///< likewise
inline constexpr Change kCrossbowBonusDiscount = {Change::Kind::CrossbowDiscount};  ///< likewise

/// One rule of a price list. Lists are read from the top, and each rule changes what those before it left.
struct PriceRule {
  Who For;
  Rows Of;
  Change Does;
};

/// The price that a list of rules makes of `price` for a row, in single precision.
float PriceAfter(std::span<const PriceRule> rules, float price, int row, std::string_view name, int category,
                 const SkillBuyer& buyer);

/// True if `name`, without blanks at its end, is in a list of names with '|' between them.
bool ListHolds(std::string_view list, std::string_view name);

/// Calls `visit` with each name of a list with '|' between them, without blanks around it.
template <typename Visit>
void ForEachName(std::string_view list, Visit visit) {
  while (!list.empty()) {
    const std::size_t bar = list.find('|');
    std::string_view name = list.substr(0, bar);
    while (name.starts_with(' ')) name.remove_prefix(1);
    while (name.ends_with(' ')) name.remove_suffix(1);
    if (!name.empty()) visit(name);
    if (bar == std::string_view::npos) return;
    list.remove_prefix(bar + 1);
  }
}

}  // namespace veld
