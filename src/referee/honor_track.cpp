#include "referee/honor_track.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <span>

#include "platform/form.h"
#include "platform/platform.h"
#include "referee/honor_award.h"
#include "referee/party.h"
#include "rules/honor_awards.h"
#include "store/character_file.h"
#include "store/recovery.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr FileFilter kPartyFilters[] = {{"Quellmarch Party Files (*.VLP)", ".vlp"}};
constexpr FileFilter kCharacterFilters[] = {{"Quellmarch Files (*.VLF)", ".vlf"}};

// --- GetPC -------------------------------------------------------------------------------------------------------

enum : int { kAdd = 1, kCancel = 2, kName = 3000, kHonor = 3001, kTemporalHonor = 3002, kAlignment = 3115 };

/// As the box of GetPC lists them.
constexpr std::string_view kListedAlignments[] = {"LG", "LN", "LE", "NG", "N", "NE", "CG", "CN", "CE"};

constexpr ControlTemplate kGetPCControls[] = {
    LabelAt(0, 0, "&Name"),
    EditAt(0, 1, kName, 36, 199),
    LabelAt(1, 0, "A&lignment"),
    ComboAt(1, 1, kAlignment, 6),
    LabelAt(2, 0, "&Honor"),
    EditAt(2, 1, kHonor, 8),
    LabelAt(3, 0, "&Temporal Honor"),
    EditAt(3, 1, kTemporalHonor, 8),
    ButtonAt(5, 0, kAdd, "&Add", ButtonRole::Default),
    ButtonAt(5, 0, kCancel, "Cancel", ButtonRole::Cancel),
};
constexpr std::string_view kGetPCHelp =
    "A member of the party, as its sheet has him: name, alignment, Honor, and temporal Honor if he has any yet. Both "
    "numbers may be below 0. Add puts him into the list; what alignment stands here decides what awards are worth to "
    "him.";
constexpr FormTemplate kGetPC{"GetPC", "Enter PC Data", kGetPCControls, kGetPCHelp};

/// What was typed into a field, by its sign and leading digits.
int SignedNumber(const Form& form, int id) {
  return SaturateToInt(ReadNumberPrefix(form.Text(id)));
}

void ShowMember(Form& form, const PartyMember& member) {
  form.SetItems(kAlignment, {std::begin(kListedAlignments), std::end(kListedAlignments)});
  const auto alignment = std::ranges::find(kListedAlignments, member.Alignment.View());
  if (alignment != std::end(kListedAlignments)) {
    form.Select(kAlignment, static_cast<int>(alignment - std::begin(kListedAlignments)));
  }
  form.SetText(kName, member.Name);
  form.SetNumber(kHonor, member.Honor);
  form.SetNumber(kTemporalHonor, member.TemporalHonor);
}

PartyMember MemberShown(const Form& form) {
  PartyMember member;
  member.Name = TrimRight(form.Text(kName));
  member.Alignment = form.SelectedText(kAlignment);
  member.Honor = SignedNumber(form, kHonor);
  member.TemporalHonor = SignedNumber(form, kTemporalHonor);
  return member;
}

/// Opens GetPC with what is known of a new member. Returns what was done, nothing if the player cancelled.
std::string RunGetPC(Game& game, const PartyMember& known) {
  Form form(kGetPC);
  std::string done;
  form.onOpened = [&] { ShowMember(form, known); };
  form.onCommand = [&](int id) {
    if (id == kCancel) return form.Close();
    if (id != kAdd) return;
    const PartyMember member = MemberShown(form);
    switch (AddMember(game.party, member)) {
      case AddedMember::HasNoName:
        game.platform.ShowMessage("A member needs a name.");
        return form.Focus(kName);
      case AddedMember::PartyIsFull:
        return game.platform.ShowMessage(Format("A party has at most %i members.", kMostPartyMembers));
      case AddedMember::BecameParty:
        done = "The values of the party were set.";
        break;
      case AddedMember::Added:
        done = Format("%s joined the party.", member.Name);
        break;
    }
    form.Close();
  };
  game.platform.RunForm(form);
  return done;
}

