#include "steps/classes/allotments.h"

#include <algorithm>

#include "platform/control_names.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/named_rows.h"
#include "rules/thief_tables.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

static_assert(kThiefAbilities == kThiefAbilityCount);

constexpr int kOk = 1;
constexpr int kAbort = 2;
constexpr int kFirstTotal = 10;
constexpr int kPointsText = 150;
constexpr int kLimitText = 151;
constexpr int kRefusal = 152;
constexpr int kFirstEntry = AllotmentControl::FirstEntry;

constexpr int kThiefLimit = 30;
constexpr int kLowThiefLimit = 15;
constexpr int kFewPoints = 35;

constexpr std::array<int, 9> kThiefList = {kPickPockets,   kOpenLocks,   kFindTraps,  kRemoveTraps,  kMoveSilently,
                                           kHideInShadows, kDetectNoise, kClimbWalls, kReadLanguages};
constexpr std::array<int, 4> kBardList = {kClimbWalls, kDetectNoise, kPickPockets, kReadLanguages};
constexpr std::array<int, 4> kBountyHunterList = {kFindTraps, kRemoveTraps, kMoveSilently, kHideInShadows};

constexpr std::string_view kThiefLabels[] = {"&Pick Pockets", "O&pen Locks",    "&Find Traps",
                                             "&Remove Traps", "&Move Silently", "&Hide in Shadows",
                                             "Detect &Noise", "&Climb Walls",   "Read &Languages"};
constexpr std::string_view kBardLabels[] = {"&Climb Walls", "&Detect Noise", "&Pick Pockets", "&Read Languages"};
constexpr std::string_view kBountyHunterLabels[] = {"&Find Traps", "&Remove Traps", "&Move Silently",
                                                    "&Hide in Shadows"};

/// A row for each ability: what it is, its total so far, and the points to add.
template <std::size_t N>
constexpr auto AllotmentControls(std::string_view title, const std::string_view (&labels)[N], bool hasAbort) {
  constexpr int kHeadRow = 4;
  constexpr int kFirstRow = kHeadRow + 1;
  std::array<ControlTemplate, 3 * N + 8> controls{};
  std::size_t next = 0;
  controls[next++] = TitleAt(0, 0, title, 3);
  controls[next] = ResultAt(1, 0, kPointsText, 40, "You have 20 points to spend");
  controls[next++].ColumnSpan = 3;
  controls[next] = ResultAt(2, 0, kLimitText, 40);
  controls[next++].ColumnSpan = 3;
  controls[next++] = LabelAt(kHeadRow, 1, "Total %");
  controls[next++] = LabelAt(kHeadRow, 2, "Points");
  for (std::size_t i = 0; i < N; ++i) {
    const int place = static_cast<int>(i);
    controls[next++] = LabelAt(kFirstRow + place, 0, labels[i]);
    controls[next++] = ResultAt(kFirstRow + place, 1, kFirstTotal + place, 6);
    controls[next++] = NumberAt(kFirstRow + place, 2, kFirstEntry + place, 6);
  }
  const int lastRow = kFirstRow + static_cast<int>(N) + 1;
  controls[next] = ResultAt(lastRow - 1, 0, kRefusal, 60);
  controls[next++].ColumnSpan = 3;
  controls[next] = ButtonAt(lastRow, 0, kOk, "&OK", ButtonRole::Default);
  controls[next++].ColumnSpan = 3;
  controls[next] = ButtonAt(lastRow, 0, kAbort, "&Abort", ButtonRole::Cancel);
  controls[next].Visible = hasAbort;
  controls[next].Enabled = hasAbort;
  controls[next].ColumnSpan = 3;
  return controls;
}

constexpr auto kThiefControls = AllotmentControls("Thief Abilities", kThiefLabels, true);
constexpr auto kBardControls = AllotmentControls("Bard Abilities", kBardLabels, false);
constexpr auto kBountyHunterControls = AllotmentControls("Bounty Hunter Abilities", kBountyHunterLabels, false);
constexpr std::string_view kThiefHelp =
    "This level's points for the thieves' arts. Type how many go to each; Total shows what he has with them, with his "
    "race and his Dexterity, and the line on top the points that are left. All of them must be given out, none can be "
    "saved. No art takes more than 30 of them, or "
    "15 when there are 35 or fewer to give. A thief who finds traps and can not remove them is half a thief.";
