#include "print/table_page.h"

#include <algorithm>
#include <cmath>

#include "rules/ability.h"
#include "sheets/sheet_facts.h"
#include "sheets/sheet_view.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr double kGap = 5;  ///< between the parts of the page

/// A row as a table takes it.
std::vector<std::string> Cells(const SheetRow& row) {
  std::vector<std::string> cells{row.Head};
  cells.insert(cells.end(), row.Cells.begin(), row.Cells.end());
  return cells;
}

// ---- Who it is ----

// The page has eight columns; what stands on it is some of them wide.
constexpr int kColumns = 8;

double ColumnsWide(double width, int columns) {
  return (width + kGutter) / kColumns * columns - kGutter;
}

/// Fields side by side, each so many columns wide.
Piece FieldRow(PdfCanvas& canvas, const SheetContent& content, double width,
               const std::vector<std::pair<std::string_view, int>>& labels) {
  std::vector<std::pair<double, Piece>> fields;
  double x = 0;
  for (const auto& [label, columns] : labels) {
    const double wide = ColumnsWide(width, columns);
    fields.emplace_back(x, Field(canvas, label, KnownFact(content, label), wide));
    x += wide + kGutter;
  }
  return Beside(std::move(fields));
}

Piece WhoItIs(PdfCanvas& canvas, const SheetContent& content, double width) {
  const std::string known = KnownFact(content, "Name");
  const bool isNamed = !known.empty();
  const LaidText name =
      isNamed ? canvas.LayFitting(known, {19, true, Ink::Blue}, 11, width) : canvas.Lay("Name", {kSmallSize});
  const double height = std::max(name.Height(), isNamed ? 0.0 : 24.0);
  const Piece title{height + 2, [&canvas, name, isNamed, width, height](double x, double y) {
                      canvas.Draw(name, x, isNamed ? y : y + 2);
                      canvas.Line(x, y + height + 0.5, x + width, y + height + 0.5, Ink::Blue, 1.2);
                    }};
  return Stack({title, FieldRow(canvas, content, width, {{"Race", 2}, {"Class", 4}, {"Player", 2}}),
                FieldRow(canvas, content, width,
                         {{"Sex", 1},
                          {"Age", 1},
                          {"Height", 1},
                          {"Weight", 1},
                          {"Hair", 1},
                          {"Eyes", 1},
                          {"Handedness", 1},
                          {"Alignment", 1}}),
                FieldRow(canvas, content, width,
                         {{"Social Class", 2}, {"Family/Clan", 2}, {"Homeland", 2}, {"Birth Date", 1}, {"Fame", 1}}),
                FieldRow(canvas, content, width, {{"Liege/Patron", 2}, {"Patron Gawd", 2}, {"Appearance", 4}})});
}

// ---- Abilities and saving throws ----

Piece AbilityBox(PdfCanvas& canvas, const SheetRow& row, std::string_view shortName, double width) {
  constexpr double kScoreWidth = 52;
  constexpr double kNameWidth = 29;
  constexpr double kLeast = 22.5;
  const std::string& score = row.Cells.empty() ? std::string{} : row.Cells.front();
  const std::size_t slash = score.find('/');
  const TextRun scoreRuns[] = {{score.substr(0, slash), true, Ink::Blue},
                               {slash == std::string::npos ? "" : score.substr(slash), false, Ink::Blue}};
  TextStyle scoreStyle{11, false, Ink::Blue, Align::Center};
  const double needed = canvas.Lay(scoreRuns, scoreStyle).Width();
  if (needed > kScoreWidth - 2) scoreStyle.Size = std::max(5.0, scoreStyle.Size * (kScoreWidth - 2) / needed);
  const LaidText number = canvas.Lay(scoreRuns, scoreStyle, kScoreWidth - 2);
  const LaidText name = canvas.Lay(shortName, {8.8, true}, kNameWidth);

  std::vector<TextRun> effects;
  for (const auto& [label, value] : row.Effects) {
    if (TrimRight(value).empty()) continue;
    // Label and value stay together where a line ends.
    std::string joined = Format("%s\u00A0", label);
    for (std::size_t blank; label.size() < 20 && (blank = joined.find(' ')) != std::string::npos;) {
      joined.replace(blank, 1, "\u00A0");
    }
    effects.push_back({joined, false, Ink::Text});
    effects.push_back({std::string(TrimRight(value)), true, Ink::Blue});
    effects.push_back({"    ", false, Ink::Text});
  }
  if (!effects.empty()) effects.pop_back();
  const double effectsAt = kNameWidth + kScoreWidth + 6;
  const LaidText told = canvas.Lay(effects, {7.2}, width - effectsAt - 2);
  const double height = std::max(kLeast, std::max(told.Height(), number.Height()) + 4);
  return {height + 2.5, [&canvas, number, name, told, effectsAt, width, height](double x, double y) {
            canvas.Box(x, y, width, height);
            canvas.Box(x + kNameWidth, y, kScoreWidth, height);
            canvas.Draw(name, x + 4, y + (height - name.Height()) / 2);
            canvas.Draw(number, x + kNameWidth + 1, y + (height - number.Height()) / 2);
            canvas.Draw(told, x + effectsAt, y + (height - told.Height()) / 2);
          }};
}

