#pragma once

#include <string>

#include "print/paper.h"
#include "store/game.h"
#include "store/safe_file.h"

namespace veld {

struct PrintOptions {
  PaperSize Paper = LocalPaper();
  bool SpellCards = false;  ///< a mage's spells once more, as cards to be cut out
};

/// The character's sheet to play from, as a PDF document: the page for the table, then what he can do, knows and owns,
/// then a log to fill in. Brings the character up to date first. Empty if this computer can't make one.
std::string PdfSheet(Game& game, const PrintOptions& options = {});

/// Writes that to a file and tells the player what came of it. False if the file could not be written; whatever stood
/// there is then whole.
bool SavePdfSheet(Game& game, const std::string& path, const PrintOptions& options = {}, SaveWay way = {});

}  // namespace veld
