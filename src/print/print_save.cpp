#include "print/print_save.h"

#include <langinfo.h>
#include <locale.h>

#include <cstdint>

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

PaperSize LocalPaper() {
  constexpr int kLetterMillimetres = 279;
  const locale_t locale = newlocale(LC_PAPER_MASK, "", nullptr);
  if (!locale) return PaperSize::A4;
  // The C library gives this number in the place of a text, in its lower half.
  const auto height = static_cast<int>(reinterpret_cast<std::intptr_t>(nl_langinfo_l(_NL_PAPER_HEIGHT, locale)));
  freelocale(locale);
  return height == kLetterMillimetres ? PaperSize::Letter : PaperSize::A4;
}

std::string PdfSheet(Game& game, const PrintOptions& options) {
  BringUpToDate(game);
  const SheetContent content = GatherSheet(game);
  const bool isLetter = options.Paper == PaperSize::Letter;
  const std::string head = Format("%s \u2013 %s", content.Name, content.Subtitle);
  const auto canvas =
      PdfCanvas::Make(isLetter ? 612 : 595.276, isLetter ? 792 : 841.89, head, OneLine(game.sheet.PlayerName));
  if (!canvas) return {};
  PageFlow flow(*canvas, head);
  PlaceTablePage(flow, game, content);
  PlaceAccomplishments(flow, game, content);
  PlaceGoods(flow, game, content);
  PlaceStory(flow, content);
  if (IsShownAsMage(game.sheet)) PlaceSpells(flow, game);
  PlaceLog(flow);
  if (options.SpellCards) DrawSpellCards(flow, game);
  return canvas->Finish();
}

bool SavePdfSheet(Game& game, const std::string& path, const PrintOptions& options, SaveWay way) {
  const std::string bytes = PdfSheet(game, options);
  const bool isSaved = !bytes.empty() && SaveWholeFile(path, bytes, way);
  game.platform.ShowMessage(isSaved ? "Character Saved in PDF format" : "Problem creating PDF file");
  return isSaved;
}

}  // namespace veld
