#include "generation/pending_stages.h"

namespace veld {

void RunPackageSelect(Game&, PackageList) {}
void ApplyPackage(Game&) {}
void RunWMABackground(Game&) {}
void RunHXABackground(Game&) {}
void RunDVABackground(Game&) {}

}  // namespace veld