Piece Abilities(PdfCanvas& canvas, const SheetContent& content, double width) {
  std::vector<Piece> pieces{Heading(canvas, "Abilities", width), Space(3)};
  std::size_t ability = 0;
  for (const SheetRow& row : RowsOf(FindBlock(content, "Ability Scores"))) {
    const std::string_view name = ability < kAbilityShortNames.size() ? kAbilityShortNames[ability] : row.Head;
    pieces.push_back(AbilityBox(canvas, row, name, width));
    ++ability;
  }
  return Stack(std::move(pieces));
}

/// The saving throws, each number in a box beside an empty one for what changes it; as high as the abilities are.
Piece Saves(PdfCanvas& canvas, const SheetContent& content, double width, double height) {
  const auto facts = FactsOf(FindBlock(content, "Saving Throws"));
  const Piece heading = Heading(canvas, "Saving throws", width);
  const double pitch = std::max(13.0, (height - heading.Height - 3) / static_cast<double>(facts.size()));
  std::vector<Piece> pieces{heading, Space(3)};
  for (const auto& [label, value] : facts) {
    constexpr double kBox = 24;
    const LaidText name = canvas.Lay(label, {kTextSize}, width - 2 * kBox - 8);
    const bool isNone = value == Format("%i", kNoSave);
    const LaidText number = canvas.Lay(isNone ? "" : value, {8.5, true, Ink::Blue, Align::Center}, kBox);
    pieces.push_back({pitch, [&canvas, name, number, width, pitch](double x, double y) {
                        const double box = pitch - 2.5;
                        canvas.Draw(name, x, y + (box - name.Height()) / 2);
                        canvas.Box(x + width - 2 * kBox - 3, y, kBox, box);
                        canvas.Box(x + width - kBox, y, kBox, box);
                        canvas.Draw(number, x + width - 2 * kBox - 3, y + (box - number.Height()) / 2);
                      }});
  }
  return Stack(std::move(pieces));
}

// ---- Hit points and armor ----

Piece HitPoints(PdfCanvas& canvas, const SheetContent& content, const CharacterSheet& sheet, double width) {
  constexpr double kBoxWidth = 46;
  constexpr double kTicksAt = kBoxWidth + 8;
  const auto [boxes, each] = HitPointBoxes(sheet.HitPoints);
  const std::string told = each == 1 ? "tick what is lost" : Format("tick what is lost; a box is %i hit points", each);
  const double ticksWidth = width - kTicksAt;
  const Piece ticks =
      Stack({TickBoxes(canvas, boxes, ticksWidth, boxes > 60 ? 6.5 : 7.5), Remark(canvas, told, ticksWidth)});
  const std::string value = sheet.HitPoints == 0 ? "" : ValueOf(FindBlock(content, "Ability Scores"), "Hit Points");
  return Stack({Heading(canvas, "Hit points", width), Space(4),
                Beside({{0, NumberBox(canvas, "hit points", value, kBoxWidth)}, {kTicksAt, ticks}})});
}

/// For the pencil: what is worn changes from day to day, and is worn out.
Piece Armor(PdfCanvas& canvas, double width) {
  constexpr double kBoxWidth = 46;
  constexpr int kTicks = 10;
  const double half = (width - kBoxWidth - 2 * kGutter) / 2;
  std::vector<std::pair<double, Piece>> parts{{0, NumberBox(canvas, "armor class", "", kBoxWidth)}};
  double x = kBoxWidth + kGutter;
  for (const std::string_view worn : {"Armor worn, its hit points", "Shield, its hit points"}) {
    parts.emplace_back(x, Stack({Field(canvas, worn, "", half), Space(3), TickBoxes(canvas, kTicks, half, 6.5)}));
    x += half + kGutter;
  }
  return Stack({Heading(canvas, "Armor and shield", width), Space(4), Beside(std::move(parts))});
}

