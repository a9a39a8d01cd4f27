#include "steps/spells/spell_selection.h"

#include <algorithm>
#include <span>
#include <utility>

#include "platform/form.h"
#include "platform/platform.h"
#include "steps/spells/spell_dealing.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kMasterCombo = SpellControl::MasterBox;
constexpr int kOwnCombo = 3116;
constexpr int kMasterList = SpellControl::MasterList;
constexpr int kOwnList = 3022;
constexpr int kAdd = SpellControl::Add;
constexpr int kRemove = 4002;
constexpr int kAddBelow = 4003;
constexpr int kClose = 2;
constexpr int kSlotsText = 121;
constexpr int kNext = 122;
constexpr int kFirstNote = 200;

constexpr std::string_view kNotes[] = {"Name",     "School",       "Specialization", "Range",        "Components",
                                       "Duration", "Casting Time", "Area of Effect", "Saving Throw", "Category"};
constexpr int kNoteRows = static_cast<int>(std::size(kNotes)) / 2;
constexpr int kNoteWidth = 30;
constexpr int kListWidth = 36;
constexpr int kComboWidth = 27;
constexpr int kListLines = 13;

constexpr ControlTemplate At(ControlTemplate control, int columnSpan) {
  control.ColumnSpan = columnSpan;
  return control;
}

constexpr auto kSpellControls = [] {
  std::array<ControlTemplate, 15 + 2 * std::size(kNotes)> controls{};
  std::size_t next = 0;
  controls[next++] = At(ResultAt(0, 0, kSlotsText, 60), 4);
  controls[next++] = At(LabelAt(1, 0, "Choose &from"), 2);
  controls[next++] = At(ComboAt(1, 0, kMasterCombo, kComboWidth), 2);
  controls[next++] = At(LabelAt(1, 2, "&Show"), 2);
  controls[next++] = At(ComboAt(1, 2, kOwnCombo, kComboWidth), 2);
  controls[next++] = At(HeadingAt(2, 0, "Master Spell List"), 2);
  controls[next++] = At(HeadingAt(2, 2, "Your Spell List"), 2);
  controls[next++] = At(ListAt(3, 0, kMasterList, kListWidth, kListLines), 2);
  controls[next++] = At(ListAt(3, 2, kOwnList, kListWidth, kListLines), 2);
  controls[next++] = At(ButtonAt(4, 0, kAdd, "&Add ->", ButtonRole::Default), 2);
  controls[next++] = At(ButtonAt(4, 0, kAddBelow, "Add from &here down"), 2);
  controls[next++] = At(ButtonAt(4, 2, kRemove, "<- &Remove"), 2);
  for (int note = 0; note < 2 * kNoteRows; ++note) {
    const int row = 5 + note % kNoteRows;
    const int column = note < kNoteRows ? 0 : 2;
    controls[next++] = LabelAt(row, column, kNotes[note]);
    controls[next++] = ResultAt(row, column + 1, kFirstNote + note, kNoteWidth);
  }
  controls[next++] = At(ButtonAt(5 + kNoteRows, 0, kClose, "&Close", ButtonRole::Cancel), 4);
  controls[next++] = At(ResultAt(5 + kNoteRows, 0, kNext, 56), 4);
  return controls;
}();
constexpr std::string_view kSpellSellectionHelp =
    "The spells a new mage has learned. What his class and his master gave him was dealt by the dice and stands in "
    "Your Spell List; here you choose the cantrips. Pick a group on the left, choose a cantrip "
    "and press Add, which goes on to the next one; Remove gives it back. Add from here down takes it and "
    "those below it, as many as he may have. The line on top tells how many that are: twice his Intelligence, far "
    "fewer under a chintzy mentor. They cost no BP.\n\n"
    "Below stands what there is to know of a chosen spell. The box on the right shows all that he knows, or a "
    "part of it. Close goes on; unused places are lost, so it asks to be pressed again. Take some of use at night and "
    "in rain.";