/// Name, alignment and Honor of the character in a file; nothing if it can't be read. The one in memory is not touched.
std::optional<PartyMember> MemberFromFile(const std::string& path) {
  std::string bytes;
  const auto draft = std::make_unique<CharacterDraft>();
  if (ReadWholeFile(path, bytes, kLargestCharacterBytes) != FileRead::Done ||
      DecodeCharacter(bytes, *draft) != LoadResult::Loaded) {
    return std::nullopt;
  }
  PartyMember member;
  member.Name = DisplayText(draft->sheet.CharacterName);
  member.Alignment = AlignmentCodeOf(draft->sheet.Alignment);
  member.Honor = draft->sheet.Honor;
  return member;
}

/// The member that "Add PC" begins with.
PartyMember BlankMember() {
  PartyMember member;
  member.Alignment = kListedAlignments[0];
  return member;
}

// --- Discretionary awards ----------------------------------------------------------------------------------------

enum : int { kReceiver = 10, kReason = 3000, kAmount = 3001 };

constexpr ControlTemplate kAdjustControls[] = {
    ResultAt(0, 0, kReceiver, 50),
    LabelAt(1, 0, "&Reason"),
    EditAt(1, 1, kReason, 40, 199),
    LabelAt(2, 0, "A&mount"),
    EditAt(2, 1, kAmount, 8),
    ButtonAt(4, 0, kAdd, "&Add", ButtonRole::Default),
    ButtonAt(4, 0, kCancel, "Cancel", ButtonRole::Cancel),
};
constexpr auto kAdjustWide = [] {
  auto controls = std::to_array(kAdjustControls);
  controls[0].ColumnSpan = 2;
  return controls;
}();
constexpr std::string_view kAdjustTemporalHelp =
    "Temporal Honor for something that no table knows. A reason is needed, since Honor.log keeps it; an amount below "
    "0 takes away. Be sparing: three points for a good line at the table is plenty.";
constexpr FormTemplate kAdjustTemporal{"ADJUSTTEMPORAL", "Discretionary Honor Award", kAdjustWide, kAdjustTemporalHelp};
constexpr std::string_view kAdjustHonorHelp =
    "A change to Honor itself, at the referee's word: to bring it up to date with the sheet, or for a deed that will "
    "be sung. A reason is needed, since Honor.log keeps it; an amount below 0 takes away.";
constexpr FormTemplate kAdjustHonor{"ADJUSTHONOR", "Discretionary Honor Award", kAdjustWide, kAdjustHonorHelp};

/// Returns the line that was logged, nothing if the player cancelled.
std::string RunAdjust(Game& game, PartyMember& member, HonorKind kind) {
  const bool isTemporal = kind == HonorKind::Temporal;
  Form form(isTemporal ? kAdjustTemporal : kAdjustHonor);
  std::string done;
  form.onOpened = [&] {
    form.SetText(kReceiver, Format("%s of %s, now %i", isTemporal ? "Temporal Honor" : "Honor", member.Name,
                                   isTemporal ? member.TemporalHonor : member.Honor));
  };
  form.onCommand = [&](int id) {
    if (id == kCancel) return form.Close();
    if (id != kAdd) return;
    const std::string_view reason = TrimRight(form.Text(kReason));
    if (reason.empty()) {
      game.platform.ShowMessage("An award needs a reason.");
      return form.Focus(kReason);
    }
    done = GiveHonor(member, kind, SignedNumber(form, kAmount), reason);
    form.Close();
  };
  game.platform.RunForm(form);
  return done;
}

// --- HONORTRACK --------------------------------------------------------------------------------------------------

enum : int {
  kClose = 1,
  kValue = 90,
  kHistory = 91,
  kMembers = 3021,
  kSearch = 3024,
  kSave = 3033,
  kLoad = 3034,
  kAddPC = 3043,
  kRemovePC = 3046,
  kApplyAward = 3047,
  kDiscretionary = 3048,
  kAdjust = 3049,
  kAddFromFile = 3050,
  kFilter = 3115,
  kAwards = 3116,
};

constexpr int kPageWidth = 74;
constexpr int kFieldWidth = 62;

