#include "steps/skills/tattoo.h"

#include <algorithm>

#include "dice/building_points.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/race_table.h"
#include "steps/abilities/ability_effects_apply.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

enum : int {
  kOk = 1,
  kBuildingPoints = 25,
  kFirstAbility = 50,
  kFirstHead = 80,
  kFirstDetail = 90,
  kTattoos = 3021,
  kOwned = 3022,
  kRemove = 4010,
};

/// The button of each place.
struct PlaceButton {
  int Id;
  TattooPlace Place;
};
constexpr PlaceButton kPlaceButtons[] = {
    {4001, kForehead}, {4003, kLeftUpperArm}, {4005, kRightUpperArm}, {4007, kLeftLowerArm}, {4009, kRightLowerArm}};

constexpr std::array<std::string_view, 7> kPlaceNames = {
    "", "Forehead", "Left Upper Arm", "Right Upper Arm", "Left Lower Arm", "Right Lower Arm", "Both Lower Arms"};

// clang-format off

using Sheet = CharacterSheet;

// Two cost a whole point of Constitution and say nothing of it in the list; kept. S and C: gain of Strength, Charisma.
constexpr std::array<TattooRecord, 10> kTattooTable{{
    // name      BP       loss   effect                              where         places   BP  CON  S  C  location
    {"Yiskrin",  "2 BP",  ".50", "+1 to Charisma",                   "Forehead",   "1",      2,  50, 0, 1, &Sheet::TattooYiskrin},
    {"Tarkrin",  "10 BP", ".50", "Diminish Evil",                    "Any",        "12345", 10,  50, 0, 0, &Sheet::TattooTarkrin},
    {"Fakrin",   "5 BP",  ".50", "Detect Evil",                      "Any",        "12345",  5,  50, 0, 0, &Sheet::TattooFakrin},
    {"Emphkrin", "free",  "",    "Detect Living Creature",           "Forehead",   "1",      0,   0, 0, 0, &Sheet::TattooEmphkrin},
    {"Shunkrin", "10 BP", "",    "+1 to all saves",                  "Forehead",   "1",     10, 100, 0, 0, &Sheet::TattooShunkrin},
    {"Ardkrin",  "5BP",   ".50", "+1AC against all melee attacks",   "Upper Arm",  "23",     5,  50, 0, 0, &Sheet::TattooArdkrin},
    {"Hurdkrin", "10 BP", ".50", "+1 to Hit Points per level",       "Upper Arm",  "23",    10,  50, 0, 0, &Sheet::TattooHurdkrin},
    {"Gorkrink", "10 BP", ".50", "+1 to damage",                     "Upper Arm",  "23",    10,  50, 0, 0, &Sheet::TattooGorkrink},
    {"Shewkrin", "5BP",   ".50", "+1AC against all missile attacks", "Lower Arm",  "45",     5,  50, 0, 0, &Sheet::TattooShewkrin},
    {"Grekrin",  "15BP",  "",    "+2 to Strength (2 slots)",         "Lower Arms", "45",    15, 100, 2, 0, &Sheet::TattooGrekrin},
}};

// clang-format on

