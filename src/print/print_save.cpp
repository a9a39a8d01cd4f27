#include "print/print_save.h"

#include "platform/platform.h"
#include "print/list_pages.h"
#include "print/pdf_canvas.h"
#include "print/pieces.h"
#include "print/spell_pages.h"
#include "print/table_page.h"
#include "sheets/sheet_content.h"
#include "sheets/sheet_facts.h"
#include "text/format.h"

namespace veld {

namespace {

/// "Ada - Human Fighter 1", as far as it is known.
std::string RunningHead(const SheetContent& content) {
  std::string head = KnownFact(content, "Name");
  const char* sign = " \u2013 ";
  for (const std::string_view label : {"Race", "Class"}) {
    const std::string fact = KnownFact(content, label);
    if (fact.empty()) continue;
    if (!head.empty()) head += sign;
    head += fact;
    sign = " ";
  }
  return head.empty() ? "A new character" : head;
}

}  // namespace

std::string PdfSheet(Game& game, const PrintOptions& options) {
  BringUpToDate(game);
  const SheetContent content = GatherSheet(game);
  const PaperMeasure paper = MeasureOf(options.Paper);
  const std::string head = RunningHead(content);
  const auto canvas = PdfCanvas::Make(paper.Width, paper.Height, head, OneLine(game.sheet.PlayerName));
  if (!canvas) return {};
  PageFlow flow(*canvas, head);
  PlaceTablePage(flow, game, content);
  PlaceAccomplishments(flow, game, content);
  PlaceGoods(flow, game, content);
  PlaceStory(flow, content);
  if (IsShownAsMage(game.sheet)) PlaceSpells(flow, game);
  PlaceLog(flow);
  if (options.SpellCards) DrawSpellCards(flow, game);
  flow.Finish();
  return canvas->Finish();
}

bool SavePdfSheet(Game& game, const std::string& path, const PrintOptions& options, SaveWay way) {
  const std::string bytes = PdfSheet(game, options);
  const bool isSaved = !bytes.empty() && SaveWholeFile(path, bytes, way);
  game.platform.ShowMessage(isSaved ? "Character Saved in PDF format" : "Problem creating PDF file");
  return isSaved;
}

}  // namespace veld
