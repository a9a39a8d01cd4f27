#pragma once

#include <functional>
#include <string>

#include "platform/form.h"
#include "print/print_save.h"
#include "store/game.h"

namespace veld {

/// File, Print: asks for the paper, whether the spells are printed as cards too, and where the sheet of the character
/// in memory goes. What was chosen stands again the next time.
void RunPrint(Game& game);

/// The same for sheets of any kind: `who` stands on the page, `makeSheets` makes the document when there is somewhere
/// for it to go.
void RunPrintOf(Game& game, const std::string& who, bool hasSpells,
                const std::function<std::string(const PrintOptions&)>& makeSheets);

// What the pages that print have in common: paper, and where the sheet goes.

inline constexpr int kPrintView = 1;
inline constexpr int kPrintClose = 2;
inline constexpr int kPrintPrinter = 3;
inline constexpr int kPrintSave = 4;
inline constexpr int kPaperA4 = 10;
inline constexpr int kPaperLetter = 11;

constexpr ControlTemplate PaperAt(int row, int column, int id, std::string_view text) {
  return {.Kind = ControlKind::Radio, .Id = id, .Row = row, .Column = column, .Text = text, .Group = 1};
}

/// The paper chosen last, or that of the user's country.
PaperSize ChosenPaper(const Game& game);
/// Marks it on a page.
void ShowPaper(Form& form, const Game& game);
/// Keeps what is marked.
void KeepPaper(const Form& form, Game& game);

/// Carries out View, Print or Save for a document that is made only if there is somewhere for it to go. True if it went
/// there.
bool SendSheet(Game& game, int id, const std::string& name, const std::function<std::string()>& make,
               std::string_view savedText);

}  // namespace veld
