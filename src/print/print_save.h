#pragma once

#include <memory>
#include <string>

#include "print/paper.h"
#include "store/game.h"
#include "store/safe_file.h"

namespace veld {

class PdfCanvas;

struct PrintOptions {
  PaperSize Paper = LocalPaper();
  bool SpellCards = false;  ///< a mage's spells once more, as cards to be cut out
};

/// The character's sheet to play from, as a PDF document: the page for the table, then what he can do, knows and owns,
/// then a log to fill in. Brings the character up to date first. Empty if this computer can't make one.
std::string PdfSheet(Game& game, const PrintOptions& options = {});

/// The sheets of several characters in one document, each with page numbers of its own.
class PdfSheets {
 public:
  PdfSheets(const std::string& title, const PrintOptions& options);
  ~PdfSheets();
  PdfSheets(const PdfSheets&) = delete;
  PdfSheets& operator=(const PdfSheets&) = delete;

  /// Adds the sheet of a character, whom it brings up to date first.
  void Add(Game& game);
  /// Ends the document. Its bytes; none if this computer can't make one.
  std::string Finish();

 private:
  std::unique_ptr<PdfCanvas> canvas_;
  PrintOptions options_;
  bool isEmpty_ = true;
};

/// Writes the sheet of a character to a file and tells the player what came of it. False if the file could not be
/// written; whatever stood there is then whole.
bool SavePdfSheet(Game& game, const std::string& path, const PrintOptions& options = {}, SaveWay way = {});

}  // namespace veld
