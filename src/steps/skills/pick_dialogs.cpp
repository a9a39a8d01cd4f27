#include "steps/skills/pick_dialogs.h"

#include <array>
#include <utility>

#include "platform/form.h"
#include "platform/platform.h"
#include "rules/proficiency_table.h"
#include "rules/skill_table.h"
#include "steps/skills/buy_skill.h"
#include "steps/skills/proficiency_purchase.h"
#include "steps/skills/skill_target.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

constexpr int kAccept = PickControl::Accept;
constexpr int kChoices = PickControl::Choices;

constexpr ControlTemplate kPickControls[] = {
    LabelAt(0, 0, "Choose &one"),
    ListAt(1, 0, kChoices, 44, 12),
    ButtonAt(2, 0, kAccept, "&Accept Selection", ButtonRole::Default),
};
constexpr std::string_view kFreeRemoteHelp =
    "He has earned a skill that costs no BP. Choose one of the list and press Accept Selection. It is taken as if it "
    "had been bought once, with its die rolled; what he has already becomes better by it. There is no second choice "
    "afterwards.";
constexpr FormTemplate kFreeRemote{"FreeRemote", "Pick your free skill", kPickControls, kFreeRemoteHelp};
constexpr std::string_view kFreeWeaponHelp =
    "Something here comes for one of the things in this list, such as a weapon that he can already wield. Choose the "
    "one and press Accept Selection. Choose what he will carry for years, not what he carries today.";
constexpr FormTemplate kFreeWeapon{"FreeWeapon", "Pick your free item", kPickControls, kFreeWeaponHelp};

// --- Instruments -------------------------------------------------------------------------------------------------

constexpr int kFirstInstrument = 4001;
constexpr std::array<std::string_view, 5> kInstruments = {
    "Brass Instrument", "Exotic Instrument", "Percussion Instrument", "Stringed Instrument", "Wind Instrument"};

constexpr ControlTemplate kBardInstrumentControls[] = {
    TitleAt(0, 0, "Choose your kind of instrument"),
    ButtonAt(1, 0, kFirstInstrument, "&Brass Instrument"),
    ButtonAt(2, 0, kFirstInstrument + 1, "&Exotic Instrument"),
    ButtonAt(3, 0, kFirstInstrument + 2, "&Percussion Instrument"),
    ButtonAt(4, 0, kFirstInstrument + 3, "&Stringed Instrument"),
    ButtonAt(5, 0, kFirstInstrument + 4, "&Wind Instrument"),
};
constexpr std::string_view kBardInstrumentHelp =
    "Every bard is taught an instrument, at no cost. Press its kind; then you are asked which it is. Whatever you "
    "take must be carried through dungeons, so consider a small one. The skill can be bought again in Step 12.";
constexpr FormTemplate kBardInstrument{"BardInstrument", "Instrument", kBardInstrumentControls, kBardInstrumentHelp};

// --- Proficiencies -----------------------------------------------------------------------------------------------

constexpr int kAnyKind = -1;
constexpr int kNamesOnly = -2;

struct ProficiencyFilter {
  int Kind;                               ///< a ProficiencyKind, any, or none but the rows named
  std::string_view NamePart;              ///< empty: any
  std::array<std::string_view, 2> Names;  ///< these rows besides
  int Mark;                               ///< what becomes of the proficiency
};

constexpr std::array<std::string_view, 2> kBows = {"Bow: Long", "Bow: Short"};

constexpr int kProficient = ProficiencyMark::Proficient;
constexpr int kShoddy = ProficiencyMark::Limited;
constexpr int kSpecialized = ProficiencyMark::Specialized;

// clang-format off
constexpr ProficiencyFilter kFilters[] = {  // by WeaponPick
  // Kind                     Name holds    Names  Mark
  {ProficiencyKind::Melee,    {},           {},    kProficient},   // Melee
  {ProficiencyKind::Melee,    {},           {},    kShoddy},       // MeleeShoddy
  {kAnyKind,                  "Sword:",     {},    kProficient},   // Sword
  {kAnyKind,                  "Sword:",     {},    kShoddy},       // SwordShoddy
  {kAnyKind,                  "Polearm:",   {},    kProficient},   // Polearm
  {kAnyKind,                  "Polearm:",   {},    kShoddy},       // PolearmShoddy
  {kAnyKind,                  "Lance:",     {},    kProficient},   // Lance
  {ProficiencyKind::Missile,  "Crossbow:",  {},    kShoddy},       // CrossbowShoddy
  {kNamesOnly,                {},           kBows, kProficient},   // Bow
  {kNamesOnly,                {},           kBows, kShoddy},       // BowShoddy
  {kAnyKind,                  {},           {},    kProficient},   // Any
  {ProficiencyKind::Missile,  "Crossbow:",  kBows, kSpecialized},  // Missile
};
static_assert(std::size(kFilters) == static_cast<std::size_t>(WeaponPick::Missile) + 1);
// clang-format on

bool Passes(const ProficiencyFilter& filter, const ProficiencyRecord& record) {
  for (const std::string_view name : filter.Names) {
    if (!name.empty() && TrimRight(record.Name) == name) return true;
  }
  if (filter.Kind != kAnyKind && filter.Kind != record.Kind) return false;
  return filter.NamePart.empty() || Contains(record.Name, filter.NamePart);
}

std::vector<int> OpenProficiencies(const Game& game, const ProficiencyFilter& filter) {
  std::vector<int> rows;
  const auto& table = ProficiencyTable();
  for (std::size_t row = 0; row < table.size() && !table[row].Name.empty(); ++row) {
    const int mark = game.sheet.ProficiencyLevels[row];
    if (mark != ProficiencyMark::None && mark != ProficiencyMark::Untaught) continue;
    const ProficiencyPlace place{.Row = static_cast<int>(row)};
    if (Passes(filter, table[row]) && ClassMayLearn(game, place)) rows.push_back(place.Row);
  }
  return rows;
}

