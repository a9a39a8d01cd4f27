#include "steps/spells/spell_selection.h"

#include <algorithm>

#include "platform/form.h"
#include "platform/platform.h"
#include "steps/spells/spell_dealing.h"
#include "store/sheet_accessors.h"
#include "text/format.h"

namespace veld {

namespace {

constexpr int kMasterCombo = 3115;
constexpr int kOwnCombo = 3116;
constexpr int kMasterList = 3021;
constexpr int kOwnList = 3022;
constexpr int kAdd = 4001;
constexpr int kRemove = 4002;
constexpr int kClose = 2;
constexpr int kSlotsText = 121;
constexpr int kFirstNote = 200;

constexpr std::string_view kNotes[] = {"Name",     "School",       "Specialization", "Range",        "Components",
                                       "Duration", "Casting Time", "Area of Effect", "Saving Throw", "Category"};
constexpr int kNoteRows = static_cast<int>(std::size(kNotes)) / 2;
constexpr int kNoteWidth = 30;
constexpr int kListWidth = 34;
constexpr int kListLines = 13;

constexpr ControlTemplate At(ControlTemplate control, int columnSpan) {
  control.ColumnSpan = columnSpan;
  return control;
}

constexpr auto kSpellControls = [] {
  std::array<ControlTemplate, 11 + 2 * std::size(kNotes)> controls{};
  std::size_t next = 0;
  controls[next++] = At(ResultAt(0, 0, kSlotsText, 60), 4);
  controls[next++] = At(HeadingAt(1, 0, "Master Spell List"), 2);
  controls[next++] = At(HeadingAt(1, 2, "Your Spell List"), 2);
  controls[next++] = At(ComboAt(2, 0, kMasterCombo, kListWidth), 2);
  controls[next++] = At(ComboAt(2, 2, kOwnCombo, kListWidth), 2);
  controls[next++] = At(ListAt(3, 0, kMasterList, kListWidth, kListLines), 2);
  controls[next++] = At(ListAt(3, 2, kOwnList, kListWidth, kListLines), 2);
  controls[next++] = At(ButtonAt(4, 0, kAdd, "&Add ->", ButtonRole::Default), 2);
  controls[next++] = At(ButtonAt(4, 2, kRemove, "<- &Remove"), 2);
  for (int note = 0; note < 2 * kNoteRows; ++note) {
    const int row = 5 + note % kNoteRows;
    const int column = note < kNoteRows ? 0 : 2;
    controls[next++] = LabelAt(row, column, kNotes[note]);
    controls[next++] = ResultAt(row, column + 1, kFirstNote + note, kNoteWidth);
  }
  controls[next++] = At(ButtonAt(5 + kNoteRows, 0, kClose, "&Close", ButtonRole::Cancel), 4);
  return controls;
}();
constexpr std::string_view kSpellSellectionHelp =
    "The spells a new mage has learned. What his class and his master gave him was dealt by the dice already and "
    "stands in Your Spell List; here you choose the cantrips. Pick one of the groups in the box on the left, choose a "
    "cantrip and press Add; Remove gives it back. The line on top tells how many more he may have: twice his "
    "Intelligence, far fewer under a chintzy mentor. They cost no BP, and unused places are lost.\n\n"
    "Below stands all there is to know of the spell you choose: range, components, duration and the rest. The box on "
    "the right shows his spells of any level. Close goes on. Take some cantrips of use at night and in rain, and one "
    "that amuses a tavern.";
constexpr FormTemplate kSpellSellection{"SpellSellection", "Spell Selection", kSpellControls, kSpellSellectionHelp};
constexpr std::string_view kFreeSpellSellectionHelp =
    "His years at school earned him a spell for nothing; the line on top tells of what levels. Choose the list in the "
    "box on the left, read the spell below it, and press Add: that one pick closes the page. Take one he could not "
    "learn soon by himself.";
constexpr FormTemplate kFreeSpellSellection{"FreeSpellSellection", "Free Spell", kSpellControls,
                                            kFreeSpellSellectionHelp};

std::vector<std::string> Categories(std::size_t count) {
  return {SpellCategories.begin(), SpellCategories.begin() + static_cast<std::ptrdiff_t>(count)};
}

/// The two lists of a spell dialog and the rows that stand in them.
struct SpellLists {
  Game& game;
  Form& form;
  std::vector<std::size_t> master = {};
  std::vector<std::size_t> own = {};

  void FillList(int list, const std::vector<std::size_t>& rows) const {
    std::vector<std::string> names;
    for (const std::size_t row : rows) names.emplace_back(game.SpellTable[row].Name);
    form.SetItems(list, std::move(names));
  }

  void Fill() {
    master = SpellsToLearn(game, form.SelectedText(kMasterCombo));
    own = SpellsHeld(game, form.SelectedText(kOwnCombo));
    FillList(kMasterList, master);
    FillList(kOwnList, own);
  }

