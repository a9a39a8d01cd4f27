#pragma once

#include <array>
#include <string_view>

namespace veld {

// Tables 7G to 7H of the Hexwright's Almanac, by which a mage's first spell book is rolled. Every roll is a d100; rolls
// outside 1..100 take the first or the last row.

/// Table 7G: the formats of a book. The last is no book at all: Table 7H tells what it is.
inline constexpr int kNonStandardFormat = 7;
// clang-format off
inline constexpr std::array<std::string_view, 8> StandardFormats{
    "Standard: leather cover, vellum pages",      "Standard: leather cover, parchment pages",
    "Standard: animal hide cover, vellum pages",  "Standard: animal hide cover, parchment pages",
    "Standard: monster hide cover, vellum pages", "Standard: monster hide cover, parchment pages",
    "Standard: dragon hide cover, vellum pages",  "Non Standard spell book",
};
// clang-format on

/// Table 7H: what else spells are kept on, and how many spell levels one piece holds; 0 is for the referee to say.
struct NonStandardFormat {
  std::string_view Name;
  int Capacity;
};
inline constexpr std::array<NonStandardFormat, 10> NonStandardFormats{{
    {"Animal Bones", 10},
    {"Stone Tablets", 5},
    {"Papyrus Scrolls", 20},
    {"Silk Ribbons", 40},
    {"Tanned Hides", 10},
    {"Dried Bark", 15},
    {"Wooden Sticks", 25},
    {"Woven Cloth", 30},
    {"Silk Rope", 20},
    {"GM's Choice", 0},
}};

/// Table 7G1: height x width in inches, pounds before the pages, and the encumbrance modifier.
struct BookSize {
  std::string_view Name;
  double BaseWeight;
  int EncumbranceModifier;
};
inline constexpr std::array<BookSize, 7> BookSizes{{
    {"12x12", 2.0, 3},
    {"13x12", 2.0, 3},
    {"14x12", 2.5, 3},
    {"15x12", 2.5, 3},
    {"16x12", 3.0, 4},
    {"17x12", 3.0, 4},
    {"18x12", 3.5, 4},
}};

/// Table 7G2: the pages of a book. The weight of the pages grows evenly from 3 to 5 pounds, the figure from 6 to 10.
inline constexpr std::array<int, 13> BookThicknesses{64, 68, 72, 76, 80, 84, 88, 92, 96, 100, 104, 108, 112};

/// The index of a roll on Table 7G, 0 to 7. An Old School Mentor (quirk row 324) moves it one row down the table.
int BookFormatOf(int roll, bool oldSchoolMentor);

/// The index of a roll on Table 7H, 0 to 9.
int NonStandardFormatOf(int roll);

/// The index of a roll on Table 7G1, 0 to 6.
int BookSizeOf(int roll);

/// The index of a roll on Table 7G2, 0 to 12. The book's bounds make fourteen bands of which the last two share a row.
int BookThicknessOf(int roll);

/// Pounds of a book of a size without its pages: 1.5 more in monster hide, 2.5 more in dragon hide.
double BookBaseWeight(int size, int format);

/// Pounds of the pages of a thickness: 3 to 5 of parchment, twice that of vellum.
double PagesWeight(int thickness, int format);

/// Inches of a book of a thickness, 6 to 10 in whole inches.
int ThicknessInches(int thickness);

/// Pieces of a non-standard format that a spell of `levels` takes: what is begun counts as one. A capacity of 0 is one.
int PiecesForSpell(int levels, int capacity);

}  // namespace veld