constexpr FormTemplate kSpellSellection{"SpellSellection", "Spell Selection", kSpellControls, kSpellSellectionHelp};
constexpr std::string_view kFreeSpellSellectionHelp =
    "His years at school earned him a spell for nothing; the line on top tells of what levels. Choose the list in the "
    "box on the left, read the spell below it, and press Add: that one pick closes the page. Close without it leaves "
    "the spell, when it is pressed again. Take one he could not learn soon by himself.";
constexpr FormTemplate kFreeSpellSellection{"FreeSpellSellection", "Free Spell", kSpellControls,
                                            kFreeSpellSellectionHelp};

std::vector<std::string> Categories(std::size_t count) {
  return {SpellCategories.begin(), SpellCategories.begin() + static_cast<std::ptrdiff_t>(count)};
}

/// The choices of the box over the spells known: all at once come last.
constexpr std::string_view kAllKnown = "All that you know";
std::vector<std::string> CategoriesKnown() {
  std::vector<std::string> categories = Categories(SpellCategories.size());
  categories.emplace_back(kAllKnown);
  return categories;
}

/// How many spells of the first `count` categories can still be learned.
int LearnableSpells(const Game& game, std::size_t count) {
  std::size_t spells = 0;
  for (const std::string_view category : std::span(SpellCategories).first(count)) {
    spells += SpellsToLearn(game, category).size();
  }
  return static_cast<int>(spells);
}

/// A spell dialog at work: its two lists and the rows that stand in them, and what is said of the picks left.
struct SpellPage {
  Game& game;
  Form& form;
  std::string_view noun;  ///< what is picked
  std::vector<std::size_t> master = {};
  std::vector<std::size_t> own = {};
  int picksLeft = 0;
  bool isWarned = false;  ///< that Close leaves picks

  std::string LineOf(std::size_t row) const {
    const std::string_view name = game.SpellTable[row].Name;
    return game.run.DealtSpells[row] ? Format("%s (dealt)", TrimRight(name)) : std::string(name);
  }

  /// Puts new rows in a list. What was chosen stays so while it is listed; otherwise the row in its place is, if
  /// `goesOn`.
  void FillList(int list, std::vector<std::size_t>& rows, std::vector<std::size_t> listed, bool goesOn) {
    const std::size_t chosen = Chosen(list);
    const int place = form.Selection(list);
    rows = std::move(listed);
    std::vector<std::string> lines;
    for (const std::size_t row : rows) lines.push_back(LineOf(row));
    form.SetItems(list, std::move(lines));
    const auto kept = std::ranges::find(rows, chosen);
    const int last = static_cast<int>(rows.size()) - 1;
    if (kept != rows.end()) {
      form.Select(list, static_cast<int>(kept - rows.begin()));
    } else if (goesOn && place >= 0) {
      form.Select(list, std::min(place, last));
    }
  }

  /// `goesOn`: a row that was added leads to the next one.
  void Fill(bool goesOn = false) {
    FillList(kMasterList, master, SpellsToLearn(game, form.SelectedText(kMasterCombo)), goesOn);
    FillList(kOwnList, own, SpellsHeld(game, form.SelectedText(kOwnCombo)), false);
    if (goesOn) ShowSpell(Chosen(kMasterList));
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
    if (id != kMasterCombo && id != kOwnCombo) return ShowSpell(Chosen(id));
    Fill();
    if (!isWarned) ShowNext();
  }

  /// Says what comes next. Returns its control.
  int ShowNext() {
    const bool isOver = picksLeft <= 0;
    const bool isGroupTaken = master.empty();
    form.SetText(kNext, isOver         ? "Next: Close"
                        : isGroupTaken ? "Next: choose from another group"
                                       : Format("Next: choose a %s and press Add", noun));
    return isOver ? kClose : isGroupTaken ? kMasterCombo : kMasterList;
  }

  /// After a pick: goes to what comes next.
  void GoOn(int left) {
    picksLeft = left;
    isWarned = false;
    form.Focus(ShowNext());
  }

