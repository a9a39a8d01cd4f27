#pragma once

#include <string>

#include "store/game.h"

namespace veld {

/// Writes the character in the format that the path names. The tests look for the extension anywhere in the path, the
/// character file first: sheets are exports, the character file is the save.
void SaveByExtension(Game& game, const std::string& path);

/// Asks for a path with the file types a character can be saved as, and saves. Returns false if the player cancelled.
bool AskAndSaveCharacter(Game& game);

/// Asks for a character file and loads it; StepThree closes once one has been read. Returns false if the player
/// cancelled.
bool AskAndLoadCharacter(Game& game);

}  // namespace veld
