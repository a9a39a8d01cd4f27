#include "editors/edit_spell_books.h"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <vector>

#include "editors/character_backup.h"
#include "editors/held_page.h"
#include "editors/whole_number.h"
#include "platform/control_names.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/named_rows.h"
#include "rules/spell_aliases.h"
#include "rules/spell_book_tables.h"
#include "rules/spell_catalogue.h"
#include "steps/skills/line_lists.h"
#include "steps/spells/spell_books.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace {

constexpr int kMostPages = 9999;  ///< of a book, and the highest number of a page
constexpr int kMostPagesOfSpell = 999;

// --- Books -------------------------------------------------------------------------------------------------------

SpellBook& BookAt(Game& game, std::size_t book) {
  return game.sheet.SpellBooks[book];
}

std::size_t BooksInUse(const Game& game) {
  const auto& books = game.sheet.SpellBooks;
  return static_cast<std::size_t>(std::ranges::find_if(books, [](const SpellBook& b) { return b.Name.Empty(); }) -
                                  books.begin());
}

/// The rows of the spells on a book's list, -1 for what is no spell of the catalogue.
std::vector<int> RowsInBook(const Game& game, const SpellBook& book) {
  std::unordered_map<std::string_view, int> rows;
  rows.reserve(kSpellRows);
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    rows.try_emplace(TrimRight(game.SpellTable[row].Name), static_cast<int>(row));
  }
  std::vector<int> found;
  for (const FixedText<100>& name : book.Pages) {
    const auto row = rows.find(SpellNameInCatalogue(TrimRight(name)));
    found.push_back(name.Empty() || row == rows.end() ? -1 : row->second);
  }
  return found;
}

int PagesOf(const SpellBook& book, int row) {
  return row < 0 ? 0 : book.SpellRows[static_cast<std::size_t>(row)];
}

/// Numbers the pages anew from the book's first, and sums the levels up.
void Renumber(const Game& game, SpellBook& book) {
  const std::vector<int> rows = RowsInBook(game, book);
  if (book.FirstPage <= 0) book.FirstPage = 1;
  int page = book.FirstPage;
  book.SpellLevelsUsed = 0;
  for (std::size_t place = 0; place < book.Pages.size(); ++place) {
    book.PageFlags[place] = book.Pages[place].Empty() ? 0 : page;
    if (rows[place] < 0) continue;
    page = AddSaturated(page, PagesOf(book, rows[place]));
    book.SpellLevelsUsed =
        AddSaturated(book.SpellLevelsUsed, game.SpellTable[static_cast<std::size_t>(rows[place])].Level);
  }
  book.LastPage = AddSaturated(page, -1);
}

// --- The page ----------------------------------------------------------------------------------------------------

enum : int {
  kOk = 1,
  kCancel = 2,
  kNote = 15,
  kFirstField = 3000,
  kName = kFirstField,
  kFormat,
  kFreeText,
  kSize,
  kThickness,
  kWeight,
  kEncumbrance,
  kPageCount,
  kFirstPage,
  kLastPage,
  kLevels,
  kPagesOfSpell,
  kLastField = kPagesOfSpell,
  kKnown = 3021,
  kPages = 3022,
  kBooks = 3023,
  kSearch = 3024,
  kKind = 3115,
  kAdd = 4001,
  kRemove = 4002,
  kSet = 4003,
  kNewBook = 4004,
  kDeleteBook = 4005,
  kSave = 4006,
};

constexpr int kLeftWidth = 27;
constexpr int kRightWidth = 42;
constexpr int kTextWidth = 32;
constexpr int kNumberWidth = 5;
constexpr int kShortWidth = 10;

constexpr ControlTemplate Wide(ControlTemplate control) {
  control.ColumnSpan = 2;
  return control;
}
constexpr ControlTemplate EnterSets(ControlTemplate field) {
  field.EnterPresses = kSet;
  return field;
}

