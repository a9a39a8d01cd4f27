#pragma once

#include <array>
#include <string_view>

namespace veld {

inline constexpr int kTalentTableRows = 150;
inline constexpr int kTalentTable2Rows = 50;

/// A talent, or a talent that is taken for something the player names. Row numbers are stored in character files.
struct TalentRecord {
  std::string_view Name;  ///< trailing blanks are part of it, see FindTalentRow
  int BP = 0;             ///< price in BP, before the price rules
  int Book = 0;           ///< the row is offered only while this rule switch is 1
  std::string_view Page;
  float Fraction = 0;  ///< read by no rule
};

/// The plain talents: 148 rows in use; rows 113 and 124 have no name.
const std::array<TalentRecord, kTalentTableRows>& TalentTable();

/// The talents taken for something named, such as one kind of weapon: 8 rows in use.
const std::array<TalentRecord, kTalentTable2Rows>& TalentTable2();

/// The plain talent of this name, or else the first whose name stands in `text`; -1 if none. Case matters.
int FindTalentRow(std::string_view text);

/// The same among the talents taken for something named.
int FindTalentFamilyRow(std::string_view text);

}  // namespace veld
