#include "sheets/html_sheet.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>
#include <vector>

#include "sheets/sheet_content.h"
#include "sheets/sheet_facts.h"
#include "sheets/sheet_view.h"
#include "text/format.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace {

// A page for A4 and Letter alike, in the colours of the sheet on paper: no width is fixed, words longer than their
// place are broken, wide tables scroll on a phone. The first page stands side by side where there is room for that;
// what is marked is marked by its weight and by words too, for a printer without colours.
constexpr std::string_view kStyle = R"(
:root { --text: #1f2126; --ink: #1c3d86; --edge: #6b7a99; --rule: #c3cee0; --wash: #dfe8f7; }
* { box-sizing: border-box; }
body { margin: 0 auto; padding: 1rem; max-width: 60rem; background: #fff; color: var(--text);
  font: 0.95rem/1.45 "Liberation Sans", Arial, Helvetica, sans-serif; overflow-wrap: anywhere; }
header { border-bottom: 2px solid var(--ink); }
h1 { margin: 0; font-size: 1.7rem; line-height: 1.2; color: var(--ink); }
h2 { margin: 1.1rem 0 0.3rem; padding-bottom: 0.1rem; border-bottom: 1.5px solid var(--ink);
  font-size: 1.1rem; color: var(--ink); }
h3 { margin: 0.8rem 0 0.2rem; font-size: 0.95rem; border-bottom: 1px solid var(--edge); }
h2, h3, caption { break-after: avoid; }
p { margin: 0.2rem 0; }
.remark { font-size: 0.85em; }
dl { margin: 0; display: grid; column-gap: 1.2rem;
  grid-template-columns: repeat(auto-fill, minmax(min(13rem, 100%), 1fr)); }
dl.long { grid-template-columns: 1fr; }
dl div { display: flex; gap: 0.5rem; border-bottom: 1px solid var(--rule); break-inside: avoid; }
dt { flex: none; max-width: 60%; }
dd { margin: 0; font-weight: 600; min-width: 0; color: var(--ink); }
ul { margin: 0; padding: 0; list-style: none; columns: 14rem; column-gap: 1.2rem; }
ul.wide { columns: 1; }
li { border-bottom: 1px solid var(--rule); break-inside: avoid; display: flex; gap: 0.5rem; color: var(--ink); }
li b { margin-left: auto; white-space: nowrap; }
.boxes { letter-spacing: 0.1em; white-space: nowrap; }
.points { display: flex; gap: 0.8rem; align-items: flex-start; }
.points > b { flex: none; min-width: 3.2rem; padding: 0.3rem; border: 1px solid var(--edge); text-align: center;
  font-size: 1.5rem; line-height: 1.2; color: var(--ink); min-height: 2.5rem; }
.ticks { display: flex; flex-wrap: wrap; gap: 0.2rem 0.45rem; }
dd .ticks { padding: 0.2rem 0; }
.ticks span { display: inline-flex; gap: 0.14rem; }
.ticks i { width: 0.6rem; height: 0.6rem; border: 1px solid var(--edge); }
.scroll { overflow-x: auto; }
table { width: 100%; border-collapse: collapse; }
th, td { padding: 0.05rem 0.4rem; border-bottom: 1px solid var(--rule); text-align: center; white-space: nowrap; }
td { color: var(--ink); }
thead th { font-weight: 400; font-size: 0.9em; vertical-align: bottom; border-color: var(--edge); white-space: normal;
  overflow-wrap: break-word; }
tbody th { text-align: left; font-weight: 600; color: var(--ink); white-space: normal;
  overflow-wrap: break-word; }
td.text, th.text { text-align: left; white-space: normal; overflow-wrap: break-word; }
th.level { padding-top: 0.5rem; color: var(--text); border-color: var(--edge); }
th.level .ticks { display: inline-flex; margin-left: 1rem; }
.effects { color: var(--text); }
.effects b { color: var(--ink); }
.now { background: var(--wash); font-weight: 700; }
.blank td { height: 1.4em; }
tr > :first-child { padding-left: 0; }
tr { break-inside: avoid; }
thead { display: table-header-group; }
.spells { font-size: 0.88em; }
.spells td { white-space: normal; overflow-wrap: break-word; }
.notes { white-space: pre-wrap; color: var(--ink); }
.short { break-inside: avoid; }
@media (min-width: 48rem), print {
  .first { display: grid; grid-template-columns: repeat(8, minmax(0, 1fr)); column-gap: 1rem; align-items: start; }
  .first > * { grid-column: span 4; }
  .first > .whole { grid-column: 1 / -1; }
  .first > .abilities { grid-column: 1 / 7; grid-row: 2; }
  .first > .saves { grid-column: 7 / 9; grid-row: 2; }
  .first > .hit-points { grid-column: 1 / 5; grid-row: 3; }
  .first > .armor { grid-column: 5 / 9; grid-row: 3; }
  .who dl { grid-template-columns: repeat(4, minmax(0, 1fr)); }
  .saves dl { grid-template-columns: 1fr; }
  .saves dd, .armor .ticks { margin-left: auto; }
  .armor dd { flex: 1; }
}
@page { margin: 10mm 11mm 12mm 18mm; }
@media print {
  :root { --rule: #6b7a99; }
  body { padding: 0; max-width: none; font-size: 8.2pt; line-height: 1.22; }
  h1 { font-size: 15pt; }
  h2 { margin: 0.55rem 0 0.15rem; font-size: 9.5pt; }
  h3 { margin: 0.5rem 0 0.1rem; font-size: 8.6pt; }
  dl { column-gap: 0.7rem; }
  ul { columns: 3; }
  .points > b { font-size: 12pt; }
  .scroll { overflow: visible; }
  th, td { padding: 0 0.2rem; }
  tr > :first-child { padding-left: 0; }
  .first { break-after: page; }
}
)";

/// What typed text may stand in markup: nothing in it is markup any more.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : DisplayText(text)) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      case '\'':
        escaped += "&#39;";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

/// The page in the making. All texts that are given to it are escaped, but those that say that they are markup.
class Page {
 public:
  void Raw(std::string_view markup) { html_ += markup; }
  void Text(std::string_view text) { html_ += Escaped(text); }
  void Element(std::string_view tag, std::string_view text) {
    html_ += Format("<%s>", tag);
    Text(text);
    html_ += Format("</%s>\n", tag.substr(0, tag.find(' ')));
  }

  /// A section with its heading, of style classes; it ends where the next begins.
  void Open(std::string_view heading, std::string_view classes = {}) {
    Close();
    html_ += classes.empty() ? "<section>\n" : Format("<section class=\"%s\">\n", classes);
    Element("h2", heading);
    isOpen_ = true;
  }
  void Close() {
    if (isOpen_) Raw("</section>\n");
    isOpen_ = false;
  }

  void Fact(std::string_view label, std::string_view value, int ticks = 0) {
    Raw("<div><dt>");
    Text(label);
    Raw("</dt><dd>");
    Text(value);
    if (ticks > 0) Ticks(ticks);
    Raw("</dd></div>\n");
  }

  /// Boxes to tick, in fives.
  void Ticks(int count) {
    constexpr int kFive = 5;
    Raw("<span class=\"ticks\" aria-hidden=\"true\">");
    for (int done = 0; done < count; done += kFive) {
      Raw("<span>");
      for (int i = 0; i < std::min(kFive, count - done); ++i) Raw("<i></i>");
      Raw("</span>");
    }
    Raw("</span>");
  }

  /// The heads of a table. The first column is one of texts, as is that of the name; the marked one is told as such.
  void OpenTable(std::span<const std::string_view> heads, std::string_view textColumn = {}, std::size_t marked = 0,
                 std::string_view classes = {}) {
    Raw("<div class=\"scroll\">");
    html_ += classes.empty() ? "<table>" : Format("<table class=\"%s\">", classes);
    Raw("\n<thead><tr>");
    for (std::size_t i = 0; i < heads.size(); ++i) {
      const bool isText = i == 0 || (!heads[i].empty() && heads[i] == textColumn);
      Raw(isText                ? "<th scope=\"col\" class=\"text\">"
          : IsMarked(i, marked) ? "<th scope=\"col\" class=\"now\">"
                                : "<th scope=\"col\">");
      Text(heads[i]);
      Raw("</th>");
    }
    Raw("</tr></thead>\n<tbody>\n");
  }
  void OpenRow(std::string_view head) {
    Raw("<tr><th scope=\"row\">");
    Text(head);
    Raw("</th>");
  }
  void Cell(std::string_view text, bool isMarked = false) {
    Raw(isMarked ? "<td class=\"now\">" : "<td>");
    Text(text);
    Raw("</td>");
  }
  void CloseRow() { Raw("</tr>\n"); }
  /// Rows for the pencil.
  void BlankRows(int rows, std::size_t columns) {
    for (int row = 0; row < rows; ++row) {
      Raw("<tr class=\"blank\">");
      for (std::size_t i = 0; i < columns; ++i) Raw("<td></td>");
      CloseRow();
    }
  }
  void CloseTable() { Raw("</tbody>\n</table></div>\n"); }

  std::string Take() { return std::move(html_); }

  static bool IsMarked(std::size_t column, std::size_t marked) { return marked > 0 && column == marked; }
  static constexpr std::string_view kMemory =
      "<span class=\"boxes\" aria-hidden=\"true\">&#9675;&#9675;&#9675;&#9675;&#9675;</span>";

 private:
  std::string html_;
  bool isOpen_ = false;
};

/// Writes the gathered sheet in the order of the sheet on paper. Whatever block has no place of its own there comes
/// before the spells, so that nothing that is gathered is missing.
class HtmlWriter {
 public:
  explicit HtmlWriter(const Game& game) : game_(game), content_(GatherSheet(game)) {}

  std::string Write() {
    AddHead();
    page_.Raw("<div class=\"first\">\n");
    AddWhoItIs();
    AddAbilities();
    AddPoints();
    AddSaves();
    for (const std::string_view weapons : {"Melee Weapons", "Missile Weapons"}) AddWeapons(weapons);
    AddMovement();
    AddHonor();
    AddClasses();
    page_.Close();
    page_.Raw("</div>\n");
    AddAccomplishments();
    AddGoods();
    AddStory();
    for (const SheetBlock& block : content_.Blocks) {
      if (!IsPlanner(block.Title)) AddBlock(block);
    }
    if (IsShownAsMage(game_.sheet)) AddSpells();
    page_.Close();
    page_.Raw("</main>\n</body>\n</html>\n");
    return page_.Take();
  }

 private:
  static bool IsPlanner(std::string_view title) { return title == "Spell Progression" || title == "Spell Planner"; }

  /// The block of a title, which now has its place; null if there is none.
  const SheetBlock* Take(std::string_view title) {
    const SheetBlock* block = FindBlock(content_, title);
    if (block) placed_.push_back(block);
    return block;
  }
  bool IsPlaced(const SheetBlock& block) const { return std::ranges::find(placed_, &block) != placed_.end(); }

  void AddHead() {
    page_.Raw(
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n");
    page_.Element("title", content_.Name);
    page_.Raw("<style>");
    page_.Raw(kStyle);
    page_.Raw("</style>\n</head>\n<body>\n<header>\n");
    page_.Element("h1", content_.Name);
    page_.Element("p", content_.Subtitle);
    page_.Raw("</header>\n<main>\n");
  }

  // ---- The first page ----

  void AddWhoItIs() {
    const SheetBlock* who = Take("Character Information");
    page_.Open(who->Title, "whole who short");
    page_.Raw("<dl>\n");
    AddFacts(*who);
    page_.Fact("Fame", AbilityFact("Fame"));
    page_.Raw("</dl>\n");
  }

  /// Of those that stand under the abilities: an effect of one has the same name.
  std::string AbilityFact(std::string_view label) const {
    for (const SheetFact& fact : FindBlock(content_, kAbilityBlock)->Facts) {
      if (fact.Form == SheetForm::Fact && fact.Label == label) return fact.Value;
    }
    return {};
  }

  void AddAbilities() {
    const SheetBlock* abilities = Take(kAbilityBlock);
    page_.Open(abilities->Title, "abilities short");
    AddTable(*abilities);
    // What has a place of its own on the page does not stand here once more.
    std::vector<SheetFact> rest;
    std::ranges::copy_if(abilities->Facts, std::back_inserter(rest), [](const SheetFact& fact) {
      const bool isElsewhere = fact.Label == "Honor" || fact.Label == "Fame" || fact.Label == "Hit Points";
      return fact.Form == SheetForm::Fact && !isElsewhere;
    });
    AddFactList({.Shape = SheetShape::Facts, .Facts = std::move(rest)});
  }

  void AddPoints() {
    const auto [boxes, each] = HitPointBoxes(game_.sheet.HitPoints);
    page_.Open("Hit Points", "hit-points short");
    page_.Raw("<div class=\"points\">");
    page_.Element("b", AbilityFact("Hit Points"));
    page_.Ticks(boxes);
    page_.Raw("</div>\n");
    page_.Element("p class=\"remark\"", each == 1 ? std::string("tick what is lost")
                                                  : Format("tick what is lost; a box is %i hit points", each));

    // What is worn changes from day to day, and is worn out: it is for the pencil.
    constexpr int kArmorTicks = 10;
    page_.Open("Armor and shield", "armor short");
    page_.Raw("<dl class=\"long\">\n");
    page_.Fact("armor class", "");
    for (const std::string_view worn : {"armor worn, its hit points", "shield, its hit points"}) {
      page_.Fact(worn, "", kArmorTicks);
    }
    page_.Raw("</dl>\n");
  }

  void AddSaves() {
    const SheetBlock* saves = Take("Saving Throws");
    page_.Open(saves->Title, "saves short");
    AddFactList(*saves);
  }

  void AddWeapons(std::string_view title) {
    constexpr int kBlanks = 2;
    const SheetBlock* weapons = Take(title);
    page_.Open(title, "whole");
    AddTable(*weapons, 0, kBlanks);
  }

  void AddMovement() {
    const SheetBlock* movement = Take("Movement and Encumbrance");
    const auto load = static_cast<std::size_t>(PresentLoad(game_.sheet));
    page_.Open(movement->Title, "short");
    AddTable(*movement, load);
    page_.Raw("<dl>\n");
    AddFacts(*movement);
    page_.Fact("Present load", movement->Columns[load]);
    page_.Raw("</dl>\n");
  }

  void AddHonor() {
    constexpr int kTrack = 20;
    page_.Open("Honor", "short");
    page_.Raw("<dl class=\"long\">\n");
    page_.Fact("Honor", AbilityFact("Honor"));
    page_.Raw("</dl>\n");
    page_.Ticks(kTrack);
    page_.Raw("\n");
    page_.Element("p class=\"remark\"", "tick what is spent");
  }

  void AddClasses() {
    for (const SheetBlock& block : content_.Blocks) {
      const bool isPercentile = block.Columns.size() == 5 && block.Columns[1] == "Base";
      if (isPercentile) AddBlock(block);
    }
    if (const SheetBlock* classes = FindBlock(content_, "Classes")) AddBlock(*classes);
    if (game_.sheet.IsClericClass != 1) return;
    const std::string taught = OneLine(game_.sheet.EducationResults);
    const bool isTold = game_.sheet.UsesClericBackground == 1 && Contains(taught, "turn undead");
    page_.Open("Turning undead", "short");
    page_.Raw("<dl class=\"long\">\n");
    page_.Fact("turns as level", "");
    page_.Fact("what changes it", isTold ? taught : "");
    page_.Raw("</dl>\n");
  }

  // ---- The pages after it ----

  void AddAccomplishments() {
    if (const SheetBlock* heading = Take("Proficiencies, Talents & Skills")) page_.Open(heading->Title);
    for (const std::string_view part : {"Skills", "Talents", "Weapon Proficiencies"}) {
      if (const SheetBlock* block = FindBlock(content_, part)) AddBlock(*block);
    }
    for (const std::string_view part : {"Quirks and Flaws", "Pixie Fairy Tattoos"}) {
      if (const SheetBlock* block = FindBlock(content_, part)) AddBlock(*block);
    }
  }

  /// The goods by category, then the coins, those that are not owned with room for the pencil, and what was inherited.
  void AddGoods() {
    const SheetBlock* inventory = Take("Inventory");
    const SheetBlock* coins = Take("Coins & Money");
    page_.Open(inventory->Title);
    for (const SheetBlock& block : content_.Blocks) {
      const bool isGoods = block.Level == SheetLevel::Part && block.Shape == SheetShape::List && !IsPlaced(block);
      if (isGoods) AddBlock(block);
    }
    page_.Element("h3", coins->Title);
    page_.Raw("<dl>\n");
    for (const SheetFact& fact : coins->Facts) page_.Fact(fact.Label, fact.Form == SheetForm::Fact ? fact.Value : "");
    page_.Raw("</dl>\n");
    page_.Element("h3", "Inheritance and debts");
    const auto inheritance = std::ranges::find_if(content_.Blocks, [](const SheetBlock& block) {
      return block.Title.empty() && block.Shape == SheetShape::LongFacts;
    });
    if (inheritance != content_.Blocks.end()) return AddBlock(*inheritance);
    page_.Raw("<dl class=\"long\">\n");
    for (const std::string_view blank : {"Inheritance", "Debt"}) page_.Fact(blank, "");
    page_.Raw("</dl>\n");
  }

  void AddStory() {
    if (const SheetBlock* family = FindBlock(content_, "Family Information")) AddBlock(*family);
    const auto& blocks = content_.Blocks;
    for (auto block = blocks.begin(); block != blocks.end(); ++block) {
      const bool isCalling = block->Shape == SheetShape::Heading && block->Level == SheetLevel::Section;
      if (!isCalling || IsPlaced(*block)) continue;
      AddBlock(*block);
      const auto youth = block + 1;
      if (youth != blocks.end() && youth->Level == SheetLevel::Part && youth->Shape == SheetShape::LongFacts) {
        AddBlock(*youth);
      } else {
        page_.Element("p class=\"remark\"", "Nothing is told of a youth.");
      }
    }
    if (const SheetBlock* notes = FindBlock(content_, "Notes")) AddBlock(*notes);
  }

  // ---- Spells ----

  void AddSpells() {
    page_.Open("Spells");
    for (const SheetBlock& block : content_.Blocks) {
      if (block.Title == "Spell Progression") AddBlock(block);
    }
    if (const SheetBlock* planner = Take("Spell Planner")) page_.Element("h3", planner->Title);
    page_.OpenTable(kSpellHeads, "Spell", 0, "spells");
    const std::vector<std::size_t> known = KnownSpells(game_);
    int level = -1;
    for (const std::size_t row : known) {
      const SpellRecord& spell = game_.SpellTable[row];
      if (spell.Level != level) AddSpellLevel(spell.Level);
      level = spell.Level;
      AddSpell(spell);
    }
    constexpr int kBlanks = 3;
    page_.BlankRows(kBlanks, kSpellHeads.size());
    page_.CloseTable();
    for (const SpellBook& book : game_.sheet.SpellBooks) {
      if (!book.Name.Empty()) AddBook(book);
    }
  }

  void AddSpellLevel(int level) {
    constexpr int kMostBoxes = 40;
    const bool hasSlots = level >= 1 && level <= static_cast<int>(game_.run.SpellsPerLevel.size());
    const int slots = hasSlots ? game_.run.SpellsPerLevel[static_cast<std::size_t>(level) - 1] : 0;
    page_.Raw(Format("<tr><th scope=\"rowgroup\" class=\"level\" colspan=\"%i\">", kSpellHeads.size()));
    page_.Text(level < 1 ? std::string("Cantrips") : Format("Level %i, %i a day", level, slots));
    if (slots > 0) page_.Ticks(std::min(slots, kMostBoxes));
    page_.Raw("</th></tr>\n");
  }

  void AddSpell(const SpellRecord& spell) {
    page_.Raw("<tr><td class=\"text\">");
    page_.Raw(Page::kMemory);
    page_.Raw("</td><th scope=\"row\">");
    page_.Text(OneLine(TrimRight(spell.Name)));
    page_.Raw("</th>");
    for (const std::string_view told :
         {spell.Type.View(), spell.Component.View(), spell.Range.View(), spell.Duration.View(),
          spell.CastingTime.View(), spell.AreaOfEffect.View(), spell.SavingThrow.View(), spell.SourceTag.View()}) {
      page_.Cell(OneLine(TrimRight(told)));
    }
    page_.Cell(PageInBooks(game_.sheet, TrimRight(spell.Name)));
    page_.CloseRow();
  }

  void AddBook(const SpellBook& book) {
    page_.Element("h3", Format("Spell book: %s", OneLine(book.Name)));
    page_.Element("p class=\"remark\"", BookMake(book));
    page_.Raw("<ul>\n");
    for (const BookEntry& entry : BookEntries(game_, book)) {
      page_.Raw("<li><span>");
      page_.Text(entry.Name);
      if (entry.Spell) {
        page_.Text(entry.Spell->Level < 1 ? std::string(", cantrip") : Format(", level %i", entry.Spell->Level));
        page_.Text(Format(entry.Pages == 1 ? ", %i page" : ", %i pages", entry.Pages));
      }
      page_.Raw(Format("</span><b>page %i</b></li>\n", entry.Page));
    }
    page_.Raw("</ul>\n");
  }

  // ---- Blocks ----

  void AddFacts(const SheetBlock& block) {
    for (const SheetFact& fact : block.Facts) {
      if (fact.Form == SheetForm::Fact) page_.Fact(fact.Label, Format(fact.Html, fact.Value));
    }
  }

  void AddFactList(const SheetBlock& block) {
    if (std::ranges::find(block.Facts, SheetForm::Fact, &SheetFact::Form) == block.Facts.end()) return;
    page_.Raw(block.Shape == SheetShape::LongFacts ? "<dl class=\"long\">\n" : "<dl>\n");
    AddFacts(block);
    page_.Raw("</dl>\n");
  }

  /// The lines of a list, each with its value at its end if it has one.
  void AddList(const SheetBlock& block) {
    page_.Raw(block.Shape == SheetShape::WideList ? "<ul class=\"wide\">\n" : "<ul>\n");
    for (const SheetFact& fact : block.Facts) {
      if (fact.Form != SheetForm::Fact) continue;
      page_.Raw("<li>");
      if (block.Shape == SheetShape::CheckList) page_.Raw(Page::kMemory);
      page_.Raw("<span>");
      page_.Text(fact.Label);
      page_.Raw("</span>");
      if (!fact.Value.empty()) page_.Raw("<b>" + Escaped(Format(fact.Html, fact.Value)) + "</b>");
      page_.Raw("</li>\n");
    }
    page_.Raw("</ul>\n");
  }

  /// The effects of a row in one cell.
  void AddEffects(std::span<const SheetFact> facts) {
    page_.Raw("<td class=\"text effects\">");
    bool isFirst = true;
    for (const SheetFact& fact : facts) {
      const bool isMarkup = fact.Form == SheetForm::MarkupEffect;
      if ((!isMarkup && fact.Form != SheetForm::Effect) || TrimRight(fact.Value).empty()) continue;
      if (!isFirst) page_.Raw(", ");
      isFirst = false;
      page_.Text(fact.Label);
      page_.Raw(" <b>");
      page_.Raw(isMarkup ? fact.Value : Escaped(fact.Value));
      page_.Raw("</b>");
    }
    page_.Raw("</td>");
  }

  /// The rows of a table; `marked` is a column, 0 for none.
  void AddTable(const SheetBlock& block, std::size_t marked = 0, int blanks = 0) {
    const auto isHead = [](const SheetFact& fact) { return fact.Form == SheetForm::RowHead; };
    page_.OpenTable(block.Columns, block.TextColumn, marked);
    for (auto head = std::ranges::find_if(block.Facts, isHead); head != block.Facts.end();) {
      const auto end = std::find_if(head + 1, block.Facts.end(), isHead);
      page_.OpenRow(head->Value);
      std::size_t column = 0;
      for (auto fact = head; fact != end; ++fact) {
        if (fact->Form != SheetForm::Cell) continue;
        page_.Cell(Format(fact->Html, fact->Value), Page::IsMarked(++column, marked));
      }
      if (!block.TextColumn.empty()) AddEffects({head, end});
      page_.CloseRow();
      head = end;
    }
    page_.BlankRows(blanks, block.Columns.size());
    page_.CloseTable();
  }

  /// A block as its shape tells, if it has no place yet.
  void AddBlock(const SheetBlock& block) {
    if (IsPlaced(block)) return;
    placed_.push_back(&block);
    if (block.Level == SheetLevel::Part) page_.Element("h3", block.Title);
    if (block.Level >= SheetLevel::Section) {
      page_.Open(block.Title, block.Level == SheetLevel::ShortSection ? "short" : "");
    }
    switch (block.Shape) {
      case SheetShape::Heading:
        break;
      case SheetShape::Facts:
      case SheetShape::LongFacts:
        AddFactList(block);
        break;
      case SheetShape::Table:
        AddTable(block);
        AddFactList(block);
        break;
      case SheetShape::List:
      case SheetShape::WideList:
      case SheetShape::CheckList:
        AddList(block);
        break;
      case SheetShape::Note:
        for (const SheetFact& fact : block.Facts) page_.Element("p class=\"notes\"", fact.Value);
        break;
    }
  }

  static constexpr std::string_view kAbilityBlock = "Ability Scores";
  static constexpr std::array<std::string_view, 11> kSpellHeads{
      "Memory", "Spell", "School", "Comp.", "Range", "Duration", "Casting", "Area", "Save", "Book", "Page"};

  const Game& game_;
  SheetContent content_;
  std::vector<const SheetBlock*> placed_;
  Page page_;
};

}  // namespace

std::string HtmlSheet(Game& game) {
  BringUpToDate(game);
  return HtmlWriter(game).Write();
}

}  // namespace veld
