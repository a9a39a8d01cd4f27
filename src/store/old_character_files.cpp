#include "store/old_character_files.h"

#include <span>

#include "rules/named_rows.h"

namespace veld {

namespace {

/// Quirk rows `First` to `Last`, every `Step`th of them, one number each; or, with a code, one number that tells which
/// of two rows that exclude each other is held.
struct QuirkRun {
  std::size_t First;
  std::size_t Last;
  std::size_t Step = 1;
  char Code = 0;
};

/// A number that is 1 or 2 stands for one of a pair of rows. Code D is a row's own number besides.
struct QuirkCode {
  char Code;
  std::size_t RowOfOne;
  std::size_t RowOfTwo;
};

constexpr QuirkRun Row(std::size_t row, char code = 0) { return {row, row, 1, code}; }
constexpr std::size_t kNoRow = 0;

// clang-format off
constexpr QuirkCode kQuirkCodes[] = {
    // Code  1    2
    {'A',    35,  36},   // arm amputated, or both
    {'B',    38,  37},   // leg amputated, or both
    {'C',    123, 122},  // epilepsy, minor or grand mal
    {'D',    313, 314},  // sloppy penmanship, minor or major
};

constexpr QuirkRun kAfterBurden[] = {
    {1, 10},  {13, 22}, {26, 30}, {33, 34}, Row(kNoRow, 'A'), Row(kNoRow, 'B'), {39, 46}, Row(kNoRow, 'C'),
    {48, 49}, {51, 68},
    {71, 79}, Row(79),  // twice: the second stands. Row 80 was never in these files.
    {81, 83},   {86, 98},   {100, 101}, {296, 304}, {104, 115}, {117, 120}, {124, 133},
    {135, 153, 2}, {134, 152, 2},  // odd rows, then even rows
    {154, 172}, {174, 183}, {185, 203}, {205, 223}, {225, 243}, {245, 294},
};
constexpr QuirkRun kAfterHair[] = {{457, 469}};
constexpr QuirkRun kAfterMageBackground[] = {{306, 309}, Row(311), Row(312, 'D'), {316, 359}};
constexpr QuirkRun kAfterSpellBooks[] = {{360, 378}, Row(456), Row(455)};
// clang-format on

std::span<const QuirkRun> RunsAt(QuirkPlace place) {
  switch (place) {
    case QuirkPlace::AfterBurden: return kAfterBurden;
    case QuirkPlace::AfterHair: return kAfterHair;
    case QuirkPlace::AfterMageBackground: return kAfterMageBackground;
    case QuirkPlace::AfterSpellBooks: return kAfterSpellBooks;
  }
  return {};
}

void ApplyCode(CharacterSheet& sheet, char code, int value) {
  for (const QuirkCode& known : kQuirkCodes) {
    if (known.Code != code) continue;
    if (value == 1) sheet.QuirkCounts[known.RowOfOne] = 1;
    if (value == 2) sheet.QuirkCounts[known.RowOfTwo] = 1;
  }
}

}  // namespace

void ReadScatteredQuirks(ByteReader& file, CharacterSheet& sheet, QuirkPlace place) {
  for (const QuirkRun& run : RunsAt(place)) {
    for (std::size_t row = run.First; row <= run.Last; row += run.Step) {
      const int value = file.Int();
      if (row != kNoRow) sheet.QuirkCounts[row] = value;
      if (run.Code != 0) ApplyCode(sheet, run.Code, value);
    }
  }
}

void UpdateTalents(CharacterSheet& sheet, std::string_view version) {
  auto& talents = sheet.TalentCounts;
  // "Acute Alertness & Keen Sight" was divided in two.
  if (talents[TalentRow::AcuteAlertnessAndKeenSight] >= 1) {
    talents[TalentRow::AcuteAlertnessAndKeenSight] = 0;
    talents[TalentRow::AcuteAlertness] = 1;
    talents[TalentRow::KeenSight] = 1;
  }
  // Perfect Grooming, Quick Movement, Simultaneous Backstab Attacks and the row after it meant something else once.
  if (version == "3.8.1") {
    for (const int row : {TalentRow::PerfectGrooming, TalentRow::QuickMovement, TalentRow::SimultaneousBackstab,
                          TalentRow::AfterSimultaneousBackstab}) {
      talents[static_cast<std::size_t>(row)] = 0;
    }
  }
}

}  // namespace veld
