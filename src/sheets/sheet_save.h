#pragma once

#include <string>

#include "store/game.h"
#include "store/safe_file.h"

namespace veld {

// Each brings the character up to date, writes its sheet to a file and tells the player what came of it. False if the
// file could not be written; whatever stood there is then whole.
bool SaveTextSheet(Game& game, const std::string& path, SaveWay way = {});
bool SaveTabSheet(Game& game, const std::string& path, SaveWay way = {});
bool SaveHtmlSheet(Game& game, const std::string& path, SaveWay way = {});
bool SaveXmlSheet(Game& game, const std::string& path, SaveWay way = {});

}  // namespace veld
