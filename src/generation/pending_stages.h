#pragma once

#include "store/game.h"

namespace veld {

// Stages of a generation whose rooms are not built yet. Nobody is asked for them until they are.

enum class PackageList { Fighter, Mage };
/// Chooses a background package of a list.
void RunPackageSelect(Game& game, PackageList list);
/// Gives what the package named in PackageName gives.
void ApplyPackage(Game& game);
/// A fighter's military youth.
void RunWMABackground(Game& game);
/// A mage's school years.
void RunHXABackground(Game& game);
/// A priest's seminary.
void RunDVABackground(Game& game);

}  // namespace veld
