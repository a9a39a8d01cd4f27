#include "rules/honor_tables.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "rules/notation.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kNoLimit = std::numeric_limits<int>::max();
constexpr int kLevelLines = 20;

struct HonorBand {
  int High = kNoLimit;
  HonorDice Dice;
};

/// A die as the book prints it: "d4+1", or "1" for none.
constexpr HonorDice ReadDice(NotationReader& reader) {
  HonorDice dice;
  reader.Skip("d");
  dice.Sides = reader.Number();
  if (reader.Skip("+")) dice.Bonus = reader.Number();
  return dice;
}

/// The rising side that all levels share, each die with its highest Honor: "10:1 15:d3".
struct RisingLadder {
  std::array<HonorBand, 13> bands{};

  consteval RisingLadder(const char* notation) {
    NotationReader reader(notation);
    for (std::size_t i = 0; i < bands.size(); ++i) {
      if (i > 0) reader.Expect(" ");
      bands[i].High = reader.Number();
      reader.Expect(":");
      bands[i].Dice = ReadDice(reader);
    }
    if (!reader.AtEnd()) throw "more dice than the ladder holds";
  }
};

/// The peak and the falling side of a level: "21-30:d3 31-:1". The bands join without a gap. With a `shift` they end at
/// the peak, and the side of level 13 behind its peak follows, so much higher.
struct HonorLevel {
  int low = 0;
  std::array<HonorBand, 16> bands{};
  std::size_t count = 0;
  int shift = 0;

  consteval HonorLevel(const char* notation, int shiftOfLevel13 = 0) : shift(shiftOfLevel13) {
    NotationReader reader(notation);
    for (int next = 0; !reader.AtEnd(); next = bands[count - 1].High + 1) {
      if (count > 0) reader.Expect(" ");
      const int start = reader.Number();
      if (count == 0) low = start;
      if (count > 0 && start != next) throw "a band begins where the one before it ends";
      reader.Expect("-");
      HonorBand& band = bands[count++];
      const bool isOpen = reader.Skip(":");
      if (!isOpen) {
        band.High = reader.Number();
        reader.Expect(":");
      }
      band.Dice = ReadDice(reader);
      if (isOpen) break;
    }
    if (!reader.AtEnd()) throw "nothing follows the band without an end";
  }
};

// clang-format off

constexpr RisingLadder kRisingLadder =
    "10:1 15:d3 20:d4 25:d4+1 30:d6 35:d6+1 40:d8 45:d8+1 50:d10 55:d10+1 60:d12 70:d12+1 80:d12+2";

constexpr std::array<HonorLevel, kLevelLines> kHonorLevels = {{
    /*  1 */ {"16-20:d4 21-30:d3 31-:1"},
    /*  2 */ {"21-25:d4+1 26-30:d6 31-40:d4+1 41-45:d4 46-50:d3 51-:1"},
    /*  3 */ {"26-35:d6 36-40:d6+1 41-45:d6 46-55:d4+1 56-65:d4 66-80:d3 81-:1"},
    // The book leaves 51 to 55 of level 4 without a die; its text then shows a d0.
    /*  4 */ {"26-35:d6 36-45:d6+1 46-50:d8 51-55:d0 56-60:d6 61-70:d4+1 71-80:d4 81-95:d3 96-:1"},
    /*  5 */ {"31-45:d6+1 46-55:d8 56-60:d8+1 61-65:d8 66-75:d6+1 76-85:d6 86-100:d4+1 101-115:d4 "
              "116-135:d3 136-:1"},
    /*  6 */ {"36-50:d8 51-65:d8+1 66-70:d10 71-75:d8+1 76-80:d8 81-90:d6+1 91-100:d6 101-115:d4+1 "
              "116-130:d4 131-150:d3 151-:1"},
    /*  7 */ {"41-60:d8+1 61-75:d10 76-80:d10+1 81-85:d10 86-95:d8+1 96-105:d8 106-120:d6+1 121-135:d6 "
              "136-155:d4+1 156-175:d4 176-215:d3 216-:1"},
    /*  8 */ {"46-65:d10 66-85:d10+1 86-90:d12 91-95:d10+1 96-100:d10 101-110:d8+1 111-120:d8 121-135:d6+1 "
              "136-150:d6 151-170:d4+1 171-190:d4 191-215:d3 216-:1"},
    /*  9 */ {"51-75:d10+1 76-95:d12 96-100:d12+1 101-105:d12 106-115:d10+1 116-125:d10 126-140:d8+1 "
              "141-155:d8 156-175:d6+1 176-195:d6 196-220:d4+1 221-245:d4 246-270:d3 271-:1"},
    /* 10 */ {"56-80:d12 81-105:d12+1 106-110:d12+2 111-115:d12+1 116-120:d12 121-130:d10+1 131-140:d10 "
              "141-155:d8+1 156-170:d8 171-190:d6+1 191-210:d6 211-235:d4+1 236-260:d4 261-285:d3 286-:1"},
    /* 11 */ {"61-90:d12+1 91-115:d12+2 116-120:d20 121-125:d12+2 126-130:d12+1 131-135:d12 136-145:d10+1 "
              "146-155:d10 156-170:d8+1 171-185:d8 186-205:d6+1 206-225:d6 226-250:d4+1 251-285:d4 "
              "286-310:d3 311-:1"},
    /* 12 */ {"61-85:d12+1 86-115:d12+2 116-130:d20 131-135:d12+2 136-140:d12+1 141-145:d12 146-155:d10+1 "
              "156-165:d10 166-180:d8+1 181-195:d8 196-215:d6+1 216-235:d6 236-260:d4+1 261-295:d4 "
              "296-320:d3 321-:1"},
    /* 13 */ {"71-105:d12+2 106-140:d20 141-145:d12+2 146-150:d12+1 151-155:d12 156-165:d10+1 166-175:d10 "
              "176-190:d8+1 191-205:d8 206-225:d6+1 226-245:d6 246-270:d4+1 271-305:d4 306-330:d3 331-:1"},
    /* 14 */ {"71-90:d12+2 91-150:d20", 10},
    /* 15 */ {"71-80:d12+2 81-160:d20", 20},
    /* 16 */ {"81-170:d20", 30},
    /* 17 */ {"81-180:d20", 40},
    /* 18 */ {"81-190:d20", 50},
    /* 19 */ {"71-75:d12+2 76-200:d20", 60},
    /* 20 */ {"66-70:d12+2 71-210:d20", 70},
}};

