#include "steps/skills/weapon_prof.h"

#include "platform/platform.h"
#include "rules/proficiency_table.h"
#include "steps/skills/line_lists.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

enum : int {
  kClose = 1,
  kSlotsLeft = 55,
  kBuildingPoints = 56,
  kDamage = 111,
  kSpecialState = 500,
  kClassMode = 3003,
  kAllMode = WeaponProfControl::AllMode,
  kOffered = WeaponProfControl::Offered,
  kHeld = WeaponProfControl::Held,
  kSpecial = 3023,
  kSearch = 3024,
  kNote = 3025,
  kTake = WeaponProfControl::Take,
  kRemove = 4002,
  kSpecialize = WeaponProfControl::Specialize,
  kRemoveSpecial = 4004,
  kIncrease = 4010,
};

constexpr int kListWidth = 34;
constexpr int kListLines = 16;
constexpr int kHeldLines = 9;
constexpr int kSpecialLines = 4;
constexpr int kSearchBytes = 49;
constexpr int kModeGroup = 1;

constexpr ControlTemplate RadioAt(int row, int column, int id, std::string_view text) {
  return {.Kind = ControlKind::Radio, .Id = id, .Row = row, .Column = column, .Text = text, .Group = kModeGroup};
}

constexpr ControlTemplate kWeaponProfControls[] = {
    TitleAt(0, 0, "Weapon Proficiencies", 2),
    RadioAt(1, 0, kClassMode, "Cla&ss"),
    RadioAt(1, 0, kAllMode, "&All"),
    LabelAt(1, 0, "Searc&h"),
    SearchAt(1, 0, kSearch, kOffered, 18, kSearchBytes),
    LabelAt(1, 1, "Slots left"),
    ResultAt(1, 1, kSlotsLeft, 6),
    LabelAt(1, 1, "BP's:"),
    ResultAt(1, 1, kBuildingPoints, 8),
    LabelAt(2, 0, "&Weapons and styles"),
    LabelAt(2, 1, "&Your proficiencies"),
    ListAt(3, 0, kOffered, kListWidth, kListLines, 5),
    ListAt(3, 1, kHeld, kListWidth, kHeldLines),
    ButtonAt(4, 1, kRemove, "&Remove Proficiency"),
    ButtonAt(4, 1, kSpecialize, "S&pecialize this Proficiency"),
    LabelAt(5, 1, "Speciali&zations"),
    ListAt(6, 1, kSpecial, kListWidth, kSpecialLines),
    ButtonAt(7, 1, kRemoveSpecial, "Remo&ve Specialization"),
    ButtonAt(7, 1, kIncrease, "&Increase Specialization"),
    LabelAt(8, 0, "Damage, tiny to gargantuan"),
    ResultAt(8, 1, kDamage, 50),
    LabelAt(9, 0, "Specialization"),
    ResultAt(9, 1, kSpecialState, 16),
    TextAt(10, 0, kNote, "", 2 * kListWidth + 12, 2, 1, 2),
    ButtonAt(11, 0, kTake, "&Take as a Proficiency", ButtonRole::Default),
    ButtonAt(11, 1, kClose, "&Close", ButtonRole::Cancel),
};
constexpr std::string_view kWeaponProfHelp =
    "What he can wield. Class lists the weapons of his class, All every one there is. Take as a Proficiency costs a "
    "slot and 1 BP; a fighter's first one needs no BP. Choosing a weapon shows its damage against foes from tiny to "
    "gargantuan.\n\n"
    "Specialize does what it says for a weapon he has, at the price in BP and slots that the note tells, if his class "
    "lets him; Increase goes on to mastery, which takes a fighter of the fifth level. Remove gives back what a weapon "
    "cost; an ability taken for a weapon costs as much again to give up. A gladiator pays two slots for a missile "
    "weapon.\n\n"
    "Slots not used now are kept for later levels. One good weapon, one to throw and a dagger will do for most.";
constexpr FormTemplate kWeaponProf{"WeaponProf", "Weapon Proficiencies", kWeaponProfControls, kWeaponProfHelp};

/// The open page, with the proficiencies behind the lines of its three lists.
struct WeaponProfPage {
  Form form{kWeaponProf};
  ProficiencyMode mode = ProficiencyMode::Class;
  std::vector<ProficiencyLine> offered;
  std::vector<ProficiencyLine> held;
  std::vector<ProficiencyLine> special;
  int shown = kOffered;  ///< the list whose selection is told of
};

ProficiencyPlace SelectedIn(const WeaponProfPage& page, int list) {
  return SelectedPlace(page.form, list, list == kOffered ? page.offered : list == kHeld ? page.held : page.special);
}

void FillOffered(const Game& game, WeaponProfPage& page) {
  RefillList(page.form, kOffered, page.offered,
             LinesHolding(ProficienciesOffered(game, page.mode), page.form.Text(kSearch)));
}

int LevelOf(const Game& game, const ProficiencyPlace& place) {
  return place.Row < 0 ? 0 : game.sheet.ProficiencyLevels[static_cast<std::size_t>(place.Row)];
}

std::int64_t SlotsLeft(const Game& game) {
  return std::int64_t{game.sheet.ProficiencySlots} - game.sheet.ProficiencySlotsUsed;
}

