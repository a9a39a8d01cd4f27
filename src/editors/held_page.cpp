#include "editors/held_page.h"

#include <algorithm>
#include <optional>

#include "editors/character_backup.h"
#include "editors/whole_number.h"
#include "platform/control_names.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "steps/skills/line_lists.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

enum : int {
  kOk = 1,
  kCancel = 2,
  kHeading = 10,
  kShowLabel = 11,
  kState = 12,
  kValueLabel = 13,
  kRange = 14,
  kNote = 15,
  kNumber = 3000,
  kCatalogue = 3021,
  kHeld = 3022,
  kSearch = 3024,
  kShow = 3115,
  kChoice = 3116,
  kAdd = 4001,
  kRemove = 4002,
  kSet = 4003,
};

constexpr int kListWidth = 34;
constexpr int kListLines = 11;
constexpr int kSearchBytes = 60;

constexpr ControlTemplate TitleWithId() {
  ControlTemplate title = TitleAt(0, 0, "", 2);
  title.Id = kHeading;
  return title;
}

constexpr ControlTemplate EnterSets(ControlTemplate field) {
  field.EnterPresses = kSet;
  return field;
}

constexpr ControlTemplate kControls[] = {
    TitleWithId(),
    LabelWithIdAt(1, 0, kShowLabel, "Sho&w"),
    ComboAt(1, 0, kShow, 20),
    ResultAt(1, 1, kState, kListWidth),
    LabelAt(2, 0, "Searc&h"),
    SearchAt(2, 0, kSearch, kCatalogue, 24, kSearchBytes),
    LabelAt(2, 1, "The character has"),
    ListAt(3, 0, kCatalogue, kListWidth, kListLines),
    ListAt(3, 1, kHeld, kListWidth, kListLines),
    ButtonAt(4, 0, kAdd, "&Add >>", ButtonRole::Default),
    ButtonAt(4, 0, kSet, "&Set"),
    ButtonAt(4, 0, kRemove, "<< &Remove"),
    LabelWithIdAt(4, 1, kValueLabel, "&Value"),
    EnterSets(NumberAt(4, 1, kNumber, 8)),
    ComboAt(4, 1, kChoice, 22),
    ResultAt(4, 1, kRange, 10),
    TextAt(5, 0, kNote, "", 2 * kListWidth + 4, 4, 1, 2),
    ButtonAt(6, 0, kOk, "OK"),
    ButtonAt(6, 0, kCancel, "&Cancel", ButtonRole::Cancel),
};

/// The page at work. One thing is chosen at a time: both lists show it where they have it.
struct Page {
  Page(Game& g, const FormTemplate& page, std::span<const HeldSource* const> all)
      : game(g), form(page), sources(all), source(all.front()) {}

  Game& game;
  Form form;
  std::span<const HeldSource* const> sources;
  const HeldSource* source;
  std::vector<HeldLine> catalogue;
  std::vector<HeldLine> held;
  HeldField field;
  bool isTyped = false;  ///< the value was changed and not yet set

  HeldPlace ChosenIn(int list) const { return SelectedPlace(form, list, list == kHeld ? held : catalogue); }
  HeldPlace Chosen() const {
    const HeldPlace place = ChosenIn(kHeld);
    return place.IsNone() ? ChosenIn(kCatalogue) : place;
  }

  static int LineOf(const std::vector<HeldLine>& lines, const HeldPlace& place) {
    const auto found = std::ranges::find(lines, place, &HeldLine::Place);
    return found == lines.end() ? -1 : static_cast<int>(found - lines.begin());
  }

  void ChooseInCatalogue(const HeldPlace& place) {
    const int exact = LineOf(catalogue, place);
    form.Select(kCatalogue, exact >= 0 ? exact : LineOf(catalogue, {.Row = place.Row}));
  }
  void ChooseInHeld(const HeldPlace& place) { form.Select(kHeld, LineOf(held, place)); }

  void FillCatalogue() {
    RefillList(form, kCatalogue, catalogue, LinesHolding(source->Catalogue(game), form.Text(kSearch)));
  }

  void ShowField(const HeldPlace& place) {
    field = source->Field(game, place);
    const bool isHeld = place == ChosenIn(kHeld);
    const int value = isHeld ? source->Value(game, place) : field.First;
    const bool isChosen = !field.Choices.empty();
    form.SetText(kValueLabel, field.Label);
    form.SetVisible(kNumber, !isChosen);
    form.SetVisible(kRange, !isChosen);
    form.SetVisible(kChoice, isChosen);
    if (isChosen) {
      std::vector<std::string> names;
      for (const HeldChoice& choice : field.Choices) names.push_back(choice.Text);
      form.SetItems(kChoice, std::move(names));
      const auto now = std::ranges::find(field.Choices, value, &HeldChoice::Value);
      form.Select(kChoice, now == field.Choices.end() ? 0 : static_cast<int>(now - field.Choices.begin()));
    } else {
      form.SetNumber(kNumber, value);
      form.SetText(kRange, Format("%i to %i", field.Lowest, field.Highest));
    }
  }

  /// Shows the value of what is chosen and what there is to tell of it.
  void ShowChosen() {
    const HeldPlace place = Chosen();
    isTyped = false;
    form.SetText(kState, source->State(game));
    if (place.IsNone()) {
      form.SetText(kNumber, "");
      return form.SetText(kNote, catalogue.empty() ? "The list has nothing of this name." : "");
    }
    ShowField(place);
    const HeldNote note = source->Note(game, place);
    form.SetText(kNote, note.Against.empty() ? note.Facts : note.Facts + "\nAgainst the rules: " + note.Against);
  }

