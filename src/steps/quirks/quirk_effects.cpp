#include "steps/quirks/quirk_effects.h"

#include <algorithm>
#include <numeric>

#include "rules/named_rows.h"
#include "steps/quirks/held_quirks.h"
#include "text/numbers.h"

namespace veld {

namespace {

// The columns are aligned by hand.
// clang-format off

/// A run of quirks any of which closes a class.
struct ClassBar {
  int ClassRow;
  int FirstQuirk;
  int LastQuirk;
};
//  class  quirks
constexpr ClassBar kClassBars[] = {
    { 13, 325, 325},  // Battle Mage: Pacifist Mentor
    { 13, 327, 327},  //   Wuss Mentor
    { 61,  76,  77},  // Gladiator: QuellFrenzy, QuellLust
    {109,  51,  51},  // Zealot of Thrain: Absent Minded
    {109,  66,  66},  //   Short Term Memory Loss
    { 73,  86,  86},  // Zealot of Benyar: Chronic Liar
    { 78, 369, 369},  // Zealot of Enlil: Armor Snobbery
    { 78,  65,  65},  //   Paranoid
    { 78,  91,  92},  //   Jerk, Loud Boor
    { 78,  63,  63},  //   Obsessive Compulsive
    { 78, 185, 203},  //   all obsessions
    { 78, 205, 223},  //   all compulsions
};

/// What a quirk that is held does to an ability: once, or for each time that it is held.
struct QuirkAbilityEffect {
  int Quirk;
  Ability Of;
  int Whole;
  int Percentile;
  bool EachTime = false;
};
//  quirk  ability     whole  percentile
constexpr QuirkAbilityEffect kAbilityEffects[] = {
    {361, kComeliness,    -4,   0},        // Butt Ugly
    {458, kConstitution,   0, -50},        // Nicotine Addiction
    {  7, kCharisma,      -1,   0},        // Excessive Drooling
    {  7, kComeliness,    -1,   0},
    {  8, kCharisma,      -1,   0},        // Flatulent
    { 10, kCharisma,      -1,   0},        // Lisp
    { 14, kComeliness,    -1,   0},        // Loss of Eye
    { 15, kComeliness,    -1,   0},        // Male Pattern Baldness
    { 19, kComeliness,    -2,   0},        // Scar, Facial
    { 22, kCharisma,      -1,   0},        // Strange Body Odor
    { 26, kCharisma,      -1,   0},        // Stutter
    { 29, kComeliness,    -1,   0},        // Blind, One Eye
    { 43, kCharisma,      -3,   0, true},  // Maimed
    { 43, kComeliness,    -3,   0, true},
    { 94, kCharisma,      -1,   0},        // Obnoxious
    { 96, kCharisma,      -1,   0},        // Self Absorbed
    { 97, kCharisma,      -1,   0},        // Socially Awkward
    { 98, kCharisma,      -1,   0},        // Value Privacy (Reclusive)
};
// clang-format on

/// Quirks that leave one eye: Loss of Eye; Blind, One Eye.
constexpr int kOneEyed[] = {14, 29};

int AddTimes(int score, int change, int times) {
  return SaturateToInt(score + std::int64_t{change} * times);
}

void ChangeAbilitiesForQuirks(Game& game) {
  for (const QuirkAbilityEffect& effect : kAbilityEffects) {
    const int held = HeldCount(game, effect.Quirk);
    if (held <= 0) continue;
    AbilityScore& score = AbilityAt(game.sheet, effect.Of);
    const int times = effect.EachTime ? held : 1;
    score.Whole = AddTimes(score.Whole, effect.Whole, times);
    score.Percentile = AddTimes(score.Percentile, effect.Percentile, times);
  }
  for (const int quirk : kOneEyed) {
    if (HeldCount(game, quirk) > 0) HeldCount(game, QuirkRow::NoDepthPerception) = 1;
  }
}

void GainForLimbs(int amputations, AbilityScore& score) {
  if (amputations == 1) score.Percentile = AddSaturated(score.Percentile, 25);
  if (amputations == 2) score.Whole = AddSaturated(score.Whole, 1);
}

}  // namespace

void PayQuirks(Game& game) {
  const auto first = game.sheet.QuirkBP.begin();
  const auto sum = std::accumulate(first + 1, first + kLastPaidQuirk + 1, std::int64_t{0});
  game.run.BuildingPoints += static_cast<float>(sum);
}

void BarClassesForQuirks(Game& game) {
  const auto& counts = game.sheet.QuirkCounts;
  for (const ClassBar& bar : kClassBars) {
    const auto isHeld = [](int count) { return count > 0; };
    if (std::any_of(counts.begin() + bar.FirstQuirk, counts.begin() + bar.LastQuirk + 1, isHeld)) {
      game.run.ClassAllowed[static_cast<std::size_t>(bar.ClassRow)] = 0;
    }
  }
}

std::vector<int> ClassesBarredBy(int quirk) {
  std::vector<int> classes;
  for (const ClassBar& bar : kClassBars) {
    if (quirk >= bar.FirstQuirk && quirk <= bar.LastQuirk) classes.push_back(bar.ClassRow);
  }
  return classes;
}

bool ChangesAbilities(int quirk) {
  return std::ranges::find(kAbilityEffects, quirk, &QuirkAbilityEffect::Quirk) != std::end(kAbilityEffects);
}

void ApplyArmGain(Game& game) {
  GainForLimbs(game.run.ArmAmputations, game.sheet.Intelligence);
}

void ApplyLegGain(Game& game) {
  GainForLimbs(game.run.LegAmputations, game.sheet.Strength);
}

void ApplyQuirkEffects(Game& game) {
  BarClassesForQuirks(game);
  ChangeAbilitiesForQuirks(game);
  ApplyArmGain(game);
  ApplyLegGain(game);
}

}  // namespace veld
