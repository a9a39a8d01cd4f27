#pragma once

#include <string_view>

#include "store/game.h"

namespace veld {

/// CharacterName of a character that nobody has named.
inline constexpr std::string_view kUnnamedCharacter = "name";

/// What a player uses on the page of Step 18.
namespace NamingControl {
inline constexpr int CharacterName = 3000;
}  // namespace NamingControl

/// Names the character and its player. Returns false, with nothing changed, for the name that a character has before it
/// is named.
bool NameCharacter(Game& game, std::string_view characterName, std::string_view playerName);

/// Step 18, "Name your character". OK leaves CurrentStep at 19, Abort as it is.
void RunStepEightteen(Game& game);

}  // namespace veld
