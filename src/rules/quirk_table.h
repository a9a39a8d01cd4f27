#pragma once

#include <array>
#include <span>
#include <string_view>

namespace veld {

/// What a result of a quirk table does.
enum QuirkKind : int {
  kMinorQuirk,    ///< a minor quirk or flaw: held, its BP paid
  kMajorQuirk,    ///< a major one: the same
  kSubTable,      ///< a further roll on NextTable is owed; the row itself is neither held nor paid
  kRollAgain,     ///< the row's name says which further rolls are owed ("twice", "6B" to "6R")
  kRefereeQuirk,  ///< held and paid now; NextTable is rolled when the character is finished
};

/// A MaxCount that stands for no limit.
inline constexpr int kAnyQuirkCount = 999;

/// One row of the quirk and flaw catalogue. A row is a thing that a character can have, an entry of a roll table and an
/// entry of a pick list at once; a row number is a stable identity that files and rules hold.
struct QuirkRecord {
  std::string_view Name;  ///< some end in four blanks, so as not to be found in longer names
  int BPCost = 0;         ///< BP that the row brings
  int RepeatBP = 0;       ///< where not 0: what it brings once it has been taken
  int Book = 0;           ///< the rule switch that brings the row in; 0 is the core rules
  std::string_view Source;
  std::string_view TableName;  ///< compared exactly and with case
  std::string_view NextTable;
  int Kind = kMinorQuirk;
  int Low = 0;  ///< Low..High is the range of the table's die that yields the row; 0..0 is on no roll table
  int High = 0;
  int MaxCount = 0;
  int Rolls = 0;                  ///< entries of NextTable that a kSubTable row adds; 0 adds one all the same
  std::array<int, 7> Excludes{};  ///< rows that are wiped out and barred while this one is held; ends at the first 0
  int ExcludedBy = 0;
};

inline constexpr int kQuirkRows = 700;  ///< length of every array that goes by quirk rows
inline constexpr int kLastQuirk = 618;  ///< rows 1..618 are filled; row 0 and rows 619..699 are blank and match nothing

/// The catalogue. It is constant: BP and counts that change during a run live with the run.
const std::array<QuirkRecord, kQuirkRows>& QuirkTable();

/// The record of a row 0 to 699.
inline const QuirkRecord& QuirkAt(int row) {
  return QuirkTable()[static_cast<std::size_t>(row)];
}

/// The first row of exactly this name, blanks at its end included; 0 if there is none.
int FindQuirkRow(std::string_view name);

/// A row's name as it is shown and printed: what stands before its first control character. (The name of row 149 was cut
/// at its width, and a number's byte ran into it.) Empty for a row outside the table.
std::string_view ShownQuirkName(int row);

/// The rows of a roll table in the order of the catalogue; none for an unknown or an empty name.
std::span<const int> QuirkTableRows(std::string_view table);

/// `Count` dice of `Sides` sides. Both are 0 for a table that can't be rolled.
struct QuirkDie {
  int Sides = 0;
  int Count = 0;
};

/// The die of a table, which follows from its rows: as many dice as the smallest Low, each of largest High / smallest
/// Low sides (1..100 is 1d100, 2..16 is 2d8). A smallest Low of 0 reads as 1.
QuirkDie QuirkTableDie(std::string_view table);

/// The row that `roll` yields on a table: the first one in order whose range holds it, else the row whose number equals
/// the sides of the table's die, whatever row that is. 0 for a table that can't be rolled.
int QuirkRowOfRoll(std::string_view table, int roll);

// The lettered tables of the books.
inline constexpr std::string_view kCodex6A = "Adventurer's Codex 6A";
inline constexpr std::string_view kHexwright6A = "Hexwright's Almanac 6A";
inline constexpr std::string_view kWarmonger6A = "Warmonger's Almanac 6A";
inline constexpr std::string_view kSwindler6A = "Swindler's Almanac 6A";
inline constexpr std::string_view kDevotee6A = "Devotee's Almanac 6A";
inline constexpr std::string_view kTable6B = "Adventurer's Codex 6B: Flaws, Minor (Physical)";
inline constexpr std::string_view kTable6C = "Adventurer's Codex 6C: Flaws, Minor (Physical)";
inline constexpr std::string_view kTable6D = "Adventurer's Codex 6D: Flaws, Minor (Physical)";
inline constexpr std::string_view kTable6E = "Adventurer's Codex 6E: Flaws, Major (Physical)";
inline constexpr std::string_view kTable6F = "Adventurer's Codex 6F: Quirks, Minor (Mental)";
inline constexpr std::string_view kTable6G = "Adventurer's Codex 6G: Quirks, Major (Mental)";
inline constexpr std::string_view kTable6H = "Adventurer's Codex 6H: Quirks, Minor (Personality)";
inline constexpr std::string_view kTable6I = "Adventurer's Codex 6I: Quirks, Major (Personality)";
inline constexpr std::string_view kTable6J = "Hexwright's Almanac 6J";
inline constexpr std::string_view kTable6K = "Hexwright's Almanac 6K";
inline constexpr std::string_view kTable6L = "Hexwright's Almanac 6L";
inline constexpr std::string_view kTable6M = "Warmonger's Almanac 6M";
inline constexpr std::string_view kTable6N = "Warmonger's Almanac 6N";
inline constexpr std::string_view kTable6O = "Devotee's Almanac 6O";
inline constexpr std::string_view kTable6P = "Devotee's Almanac 6P";
inline constexpr std::string_view kTable6Q = "Swindler's Almanac 6Q";
inline constexpr std::string_view kTable6R = "Swindler's Almanac 6R";

/// A table where a player starts, with the rule switch of its book.
struct QuirkStartTable {
  std::string_view Table;
  int Book;
};
inline constexpr std::array<QuirkStartTable, 5> kQuirkStartTables{{
    {kCodex6A, 0},
    {kHexwright6A, 1},
    {kWarmonger6A, 2},
    {kSwindler6A, 3},
    {kDevotee6A, 4},
}};

/// The letter that the names of kRollAgain rows know a table by.
struct QuirkTableLetter {
  std::string_view Letter;
  std::string_view Table;
};
inline constexpr std::array<QuirkTableLetter, 17> kQuirkTableLetters{{
    {"6B", kTable6B},
    {"6C", kTable6C},
    {"6D", kTable6D},
    {"6E", kTable6E},
    {"6F", kTable6F},
    {"6G", kTable6G},
    {"6H", kTable6H},
    {"6I", kTable6I},
    {"6J", kTable6J},
    {"6K", kTable6K},
    {"6L", kTable6L},
    {"6M", kTable6M},
    {"6N", kTable6N},
    {"6O", kTable6O},
    {"6P", kTable6P},
    {"6Q", kTable6Q},
    {"6R", kTable6R},
}};

}  // namespace veld
