#include "steps/quirks/held_quirks.h"

#include <algorithm>
#include <numeric>

#include "rules/quirk_table.h"
#include "text/numbers.h"

namespace veld {

int PotentialQuirkBP(const Game& game) {
  const auto first = game.sheet.QuirkBP.begin();
  return SaturateToInt(std::accumulate(first, first + kLastQuirk + 1, std::int64_t{0}));
}

std::vector<std::string> HeldQuirkNames(const Game& game) {
  std::vector<std::string> names;
  for (int row = 1; row <= kLastQuirk; ++row) {
    const QuirkRecord& quirk = QuirkAt(row);
    if (quirk.Kind != kMinorQuirk && quirk.Kind != kMajorQuirk) continue;
    const int held = std::clamp(HeldCount(game, row), 0, kAnyQuirkCount);
    names.insert(names.end(), static_cast<std::size_t>(held), std::string(ShownQuirkName(row)));
  }
  return names;
}

void BindToBook(Game& game, int book) {
  switch (book) {
    case kHexwrightsAlmanac:
      game.sheet.UsesMageBackground = 1;
      break;
    case kWarmongersAlmanac:
      game.sheet.UsesFighterBackground = 1;
      break;
    case kSwindlersAlmanac:
      game.run.UsesThiefBackground = 1;
      break;
    case kDevoteesAlmanac:
      game.sheet.UsesClericBackground = 1;
      break;
    default:
      break;
  }
}

}  // namespace veld
