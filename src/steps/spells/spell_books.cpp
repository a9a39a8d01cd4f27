#include "steps/spells/spell_books.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <vector>

#include "dice/building_points.h"
#include "dice/dice.h"
#include "platform/platform.h"
#include "rules/spell_book_tables.h"
#include "rules/spell_catalogue.h"
#include "store/safe_file.h"
#include "store/sheet_accessors.h"
#include "text/file_name.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

constexpr std::size_t kMostSpellsInBook = 100;

constexpr std::array<std::string_view, 9> kUnits = {"First", "Second",  "Third",  "Fourth", "Fifth",
                                                    "Sixth", "Seventh", "Eighth", "Ninth"};
constexpr std::array<std::string_view, 10> kTeens = {"Tenth",      "Eleventh",  "Twelfth",   "Thirteenth",
                                                     "Fourteenth", "Fifteenth", "Sixteenth", "Seventeenth",
                                                     "Eighteenth", "Nineteenth"};
constexpr std::array<std::string_view, 5> kTens = {"", "", "Twenty", "Thirty", "Forty"};
constexpr std::array<std::string_view, 6> kRoundTens = {"", "", "Twentieth", "Thirtieth", "Fortieth", "Fiftieth"};

/// A d100 for a table until the player keeps what it says.
template <typename IndexOf, typename Question>
int RollKept(Game& game, const IndexOf& indexOf, const Question& question) {
  while (true) {
    const int index = indexOf(RollDice(game, 100, 1));
    if (AskKeep(game, question(index))) return index;
  }
}

std::size_t At(int index) {
  return static_cast<std::size_t>(index);
}

/// A weight with at most two decimals.
std::string Pounds(double weight) {
  return Format("%g", std::round(weight * 100) / 100);
}

/// "First" to "Fiftieth".
std::string Ordinal(std::size_t number) {
  if (number < 10) return std::string(kUnits[number - 1]);
  if (number < 20) return std::string(kTeens[number - 10]);
  if (number % 10 == 0) return std::string(kRoundTens[number / 10]);
  std::string unit(kUnits[number % 10 - 1]);
  unit.front() = static_cast<char>(unit.front() - 'A' + 'a');
  return Format("%s-%s", kTens[number / 10], unit);
}

int RollBookFormat(Game& game) {
  const bool oldSchool = HasQuirk(game.sheet, QuirkRow::OldSchoolMentor);
  return RollKept(
      game, [&](int roll) { return BookFormatOf(roll, oldSchool); },
      [](int format) {
        return Format("Table 7G: Spell Book Format, Keep your result of %s?", StandardFormats[At(format)]);
      });
}

int RollNonStandardFormat(Game& game) {
  return RollKept(game, NonStandardFormatOf, [](int format) {
    return Format("Table 7H: Non-Standard Spell Book Format, Keep your result of %s?",
                  NonStandardFormats[At(format)].Name);
  });
}

int RollBookSize(Game& game, int format) {
  return RollKept(game, BookSizeOf, [&](int size) {
    return Format(
        "Table 7G1: Standard Spell Book Size, Keep your result of: Size (height x width) %s, Base Weight %s lbs., "
        "Encumbrance Modifier x%i?",
        BookSizes[At(size)].Name, Pounds(BookBaseWeight(size, format)), BookSizes[At(size)].EncumbranceModifier);
  });
}

int RollBookThickness(Game& game, int format, int size) {
  return RollKept(game, BookThicknessOf, [&](int thickness) {
    const double pages = PagesWeight(thickness, format);
    return Format(
        "Table 7G2: Standard Spell Book Thickness, Keep your result of: Page Count %i, Weight Modifier +%s lbs. (total "
        "weight %s lbs.), Thickness %i inches?",
        BookThicknesses[At(thickness)], Pounds(pages), Pounds(BookBaseWeight(size, format) + pages),
        ThicknessInches(thickness));
  });
}

bool IsInABook(const Game& game, std::size_t row) {
  return std::ranges::any_of(game.sheet.SpellBooks,
                             [&](const SpellBook& book) { return !book.Name.Empty() && book.SpellRows[row] > 0; });
}

/// Known spells that stand in no book yet.
std::vector<std::size_t> LooseSpells(const Game& game) {
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    if (game.sheet.SpellsKnown[row] > 0 && !IsInABook(game, row)) rows.push_back(row);
  }
  return rows;
}

/// Pages that a known spell takes.
int PagesOfSpell(const Game& game, std::size_t row) {
  const int perMark = HasQuirk(game.sheet, QuirkRow::LargeHandwriting) ? 2 : 1;
  return SaturateToInt(std::int64_t{game.sheet.SpellsKnown[row]} * perMark);
}

/// How many of the spells, from the first on, go into an empty book: as many as its list holds and, of a standard book,
/// its pages. A spell that no book could hold has one to itself.
std::size_t SpellsThatFit(const Game& game, const SpellBook& book, std::span<const std::size_t> rows) {
  const bool hasPages = book.FormatIndex != kNonStandardFormat;
  std::int64_t left = book.PageCount;
  std::size_t count = 0;
  for (; count < std::min(rows.size(), kMostSpellsInBook); ++count) {
    left -= PagesOfSpell(game, rows[count]);
    if (hasPages && left < 0) break;
  }
  return std::max<std::size_t>(count, 1);
}