constexpr ControlTemplate kControls[] = {
    TitleAt(0, 0, "Spell Books", 3),
    LabelAt(1, 0, "&Books"),
    LabelAt(1, 1, "&Name"),
    EditAt(1, 2, kName, kTextWidth),
    ListAt(2, 0, kBooks, kLeftWidth, 6, 6),
    LabelAt(2, 1, "&Kind"),
    ComboAt(2, 2, kKind, kTextWidth - 2),
    LabelAt(3, 1, "For&mat"),
    EditAt(3, 2, kFormat, kTextWidth),
    LabelAt(4, 1, "Te&xt"),
    EditAt(4, 2, kFreeText, kTextWidth),
    LabelAt(5, 1, "Si&ze"),
    EditAt(5, 2, kSize, kShortWidth),
    LabelAt(5, 2, "&Thick"),
    EditAt(5, 2, kThickness, kShortWidth),
    LabelAt(6, 1, "Wei&ght"),
    EditAt(6, 2, kWeight, kShortWidth),
    LabelAt(6, 2, "Enc&umb."),
    EditAt(6, 2, kEncumbrance, kShortWidth),
    LabelAt(7, 1, "Pag&es"),
    NumberAt(7, 2, kPageCount, kNumberWidth),
    LabelAt(7, 2, "Spell le&vels"),
    NumberAt(7, 2, kLevels, kNumberWidth),
    ButtonAt(8, 0, kNewBook, "Ne&w book"),
    ButtonAt(8, 0, kDeleteBook, "&Delete"),
    LabelAt(8, 1, "&First"),
    NumberAt(8, 2, kFirstPage, kNumberWidth),
    LabelAt(8, 2, "&Last page"),
    NumberAt(8, 2, kLastPage, kNumberWidth),
    LabelAt(9, 0, "Spells known"),
    LabelAt(9, 0, "Searc&h"),
    EditAt(9, 0, kSearch, 10, 60),
    Wide(LabelAt(9, 1, "Spells in the book")),
    ListAt(10, 0, kKnown, kLeftWidth, 6),
    Wide(ListAt(10, 1, kPages, kRightWidth, 6)),
    ButtonAt(11, 0, kAdd, "&Add >>", ButtonRole::Default),
    Wide(LabelAt(11, 1, "&Pages of it")),
    Wide(EnterSets(NumberAt(11, 1, kPagesOfSpell, kNumberWidth))),
    Wide(ButtonAt(11, 1, kSet, "&Set")),
    Wide(ButtonAt(11, 1, kRemove, "<< &Remove")),
    TextAt(12, 0, kNote, "", kLeftWidth + kRightWidth, 2, 1, 3),
    ButtonAt(13, 0, kOk, "OK"),
    ButtonAt(13, 0, kCancel, "&Cancel", ButtonRole::Cancel),
    ButtonAt(13, 0, kSave, "Save spell b&ooks..."),
};
constexpr std::string_view kEditSpellBooksHelp =
    "A mage's books, a page of paper for each page of magic. New book makes one; name, kind, size and weight are for "
    "the sheet. Choose a spell he knows and press Add to write it in, with as many pages as it takes; pages are "
    "numbered by themselves from the first one. Remove tears one out. Save spell books writes them as text files to "
    "hand to the player. Cancel puts everything back.";
constexpr FormTemplate kEditSpellBooks{"EditSpellBooks", "Spell Books", kControls, kEditSpellBooksHelp};

/// Calls `act` with the id, the name and the text of each text of a book, until it returns false.
template <typename Book, typename Act>
bool ForEachText(Book& book, Act act) {
  return act(kName, "Name", book.Name) && act(kFormat, "Format", book.FormatName) &&
         act(kFreeText, "Text", book.FreeText) && act(kSize, "Size", book.SizeText) &&
         act(kThickness, "Thick", book.ThicknessText) && act(kWeight, "Weight", book.WeightText) &&
         act(kEncumbrance, "Encumb.", book.EncumbranceText);
}

/// The same for its numbers.
template <typename Book, typename Act>
bool ForEachNumber(Book& book, Act act) {
  return act(kPageCount, "Pages", book.PageCount) && act(kFirstPage, "First page", book.FirstPage) &&
         act(kLastPage, "Last page", book.LastPage) && act(kLevels, "Spell levels", book.SpellLevelsUsed);
}

/// What a book can be: the standard formats but the last, which stands for what is no book, then all that is none.
constexpr std::size_t kStandardKinds = kNonStandardFormat;

/// "Book: leather, vellum" of "Standard: leather cover, vellum pages".
std::string ShortFormat(std::string_view format) {
  std::string text(format.substr(format.find(':')));
  for (const std::string_view word : {" cover", " pages"}) {
    if (const std::size_t at = text.find(word); at != std::string::npos) text.erase(at, word.size());
  }
  return "Book" + text;
}

std::vector<std::string> KindTexts() {
  std::vector<std::string> kinds;
  for (std::size_t kind = 0; kind < kStandardKinds; ++kind) kinds.push_back(ShortFormat(StandardFormats[kind]));
  for (const NonStandardFormat& format : NonStandardFormats) kinds.emplace_back(format.Name);
  return kinds;
}

int KindOf(const SpellBook& book) {
  if (book.FormatIndex == kNonStandardFormat) return AddSaturated(static_cast<int>(kStandardKinds), book.SizeIndex);
  return book.FormatIndex < static_cast<int>(kStandardKinds) ? book.FormatIndex : -1;
}

