#include "print/list_pages.h"

#include <algorithm>
#include <cmath>

#include "rules/equipment_catalogue.h"
#include "rules/proficiency_table.h"
#include "rules/quirk_table.h"
#include "sheets/sheet_facts.h"
#include "sheets/sheet_view.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr double kSectionGap = 8;
constexpr int kBlankRows = 4;  ///< below a list, for what is to come

void PlaceSection(PageFlow& flow, std::string_view title, const TableShape& table, std::vector<Piece> rows, int columns,
                  int blanks = kBlankRows) {
  for (int i = 0; i < blanks; ++i) rows.push_back(table.Row({}));
  flow.PlaceInColumns(rows, columns, table.Head(), Heading(flow.Canvas(), title, flow.Width()));
  flow.Place(Space(kSectionGap));
}

// ---- What he can do ----

void PlaceSkills(PageFlow& flow, const CharacterSheet& sheet) {
  constexpr int kColumns = 2;
  constexpr std::size_t kUsed = 3;
  const TableShape table(flow.Canvas(),
                         {{"skill", 4.2, Align::Left},
                          {"mastery", 0.9, Align::Center, true},
                          {"book", 1.7, Align::Center, false, Ink::Text},
                          {"used", 0.6},
                          {"improved to", 1.4}},
                         flow.ColumnWidth(kColumns));
  std::vector<Piece> rows;
  // Each row has a box to tick when the skill was used.
  const auto add = [&, canvas = &flow.Canvas()](const std::vector<std::string>& cells) {
    constexpr double kBox = 5.5;
    static constexpr double kOffsets[] = {0};
    const auto [left, wide] = table.Column(kUsed);
    const double at = left + (wide - kBox) / 2;
    const Piece row = table.Row(cells);
    rows.push_back({row.Height, [canvas, row, at](double x, double y) {
                      row.Draw(x, y);
                      canvas->Squares(x + at, y + 3.8, kBox, kOffsets);
                    }});
  };
  for (const HeldAbility& skill : HeldSkills(sheet)) {
    add({skill.Name, Format("%i%%", skill.Amount), std::string(skill.Page)});
  }
  for (int i = 0; i < 2 * kBlankRows; ++i) add({});
  PlaceSection(flow, "Skills", table, std::move(rows), kColumns, 0);
}

void PlaceTalents(PageFlow& flow, const CharacterSheet& sheet) {
  constexpr int kColumns = 2;
  const TableShape table(
      flow.Canvas(),
      {{"talent", 5, Align::Left}, {"rating", 1, Align::Center, true}, {"book", 1.6, Align::Center, false, Ink::Text}},
      flow.ColumnWidth(kColumns));
  std::vector<Piece> rows;
  for (const HeldAbility& talent : HeldTalents(sheet)) {
    rows.push_back(table.Row({talent.Name, Format(talent.Measure, talent.Amount), std::string(talent.Page)}));
  }
  PlaceSection(flow, "Talents", table, std::move(rows), kColumns);
}

void PlaceProficiencies(PageFlow& flow, const SheetContent& content) {
  constexpr int kColumns = 2;
  const TableShape table(flow.Canvas(), {{"weapon or style", 5, Align::Left}, {"proficiency", 1.8, Align::Left, true}},
                         flow.ColumnWidth(kColumns));
  std::vector<Piece> rows;
  for (const auto& [name, mark] : FactsOf(FindBlock(content, "Weapon Proficiencies"))) {
    rows.push_back(table.Row({name, mark}));
  }
  PlaceSection(flow, "Weapon proficiencies", table, std::move(rows), kColumns);
}

/// What the catalogue tells of a quirk: how bad it is, and of what kind by the table of the books that has it.
std::string KindOf(const QuirkRecord& quirk) {
  const std::string_view kind = quirk.Kind == kMajorQuirk ? "major" : quirk.Kind == kMinorQuirk ? "minor" : "";
  for (const std::string_view where : {"Physical", "Mental", "Personality"}) {
    if (Contains(quirk.TableName, where)) return Format(kind.empty() ? "%s%s" : "%s, %s", kind, where);
  }
  return std::string(kind);
}

