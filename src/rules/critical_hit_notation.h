#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "rules/critical_hit_rows.h"
#include "rules/critical_hit_table.h"
#include "rules/notation.h"

namespace veld {

// The ladders of critical hits are read while the program is compiled: a ladder that breaks a rule of the table does
// not build, and the message names the rule.

inline constexpr int kCriticalHitSeverities = 24;
inline constexpr int kFirstLastWords = 22;  ///< the first severity that may be told in prose

/// A place that a critical hit finds: the highest d10,000 that finds it, and the effects it can suffer besides those
/// that come with a hit anywhere (extra damage, "a", "d", "s", "f", "u"). "b" stands for the four kinds of broken bone,
/// "w" for both ways to drop what is carried. A place with `EndsInProse` has words for its worst hits.
struct CriticalHitPlace {
  int High;
  std::string_view Name;
  std::string_view Suffers;
  bool EndsInProse = false;
};

// clang-format off

inline constexpr std::array<CriticalHitPlace, 50> kCriticalHitPlaces = {{
    {  100, "Foot, top",             "b ls m mt pb t"},
    {  104, "Heel",                  "b ls m pb t"},
    {  136, "Toe(s)",                "b ls m t"},
    {  140, "Foot, arch",            "b ls m mt pb t"},
    {  170, "Ankle, inner",          "b ls m pb t"},
    {  200, "Ankle, outer",          "b ls m pb t"},
    {  220, "Ankle, upper/Achilles", "b ls m mt pb t"},
    {  964, "Shin",                  "b ls m mt pb"},
    { 1006, "Calf",                  "b ls m mt pb"},
    { 1118, "Knee",                  "b ls m pb t"},
    { 1132, "Knee, back",            "b ls m mt pb t"},
    { 1216, "Hamstring",             "b ls m mt pb t"},
    { 2000, "Thigh",                 "b ls m mt pb"},
    { 2330, "Hip",                   "b ib m mt pb t"},
    { 2405, "Groin (Male only)",     "h ib m mt pb w"},
    { 2435, "Buttock",               "b ib m mt pb"},
    { 2570, "Abdomen, lower",        "ib m mt pb v w", true},
    { 3020, "Side, lower",           "b ib m mt pb v w"},
    { 3110, "Abdomen, upper",        "ib m mt pb v w", true},
    { 3125, "Back, small of",        "b ib m mt p pb v w"},
    { 3155, "Back, lower",           "b ib m mt p pb v w"},
    { 3425, "Chest",                 "b ib mt pb v w", true},
    { 3455, "Side, upper",           "b ib mt pb v w"},
    { 3485, "Back, upper",           "b ib m mt p pb v w"},
    { 3500, "Back, upper middle",    "b ib m mt p pb v w"},
    { 3820, "Armpit",                "b ib ls mt pb t v w"},
    { 4300, "Arm, upper outer",      "b ls mt pb w"},
    { 4492, "Arm, upper inner",      "b ls mt pb w"},
    { 4588, "Elbow",                 "b ls mt pb t w"},
    { 4684, "Inner joint",           "b ls mt pb t w"},
    { 5308, "Forarm, back",          "b ls mt pb w"},
    { 5836, "Forarm, inner",         "b ls mt pb w"},
    { 5908, "Wrist, back",           "b ls pb t w"},
    { 5980, "Wrist, front",          "b ls pb t w"},
    { 6052, "Hand, back",            "b ls mt pb t w"},
    { 6076, "Palm",                  "b ls mt pb t w"},
    { 6220, "Finger(s)",             "b ls t w"},
    { 7180, "Shoulder, side",        "b ls mt pb t w"},
    { 9100, "Shoulder, top",         "b ls mt pb t w"},
    { 9121, "Neck, front",           "b ib mt pb w", true},
    { 9142, "Neck, back",            "b ib mt p pb w", true},
    { 9373, "Neck, side",            "b ib mt pb w", true},
    { 9653, "Head, side",            "b mc pb sc w", true},
    { 9688, "Head, back lower",      "b mc pb sc w", true},
    { 9768, "Face, lower side",      "b mc mt pb sc w", true},
    { 9788, "Face, lower center",    "b mc mt pb sc w", true},
    { 9823, "Head, back upper",      "b mc pb sc w", true},
    { 9903, "Face, upper side",      "b mc mt pb sc w", true},
    { 9923, "Face, upper center",    "b mc pb sc w", true},
    {10000, "Head, top",             "b mc pb sc w", true},
}};

/// The kinds of effect, in the order of their lines in the notation list; "" is the numeral of extra damage. The ten
/// "m" have a line each and stand as one kind here.
inline constexpr std::array<std::string_view, 24> kCriticalHitEffects = {
    "", "a", "b", "bf", "bm", "bs", "d", "f", "h", "ib", "ls", "m", "mc", "mt", "p", "pb", "sc", "s", "t", "u", "v",
    "w", "ws", "x"};

/// The steps of the Thigh that the book explains the table with, by damage type.
inline constexpr std::array<std::string_view, 4> kThighExamples = {
    "1:1 | 2:3 | 5:6, m2 | 8:x2, d2, f, m4 | 12:x2, d2, f, m5, mt1 | 16:x2, d3, f, m6, mt3, pb | "
    "20:x2, d6, f, m8, pb, b1 | 24:x3, d8, ls, u, m10",
    "1:1 | 2:3 | 5:6, m2 | 8:x2, d2, f, m4 | 12:x2, d2, f, m5, mt2 | 16:x2, d3, f, m6, mt3, bf1 | "
    "20:x2, d6, f, m8, mt5, bm1 | 24:x3, ls, d8, u, m10",
    "1:1 | 2:3 | 5:6, m2 | 8:x2, d2, f, m4 | 12:x2, d2, f, m5, b1 | 16:x2, d3, f, m6, s2, bm1 | "
    "20:x2, d6, f, m8, s3, bm1, mt4 | 24:x3, s5, d8, f, m10, bs1, mt5",
    "1:1 | 2:3 | 5:6, m2 | 8:x2, d2, f, m4 | 12:x2, d2, f, m5, mt1 | 16:x2, d3, f, m6, mt3, pb | "
    "20:x2, d6, f, m8, pb, b1 | 24:x2, ls, d6, f, m10, pb",
};

// clang-format on

// What follows is written for the compiler's sake: it runs some hundred thousand times while the ladders are read, and
// a search or a comparison of texts there costs ten times what a look at single letters does.

/// Takes what stands before the next divider, and the divider, from `rest`.
constexpr std::string_view TakePart(std::string_view& rest, std::string_view divider) {
  std::size_t end = 0;
  while (end < rest.size() && (rest[end] != divider[0] || !rest.substr(end).starts_with(divider))) ++end;
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(end == rest.size() ? end : end + divider.size());
  return part;
}

/// The letters of an effect as one number; -1 for more than two letters.
constexpr int EffectLetters(std::string_view name) {
  if (name.size() > 2) return -1;
  int letters = 0;
  for (const char letter : name) letters = letters * 256 + letter;
  return letters;
}

inline constexpr auto kLettersOfEffects = [] {
  std::array<int, kCriticalHitEffects.size()> letters{};
  for (std::size_t i = 0; i < letters.size(); ++i) letters[i] = EffectLetters(kCriticalHitEffects[i]);
  return letters;
}();

/// The place of an effect in kCriticalHitEffects; -1 for what is none.
constexpr int EffectKind(std::string_view name) {
  const int letters = EffectLetters(name);
  int kind = 0;
  for (const int other : kLettersOfEffects) {
    if (other == letters) return kind;
    ++kind;
  }
  return -1;
}

/// One bit for each of the effects named, divided by blanks.
constexpr unsigned EffectBits(std::string_view names) {
  unsigned bits = 0;
  while (!names.empty()) bits |= 1U << EffectKind(TakePart(names, " "));
  return bits;
}

inline constexpr int kNumeralEffect = EffectKind("");
inline constexpr int kMultipleEffect = EffectKind("x");
inline constexpr int kMovementEffect = EffectKind("m");
inline constexpr unsigned kHonorBit = EffectBits("h");
inline constexpr unsigned kUnnumberedEffects = EffectBits("f ib ls mc p pb sc u w ws");

/// One bit for each effect that a place can suffer.
constexpr unsigned SufferedEffects(const CriticalHitPlace& place) {
  unsigned bits = EffectBits(place.Suffers) | EffectBits("a d s f u x") | 1U << kNumeralEffect;
  if ((bits & EffectBits("b")) != 0) bits |= EffectBits("bf bm bs");
  if ((bits & EffectBits("w")) != 0) bits |= EffectBits("ws");
  return bits;
}

/// One effect of a result: its place in kCriticalHitEffects, or -1 for what is none, and its number.
struct CriticalHitEffect {
  int Kind = -1;
  int Number = 0;
};

/// Reads "m4", "pb" or "6". An effect that the list writes without a number has none, all others have one.
constexpr CriticalHitEffect ReadEffect(std::string_view text) {
  std::size_t digits = 0;
  while (digits < text.size() && !NotationReader::IsDigit(text[digits])) ++digits;
  CriticalHitEffect effect;
  for (std::size_t i = digits; i < text.size(); ++i) {
    if (!NotationReader::IsDigit(text[i]) || i > digits + 1) return {};
    effect.Number = effect.Number * 10 + (text[i] - '0');
  }
  const int kind = EffectKind(text.substr(0, digits));
  if (kind < 0) return {};
  const bool isUnnumbered = (kUnnumberedEffects >> kind & 1U) != 0;
  if (isUnnumbered != (digits == text.size()) || (!isUnnumbered && effect.Number < 1)) return {};
  if (kind == kMovementEffect && effect.Number > 10) return {};
  effect.Kind = kind;
  return effect;
}

/// True for a result in words. All others begin with the extra damage.
constexpr bool IsProse(std::string_view result) {
  if (!result.empty() && NotationReader::IsDigit(result.front())) return false;
  return ReadEffect(TakePart(result, ", ")).Kind < 0;
}

/// An entry of a ladder: what happens at the severities from First to Last.
struct CriticalHitStep {
  int First = 0;
  int Last = 0;
  std::string_view Result;
};

constexpr CriticalHitStep TakeStep(std::string_view& rest) {
  std::string_view entry = TakePart(rest, " | ");
  const std::size_t colon = entry.find(':');
  if (colon == std::string_view::npos) throw "an entry is a severity, a colon and a result";
  NotationReader reader(entry.substr(0, colon));
  CriticalHitStep step;
  step.First = reader.Number();
  step.Last = reader.Skip("-") ? reader.Number() : step.First;
  if (!reader.AtEnd()) throw "before the colon stands a severity or a run of them";
  step.Result = entry.substr(colon + 1);
  return step;
}

/// What the rules of the table compare between two steps of a ladder.
struct CriticalHitWeight {
  int Damage = 0;    ///< plain numerals below all multiples
  int Movement = 0;  ///< the number of "m", 0 without one
};

/// Checks a result in the notation: extra damage, then effects out of those that the place can suffer, none twice.
constexpr CriticalHitWeight WeighEffects(unsigned suffered, std::string_view result) {
  CriticalHitWeight weight;
  unsigned seen = 0;
  while (!result.empty()) {
    const CriticalHitEffect effect = ReadEffect(TakePart(result, ", "));
    if (effect.Kind < 0) throw "an effect is one of the notation list";
    if ((seen == 0) != (effect.Kind == kNumeralEffect || effect.Kind == kMultipleEffect)) {
      throw "a result begins with its damage, and has it once";
    }
    if (effect.Kind == kNumeralEffect) weight.Damage = effect.Number;
    if (effect.Kind == kMultipleEffect) weight.Damage = 100 * effect.Number;
    if (effect.Kind == kMovementEffect) weight.Movement = effect.Number;
    if (effect.Kind == kMultipleEffect && (effect.Number < 2 || effect.Number > 5))
      throw "damage is multiplied by 2 to 5";
    if (effect.Number > 20) throw "no effect has a number above 20";
    const unsigned bit = 1U << effect.Kind;
    if ((suffered & bit) == 0) throw "this place does not suffer this effect";
    if ((seen & bit) != 0) throw "an effect stands twice in a result";
    seen |= bit;
  }
  if ((suffered & ~seen & kHonorBit) != 0) throw "a hit to the groin costs Honor";
  return weight;
}

/// Prose is a few words, without a number that could pass for an effect.
constexpr void CheckProse(const CriticalHitPlace& place, const CriticalHitStep& step) {
  if (!place.EndsInProse || step.First < kFirstLastWords) throw "this result is not in the notation";
  if (step.First != step.Last) throw "prose is written for one severity";
  if (step.Result.find(' ') == std::string_view::npos ||
      step.Result.find_first_of("0123456789|:") != std::string_view::npos) {
    throw "prose is two words at least, without numbers";
  }
  if (step.Result.size() > 70) throw "prose is short";
}

using CriticalHitResults = std::array<std::string_view, kCriticalHitSeverities>;

/// Reads the ladder of a place: the result of each severity.
constexpr CriticalHitResults ReadLadder(const CriticalHitPlace& place, std::string_view ladder) {
  const unsigned suffered = SufferedEffects(place);
  CriticalHitResults results;
  CriticalHitWeight worst;
  std::string_view before;
  int next = 1;
  int steps = 0;
  for (std::string_view rest = ladder; !rest.empty(); ++steps) {
    const CriticalHitStep step = TakeStep(rest);
    if (step.First != next || step.Last < step.First || step.Last > kCriticalHitSeverities) {
      throw "severities rise from 1 to 24 without a gap";
    }
    if (step.Result == before) throw "equal results that follow each other are written as a run";
    if (IsProse(step.Result)) {
      CheckProse(place, step);
    } else {
      if (IsProse(before) && steps > 0) throw "after prose comes prose";
      const CriticalHitWeight weight = WeighEffects(suffered, step.Result);
      if (weight.Damage < worst.Damage) throw "damage never falls as the severity rises";
      if (weight.Movement != 0 && weight.Movement < worst.Movement) throw "a loss of movement never gets shorter";
      worst.Damage = weight.Damage;
      if (weight.Movement != 0) worst.Movement = weight.Movement;
    }
    for (; next <= step.Last; ++next) results[static_cast<std::size_t>(next - 1)] = step.Result;
    before = step.Result;
  }
  if (next != kCriticalHitSeverities + 1) throw "a ladder has all 24 severities";
  if (steps < 14) throw "a ladder has 14 different steps at least";
  if (place.EndsInProse != IsProse(results.back())) throw "just head, face, neck, chest and abdomen end in prose";
  return results;
}

/// Two neighbouring places share less than a third of their results.
constexpr bool AreTooMuchAlike(const CriticalHitResults& one, const CriticalHitResults& other) {
  int shared = 0;
  for (std::size_t i = 0; i < one.size(); ++i) shared += one[i] == other[i] ? 1 : 0;
  return shared * 3 >= kCriticalHitSeverities;
}

/// Reads the ladders of a damage type (0 to 3, its place in the list of types) and checks them against each other. Each
/// file of ladders ends with it: "constexpr CriticalHitIndex kHackingIndex = ReadCriticalHits(kHackingHits, 1);".
consteval CriticalHitIndex ReadCriticalHits(const std::array<CriticalHitLadder, 50>& ladders, std::size_t damageType) {
  CriticalHitIndex index;
  std::array<CriticalHitResults, 50> results;
  for (std::size_t place = 0; place < ladders.size(); ++place) {
    const auto& [location, ladder] = ladders[place];
    if (location != kCriticalHitPlaces[place].Name) throw "the ladders stand in the order of the places";
    results[place] = ReadLadder(kCriticalHitPlaces[place], ladder);
    for (std::size_t i = 0; i < results[place].size(); ++i) {
      const std::string_view result = results[place][i];
      index[place][i].Start = static_cast<unsigned short>(result.data() - ladder.data());
      index[place][i].Length = static_cast<unsigned short>(result.size());
      if (location.size() + 2 + result.size() >= kCriticalHitWidth) throw "a result fits its field";
      if (!IsProse(result)) continue;
      for (std::size_t other = 0; other <= place; ++other) {
        for (std::size_t j = kFirstLastWords - 1; j < results[other].size(); ++j) {
          if (results[other][j] == result && (other != place || i != j)) throw "no two places share their last words";
        }
      }
    }
    if (place > 0 && AreTooMuchAlike(results[place - 1], results[place])) throw "neighbours are too much alike";
    for (std::size_t other = 0; other < place; ++other) {
      if (ladders[other].Ladder == ladder) throw "no ladder is a copy of another";
    }
    if (location == "Foot, top" && results[place][0] != "1") throw "the slightest hit to a foot is one point";
    if (location == "Groin (Male only)" && results[place][0] != "1, f, h1")
      throw "the slightest hit to the groin hurts";
    if (location != "Thigh") continue;
    for (std::string_view rest = kThighExamples[damageType]; !rest.empty();) {
      const CriticalHitStep step = TakeStep(rest);
      if (results[place][static_cast<std::size_t>(step.First - 1)] != step.Result)
        throw "the Thigh is an example in the book";
    }
  }
  return index;
}

}  // namespace veld