constexpr auto kTattooControls = [] {
  constexpr int kLines = 10;
  constexpr int kColumns = 4;
  constexpr std::array<std::string_view, 5> kHeads = {"Name", "BP cost", "CON loss", "Effect", "Location"};
  constexpr int kListRow = 4;
  constexpr int kListRows = static_cast<int>(kHeads.size()) + 1;
  constexpr int kButtonRow = kListRow + kListRows;
  std::array<ControlTemplate, 2 + kAbilityCount + 4 + 2 * kHeads.size() + 7> controls{};
  std::size_t next = 0;
  const auto addWide = [&](ControlTemplate control) {
    control.ColumnSpan = kColumns;
    controls[next++] = control;
  };
  addWide(TitleAt(0, 0, "Pixie Fairy Tattoos"));
  addWide(ResultAt(1, 0, kBuildingPoints, 12));
  for (int ability = 0; ability < kAbilityCount; ++ability) addWide(ResultAt(2, 0, kFirstAbility + ability, 0));
  controls[next++] = LabelAt(3, 0, "Tattoo &Listing");
  controls[next++] = ListAt(kListRow, 0, kTattoos, 14, kLines, kListRows);
  for (int i = 0; i < static_cast<int>(kHeads.size()); ++i) {
    controls[next] = LabelAt(kListRow + i, 1, kHeads[static_cast<std::size_t>(i)]);
    controls[next++].Id = kFirstHead + i;
    controls[next++] = ResultAt(kListRow + i, 2, kFirstDetail + i, 32);
  }
  controls[next++] = LabelAt(3, 3, "Tattoo &you have");
  controls[next++] = ListAt(kListRow, 3, kOwned, 28, kLines, kListRows);
  addWide(ButtonAt(kButtonRow, 0, 4001, "Add &Forhead"));
  addWide(ButtonAt(kButtonRow, 0, 4003, "Add &Upper Left Arm"));
  addWide(ButtonAt(kButtonRow, 0, 4005, "Add Upper &Right Arm"));
  addWide(ButtonAt(kButtonRow, 0, 4007, "Add Lower L&eft Arm"));
  addWide(ButtonAt(kButtonRow, 0, 4009, "Add Lower Right &Arm"));
  addWide(ButtonAt(kButtonRow + 1, 0, kOk, "&OK", ButtonRole::Both));
  addWide(ButtonAt(kButtonRow + 1, 0, kRemove, "Remove &Tattoo"));
  return controls;
}();
constexpr std::string_view kTattooHelp =
    "Only pixie fairies wear these. Each tattoo costs the BP listed and half a point of Constitution, some a whole "
    "one, and needs a free place on the body of the kind that it names: forehead, upper or lower arms. Choose it in "
    "the listing and press the button of the place. Nothing happens where it can not go, or if the BP do not "
    "reach.\n\n"
    "Each can be had once, and a place holds one; the great one for Strength takes both lower arms. Remove Tattoo "
    "gives the BP and the Constitution back. Count hit points before you cover him: a fairy has few to lose.";
constexpr FormTemplate kTattoo{"Tattoo", "Tattoo", kTattooControls, kTattooHelp};

bool IsFree(const Game& game, int place) {
  return game.sheet.TattooChoices[static_cast<std::size_t>(place)] == 0;
}

void Mark(Game& game, int place, int used) {
  game.sheet.TattooChoices[static_cast<std::size_t>(place)] = used;
}

/// The places that a tattoo takes: the one where it is, or both lower arms with their mark.
template <typename Visit>
void ForEachPlaceOf(int location, Visit visit) {
  if (location == kBothLowerArms) {
    visit(kLeftLowerArm);
    visit(kRightLowerArm);
  }
  visit(location);
}

/// Where a tattoo comes to stand when it is asked for on a place: one that takes two arms stands on both.
int LocationOn(const TattooRecord& tattoo, int place) {
  return tattoo.Location == &CharacterSheet::TattooGrekrin ? kBothLowerArms : place;
}

bool CanTake(const Game& game, const TattooRecord& tattoo, int place) {
  if (place < kForehead || place > kRightLowerArm || game.sheet.*tattoo.Location != kNoPlace) return false;
  if (!CanPay(game, static_cast<float>(tattoo.Cost))) return false;
  if (tattoo.Places.find(static_cast<char>('0' + place)) == std::string_view::npos) return false;
  bool isFree = true;
  ForEachPlaceOf(LocationOn(tattoo, place), [&](int taken) { isFree = isFree && IsFree(game, taken); });
  return isFree;
}

/// Percentile points of Constitution that the tattoos owned have cost.
int ConstitutionLost(const CharacterSheet& sheet) {
  int lost = 0;
  for (const TattooRecord& tattoo : kTattooTable) {
    if (sheet.*tattoo.Location != kNoPlace) lost += tattoo.ConstitutionLoss;
  }
  return lost;
}

/// Takes a tattoo's toll of Constitution (`sign` 1) or gives it back (-1); the tattoo's place is settled before.
void ChargeConstitution(Game& game, const TattooRecord& tattoo, int sign) {
  AbilityScore& constitution = game.sheet.Constitution;
  const int lost = ConstitutionLost(game.sheet);
  if (lost - sign * tattoo.ConstitutionLoss == 0) game.run.AtZeroBeforeTattoos = StandsAtZero(constitution) ? 1 : 0;
  constitution.Percentile = AddSaturated(constitution.Percentile, -sign * tattoo.ConstitutionLoss);
  NormalizeGained(constitution, -lost, game.run.AtZeroBeforeTattoos == 1);
}

