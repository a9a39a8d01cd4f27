#include "print/print_save.h"

#include "platform/platform.h"
#include "print/list_pages.h"
#include "print/pdf_canvas.h"
#include "print/pieces.h"
#include "print/spell_pages.h"
#include "print/table_page.h"
#include "sheets/sheet_content.h"
#include "sheets/sheet_facts.h"

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

std::unique_ptr<PdfCanvas> MakeCanvas(const std::string& title, const std::string& author,
                                      const PrintOptions& options) {
  const PaperMeasure paper = MeasureOf(options.Paper);
  return PdfCanvas::Make(paper.Width, paper.Height, title, author);
}

void DrawSheet(PdfCanvas& canvas, const Game& game, const SheetContent& content, const PrintOptions& options) {
  PageFlow flow(canvas, RunningHead(content));
  PlaceTablePage(flow, game, content);
  PlaceAccomplishments(flow, game, content);
  PlaceGoods(flow, game, content);
  PlaceStory(flow, content);
  if (IsShownAsMage(game.sheet)) PlaceSpells(flow, game);
  PlaceLog(flow);
  if (options.SpellCards) DrawSpellCards(flow, game);
  flow.Finish();
}

}  // namespace

std::string PdfSheet(Game& game, const PrintOptions& options) {
  BringUpToDate(game);
  const SheetContent content = GatherSheet(game);
  const auto canvas = MakeCanvas(RunningHead(content), OneLine(game.sheet.PlayerName), options);
  if (!canvas) return {};
  DrawSheet(*canvas, game, content, options);
  return canvas->Finish();
}

PdfSheets::PdfSheets(const std::string& title, const PrintOptions& options)
    : canvas_(MakeCanvas(title, "", options)), options_(options) {}

PdfSheets::~PdfSheets() = default;

void PdfSheets::Add(Game& game) {
  BringUpToDate(game);
  if (!canvas_) return;
  if (!isEmpty_) canvas_->NextPage();
  isEmpty_ = false;
  DrawSheet(*canvas_, game, GatherSheet(game), options_);
}

std::string PdfSheets::Finish() {
  return canvas_ ? canvas_->Finish() : std::string();
}

bool SavePdfSheet(Game& game, const std::string& path, const PrintOptions& options, SaveWay way) {
  const std::string bytes = PdfSheet(game, options);
  const bool isSaved = !bytes.empty() && SaveWholeFile(path, bytes, way);
  game.platform.ShowMessage(isSaved ? "Character Saved in PDF format" : "Problem creating PDF file");
  return isSaved;
}

}  // namespace veld