/// Makes a book one of a kind. A book that is none keeps its row of Table 7H where a book has its size.
void SetKind(SpellBook& book, int kind) {
  const int nonStandard = kind - static_cast<int>(kStandardKinds);
  if (nonStandard >= 0) {
    book.FormatIndex = kNonStandardFormat;
    book.SizeIndex = nonStandard;
    book.FormatName = NonStandardFormats[static_cast<std::size_t>(nonStandard)].Name;
    return;
  }
  if (book.FormatIndex == kNonStandardFormat) book.SizeIndex = 0;
  book.FormatIndex = kind;
  book.FormatName = StandardFormats[static_cast<std::size_t>(kind)];
}

struct Page {
  explicit Page(Game& g) : game(g) {}

  Game& game;
  Form form{kEditSpellBooks};
  std::size_t book = 0;  ///< the one that is shown, if there is any
  std::vector<HeldLine> known;
  std::vector<HeldLine> pages;
  bool isTyped = false;  ///< a spell's pages were changed and not yet set

  bool HasBook() const { return book < BooksInUse(game); }
  void Tell(std::string_view text) { form.SetText(kNote, text); }
  bool Refuse(int field, std::string_view text) {
    Tell(text);
    form.Focus(field);
    return false;
  }
  int ChosenIn(int list) const { return SelectedPlace(form, list, list == kKnown ? known : pages).Row; }

  // --- Showing ---