/// Pays for a tattoo (`sign` 1) or takes the payment back (-1), with what it does to the abilities.
void PayTattoo(Game& game, const TattooRecord& tattoo, int sign) {
  CharacterSheet& sheet = game.sheet;
  game.run.BuildingPoints -= static_cast<float>(sign * tattoo.Cost);
  ChargeConstitution(game, tattoo, sign);
  sheet.Strength.Whole = AddSaturated(sheet.Strength.Whole, sign * tattoo.StrengthGain);
  sheet.Charisma.Whole = AddSaturated(sheet.Charisma.Whole, sign * tattoo.CharismaGain);
  sheet.Comeliness.Whole = AddSaturated(sheet.Comeliness.Whole, sign * tattoo.CharismaGain);
}

std::string OwnedLine(const Game& game, const TattooRecord& tattoo) {
  return Format("%s,  %s", tattoo.Name, TattooPlaceName(game.sheet.*tattoo.Location));
}

void ShowTattoo(Form& form) {
  const TattooRecord* tattoo = FindTattoo(form.SelectedText(kTattoos));
  if (!tattoo) return;
  const std::string_view details[] = {tattoo->Name, tattoo->CostText, tattoo->ConstitutionLossText, tattoo->Effect,
                                      tattoo->LocationText};
  for (int i = 0; const std::string_view detail : details) form.SetText(kFirstDetail + i++, detail);
}

void FillTattooList(Form& form) {
  std::vector<std::string> names;
  for (const TattooRecord& tattoo : kTattooTable) names.emplace_back(tattoo.Name);
  form.SetItems(kTattoos, std::move(names));
}

void ShowCharacter(Game& game, Form& form) {
  RefreshAbilityEffects(game);
  form.SetText(kBuildingPoints, Format("%g BP", game.run.BuildingPoints));
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const AbilityScore& score = AbilityAt(game.sheet, ability);
    form.SetText(kFirstAbility + ability, Format("%s %i/%i", kAbilityShortNames[static_cast<std::size_t>(ability)],
                                                 score.Whole, score.Percentile));
  }
  form.SetItems(kOwned, OwnedTattoos(game));
}

}  // namespace

const std::array<TattooRecord, 10>& TattooTable() {
  return kTattooTable;
}

const TattooRecord* FindTattoo(std::string_view line) {
  const std::string_view name = line.substr(0, line.find(','));
  const auto found = std::ranges::find(kTattooTable, name, &TattooRecord::Name);
  return found == kTattooTable.end() ? nullptr : &*found;
}

std::string_view TattooPlaceName(int place) {
  return place >= kForehead && place <= kBothLowerArms ? kPlaceNames[static_cast<std::size_t>(place)]
                                                       : std::string_view{};
}

std::vector<std::string> OwnedTattoos(const Game& game) {
  std::vector<std::string> lines;
  for (const TattooRecord& tattoo : kTattooTable) {
    if (!TattooPlaceName(game.sheet.*tattoo.Location).empty()) lines.push_back(OwnedLine(game, tattoo));
  }
  return lines;
}

bool AddTattoo(Game& game, int place) {
  const TattooRecord* tattoo = FindTattoo(game.TextScratch);
  if (!tattoo || !CanTake(game, *tattoo, place)) return false;
  const int location = LocationOn(*tattoo, place);
  game.sheet.*tattoo->Location = location;
  ForEachPlaceOf(location, [&](int taken) { Mark(game, taken, 1); });
  PayTattoo(game, *tattoo, 1);
  return true;
}

bool RemoveTattoo(Game& game) {
  const TattooRecord* tattoo = FindTattoo(game.TextScratch);
  if (!tattoo || TattooPlaceName(game.sheet.*tattoo->Location).empty()) return false;
  ForEachPlaceOf(game.sheet.*tattoo->Location, [&](int freed) { Mark(game, freed, 0); });
  game.sheet.*tattoo->Location = kNoPlace;
  PayTattoo(game, *tattoo, -1);
  return true;
}

void RunTattoo(Game& game) {
  if (!HasTrait(game.sheet.RaceName, RaceTrait::Tattooed)) return;
  Form form(kTattoo);
  form.onOpened = [&] {
    FillTattooList(form);
    ShowCharacter(game, form);
  };
  form.onSelect = [&](int id) {
    if (id == kTattoos) ShowTattoo(form);
  };
  form.onCommand = [&](int id) {
    if (id == kOk) return form.Close();
    if (id == kRemove) {
      game.TextScratch = form.SelectedText(kOwned);
      RemoveTattoo(game);
    }
    for (const PlaceButton& button : kPlaceButtons) {
      if (button.Id != id) continue;
      game.TextScratch = form.SelectedText(kTattoos);
      AddTattoo(game, button.Place);
    }
    ShowCharacter(game, form);
  };
  game.platform.RunForm(form);
}

}  // namespace veld