constexpr std::size_t kLevel13 = 12;
constexpr std::size_t kPeakBands13 = 2;  // up to its d20

// By SocialClassIndex, from 0.
constexpr std::array<int, 13> kSocialClassHonor = {0, -10, -10, -10, -10, -5, -1, 0, 0, 0, 1, 5, 10};

// By whole Charisma, from 0.
constexpr std::array<int, 26> kCharismaHonor = {
    0, -9, -8, -7, -6, -5, -4, -3, -2, -1, 0, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};

// By starting Honor, from 1; the last for all above.
constexpr std::array<int, 25> kHonorBP = {
    -9, -8, -7, -6, -5, -4, -3, -2, -1, 0, 0, 0, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};

// clang-format on

int Line(int level) {
  return std::clamp(level, 1, kLevelLines);
}

template <typename Bands>
HonorDice FirstBandOf(const Bands& bands, std::size_t first, std::int64_t honor) {
  std::size_t i = first;
  while (i + 1 < bands.size() && honor > bands[i].High) ++i;
  return bands[i].Dice;
}

}  // namespace

HonorDice HonorDiceOf(int honor, int level) {
  const HonorLevel& line = kHonorLevels[static_cast<std::size_t>(Line(level) - 1)];
  if (honor < line.low) return FirstBandOf(kRisingLadder.bands, 0, honor);
  if (line.shift == 0 || honor <= line.bands[line.count - 1].High) return FirstBandOf(line.bands, 0, honor);
  return FirstBandOf(kHonorLevels[kLevel13].bands, kPeakBands13, std::int64_t{honor} - line.shift);
}

HonorCategoryKind HonorCategoryOf(int honor, int level) {
  const int line = Line(level);
  if (honor < 3 * line + 3) return HonorCategoryKind::Dishonorable;
  if (honor > 10 * line + 10) return HonorCategoryKind::TooMuch;
  return honor >= 8 * line + 9 ? HonorCategoryKind::Great : HonorCategoryKind::Average;
}

std::string HonorCategoryText(int honor, int level) {
  constexpr std::array<std::string_view, 4> kNames = {"Dishonorable", "Average Honor", "Great Honor", "Too Much Honor"};
  const std::string_view name = kNames[static_cast<std::size_t>(HonorCategoryOf(honor, level))];
  const HonorDice dice = HonorDiceOf(honor, level);
  return dice.Bonus > 0 ? Format("%s d%i+%i", name, dice.Sides, dice.Bonus) : Format("%s d%i", name, dice.Sides);
}

int SocialClassHonor(int socialClassIndex) {
  const bool isInside = socialClassIndex >= 0 && socialClassIndex < static_cast<int>(kSocialClassHonor.size());
  return isInside ? kSocialClassHonor[static_cast<std::size_t>(socialClassIndex)] : 0;
}

int HeritageHonor(std::string_view familyHeritage) {
  if (EqualsIgnoringCase(familyHeritage, "Great Dishonor")) return -5;
  if (EqualsIgnoringCase(familyHeritage, "Dishonor")) return -2;
  if (EqualsIgnoringCase(familyHeritage, "Honorable")) return 2;
  return EqualsIgnoringCase(familyHeritage, "Great honor") ? 5 : 0;
}

int CharismaHonor(int charisma) {
  const bool isInside = charisma >= 0 && charisma < static_cast<int>(kCharismaHonor.size());
  return isInside ? kCharismaHonor[static_cast<std::size_t>(charisma)] : 0;
}

int HonorBP(int honor) {
  const int last = static_cast<int>(kHonorBP.size());
  return kHonorBP[static_cast<std::size_t>(std::clamp(honor, 1, last) - 1)];
}

}  // namespace veld