  /// The row that stands chosen in a list, or kSpellRows.
  std::size_t Chosen(int list) const {
    const int selection = form.Selection(list);
    const auto& rows = list == kMasterList ? master : own;
    return selection < 0 ? kSpellRows : rows[static_cast<std::size_t>(selection)];
  }

  void ShowSpell(std::size_t row) const {
    if (row >= kSpellRows) return;
    const SpellRecord& spell = game.SpellTable[row];
    const std::string_view notes[] = {spell.Name,        spell.Type,     spell.Specialization, spell.Range,
                                      spell.Component,   spell.Duration, spell.CastingTime,    spell.AreaOfEffect,
                                      spell.SavingThrow, spell.Category};
    for (std::size_t note = 0; note < std::size(notes); ++note) {
      form.SetText(kFirstNote + static_cast<int>(note), notes[note]);
    }
  }

  void OnSelect(int id) {
    if (id == kMasterCombo || id == kOwnCombo) return Fill();
    ShowSpell(Chosen(id));
  }
};

void ShowSlotsLeft(const Game& game, Form& form) {
  form.SetText(kSlotsText, Format("You have %i more slots for this spell level.",
                                  std::max(CantripsToChoose(game) - KnownCantrips(game), 0)));
}

void RunCantripDialog(Game& game) {
  Form form(kSpellSellection);
  SpellLists lists{game, form};
  form.onOpened = [&] {
    form.SetItems(kMasterCombo, Categories(kCantripGroups));
    form.SetItems(kOwnCombo, Categories(SpellCategories.size()));
    form.Select(kMasterCombo, 0);
    form.Select(kOwnCombo, 0);
    lists.Fill();
    ShowSlotsLeft(game, form);
  };
  form.onSelect = [&](int id) { lists.OnSelect(id); };
  form.onCommand = [&](int id) {
    if (id == kClose) return form.Close();
    if (id == kAdd) {
      const std::size_t row = lists.Chosen(kMasterList);
      if (row >= kSpellRows || KnownCantrips(game) >= CantripsToChoose(game)) return;
      LearnSpell(game, row);
    } else if (id == kRemove) {
      ForgetSpell(game, lists.Chosen(kOwnList));
    }
    lists.Fill();
    ShowSlotsLeft(game, form);
  };
  game.platform.RunForm(form);
}

}  // namespace

int CantripsToChoose(const Game& game) {
  const bool isChintzy = HasQuirk(game.sheet, QuirkRow::ChintzyMentor);
  const int allowed = CantripAllowance(game.sheet.Intelligence.Whole, isChintzy);
  const int slots = std::max(game.run.SpellListIndex, 0);
  return isChintzy ? std::min(slots, allowed) : slots;
}

std::vector<std::size_t> SpellsToLearn(const Game& game, std::string_view category) {
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    if (game.sheet.SpellsKnown[row] == kUnknownSpell && game.SpellTable[row].Category == category) rows.push_back(row);
  }
  return rows;
}

std::vector<std::size_t> SpellsHeld(const Game& game, std::string_view category) {
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    if (game.sheet.SpellsKnown[row] > 0 && game.SpellTable[row].Category == category) rows.push_back(row);
  }
  return rows;
}

bool HasSpells(const Game& game) {
  return game.run.SpellListIndex != -1 || game.run.StartingSpells != 0;
}

void RunSpellSellection(Game& game) {
  GrantStartingSpells(game);
  if (game.run.SpellListIndex != -1) RunCantripDialog(game);
}

void RunFreeSpellSellection(Game& game, FreeSpellKind kind) {
  const FreeSpell free = FreeSpellOf(kind, game.sheet.ClassName);
  Form form(kFreeSpellSellection);
  SpellLists lists{game, form};
  form.onOpened = [&] {
    form.SetText(kSlotsText, free.Text);
    form.SetItems(kMasterCombo, Categories(kCantripGroups + static_cast<std::size_t>(free.HighestLevel)));
    form.SetItems(kOwnCombo, Categories(SpellCategories.size()));
    form.Select(kMasterCombo, static_cast<int>(kCantripGroups));
    form.Select(kOwnCombo, static_cast<int>(kCantripGroups));
    form.SetVisible(kRemove, false);
    lists.Fill();
  };
  form.onSelect = [&](int id) { lists.OnSelect(id); };
  form.onCommand = [&](int id) {
    if (id == kClose) return form.Close();
    const std::size_t row = lists.Chosen(kMasterList);
    if (id != kAdd || row >= kSpellRows) return;
    LearnSpell(game, row);
    form.Close();
  };
  game.platform.RunForm(form);
}

void FinishSpellList(Game& game) {
  GrantReadingAndWriting(game);
  if (game.run.FreeLevel1Spells > 0) RunFreeSpellSellection(game, FreeSpellKind::LevelOne);
  if (game.run.FreeLevel3Spells > 0) RunFreeSpellSellection(game, FreeSpellKind::UpToLevelThree);
  if (game.run.FreeAnySpells > 0) RunFreeSpellSellection(game, FreeSpellKind::AnyLevel);
  LiftSpellBars(game);
}

}  // namespace veld