/// The line as the sheets print it, of what does damage.
std::string DamageLine(const ProficiencyPlace& place) {
  if (place.Row < 0) return {};
  const auto& d = ProficiencyTable()[static_cast<std::size_t>(place.Row)].Damage;
  if (d[0].empty()) return {};
  return Format("%s / %s / %s / %s / %s / %s", d[0], d[1], d[2], d[3], d[4], d[5]);
}

/// More slots than are left may be taken, but not kept.
std::string_view WarningOf(const Game& game, int slots) {
  return slots > SlotsLeft(game) ? " You have too few: something else must be given up then." : "";
}

std::string NoteOnTaking(const Game& game, const ProficiencyPlace& place) {
  if (std::string obstacle = ProficiencyObstacle(game, place, 1); !obstacle.empty()) return obstacle;
  const std::string_view bp = IsNextProficiencyFree(game) ? "no BP" : "1 BP";
  if (place.Ability >= 0) return Format("It costs %s and 1 slot. You will be asked which weapon it is for.", bp);
  if (LevelOf(game, place) == ProficiencyMark::Limited) {
    return Format("It costs %s to make your limited training a full one.", bp);
  }
  const int slots = ProficiencySlotCost(game, place.Row);
  return Format("It costs %s and %i slot%s.%s", bp, slots, slots > 1 ? "s" : "", WarningOf(game, slots));
}

std::string NoteOnHeld(const Game& game, const ProficiencyPlace& place) {
  const std::string obstacle = ProficiencyObstacle(game, place, -1);
  if (!obstacle.empty()) return obstacle;
  if (place.Ability >= 0) return "Giving it up costs 1 BP and 1 slot again.";
  const std::string special = SpecializationObstacle(game, place.Row, 1);
  if (!special.empty()) return special;
  const int price = SpecializationPrice(game, place.Row);
  return price == 0 ? "You may specialize in it for nothing."
                    : Format("You may specialize in it for %i BP and as many slots.%s", price, WarningOf(game, price));
}

std::string NoteOnSpecialization(const Game& game, const ProficiencyPlace& place) {
  const std::string obstacle = MasteryObstacle(game, place.Row, 1);
  if (!obstacle.empty()) return obstacle;
  return Format("A step of Mastery costs 1 slot and %i BP.",
                ProficiencyTable()[static_cast<std::size_t>(place.Row)].SpecializationCost);
}

void ShowSelected(const Game& game, WeaponProfPage& page) {
  const ProficiencyPlace place = SelectedIn(page, page.shown);
  page.form.SetText(kDamage, DamageLine(place));
  if (place.IsNone()) return page.form.SetText(kNote, "");
  page.form.SetText(kNote, page.shown == kOffered ? NoteOnTaking(game, place)
                           : page.shown == kHeld  ? NoteOnHeld(game, place)
                                                  : NoteOnSpecialization(game, place));
}

void ShowWeaponProf(const Game& game, WeaponProfPage& page) {
  FillOffered(game, page);
  RefillList(page.form, kHeld, page.held, ProficienciesHeld(game));
  RefillList(page.form, kSpecial, page.special, Specializations(game));
  page.form.SetNumber(kSlotsLeft, SlotsLeft(game));
  page.form.SetNumber(kBuildingPoints, TruncateToInt(game.run.BuildingPoints));
  ShowSelected(game, page);
}

void Press(Game& game, WeaponProfPage& page, int id) {
  Form& form = page.form;
  const ProficiencyPlace held = SelectedIn(page, kHeld);
  const int special = SelectedIn(page, kSpecial).Row;
  switch (id) {
    case kClassMode:
    case kAllMode:
      page.mode = id == kAllMode ? ProficiencyMode::All : ProficiencyMode::Class;
      break;
    case kTake:
      ChangeProficiency(game, SelectedIn(page, kOffered), 1);
      break;
    case kRemove:
      ChangeProficiency(game, held, -1);
      break;
    case kSpecialize:
      if (held.Ability < 0 && Specialize(game, held.Row, 1)) form.SetText(kSpecialState, "Specialization");
      break;
    case kRemoveSpecial:
      if (Specialize(game, special, -1)) form.SetText(kSpecialState, "");
      break;
    case kIncrease:
      if (Master(game, special, 1)) form.SetText(kSpecialState, "Mastery");
      break;
    default:
      break;
  }
}

}  // namespace

void RunWeaponProf(Game& game) {
  WeaponProfPage page;
  Form& form = page.form;
  form.onOpened = [&] {
    form.SetChecked(kClassMode, true);
    ShowWeaponProf(game, page);
  };
  form.onSelect = [&](int list) {
    page.shown = list;
    if (list == kSpecial) {
      const int level = LevelOf(game, SelectedIn(page, kSpecial));
      form.SetText(kSpecialState, level > ProficiencyMark::Specialized ? "Mastery" : "Specialized");
    }
    ShowSelected(game, page);
  };
  form.onEdit = [&](int) { FillOffered(game, page); };
  form.onCommand = [&](int id) {
    if (id == kClose) {
      if (MayLeaveProficiencies(game)) return form.Close();
      return form.SetText(kNote, "You use more slots than you have: give something up first.");
    }
    Press(game, page, id);
    ShowWeaponProf(game, page);
  };
  game.platform.RunForm(form);
}

}  // namespace veld
