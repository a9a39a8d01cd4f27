#pragma once

#include <memory>
#include <string>

#include "platform/no_front_end.h"
#include "store/game.h"

namespace veld {

/// Nobody sits before it: what the program tells goes to standard error, each question is left open, and a page that
/// would be shown is closed. No log and no copy is written.
class PromptPlatform : public NoFrontEnd {
 public:
  void RunForm(Form& form) override;
  void ShowWindow(std::shared_ptr<Form> form) override;
  bool LeavesNoTrace() const override { return true; }

 protected:
  void DoShowMessage(const std::string& caption, const std::string& text) override;
  Answer DoAskYesNo(const std::string&, const std::string&) override { return Answer::Closed; }
};

/// A game that the program throws the dice of, with all books in use.
std::unique_ptr<Game> QuietGame(PromptPlatform& platform);

/// Reads the goods and spells that ship with the program. Returns why they can't be read; empty if they are there.
std::string LoadShippedCatalogues(Game& game);

/// Reads a character from a file, or from standard input for "-", into memory. Returns why it can't be one; empty if
/// it stands there.
std::string ReadCharacter(Game& game, const std::string& path);

/// All bytes of a file, or of standard input for "-". Returns why they can't be had; empty if they stand in `bytes`.
std::string ReadBytes(const std::string& path, std::string& bytes);

}  // namespace veld