void PlaceQuirks(PageFlow& flow, const CharacterSheet& sheet) {
  const TableShape table(flow.Canvas(),
                         {{"quirk or flaw", 6, Align::Left},
                          {"times", 0.7, Align::Center, true},
                          {"kind", 1.8, Align::Left, false, Ink::Text},
                          {"book", 0.7, Align::Center, false, Ink::Text},
                          {"what it does", 4}},
                         flow.Width());
  std::vector<Piece> rows;
  for (int row = 0; row < kQuirkRows; ++row) {
    const int count = sheet.QuirkCounts[static_cast<std::size_t>(row)];
    const std::string name(TrimRight(ShownQuirkName(row)));
    if (count <= 0 || name.empty()) continue;
    rows.push_back(table.Row(
        {name, count > 1 ? Format("x%i", count) : "", KindOf(QuirkAt(row)), std::string(QuirkAt(row).Source)}));
  }
  PlaceSection(flow, "Quirks and flaws", table, std::move(rows), 1, 3);
}

/// A tattoo's line reads "Ardkrin, Left Upper Arm, +1AC ...", with blanks between for the eye and a stray bracket.
void PlaceTattoos(PageFlow& flow, const SheetContent& content) {
  const auto tattoos = FactsOf(FindBlock(content, "Pixie Fairy Tattoos"));
  if (tattoos.empty()) return;
  const TableShape table(flow.Canvas(),
                         {{"tattoo", 1, Align::Left, true}, {"place", 1.3, Align::Left}, {"effect", 3, Align::Left}},
                         flow.Width());
  std::vector<Piece> rows;
  for (const auto& [line, nothing] : tattoos) {
    std::vector<std::string> cells;
    for (std::size_t at = line.starts_with('>') ? 1 : 0; at < line.size();) {
      const std::size_t comma = cells.size() < 2 ? line.find(',', at) : line.size();
      const std::size_t end = std::min(comma, line.size());
      cells.push_back(line.substr(at, end - at));
      at = std::min(line.find_first_not_of(' ', end + 1), line.size());
    }
    rows.push_back(table.Row(cells));
  }
  PlaceSection(flow, "Tattoos", table, std::move(rows), 1, 0);
}

// ---- What he owns ----

void PlaceCoins(PageFlow& flow, const CharacterSheet& sheet, const SheetContent& content) {
  PdfCanvas& canvas = flow.Canvas();
  const double wide = (flow.Width() - 5 * 6) / 6;
  std::vector<std::pair<double, Piece>> now;
  std::vector<std::pair<double, Piece>> later;
  double x = 0;
  for (const Coin& coin : kCoins) {
    now.emplace_back(x, NumberBox(canvas, coin.Name, Format("%i", sheet.*coin.Count), wide));
    later.emplace_back(x, Stack({RuledLine(canvas, wide), RuledLine(canvas, wide)}));
    x += wide + 6;
  }
  flow.Place(
      Stack({Heading(canvas, "Coins", flow.Width()), Space(4), Beside(std::move(now)), Beside(std::move(later))}),
      kSectionGap);

  const TableShape table(canvas, {{"inheritance and debts", 1, Align::Left, false, Ink::Text}, {"", 3, Align::Left}},
                         flow.Width());
  std::vector<Piece> rows;
  for (const SheetBlock& block : content.Blocks) {
    if (!block.Title.empty() || block.Shape != SheetShape::LongFacts) continue;
    for (const auto& [label, value] : FactsOf(&block)) rows.push_back(table.Row({label, value}));
  }
  for (int i = 0; i < 2; ++i) rows.push_back(table.Row({}));
  flow.PlaceInColumns(rows, 1, table.Head());
  flow.Place(Space(kSectionGap));
}

constexpr double kStoryRoom = 150;  ///< the least that family and notes begin in

void PlaceGoodsTable(PageFlow& flow, const Game& game) {
  constexpr int kColumns = 2;
  PdfCanvas& canvas = flow.Canvas();
  const double width = flow.ColumnWidth(kColumns);
  const TableShape table(canvas,
                         {{"goods", 5, Align::Left},
                          {"number", 0.9, Align::Center, true},
                          {"lbs each", 1.2, Align::Right},
                          {"lbs all", 1.3, Align::Right}},
                         width);
  std::vector<Piece> rows;
  for (int category = 1; category <= static_cast<int>(EquipmentCategories.size()); ++category) {
    bool isFirst = true;
    for (const auto* list : {&game.EquipmentTable, &game.CustomEquipmentTable}) {
      for (const EquipmentRecord& good : *list) {
        if (good.Quantity < 1 || good.Category != category) continue;
        if (isFirst) rows.push_back(SubHeading(canvas, EquipmentCategoryName(category), width));
        isFirst = false;
        rows.push_back(
            table.Row({OneLine(TrimRight(good.Name)), Format("%i", good.Quantity), Format("%.2f", good.Weight),
                       Format("%.2f", static_cast<double>(good.Weight) * good.Quantity)}));
      }
    }
  }
  // Room for what is found; all that is left of the page if the next part does not begin on it.
  constexpr double kHeads = 45;
  const int few = rows.empty() ? 20 : 12;
  const double rowsHigh = (flow.Room() - kHeads) / kRowHeight;
  const int left = kColumns * static_cast<int>(rowsHigh) - static_cast<int>(rows.size());
  constexpr int kEnough = 4;
  const bool isLast = left >= kEnough && left - few <= kColumns * kStoryRoom / kRowHeight;
  const int blanks = isLast ? left : few;
  rows.push_back(SubHeading(canvas, "Found and bought since", width));
  rows.back().Title.clear();  // rows to fill in need no telling
  PlaceSection(flow, "Goods", table, std::move(rows), kColumns, blanks);
}