// ---- Weapons ----

std::vector<TableColumn> WeaponColumns() {
  return {{"weapon", 4.6, Align::Left, true},
          {"hit", 1.1},
          {"damage", 1.3},
          {"speed, rate", 1.3},
          {"type", 1},
          {"tiny", 1.35},
          {"small", 1.35},
          {"medium", 1.35},
          {"large", 1.35},
          {"huge", 1.35},
          {"gargantuan", 1.45},
          {"BSL", 1}};
}

std::vector<Piece> WeaponRows(const TableShape& table, const SheetContent& content) {
  std::vector<Piece> pieces;
  for (const std::string_view title : {"Melee Weapons", "Missile Weapons"}) {
    for (const SheetRow& row : RowsOf(FindBlock(content, title))) {
      pieces.push_back(table.Row(Cells(row)));
    }
  }
  return pieces;
}

// ---- Movement, Honor, experience ----

Piece Movement(PdfCanvas& canvas, const SheetContent& content, const CharacterSheet& sheet, double width) {
  const SheetBlock* block = FindBlock(content, "Movement and Encumbrance");
  TableShape table(canvas,
                   {{"", 1.9, Align::Left, false, Ink::Text},
                    {"unencumbered", 1.4},
                    {"light", 1},
                    {"moderate", 1},
                    {"heavy", 1},
                    {"severe", 1}},
                   width);
  table.Mark(PresentLoad(sheet));
  std::vector<Piece> pieces{Heading(canvas, "Movement by load", width), table.Head()};
  for (const SheetRow& row : RowsOf(block)) {
    pieces.push_back(table.Row(Cells(row)));
  }
  const std::string most = Format("%i", EncumbranceLimits(sheet).back());
  pieces.push_back(Remark(
      canvas, Format("marked is the load now: %s are carried; the most is %s lbs", ValueOf(block, "Carried"), most),
      width));
  return Stack(std::move(pieces));
}

Piece Honor(PdfCanvas& canvas, const CharacterSheet& sheet, double width) {
  constexpr double kBox = 40;
  constexpr int kTrack = 20;
  const double besides = width - kBox - 8;
  // "Great Honor d4+1": the die has a field of its own.
  const std::string category = OneLine(sheet.HonorCategory);
  const std::size_t die = std::min(category.rfind(" d"), category.size());
  const double half = (besides - kGutter) / 2;
  const Piece fields =
      Stack({Beside({{0, Field(canvas, "Category", category.substr(0, die), half * 1.35)},
                     {half * 1.35 + kGutter,
                      Field(canvas, "Honor die", category.substr(std::min(die + 1, category.size())), half * 0.65)}}),
             Space(4), TickBoxes(canvas, kTrack, besides), Remark(canvas, "tick what is spent", besides)});
  const std::string honor = category.empty() && sheet.Honor == 0 ? "" : Format("%i", sheet.Honor);
  return Stack({Heading(canvas, "Honor", width), Space(4),
                Beside({{0, NumberBox(canvas, "Honor", honor, kBox)}, {kBox + 8, fields}})});
}

TableShape ExperienceShape(PdfCanvas& canvas, double width) {
  return TableShape(
      canvas,
      {{"class", 2.4, Align::Left, true}, {"level", 0.8}, {"experience", 1.5}, {"next level", 1.5}, {"now", 1.8}},
      width);
}

std::vector<Piece> ExperienceRows(const TableShape& table, const SheetContent& content) {
  std::vector<Piece> pieces;
  for (const SheetRow& row : RowsOf(FindBlock(content, "Classes"))) pieces.push_back(table.Row(Cells(row)));
  return pieces;
}

constexpr std::size_t kClassesOnPage = 6;  ///< nobody has more by the rules

Piece Experience(PdfCanvas& canvas, const SheetContent& content, double width) {
  const TableShape table = ExperienceShape(canvas, width);
  std::vector<Piece> rows = ExperienceRows(table, content);
  rows.resize(std::clamp<std::size_t>(rows.size(), 2, kClassesOnPage), table.Row({}));
  rows.insert(rows.begin(), {Heading(canvas, "Experience", width), table.Head()});
  return Stack(std::move(rows));
}

// ---- What the class brings ----