bool HoldsMember(const CharacterSheet& sheet, int family, std::size_t slot) {
  return sheet.SkillDetailCounts[Index(family)][slot] != 0 && !sheet.SkillDetailNames[Index(family)][slot].Empty();
}

/// Tells it when the proficiency slots are out.
bool AreSlotsOut(Game& game) {
  if (!ProficiencySlotsAreOut(game)) return false;
  game.platform.ShowMessage("You are out of proficiency slots");
  return true;
}

}  // namespace

int PickOne(Game& game, PickPage page, std::vector<std::string> names, std::string_view title) {
  if (names.empty()) return -1;
  Form form(page == PickPage::FreeRemote ? kFreeRemote : kFreeWeapon);
  if (!title.empty()) form.SetTitle(title);
  form.SetItems(kChoices, std::move(names));
  form.Select(kChoices, 0);
  int picked = -1;
  form.onCommand = [&](int id) {
    if (id != kAccept || form.Selection(kChoices) < 0) return;
    picked = form.Selection(kChoices);
    form.Close();
  };
  game.platform.RunForm(form);
  return picked;
}

bool PickSkill(Game& game, PickPage page, std::span<const std::string_view> names) {
  game.run.LastSkillDetail = -1;
  std::vector<std::string> items;
  for (const std::string_view name : names) items.emplace_back(TrimRight(name));
  const int picked = PickOne(game, page, std::move(items));
  if (picked < 0) return false;
  GrantSkillAtNoCost(game, names[Index(picked)]);
  return true;
}

bool PickSurvivalSkill(Game& game) {
  constexpr std::string_view kNames[] = {"Survival, Desert", "Survival, Jungle", "Survival, Underground",
                                         "Survival, Winter"};
  return PickSkill(game, PickPage::FreeRemote, kNames);
}

bool PickMaintenanceSkill(Game& game) {
  constexpr std::string_view kNames[] = {"Armor Maintenance", "Weapon Maintenance"};
  return !AreSlotsOut(game) && PickSkill(game, PickPage::FreeRemote, kNames);
}

bool PickCombatSkill(Game& game) {
  if (AreSlotsOut(game)) return false;
  std::vector<std::string_view> names;
  for (const SkillRecord& skill : SkillTable()) {
    if (skill.Category == SkillCategory::Combat) names.push_back(skill.Name);
  }
  return PickSkill(game, PickPage::FreeRemote, names);
}

void PickDetail(Game& game, int family) {
  game.run.LastSkillDetail = -1;
  if (family < 0 || family >= kSkillTable2Rows || SkillTable2()[Index(family)].Name.empty()) return;
  std::vector<std::string> names;
  for (std::size_t slot = 0; slot < kDetailRows; ++slot) {
    if (HoldsMember(game.sheet, family, slot))
      names.emplace_back(game.sheet.SkillDetailNames[Index(family)][slot].View());
  }
  names.emplace_back(TrimRight(SkillTable2()[Index(family)].Name));
  const int picked = PickOne(game, PickPage::FreeWeapon, names);
  if (picked >= 0) GrantSkillAtNoCost(game, names[Index(picked)]);
}

void PickReadingWriting(Game& game) {
  game.run.LastSkillDetail = -1;
  std::vector<std::size_t> slots;
  std::vector<std::string> names;
  for (std::size_t slot = 0; slot < kDetailRows; ++slot) {
    if (!HoldsMember(game.sheet, SkillFamily::Language, slot)) continue;
    slots.push_back(slot);
    names.emplace_back(game.sheet.SkillDetailNames[SkillFamily::Language][slot].View());
  }
  const int picked = PickOne(game, PickPage::FreeWeapon, std::move(names), "Free Reading & Writing");
  if (picked < 0) return;
  const std::string writing(game.sheet.SkillDetailNames[SkillFamily::ReadingWriting][slots[Index(picked)]].View());
  GrantSkillAtNoCost(game, writing);
}

int* LastDetailMastery(Game& game, int family) {
  return MemberMastery(game.sheet, family, game.run.LastSkillDetail);
}

void PickBardInstrument(Game& game) {
  game.run.LastSkillDetail = -1;
  Form form(kBardInstrument);
  int picked = -1;
  form.onCommand = [&](int id) {
    picked = id - kFirstInstrument;
    form.Close();
  };
  game.platform.RunForm(form);
  if (picked >= 0) GrantSkillAtNoCost(game, kInstruments.at(Index(picked)));
}

int PickProficiency(Game& game, WeaponPick pick) {
  if (AreSlotsOut(game)) return -1;
  const ProficiencyFilter& filter = kFilters[static_cast<std::size_t>(pick)];
  const std::vector<int> rows = OpenProficiencies(game, filter);
  std::vector<std::string> names;
  for (const int row : rows) names.emplace_back(TrimRight(ProficiencyTable()[Index(row)].Name));
  const int picked = PickOne(game, PickPage::FreeRemote, std::move(names));
  if (picked < 0) return -1;
  const int row = rows[Index(picked)];
  game.sheet.ProficiencyLevels[Index(row)] = filter.Mark;
  const int slots = filter.Mark == kSpecialized ? 1 + ProficiencyTable()[Index(row)].SpecializationCost : 1;
  game.sheet.ProficiencySlotsUsed = AddSaturated(game.sheet.ProficiencySlotsUsed, slots);
  return row;
}

}  // namespace veld