constexpr FormTemplate kThief{"ThiefAbilities", "Thief Abilities", kThiefControls, kThiefHelp};
constexpr std::string_view kBardHelp =
    "This level's points for what a bard does like a thief. Type how many go to each of the four arts; Total shows "
    "what he has with them. All must be given out, and they may all go to one. Picking pockets is the one that gets "
    "bards hanged.";
constexpr FormTemplate kBard{"BardAbilities", "Bard Abilities", kBardControls, kBardHelp};
constexpr std::string_view kBountyHunterHelp =
    "This level's points for the hunt. Type how many go to each of the four arts; Total shows what he has with them. "
    "All must be given out, and no art takes more than half of them, so choose at least two. Silence and shadows serve "
    "every night, traps only some.";
constexpr FormTemplate kBountyHunter{"BountyHunterAbilities", "Bounty Hunter Abilities", kBountyHunterControls,
                                     kBountyHunterHelp};

const FormTemplate& TemplateOf(Allotment allotment) {
  if (allotment == Allotment::Bard) return kBard;
  return allotment == Allotment::BountyHunter ? kBountyHunter : kThief;
}

std::span<const std::string_view> LabelsOf(Allotment allotment) {
  if (allotment == Allotment::Bard) return kBardLabels;
  if (allotment == Allotment::BountyHunter) return kBountyHunterLabels;
  return kThiefLabels;
}

ThiefAbility& AbilityScores(CharacterSheet& sheet, int ability) {
  return ThiefAbilityAt(sheet, static_cast<std::size_t>(ability));
}

void SumAbility(ThiefAbility& scores) {
  std::int64_t sum = 0;
  for (std::size_t level = 0; level < kLevelSum; ++level) sum += scores[level];
  scores[kLevelSum] = SaturateToInt(sum);
}

/// The most points that one ability takes.
std::int64_t EntryLimit(Allotment allotment, int points) {
  switch (allotment) {
    case Allotment::Thief:
      return points <= kFewPoints ? kLowThiefLimit : kThiefLimit;
    case Allotment::BountyHunter:
      return points / 2;
    default:
      return kLargestEntry;
  }
}

std::int64_t SumOf(std::span<const std::int64_t> entries) {
  std::int64_t sum = 0;
  for (const std::int64_t entry : entries) sum += entry;
  return sum;
}

void ShowAllotment(Game& game, Form& form, Allotment allotment) {
  const auto abilities = AllottedAbilities(allotment);
  const std::int64_t limit = EntryLimit(allotment, game.run.ThiefPointsToSpend);
  form.SetText(kPointsText, Format("You have %i points to spend", game.run.ThiefPointsToSpend));
  if (limit < kLargestEntry) form.SetText(kLimitText, Format("At most %i points in one ability", limit));
  for (std::size_t i = 0; i < abilities.size(); ++i) {
    const int place = static_cast<int>(i);
    form.SetNumber(kFirstTotal + place, AbilityScores(game.sheet, abilities[i])[kLevelSum]);
    form.SetNumber(kFirstEntry + place, 0);
  }
}

std::vector<std::int64_t> Entries(const Form& form, std::size_t count) {
  std::vector<std::int64_t> entries;
  for (std::size_t i = 0; i < count; ++i) entries.push_back(form.Number(kFirstEntry + static_cast<int>(i)));
  return entries;
}

/// What the figures as they stand make of the totals, what is left, and what is wrong with them.
void ShowEntries(Game& game, Form& form, Allotment allotment) {
  const auto abilities = AllottedAbilities(allotment);
  const auto entries = Entries(form, abilities.size());
  for (std::size_t i = 0; i < abilities.size(); ++i) {
    form.SetNumber(kFirstTotal + static_cast<int>(i), AbilityScores(game.sheet, abilities[i])[kLevelSum] + entries[i]);
  }
  form.SetText(kPointsText, Format("You have %i points left to spend", game.run.ThiefPointsToSpend - SumOf(entries)));
  std::vector<std::int64_t> typed;  // below 0 too
  for (std::size_t i = 0; i < abilities.size(); ++i) {
    typed.push_back(ReadNumberPrefix(form.Text(kFirstEntry + static_cast<int>(i))));
  }
  form.SetText(kRefusal, AllotmentRefusal(allotment, game.run.ThiefPointsToSpend, typed));
}

}  // namespace