Piece ClassAbilities(PdfCanvas& canvas, const SheetBlock& block, double width) {
  const TableShape table(canvas,
                         {{"percent", 2.6, Align::Left, false, Ink::Text},
                          {"base", 0.7, Align::Center, true},
                          {"no armor", 0.95},
                          {"elven chain", 1.15},
                          {"studded, ring, padded", 1.45},
                          {"now", 0.75}},
                         width);
  std::vector<Piece> pieces{Heading(canvas, SentenceCase(block.Title), width), table.Head()};
  for (const SheetRow& row : RowsOf(&block)) {
    pieces.push_back(table.Row(Cells(row)));
  }
  return Stack(std::move(pieces));
}

Piece RuledPart(PdfCanvas& canvas, std::string_view title, double width, double height) {
  std::vector<Piece> pieces{Heading(canvas, title, width)};
  const double lines = std::floor((height - pieces.front().Height) / (kRowHeight + 3));
  for (int i = 0; i < static_cast<int>(lines); ++i) pieces.push_back(RuledLine(canvas, width));
  return Stack(std::move(pieces));
}

/// A table of wounds to fill in.
Piece Wounds(PdfCanvas& canvas, double width, double height) {
  const double pitch = kRowHeight + 3;
  const TableShape table(canvas, {{"wound or condition", 3, Align::Left}, {"points", 1}, {"day", 1}, {"healed", 1}},
                         width);
  std::vector<Piece> pieces{Heading(canvas, "Wounds and conditions", width), table.Head()};
  for (double used = pieces[0].Height + pieces[1].Height; used + pitch <= height; used += pitch) {
    pieces.push_back(RuledLine(canvas, width, pitch));
  }
  return Stack(std::move(pieces));
}

/// Turning is the referee's table: the level is for the pencil, and what a seminary changed of it is told.
Piece Turning(PdfCanvas& canvas, const CharacterSheet& sheet, double width) {
  constexpr double kLevel = 70;
  const std::string taught = OneLine(sheet.EducationResults);
  const bool isTold = sheet.UsesClericBackground == 1 && Contains(taught, "turn undead");
  return Stack(
      {Heading(canvas, "Turning undead", width),
       Beside({{0, Field(canvas, "Turns as level", "", kLevel)},
               {kLevel + kGutter, Field(canvas, "What changes it", isTold ? taught : "", width - kLevel - kGutter)}})});
}

/// How many spells of each level a mage may have in memory.
Piece SpellsADay(PdfCanvas& canvas, const Game& game, double width) {
  constexpr double kBetween = 3;
  constexpr double kLevels = 9;
  const double wide = (width - (kLevels - 1) * kBetween) / kLevels;
  std::vector<std::pair<double, Piece>> boxes;
  for (const int slots : game.run.SpellsPerLevel) {
    const std::string label = Format("level %i", boxes.size() + 1);
    const double x = static_cast<double>(boxes.size()) * (wide + kBetween);
    boxes.emplace_back(x, NumberBox(canvas, label, slots > 0 ? Format("%i", slots) : "", wide));
  }
  return Stack({Heading(canvas, "Spells a day", width), Space(4), Beside(std::move(boxes))});
}

/// The parts beneath the weapons, in pairs. The table of wounds takes the room beside the abilities of a class; it is
/// at least so high, or left out where that has less room and `leastWounds` is 0.
std::vector<Piece> LowerParts(PdfCanvas& canvas, const Game& game, const SheetContent& content, double width,
                              double leastWounds) {
  const double half = (width - kGutter) / 2;
  const CharacterSheet& sheet = game.sheet;
  std::vector<Piece> parts{Movement(canvas, content, sheet, half), Honor(canvas, sheet, half)};
  std::vector<Piece> callings;
  for (const SheetBlock& block : content.Blocks) {
    const bool isPercentile = block.Columns.size() == 5 && block.Columns[1] == "Base";
    if (isPercentile) callings.push_back(ClassAbilities(canvas, block, half));
  }
  std::vector<Piece> besides{Experience(canvas, content, half)};
  if (sheet.IsClericClass == 1) {
    besides.push_back(Space(kGap));
    besides.push_back(Turning(canvas, sheet, half));
  }
  if (IsShownAsMage(sheet)) {
    besides.push_back(Space(kGap));
    besides.push_back(SpellsADay(canvas, game, half));
  }
  Piece experience = Stack(besides);
  constexpr double kWorthIt = 38;
  if (callings.empty()) {
    callings.push_back(Wounds(canvas, half, std::max(experience.Height, 74.0)));
  } else if (const double under = std::max(callings.front().Height - experience.Height - kGap, leastWounds);
             under > kWorthIt) {
    experience = Stack({experience, Space(kGap), Wounds(canvas, half, under)});
  }
  while (callings.front().Height + kRowHeight <= experience.Height) {
    callings.front() = Stack({callings.front(), RuledLine(canvas, half, kRowHeight)});
  }
  parts.push_back(callings.front());
  parts.push_back(experience);
  parts.insert(parts.end(), callings.begin() + 1, callings.end());
  std::vector<Piece> rows;
  for (std::size_t i = 0; i < parts.size(); i += 2) {
    const bool isPair = i + 1 < parts.size();
    rows.push_back(isPair ? Beside({{0, parts[i]}, {half + kGutter, parts[i + 1]}}) : parts[i]);
  }
  return rows;
}

}  // namespace