  void FillBooks() {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < BooksInUse(game); ++i) names.emplace_back(BookAt(game, i).Name);
    form.SetItems(kBooks, std::move(names));
    form.Select(kBooks, static_cast<int>(book));
  }

  void FillKnown() {
    std::vector<HeldLine> lines;
    for (std::size_t row = 0; row < kSpellRows; ++row) {
      if (game.sheet.SpellsKnown[row] <= 0) continue;
      const SpellRecord& spell = game.SpellTable[row];
      lines.push_back({{.Row = static_cast<int>(row)}, Format("%s (%i)", TrimRight(spell.Name), spell.Level)});
    }
    RefillList(form, kKnown, known, LinesHolding(std::move(lines), form.Text(kSearch)));
  }

  void FillPages() {
    std::vector<HeldLine> lines;
    if (HasBook()) {
      const SpellBook& shown = BookAt(game, book);
      const std::vector<int> rows = RowsInBook(game, shown);
      for (std::size_t place = 0; place < shown.Pages.size(); ++place) {
        if (shown.Pages[place].Empty()) continue;
        lines.push_back(
            {{.Row = static_cast<int>(place)}, Format("%s - %i p.", shown.Pages[place], PagesOf(shown, rows[place]))});
      }
    }
    RefillList(form, kPages, pages, std::move(lines));
  }

  void ShowFields() {
    const SpellBook none;
    const SpellBook& shown = HasBook() ? BookAt(game, book) : none;
    ForEachText(shown, [&](int id, std::string_view, const auto& text) {
      form.SetText(id, text);
      return true;
    });
    ForEachNumber(shown, [&](int id, std::string_view, int number) {
      HasBook() ? form.SetNumber(id, number) : form.SetText(id, "");
      return true;
    });
    form.Select(kKind, HasBook() ? KindOf(shown) : -1);
    for (int id = kFirstField; id <= kLastField; ++id) form.SetEnabled(id, HasBook());
    for (const int id : {kKind, kAdd, kSet, kRemove, kDeleteBook, kSave}) form.SetEnabled(id, HasBook());
  }

  void ShowNumbers() {
    if (!HasBook()) return;
    const SpellBook& shown = BookAt(game, book);
    form.SetNumber(kFirstPage, shown.FirstPage);
    form.SetNumber(kLastPage, shown.LastPage);
    form.SetNumber(kLevels, shown.SpellLevelsUsed);
  }

  void ShowBook() {
    isTyped = false;
    FillBooks();
    ShowFields();
    form.Select(kPages, -1);
    FillPages();
    TellOfBook();
  }

  void TellOfBook() {
    if (!HasBook()) return Tell("No spell book is in use: New book makes one.");
    const SpellBook& shown = BookAt(game, book);
    const std::int64_t used = std::int64_t{shown.LastPage} - shown.FirstPage + 1;
    const bool isTooMuch = shown.FormatIndex != kNonStandardFormat && used > shown.PageCount;
    Tell(isTooMuch ? Format("Against the rules: the spells take %i pages, and the book has %i.", used, shown.PageCount)
                   : Format("Spells on its list: %i of at most %i.", pages.size(), shown.Pages.size()));
  }

  /// The pages that a spell would take in a new book.
  void SuggestPages(int row) {
    isTyped = false;
    const int large = HasQuirk(game.sheet, QuirkRow::LargeHandwriting) ? 2 : 1;
    form.SetNumber(kPagesOfSpell, std::int64_t{game.sheet.SpellsKnown[static_cast<std::size_t>(row)]} * large);
  }

  // --- Changing ---

  /// Writes what was typed into the fields to the book. Returns false if a field refuses it, which is told.
  bool TakeFields() {
    if (!HasBook()) return true;
    SpellBook& shown = BookAt(game, book);
    const bool isTaken = ForEachText(shown, [&](int id, std::string_view name, auto& text) {
      const std::string& typed = form.Text(id);
      if (typed == DisplayText(text)) return true;
      if (id == kName && TrimRight(typed).empty()) return Refuse(id, "Name: a book without one is none. Delete it.");
      if (const std::string refusal = TextTooLong(name, typed, sizeof(text.bytes) - 1); !refusal.empty()) {
        return Refuse(id, refusal);
      }
      text = typed;
      return true;
    });
    return isTaken && ForEachNumber(shown, [&](int id, std::string_view name, int& number) {
             if (form.Text(id) == Format("%i", number)) return true;
             const std::optional<int> typed = WholeNumber(form.Text(id), 0, kMostPages);
             if (!typed) return Refuse(id, WholeNumberWanted(name, 0, kMostPages));
             number = *typed;
             return true;
           });
  }

  void OnSelect(int id) {
    const int chosen = form.Selection(id);
    if (id == kBooks) {
      if (!TakeFields()) return form.Select(kBooks, static_cast<int>(book));
      book = static_cast<std::size_t>(std::max(chosen, 0));
      return ShowBook();
    }
    if (id == kKind && HasBook()) {
      SetKind(BookAt(game, book), chosen);
      form.SetText(kFormat, BookAt(game, book).FormatName);
    }
    if (id == kKnown) ShowKnown();
    if (id == kPages) ShowInBook();
  }

  /// One spell is chosen at a time: both lists show it where they have it.
  void ShowKnown() {
    const int row = ChosenIn(kKnown);
    if (row < 0) return;
    form.Select(kPages, HasBook() ? LineOfSpell(row) : -1);
    ChosenIn(kPages) < 0 ? SuggestPages(row) : ShowPages(row);
  }

  void ShowInBook() {
    if (ChosenIn(kPages) < 0 || !HasBook()) return;
    const int row = RowInBook(ChosenIn(kPages));
    const auto line = std::ranges::find(known, HeldPlace{.Row = row}, &HeldLine::Place);
    form.Select(kKnown, row < 0 || line == known.end() ? -1 : static_cast<int>(line - known.begin()));
    ShowPages(row);
  }

  void ShowPages(int row) {
    isTyped = false;
    form.SetNumber(kPagesOfSpell, PagesOf(BookAt(game, book), row));
  }

  int RowInBook(int place) const {
    return RowsInBook(game, game.sheet.SpellBooks[book])[static_cast<std::size_t>(place)];
  }

  int LineOfSpell(int row) const {
    const std::vector<int> rows = RowsInBook(game, game.sheet.SpellBooks[book]);
    const auto isIt = [&](const HeldLine& line) { return rows[static_cast<std::size_t>(line.Place.Row)] == row; };
    const auto found = std::ranges::find_if(pages, isIt);
    return found == pages.end() ? -1 : static_cast<int>(found - pages.begin());
  }

  /// Writes the spell of a row of the catalogue with the pages typed. Returns false if it was refused, which is told.
  bool Write(int row) {
    const std::optional<int> typed = WholeNumber(form.Text(kPagesOfSpell), 1, kMostPagesOfSpell);
    if (!typed) return Refuse(kPagesOfSpell, WholeNumberWanted("Pages of it", 1, kMostPagesOfSpell));
    const std::string refusal = WriteSpell(game, book, static_cast<std::size_t>(row), *typed);
    isTyped = false;
    FillPages();
    form.Select(kPages, LineOfSpell(row));
    ShowNumbers();
    TellOfBook();
    if (!refusal.empty()) Tell(refusal);
    return refusal.empty();
  }

  bool SetPages() {
    const int place = ChosenIn(kPages);
    if (place < 0) return Add();
    const int row = RowInBook(place);
    if (row >= 0) return Write(row);
    Tell("The catalogue has no spell of this name: it has no pages.");
    return false;
  }

  bool Add() {
    const int row = ChosenIn(kKnown);
    if (row >= 0) return Write(row);
    Tell("Choose a known spell on the left.");
    return false;
  }

  /// Pages that were typed and not set are set by OK too.
  bool MayLeave() { return TakeFields() && (!isTyped || ChosenIn(kPages) < 0 || SetPages()); }

  void Remove() {
    const int place = ChosenIn(kPages);
    if (place < 0) return Tell("Choose a spell of the book on the right.");
    EraseSpell(game, book, static_cast<std::size_t>(place));
    FillPages();
    ShowInBook();
    ShowNumbers();
    TellOfBook();
  }

  void NewBook() {
    const std::string refusal = AddSpellBook(game);
    if (!refusal.empty()) return Tell(refusal);
    book = BooksInUse(game) - 1;
    ShowBook();
    form.Focus(kName);
  }

  void DeleteBook() {
    DeleteSpellBook(game, book);
    if (book > 0 && !HasBook()) --book;
    ShowBook();
  }

  void Press(int id) {
    if (id == kDeleteBook) return DeleteBook();
    if (!TakeFields()) return;
    FillBooks();
    switch (id) {
      case kNewBook:
        return NewBook();
      case kAdd:
        Add();
        return;
      case kSet:
        SetPages();
        return;
      case kRemove:
        return Remove();
      case kSave:
        return SaveSpellBooks(game);
      default:
        return;
    }
  }
};

}  // namespace

