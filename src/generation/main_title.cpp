#include "generation/main_title.h"

#include "platform/platform.h"
#include "text/format.h"

namespace veld {

void UpdateMainTitle(Game& game, std::string_view name) {
  game.platform.SetMainTitle(Format("%s - %s - is in memory", kProgramTitle, DisplayText(name)));
}

}  // namespace veld