/// Writes the spells into the book: names on its list, the pages that each takes, its first and last page.
void WriteSpells(const Game& game, SpellBook& book, std::span<const std::size_t> rows) {
  book.FirstPage = 1;
  int page = 1;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const int pages = PagesOfSpell(game, rows[i]);
    book.Pages[i] = game.SpellTable[rows[i]].Name.View();
    book.PageFlags[i] = page;
    book.SpellRows[rows[i]] = pages;
    book.SpellLevelsUsed = AddSaturated(book.SpellLevelsUsed, game.SpellTable[rows[i]].Level);
    page = AddSaturated(page, pages);
  }
  book.LastPage = page - 1;
}

/// Writes the spells into the first book and, when it is full, into further ones of the same make in the places that no
/// book has taken.
void FillBooks(Game& game, std::span<const std::size_t> rows) {
  auto& books = game.sheet.SpellBooks;
  const SpellBook blank = books[0];
  const bool onlyCantrips = std::ranges::all_of(rows, [](std::size_t row) { return row < kCantripRows; });
  std::size_t number = 0;
  for (std::size_t place = 0; place < kSpellBooks && !rows.empty(); ++place) {
    SpellBook& book = books[place];
    if (place > 0 && !book.Name.Empty()) continue;
    book = blank;
    ++number;
    book.Name = number == 1 && onlyCantrips ? "Cantrips" : Format("%s Spellbook", Ordinal(number));
    const std::size_t count = SpellsThatFit(game, book, rows);
    WriteSpells(game, book, rows.first(count));
    rows = rows.subspan(count);
  }
}

void WriteStandardBook(SpellBook& book, int format, int size, int thickness) {
  book.FormatIndex = format;
  book.FormatName = StandardFormats[At(format)];
  book.SizeIndex = size;
  book.SizeText = BookSizes[At(size)].Name;
  book.ThicknessIndex = thickness;
  book.PageCount = BookThicknesses[At(thickness)];
  book.ThicknessText = Format("%i inches", ThicknessInches(thickness));
  book.WeightText = Format("%s lbs.", Pounds(BookBaseWeight(size, format) + PagesWeight(thickness, format)));
  book.EncumbranceText = Format("x%i", BookSizes[At(size)].EncumbranceModifier);
}

/// A non-standard book keeps its row of Table 7H where a book has its size.
void WriteNonStandardBook(SpellBook& book, int nonStandard) {
  book.FormatIndex = kNonStandardFormat;
  book.FormatName = NonStandardFormats[At(nonStandard)].Name;
  book.SizeIndex = nonStandard;
}

int SpellLevels(const SpellRecord& spell) {
  return std::max(spell.Level, 1);
}

/// The lines of a non-standard book: each spell with the pieces it takes.
std::string PiecesText(const Game& game, const SpellBook& book) {
  const int capacity = NonStandardFormats[At(std::clamp(book.SizeIndex, 0, 9))].Capacity;
  std::string spells;
  int units = 0;
  for (const FixedText<100>& name : book.Pages) {
    const int row = FindSpell(game.SpellTable, name);
    if (name.Empty() || row < 0) continue;
    const int pieces = PiecesForSpell(SpellLevels(game.SpellTable[static_cast<std::size_t>(row)]), capacity);
    units += pieces;
    spells += Format("%s: %i\n", name, pieces);
  }
  return Format("%s\n%i\n", book.FormatName, units) + spells;
}

std::string StandardBookText(const Game& game, const SpellBook& book) {
  std::string text = Format("%s\nSize: %s, weighing %s\nThickness: %s\nPages: %i\n", book.FormatName, book.SizeText,
                            book.WeightText, book.ThicknessText, book.PageCount);
  for (const FixedText<100>& name : book.Pages) {
    const int row = FindSpell(game.SpellTable, name);
    if (name.Empty() || row < 0) continue;
    text += Format("%s: %i\n", name, book.SpellRows[static_cast<std::size_t>(row)]);
  }
  return text;
}

}  // namespace

void MakeFirstSpellBook(Game& game) {
  const std::vector<std::size_t> rows = LooseSpells(game);
  if (rows.empty()) return;
  const int format = RollBookFormat(game);
  SpellBook& book = game.sheet.SpellBooks[0];
  if (format == kNonStandardFormat) {
    const int nonStandard = RollNonStandardFormat(game);
    ClearSpellBook(game, 0);
    WriteNonStandardBook(book, nonStandard);
  } else {
    const int size = RollBookSize(game, format);
    const int thickness = RollBookThickness(game, format, size);
    ClearSpellBook(game, 0);
    WriteStandardBook(book, format, size, thickness);
  }
  FillBooks(game, rows);
}

void ClearSpellBook(Game& game, std::size_t book) {
  if (book < kSpellBooks) game.sheet.SpellBooks[book] = SpellBook{};
}

void SaveSpellBooks(Game& game) {
  for (std::size_t book = 0; book < kSpellBooks; ++book) {
    const SpellBook& saved = game.sheet.SpellBooks[book];
    if (saved.Name.Empty() || !game.platform.Confirms("Save", Format("Save %s SpellBook?", saved.Name))) continue;
    if (game.platform.LeavesNoTrace()) continue;
    if (!SaveWholeFile(SpellBookFileName(game, book), SpellBookText(game, book))) {
      game.platform.ShowMessage("Problem Saving Spellbook");
    }
  }
}

std::string SpellBookText(const Game& game, std::size_t book) {
  if (book >= kSpellBooks) return {};
  const SpellBook& record = game.sheet.SpellBooks[book];
  const std::string title = Format("%s\n", record.Name);
  return title + (record.FormatIndex == kNonStandardFormat ? PiecesText(game, record) : StandardBookText(game, record));
}

std::string SpellBookFileName(const Game& game, std::size_t book) {
  return FileNamePart(Format("%s spellbook %i.txt", game.sheet.CharacterName, book));
}

}  // namespace veld
