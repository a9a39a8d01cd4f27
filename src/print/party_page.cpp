#include "print/party_page.h"

#include <algorithm>
#include <vector>

#include "print/paper.h"
#include "print/pieces.h"
#include "text/format.h"

namespace veld {

namespace {

constexpr double kDenseSize = 6.9;
constexpr double kTallest = 200;  ///< a row that is higher may be broken from page to page
constexpr std::size_t kWeaponColumns = 2;
constexpr std::size_t kArmorColumn = 1;
constexpr std::size_t kNowColumn = 3;

TableShape Head(PdfCanvas& canvas, double width) {
  std::vector<TableColumn> columns{
      {"character", 172, Align::Left, true}, {"AC", 26}, {"hit points", 32, Align::Center, true}, {"now", 44}};
  for (const std::string_view save : {"paral.", "poison", "death", "petrif.", "polym.", "rod", "staff", "wand",
                                      "frenzy", "lust", "breath", "apology", "spells"}) {
    columns.push_back({save, 24});
  }
  columns.insert(columns.end(), {{"Honor", 26, Align::Center, true}, {"temporal", 30}, {"movement by load", 68}});
  return TableShape(canvas, std::move(columns), width);
}

/// Columns of lines under the table's row, and where each begins.
struct Lines {
  double X;
  std::vector<Piece> Pieces;
};

/// Adds a fact, line by line; or its label over a line to write on.
void AddTold(PdfCanvas& canvas, std::vector<Piece>& lines, std::string_view label, const std::string& value,
             double width) {
  if (value.empty()) {
    const Piece rule = RuledLine(canvas, width, kRowHeight);
    const LaidText name = canvas.Lay(label, {kSmallSize});
    lines.push_back({kRowHeight, [&canvas, rule, name](double x, double y) {
                       canvas.Draw(name, x, y + 3);
                       rule.Draw(x, y);
                     }});
    return;
  }
  const TextRun runs[] = {{Format(label.empty() ? "" : "%s  ", label)}, {value, false, Ink::Blue}};
  const LaidText laid = canvas.Lay(runs, {kDenseSize}, width);
  for (int line = 0; line < laid.Lines(); ++line) {
    lines.push_back({canvas.LineHeight(laid, line) + 0.6,
                     [&canvas, laid, line](double x, double y) { canvas.DrawLine(laid, line, x, y); }});
  }
}

/// The lines of all columns side by side, one piece for each.
std::vector<Piece> SideBySide(const std::vector<Lines>& columns) {
  std::size_t most = 0;
  for (const Lines& column : columns) most = std::max(most, column.Pieces.size());
  std::vector<Piece> lines;
  for (std::size_t line = 0; line < most; ++line) {
    std::vector<std::pair<double, Piece>> beside;
    for (const Lines& column : columns) {
      if (line < column.Pieces.size()) beside.emplace_back(column.X, column.Pieces[line]);
    }
    lines.push_back(Beside(std::move(beside)));
  }
  return lines;
}

/// What stands under the table's row of a character.
std::vector<Piece> Under(PdfCanvas& canvas, const PartyRow& row, double width) {
  const double left = width * 0.33;
  const double weapon = width * 0.265;
  std::vector<Lines> columns(1 + kWeaponColumns, Lines{0, {}});
  std::string calling = row.Calling;
  if (!row.Alignment.empty()) calling += (calling.empty() ? "" : ", ") + row.Alignment;
  if (!row.HonorCategory.empty()) calling += ", " + row.HonorCategory;
  const double told = left - kGutter;
  if (row.Calling.empty()) AddTold(canvas, columns[0].Pieces, "race, class and level", "", told);
  if (!calling.empty()) AddTold(canvas, columns[0].Pieces, row.Calling.empty() ? "alignment" : "", calling, told);
  AddTold(canvas, columns[0].Pieces, "senses", row.Senses, told);
  AddTold(canvas, columns[0].Pieces, "languages", row.Languages, told);
  for (std::size_t i = 0; i < kWeaponColumns; ++i) columns[1 + i].X = left + static_cast<double>(i) * weapon;
  const std::size_t half = (row.Weapons.size() + 1) / kWeaponColumns;
  for (std::size_t i = 0; i < row.Weapons.size(); ++i) {
    AddTold(canvas, columns[1 + i / half].Pieces, "", row.Weapons[i], weapon - 6);
  }
  if (row.Weapons.empty()) {
    for (int i = 0; i < 3; ++i) AddTold(canvas, columns[1].Pieces, i == 0 ? "weapons" : " ", "", weapon * 2 - 6);
  }
  double height = 0;
  std::vector<std::pair<double, Piece>> beside;
  for (const Lines& column : columns) {
    beside.emplace_back(column.X, Stack(column.Pieces));
    height = std::max(height, beside.back().second.Height);
  }
  if (height > kTallest) return SideBySide(columns);
  // The last column is for the pencil: as many lines as there is room for.
  constexpr double kLeast = 31;
  const double notes = left + kWeaponColumns * weapon;
  const double high = std::max(height, kLeast);
  std::vector<Piece> ruled;
  for (double used = kRowHeight; used <= high; used += kRowHeight) {
    ruled.push_back(RuledLine(canvas, width - notes, kRowHeight));
  }
  beside.emplace_back(notes, Stack(std::move(ruled)));
  beside.emplace_back(0, Space(high));
  return {Beside(std::move(beside))};
}

std::vector<Piece> Block(PdfCanvas& canvas, const TableShape& table, const PartyRow& row, double width) {
  std::vector<std::string> cells{row.Name, "", row.HitPoints, ""};
  cells.insert(cells.end(), row.Saves.begin(), row.Saves.end());
  cells.insert(cells.end(), {row.Honor, row.TemporalHonor, row.Movement});
  const Piece line = table.Row(cells);
  Piece top{line.Height,
            [&canvas, &table, line](double x, double y) {
              line.Draw(x, y);
              for (const std::size_t pencil : {kArmorColumn, kNowColumn}) {
                const auto [left, wide] = table.Column(pencil);
                canvas.Box(x + left + 2, y + 2, wide - 4, line.Height - 4);
              }
            },
            true};
  std::vector<Piece> under = Under(canvas, row, width);
  const Piece end{5, [&canvas, width](double x, double y) { canvas.Line(x, y + 3, x + width, y + 3, Ink::Blue, 0.7); }};
  if (under.size() == 1) return {Stack({top, Space(1.5), under.front(), end})};
  under.insert(under.begin(), {top, Space(1.5)});
  under[1].KeepsNext = true;
  under.push_back(end);
  return under;
}

}  // namespace

std::string PartySheet(std::span<const PartyRow> rows, PaperSize paper, const std::string& title) {
  const PaperMeasure measure = MeasureOf(paper);
  const auto canvas = PdfCanvas::Make(measure.Height, measure.Width, title, "");
  if (!canvas) return {};
  PageFlow flow(*canvas, title);
  const double width = flow.Width();
  const TableShape table = Head(*canvas, width);
  std::vector<Piece> pieces;
  for (const PartyRow& row : rows) {
    for (const Piece& piece : Block(*canvas, table, row, width)) pieces.push_back(piece);
  }
  const std::vector<Piece> blank = Block(*canvas, table, {}, width);
  if (pieces.empty()) pieces = blank;
  flow.PlaceInColumns(pieces, 1, table.Head(), Heading(*canvas, title, width));
  while (flow.Room() >= blank.front().Height) flow.Place(blank.front());
  flow.Finish();
  return canvas->Finish();
}

}  // namespace veld