constexpr auto kTrackControls = [] {
  auto controls = std::to_array<ControlTemplate>({
      LabelAt(0, 0, "&Party"),
      ListAt(1, 0, kMembers, kPageWidth, 8),
      ButtonAt(2, 0, kAddPC, "Add P&C"),
      ButtonAt(2, 0, kAddFromFile, "Add from f&ile..."),
      ButtonAt(2, 0, kRemovePC, "&Remove PC"),
      LabelAt(3, 0, "&Filter"),
      ComboAt(3, 1, kFilter, kFieldWidth),
      LabelAt(4, 0, "&Search"),
      SearchAt(4, 1, kSearch, kAwards, 30, 49),
      LabelAt(5, 0, "&Award"),
      ComboAt(5, 1, kAwards, kFieldWidth),
      LabelAt(6, 0, "Value"),
      TextAt(6, 1, kValue, "", kFieldWidth, 2),
      ButtonAt(7, 0, kApplyAward, "Appl&y Award", ButtonRole::Default),
      ButtonAt(7, 0, kDiscretionary, "&Discretionary Awards"),
      ButtonAt(7, 0, kAdjust, "Adjust &Honor"),
      ButtonAt(7, 0, kClose, "Cl&ose", ButtonRole::Cancel),
      LabelAt(8, 0, "Last done"),
      TextAt(8, 1, kHistory, "", kFieldWidth, 2),
  });
  for (ControlTemplate& control : controls) {
    const bool isOfWholeWidth = control.Kind == ControlKind::List || control.Kind == ControlKind::Button;
    if (isOfWholeWidth) control.ColumnSpan = 2;
  }
  return controls;
}();
constexpr std::string_view kTrackHelp =
    "The party's Honor, for the referee at the table. Add PC enters a member, Add from file takes one from a saved "
    "character. Choose the member, then an award: Filter and Search shorten the list, and Value tells what it is "
    "worth to somebody of his alignment before you give it. Apply Award adds it, and Honor.log keeps a line of "
    "everything.\n\n"
    "Discretionary Awards are your own, with a reason, on temporal Honor; Adjust Honor does the same to Honor itself. "
    "The page's menu saves the party to a file and loads it. Give awards as they are earned, in the open: Honor that "
    "nobody sees given moves nobody.";
constexpr FormTemplate kTrack{"HONORTRACK", "GM - Honor Tracking System", kTrackControls, kTrackHelp};

/// The open page: the awards behind the lines of its box.
struct TrackPage {
  Form form{kTrack};
  std::vector<const HonorAward*> awards;
};

/// The row of the party that is selected; -1 if none is.
int SelectedRow(const Game& game, const TrackPage& page) {
  const int row = page.form.Selection(kMembers);
  return row <= game.party.Count ? row : -1;
}

const HonorAward* SelectedAward(const TrackPage& page) {
  const int selection = page.form.Selection(kAwards);
  return selection < 0 ? nullptr : page.awards[static_cast<std::size_t>(selection)];
}

std::string ValueText(const PartyMember& member, const HonorAward& award) {
  if (std::ranges::find(kAlignmentCodes, member.Alignment.View()) == kAlignmentCodes.end()) {
    return Format("0 for %s, whose alignment is not known.", member.Name);
  }
  std::string text = Format("%i for %s (%s)", HonorPoints(award, member.Alignment), member.Name, member.Alignment);
  if (award.NoteIndex > 0) text += Format("; the amount is asked for. Note: %s.", HonorNote(award));
  return text;
}

/// Shows what the selected award is worth to the selected member.
void ShowValue(const Game& game, TrackPage& page) {
  const int row = SelectedRow(game, page);
  const HonorAward* award = SelectedAward(page);
  std::string text;
  if (page.awards.empty()) {
    text = "No award here holds this text.";
  } else if (!award) {
    text = "Choose an award, or type a part of its name in Search.";
  } else if (row >= 0) {
    text = ValueText(game.party.Rows[static_cast<std::size_t>(row)], *award);
  }
  page.form.SetText(kValue, text);
}

/// Lists the party, with a row selected or the last one if it has gone.
void FillMembers(const Game& game, TrackPage& page, int row) {
  std::vector<std::string> lines;
  for (const PartyMember& member : std::span(game.party.Rows).first(static_cast<std::size_t>(game.party.Count) + 1)) {
    lines.push_back(MemberLine(member));
  }
  page.form.SetItems(kMembers, std::move(lines));
  page.form.Select(kMembers, std::min(row, game.party.Count));
  ShowValue(game, page);
}

/// Lists the awards of the chosen table that hold what is searched for.
void FillAwards(const Game& game, TrackPage& page) {
  const std::string_view search = TrimRight(page.form.Text(kSearch));
  page.awards = HonorAwardsOf(page.form.Selection(kFilter), search);
  std::vector<std::string> names;
  for (const HonorAward* award : page.awards) names.emplace_back(award->Name);
  page.form.SetItems(kAwards, std::move(names));
  ShowValue(game, page);
}

