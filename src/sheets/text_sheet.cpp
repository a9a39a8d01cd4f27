#include "sheets/text_sheet.h"

#include "sheets/sheet_content.h"

namespace veld {

// Some lines end in a blank: the sheet's lay-out is a format that other programs read, and it is kept to the letter.

std::string TextSheet(Game& game) {
  BringUpToDate(game);
  std::string text;
  for (const SheetBlock& block : GatherSheet(game).Blocks) {
    text += block.TextLead;
    for (const SheetFact& fact : block.Facts) text += PrintedPart(fact.Text, fact);
    text += block.TextTail;
  }
  return text;
}

}  // namespace veld
