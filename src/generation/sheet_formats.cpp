#include "generation/sheet_formats.h"

#include "print/print_save.h"
#include "sheets/html_sheet.h"
#include "sheets/tab_sheet.h"
#include "sheets/text_sheet.h"
#include "sheets/xml_sheet.h"
#include "store/character_file.h"

namespace veld {

const std::array<SheetFormat, 6> kSheetFormats{{
    {"vlf", [](Game& game) { return EncodeCharacter(game); }},
    {"txt", TextSheet},
    {"csv", TabSheet},
    {"html", HtmlSheet},
    {"xml", XmlSheet},
    {"pdf", [](Game& game) { return PdfSheet(game); }},
}};

}  // namespace veld
