#pragma once

#include <array>
#include <string_view>
#include <vector>

namespace veld {

/// The alignments by their codes, in the order of an award's columns.
inline constexpr std::array<std::string_view, 9> kAlignmentCodes = {"LG", "NG", "CG", "LN", "N",
                                                                    "CN", "LE", "NE", "CE"};

inline constexpr int kHonorAwardTables = 7;
inline constexpr int kHonorNotes = 26;

/// A deed and the points of Temporal Honor that it brings or costs.
struct HonorAward {
  int Table;                  ///< 1..7: RFC tables 4B to 4H
  int NoteIndex;              ///< 1..26: the referee sets the amount by this note; 0: none
  std::array<int, 9> Points;  ///< by alignment, in the order of kAlignmentCodes
  std::string_view Name;
};

/// The standard awards, in the order of their tables. No two have one name.
extern const std::array<HonorAward, 122> HonorAwards;

/// What the awards can be narrowed to: all of them first, then each table by its heading.
extern const std::array<std::string_view, kHonorAwardTables + 1> HonorAwardFilters;

/// The award of this name; null if there is none.
const HonorAward* FindHonorAward(std::string_view name);

/// The awards of a table (0: of all) whose name holds `search`, case aside; an empty search is in every name.
std::vector<const HonorAward*> HonorAwardsOf(int table, std::string_view search);

/// What an award is worth to someone of the alignment with this code; 0 for a code that there is not.
int HonorPoints(const HonorAward& award, std::string_view alignmentCode);

/// The text of an award's note; empty without one.
std::string_view HonorNote(const HonorAward& award);

/// The code of an alignment as characters have it: "Lawful-good" is "LG". Case and blanks at the end do not matter;
/// empty for what is no alignment.
std::string_view AlignmentCodeOf(std::string_view alignment);

}  // namespace veld
