#include "shell/start_up.h"

#include "shell/player_name.h"
#include "store/side_files.h"

namespace veld {

void StartUp(Game& game) {
  game.RuleSwitches = kDefaultRuleSwitches;
  game.sheet.PlayerName = DesktopUserName();
  ResetCharacter(game);
  LoadOptions(game);
  LoadEquipment(game);
  LoadCustomEquipment(game);
  LoadSpells(game);
}

}  // namespace veld
