#include "sheets/sheet_save.h"

#include "platform/platform.h"
#include "sheets/html_sheet.h"
#include "sheets/sheet_content.h"
#include "sheets/tab_sheet.h"
#include "sheets/text_sheet.h"
#include "sheets/xml_sheet.h"

namespace veld {

bool SaveTextSheet(Game& game, const std::string& path, SaveWay way) {
  const bool isSaved = SaveWholeFile(path, TextSheet(game), way);
  game.platform.ShowMessage(isSaved ? "Character Saved in text format" : "Problem creating text file");
  return isSaved;
}

bool SaveTabSheet(Game& game, const std::string& path, SaveWay way) {
  if (!SaveWholeFile(path, TabSheet(game), way)) {
    game.platform.ShowMessage("Problem creating csv file");
    return false;
  }
  // The sheet's two rows have no word for how well an ability goes with a weapon: the player is told of each.
  for (int picks = GatherSheet(game).Picks; picks > 0; --picks) {
    game.platform.ShowMessage("Weapon With Text");
  }
  game.platform.ShowMessage("Character Saved in tab-deliminated  format");
  return true;
}

bool SaveHtmlSheet(Game& game, const std::string& path, SaveWay way) {
  const bool isSaved = SaveWholeFile(path, HtmlSheet(game), way);
  game.platform.ShowMessage(isSaved ? "Character Saved in HTML format" : "Problem creating html file");
  return isSaved;
}

bool SaveXmlSheet(Game& game, const std::string& path, SaveWay way) {
  const bool isSaved = SaveWholeFile(path, XmlSheet(game), way);
  game.platform.ShowMessage(isSaved ? "Character Saved in extensible markup language format"
                                    : "Problem creating xml file");
  return isSaved;
}

}  // namespace veld