// ---- Where he comes from ----

/// The lines of a text one by one: it may be longer than a page. Of blank lines in a row one remains.
void PlaceText(PageFlow& flow, const Piece& title, std::string text) {
  constexpr double kLineGap = 1.5;
  constexpr double kBlankLine = 9;
  PdfCanvas& canvas = flow.Canvas();
  std::erase(text, '\r');
  std::vector<Piece> lines;
  bool wasBlank = true;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    const LaidText laid =
        canvas.Lay(TrimRight(std::string_view(text).substr(at, end - at)), {8, false, Ink::Blue}, flow.Width());
    for (int line = 0; line < laid.Lines(); ++line) {
      const double height = canvas.LineHeight(laid, line) + kLineGap;
      lines.push_back({height, [&canvas, laid, line](double x, double y) { canvas.DrawLine(laid, line, x, y); }});
    }
    const bool isBlank = laid.Lines() == 0;
    if (isBlank && !wasBlank) lines.push_back(Space(kBlankLine));
    wasBlank = isBlank;
    at = end + 1;
  }
  flow.PlaceInColumns(lines, 1, {}, title);
}

void PlaceFacts(PageFlow& flow, const SheetBlock& block) {
  const TableShape table(flow.Canvas(), {{"", 1.1, Align::Left, false, Ink::Text}, {"", 3, Align::Left}}, flow.Width());
  std::vector<Piece> rows;
  for (const auto& [label, value] : FactsOf(&block)) rows.push_back(table.Row({label, value}));
  if (rows.empty()) return;
  flow.PlaceInColumns(rows, 1, {}, Heading(flow.Canvas(), SentenceCase(block.Title), flow.Width()));
  flow.Place(Space(kSectionGap));
}

}  // namespace

void PlaceAccomplishments(PageFlow& flow, const Game& game, const SheetContent& content) {
  constexpr double kTooLittle = 300;
  if (flow.Room() < kTooLittle) flow.NextPage();
  PlaceSkills(flow, game.sheet);
  PlaceTalents(flow, game.sheet);
  PlaceProficiencies(flow, content);
  PlaceTattoos(flow, content);
  PlaceQuirks(flow, game.sheet);
}

void PlaceGoods(PageFlow& flow, const Game& game, const SheetContent& content) {
  constexpr double kTooLittle = 230;
  if (flow.Room() < kTooLittle) flow.NextPage();
  PlaceCoins(flow, game.sheet, content);
  PlaceGoodsTable(flow, game);
}

void PlaceStory(PageFlow& flow, const SheetContent& content) {
  if (flow.Room() < kStoryRoom) flow.NextPage();
  for (const SheetBlock& block : content.Blocks) {
    const bool isTold = block.Shape == SheetShape::LongFacts && !block.Title.empty();
    if (isTold) PlaceFacts(flow, block);
  }
  const Piece title = Heading(flow.Canvas(), "Notes", flow.Width());
  const SheetBlock* notes = FindBlock(content, "Notes");
  PlaceText(flow, title, notes && !notes->Facts.empty() ? notes->Facts.front().Value : "");
  constexpr double kPitch = 18;
  while (flow.Room() >= kPitch) flow.Place(RuledLine(flow.Canvas(), flow.Width(), kPitch));
}

void PlaceLog(PageFlow& flow) {
  flow.NextPage();
  PdfCanvas& canvas = flow.Canvas();
  const TableShape table(canvas,
                         {{"date", 1.2, Align::Left},
                          {"what it was for", 5, Align::Left},
                          {"Honor +/-", 1},
                          {"Honor", 1},
                          {"experience +", 1.3},
                          {"experience", 1.5}},
                         flow.Width());
  flow.Place(Heading(canvas, "Honor and experience log", flow.Width()));
  flow.Place(table.Head());
  const Piece row = RuledLine(canvas, flow.Width(), 18);
  while (flow.Room() >= row.Height) flow.Place(row);
}

}  // namespace veld