  /// The first Close with picks left tells how many they are; the next one leaves.
  void PressClose() {
    if (picksLeft <= 0 || std::exchange(isWarned, true)) return form.Close();
    const bool isOne = picksLeft == 1;
    form.SetText(kNext, Format("%i %s%s not chosen; press Close again to leave %s", picksLeft, noun, isOne ? "" : "s",
                               isOne ? "it" : "them"));
  }
};

void ShowSlotsLeft(const Game& game, Form& form) {
  form.SetText(kSlotsText, Format("You have %i more slots for this spell level.",
                                  std::max(CantripsToChoose(game) - KnownCantrips(game), 0)));
}

void RunCantripDialog(Game& game) {
  Form form(kSpellSellection);
  SpellPage page{game, form, "cantrip"};
  form.onOpened = [&] {
    form.SetItems(kMasterCombo, Categories(kCantripGroups));
    form.SetItems(kOwnCombo, CategoriesKnown());
    form.Select(kMasterCombo, 0);
    form.Select(kOwnCombo, static_cast<int>(SpellCategories.size()));
    page.Fill();
    ShowSlotsLeft(game, form);
    page.GoOn(CantripsLeft(game));
  };
  form.onSelect = [&](int id) { page.OnSelect(id); };
  form.onCommand = [&](int id) {
    if (id == kClose) return page.PressClose();
    const auto known = game.sheet.SpellsKnown;
    const int chosen = form.Selection(kMasterList);
    const std::span<const std::size_t> listed(page.master);
    if (id == kAdd && chosen >= 0) LearnCantrips(game, listed.subspan(static_cast<std::size_t>(chosen), 1));
    if (id == kAddBelow) LearnCantrips(game, listed.subspan(static_cast<std::size_t>(std::max(chosen, 0))));
    if (id == kRemove) ForgetSpell(game, page.Chosen(kOwnList));
    if (game.sheet.SpellsKnown == known) return;
    page.Fill(id != kRemove);
    ShowSlotsLeft(game, form);
    page.GoOn(CantripsLeft(game));
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

int CantripsLeft(const Game& game) {
  const int picks = std::max(CantripsToChoose(game) - KnownCantrips(game), 0);
  return std::min(picks, LearnableSpells(game, kCantripGroups));
}

void LearnCantrips(Game& game, std::span<const std::size_t> rows) {
  for (const std::size_t row : rows) {
    if (KnownCantrips(game) >= CantripsToChoose(game)) return;
    LearnSpell(game, row);
  }
}

std::vector<std::size_t> SpellsToLearn(const Game& game, std::string_view category) {
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    const auto& own = game.SpellTable[row].Category;
    // Nearly all rows fall out by the first letter.
    if (!category.empty() && own.bytes[0] != category.front()) continue;
    if (game.sheet.SpellsKnown[row] == kUnknownSpell && own == category) rows.push_back(row);
  }
  return rows;
}

std::vector<std::size_t> SpellsHeld(const Game& game, std::string_view category) {
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    const bool isShown = category == kAllKnown || game.SpellTable[row].Category == category;
    if (isShown && game.sheet.SpellsKnown[row] > 0) rows.push_back(row);
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
  const std::size_t categories = kCantripGroups + static_cast<std::size_t>(free.HighestLevel);
  Form form(kFreeSpellSellection);
  SpellPage page{game, form, "spell"};
  form.onOpened = [&] {
    form.SetText(kSlotsText, free.Text);
    form.SetItems(kMasterCombo, Categories(categories));
    form.SetItems(kOwnCombo, CategoriesKnown());
    form.Select(kMasterCombo, static_cast<int>(kCantripGroups));
    form.Select(kOwnCombo, static_cast<int>(SpellCategories.size()));
    for (const int id : {kRemove, kAddBelow}) form.SetVisible(id, false);
    page.Fill();
    page.GoOn(std::min(LearnableSpells(game, categories), 1));
  };
  form.onSelect = [&](int id) { page.OnSelect(id); };
  form.onCommand = [&](int id) {
    if (id == kClose) return page.PressClose();
    const std::size_t row = page.Chosen(kMasterList);
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
