#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "text/fixed_text.h"

namespace veld {

/// The kinds of harm, each with its own results. Beasts bite only where the Beast Grid is played.
inline constexpr std::array<std::string_view, 4> kDamageTypes = {"Puncturing", "Hacking", "Crushing", "Monster Bites"};

inline constexpr std::size_t kCriticalHitWidth = 96;  ///< bytes of a result, terminator included
inline constexpr int kCriticalHitRows = 4800;         ///< 4 damage types, 24 severities, 50 places

/// What a critical hit does: one place of the body, by damage type (its place in kDamageTypes) and severity (1..24).
struct CriticalHitRecord {
  int Low = 0;  ///< Low..High of d10,000 finds the place
  int High = -1;
  int DamageType = 0;
  int Severity = 0;
  FixedText<kCriticalHitWidth> Result;  ///< "Thigh: x2, d2, f, m4", or words after the colon
};

/// A row of the critical hit table, 0..4799, which goes by damage type, then severity, then place. A blank record,
/// which no roll finds, for any other row.
CriticalHitRecord CriticalHitRow(int row);

/// The text of a critical hit: damage type 0..3, severity (above 24 reads as 24, below 1 there is no critical hit) and
/// the d10,000 for the place. A roll or a type outside the table finds the text of an error.
FixedText<kCriticalHitWidth> CriticalHitResult(int damageType, int severity, int roll);

/// The notation list, its heading first.
extern const std::array<std::string_view, 34> kCriticalHitNotation;

/// The lines of the notation list that explain a result, in the order of its effects; none for words.
std::vector<std::size_t> NotationLinesOf(std::string_view result);

}  // namespace veld
