#include "sheets/html_sheet.h"

#include <algorithm>
#include <span>

#include "platform/form.h"
#include "sheets/sheet_content.h"
#include "text/format.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace {

// A page for A4 and Letter alike: no width is fixed, words longer than their place are broken, wide tables scroll on a
// phone, small blocks stay on one page.
constexpr std::string_view kStyle = R"(
:root { --ink: #16325c; --rule: #c9dcec; --label: #4a4a4a; }
* { box-sizing: border-box; }
body { margin: 0 auto; padding: 1rem; max-width: 52rem; background: #fff; color: var(--ink);
  font: 0.95rem/1.5 "Liberation Sans", Arial, Helvetica, sans-serif; overflow-wrap: anywhere; }
h1 { margin: 0; font-size: 1.7rem; line-height: 1.2; color: #111; }
h2 { margin: 1.4rem 0 0.3rem; padding-bottom: 0.1rem; border-bottom: 2px solid var(--ink);
  font-size: 1.1rem; color: #111; }
h3 { margin: 0.8rem 0 0.2rem; font-size: 0.95rem; color: #111; }
h2, h3, caption { break-after: avoid; }
p { margin: 0.2rem 0; }
dl { margin: 0; display: grid; column-gap: 1.2rem;
  grid-template-columns: repeat(auto-fill, minmax(min(14rem, 100%), 1fr)); }
dl.long { grid-template-columns: 1fr; }
dl div { display: flex; gap: 0.5rem; border-bottom: 1px solid var(--rule); break-inside: avoid; }
dt { color: var(--label); flex: none; max-width: 60%; }
dd { margin: 0; font-weight: 600; min-width: 0; }
ul { margin: 0; padding: 0; list-style: none; columns: 14rem; column-gap: 1.2rem; }
ul.wide { columns: 1; }
li { border-bottom: 1px solid var(--rule); break-inside: avoid; display: flex; gap: 0.5rem; }
li b { margin-left: auto; white-space: nowrap; }
.boxes { letter-spacing: 0.1em; color: var(--label); }
.scroll { overflow-x: auto; }
table { width: 100%; border-collapse: collapse; }
th, td { padding: 0.05rem 0.4rem; border-bottom: 1px solid var(--rule); text-align: center; white-space: nowrap; }
thead th { color: var(--label); font-weight: 400; }
tbody th { text-align: left; font-weight: 600; }
td.text, th.text { text-align: left; white-space: normal; overflow-wrap: break-word; }
tr > :first-child { padding-left: 0; }
tr { break-inside: avoid; }
thead { display: table-header-group; }
.notes { white-space: pre-wrap; }
.short { break-inside: avoid; }
@page { margin: 14mm; }
@media print {
  body { padding: 0; max-width: none; font-size: 9.5pt; line-height: 1.4; }
  .scroll { overflow: visible; }
  th, td { padding: 0 0.25rem; }
  tr > :first-child { padding-left: 0; }
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

  /// A section with its heading; a short one is kept on one page. It ends where the next begins.
  void Open(std::string_view heading, bool isShort) {
    Close();
    Raw(isShort ? "<section class=\"short\">\n" : "<section>\n");
    Element("h2", heading);
    isOpen_ = true;
  }
  void Close() {
    if (isOpen_) Raw("</section>\n");
    isOpen_ = false;
  }

  void Facts(const SheetBlock& block, bool isLong = false) {
    Raw(isLong ? "<dl class=\"long\">\n" : "<dl>\n");
    for (const SheetFact& fact : block.Facts) {
      if (fact.Form != SheetForm::Fact) continue;
      Raw("<div><dt>");
      Text(fact.Label);
      Raw("</dt><dd>");
      Text(Format(fact.Html, fact.Value));
      Raw("</dd></div>\n");
    }
    Raw("</dl>\n");
  }

  /// The heads of a table. The first column is one of texts, as is that of the effects.
  void OpenTable(const SheetBlock& block) {
    Raw("<div class=\"scroll\"><table>\n<thead><tr>");
    for (const std::string_view& head : block.Columns) {
      const bool isText = &head == block.Columns.data() || (!head.empty() && head == block.TextColumn);
      Raw(isText ? "<th scope=\"col\" class=\"text\">" : "<th scope=\"col\">");
      Text(head);
      Raw("</th>");
    }
    Raw("</tr></thead>\n<tbody>\n");
  }
  void OpenRow(std::string_view head) {
    Raw("<tr><th scope=\"row\">");
    Text(head);
    Raw("</th>");
  }
  void Cell(std::string_view text) {
    Raw("<td>");
    Text(text);
    Raw("</td>");
  }
  void CloseTable() { Raw("</tbody>\n</table></div>\n"); }

  /// The lines of a list, each with its value at its end if it has one.
  void List(const SheetBlock& block) {
    Raw(block.Shape == SheetShape::WideList ? "<ul class=\"wide\">\n" : "<ul>\n");
    for (const SheetFact& fact : block.Facts) {
      if (fact.Form != SheetForm::Fact) continue;
      Raw("<li>");
      if (block.Shape == SheetShape::CheckList) Raw(kBoxes);
      Raw("<span>");
      Text(fact.Label);
      Raw("</span>");
      if (!fact.Value.empty()) Raw("<b>" + Escaped(Format(fact.Html, fact.Value)) + "</b>");
      Raw("</li>\n");
    }
    Raw("</ul>\n");
  }

  std::string Take() { return std::move(html_); }

 private:
  static constexpr std::string_view kBoxes =
      "<span class=\"boxes\" aria-hidden=\"true\">&#9675;&#9675;&#9675;&#9675;&#9675;</span>";

  std::string html_;
  bool isOpen_ = false;
};

void AddHead(Page& page, const SheetContent& content) {
  page.Raw(
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n");
  page.Element("title", content.Name);
  page.Raw("<style>");
  page.Raw(kStyle);
  page.Raw("</style>\n</head>\n<body>\n<header>\n");
  page.Element("h1", content.Name);
  page.Element("p", content.Subtitle);
  page.Raw("</header>\n<main>\n");
}

/// The effects of a row in one cell.
void AddEffects(Page& page, std::span<const SheetFact> facts) {
  page.Raw("<td class=\"text\">");
  bool isFirst = true;
  for (const SheetFact& fact : facts) {
    const bool isMarkup = fact.Form == SheetForm::MarkupEffect;
    if ((!isMarkup && fact.Form != SheetForm::Effect) || TrimRight(fact.Value).empty()) continue;
    if (!isFirst) page.Raw(", ");
    isFirst = false;
    page.Text(fact.Label);
    page.Raw(" <b>");
    page.Raw(isMarkup ? fact.Value : Escaped(fact.Value));
    page.Raw("</b>");
  }
  page.Raw("</td>");
}

/// A table, and under it the block's facts that stand in no row.
void AddTable(Page& page, const SheetBlock& block) {
  const auto isHead = [](const SheetFact& fact) { return fact.Form == SheetForm::RowHead; };
  page.OpenTable(block);
  for (auto head = std::ranges::find_if(block.Facts, isHead); head != block.Facts.end();) {
    const auto end = std::find_if(head + 1, block.Facts.end(), isHead);
    page.OpenRow(head->Value);
    for (auto fact = head; fact != end; ++fact) {
      if (fact->Form == SheetForm::Cell) page.Cell(Format(fact->Html, fact->Value));
    }
    if (!block.TextColumn.empty()) AddEffects(page, {head, end});
    page.Raw("</tr>\n");
    head = end;
  }
  page.CloseTable();
  if (std::ranges::find(block.Facts, SheetForm::Fact, &SheetFact::Form) != block.Facts.end()) page.Facts(block);
}

void AddBlock(Page& page, const SheetBlock& block) {
  if (block.Level == SheetLevel::Part) page.Element("h3", block.Title);
  if (block.Level >= SheetLevel::Section) page.Open(block.Title, block.Level == SheetLevel::ShortSection);
  switch (block.Shape) {
    case SheetShape::Heading:
      break;
    case SheetShape::Facts:
    case SheetShape::LongFacts:
      page.Facts(block, block.Shape == SheetShape::LongFacts);
      break;
    case SheetShape::Table:
      AddTable(page, block);
      break;
    case SheetShape::List:
    case SheetShape::WideList:
    case SheetShape::CheckList:
      page.List(block);
      break;
    case SheetShape::Note:
      for (const SheetFact& fact : block.Facts) page.Element("p class=\"notes\"", fact.Value);
      break;
  }
}

}  // namespace

std::string HtmlSheet(Game& game) {
  BringUpToDate(game);
  const SheetContent content = GatherSheet(game);
  Page page;
  AddHead(page, content);
  for (const SheetBlock& block : content.Blocks) AddBlock(page, block);
  page.Close();
  page.Raw("</main>\n</body>\n</html>\n");
  return page.Take();
}

}  // namespace veld
