#include "print/print_dialog.h"

#include <algorithm>
#include <array>

#include "platform/platform.h"
#include "print/send_pdf.h"
#include "sheets/sheet_facts.h"
#include "store/safe_file.h"

namespace veld {

namespace {

enum : int { kWho = 20, kCards = 21 };

constexpr auto kPrintControls = [] {
  auto controls = std::to_array<ControlTemplate>({
      LabelAt(0, 0, "Sheet of"),
      ResultAt(0, 1, kWho, 48),
      LabelAt(1, 0, "Paper"),
      PaperAt(1, 1, kPaperA4, "&A4"),
      PaperAt(1, 1, kPaperLetter, "&Letter"),
      CheckAt(2, 1, kCards, "Spell &cards too, to be cut out"),
      ButtonAt(4, 0, kPrintView, "Open in &viewer", ButtonRole::Default),
      ButtonAt(4, 0, kPrintPrinter, "Send to &printer"),
      ButtonAt(4, 0, kPrintSave, "&Save as PDF..."),
      ButtonAt(4, 0, kPrintClose, "Cancel", ButtonRole::Cancel),
  });
  for (ControlTemplate& control : controls) {
    if (control.Kind == ControlKind::Button) control.ColumnSpan = 2;
  }
  return controls;
}();
constexpr std::string_view kPrintHelp =
    "The sheet of the character in memory, to play from: a first page with all that the table asks for, boxes to tick "
    "and lines for the pencil, then skills, goods, family, notes, spells and a log. With the cards a mage's spells "
    "come "
    "once more, nine on a page.\n\n"
    "Open in viewer shows it on the screen, where it can be printed too; Send to printer gives it to the printer that "
    "the system has chosen; Save as PDF asks for a place of your own. The last five sheets that were shown or printed "
    "lie in the folder print. It costs nothing, and changes nothing of the character.";
constexpr FormTemplate kPrint{"Print", "Print", kPrintControls, kPrintHelp};

}  // namespace

PaperSize ChosenPaper(const Game& game) {
  return game.print.Paper.value_or(LocalPaper());
}

void ShowPaper(Form& form, const Game& game) {
  form.SetChecked(ChosenPaper(game) == PaperSize::Letter ? kPaperLetter : kPaperA4, true);
}

void KeepPaper(const Form& form, Game& game) {
  game.print.Paper = form.IsChecked(kPaperLetter) ? PaperSize::Letter : PaperSize::A4;
}

bool SendSheet(Game& game, int id, const std::string& name, const std::function<std::string()>& make,
               std::string_view savedText) {
  if (id == kPrintView) return SendPdf(game.platform, name, make(), PdfWay::View);
  if (id == kPrintPrinter) return SendPdf(game.platform, name, make(), PdfWay::Print);
  const auto path = AskPdfPath(game.platform, name);
  if (!path) return false;
  const std::string bytes = make();
  const bool isSaved = !bytes.empty() && SaveWholeFile(*path, bytes);
  game.platform.ShowMessage(isSaved ? savedText : "Problem creating PDF file");
  return isSaved;
}

void RunPrintOf(Game& game, const std::string& who, bool hasSpells,
                const std::function<std::string(const PrintOptions&)>& makeSheets) {
  Form form(kPrint);
  form.onOpened = [&] {
    form.SetText(kWho, who);
    ShowPaper(form, game);
    form.SetChecked(kCards, hasSpells && game.print.SpellCards);
    form.SetEnabled(kCards, hasSpells);
  };
  form.onCommand = [&](int id) {
    if (id == kPrintClose) return form.Close();
    if (id == kCards) game.print.SpellCards = form.IsChecked(kCards);
    KeepPaper(form, game);
    if (id != kPrintView && id != kPrintPrinter && id != kPrintSave) return;
    const PrintOptions options{ChosenPaper(game), form.IsChecked(kCards)};
    const auto make = [&] { return makeSheets(options); };
    if (SendSheet(game, id, who, make, "Character Saved in PDF format")) form.Close();
  };
  game.platform.RunForm(form);
}

void RunPrint(Game& game) {
  const CharacterSheet& sheet = game.sheet;
  const bool hasSpells = std::ranges::any_of(sheet.SpellsKnown, [](int known) { return known > 0; });
  RunPrintOf(game, OneLine(sheet.CharacterName), hasSpells,
             [&](const PrintOptions& options) { return PdfSheet(game, options); });
}

}  // namespace veld
