#include "referee/critical_hits.h"

#include <algorithm>

#include "dice/dice.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/critical_hit_table.h"
#include "text/format.h"

namespace veld {

namespace {

constexpr int kMostSeverityDice = 100;
constexpr std::size_t kResultsKept = 10;
constexpr std::size_t kTypesWithoutBeasts = 3;

enum : int {
  kClose = 2,
  kMeaning = 90,
  kResult = 100,
  kRoll = 3000,
  kBaseSeverity = 3001,
  kSeverity = 3002,
  kLastResults = 3021,
  kRollPlace = 3043,
  kRollSeverity = 3046,
  kLookUp = 3047,
  kTypes = 3115,
  kNotation = 3116,
};

constexpr int kPageWidth = 74;
constexpr int kNumberWidth = 7;

constexpr ControlTemplate kCriticalHitControls[] = {
    LabelAt(0, 0, "&d10,000"),
    EditAt(0, 1, kRoll, kNumberWidth),
    ButtonAt(0, 2, kRollPlace, "&Roll"),
    LabelAt(0, 3, "&Type"),
    ComboAt(0, 4, kTypes, 16),
    LabelAt(1, 0, "&BSL"),
    EditAt(1, 1, kBaseSeverity, kNumberWidth),
    ButtonAt(1, 2, kRollSeverity, "R&oll"),
    LabelAt(1, 3, "&Severity Level"),
    EditAt(1, 4, kSeverity, kNumberWidth),
    {.Kind = ControlKind::Button,
     .Id = kLookUp,
     .Row = 2,
     .Text = "&Use the numbers I entered above",
     .ColumnSpan = 5,
     .Role = ButtonRole::Default},
    ButtonAt(2, 0, kClose, "&Close", ButtonRole::Cancel),
    {.Kind = ControlKind::Result,
     .Id = kResult,
     .Row = 3,
     .Text = "Results of Critical Hit will be displayed here",
     .Width = kPageWidth,
     .Lines = 2,
     .ColumnSpan = 5},
    TextAt(
        4, 0, kMeaning,
        "Roll or type the d10,000 and the severity level, then press Use the numbers: the hit stands here, and what it "
        "means.",
        kPageWidth, 10, 1, 5),
    LabelAt(5, 0, "&Last results", 5),
    {.Kind = ControlKind::List, .Id = kLastResults, .Row = 6, .Width = kPageWidth, .Lines = 10, .ColumnSpan = 5},
    LabelAt(7, 0, "&Notation"),
    {.Kind = ControlKind::Combo, .Id = kNotation, .Row = 7, .Column = 1, .Width = 50, .ColumnSpan = 4},
};
constexpr std::string_view kCriticalHitsHelp =
    "What a critical hit does. Choose the type of weapon, then enter the d10,000 that tells the place and the "
    "severity level, or press the Roll buttons beside them; with a base severity the second one throws the rest. Use "
    "the numbers looks it up again after you have changed one.\n\n"
    "The result stands in the notation of the game, with what it means beneath it in plain words, and the last ten "
    "are kept below. Choose a mark in Notation to have it told by itself. Read the place first and let the table "
    "wince before you read the rest.";
constexpr FormTemplate kCriticalHits{"CRITICALHITS", "Critical Hits", kCriticalHitControls, kCriticalHitsHelp};

/// What was typed into a field, by its sign and leading digits.
int SignedNumber(const Form& form, int id) {
  return SaturateToInt(ReadNumberPrefix(form.Text(id)));
}

void KeepNumbers(const Form& form, CriticalHitNumbers& numbers) {
  numbers.Roll = SignedNumber(form, kRoll);
  numbers.BaseSeverity = SignedNumber(form, kBaseSeverity);
  numbers.Severity = SignedNumber(form, kSeverity);
}

void ShowNumbers(Form& form, const CriticalHitNumbers& numbers) {
  form.SetNumber(kRoll, numbers.Roll);
  form.SetNumber(kBaseSeverity, numbers.BaseSeverity);
  form.SetNumber(kSeverity, numbers.Severity);
}

/// What the effects of a result mean, each in the words of the notation list.
std::string MeaningOf(std::string_view result) {
  std::string meaning;
  for (const std::size_t line : NotationLinesOf(result)) {
    if (!meaning.empty()) meaning += '\n';
    meaning += kCriticalHitNotation[line];
  }
  return meaning;
}

void LookUp(Form& form, CriticalHitNumbers& numbers) {
  const auto result = CriticalHitResult(form.Selection(kTypes), numbers.Severity, numbers.Roll);
  form.SetText(kResult, result);
  form.SetText(kMeaning, MeaningOf(result));
  auto& last = numbers.LastResults;
  last.insert(last.begin(),
              Format("%s  (%s %i, roll %i)", result, form.SelectedText(kTypes), numbers.Severity, numbers.Roll));
  if (last.size() > kResultsKept) last.resize(kResultsKept);
  form.SetItems(kLastResults, last);
}

void FillPage(const Game& game, Form& form) {
  const std::size_t types = game.IsOn(kBeastGrid) ? kDamageTypes.size() : kTypesWithoutBeasts;
  form.SetItems(kTypes, {kDamageTypes.begin(), kDamageTypes.begin() + static_cast<std::ptrdiff_t>(types)});
  form.Select(kTypes, 0);
  form.SetItems(kNotation, {kCriticalHitNotation.begin(), kCriticalHitNotation.end()});
  form.Select(kNotation, 0);
  ShowNumbers(form, game.criticalHits);
  form.SetText(kResult, "");
  form.SetItems(kLastResults, game.criticalHits.LastResults);
}

}  // namespace

int RollOpenEndedD8(Game& game) {
  int die = RollDice(game, 8, 1);
  int total = die;
  for (int dice = 1; (die == 1 || die == 8) && dice < kMostSeverityDice; ++dice) {
    const int sign = die == 8 ? 1 : -1;
    die = RollDice(game, 8, 1);
    total += sign * (die - 1);
  }
  return total;
}

void RunCriticalHits(Game& game) {
  Form form(kCriticalHits);
  CriticalHitNumbers& numbers = game.criticalHits;
  form.onOpened = [&] { FillPage(game, form); };
  form.onEdit = [&](int) { KeepNumbers(form, numbers); };
  form.onCommand = [&](int id) {
    if (id == kClose) return form.Close();
    if (id == kLookUp) return LookUp(form, numbers);
    if (id == kRollPlace) form.SetNumber(kRoll, RollDice(game, 10'000, 1));
    if (id == kRollSeverity) form.SetNumber(kSeverity, AddSaturated(numbers.BaseSeverity, RollOpenEndedD8(game)));
    KeepNumbers(form, numbers);
  };
  game.platform.RunForm(form);
}

}  // namespace veld