void SetThiefBaseScores(Game& game) {
  CharacterSheet& sheet = game.sheet;
  const auto base = ThiefBaseScores(sheet.ClassName, sheet.RaceName, sheet.Dexterity.Whole);
  for (std::size_t ability = 0; ability < kThiefAbilities; ++ability) {
    ThiefAbilityAt(sheet, ability)[0] = base[ability];
    ThiefAbilityAt(sheet, ability)[kLevelSum] = 0;
  }
}

void SumThiefAbilities(Game& game) {
  for (std::size_t ability = 0; ability < kThiefAbilities; ++ability) SumAbility(ThiefAbilityAt(game.sheet, ability));
}

Allotment AllotmentOf(int classRow) {
  if (classRow == ClassRow::Thief || classRow == ClassRow::Assassin) return Allotment::Thief;
  if (classRow >= ClassRow::FirstSwindler && classRow <= ClassRow::LastSwindler) return Allotment::Thief;
  if (classRow == ClassRow::Bard) return Allotment::Bard;
  return classRow == ClassRow::BountyHunter ? Allotment::BountyHunter : Allotment::None;
}

std::span<const int> AllottedAbilities(Allotment allotment) {
  switch (allotment) {
    case Allotment::Thief:
      return kThiefList;
    case Allotment::Bard:
      return kBardList;
    case Allotment::BountyHunter:
      return kBountyHunterList;
    case Allotment::None:
      break;
  }
  return {};
}

std::size_t AllotmentSlot(const CharacterSheet& sheet, Allotment allotment, int classRow) {
  const int plainThief = sheet.ClassLevels[ClassRow::Thief];
  const bool atThief = allotment == Allotment::Thief && plainThief > 0;
  const int level = atThief ? plainThief : sheet.ClassLevels[static_cast<std::size_t>(classRow)];
  return static_cast<std::size_t>(std::clamp(level, 0, kHighestLevel));
}

std::string AllotmentRefusal(Allotment allotment, int points, std::span<const std::int64_t> entries) {
  const std::int64_t limit = EntryLimit(allotment, points);
  const auto labels = LabelsOf(allotment);
  for (std::size_t i = 0; i < std::min(entries.size(), labels.size()); ++i) {
    const std::string name = WithoutMnemonic(labels[i]);
    if (entries[i] < 0) return Format("%s: points can not be taken away, so this counts as none.", name);
    if (entries[i] > limit) return Format("%s: %i points are too many, it takes %i at most.", name, entries[i], limit);
  }
  const std::int64_t over = SumOf(entries) - points;
  if (over > 0) return Format("%i point%s too many.", over, over == 1 ? " is" : "s are");
  return {};
}

bool PlaceThiefPoints(Game& game, Allotment allotment, int classRow, std::span<const std::int64_t> entries) {
  const auto abilities = AllottedAbilities(allotment);
  const std::int64_t limit = EntryLimit(allotment, game.run.ThiefPointsToSpend);
  const bool areInside = std::ranges::all_of(entries, [&](std::int64_t entry) { return entry >= 0 && entry <= limit; });
  if (entries.size() != abilities.size() || !areInside || SumOf(entries) != game.run.ThiefPointsToSpend) return false;
  const std::size_t slot = AllotmentSlot(game.sheet, allotment, classRow);
  for (std::size_t i = 0; i < abilities.size(); ++i) {
    int& placed = AbilityScores(game.sheet, abilities[i])[slot];
    placed = SaturateToInt(placed + entries[i]);
  }
  return true;
}

void RunAllotment(Game& game, int classRow) {
  const Allotment allotment = AllotmentOf(classRow);
  if (allotment == Allotment::None) return;
  const auto abilities = AllottedAbilities(allotment);
  SetThiefBaseScores(game);
  for (const int ability : abilities) SumAbility(AbilityScores(game.sheet, ability));
  Form form(TemplateOf(allotment));
  form.onOpened = [&] { ShowAllotment(game, form, allotment); };
  form.onEdit = [&](int) { ShowEntries(game, form, allotment); };
  form.onCommand = [&](int id) {
    if (id == kAbort) {
      game.run.CurrentStep = 1;
      return form.Close();
    }
    if (PlaceThiefPoints(game, allotment, classRow, Entries(form, abilities.size()))) return form.Close();
    ShowEntries(game, form, allotment);
  };
  game.platform.RunForm(form);
}

}  // namespace veld