std::string AddSpellBook(Game& game) {
  const std::size_t place = BooksInUse(game);
  if (place >= kSpellBooks) return Format("A character has at most %i spell books.", kSpellBooks);
  ClearSpellBook(game, place);
  SpellBook& book = BookAt(game, place);
  book.Name = Format("Spellbook %i", place + 1);
  SetKind(book, 0);
  book.PageCount = BookThicknesses.front();
  book.FirstPage = 1;
  return {};
}

void DeleteSpellBook(Game& game, std::size_t book) {
  if (book >= BooksInUse(game)) return;
  auto& books = game.sheet.SpellBooks;
  std::copy(books.begin() + static_cast<std::ptrdiff_t>(book) + 1, books.end(),
            books.begin() + static_cast<std::ptrdiff_t>(book));
  ClearSpellBook(game, kSpellBooks - 1);
}

std::string WriteSpell(Game& game, std::size_t book, std::size_t spell, int pages) {
  if (book >= BooksInUse(game) || spell >= kSpellRows) return "There is no such book or spell.";
  SpellBook& record = BookAt(game, book);
  const std::vector<int> rows = RowsInBook(game, record);
  if (std::ranges::find(rows, static_cast<int>(spell)) == rows.end()) {
    const auto free = std::ranges::find_if(record.Pages, [](const auto& name) { return name.Empty(); });
    if (free == record.Pages.end()) return Format("A book lists at most %i spells.", record.Pages.size());
    *free = game.SpellTable[spell].Name.View();
  }
  record.SpellRows[spell] = pages;
  Renumber(game, record);
  return {};
}

void EraseSpell(Game& game, std::size_t book, std::size_t place) {
  if (book >= BooksInUse(game)) return;
  SpellBook& record = BookAt(game, book);
  if (place >= record.Pages.size()) return;
  const int row = RowsInBook(game, record)[place];
  const auto erased = record.Pages.begin() + static_cast<std::ptrdiff_t>(place);
  std::copy(erased + 1, record.Pages.end(), erased);
  record.Pages.back().Clear();
  const std::vector<int> rest = RowsInBook(game, record);
  if (row >= 0 && std::ranges::find(rest, row) == rest.end()) record.SpellRows[static_cast<std::size_t>(row)] = 0;
  Renumber(game, record);
}

void RunEditSpellBooks(Game& game) {
  const CharacterBackup backup(game);
  bool isKept = false;
  Page page(game);
  Form& form = page.form;
  form.onOpened = [&] {
    form.SetItems(kKind, KindTexts());
    page.FillKnown();
    page.ShowBook();
  };
  form.onSelect = [&](int id) { page.OnSelect(id); };
  form.onEdit = [&](int id) {
    if (id == kPagesOfSpell) page.isTyped = true;
    if (id != kSearch) return;
    page.FillKnown();
    if (form.Text(kSearch).empty()) return;
    form.Select(kKnown, 0);
    page.ShowKnown();
  };
  form.onCommand = [&](int id) {
    if (id == kCancel) return form.Close();
    if (id != kOk) return page.Press(id);
    if (!page.MayLeave()) return;
    isKept = true;
    form.Close();
  };
  game.platform.RunForm(form);
  if (!isKept) backup.Restore(game);
}

}  // namespace veld
