#include "generation/main_title.h"

#include "platform/platform.h"
#include "sheets/character_page.h"
#include "text/format.h"

namespace veld {

void ShowCharacter(Game& game) {
  if (!game.platform.LeavesNoTrace()) game.platform.ShowPage(CharacterPage(game));
}

void UpdateMainTitle(Game& game, std::string_view name) {
  game.platform.SetMainTitle(Format("%s - %s - is in memory", kProgramTitle, DisplayText(name)));
  ShowCharacter(game);
}

}  // namespace veld