/// What a command did, and the row that is selected after it. An empty text: nothing was done.
struct TrackResult {
  std::string Done;
  int Row = 0;
};

TrackResult AddFromFile(Game& game, int row) {
  const auto path = game.platform.AskOpenPath("Add from file", kCharacterFilters);
  if (!path) return {{}, row};
  const auto member = MemberFromFile(*path);
  if (!member) {
    game.platform.ShowMessage("This file can not be loaded.");
    return {{}, row};
  }
  return {RunGetPC(game, *member), row};
}

TrackResult RemovePC(Game& game, int row) {
  const std::string name(row >= 0 ? game.party.Rows[static_cast<std::size_t>(row)].Name.View() : "");
  return {RemoveMember(game.party, row) ? Format("%s left the party.", name) : "", row};
}

TrackResult ApplyAward(Game& game, const TrackPage& page, int row) {
  const HonorAward* award = SelectedAward(page);
  if (row < 0 || !award) return {{}, row};
  PartyMember& member = game.party.Rows[static_cast<std::size_t>(row)];
  const auto entry = ApplyHonorAward(game, award->Name, member);
  if (!entry) return {{}, row};
  member.TemporalHonor = AddSaturated(member.TemporalHonor, entry->Points);
  return {entry->Line, row};
}

TrackResult AdjustMember(Game& game, HonorKind kind, int row) {
  if (row < 0) return {{}, row};
  return {RunAdjust(game, game.party.Rows[static_cast<std::size_t>(row)], kind), row};
}

TrackResult LoadOrSave(Game& game, bool isLoad) {
  const auto path = isLoad ? game.platform.AskOpenPath("Load", kPartyFilters)
                           : game.platform.AskSavePath("Save", kPartyFilters, "party.vlp");
  if (!path) return {};
  const bool isDone = isLoad ? LoadParty(game, *path) : SaveParty(game, *path);
  return {isDone ? Format(isLoad ? "Loaded %s." : "Saved %s.", *path) : "", 0};
}

TrackResult Obey(Game& game, const TrackPage& page, int id, int row) {
  switch (id) {
    case kAddPC:
      return {RunGetPC(game, BlankMember()), row};
    case kAddFromFile:
      return AddFromFile(game, row);
    case kRemovePC:
      return RemovePC(game, row);
    case kApplyAward:
      return ApplyAward(game, page, row);
    case kDiscretionary:
      return AdjustMember(game, HonorKind::Temporal, row);
    case kAdjust:
      return AdjustMember(game, HonorKind::Honor, row);
    case kLoad:
      return LoadOrSave(game, true);
    case kSave:
      return LoadOrSave(game, false);
    default:
      return {{}, row};
  }
}

void RunCommand(Game& game, TrackPage& page, int id) {
  const int members = game.party.Count;
  TrackResult result = Obey(game, page, id, SelectedRow(game, page));
  if (game.party.Count > members && id != kLoad) result.Row = game.party.Count;  // who has just come
  if (!result.Done.empty()) {
    page.form.SetText(kHistory, result.Done);
    KeepPartyCopy(game);
  }
  FillMembers(game, page, result.Row);
}

}  // namespace

void RunHonorTracking(Game& game) {
  TrackPage page;
  page.form.contextMenu = {{.Id = kLoad, .Text = "&Load"}, {.Id = kSave, .Text = "&Save"}};
  page.form.onOpened = [&] {
    page.form.SetItems(kFilter, {HonorAwardFilters.begin(), HonorAwardFilters.end()});
    page.form.Select(kFilter, 0);
    FillAwards(game, page);
    FillMembers(game, page, 0);
    page.form.Focus(kMembers);
  };
  page.form.onSelect = [&](int id) {
    if (id == kFilter) FillAwards(game, page);
    if (id == kMembers || id == kAwards) ShowValue(game, page);
  };
  page.form.onEdit = [&](int id) {
    if (id == kSearch) FillAwards(game, page);
  };
  page.form.onCommand = [&](int id) {
    if (id == kClose) return page.form.Close();
    RunCommand(game, page, id);
  };
  game.platform.RunForm(page.form);
}

}  // namespace veld
