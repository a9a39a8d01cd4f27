#include "print/spell_pages.h"

#include <algorithm>

#include "rules/spell_catalogue.h"
#include "sheets/sheet_facts.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr double kMemoryBoxes[] = {0, 6.2, 12.4, 18.6, 24.8};  ///< of a spell: how often it is in memory

/// A level's title with a box for each spell that may be in memory.
Piece LevelHead(PdfCanvas& canvas, int level, int slots, double width) {
  constexpr double kBoxesAt = 120;
  constexpr int kMostBoxes = 40;
  const std::string title = level < 1 ? std::string("Cantrips") : Format("Level %i", level);
  const Piece heading = SubHeading(canvas, title, width);
  if (level < 1) return heading;
  const LaidText told = canvas.Lay(Format("%i a day", slots), {kSmallSize});
  const Piece boxes = TickBoxes(canvas, std::clamp(slots, 0, kMostBoxes), width - kBoxesAt, 6);
  const double height = std::max(heading.Height, boxes.Height + 6);
  return {height,
          [=, &canvas](double x, double y) {
            heading.Draw(x, y + height - heading.Height);
            canvas.Draw(told, x + 60, y + height - 2.5 - told.Height());
            boxes.Draw(x + kBoxesAt, y + height - 1.5 - boxes.Height);
          },
          true, title};
}

/// A spell's row with its boxes in front.
Piece SpellRow(PdfCanvas& canvas, const TableShape& table, const SpellRecord& spell, const std::string& page) {
  const auto text = [](std::string_view value) { return OneLine(TrimRight(value)); };
  const Piece row = table.Row({"", text(spell.Name), text(spell.Type), text(spell.Component), text(spell.Range),
                               text(spell.Duration), text(spell.CastingTime), text(spell.AreaOfEffect),
                               text(spell.SavingThrow), text(spell.SourceTag), page});
  return {row.Height, [row, &canvas](double x, double y) {
            row.Draw(x, y);
            canvas.Squares(x, y + 4, 5, kMemoryBoxes);
          }};
}

TableShape SpellShape(PdfCanvas& canvas, double width) {
  return TableShape(canvas,
                    {{"in memory", 33, Align::Left},
                     {"spell", 88, Align::Left, true},
                     {"school", 68, Align::Left},
                     {"comp.", 28, Align::Left},
                     {"range", 52, Align::Left},
                     {"duration", 60, Align::Left},
                     {"casting", 42, Align::Left},
                     {"area", 64, Align::Left},
                     {"save", 38, Align::Left},
                     {"book", 22, Align::Left},
                     {"page", 24}},
                    width, 6.7);
}

void PlaceSpellList(PageFlow& flow, const Game& game) {
  PdfCanvas& canvas = flow.Canvas();
  const TableShape table = SpellShape(canvas, flow.Width());
  const std::vector<std::size_t> known = KnownSpells(game);
  std::vector<Piece> rows;
  std::size_t next = 0;
  for (int level = 0; level <= static_cast<int>(kSpellLevels); ++level) {
    const int slots = level > 0 ? game.run.SpellsPerLevel[static_cast<std::size_t>(level) - 1] : 0;
    const auto isHere = [&] {
      const int found = next < known.size() ? game.SpellTable[known[next]].Level : -1;
      const bool isLast = level == static_cast<int>(kSpellLevels);  // whatever a list of spells holds is printed
      return next < known.size() && (found <= level || isLast);
    };
    if (!isHere() && slots <= 0) continue;
    rows.push_back(LevelHead(canvas, level, slots, flow.Width()));
    for (; isHere(); ++next) {
      const SpellRecord& spell = game.SpellTable[known[next]];
      rows.push_back(SpellRow(canvas, table, spell, PageInBooks(game.sheet, TrimRight(spell.Name))));
    }
    for (int i = 0; i < 2; ++i) rows.push_back(SpellRow(canvas, table, SpellRecord{}, ""));
  }
  if (rows.empty()) {
    for (int i = 0; i < 12; ++i) rows.push_back(SpellRow(canvas, table, SpellRecord{}, ""));
  }
  flow.PlaceInColumns(rows, 1, table.Head(), Heading(canvas, "Spells", flow.Width()));
  flow.Place(Space(8));
}

void PlaceBook(PageFlow& flow, const Game& game, const SpellBook& book) {
  constexpr int kColumns = 2;
  PdfCanvas& canvas = flow.Canvas();
  const TableShape table(canvas, {{"page", 0.8}, {"spell", 5, Align::Left, true}, {"level", 0.8}, {"pages", 0.8}},
                         flow.ColumnWidth(kColumns));
  std::vector<Piece> rows;
  for (const BookEntry& entry : BookEntries(game, book)) {
    rows.push_back(table.Row({Format("%i", entry.Page), entry.Name, entry.Spell ? Format("%i", entry.Spell->Level) : "",
                              entry.Spell ? Format("%i", entry.Pages) : ""}));
  }
  for (int i = 0; i < 4; ++i) rows.push_back(table.Row({}));
  const Piece heading = Heading(canvas, Format("Spell book: %s", OneLine(book.Name)), flow.Width());
  const Piece remark = Remark(canvas, BookMake(book), flow.Width());
  flow.PlaceInColumns(rows, kColumns, table.Head(), Stack({heading, remark}));
  flow.Place(Space(8));
}

// ---- Cards ----