std::string KnownFact(const SheetContent& content, std::string_view label) {
  constexpr std::string_view kNotYet[] = {"name", "Unknown", "Please Pick", "0", "0 inches", "0 lbs"};
  std::string value = OneLine(TrimRight(ValueOf(FindBlock(content, "Character Information"), label)));
  return std::ranges::find(kNotYet, value) == std::end(kNotYet) ? value : std::string{};
}

void PlaceTablePage(PageFlow& flow, const Game& game, const SheetContent& content) {
  PdfCanvas& canvas = flow.Canvas();
  const double width = flow.Width();
  const double half = ColumnsWide(width, kColumns / 2);
  const double savesWidth = ColumnsWide(width, 2);
  const double abilitiesWidth = ColumnsWide(width, kColumns - 2);
  flow.Place(WhoItIs(canvas, content, width), kGap);
  const Piece abilities = Abilities(canvas, content, abilitiesWidth);
  flow.Place(Beside({{0, abilities}, {abilitiesWidth + kGutter, Saves(canvas, content, savesWidth, abilities.Height)}}),
             kGap - 2);
  flow.Place(Beside({{0, HitPoints(canvas, content, game.sheet, half)}, {half + kGutter, Armor(canvas, half)}}), kGap);

  constexpr double kWounds = 72;
  constexpr double kFewWeapons = 80;
  const auto heightOf = [](const std::vector<Piece>& pieces) {
    double height = 0;
    for (const Piece& piece : pieces) height += piece.Height + kGap;
    return height;
  };
  std::vector<Piece> lower = LowerParts(canvas, game, content, width, kWounds);
  if (heightOf(lower) + kFewWeapons > flow.Room()) lower = LowerParts(canvas, game, content, width, 0);

  // The weapons take the room between; blank rows fill it, and what is left over is for notes.
  const TableShape table(canvas, WeaponColumns(), width);
  const Piece heading = Heading(canvas, "Weapons", width);
  const Piece head = table.Head();
  const std::vector<Piece> rows = WeaponRows(table, content);
  constexpr std::size_t kLeastRows = 4;
  constexpr std::size_t kBlankRows = 3;
  double room = flow.Room() - heightOf(lower) - heading.Height - head.Height - kGap;
  std::vector<Piece> weapons{heading, head};
  std::size_t shown = 0;
  for (; shown < rows.size() && (rows[shown].Height <= room || shown < kLeastRows); ++shown) {
    weapons.push_back(rows[shown]);
    room -= rows[shown].Height;
  }
  constexpr double kNotes = 47;  // the least that lines for notes are worth; less than that goes to the blank rows
  for (std::size_t blanks = 0; shown == rows.size() && room >= kRowHeight; ++blanks) {
    if (blanks >= kBlankRows && room > kNotes) break;
    weapons.push_back(table.Row({}));
    room -= kRowHeight;
  }
  flow.Place(Stack(std::move(weapons)), kGap);
  for (const Piece& piece : lower) flow.Place(piece, kGap);
  if (flow.Room() > kNotes) flow.Place(RuledPart(canvas, "Notes", width, flow.Room()));
  const TableShape classes = ExperienceShape(canvas, width);
  const std::vector<Piece> levels = ExperienceRows(classes, content);
  if (levels.size() > kClassesOnPage) {
    flow.PlaceInColumns(std::span(levels).subspan(kClassesOnPage), 1, classes.Head(),
                        Heading(canvas, "Experience, continued", width));
    flow.Place(Space(kGap));
  }
  if (shown < rows.size()) {
    flow.PlaceInColumns(std::span(rows).subspan(shown), 1, head, Heading(canvas, "Weapons, continued", width));
    flow.Place(Space(kGap));
  }
}

}  // namespace veld