  void ShowAll() {
    FillCatalogue();
    RefillList(form, kHeld, held, source->Held(game));
    ShowChosen();
  }

  void ChooseSource(int place) {
    if (place < 0 || place >= static_cast<int>(sources.size())) return;
    source = sources[static_cast<std::size_t>(place)];
    form.SetText(kSearch, "");
    form.Select(kCatalogue, -1);
    form.Select(kHeld, -1);
    ShowAll();
    ChooseFirst();
  }

  void ChooseFirst() {
    form.Select(kCatalogue, 0);
    ChooseInHeld(ChosenIn(kCatalogue));
    ShowChosen();
  }

  /// The value in its field; nothing if it is out of range, which is told.
  std::optional<int> Value() {
    if (!field.Choices.empty()) {
      const int chosen = form.Selection(kChoice);
      if (chosen < 0) return std::nullopt;
      return field.Choices[static_cast<std::size_t>(chosen)].Value;
    }
    const std::optional<int> number = WholeNumber(form.Text(kNumber), field.Lowest, field.Highest);
    if (!number) {
      form.SetText(kNote, WholeNumberWanted(WithoutMnemonic(field.Label), field.Lowest, field.Highest));
      form.Focus(kNumber);
    }
    return number;
  }

  /// Shows what a change left, with what it was made to chosen. Returns whether it was made.
  bool ShowChange(const HeldChange& change) {
    if (!change.Refusal.empty()) {
      form.SetText(kNote, change.Refusal);
      return false;
    }
    if (change.Place.IsNone()) return false;
    ShowAll();
    ChooseInHeld(change.Place);
    if (ChosenIn(kCatalogue).Row != change.Place.Row) ChooseInCatalogue(change.Place);
    ShowChosen();
    return true;
  }

  void Add() {
    const HeldPlace place = ChosenIn(kCatalogue);
    if (place.IsNone()) return form.SetText(kNote, "Choose what to add in the list on the left.");
    if (const std::optional<int> value = Value()) ShowChange(source->Add(game, place, *value));
  }

  bool Set() {
    const std::optional<int> value = Value();
    return value && ShowChange(source->Set(game, ChosenIn(kHeld), *value));
  }

  void Remove() {
    const HeldPlace place = ChosenIn(kHeld);
    if (place.IsNone()) return form.SetText(kNote, "Choose what to remove in the list on the right.");
    ShowChange(source->Remove(game, place));
  }

  void OnSelect(int id) {
    if (id == kShow) return ChooseSource(form.Selection(kShow));
    if (id == kChoice) {
      isTyped = true;
      return;
    }
    if (id == kCatalogue) ChooseInHeld(ChosenIn(kCatalogue));
    if (id == kHeld) ChooseInCatalogue(ChosenIn(kHeld));
    ShowChosen();
  }

  void OnEdit(int id) {
    if (id == kNumber) isTyped = true;
    if (id == kSearch) FillCatalogue();
  }

  /// A value that was typed and not set is set by OK too.
  bool MayLeave() { return !isTyped || ChosenIn(kHeld).IsNone() || Set(); }
};

}  // namespace

void HeldNote::Append(std::string& text, std::string_view sentence) {
  sentence = TrimRight(sentence);
  if (sentence.empty()) return;
  if (!text.empty()) text += ' ';
  text += sentence;
  if (!sentence.ends_with('.') && !sentence.ends_with('!') && !sentence.ends_with('?')) text += '.';
}

void HeldNote::ObjectToBook(const Game& game, int book) {
  const auto number = static_cast<std::size_t>(book);
  if (game.IsOn(number)) return;
  const auto row = std::ranges::find(kRuleSwitchRows, number, &RuleSwitchRow::Switch);
  if (row == std::end(kRuleSwitchRows)) return;
  Object(Format("%s is not in use.", row->Book.empty() ? row->Label : row->Book));
}

std::string NameOrRow(std::string_view name, int row) {
  name = TrimRight(name);
  return name.empty() ? Format("Row %i", row) : std::string(name);
}

void RunHeldPage(Game& game, std::string_view name, std::string_view title, std::string_view help,
                 std::span<const HeldSource* const> sources) {
  const CharacterBackup backup(game);
  bool isKept = false;
  Page page(game, {name, title, kControls, help}, sources);
  Form& form = page.form;
  form.onOpened = [&] {
    std::vector<std::string> names;
    for (const HeldSource* source : sources) names.emplace_back(source->Name());
    form.SetText(kHeading, title);
    form.SetItems(kShow, std::move(names));
    form.Select(kShow, 0);
    form.SetVisible(kShow, sources.size() > 1);
    form.SetVisible(kShowLabel, sources.size() > 1);
    page.ChooseSource(0);
  };
  form.onSelect = [&](int id) { page.OnSelect(id); };
  form.onEdit = [&](int id) { page.OnEdit(id); };
  form.onCommand = [&](int id) {
    switch (id) {
      case kOk:
        if (!page.MayLeave()) return;
        isKept = true;
        return form.Close();
      case kCancel:
        return form.Close();
      case kAdd:
        return page.Add();
      case kSet:
        if (page.ChosenIn(kHeld).IsNone()) return page.Add();
        page.Set();
        return;
      case kRemove:
        return page.Remove();
      default:
        return;
    }
  };
  game.platform.RunForm(form);
  if (!isKept) backup.Restore(game);
}

}  // namespace veld