constexpr double kMm = 72 / 25.4;
constexpr double kCardWidth = 63 * kMm;
constexpr double kCardHeight = 88 * kMm;
constexpr int kCardsAcross = 3;
constexpr int kCardsOnPage = 9;

/// Short lines at the edges of the sheet, where the knife begins and ends.
Piece CutMarks(PdfCanvas& canvas) {
  return {kCardsAcross * kCardHeight, [&canvas](double left, double top) {
            constexpr double kMark = 10;
            constexpr double kAway = 3;
            const double right = left + kCardsAcross * kCardWidth;
            const double bottom = top + kCardsAcross * kCardHeight;
            for (int i = 0; i <= kCardsAcross; ++i) {
              const double x = left + i * kCardWidth;
              const double y = top + i * kCardHeight;
              canvas.Line(x, top - kAway - kMark, x, top - kAway, Ink::Text, 0.4);
              canvas.Line(x, bottom + kAway, x, bottom + kAway + kMark, Ink::Text, 0.4);
              canvas.Line(left - kAway - kMark, y, left - kAway, y, Ink::Text, 0.4);
              canvas.Line(right + kAway, y, right + kAway + kMark, y, Ink::Text, 0.4);
            }
          }};
}

constexpr double kCardMargin = 10;

/// What stands on a card, in a size.
std::vector<Piece> CardPieces(PdfCanvas& canvas, const SpellRecord& spell, const std::string& page, double size) {
  const double width = kCardWidth - 2 * kCardMargin;
  const auto text = [](std::string_view value) { return OneLine(TrimRight(value)); };
  const std::string level = spell.Level < 1 ? std::string("Cantrip") : Format("Level %i", spell.Level);
  const std::string type = text(spell.Type);
  const TableShape table(canvas, {{"", 1, Align::Left, false, Ink::Text}, {"", 1.9, Align::Left, true}}, width, size);
  return {Heading(canvas, text(spell.Name), width),
          Remark(canvas, Format(type.empty() ? "%s%s" : "%s, %s", level, type), width),
          Space(3),
          table.Row({"Components", text(spell.Component)}),
          table.Row({"Range", text(spell.Range)}),
          table.Row({"Duration", text(spell.Duration)}),
          table.Row({"Casting time", text(spell.CastingTime)}),
          table.Row({"Area", text(spell.AreaOfEffect)}),
          table.Row({"Saving throw", text(spell.SavingThrow)}),
          table.Row({"Book", Format(page.empty() ? "%s%s" : "%s, own page %s", text(spell.SourceTag), page)})};
}

double HeightOf(const std::vector<Piece>& pieces) {
  double height = 0;
  for (const Piece& piece : pieces) height += piece.Height;
  return height;
}

Piece Card(PdfCanvas& canvas, const SpellRecord& spell, const std::string& page) {
  constexpr double kRoom = kCardHeight - 2 * kCardMargin;
  std::vector<Piece> pieces;
  for (const double size : {kTextSize, 6.0, 4.5}) {  // a catalogue with long words needs a small print
    pieces = CardPieces(canvas, spell, page, size);
    if (HeightOf(pieces) <= kRoom) break;
  }
  for (double height = HeightOf(pieces); height + kRowHeight <= kRoom; height += kRowHeight) {
    pieces.push_back(RuledLine(canvas, kCardWidth - 2 * kCardMargin, kRowHeight));
  }
  return Stack(std::move(pieces));
}

}  // namespace

void PlaceSpells(PageFlow& flow, const Game& game) {
  flow.NextPage();
  PlaceSpellList(flow, game);
  for (const SpellBook& book : game.sheet.SpellBooks) {
    if (!book.Name.Empty()) PlaceBook(flow, game, book);
  }
  // The rest of the page is for what is yet to be learned.
  PdfCanvas& canvas = flow.Canvas();
  const TableShape table = SpellShape(canvas, flow.Width());
  const Piece row = SpellRow(canvas, table, SpellRecord{}, "");
  const Piece lead = Stack({Heading(canvas, "Spells to come", flow.Width()), table.Head()});
  constexpr double kWorthIt = 4;
  if (flow.Room() < lead.Height + kWorthIt * row.Height) return;
  flow.Place(lead);
  while (flow.Room() >= row.Height) flow.Place(row);
}

void DrawSpellCards(PageFlow& flow, const Game& game) {
  PdfCanvas& canvas = flow.Canvas();
  const double left = (canvas.Width() - kCardsAcross * kCardWidth) / 2;
  const double top = (canvas.Height() - kCardsAcross * kCardHeight) / 2;
  int card = 0;
  for (const std::size_t row : KnownSpells(game)) {
    const int place = card++ % kCardsOnPage;
    if (place == 0) {
      // The head stands above the cards, between the marks.
      constexpr double kHeadHeight = 10;
      constexpr double kAway = 5;
      const double right = left + kCardsAcross * kCardWidth;
      flow.NextPage({top - kHeadHeight, left + kAway, kCardWidth - 2 * kAway, right - kAway});
      flow.DrawAt(CutMarks(canvas), left, top);
    }
    const SpellRecord& spell = game.SpellTable[row];
    flow.DrawAt(Card(canvas, spell, PageInBooks(game.sheet, TrimRight(spell.Name))),
                left + place % kCardsAcross * kCardWidth + kCardMargin,
                top + place / kCardsAcross * kCardHeight + kCardMargin);
  }
}

}  // namespace veld
