#pragma once

#include <span>
#include <string_view>

#include "rules/grant_notation.h"

namespace veld {

// The tables of the Devotee's Almanac by which the youth of a priest is rolled. A row is for rolls from Low to High.

/// Table 2B: how the call came, and what it adds to the roll for the training.
struct CallRow {
  int Low;
  int High;
  int Value;  ///< kConscripted: no modifier, the training is settled
  std::string_view Text;
};

inline constexpr int kConscripted = 111;     ///< CallRow::Value of one who was forced
inline constexpr int kConscriptedRoll = 17;  ///< ... and his roll on the next table

/// Table 2C: the kind of training, and what it adds to the rolls of five later tables.
struct TrainingRow {
  int Low;
  int High;
  int Accoutrements;
  int Competency;
  int Personality;
  int Education;
  int Location;
  std::string_view Text;
};

/// Tables 2D and 2E: the teacher.
struct SuperiorRow {
  int Low;
  int High;
  int CharismaDice;  ///< d12 that are taken off the percentile of Charisma
  int Education;     ///< added to the roll of the last education table
  int Skill;         ///< above 0: a roll on Table 2H
  int Points;        ///< bonus skill points: 1 is 1d4-1, 2 is 1d6, 3 is 2d6
  int Honor;         ///< added to the Honor roll
  std::string_view Text;
};

/// Table 2F: what the school is furnished with.
struct AccoutrementsRow {
  int Low;
  int High;
  int Education;
  int Skill;
  int Points;
  std::string_view Text;
};

/// Table 2I: where the first years are served.
struct ResidencyRow {
  int Low;
  int High;
  int Results;  ///< added to the roll of the next table
  int Years;    ///< above 0: so many sides has the die that the age grows by
  std::string_view Text;
};

/// Table 2J: what came of it.
struct ResidencyResultRow {
  int Low;
  int High;
  int Education;
  int Honor;
  int Quirk;               ///< row of the quirk catalogue; 0: none
  std::string_view Skill;  ///< bought for nothing; empty: none
  int Experience;
  int Weapon;  ///< 1: a melee proficiency
  int Gold;    ///< sides of a die
  int Talent;  ///< row of the talents; 0: none
  std::string_view Text;
};

/// Table 2G: what the education came to.
struct EducationRow {
  int Low;
  int High;
  GrantText Change;  ///< what it changes at once; the rest is for the referee
  std::string_view Text;
};

std::span<const CallRow> SeminaryCalls();
std::span<const TrainingRow> SeminaryTrainings();
std::span<const SuperiorRow> SuperiorCompetencies();
std::span<const SuperiorRow> SuperiorPersonalities();
std::span<const AccoutrementsRow> SeminaryAccoutrements();
std::span<const ResidencyRow> Residencies();
std::span<const ResidencyResultRow> ResidencyResultRows();
std::span<const EducationRow> EducationRows();

/// Table 2H: the skill that a roll of 2d12 brings. A roll outside takes the first or the last.
inline constexpr int kFirstAcquiredSkill = 2;
inline constexpr int kLastAcquiredSkill = 24;
std::string_view AcquiredSkill(int roll);

/// The row of a roll, nullptr if the table has none for it.
template <typename Row>
const Row* RowOfRoll(std::span<const Row> rows, int roll) {
  for (const Row& row : rows) {
    if (row.Low <= roll && roll <= row.High) return &row;
  }
  return nullptr;
}

}  // namespace veld
