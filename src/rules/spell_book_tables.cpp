#include "rules/spell_book_tables.h"

#include <algorithm>
#include <iterator>

#include "text/search.h"

namespace veld {

namespace {

// A table's index is the number of its bounds that the roll exceeds.
constexpr int kFormatBounds[] = {40, 50, 64, 70, 82, 87, 91};
constexpr int kNonStandardBounds[] = {10, 20, 30, 40, 50, 60, 70, 80, 90};
constexpr int kSizeBounds[] = {10, 25, 42, 60, 75, 90};
constexpr int kThicknessBounds[] = {3, 7, 13, 21, 31, 43, 57, 69, 79, 87, 93, 97, 99};

static_assert(std::size(kFormatBounds) + 1 == StandardFormats.size());
static_assert(std::size(kNonStandardBounds) + 1 == NonStandardFormats.size());
static_assert(std::size(kSizeBounds) + 1 == BookSizes.size());
static_assert(std::size(kThicknessBounds) == BookThicknesses.size());

template <std::size_t N>
int BoundsExceeded(const int (&bounds)[N], int roll) {
  return static_cast<int>(std::ranges::count_if(bounds, [&](int bound) { return roll > bound; }));
}

constexpr int kLastThickness = static_cast<int>(BookThicknesses.size()) - 1;

// The value of a thickness in a column that grows evenly from its first row to its last.
double Evenly(double first, double last, int thickness) {
  return first + (last - first) * std::clamp(thickness, 0, kLastThickness) / kLastThickness;
}

}  // namespace

int BookFormatOf(int roll, bool oldSchoolMentor) {
  return std::min(BoundsExceeded(kFormatBounds, roll) + (oldSchoolMentor ? 1 : 0), kNonStandardFormat);
}

int NonStandardFormatOf(int roll) {
  return BoundsExceeded(kNonStandardBounds, roll);
}

int BookSizeOf(int roll) {
  return BoundsExceeded(kSizeBounds, roll);
}

int BookThicknessOf(int roll) {
  return std::min(BoundsExceeded(kThicknessBounds, roll), kLastThickness);
}

double BookBaseWeight(int size, int format) {
  const int row = std::clamp(size, 0, static_cast<int>(BookSizes.size()) - 1);
  const double cover = format > 5 ? 2.5 : format >= 4 ? 1.5 : 0.0;
  return BookSizes[static_cast<std::size_t>(row)].BaseWeight + cover;
}

double PagesWeight(int thickness, int format) {
  const int row = std::clamp(format, 0, kNonStandardFormat);
  const bool vellum = Contains(StandardFormats[static_cast<std::size_t>(row)], "vellum");
  return Evenly(3.0, 5.0, thickness) * (vellum ? 2.0 : 1.0);
}

int ThicknessInches(int thickness) {
  return static_cast<int>(Evenly(6.0, 10.0, thickness));
}

int PiecesForSpell(int levels, int capacity) {
  const int held = std::max(capacity, 1);
  return levels <= 0 ? 0 : (levels - 1) / held + 1;
}

}  // namespace veld
